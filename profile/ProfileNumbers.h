#pragma once

#include <QString>

#include <cstdint>

namespace zul {

/// A whole decimal number, blanks around it aside; what an int cannot hold is clamped, and text
/// that is no number gives 0.
int decimalNumber(const QString& text);

/// A number of a file as it stood there: fields are unsigned, but negative ones are shown and
/// written as such.
constexpr std::int32_t asSigned(std::uint32_t number)
{
    return static_cast<std::int32_t>(number);
}

/// A finite floating-point number with a decimal point; other text gives 0.
double realNumber(const QString& text);

/// Sets byte and bit from "byte.bit"; a missing bit is 0.
void setPosition(const QString& text, std::uint32_t& byte, std::uint32_t& bit);

} // namespace zul
