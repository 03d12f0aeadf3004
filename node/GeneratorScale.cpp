#include "node/GeneratorScale.h"

#include "node/GeneratorTables.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double dialSteps = 1000.0;
constexpr double dialStep = 0.001;
constexpr double stepOfRange = 0.01;
constexpr int decimalsOfOne = 2;

std::int32_t known(std::int32_t exponent)
{
    return std::clamp(exponent, generatorRanges.front().value, generatorRanges.back().value);
}

// In single precision, as the generator's numbers are.
float power(std::int32_t exponent)
{
    return std::pow(10.0F, static_cast<float>(known(exponent)));
}

} // namespace

float dialNumber(int position, std::int32_t exponent)
{
    return static_cast<float>(position * dialStep * static_cast<double>(power(exponent)));
}

int dialPosition(float number, std::int32_t exponent)
{
    const double position =
        static_cast<double>(number) * dialSteps / static_cast<double>(power(exponent));
    if (std::isnan(position)) {
        return 0;
    }
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(position, lowest, highest));
}

int rangeDecimals(std::int32_t exponent)
{
    return std::max(decimalsOfOne - known(exponent), 0);
}

double rangeStep(std::int32_t exponent)
{
    return static_cast<double>(power(exponent)) * stepOfRange;
}
