#include "gui/node/StateLabel.h"

#include "gui/controls/Colors.h"

namespace gui {

StateLabel::StateLabel(QWidget* parent) : QLabel(parent)
{
    setAutoFillBackground(true);
    setAlignment(Qt::AlignCenter);
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
}

void StateLabel::showLook(const StateLook& look)
{
    setText(QLatin1String(look.text));
    QPalette colored = palette();
    colored.setColor(backgroundRole(), QColor(look.red, look.green, look.blue));
    colored.setColor(foregroundRole(), colors::normalText);
    setPalette(colored);
}

} // namespace gui
