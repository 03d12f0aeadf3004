#include "modules/virtual/GeneratorNode.h"

#include "modules/virtual/Payload.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace canvirtual {

namespace {

constexpr std::uint32_t requestId = 128;
constexpr std::uint32_t replyId = 129;
constexpr std::uint32_t headBytes = 4;
constexpr std::uint32_t wholeFrame = 8;

// Service codes.
constexpr std::uint8_t storeData = 6;
constexpr std::uint8_t setBaudrate = 10;
constexpr std::uint8_t setNodeId = 11;
constexpr std::uint8_t setBaseId = 110;
constexpr std::uint8_t search = 111;

constexpr std::uint8_t storeCode = 123;
constexpr std::uint8_t baudrates = 4;
constexpr std::uint8_t refused = 1;
constexpr std::uint8_t unsignedLongType = 4;

// Distances of the identifiers from the base.
constexpr std::uint32_t frequencyKind = 0;
constexpr std::uint32_t amplitudeKind = 1;
constexpr std::uint32_t offsetKind = 2;
constexpr std::uint32_t canIdKind = 3;
constexpr std::uint32_t configurationKind = 4;

constexpr std::uint8_t activeFlag = 0x01;

/// Whether its five identifiers are standard ones and none is that of requests or replies.
bool isBaseId(std::uint32_t id)
{
    const bool meetsServices = id <= replyId && id + configurationKind >= requestId;
    return id <= GeneratorNode::maxBaseId && !meetsServices;
}

float floatAt(const BusFrame& frame, std::size_t offset)
{
    const std::uint32_t pattern = bigEndian32(frame, offset);
    float number = 0.0F;
    std::memcpy(&number, &pattern, sizeof number);
    return number;
}

} // namespace

GeneratorState firstGeneratorState(std::uint8_t nodeId)
{
    GeneratorState state;
    state.nodeId = nodeId;
    for (std::size_t i = 0; i < state.channels.size(); ++i) {
        state.channels.at(i).canId = GeneratorState::firstCanId + static_cast<std::uint32_t>(i);
    }
    state.channels.front().isActive = true;
    return state;
}

GeneratorNode::GeneratorNode(const NodeSettings& settings, std::shared_ptr<GeneratorMemory> memory,
                             BusTime start)
    : m_settings(settings), m_memory(std::move(memory)), m_replies(settings.fault)
{
    if (m_memory->number != settings.id) {
        *m_memory = {firstGeneratorState(settings.id), settings.id};
    }
    m_state = m_memory->state;
    for (std::size_t i = 0; i < m_outputs.size(); ++i) {
        if (m_state.channels.at(i).isActive) {
            startOutput(i, start);
        }
    }
}

BusTime GeneratorNode::period(std::size_t channel) const
{
    return std::max<BusTime>(m_state.channels.at(channel).separation, 1) * millisecond;
}

void GeneratorNode::startOutput(std::size_t channel, BusTime time)
{
    Output& output = m_outputs.at(channel);
    output.dueAt = time + period(channel);
    output.phaseAt = time;
    output.phase = 0.0;
}

std::size_t GeneratorNode::nextChannel() const
{
    const auto earliest = std::min_element(
        m_outputs.begin(), m_outputs.end(),
        [](const Output& left, const Output& right) { return left.dueAt < right.dueAt; });
    return static_cast<std::size_t>(earliest - m_outputs.begin());
}

BusTime GeneratorNode::readyAt() const
{
    return std::min(m_replies.readyAt(), m_outputs.at(nextChannel()).dueAt);
}

const PendingFrame& GeneratorNode::offer(BusTime start)
{
    if (m_replies.readyAt() <= start) {
        m_offeredChannel = GeneratorState::channelCount;
        return m_replies.front();
    }
    m_offeredChannel = nextChannel();
    const GeneratorChannel& channel = m_state.channels.at(m_offeredChannel);
    Output& output = m_outputs.at(m_offeredChannel);
    const double elapsed = toSeconds(start - output.phaseAt);
    const double turns = output.phase + elapsed * static_cast<double>(channel.frequency);
    output.phase = std::isfinite(turns) ? turns - std::floor(turns) : 0.0;
    output.phaseAt = start;
    m_offered = makePending(
        generatorFrame(channel, m_state.nodeId, output.messageCode, output.phase), output.dueAt);
    return m_offered;
}

