// The CAN Statistic window: what a frame costs in each view, and the repaint. 2,000 identifiers at
// 20,000 frames a second, in ticks of 50 ms.

#include "bench/FramePool.h"
#include "bench/WindowMain.h"
#include "gui/measure/DialogStatistic.h"
#include "measure/SpreadPlot.h"
#include "measure/Statistic.h"
#include "message/MessageCan.h"
#include "project/Filter.h"
#include "project/ObjectStatistic.h"

#include <QApplication>
#include <QTreeWidget>

#include <random>
#include <string>
#include <unordered_map>

namespace {

constexpr int identifiers = 2'000;
constexpr int tickFrames = 1'000;
constexpr double tickSeconds = 0.05;
constexpr double startTime = 1'000.0;
constexpr int warmUpTicks = 40; // longer than the second that rates look back
constexpr QSize windowSize(700, 500);
constexpr PlotSize plotSize{700, 400};

/// Batches whose time stamps go on from tick to tick, as a bus has them.
class Bus
{
public:
    Bus() : m_pool(identifiers, tickFrames) {}

    MessageContainer& next()
    {
        MessageContainer& batch = m_pool.next();
        int number = 0;
        for (const auto& message : batch.messages()) {
            auto& frame = static_cast<zul::MessageCan&>(*message);
            frame.setTimeStamp(m_now + tickSeconds * number++ / tickFrames);
        }
        m_now += tickSeconds;
        return batch;
    }
    double now() const { return m_now; }
    static std::uint32_t someId(MessageContainer& batch)
    {
        return static_cast<zul::MessageCan&>(*batch.messages().front()).id();
    }

private:
    bench::FramePool m_pool;
    double m_now = startTime;
};

StatisticSettings settingsOf(std::int64_t view, Bus& bus)
{
    StatisticSettings settings;
    settings.displayType = static_cast<std::int32_t>(view);
    settings.selectedId = Bus::someId(bus.next());
    return settings;
}

// The measurement alone. Range 0 is the view.
void statisticUpdate(benchmark::State& state)
{
    Bus bus;
    const StatisticSettings settings = settingsOf(state.range(0), bus);
    Statistic statistic(startTime);
    const Filter filter;
    const std::string everyInterface = allInterfaces;
    const auto tick = [&](MessageContainer& batch) {
        statistic.receive(batch, settings, everyInterface, filter, bus.now());
    };
    statistic.busLoad().setMeasureTime(1'000'000'000); // it is to go on
    for (int i = 0; i < warmUpTicks; ++i) {
        tick(bus.next());
    }
    for ([[maybe_unused]] auto _ : state) {
        MessageContainer& batch = bus.next();
        bench::timed(state, [&] { tick(batch); });
    }
    bench::setItems(state, tickFrames);
}

// The least that counting takes: a plain hash of count and last time.
void hashUpdate(benchmark::State& state)
{
    struct Last
    {
        std::uint32_t count;
        double time;
    };
    Bus bus;
    std::unordered_map<std::uint32_t, Last> seen;
    for ([[maybe_unused]] auto _ : state) {
        MessageContainer& batch = bus.next();
        bench::timed(state, [&] {
            for (const auto& message : batch.messages()) {
                if (const auto* frame = message_cast<zul::MessageCan>(message.get())) {
                    Last& last = seen[frame->id()];
                    ++last.count;
                    last.time = frame->timeStampDouble();
                }
            }
        });
    }
    benchmark::DoNotOptimize(seen);
    bench::setItems(state, tickFrames);
}

// A tick of the whole window, with what is drawn. Range 0 is the view.
void windowTick(benchmark::State& state)
{
    Bus bus;
    ObjectStatistic object;
    object.settings() = settingsOf(state.range(0), bus);
    gui::DialogStatistic window(&object, nullptr);
    window.resize(windowSize);
    window.show();
    for (int i = 0; i < warmUpTicks; ++i) {
        window.receive(bus.next());
        QApplication::processEvents();
    }
    for ([[maybe_unused]] auto _ : state) {
        MessageContainer& batch = bus.next();
        bench::timed(state, [&] {
            window.receive(batch);
            QApplication::processEvents();
        });
    }
    bench::setItems(state, 1);
}

// The same cells in a tree that gets the texts of all rows written at each tick.
void plainTreeTick(benchmark::State& state)
{
    Bus bus;
    QTreeWidget tree;
    tree.setColumnCount(3);
    tree.setUniformRowHeights(true);
    for (int i = 0; i < identifiers; ++i) {
        new QTreeWidgetItem(&tree);
    }
    tree.resize(windowSize);
    tree.show();
    int count = 0;
    for ([[maybe_unused]] auto _ : state) {
        bench::timed(state, [&] {
            ++count;
            for (int i = 0; i < identifiers; ++i) {
                QTreeWidgetItem* item = tree.topLevelItem(i);
                item->setText(0, QString::asprintf("E %d", i));
                item->setText(1, QString::asprintf("%d", count));
                item->setText(2, QString::asprintf("%d Msg/s", count));
            }
            QApplication::processEvents();
        });
    }
    bench::setItems(state, 1);
}

// The first batch with 2,000 identifiers: rows are made.
void windowNewRows(benchmark::State& state)
{
    bench::FramePool pool(identifiers, identifiers);
    for ([[maybe_unused]] auto _ : state) {
        ObjectStatistic object;
        gui::DialogStatistic window(&object, nullptr);
        window.resize(windowSize);
        window.show();
        QApplication::processEvents();
        bench::timed(state, [&] { window.receive(pool.next()); });
    }
    bench::setItems(state, identifiers);
}

// The picture of a histogram as full as it gets. Range 0 is the mode.
void fullHistogram(benchmark::State& state)
{
    SpreadHistogram histogram;
    std::mt19937 generator(825); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same each time
    std::uniform_real_distribution<double> periods(0.0, 2.0);
    double time = 0.0;
    while (histogram.buckets().size() < maxBuckets) {
        time += periods(generator);
        histogram.add(time, time);
    }
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(
            spreadPlot(histogram, histogramMode(static_cast<int>(state.range(0))), plotSize));
    }
    bench::setItems(state, 1);
}

BENCHMARK(hashUpdate)->UseManualTime();
BENCHMARK(statisticUpdate)->ArgName("view")->DenseRange(0, 3)->UseManualTime();
BENCHMARK(windowTick)->ArgName("view")->DenseRange(0, 3)->UseManualTime();
BENCHMARK(plainTreeTick)->UseManualTime();
BENCHMARK(windowNewRows)->UseManualTime();
BENCHMARK(fullHistogram)->ArgName("mode")->DenseRange(0, 1);

std::vector<bench::Comparison> comparisons()
{
    std::vector<bench::Comparison> pairs;
    for (const char* view : {"0", "1", "2", "3"}) {
        pairs.push_back({std::string("statisticUpdate/view:") + view + "/manual_time",
                         "hashUpdate/manual_time", 0.0});
    }
    for (const char* view : {"0", "1"}) {
        pairs.push_back({std::string("windowTick/view:") + view + "/manual_time",
                         "plainTreeTick/manual_time", 0.0});
    }
    return pairs;
}

} // namespace

int main(int argc, char** argv)
{
    return bench::runWindowBenchmarks(argc, argv, comparisons());
}
