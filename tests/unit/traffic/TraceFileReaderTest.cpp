#include "traffic/TraceFileReader.h"

#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/traffic/TraceTestFrames.h"
#include "traffic/TraceLayout.h"
#include "traffic/TraceTextLine.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>

namespace {

using zul::test::traceData;
using zul::test::traceDataPath;

constexpr int headerSize = 128;
constexpr int recordSize = 28;

class TraceFileReaderTest : public testing::Test
{
protected:
    TraceFrames read(const QString& path, std::size_t maxFrames = maxTraceFrames)
    {
        zul::test::ConsoleCapture console;
        TraceFrames trace;
        readTraceFile(path, trace, maxFrames);
        m_out = console.out();
        return trace;
    }
    TraceFrames readContent(const QString& name, const QByteArray& content,
                            std::size_t maxFrames = maxTraceFrames)
    {
        m_home.write(name, content);
        return read(m_home.file(name), maxFrames);
    }

    zul::test::TestHome m_home;
    std::string m_out;
};

// The frames of the golden files, as binary forms keep them.
std::vector<TraceFrame> goldenTrace(bool keepsMode)
{
    std::vector<TraceFrame> frames(6);
    frames[0] = {{1, 2}, 0x123, 12, 345'678'901, 2, 0, 0};
    frames[1] = {{10, 20, 30, 40, 50, 60, 70, 80}, 0x1234567, 12, 500'000'000, 8, 0, 0};
    if (keepsMode) {
        frames[1].id |= trace_layout::extendedBit;
        frames[1].mode = 1;
    }
    frames[2] = {{}, 0x7FF, 13, 0, 4, 1, 0};
    frames[3] = {{}, 0, 13, 1'000'000, 0, 255, 0};
    frames[4] = {{1, 2, 3, 4, 5, 6, 7, 8}, 100, 14, 0, 12, 0, 0};
    frames[5] = {{1, 2, 3, 4, 5, 6, 7, 8}, 2032, 4294967295U, 999'999'999, 20, 0, 0};
    return frames;
}

TEST_F(TraceFileReaderTest, FileOfTheTraceWindow)
{
    const TraceFrames trace = read(traceDataPath(QStringLiteral("frames.zlb")));
    EXPECT_EQ(trace.frames, goldenTrace(false));
    EXPECT_DOUBLE_EQ(trace.firstTime, 12.345678901);
    EXPECT_DOUBLE_EQ(trace.lastTime, 4294967295.999999999);
    EXPECT_EQ(m_out, "readTraceFileBin endian 0xabba\n"
                     "readTraceFileBin Time 12.345679 4294967296.000000\n");
    EXPECT_EQ(trace.frames.capacity(), trace.frames.size()) << "no more memory than it takes";
}

TEST_F(TraceFileReaderTest, ForeignFormInBothOrders)
{
    const TraceFrames little = read(traceDataPath(QStringLiteral("frames-little-endian.CAN")));
    EXPECT_EQ(little.frames, goldenTrace(true));
    const TraceFrames big = read(traceDataPath(QStringLiteral("frames-big-endian.CAN")));
    EXPECT_EQ(big.frames, goldenTrace(true));
    EXPECT_EQ(m_out.substr(0, 31), "readTraceFileBin endian 0xbaab\n");
}

TEST_F(TraceFileReaderTest, SuffixAfterTheLastDotOfTheWholePathDecides)
{
    const QByteArray text = "0 1.5 S 291 D1 7\n";
    EXPECT_EQ(readContent(QStringLiteral("a.zla"), text).frames.size(), 1U);
    EXPECT_EQ(m_out, "");
    for (const char* name : {"a.ZLA", "a.txt", "zla", "a.zla.", "a.zla1", "azla"}) {
        EXPECT_TRUE(readContent(QString::fromLatin1(name), text).frames.empty()) << name;
        EXPECT_NE(m_out, "") << name;
    }
    ASSERT_TRUE(QDir(m_home.path()).mkdir(QStringLiteral("dir.zla")));
    const QByteArray binary = traceData(QStringLiteral("frames.zlb"));
    EXPECT_EQ(readContent(QStringLiteral("dir.zla/nodot"), binary).frames, goldenTrace(false));
}

TEST_F(TraceFileReaderTest, BinaryFileCutOffAtEveryByte)
{
    for (const char* name : {"frames.zlb", "frames-big-endian.CAN"}) {
        const QByteArray whole = traceData(QLatin1String(name));
        const auto all = goldenTrace(name != std::string("frames.zlb"));
        for (int size = 0; size <= whole.size(); ++size) {
            const TraceFrames trace =
                readContent(QStringLiteral("cut.") + QLatin1String(name), whole.left(size));
            const int count = std::max(0, size - headerSize) / recordSize;
            ASSERT_EQ(trace.frames, std::vector<TraceFrame>(all.begin(), all.begin() + count))
                << name << " cut at " << size;
        }
    }
}

TEST_F(TraceFileReaderTest, TextFileCutOffAtEveryByte)
{
    for (const char* name : {"can-decimal.zla", "can-hexadecimal.zla", "arinc825.zla"}) {
        const QByteArray whole = traceData(QLatin1String(name));
        for (int size = 0; size <= whole.size(); ++size) {
            const QByteArray cut = whole.left(size);
            const TraceFrames trace = readContent(QStringLiteral("cut.zla"), cut);
            const int lines = cut.count('\n') + (cut.isEmpty() || cut.endsWith('\n') ? 0 : 1);
            ASSERT_EQ(trace.frames.size(), static_cast<std::size_t>(lines)) << name << ' ' << size;
        }
    }
}

TEST_F(TraceFileReaderTest, EmptyFileLeavesTheTimes)
{
    for (const char* name : {"empty.zlb", "empty.zla"}) {
        m_home.write(QLatin1String(name), QByteArray());
        TraceFrames trace;
        trace.append(goldenTrace(false)[2]);
        const zul::test::ConsoleCapture console;
        readTraceFile(m_home.file(QLatin1String(name)), trace);
        EXPECT_TRUE(trace.frames.empty());
        EXPECT_EQ(trace.firstTime, 13.0);
        EXPECT_EQ(trace.lastTime, 13.0);
    }
}

TEST_F(TraceFileReaderTest, ShortHeaderIsAnEmptyFile)
{
    EXPECT_TRUE(readContent(QStringLiteral("a.zlb"), QByteArray("\xBA")).frames.empty());
    EXPECT_EQ(m_out, "readTraceFileBin endian 0xba\nreadTraceFileBin Time 0.000000 0.000000\n");
}

TEST_F(TraceFileReaderTest, WhatCannotBeOpenedIsAnEmptyFile)
{
    for (const char* suffix : {".zlb", ".zla"}) {
        const QString name = QStringLiteral("x") + QLatin1String(suffix);
        EXPECT_TRUE(read(m_home.file(name)).frames.empty()) << "missing";
        ASSERT_TRUE(QDir(m_home.path()).mkdir(name));
        EXPECT_TRUE(read(m_home.file(name)).frames.empty()) << "a directory";
        const QString pipe = m_home.file(QStringLiteral("pipe") + QLatin1String(suffix));
        ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
        EXPECT_TRUE(read(pipe).frames.empty()) << "a pipe";
        const QString device = m_home.file(QStringLiteral("zero") + QLatin1String(suffix));
        ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), device));
        EXPECT_TRUE(read(device).frames.empty()) << "a device";
    }
    EXPECT_TRUE(read(QString()).frames.empty());
}

