#include "gui/controls/Look.h"

namespace gui {

QIcon icon(const char* name)
{
    return QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
}

QFont typewriterFont(int pixels)
{
    QFont font(QStringLiteral("Courier"));
    font.setStyleHint(QFont::TypeWriter);
    font.setPixelSize(pixels);
    return font;
}

} // namespace gui
