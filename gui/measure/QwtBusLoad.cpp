#include "gui/measure/QwtBusLoad.h"

#include "gui/controls/QwtComboBox.h"
#include "gui/measure/HistogramModes.h"
#include "gui/measure/PlotPainter.h"
#include "measure/BusLoadHistogram.h"
#include "measure/BusLoadPlot.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QSpinBox>

namespace gui {

namespace {

constexpr QRect panelPlace(300, 10, 200, 100);
constexpr int panelMargin = 4;        // pixels
constexpr int leastSpinBoxWidth = 80; // pixels; else the labels would be cut

struct Range
{
    int least;
    int most;
    int step;
};

constexpr Range resolutions{1, 100, 5};         // ms
constexpr Range measureTimes{100, 10'000, 500}; // ms

QSpinBox* makeSpinBox(const char* objectName, const Range& range, std::uint32_t value,
                      QWidget* parent)
{
    auto* spinBox = new QSpinBox(parent);
    spinBox->setObjectName(QLatin1String(objectName));
    spinBox->setRange(range.least, range.most);
    spinBox->setSingleStep(range.step);
    spinBox->setMinimumWidth(leastSpinBoxWidth);
    spinBox->setSuffix(QStringLiteral(" ms"));
    spinBox->setKeyboardTracking(false); // each digit of a typed number would start anew
    spinBox->setValue(static_cast<int>(value));
    return spinBox;
}

} // namespace

QwtBusLoad::QwtBusLoad(BusLoadHistogram& histogram, QWidget* parent)
    : QWidget(parent), m_histogram(histogram)
{
    build();
}

void QwtBusLoad::build()
{
    auto* panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("busLoadPanel"));
    panel->setGeometry(panelPlace);
    QwtComboBox* modes = makeHistogramModes(panel);
    QSpinBox* resolution = makeSpinBox("resolution", resolutions, m_histogram.resolution(), panel);
    QSpinBox* measureTime =
        makeSpinBox("measureTime", measureTimes, m_histogram.measureTime(), panel);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(panelMargin, panelMargin, panelMargin, panelMargin);
    grid->setSpacing(panelMargin);
    grid->addWidget(modes, 0, 0, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("Resolution :"), panel), 1, 0);
    grid->addWidget(resolution, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("Measure Time :"), panel), 2, 0);
    grid->addWidget(measureTime, 2, 1);
    connect(modes, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &QwtBusLoad::slotDisplayType);
    connect(resolution, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &QwtBusLoad::slotResolution);
    connect(measureTime, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &QwtBusLoad::slotTotalTime);
}

void QwtBusLoad::slotDisplayType(int mode)
{
    m_graphMode = histogramMode(mode);
    update();
}

void QwtBusLoad::slotResolution(int resolution)
{
    m_histogram.setResolution(static_cast<std::uint32_t>(resolution));
    update();
}

void QwtBusLoad::slotTotalTime(int measureTime)
{
    m_histogram.setMeasureTime(static_cast<std::uint32_t>(measureTime));
    update();
}

void QwtBusLoad::showChanges()
{
    if (m_histogram.count() != m_shownCount) {
        update();
    }
}

void QwtBusLoad::paintEvent(QPaintEvent*)
{
    m_shownCount = m_histogram.count();
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    drawItems(painter, busLoadPlot(m_histogram, m_graphMode, {width(), height()}));
}

} // namespace gui
