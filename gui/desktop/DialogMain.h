#pragma once

#include "gui/desktop/MainActions.h"
#include "gui/desktop/RecentFiles.h"
#include "project/Project.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class Message;
class QMdiArea;
class QMenu;
class QToolBar;

class DialogAbout;
class DialogHelp;

namespace gui {

class DialogProfile;
class DialogPreferences;
class DialogProfileEditor825_3;
class DialogProfileResult;
class DialogProject;
class DialogTasks;
class WindowDesk;

/// The application window. It owns the project, and its heartbeat is the one rate at which the
/// whole program polls and displays.
class DialogMain : public QMainWindow
{
    Q_OBJECT

public:
    static constexpr int firstTickMs = 20;
    /// Pause between the end of one tick's work and the next tick.
    static constexpr int tickMs = 50;

    /// Builds the window, opens "default.zul" of the home directory, and starts the heartbeat.
    explicit DialogMain(std::vector<ObjectTypeInfo> types, QWidget* parent = nullptr);
    ~DialogMain() override;

    Project& project() { return m_project; }
    WindowDesk& desk() { return *m_desk; }
    QMdiArea& mdiArea() { return *m_mdiArea; }

    /// Carries out a window's or the status bar's request.
    void guiRequest(std::unique_ptr<Message> request);

    /// What ends the process when the window has closed: exit status 0, without unwinding the
    /// window tree. Tests put something else here.
    void setEndProcess(std::function<void()> endProcess);

    /// Swallows Ctrl+Z, which single controls would take for an undo that the program has not.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void slotSetActiveSubWindow(QWidget* window);
    void slotTimeout();
    void slotMenu(QAction* action);
    void slotMenuRecent(QAction* action);
    void slotWindowSelect(int type);
    void slotObjectSelect(int id);
    void slotObjectDelete(int id);
    void slotObjectRename(int id, const QString& name);
    void slotMenuFileAbout();
    void slotMenuViewAbout();
    void slotMenuWindowAbout();
    void slotDeleteDialog(int id);
    void slotObjectDeleteFromDialog(int id);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMdiArea();
    void buildMenus();
    void buildToolBar();
    void buildDocks();
    void applyFirstGeometry();
    void connectDesk();
    void updateTitle();
    void enableWindowActions();
    void refreshPanels();
    void showReplacedProject();
    void restoreOnce();
    void storeGeometry();
    void openProjectWindows();
    void applyProjectRectangle();

    // Flows, in DialogMainFlows.cpp.
    void dispatch(MainAction id);
    void newProject();
    void openProject();
    void commitEntry();
    void saveProject();
    void saveProjectAs();
    void quit();
    /// False if the user cancelled.
    bool askToSave();
    bool quitCheck();
    void loadProject(const QString& path);
    void warn(const QString& text);

    Project m_project;
    RecentFiles m_recentFiles;
    QMdiArea* m_mdiArea;
    MainActions m_actions;
    WindowDesk* m_desk;
    QTimer m_heartbeat;
    bool m_closing = false;
    bool m_lastEdited = false;
    bool m_restored = false;
    std::function<void()> m_endProcess;

    QMenu* m_fileMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    QMenu* m_extrasMenu = nullptr;
    QMenu* m_windowMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    QToolBar* m_toolBar = nullptr;
    DialogProject* m_projectPanel = nullptr;
    DialogTasks* m_tasksPanel = nullptr;
    DialogProfile* m_profilePanel = nullptr;
    DialogProfileResult* m_profileResult = nullptr;
    DialogAbout* m_about = nullptr;
    DialogHelp* m_help = nullptr;
    DialogPreferences* m_preferences = nullptr;
    DialogProfileEditor825_3* m_profileEditor = nullptr;
};

} // namespace gui
