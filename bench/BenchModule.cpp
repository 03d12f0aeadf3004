#include "message/MessageInterface.h"

#include <atomic>
#include <cstdlib>

namespace {

constexpr std::uint32_t nanosecondsApart = 50'000; // frames on a bus at its limit
constexpr std::uint32_t nanosecondsPerSecond = 1'000'000'000;
constexpr std::uint32_t identifiers = 2048;
constexpr std::uint32_t byteCount = 8;

/// What one draining gets, and what is left of it.
struct Order
{
    int frames = 0;
    int left = 0;
};

// For the thread that ordered: an interface's reader finds none, so that every frame takes its road
// where the benchmark wants it.
thread_local Order order;

/// Gives the thread that set the property "Give" that many frames, and as many at each draining
/// that follows.
class BenchDevice : public Device
{
public:
    BenchDevice() { m_info.moduleName = "libCanBench"; }

    bool open() override
    {
        m_open = true;
        return true;
    }

    bool close() override
    {
        m_open = false;
        return true;
    }

    DeviceStatus status() override { return m_open ? DeviceStatus::Open : DeviceStatus::Closed; }

    std::int32_t baudrate() override { return 1'000'000; }

    bool sendMessage(Message*) override { return false; }

    Message* recvMessage() override
    {
        Order& mine = order;
        if (mine.left == 0) {
            mine.left = mine.frames;
            return nullptr;
        }
        --mine.left;
        m_time.nanoseconds += nanosecondsApart;
        if (m_time.nanoseconds >= nanosecondsPerSecond) {
            m_time.nanoseconds -= nanosecondsPerSecond;
            ++m_time.seconds;
        }
        m_id = (m_id + 1) % identifiers;
        auto* frame = new zul::MessageCan;
        frame->setId(m_id);
        frame->setByteCount(byteCount);
        frame->setTimeStamp(m_time);
        return frame;
    }

    void setProperty(std::string key, std::string value) override
    {
        if (key == "Give") {
            order.frames = order.left = std::atoi(value.c_str());
        }
    }

private:
    std::atomic<bool> m_open{false};
    zul::MessageCan::TimeStamp m_time{1'000, 0};
    std::uint32_t m_id = 0;
};

} // namespace

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    DeviceInfo info;
    info.displayName = "Frames for benchmarks";
    info.moduleName = "libCanBench";
    return info;
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return new BenchDevice;
}
