// Recording traces against writing the same bytes; loading, seeking and playing them.

#include "bench/FramePool.h"
#include "bench/WindowMain.h"
#include "gui/traffic/DialogTrace.h"
#include "message/MessageCan.h"
#include "profile/ProfileStore.h"
#include "project/Filter.h"
#include "project/ObjectTrace.h"
#include "traffic/Replay.h"
#include "traffic/TraceFileReader.h"
#include "traffic/TraceFiles.h"
#include "traffic/TraceLayout.h"
#include "traffic/TraceLine.h"
#include "traffic/TraceRecorder.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using zul::MessageCan;

constexpr int identifiers = 1'000;
constexpr int framesInBatch = 400;  // of a saturated bus in one turn of the heartbeat
constexpr int batchesInTrace = 500; // then the files begin anew, so that the disk does not fill
constexpr int loadedFrames = 10'000'000;
constexpr int framesInTick = 80; // of a saturated bus
constexpr QSize windowSize(700, 500);

std::string pathIn(const QTemporaryDir& directory, const char* name)
{
    return directory.filePath(QLatin1String(name)).toLatin1().toStdString();
}

const MessageCan& frameOf(const SmartPtr<Message>& message)
{
    return static_cast<const MessageCan&>(*message);
}

class CFile
{
public:
    void open(const std::string& path, const char* mode)
    {
        m_file.reset(std::fopen(path.c_str(), mode));
    }
    std::FILE* get() const { return m_file.get(); }

private:
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closer> m_file;
};

// The bytes of both files, ready made: what writing costs by itself.
void readyBytes(benchmark::State& state)
{
    const QTemporaryDir directory;
    bench::FramePool pool(identifiers, framesInBatch);
    const ProfileStore store;
    std::vector<trace_layout::Record> records;
    std::vector<std::string> lines;
    for (const auto& message : pool.next().messages()) {
        records.push_back(trace_layout::recordOf(frameOf(message)));
        lines.emplace_back();
        appendTraceFileLine(lines.back(), frameOf(message), 0, 0, 0, store);
        lines.back() += '\n';
    }
    CFile binary;
    CFile ascii;
    int batch = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (batch++ % batchesInTrace == 0) {
            binary.open(pathIn(directory, "ready.zlb"), "wb");
            ascii.open(pathIn(directory, "ready.zla"), "w");
        }
        for (std::size_t i = 0; i < records.size(); ++i) {
            std::fwrite(records[i].data(), 1, records[i].size(), binary.get());
            std::fwrite(lines[i].data(), 1, lines[i].size(), ascii.get());
        }
    }
    bench::setItems(state, framesInBatch);
}

// The same bytes made from the frames: the road of a recorded frame into its files.
void traceFiles(benchmark::State& state)
{
    const QTemporaryDir directory;
    bench::FramePool pool(identifiers, framesInBatch);
    const ProfileStore store;
    TraceFiles files;
    std::string line;
    std::uint32_t number = 0;
    int batch = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (batch++ % batchesInTrace == 0 &&
            !files.open(pathIn(directory, "trace"), QDateTime::currentDateTime())) {
            state.SkipWithError("no trace files");
        }
        for (const auto& message : pool.next().messages()) {
            line.clear();
            appendTraceFileLine(line, frameOf(message), number++, 0, 0, store);
            files.write(frameOf(message), line);
        }
    }
    bench::setItems(state, framesInBatch);
}

// All that the recorder does with a frame, its line for the screen included; range 0 tells whether
// it writes files.
void recorder(benchmark::State& state)
{
    const QTemporaryDir directory;
    bench::FramePool pool(identifiers, framesInBatch);
    const ProfileStore store;
    const Filter filter;
    const TraceSettings settings;
    TraceRecorder recorder;
    int batch = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (state.range(0) != 0 && batch++ % batchesInTrace == 0) {
            if (recorder.state() == TraceRecorder::State::Active) {
                benchmark::DoNotOptimize(recorder.startOrStop({}, 0.0));
            }
            benchmark::DoNotOptimize(recorder.startOrStop(pathIn(directory, ""), 0.0));
        }
        benchmark::DoNotOptimize(recorder.receive(pool.next(), settings, filter, store).html);
    }
    bench::setItems(state, framesInBatch);
}

