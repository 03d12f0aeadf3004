#include "gui/traffic/ReceiveTreeItem.h"

#include "gui/traffic/ReceiveTree.h"
#include "traffic/ReceiveOrder.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace gui {

ReceiveTreeItem::ReceiveTreeItem(const ReceiveTable& table, ReceiveColumnSet set, int row)
    : m_table(table), m_set(set), m_row(row)
{
}

ReceiveTreeItem::~ReceiveTreeItem() = default;

bool ReceiveTreeItem::operator<(const QTreeWidgetItem& other) const
{
    const auto* otherItem = dynamic_cast<const ReceiveTreeItem*>(&other);
    if (otherItem == nullptr || treeWidget() == nullptr) {
        return QTreeWidgetItem::operator<(other);
    }
    const int column = treeWidget()->sortColumn();
    const QString shown = text(column);
    const QString otherShown = other.text(column);
    if (shown.isEmpty() || otherShown.isEmpty()) { // an error frame may have emptied the cell
        return shown.isEmpty() && !otherShown.isEmpty();
    }
    const auto* tree = dynamic_cast<const ReceiveTree*>(treeWidget());
    if (tree != nullptr && tree->isPlainText(column)) {
        return shown < otherShown;
    }
    return isReceiveRowLess(m_table, m_set, column, m_row, otherItem->m_row);
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
