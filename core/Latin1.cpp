#include "core/Latin1.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace zul {

std::string toLatin1(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QString fromLatin1(const std::string& text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

int leadingInt(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    const long long value = std::strtoll(bytes.constData(), nullptr, 10);
    constexpr long long low = std::numeric_limits<int>::min();
    constexpr long long high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, low, high));
}

std::uint32_t numberWithPrefix(const QString& text)
{
    bool isNumber = false;
    const qlonglong value = text.trimmed().toLongLong(&isNumber, 0);
    constexpr qlonglong low = std::numeric_limits<std::int32_t>::min();
    constexpr qlonglong high = std::numeric_limits<std::uint32_t>::max();
    if (!isNumber || value < low || value > high) {
        return 0;
    }
    return static_cast<std::uint32_t>(value);
}

} // namespace zul
