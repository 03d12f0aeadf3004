#pragma once

#include "measure/StatisticRowText.h"

#include <QColor>
#include <QWidget>

namespace gui {

/// A message's period: the band from the shortest to the longest, and a line at the smoothed one.
/// Periods are seconds.
class QwtPeriodItem : public QWidget
{
    Q_OBJECT

public:
    explicit QwtPeriodItem(QWidget* parent = nullptr);

    /// The colour behind the band; white at first.
    void setBackground(const QColor& background);
    /// Takes the period as it is, without smoothing, for the `setPeriod` to come.
    void startAt(double period);
    /// Smooths `period` over the time since the last call. `scale` is what the right end stands
    /// for.
    void setPeriod(double period, double minimum, double maximum, double scale);

    double filtered() const { return m_filtered; }
    double period() const { return m_period; }
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double scale() const { return m_scale; }
    const QColor& background() const { return m_background; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PeriodBand band() const;

    double m_filtered = 0.0;
    double m_period = 0.0;
    double m_minimum = 0.0;
    double m_maximum = 100.0;
    double m_scale = 0.0;
    QColor m_background = Qt::white;
    double m_lastWall; // application clock, seconds
};

} // namespace gui