// The window in use, with its painting: range 0 tells whether it is visible.
void window(benchmark::State& state)
{
    bench::FramePool pool(identifiers, framesInBatch);
    ObjectTrace object;
    gui::DialogTrace dialog(&object, nullptr);
    dialog.resize(windowSize);
    dialog.setVisible(state.range(0) != 0);
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state) {
        dialog.receive(pool.next());
        QApplication::processEvents();
    }
    bench::setItems(state, framesInBatch);
}

/// A trace file of 10 million frames, one each millisecond.
class LargeTrace
{
public:
    LargeTrace()
    {
        TraceFiles files;
        MessageCan frame;
        frame.setByteCount(8);
        std::string line;
        if (!files.open(pathIn(m_directory, "large"), QDateTime::currentDateTime())) {
            return;
        }
        for (int i = 0; i < loadedFrames; ++i) {
            frame.setId(static_cast<std::uint32_t>(i % identifiers));
            frame.setTimeStamp(1'000.0 + i * 0.001);
            line.clear();
            files.write(frame, line);
        }
    }
    QString path() const { return m_directory.filePath(QStringLiteral("large.zlb")); }

private:
    QTemporaryDir m_directory;
};

const LargeTrace& largeTrace()
{
    static const LargeTrace trace;
    return trace;
}

void plainRead(benchmark::State& state)
{
    const std::string path = largeTrace().path().toLatin1().toStdString();
    constexpr std::size_t bytesAtOnce = 65'536;
    std::vector<char> bytes(bytesAtOnce);
    for ([[maybe_unused]] auto _ : state) {
        CFile file;
        file.open(path, "rb");
        std::size_t sum = 0;
        for (std::size_t count = bytesAtOnce; count == bytesAtOnce; sum += count) {
            count = std::fread(bytes.data(), 1, bytes.size(), file.get());
        }
        benchmark::DoNotOptimize(sum);
    }
    bench::setItems(state, loadedFrames);
}

void load(benchmark::State& state)
{
    const QString path = largeTrace().path();
    TraceFrames trace;
    for ([[maybe_unused]] auto _ : state) {
        readTraceFile(path, trace);
    }
    if (trace.frames.size() != loadedFrames) {
        state.SkipWithError("not all frames were loaded");
    }
    bench::setItems(state, loadedFrames);
}

// To the end of the file: all frames are looked at.
void seek(benchmark::State& state)
{
    Replay replay;
    replay.load(largeTrace().path());
    replay.startOrPause(0.0);
    replay.startOrPause(0.0);
    for ([[maybe_unused]] auto _ : state) {
        replay.seek(Replay::sliderMaximum);
        benchmark::DoNotOptimize(replay.position());
    }
    bench::setItems(state, loadedFrames);
}

// Range 0 is the number of frames that are due at each tick.
void replayTick(benchmark::State& state)
{
    const ReplaySettings settings;
    Replay replay;
    replay.load(largeTrace().path());
    replay.startOrPause(0.0);
    const double step = static_cast<double>(state.range(0)) * 0.001;
    double now = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        now += step;
        benchmark::DoNotOptimize(replay.tick(now, settings).batch.size());
        if (!replay.isRunning()) {
            replay.startOrPause(now);
        }
    }
    bench::setItems(state, std::max<std::int64_t>(state.range(0), 1));
}

// What a frame that is played cannot do without: its message.
void messagesMade(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        MessageContainer batch;
        for (int i = 0; i < framesInTick; ++i) {
            batch.addMessage(SmartPtr<Message>(new MessageCan));
        }
        benchmark::DoNotOptimize(batch.size());
    }
    bench::setItems(state, framesInTick);
}

BENCHMARK(readyBytes);
BENCHMARK(traceFiles);
BENCHMARK(recorder)->ArgName("writes")->Arg(0)->Arg(1);
BENCHMARK(window)->ArgName("visible")->Arg(0)->Arg(1);
BENCHMARK(plainRead)->UseRealTime()->Iterations(1);
BENCHMARK(load)->UseRealTime()->Iterations(1);
BENCHMARK(seek)->Iterations(1);
BENCHMARK(replayTick)->ArgName("due")->Arg(0)->Arg(framesInTick);
BENCHMARK(messagesMade);

std::vector<bench::Comparison> comparisons()
{
    constexpr double mostOfWriting = 3.0;
    return {{"traceFiles", "readyBytes", mostOfWriting},
            {"load/iterations:1/real_time", "plainRead/iterations:1/real_time", 0.0},
            {"replayTick/due:80", "messagesMade", 0.0}};
}

} // namespace

int main(int argc, char** argv)
{
    return bench::runWindowBenchmarks(argc, argv, comparisons());
}
