#include "message/MessageInterface.h"

#include <atomic>
#include <cstdlib>

namespace {

constexpr std::uint32_t nanosecondsApart = 50'000; // frames on a bus at its limit
constexpr std::uint32_t nanosecondsPerSecond = 1'000'000'000;
constexpr std::uint32_t identifiers = 2048;
constexpr std::uint32_t byteCount = 8;

// For the thread that ordered them: an interface's reader finds none, so that every frame takes
// its road where the benchmark wants it.
thread_local int framesLeft = 0;

/// Gives as many frames as the property "Give" orders, to the thread that ordered them.
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
        if (framesLeft == 0) {
            return nullptr;
        }
        --framesLeft;
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
            framesLeft = std::atoi(value.c_str());
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
