#include "gui/desktop/DialogPreferences.h"

#include "core/Settings.h"
#include "core/SettingsStore.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/WheelGuard.h"
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

namespace setting = zul::setting;

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
    {{"Keep object in project", setting::close_policy::keepObject},
     {"Remove object from project", setting::close_policy::removeObject},
     {"Ask User", setting::close_policy::askUser}}};
constexpr std::array<Choice, 3> restoreTimes{{{"Never", setting::restore::never},
                                              {"On starting ZUL", setting::restore::onStart},
                                              {"Always", setting::restore::always}}};
constexpr std::array<Choice, 2> arincVersions{
    {{"1.0", setting::arinc_version::part2}, {"2.0", setting::arinc_version::part3}}};
constexpr std::array<const char*, 2> suffixes{".pro", ".xml"};

// Any version but the first means the same, so no other number of it is ever stored.
constexpr int highestVersion = setting::arinc_version::part3;
constexpr int versionAbove = highestVersion + 1;

template <std::size_t Size>
QwtComboBox* makeChoices(const char* name, const std::array<Choice, Size>& choices)
{
    auto* box = new QwtComboBox;
    box->setObjectName(QLatin1String(name));
    WheelGuard::protect(box);
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
    WheelGuard::protect(m_suffix);
    m_suffix->setInsertPolicy(QComboBox::NoInsert);
    m_suffix->setCompleter(nullptr); // it would turn ".PRO" into ".pro", which is another suffix
    for (const char* suffix : suffixes) {
        m_suffix->addItem(QLatin1String(suffix));
    }
    m_suffix->setCurrentIndex(-1); // the text is the setting, whether or not it is one of these
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
    m_onClose->setData(integer(setting::onCloseDialog));
    // Deliberate: without the key this shows "Never", while the main window restores on starting.
    m_topLevel->setData(integer(setting::restoreTopLevel));
    m_autoLoad->setChecked(integer(setting::autoLoadProfile) != 0);
    m_suffix->setEditText(
        settings.string(QLatin1String(setting::arinc825ProfileSuffix), QString()));
    m_version->setData(integer(setting::arincProfileVersion));
    m_tracePath->setText(
        settings.string(QLatin1String(setting::tracePath), QLatin1String(firstTracePath)));
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

void DialogPreferences::slotOnClose(int policy) const
{
    if (!m_loading) {
        store(setting::onCloseDialog, policy);
    }
}

void DialogPreferences::slotTopLevel(int when) const
{
    if (!m_loading) {
        store(setting::restoreTopLevel, when);
    }
}

void DialogPreferences::slotAutoLoadProfile(int state) const
{
    if (!m_loading) {
        store(setting::autoLoadProfile, state == Qt::Checked ? 1 : 0);
    }
}

void DialogPreferences::slotProfileSuffix(const QString& suffix) const
{
    if (!m_loading) {
        store(setting::arinc825ProfileSuffix, suffix);
    }
}

void DialogPreferences::slotArincVersion(int version) const
{
    if (!m_loading) {
        store(setting::arincProfileVersion, version == versionAbove ? highestVersion : version);
    }
}

// No control leads here.
void DialogPreferences::slotTraceType(int format) const
{
    if (!m_loading) {
        store(setting::traceDefaultFormat, format);
    }
}

void DialogPreferences::slotTracePath(const QString& path) const
{
    if (!m_loading) {
        store(setting::tracePath, path);
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
    store(setting::tracePath, path);
    load();
}

} // namespace gui
