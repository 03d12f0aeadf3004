#include "modules/virtual/Scenario.h"

namespace canvirtual {

Scenario::~Scenario() = default;

void Scenario::observe(const BusFrame&, BusTime) {}

BusTime Scenario::lostAt() const
{
    return never;
}

} // namespace canvirtual
