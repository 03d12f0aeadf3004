#include "gui/controls/WidgetLight.h"

#include <QPalette>

namespace {

constexpr QColor onColor(0, 255, 0);
constexpr QColor offColor(255, 0, 0);
constexpr int minimumExtent = 20; // pixels

} // namespace

WidgetLight::WidgetLight(QWidget* parent) : QLabel(parent)
{
    setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Sunken));
    setAutoFillBackground(true);
    setMinimumSize(minimumExtent, minimumExtent);
    setAlignment(Qt::AlignCenter);
}

void WidgetLight::setState(int state)
{
    m_state = state;
    if (m_state == m_shownState) {
        return;
    }
    QPalette colors = palette();
    colors.setColor(QPalette::Window, m_state != 0 ? onColor : offColor);
    setPalette(colors);
    m_shownState = m_state;
}
