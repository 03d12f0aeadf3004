#include "modules/virtual/BitTiming.h"

#include <algorithm>
#include <cstdlib>

namespace canvirtual {

namespace {

template <std::size_t Size>
constexpr bool ratesMatch(const std::array<TimingPreset, Size>& presets,
                          std::int32_t (*rateOf)(std::uint32_t), std::uint32_t mask)
{
    // std::all_of is no constant expression in C++17.
    for (const TimingPreset& preset : presets) { // NOLINT(readability-use-anyofallof)
        if (rateOf(preset.value) != preset.bitRate || (preset.value & ~mask) != 0) {
            return false;
        }
    }
    return true;
}

static_assert(ratesMatch(btrPresets, bitRateFromBtr, btrMask));
static_assert(ratesMatch(nbtpPresets, bitRateFromNbtp, nbtpMask));
static_assert(ratesMatch(dbtpPresets, bitRateFromDbtp, dbtpMask));

/// Prescaler and time quanta of a bit.
struct Division
{
    std::int64_t prescaler = 1;
    std::int64_t quanta = 0;
};

/// Limits of a controller's bit timing; a bit is one quantum and the two segments.
struct DivisionLimits
{
    std::int64_t maxPrescaler;
    std::int64_t maxSegment1;
    std::int64_t maxSegment2;
};

/// The division of `clockHz` nearest to `bitRate`; of equally near ones that with most quanta.
Division nearestDivision(std::int64_t clockHz, std::int64_t bitRate, const DivisionLimits& limits)
{
    constexpr std::int64_t minQuanta = 3;
    const std::int64_t maxQuanta = 1 + limits.maxSegment1 + limits.maxSegment2;
    Division best;
    std::int64_t bestError = -1;
    for (std::int64_t prescaler = 1; prescaler <= limits.maxPrescaler; ++prescaler) {
        const std::int64_t exact = prescaler * bitRate;
        const std::int64_t quanta = std::clamp((clockHz + exact / 2) / exact, minQuanta, maxQuanta);
        const std::int64_t error = std::abs(roundedRate(clockHz, prescaler * quanta) - bitRate);
        if (bestError < 0 || error < bestError) {
            best = {prescaler, quanta};
            bestError = error;
        }
    }
    return best;
}

/// Length of the second segment that puts the sample point near 80 percent, within the limits.
std::int64_t secondSegment(std::int64_t quanta, const DivisionLimits& limits)
{
    const std::int64_t shortest = std::max<std::int64_t>(1, quanta - 1 - limits.maxSegment1);
    const std::int64_t longest = std::min(limits.maxSegment2, quanta - 2);
    return std::clamp((quanta + 2) / 5, shortest, std::max(shortest, longest));
}

template <std::size_t Size>
const TimingPreset* findPreset(const std::array<TimingPreset, Size>& presets, std::int32_t bitRate)
{
    const auto* const found =
        std::find_if(presets.begin(), presets.end(),
                     [bitRate](const TimingPreset& preset) { return preset.bitRate == bitRate; });
    return found != presets.end() ? found : nullptr;
}

std::uint32_t field(std::int64_t value)
{
    return static_cast<std::uint32_t>(value - 1);
}

} // namespace

std::uint32_t btrForBitRate(std::int32_t bitRate)
{
    if (const TimingPreset* preset = findPreset(btrPresets, bitRate)) {
        return preset->value;
    }
    constexpr DivisionLimits limits = {64, 16, 8};
    const Division division = nearestDivision(btrClockHz / 2, std::max(bitRate, 1), limits);
    const std::int64_t segment2 = secondSegment(division.quanta, limits);
    const std::int64_t segment1 = division.quanta - 1 - segment2;
    return field(division.prescaler) << 8U | field(segment2) << 4U | field(segment1);
}

std::uint32_t nbtpForBitRate(std::int32_t bitRate)
{
    if (const TimingPreset* preset = findPreset(nbtpPresets, bitRate)) {
        return preset->value;
    }
    constexpr DivisionLimits limits = {512, 256, 128};
    const Division division = nearestDivision(fdClockHz, std::max(bitRate, 1), limits);
    const std::int64_t segment2 = secondSegment(division.quanta, limits);
    const std::int64_t segment1 = division.quanta - 1 - segment2;
    // The jump width is bounded so that the register stays a positive signed number.
    const std::int64_t jump = std::min<std::int64_t>(segment2, 64);
    return packNbtp(field(jump), field(division.prescaler), field(segment1), field(segment2));
}

} // namespace canvirtual
