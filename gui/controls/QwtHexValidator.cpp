#include "gui/controls/QwtHexValidator.h"

#include "gui/controls/NumberText.h"

namespace gui {

QwtHexValidator::QwtHexValidator(int minimum, int maximum, QObject* parent)
    : QIntValidator(minimum, maximum, parent)
{
}

QValidator::State QwtHexValidator::validate(QString& text, int&) const
{
    const qlonglong value = wideNumberFromText(text);
    return value >= bottom() && value <= top() ? Acceptable : Invalid;
}

} // namespace gui
