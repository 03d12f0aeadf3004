#pragma once

#include "message/MessageCan.h"

#include <array>
#include <cstdint>
#include <string>

class ProfileStore;

/// What the lines of the ASCII trace file show. The numbers are stored in project files, where
/// others may stand: all but `DisplayMode::Arinc825Profile` count as `Arinc825`.
enum class TraceFormat : std::int32_t { Can = 0, CanAerospace = 3, Arinc825 = 4 };

/// How the Trace window names a format.
struct TraceFormatText
{
    TraceFormat format;
    const char* text;
};

/// In the order of the selection.
inline constexpr std::array<TraceFormatText, 3> traceFormats{{
    {TraceFormat::Can, "Binary / Ascii CAN"},
    {TraceFormat::CanAerospace, "Binary / Ascii CANaerospace"},
    {TraceFormat::Arinc825, "Binary / Ascii ARINC-825"},
}};

/// Separates two lines of the block that a batch gives on the screen.
inline constexpr const char* traceLineSeparator = "<br>\n";

/// Appends the line of a frame as it stands in the ASCII file, without the line end, such as
/// "00000 12.346 S 291    D2   0-> 001 002". `number` is that of the line, shown with a sign.
///
/// Deliberate: the identifier follows an "S" for 29-bit frames too, and payload beyond byte 15 is
/// not told.
/// Deliberate: the format `Arinc825` has no line: the text stays empty, but for error frames. A
/// format of 6, which no control offers, is the profile form of the screen.
void appendTraceFileLine(std::string& text, const zul::MessageCan& frame, std::uint32_t number,
                         std::int32_t traceFormat, std::int32_t numberType,
                         const ProfileStore& store);

/// The same as shown on the screen in a `DisplayMode`, in Latin-1 and with the markup of error
/// frames; what could be taken for markup in names and values is escaped. A mode that the window
/// does not offer gives an empty line, but for error frames.
///
/// Deliberate: of several parameters that lie in the frame, the profile form shows the last one
/// alone.
void appendTraceScreenLine(std::string& text, const zul::MessageCan& frame, std::uint32_t number,
                           std::int32_t displayMode, std::int32_t numberType,
                           const ProfileStore& store);

/// Whether the line of a frame in the ASCII file is known to be that on the screen, letter by
/// letter.
bool areTraceLinesAlike(const zul::MessageCan& frame, std::int32_t displayMode,
                        std::int32_t traceFormat);
