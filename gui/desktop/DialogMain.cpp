#include "gui/desktop/DialogMain.h"

#include "core/Kernel.h"
#include "core/Latin1.h"
#include "core/Settings.h"
#include "core/SettingsStore.h"
#include "core/Version.h"
#include "gui/controls/Look.h"
#include "gui/desktop/DialogAbout.h"
#include "gui/desktop/DialogHelp.h"
#include "gui/desktop/DialogPreferences.h"
#include "gui/desktop/DialogProfile.h"
#include "gui/desktop/DialogProfileResult.h"
#include "gui/desktop/DialogProject.h"
#include "gui/desktop/DialogStatusBar.h"
#include "gui/desktop/DialogTasks.h"
#include "gui/desktop/Geometry.h"
#include "gui/desktop/WindowDesk.h"
#include "gui/editor/DialogProfileEditor825_3.h"
#include "gui/frame/DialogBase.h"
#include "gui/frame/DialogSelectId.h"
#include "gui/frame/GuiRequests.h"
#include "gui/frame/MessageGuiAboutDialog.h"
#include "gui/frame/MessageGuiDialog.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include <cstdlib>
#include <utility>

namespace gui {

namespace {

constexpr QSize defaultSize(1024, 768);

int restoreTopLevel()
{
    return SettingsStore::instance().integer(QLatin1String(zul::setting::restoreTopLevel),
                                             zul::setting::restore::onStart);
}

} // namespace

DialogMain::DialogMain(std::vector<ObjectTypeInfo> types, QWidget* parent)
    : QMainWindow(parent),
      m_project(std::move(types), Kernel::instance().home() + QStringLiteral("default.zul")),
      m_mdiArea(new QMdiArea(this)),
      m_actions(*this),
      m_desk(new WindowDesk(*m_mdiArea, m_project, m_actions[MainAction::CloseWindow]->shortcut(),
                            this)),
      m_endProcess([] { std::exit(EXIT_SUCCESS); }) // NOLINT(concurrency-mt-unsafe)
{
    Kernel::instance().setProject(&m_project);
    GuiRequests::setHandler(
        [this](std::unique_ptr<Message> request) { guiRequest(std::move(request)); });
    buildMdiArea();
    connectDesk();
    buildMenus();
    buildToolBar();
    setStatusBar(new DialogStatusBar(this));
    m_about = new DialogAbout(this);
    m_help = new DialogHelp(this);
    buildDocks();
    m_profileResult = new DialogProfileResult(this);
    m_profilePanel->setResultWindow(m_profileResult);
    m_profilePanel->check();
    applyFirstGeometry();
    setWindowIcon(icon("zul"));
    updateTitle();
    m_recentFiles.load();
    m_preferences = new DialogPreferences(this);
    m_profileEditor = new DialogProfileEditor825_3(this);
    m_heartbeat.setSingleShot(true);
    m_heartbeat.start(firstTickMs);
    connect(&m_heartbeat, &QTimer::timeout, this, &DialogMain::slotTimeout);
    show();
}

DialogMain::~DialogMain()
{
    GuiRequests::setHandler(nullptr);
    m_desk->deleteAll();
    DialogSelectId::destroy();
    Kernel::instance().setProject(nullptr);
    Kernel::instance().setMainWindow(nullptr);
}

void DialogMain::setEndProcess(std::function<void()> endProcess)
{
    m_endProcess = std::move(endProcess);
}

void DialogMain::buildMdiArea()
{
    m_mdiArea->setBackground(QBrush(QPixmap(QStringLiteral(":/background.svg"))));
    m_mdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_mdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // A maximized window that closes would hand its size to the next one.
    m_mdiArea->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    setCentralWidget(m_mdiArea);
}

void DialogMain::connectDesk()
{
    connect(m_desk, &WindowDesk::signalDeleteDialog, this, &DialogMain::slotDeleteDialog);
    connect(m_desk, &WindowDesk::signalDeleteObject, this, &DialogMain::slotObjectDeleteFromDialog);
    connect(m_actions[MainAction::Tile], &QAction::triggered, m_mdiArea, &QMdiArea::tileSubWindows);
    connect(m_actions[MainAction::Cascade], &QAction::triggered, m_mdiArea,
            &QMdiArea::cascadeSubWindows);
    connect(m_actions[MainAction::CloseWindow], &QAction::triggered, m_mdiArea,
            &QMdiArea::closeActiveSubWindow);
    connect(m_actions[MainAction::CloseAllWindows], &QAction::triggered, m_mdiArea,
            &QMdiArea::closeAllSubWindows);
    for (const auto& entry : m_actions.all()) {
        QAction* action = entry.second;
        connect(action, &QAction::triggered, this, [this, action] { slotMenu(action); });
    }
}

void DialogMain::buildMenus()
{
    m_fileMenu = menuBar()->addMenu(QStringLiteral("&File"));
    m_viewMenu = menuBar()->addMenu(QStringLiteral("&View"));
    m_extrasMenu = menuBar()->addMenu(QStringLiteral("&Extras"));
    m_windowMenu = menuBar()->addMenu(QStringLiteral("&Window"));
    m_helpMenu = menuBar()->addMenu(QStringLiteral("&Help"));
    m_extrasMenu->addAction(m_actions[MainAction::Preferences]);
    m_extrasMenu->addAction(m_actions[MainAction::ProfileEditor]);
    m_helpMenu->addAction(m_actions[MainAction::About]);
    m_helpMenu->addAction(m_actions[MainAction::Help]);
    connect(m_fileMenu, &QMenu::aboutToShow, this, &DialogMain::slotMenuFileAbout);
    connect(m_viewMenu, &QMenu::aboutToShow, this, &DialogMain::slotMenuViewAbout);
    connect(m_windowMenu, &QMenu::aboutToShow, this, &DialogMain::slotMenuWindowAbout);
    slotMenuFileAbout();
    slotMenuWindowAbout();
    // A disabled action has no shortcut: Ctrl+F4 works whether or not the menu was opened before.
    connect(m_mdiArea, &QMdiArea::subWindowActivated, this, &DialogMain::enableWindowActions);
}

void DialogMain::enableWindowActions()
{
    const bool hasWindows = !m_mdiArea->subWindowList().isEmpty();
    for (const MainAction id : {MainAction::Tile, MainAction::Cascade, MainAction::CloseWindow,
                                MainAction::CloseAllWindows}) {
        m_actions[id]->setEnabled(hasWindows);
    }
}

void DialogMain::buildToolBar()
{
    m_toolBar = addToolBar(QStringLiteral("Main Toolbar"));
    m_toolBar->setObjectName(QStringLiteral("mainToolbar"));
    m_toolBar->addAction(m_actions[MainAction::New]);
    m_toolBar->addAction(m_actions[MainAction::Open]);
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_actions[MainAction::Save]);
    m_toolBar->addAction(m_actions[MainAction::SaveAs]);
    m_viewMenu->addAction(m_toolBar->toggleViewAction());
}