void GeneratorNode::sent(BusTime end)
{
    if (m_offeredChannel == GeneratorState::channelCount) {
        m_replies.pop();
        return;
    }
    Output& output = m_outputs.at(m_offeredChannel);
    ++output.messageCode;
    output.dueAt += period(m_offeredChannel);
    if (output.dueAt < end) {
        output.dueAt = end; // what a full bus has held up is not caught up
    }
}

void GeneratorNode::skipTo(BusTime time)
{
    for (Output& output : m_outputs) {
        output.dueAt = std::max(output.dueAt, time);
    }
}

void GeneratorNode::observe(const BusFrame& frame, BusTime end)
{
    if (frame.type != FrameType::Data || frame.mode != FrameMode::Standard ||
        frame.byteCount < headBytes || frame.data.at(0) != m_state.nodeId) {
        return;
    }
    if (frame.id == requestId) {
        takeRequest(frame, end);
    } else if (frame.id >= m_state.baseId && frame.id - m_state.baseId <= configurationKind) {
        takeSetting(frame, frame.id - m_state.baseId, end);
    }
}

void GeneratorNode::takeRequest(const BusFrame& frame, BusTime end)
{
    const std::uint8_t service = frame.data.at(2);
    if (service == search) {
        BusFrame answer = nodeFrame(replyId, wholeFrame, false);
        answer.data.at(0) = m_state.nodeId;
        answer.data.at(1) = unsignedLongType;
        answer.data.at(2) = service;
        putBigEndian32(answer, headBytes, m_state.baseId);
        m_replies.add(answer, end);
        return;
    }
    if (service != storeData && service != setBaudrate && service != setNodeId &&
        service != setBaseId) {
        return;
    }
    BusFrame answer = nodeFrame(replyId, headBytes, false);
    answer.data.at(0) = m_state.nodeId;
    answer.data.at(2) = service;
    const bool isDone = m_settings.fault != NodeFault::Refuses && carryOut(frame);
    answer.data.at(3) = isDone ? std::uint8_t{0} : refused;
    m_replies.add(answer, end);
}

bool GeneratorNode::carryOut(const BusFrame& request)
{
    switch (request.data.at(2)) {
    case setNodeId:
        if (request.data.at(3) == 0) {
            return false;
        }
        m_state.nodeId = request.data.at(3);
        return true;
    case setBaseId:
        if (request.byteCount < wholeFrame || !isBaseId(bigEndian32(request, headBytes))) {
            return false;
        }
        m_state.baseId = bigEndian32(request, headBytes);
        return true;
    case setBaudrate:
        if (request.byteCount <= headBytes || request.data.at(headBytes) >= baudrates) {
            return false;
        }
        m_state.baudrate = request.data.at(headBytes);
        return true;
    case storeData:
        if (request.data.at(3) != storeCode) {
            return false;
        }
        m_memory->state = m_state;
        return true;
    default:
        return false;
    }
}

void GeneratorNode::takeSetting(const BusFrame& frame, std::uint32_t kind, BusTime end)
{
    const std::size_t index = frame.data.at(2);
    if (index >= m_state.channels.size() || frame.byteCount < wholeFrame ||
        m_settings.fault == NodeFault::Refuses) {
        return;
    }
    GeneratorChannel& channel = m_state.channels.at(index);
    switch (kind) {
    case frequencyKind:
        channel.frequency = floatAt(frame, headBytes);
        break;
    case amplitudeKind:
        channel.amplitude = floatAt(frame, headBytes);
        break;
    case offsetKind:
        channel.offset = floatAt(frame, headBytes);
        break;
    case canIdKind:
        channel.canId = bigEndian32(frame, headBytes) & maxExtendedId;
        break;
    case configurationKind:
        configure(index, frame, end);
        break;
    default:
        break;
    }
}

void GeneratorNode::configure(std::size_t channel, const BusFrame& frame, BusTime end)
{
    GeneratorChannel& settings = m_state.channels.at(channel);
    const bool wasActive = settings.isActive;
    settings.separation = frame.data.at(4);
    if (isGeneratorType(frame.data.at(5))) {
        settings.dataType = frame.data.at(5);
    }
    settings.waveform = frame.data.at(6);
    settings.isActive = (frame.data.at(7) & activeFlag) != 0;
    if (!settings.isActive) {
        m_outputs.at(channel).dueAt = never;
    } else if (!wasActive) {
        startOutput(channel, end);
    }
}

} // namespace canvirtual
