#include "gui/traffic/TransmitTable.h"

#include "gui/controls/Colors.h"
#include "gui/traffic/MessageEditor.h"
#include "gui/traffic/QwtTransmitButton.h"
#include "project/SendMsg.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace gui {

namespace {

constexpr int sideWidth = 80; // of the columns beside the messages, in pixels
constexpr int rowsAhead = 4;  // that get their controls before they come into view

// How far to scroll that `first` to `last` comes into a view of that size; its beginning, if there
// is no room for all.
int wayInto(int first, int last, int size)
{
    if (first < 0) {
        return first;
    }
    return last < size ? 0 : std::min(last - size + 1, first);
}

} // namespace

TransmitTable::TransmitTable(QWidget* parent) : QTableWidget(parent)
{
    qRegisterMetaType<SendMsg*>("SendMsg*");
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false); // within a row it is the fields' own
    setEditTriggers(DoubleClicked | EditKeyPressed);
    QPalette colors = palette();
    colors.setColor(QPalette::Highlight, colors::selectedRow);
    colors.setColor(QPalette::HighlightedText, Qt::black);
    setPalette(colors);
    verticalHeader()->hide();
    const auto rowsMoved = QOverload<>::of(&TransmitTable::requestControls);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, rowsMoved);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, rowsMoved);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &TransmitTable::fitColumns);
    qApp->installEventFilter(this);
}

// Tab may go to a field out of view, and nobody is to type into what cannot be seen. Focus that
// comes by the mouse or with the window moves nothing: a press would be released over another row.
bool TransmitTable::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const auto* field = qobject_cast<QWidget*>(watched);
        const bool isByKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
        if (isByKey && field != nullptr && viewport()->isAncestorOf(field)) {
            showField(*field);
        }
    }
    return QTableWidget::eventFilter(watched, event);
}

void TransmitTable::showField(const QWidget& field)
{
    const auto place = [this](const QWidget& widget) {
        return QRect(widget.mapTo(viewport(), QPoint()), widget.size());
    };
    if (viewport()->rect().contains(place(field))) {
        return;
    }
    const QWidget* row = &field;
    while (row->parentWidget() != viewport()) {
        row = row->parentWidget();
    }
    QScrollBar* down = verticalScrollBar();
    for (const QWidget* widget : {row, &field}) { // the whole row, if there is room for it
        const QRect rect = place(*widget);
        down->setValue(down->value() + wayInto(rect.top(), rect.bottom(), viewport()->height()));
    }
    QScrollBar* across = horizontalScrollBar();
    const QRect rect = place(field);
    across->setValue(across->value() + wayInto(rect.left(), rect.right(), viewport()->width()));
}

void TransmitTable::commitEntry()
{
    QWidget* field = QApplication::focusWidget();
    if (field != nullptr && isAncestorOf(field)) {
        field->clearFocus();
    }
}

void TransmitTable::startOver()
{
    // An editor that loses the focus on its way out must not give back a line that has gone.
    for (int row = 0; row < rowCount(); ++row) {
        if (MessageEditor* leaving = editor(row)) {
            leaving->blockSignals(true);
        }
        if (QWidget* button = cellWidget(row, TransmitColumn)) {
            button->blockSignals(true);
        }
    }
    m_isComplete.clear();
    clear();
    setRowCount(0);
    setColumnCount(columnTotal);
    setHorizontalHeaderLabels(
        {QStringLiteral("Name"), QStringLiteral("Message"), QStringLiteral("Transmit")});
    setColumnWidth(NameColumn, sideWidth);
    setColumnWidth(TransmitColumn, sideWidth);
    horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::Interactive);
    horizontalHeader()->setSectionResizeMode(MessageColumn, QHeaderView::Stretch);
    m_messageWidth = 0;
}

int TransmitTable::appendLine(SendMsg* line)
{
    const int row = rowCount();
    insertRow(row);
    m_isComplete.push_back(false);
    auto* item = new QTableWidgetItem(line->name);
    QFont bold = item->font();
    bold.setBold(true);
    item->setFont(bold);
    item->setData(Qt::UserRole, QVariant::fromValue(line));
    setItem(row, NameColumn, item);
    for (const int column : {MessageColumn, TransmitColumn}) {
        auto* place = new QTableWidgetItem;
        place->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled); // no text to be typed there
        setItem(row, column, place);
    }
    return row;
}

