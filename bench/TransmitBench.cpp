// What a tick of the Transmit window costs.
//
//   bench_transmit                         the benchmarks
//   bench_transmit --periods [SECONDS]     the periods that really come out, 20 s for each set

#include "bench/BenchMain.h"
#include "bench/TransmitPeriods.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "traffic/Transmitter.h"

#include <QApplication>

#include <clocale>
#include <cstdlib>
#include <string>

namespace {

constexpr int lineCount = 1'000;
constexpr int rateMs = 10;
constexpr double firstTick = 1'000.0;

void addLines(ObjectTransmit& object)
{
    for (int i = 0; i < lineCount; ++i) {
        auto line = std::make_unique<SendMsg>();
        line->id = static_cast<std::uint32_t>(i);
        line->byteCount = 8;
        line->rate = rateMs;
        line->running = 1;
        line->lastSent = firstTick;
        object.lines().push_back(std::move(line));
    }
}

// All lines run, and none is due.
void tickWithoutFrames(benchmark::State& state)
{
    ObjectTransmit object;
    addLines(object);
    Transmitter transmitter;
    for ([[maybe_unused]] auto _ : state) {
        auto batch = transmitter.tick(object, firstTick);
        benchmark::DoNotOptimize(batch);
    }
    bench::setItems(state, lineCount);
}

// The same lines, walked over with one comparison each.
void plainWalk(benchmark::State& state)
{
    ObjectTransmit object;
    addLines(object);
    double now = firstTick;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(now);
        int count = 0;
        for (const auto& line : object.lines()) {
            if (now > line->lastSent) {
                ++count;
            }
        }
        benchmark::DoNotOptimize(count);
    }
    bench::setItems(state, lineCount);
}

// All lines are due at every tick; the batch is freed, too.
void tickWithAllFrames(benchmark::State& state)
{
    ObjectTransmit object;
    addLines(object);
    Transmitter transmitter;
    double now = firstTick;
    for ([[maybe_unused]] auto _ : state) {
        now += 1.0;
        auto batch = transmitter.tick(object, now);
        benchmark::DoNotOptimize(batch);
    }
    bench::setItems(state, lineCount);
}

// As many empty frames, put into a batch and freed.
void plainBatch(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        MessageContainer batch;
        for (int i = 0; i < lineCount; ++i) {
            batch.addMessage(SmartPtr<Message>(new zul::MessageCan));
        }
        benchmark::DoNotOptimize(batch);
    }
    bench::setItems(state, lineCount);
}

BENCHMARK(tickWithoutFrames);
BENCHMARK(plainWalk);
BENCHMARK(tickWithAllFrames);
BENCHMARK(plainBatch);

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || std::string(argv[1]) != "--periods") {
        return bench::runBenchmarks(
            argc, argv,
            {{"tickWithoutFrames", "plainWalk", 0.0}, {"tickWithAllFrames", "plainBatch", 0.0}});
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // NOLINT(concurrency-mt-unsafe)
    constexpr double defaultSeconds = 20.0;
    const double seconds = argc > 2 ? std::atof(argv[2]) : 0.0;
    bench::measureTransmitPeriods(seconds > 0.0 ? seconds : defaultSeconds);
    return 0;
}
