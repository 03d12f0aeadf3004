#include "gui/editor/DialogEditor.h"

#include "core/Console.h"
#include "core/Latin1.h"
#include "gui/controls/BusyCursor.h"
#include "gui/controls/Look.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr QSize firstSize(800, 600);
constexpr int firstTreeWidth = 280;
constexpr const char* openTitle = "Open ARINC825 Profile";
constexpr const char* saveTitle = "Save ARINC825 Profile";

} // namespace

DialogEditor::DialogEditor(const Texts& texts, QWidget* parent)
    : QDialog(parent),
      m_texts(texts),
      m_fileName(QLatin1String(neverSaved)),
      m_tree(new QTreeWidget(this)),
      m_pages(new QStackedWidget(this))
{
    m_tree->setObjectName(QStringLiteral("tree"));
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_pages->setObjectName(QStringLiteral("pages"));
    buildLayout();
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &DialogEditor::slotSelect);
    resize(firstSize);
}

DialogEditor::~DialogEditor()
{
    // Fields that lose the focus on their way out tell what was typed into them; the derived class
    // that would hear it has gone.
    for (QObject* child : findChildren<QObject*>()) {
        disconnect(child, nullptr, this, nullptr);
    }
}

void DialogEditor::buildLayout()
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(windowMargin);
    buttons->addWidget(makeButton("New Profile", "new", &DialogEditor::slotNewProfile));
    buttons->addWidget(makeButton("Open Profile", "open", &DialogEditor::slotOpenProfile));
    buttons->addWidget(makeButton("Save Profile", "save", &DialogEditor::slotSaveProfile));
    buttons->addWidget(makeButton("Save Profile as", "save-as", &DialogEditor::slotSaveAsProfile));
    buttons->addSpacing(4 * windowMargin);
    m_add = makeButton("Add", "parameter-add", &DialogEditor::slotAdd);
    m_delete = makeButton("Delete", "parameter-delete", &DialogEditor::slotDelete);
    buttons->addWidget(m_add);
    buttons->addWidget(m_delete);
    buttons->addStretch(1);
    auto* splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_tree);
    splitter->addWidget(m_pages);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({firstTreeWidth, firstSize.width() - firstTreeWidth});
    auto* finished = new QPushButton(QStringLiteral("Finished"), this);
    finished->setObjectName(QStringLiteral("finished"));
    finished->setAutoDefault(false); // Return in a field is no wish to leave
    connect(finished, &QPushButton::clicked, this, &DialogEditor::slotClose);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(splitter, 1);
    layout->addWidget(finished, 0, Qt::AlignRight);
}

QToolButton* DialogEditor::makeButton(const char* text, const char* iconName,
                                      void (DialogEditor::*slot)())
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(iconName));
    button->setIcon(icon(iconName));
    button->setText(QLatin1String(text));
    button->setToolTip(QLatin1String(text));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(button, &QToolButton::clicked, this, slot);
    return button;
}

void DialogEditor::startDocument()
{
    clearDocument();
    setFile(QLatin1String(neverSaved));
    refill();
}

void DialogEditor::guarded(const std::function<void()>& fill)
{
    const QScopedValueRollback<bool> guard(m_guard, true);
    fill();
}

