#pragma once

#include "traffic/ReceiveTable.h"

#include <QTreeWidgetItem>

namespace gui {

/// The top line of one row of the Receive window. It sorts by the row's numbers, not by the text
/// that they are shown as.
class ReceiveTreeItem : public QTreeWidgetItem
{
public:
    /// `table` outlives the item.
    ReceiveTreeItem(const ReceiveTable& table, int row);
    ~ReceiveTreeItem() override;

    bool operator<(const QTreeWidgetItem& other) const override;

private:
    const ReceiveTable& m_table;
    int m_row;
};

} // namespace gui
