#pragma once

#include "message/MessageCtrl.h"
#include "modules/support/SendSchedule.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>

namespace canmodule {

/// Sends the frames of a schedule when they are due, on a thread of its own, which runs from the
/// first schedule on.
///
/// A frame that cannot be sent yet, since a queue is full, is tried again until it goes out: it
/// delays those behind it and none is left out.
class ScheduleThread
{
public:
    /// Sends a frame; false to be asked again in a moment. Called on the thread.
    using Sink = std::function<bool(const BusFrame& frame)>;

    /// How well the last schedule was kept, in nanoseconds behind the due moments.
    struct Report
    {
        std::size_t left = 0; ///< frames that still have to be sent, whether started or not
        std::uint64_t sent = 0;
        BusTime meanLateness = 0;
        BusTime worstLateness = 0;
    };

    explicit ScheduleThread(Sink sink);
    /// As `stop`.
    ~ScheduleThread();
    ScheduleThread(const ScheduleThread&) = delete;
    ScheduleThread& operator=(const ScheduleThread&) = delete;

    /// Carries out one of the schedule controls. False for any other.
    bool control(zul::MessageCtrl::ECtrl id);
    /// Stores `frame`, to go out `delay` after the start. False if no schedule is open or the
    /// memory is full; `isOpen` tells which.
    bool add(const BusFrame& frame, BusTime delay);
    bool isOpen() const;
    /// Drops the schedule and ends the thread; no frame is sent afterwards.
    void stop();

    Report report() const;

private:
    using Clock = std::chrono::steady_clock;

    void startThread();
    void run();
    void sendHead(const BusFrame& frame, std::unique_lock<std::mutex>& lock);
    BusTime now() const;

    Sink m_sink;
    const Clock::time_point m_epoch = Clock::now();
    mutable std::mutex m_mutex; ///< guards everything below but the thread
    std::condition_variable m_changed;
    SendSchedule m_schedule;
    Report m_report;
    BusTime m_totalLateness = 0;
    std::uint64_t m_generation = 0; ///< counts schedules: a frame of a former one is not taken off
    bool m_stop = false;
    std::thread m_thread;
};

} // namespace canmodule
