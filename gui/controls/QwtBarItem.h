#pragma once

#include <QColor>
#include <QWidget>

#include <cstdint>

namespace gui {

/// A bar that shows a message rate.
class QwtBarItem : public QWidget
{
    Q_OBJECT

public:
    explicit QwtBarItem(int index = 0, QWidget* parent = nullptr);

    /// The colour behind the bar; white at first.
    void setBackground(const QColor& background);

    /// Smooths `rate` (messages per second) over the time since the last call. A `maximum` below 1
    /// counts as 1.
    void setValue(double rate, std::uint32_t maximum);
    /// Shows a rate as it is, for a bar that comes up late.
    void setRate(double rate, std::uint32_t maximum);
    int index() const { return m_index; }
    double rate() const { return m_rate; }
    std::uint32_t maximum() const { return m_maximum; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// What of the values can be seen.
    struct Shown
    {
        QString text;
        int barWidth;
    };

    Shown shown() const;
    void showValues(double rate, std::uint32_t maximum);

    int m_index;
    QColor m_background = Qt::white;
    double m_rate = 0.0;
    std::uint32_t m_maximum = 100;
    double m_lastTime; // application clock, seconds
};

} // namespace gui
