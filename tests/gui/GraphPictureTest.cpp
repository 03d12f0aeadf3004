#include "tests/gui/GraphGlFixture.h"

// The pixels of the oscilloscope.

namespace zul::test {

namespace {

const QColor black(0, 0, 0);
const QColor white(255, 255, 255);
const QColor red(255, 0, 0);
const QColor green(0, 255, 0);
const QColor gridColor(255, 77, 77);

class GraphPicture : public GraphGlTest
{
};

TEST_F(GraphPicture, HasBackgroundPlotAndFrame)
{
    m_graph->setGridOn(false);
    m_graph->setSplitMode(0); // in split mode a strip's line lies over the lower side
    picture();
    const QImage image = picture();
    EXPECT_EQ(image.size(), QSize(width, height));
    EXPECT_TRUE(isAlike(image.pixelColor(2, 2), QColor(204, 204, 204)));
    EXPECT_TRUE(isAlike(image.pixelColor(plot().center()), black));
    for (const QPoint place : {QPoint(plot().left(), 150), QPoint(plot().right() + 1, 150),
                               QPoint(300, 10), QPoint(300, 310)}) {
        EXPECT_TRUE(isNear(image, place.x(), place.y(), white)) << place.x() << ' ' << place.y();
    }
    m_graph->setPlotColor(0.0F, 0.0F, 1.0F);
    m_graph->setBackColor(1.0F, 1.0F, 0.0F);
    const QImage other = picture();
    EXPECT_TRUE(isAlike(other.pixelColor(plot().center()), QColor(0, 0, 255)));
    EXPECT_TRUE(isAlike(other.pixelColor(2, 2), QColor(255, 255, 0)));
}

TEST_F(GraphPicture, TraceLiesAtItsTimesAndValues)
{
    m_graph->setGridOn(false);
    addAt(0.0, 2.0);
    addAt(30.0, 2.0);
    addAt(30.5, 8.0);
    addAt(60.0, 8.0);
    const QImage image = picture();
    EXPECT_TRUE(isNear(image, columnOf(15.0), rowOf(2.0), red));
    EXPECT_TRUE(isNear(image, columnOf(45.0), rowOf(8.0), red));
    EXPECT_TRUE(isNear(image, columnOf(30.25), rowOf(5.0), red, 3));
    EXPECT_FALSE(isNear(image, columnOf(15.0), rowOf(8.0), red, 5));
    EXPECT_FALSE(isNear(image, columnOf(45.0), rowOf(2.0), red, 5));
    // One pixel wide.
    EXPECT_EQ(count(image, {columnOf(15.0), 12, 1, 290}, red), 1);
    m_graph->setParameterColor(0, 0.0F, 1.0F, 0.0F);
    EXPECT_TRUE(isNear(picture(), columnOf(15.0), rowOf(2.0), green));
}

TEST_F(GraphPicture, SamplesAreWhiteDotsOfThreePixels)
{
    m_graph->setGridOn(false);
    addAt(20.0, 5.0);
    addAt(40.0, 5.0);
    const QRect around(columnOf(20.0) - 4, rowOf(5.0) - 4, 9, 9);
    EXPECT_EQ(count(picture(), around, white), 0);
    m_graph->setParameterShowSamples(0, true);
    EXPECT_EQ(count(picture(), around, white), 9);
}

TEST_F(GraphPicture, StripsLieBelowEachOtherAndCutTheirTraces)
{
    m_graph->setGridOn(false);
    m_graph->setParameterVisible(1, true);
    m_graph->setParameterYMax(1, 10.0F);
    addAt(10.0, 5.0, 0);
    m_graph->addValue(1, 5.0);
    addAt(30.0, 5.0, 0);
    m_graph->addValue(1, 5.0);
    addAt(30.5, 25.0, 0); // far above the strip
    m_graph->addValue(1, 25.0);
    addAt(50.0, 25.0, 0);
    m_graph->addValue(1, 25.0);
    picture();
    const QImage image = picture();
    EXPECT_TRUE(isNear(image, columnOf(20.0), 10 + 75, red));
    EXPECT_TRUE(isNear(image, columnOf(20.0), 160 + 75, green));
    // The second channel's line rises no higher than its strip.
    EXPECT_GT(count(image, {columnOf(30.0), 165, 12, 60}, green), 20);
    EXPECT_EQ(count(image, {columnOf(30.0), 12, 12, 140}, green), 0);
    EXPECT_EQ(count(image, {columnOf(30.0), 0, 12, 9}, red), 0);
    // The boundary between the strips.
    EXPECT_TRUE(isNear(image, columnOf(40.0), 160, QColor(128, 128, 128)));
}

TEST_F(GraphPicture, TraceIsCutAtTheRightEdge)
{
    addAt(50.0, 5.0);
    addAt(100.0, 5.0);
    const QImage image = picture();
    EXPECT_TRUE(isNear(image, plot().right() - 2, rowOf(5.0), red));
    EXPECT_EQ(count(image, {plot().right() + 3, 0, width - plot().right() - 4, height}, red), 0);
}

TEST_F(GraphPicture, SingleGraphHasTheFixedRange)
{
    m_graph->setGridOn(false);
    m_graph->setSplitMode(0);
    addAt(10.0, 0.5);
    addAt(50.0, 0.5);
    picture();
    EXPECT_TRUE(isNear(picture(), columnOf(30.0), 160, red));
}

TEST_F(GraphPicture, GridIsDotted)
{
    const QImage image = picture();
    const int tick = columnOf(30.0);
    int best = 0;
    for (int x = tick - 1; x <= tick + 1; ++x) {
        best = std::max(best, count(image, {x, 20, 1, 280}, gridColor));
    }
    EXPECT_NEAR(best, 140, 15);
    m_graph->setGridOn(false);
    EXPECT_EQ(count(picture(), plot().adjusted(3, 3, -3, -3), gridColor), 0);
}

TEST_F(GraphPicture, GridHasItsColor)
{
    m_graph->setGridColor(0.0F, 0.0F, 1.0F);
    EXPECT_GT(count(picture(), plot(), QColor(0, 0, 255)), 100);
}

TEST_F(GraphPicture, MarkerIsTranslucent)
{
    m_graph->setGridOn(false);
    m_graph->markAt(columnOf(10.0));
    m_graph->moveMarker(columnOf(20.0));
    addAt(5.0, 5.0);
    addAt(55.0, 5.0);
    const QImage image = picture();
    // Yellow at 30 percent: over black, and over the red trace.
    EXPECT_TRUE(isAlike(image.pixelColor(columnOf(15.0), 100), QColor(77, 77, 0)));
    EXPECT_TRUE(isNear(image, columnOf(15.0), rowOf(5.0), QColor(255, 77, 0)));
    EXPECT_TRUE(isAlike(image.pixelColor(columnOf(25.0), 100), black));
    EXPECT_TRUE(isAlike(image.pixelColor(columnOf(5.0), 100), black));
    EXPECT_TRUE(isAlike(image.pixelColor(columnOf(15.0), 15), QColor(77, 77, 0)));
    EXPECT_TRUE(isAlike(image.pixelColor(columnOf(15.0), 305), QColor(77, 77, 0)));
}

TEST_F(GraphPicture, CursorIsACrossWithTextsWhileHeld)
{
    m_graph->setGridOn(false);
    m_graph->setCursorOn(true);
    addAt(0.0, 2.0);
    addAt(60.0, 2.0);
    m_graph->holdCursor(columnOf(30.0), rowOf(7.0));
    const QImage held = picture();
    const int x = columnOf(30.0);
    const int y = rowOf(7.0);
    EXPECT_TRUE(isNear(held, x, 50, white));
    EXPECT_TRUE(isNear(held, x, 316, white)); // below the plot
    EXPECT_TRUE(isNear(held, 100, y, white));
    EXPECT_TRUE(isNear(held, plot().left() - 8, y, white)); // left of it
    const QRect cursorText(x + 5, y - 18, 60, 14);
    const QRect valueText(x + 5, rowOf(2.0) - 11, 30, 10);
    EXPECT_GT(ink(held, cursorText, white), 30);
    EXPECT_GT(ink(held, valueText, red), 15);
    m_graph->releaseCursor();
    const QImage free = picture();
    EXPECT_TRUE(isNear(free, x, 50, white));
    EXPECT_EQ(ink(free, cursorText, white), 0);
    EXPECT_EQ(ink(free, valueText, red), 0);
    m_graph->setCursorOn(false);
    EXPECT_FALSE(isNear(picture(), x, 50, white));
}

TEST_F(GraphPicture, LegendStandsInEachStrip)
{
    m_graph->setGridOn(false);
    m_graph->setParameterVisible(1, true);
    m_graph->setParameterLabels(0, "Speed", "kt");
    picture();
    const QRect first(plot().left() + 5, 14, 130, 16);
    const QRect second = first.translated(0, 150);
    EXPECT_EQ(ink(picture(), first, red), 0);
    m_graph->setLegendOn(true);
    const QImage image = picture();
    EXPECT_GT(ink(image, first, red), 60);
    EXPECT_GT(ink(image, second, green), 60);
    EXPECT_EQ(ink(image, first, green), 0);
}

TEST_F(GraphPicture, LabelsAndTicksAreInTheirColors)
{
    m_graph->setLabelColor(0.0F, 0.0F, 1.0F);
    const QImage image = picture();
    // The time axis below, the channel's own axis at the left.
    EXPECT_GT(count(image, {plot().left(), 312, 530, 36}, QColor(0, 0, 255)), 100);
    EXPECT_GT(count(image, {0, 0, plot().left() - 2, 310}, red), 100);
    m_graph->setSplitMode(0);
    picture();
    const QImage single = picture();
    EXPECT_GT(count(single, {0, 0, plot().left() - 2, 310}, QColor(0, 0, 255)), 150);
    EXPECT_EQ(count(single, {0, 0, plot().left() - 2, 310}, red), 0);
}

TEST_F(GraphPicture, LettersAreThatOfTheirText)
{
    m_graph->setGridOn(false);
    m_graph->setLegendOn(true);
    const QRect line(plot().left() + 5, 12, 130, 18);
    m_graph->setParameterLabels(0, "III", "");
    const int thin = ink(picture(), line, red);
    m_graph->setParameterLabels(0, "MMM", "");
    const int wide = ink(picture(), line, red);
    m_graph->setParameterLabels(0, "   ", "");
    const int blank = ink(picture(), line, red);
    EXPECT_GT(wide, thin);
    EXPECT_GT(thin, blank);
}

TEST_F(GraphPicture, WithoutChannelsThePlotIsFilledAndFramed)
{
    m_graph->setGridOn(false);
    m_graph->setParameterVisible(0, false);
    picture();
    const QImage image = picture();
    EXPECT_TRUE(isAlike(image.pixelColor(plot().center()), black));
    EXPECT_TRUE(isNear(image, 300, 310, white));
    EXPECT_EQ(count(image, plot(), QColor(128, 128, 128)), 0);
}

TEST_F(GraphPicture, FollowsTheSizeOfTheWidget)
{
    m_graph->setGridOn(false);
    m_graph->resize(400, 250);
    ASSERT_TRUE(QTest::qWaitFor([&] { return state().plotHeight == 200.0; }));
    picture();
    const QImage image = picture();
    EXPECT_EQ(image.size(), QSize(400, 250));
    EXPECT_TRUE(isNear(image, 390, 100, white));
    EXPECT_TRUE(isNear(image, 200, 10, white));
    EXPECT_EQ(state().plotWidth, 400.0 - state().plotLeft - 10.0);
}

TEST_F(GraphPicture, RepaintsByItself)
{
    const std::size_t before = state().channels[0].samples.size();
    m_graph->setAutoMode(1);
    m_graph->setCurrentTime(1.0);
    // Each paint of a silent channel holds its value once more.
    EXPECT_TRUE(QTest::qWaitFor([&] { return state().channels[0].samples.size() > before + 3; }));
}

TEST_F(GraphPicture, NumbersThatAreNoneAreNotDrawn)
{
    m_graph->setGridOn(false);
    addAt(10.0, 5.0);
    addAt(20.0, std::nan(""));
    addAt(30.0, 1e308);
    addAt(40.0, -1e308);
    addAt(50.0, 5.0);
    const QImage image = picture();
    EXPECT_FALSE(isNear(image, columnOf(15.0), rowOf(5.0), red, 4));
    EXPECT_TRUE(isAlike(image.pixelColor(2, 2), QColor(204, 204, 204)));
}

} // namespace

} // namespace zul::test
