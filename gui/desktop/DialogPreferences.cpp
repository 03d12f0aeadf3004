#include "gui/desktop/DialogPreferences.h"

#include "core/SettingsStore.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/FileDialogs.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace gui {

namespace {

namespace key {
constexpr const char* onClose = "OnCloseDialog";
constexpr const char* topLevel = "RestoreTopLevel";
constexpr const char* autoLoad = "AutoLoadProfile";
constexpr const char* suffix = "Arinc825ProfileSuffix";
constexpr const char* version = "ArincProfileVersion";
constexpr const char* tracePath = "TracePath";
} // namespace key

constexpr const char* firstTracePath = ".";
constexpr const char* browseTitle = "Trace Path";
constexpr int pageListWidth = 170; // pixels
constexpr QSize pageIcon(32, 32);

/// A setting's value and its name.
struct Choice
{
    const char* text;
    int value;
};

constexpr std::array<Choice, 3> closePolicies{
    {{"Keep object in project", 0}, {"Remove object from project", 1}, {"Ask User", 2}}};
constexpr std::array<Choice, 3> restoreTimes{{{"Never", 0}, {"On starting ZUL", 1}, {"Always", 2}}};
constexpr std::array<Choice, 2> arincVersions{{{"1.0", 0}, {"2.0", 1}}};
constexpr std::array<const char*, 2> suffixes{".pro", ".xml"};

// A version that files of former programs hold; it reads like the one before it.
constexpr int formerVersion = 2;
constexpr int newestVersion = 1;

template <std::size_t Size>
QwtComboBox* makeChoices(const char* name, const std::array<Choice, Size>& choices)
{
    auto* box = new QwtComboBox;
    box->setObjectName(QLatin1String(name));
    for (const Choice& choice : choices) {
        box->addItem(QLatin1String(choice.text), choice.value);
    }
    return box;
}

int integer(const char* name)
{
    return SettingsStore::instance().integer(QLatin1String(name), 0);
}

void store(const char* name, int value)
{
    SettingsStore::instance().setInteger(QLatin1String(name), value);
}

void store(const char* name, const QString& value)
{
    SettingsStore::instance().setString(QLatin1String(name), value);
}

/// A page with one group, whose form is returned.
QFormLayout* makeGroup(QWidget& page, const char* title)
{
    auto* group = new QGroupBox(QLatin1String(title), &page);
    auto* layout = new QVBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(group);
    layout->addStretch();
    return new QFormLayout(group);
}

} // namespace

