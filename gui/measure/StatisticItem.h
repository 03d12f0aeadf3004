#pragma once

#include "measure/Statistic.h"

#include <QTreeWidgetItem>

namespace gui {

class StatisticTree;

/// A row of the CAN Statistic window. It holds nothing: what a cell shows comes from the table at
/// the moment when it is painted, so that rows out of sight cost nothing.
class StatisticItem : public QTreeWidgetItem
{
public:
    /// Neither the tree, to which it is to be added, nor its table goes before the item.
    StatisticItem(StatisticTree& tree, int row);
    ~StatisticItem() override;

    /// The identifier is the user data of the first column.
    QVariant data(int column, int role) const override;

private:
    QVariant displayed(const StatisticEntry& entry, int column) const;

    StatisticTree& m_tree;
    int m_row;
};

} // namespace gui
