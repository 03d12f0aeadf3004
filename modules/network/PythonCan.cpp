#include "modules/network/PythonCan.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace cannetwork {

namespace {

namespace key {
constexpr std::string_view timestamp = "timestamp";
constexpr std::string_view identifier = "arbitration_id";
constexpr std::string_view isExtendedId = "is_extended_id";
constexpr std::string_view isRemoteFrame = "is_remote_frame";
constexpr std::string_view isErrorFrame = "is_error_frame";
constexpr std::string_view channel = "channel";
constexpr std::string_view dlc = "dlc";
constexpr std::string_view data = "data";
constexpr std::string_view isFd = "is_fd";
constexpr std::string_view bitRateSwitch = "bitrate_switch";
constexpr std::string_view errorState = "error_state_indicator";
} // namespace key

constexpr std::uint8_t keyCount = 11;

/// What the map tells.
struct Attributes
{
    std::uint64_t identifier = 0;
    std::uint64_t dlc = 0;
    ByteView data;
    bool isExtendedId = false;
    bool isRemoteFrame = false;
    bool isErrorFrame = false;
    bool isFd = false;
    bool bitRateSwitch = false;
};

struct Flag
{
    std::string_view key;
    bool Attributes::*member;
};

constexpr std::array<Flag, 5> flags{{{key::isExtendedId, &Attributes::isExtendedId},
                                     {key::isRemoteFrame, &Attributes::isRemoteFrame},
                                     {key::isErrorFrame, &Attributes::isErrorFrame},
                                     {key::isFd, &Attributes::isFd},
                                     {key::bitRateSwitch, &Attributes::bitRateSwitch}}};

bool readNumber(PackReader& reader, std::uint64_t& number)
{
    PackValue value;
    if (!reader.read(value) || value.kind != PackKind::Unsigned) {
        return false;
    }
    number = value.number;
    return true;
}

bool readFlag(PackReader& reader, bool& flag)
{
    PackValue value;
    if (!reader.read(value) ||
        (value.kind != PackKind::Boolean && value.kind != PackKind::Unsigned)) {
        return false;
    }
    flag = value.isTrue || value.number != 0;
    return true;
}

bool readData(PackReader& reader, ByteView& data)
{
    PackValue value;
    if (!reader.read(value)) {
        return false;
    }
    data = value.bytes;
    // Elder writers have no type for bytes and take that of texts.
    return value.kind == PackKind::Binary || value.kind == PackKind::Text ||
           value.kind == PackKind::Nil;
}

bool readValue(std::string_view name, PackReader& reader, Attributes& attributes)
{
    if (name == key::identifier) {
        return readNumber(reader, attributes.identifier);
    }
    if (name == key::dlc) {
        return readNumber(reader, attributes.dlc);
    }
    if (name == key::data) {
        return readData(reader, attributes.data);
    }
    const auto* const flag = std::find_if(flags.begin(), flags.end(),
                                          [name](const Flag& entry) { return entry.key == name; });
    return flag != flags.end() ? readFlag(reader, attributes.*(flag->member)) : reader.skip();
}

bool readMap(PackReader& reader, Attributes& attributes)
{
    PackValue map;
    if (!reader.read(map) || map.kind != PackKind::Map) {
        return false;
    }
    for (std::uint32_t i = 0; i < map.count; ++i) {
        PackValue name;
        if (!reader.read(name) || name.kind != PackKind::Text) {
            return false;
        }
        const std::string_view text(reinterpret_cast<const char*>(name.bytes.data), // NOLINT
                                    name.bytes.size);
        if (!readValue(text, reader, attributes)) {
            return false;
        }
    }
    return true;
}

bool isPossible(const Attributes& attributes)
{
    const std::uint64_t most = attributes.isFd ? maxFdBytes : maxClassicBytes;
    if (attributes.dlc > most || attributes.data.size > most) {
        return false;
    }
    if (attributes.isErrorFrame) {
        return true; // nothing else of it counts
    }
    if (attributes.isRemoteFrame) {
        if (attributes.isFd) {
            return false;
        }
    } else if (attributes.data.size != attributes.dlc) {
        return false;
    }
    return attributes.identifier <= (attributes.isExtendedId ? maxExtendedId : maxStandardId);
}

BusFrame frameOf(const Attributes& attributes)
{
    BusFrame frame;
    frame.id = static_cast<std::uint32_t>(attributes.identifier & maxExtendedId);
    frame.byteCount = static_cast<std::uint32_t>(attributes.dlc);
    std::uint32_t mode = attributes.isExtendedId ? 1U : 0U;
    if (attributes.isFd) {
        mode += attributes.bitRateSwitch ? 4U : 2U;
    }
    frame.mode = static_cast<FrameMode>(mode);
    if (attributes.isErrorFrame) {
        frame.type = FrameType::Error;
    } else if (attributes.isRemoteFrame) {
        frame.type = FrameType::Remote;
        return frame;
    }
    std::copy_n(attributes.data.data, attributes.data.size, frame.data.begin());
    return frame;
}

} // namespace

DatagramFault PythonCanDecoder::decode(ByteView datagram, std::vector<BusFrame>& frames)
{
    PackReader reader(datagram);
    Attributes attributes;
    if (!readMap(reader, attributes)) {
        return reader.isCut() ? DatagramFault::Cut : DatagramFault::Version;
    }
    if (!reader.isAtEnd()) {
        return DatagramFault::TooLong;
    }
    if (!isPossible(attributes)) {
        return DatagramFault::Frame;
    }
    frames.push_back(frameOf(attributes));
    return DatagramFault::None;
}

bool PythonCanEncoder::add(const BusFrame& frame)
{
    if (!isEmpty()) {
        return false;
    }
    const auto flag = [this](std::string_view name, bool isSet) {
        m_writer.text(name);
        m_writer.boolean(isSet);
    };
    const bool isRemote = frame.type == FrameType::Remote;
    m_writer.map(keyCount);
    m_writer.text(key::timestamp);
    m_writer.real(toSeconds(frame.time));
    m_writer.text(key::identifier);
    m_writer.number(frame.id);
    flag(key::isExtendedId, isExtended(frame.mode));
    flag(key::isRemoteFrame, isRemote);
    flag(key::isErrorFrame, false);
    m_writer.text(key::channel);
    m_writer.nil();
    m_writer.text(key::dlc);
    m_writer.number(frame.byteCount);
    m_writer.text(key::data);
    m_writer.binary({frame.data.data(), isRemote ? 0 : frame.byteCount});
    flag(key::isFd, canmodule::isFd(frame.mode));
    flag(key::bitRateSwitch, hasBitRateSwitch(frame.mode));
    flag(key::errorState, false);
    return true;
}

} // namespace cannetwork