TEST_F(TraceFileReaderTest, ForeignFilesGiveWrongFramesAndNothingElse)
{
    constexpr unsigned seed = 45;
    std::mt19937 generator(seed);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int round = 0; round < 20; ++round) {
        QByteArray noise(20'000, '\0');
        for (char& character : noise) {
            character = static_cast<char>(byte(generator));
        }
        const auto count = static_cast<std::size_t>((noise.size() - headerSize) / recordSize);
        EXPECT_EQ(readContent(QStringLiteral("noise.zlb"), noise).frames.size(), count) << seed;
        const TraceFrames text = readContent(QStringLiteral("noise.zla"), noise);
        EXPECT_GE(text.frames.size(), static_cast<std::size_t>(noise.count('\n'))) << seed;
    }
}

TEST_F(TraceFileReaderTest, HugeFileGivesNoMoreThanTheMostFrames)
{
    constexpr qint64 eightGigabytes = qint64{8} << 30; // a hole, it takes no room
    for (const char* name : {"huge.zlb", "huge.zla"}) {
        const QString path = m_home.file(QLatin1String(name));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(eightGigabytes));
        file.close();
        EXPECT_EQ(read(path, 10'000).frames.size(), 10'000U) << name;
        QFile::remove(path);
    }
}

TEST_F(TraceFileReaderTest, MoreThanOneBufferOfRecords)
{
    QByteArray content = traceData(QStringLiteral("frames.zlb")).left(headerSize);
    constexpr int count = 20'000;
    for (int i = 0; i < count; ++i) {
        zul::MessageCan frame = zul::test::traceFrame(static_cast<std::uint32_t>(i), i);
        const trace_layout::Record record = trace_layout::recordOf(frame);
        content.append(reinterpret_cast<const char*>(record.data()), recordSize);
    }
    const TraceFrames trace = readContent(QStringLiteral("many.zlb"), content + "half a record");
    ASSERT_EQ(trace.frames.size(), static_cast<std::size_t>(count));
    for (std::uint32_t i = 0; i < trace.frames.size(); ++i) {
        ASSERT_EQ(trace.frames[i].id, i);
    }
    EXPECT_EQ(trace.lastTime, count - 1);
    EXPECT_EQ(readContent(QStringLiteral("many.zlb"), content, 8193).frames.size(), 8193U);
}

