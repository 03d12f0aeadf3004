#include "gui/measure/DialogSelectParameter.h"

#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/measure/ColorSelect.h"
#include "gui/measure/ParameterForm.h"
#include "gui/measure/WidgetSppEpp.h"
#include "measure/ParameterPositions.h"
#include "profile/DataTypes.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace gui {

namespace {

struct KindText
{
    ParameterKind kind;
    const char* text;
};

constexpr std::array<KindText, 3> kinds{{{ParameterKind::Arinc825, "ARINC 825"},
                                         {ParameterKind::CanAerospace, "CANaerospace"},
                                         {ParameterKind::Raw, "User Defined"}}};

// An identifier of a project file may be larger than any.
int shownId(std::uint32_t id)
{
    constexpr std::uint32_t most = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(id, most));
}

void addRow(QFormLayout& form, const char* label, QWidget* control)
{
    form.addRow(QString(QLatin1String(label)), control);
}

void addRow(QFormLayout& form, const char* label, QLayout* controls)
{
    form.addRow(QString(QLatin1String(label)), controls);
}

} // namespace

DialogSelectParameter::DialogSelectParameter(ProfileParameter parameter, QWidget* parent)
    : QDialog(parent), m_parameter(std::move(parameter))
{
    setWindowTitle(QStringLiteral("Select Parameter"));
    setWindowIcon(icon("parameter"));
    setModal(true);
    build();
    connectControls();
    refresh();
}

void DialogSelectParameter::build()
{
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    buildWhere(*form);
    buildHow(*form);
    buildLook(*form);
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &DialogSelectParameter::slotClose);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(close);
    form->addRow(bottom);
}

void DialogSelectParameter::buildWhere(QFormLayout& form)
{
    m_id = new QwtIdSelect(0, this);
    m_kind = makeSelection("kind", this);
    for (const KindText& kind : kinds) {
        m_kind->addItem(QLatin1String(kind.text), static_cast<int>(kind.kind));
    }
    m_name = makeField("name", this);
    m_unit = makeField("unit", this);
    m_dataType = makeSelection("dataType", this);
    addRow(form, "Select Profile/Active Id :", m_id);
    addRow(form, "Definition type :", m_kind);
    addRow(form, "Name/Unit :", sideBySide(m_name, m_unit));
    addRow(form, "Data Type :", m_dataType);
    m_start = buildPosition(form, "Start Byte/Bit :", "Start Position");
    m_end = buildPosition(form, "End Byte/Bit :", "End Position");
}

DialogSelectParameter::PositionRow
DialogSelectParameter::buildPosition(QFormLayout& form, const char* label, const char* name)
{
    const QString toolTip = QLatin1String(name);
    PositionRow row;
    row.byte = makeSelection("", this);
    row.byte->setToolTip(toolTip + QStringLiteral(" Byte"));
    row.bit = makeSelection("", this);
    row.bit->setToolTip(toolTip + QStringLiteral(" Bit"));
    row.strip = new WidgetSppEpp(this);
    row.strip->setToolTip(toolTip + QStringLiteral(" Payload"));
    auto* controls = new QHBoxLayout;
    controls->addWidget(row.byte, 1);
    controls->addWidget(row.bit, 1);
    controls->addWidget(row.strip);
    addRow(form, label, controls);
    return row;
}

void DialogSelectParameter::buildHow(QFormLayout& form)
{
    m_min = makeField("min", this);
    m_max = makeField("max", this);
    m_lsb = makeField("lsb", this);
    m_endian = makeSelection("endian", this);
    for (const zul::ByteOrderText& order : zul::byteOrders) {
        m_endian->addItem(QLatin1String(order.text), order.endian);
    }
    addRow(form, "Min/Max :", sideBySide(m_min, m_max));
    addRow(form, "LSB/Endian :", sideBySide(m_lsb, m_endian));
}

