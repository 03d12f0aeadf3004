#include "modules/support/StatusRows.h"

#include <algorithm>
#include <limits>

namespace canmodule {

zul::DeviceStatusEntry stateEntry(DeviceStatus status)
{
    switch (status) {
    case DeviceStatus::Closed:
        return {"State", "Closed", color::bad};
    case DeviceStatus::Open:
        return {"State", "Active", color::good};
    case DeviceStatus::BusPassive:
        return {"State", "Passive", color::warning};
    case DeviceStatus::BusOff:
        return {"State", "Bus off", color::bad};
    }
    return {"State", "Unknown", color::bad};
}

zul::DeviceStatusEntry textEntry(const char* label, const std::string& text)
{
    return {label, text, color::plain};
}

zul::DeviceStatusEntry fillEntry(const char* label, std::size_t fill, std::size_t capacity)
{
    return {label, std::to_string(fill) + " / " + std::to_string(capacity),
            fill < capacity / 2 ? color::plain : color::warning};
}

zul::DeviceStatusEntry errorCounterEntry(const char* label, int counter)
{
    constexpr int warningLimit = 96;
    constexpr int passiveLimit = 127;
    const char* mark = counter >= warningLimit ? color::warning : color::plain;
    if (counter > passiveLimit) {
        mark = color::bad;
    }
    return {label, std::to_string(counter), mark};
}

std::string tenthsText(std::int64_t tenths)
{
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::uint32_t perSecond(std::uint64_t count, BusTime elapsed)
{
    if (elapsed <= 0) {
        return 0;
    }
    const double rate = static_cast<double>(count) / toSeconds(elapsed) + 0.5;
    constexpr double largest = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::min(rate, largest));
}

} // namespace canmodule
