#include "gui/traffic/ReceiveTree.h"

#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/traffic/ReceiveTreeItem.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileStore.h"
#include "traffic/ReceiveOrder.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace gui {

namespace {

using CellFont = ReceiveColumnTexts::Font;

constexpr QSize stateIconSize(16, 14);
constexpr int cellMargins = 8;
constexpr int payloadFontPixels = 11;
constexpr int arincHeaderFontPixels = 12;
// A row that is put between others moves the indexes of all lines that are hidden: more new rows
// than these take longer that way than sorting all.
constexpr int mostInPlace = 4;
// Deliberate: a row of ARINC 825 Raw has an empty line below those of its frame.
constexpr int rawLineCount = receiveLineCount + 1;

/// A column set's columns.
struct Columns
{
    const ReceiveColumnTexts* texts;
    int count;
};

Columns columnsOf(ReceiveColumnSet set)
{
    switch (set) {
    case ReceiveColumnSet::Arinc825Raw:
        return {receiveRawColumns.data(), static_cast<int>(receiveRawColumns.size())};
    case ReceiveColumnSet::Arinc825Profile:
        return {receiveProfileColumns.data(), static_cast<int>(receiveProfileColumns.size())};
    case ReceiveColumnSet::Can:
        break;
    }
    return {receiveColumns.data(), static_cast<int>(receiveColumns.size())};
}

bool hasLines(ReceiveColumnSet set)
{
    return set != ReceiveColumnSet::Arinc825Profile;
}

void setCell(QTreeWidgetItem& item, int column, const char* text)
{
    const QLatin1String wanted(text);
    if (item.text(column) != wanted) {
        item.setText(column, wanted);
    }
}

} // namespace

ReceiveTree::ReceiveTree(QWidget* parent)
    : QTreeWidget(parent),
      m_alive(icon("alive")),
      m_silent(icon("silent")),
      m_payloadFont(typewriterFont(payloadFontPixels))
{
    m_payloadFont.setWeight(boldWeight);
    setRootIsDecorated(true);
    setExpandsOnDoubleClick(false); // a double click asks for a dial
    setUniformRowHeights(true);
    setIconSize(stateIconSize);
    buildColumns(m_mode);
    sortByNone();
    setSortingEnabled(true);
}

// Rows stand in the order of their first frames until the user sorts.
void ReceiveTree::sortByNone()
{
    header()->setSortIndicator(-1, Qt::AscendingOrder);
}

void ReceiveTree::buildColumns(DisplayMode mode)
{
    m_mode = mode;
    if (m_set != receiveColumnSet(mode)) {
        m_set = receiveColumnSet(mode);
        sortByNone(); // the user chose it from other columns
    }
    const Columns columns = columnsOf(m_set);
    // A column that becomes the last one would else stay as wide as it was in the middle.
    header()->setStretchLastSection(false);
    setColumnCount(columns.count);
    QFont headerFont = font();
    headerFont.setPixelSize(arincHeaderFontPixels);
    for (int i = 0; i < columns.count; ++i) {
        const ReceiveColumnTexts& column = columns.texts[i];
        headerItem()->setText(i, QLatin1String(column.header));
        headerItem()->setToolTip(i, QLatin1String(column.toolTip));
        headerItem()->setData(i, Qt::FontRole,
                              m_set == ReceiveColumnSet::Can ? QVariant() : QVariant(headerFont));
        if (column.font == CellFont::Payload) {
            m_payloadColumn = i;
        }
        const QFontMetrics metrics(cellFont(column.font));
        int needed = metrics.horizontalAdvance(QLatin1String(column.longest)) + cellMargins;
        if (i == 0 && column.longest[0] != '\0') {
            needed += indentation() + stateIconSize.width() + cellMargins;
        }
        const int width = column.width > 0 ? std::max(column.width, needed) : 0;
        setColumnWidth(i, std::max(width, header()->minimumSectionSize()));
    }
    header()->setStretchLastSection(true);
}

