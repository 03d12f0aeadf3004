#include "gui/controls/NumberText.h"

#include <algorithm>
#include <limits>

namespace gui {

QString numberText(int value, int numberType)
{
    switch (numberType) {
    case 0:
        return QString::asprintf("%d", value);
    case 1:
        return QString::asprintf("0x%X", static_cast<unsigned>(value));
    default:
        return QString();
    }
}

int numberFromText(const QString& text)
{
    constexpr int detectBase = 0;
    const qlonglong value = text.trimmed().toLongLong(nullptr, detectBase);
    constexpr qlonglong low = std::numeric_limits<int>::min();
    constexpr qlonglong high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, low, high));
}

} // namespace gui