void DialogSelectParameter::buildLook(QFormLayout& form)
{
    m_color = new ColorSelect(this);
    m_showSamples = new QCheckBox(QStringLiteral("Samples On"), this);
    m_autoScale = new QCheckBox(QStringLiteral("Autoscale On"), this);
    m_yMin = makeField("yMin", this);
    m_yMax = makeField("yMax", this);
    m_scaleFactor = makeField("scaleFactor", this);
    m_scaleOffset = makeField("scaleOffset", this);
    addRow(form, "Color :", m_color);
    addRow(form, "Show Samples :", m_showSamples);
    addRow(form, "Y-Autocale :", m_autoScale); // Deliberate: spelled as users know it
    addRow(form, "Y-Range :", sideBySide(m_yMin, m_yMax));
    addRow(form, "Scale Factor/Offset", sideBySide(m_scaleFactor, m_scaleOffset));
}

void DialogSelectParameter::connectControls()
{
    connect(m_id, &QwtIdSelect::signalId, this, &DialogSelectParameter::slotId);
    connect(m_id, &QwtIdSelect::signalParameter, this, &DialogSelectParameter::slotParameter);
    const auto chosen = QOverload<int>::of(&QwtComboBox::signalActivated);
    connect(m_kind, chosen, this, &DialogSelectParameter::slotKind);
    connect(m_dataType, chosen, this, &DialogSelectParameter::slotDataType);
    for (const QwtComboBox* position : {m_start.byte, m_start.bit, m_end.byte, m_end.bit}) {
        connect(position, chosen, this, &DialogSelectParameter::slotPosition);
    }
    connect(m_endian, chosen, this, &DialogSelectParameter::slotEndian);
    connect(m_color, &ColorSelect::signalColor, this, &DialogSelectParameter::slotColor);
    connect(m_showSamples, &QCheckBox::toggled, this, &DialogSelectParameter::slotShowSamples);
    connect(m_autoScale, &QCheckBox::toggled, this, &DialogSelectParameter::slotAutoScale);
    for (const QLineEdit* text : {m_name, m_unit}) {
        connect(text, &QLineEdit::textChanged, this, &DialogSelectParameter::slotTexts);
    }
    for (const QLineEdit* number :
         {m_min, m_max, m_lsb, m_yMin, m_yMax, m_scaleFactor, m_scaleOffset}) {
        connect(number, &QLineEdit::textEdited, this, &DialogSelectParameter::slotNumbers);
    }
}

void DialogSelectParameter::refresh()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    m_id->setId(shownId(m_parameter.id));
    m_kind->setData(static_cast<int>(m_parameter.parameterKind));
    m_name->setText(m_parameter.nme);
    m_unit->setText(m_parameter.pun);
    refreshDataTypes();
    refreshPositions();
    refreshNumbers();
    m_endian->setData(static_cast<int>(m_parameter.endian));
    m_color->setColor(m_parameter.color);
    m_showSamples->setChecked(m_parameter.showSamples);
    m_autoScale->setChecked(m_parameter.autoScale);
    refreshEnabled();
}

void DialogSelectParameter::refreshDataTypes()
{
    m_dataType->clear();
    for (const DataTypeChoice& choice : dataTypeChoices(m_parameter.parameterKind)) {
        m_dataType->addItem(QLatin1String(choice.text), choice.code);
    }
    m_dataType->setData(static_cast<int>(m_parameter.dtc));
}

void DialogSelectParameter::refreshPositions()
{
    const PositionChoices choices = positionChoices(m_parameter.parameterKind, m_parameter.dtc);
    fillNumbers(*m_start.byte, choices.startBytes, m_parameter.sppByte, choices.isStartByteEnabled);
    fillNumbers(*m_start.bit, choices.startBits, m_parameter.sppBit, choices.isStartBitEnabled);
    fillNumbers(*m_end.byte, choices.endBytes, m_parameter.eppByte, choices.isEndEnabled);
    fillNumbers(*m_end.bit, choices.endBits, m_parameter.eppBit, choices.isEndEnabled);
    m_start.strip->setParameter(m_parameter);
    m_end.strip->setParameter(m_parameter);
}

void DialogSelectParameter::refreshNumbers()
{
    m_min->setText(fixedText(m_parameter.min));
    m_max->setText(fixedText(m_parameter.max));
    m_lsb->setText(fixedText(m_parameter.lsb));
    m_yMin->setText(shortText(m_parameter.yMin));
    m_yMax->setText(shortText(m_parameter.yMax));
    m_scaleFactor->setText(fixedText(m_parameter.scaleFactor));
    m_scaleOffset->setText(fixedText(m_parameter.scaleOffset));
}

