#include "traffic/TraceTextLine.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

using zul::MessageCan;

namespace {

/// Takes the next part from the front of `rest`; empty if there is none.
std::string_view takePart(std::string_view& rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const std::string_view part = rest.substr(0, rest.find(' '));
    rest.remove_prefix(part.size());
    return part;
}

constexpr bool isWhiteSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isWhiteSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isWhiteSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// The number that the whole of `text` is; else 0.
template <typename Number>
Number numberOf(std::string_view text)
{
    text = trimmed(text);
    if (text.empty()) {
        return Number{};
    }
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    Number number{};
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? number : Number{};
}

std::uint32_t identifierOf(std::string_view text)
{
    constexpr double least = -2147483648.0;
    constexpr double beyond = 4294967296.0;
    const double number = std::trunc(numberOf<double>(text));
    if (!(number >= least && number < beyond)) { // also catches NaN
        return 0;
    }
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(number));
}

void readLength(std::string_view part, TraceFrame& frame)
{
    if (part.empty()) {
        return;
    }
    if (part.front() == 'R') {
        frame.frameType = static_cast<std::uint8_t>(MessageCan::EFrameType::Remote);
    }
    const char digit = part.back();
    if (digit >= '0' && digit <= '9') {
        frame.byteCount = static_cast<std::uint8_t>(digit - '0');
    }
}

} // namespace

TraceFrame frameOfTraceLine(std::string_view line)
{
    TraceFrame frame;
    takePart(line);
    MessageCan time;
    time.setTimeStamp(numberOf<double>(takePart(line)));
    frame.seconds = time.timeStamp().seconds;
    frame.nanoseconds = time.timeStamp().nanoseconds;
    const std::string_view kind = takePart(line);
    if (kind == "ERROR") {
        frame.frameType = static_cast<std::uint8_t>(MessageCan::EFrameType::Error);
        return frame;
    }
    frame.mode = kind == "S" ? 0 : 1;
    frame.id = identifierOf(takePart(line));
    readLength(takePart(line), frame);
    for (std::uint8_t& byte : frame.bytes) {
        byte = static_cast<std::uint8_t>(numberOf<int>(takePart(line)) & 0xFF);
    }
    return frame;
}
