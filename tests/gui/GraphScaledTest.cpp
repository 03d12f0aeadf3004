#include "tests/gui/GraphGlFixture.h"

// The pixels of the oscilloscope on a screen that has two of them to one of Qt's.

namespace zul::test {

namespace {

const QColor red(255, 0, 0);
const QColor white(255, 255, 255);
const QColor gridColor(255, 77, 77);

class GraphScaled : public GraphGlTest
{
protected:
    void SetUp() override
    {
        GraphGlTest::SetUp();
        ASSERT_EQ(m_graph->devicePixelRatioF(), 2.0);
        m_graph->setGridOn(false);
    }
};

TEST_F(GraphScaled, PictureHasThePixelsOfTheScreen)
{
    const QImage image = picture();
    EXPECT_EQ(image.size(), QSize(2 * width, 2 * height));
    EXPECT_EQ(state().plotHeight, 300.0);
    // The plot's frame, at the right and at the top.
    EXPECT_TRUE(isNear(image, 2 * (width - 10), 300, white, 2));
    EXPECT_TRUE(isNear(image, 600, 20, white, 2));
    EXPECT_TRUE(isAlike(image.pixelColor(600, 300), QColor(0, 0, 0)));
    EXPECT_TRUE(isAlike(image.pixelColor(4, 4), QColor(204, 204, 204)));
}

TEST_F(GraphScaled, TraceLiesAtItsTimesAndValuesAndIsTwoPixelsWide)
{
    addAt(0.0, 2.0);
    addAt(60.0, 2.0);
    const QImage image = picture();
    EXPECT_TRUE(isNear(image, 2 * columnOf(30.0), 2 * rowOf(2.0), red, 2));
    EXPECT_EQ(count(image, {2 * columnOf(30.0), 22, 1, 590}, red), 2);
}

TEST_F(GraphScaled, StripsCutTheirTraces)
{
    m_graph->setParameterVisible(1, true);
    m_graph->setParameterYMax(1, 10.0F);
    addAt(10.0, 5.0, 1);
    addAt(50.0, 500.0, 1);
    picture();
    const QImage image = picture();
    const QColor green(0, 255, 0);
    EXPECT_GT(count(image, {2 * columnOf(0.0), 322, 1000, 298}, green), 20);
    EXPECT_EQ(count(image, {2 * columnOf(0.0), 0, 1000, 318}, green), 0);
}

TEST_F(GraphScaled, LettersAreTwiceAsLarge)
{
    m_graph->setLegendOn(true);
    m_graph->setParameterLabels(0, "MMMM", "");
    picture();
    const QImage image = picture();
    const int left = 2 * (static_cast<int>(state().plotLeft) + 5);
    int highest = 2 * height;
    int lowest = 0;
    for (int y = 22; y < 80; ++y) {
        if (ink(image, {left, y, 40, 1}, red) > 0) {
            highest = std::min(highest, y);
            lowest = std::max(lowest, y);
        }
    }
    EXPECT_GE(lowest - highest, 14); // an M of 13 pixels' height has eight or nine
    EXPECT_LE(lowest - highest, 22);
}

TEST_F(GraphScaled, GridHasEveryOtherPixelOfTheScreen)
{
    m_graph->setGridOn(true);
    const QImage image = picture();
    int best = 0;
    for (int x = 2 * columnOf(30.0) - 2; x <= 2 * columnOf(30.0) + 3; ++x) {
        best = std::max(best, count(image, {x, 40, 1, 560}, gridColor));
    }
    EXPECT_NEAR(best, 280, 20);
}

} // namespace

} // namespace zul::test
