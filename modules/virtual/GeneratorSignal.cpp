#include "modules/virtual/GeneratorSignal.h"

#include "modules/virtual/NodeReplies.h"
#include "modules/virtual/Payload.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace canvirtual {

namespace {

constexpr double pi = 3.14159265358979323846;

// Data types of CANaerospace.
constexpr std::uint8_t floatType = 2;
constexpr std::uint8_t longType = 3;
constexpr std::uint8_t unsignedLongType = 4;
constexpr std::uint8_t shortType = 6;
constexpr std::uint8_t unsignedShortType = 7;
constexpr std::uint8_t charType = 9;
constexpr std::uint8_t unsignedCharType = 10;

constexpr std::size_t dataAt = 4;

template <typename Whole>
std::uint64_t wholeNumber(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double lowest = std::numeric_limits<Whole>::min();
    constexpr double highest = std::numeric_limits<Whole>::max();
    const auto whole = static_cast<Whole>(std::clamp(std::round(value), lowest, highest));
    return static_cast<std::uint64_t>(whole);
}

/// Writes the value, and gives the bytes that it takes; none for an unknown type.
std::uint32_t putValue(BusFrame& frame, std::uint8_t dataType, double value)
{
    const auto put = [&frame](std::uint64_t number, std::size_t bytes) {
        putBigEndian(frame, dataAt, number, bytes);
        return static_cast<std::uint32_t>(bytes);
    };
    switch (dataType) {
    case floatType:
        putFloat(frame, dataAt, value);
        return sizeof(float);
    case longType:
        return put(wholeNumber<std::int32_t>(value), sizeof(std::int32_t));
    case unsignedLongType:
        return put(wholeNumber<std::uint32_t>(value), sizeof(std::uint32_t));
    case shortType:
        return put(wholeNumber<std::int16_t>(value), sizeof(std::int16_t));
    case unsignedShortType:
        return put(wholeNumber<std::uint16_t>(value), sizeof(std::uint16_t));
    case charType:
        return put(wholeNumber<std::int8_t>(value), sizeof(std::int8_t));
    case unsignedCharType:
        return put(wholeNumber<std::uint8_t>(value), sizeof(std::uint8_t));
    default:
        return 0;
    }
}

double triangleAt(double phase)
{
    constexpr double quarter = 0.25;
    constexpr double threeQuarters = 0.75;
    if (phase < quarter) {
        return 4.0 * phase;
    }
    return phase < threeQuarters ? 2.0 - 4.0 * phase : 4.0 * phase - 4.0;
}

} // namespace

double waveAt(std::uint8_t waveform, double phase)
{
    constexpr double half = 0.5;
    switch (static_cast<Waveform>(waveform)) {
    case Waveform::Sine:
        break;
    case Waveform::Square:
        return phase < half ? 1.0 : -1.0;
    case Waveform::Triangle:
        return triangleAt(phase);
    case Waveform::Sawtooth:
        return 2.0 * phase - 1.0;
    }
    return std::sin(2.0 * pi * phase);
}

bool isGeneratorType(std::uint8_t dataType)
{
    BusFrame frame;
    return putValue(frame, dataType, 0.0) > 0;
}

BusFrame generatorFrame(const GeneratorChannel& channel, std::uint8_t nodeId,
                        std::uint8_t messageCode, double phase)
{
    BusFrame frame = nodeFrame(channel.canId & maxExtendedId, 0, false);
    frame.data.at(0) = nodeId;
    frame.data.at(1) = channel.dataType;
    frame.data.at(3) = messageCode;
    const double value = static_cast<double>(channel.offset) +
                         static_cast<double>(channel.amplitude) * waveAt(channel.waveform, phase);
    frame.byteCount = static_cast<std::uint32_t>(dataAt) + putValue(frame, channel.dataType, value);
    return frame;
}

} // namespace canvirtual
