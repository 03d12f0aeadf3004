#include "traffic/TraceRecorder.h"

#include "profile/ProfileStore.h"
#include "project/Filter.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/traffic/TraceTestFrames.h"
#include "traffic/TraceFileReader.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

using zul::MessageCan;
using zul::test::goldenFrames;
using zul::test::traceBatch;
using zul::test::traceFrame;

// 21 November 2026, 18:35:09.123 UTC.
constexpr double startTime = 1795286109.123;
const QString startName = QStringLiteral("zultrace_20261121_183509_123");

class TraceRecorderTest : public testing::Test
{
protected:
    std::string directory() const { return QDir(m_home.path()).absolutePath().toStdString(); }
    bool startOrStop(double now = startTime) { return m_recorder.startOrStop(directory(), now); }
    TraceRecorder::Update receive(const std::vector<MessageCan>& frames)
    {
        return m_recorder.receive(traceBatch(frames), m_settings, m_filter, m_store);
    }
    QByteArray binary(const QString& name = startName) const
    {
        return m_home.read(name + QStringLiteral(".zlb"));
    }
    QByteArray ascii(const QString& name = startName) const
    {
        return m_home.read(name + QStringLiteral(".zla"));
    }
    int fileCount() const
    {
        return QDir(m_home.path()).entryList(QDir::Files | QDir::System).size();
    }

    zul::test::TestHome m_home;
    TraceRecorder m_recorder;
    TraceSettings m_settings;
    Filter m_filter;
    ProfileStore m_store;
};

TEST_F(TraceRecorderTest, Constants)
{
    EXPECT_EQ(TraceRecorder::maxBlocks, 100000);
    EXPECT_EQ(TraceRecorder::blocksAfterCut, 98000);
    EXPECT_EQ(TraceRecorder::maxCharacters, 67'108'864);
    EXPECT_EQ(static_cast<int>(TraceRecorder::State::Stopped), 0);
    EXPECT_EQ(static_cast<int>(TraceRecorder::State::Waiting), 1);
    EXPECT_EQ(static_cast<int>(TraceRecorder::State::Active), 2);
}

