#include "gui/traffic/ReceiveTreeItem.h"

#include "traffic/ReceiveRowText.h"

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
        break;
    }
    return QTreeWidgetItem::operator<(other);
}

} // namespace gui
