#include "gui/controls/QwtPushButton.h"

namespace gui {

QwtPushButton::QwtPushButton(int index, QWidget* parent) : QPushButton(parent), m_index(index)
{
    connect(this, &QPushButton::clicked, this, [this] { emit signalClicked(m_index); });
}

QwtPushButton::QwtPushButton(const QString& text, const QColor& background, QWidget* parent,
                             int index)
    : QwtPushButton(index, parent)
{
    setText(text);
    QPalette colors = palette();
    colors.setColor(QPalette::Button, background);
    setPalette(colors);
    setAutoFillBackground(true);
}

} // namespace gui
