#include "gui/controls/WidgetStatus.h"

#include "core/Latin1.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int labelWidth = 170; // pixels
constexpr int spacing = 5;

} // namespace

WidgetStatus::WidgetStatus(QWidget* parent)
    : QFrame(parent),
      m_label(new QLabel(QStringLiteral("Status "), this)),
      m_value(new QLineEdit(this))
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setFixedWidth(labelWidth);
    m_value->setReadOnly(true);
    m_value->setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    layout->addWidget(m_label);
    layout->addWidget(m_value, 1);
}

void WidgetStatus::set(const zul::DeviceStatusEntry& entry)
{
    m_label->setText(zul::fromLatin1(entry.label));
    const QString text = zul::fromLatin1(entry.value);
    if (m_value->text() != text) {
        m_value->setText(text);
        m_value->setCursorPosition(0); // a long text shows its beginning
    }
    QPalette colors = m_value->palette();
    const QColor color(zul::fromLatin1(entry.color));
    colors.setColor(QPalette::Active, QPalette::Base, color);
    colors.setColor(QPalette::Inactive, QPalette::Base, color);
    m_value->setPalette(colors);
}

QString WidgetStatus::label() const
{
    return m_label->text();
}

QString WidgetStatus::value() const
{
    return m_value->text();
}

QColor WidgetStatus::valueColor() const
{
    return m_value->palette().color(QPalette::Active, QPalette::Base);
}
