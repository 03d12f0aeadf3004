#include "gui/node/GeneratorPage.h"

#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "node/GeneratorScale.h"
#include "node/GeneratorTables.h"
#include "profile/Arinc825Id.h"

#include <QCheckBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

#include <algorithm>

namespace gui {

namespace {

constexpr int labelColumn = 0;
constexpr int firstColumn = 1;
constexpr int dialColumn = 2;
constexpr int numberColumn = 3;
constexpr int allColumns = 3; // of controls
constexpr double notchTarget = 30.0;
constexpr int dialExtent = 52;   // pixels; smaller ones can no longer be read
constexpr int numberWidth = 104; // at least; the widest number that a range has
constexpr int minimumSeparation = 1;
constexpr int maximumSeparation = 255; // milliseconds; one byte on the wire

template <std::size_t Size>
void addChoices(QwtComboBox& combo, const std::array<GeneratorChoice, Size>& choices,
                std::size_t count = Size)
{
    for (std::size_t i = 0; i < count; ++i) {
        combo.addItem(QLatin1String(choices[i].name), choices[i].value);
    }
}

void showNumber(const GeneratorPage::NumberRow& row, std::int32_t exponent, float number)
{
    row.range->setData(exponent);
    // A dial that stands for the number stays: single precision may show it one step lower, and the
    // hand that turns it would never get past that place.
    if (dialNumber(row.dial->value(), exponent) != number) {
        row.dial->setValue(dialPosition(number, exponent));
    }
    row.number->setDecimals(rangeDecimals(exponent)); // first: it rounds what stands there
    row.number->setSingleStep(rangeStep(exponent));
    row.number->setValue(static_cast<double>(number));
}

} // namespace

GeneratorPage::GeneratorPage(QWidget* parent) : QWidget(parent)
{
    constexpr double largest = 1e9;
    constexpr int fullDial = 1000;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    grid->setVerticalSpacing(windowMargin);
    buildSettings(*grid);
    m_controls.frequency =
        addNumberRow(*grid, {"Frequency", "frequency", " Hz", generatorFrequencyRanges, 1, fullDial,
                             0.01, 100.0});
    m_controls.amplitude =
        addNumberRow(*grid, {"Amplitude", "amplitude", "", generatorRanges.size(), 0, fullDial,
                             0.0001, largest});
    m_controls.offset = addNumberRow(*grid, {"Offset", "offset", "", generatorRanges.size(),
                                             -fullDial, fullDial, -largest, largest});
    grid->setColumnStretch(numberColumn, 1);
    grid->setRowStretch(grid->rowCount(), 1);
}

void GeneratorPage::addRow(QGridLayout& grid, const char* label, QWidget* control)
{
    const int row = grid.rowCount();
    grid.addWidget(new QLabel(QLatin1String(label), this), row, labelColumn);
    grid.addWidget(control, row, firstColumn, 1, allColumns);
}

void GeneratorPage::buildSettings(QGridLayout& grid)
{
    m_controls.active = new QCheckBox(QStringLiteral("Channel Active"), this);
    m_controls.active->setObjectName(QStringLiteral("active"));
    m_controls.waveform = new QwtComboBox(0, this);
    m_controls.waveform->setObjectName(QStringLiteral("waveform"));
    addChoices(*m_controls.waveform, generatorWaveforms);
    m_controls.canId = new QSpinBox(this);
    m_controls.canId->setObjectName(QStringLiteral("canId"));
    m_controls.canId->setRange(0, static_cast<int>(zul::arinc825::maxExtendedId));
    m_controls.canId->setKeyboardTracking(false); // half an identifier would be another one
    m_controls.dataType = new QwtComboBox(0, this);
    m_controls.dataType->setObjectName(QStringLiteral("dataType"));
    addChoices(*m_controls.dataType, generatorDataTypes);
    m_controls.separation = new QSpinBox(this);
    m_controls.separation->setObjectName(QStringLiteral("separation"));
    m_controls.separation->setRange(minimumSeparation, maximumSeparation);
    m_controls.separation->setSuffix(QStringLiteral(" ms"));
    m_controls.separation->setKeyboardTracking(false);
    addRow(grid, "Channel Activation", m_controls.active);
    addRow(grid, "Waveform", m_controls.waveform);
    addRow(grid, "CAN Id", m_controls.canId);
    addRow(grid, "Data Type", m_controls.dataType);
    addRow(grid, "Message Separation", m_controls.separation);
}

GeneratorPage::NumberRow GeneratorPage::addNumberRow(QGridLayout& grid, const NumberRange& range)
{
    const QLatin1String name(range.name);
    NumberRow row;
    row.range = new QwtComboBox(0, this);
    row.range->setObjectName(name + QLatin1String("Range"));
    addChoices(*row.range, generatorRanges, range.ranges);
    row.dial = new QDial(this);
    row.dial->setObjectName(name + QLatin1String("Dial"));
    row.dial->setRange(range.dialMinimum, range.dialMaximum);
    row.dial->setNotchesVisible(true);
    row.dial->setNotchTarget(notchTarget);
    row.dial->setFixedSize(dialExtent, dialExtent);
    row.number = new QDoubleSpinBox(this);
    row.number->setObjectName(name);
    row.number->setRange(range.minimum, range.maximum);
    row.number->setSuffix(QLatin1String(range.suffix));
    row.number->setKeyboardTracking(false);
    // By itself it wants room for the longest number with all decimals, which never meet.
    row.number->setMinimumWidth(numberWidth);
    row.number->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    const int line = grid.rowCount();
    grid.addWidget(new QLabel(QLatin1String(range.label), this), line, labelColumn);
    grid.addWidget(row.range, line, firstColumn);
    grid.addWidget(row.dial, line, dialColumn);
    grid.addWidget(row.number, line, numberColumn);
    return row;
}

void GeneratorPage::showChannel(const ObjectFunctionGen::GeneratorChannel& channel) const
{
    m_controls.active->setChecked(channel.active);
    m_controls.waveform->setData(channel.waveForm);
    m_controls.canId->setValue(
        static_cast<int>(std::min(channel.canId, zul::arinc825::maxExtendedId)));
    m_controls.dataType->setData(channel.dataType);
    m_controls.separation->setValue(channel.separation);
    showNumber(m_controls.frequency, std::min(channel.frequencyFactor, maxFrequencyExponent),
               channel.frequency);
    showNumber(m_controls.amplitude, channel.amplitudeFactor, channel.amplitude);
    showNumber(m_controls.offset, channel.offsetFactor, channel.offset);
}

} // namespace gui