TEST_F(TraceRecorderTest, ViewWithTooManyBlocksIsCut)
{
    EXPECT_EQ(TraceRecorder::surplusBlocks(1, 0), 0);
    EXPECT_EQ(TraceRecorder::surplusBlocks(100'000, 67'108'864), 0);
    EXPECT_EQ(TraceRecorder::surplusBlocks(100'001, 0), 2001);
    EXPECT_EQ(TraceRecorder::surplusBlocks(100'500, 0), 2500);
}

TEST_F(TraceRecorderTest, ViewWithTooManyCharactersLosesTheOldestBlocks)
{
    EXPECT_EQ(TraceRecorder::surplusBlocks(5000, 67'108'865), 100);
    EXPECT_EQ(TraceRecorder::surplusBlocks(49, 67'108'865), 1);
    EXPECT_EQ(TraceRecorder::surplusBlocks(1, 67'108'865), 0) << "the newest block stays";
}

TEST_F(TraceRecorderTest, StatusTexts)
{
    using State = TraceRecorder::State;
    EXPECT_EQ(m_recorder.statusText(), "<b><font color=\"#666666\"> Trace Stopped</font></b>");
    EXPECT_EQ(m_recorder.statusText(State::Waiting),
              "<b><font color=\"#888800\"> Trace Wait</font></b>");
    EXPECT_EQ(m_recorder.statusText(State::Active),
              "<b><font color=\"#00AA00\"> Trace Active</font></b>  0 / 0.0 MB   -   ");
}

TEST_F(TraceRecorderTest, StartAndStop)
{
    EXPECT_STREQ(m_recorder.buttonText(), "Start Trace");
    EXPECT_TRUE(startOrStop());
    EXPECT_EQ(m_recorder.state(), TraceRecorder::State::Active);
    EXPECT_STREQ(m_recorder.buttonText(), "Stop Trace");
    EXPECT_EQ(m_recorder.baseName(), directory() + "/" + startName.toStdString());
    EXPECT_EQ(m_recorder.statusText(),
              "<b><font color=\"#00AA00\"> Trace Active</font></b>  0 / 0.0 MB   -   " +
                  m_recorder.baseName());
    EXPECT_TRUE(startOrStop());
    EXPECT_EQ(m_recorder.state(), TraceRecorder::State::Stopped);
    EXPECT_STREQ(m_recorder.buttonText(), "Start Trace");
    EXPECT_EQ(binary().size(), 128);
    EXPECT_EQ(ascii(), QByteArray());
    EXPECT_EQ(fileCount(), 2);
}

TEST_F(TraceRecorderTest, WritesTheGoldenFiles)
{
    ASSERT_TRUE(startOrStop());
    EXPECT_TRUE(receive(goldenFrames()).isTaken);
    EXPECT_EQ(m_recorder.recordCount(), 6U);
    EXPECT_EQ(m_recorder.byteCount(), 2U + 6 * 28);
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(binary().toHex(' '), zul::test::traceData(QStringLiteral("frames.zlb")).toHex(' '));
    EXPECT_EQ(ascii(), zul::test::traceData(QStringLiteral("can-decimal.zla")));
}

TEST_F(TraceRecorderTest, TwelveByteFrameKeepsItsCountAndItsFirst8BytesInBinary)
{
    ASSERT_TRUE(startOrStop());
    receive({goldenFrames()[4]});
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(binary().mid(128, 9), QByteArray("\1\2\3\4\5\6\7\10\14"));
    EXPECT_EQ(ascii(), "00000 14.000 S 100    D12   0-> 001 002 003 004 005 006 007 008 009 010 "
                       "011 012\n");
}

TEST_F(TraceRecorderTest, ArincFileHasEmptyLinesButForErrors)
{
    m_settings.traceFormat = 4;
    ASSERT_TRUE(startOrStop());
    receive(goldenFrames());
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(ascii(), zul::test::traceData(QStringLiteral("arinc825.zla")));
    EXPECT_EQ(binary().size(), 128 + 6 * 28);
}

TEST_F(TraceRecorderTest, StartInAMissingDirectoryIsActiveAndWritesNothing)
{
    const std::string missing = directory() + "/missing";
    EXPECT_FALSE(m_recorder.startOrStop(missing, startTime));
    m_recorder.activateWithoutFiles();
    EXPECT_EQ(m_recorder.failureText(), "Could not open trace file <" + missing + "/" +
                                            startName.toStdString() +
                                            "> !\nCheck your path under preferences !");
    EXPECT_EQ(m_recorder.state(), TraceRecorder::State::Active);
    EXPECT_STREQ(m_recorder.buttonText(), "Stop Trace");
    receive(goldenFrames());
    EXPECT_EQ(m_recorder.statusText(),
              "<b><font color=\"#00AA00\"> Trace Active</font></b>  0 / 0.0 MB   -   " +
                  m_recorder.baseName());
    EXPECT_EQ(m_recorder.byteCount(), 2U);
    EXPECT_EQ(m_recorder.lineNumber(), 6U);
    EXPECT_TRUE(m_recorder.startOrStop(missing, startTime)) << "a second press opens nothing";
    EXPECT_EQ(m_recorder.state(), TraceRecorder::State::Stopped);
    EXPECT_EQ(fileCount(), 0);
    EXPECT_FALSE(QDir(QString::fromStdString(missing)).exists());
}

TEST_F(TraceRecorderTest, FailedStartLeavesItToTheWindowToBeActive)
{
    EXPECT_FALSE(m_recorder.startOrStop(directory() + "/missing", startTime));
    EXPECT_EQ(m_recorder.state(), TraceRecorder::State::Stopped);
    m_recorder.activateWithoutFiles();
    EXPECT_EQ(m_recorder.state(), TraceRecorder::State::Active);
}

TEST_F(TraceRecorderTest, PathIsShownAsItIs)
{
    ASSERT_TRUE(QDir(m_home.path()).mkdir(QStringLiteral("a&amp;<b>")));
    ASSERT_TRUE(m_recorder.startOrStop(directory() + "/a&amp;<b>", startTime));
    EXPECT_NE(m_recorder.statusText().find("/a&amp;amp;&lt;b&gt;/zultrace"), std::string::npos);
}

TEST_F(TraceRecorderTest, FailureAfterATraceShowsNoRecords)
{
    ASSERT_TRUE(startOrStop());
    receive(goldenFrames());
    ASSERT_TRUE(startOrStop());
    EXPECT_FALSE(m_recorder.startOrStop(directory() + "/missing", startTime));
    EXPECT_EQ(m_recorder.recordCount(), 0U);
    EXPECT_EQ(m_recorder.byteCount(), 2U);
}

TEST_F(TraceRecorderTest, OneFileThatCannotBeOpenedClosesTheOther)
{
    ASSERT_TRUE(QDir(m_home.path()).mkdir(startName + QStringLiteral(".zla")));
    EXPECT_FALSE(startOrStop());
    receive(goldenFrames());
    EXPECT_EQ(m_recorder.recordCount(), 0U);
    EXPECT_LE(binary().size(), 128);
}

TEST_F(TraceRecorderTest, EmptyDirectoryNamesFilesInTheRoot)
{
    const QDateTime start(QDate(2026, 1, 2), QTime(3, 4, 5, 6));
    EXPECT_EQ(TraceRecorder::baseNameOf("", start), "/zultrace_20260102_030405_006");
    EXPECT_EQ(TraceRecorder::baseNameOf("a/", start), "a//zultrace_20260102_030405_006");
}

TEST_F(TraceRecorderTest, MegabytesCountFrom2)
{
    ASSERT_TRUE(startOrStop());
    receive(std::vector<MessageCan>(1873, traceFrame(1, 0.0)));
    EXPECT_EQ(m_recorder.byteCount(), 52446U); // 0.04998 MB
    EXPECT_NE(m_recorder.statusText().find("  1873 / 0.0 MB   -   /"), std::string::npos);
    receive(std::vector<MessageCan>(2, traceFrame(1, 0.0)));
    EXPECT_NE(m_recorder.statusText().find("  1875 / 0.1 MB   -   /"), std::string::npos);
}

TEST_F(TraceRecorderTest, FullDiskOnlyEndsTheFilesEarly)
{
    ASSERT_TRUE(QFile::exists(QStringLiteral("/dev/full")));
    for (const char* suffix : {".zlb", ".zla"}) {
        const QString name = m_home.file(startName + QLatin1String(suffix));
        ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), name));
    }
    ASSERT_TRUE(startOrStop());
    for (int i = 0; i < 100; ++i) {
        receive(std::vector<MessageCan>(100, traceFrame(1, 0.0)));
    }
    EXPECT_EQ(m_recorder.recordCount(), 10000U);
    EXPECT_EQ(m_recorder.byteCount(), 280002U);
    EXPECT_TRUE(startOrStop());
}

/// No file grows beyond so many bytes while this lives; writes fail.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limited = m_before;
        limited.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

TEST_F(TraceRecorderTest, WhatWasWrittenBeforeAFailureStaysReadable)
{
    constexpr int limit = 10'000;
    constexpr std::uint32_t half = 5000;
    const auto record = [this](std::uint32_t first) {
        for (std::uint32_t i = first; i < first + half; ++i) {
            receive({traceFrame(i, i, {1, 2, 3})});
        }
    };
    ASSERT_TRUE(startOrStop());
    {
        const FileSizeLimit noMore(limit);
        record(0);
    }
    record(half); // there is room again, but it would leave a gap
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(m_recorder.recordCount(), 2 * half);
    EXPECT_LE(binary().size(), limit);
    const zul::test::ConsoleCapture console;
    TraceFrames trace;
    readTraceFile(m_home.file(startName + QStringLiteral(".zlb")), trace);
    EXPECT_GT(trace.frames.size(), 100U);
    for (std::uint32_t i = 0; i < trace.frames.size(); ++i) {
        ASSERT_EQ(trace.frames[i].id, i);
        ASSERT_EQ(trace.frames[i].seconds, i);
    }
    EXPECT_LE(ascii().size(), limit);
    readTraceFile(m_home.file(startName + QStringLiteral(".zla")), trace);
    EXPECT_GT(trace.frames.size(), 100U);
    for (std::uint32_t i = 0; i + 1 < trace.frames.size(); ++i) {
        ASSERT_EQ(trace.frames[i].id, i);
    }
}

TEST_F(TraceRecorderTest, LineNumberGoesOnThroughTraces)
{
    ASSERT_TRUE(startOrStop());
    receive(goldenFrames());
    ASSERT_TRUE(startOrStop());
    receive({traceFrame(5, 0.0)});
    ASSERT_TRUE(startOrStop(startTime + 1.001));
    EXPECT_EQ(m_recorder.recordCount(), 0U);
    EXPECT_EQ(m_recorder.byteCount(), 2U);
    receive({traceFrame(5, 0.0)});
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(ascii(QStringLiteral("zultrace_20261121_183510_124")), "00007 0.000 S 5      D0 \n");
}

TEST_F(TraceRecorderTest, ClearRestartsTheNumbersOfARunningTrace)
{
    ASSERT_TRUE(startOrStop());
    receive({traceFrame(5, 0.0), traceFrame(6, 0.0)});
    m_recorder.clear();
    EXPECT_EQ(m_recorder.lineNumber(), 0U);
    EXPECT_EQ(receive({traceFrame(7, 0.0)}).html, "00000 0.000 S 7      D0 ");
    EXPECT_EQ(m_recorder.recordCount(), 3U);
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(ascii(), "00000 0.000 S 5      D0 \n00001 0.000 S 6      D0 \n"
                       "00000 0.000 S 7      D0 \n");
}

TEST_F(TraceRecorderTest, ScreenAndFileShowTheSameNumber)
{
    m_settings.displayMode = 6;
    receive({traceFrame(1, 0.0)});
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(receive({traceFrame(5, 0.0)}).html, "00001 0.000 S 5      D0 Unknown Type");
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(ascii(), "00001 0.000 S 5      D0 \n") << "the display mode is the screen's alone";
}

TEST_F(TraceRecorderTest, LinesOfABatchAreOneBlock)
{
    const auto frames = goldenFrames();
    const auto update = receive({frames[2], frames[3], frames[2]});
    EXPECT_TRUE(update.hasLines);
    EXPECT_EQ(update.html,
              "00000 13.000 S 2047   R4   0-> 000 000 000 000<br>\n"
              "00001 13.001 <b><font color=\"#AA0000\"> ERROR FRAME</font></b><br><br>\n"
              "00002 13.000 S 2047   R4   0-> 000 000 000 000");
}

TEST_F(TraceRecorderTest, EmptyLinesAreLinesToo)
{
    m_settings.displayMode = 4;
    const auto update = receive({traceFrame(1, 0.0), traceFrame(2, 0.0)});
    EXPECT_TRUE(update.hasLines);
    EXPECT_EQ(update.html, "<br>\n");
}

TEST_F(TraceRecorderTest, InputOffReachesNoFileAndIsCounted)
{
    m_settings.inputOn = false;
    ASSERT_TRUE(startOrStop());
    const auto update = receive(goldenFrames());
    EXPECT_TRUE(update.isTaken);
    EXPECT_FALSE(update.hasLines);
    EXPECT_EQ(update.html, "");
    EXPECT_EQ(m_recorder.receivedTotal(), 6U);
    EXPECT_EQ(m_recorder.lineNumber(), 0U);
    EXPECT_EQ(m_recorder.recordCount(), 0U);
    ASSERT_TRUE(startOrStop());
    EXPECT_EQ(binary().size(), 128);
    EXPECT_EQ(ascii(), QByteArray());
}

TEST_F(TraceRecorderTest, FilterDecidesOnTheIdentifier)
{
    m_filter.setOn(true);
    m_filter.setMin(100);
    m_filter.setMax(200);
    ASSERT_TRUE(startOrStop());
    const auto update = receive(
        {traceFrame(99, 0.0), traceFrame(100, 0.0), traceFrame(201, 0.0), traceFrame(200, 0.0)});
    EXPECT_EQ(update.html, "00000 0.000 S 100    D0 <br>\n00001 0.000 S 200    D0 ");
    EXPECT_EQ(m_recorder.receivedTotal(), 4U);
    EXPECT_EQ(m_recorder.recordCount(), 2U);
}

TEST_F(TraceRecorderTest, OtherInterfacesAreIgnored)
{
    m_settings.inputInterface = QStringLiteral("CAN 2");
    EXPECT_FALSE(receive(goldenFrames()).isTaken);
    EXPECT_EQ(m_recorder.receivedTotal(), 0U);
    m_settings.inputInterface = QStringLiteral("CAN 1");
    EXPECT_TRUE(receive(goldenFrames()).isTaken);
    m_settings.inputInterface = QString::fromLatin1("B\xFCs");
    const auto update =
        m_recorder.receive(traceBatch(goldenFrames(), "B\xFCs"), m_settings, m_filter, m_store);
    EXPECT_TRUE(update.isTaken);
    EXPECT_EQ(m_recorder.receivedTotal(), 12U);
}

TEST_F(TraceRecorderTest, EmptyBatchAndOtherMessages)
{
    EXPECT_TRUE(receive({}).isTaken);
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(new Message(7)));
    batch.addMessage(SmartPtr<Message>());
    EXPECT_FALSE(m_recorder.receive(batch, m_settings, m_filter, m_store).hasLines);
    EXPECT_EQ(m_recorder.receivedTotal(), 0U);
}

TEST_F(TraceRecorderTest, DestructionClosesTheFiles)
{
    {
        TraceRecorder recorder;
        ASSERT_TRUE(recorder.startOrStop(directory(), startTime));
        recorder.receive(traceBatch(goldenFrames()), m_settings, m_filter, m_store);
        EXPECT_EQ(ascii(), QByteArray()) << "nothing is flushed before";
    }
    EXPECT_EQ(binary().size(), 128 + 6 * 28);
    EXPECT_EQ(ascii().count('\n'), 6);
}

} // namespace
