#include "gui/traffic/QwtTransmitButton.h"

#include "gui/controls/Colors.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/WheelGuard.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr QSize smallest(80, 40);
constexpr int maxRate = 100'000; // milliseconds
constexpr int rateStep = 10;
constexpr int fontPixels = 11;

struct Look
{
    QColor background;
    const char* text;
    const char* toolTip;
};

constexpr Look singleLook{colors::addOrSend, "Transmit", "Single Transmit"};
constexpr Look runningLook{colors::addOrSend, "Running", "Stop Transmit"};
constexpr Look stoppedLook{colors::clear, "Stopped", "Start Transmit"};

const Look& lookOf(int rate, int mode)
{
    if (rate == 0) {
        return singleLook;
    }
    return mode != 0 ? runningLook : stoppedLook;
}

} // namespace

QwtTransmitButton::QwtTransmitButton(int index, QWidget* parent)
    : QWidget(parent),
      m_index(index),
      m_rateBox(new QSpinBox(this)),
      m_button(new QwtPushButton(QString(), colors::addOrSend, this))
{
    QFont small = font();
    small.setPixelSize(fontPixels);
    setFont(small);
    setMinimumSize(smallest);
    m_rateBox->setRange(0, maxRate);
    m_rateBox->setSingleStep(rateStep);
    m_rateBox->setSuffix(QStringLiteral(" ms"));
    m_rateBox->setSpecialValueText(QStringLiteral("Single"));
    m_rateBox->setToolTip(QStringLiteral("Transmit Rate"));
    // Else a running line would be sent every millisecond while "100" is being typed.
    m_rateBox->setKeyboardTracking(false);
    WheelGuard::protect(m_rateBox);
    m_rateBox->findChild<QLineEdit*>()->installEventFilter(this);
    m_button->setToolTip(QStringLiteral("Transmit, Start/Stop Transmit"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (QWidget* control : {static_cast<QWidget*>(m_rateBox), static_cast<QWidget*>(m_button)}) {
        control->setMinimumHeight(smallest.height() / 2);
        control->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        control->setMaximumHeight(smallest.height() / 2);
        layout->addWidget(control);
    }
    layout->addStretch();
    connect(m_rateBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &QwtTransmitButton::slotRate);
    connect(m_button, &QPushButton::clicked, this, &QwtTransmitButton::slotTransmit);
}

void QwtTransmitButton::setRate(int rate)
{
    m_rate = rate;
    refresh();
}

void QwtTransmitButton::setMode(int mode)
{
    m_mode = mode;
    refresh();
}

// "Single" is no number to which digits could be added: a click marks it, so that they replace it.
// The text is asked, since the value stays 0 until what is typed is complete.
bool QwtTransmitButton::eventFilter(QObject* watched, QEvent* event)
{
    auto* text = qobject_cast<QLineEdit*>(watched);
    if (event->type() != QEvent::MouseButtonRelease || text == nullptr) {
        return false;
    }
    const bool isLeft = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (isLeft && text->text() == m_rateBox->specialValueText()) {
        text->selectAll();
        return true;
    }
    return false;
}

void QwtTransmitButton::slotRate(int v)
{
    if (!m_updating) {
        m_rate = v;
        emit transmitRate(m_index, v);
        refresh();
    }
}

void QwtTransmitButton::slotTransmit()
{
    if (m_rate == 0) {
        emit transmitSingle(m_index);
        return;
    }
    m_mode = m_mode != 0 ? 0 : 1;
    emit transmitMode(m_index, m_mode);
    refresh();
}

void QwtTransmitButton::refresh()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    m_rateBox->setValue(m_rate);
    const Look& look = lookOf(m_rate, m_mode);
    QPalette colors = m_button->palette();
    colors.setColor(QPalette::Button, look.background);
    m_button->setPalette(colors);
    m_button->setText(QLatin1String(look.text));
    m_button->setToolTip(QLatin1String(look.toolTip));
}

} // namespace gui
