#include "gui/traffic/ReceiveTree.h"

#include "gui/controls/Colors.h"
#include "gui/traffic/ReceiveTreeItem.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace gui {

namespace {

struct Column
{
    const char* header;
    int width; // pixels; the last column takes the rest
};

constexpr std::array<Column, receiveColumnCount> columns{
    {{"Msgs", 100}, {"Time", 100}, {"Id", 100}, {"Len", 50}, {"Message", 0}}};

constexpr QSize stateIconSize(16, 14);
constexpr int boldWeight = 75;

constexpr int columnOf(ReceiveColumn column)
{
    return static_cast<int>(column);
}

void setCell(QTreeWidgetItem& item, ReceiveColumn column, const char* text)
{
    const QLatin1String wanted(text);
    if (item.text(columnOf(column)) != wanted) {
        item.setText(columnOf(column), wanted);
    }
}

} // namespace

ReceiveTree::ReceiveTree(QWidget* parent)
    : QTreeWidget(parent),
      m_alive(QStringLiteral(":/icons/alive.svg")),
      m_silent(QStringLiteral(":/icons/silent.svg")),
      m_payloadFont(QStringLiteral("Courier"))
{
    m_payloadFont.setStyleHint(QFont::TypeWriter);
    m_payloadFont.setWeight(boldWeight);
    setRootIsDecorated(true);
    setUniformRowHeights(true);
    setIconSize(stateIconSize);
    buildColumns();
    // No column at first: rows stand in the order of their first frames until the user sorts.
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void ReceiveTree::buildColumns()
{
    setColumnCount(receiveColumnCount);
    for (int i = 0; i < receiveColumnCount; ++i) {
        const Column& column = columns[static_cast<std::size_t>(i)];
        headerItem()->setText(i, QLatin1String(column.header));
        if (column.width > 0) {
            setColumnWidth(i, column.width);
        }
    }
}

void ReceiveTree::addMissingRows(const ReceiveTable& table, int numberType)
{
    for (int i = static_cast<int>(m_items.size()); i < table.rowCount(); ++i) {
        addRow(table, i, numberType);
    }
}

void ReceiveTree::addRow(const ReceiveTable& table, int index, int numberType)
{
    Items items{};
    items[0] = new ReceiveTreeItem(table, index);
    QFont bold = font();
    bold.setWeight(boldWeight);
    items[0]->setFont(columnOf(ReceiveColumn::Id), bold);
    items[0]->setFont(columnOf(ReceiveColumn::Length), bold);
    items[0]->setFont(columnOf(ReceiveColumn::Message), m_payloadFont);
    const auto id = table.row(index).msg.id();
    items[0]->setText(columnOf(ReceiveColumn::Id),
                      numberType == 0 ? QString::asprintf("%d", static_cast<int>(id))
                                      : QString::asprintf("0X%X", id));
    for (std::size_t line = 1; line < itemCount; ++line) {
        items[line] = new QTreeWidgetItem(items[0]);
        items[line]->setFont(columnOf(ReceiveColumn::Message), m_payloadFont);
    }
    addTopLevelItem(items[0]);
    m_items.push_back(items);
}

void ReceiveTree::paintDirtyRows(ReceiveTable& table, int numberType)
{
    if (table.dirtyRows().empty()) {
        return;
    }
    {
        const QSignalBlocker blocker(model());
        setUpdatesEnabled(false);
        for (const int index : table.dirtyRows()) {
            paintRow(table.row(index), m_items[static_cast<std::size_t>(index)], numberType);
        }
        setUpdatesEnabled(true);
    }
    table.clearDirty();
}

void ReceiveTree::clearRows()
{
    clear();
    m_items.clear();
}

void ReceiveTree::paintRow(ReceiveRow& row, const Items& items, int numberType)
{
    receiveRowText(row, numberType, m_text);
    QTreeWidgetItem& top = *items[0];
    setCell(top, ReceiveColumn::Count, m_text.count);
    setCell(top, ReceiveColumn::Time, m_text.time);
    setCell(top, ReceiveColumn::Id, m_text.id);
    setCell(top, ReceiveColumn::Length, m_text.length);
    if (m_text.hasLines) {
        paintLines(row, items);
    }
    const QColor& color = m_text.hasLines ? colors::normalText : colors::errorText;
    if (top.foreground(0).color() != color || top.foreground(0).style() == Qt::NoBrush) {
        for (int column = 0; column < receiveColumnCount; ++column) {
            top.setForeground(column, color);
        }
    }
    paintActivity(row, items);
}

void ReceiveTree::paintLines(ReceiveRow& row, const Items& items) const
{
    for (std::size_t line = 0; line < itemCount; ++line) {
        setCell(*items[line], ReceiveColumn::Message, m_text.lines[line]);
    }
    const std::uint32_t byteCount = row.msg.byteCount();
    if (byteCount == row.shownByteCount) {
        return;
    }
    row.shownByteCount = byteCount;
    for (std::size_t line = 1; line < itemCount; ++line) {
        items[line]->setHidden(!isReceiveLineShown(static_cast<int>(line), byteCount));
    }
    // Without this, a row whose lines are all hidden would still offer to unfold.
    items[0]->setChildIndicatorPolicy(isReceiveLineShown(1, byteCount)
                                          ? QTreeWidgetItem::ShowIndicator
                                          : QTreeWidgetItem::DontShowIndicator);
}

void ReceiveTree::paintActivity(ReceiveRow& row, const Items& items) const
{
    if (row.active == row.shownActive && items[0]->background(0).style() != Qt::NoBrush) {
        return;
    }
    row.shownActive = row.active;
    items[0]->setIcon(0, row.active ? m_alive : m_silent);
    const QColor& color = row.active ? colors::aliveRow : colors::silentRow;
    for (QTreeWidgetItem* item : items) {
        for (int column = 0; column < receiveColumnCount; ++column) {
            item->setBackground(column, color);
        }
    }
}

} // namespace gui
