#include "traffic/Replay.h"

#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/traffic/TraceTestFrames.h"
#include "traffic/TraceFiles.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using zul::MessageCan;
using zul::test::traceFrame;
using State = Replay::State;

class ReplayTest : public testing::Test
{
protected:
    void load(const QString& path)
    {
        const zul::test::ConsoleCapture console;
        m_replay.load(path);
    }
    void loadFrames(const std::vector<MessageCan>& frames)
    {
        TraceFiles files;
        const QString base = m_home.file(QStringLiteral("trace"));
        ASSERT_TRUE(files.open(base.toLatin1().toStdString(), QDateTime::currentDateTime()));
        for (const MessageCan& frame : frames) {
            std::string line;
            files.write(frame, line);
        }
        files.close();
        load(base + QStringLiteral(".zlb"));
    }
    /// Frames with the identifiers 1, 2, ... at these times.
    void loadTimes(const std::vector<double>& times)
    {
        std::vector<MessageCan> frames;
        for (const double time : times) {
            frames.push_back(traceFrame(static_cast<std::uint32_t>(frames.size() + 1), time));
        }
        loadFrames(frames);
    }
    void start() { m_replay.startOrPause(m_now); }
    /// The identifiers that go out at a tick so many seconds after the last one; "-" before those
    /// that must not be sent.
    std::string tick(double seconds)
    {
        m_now += seconds;
        m_tick = m_replay.tick(m_now, m_settings);
        std::string ids = m_tick.isToBeSent ? "" : "-";
        for (std::uint32_t i = 0; i < m_tick.batch.size(); ++i) {
            ids += (i > 0 ? " " : "") + std::to_string(frameAt(i).id());
        }
        return ids;
    }
    const MessageCan& frameAt(std::uint32_t index) const
    {
        return *message_cast<MessageCan>(m_tick.batch.messages()[index].get());
    }

    zul::test::TestHome m_home;
    Replay m_replay;
    ReplaySettings m_settings;
    Replay::Tick m_tick;
    double m_now = 5000.0;
};

TEST_F(ReplayTest, Constants)
{
    EXPECT_EQ(Replay::tickPeriodMs, 10);
    EXPECT_EQ(Replay::sliderMaximum, 1000);
    EXPECT_EQ(Replay::sliderTickInterval, 250);
    EXPECT_STREQ(Replay::firstPositionText, "00:00:00.000");
    EXPECT_STREQ(Replay::fileDialogTitle, "Open Trace File");
    EXPECT_STREQ(Replay::fileDialogFilter, "Trace File (*.zlb *.CAN);;All Files (*.*)");
    EXPECT_EQ(static_cast<int>(State::Stopped), 0);
    EXPECT_EQ(static_cast<int>(State::Paused), 1);
    EXPECT_EQ(static_cast<int>(State::Running), 2);
}

TEST_F(ReplayTest, ControlsOfAllStates)
{
    const auto expectControls = [this](bool load, bool start, bool stop, bool slider,
                                       const char* text) {
        const Replay::Controls controls = m_replay.controls();
        EXPECT_EQ(controls.load, load);
        EXPECT_EQ(controls.start, start);
        EXPECT_EQ(controls.stop, stop);
        EXPECT_EQ(controls.slider, slider);
        EXPECT_STREQ(controls.startText, text);
    };
    expectControls(true, false, false, false, "Start");
    loadTimes({1.0, 2.0});
    expectControls(true, true, false, false, "Start");
    start();
    expectControls(false, true, true, false, "Pause");
    start();
    expectControls(false, true, false, true, "Start");
    start();
    m_replay.stop();
    expectControls(true, true, false, false, "Start");
}

TEST_F(ReplayTest, FileNameIsShownWithoutItsDirectory)
{
    EXPECT_EQ(m_replay.shownFileName(), QString());
    EXPECT_EQ(m_replay.lastDirectory(), QString());
    loadTimes({1.0});
    EXPECT_EQ(m_replay.shownFileName(), QStringLiteral("trace.zlb"));
    EXPECT_EQ(m_replay.fileName(), m_home.file(QStringLiteral("trace.zlb")));
    EXPECT_EQ(m_replay.lastDirectory(), m_replay.fileName());
    load(QStringLiteral("nothing"));
    EXPECT_EQ(m_replay.shownFileName(), QStringLiteral("nothing"));
}

