#include "gui/traffic/ReceiveTree.h"

#include "gui/controls/Colors.h"
#include "gui/traffic/ReceiveTreeItem.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

namespace gui {

namespace {

struct Column
{
    const char* header;
    int width;           // pixels; the last column takes the rest
    const char* longest; // a text that the column shows whole, also in a wide font
};

constexpr std::array<Column, receiveColumnCount> columns{{{"Msgs", 100, ""},
                                                          {"Time", 100, "0000000000.0000"},
                                                          {"Id", 100, "EB 0x1FFFFFFF"},
                                                          {"Len", 50, "D64"},
                                                          {"Message", 0, ""}}};

constexpr QSize stateIconSize(16, 14);
constexpr int boldWeight = 75;
constexpr int cellMargins = 8;
constexpr int payloadFontPixels = 11;

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
    m_payloadFont.setPixelSize(payloadFontPixels);
    setRootIsDecorated(true);
    setExpandsOnDoubleClick(false); // a double click asks for a dial
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
    QFont bold = font();
    bold.setWeight(boldWeight);
    const QFontMetrics metrics(bold);
    for (int i = 0; i < receiveColumnCount; ++i) {
        const Column& column = columns[static_cast<std::size_t>(i)];
        headerItem()->setText(i, QLatin1String(column.header));
        if (column.width > 0) {
            const int needed = metrics.horizontalAdvance(QLatin1String(column.longest));
            setColumnWidth(i, std::max(column.width, needed + cellMargins));
        }
    }
}

void ReceiveTree::addMissingRows(const ReceiveTable& table, int numberType)
{
    for (int i = static_cast<int>(m_rows.size()); i < table.rowCount(); ++i) {
        addRow(table, i, numberType);
    }
}

void ReceiveTree::addRow(const ReceiveTable& table, int index, int numberType)
{
    Row row;
    auto& items = row.items;
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
        items[line] = new ReceiveLineItem(items[0], static_cast<int>(line));
        items[line]->setFont(columnOf(ReceiveColumn::Message), m_payloadFont);
    }
    addTopLevelItem(items[0]);
    for (std::size_t line = 1; line < itemCount; ++line) {
        row.items[line]->setHidden(true); // until the first painting knows the byte count
    }
    m_rows.push_back(row);
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
            paintRow(table.row(index), m_rows[static_cast<std::size_t>(index)], numberType);
        }
        setUpdatesEnabled(true);
    }
    table.clearDirty();
}

void ReceiveTree::clearRows()
{
    clear();
    m_rows.clear();
}

void ReceiveTree::paintRow(ReceiveRow& record, Row& row, int numberType)
{
    receiveRowText(record, numberType, m_text);
    QTreeWidgetItem& top = *row.items[0];
    setCell(top, ReceiveColumn::Count, m_text.count);
    setCell(top, ReceiveColumn::Time, m_text.time);
    setCell(top, ReceiveColumn::Id, m_text.id);
    setCell(top, ReceiveColumn::Length, m_text.length);
    if (m_text.hasLines) {
        paintLines(record, row);
    }
    const Shown wanted = m_text.hasLines ? Shown::Frame : Shown::ErrorFrame;
    if (row.shown != wanted) {
        row.shown = wanted;
        const QColor& color = m_text.hasLines ? colors::normalText : colors::errorText;
        for (int column = 0; column < receiveColumnCount; ++column) {
            top.setForeground(column, color);
        }
    }
    paintActivity(record, row);
}

void ReceiveTree::paintLines(ReceiveRow& record, Row& row) const
{
    const std::size_t before = row.lines;
    row.lines = 0;
    for (std::size_t line = 0; line < itemCount; ++line) {
        const bool isEmpty = m_text.lines[line][0] == '\0';
        if (!isEmpty) {
            row.lines = line + 1;
        }
        if (!isEmpty || line < before) {
            setCell(*row.items[line], ReceiveColumn::Message, m_text.lines[line]);
        }
    }
    const std::uint32_t byteCount = record.msg.byteCount();
    if (byteCount == record.shownByteCount) {
        return;
    }
    record.shownByteCount = byteCount;
    for (std::size_t line = 1; line < itemCount; ++line) {
        row.items[line]->setHidden(!isReceiveLineShown(static_cast<int>(line), byteCount));
    }
}

void ReceiveTree::paintActivity(ReceiveRow& record, Row& row) const
{
    // A row that turned silent before its first painting has never been shown either way.
    if (record.active == record.shownActive && row.hasBackground) {
        return;
    }
    record.shownActive = record.active;
    row.hasBackground = true;
    row.items[0]->setIcon(0, record.active ? m_alive : m_silent);
    const QColor& color = record.active ? colors::aliveRow : colors::silentRow;
    for (QTreeWidgetItem* item : row.items) {
        for (int column = 0; column < receiveColumnCount; ++column) {
            item->setBackground(column, color);
        }
    }
}

} // namespace gui
