#include "modules/network/NetworkDevice.h"

#include "message/MessageCan.h"
#include "message/MessageCtrl.h"
#include "modules/network/DeviceDescription.h"
#include "modules/network/StatusReport.h"
#include "modules/support/Clocks.h"

#include <utility>

namespace cannetwork {

namespace {

constexpr BusTime reportInterval = 200 * millisecond;

} // namespace

NetworkDevice::NetworkDevice()
{
    m_info = deviceDescription();
    m_bitRate = m_settings.bitRate;
    m_settings.writeTo(m_properties);
}

NetworkDevice::~NetworkDevice()
{
    NetworkDevice::close();
}

bool NetworkDevice::open()
{
    if (m_link != nullptr) {
        return fail("The device is open already");
    }
    m_queue.clear();
    std::string error;
    auto link = NetworkLink::open(m_settings, m_queue, error);
    if (link == nullptr) {
        return fail(error);
    }
    m_schedule = std::make_unique<ScheduleThread>(
        [raw = link.get()](const BusFrame& frame) { return raw->send(frame); });
    m_bitRate = m_settings.bitRate;
    const std::lock_guard<std::mutex> lock(m_linkMutex);
    m_link = std::move(link);
    m_reported = {};
    m_reportedAt = steadyNow();
    m_nextReport = m_reportedAt;
    return true;
}

bool NetworkDevice::close()
{
    if (m_schedule != nullptr) {
        m_schedule->stop(); // it sends through the link
    }
    std::unique_ptr<NetworkLink> link;
    {
        const std::lock_guard<std::mutex> lock(m_linkMutex);
        link = std::move(m_link);
        m_schedule.reset();
    }
    m_bitRate = m_settings.bitRate;
    return true;
}

DeviceStatus NetworkDevice::status()
{
    return m_link != nullptr ? DeviceStatus::Open : DeviceStatus::Closed;
}

std::int32_t NetworkDevice::baudrate()
{
    return m_bitRate;
}

void NetworkDevice::setProperty(std::string key, std::string value)
{
    if (!m_settings.set(key, value)) {
        Device::setProperty(std::move(key), std::move(value));
        return;
    }
    m_settings.writeTo(m_properties);
    if (m_link == nullptr) {
        m_bitRate = m_settings.bitRate;
    }
}

bool NetworkDevice::sendMessage(Message* message)
{
    if (m_link == nullptr) {
        return fail("The device is closed");
    }
    if (const auto* frame = message_cast<zul::MessageCan>(message)) {
        return sendFrame(*frame);
    }
    const auto* command = message_cast<zul::MessageCtrl>(message);
    return command != nullptr ? control(command->id()) : fail("Neither a frame nor a control");
}

bool NetworkDevice::sendFrame(const zul::MessageCan& message)
{
    const std::string problem = frameProblem(message);
    if (!problem.empty()) {
        return fail("Frame not sent: " + problem);
    }
    const BusFrame frame = frameFromMessage(message);
    if (message.cpmMode() == 0) {
        return m_link->send(frame) || fail("The network does not take the frame");
    }
    const zul::MessageCan::TimeStamp stamp = message.timeStamp();
    if (m_schedule->add(frame, stamp.seconds * second + stamp.nanoseconds)) {
        return true;
    }
    return fail(m_schedule->isOpen() ? "Scheduled-send memory full"
                                     : "Scheduled frame outside begin and end of a schedule");
}

bool NetworkDevice::control(zul::MessageCtrl::ECtrl id)
{
    if (id == zul::MessageCtrl::ECtrl::ClearStatus) {
        m_link->clearCounters();
        const std::lock_guard<std::mutex> lock(m_linkMutex);
        m_reported = {};
        m_nextReport = 0;
        return true;
    }
    return m_schedule->control(id) || fail("Unknown control");
}

Message* NetworkDevice::recvMessage()
{
    if (Message* report = reportIfDue()) {
        return report;
    }
    return m_queue.pop();
}

Message* NetworkDevice::reportIfDue()
{
    const BusTime now = steadyNow();
    const std::lock_guard<std::mutex> lock(m_linkMutex);
    if (m_link == nullptr || now < m_nextReport) {
        return nullptr;
    }
    Report report;
    report.counters = m_link->counters();
    report.before = std::exchange(m_reported, report.counters);
    report.elapsed = now - std::exchange(m_reportedAt, now);
    report.protocol = m_link->protocol();
    report.peer = m_link->peerText();
    report.waiting = m_queue.fill();
    report.capacity = m_queue.capacity();
    report.schedule = m_schedule->report();
    m_nextReport = now + reportInterval;
    return makeStatusMessage(report).release();
}

bool NetworkDevice::fail(const std::string& error)
{
    m_errorMsg = error;
    return false;
}

} // namespace cannetwork
