#pragma once

#include <QKeySequence>
#include <QObject>

class Message;
class Object;
class Project;
class QMdiArea;
class QMdiSubWindow;

namespace gui {

class DialogBase;

/// The tool windows in the main window's MDI area: opens them for objects, finds them, closes them,
/// and carries their geometry back into the objects.
class WindowDesk : public QObject
{
    Q_OBJECT

public:
    /// `area` and `project` outlive the desk. Windows are made with `parent`; none of them takes
    /// `closeKey`, with which `parent` closes the active one.
    WindowDesk(QMdiArea& area, Project& project, const QKeySequence& closeKey, QWidget* parent);

    /// Closes all windows and opens those of the objects that are marked open.
    void openProjectWindows();
    /// Opens the object's window where the MDI area places it; null if its type has no window.
    DialogBase* open(Object& object);
    /// Opens the object's window with the geometry and the name that the object has.
    DialogBase* openInPlace(Object& object);
    /// The sub-window that shows the object, or null.
    QMdiSubWindow* find(int objectId) const;
    /// The tool window of a sub-window, or null.
    static DialogBase* dialogOf(const QMdiSubWindow& subWindow);

    /// Closes without asking.
    void forceCloseAll();
    void forceClose(int objectId) const;
    /// Deletes all sub-windows without close events.
    void deleteAll();
    /// Copies position and size of every sub-window into its object.
    void storeGeometry();
    /// Gives the message to every tool window.
    void broadcast(Message& message);

signals:
    void signalDeleteDialog(int objectId);
    void signalDeleteObject(int objectId);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void storeGeometryOf(const QMdiSubWindow& subWindow);

    QMdiArea& m_area;
    Project& m_project;
    QKeySequence m_closeKey;
    QWidget* m_parent;
};

} // namespace gui
