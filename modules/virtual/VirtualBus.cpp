#include "modules/virtual/VirtualBus.h"

#include <algorithm>

namespace canvirtual {

namespace {

std::string rateText(const BusRates& rates)
{
    return std::to_string(rates.nominal) + " bit/s (data phase " + std::to_string(rates.data) +
           " bit/s)";
}

} // namespace

VirtualBus::VirtualBus(const BusClock& clock) : m_clock(clock), m_advancedTo(clock.now()) {}

std::unique_ptr<BusPort> VirtualBus::attach(const PortSettings& settings, std::string& error)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const BusTime now = advance();
    if (m_ports.empty()) {
        m_rates = settings.rates;
    } else if (m_rates.nominal != settings.rates.nominal || m_rates.data != settings.rates.data) {
        // Deliberate: on a real bus such a node destroys every frame; an error that names the
        // reason serves the user better.
        error = "The bus runs at " + rateText(m_rates) + ", this interface is set to " +
                rateText(settings.rates);
        return nullptr;
    }
    auto port = std::make_unique<BusPort>(settings, now);
    m_ports.push_back(port.get());
    return port;
}

void VirtualBus::detach(BusPort& port, std::vector<BusFrame>& frames)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    advance();
    port.collect(frames);
    m_ports.erase(std::remove(m_ports.begin(), m_ports.end(), &port), m_ports.end());
    if (m_sender == &port) {
        m_sender = nullptr;
    }
    if (m_ports.empty()) {
        m_wireInUse = false;
    }
}

VirtualBus::SendResult VirtualBus::send(BusPort& port, PendingFrame frame)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    frame.readyAt = advance();
    if (port.isLost()) {
        return SendResult::Lost;
    }
    return port.queue(frame) ? SendResult::Queued : SendResult::QueueFull;
}

VirtualBus::ScheduleResult VirtualBus::schedule(BusPort& port, const BusFrame& frame, BusTime delay)
{
    // The bus need not be brought up to the present: nothing happens on it.
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (port.isLost()) {
        return ScheduleResult::Lost;
    }
    if (!port.schedule().isOpen()) {
        return ScheduleResult::NotOpen;
    }
    return port.schedule().add(frame, delay) ? ScheduleResult::Stored : ScheduleResult::Full;
}

bool VirtualBus::control(BusPort& port, zul::MessageCtrl::ECtrl control)
{
    using ECtrl = zul::MessageCtrl::ECtrl;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const BusTime now = advance();
    switch (control) {
    case ECtrl::ClearStatus:
        port.clearCounters();
        return true;
    case ECtrl::ScheduleEnd:
        port.schedule().end();
        return true;
    case ECtrl::ScheduleBegin:
        port.schedule().begin();
        return true;
    case ECtrl::ScheduleStart:
        port.schedule().start(now);
        return true;
    }
    return false;
}

VirtualBus::Collected VirtualBus::collect(BusPort& port, std::vector<BusFrame>& frames)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const BusTime now = advance();
    Collected collected;
    collected.lost = port.isLost();
    if (collected.lost) {
        return collected;
    }
    port.collect(frames);
    collected.reportDue = port.isReportDue(now);
    if (collected.reportDue) {
        collected.report = port.report(now);
    }
    return collected;
}

DeviceStatus VirtualBus::status(BusPort& port)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    advance();
    return port.status();
}

BusTime VirtualBus::advance()
{
    const BusTime now = m_clock.now();
    skip(now);
    for (;;) {
        if (m_wireInUse) {
            if (m_wire.end > now) {
                break;
            }
            finish();
        }
        if (!startNext(now)) {
            break;
        }
    }
    for (BusPort* port : m_ports) {
        port->settle(now);
    }
    m_advancedTo = std::max(m_advancedTo, now);
    return now;
}

void VirtualBus::skip(BusTime now)
{
    const BusTime resumeAt = now - maxCatchUp;
    if (resumeAt <= m_advancedTo) {
        return;
    }
    const bool anyScenario = std::any_of(m_ports.begin(), m_ports.end(),
                                         [](const BusPort* port) { return port->hasScenario(); });
    if (!anyScenario) {
        return;
    }
    for (BusPort* port : m_ports) {
        port->skipTo(resumeAt);
        port->addSkipped(resumeAt - m_advancedTo);
    }
}

bool VirtualBus::startNext(BusTime now)
{
    BusTime earliest = never;
    for (const BusPort* port : m_ports) {
        earliest = std::min(earliest, port->readyAt());
    }
    const BusTime startAt = std::max(earliest, m_freeAt);
    if (startAt >= now) {
        return false;
    }
    const PendingFrame* best = nullptr;
    BusPort* winner = nullptr;
    FrameSource bestSource = FrameSource::Queue;
    for (BusPort* port : m_ports) {
        port->settle(startAt);
        FrameSource source = FrameSource::Queue;
        const PendingFrame* frame = port->offer(startAt, source);
        if (frame == nullptr) {
            continue;
        }
        // Two nodes with the same identifier take turns.
        if (best == nullptr || frame->priority < best->priority ||
            (frame->priority == best->priority && frame->readyAt < best->readyAt)) {
            best = frame;
            winner = port;
            bestSource = source;
        }
    }
    // None: the device that had the frame has just been lost.
    if (best != nullptr) {
        start(*winner, bestSource, *best, startAt);
    }
    return true;
}

void VirtualBus::start(BusPort& port, FrameSource source, const PendingFrame& frame,
                       BusTime startAt)
{
    if (frame.fate == FrameFate::OwnDestroyed && port.isBusOff()) {
        // A controller that is off the bus does not even try.
        port.taken(source, startAt);
        return;
    }
    m_wire.pending = frame;
    m_wire.source = source;
    m_wire.end = startAt + duration(frame.bits, m_rates);
    m_freeAt = m_wire.end + duration({intermissionBits, 0}, m_rates);
    m_wireBusy = m_freeAt - startAt;
    m_wireInUse = true;
    m_sender = &port;
    port.taken(source, m_wire.end);
}

void VirtualBus::finish()
{
    m_wireInUse = false;
    for (BusPort* port : m_ports) {
        port->addBusy(m_wireBusy);
        port->observe(m_wire, port == m_sender);
    }
}

} // namespace canvirtual
