#include "modules/virtual/ServerNode.h"

#include "modules/virtual/Payload.h"

#include <algorithm>

namespace canvirtual {

namespace {

// Bits of an identifier on the service channels.
constexpr std::uint32_t channelShift = 26;
constexpr std::uint32_t channelMask = 7;
constexpr std::uint32_t firstChannel = 4; // NSC
constexpr std::uint32_t lastChannel = 6;  // TMC
constexpr std::uint32_t requestBit = 1U << 18U;
constexpr std::uint32_t privateBit = 1U << 16U;

constexpr std::uint32_t identificationService = 0;
constexpr std::uint32_t uploadService = 2;

constexpr std::uint32_t requestBytes = 2;
constexpr std::uint32_t uploadMessageBytes = 8;
constexpr std::uint32_t ackBytes = 3;
constexpr std::uint32_t errorBytes = 4; // as many as no client takes for an ACK

constexpr std::uint8_t refusalCode = 1;
constexpr std::uint8_t confirmed = 1;

/// On other channels the request's bit means something else.
bool isFromClient(const BusFrame& frame)
{
    const std::uint32_t channel = frame.id >> channelShift & channelMask;
    return frame.type == FrameType::Data && frame.mode == FrameMode::Extended &&
           channel >= firstChannel && channel <= lastChannel && (frame.id & requestBit) != 0;
}

std::uint32_t bigEndian16(const BusFrame& frame, std::size_t offset)
{
    return static_cast<std::uint32_t>(frame.data.at(offset)) << 8U | frame.data.at(offset + 1);
}

BusFrame answerTo(std::uint32_t requestId, std::uint32_t byteCount)
{
    return nodeFrame(requestId & ~requestBit, byteCount, true);
}

} // namespace

ServerNode::ServerNode(const NodeSettings& settings)
    : m_settings(settings),
      m_pacing(nodePacings.at(static_cast<std::size_t>(settings.pacing))),
      m_replies(settings.fault)
{
}

BusTime ServerNode::readyAt() const
{
    return std::min(m_replies.readyAt(), m_givingUp.readyAt);
}

const PendingFrame& ServerNode::offer(BusTime start)
{
    m_offersGivingUp = m_replies.readyAt() > start;
    return m_offersGivingUp ? m_givingUp : m_replies.front();
}

void ServerNode::sent(BusTime)
{
    if (m_offersGivingUp) {
        endTransfer();
    } else {
        m_replies.pop();
    }
}

void ServerNode::endTransfer()
{
    m_transfer.reset();
    m_givingUp.readyAt = never;
}

void ServerNode::skipTo(BusTime) {} // whoever asked still waits

void ServerNode::observe(const BusFrame& frame, BusTime end)
{
    if (!isFromClient(frame)) {
        return;
    }
    if ((frame.id & privateBit) != 0) {
        if (m_transfer && frame.id == (m_transfer->requestId | privateBit)) {
            takeData(frame, end);
        }
    } else if (frame.byteCount == requestBytes && bigEndian16(frame, 0) == identificationService) {
        identify(frame, end);
    } else if (frame.byteCount == uploadMessageBytes && bigEndian16(frame, 0) == uploadService) {
        takeUploadMessage(frame, end);
    }
}

void ServerNode::identify(const BusFrame& request, BusTime end)
{
    BusFrame answer = answerTo(request.id, uploadMessageBytes);
    putBigEndian(answer, 2, profileId, 2);
    putBigEndian(answer, 4, profileSubId, 2);
    putBigEndian(answer, 6, m_settings.id, 2);
    m_replies.add(answer, end);
}

bool ServerNode::isConfirmation(const BusFrame& frame) const
{
    return m_transfer && frame.id == m_transfer->requestId && frame.data.at(2) == confirmed &&
           frame.data.at(3) == m_pacing.messageSeparation &&
           bigEndian16(frame, 4) == m_pacing.blockSize &&
           bigEndian16(frame, 6) == m_pacing.blockSeparation;
}

void ServerNode::takeUploadMessage(const BusFrame& frame, BusTime end)
{
    if (!isConfirmation(frame)) {
        startTransfer(frame, end);
        return;
    }
    if (m_transfer->isConfirmed) {
        return; // a program with two interfaces on the bus may send it twice
    }
    m_transfer->isConfirmed = true;
    if (m_settings.fault == NodeFault::NoAck) {
        return;
    }
    BusFrame ack = answerTo(frame.id, ackBytes);
    putBigEndian(ack, 0, uploadService, 2);
    m_replies.add(ack, end);
}

void ServerNode::startTransfer(const BusFrame& request, BusTime end)
{
    const bool isRefused = m_settings.fault == NodeFault::Refuses;
    BusFrame answer = answerTo(request.id, uploadMessageBytes);
    putBigEndian(answer, 0, uploadService, 2);
    answer.data.at(2) = isRefused ? refusalCode : std::uint8_t{0};
    answer.data.at(3) = m_pacing.messageSeparation;
    putBigEndian(answer, 4, m_pacing.blockSize, 2);
    putBigEndian(answer, 6, m_pacing.blockSeparation, 2);
    m_replies.add(answer, end);
    endTransfer();
    if (!isRefused) {
        m_transfer.emplace(
            Transfer{request.id, UploadSession(bigEndian32(request, 4), m_pacing), false});
    }
}

void ServerNode::takeData(const BusFrame& frame, BusTime end)
{
    if (!m_transfer->isConfirmed) {
        return;
    }
    UploadSession& session = m_transfer->session;
    session.take(frame, end);
    const bool fallsSilent =
        m_settings.fault == NodeFault::NoEnd && session.framesTaken() >= session.frameCount() / 2;
    if (fallsSilent) {
        endTransfer();
    } else if (session.isComplete()) {
        finish(end);
    } else {
        m_givingUp = m_replies.prepared(endOf(*m_transfer, UploadSession::Error::Number),
                                        session.deadline());
    }
}

BusFrame ServerNode::endOf(const Transfer& transfer, UploadSession::Error error)
{
    const bool isRight = error == UploadSession::Error::None;
    BusFrame answer = answerTo(transfer.requestId, isRight ? ackBytes : errorBytes);
    putBigEndian(answer, 0, uploadService, 2);
    answer.data.at(2) = static_cast<std::uint8_t>(error);
    return answer;
}

void ServerNode::finish(BusTime end)
{
    m_replies.add(endOf(*m_transfer, m_transfer->session.error()), end);
    endTransfer();
}

} // namespace canvirtual
