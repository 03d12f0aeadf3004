#include "gui/desktop/WidgetProperty.h"

#include "core/Latin1.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSpinBox>

#include <algorithm>
#include <utility>

namespace {

constexpr QColor background(200, 200, 200);
constexpr int margin = 3;
constexpr int labelWidth = 160;
constexpr int btrWidth = 40;
constexpr int registerWidth = 120;
constexpr int smallFontPixels = 10;
constexpr unsigned byteBits = 8;
constexpr unsigned byteMask = 0xFF;
constexpr int hexadecimal = 16;

QLabel* smallLabel(const char* text, QWidget* parent)
{
    auto* label = new QLabel(QLatin1String(text), parent);
    QFont font = label->font();
    font.setPixelSize(smallFontPixels);
    label->setFont(font);
    return label;
}

std::string registerText(std::uint32_t value)
{
    return zul::toLatin1(QString::asprintf("0x%08X", value));
}

// Hexadecimal with or without "0x"; what is no number of 32 bits counts as 0.
std::uint32_t fromHexadecimal(const QString& text)
{
    return text.trimmed().toUInt(nullptr, hexadecimal);
}

void setTextIfOther(QLineEdit& edit, const QString& text)
{
    if (edit.text() != text) {
        edit.setText(text);
    }
}

} // namespace

WidgetProperty::WidgetProperty(DeviceProperty property, QWidget* parent)
    : QFrame(parent), m_property(std::move(property))
{
    setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Raised));
    QPalette colors = palette();
    colors.setColor(QPalette::Window, background);
    setPalette(colors);
    setAutoFillBackground(true);
    build();
}

void WidgetProperty::build()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    auto* label = new QLabel(zul::fromLatin1(m_property.label), this);
    label->setFixedWidth(labelWidth);
    row->addWidget(label);
    switch (m_property.kind) {
    case PropertyKind::Text:
        m_text = new QLineEdit(this);
        row->addWidget(m_text, 1);
        connect(m_text, &QLineEdit::textChanged, this, &WidgetProperty::slotText);
        break;
    case PropertyKind::Btr:
        addChoices(*row, false);
        buildBtr(*row);
        break;
    case PropertyKind::Nbtp:
    case PropertyKind::Dbtp:
    case PropertyKind::Tdcr: {
        auto* grid = new QGridLayout;
        row->addLayout(grid, 1);
        buildRegister(*gui::registerLayout(m_property.kind), *grid);
        connectRegister();
        break;
    }
    case PropertyKind::Selection:
        addChoices(*row, false);
        connect(m_choices, QOverload<int>::of(&QComboBox::activated), this,
                &WidgetProperty::slotIndex);
        break;
    case PropertyKind::EditableSelection:
        addChoices(*row, true);
        connect(m_choices, &QComboBox::editTextChanged, this, &WidgetProperty::slotText);
        break;
    }
}

void WidgetProperty::addChoices(QHBoxLayout& row, bool isEditable)
{
    m_choices = new QComboBox(this);
    m_choices->setEditable(isEditable);
    if (isEditable) {
        // What is typed stays as it was typed, and is no new choice.
        m_choices->setInsertPolicy(QComboBox::NoInsert);
        m_choices->setCompleter(nullptr);
    }
    for (const PropertyChoice& choice : m_property.choices) {
        m_choices->addItem(zul::fromLatin1(choice.text), choice.value);
    }
    m_choices->setCurrentIndex(-1);
    row.addWidget(m_choices, 1);
}

void WidgetProperty::buildBtr(QHBoxLayout& row)
{
    const auto addField = [this, &row](const char* name) {
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        auto* edit = new QLineEdit(this);
        edit->setFixedWidth(btrWidth);
        edit->setObjectName(QLatin1String(name));
        column->addWidget(smallLabel(name, this));
        column->addWidget(edit);
        row.addLayout(column);
        connect(edit, &QLineEdit::editingFinished, this, &WidgetProperty::slotBtr);
        return edit;
    };
    m_btr0 = addField("BTR0");
    m_btr1 = addField("BTR1");
    connect(m_choices, QOverload<int>::of(&QComboBox::activated), this, &WidgetProperty::slotIndex);
}

