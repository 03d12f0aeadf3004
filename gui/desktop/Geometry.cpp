#include "gui/desktop/Geometry.h"

#include <algorithm>

namespace gui {

QRect boundedGeometry(int x, int y, int width, int height)
{
    return {std::clamp(x, -maxWindowExtent, maxWindowExtent),
            std::clamp(y, -maxWindowExtent, maxWindowExtent), std::clamp(width, 1, maxWindowExtent),
            std::clamp(height, 1, maxWindowExtent)};
}

QRect reachableGeometry(const QRect& bounded, const QRect& desktop)
{
    if (desktop.isEmpty() || desktop.intersects(bounded)) {
        return bounded;
    }
    return {desktop.topLeft(), bounded.size()};
}

} // namespace gui
