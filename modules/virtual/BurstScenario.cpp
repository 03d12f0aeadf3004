#include "modules/virtual/BurstScenario.h"

namespace canvirtual {

BurstScenario::BurstScenario(BusTime start) : SaturatedScenario(start + silence) {}

void BurstScenario::sent(BusTime end)
{
    ++m_inBurst;
    const bool over = m_inBurst == burstLength;
    m_inBurst = over ? 0 : m_inBurst;
    SaturatedScenario::sent(over ? end + silence : end);
}

void BurstScenario::skipTo(BusTime time)
{
    if (readyAt() < time) {
        m_inBurst = 0;
        SaturatedScenario::skipTo(time);
    }
}

} // namespace canvirtual