void WidgetProperty::buildRegister(const gui::RegisterLayout& layout, QGridLayout& grid)
{
    const auto columns = static_cast<int>(layout.fieldCount);
    m_register = new QLineEdit(this);
    m_register->setMinimumWidth(registerWidth);
    m_register->setObjectName(QLatin1String(layout.name));
    auto* value = new QHBoxLayout;
    addChoices(*value, false);
    value->addWidget(smallLabel(layout.name, this));
    value->addWidget(m_register);
    grid.addLayout(value, 0, 0, 1, columns);
    for (int i = 0; i < columns; ++i) {
        const gui::RegisterField& description = layout.fields[static_cast<std::size_t>(i)];
        auto* spin = new QSpinBox(this);
        spin->setRange(description.minimum, description.maximum);
        spin->setObjectName(QLatin1String(description.label));
        grid.addWidget(smallLabel(description.label, this), 1, i);
        grid.addWidget(spin, 2, i);
        m_spins.push_back(spin);
    }
}

void WidgetProperty::connectRegister()
{
    using Index = void (WidgetProperty::*)(int);
    using Typed = void (WidgetProperty::*)();
    Index predef = &WidgetProperty::slotTDCRPredef;
    Typed typed = &WidgetProperty::slotTDCR;
    Index spun = &WidgetProperty::slotTDCRValue;
    if (m_property.kind == PropertyKind::Nbtp) {
        predef = &WidgetProperty::slotNBTPPredef;
        typed = &WidgetProperty::slotNBTP;
        spun = &WidgetProperty::slotNBTPValue;
    } else if (m_property.kind == PropertyKind::Dbtp) {
        predef = &WidgetProperty::slotDBTPPredef;
        typed = &WidgetProperty::slotDBTP;
        spun = &WidgetProperty::slotDBTPValue;
    }
    connect(m_choices, QOverload<int>::of(&QComboBox::activated), this, predef);
    connect(m_register, &QLineEdit::editingFinished, this, typed);
    for (QSpinBox* spin : m_spins) {
        connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, spun);
    }
}

void WidgetProperty::setValue(const std::string& value)
{
    if (value == m_value) {
        return;
    }
    m_value = value;
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    switch (m_property.kind) {
    case PropertyKind::Text:
    case PropertyKind::EditableSelection:
        showText();
        break;
    case PropertyKind::Btr:
        showBtr();
        break;
    case PropertyKind::Nbtp:
    case PropertyKind::Dbtp:
    case PropertyKind::Tdcr:
        showRegister();
        break;
    case PropertyKind::Selection:
        selectChoice(zul::numberWithPrefix(zul::fromLatin1(m_value)));
        break;
    }
}

void WidgetProperty::showText()
{
    const QString text = zul::fromLatin1(m_value);
    if (m_text != nullptr) {
        setTextIfOther(*m_text, text);
    } else if (m_choices->currentText() != text) {
        m_choices->setEditText(text);
    }
}

void WidgetProperty::showBtr()
{
    const std::uint32_t number = zul::numberWithPrefix(zul::fromLatin1(m_value));
    selectChoice(number);
    m_btr0->setText(QString::asprintf("%02x", (number >> byteBits) & byteMask));
    m_btr1->setText(QString::asprintf("%02x", number & byteMask));
}

void WidgetProperty::showRegister()
{
    const std::uint32_t number = zul::numberWithPrefix(zul::fromLatin1(m_value));
    selectChoice(number);
    m_register->setText(zul::fromLatin1(registerText(number)));
    showSpins(number);
}

void WidgetProperty::showSpins(std::uint32_t value)
{
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    m_fieldValues = gui::splitRegister(*gui::registerLayout(m_property.kind), value);
    for (std::size_t i = 0; i < m_spins.size(); ++i) {
        m_spins[i]->setValue(m_fieldValues[i]);
    }
}

