#include "gui/editor/EditorForm.h"

#include "gui/controls/Look.h"
#include "gui/controls/WheelGuard.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace gui {

namespace {

constexpr int textLines = 4;     ///< that a field of several lines shows at least
constexpr int leastLetters = 12; ///< that a choice shows at least; long ones widen no window
constexpr int highestBit = 7;
constexpr const char* nearestProperty = "showsNearest"; ///< of a number: the record has another one
constexpr const char* typedProperty = "isTyped";        ///< of a number: since it was shown

QString rangeText(const EditorField& field)
{
    QString text = QLatin1String(field.toolTip);
    if (!text.isEmpty()) {
        text += QLatin1Char('\n');
    }
    return text + QStringLiteral("%1 to %2%3")
                      .arg(field.lowest)
                      .arg(field.highest)
                      .arg(QLatin1String(field.unit));
}

int bounded(qint64 value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(qBound<qint64>(Limits::min(), value, Limits::max()));
}

} // namespace

EditorForm::EditorForm(const char* title, const EditorField* fields, std::size_t count,
                       QWidget* parent)
    : QWidget(parent)
{
    auto* heading = new QLabel(QLatin1String(title), this);
    heading->setObjectName(QStringLiteral("title"));
    QFont bold = heading->font();
    bold.setWeight(boldWeight);
    heading->setFont(bold);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (std::size_t i = 0; i < count; ++i) {
        addField(*form, fields[i]);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addLayout(form);
    layout->addStretch(1);
}

void EditorForm::addField(QFormLayout& form, const EditorField& field)
{
    QWidget* control = makeControl(field);
    if (field.isBeside) {
        addBeside(form, control);
        return;
    }
    auto* label = new QLabel(QLatin1String(field.label), this);
    label->setToolTip(QLatin1String(field.toolTip));
    label->setBuddy(field.kind == FieldKind::Position ? control->focusProxy() : control);
    m_labels.emplace(QLatin1String(field.name), label);
    form.addRow(label, control);
}

void EditorForm::addBeside(QFormLayout& form, QWidget* control)
{
    const int row = form.rowCount() - 1;
    QLayoutItem* before = form.itemAt(row, QFormLayout::FieldRole);
    auto* both = qobject_cast<QHBoxLayout*>(before->layout());
    if (both == nullptr) {
        both = new QHBoxLayout;
        both->addWidget(before->widget());
        form.removeItem(before);
        delete before;
        form.setLayout(row, QFormLayout::FieldRole, both);
    }
    both->addWidget(control);
}

QWidget* EditorForm::makeControl(const EditorField& field)
{
    const QString name = QLatin1String(field.name);
    QWidget* control = nullptr;
    switch (field.kind) {
    case FieldKind::Line:
        control = new QLineEdit(this);
        break;
    case FieldKind::Text:
        control = makeText();
        break;
    case FieldKind::Number:
        return makeNumber(field, name);
    case FieldKind::Real:
        control = new RealEdit(this);
        break;
    case FieldKind::Choice:
        control = makeChoice();
        break;
    case FieldKind::Name:
        control = new NameBox(this);
        WheelGuard::protect(control);
        break;
    case FieldKind::Suggest:
        control = makeSuggest();
        break;
    case FieldKind::Check:
        control = new QCheckBox(QLatin1String(field.text), this);
        break;
    case FieldKind::Position:
        return makePosition(field);
    }
    control->setToolTip(QLatin1String(field.toolTip));
    keep(control, name);
    return control;
}

QWidget* EditorForm::makeText()
{
    auto* text = new QPlainTextEdit(this);
    text->setTabChangesFocus(true);
    text->setMinimumHeight(text->fontMetrics().lineSpacing() * textLines);
    return text;
}

QWidget* EditorForm::makeChoice()
{
    auto* choice = new QwtComboBox(0, this);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setMinimumContentsLength(leastLetters);
    WheelGuard::protect(choice);
    return choice;
}

QWidget* EditorForm::makeSuggest()
{
    auto* box = new QComboBox(this);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // it would put its own spelling in the place of what is typed
    WheelGuard::protect(box);
    return box;
}

QSpinBox* EditorForm::makeNumber(const EditorField& field, const QString& name)
{
    auto* number = new QSpinBox(this);
    number->setSuffix(QLatin1String(field.unit));
    WheelGuard::protect(number);
    keep(number, name);
    setRange(field, *number);
    connect(number->findChild<QLineEdit*>(), &QLineEdit::textEdited, number,
            [number] { number->setProperty(typedProperty, true); });
    connect(number, &QSpinBox::editingFinished, this, [number] { takeNearest(*number); });
    return number;
}

QWidget* EditorForm::makePosition(const EditorField& field)
{
    auto* both = new QWidget(this);
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    const QString name = QLatin1String(field.name);
    EditorField bitField = field;
    bitField.lowest = 0;
    bitField.highest = highestBit;
    QSpinBox* byte = makeNumber(field, name + QStringLiteral("Byte"));
    QSpinBox* bit = makeNumber(bitField, name + QStringLiteral("Bit"));
    for (QSpinBox* number : {byte, bit}) {
        if (*field.toolTip != '\0') {
            number->setToolTip(QLatin1String(field.toolTip));
        }
        row->addWidget(number);
    }
    both->setFocusProxy(byte);
    return both;
}

void EditorForm::keep(QWidget* control, const QString& name)
{
    control->setObjectName(name);
    m_controls.emplace(name, control);
}

void EditorForm::setRange(const EditorField& field, QSpinBox& number)
{
    number.setRange(field.lowest, field.highest);
    number.setToolTip(rangeText(field));
}

void EditorForm::setRange(const char* name, const EditorField& field) const
{
    setRange(field, control<QSpinBox>(name));
}

void EditorForm::setText(const char* name, const QString& text)
{
    if (auto* several = qobject_cast<QPlainTextEdit*>(m_controls.at(QLatin1String(name)))) {
        several->setPlainText(text);
    } else if (auto* names = qobject_cast<NameBox*>(m_controls.at(QLatin1String(name)))) {
        names->setName(text);
    } else if (auto* box = qobject_cast<QComboBox*>(m_controls.at(QLatin1String(name)))) {
        box->setCurrentIndex(box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        box->setEditText(text);
    } else {
        control<QLineEdit>(name).setText(text);
    }
}

QString EditorForm::plainText(const QPlainTextEdit& text)
{
    QString raw = text.document()->toRawText();
    raw.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return raw.replace(QChar::LineSeparator, QLatin1Char('\n'));
}

void EditorForm::setNumber(const char* name, qint64 value) const
{
    auto& number = control<QSpinBox>(name);
    number.setValue(bounded(value));
    number.setProperty(nearestProperty, number.value() != value);
    number.setProperty(typedProperty, false);
}

void EditorForm::setReal(const char* name, double value) const
{
    control<RealEdit>(name).setValue(value);
}

void EditorForm::setRounded(const char* name, double value) const
{
    auto& number = control<QSpinBox>(name);
    const bool isFinite = std::isfinite(value);
    setNumber(name,
              isFinite ? qRound64(qBound<double>(number.minimum(), value, number.maximum())) : 0);
    number.setProperty(nearestProperty, !isFinite || number.value() - value != 0.0);
}

// What is typed is taken although the number already showed it, if the record has another one.
void EditorForm::takeNearest(QSpinBox& number)
{
    if (number.property(nearestProperty).toBool() && number.property(typedProperty).toBool()) {
        number.setProperty(nearestProperty, false);
        emit number.valueChanged(number.value());
    }
}

void EditorForm::setChoice(const char* name, int code) const
{
    control<QwtComboBox>(name).setData(code);
}

void EditorForm::setChecked(const char* name, bool isChecked) const
{
    control<QCheckBox>(name).setChecked(isChecked);
}

void EditorForm::setPosition(const char* name, qint64 byte, qint64 bit) const
{
    const QByteArray field(name);
    setNumber((field + "Byte").constData(), byte);
    setNumber((field + "Bit").constData(), bit);
}

void EditorForm::setChoices(const char* name,
                            const std::vector<std::pair<int, QString>>& choices) const
{
    auto& box = control<QwtComboBox>(name);
    const QSignalBlocker silent(box);
    box.clear();
    for (const auto& [code, text] : choices) {
        box.addItem(text, code);
    }
    box.setCurrentIndex(-1);
}

void EditorForm::setNames(const char* name, const QStringList& names)
{
    if (auto* box = qobject_cast<NameBox*>(m_controls.at(QLatin1String(name)))) {
        box->setNames(names);
    } else {
        auto& suggest = control<QComboBox>(name);
        const QSignalBlocker silent(suggest);
        suggest.clear();
        suggest.addItems(names);
        suggest.setCurrentIndex(-1);
    }
}

QPushButton& EditorForm::addButton(const char* name, const char* text)
{
    auto* button = new QPushButton(QLatin1String(text), this);
    button->setAutoDefault(false);
    keep(button, QLatin1String(name));
    auto* column = static_cast<QVBoxLayout*>(layout());
    column->insertWidget(column->count() - 1, button, 0, Qt::AlignRight);
    return *button;
}

QLabel& EditorForm::label(const char* name) const
{
    return *m_labels.at(QLatin1String(name));
}

} // namespace gui