void TransmitTable::requestControls()
{
    if (m_isFilling) {
        return; // controls that come in move rows
    }
    const QScopedValueRollback<bool> guard(m_isFilling, true);
    for (int row = 0; row < std::min(firstRows, rowCount()); ++row) {
        requestControls(row);
    }
    const int top = rowAt(0);
    if (top < 0) {
        return; // no rows, or still scrolled to where rows were
    }
    int ahead = rowsAhead; // rows to go below the view
    for (int row = std::max(top - rowsAhead, 0); row < rowCount() && ahead > 0; ++row) {
        requestControls(row);
        ahead -= rowViewportPosition(row) >= viewport()->height() ? 1 : 0;
    }
    const int bottom = rowAt(viewport()->height() - 1);
    giveBackControls(top, bottom < 0 ? rowCount() - 1 : bottom);
}

void TransmitTable::giveBackControls(int top, int bottom)
{
    for (int row = firstRows; row < static_cast<int>(m_isComplete.size()); ++row) {
        const bool isNear = row >= top - keptRows && row <= bottom + keptRows;
        const QWidget* field = QApplication::focusWidget();
        const auto has = [&](int column) {
            const QWidget* widget = cellWidget(row, column);
            return widget != nullptr && field != nullptr && widget->isAncestorOf(field);
        };
        const auto place = static_cast<std::size_t>(row);
        if (isNear || !m_isComplete[place] || has(MessageColumn) || has(TransmitColumn)) {
            continue;
        }
        m_isComplete[place] = false;
        removeCellWidget(row, MessageColumn);
        removeCellWidget(row, TransmitColumn);
    }
}

void TransmitTable::requestControls(int row)
{
    const auto place = static_cast<std::size_t>(row);
    if (place < m_isComplete.size() && !m_isComplete[place]) {
        m_isComplete[place] = true;
        emit signalControlsWanted(row);
    }
}

void TransmitTable::setEditor(int row, MessageEditor* editor, int width)
{
    setCellWidget(row, MessageColumn, editor);
    m_messageWidth = std::max(
        {m_messageWidth, width, editor->minimumWidth(), editor->minimumSizeHint().width()});
    fitColumns();
}

void TransmitTable::setButton(int row, QwtTransmitButton* button)
{
    setCellWidget(row, TransmitColumn, button);
}

MessageEditor* TransmitTable::editor(int row) const
{
    return qobject_cast<MessageEditor*>(cellWidget(row, MessageColumn));
}

std::set<int> TransmitTable::selectedRows() const
{
    std::set<int> rows;
    for (const QModelIndex& index : selectedIndexes()) {
        rows.insert(index.row());
    }
    return rows;
}

SendMsg* TransmitTable::lineOf(const QTableWidgetItem& item)
{
    return item.data(Qt::UserRole).value<SendMsg*>();
}

void TransmitTable::resizeEvent(QResizeEvent* event)
{
    QTableWidget::resizeEvent(event);
    fitColumns();
    requestControls();
}

// Keys that a field in a row has no use for are not the table's.
void TransmitTable::keyPressEvent(QKeyEvent* event)
{
    if (hasFocus()) {
        QTableWidget::keyPressEvent(event);
    } else {
        event->ignore();
    }
}

// A column that stretches is as narrow as the window is, and its editors would be cut.
void TransmitTable::fitColumns()
{
    if (columnCount() != columnTotal || m_isFitting) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_isFitting, true);
    const int room = viewport()->width() - columnWidth(NameColumn) - columnWidth(TransmitColumn);
    const bool isWide = room >= m_messageWidth;
    const auto mode = isWide ? QHeaderView::Stretch : QHeaderView::Interactive;
    if (horizontalHeader()->sectionResizeMode(MessageColumn) != mode) {
        horizontalHeader()->setSectionResizeMode(MessageColumn, mode);
    }
    if (!isWide) {
        setColumnWidth(MessageColumn, m_messageWidth);
    }
}

} // namespace gui
