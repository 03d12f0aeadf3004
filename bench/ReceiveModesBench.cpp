// The display modes of the Receive window: what a frame costs where rows are those of parameters,
// and the repaint of the rows of each mode. Beside it what each batch costs the list of identifiers
// that were seen.

#include "bench/FramePool.h"
#include "bench/WindowMain.h"
#include "gui/traffic/ReceiveTree.h"
#include "message/MessageCan.h"
#include "profile/Arinc825Id.h"
#include "profile/DataTypes.h"
#include "profile/ProfileStore.h"
#include "project/Filter.h"
#include "traffic/ActiveIdentifiers.h"

#include <QApplication>
#include <QTreeWidget>

#include <set>
#include <unordered_map>
#include <vector>

namespace {

using zul::MessageCan;

constexpr int identifiers = 1'000;
constexpr int batchSize = 400;
constexpr int manyParameters = 10; // of each identifier: 10,000 rows
constexpr double tickSeconds = 0.05;
constexpr int ticksInPaintPeriod = 2;
constexpr int hexadecimal = 1;
constexpr QSize windowSize(1'000, 500);

/// `count` parameters for each identifier of the pool, numbers in its first bytes.
ProfileStore::ParameterIndex indexFor(bench::FramePool& pool, int count)
{
    std::set<std::uint32_t> keys;
    for (int i = 0; i < pool.batchesInRound(); ++i) {
        for (const auto& message : pool.next().messages()) {
            keys.insert(zul::arinc825::parameterKey(static_cast<const MessageCan&>(*message).id()));
        }
    }
    ProfileStore::ParameterIndex index;
    for (const std::uint32_t key : keys) {
        for (int i = 0; i < count; ++i) {
            ProfileParameter parameter;
            parameter.id = key;
            parameter.nme = QStringLiteral("Parameter %1").arg(i);
            parameter.dtc = static_cast<std::uint32_t>(zul::ArincType::UChar);
            parameter.max = 255.0;
            index.emplace(key, parameter);
        }
    }
    return index;
}

// Feeds known identifiers again and again; what the rows are is the table's.
void feed(benchmark::State& state, bench::FramePool& pool, ReceiveTable& table)
{
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
    bench::setItems(state, batchSize);
}

// The display modes CAN, CANaerospace and ARINC 825 Raw.
void identifierRows(benchmark::State& state)
{
    bench::FramePool pool(identifiers, batchSize);
    ReceiveTable table;
    feed(state, pool, table);
}

// The display mode ARINC 825 Profile. Range 0 is the number of parameters in each frame; with none
// all are unknown.
void parameterRows(benchmark::State& state)
{
    bench::FramePool pool(identifiers, batchSize);
    const ProfileStore::ParameterIndex index = indexFor(pool, static_cast<int>(state.range(0)));
    ReceiveTable table;
    table.showParameters(index);
    feed(state, pool, table);
}

// The same rows in one list, all of which each frame walks over.
void rowWalk(benchmark::State& state)
{
    struct Row
    {
        std::uint32_t key;
        std::uint32_t count;
        MessageCan frame;
    };
    bench::FramePool pool(identifiers, batchSize);
    std::vector<Row> rows;
    for (const auto& entry : indexFor(pool, static_cast<int>(state.range(0)))) {
        rows.push_back({entry.first, 0, MessageCan()});
    }
    for ([[maybe_unused]] auto _ : state) {
        for (const auto& message : pool.next().messages()) {
            const auto& frame = static_cast<const MessageCan&>(*message);
            const std::uint32_t key = zul::arinc825::parameterKey(frame.id());
            for (Row& row : rows) {
                if (row.key == key) {
                    row.frame = frame;
                    ++row.count;
                }
            }
        }
    }
    bench::setItems(state, batchSize);
}

// The least that keeping the last frame of each identifier takes.
void mapAssignment(benchmark::State& state)
{
    bench::FramePool pool(identifiers, batchSize);
    std::unordered_map<std::uint32_t, MessageCan> rows;
    for ([[maybe_unused]] auto _ : state) {
        for (const auto& message : pool.next().messages()) {
            const auto& frame = static_cast<const MessageCan&>(*message);
            rows[frame.id()] = frame;
        }
    }
    benchmark::DoNotOptimize(rows.size());
    bench::setItems(state, batchSize);
}

void activeIdentifiers(benchmark::State& state)
{
    bench::FramePool pool(identifiers, batchSize);
    ActiveIdentifiers active;
    for (int i = 0; i < pool.batchesInRound(); ++i) {
        active.update(pool.next());
    }
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(active.update(pool.next()).size());
    }
    bench::setItems(state, batchSize);
}

void setLookup(benchmark::State& state)
{
    bench::FramePool pool(identifiers, batchSize);
    std::set<std::uint32_t> seen;
    for ([[maybe_unused]] auto _ : state) {
        for (const auto& message : pool.next().messages()) {
            seen.insert(static_cast<const MessageCan&>(*message).id());
        }
    }
    benchmark::DoNotOptimize(seen.size());
    bench::setItems(state, batchSize);
}

/// A table whose rows all change with each batch, in one display mode.
class ChangingRows
{
public:
    ChangingRows(DisplayMode mode, int parameters)
        : m_pool(identifiers, identifiers), m_index(indexFor(m_pool, parameters))
    {
        if (mode == DisplayMode::Arinc825Profile) {
            m_table.showParameters(m_index);
        }
        change();
    }

