#include "tests/unit/measure/GraphFixture.h"

#include <algorithm>
#include <gmock/gmock.h>

// What lies over what in the picture, how thick lines are, and when a picture's width makes columns
// anew.

namespace zul::test {

namespace {

using Kind = GraphItem::Kind;

class GraphOrder : public GraphTest
{
protected:
    /// Two strips with traces, a marker, a held cursor and a legend.
    void paintAll()
    {
        show(2);
        m_engine.setSplitMode(1);
        m_engine.setAutoMode(0);
        for (const std::uint32_t i : {0U, 1U}) {
            m_engine.setParameterYMax(i, 10.0F);
        }
        paint();
        for (const double time : {0.0, 30.0, 60.0}) {
            m_engine.setCurrentTime(time);
            m_engine.addValue(0, 1.0);
            m_engine.addValue(1, 2.0);
        }
        m_engine.markAt(100);
        m_engine.moveMarker(300);
        m_engine.holdCursor(200, 100);
        paint();
    }
    /// Of the first item for which it holds, or of the last; behind all items if there is none.
    template <typename Wanted>
    std::size_t first(Wanted wanted) const
    {
        const auto& all = m_drawing.items();
        return static_cast<std::size_t>(std::find_if(all.begin(), all.end(), wanted) - all.begin());
    }
    template <typename Wanted>
    std::size_t last(Wanted wanted) const
    {
        const auto& all = m_drawing.items();
        const auto found = std::find_if(all.rbegin(), all.rend(), wanted);
        return found == all.rend() ? all.size() : static_cast<std::size_t>(all.rend() - found) - 1;
    }
    static auto lineOf(float red, float green, float blue)
    {
        return [=](const GraphItem& item) {
            return item.kind == Kind::Lines && !item.isDotted &&
                   isColor(item.color, red, green, blue);
        };
    }
    static auto traceOf(float red, float green, float blue)
    {
        return [=](const GraphItem& item) {
            return item.kind == Kind::LineStrip && isColor(item.color, red, green, blue);
        };
    }
    /// Of texts that have this part.
    auto textWith(const std::string& part) const
    {
        return [this, part](const GraphItem& item) {
            return item.kind == Kind::Text &&
                   m_drawing.texts()[item.first].text.find(part) != std::string::npos;
        };
    }
};

TEST_F(GraphOrder, MarkerThenCursorThenFrameThenLegend)
{
    paintAll();
    const auto isMarker = [](const GraphItem& item) { return item.kind == Kind::Polygon; };
    const auto isFrame = [](const GraphItem& item) { return item.kind == Kind::LineLoop; };
    const std::size_t marker = last(isMarker);
    const std::size_t frame = first(isFrame);
    const auto cursor = lineOf(1.0F, 1.0F, 1.0F);
    ASSERT_LT(frame, m_drawing.items().size());
    EXPECT_LT(last(traceOf(0.0F, 1.0F, 0.0F)), marker);
    EXPECT_LT(marker, first(cursor));
    EXPECT_LT(last(cursor), frame);
    EXPECT_LT(frame, first(lineOf(0.5F, 0.5F, 0.5F))); // strips over the frame
    EXPECT_LT(last(cursor), first(textWith("/")));
    EXPECT_LT(last(textWith("/")), frame);
    EXPECT_LT(last(lineOf(0.5F, 0.5F, 0.5F)), first(textWith("NoName")));
    EXPECT_LT(last(textWith("NoName")), m_drawing.items().size());
}

TEST_F(GraphOrder, EachTraceLiesOverItsValueAxisAndUnderTheNextOne)
{
    paintAll();
    const auto red = lineOf(1.0F, 0.0F, 0.0F);
    const auto green = lineOf(0.0F, 1.0F, 0.0F);
    const std::size_t redTrace = first(traceOf(1.0F, 0.0F, 0.0F));
    const std::size_t greenTrace = first(traceOf(0.0F, 1.0F, 0.0F));
    ASSERT_LT(greenTrace, m_drawing.items().size());
    EXPECT_LT(last(red), redTrace);
    EXPECT_LT(redTrace, first(green));
    EXPECT_LT(last(green), greenTrace);
}

TEST_F(GraphOrder, TimeAxisLiesUnderTheTracesAndOverTheSingleGraphsValueAxis)
{
    m_engine.setLabelColor(0.0F, 0.0F, 1.0F);
    paintAll();
    m_engine.setSplitMode(0);
    paint();
    const auto axes = lineOf(0.0F, 0.0F, 1.0F);
    EXPECT_LT(last(axes), first(traceOf(1.0F, 0.0F, 0.0F)));
    const auto isUpright = [this](const GraphItem& item) {
        return item.kind == Kind::Lines && point(item, 0).x == point(item, 1).x;
    };
    EXPECT_LT(first(axes), first(isUpright)); // ticks of values lie flat
}

TEST_F(GraphOrder, AxesFrameAndCursorAreOnePixelThick)
{
    m_engine.setLabelColor(0.0F, 0.0F, 1.0F);
    paintAll();
    int thick = 0;
    for (const GraphItem& item : m_drawing.items()) {
        const bool isLine = item.kind != Kind::Polygon && item.kind != Kind::Points;
        if (isLine && isColor(item.color, 0.5F, 0.5F, 0.5F)) {
            EXPECT_EQ(item.size, 2.0F);
            ++thick;
        } else if (isLine) {
            EXPECT_EQ(item.size, 1.0F);
        }
    }
    EXPECT_EQ(thick, 2);
}

TEST_F(GraphOrder, CursorAndFrameAreOpaque)
{
    paintAll();
    for (const GraphItem& item : lines(1.0F, 1.0F, 1.0F)) {
        EXPECT_EQ(item.color.alpha, 1.0F);
    }
    EXPECT_EQ(items(Kind::LineLoop)[0].color.alpha, 1.0F);
    for (const GraphItem& item : items(Kind::Text)) {
        EXPECT_EQ(item.color.alpha, 1.0F);
    }
}

TEST_F(GraphOrder, ZoomOfABandBelowASecondOpensOneSecondFromItsStart)
{
    paint();
    m_engine.setAutoMode(0);
    m_engine.setRange(5.46F); // a hundredth of a second for each pixel
    m_engine.markAt(100);
    m_engine.moveMarker(150);
    ASSERT_NEAR(state().markerEnd - state().markerStart, 0.5, 1e-6);
    const double start = state().markerStart;
    const double end = state().markerEnd;
    m_engine.zoomMarker();
    EXPECT_EQ(state().xMin, start);
    EXPECT_EQ(state().xMax, start + 1.0);
    EXPECT_EQ(state().markerEnd, end); // the band stays as it is
}

class GraphWidth : public GraphTest
{
protected:
    /// A value each second, in manual mode over 0 to 10 s, and the last columns right of it.
    void recordBeyond()
    {
        show(1);
        m_engine.setSplitMode(1);
        m_engine.setParameterYMax(0, 9.0F);
        m_engine.setAutoMode(0);
        paint();
        m_engine.setRange(10.0F);
        for (int time = 1; time <= 30; ++time) {
            addAt(time, 1.0);
        }
        ASSERT_EQ(channel().columns.back().time, 30.0);
    }
    // Columns that are made anew end with the range.
    bool wereMadeAnew() const { return channel().columns.back().time == 10.0; }
};

TEST_F(GraphWidth, ThatIsAnotherMakesTheColumnsAnewInTheSamePicture)
{
    recordBeyond();
    m_engine.setParameterYMin(0, -123'456.0F); // longer labels leave less for the plot
    const double before = state().plotWidth;
    paint(1);
    ASSERT_LT(state().plotWidth, before);
    EXPECT_TRUE(wereMadeAnew());
}

TEST_F(GraphWidth, ThatStaysLeavesTheColumnsAlone)
{
    recordBeyond();
    paint(5);
    EXPECT_FALSE(wereMadeAnew());
}

TEST_F(GraphWidth, OfAResizedPictureMakesThemAnewOnce)
{
    recordBeyond();
    m_engine.resizePicture(width / 2, height);
    paint(1);
    EXPECT_TRUE(wereMadeAnew());
    addAt(31.0, 1.0);
    paint(5);
    EXPECT_EQ(channel().columns.back().time, 31.0);
}

TEST_F(GraphWidth, UpperEndOfARangeOfValuesMakesTheColumnsOfAllVisibleChannelsAnew)
{
    recordBeyond();
    m_engine.setParameterYMin(3, -1.0F);
    EXPECT_FALSE(wereMadeAnew());
    m_engine.setParameterYMax(3, 9.0F);
    EXPECT_TRUE(wereMadeAnew());
}

} // namespace

} // namespace zul::test