void DialogEditor::refill()
{
    guarded([this] {
        m_tree->clear();
        fillTree();
    });
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

void DialogEditor::setFile(const QString& fileName)
{
    m_fileName = fileName;
    m_changed = false;
    updateTitle();
}

void DialogEditor::updateTitle()
{
    QString title = QStringLiteral("%1 [%2]").arg(QLatin1String(m_texts.windowTitle), m_fileName);
    title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // else Qt's mark for changes
    if (m_changed) {
        title += QStringLiteral(" (edited)");
    }
    setWindowTitle(title);
}

void DialogEditor::markChanged()
{
    if (!m_changed) {
        m_changed = true;
        updateTitle();
    }
}

// What is being typed counts, as if the field had been left.
void DialogEditor::commitEntry()
{
    QWidget* field = focusWidget();
    if (field != nullptr && m_pages->isAncestorOf(field)) {
        field->clearFocus();
        field->setFocus();
    }
}

// Where choosers start.
QString DialogEditor::presentPath() const
{
    return m_fileName == QLatin1String(neverSaved) ? QString() : m_fileName;
}

bool DialogEditor::askToSave()
{
    commitEntry();
    if (!m_changed) {
        return true;
    }
    const QPointer<DialogEditor> self(this); // the program may end behind the box
    const auto answer =
        MessageBoxes::ask(this, QMessageBox::Warning, QLatin1String(MessageBoxes::warningTitle),
                          QStringLiteral("Current profile not saved !\nDo you want to save it ?"),
                          {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel});
    if (self.isNull() || answer == QMessageBox::Cancel) {
        return false;
    }
    if (answer == QMessageBox::Yes) {
        slotSaveProfile();
        return !self.isNull() && !m_changed;
    }
    return true;
}

void DialogEditor::slotNewProfile()
{
    if (askToSave()) {
        startDocument();
    }
}

void DialogEditor::slotOpenProfile()
{
    if (!askToSave()) {
        return;
    }
    const QPointer<DialogEditor> self(this);
    const QString path = FileDialogs::openFile(this, QLatin1String(openTitle),
                                               QLatin1String(m_texts.filter), presentPath());
    if (self.isNull() || path.isEmpty()) {
        return;
    }
    const BusyCursor cursor(Qt::WaitCursor);
    if (!readDocument(path)) {
        zul::print("%s: %s cannot be read\n", m_texts.windowTitle, zul::toLatin1(path).c_str());
        return;
    }
    setFile(path);
    refill();
}

void DialogEditor::slotSaveProfile()
{
    commitEntry();
    if (m_fileName == QLatin1String(neverSaved)) {
        slotSaveAsProfile();
    } else {
        save(m_fileName);
    }
}

void DialogEditor::slotSaveAsProfile()
{
    commitEntry();
    const QPointer<DialogEditor> self(this);
    const QString path =
        FileDialogs::saveFile(this, QLatin1String(saveTitle), QLatin1String(m_texts.filter),
                              QLatin1String(m_texts.suffix), presentPath());
    if (!self.isNull() && !path.isEmpty()) {
        save(path);
    }
}

void DialogEditor::save(const QString& path)
{
    const BusyCursor cursor(Qt::WaitCursor);
    if (writeDocument(path)) {
        setFile(path);
    } else {
        zul::print("%s: %s cannot be written\n", m_texts.windowTitle, zul::toLatin1(path).c_str());
    }
}

void DialogEditor::slotSelect(QTreeWidgetItem* current, QTreeWidgetItem* /*previous*/)
{
    if (!m_guard) {
        guarded([this, current] { showItem(current); });
    }
}

void DialogEditor::slotAdd()
{
    addItem([this] { return addRecord(); });
}

void DialogEditor::addItem(const std::function<QTreeWidgetItem*()>& add)
{
    commitEntry();
    QTreeWidgetItem* added = nullptr;
    guarded([&added, &add] { added = add(); });
    if (added == nullptr) {
        return;
    }
    markChanged();
    for (QTreeWidgetItem* parent = added->parent(); parent != nullptr; parent = parent->parent()) {
        parent->setExpanded(true);
    }
    m_tree->setCurrentItem(added);
}

void DialogEditor::slotDelete()
{
    commitEntry();
    bool deleted = false;
    guarded([this, &deleted] { deleted = deleteRecord(); });
    if (deleted) {
        markChanged();
        guarded([this] { showItem(m_tree->currentItem()); });
    }
}

void DialogEditor::slotClose()
{
    if (askToSave()) {
        hide();
        emit closeDialog();
    }
}

void DialogEditor::reject()
{
    slotClose();
}

} // namespace gui
