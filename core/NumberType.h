#pragma once

#include <cstdint>

/// How numbers are shown. The numbers are stored in project files, where others than these two may
/// stand: they count as decimal.
enum class NumberType : std::int32_t { Decimal = 0, Hexadecimal = 1 };

constexpr bool isHexadecimal(std::int32_t numberType)
{
    return numberType == static_cast<std::int32_t>(NumberType::Hexadecimal);
}
