#include "modules/virtual/BusPort.h"

#include "modules/virtual/ScenarioFactory.h"

#include <algorithm>
#include <utility>

namespace canvirtual {

namespace {

/// Recessive bits that a passive controller waits after its own frame, on top of the intermission.
constexpr int suspendBits = 8;

/// Bits of the frame and of the intermission after it.
std::uint64_t windowBits(const WireFrame& wire)
{
    const int bits = wire.pending.bits.total() + intermissionBits;
    return static_cast<std::uint64_t>(bits);
}

} // namespace

BusPort::BusPort(const PortSettings& settings, BusTime openedAt)
    : m_settings(settings),
      m_controller(duration({1, 0}, settings.rates)),
      m_bitTime(duration({1, 0}, settings.rates)),
      m_windowStart(openedAt),
      m_nextReport(openedAt + reportInterval)
{
    addScenario(makeScenario(settings.scenario, openedAt));
    addScenario(makeNode(settings.node, settings.generatorMemory, openedAt));
}

void BusPort::addScenario(std::unique_ptr<Scenario> scenario)
{
    if (scenario != nullptr) {
        m_scenarios.push_back(std::move(scenario));
    }
}

bool BusPort::queue(const PendingFrame& frame)
{
    if (m_queue.size() >= transmitCapacity) {
        return false;
    }
    m_queue.push_back(frame);
    return true;
}

BusTime BusPort::ownReadyAt(BusTime frameReadyAt) const
{
    if (frameReadyAt == never) {
        return never;
    }
    const BusTime readyAt = std::max(frameReadyAt, m_suspendedUntil);
    return m_controller.isBusOff() ? std::max(readyAt, m_controller.recoversAt()) : readyAt;
}

BusTime BusPort::readyAt() const
{
    BusTime earliest = ownReadyAt(m_schedule.dueAt());
    if (!m_queue.empty()) {
        earliest = std::min(earliest, ownReadyAt(m_queue.front().readyAt));
    }
    for (const auto& scenario : m_scenarios) {
        earliest = std::min(earliest, scenario->readyAt());
    }
    return earliest;
}

const PendingFrame* BusPort::offer(BusTime start, FrameSource& source)
{
    const PendingFrame* best = nullptr;
    const auto compare = [&best, &source](const PendingFrame* frame, FrameSource from) {
        const bool wins = best == nullptr || frame->priority < best->priority;
        if (wins) {
            best = frame;
            source = from;
        }
        return wins;
    };
    if (!m_queue.empty() && ownReadyAt(m_queue.front().readyAt) <= start) {
        compare(&m_queue.front(), FrameSource::Queue);
    }
    const BusFrame* scheduled = m_schedule.head();
    if (scheduled != nullptr && ownReadyAt(m_schedule.dueAt()) <= start) {
        // Its length is worked out only now: storing a schedule holds up the program.
        m_scheduled = makePending(*scheduled, m_schedule.dueAt());
        compare(&m_scheduled, FrameSource::Schedule);
    }
    for (const auto& scenario : m_scenarios) {
        if (scenario->readyAt() <= start &&
            compare(&scenario->offer(start), FrameSource::Scenario)) {
            m_offering = scenario.get();
        }
    }
    return best;
}

void BusPort::taken(FrameSource source, BusTime end)
{
    switch (source) {
    case FrameSource::Queue:
        m_queue.pop_front();
        break;
    case FrameSource::Schedule:
        m_schedule.pop();
        break;
    case FrameSource::Scenario:
        m_offering->sent(end);
        return;
    }
    if (m_controller.isPassive()) {
        m_suspendedUntil = end + (intermissionBits + suspendBits) * m_bitTime;
    }
}

void BusPort::observe(const WireFrame& wire, bool ownFrame)
{
    if (m_lost) {
        return;
    }
    tellScenarios(wire, ownFrame);
    if (m_controller.isBusOff()) {
        return;
    }
    if (wire.pending.fate == FrameFate::Arrives) {
        countFrame(wire, ownFrame && wire.source != FrameSource::Scenario);
    } else {
        countError(wire, ownFrame);
    }
}

void BusPort::tellScenarios(const WireFrame& wire, bool ownFrame)
{
    if (wire.pending.fate != FrameFate::Arrives) {
        return;
    }
    const bool isOneOfThem = ownFrame && wire.source == FrameSource::Scenario;
    for (const auto& scenario : m_scenarios) {
        if (!isOneOfThem || scenario.get() != m_offering) {
            scenario->observe(wire.pending.frame, wire.end);
        }
    }
}

void BusPort::countFrame(const WireFrame& wire, bool ownFrame)
{
    const std::uint64_t bits = windowBits(wire);
    if (ownFrame) {
        m_controller.transmitted();
        ++m_counters.sent;
        ++m_window.sentFrames;
        m_window.sentBits += bits;
        if (!m_settings.receiveOwn) {
            return;
        }
    } else {
        m_controller.received();
        ++m_counters.received;
        ++m_window.receivedFrames;
        m_window.receivedBits += bits;
    }
    store(wire, wire.pending.frame.type);
}

void BusPort::countError(const WireFrame& wire, bool ownFrame)
{
    ++m_counters.errorFrames;
    m_window.receivedBits += windowBits(wire);
    if (ownFrame && wire.pending.fate == FrameFate::OwnDestroyed) {
        m_controller.transmitError(wire.end);
        m_counters.busOff += m_controller.isBusOff() ? 1U : 0U;
    } else {
        m_controller.receiveError();
    }
    store(wire, FrameType::Error);
}

void BusPort::store(const WireFrame& wire, FrameType type)
{
    if (m_received.size() >= receiveCapacity) {
        ++m_counters.lost;
        return;
    }
    if (type == FrameType::Error) {
        BusFrame& frame = m_received.emplace_back();
        frame.type = type;
        frame.time = wire.end;
        return;
    }
    m_received.push_back(wire.pending.frame);
    m_received.back().time = wire.end;
}

void BusPort::settle(BusTime time)
{
    m_controller.update(time);
    const bool isLost =
        std::any_of(m_scenarios.begin(), m_scenarios.end(),
                    [time](const auto& scenario) { return time >= scenario->lostAt(); });
    if (isLost) {
        lose();
    }
}

void BusPort::lose()
{
    m_lost = true;
    m_scenarios.clear();
    m_offering = nullptr;
    m_queue.clear();
    m_schedule.clear();
    m_received.clear();
}

void BusPort::skipTo(BusTime time)
{
    for (const auto& scenario : m_scenarios) {
        scenario->skipTo(time);
    }
}

DeviceStatus BusPort::status() const
{
    return m_lost ? DeviceStatus::Closed : m_controller.status();
}

bool BusPort::isReportDue(BusTime now)
{
    if (now < m_nextReport) {
        return false;
    }
    m_nextReport += reportInterval;
    if (m_nextReport <= now) {
        m_nextReport = now + reportInterval;
    }
    return true;
}

PortReport BusPort::report(BusTime now)
{
    PortReport report;
    report.counters = m_counters;
    report.window = m_window;
    report.elapsed = now - m_windowStart;
    report.status = status();
    report.transmitErrors = m_controller.transmitErrors();
    report.receiveErrors = m_controller.receiveErrors();
    report.queued = m_queue.size();
    report.scheduled = m_schedule.left();
    m_window = PortWindow();
    m_windowStart = now;
    return report;
}

void BusPort::clearCounters()
{
    m_counters = PortCounters();
    m_nextReport = m_windowStart;
}

} // namespace canvirtual
