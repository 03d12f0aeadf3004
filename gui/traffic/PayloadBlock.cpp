#include "gui/traffic/PayloadBlock.h"

#include "gui/controls/QwtByteCount.h"
#include "gui/controls/QwtLineEdit.h"
#include "gui/controls/WheelGuard.h"
#include "gui/traffic/EditorLook.h"
#include "traffic/MessageEntry.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace gui {

namespace {

using messageentry::bytesPerRow;
using messageentry::payloadRows;

constexpr int gap = 1;
constexpr int byteCountWidth = 48;
constexpr int rowLabelWidth = 30;
// A line edit keeps 2 pixels on each side of its text, which are given back here.
constexpr int cellTextMargin = -2;
constexpr int cursorWidth = 1;

// Columns of the layout.
constexpr int byteCountColumn = 0;
constexpr int rowLabelColumn = 1;
constexpr int firstCellColumn = 2;

static_assert(PayloadBlock::cellCount == messageentry::payloadBytes);

} // namespace

PayloadBlock::PayloadBlock(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    buildByteCount(layout);
    for (int row = 0; row < payloadRows; ++row) {
        buildRow(layout, row);
    }
    layout->setRowStretch(payloadRows, 1);
}

void PayloadBlock::buildByteCount(QGridLayout* layout)
{
    m_byteCount = new QwtByteCount(0, this);
    m_byteCount->setObjectName(QStringLiteral("byteCount"));
    m_byteCount->setToolTip(QStringLiteral("Message Byte Count"));
    m_byteCount->setFixedSize(byteCountWidth, editorRowHeight);
    WheelGuard::protect(m_byteCount);
    auto* label = new QLabel(QStringLiteral("BC"), this);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedHeight(editorRowHeight);
    layout->addWidget(m_byteCount, 0, byteCountColumn);
    layout->addWidget(label, 1, byteCountColumn);
    connect(m_byteCount, &QwtByteCount::signalValueChanged, this, &PayloadBlock::signalByteCount);
}

void PayloadBlock::buildRow(QGridLayout* layout, int row)
{
    auto* label = new QLabel(QStringLiteral("B%1").arg(row * bytesPerRow), this);
    label->setFixedSize(rowLabelWidth, editorRowHeight);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setIndent(2);
    layout->addWidget(label, row, rowLabelColumn);
    m_rowLabels.at(static_cast<std::size_t>(row)) = label;
    const int cellWidth = fontMetrics().horizontalAdvance(QStringLiteral("0xDD")) + cursorWidth;
    for (int i = 0; i < bytesPerRow; ++i) {
        const int index = row * bytesPerRow + i;
        auto* cell = new QwtLineEdit(index, this);
        cell->setToolTip(QStringLiteral("Message Payload"));
        cell->setFrame(false);
        cell->setTextMargins(cellTextMargin, 0, cellTextMargin, 0);
        cell->setAlignment(Qt::AlignCenter);
        cell->setMinimumWidth(cellWidth);
        cell->setFixedHeight(editorRowHeight);
        cell->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        if (index > 0) {
            setTabOrder(m_cells.at(static_cast<std::size_t>(index - 1)), cell);
        }
        layout->addWidget(cell, row, firstCellColumn + i);
        layout->setColumnStretch(firstCellColumn + i, 1);
        m_cells.at(static_cast<std::size_t>(index)) = cell;
        connect(cell, &QwtLineEdit::signalTextChanged, this, &PayloadBlock::signalData);
    }
}

void PayloadBlock::setValidator(const QValidator* validator)
{
    for (QwtLineEdit* cell : m_cells) {
        cell->setValidator(validator);
    }
}

void PayloadBlock::setNumberType(int numberType)
{
    m_byteCount->setNumberType(numberType);
}

void PayloadBlock::show(const SendMsg& message, int numberType)
{
    // Any number beyond the table is as good as another: it has no code.
    constexpr std::uint32_t beyond = messageentry::payloadBytes + 1;
    m_byteCount->setValue(static_cast<int>(std::min(message.byteCount, beyond)));
    for (int i = 0; i < cellCount; ++i) {
        const QString text = messageentry::byteText(message.data[i], numberType);
        if (cell(i)->text() != text) {
            cell(i)->setText(text);
        }
    }
}

void PayloadBlock::layOutRows(std::uint32_t byteCount)
{
    const int shown = messageentry::shownRows(byteCount);
    for (int i = 0; i < cellCount; ++i) {
        const int row = i / bytesPerRow;
        cell(i)->setVisible(row < shown);
        cell(i)->setEnabled(static_cast<std::uint32_t>(i) < byteCount);
        m_rowLabels.at(static_cast<std::size_t>(row))->setVisible(row < shown);
    }
}

} // namespace gui
