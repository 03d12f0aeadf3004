#pragma once

#include "message/MessageInterface.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>

namespace fixture {

/// A device without hardware that tests script through its properties.
///
/// Some keys are orders, carried out at once and not stored:
///
/// | Key            | Value                                  | What happens |
/// |----------------|----------------------------------------|-------------------------------------|
/// | "InjectFrame"  | "id mode frameType seconds [hex byte]..." | `recvMessage` will give that
/// frame | | "InjectFrames" | count                                  | so many 11-bit frames, id 0,
/// 1, ... | | "InjectOther"  | any                                    | a plain `Message` of type
/// 77        | | "InjectStatus" | "bits0 bits1 messages0 messages1 [rows]" | a `zul::MessageStatus`
/// | | "PublishCounts" | any                                   | the counts below become properties
/// |
///
/// Others are stored and obeyed: "FailOpen" and "FailClose" ("1": the operation fails with an error
/// text), "FailSend", "Lost" ("1": the hardware is gone, the status is 0), "BusStatus" (the status
/// while open, default 1), "Loopback" ("1": a frame that is sent comes back), "Baudrate" (default
/// 1000000), "HoldReceive" ("1": `recvMessage` does not return until the value is another).
///
/// Counts: "OpenCount", "CloseCount", "SendCount", "RecvCount", "ApplyCount" (of `setProperty`),
/// "LiveCount" (devices of this module that exist), "DestroyedOpen" (those that were destroyed and
/// not closed before), "HeldCount" (calls that "HoldReceive" holds); "SentLog" ("id/mode/byteCount
/// " of each frame sent, and "ctrl:n " of each control).
class FixtureDevice : public Device
{
public:
    explicit FixtureDevice(const DeviceInfo& info);
    ~FixtureDevice() override;

    bool open() override;
    bool close() override;
    DeviceStatus status() override;
    std::int32_t baudrate() override;
    bool sendMessage(Message* message) override;
    Message* recvMessage() override;
    void setProperty(std::string key, std::string value) override;

private:
    bool order(const std::string& key, const std::string& value);
    void publishCounts();
    void queue(std::unique_ptr<Message> message);
    void logSent(const Message& message);
    bool isSwitchedOn(const std::string& key);
    int number(const std::string& key, int def);

    std::mutex m_mutex; // over all below, and over the property map
    std::condition_variable m_released;
    int m_heldCount = 0;
    std::deque<std::unique_ptr<Message>> m_waiting;
    std::string m_sentLog;
    bool m_open = false;
    int m_openCount = 0;
    int m_closeCount = 0;
    int m_sendCount = 0;
    int m_recvCount = 0;
    int m_applyCount = 0;
};

/// The description record of a fixture module, with one property of every kind.
DeviceInfo describe(const std::string& displayName, const std::string& moduleName);

} // namespace fixture
