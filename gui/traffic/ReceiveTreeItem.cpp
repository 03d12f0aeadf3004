#include "gui/traffic/ReceiveTreeItem.h"

#include "gui/traffic/ReceiveTree.h"
#include "traffic/ReceiveOrder.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace gui {

ReceiveTreeItem::ReceiveTreeItem(const ReceiveTable& table, int row) : m_table(table), m_row(row) {}

ReceiveTreeItem::~ReceiveTreeItem() = default;

bool ReceiveTreeItem::operator<(const QTreeWidgetItem& other) const
{
    const auto* otherItem = dynamic_cast<const ReceiveTreeItem*>(&other);
    if (otherItem == nullptr || treeWidget() == nullptr) {
        return QTreeWidgetItem::operator<(other);
    }
    const auto* tree = qobject_cast<const ReceiveTree*>(treeWidget());
    return tree != nullptr &&
           isReceiveRowLess(m_table, tree->mode(), tree->sortColumn(), m_row, otherItem->m_row);
}

ReceiveLineItem::ReceiveLineItem(QTreeWidgetItem* row, int line)
    : QTreeWidgetItem(row), m_line(line)
{
}

ReceiveLineItem::~ReceiveLineItem() = default;

bool ReceiveLineItem::operator<(const QTreeWidgetItem& other) const
{
    const auto* otherLine = dynamic_cast<const ReceiveLineItem*>(&other);
    if (otherLine == nullptr || treeWidget() == nullptr) {
        return QTreeWidgetItem::operator<(other);
    }
    const bool isDescending = treeWidget()->header()->sortIndicatorOrder() == Qt::DescendingOrder;
    return isDescending ? otherLine->m_line < m_line : m_line < otherLine->m_line;
}

} // namespace gui
