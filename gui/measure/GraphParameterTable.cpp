#include "gui/measure/GraphParameterTable.h"

#include "gui/controls/QwtCheckBox.h"

#include <QHeaderView>

namespace gui {

namespace {

constexpr int lineHeight = 20; // pixels
constexpr int nameFontPixels = 12;
constexpr int activeWidth = 22;
constexpr int colorWidth = 30;

} // namespace

GraphParameterTable::GraphParameterTable(QWidget* parent) : QTableWidget(0, ColumnCount, parent)
{
    setShowGrid(false);
    setFocusPolicy(Qt::NoFocus);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(lineHeight);
    verticalHeader()->setDefaultSectionSize(lineHeight);
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(activeWidth);
    horizontalHeader()->setSectionResizeMode(ActiveColumn, QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(ColorColumn, QHeaderView::Fixed);
    setColumnWidth(ActiveColumn, activeWidth);
    setColumnWidth(ColorColumn, colorWidth);
}

void GraphParameterTable::fill(const std::vector<GraphParameter>& parameters, int selectedRow)
{
    setAutoScroll(false); // the user's place in the list stays
    clearContents();
    setRowCount(static_cast<int>(parameters.size()));
    QFont bold = font();
    bold.setBold(true);
    bold.setPixelSize(nameFontPixels);
    int row = 0;
    for (const GraphParameter& parameter : parameters) {
        auto* active = new QwtCheckBox(row, this);
        active->setFocusPolicy(Qt::NoFocus);
        active->setChecked(parameter.active);
        // Queued: the answer makes all rows anew, and this box with them.
        connect(active, &QwtCheckBox::signalToggled, this, &GraphParameterTable::signalActive,
                Qt::QueuedConnection);
        setCellWidget(row, ActiveColumn, active);
        auto* name = new QTableWidgetItem(parameter.parameter.nme);
        name->setFont(bold);
        name->setToolTip(parameter.parameter.nme);
        setItem(row, NameColumn, name);
        auto* color = new QTableWidgetItem;
        color->setFlags(Qt::ItemIsEnabled); // a selected cell would not show it
        color->setBackground(QColor(parameter.parameter.color));
        setItem(row, ColorColumn, color);
        ++row;
    }
    clearSelection();
    selectRow(selectedRow);
    setAutoScroll(true);
}

int GraphParameterTable::selectedRow() const
{
    const QList<QTableWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : selected.first()->row();
}

} // namespace gui