void WidgetProperty::selectChoice(std::uint32_t value)
{
    m_choices->setCurrentIndex(m_choices->findData(static_cast<int>(value)));
}

void WidgetProperty::slotText(const QString& text)
{
    if (!m_refreshing) {
        change(zul::toLatin1(text));
    }
}

void WidgetProperty::slotIndex(int index)
{
    if (!m_refreshing) {
        changeNumber(m_choices->itemData(index).toInt());
    }
}

void WidgetProperty::slotBtr()
{
    // A field is also left without having been changed.
    if (m_refreshing || !(m_btr0->isModified() || m_btr1->isModified())) {
        return;
    }
    // Deliberate: BTR1 is the high byte here, while showBtr() fills BTR0 with the high byte; once
    // the value is shown again, the two fields stand exchanged. Projects keep values that were
    // entered this way.
    const std::uint32_t value =
        (fromHexadecimal(m_btr1->text()) << byteBits) | fromHexadecimal(m_btr0->text());
    m_btr0->setModified(false);
    m_btr1->setModified(false);
    changeNumber(static_cast<int>(value));
}

void WidgetProperty::slotNBTPPredef(int index)
{
    chooseRegister(index);
}

void WidgetProperty::slotNBTP()
{
    typeRegister();
}

void WidgetProperty::slotNBTPValue(int)
{
    spinRegister();
}

void WidgetProperty::slotDBTPPredef(int index)
{
    chooseRegister(index);
}

void WidgetProperty::slotDBTP()
{
    typeRegister();
}

void WidgetProperty::slotDBTPValue(int)
{
    spinRegister();
}

void WidgetProperty::slotTDCRPredef(int index)
{
    chooseRegister(index);
}

void WidgetProperty::slotTDCR()
{
    typeRegister();
}

void WidgetProperty::slotTDCRValue(int)
{
    spinRegister();
}

void WidgetProperty::chooseRegister(int index)
{
    if (m_refreshing) {
        return;
    }
    const auto value = static_cast<std::uint32_t>(m_choices->itemData(index).toInt());
    const std::string text = registerText(value);
    m_register->setText(zul::fromLatin1(text));
    showSpins(value);
    change(text);
}

void WidgetProperty::typeRegister()
{
    if (m_refreshing || !m_register->isModified()) {
        return;
    }
    m_register->setModified(false);
    const std::uint32_t value = fromHexadecimal(m_register->text());
    selectChoice(value);
    showSpins(value);
    change(zul::toLatin1(m_register->text()));
}

void WidgetProperty::spinRegister()
{
    if (m_refreshing) {
        return;
    }
    m_fieldValues.resize(m_spins.size());
    for (std::size_t i = 0; i < m_spins.size(); ++i) {
        // A field below its range stays as it is stored, until its own box is turned.
        const QSpinBox& spin = *m_spins[i];
        if (spin.value() != std::clamp(m_fieldValues[i], spin.minimum(), spin.maximum())) {
            m_fieldValues[i] = spin.value();
        }
    }
    const std::uint32_t value =
        gui::composeRegister(*gui::registerLayout(m_property.kind), m_fieldValues);
    change(registerText(value));
    // Not `value`: the device may have made something else of it, and may tell it in another form.
    const std::uint32_t stored = zul::numberWithPrefix(zul::fromLatin1(m_value));
    m_register->setText(zul::fromLatin1(registerText(stored)));
    selectChoice(stored);
}

void WidgetProperty::changeNumber(int value)
{
    m_value = std::to_string(value);
    if (m_property.kind == PropertyKind::Btr) {
        const QScopedValueRollback<bool> guard(m_refreshing, true);
        showBtr();
    }
    emit signalChanged(m_property.key, m_value);
}

void WidgetProperty::change(const std::string& value)
{
    m_value = value;
    emit signalChanged(m_property.key, value);
}
