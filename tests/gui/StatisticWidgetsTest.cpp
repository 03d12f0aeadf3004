#include "gui/controls/QwtBarItem.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/measure/QwtBusLoad.h"
#include "gui/measure/QwtPeriodItem.h"
#include "gui/measure/QwtSpread.h"
#include "measure/BusLoadHistogram.h"
#include "measure/SpreadHistogram.h"
#include "tests/gui/PaintCounter.h"
#include "tests/support/SettableClock.h"

#include <QFrame>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using zul::test::PaintCounter;

const QColor aliveColor(220, 255, 220);
const QColor white(255, 255, 255);
const QColor blockColor(0, 0, 180);

TEST(PeriodItem, DrawsBandLineAndBorder)
{
    zul::test::SettableClock clock;
    gui::QwtPeriodItem item;
    item.resize(401, 20);
    EXPECT_DOUBLE_EQ(item.maximum(), 100.0);
    item.setBackground(aliveColor);
    item.startAt(0.375);
    item.setPeriod(0.375, 0.25, 0.5, 1.0);
    const QImage image = item.grab().toImage();
    EXPECT_EQ(image.pixelColor(50, 2), aliveColor);
    EXPECT_EQ(image.pixelColor(99, 2), aliveColor);
    EXPECT_EQ(image.pixelColor(101, 2), QColor(200, 200, 0));
    EXPECT_EQ(image.pixelColor(198, 2), QColor(200, 200, 0));
    EXPECT_EQ(image.pixelColor(202, 2), aliveColor);
    EXPECT_EQ(image.pixelColor(150, 2), QColor(200, 0, 0));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(200, 200, 200));
    EXPECT_EQ(image.pixelColor(400, 19), QColor(200, 200, 200));
}

TEST(PeriodItem, AbsurdPeriodsAreDrawnWithinTheCell)
{
    zul::test::SettableClock clock;
    gui::QwtPeriodItem item;
    item.resize(200, 20);
    for (const double scale : {0.0, -1.0, 1e-300, 1e300}) {
        item.setPeriod(-1e9, -1e9, 1e9, scale);
        item.grab();
    }
}

TEST(SpreadWidget, SelectionStandsAtItsPlace)
{
    SpreadHistogram histogram;
    gui::QwtSpread spread(histogram);
    auto* modes = spread.findChild<gui::QwtComboBox*>();
    EXPECT_EQ(modes->geometry(), QRect(300, 10, 150, 20));
    EXPECT_EQ(modes->itemText(0), QStringLiteral("Line Graph"));
    EXPECT_EQ(modes->itemText(1), QStringLiteral("Block Graph"));
    EXPECT_EQ(modes->itemData(1).toInt(), 1);
    EXPECT_EQ(spread.graphMode(), HistogramMode::LineGraph);
}

// A widget of 630 x 400 has its plot from 80 to 580 and from 150 to 350.
TEST(SpreadWidget, DrawsBothGraphs)
{
    SpreadHistogram histogram;
    for (const double time : {1.0, 1.01, 1.031, 1.052, 1.082}) {
        histogram.add(time, 1.0);
    }
    gui::QwtSpread spread(histogram);
    spread.resize(630, 400);
    QImage image = spread.grab().toImage();
    EXPECT_EQ(image.pixelColor(300, 200), white);
    const auto hasInColumn = [&](int x, const QColor& color) {
        int found = 0;
        for (int column = x - 1; column <= x + 1; ++column) {
            for (int y = 152; y < 338; ++y) {
                found += image.pixelColor(column, y) == color ? 1 : 0;
            }
        }
        return found;
    };
    EXPECT_GT(hasInColumn(355, QColor(255, 0, 0)), 150) << "21 ms twice";
    EXPECT_EQ(hasInColumn(355, blockColor), 0);
    EXPECT_EQ(image.pixelColor(75, 350), QColor(0, 0, 0)) << "the axis";
    EXPECT_EQ(image.pixelColor(200, 270), QColor(220, 220, 220)) << "the grid";
    auto* modes = spread.findChild<gui::QwtComboBox*>();
    QTest::keyClick(modes, Qt::Key_Down);
    EXPECT_EQ(spread.graphMode(), HistogramMode::BlockGraph);
    image = spread.grab().toImage();
    EXPECT_GT(hasInColumn(355, blockColor), 150);
    EXPECT_EQ(hasInColumn(355, QColor(255, 0, 0)), 0);
    EXPECT_EQ(histogram.count(), 5U) << "the mode changes nothing else";
}

