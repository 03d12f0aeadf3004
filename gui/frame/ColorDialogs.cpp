#include "gui/frame/ColorDialogs.h"

#include <QColorDialog>

#include <optional>

namespace gui {

namespace {

std::optional<QString>& nextColor()
{
    static std::optional<QString> color;
    return color;
}

} // namespace

QString ColorDialogs::choose(QWidget* parent, const QString& color)
{
    if (nextColor()) {
        QString answer = *nextColor();
        nextColor().reset();
        return answer;
    }
    const QColor chosen = QColorDialog::getColor(QColor(color), parent);
    return chosen.isValid() ? chosen.name() : QString();
}

void ColorDialogs::setNextColor(const QString& color)
{
    nextColor() = color;
}

} // namespace gui
