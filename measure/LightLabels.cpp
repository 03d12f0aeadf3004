#include "measure/LightLabels.h"

#include "message/MessageCan.h"
#include "profile/CanAerospaceId.h"
#include "profile/DataTypes.h"

#include <algorithm>

namespace {

namespace canaerospace = zul::canaerospace;

constexpr int none = -1;
constexpr int valueBytes = 4;

/// What is added to the bit for each byte of the value; `none` for a byte without a value.
using Offsets = std::array<int, valueBytes>;

constexpr Offsets word{24, 16, 8, 0};
constexpr Offsets oneShort{8, 0, none, none};
constexpr Offsets twoShorts{8, 0, 8, 0};
constexpr Offsets oneByte{0, none, none, none};
constexpr Offsets twoBytes{0, 0, none, none};
constexpr Offsets threeBytes{0, 0, 0, none};
constexpr Offsets fourBytes{0, 0, 0, 0};

// By the code of the data type; codes beyond the table are words.
constexpr std::array<Offsets, zul::canAerospaceTypes.size()> offsetsOfType{
    {word,      word,      word,       word,       word,       word,      oneShort,  oneShort,
     oneShort,  oneByte,   oneByte,    oneByte,    twoShorts,  twoShorts, twoShorts, fourBytes,
     fourBytes, fourBytes, twoBytes,   twoBytes,   twoBytes,   word,      word,      oneByte,
     twoBytes,  fourBytes, threeBytes, threeBytes, threeBytes, threeBytes}};

const Offsets& offsetsOf(int dataType)
{
    const auto place = static_cast<std::size_t>(dataType);
    return dataType >= 0 && place < offsetsOfType.size() ? offsetsOfType[place] : word;
}

} // namespace

std::optional<int> lightNumber(int byte, int bit, int dataType)
{
    const int valueByte = byte - canaerospace::payloadByte;
    if (valueByte < 0 || valueByte >= valueBytes) {
        return (lightBytes - 1 - byte) * lightBits + bit;
    }
    const int offset = offsetsOf(dataType)[static_cast<std::size_t>(valueByte)];
    return offset != none ? std::optional<int>(offset + bit) : std::nullopt;
}

int lightDataType(const zul::MessageCan& frame)
{
    return frame.msg()[canaerospace::dataTypeByte];
}

LightStates lightStates(const zul::MessageCan& frame)
{
    LightStates states{};
    const std::uint32_t count = std::min<std::uint32_t>(frame.byteCount(), lightBytes);
    for (std::uint32_t byte = 0; byte < count; ++byte) {
        const unsigned bits = frame.msg()[static_cast<std::int32_t>(byte)];
        for (unsigned bit = 0; bit < lightBits; ++bit) {
            states[byte][bit] = ((bits >> bit) & 1U) != 0;
        }
    }
    return states;
}
