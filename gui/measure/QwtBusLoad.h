#pragma once

#include "measure/HistogramKeys.h"

#include <QWidget>

class BusLoadHistogram;

namespace gui {

/// The histogram of all messages over a measure time.
class QwtBusLoad : public QWidget
{
    Q_OBJECT

public:
    /// `histogram` outlives the widget, which sets its resolution and its measure time, draws it,
    /// and is told of new messages by `showChanges`.
    explicit QwtBusLoad(BusLoadHistogram& histogram, QWidget* parent = nullptr);

    HistogramMode graphMode() const { return m_graphMode; }
    /// Asks for a repaint if the histogram has other messages than the picture.
    void showChanges();

public slots:
    /// The number of a `HistogramMode`. The measurement stays.
    void slotDisplayType(int mode);
    /// In ms; starts a new measurement.
    void slotResolution(int resolution);
    /// In ms; starts a new measurement.
    void slotTotalTime(int measureTime);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void build();

    BusLoadHistogram& m_histogram;
    HistogramMode m_graphMode = HistogramMode::LineGraph;
    std::uint32_t m_shownCount = 0; // messages in the picture
};

} // namespace gui
