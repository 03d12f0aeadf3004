#include "gui/desktop/WindowDesk.h"

#include "gui/desktop/Geometry.h"
#include "gui/frame/DialogBase.h"
#include "project/Project.h"

#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

namespace gui {

namespace {

// The window's own menu has the key, on some desktops, with which the main window closes the active
// window. A key of two actions is ambiguous, and neither is carried out.
void releaseKey(const QMdiSubWindow& subWindow, const QKeySequence& key)
{
    for (QAction* action : subWindow.systemMenu()->actions()) {
        QList<QKeySequence> keys = action->shortcuts();
        if (keys.removeAll(key) > 0) {
            action->setShortcuts(keys);
        }
    }
}

} // namespace

WindowDesk::WindowDesk(QMdiArea& area, Project& project, const QKeySequence& closeKey,
                       QWidget* parent)
    : QObject(parent), m_area(area), m_project(project), m_closeKey(closeKey), m_parent(parent)
{
}

void WindowDesk::openProjectWindows()
{
    forceCloseAll();
    for (const auto& entry : m_project.objects()) {
        if (entry.second->isOpen()) {
            openInPlace(*entry.second);
        }
    }
}

DialogBase* WindowDesk::open(Object& object)
{
    auto* dialog = dynamic_cast<DialogBase*>(object.createDialog(m_parent));
    if (dialog == nullptr) {
        return nullptr;
    }
    connect(dialog, &DialogBase::signalDeleteDialog, this, &WindowDesk::signalDeleteDialog);
    connect(dialog, &DialogBase::signalDeleteObject, this, &WindowDesk::signalDeleteObject);
    QMdiSubWindow* subWindow = m_area.addSubWindow(dialog);
    subWindow->installEventFilter(this);
    releaseKey(*subWindow, m_closeKey);
    subWindow->setWindowIcon(dialog->windowIcon());
    subWindow->show();
    return dialog;
}

DialogBase* WindowDesk::openInPlace(Object& object)
{
    // Taken before the window moves to its first place, which the object would take over.
    const QRect geometry =
        boundedGeometry(object.xPos(), object.yPos(), object.width(), object.height());
    DialogBase* dialog = open(object);
    if (dialog != nullptr) {
        QMdiSubWindow* subWindow = find(object.id());
        subWindow->showNormal();
        subWindow->resize(geometry.size());
        subWindow->move(geometry.topLeft());
        dialog->setName(object.name());
    }
    return dialog;
}

QMdiSubWindow* WindowDesk::find(int objectId) const
{
    for (QMdiSubWindow* subWindow : m_area.subWindowList()) {
        const DialogBase* dialog = dialogOf(*subWindow);
        if (dialog != nullptr && dialog->object() != nullptr &&
            dialog->object()->id() == objectId) {
            return subWindow;
        }
    }
    return nullptr;
}

DialogBase* WindowDesk::dialogOf(const QMdiSubWindow& subWindow)
{
    return qobject_cast<DialogBase*>(subWindow.widget());
}

void WindowDesk::forceCloseAll()
{
    for (QMdiSubWindow* subWindow : m_area.subWindowList()) {
        if (DialogBase* dialog = dialogOf(*subWindow)) {
            dialog->forceClose();
            subWindow->close();
        }
    }
}

void WindowDesk::forceClose(int objectId) const
{
    if (QMdiSubWindow* subWindow = find(objectId)) {
        dialogOf(*subWindow)->forceClose();
        subWindow->close();
    }
}

void WindowDesk::deleteAll()
{
    for (QMdiSubWindow* subWindow : m_area.subWindowList()) {
        delete subWindow;
    }
}

void WindowDesk::storeGeometry()
{
    for (const QMdiSubWindow* subWindow : m_area.subWindowList()) {
        storeGeometryOf(*subWindow);
    }
}

void WindowDesk::storeGeometryOf(const QMdiSubWindow& subWindow)
{
    // A maximized or minimized window keeps the geometry that it goes back to.
    const DialogBase* dialog = dialogOf(subWindow);
    if (dialog != nullptr && dialog->object() != nullptr && !subWindow.isMaximized() &&
        !subWindow.isMinimized()) {
        dialog->object()->setPosition(subWindow.x(), subWindow.y());
        dialog->object()->setSize(subWindow.width(), subWindow.height());
    }
}

bool WindowDesk::eventFilter(QObject* watched, QEvent* event)
{
    // Once a window is maximized, nobody can tell any more what it goes back to.
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        if (const auto* subWindow = qobject_cast<QMdiSubWindow*>(watched)) {
            storeGeometryOf(*subWindow);
        }
    }
    return QObject::eventFilter(watched, event);
}

void WindowDesk::broadcast(Message& message)
{
    for (const QMdiSubWindow* subWindow : m_area.subWindowList()) {
        if (DialogBase* dialog = dialogOf(*subWindow)) {
            dialog->guiMessage(&message);
        }
    }
}

} // namespace gui
