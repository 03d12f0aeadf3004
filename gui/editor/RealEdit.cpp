#include "gui/editor/RealEdit.h"

#include "edit/TypedText.h"

#include <QRegularExpressionValidator>

namespace gui {

RealEdit::RealEdit(QWidget* parent) : QLineEdit(parent)
{
    static const QRegularExpression beginOfNumber(
        QStringLiteral("[+-]?[0-9]*[.]?[0-9]*([eE][+-]?[0-9]*)?"));
    setValidator(new QRegularExpressionValidator(beginOfNumber, this));
    setValue(m_value);
    connect(this, &QLineEdit::textEdited, this, &RealEdit::takeText);
}

void RealEdit::setValue(double value)
{
    m_value = value;
    setText(zul::numberText(value));
}

void RealEdit::takeText(const QString& text)
{
    if (const auto number = zul::typedNumber(text)) {
        m_value = *number;
        emit signalValue(m_value);
    }
}

void RealEdit::focusOutEvent(QFocusEvent* event)
{
    if (!zul::typedNumber(text())) {
        setValue(m_value);
    }
    QLineEdit::focusOutEvent(event);
}

} // namespace gui
