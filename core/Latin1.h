#pragma once

#include <QString>

#include <cstdint>
#include <string>

namespace zul {

/// The border between logic and windows is Latin-1: one byte a letter. What Latin-1 does not have
/// becomes "?".
std::string toLatin1(const QString& text);

/// \overload
QString fromLatin1(const std::string& text);

/// The leading decimal number of `text` as C's atoi reads it: white space, a sign, digits, and
/// whatever follows is ignored. No number gives 0; what an int cannot hold is clamped.
int leadingInt(const QString& text);

/// The leading number of `text`, with its base taken from its prefix: "0x" is hexadecimal, "0"
/// octal, else decimal. No number gives 0. The full text must be the number, blanks around it
/// aside. Values of 32 bits keep their bits: "0xFE00007F" gives 0xFE00007F, "-1" gives 0xFFFFFFFF;
/// what 32 bits cannot hold gives 0.
std::uint32_t numberWithPrefix(const QString& text);

} // namespace zul
