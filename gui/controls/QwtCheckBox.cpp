#include "gui/controls/QwtCheckBox.h"

namespace gui {

QwtCheckBox::QwtCheckBox(int index, QWidget* parent) : QCheckBox(parent), m_index(index)
{
    connect(this, &QCheckBox::toggled, this,
            [this](bool value) { emit signalToggled(m_index, value); });
}

void QwtCheckBox::setValue(int value)
{
    setChecked(value != 0);
}

} // namespace gui
