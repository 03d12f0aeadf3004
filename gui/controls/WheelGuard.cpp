#include "gui/controls/WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace gui {

void WheelGuard::protect(QWidget* control)
{
    control->setFocusPolicy(Qt::StrongFocus); // the default of many takes the focus by the wheel
    control->installEventFilter(new WheelGuard(control));
}

WheelGuard::WheelGuard(QWidget* control) : QObject(control) {}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    const auto* control = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Wheel && control != nullptr && !control->hasFocus()) {
        event->ignore(); // it goes on to what can be scrolled
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace gui
