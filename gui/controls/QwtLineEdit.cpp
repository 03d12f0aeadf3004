#include "gui/controls/QwtLineEdit.h"

namespace gui {

QwtLineEdit::QwtLineEdit(int index, QWidget* parent) : QLineEdit(parent), m_index(index)
{
    setAutoFillBackground(true);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& text) { emit signalTextChanged(m_index, text); });
}

void QwtLineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    emit focusIn();
}

void QwtLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    emit focusOut();
}

} // namespace gui
