#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// What the settings of a function generator can be, as its panel names it.

/// A setting's value and its name.
struct GeneratorChoice
{
    const char* name;
    std::int32_t value;
};

inline constexpr std::array<GeneratorChoice, 4> generatorBaudrates{
    {{"1 MBit/s", 0}, {"500 KBit/s", 1}, {"250 KBit/s", 2}, {"125 KBit/s", 3}}};

inline constexpr std::array<GeneratorChoice, 4> generatorWaveforms{
    {{"Sine", 0}, {"Square", 1}, {"Triangle", 2}, {"Sawtooth", 3}}};

/// Data types of CANaerospace, by their codes.
inline constexpr std::array<GeneratorChoice, 7> generatorDataTypes{{{"AS_FLOAT", 2},
                                                                    {"AS_LONG", 3},
                                                                    {"AS_ULONG", 4},
                                                                    {"AS_SHORT", 6},
                                                                    {"AS_USHORT", 7},
                                                                    {"AS_CHAR", 9},
                                                                    {"AS_UCHAR", 10}}};

/// Ranges of frequency, amplitude and offset: the value is the exponent of ten of the largest
/// number. The frequency has the first five.
inline constexpr std::array<GeneratorChoice, 12> generatorRanges{{{"0.0-0.01", -2},
                                                                  {"0.0-0.1", -1},
                                                                  {"0.0-1.0", 0},
                                                                  {"0.0-10.0", 1},
                                                                  {"0.0-100.0", 2},
                                                                  {"0.0-1000.0", 3},
                                                                  {"0.0-10000.0", 4},
                                                                  {"0.0-100000.0", 5},
                                                                  {"0.0-1000000.0", 6},
                                                                  {"0.0-1e7", 7},
                                                                  {"0.0-1e8", 8},
                                                                  {"0.0-1e9", 9}}};
inline constexpr std::size_t generatorFrequencyRanges = 5;
inline constexpr std::int32_t maxFrequencyExponent =
    generatorRanges[generatorFrequencyRanges - 1].value;
