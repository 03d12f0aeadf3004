#pragma once

#include "modules/virtual/FlightTables.h"
#include "modules/virtual/PeriodicScenario.h"

#include <cstddef>

namespace canvirtual {

/// A calm flight, told in ARINC 825 and CANaerospace frames at 1 to 100 Hz; see `FlightTables.h`.
///
/// The sources of a redundant parameter (RCI A to D) differ a little: each by 0.05 percent of the
/// parameter's range from the one before.
class FlightScenario : public PeriodicScenario
{
public:
    explicit FlightScenario(BusTime start);

protected:
    void fill(std::size_t line, std::uint32_t count, BusTime elapsed, BusFrame& frame) override;

private:
    /// First row of each ARINC 825 frame, and one past the last row.
    std::vector<std::size_t> m_firstRows;
};

} // namespace canvirtual
