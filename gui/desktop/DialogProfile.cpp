#include "gui/desktop/DialogProfile.h"

#include "gui/controls/BusyCursor.h"
#include "gui/controls/ProfileTree.h"
#include "gui/desktop/DialogProfileResult.h"
#include "gui/frame/FileDialogs.h"
#include "profile/ProfileStore.h"

#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr int margin = 3;

} // namespace

DialogProfile::DialogProfile(ProfileStore& store, QWidget* parent)
    : QWidget(parent),
      m_store(store),
      m_arincTree(new ProfileTree(store.profiles(), this)),
      m_zorbTree(new ProfileTree(store.zorbProfiles(), this))
{
    setWindowTitle(QStringLiteral("Select Message"));
    auto* row = new QHBoxLayout;
    row->setSpacing(margin);
    addButton(*row, "Load", "Load Profile", &DialogProfile::slotLoad);
    addButton(*row, "Load All", "Reload all profiles", &DialogProfile::slotLoadAll);
    addButton(*row, "Clear", "Unload all profiles", &DialogProfile::slotClear);
    addButton(*row, "Check", "Check all profiles", &DialogProfile::slotCheck);
    row->addStretch(1);
    auto* tabs = new QTabWidget(this);
    tabs->addTab(m_arincTree, QStringLiteral("ARINC 825"));
    tabs->addTab(m_zorbTree, QStringLiteral("CANaerospace"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addLayout(row);
    layout->addWidget(tabs);
}

void DialogProfile::addButton(QHBoxLayout& row, const char* text, const char* toolTip,
                              void (DialogProfile::*slot)())
{
    auto* button = new QToolButton(this);
    button->setText(QLatin1String(text));
    button->setToolTip(QLatin1String(toolTip));
    button->setObjectName(QLatin1String(text));
    connect(button, &QToolButton::clicked, this, slot);
    row.addWidget(button);
}

void DialogProfile::setResultWindow(DialogProfileResult* window)
{
    m_result = window;
}

void DialogProfile::refresh()
{
    m_arincTree->refill();
    m_zorbTree->refill();
}

void DialogProfile::check()
{
    QString report;
    if (!m_store.checkAll(report) && m_result != nullptr) {
        m_result->setText(report);
        m_result->show();
        m_result->raise();
    }
}

void DialogProfile::slotLoad()
{
    const QString path =
        FileDialogs::openFile(this, QStringLiteral("Open Profile"),
                              QStringLiteral("Profile File (*.pro *.xml);;All Files (*.*)"));
    if (path.isEmpty()) {
        return;
    }
    m_store.loadFile(path);
    refresh();
    check();
    emit signalProfilesChanged();
}

void DialogProfile::slotLoadAll()
{
    const BusyCursor cursor(Qt::WaitCursor);
    m_store.loadAll();
    refresh();
    check();
    emit signalProfilesChanged();
}

void DialogProfile::slotClear()
{
    m_store.unloadAll();
    refresh();
    emit signalProfilesChanged();
}

void DialogProfile::slotCheck()
{
    check();
}

} // namespace gui
