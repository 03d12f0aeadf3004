#pragma once

#include "measure/HistogramKeys.h"

#include <QWidget>

class SpreadHistogram;

namespace gui {

/// The histogram of one message's periods.
class QwtSpread : public QWidget
{
    Q_OBJECT

public:
    /// `histogram` outlives the widget, which draws it and is told of changes by
    /// `showChanges`.
    explicit QwtSpread(const SpreadHistogram& histogram, QWidget* parent = nullptr);

    HistogramMode graphMode() const { return m_graphMode; }
    /// Asks for a repaint if the histogram has other messages than the picture.
    void showChanges();

public slots:
    /// The number of a `HistogramMode`.
    void slotDisplayType(int mode);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const SpreadHistogram& m_histogram;
    HistogramMode m_graphMode = HistogramMode::LineGraph;
    std::uint32_t m_shownCount = 0; // messages in the picture
};

} // namespace gui
