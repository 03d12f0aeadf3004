#include "modules/support/ScheduleThread.h"

#include <condition_variable>
#include <gtest/gtest.h>
#include <vector>

using namespace canmodule;
using ECtrl = zul::MessageCtrl::ECtrl;

namespace {

/// Takes frames, and waits for them.
class Receiver
{
public:
    bool take(const BusFrame& frame)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_refusals > 0) {
            --m_refusals;
            return false;
        }
        m_ids.push_back(frame.id);
        m_changed.notify_all();
        return true;
    }

    void refuse(int times) { m_refusals = times; }

    std::vector<std::uint32_t> waitFor(std::size_t count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, std::chrono::seconds(20), [&] { return m_ids.size() >= count; });
        return m_ids;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::uint32_t> m_ids;
    int m_refusals = 0;
};

BusFrame frameOf(std::uint32_t id)
{
    BusFrame frame;
    frame.id = id;
    return frame;
}

class ScheduleThreadTest : public testing::Test
{
protected:
    void fill(const std::vector<std::pair<std::uint32_t, BusTime>>& frames)
    {
        EXPECT_TRUE(m_thread.control(ECtrl::ScheduleBegin));
        for (const auto& [id, delay] : frames) {
            EXPECT_TRUE(m_thread.add(frameOf(id), delay));
        }
        EXPECT_TRUE(m_thread.control(ECtrl::ScheduleEnd));
    }

    // The report follows the frame that it counts.
    ScheduleThread::Report reportOf(std::uint64_t sent)
    {
        ScheduleThread::Report report = m_thread.report();
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (report.sent < sent && std::chrono::steady_clock::now() < end) {
            std::this_thread::yield();
            report = m_thread.report();
        }
        return report;
    }

    Receiver m_receiver;
    ScheduleThread m_thread{[this](const BusFrame& frame) { return m_receiver.take(frame); }};
};

TEST_F(ScheduleThreadTest, FramesGoOutInTheOrderOfTheirDelays)
{
    fill({{1, 2 * millisecond}, {2, 0}, {3, millisecond}});
    EXPECT_EQ(m_thread.report().left, 3U) << "not started";
    EXPECT_TRUE(m_thread.control(ECtrl::ScheduleStart));
    EXPECT_EQ(m_receiver.waitFor(3), (std::vector<std::uint32_t>{2, 3, 1}));
    const auto report = reportOf(3);
    EXPECT_EQ(report.left, 0U);
    EXPECT_EQ(report.sent, 3U);
    EXPECT_GE(report.meanLateness, 0);
    EXPECT_GE(report.worstLateness, report.meanLateness);
}

TEST_F(ScheduleThreadTest, NothingGoesOutBeforeItsTime)
{
    constexpr BusTime delay = 20 * millisecond;
    fill({{1, delay}});
    const auto begin = std::chrono::steady_clock::now();
    m_thread.control(ECtrl::ScheduleStart);
    m_receiver.waitFor(1);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::nanoseconds(delay));
}

TEST_F(ScheduleThreadTest, AFrameThatCannotBeSentIsTriedAgain)
{
    m_receiver.refuse(3);
    fill({{1, 0}, {2, 0}});
    m_thread.control(ECtrl::ScheduleStart);
    EXPECT_EQ(m_receiver.waitFor(2), (std::vector<std::uint32_t>{1, 2}));
}

TEST_F(ScheduleThreadTest, AnotherStartPlaysAgain)
{
    fill({{1, 0}});
    m_thread.control(ECtrl::ScheduleStart);
    m_receiver.waitFor(1);
    reportOf(1);
    m_thread.control(ECtrl::ScheduleStart);
    EXPECT_EQ(m_receiver.waitFor(2), (std::vector<std::uint32_t>{1, 1}));
}

TEST_F(ScheduleThreadTest, StopDropsWhatIsLeft)
{
    fill({{1, 1'000 * second}});
    m_thread.control(ECtrl::ScheduleStart);
    m_thread.stop();
    EXPECT_EQ(m_thread.report().left, 0U);
    fill({{2, 0}});
    m_thread.control(ECtrl::ScheduleStart);
    EXPECT_EQ(m_receiver.waitFor(1), std::vector<std::uint32_t>{2}) << "it can be used again";
}

TEST_F(ScheduleThreadTest, FramesOutsideAScheduleAreRefused)
{
    EXPECT_FALSE(m_thread.isOpen());
    EXPECT_FALSE(m_thread.add(frameOf(1), 0));
    m_thread.control(ECtrl::ScheduleBegin);
    EXPECT_TRUE(m_thread.isOpen());
    EXPECT_FALSE(m_thread.control(ECtrl::ClearStatus)) << "no schedule control";
}

} // namespace