void DialogMain::buildDocks()
{
    const auto addDock = [this](const char* title, QWidget* panel) {
        auto* dock = new QDockWidget(QLatin1String(title), this);
        dock->setObjectName(QLatin1String(title));
        dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        dock->setWidget(panel);
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        m_viewMenu->addAction(dock->toggleViewAction());
    };
    m_projectPanel = new DialogProject(this);
    addDock("Project", m_projectPanel);
    connect(m_projectPanel, &DialogProject::signalSelectObject, this,
            &DialogMain::slotObjectSelect);
    connect(m_projectPanel, &DialogProject::signalDeleteObject, this,
            &DialogMain::slotObjectDelete);
    connect(m_projectPanel, &DialogProject::signalRenameObject, this,
            &DialogMain::slotObjectRename);
    connect(m_projectPanel, &DialogProject::signalCloseWindow, m_desk, &WindowDesk::forceClose);
    m_projectPanel->setProject(&m_project);

    m_tasksPanel = new DialogTasks(this);
    addDock("Add Object to Project", m_tasksPanel);
    m_tasksPanel->fill(m_project.types());
    connect(m_tasksPanel, &DialogTasks::signalSelectWindow, this, &DialogMain::slotWindowSelect);

    m_profilePanel = new DialogProfile(m_project.profiles(), this);
    addDock("Profile", m_profilePanel);
    m_profilePanel->refresh();
    // Made here, so that it hears the first frames.
    connect(m_profilePanel, &DialogProfile::signalProfilesChanged, &DialogSelectId::instance(),
            &DialogSelectId::refill);
}

void DialogMain::applyFirstGeometry()
{
    if (restoreTopLevel() == zul::setting::restore::never) {
        resize(defaultSize);
        return;
    }
    applyProjectRectangle();
}

void DialogMain::updateTitle()
{
    const QString path = m_project.fileName();
    QString file = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    file.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // else Qt's mark for changes
    QString title = zul::fromLatin1(zul::productName()) + QStringLiteral("     ") + file;
    m_lastEdited = m_project.isEdited();
    if (m_lastEdited) {
        title += QStringLiteral(" (edited)");
    }
    setWindowTitle(title);
}

void DialogMain::refreshPanels()
{
    m_projectPanel->setProject(&m_project);
}

void DialogMain::showReplacedProject()
{
    refreshPanels();
    Kernel::instance().notify(Kernel::interfacesAspect);
    updateTitle();
    m_heartbeat.start(tickMs);
}

void DialogMain::restoreOnce()
{
    if (!m_restored) {
        m_restored = true;
        openProjectWindows();
    }
}

void DialogMain::storeGeometry()
{
    // A project that is saved before the first tick would forget which windows it had.
    restoreOnce();
    m_desk->storeGeometry();
    m_project.setWindowRectangle({x(), y(), width(), height()});
}

void DialogMain::openProjectWindows()
{
    m_desk->openProjectWindows();
    if (restoreTopLevel() == zul::setting::restore::always) {
        applyProjectRectangle();
    }
}

