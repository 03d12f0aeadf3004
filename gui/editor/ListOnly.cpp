#include "gui/editor/ListOnly.h"

#include <QComboBox>
#include <QKeyEvent>

namespace gui {

namespace {

bool selects(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return !key.text().isEmpty() && key.text().at(0).isPrint();
    }
}

} // namespace

ListOnly::ListOnly(QComboBox& box) : QObject(&box), m_box(box)
{
    box.installEventFilter(this);
}

void ListOnly::protect(QComboBox& box)
{
    new ListOnly(box); // owned by the box
}

bool ListOnly::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        return true;
    }
    if (event->type() == QEvent::KeyPress && selects(*static_cast<QKeyEvent*>(event))) {
        m_box.showPopup();
        return true;
    }
    return false;
}

} // namespace gui
