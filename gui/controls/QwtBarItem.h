#pragma once

#include <QColor>
#include <QWidget>

namespace gui {

/// A bar that shows a message rate.
class QwtBarItem : public QWidget
{
    Q_OBJECT

public:
    explicit QwtBarItem(const QColor& background, QWidget* parent = nullptr);

    /// Smooths `rate` (messages per second) over the time since the last call. A `maximum` below 1
    /// counts as 1.
    void setValue(double rate, double maximum);
    double rate() const { return m_rate; }
    double maximum() const { return m_maximum; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_background;
    double m_rate = 0.0;
    double m_maximum = 100.0;
    double m_lastTime; // application clock, seconds
};

} // namespace gui
