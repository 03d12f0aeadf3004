// The Receive window itself: batches that bring new identifiers, and the repaint of its rows.

#include "bench/FramePool.h"
#include "bench/WindowMain.h"
#include "gui/traffic/DialogReceive.h"
#include "gui/traffic/ReceiveTree.h"
#include "message/MessageCan.h"
#include "project/Filter.h"
#include "project/ObjectReceive.h"

#include <QApplication>
#include <QTreeWidget>

namespace {

constexpr int paintedRows = 2'000;
constexpr int hexadecimal = 1;
constexpr QSize windowSize(700, 500);
constexpr double tickSeconds = 0.05;

// One batch of identifiers that the window has not seen: rows and items are made. Range 0 is
// their number.
void windowNewRows(benchmark::State& state)
{
    bench::FramePool pool(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        ObjectReceive object;
        gui::DialogReceive window(&object, nullptr);
        window.resize(windowSize);
        window.show();
        QApplication::processEvents();
        bench::timed(state, [&] { window.receive(pool.next()); });
    }
    bench::setItems(state, state.range(0));
}

// Batches of identifiers that have their rows: range 0 identifiers, range 1 frames a batch.
void windowKnownRows(benchmark::State& state)
{
    bench::FramePool pool(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    ObjectReceive object;
    gui::DialogReceive window(&object, nullptr);
    for (int i = 0; i < pool.batchesInRound(); ++i) {
        window.receive(pool.next());
    }
    for ([[maybe_unused]] auto _ : state) {
        window.receive(pool.next());
    }
    bench::setItems(state, state.range(1));
}

/// A table with `paintedRows` rows, all of which each batch changes.
class ChangingTable
{
public:
    ChangingTable() : m_pool(paintedRows, paintedRows) { change(); }

    /// Every row gets a frame: other count, time and payload.
    void change()
    {
        m_now += tickSeconds;
        MessageContainer& batch = m_pool.next();
        for (const auto& message : batch.messages()) {
            auto& frame = static_cast<zul::MessageCan&>(*message);
            frame.setTimeStamp(m_now);
            ++frame.msg()[0];
        }
        m_table.update(batch, true, m_filter, m_now);
    }

    ReceiveTable& table() { return m_table; }

private:
    bench::FramePool m_pool;
    ReceiveTable m_table;
    Filter m_filter;
    double m_now = 1'000.0;
};

enum class Screen { No, Yes };

void finishPainting(Screen screen)
{
    if (screen == Screen::Yes) {
        QApplication::processEvents(); // what is visible goes to the window system
    }
}

void repaintRows(benchmark::State& state, Screen screen)
{
    ChangingTable rows;
    gui::ReceiveTree tree;
    tree.resize(windowSize);
    tree.addMissingRows(rows.table(), hexadecimal);
    tree.show();
    tree.paintDirtyRows(rows.table(), hexadecimal);
    QApplication::processEvents();
    for ([[maybe_unused]] auto _ : state) {
        rows.change();
        bench::timed(state, [&] {
            tree.paintDirtyRows(rows.table(), hexadecimal);
            finishPainting(screen);
        });
        QApplication::processEvents();
    }
    bench::setItems(state, paintedRows);
}

/// The same cells in a tree that gets every text written, changed or not.
class PlainTree
{
public:
    explicit PlainTree(int rows)
    {
        m_tree.setColumnCount(receiveColumnCount);
        m_tree.setUniformRowHeights(true);
        for (int i = 0; i < rows; ++i) {
            auto* top = new QTreeWidgetItem(&m_tree);
            for (int line = 1; line < receiveLineCount; ++line) {
                new QTreeWidgetItem(top);
            }
        }
        m_tree.resize(windowSize);
        m_tree.show();
        QApplication::processEvents();
    }

    void write(ReceiveTable& table)
    {
        for (const int index : table.dirtyRows()) {
            receiveRowText(table.row(index), hexadecimal, m_text);
            QTreeWidgetItem* top = m_tree.topLevelItem(index);
            setText(top, ReceiveColumn::Count, m_text.cell(ReceiveColumn::Count));
            setText(top, ReceiveColumn::Time, m_text.cell(ReceiveColumn::Time));
            setText(top, ReceiveColumn::Id, m_text.cell(ReceiveColumn::Id));
            setText(top, ReceiveColumn::Length, m_text.cell(ReceiveColumn::Length));
            setText(top, ReceiveColumn::Message, m_text.lines[0]);
            for (int line = 1; line < receiveLineCount; ++line) {
                setText(top->child(line - 1), ReceiveColumn::Message, m_text.lines[line]);
            }
        }
        table.clearDirty();
    }

private:
    static void setText(QTreeWidgetItem* item, ReceiveColumn column, const char* text)
    {
        item->setText(static_cast<int>(column), QLatin1String(text));
    }

    QTreeWidget m_tree;
    ReceiveRowText m_text{};
};

void plainRows(benchmark::State& state, Screen screen)
{
    ChangingTable rows;
    PlainTree tree(paintedRows);
    for ([[maybe_unused]] auto _ : state) {
        rows.change();
        bench::timed(state, [&] {
            tree.write(rows.table());
            finishPainting(screen);
        });
        QApplication::processEvents();
    }
    bench::setItems(state, paintedRows);
}

// The texts alone, which no cell gets.
void formatRows(benchmark::State& state)
{
    ChangingTable rows;
    ReceiveRowText text{};
    for ([[maybe_unused]] auto _ : state) {
        for (const int index : rows.table().dirtyRows()) {
            receiveRowText(rows.table().row(index), hexadecimal, text);
            benchmark::DoNotOptimize(text);
        }
    }
    bench::setItems(state, paintedRows);
}

BENCHMARK(windowNewRows)->ArgName("ids")->Arg(1'000)->Arg(20'000)->UseManualTime();
BENCHMARK(windowKnownRows)->ArgNames({"ids", "batch"})->ArgsProduct({{10, 1'000, 20'000}, {400}});
BENCHMARK(formatRows);
BENCHMARK_CAPTURE(repaintRows, cells, Screen::No)->UseManualTime();
BENCHMARK_CAPTURE(plainRows, cells, Screen::No)->UseManualTime();
BENCHMARK_CAPTURE(repaintRows, screen, Screen::Yes)->UseManualTime();
BENCHMARK_CAPTURE(plainRows, screen, Screen::Yes)->UseManualTime();

} // namespace