DialogPreferences::DialogPreferences(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Preferences"));
    m_pageList = new QListWidget(this);
    m_pageList->setObjectName(QStringLiteral("pages"));
    m_pageList->setIconSize(pageIcon);
    m_pageList->setFixedWidth(pageListWidth);
    m_pages = new QStackedWidget(this);
    addPage("General", "page-general", buildGeneral());
    addPage("ARINC-825 Profiles", "page-profiles", buildProfiles());
    addPage("Trace Defaults", "page-trace", buildTrace());
    auto* close = new QPushButton(QStringLiteral("Ok"), this);
    close->setObjectName(QStringLiteral("ok"));
    auto* top = new QHBoxLayout;
    top->addWidget(m_pageList);
    top->addWidget(m_pages, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(bottom);
    connect(close, &QPushButton::clicked, this, &DialogPreferences::slotClose);
    connectControls();
    m_pageList->setCurrentRow(0);
    load();
}

void DialogPreferences::addPage(const char* title, const char* iconName, QWidget* page)
{
    new QListWidgetItem(icon(iconName), QLatin1String(title), m_pageList);
    m_pages->addWidget(page);
}

QWidget* DialogPreferences::buildGeneral()
{
    auto* page = new QWidget;
    QFormLayout* form = makeGroup(*page, "Application");
    m_onClose = makeChoices("onClose", closePolicies);
    m_topLevel = makeChoices("topLevel", restoreTimes);
    form->addRow(QStringLiteral("When closing a dialog :"), m_onClose);
    form->addRow(QStringLiteral("Restore Top Level Size/Position :"), m_topLevel);
    return page;
}

QWidget* DialogPreferences::buildProfiles()
{
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    m_autoLoad = new QCheckBox(QStringLiteral("Auto Load"));
    m_autoLoad->setObjectName(QStringLiteral("autoLoad"));
    m_suffix = new QComboBox;
    m_suffix->setObjectName(QStringLiteral("suffix"));
    m_suffix->setEditable(true);
    for (const char* suffix : suffixes) {
        m_suffix->addItem(QLatin1String(suffix));
    }
    m_version = makeChoices("version", arincVersions);
    form->addRow(QStringLiteral("Load all profiles on startup"), m_autoLoad);
    form->addRow(QStringLiteral("Profile File Suffix"), m_suffix);
    form->addRow(QStringLiteral("ARINC 825 Version"), m_version);
    return page;
}

QWidget* DialogPreferences::buildTrace()
{
    auto* page = new QWidget;
    QFormLayout* form = makeGroup(*page, "Trace");
    m_tracePath = new QLineEdit;
    m_tracePath->setObjectName(QStringLiteral("tracePath"));
    auto* browse = new QToolButton;
    browse->setObjectName(QStringLiteral("browse"));
    browse->setIcon(icon("open"));
    browse->setToolTip(QLatin1String(browseTitle));
    auto* path = new QHBoxLayout;
    path->addWidget(m_tracePath);
    path->addWidget(browse);
    form->addRow(QStringLiteral("Trace Path :"), path);
    connect(browse, &QToolButton::clicked, this, &DialogPreferences::slotTraceBrowse);
    return page;
}

void DialogPreferences::connectControls()
{
    using Activated = void (QwtComboBox::*)(int);
    const auto activated = static_cast<Activated>(&QwtComboBox::signalActivated);
    connect(m_pageList, &QListWidget::currentItemChanged, this, &DialogPreferences::slotChangePage);
    connect(m_onClose, activated, this, &DialogPreferences::slotOnClose);
    connect(m_topLevel, activated, this, &DialogPreferences::slotTopLevel);
    connect(m_autoLoad, &QCheckBox::stateChanged, this, &DialogPreferences::slotAutoLoadProfile);
    connect(m_suffix, &QComboBox::editTextChanged, this, &DialogPreferences::slotProfileSuffix);
    connect(m_version, activated, this, &DialogPreferences::slotArincVersion);
    connect(m_tracePath, &QLineEdit::textChanged, this, &DialogPreferences::slotTracePath);
}

void DialogPreferences::load()
{
    const QScopedValueRollback<bool> guard(m_loading, true);
    const SettingsStore& settings = SettingsStore::instance();
    m_onClose->setData(integer(key::onClose));
    // Deliberate: without the key this shows "Never", while the main window restores on starting.
    m_topLevel->setData(integer(key::topLevel));
    m_autoLoad->setChecked(integer(key::autoLoad) != 0);
    m_suffix->setEditText(settings.string(QLatin1String(key::suffix), QString()));
    const int version = integer(key::version);
    m_version->setData(version == formerVersion ? newestVersion : version);
    m_tracePath->setText(
        settings.string(QLatin1String(key::tracePath), QLatin1String(firstTracePath)));
}

void DialogPreferences::slotChangePage(QListWidgetItem* current, QListWidgetItem* previous)
{
    const QListWidgetItem* shown = current != nullptr ? current : previous;
    m_pages->setCurrentIndex(m_pageList->row(shown));
}

void DialogPreferences::slotClose()
{
    hide();
}

void DialogPreferences::slotOnClose(int policy)
{
    if (!m_loading) {
        store(key::onClose, policy);
    }
}

void DialogPreferences::slotTopLevel(int when)
{
    if (!m_loading) {
        store(key::topLevel, when);
    }
}

void DialogPreferences::slotAutoLoadProfile(int state)
{
    if (!m_loading) {
        store(key::autoLoad, state == Qt::Checked ? 1 : 0);
    }
}

void DialogPreferences::slotProfileSuffix(const QString& suffix)
{
    if (!m_loading) {
        store(key::suffix, suffix);
    }
}

void DialogPreferences::slotArincVersion(int version)
{
    if (!m_loading) {
        store(key::version, version == formerVersion ? newestVersion : version);
    }
}

void DialogPreferences::slotTraceType() {} // traces have one type

void DialogPreferences::slotTracePath(const QString& path)
{
    if (!m_loading) {
        store(key::tracePath, path);
    }
}

void DialogPreferences::slotTraceBrowse()
{
    const QPointer<DialogPreferences> self(this); // the program may end behind the chooser
    const QString path =
        FileDialogs::directory(this, QLatin1String(browseTitle), m_tracePath->text());
    if (path.isEmpty() || self.isNull()) {
        return;
    }
    store(key::tracePath, path);
    load();
}

} // namespace gui
