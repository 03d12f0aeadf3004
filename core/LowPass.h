#pragma once

namespace zul {

/// The gain of the rates and periods that windows measure.
inline constexpr double measuredGain = 0.3;

/// One step of the program's first-order smoothing, weighted by wall-clock time.
///
/// With w = min(1, `dt`) and gain k the state becomes (k * state + sample * w) / (k + w): after a
/// second or more the sample weighs 1 against k. The operands are single precision, as is the
/// result before it is stored. A clock that jumps back counts as no time passed.
void lowPass(double sample, double gain, double dt, double& state);

} // namespace zul