TEST_F(TraceFileReaderTest, TextWrittenForReplay)
{
    const TraceFrames trace = read(traceDataPath(QStringLiteral("written-for-replay.zla")));
    ASSERT_EQ(trace.frames.size(), 5U);
    EXPECT_EQ(trace.frames[0],
              (TraceFrame{{1, 2, 3, 4, 5, 6, 7, 8}, 291, 1, 500'000'000, 8, 0, 0}));
    EXPECT_EQ(trace.frames[1], (TraceFrame{{255, 0, 255}, 19088743, 2, 250'000'000, 3, 1, 1}));
    EXPECT_EQ(trace.frames[2], (TraceFrame{{}, 0, 0, 0, 0, 0, 1})) << "the empty line";
    EXPECT_EQ(trace.frames[3], (TraceFrame{{}, 0, 3, 0, 0, 255, 0}));
    EXPECT_EQ(trace.frames[4], (TraceFrame{{7, 0, 9}, 2031, 4, 0, 2, 0, 0}));
    EXPECT_EQ(trace.firstTime, 1.5);
    EXPECT_EQ(trace.lastTime, 4.0);
}

TEST_F(TraceFileReaderTest, LineEndsOfAllPlatforms)
{
    const QByteArray text = "0 1 S 5 D1 7\r\n1 2 S 6 D1\r\n2 3 S 7 D1";
    const TraceFrames trace = readContent(QStringLiteral("a.zla"), text);
    ASSERT_EQ(trace.frames.size(), 3U);
    EXPECT_EQ(trace.frames[0].bytes[0], 7);
    EXPECT_EQ(trace.frames[1].byteCount, 1);
    EXPECT_EQ(trace.frames[2].byteCount, 1);
}

TEST_F(TraceFileReaderTest, LongLinesAreCutInto1023Characters)
{
    EXPECT_EQ(maxTraceLine, 1023U);
    QByteArray line = "0 1 S 5 D1 7";
    line = line.leftJustified(1023, ' ');
    const TraceFrames trace =
        readContent(QStringLiteral("a.zla"), line + "1 2 S 6 D1 8" + "\n2 3 S 7 D1 9\n");
    ASSERT_EQ(trace.frames.size(), 3U);
    EXPECT_EQ(trace.frames[0].id, 5U);
    EXPECT_EQ(trace.frames[1].id, 6U);
    EXPECT_EQ(trace.frames[2].id, 7U);
    const QByteArray endless(1'000'000, 'x');
    EXPECT_EQ(readContent(QStringLiteral("b.zla"), endless).frames.size(), 978U);
}

