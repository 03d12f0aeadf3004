#include "gui/editor/RealEdit.h"

#include <QLocale>
#include <QRegularExpressionValidator>

#include <cmath>

namespace gui {

namespace {

// Numbers from here to there are shown without an exponent.
constexpr double smallest = 1e-6;
constexpr double largest = 1e15;

QString realText(double value)
{
    const double size = std::fabs(value);
    const bool isPlain = size == 0.0 || (size >= smallest && size < largest);
    return QString::number(value, isPlain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

bool toNumber(const QString& text, double& value)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        return false;
    }
    value = number;
    return true;
}

} // namespace

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
    setText(realText(value));
}

void RealEdit::takeText(const QString& text)
{
    if (toNumber(text, m_value)) {
        emit signalValue(m_value);
    }
}

void RealEdit::focusOutEvent(QFocusEvent* event)
{
    double number = 0.0;
    if (!toNumber(text(), number)) {
        setValue(m_value);
    }
    QLineEdit::focusOutEvent(event);
}

} // namespace gui
