#pragma once

#include "modules/virtual/Vocabulary.h"

#include <cstdint>

namespace canvirtual {

enum class Waveform : std::uint8_t { Sine = 0, Square = 1, Triangle = 2, Sawtooth = 3 };

/// The settings of a generator's channel.
struct GeneratorChannel
{
    std::uint32_t canId = 0;
    std::uint8_t dataType = 2; ///< code of CANaerospace
    std::uint8_t waveform = 0;
    std::uint8_t separation = 10; ///< milliseconds; 0 counts as 1
    bool isActive = false;
    float frequency = 1.0F; ///< hertz
    float amplitude = 1.0F;
    float offset = 0.0F;
};

/// The waveform between -1 and 1 at `phase`, from 0 (inclusive) to 1 (exclusive) of a period: sine
/// and triangle rise from 0, the square begins with 1, the sawtooth rises from -1. An unknown
/// waveform is a sine.
double waveAt(std::uint8_t waveform, double phase);

/// Whether a generator can make values of this type.
bool isGeneratorType(std::uint8_t dataType);

/// The channel's frame with the value at `phase`, in the form of CANaerospace. Numbers that the
/// type does not hold are clamped, and NaN is 0 in whole numbers.
BusFrame generatorFrame(const GeneratorChannel& channel, std::uint8_t nodeId,
                        std::uint8_t messageCode, double phase);

} // namespace canvirtual