    /// Every row gets a frame: other count, time and payload.
    void change()
    {
        m_now += tickSeconds;
        MessageContainer& batch = m_pool.next();
        for (const auto& message : batch.messages()) {
            auto& frame = static_cast<MessageCan&>(*message);
            frame.setTimeStamp(m_now);
            ++frame.msg()[0];
        }
        m_table.update(batch, true, m_filter, m_now);
    }

    ReceiveTable& table() { return m_table; }

private:
    bench::FramePool m_pool;
    ProfileStore::ParameterIndex m_index;
    ReceiveTable m_table;
    Filter m_filter;
    double m_now = 1'000.0;
};

// Repaints rows of which all have changed; `parameters` counts in one mode alone.
void repaint(benchmark::State& state, DisplayMode mode, int parameters)
{
    ChangingRows rows(mode, parameters);
    gui::ReceiveTree tree;
    tree.buildColumns(mode);
    tree.resize(windowSize);
    tree.addMissingRows(rows.table(), hexadecimal);
    tree.show();
    tree.paintDirtyRows(rows.table(), hexadecimal);
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state) {
        rows.change();
        bench::timed(state, [&] { tree.paintDirtyRows(rows.table(), hexadecimal); });
        QApplication::processEvents();
    }
    bench::setItems(state, rows.table().rowCount());
}

void repaintRows(benchmark::State& state, DisplayMode mode)
{
    repaint(state, mode, 1);
}

void repaintManyRows(benchmark::State& state, DisplayMode mode)
{
    repaint(state, mode, manyParameters);
}

void formatRow(DisplayMode mode, const ReceiveTable& table, int index, ReceiveRowText& text)
{
    switch (mode) {
    case DisplayMode::Can:
        receiveRowText(table.row(index), hexadecimal, text);
        break;
    case DisplayMode::CanAerospace:
        receiveCanAerospaceText(table.row(index), hexadecimal, text);
        break;
    case DisplayMode::Arinc825Raw:
        receiveRawText(table.row(index), hexadecimal, text);
        break;
    case DisplayMode::Arinc825Profile:
        receiveProfileText(table.row(index), table.parameter(index), ProfileStore::instance(),
                           hexadecimal, text);
        break;
    }
}

// The texts alone, which no cell gets.
void formatRows(benchmark::State& state, DisplayMode mode)
{
    ChangingRows rows(mode, 1);
    ReceiveRowText text{};
    for ([[maybe_unused]] auto _ : state) {
        for (const int index : rows.table().dirtyRows()) {
            formatRow(mode, rows.table(), index, text);
            benchmark::DoNotOptimize(text);
        }
    }
    bench::setItems(state, rows.table().rowCount());
}

// The same texts in a tree that gets every one written, changed or not.
void plainRows(benchmark::State& state, DisplayMode mode)
{
    ChangingRows rows(mode, 1);
    ReceiveTable& table = rows.table();
    ReceiveRowText text{};
    QTreeWidget tree;
    tree.setColumnCount(static_cast<int>(mostReceiveColumns));
    tree.setUniformRowHeights(true);
    for (int i = 0; i < table.rowCount(); ++i) {
        new QTreeWidgetItem(&tree);
    }
    tree.resize(windowSize);
    tree.show();
    QApplication::processEvents();
    const auto write = [&] {
        for (const int index : table.dirtyRows()) {
            formatRow(mode, table, index, text);
            QTreeWidgetItem* item = tree.topLevelItem(index);
            for (std::size_t column = 0; column < mostReceiveColumns; ++column) {
                if (text.isWritten[column]) {
                    item->setText(static_cast<int>(column), QLatin1String(text.cells[column]));
                }
            }
            if (text.hasLines) {
                item->setText(static_cast<int>(mostReceiveColumns) - 1,
                              QLatin1String(text.lines[0]));
            }
        }
        table.clearDirty();
    };
    for ([[maybe_unused]] auto _ : state) {
        rows.change();
        bench::timed(state, write);
        QApplication::processEvents();
    }
    bench::setItems(state, table.rowCount());
}

