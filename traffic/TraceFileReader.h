#pragma once

#include "traffic/TraceFrame.h"

#include <QString>

#include <cstddef>

/// Most frames that are read of one file, so that one which has never been a trace cannot take all
/// memory: some three hours of a 1 Mbit/s bus that is fully loaded with frames of 8 bytes.
inline constexpr std::size_t maxTraceFrames = 100'000'000;

/// Reads a whole trace file in place of the frames that `trace` holds. The text after the last "."
/// of the path decides: "zla" is read as text, everything else as binary in either byte order.
///
/// Nothing is refused: a file that is no trace gives wrong frames, and one that is cut off those
/// that are whole, a text also the last line as far as it goes. What cannot be opened, is no
/// regular file, or does not fit into memory is taken for an empty file.
///
/// Deliberate: an empty file leaves the first and last time as they were.
/// Deliberate: of a line that the trace window has written, the mark before the payload is read as
/// byte 0, and the others one place late; numbers in hexadecimal are read as 0, and of a byte count
/// its last digit. A line without anything in it is a frame too.
void readTraceFile(const QString& path, TraceFrames& trace, std::size_t maxFrames = maxTraceFrames);
