#pragma once

#include "message/MessageInterfaceExport.h"

#include <cstdint>

namespace zul {

/// An instant, or for scheduled sending a delay, as a record of two words.
struct TimeStampRecord
{
    std::uint32_t seconds = 0;
    std::uint32_t nanoseconds = 0;
};

/// The record nearest to `seconds`. What the record cannot hold is clamped: negative values and NaN
/// to 0, too large ones to 4294967295 s and 999999999 ns.
MESSAGE_INTERFACE_EXPORT TimeStampRecord timeStampFromDouble(double seconds);

/// The record in seconds; at wall-clock size a double resolves about 0.2 microseconds.
MESSAGE_INTERFACE_EXPORT double timeStampToDouble(const TimeStampRecord& timeStamp);

} // namespace zul
