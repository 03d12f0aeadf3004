#pragma once

#include "modules/virtual/PeriodicScenario.h"

namespace canvirtual {

/// CAN FD frames of 12 to 64 bytes with and without bit-rate switch, 11-bit and 29-bit, among
/// classic ones.
///
/// Bytes 0 to 3 count the frames of the identifier (big-endian), 4 to 7 hold the milliseconds since
/// the start, the rest counts up from byte to byte.
class FdScenario : public PeriodicScenario
{
public:
    explicit FdScenario(BusTime start);

protected:
    void fill(std::size_t line, std::uint32_t count, BusTime elapsed, BusFrame& frame) override;
};

} // namespace canvirtual
