#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// The distance of an axis's ticks.
struct NiceStep
{
    /// 1, 2, 5 or 10 times a power of ten, in single precision; -1 for an axis without ticks.
    float step = -1.0F;
    int subdivisions = 0; ///< minor ticks cut a step into so many parts
    /// The step to all digits of a double, so that far from 0 ticks stand on round numbers.
    double exactStep = -1.0;

    bool hasTicks() const { return step > 0.0F && exactStep > 0.0; }
};

inline constexpr float timeTickPixels = 70.0F;  ///< distance that time ticks aim at
inline constexpr float valueTickPixels = 25.0F; ///< distance that value ticks aim at

/// The step for an axis of so many units and pixels. An axis without a length, or that is shorter
/// than the distance aimed at, has no ticks.
NiceStep niceStep(double span, double pixels, float targetPixels);

struct GraphTicks
{
    std::vector<double> major; ///< ascending, ends of the range included
    std::vector<double> minor;
};

/// The ticks of a time axis that lie in the range.
///
/// Deliberate: the first tick is cut off towards 0, so that below 0 no minor ticks stand left of
/// it.
void timeTicks(const NiceStep& step, double lower, double upper, GraphTicks& ticks);
/// The ticks of a value axis that lie in the range.
void valueTicks(const NiceStep& step, double lower, double upper, GraphTicks& ticks);

/// Hours, minutes and seconds of a tick; empty for one below 0, and for one of more seconds than an
/// int holds. Deliberate: fractions are cut off, so that steps below a second repeat a label.
std::string timeLabel(double tick);

/// Decimals of the labels of a value axis.
int valueDecimals(float step);
/// Letters of the longest label of a tick: more would leave no room for the plot.
inline constexpr std::size_t mostLabelLetters = 40;
/// A number with so many decimals. One of more letters, or of more than 63, is written with a power
/// of ten, and as many digits as tell it from all others.
std::string valueLabel(double value, int decimals, std::size_t mostLetters = mostLabelLetters);
