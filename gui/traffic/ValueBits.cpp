#include "gui/traffic/ValueBits.h"

#include "gui/controls/Colors.h"
#include "gui/controls/QwtPushButton.h"
#include "traffic/CanAerospaceEntry.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace gui {

namespace {

using canaerospaceentry::valueBits;

constexpr int boxWidth = 16; // pixels
constexpr int boxHeight = 14;
constexpr int labelPixels = 8;
constexpr int labelHeight = 9;
constexpr int gapWidth = 8;
constexpr int buttonHeight = 19;
constexpr int bitsPerRow = 16;
constexpr int bitsPerGroup = 8;

// Two rows of labels and boxes in the grid: the upper half of the bits on top, each from right to
// left, with a gap in the middle.
int columnOf(int bit)
{
    const int fromRight = bit % bitsPerRow;
    return bitsPerRow - fromRight - (fromRight >= bitsPerGroup ? 1 : 0);
}

int rowOf(int bit)
{
    return bit < bitsPerRow ? 2 : 0;
}

} // namespace

ValueBits::ValueBits(QWidget* parent) : QWidget(parent), m_bits(new QButtonGroup(this))
{
    m_bits->setExclusive(false);
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setColumnMinimumWidth(bitsPerGroup, gapWidth);
    for (int bit = valueBits - 1; bit >= 0; --bit) {
        addBit(grid, bit);
    }
    auto* setAll = new QwtPushButton(QStringLiteral("Set all"), colors::addOrSend, this);
    auto* resetAll = new QwtPushButton(QStringLiteral("Reset all"), colors::clear, this);
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(2);
    for (QwtPushButton* button : {setAll, resetAll}) {
        button->setFixedHeight(buttonHeight);
        button->setFixedWidth(fontMetrics().horizontalAdvance(resetAll->text()) + labelPixels);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gapWidth);
    layout->addLayout(grid);
    layout->addLayout(buttons);
    layout->addStretch();
    connect(m_bits, &QButtonGroup::idClicked, this, &ValueBits::signalBit);
    connect(setAll, &QwtPushButton::clicked, this, &ValueBits::signalSetAll);
    connect(resetAll, &QwtPushButton::clicked, this, &ValueBits::signalResetAll);
}

void ValueBits::addBit(QGridLayout* layout, int bit)
{
    auto* box = new QCheckBox(this);
    box->setFixedSize(boxWidth, boxHeight);
    m_bits->addButton(box, bit);
    auto* label = new QLabel(QString::asprintf("%2d", bit), this);
    QFont small = label->font();
    small.setPixelSize(labelPixels);
    label->setFont(small);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedSize(boxWidth, labelHeight);
    layout->addWidget(box, rowOf(bit), columnOf(bit));
    layout->addWidget(label, rowOf(bit) + 1, columnOf(bit));
}

void ValueBits::enableFrom(int lowest)
{
    for (int bit = 0; bit < valueBits; ++bit) {
        m_bits->button(bit)->setEnabled(bit >= lowest);
    }
}

void ValueBits::setWord(std::uint32_t word)
{
    for (int bit = 0; bit < valueBits; ++bit) {
        m_bits->button(bit)->setChecked((word >> static_cast<unsigned>(bit) & 1U) != 0);
    }
}

bool ValueBits::isChecked(int bit) const
{
    const QAbstractButton* box = m_bits->button(bit);
    return box != nullptr && box->isChecked();
}

} // namespace gui