void DialogSelectParameter::refreshEnabled()
{
    const bool hasRange = m_parameter.parameterKind == ParameterKind::Arinc825;
    const bool isRaw = m_parameter.parameterKind == ParameterKind::Raw;
    m_min->setEnabled(hasRange);
    m_max->setEnabled(hasRange);
    m_lsb->setEnabled(isRaw);
    m_endian->setEnabled(isRaw);
    m_yMin->setEnabled(!m_parameter.autoScale);
    m_yMax->setEnabled(!m_parameter.autoScale);
}

void DialogSelectParameter::slotId(int id)
{
    if (!m_updating) {
        m_parameter.id = static_cast<std::uint32_t>(id);
    }
}

void DialogSelectParameter::slotParameter(const ProfileParameter& para)
{
    if (!m_updating) {
        const QString color = m_parameter.color;
        m_parameter = para;
        m_parameter.color = color;
        refresh();
    }
}

void DialogSelectParameter::slotKind(int kind)
{
    if (m_updating) {
        return;
    }
    m_parameter.parameterKind = static_cast<ParameterKind>(kind);
    const std::vector<DataTypeChoice> types = dataTypeChoices(m_parameter.parameterKind);
    const bool hasType = std::any_of(types.begin(), types.end(), [this](const auto& type) {
        return type.code == m_parameter.dtc;
    });
    if (!hasType && !types.empty()) {
        m_parameter.dtc = types.front().code;
    }
    takeNaturalPosition();
}

void DialogSelectParameter::slotDataType(int code)
{
    if (!m_updating) {
        m_parameter.dtc = static_cast<std::uint32_t>(code);
        takeNaturalPosition();
    }
}

void DialogSelectParameter::takeNaturalPosition()
{
    const auto position = naturalPosition(m_parameter.parameterKind, m_parameter.dtc);
    if (position) {
        setPosition(m_parameter, *position);
    }
    refresh();
}

void DialogSelectParameter::slotPosition()
{
    if (m_updating) {
        return;
    }
    const auto chosen = [](const QwtComboBox* selection) {
        return selection->currentData().toUInt();
    };
    const PayloadPosition position{chosen(m_start.byte), chosen(m_start.bit), chosen(m_end.byte),
                                   chosen(m_end.bit)};
    setPosition(m_parameter,
                adjustedPosition(m_parameter.parameterKind, m_parameter.dtc, position));
    const QScopedValueRollback<bool> guard(m_updating, true);
    refreshPositions();
}

void DialogSelectParameter::slotTexts()
{
    if (!m_updating) {
        m_parameter.nme = m_name->text();
        m_parameter.pun = m_unit->text();
    }
}

void DialogSelectParameter::slotNumbers()
{
    if (m_updating) {
        return;
    }
    // What was not typed into keeps all digits of its number.
    struct Field
    {
        const QLineEdit* edit;
        double* number;
    };
    const std::array<Field, 7> fields{{{m_min, &m_parameter.min},
                                       {m_max, &m_parameter.max},
                                       {m_lsb, &m_parameter.lsb},
                                       {m_yMin, &m_parameter.yMin},
                                       {m_yMax, &m_parameter.yMax},
                                       {m_scaleFactor, &m_parameter.scaleFactor},
                                       {m_scaleOffset, &m_parameter.scaleOffset}}};
    for (const Field& field : fields) {
        if (field.edit->isModified()) {
            *field.number = numberOf(*field.edit);
        }
    }
}

void DialogSelectParameter::slotEndian(int endian)
{
    if (!m_updating) {
        m_parameter.endian = static_cast<std::uint32_t>(endian);
    }
}

void DialogSelectParameter::slotColor(const QString& color)
{
    if (!m_updating) {
        m_parameter.color = color;
    }
}

void DialogSelectParameter::slotShowSamples(bool on)
{
    if (!m_updating) {
        m_parameter.showSamples = on;
    }
}

void DialogSelectParameter::slotAutoScale(bool on)
{
    if (!m_updating) {
        m_parameter.autoScale = on;
        refreshEnabled();
    }
}

void DialogSelectParameter::slotClose()
{
    accept();
}

} // namespace gui