QFont ReceiveTree::cellFont(CellFont font) const
{
    if (font == CellFont::Payload) {
        return m_payloadFont;
    }
    QFont made = this->font();
    made.setWeight(font == CellFont::Bold ? boldWeight : made.weight());
    return made;
}

void ReceiveTree::setCellFonts(QTreeWidgetItem& item) const
{
    const Columns columns = columnsOf(m_set);
    for (int i = 0; i < columns.count; ++i) {
        if (columns.texts[i].font != CellFont::Normal) {
            item.setFont(i, cellFont(columns.texts[i].font));
        }
    }
}

void ReceiveTree::addMissingRows(const ReceiveTable& table, int numberType)
{
    const int shown = static_cast<int>(m_rows.size());
    if (shown == table.rowCount()) {
        return;
    }
    const Sorting sorting{sortColumn(), header()->sortIndicatorOrder()};
    const bool isInPlace =
        sorting.column >= 0 && table.rowCount() - shown <= mostInPlace && isInOrder(table, sorting);
    if (sorting.column >= 0) {
        stopSorting(isInPlace);
    }
    for (int i = shown; i < table.rowCount(); ++i) {
        addRow(table, i, numberType, isInPlace ? placeOf(table, sorting, i) : i);
    }
    if (sorting.column >= 0) {
        goOnSorting(sorting);
    }
}

// While the tree sorts, each new row and each line that is hidden would sort all of them anew.
// Where the rows stand in order, they need not be sorted afterwards either: by no column nothing is
// done when sorting is switched on, and the header does not tell that the column comes back.
void ReceiveTree::stopSorting(bool isInPlace)
{
    const QSignalBlocker quiet(header());
    if (isInPlace) {
        sortByNone();
    }
    setSortingEnabled(false);
}

void ReceiveTree::goOnSorting(const Sorting& sorting)
{
    setSortingEnabled(true);
    const QSignalBlocker quiet(header());
    header()->setSortIndicator(sorting.column, sorting.order);
}

int ReceiveTree::rowOf(int place) const
{
    return static_cast<const ReceiveTreeItem*>(topLevelItem(place))->row();
}

bool ReceiveTree::isBefore(const ReceiveTable& table, const Sorting& sorting, int left,
                           int right) const
{
    if (sorting.order == Qt::DescendingOrder) {
        std::swap(left, right);
    }
    return isReceiveRowLess(table, m_mode, sorting.column, left, right);
}

// Values may have changed since the rows were sorted.
bool ReceiveTree::isInOrder(const ReceiveTable& table, const Sorting& sorting) const
{
    for (int place = 1; place < topLevelItemCount(); ++place) {
        if (isBefore(table, sorting, rowOf(place), rowOf(place - 1))) {
            return false;
        }
    }
    return true;
}

// Behind those that are equal to it, as if all were sorted.
int ReceiveTree::placeOf(const ReceiveTable& table, const Sorting& sorting, int row) const
{
    int first = 0;
    int last = topLevelItemCount();
    while (first < last) {
        const int middle = first + (last - first) / 2;
        if (isBefore(table, sorting, row, rowOf(middle))) {
            last = middle;
        } else {
            first = middle + 1;
        }
    }
    return first;
}

void ReceiveTree::addRow(const ReceiveTable& table, int index, int numberType, int place)
{
    Row row;
    row.items[0] = new ReceiveTreeItem(table, index);
    setCellFonts(*row.items[0]);
    addNames(table, index, numberType, *row.items[0]);
    if (hasLines(m_set)) {
        addLines(row);
    }
    insertTopLevelItem(place, row.items[0]);
    for (std::size_t line = 1; line < itemCount && hasLines(m_set); ++line) {
        row.items[line]->setHidden(true); // until the first painting knows the byte count
    }
    m_rows.push_back(row);
}

