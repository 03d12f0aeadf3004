#include "gui/measure/StatisticItem.h"

#include "gui/controls/Colors.h"
#include "gui/measure/StatisticTree.h"
#include "measure/StatisticRowText.h"

namespace gui {

StatisticItem::StatisticItem(StatisticTree& tree, int row) : m_tree(tree), m_row(row) {}

StatisticItem::~StatisticItem() = default;

QVariant StatisticItem::data(int column, int role) const
{
    if (m_row >= m_tree.table().rowCount()) {
        return {}; // it is on its way out
    }
    const StatisticEntry& entry = m_tree.table().entry(m_row);
    switch (role) {
    case Qt::DisplayRole:
        return displayed(entry, column);
    case Qt::UserRole:
        return column == StatisticTree::IdColumn ? QVariant(entry.frame.id()) : QVariant();
    case Qt::FontRole:
        return column == StatisticTree::IdColumn ? QVariant(m_tree.boldFont()) : QVariant();
    case Qt::ForegroundRole:
        return QBrush(isErrorFrame(entry) ? colors::errorText : colors::normalText);
    case Qt::BackgroundRole:
        return QBrush(entry.active ? colors::aliveRow : colors::silentRow);
    case Qt::DecorationRole:
        return column == StatisticTree::TotalColumn ? QVariant(m_tree.marker(entry.active))
                                                    : QVariant();
    default:
        return QTreeWidgetItem::data(column, role);
    }
}

QVariant StatisticItem::displayed(const StatisticEntry& entry, int column) const
{
    switch (column) {
    case StatisticTree::IdColumn:
        return statisticIdText(entry, m_tree.view());
    case StatisticTree::TotalColumn:
        return statisticCountText(entry);
    default:
        return {}; // the cell's widget lies there
    }
}

} // namespace gui