TEST(BusLoadWidget, PanelHasItsControls)
{
    BusLoadHistogram histogram;
    gui::QwtBusLoad load(histogram);
    auto* panel = load.findChild<QFrame*>(QStringLiteral("busLoadPanel"));
    EXPECT_EQ(panel->geometry(), QRect(300, 10, 200, 100));
    QStringList labels;
    for (const QLabel* label :
         panel->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        labels.append(label->text());
    }
    EXPECT_EQ(labels.join(QLatin1Char('|')), QStringLiteral("Resolution :|Measure Time :"));
    const auto expect = [&](const char* name, int least, int most, int step, const char* text) {
        const auto* box = panel->findChild<QSpinBox*>(QLatin1String(name));
        EXPECT_EQ(box->minimum(), least);
        EXPECT_EQ(box->maximum(), most);
        EXPECT_EQ(box->singleStep(), step);
        EXPECT_EQ(box->text(), QLatin1String(text));
    };
    expect("resolution", 1, 100, 5, "30 ms");
    expect("measureTime", 100, 10'000, 500, "5000 ms");
    EXPECT_EQ(panel->findChildren<gui::QwtComboBox*>().size(), 1);
}

TEST(BusLoadWidget, ResolutionAndMeasureTimeStartAnewAndTheGraphDoesNot)
{
    BusLoadHistogram histogram;
    gui::QwtBusLoad load(histogram);
    histogram.add(1.0);
    QTest::keyClick(load.findChild<gui::QwtComboBox*>(), Qt::Key_Down);
    EXPECT_EQ(load.graphMode(), HistogramMode::BlockGraph);
    EXPECT_EQ(histogram.count(), 1U);
    QTest::keyClick(load.findChild<QSpinBox*>(QStringLiteral("resolution")), Qt::Key_Up);
    EXPECT_EQ(histogram.resolution(), 35U);
    EXPECT_EQ(histogram.count(), 0U);
    histogram.add(1.0);
    QTest::keyClick(load.findChild<QSpinBox*>(QStringLiteral("measureTime")), Qt::Key_Down);
    EXPECT_EQ(histogram.measureTime(), 4500U);
    EXPECT_EQ(histogram.count(), 0U);
}

TEST(BusLoadWidget, DrawsBothGraphs)
{
    BusLoadHistogram histogram;
    histogram.setResolution(100);
    for (const double time : {0.0, 2.5, 2.51, 4.0}) {
        histogram.add(time);
    }
    gui::QwtBusLoad load(histogram);
    load.resize(630, 400);
    QImage image = load.grab().toImage();
    EXPECT_EQ(image.pixelColor(330, 200), QColor(220, 220, 220)) << "the grid is above the graph";
    const QImage lines = image;
    load.slotDisplayType(1);
    image = load.grab().toImage();
    EXPECT_NE(image, lines);
    EXPECT_EQ(image.pixelColor(327, 200), blockColor) << "2 in a slot 11 pixels wide";
    EXPECT_EQ(image.pixelColor(334, 200), blockColor);
    EXPECT_EQ(image.pixelColor(320, 200), white);
    EXPECT_EQ(image.pixelColor(483, 200), white) << "1 reaches half as high";
    EXPECT_EQ(image.pixelColor(483, 260), blockColor);
}

TEST(BusLoadWidget, TextAtTheRightEdgeIsNotCut)
{
    BusLoadHistogram histogram;
    histogram.add(1.0);
    gui::QwtBusLoad load(histogram);
    load.resize(630, 400);
    const QImage image = load.grab().toImage();
    for (int y = 370; y < 386; ++y) {
        EXPECT_EQ(image.pixelColor(629, y), white);
    }
    int blue = 0;
    for (int x = 540; x < 560; ++x) {
        for (int y = 370; y < 386; ++y) {
            blue += image.pixelColor(x, y).blue() > image.pixelColor(x, y).red() + 60 ? 1 : 0;
        }
    }
    EXPECT_GT(blue, 0) << "it begins further left";
}

TEST(BarItem, IsRepaintedOnlyWhenItShowsSomethingElse)
{
    zul::test::SettableClock clock;
    gui::QwtBarItem bar;
    bar.resize(200, 20);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    bar.setRate(50.0, 100);
    QApplication::processEvents();
    PaintCounter painted(bar);
    bar.setValue(50.0, 100);
    QApplication::processEvents();
    EXPECT_EQ(painted.count, 0);
    clock.advance(1.0);
    bar.setValue(90.0, 100);
    QApplication::processEvents();
    EXPECT_EQ(painted.count, 1);
}

} // namespace
