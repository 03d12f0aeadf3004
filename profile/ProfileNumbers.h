#pragma once

#include <QString>

#include <cstdint>

namespace zul {

/// A whole decimal number, blanks around it aside; what an int cannot hold is clamped, and text
/// that is no number gives 0.
int decimalNumber(const QString& text);

/// A finite floating-point number with a decimal point; other text gives 0.
double realNumber(const QString& text);

/// Sets byte and bit from "byte.bit"; a missing bit is 0.
void setPosition(const QString& text, std::uint32_t& byte, std::uint32_t& bit);

} // namespace zul
