#pragma once

class QWidget;

namespace gui {

class QwtComboBox;

/// The selection of a histogram's mode, with the line graph chosen.
QwtComboBox* makeHistogramModes(QWidget* parent);

} // namespace gui
