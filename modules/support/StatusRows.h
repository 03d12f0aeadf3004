#pragma once

#include "message/DeviceStatus.h"
#include "message/MessageStatus.h"
#include "modules/support/BusTime.h"

#include <cstdint>
#include <string>

namespace canmodule {

/// Backgrounds of the rows of a status report.
namespace color {
constexpr const char* plain = "#ffffff";
constexpr const char* good = "#dcffdc";
constexpr const char* warning = "#ffffc8";
constexpr const char* bad = "#ffc8c8";
} // namespace color

/// The row "State".
zul::DeviceStatusEntry stateEntry(DeviceStatus status);

/// A number; `colorIfAny` marks one that is not 0.
template <typename Number>
zul::DeviceStatusEntry numberEntry(const char* label, Number number,
                                   const char* colorIfAny = color::plain)
{
    return {label, std::to_string(number), number != 0 ? colorIfAny : color::plain};
}

/// A text without colour.
zul::DeviceStatusEntry textEntry(const char* label, const std::string& text);

/// Fill of a queue as "3 / 100"; marked from half full on.
zul::DeviceStatusEntry fillEntry(const char* label, std::size_t fill, std::size_t capacity);

/// An error counter of a CAN controller: marked from the warning limit on, and above the limit of
/// error passive (ISO 11898-1: 96 and 127).
zul::DeviceStatusEntry errorCounterEntry(const char* label, int counter);

/// Tenths as a decimal number with a point, whatever the locale.
std::string tenthsText(std::int64_t tenths);

/// `count` in the span `elapsed`, per second, rounded; 0 without a span.
std::uint32_t perSecond(std::uint64_t count, BusTime elapsed);

} // namespace canmodule
