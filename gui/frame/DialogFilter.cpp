#include "gui/frame/DialogFilter.h"

#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/QwtSpinBox.h"
#include "gui/frame/QwtIdSelect.h"
#include "project/Filter.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

namespace {

constexpr int listWidth = 100; // pixels, at most
constexpr int listRows = 5;    // of the grid

QSpinBox* makeBound(const char* objectName, QWidget* parent)
{
    auto* spinBox = new QwtSpinBox(0, parent);
    spinBox->setObjectName(QLatin1String(objectName));
    spinBox->setRange(0, Filter::maxIdentifier);
    return spinBox;
}

QwtPushButton* makeButton(const char* text, const QColor& color, const char* objectName,
                          QWidget* parent)
{
    auto* button = new QwtPushButton(QLatin1String(text), color, parent);
    button->setObjectName(QLatin1String(objectName));
    button->setAutoDefault(false);
    return button;
}

} // namespace

DialogFilter::DialogFilter(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Filter"));
    setWindowIcon(icon("filter-setup"));
    m_limit = buildLimit();
    m_single = buildSingle();
    auto* ok = new QPushButton(QStringLiteral("Ok"), this);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setAutoDefault(false);
    connect(ok, &QPushButton::clicked, this, &DialogFilter::slotClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_limit);
    layout->addWidget(m_single, 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
    connectControls();
}

QGroupBox* DialogFilter::buildLimit()
{
    auto* box = new QGroupBox(QStringLiteral("Limit Id Filter"), this);
    box->setObjectName(QStringLiteral("limit"));
    box->setCheckable(true);
    m_min = makeBound("minId", box);
    m_max = makeBound("maxId", box);
    auto* grid = new QGridLayout(box);
    grid->addWidget(new QLabel(QStringLiteral("Min Id:"), box), 0, 0);
    grid->addWidget(m_min, 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Max Id:"), box), 1, 0);
    grid->addWidget(m_max, 1, 1);
    grid->setColumnStretch(1, 1);
    return box;
}

QGroupBox* DialogFilter::buildSingle()
{
    auto* box = new QGroupBox(QStringLiteral("Single Id Filter"), this);
    box->setObjectName(QStringLiteral("single"));
    box->setCheckable(true);
    m_ids = new QListWidget(box);
    m_ids->setObjectName(QStringLiteral("ids"));
    m_ids->setMaximumWidth(listWidth);
    m_ids->setUniformItemSizes(true);
    m_ids->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_idSelect = new QwtIdSelect(0, box);
    m_add = makeButton("<-- Add", colors::addOrSend, "add", box);
    auto* remove = makeButton("--> Delete", colors::remove, "delete", box);
    auto* clear = makeButton("Clear", colors::clear, "clear", box);
    connect(m_add, &QwtPushButton::clicked, this, &DialogFilter::slotAdd);
    connect(remove, &QwtPushButton::clicked, this, &DialogFilter::slotDelete);
    connect(clear, &QwtPushButton::clicked, this, &DialogFilter::slotClear);
    auto* grid = new QGridLayout(box);
    grid->addWidget(m_ids, 0, 0, listRows, 1);
    grid->addWidget(m_idSelect, 0, 1);
    grid->addWidget(m_add, 1, 1);
    grid->addWidget(remove, 2, 1);
    grid->addWidget(clear, 3, 1);
    grid->setRowStretch(listRows - 1, 1);
    return box;
}

void DialogFilter::connectControls()
{
    connect(m_limit, &QGroupBox::toggled, this, &DialogFilter::slotLimit);
    connect(m_single, &QGroupBox::toggled, this, &DialogFilter::slotSingle);
    connect(m_min, QOverload<int>::of(&QSpinBox::valueChanged), this, &DialogFilter::slotMin);
    connect(m_max, QOverload<int>::of(&QSpinBox::valueChanged), this, &DialogFilter::slotMax);
    connect(m_idSelect, &QwtIdSelect::signalSelect, this, &DialogFilter::slotAdd);
}

// There is no default button: Return in a list or a bound would press it, and a filter that is in
// force would get an identifier that nobody typed.
void DialogFilter::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    QWidget* focused = focusWidget();
    if (auto* button = qobject_cast<QPushButton*>(focused)) {
        button->click();
    } else if (focused != nullptr && m_idSelect->isAncestorOf(focused)) {
        m_add->click();
    }
}

void DialogFilter::setFilter(Filter* filter)
{
    m_filter = filter;
    refresh();
}

void DialogFilter::edit(Filter& filter)
{
    setFilter(&filter);
    show();
    raise();
}

void DialogFilter::letGo()
{
    setFilter(nullptr);
    hide();
}

void DialogFilter::refresh()
{
    if (m_filter == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    const bool isLimit = m_filter->type() == static_cast<int>(Filter::Type::Limit);
    m_limit->setChecked(isLimit);
    m_single->setChecked(!isLimit);
    m_min->setMaximum(m_filter->maxId());
    m_max->setMinimum(m_filter->minId());
    m_min->setValue(m_filter->minId());
    m_max->setValue(m_filter->maxId());
    m_ids->clear();
    for (const std::uint32_t id : m_filter->ids()) {
        m_ids->addItem(QString::number(id));
    }
}

// Deliberate: the box that is checked stays so when it is clicked, since one of the two is in
// force.
void DialogFilter::slotLimit(bool)
{
    setType(static_cast<int>(Filter::Type::Limit));
}

void DialogFilter::slotSingle(bool)
{
    setType(static_cast<int>(Filter::Type::Single));
}

void DialogFilter::setType(int type)
{
    if (canEdit()) {
        m_filter->setType(type);
        refresh();
    }
}

void DialogFilter::slotClose()
{
    hide();
}

void DialogFilter::slotMin(int value)
{
    if (canEdit()) {
        m_filter->setMin(value);
        m_max->setMinimum(value);
    }
}

void DialogFilter::slotMax(int value)
{
    if (canEdit()) {
        m_filter->setMax(value);
        m_min->setMaximum(value);
    }
}

void DialogFilter::slotAdd()
{
    if (canEdit()) {
        const int id = std::clamp(m_idSelect->id(), 0, Filter::maxIdentifier);
        m_filter->addId(static_cast<std::uint32_t>(id));
        refresh();
        m_idSelect->setFocus(Qt::TabFocusReason); // which selects it: the next one can be typed
    }
}

void DialogFilter::slotDelete()
{
    if (canEdit()) {
        const QList<QListWidgetItem*> selected = m_ids->selectedItems();
        for (const QListWidgetItem* item : selected) {
            m_filter->removeId(item->text().toUInt());
        }
        refresh();
    }
}

void DialogFilter::slotClear()
{
    if (canEdit()) {
        m_filter->clearIds();
        refresh();
    }
}

} // namespace gui
