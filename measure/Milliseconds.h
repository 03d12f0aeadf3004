#pragma once

#include <QString>

#include <cstdint>

// Times are seconds inside, and milliseconds where users read or choose them.

inline constexpr std::uint32_t wholeMsPerSecond = 1000; ///< for divisions without a remainder
inline constexpr double msPerSecond = wholeMsPerSecond;
inline constexpr double secondsPerMs = 0.001;

/// "%.3f ms" of seconds.
QString msText(double seconds);
