#include "measure/GraphTicks.h"

#include "measure/GraphScale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace {

constexpr std::size_t longestText = 63;
// Never reached by the steps that `niceStep` finds: an axis has a tick for each pixel at most.
constexpr int maxTicks = 20'000;
// The ends of a range come from single-precision numbers: a tick this part of a step beyond counts
// as on the end.
constexpr double endTolerance = 1e-6;

struct Multiplier
{
    float below;
    int factor;
    int subdivisions;
};

// For the first digits of the raw step.
constexpr std::array<Multiplier, 3> multipliers{{{1.0F, 1, 5}, {2.0F, 2, 4}, {5.0F, 5, 5}}};
constexpr Multiplier largestMultiplier{0.0F, 10, 5};

Multiplier multiplierFor(float digits)
{
    for (const Multiplier& row : multipliers) {
        if (digits < row.below) {
            return row;
        }
    }
    return largestMultiplier;
}

// Ticks are whole multiples of the step, from one to another.
void collect(const NiceStep& step, double firstIndex, double lastIndex, double lower, double upper,
             GraphTicks& ticks)
{
    const double width = step.exactStep;
    const double tolerance = width * endTolerance;
    const auto isInside = [&](double tick) {
        return tick >= lower - tolerance && tick <= upper + tolerance;
    };
    for (int i = 0; i < maxTicks && firstIndex + i <= lastIndex; ++i) {
        const double tick = (firstIndex + i) * width + 0.0; // 0.0: no -0 in a label
        if (i > 0 && !(tick > (firstIndex + (i - 1)) * width)) {
            return; // the step is lost in the digits of so large a number
        }
        if (isInside(tick)) {
            ticks.major.push_back(tick);
        }
        for (int part = 1; part < step.subdivisions; ++part) {
            const double minor = tick + part * width / step.subdivisions;
            if (isInside(minor)) {
                ticks.minor.push_back(minor);
            }
        }
    }
}

} // namespace

NiceStep niceStep(double span, double pixels, float targetPixels)
{
    constexpr float ten = 10.0F;
    const auto spanHere = static_cast<float>(span);
    const float raw = spanHere / (static_cast<float>(pixels) / targetPixels);
    // What is no number, or not above 0, fails the comparisons.
    if (!(pixels > 0.0) || !(raw > 0.0F) || !(raw <= spanHere) || !std::isfinite(spanHere)) {
        return {};
    }
    const float e = std::log10(raw);
    int exponent = 0;
    if (e > 1.0F) {
        exponent = static_cast<int>(e);
    } else if (e < 0.0F) {
        exponent = static_cast<int>(e - 1.0F);
    }
    const float power = std::pow(ten, static_cast<float>(exponent));
    if (!(power > 0.0F)) {
        return {}; // below the smallest number of single precision
    }
    const Multiplier multiplier = multiplierFor(raw / power);
    NiceStep step;
    step.step = power * static_cast<float>(multiplier.factor);
    step.subdivisions = multiplier.subdivisions;
    step.exactStep = std::pow(10.0, exponent) * multiplier.factor;
    if (!std::isfinite(step.step)) {
        return {};
    }
    return step;
}

void timeTicks(const NiceStep& step, double lower, double upper, GraphTicks& ticks)
{
    ticks.major.clear();
    ticks.minor.clear();
    if (step.hasTicks()) {
        const double width = step.exactStep;
        collect(step, std::trunc(lower / width), std::trunc((width + upper) / width), lower, upper,
                ticks);
    }
}

void valueTicks(const NiceStep& step, double lower, double upper, GraphTicks& ticks)
{
    ticks.major.clear();
    ticks.minor.clear();
    if (step.hasTicks()) {
        const double width = step.exactStep;
        collect(step, std::trunc((lower - width) / width), std::trunc((width + upper) / width),
                lower, upper, ticks);
    }
}

std::string timeLabel(double tick)
{
    constexpr double mostSeconds = std::numeric_limits<int>::max();
    if (!(tick >= 0.0 && tick <= mostSeconds)) {
        return {};
    }
    constexpr int secondsPerHour = 3600;
    constexpr int secondsPerMinute = 60;
    const int hours = zul::truncated(tick) / secondsPerHour;
    const double rest = tick - static_cast<double>(hours) * secondsPerHour;
    const int minutes = zul::truncated(rest) / secondsPerMinute;
    const int seconds = zul::truncated(rest - static_cast<double>(minutes) * secondsPerMinute);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%d:%02d:%02d", hours, minutes, seconds);
    return text.data();
}

int valueDecimals(float step)
{
    const float d = std::log10(step);
    return d >= 1.0F || !std::isfinite(d) ? 0 : static_cast<int>(std::fabs(d) + 1.0F);
}

std::string valueLabel(double value, int decimals, std::size_t mostLetters)
{
    std::array<char, longestText + 1> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    if (length < 0 || static_cast<std::size_t>(length) > std::min(mostLetters, longestText)) {
        // The fewest digits that tell it from all other numbers, its neighbours on an axis
        // included.
        const auto end = std::to_chars(text.data(), text.data() + longestText, value).ptr;
        *end = '\0';
    }
    return text.data();
}