TEST_F(ReplayTest, OffsetsAreRelativeToTheFirstFrame)
{
    loadTimes({1000.0, 1000.5, 1001.0});
    start();
    EXPECT_EQ(tick(0.01), "1");
    EXPECT_EQ(tick(0.47), "-");
    EXPECT_EQ(tick(0.03), "2");
    EXPECT_EQ(tick(0.48), "-");
    EXPECT_EQ(tick(0.02), "3");
    EXPECT_TRUE(m_tick.hasStopped);
}

TEST_F(ReplayTest, ComparisonIsStrict)
{
    loadTimes({8.0, 8.25, 9.0});
    start();
    EXPECT_EQ(tick(0.0), "-") << "an offset of 0 needs a positive time";
    EXPECT_EQ(tick(0.25), "1");
    EXPECT_EQ(tick(0.0), "-");
    EXPECT_EQ(tick(0.125), "2");
}

TEST_F(ReplayTest, FramesOfOneTickAreOneBatchInFileOrder)
{
    loadTimes({8.0, 8.5, 8.25, 8.25, 9.0});
    m_settings.outputInterface = QString::fromLatin1("B\xFCs 1");
    start();
    EXPECT_EQ(tick(0.375), "1") << "a frame that is not due holds those behind it";
    EXPECT_EQ(tick(0.25), "2 3 4");
    EXPECT_EQ(m_tick.batch.srcDest(), "B\xFCs 1");
    EXPECT_EQ(m_replay.sentCount(), 4U);
    EXPECT_EQ(m_replay.position(), 4U);
}

TEST_F(ReplayTest, CopyHasAllFieldsButTheTime)
{
    MessageCan remote = traceFrame(5, 3.0, {1, 2, 3, 4, 5, 6, 7, 8});
    remote.setFrameType(MessageCan::EFrameType::Remote);
    MessageCan error = traceFrame(6, 3.0, {1});
    error.setFrameType(MessageCan::EFrameType::Error);
    loadFrames({remote, error});
    start();
    tick(0.01);
    ASSERT_EQ(m_tick.batch.size(), 2U);
    EXPECT_EQ(frameAt(0).timeStampDouble(), 0.0);
    EXPECT_EQ(frameAt(0).frameType(), MessageCan::EFrameType::Remote);
    EXPECT_EQ(frameAt(0).byteCount(), 8U);
    EXPECT_EQ(frameAt(0).msg()[7], 8);
    EXPECT_EQ(frameAt(0).channel(), 0U);
    EXPECT_EQ(frameAt(1).timeStampDouble(), 0.0);
    EXPECT_EQ(frameAt(1).frameType(), MessageCan::EFrameType::Error);
    EXPECT_EQ(frameAt(1).id(), 0U);
    EXPECT_EQ(frameAt(1).byteCount(), 0U);
}

TEST_F(ReplayTest, ByteCountAboveTheKeptBytesGoesOutAsStored)
{
    loadFrames({traceFrame(5, 3.0, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})});
    start();
    tick(0.01);
    ASSERT_EQ(m_tick.batch.size(), 1U);
    EXPECT_EQ(frameAt(0).byteCount(), 12U);
    EXPECT_EQ(frameAt(0).msg()[7], 8);
    EXPECT_EQ(frameAt(0).msg()[8], 0);
}

