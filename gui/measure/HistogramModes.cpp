#include "gui/measure/HistogramModes.h"

#include "gui/controls/QwtComboBox.h"
#include "measure/HistogramKeys.h"

namespace gui {

QwtComboBox* makeHistogramModes(QWidget* parent)
{
    auto* modes = new QwtComboBox(0, parent);
    modes->setObjectName(QStringLiteral("graphMode"));
    modes->addItem(QStringLiteral("Line Graph"), static_cast<int>(HistogramMode::LineGraph));
    modes->addItem(QStringLiteral("Block Graph"), static_cast<int>(HistogramMode::BlockGraph));
    return modes;
}

} // namespace gui
