#include "gui/controls/QwtLabel.h"

namespace gui {

QwtLabel::QwtLabel(int index, QWidget* parent) : QLabel(parent), m_index(index) {}

void QwtLabel::mouseDoubleClickEvent(QMouseEvent*)
{
    emit signalDoubleClicked(m_index);
}

} // namespace gui
