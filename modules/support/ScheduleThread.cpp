#include "modules/support/ScheduleThread.h"

#include <algorithm>
#include <utility>

namespace canmodule {

namespace {

constexpr std::chrono::milliseconds retryPause(1);

} // namespace

ScheduleThread::ScheduleThread(Sink sink) : m_sink(std::move(sink)) {}

ScheduleThread::~ScheduleThread()
{
    stop();
}

BusTime ScheduleThread::now() const
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - m_epoch).count();
}

bool ScheduleThread::control(zul::MessageCtrl::ECtrl id)
{
    using ECtrl = zul::MessageCtrl::ECtrl;
    const std::lock_guard<std::mutex> lock(m_mutex);
    switch (id) {
    case ECtrl::ScheduleBegin:
        m_schedule.begin();
        break;
    case ECtrl::ScheduleEnd:
        m_schedule.end();
        break;
    case ECtrl::ScheduleStart:
        m_schedule.start(now());
        m_report = {};
        m_totalLateness = 0;
        startThread();
        break;
    default:
        return false;
    }
    ++m_generation;
    m_changed.notify_all();
    return true;
}

bool ScheduleThread::add(const BusFrame& frame, BusTime delay)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_schedule.add(frame, delay);
}

bool ScheduleThread::isOpen() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_schedule.isOpen();
}

ScheduleThread::Report ScheduleThread::report() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Report report = m_report;
    report.left = m_schedule.left();
    return report;
}

void ScheduleThread::startThread()
{
    if (!m_thread.joinable()) {
        m_stop = false;
        m_thread = std::thread([this] { run(); });
    }
}

void ScheduleThread::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
        m_schedule.clear();
        ++m_generation;
        m_changed.notify_all();
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void ScheduleThread::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stop) {
        const BusFrame* head = m_schedule.head();
        if (head == nullptr) {
            m_changed.wait(lock);
        } else if (m_schedule.dueAt() > now()) {
            m_changed.wait_until(lock, m_epoch + std::chrono::nanoseconds(m_schedule.dueAt()));
        } else {
            const BusFrame frame = *head;
            sendHead(frame, lock);
        }
    }
}

void ScheduleThread::sendHead(const BusFrame& frame, std::unique_lock<std::mutex>& lock)
{
    const BusTime lateness = now() - m_schedule.dueAt();
    const std::uint64_t generation = m_generation;
    // The sink may wait for a lock of a thread that waits for this one.
    lock.unlock();
    const bool isSent = m_sink(frame);
    lock.lock();
    if (generation != m_generation) {
        return;
    }
    if (!isSent) {
        m_changed.wait_for(lock, retryPause);
        return;
    }
    m_schedule.pop();
    ++m_report.sent;
    m_totalLateness += lateness;
    m_report.meanLateness = m_totalLateness / static_cast<BusTime>(m_report.sent);
    m_report.worstLateness = std::max(m_report.worstLateness, lateness);
}

} // namespace canmodule
