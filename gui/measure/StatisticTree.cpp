#include "gui/measure/StatisticTree.h"

#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtBarItem.h"
#include "gui/measure/QwtPeriodItem.h"
#include "gui/measure/StatisticItem.h"
#include "measure/StatisticRowText.h"

#include <algorithm>
#include <array>

namespace gui {

namespace {

constexpr std::array<int, StatisticTree::columnTotal> columnWidths{60, 80, 120};
constexpr QSize markerSize(16, 14);
constexpr int cellMargins = 8;
constexpr std::size_t mostCells = 200;    // each one costs time when the rows are scrolled
constexpr std::uint32_t smoothedFrom = 3; // frames

const char* valueHeader(StatisticView view)
{
    for (const StatisticViewTexts& texts : statisticViews) {
        if (texts.view == view && texts.valueHeader != nullptr) {
            return texts.valueHeader;
        }
    }
    return "";
}

template <typename Cell>
void setActivity(Cell& cell, bool active)
{
    cell.setBackground(active ? colors::aliveRow : colors::silentRow);
}

} // namespace

StatisticTree::StatisticTree(const StatisticTable& table, QWidget* parent)
    : QTreeWidget(parent),
      m_table(table),
      m_alive(icon("alive")),
      m_silent(icon("silent")),
      m_boldFont(font())
{
    m_boldFont.setWeight(boldWeight);
    setRootIsDecorated(false);
    setExpandsOnDoubleClick(false); // a double click chooses the message
    setUniformRowHeights(true);
    setIconSize(markerSize);
    setColumnCount(columnTotal);
    for (int column = 0; column < columnTotal; ++column) {
        setColumnWidth(column, columnWidths[static_cast<std::size_t>(column)]);
    }
    setView(m_view);
}

void StatisticTree::setView(StatisticView view)
{
    m_view = view;
    setHeaderLabels(
        {QStringLiteral("Id"), QStringLiteral("Total"), QLatin1String(valueHeader(view))});
}

void StatisticTree::showTable()
{
    addMissingRows();
    const auto [first, end] = rowsInView();
    for (int row = first; row < end; ++row) {
        showRow(row);
    }
    m_firstNewRow = m_table.rowCount();
}

void StatisticTree::addMissingRows()
{
    const int known = topLevelItemCount();
    m_firstNewRow = known;
    if (known == m_table.rowCount()) {
        return;
    }
    // Before the items, and these all at once: the tree may lay itself out as they come in, which
    // shows those that are in view.
    m_shown.resize(static_cast<std::size_t>(m_table.rowCount()));
    QList<QTreeWidgetItem*> items;
    for (int row = known; row < m_table.rowCount(); ++row) {
        items.append(new StatisticItem(*this, row));
    }
    addTopLevelItems(items);
    for (int row = known; row < m_table.rowCount(); ++row) {
        widenFor(row);
    }
}

// The column starts at its width, and grows where an identifier would be cut.
void StatisticTree::widenFor(int row)
{
    const QString text = statisticIdText(m_table.entry(row), m_view);
    const int needed = QFontMetrics(m_boldFont).horizontalAdvance(text) + cellMargins;
    if (needed > columnWidth(IdColumn)) {
        setColumnWidth(IdColumn, needed);
    }
}

// The first one, and the one behind the last.
std::pair<int, int> StatisticTree::rowsInView() const
{
    const QModelIndex top = indexAt(QPoint(0, 0));
    if (!top.isValid()) {
        return {0, 0};
    }
    const int height = std::max(visualRect(top).height(), 1);
    const int rows = viewport()->height() / height + 2;
    return {top.row(), std::min(top.row() + rows, topLevelItemCount())};
}

void StatisticTree::showRow(int row)
{
    QTreeWidgetItem* item = topLevelItem(row);
    const StatisticEntry& entry = m_table.entry(row);
    Shown& shown = m_shown[static_cast<std::size_t>(row)];
    if (entry.count != shown.count || entry.active != shown.isActive) {
        shown = {entry.count, entry.active};
        viewport()->update(visualItemRect(item));
    }
    if (m_view == StatisticView::PeriodTime) {
        showPeriod(row, *item);
    } else {
        showRate(row, *item);
    }
}

void StatisticTree::showRate(int row, QTreeWidgetItem& item)
{
    auto* bar = qobject_cast<QwtBarItem*>(itemWidget(&item, ValueColumn));
    if (bar == nullptr) {
        bar = new QwtBarItem(row);
        setCell(row, bar);
        if (row < m_firstNewRow) { // it comes into view late, and need not rise from 0
            bar->setRate(m_table.rate(row), m_table.rateMax());
        }
    }
    bar->setValue(m_table.rate(row), m_table.rateMax());
    setActivity(*bar, m_table.entry(row).active);
}

void StatisticTree::showPeriod(int row, QTreeWidgetItem& item)
{
    const StatisticEntry& entry = m_table.entry(row);
    auto* cell = qobject_cast<QwtPeriodItem*>(itemWidget(&item, ValueColumn));
    const bool isLate = cell == nullptr && row < m_firstNewRow;
    if (cell == nullptr) {
        cell = new QwtPeriodItem;
        setCell(row, cell);
    }
    if (entry.count < smoothedFrom || isLate) {
        cell->startAt(entry.period);
    }
    cell->setPeriod(entry.period, entry.periodMin, entry.periodMax, m_table.periodScale());
    setActivity(*cell, entry.active);
}

void StatisticTree::clearRows()
{
    clear();
    m_shown.clear();
    m_cellRows.clear();
    m_firstNewRow = 0;
    setColumnWidth(IdColumn, columnWidths[IdColumn]);
}

void StatisticTree::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    completeRowsInView();
}

void StatisticTree::scrollContentsBy(int dx, int dy)
{
    QTreeWidget::scrollContentsBy(dx, dy);
    completeRowsInView();
}

// Rows that came into view between two batches.
void StatisticTree::completeRowsInView()
{
    const auto [first, end] = rowsInView();
    for (int row = first; row < end; ++row) {
        if (itemWidget(topLevelItem(row), ValueColumn) == nullptr) {
            showRow(row);
        }
    }
    if (m_cellRows.size() > mostCells) {
        dropCellsOutOfView(first, end);
    }
}

void StatisticTree::setCell(int row, QWidget* cell)
{
    setItemWidget(topLevelItem(row), ValueColumn, cell);
    m_cellRows.push_back(row);
}

void StatisticTree::dropCellsOutOfView(int first, int end)
{
    const auto out = std::partition(m_cellRows.begin(), m_cellRows.end(),
                                    [=](int row) { return row >= first && row < end; });
    std::for_each(out, m_cellRows.end(),
                  [this](int row) { removeItemWidget(topLevelItem(row), ValueColumn); });
    m_cellRows.erase(out, m_cellRows.end());
}

} // namespace gui
