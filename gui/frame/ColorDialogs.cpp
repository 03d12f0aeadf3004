#include "gui/frame/ColorDialogs.h"

#include <QColorDialog>
#include <QPointer>

#include <optional>
#include <utility>

namespace gui {

namespace {

std::optional<QColor>& nextColor()
{
    static std::optional<QColor> color;
    return color;
}

} // namespace

QColor ColorDialogs::choose(QWidget* parent, const QColor& initial)
{
    if (const auto answer = std::exchange(nextColor(), std::nullopt)) {
        return *answer;
    }
    // On the heap: the parent may go, with all its children, while the chooser is open.
    const QPointer<QColorDialog> dialog = new QColorDialog(initial, parent);
    dialog->exec();
    QColor color;
    if (dialog != nullptr) {
        color = dialog->selectedColor(); // invalid unless accepted
        delete dialog;
    }
    return color;
}

void ColorDialogs::setNextColor(const QColor& color)
{
    nextColor() = color;
}

} // namespace gui
