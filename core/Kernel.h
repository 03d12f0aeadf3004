#pragma once

#include "core/ObserverModel.h"

#include <QString>

class Project;
class QApplication;
class QStyle;

namespace gui {

class DialogMain;

/// What the whole program knows of itself: home directory, main window, application and project,
/// and the one observable subject. It passes pointers through and calls nothing of what they
/// point to.
class Kernel : public ObserverModel
{
public:
    /// Aspect that is notified when the list of CAN interfaces changed.
    static constexpr int interfacesAspect = 1;

    /// The one of the process; main thread only.
    static Kernel& instance();

    /// Fixes the home directory: "<appdata>/ZUL/" with the environment variable "appdata", else
    /// "./". The directory is not created.
    Kernel();
    ~Kernel() override;

    /// Directory of the user's files, ending in a slash.
    QString home() const;
    /// Another home, with a slash at its end; for tests.
    void setHome(const QString& home);

    DialogMain* mainWindow() const;
    void setMainWindow(DialogMain* mainWindow);
    QApplication* application() const;
    void setApplication(QApplication* application);
    /// The open document of the main window; null before there is one.
    Project* project() const;
    void setProject(Project* project);
    /// Styles of the windows: null, which leaves the application's style in place.
    QStyle* style1() const;
    QStyle* style2() const;

private:
    QString m_home;
    DialogMain* m_mainWindow = nullptr;
    QApplication* m_application = nullptr;
    QStyle* m_style1 = nullptr;
    QStyle* m_style2 = nullptr;
    Project* m_project = nullptr;
};

} // namespace gui
