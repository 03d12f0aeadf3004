#include "gui/traffic/ReceiveTreeItem.h"

#include "traffic/ReceiveRowText.h"

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
    const ReceiveRow& left = m_table.row(m_row);
    const ReceiveRow& right = m_table.row(otherItem->m_row);
    switch (static_cast<ReceiveColumn>(treeWidget()->sortColumn())) {
    case ReceiveColumn::Count:
        return left.count < right.count;
    case ReceiveColumn::Time:
        return left.msg.timeStampDouble() < right.msg.timeStampDouble();
    case ReceiveColumn::Id:
        return left.msg.id() < right.msg.id();
    case ReceiveColumn::Length:
        return left.msg.byteCount() < right.msg.byteCount();
    case ReceiveColumn::Message:
        return isPayloadLess(left.msg, right.msg);
    }
    return QTreeWidgetItem::operator<(other);
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
