#pragma once

#include "modules/virtual/SaturatedScenario.h"

namespace canvirtual {

/// Silence, then as many frames of the saturated scenario as the bus can carry one after the other,
/// and again. The sequence numbers run on through the bursts.
class BurstScenario : public SaturatedScenario
{
public:
    static constexpr BusTime silence = 3 * second;
    static constexpr int burstLength = 1'000;

    explicit BurstScenario(BusTime start);

    void sent(BusTime end) override;
    /// A burst that was under way is over; the next one begins at `time`.
    void skipTo(BusTime time) override;

private:
    int m_inBurst = 0;
};

} // namespace canvirtual