void DialogMain::applyProjectRectangle()
{
    const auto& rectangle = m_project.windowRectangle();
    const QRect geometry = reachableGeometry(
        boundedGeometry(rectangle.x, rectangle.y, rectangle.width, rectangle.height),
        QGuiApplication::primaryScreen()->availableVirtualGeometry());
    resize(geometry.size());
    move(geometry.topLeft());
}

void DialogMain::guiRequest(std::unique_ptr<Message> request)
{
    switch (request->type()) {
    case MessageGuiDialog::messageType:
        if (const auto* wanted = message_cast<MessageGuiDialog>(request.get())) {
            Object* object = m_project.createObject(static_cast<ObjectType>(wanted->objectType()));
            if (object == nullptr) {
                return;
            }
            refreshPanels();
            if (DialogBase* dialog = m_desk->open(*object)) {
                dialog->guiMessage(request.get());
            }
        }
        break;
    case MessageGuiAboutDialog::messageType:
        dispatch(MainAction::About);
        break;
    default:
        m_desk->broadcast(*request);
        break;
    }
}

bool DialogMain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Z && key->modifiers().testFlag(Qt::ControlModifier) &&
            !key->isAutoRepeat()) {
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void DialogMain::slotSetActiveSubWindow(QWidget* window)
{
    if (auto* subWindow = qobject_cast<QMdiSubWindow*>(window)) {
        m_mdiArea->setActiveSubWindow(subWindow);
    }
}

void DialogMain::slotTimeout()
{
    restoreOnce(); // here and not in the constructor, so that the main window appears first
    m_project.poll();
    if (m_project.isEdited() != m_lastEdited) {
        updateTitle();
    }
    m_heartbeat.start(tickMs);
}

void DialogMain::slotMenu(QAction* action)
{
    dispatch(static_cast<MainAction>(action->data().toInt()));
}

void DialogMain::slotWindowSelect(int type)
{
    Object* object = m_project.createObject(static_cast<ObjectType>(type));
    if (object != nullptr) {
        refreshPanels();
        m_desk->open(*object);
    }
}

void DialogMain::slotObjectSelect(int id)
{
    if (QMdiSubWindow* subWindow = m_desk->find(id)) {
        if (subWindow->isMinimized()) {
            subWindow->showNormal();
        }
        m_mdiArea->setActiveSubWindow(subWindow);
        subWindow->setFocus();
    } else if (Object* object = m_project.object(id)) {
        m_desk->openInPlace(*object);
    }
}

void DialogMain::slotObjectDelete(int id)
{
    m_desk->forceClose(id);
    m_project.deleteObject(id);
    refreshPanels();
}

void DialogMain::slotObjectRename(int id, const QString& name)
{
    if (const QMdiSubWindow* subWindow = m_desk->find(id)) {
        WindowDesk::dialogOf(*subWindow)->setName(name);
    }
    m_project.renameObject(id, name);
}

void DialogMain::slotMenuFileAbout()
{
    m_fileMenu->clear();
    m_fileMenu->addAction(m_actions[MainAction::New]);
    m_fileMenu->addAction(m_actions[MainAction::Open]);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_actions[MainAction::Save]);
    m_fileMenu->addAction(m_actions[MainAction::SaveAs]);
    if (!m_recentFiles.paths().isEmpty()) {
        m_fileMenu->addSeparator();
    }
    for (const QString& path : m_recentFiles.paths()) {
        QString text = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* action = m_fileMenu->addAction(text);
        action->setData(path);
        action->setStatusTip(QStringLiteral("Load ") + path);
        connect(action, &QAction::triggered, this, [this, action] { slotMenuRecent(action); });
    }
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_actions[MainAction::Quit]);
}

void DialogMain::slotMenuViewAbout() {}

void DialogMain::slotMenuWindowAbout()
{
    m_windowMenu->clear();
    m_windowMenu->addAction(m_actions[MainAction::Tile]);
    m_windowMenu->addAction(m_actions[MainAction::Cascade]);
    m_windowMenu->addSeparator();
    m_windowMenu->addAction(m_actions[MainAction::CloseWindow]);
    m_windowMenu->addAction(m_actions[MainAction::CloseAllWindows]);
    m_windowMenu->addSeparator();
    const QList<QMdiSubWindow*> windows = m_mdiArea->subWindowList();
    for (QMdiSubWindow* window : windows) {
        QString text = window->windowTitle();
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* action = m_windowMenu->addAction(window->windowIcon(), text);
        action->setCheckable(true);
        action->setChecked(window == m_mdiArea->activeSubWindow());
        connect(action, &QAction::triggered, window,
                [this, window] { slotSetActiveSubWindow(window); });
    }
    enableWindowActions();
}

void DialogMain::slotDeleteDialog(int)
{
    storeGeometry();
}

void DialogMain::slotObjectDeleteFromDialog(int id)
{
    m_project.deleteObject(id);
    refreshPanels();
}

void DialogMain::closeEvent(QCloseEvent* event)
{
    if (m_closing) {
        return;
    }
    if (!quitCheck()) {
        event->ignore();
        return;
    }
    m_closing = true;
    event->accept();
    m_endProcess();
}

} // namespace gui
