#include "gui/measure/ParameterForm.h"

#include "gui/controls/QwtComboBox.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace gui {

QLineEdit* makeField(const char* objectName, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(objectName));
    return field;
}

QwtComboBox* makeSelection(const char* objectName, QWidget* parent)
{
    auto* selection = new QwtComboBox(0, parent);
    selection->setObjectName(QLatin1String(objectName));
    return selection;
}

QHBoxLayout* sideBySide(QWidget* left, QWidget* right)
{
    auto* layout = new QHBoxLayout;
    layout->addWidget(left, 1);
    layout->addWidget(right, 1);
    return layout;
}

void fillNumbers(QwtComboBox& selection, std::vector<std::uint32_t> numbers, std::uint32_t value,
                 bool isEnabled)
{
    const auto place = std::lower_bound(numbers.begin(), numbers.end(), value);
    if (!numbers.empty() && (place == numbers.end() || *place != value)) {
        numbers.insert(place, value);
    }
    selection.clear();
    for (const std::uint32_t number : numbers) {
        selection.addItem(QString::number(number), number);
    }
    selection.setCurrentIndex(selection.findData(value));
    selection.setEnabled(isEnabled);
}

QString fixedText(double value)
{
    return QString::asprintf("%f", value);
}

QString shortText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

double numberOf(const QLineEdit& field)
{
    bool isNumber = false;
    const double value = field.text().trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? value : 0.0;
}

} // namespace gui
