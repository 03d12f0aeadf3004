#include <deque>
#include <memory>
#include <message/MessageInterface.h>
#include <mutex>

namespace {

class Loopback : public Device
{
public:
    explicit Loopback(const DeviceInfo& info) { m_info = info; }

    bool open() override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open = true;
        return true;
    }

    bool close() override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open = false;
        return true;
    }

    DeviceStatus status() override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_open ? DeviceStatus::Open : DeviceStatus::Closed;
    }

    std::int32_t baudrate() override { return 1000000; }

    bool sendMessage(Message* message) override
    {
        const auto* frame = message_cast<zul::MessageCan>(message);
        if (frame == nullptr) {
            return true; // a control; there is nothing to control
        }
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_open) {
            return false;
        }
        m_waiting.push_back(std::make_unique<zul::MessageCan>(*frame));
        return true;
    }

    Message* recvMessage() override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_waiting.empty()) {
            return nullptr;
        }
        Message* message = m_waiting.front().release();
        m_waiting.pop_front();
        return message;
    }

private:
    std::mutex m_mutex;
    std::deque<std::unique_ptr<zul::MessageCan>> m_waiting;
    bool m_open = false;
};

} // namespace

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    DeviceInfo info;
    info.displayName = "Loopback";
    info.description = "Every frame sent is received";
    info.moduleName = "libCanLoopback";
    info.properties = {{"Interface Name", "InterfaceName", "", PropertyKind::Text, {}, ""}};
    return info;
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return new Loopback(getInfo());
}