void ReceiveTree::addNames(const ReceiveTable& table, int index, int numberType,
                           QTreeWidgetItem& top) const
{
    const std::uint32_t id = table.row(index).firstId;
    switch (m_set) {
    case ReceiveColumnSet::Can:
        top.setText(static_cast<int>(ReceiveColumn::Id),
                    isHexadecimal(numberType) ? QString::asprintf("0X%X", id)
                                              : QString::asprintf("%d", zul::asSigned(id)));
        break;
    case ReceiveColumnSet::Arinc825Raw:
        top.setData(0, Qt::UserRole, zul::asSigned(id));
        break;
    case ReceiveColumnSet::Arinc825Profile: {
        top.setData(0, Qt::UserRole, zul::asSigned(id));
        const ReceiveRowNames names = receiveRowNames(table.row(index), table.parameter(index));
        top.setText(static_cast<int>(ReceiveProfileColumn::Rci), QString(QLatin1Char(names.rci)));
        top.setText(static_cast<int>(ReceiveProfileColumn::Parameter), names.parameter);
        top.setText(static_cast<int>(ReceiveProfileColumn::Unit), names.unit);
        break;
    }
    }
}

void ReceiveTree::addLines(Row& row) const
{
    const int count = m_set == ReceiveColumnSet::Arinc825Raw ? rawLineCount : receiveLineCount;
    for (int line = 1; line < count; ++line) {
        auto* item = new ReceiveLineItem(row.items[0], line);
        item->setFont(m_payloadColumn, m_payloadFont);
        if (line < receiveLineCount) {
            row.items[static_cast<std::size_t>(line)] = item;
        }
    }
}

void ReceiveTree::paintDirtyRows(ReceiveTable& table, int numberType)
{
    if (table.dirtyRows().empty()) {
        return;
    }
    {
        const QSignalBlocker blocker(model());
        // The viewport's alone: the header would be painted over windows that cover it.
        viewport()->setUpdatesEnabled(false);
        for (const int index : table.dirtyRows()) {
            paintRow(table, index, numberType);
        }
        viewport()->setUpdatesEnabled(true);
    }
    table.clearDirty();
}

void ReceiveTree::clearRows()
{
    clear();
    m_rows.clear();
}

void ReceiveTree::formatRow(const ReceiveTable& table, int index, int numberType)
{
    const ReceiveRow& record = table.row(index);
    switch (m_mode) {
    case DisplayMode::Can:
        receiveRowText(record, numberType, m_text);
        break;
    case DisplayMode::CanAerospace:
        receiveCanAerospaceText(record, numberType, m_text);
        break;
    case DisplayMode::Arinc825Raw:
        receiveRawText(record, numberType, m_text);
        break;
    case DisplayMode::Arinc825Profile:
        receiveProfileText(record, table.parameter(index), ProfileStore::instance(), numberType,
                           m_text);
        break;
    }
}

void ReceiveTree::paintRow(ReceiveTable& table, int index, int numberType)
{
    formatRow(table, index, numberType);
    ReceiveRow& record = table.row(index);
    Row& row = m_rows[static_cast<std::size_t>(index)];
    QTreeWidgetItem& top = *row.items[0];
    for (std::size_t column = 0; column < mostReceiveColumns; ++column) {
        if (m_text.isWritten[column]) {
            setCell(top, static_cast<int>(column), m_text.cells[column]);
        }
    }
    if (m_text.hasLines) {
        paintLines(record, row);
    }
    const Shown wanted = m_text.isError ? Shown::ErrorFrame : Shown::Frame;
    if (row.shown != wanted) {
        row.shown = wanted;
        const QColor& color = m_text.isError ? colors::errorText : colors::normalText;
        for (int column = 0; column < columnCount(); ++column) {
            top.setForeground(column, color);
        }
    }
    paintActivity(record, row);
    table.notePainted(index);
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
            setCell(*row.items[line], m_payloadColumn, m_text.lines[line]);
        }
    }
    const std::uint32_t byteCount = record.msg.byteCount();
    if (byteCount == record.shownByteCount && row.hasLinesHidden) {
        return;
    }
    row.hasLinesHidden = true;
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
        for (int column = 0; item != nullptr && column < columnCount(); ++column) {
            item->setBackground(column, color);
        }
    }
}

} // namespace gui
