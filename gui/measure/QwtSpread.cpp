#include "gui/measure/QwtSpread.h"

#include "gui/controls/QwtComboBox.h"
#include "gui/measure/HistogramModes.h"
#include "gui/measure/PlotPainter.h"
#include "measure/SpreadHistogram.h"
#include "measure/SpreadPlot.h"

#include <QPainter>

namespace gui {

namespace {

constexpr QRect modesPlace(300, 10, 150, 20);

} // namespace

QwtSpread::QwtSpread(const SpreadHistogram& histogram, QWidget* parent)
    : QWidget(parent), m_histogram(histogram)
{
    QwtComboBox* modes = makeHistogramModes(this);
    modes->setGeometry(modesPlace);
    connect(modes, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &QwtSpread::slotDisplayType);
}

void QwtSpread::slotDisplayType(int mode)
{
    m_graphMode = histogramMode(mode);
    update();
}

void QwtSpread::showChanges()
{
    if (m_histogram.count() != m_shownCount) {
        update();
    }
}

void QwtSpread::paintEvent(QPaintEvent*)
{
    m_shownCount = m_histogram.count();
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    drawItems(painter, spreadPlot(m_histogram, m_graphMode, {width(), height()}));
}

} // namespace gui