TEST_F(TraceFileReaderTest, LinesAcrossTheBuffersOfTheReader)
{
    QByteArray text;
    constexpr int count = 30'000;
    for (int i = 0; i < count; ++i) {
        text += QByteArray::number(i) + " 0.5 S " + QByteArray::number(i) + " D0 \n";
    }
    const TraceFrames trace = readContent(QStringLiteral("a.zla"), text);
    ASSERT_EQ(trace.frames.size(), static_cast<std::size_t>(count));
    for (std::uint32_t i = 0; i < trace.frames.size(); ++i) {
        ASSERT_EQ(trace.frames[i].id, i);
    }
    EXPECT_EQ(readContent(QStringLiteral("a.zla"), text, 12'345).frames.size(), 12'345U);
}

TEST(TraceTextLine, Identifiers)
{
    struct Row
    {
        const char* text;
        std::uint32_t id;
    };
    const Row rows[] = {{"291", 291},
                        {"2.9", 2},
                        {"-2.9", 0xFFFFFFFEU},
                        {"1e3", 1000},
                        {"+5", 5},
                        {"0x123", 0},
                        {"12a", 0},
                        {"4294967295", 0xFFFFFFFFU},
                        {"4294967296", 0},
                        {"-2147483648", 0x80000000U},
                        {"-2147483649", 0},
                        {"nan", 0},
                        {"inf", 0},
                        {"1e999", 0},
                        {"+-5", 0},
                        {"+", 0}};
    for (const Row& row : rows) {
        EXPECT_EQ(frameOfTraceLine(std::string("0 0 S ") + row.text).id, row.id) << row.text;
    }
}

TEST(TraceTextLine, LengthMarks)
{
    const auto length = [](const char* text) {
        const TraceFrame frame = frameOfTraceLine(std::string("0 0 S 1 ") + text);
        return std::make_pair(int{frame.frameType}, int{frame.byteCount});
    };
    EXPECT_EQ(length("D8"), std::make_pair(0, 8));
    EXPECT_EQ(length("R3"), std::make_pair(1, 3));
    EXPECT_EQ(length("D12"), std::make_pair(0, 2));
    EXPECT_EQ(length("D"), std::make_pair(0, 0));
    EXPECT_EQ(length("R"), std::make_pair(1, 0));
    EXPECT_EQ(length("X7"), std::make_pair(0, 7));
    EXPECT_EQ(length("Da"), std::make_pair(0, 0));
    EXPECT_EQ(length(""), std::make_pair(0, 0));
}

TEST(TraceTextLine, ErrorAndModeWords)
{
    EXPECT_EQ(frameOfTraceLine("0 1 ERROR FRAME").frameType, 255);
    EXPECT_EQ(frameOfTraceLine("0 1 ERROR").frameType, 255);
    EXPECT_EQ(frameOfTraceLine("0 1 ERRORS 5 D1").frameType, 0);
    EXPECT_EQ(frameOfTraceLine("0 1 S 5").mode, 0);
    EXPECT_EQ(frameOfTraceLine("0 1 E 5").mode, 1);
    EXPECT_EQ(frameOfTraceLine("0 1 s 5").mode, 1);
    EXPECT_EQ(frameOfTraceLine("").mode, 1);
}

TEST(TraceTextLine, TimesBeyondTheStampAreClamped)
{
    EXPECT_EQ(frameOfTraceLine("0 -5 S 1").time(), 0.0);
    EXPECT_EQ(frameOfTraceLine("0 nan S 1").time(), 0.0);
    EXPECT_EQ(frameOfTraceLine("0 1e30 S 1").seconds, 4294967295U);
    EXPECT_EQ(frameOfTraceLine("0 12,5 S 1").time(), 0.0) << "a point, whatever the locale";
}

} // namespace