// A batch with identifiers that are new to a tree of 10,000 rows that the user has sorted. Range 0
// is the column: identifiers stay in order, counts do not where the same frames come again.
void newRowsInSortedTree(benchmark::State& state)
{
    constexpr std::uint32_t rowsBefore = 10'000;
    const auto newInBatch = static_cast<std::uint32_t>(state.range(1));
    constexpr std::uint32_t spread = 7'919; // prime, so that every identifier comes once
    constexpr std::uint32_t identifierCount = 1U << 20U;
    const auto frame = [](std::uint32_t number) {
        auto* made = new MessageCan;
        made->setId(number * spread % identifierCount);
        made->setByteCount(8);
        return SmartPtr<Message>(made);
    };
    const Filter filter;
    ReceiveTable table;
    gui::ReceiveTree tree;
    tree.resize(windowSize);
    tree.show();
    std::uint32_t next = 0;
    MessageContainer first;
    while (next < rowsBefore) {
        first.addMessage(frame(next++));
    }
    table.update(first, true, filter, 0.0);
    tree.addMissingRows(table, hexadecimal);
    tree.paintDirtyRows(table, hexadecimal);
    tree.sortByColumn(static_cast<int>(state.range(0)), Qt::AscendingOrder);
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state) {
        MessageContainer batch;
        batch.addMessage(frame(next / 2)); // one more of a row that stands there
        for (std::uint32_t i = 0; i < newInBatch; ++i) {
            batch.addMessage(frame(next++));
        }
        table.update(batch, true, filter, 0.0);
        bench::timed(state, [&] { tree.addMissingRows(table, hexadecimal); });
        tree.paintDirtyRows(table, hexadecimal);
        QApplication::processEvents();
    }
    bench::setItems(state, static_cast<int>(newInBatch));
}

BENCHMARK(identifierRows);
BENCHMARK(parameterRows)->ArgName("parameters")->Arg(0)->Arg(1)->Arg(manyParameters);
BENCHMARK(rowWalk)->ArgName("parameters")->Arg(manyParameters);
BENCHMARK(mapAssignment);
BENCHMARK(activeIdentifiers);
BENCHMARK(setLookup);
BENCHMARK_CAPTURE(formatRows, can, DisplayMode::Can);
BENCHMARK_CAPTURE(formatRows, canAerospace, DisplayMode::CanAerospace);
BENCHMARK_CAPTURE(formatRows, raw, DisplayMode::Arinc825Raw);
BENCHMARK_CAPTURE(formatRows, profile, DisplayMode::Arinc825Profile);
BENCHMARK_CAPTURE(repaintRows, can, DisplayMode::Can)->UseManualTime();
BENCHMARK_CAPTURE(repaintRows, canAerospace, DisplayMode::CanAerospace)->UseManualTime();
BENCHMARK_CAPTURE(repaintRows, raw, DisplayMode::Arinc825Raw)->UseManualTime();
BENCHMARK_CAPTURE(repaintRows, profile, DisplayMode::Arinc825Profile)->UseManualTime();
BENCHMARK_CAPTURE(repaintManyRows, profile, DisplayMode::Arinc825Profile)->UseManualTime();
BENCHMARK(newRowsInSortedTree)
    ->ArgNames({"column", "new"})
    ->ArgsProduct({{static_cast<int>(ReceiveColumn::Id), static_cast<int>(ReceiveColumn::Count)},
                   {1, 10}})
    ->Iterations(20)
    ->UseManualTime();
BENCHMARK_CAPTURE(plainRows, can, DisplayMode::Can)->UseManualTime();
BENCHMARK_CAPTURE(plainRows, canAerospace, DisplayMode::CanAerospace)->UseManualTime();
BENCHMARK_CAPTURE(plainRows, raw, DisplayMode::Arinc825Raw)->UseManualTime();
BENCHMARK_CAPTURE(plainRows, profile, DisplayMode::Arinc825Profile)->UseManualTime();

} // namespace
