#include "gui/controls/QwtComboBox.h"

namespace gui {

QwtComboBox::QwtComboBox(int index, QWidget* parent) : QComboBox(parent), m_index(index)
{
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int item) {
        const int value = itemData(item, Qt::UserRole).toInt();
        emit signalActivated(m_index, value);
        emit signalActivated(value);
    });
}

void QwtComboBox::setData(int value)
{
    setCurrentIndex(findData(value, Qt::UserRole));
}

} // namespace gui
