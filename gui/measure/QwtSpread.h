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
    /// `histogram` outlives the widget, which draws it and is told of changes by `update`.
    explicit QwtSpread(const SpreadHistogram& histogram, QWidget* parent = nullptr);

    HistogramMode graphMode() const { return m_graphMode; }

public slots:
    /// The number of a `HistogramMode`.
    void slotDisplayType(int mode);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const SpreadHistogram& m_histogram;
    HistogramMode m_graphMode = HistogramMode::LineGraph;
};

} // namespace gui
