#include "core/LowPass.h"

#include <algorithm>

namespace zul {

void lowPass(double sample, double gain, double dt, double& state)
{
    // A negative weight could make the divisor 0 and leave the state at infinity for good.
    const auto w = static_cast<float>(std::clamp(dt, 0.0, 1.0));
    const auto k = static_cast<float>(gain);
    const auto x = static_cast<float>(sample);
    const auto y = static_cast<float>(state);
    const double divisor = static_cast<double>(k) + static_cast<double>(w);
    if (!(divisor > 0.0)) { // also when `dt` is no number
        return;
    }
    const double sum = static_cast<double>(k) * static_cast<double>(y) +
                       static_cast<double>(x) * static_cast<double>(w);
    state = static_cast<double>(static_cast<float>(sum / divisor));
}

} // namespace zul
