#include "node/UploadClient.h"

#include "core/Console.h"
#include "core/Latin1.h"
#include "message/MessageStatus.h"
#include "node/FrameBytes.h"
#include "node/ServiceLink.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr std::uint32_t uploadService = 2;
constexpr std::uint32_t messageBytes = 8; // of request and confirmation
constexpr std::uint32_t ackBytes = 3;
constexpr std::uint8_t confirmed = 1;

// Bytes of the request.
constexpr int destinationIdAt = 2;
constexpr int uploadSizeAt = 4;

// Bytes of the server's answer, and of the confirmation, which repeats them.
constexpr int codeAt = 2;
constexpr int messageSeparationAt = 3;
constexpr int blockSizeAt = 4;
constexpr int blockSeparationAt = 6;

// Of an answer's identifier the bits from the private bit down to the service identifier are free.
constexpr std::uint32_t freeBits = zul::arinc825::service::pvt.mask() |
                                   zul::arinc825::service::sfid.mask() |
                                   zul::arinc825::service::sid.mask();

/// Row of a device's status with the number of scheduled frames that it has still to send.
constexpr const char* framesLeftKey = "CPM";

constexpr int wholeProgress = 100;

} // namespace

UploadClient::UploadClient(ServiceLink& link) : m_link(link) {}

void UploadClient::setState(State state)
{
    if (state != m_state) {
        zul::print("NEW STATE %d\n", static_cast<int>(state));
    }
    m_state = state;
}

qint64 UploadClient::setFile(const QString& path)
{
    const qint64 size = QFileInfo(path).size();
    m_filePath = path;
    m_uploadSize = static_cast<std::uint32_t>(size) + uploadChecksumBytes;
    return size;
}

std::unique_ptr<zul::MessageCan> UploadClient::requestFrame() const
{
    std::unique_ptr<zul::MessageCan> frame = serviceFrame(m_requestId, messageBytes);
    putWord(*frame, 0, uploadService);
    return frame;
}

void UploadClient::sendFrame(std::unique_ptr<zul::MessageCan> frame)
{
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(frame.release()));
    m_link.sendToNode(batch);
}

void UploadClient::send()
{
    m_requestId = requestId(m_address);
    std::unique_ptr<zul::MessageCan> frame = requestFrame();
    putWord(*frame, destinationIdAt, m_destinationId);
    putLong(*frame, uploadSizeAt, m_uploadSize);
    sendFrame(std::move(frame));
    setState(State::Waiting);
    m_link.startTimer();
    m_expectedId = m_requestId & ~(requestBit | freeBits);
    m_pacing = UploadPacing();
    zul::print("DUS send Id 0x%x\n", m_requestId);
    zul::print("DUS requested Id 0x%x %d\n", m_expectedId, static_cast<int>(m_uploadSize));
}

bool UploadClient::receive(const MessageContainer& batch)
{
    bool any = false;
    for (const SmartPtr<Message>& message : batch.messages()) {
        if (takeStatus(message.get())) {
            any = true;
            continue;
        }
        const zul::MessageCan* frame = answerOf(message.get());
        if (frame != nullptr && isAnswer(*frame)) {
            any = true;
            takeAnswer(*frame);
        }
    }
    return any;
}

bool UploadClient::isAnswer(const zul::MessageCan& frame) const
{
    return (frame.id() & ~freeBits) == m_expectedId;
}

bool UploadClient::takeStatus(const Message* message)
{
    const auto* status = message_cast<zul::MessageStatus>(message);
    if (status == nullptr) {
        return false;
    }
    const auto row = std::find_if(
        status->entries.begin(), status->entries.end(),
        [](const zul::DeviceStatusEntry& entry) { return entry.label == framesLeftKey; });
    if (row == status->entries.end()) {
        return false;
    }
    m_framesLeft = zul::numberWithPrefix(zul::fromLatin1(row->value));
    return true;
}

void UploadClient::takeAnswer(const zul::MessageCan& frame)
{
    switch (m_state) {
    case State::Waiting:
        takeReply(frame);
        break;
    case State::WaitingForAck:
        if (frame.byteCount() == ackBytes) {
            setState(State::Uploading);
            m_link.stopTimer();
            upload();
        }
        break;
    case State::Uploading:
        if (frame.byteCount() == ackBytes) {
            setState(State::Finished);
            m_link.stopTimer();
        }
        break;
    case State::Idle:
    case State::Finished:
    case State::Timeout:
        break;
    }
}

void UploadClient::takeReply(const zul::MessageCan& frame)
{
    m_responseCode = frame.msg()[codeAt];
    m_pacing.messageSeparation = frame.msg()[messageSeparationAt];
    m_pacing.blockSize = wordAt(frame, blockSizeAt);
    m_pacing.blockSeparation = wordAt(frame, blockSeparationAt);
    setState(State::WaitingForAck);
    m_link.startTimer();
    confirm();
}

void UploadClient::confirm()
{
    std::unique_ptr<zul::MessageCan> frame = requestFrame();
    frame->msg()[codeAt] = confirmed;
    frame->msg()[messageSeparationAt] = static_cast<std::uint8_t>(m_pacing.messageSeparation);
    putWord(*frame, blockSizeAt, m_pacing.blockSize);
    putWord(*frame, blockSeparationAt, m_pacing.blockSeparation);
    sendFrame(std::move(frame));
}

void UploadClient::upload()
{
    m_frameCount = 0;
    QFile file(m_filePath);
    // A pipe would keep the program waiting.
    if (!QFileInfo(m_filePath).isFile() || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    const QByteArray bytes = file.read(maxFileBytes + 1);
    if (bytes.size() > maxFileBytes) {
        zul::print("DUS file too large: %s\n", qPrintable(m_filePath));
        return;
    }
    m_frameCount = uploadFrameCount(static_cast<std::uint64_t>(bytes.size()));
    m_framesLeft = m_frameCount; // until the device tells otherwise
    MessageContainer batch =
        uploadSchedule(bytes, m_requestId | zul::arinc825::service::pvt.mask(), m_pacing);
    m_link.sendToNode(batch);
}

void UploadClient::timeOut()
{
    setState(State::Timeout);
}

int UploadClient::progress() const
{
    if (m_state == State::Finished) {
        return wholeProgress;
    }
    if (m_state != State::Uploading || m_frameCount == 0) {
        return 0;
    }
    const std::uint32_t sent = m_frameCount - std::min(m_framesLeft, m_frameCount);
    return static_cast<int>(std::uint64_t{sent} * wholeProgress / m_frameCount);
}
