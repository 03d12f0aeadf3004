#include "modules/virtual/Scenario.h"

namespace canvirtual {

Scenario::~Scenario() = default;

BusTime Scenario::lostAt() const
{
    return never;
}

} // namespace canvirtual
