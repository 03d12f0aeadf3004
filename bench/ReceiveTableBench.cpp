// The rows of the Receive window below the window: what a frame costs, however many rows there are.

#include "bench/FramePool.h"
#include "bench/RatioReporter.h"
#include "message/MessageCan.h"
#include "project/Filter.h"
#include "traffic/ReceiveTable.h"

#include <unordered_map>

namespace {

constexpr double tickSeconds = 0.05;
constexpr int ticksInPaintPeriod = 2;

// Range 0 is the number of identifiers, range 1 that of frames in a batch.
void tableUpdate(benchmark::State& state)
{
    bench::FramePool pool(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    ReceiveTable table;
    const Filter filter;
    double now = 1'000.0;
    for (int i = 0; i < pool.batchesInRound(); ++i) {
        table.update(pool.next(), true, filter, now);
    }
    int tick = 0;
    for ([[maybe_unused]] auto _ : state) {
        now += tickSeconds;
        table.update(pool.next(), true, filter, now);
        if (++tick % ticksInPaintPeriod == 0) {
            table.clearDirty(); // as painting does
        }
    }
    bench::setItems(state, state.range(1));
}

// The least that keeping the last frame of each identifier takes.
void mapAssignment(benchmark::State& state)
{
    bench::FramePool pool(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    std::unordered_map<std::uint32_t, zul::MessageCan> rows;
    const auto update = [&rows](const MessageContainer& batch) {
        for (const auto& message : batch.messages()) {
            const auto& frame = static_cast<const zul::MessageCan&>(*message);
            rows[frame.id()] = frame;
        }
    };
    for (int i = 0; i < pool.batchesInRound(); ++i) {
        update(pool.next());
    }
    for ([[maybe_unused]] auto _ : state) {
        update(pool.next());
    }
    benchmark::DoNotOptimize(rows.size());
    bench::setItems(state, state.range(1));
}

void counts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"ids", "batch"});
    benchmark->ArgsProduct({{10, 1'000, 20'000}, {400, 8'500}});
}

BENCHMARK(tableUpdate)->Apply(counts);
BENCHMARK(mapAssignment)->Apply(counts);

} // namespace
