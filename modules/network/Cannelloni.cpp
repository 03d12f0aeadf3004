#include "modules/network/Cannelloni.h"

#include <algorithm>

namespace cannetwork {

namespace {

using namespace cannelloni;

constexpr std::size_t longestFrame = 4 + 1 + 1 + maxFdBytes;

/// Reads bytes until there are no more.
class Reader
{
public:
    explicit Reader(ByteView bytes) : m_bytes(bytes) {}

    std::size_t left() const { return m_bytes.size - m_place; }

    std::uint32_t number(std::size_t bytes)
    {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < bytes; ++i) {
            value = value << 8U | m_bytes.data[m_place++];
        }
        return value;
    }

    void copy(std::size_t bytes, std::uint8_t* to)
    {
        std::copy_n(m_bytes.data + m_place, bytes, to);
        m_place += bytes;
    }

private:
    ByteView m_bytes;
    std::size_t m_place = 0;
};

FrameMode modeOf(bool isExtendedFrame, bool isFdFrame, std::uint32_t flags)
{
    std::uint32_t mode = isExtendedFrame ? 1U : 0U;
    if (isFdFrame) {
        mode += (flags & bitRateSwitchFlag) != 0 ? 4U : 2U;
    }
    return static_cast<FrameMode>(mode);
}

// Takes type and identifier apart. False if they contradict each other.
bool takeIdentifier(std::uint32_t word, BusFrame& frame)
{
    const bool isExtendedFrame = (word & extendedFlag) != 0;
    const bool isRemote = (word & remoteFlag) != 0;
    frame.id = word & maxExtendedId;
    frame.mode = isExtendedFrame ? FrameMode::Extended : FrameMode::Standard;
    if ((word & errorFlag) != 0) {
        frame.type = FrameType::Error; // the identifier holds classes of errors
        return !isRemote;
    }
    frame.type = isRemote ? FrameType::Remote : FrameType::Data;
    return isExtendedFrame || frame.id <= maxStandardId;
}

DatagramFault takeFrame(Reader& reader, BusFrame& frame)
{
    constexpr std::size_t identifierAndLength = 5;
    if (reader.left() < identifierAndLength) {
        return DatagramFault::Cut;
    }
    bool isGood = takeIdentifier(reader.number(4), frame);
    const std::uint32_t length = reader.number(1);
    const bool isFdFrame = (length & fdLengthFlag) != 0;
    frame.byteCount = length & ~std::uint32_t{fdLengthFlag};
    if (isFdFrame) {
        if (reader.left() < 1) {
            return DatagramFault::Cut;
        }
        frame.mode = modeOf(isExtended(frame.mode), true, reader.number(1));
        isGood = isGood && frame.type == FrameType::Data;
    }
    isGood = isGood && frame.byteCount <= (isFdFrame ? maxFdBytes : maxClassicBytes);
    if (!isGood) {
        return DatagramFault::Frame;
    }
    if (frame.type != FrameType::Remote) {
        if (reader.left() < frame.byteCount) {
            return DatagramFault::Cut;
        }
        reader.copy(frame.byteCount, frame.data.data());
    }
    return DatagramFault::None;
}

} // namespace

DatagramFault CannelloniDecoder::decode(ByteView datagram, std::vector<BusFrame>& frames)
{
    Reader reader(datagram);
    if (reader.left() < headBytes) {
        return DatagramFault::Cut;
    }
    if (reader.number(1) != version || reader.number(1) != dataKind) {
        return DatagramFault::Version;
    }
    const auto number = static_cast<std::uint8_t>(reader.number(1));
    const std::uint32_t frameCount = reader.number(2);
    const std::size_t before = frames.size();
    DatagramFault fault = DatagramFault::None;
    for (std::uint32_t i = 0; i < frameCount && fault == DatagramFault::None; ++i) {
        fault = takeFrame(reader, frames.emplace_back());
    }
    if (fault == DatagramFault::None && reader.left() > 0) {
        fault = DatagramFault::TooLong;
    }
    if (fault != DatagramFault::None) {
        frames.resize(before);
        return fault;
    }
    count(number);
    return DatagramFault::None;
}

void CannelloniDecoder::count(std::uint8_t number)
{
    constexpr int window = 8; // datagrams by which one may be late
    const auto step = static_cast<std::uint8_t>(m_last ? number - *m_last : 1);
    if (step > 256 - window) {
        m_missing -=
            std::min<std::uint64_t>(m_missing, 1); // it was counted when others overtook it
        return;
    }
    if (step > 0) {
        m_missing += step - 1U;
    }
    m_last = number;
}

bool CannelloniEncoder::isComplete() const
{
    return m_size + longestFrame > m_bytes.size();
}

bool CannelloniEncoder::add(const BusFrame& frame)
{
    if (isComplete()) {
        return false;
    }
    const bool isRemote = frame.type == FrameType::Remote;
    const std::uint32_t word =
        frame.id | (isExtended(frame.mode) ? extendedFlag : 0U) | (isRemote ? remoteFlag : 0U);
    for (const std::uint32_t shift : {24U, 16U, 8U, 0U}) {
        put(static_cast<std::uint8_t>(word >> shift));
    }
    const bool isFdFrame = isFd(frame.mode);
    put(static_cast<std::uint8_t>(frame.byteCount | (isFdFrame ? fdLengthFlag : 0U)));
    if (isFdFrame) {
        put(hasBitRateSwitch(frame.mode) ? bitRateSwitchFlag : std::uint8_t{0});
    }
    if (!isRemote) {
        std::for_each_n(frame.data.begin(), frame.byteCount,
                        [this](std::uint8_t byte) { put(byte); });
    }
    ++m_count;
    return true;
}

ByteView CannelloniEncoder::finish()
{
    m_bytes[0] = version;
    m_bytes[1] = dataKind;
    m_bytes[2] = m_number;
    m_bytes[3] = static_cast<std::uint8_t>(m_count >> 8U);
    m_bytes[4] = static_cast<std::uint8_t>(m_count);
    return {m_bytes.data(), m_size};
}

void CannelloniEncoder::clear()
{
    ++m_number;
    m_size = headBytes;
    m_count = 0;
}

} // namespace cannetwork
