#include "modules/virtual/VirtualDevice.h"

#include "modules/virtual/DeviceDescription.h"

#include <utility>

namespace canvirtual {

VirtualDevice::VirtualDevice(BusRegistry& registry) : m_registry(registry)
{
    m_bitRate = m_settings.rates().nominal;
    m_info = deviceDescription();
    m_settings.writeTo(m_properties);
}

VirtualDevice::~VirtualDevice()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    detach();
}

bool VirtualDevice::open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_port != nullptr) {
        return fail("The device is open already");
    }
    dropBatch();
    m_handedOut = 0;
    m_bus = m_registry.bus(m_settings.busName());
    const PortSettings settings = {m_settings.rates(), m_settings.receiveOwn(),
                                   m_settings.scenario(), m_settings.node(), m_generatorMemory};
    std::string error;
    m_port = m_bus->attach(settings, error);
    if (m_port == nullptr) {
        m_bus.reset();
        return fail(error.c_str());
    }
    m_context = {m_settings.busName(), settings.rates, settings.scenario};
    m_bitRate = settings.rates.nominal;
    return true;
}

bool VirtualDevice::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    detach();
    m_bitRate = m_settings.rates().nominal;
    return true;
}

void VirtualDevice::detach()
{
    if (m_port == nullptr) {
        return;
    }
    std::vector<BusFrame> rest;
    m_bus->detach(*m_port, rest);
    if (m_port->isLost()) {
        dropBatch();
    }
    m_batch.insert(m_batch.end(), rest.begin(), rest.end());
    m_port.reset();
    m_bus.reset();
}

DeviceStatus VirtualDevice::status()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_port == nullptr) {
        return DeviceStatus::Closed;
    }
    const DeviceStatus status = m_bus->status(*m_port);
    if (status == DeviceStatus::Closed) {
        dropBatch();
    }
    return status;
}

std::int32_t VirtualDevice::baudrate()
{
    return m_bitRate;
}

void VirtualDevice::setProperty(std::string key, std::string value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_settings.set(key, value)) {
        Device::setProperty(std::move(key), std::move(value));
        return;
    }
    m_settings.writeTo(m_properties);
    if (m_port == nullptr) {
        m_bitRate = m_settings.rates().nominal;
    }
}

bool VirtualDevice::sendMessage(Message* message)
{
    if (const auto* frame = message_cast<zul::MessageCan>(message)) {
        return sendFrame(*frame);
    }
    const auto* control = message_cast<zul::MessageCtrl>(message);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (control == nullptr) {
        return fail("Neither a frame nor a control");
    }
    if (m_port == nullptr) {
        return fail("The device is closed");
    }
    return m_bus->control(*m_port, control->id()) || fail("Unknown control");
}

bool VirtualDevice::sendFrame(const zul::MessageCan& message)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_port == nullptr) {
        return fail("The device is closed");
    }
    const std::string problem = frameProblem(message);
    if (!problem.empty()) {
        return fail(("Frame not sent: " + problem).c_str());
    }
    if (message.cpmMode() != 0) {
        return storeFrame(message);
    }
    switch (m_bus->send(*m_port, makePending(frameFromMessage(message), 0))) {
    case VirtualBus::SendResult::Queued:
        return true;
    case VirtualBus::SendResult::QueueFull:
        return fail("Transmit queue full");
    case VirtualBus::SendResult::Lost:
        break;
    }
    return fail("The device has been lost");
}

bool VirtualDevice::storeFrame(const zul::MessageCan& message)
{
    const zul::MessageCan::TimeStamp stamp = message.timeStamp();
    const BusTime delay = stamp.seconds * second + stamp.nanoseconds;
    switch (m_bus->schedule(*m_port, frameFromMessage(message), delay)) {
    case VirtualBus::ScheduleResult::Stored:
        return true;
    case VirtualBus::ScheduleResult::NotOpen:
        return fail("Scheduled frame outside begin and end of a schedule");
    case VirtualBus::ScheduleResult::Full:
        return fail("Scheduled-send memory full");
    case VirtualBus::ScheduleResult::Lost:
        break;
    }
    return fail("The device has been lost");
}

Message* VirtualDevice::recvMessage()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_handedOut >= drainLimit) {
        m_handedOut = 0;
        return nullptr;
    }
    if (m_next < m_batch.size()) {
        ++m_handedOut;
        return messageFromFrame(m_batch[m_next++]).release();
    }
    return refill();
}

Message* VirtualDevice::refill()
{
    dropBatch();
    VirtualBus::Collected collected;
    if (m_port != nullptr) {
        collected = m_bus->collect(*m_port, m_batch);
    }
    if (collected.reportDue) {
        ++m_handedOut;
        return makeStatusMessage(collected.report, m_context).release();
    }
    if (m_batch.empty()) {
        m_handedOut = 0;
        return nullptr;
    }
    ++m_handedOut;
    return messageFromFrame(m_batch[m_next++]).release();
}

void VirtualDevice::dropBatch()
{
    m_batch.clear();
    m_next = 0;
}

bool VirtualDevice::fail(const char* error)
{
    m_errorMsg = error;
    return false;
}

} // namespace canvirtual
