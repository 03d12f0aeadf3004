#include "tests/modules/FixtureDevice.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <sstream>
#include <utility>

namespace fixture {

namespace {

std::atomic<int> liveDevices{0};
std::atomic<int> devicesDestroyedOpen{0};

std::unique_ptr<Message> frameFrom(const std::string& text)
{
    std::istringstream words(text);
    std::uint32_t id = 0;
    std::uint32_t mode = 0;
    std::uint32_t frameType = 0;
    double seconds = 0.0;
    words >> id >> mode >> frameType >> seconds >> std::hex;
    auto frame = std::make_unique<zul::MessageCan>();
    frame->setId(id);
    frame->setMode(static_cast<zul::MessageCan::EMsgMode>(mode));
    frame->setFrameType(static_cast<zul::MessageCan::EFrameType>(frameType));
    frame->setTimeStamp(seconds);
    std::uint32_t byteCount = 0;
    for (unsigned byte = 0; words >> byte; ++byteCount) {
        frame->msg()[static_cast<std::int32_t>(byteCount)] = static_cast<std::uint8_t>(byte);
    }
    frame->setByteCount(byteCount);
    return frame;
}

std::unique_ptr<Message> statusFrom(const std::string& text)
{
    std::istringstream words(text);
    auto status = std::make_unique<zul::MessageStatus>();
    int rows = 0;
    words >> status->bitCount0 >> status->bitCount1 >> status->messageCount0 >>
        status->messageCount1 >> rows;
    for (int row = 0; row < rows; ++row) {
        status->entries.push_back(
            {"Row " + std::to_string(row), std::to_string(row * 10), "#dcffdc"});
    }
    return status;
}

} // namespace

FixtureDevice::FixtureDevice(const DeviceInfo& info)
{
    m_info = info;
    ++liveDevices;
}

FixtureDevice::~FixtureDevice()
{
    --liveDevices;
    if (m_open) {
        ++devicesDestroyedOpen;
    }
}

bool FixtureDevice::open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_openCount;
    if (isSwitchedOn("FailOpen")) {
        m_errorMsg = "fixture: no adapter";
        return false;
    }
    m_open = true;
    return true;
}

bool FixtureDevice::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_closeCount;
    m_open = false;
    if (isSwitchedOn("FailClose")) {
        m_errorMsg = "fixture: close failed";
        return false;
    }
    return true;
}

DeviceStatus FixtureDevice::status()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open || isSwitchedOn("Lost")) {
        return DeviceStatus::Closed;
    }
    return static_cast<DeviceStatus>(number("BusStatus", static_cast<int>(DeviceStatus::Open)));
}

std::int32_t FixtureDevice::baudrate()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return number("Baudrate", 1000000);
}

bool FixtureDevice::sendMessage(Message* message)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_sendCount;
    logSent(*message);
    if (!m_open || isSwitchedOn("FailSend")) {
        return false;
    }
    const auto* frame = message_cast<zul::MessageCan>(message);
    if (frame != nullptr && isSwitchedOn("Loopback")) {
        queue(std::make_unique<zul::MessageCan>(*frame));
    }
    return true;
}

Message* FixtureDevice::recvMessage()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    ++m_recvCount;
    ++m_heldCount;
    m_released.wait(lock, [this] { return !isSwitchedOn("HoldReceive"); });
    --m_heldCount;
    if (m_waiting.empty()) {
        return nullptr;
    }
    Message* message = m_waiting.front().release();
    m_waiting.pop_front();
    return message;
}

void FixtureDevice::setProperty(std::string key, std::string value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!order(key, value)) {
        ++m_applyCount;
        Device::setProperty(std::move(key), std::move(value));
        m_released.notify_all();
    }
}

bool FixtureDevice::order(const std::string& key, const std::string& value)
{
    if (key == "InjectFrame") {
        queue(frameFrom(value));
    } else if (key == "InjectFrames") {
        const int count = std::atoi(value.c_str());
        for (int id = 0; id < count; ++id) {
            queue(frameFrom(std::to_string(id) + " 0 0 0 01 02"));
        }
    } else if (key == "InjectOther") {
        constexpr int typeOfNobody = 77;
        queue(std::make_unique<Message>(typeOfNobody));
    } else if (key == "InjectStatus") {
        queue(statusFrom(value));
    } else if (key == "PublishCounts") {
        publishCounts();
    } else {
        return false;
    }
    return true;
}

void FixtureDevice::publishCounts()
{
    m_properties["OpenCount"] = std::to_string(m_openCount);
    m_properties["CloseCount"] = std::to_string(m_closeCount);
    m_properties["SendCount"] = std::to_string(m_sendCount);
    m_properties["RecvCount"] = std::to_string(m_recvCount);
    m_properties["ApplyCount"] = std::to_string(m_applyCount);
    m_properties["LiveCount"] = std::to_string(liveDevices);
    m_properties["HeldCount"] = std::to_string(m_heldCount);
    m_properties["DestroyedOpen"] = std::to_string(devicesDestroyedOpen);
    m_properties["SentLog"] = m_sentLog;
}

void FixtureDevice::queue(std::unique_ptr<Message> message)
{
    m_waiting.push_back(std::move(message));
}

void FixtureDevice::logSent(const Message& message)
{
    if (const auto* frame = message_cast<zul::MessageCan>(&message)) {
        m_sentLog += std::to_string(frame->id()) + "/" +
                     std::to_string(static_cast<unsigned>(frame->mode())) + "/" +
                     std::to_string(frame->byteCount()) + " ";
    } else if (const auto* control = message_cast<zul::MessageCtrl>(&message)) {
        m_sentLog += "ctrl:" + std::to_string(static_cast<unsigned>(control->id())) + " ";
    }
}

bool FixtureDevice::isSwitchedOn(const std::string& key)
{
    return getStringProp(key) == "1";
}

int FixtureDevice::number(const std::string& key, int def)
{
    const std::string text = getStringProp(key);
    return text.empty() ? def : std::atoi(text.c_str());
}

DeviceInfo describe(const std::string& displayName, const std::string& moduleName)
{
    DeviceInfo info;
    info.displayName = displayName;
    info.description = "Made for tests";
    info.moduleName = moduleName;
    info.properties = {
        {"Interface Name", "InterfaceName", "", PropertyKind::Text, {}, ""},
        {"Bit timing",
         "Btr",
         "",
         PropertyKind::Btr,
         {{"1 Mbit/s", 0x14}, {"500 kbit/s", 0x1C}},
         ""},
        {"Nominal", "Nbtp", "", PropertyKind::Nbtp, {{"1 Mbit/s", 0x06000A03}}, ""},
        {"Data", "Dbtp", "", PropertyKind::Dbtp, {{"4 Mbit/s", 0x00000A33}}, ""},
        {"Delay", "Tdcr", "", PropertyKind::Tdcr, {{"Off", 0}, {"On", 0x1000}}, ""},
        {"Channel", "Channel", "", PropertyKind::Selection, {{"A", 1}, {"B", 2}}, ""},
        {"Address", "Address", "", PropertyKind::EditableSelection, {{"10.0.0.1", 0}}, ""},
    };
    return info;
}

} // namespace fixture
