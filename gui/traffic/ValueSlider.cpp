#include "gui/traffic/ValueSlider.h"

#include "gui/controls/WheelGuard.h"
#include "traffic/CanAerospaceEntry.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr int limitWidth = 60; // pixels
constexpr int lineHeight = 20;
constexpr int gap = 2;

} // namespace

ValueSlider::ValueSlider(QWidget* parent)
    : QWidget(parent),
      m_slider(new QSlider(Qt::Horizontal, this)),
      m_minimum(makeLine("minimum", "Minimum")),
      m_actual(makeLine("actual", "Value")),
      m_maximum(makeLine("maximum", "Maximum"))
{
    m_slider->setRange(0, canaerospaceentry::sliderMaximum);
    WheelGuard::protect(m_slider);
    m_minimum->setFixedWidth(limitWidth);
    m_maximum->setFixedWidth(limitWidth);
    auto* lines = new QHBoxLayout;
    lines->setSpacing(gap);
    lines->addWidget(m_minimum);
    lines->addWidget(m_actual, 1);
    lines->addWidget(m_maximum);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addWidget(m_slider);
    layout->addLayout(lines);
    layout->addStretch();
    connect(m_slider, &QSlider::valueChanged, this, &ValueSlider::signalSlider);
    connect(m_actual, &QLineEdit::textChanged, this, &ValueSlider::signalActual);
    connect(m_minimum, &QLineEdit::returnPressed, this, &ValueSlider::signalMin);
    connect(m_maximum, &QLineEdit::returnPressed, this, &ValueSlider::signalMax);
    // A limit that is only passed through stays as it is, with all its digits.
    connect(m_minimum, &QLineEdit::editingFinished, this, [this] {
        if (m_minimum->text() != m_shownMinimum) {
            emit signalMin();
        }
    });
    connect(m_maximum, &QLineEdit::editingFinished, this, [this] {
        if (m_maximum->text() != m_shownMaximum) {
            emit signalMax();
        }
    });
}

QLineEdit* ValueSlider::makeLine(const char* objectName, const char* toolTip)
{
    auto* line = new QLineEdit(this);
    line->setObjectName(QLatin1String(objectName));
    line->setToolTip(QLatin1String(toolTip));
    line->setFixedHeight(lineHeight);
    line->setMaxLength(canaerospaceentry::openLength);
    line->setAlignment(Qt::AlignHCenter);
    return line;
}

void ValueSlider::show(const SendMsg& message)
{
    m_shownMinimum = canaerospaceentry::singleText(message.min);
    m_shownMaximum = canaerospaceentry::singleText(message.max);
    m_minimum->setText(m_shownMinimum);
    m_maximum->setText(m_shownMaximum);
    m_actual->setText(canaerospaceentry::singleText(message.actual));
    moveSlider(message);
}

void ValueSlider::moveSlider(const SendMsg& message)
{
    const QSignalBlocker blocker(m_slider); // it must not set what it is set by
    m_slider->setValue(canaerospaceentry::sliderPositionFrom(message, m_slider->value()));
}

QString ValueSlider::minimumText() const
{
    return m_minimum->text();
}

QString ValueSlider::maximumText() const
{
    return m_maximum->text();
}

} // namespace gui
