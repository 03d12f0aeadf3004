#pragma once

#include "traffic/TraceFrame.h"

#include <string_view>

/// Most characters of one line: what follows is the next line.
inline constexpr std::size_t maxTraceLine = 1023;

/// The frame of one line of a text trace, without its line end. Parts are separated by blanks:
/// line number (ignored), time in seconds, "S" or another word for 29 bits, identifier, "D" or "R"
/// with the byte count behind, and 8 bytes, all in decimal. "ERROR" in the third place makes an
/// error frame. What is missing or no number is 0; an identifier that 32 bits cannot hold is 0 too.
TraceFrame frameOfTraceLine(std::string_view line);
