#pragma once

#include <QString>

#include <cstdint>
#include <map>

namespace zul {

/// Names by code.
using CodeTable = std::map<std::uint32_t, QString>;

/// Function codes go from 0 to 127.
inline constexpr std::uint32_t fidCount = 128;

/// Label of a function code that the standard leaves free: it counts as not defined, and profiles
/// may define it.
inline constexpr const char* reservedFid = "Reserved";

/// The 128 function codes of ARINC 825-2.
CodeTable makeFidTable825Part2();

/// The 128 function codes of ARINC 825-3.
CodeTable makeFidTable825Part3();

/// The units of ARINC 825, codes 0 to 53.
CodeTable makeUnitTable();

} // namespace zul
