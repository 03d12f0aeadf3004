#pragma once

#include "traffic/ReceiveColumns.h"
#include "traffic/ReceiveTable.h"

#include <QTreeWidgetItem>

namespace gui {

/// The top line of one row of the Receive window. It sorts by the row's numbers, not by the text
/// that they are shown as.
class ReceiveTreeItem : public QTreeWidgetItem
{
public:
    /// `table` outlives the item, which belongs into a `ReceiveTree`.
    ReceiveTreeItem(const ReceiveTable& table, int row);
    ~ReceiveTreeItem() override;

    /// Number of the row in the table.
    int row() const { return m_row; }

    bool operator<(const QTreeWidgetItem& other) const override;

private:
    const ReceiveTable& m_table;
    int m_row;
};

/// A line below a row's first one. However the tree is sorted, the lines keep their order.
class ReceiveLineItem : public QTreeWidgetItem
{
public:
    /// `line` is 1 for the one right below.
    ReceiveLineItem(QTreeWidgetItem* row, int line);
    ~ReceiveLineItem() override;

    bool operator<(const QTreeWidgetItem& other) const override;

private:
    int m_line;
};

} // namespace gui
