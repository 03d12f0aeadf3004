#pragma once

#include <QString>

#include <cstdint>
#include <vector>

class QHBoxLayout;
class QLineEdit;
class QWidget;

namespace gui {

class QwtComboBox;

// Small parts of the form that edits a parameter.

QLineEdit* makeField(const char* objectName, QWidget* parent);
QwtComboBox* makeSelection(const char* objectName, QWidget* parent);
/// Two controls side by side, of one width.
QHBoxLayout* sideBySide(QWidget* left, QWidget* right);

/// Offers these numbers and `value`, which is shown: it counts until another is chosen. Where there
/// is nothing to offer, nothing is shown.
void fillNumbers(QwtComboBox& selection, std::vector<std::uint32_t> numbers, std::uint32_t value,
                 bool isEnabled);

/// As "%f".
QString fixedText(double value);
/// With as few digits as tell the number from all others.
QString shortText(double value);
/// The number that a text stands for; 0 for one that is no finite number.
double numberOf(const QLineEdit& field);

} // namespace gui
