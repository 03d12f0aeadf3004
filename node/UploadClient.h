#pragma once

#include "node/ServiceAddress.h"
#include "node/StateLook.h"
#include "node/UploadSchedule.h"

#include <QString>

#include <array>
#include <cstdint>

class MessageContainer;
class ServiceLink;

/// The client of the Data Upload Service, which brings a file to a server: request, confirmation of
/// the server's pacing, then the whole file as one schedule that the device sends by itself.
///
/// Nothing is sent twice, and there is no wait limit while the file goes out.
class UploadClient
{
public:
    enum class State : std::int32_t {
        Idle = 0,
        Waiting = 1,
        WaitingForAck = 2,
        Uploading = 3,
        Finished = 4,
        Timeout = 10
    };

    static constexpr std::array<StateLook, 6> looks{{
        {static_cast<std::int32_t>(State::Idle), "Idle", 150, 150, 150},
        {static_cast<std::int32_t>(State::Waiting), "Waiting on response ...", 255, 255, 100},
        {static_cast<std::int32_t>(State::WaitingForAck), "Waiting on ACK ...", 255, 255, 100},
        {static_cast<std::int32_t>(State::Uploading), "Uploading", 100, 255, 100},
        {static_cast<std::int32_t>(State::Finished), "Finished ...", 100, 255, 100},
        {static_cast<std::int32_t>(State::Timeout), "Timeout", 255, 100, 100},
    }};

    static constexpr const char* fileDialogTitle = "Open Upload File";
    static constexpr const char* fileDialogFilter = "All Files (*.*)";
    static constexpr int maxDestinationId = 65535;
    /// A larger file is not sent: its frames take about 25 times its size in memory.
    static constexpr qint64 maxFileBytes = 32LL * 1024 * 1024;

    /// `link` outlives the client.
    explicit UploadClient(ServiceLink& link);

    ServiceAddress& address() { return m_address; }
    const ServiceAddress& address() const { return m_address; }

    /// Chooses the file that goes out once the server is ready for it, and takes its size for the
    /// request. Returns the size in bytes, 0 for a file that is not there.
    qint64 setFile(const QString& path);
    const QString& filePath() const { return m_filePath; }

    /// The low 16 bits of `id` go into the request.
    void setDestinationId(std::uint32_t id) { m_destinationId = id; }

    /// Sends the request, in any state, and waits. Without a file the size in it is 0.
    void send();
    /// Takes answers and status messages out of a batch. False if there was nothing of the kind.
    bool receive(const MessageContainer& batch);
    /// The clock has run out.
    void timeOut();

    State state() const { return m_state; }
    const StateLook& look() const { return lookOf(looks, static_cast<std::int32_t>(m_state)); }
    /// Of the server's answer; nothing else looks at it.
    std::uint32_t responseCode() const { return m_responseCode; }
    /// The server's, or what holds before it answers.
    const UploadPacing& pacing() const { return m_pacing; }
    /// 0 to 100.
    int progress() const;

private:
    void setState(State state);
    bool isAnswer(const zul::MessageCan& frame) const;
    void takeAnswer(const zul::MessageCan& frame);
    void takeReply(const zul::MessageCan& frame);
    void confirm();
    void upload();
    bool takeStatus(const Message* message);
    std::unique_ptr<zul::MessageCan> requestFrame() const;
    void sendFrame(std::unique_ptr<zul::MessageCan> frame);

    ServiceLink& m_link;
    ServiceAddress m_address;
    State m_state = State::Idle;
    std::uint32_t m_requestId = 0;
    std::uint32_t m_expectedId = 0;
    QString m_filePath;
    std::uint32_t m_uploadSize = 0;
    std::uint32_t m_destinationId = 0;
    std::uint32_t m_responseCode = 0;
    UploadPacing m_pacing;
    std::uint32_t m_frameCount = 0;
    std::uint32_t m_framesLeft = 0;
};