TEST_F(ReplayTest, FramesBeyondTheMostOfOneTickFollowAtTheNext)
{
    constexpr int count = Replay::maxFramesPerTick + 3;
    m_home.write(QStringLiteral("a.zla"), QByteArray(count, '\n'));
    load(m_home.file(QStringLiteral("a.zla")));
    start();
    tick(0.01);
    EXPECT_EQ(m_tick.batch.size(), 100'000U);
    EXPECT_FALSE(m_tick.hasStopped);
    tick(0.01);
    EXPECT_EQ(m_tick.batch.size(), 3U);
    EXPECT_TRUE(m_tick.hasStopped);
    EXPECT_EQ(m_replay.sentCount(), static_cast<std::uint32_t>(count));
}

TEST_F(ReplayTest, IdentifiersAbove2031GoOutExtended)
{
    loadFrames({traceFrame(2031, 1.0), traceFrame(2032, 1.0), traceFrame(0x80000001U, 1.0),
                traceFrame(0x1FFFFFFF, 1.0)});
    start();
    tick(0.01);
    ASSERT_EQ(m_tick.batch.size(), 4U);
    EXPECT_EQ(frameAt(0).mode(), MessageCan::EMsgMode::Standard);
    EXPECT_EQ(frameAt(1).mode(), MessageCan::EMsgMode::Extended);
    EXPECT_EQ(frameAt(2).mode(), MessageCan::EMsgMode::Extended);
    EXPECT_EQ(frameAt(2).id(), 0x80000001U) << "bit 31 stays";
    EXPECT_EQ(frameAt(3).mode(), MessageCan::EMsgMode::Extended);
}

TEST_F(ReplayTest, StoredModeOfASmallIdentifierStays)
{
    m_home.write(QStringLiteral("a.zla"), "0 1 E 2031 D0\n1 1 S 2032 D0\n");
    load(m_home.file(QStringLiteral("a.zla")));
    start();
    tick(0.01);
    ASSERT_EQ(m_tick.batch.size(), 2U);
    EXPECT_EQ(frameAt(0).mode(), MessageCan::EMsgMode::Extended);
    EXPECT_EQ(frameAt(1).mode(), MessageCan::EMsgMode::Extended);
}

TEST_F(ReplayTest, AutoRepeatBeginsAgainAtTheNextTick)
{
    m_settings.autoRepeat = true;
    loadTimes({8.0, 8.5});
    start();
    EXPECT_EQ(tick(100.0), "1 2");
    EXPECT_FALSE(m_tick.hasStopped);
    EXPECT_EQ(m_replay.state(), State::Running);
    EXPECT_EQ(m_replay.position(), 0U);
    EXPECT_EQ(m_replay.elapsed(), 0.0);
    EXPECT_EQ(tick(0.25), "1");
    EXPECT_EQ(tick(0.5), "2");
    EXPECT_EQ(m_replay.sentCount(), 4U);
}

TEST_F(ReplayTest, EndOfFileStops)
{
    loadTimes({8.0, 8.5});
    start();
    EXPECT_EQ(tick(1.0), "1 2");
    EXPECT_TRUE(m_tick.hasStopped);
    EXPECT_EQ(m_replay.state(), State::Stopped);
    EXPECT_EQ(m_replay.position(), 0U);
    EXPECT_EQ(m_replay.elapsed(), 0.0);
    EXPECT_EQ(tick(1.0), "-") << "a tick that comes late does nothing";
    EXPECT_FALSE(m_tick.hasStopped);
    start();
    EXPECT_EQ(tick(0.25), "1");
}

TEST_F(ReplayTest, PauseResumesWhereItStopped)
{
    loadTimes({8.0, 8.5, 9.0});
    start();
    EXPECT_EQ(tick(0.25), "1");
    start();
    EXPECT_EQ(m_replay.state(), State::Paused);
    EXPECT_FALSE(m_replay.isRunning());
    EXPECT_EQ(tick(50.0), "-");
    EXPECT_EQ(m_replay.elapsed(), 0.25);
    start();
    EXPECT_TRUE(m_replay.isRunning());
    EXPECT_EQ(tick(0.125), "-");
    EXPECT_EQ(tick(0.25), "2");
}

TEST_F(ReplayTest, StopGoesBackToTheStart)
{
    loadTimes({8.0, 8.5, 9.0});
    start();
    tick(0.75);
    m_replay.stop();
    EXPECT_EQ(m_replay.state(), State::Stopped);
    EXPECT_EQ(m_replay.position(), 0U);
    EXPECT_EQ(m_replay.elapsed(), 0.0);
    EXPECT_EQ(m_replay.sentCount(), 2U) << "counts on";
    EXPECT_EQ(m_replay.sliderPosition(), 0);
}

TEST_F(ReplayTest, SeekToTheMiddleResumesThere)
{
    loadTimes({8.0, 9.0, 10.0, 11.0, 12.0});
    start();
    tick(0.5);
    start();
    m_replay.seek(500);
    EXPECT_EQ(m_replay.elapsed(), 2.0);
    EXPECT_EQ(m_replay.position(), 2U);
    EXPECT_EQ(m_replay.sliderPosition(), 500);
    start();
    EXPECT_EQ(tick(0.125), "3");
    EXPECT_EQ(tick(1.0), "4");
}

TEST_F(ReplayTest, SeekToBothEnds)
{
    loadTimes({8.0, 9.0, 10.0, 11.0, 12.0});
    m_replay.seek(1000);
    EXPECT_EQ(m_replay.position(), 4U);
    EXPECT_EQ(m_replay.elapsed(), 4.0);
    m_replay.seek(0);
    EXPECT_EQ(m_replay.position(), 0U);
    m_replay.seek(1);
    EXPECT_EQ(m_replay.position(), 1U) << "the first frame that is not before";
}

TEST_F(ReplayTest, SeekStopsAtTheFirstFrameThatIsFarEnough)
{
    loadTimes({8.0, 11.0, 8.5, 12.0});
    m_replay.seek(500);
    EXPECT_EQ(m_replay.position(), 1U);
    loadTimes({8.0, 7.0, 6.0});
    m_replay.seek(500);
    EXPECT_EQ(m_replay.position(), 0U);
    EXPECT_EQ(m_replay.elapsed(), -1.0);
}

TEST_F(ReplayTest, SeekBeyondAllFramesEndsAtTheNextTick)
{
    loadTimes({8.0, 9.0});
    m_replay.seek(2000);
    EXPECT_EQ(m_replay.position(), 2U);
    start();
    EXPECT_EQ(tick(0.01), "-");
    EXPECT_TRUE(m_tick.hasStopped);
}

TEST_F(ReplayTest, OutputOffSkipsFramesAndTimeGoesOn)
{
    loadTimes({8.0, 8.5, 9.0, 9.5});
    m_settings.outputOn = false;
    start();
    EXPECT_EQ(tick(0.25), "-");
    EXPECT_EQ(tick(0.5), "-");
    EXPECT_EQ(m_replay.sentCount(), 2U);
    EXPECT_EQ(m_replay.position(), 2U);
    m_settings.outputOn = true;
    EXPECT_EQ(tick(0.125), "-");
    EXPECT_EQ(tick(0.25), "3");
    EXPECT_EQ(tick(0.5), "4");
}

TEST_F(ReplayTest, SliderIsTruncated)
{
    loadTimes({8.0, 11.0});
    start();
    tick(2.0);
    EXPECT_EQ(m_replay.sliderPosition(), 666);
    EXPECT_EQ(Replay::positionText(), QString()) << "blank at every refresh";
}

TEST_F(ReplayTest, SliderStaysWhereItWasMoved)
{
    for (const double span : {0.007, 1.0, 3.0, 7.3, 60.0, 123.456, 86'400.125}) {
        loadTimes({1795286109.123, 1795286109.123 + span});
        for (int position = 0; position <= Replay::sliderMaximum; ++position) {
            m_replay.seek(position);
            ASSERT_EQ(m_replay.sliderPosition(), position) << span;
        }
    }
}

TEST_F(ReplayTest, SliderOfOneFrameOrNoneIs0)
{
    EXPECT_EQ(m_replay.sliderPosition(), 0);
    loadTimes({8.0});
    m_replay.seek(500);
    EXPECT_EQ(m_replay.position(), 0U);
    EXPECT_EQ(m_replay.sliderPosition(), 0);
    start();
    EXPECT_EQ(tick(1.0), "1");
    EXPECT_EQ(m_replay.sliderPosition(), 0);
}

TEST_F(ReplayTest, SliderStaysWithinItsRange)
{
    loadTimes({8.0, 100.0, 9.0});
    start();
    tick(50.0);
    EXPECT_EQ(m_replay.sliderPosition(), 1000);
    m_replay.stop();
    loadTimes({8.0, 7.0, 100.0, 7.0});
    start();
    tick(50.0);
    EXPECT_EQ(m_replay.position(), 2U);
    EXPECT_EQ(m_replay.sliderPosition(), 0);
}

TEST_F(ReplayTest, EmptyFileEndsAtTheFirstTick)
{
    loadFrames({});
    EXPECT_TRUE(m_replay.controls().start);
    m_settings.autoRepeat = true;
    start();
    EXPECT_EQ(tick(1.0), "-");
    EXPECT_EQ(m_replay.state(), State::Running);
    m_settings.autoRepeat = false;
    EXPECT_EQ(tick(1.0), "-");
    EXPECT_TRUE(m_tick.hasStopped);
    EXPECT_EQ(m_replay.state(), State::Stopped);
}

TEST_F(ReplayTest, LoadKeepsPositionAndTheTimesOfAnEmptyFile)
{
    loadTimes({8.0, 9.0, 10.0});
    m_replay.seek(500);
    load(m_home.file(QStringLiteral("missing.zlb")));
    EXPECT_EQ(m_replay.position(), 1U);
    EXPECT_EQ(m_replay.trace().firstTime, 8.0);
    EXPECT_EQ(m_replay.trace().lastTime, 10.0);
    EXPECT_EQ(m_replay.sliderPosition(), 500);
    start();
    EXPECT_EQ(tick(0.01), "-") << "the position lies behind the last frame";
    EXPECT_TRUE(m_tick.hasStopped);
}

TEST_F(ReplayTest, ClockThatIsSetBackDelays)
{
    loadTimes({8.0, 8.5});
    start();
    EXPECT_EQ(tick(0.25), "1");
    EXPECT_EQ(tick(-100.0), "-");
    EXPECT_EQ(tick(100.0), "-");
    EXPECT_EQ(tick(0.5), "2");
}

} // namespace
