#pragma once

#include "measure/Statistic.h"

#include <QFont>
#include <QIcon>
#include <QTreeWidget>

#include <utility>
#include <vector>

namespace gui {

/// The rows of a `StatisticTable`, each with a cell widget for its rate or its period. A row gets
/// its widget when it comes into view, and only rows in view are looked at. Of rows that have left
/// it some keep their widgets.
class StatisticTree : public QTreeWidget
{
    Q_OBJECT

public:
    enum Column { IdColumn, TotalColumn, ValueColumn, columnTotal };

    /// `table` outlives the tree.
    explicit StatisticTree(const StatisticTable& table, QWidget* parent = nullptr);

    /// Sets the heads of the columns for a view that has a table.
    void setView(StatisticView view);
    StatisticView view() const { return m_view; }
    const StatisticTable& table() const { return m_table; }
    /// Makes items for the rows that the table has more, and shows what has changed.
    void showTable();
    /// Removes all items.
    void clearRows();

    /// For the items.
    const QFont& boldFont() const { return m_boldFont; }
    const QIcon& marker(bool active) const { return active ? m_alive : m_silent; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    /// What the view shows of a row's texts.
    struct Shown
    {
        std::uint32_t count = 0;
        bool isActive = false;
    };

    void addMissingRows();
    void widenFor(int row);
    std::pair<int, int> rowsInView() const;
    void showRow(int row);
    void showRate(int row, QTreeWidgetItem& item);
    void showPeriod(int row, QTreeWidgetItem& item);
    void completeRowsInView();
    void setCell(int row, QWidget* cell);
    void dropCellsOutOfView(int first, int end);

    const StatisticTable& m_table;
    StatisticView m_view = StatisticView::Average;
    QIcon m_alive;
    QIcon m_silent;
    QFont m_boldFont;
    std::vector<Shown> m_shown;  // by row
    std::vector<int> m_cellRows; // rows that have a cell widget
    int m_firstNewRow = 0;       // rows from it on had their first frame in this batch
};

} // namespace gui
