#include "tests/gui/GraphGlFixture.h"

#include <QMouseEvent>
#include <QSignalSpy>

// What mouse and keys do in the plot.

namespace zul::test {

namespace {

class GraphMouse : public GraphGlTest
{
protected:
    double timeAt(int x) const
    {
        return (x - state().plotLeft) / (state().plotWidth / (state().xMax - state().xMin)) +
               state().xMin;
    }
    void press(Qt::MouseButton button, int x, int y = 150,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mousePress(m_graph.get(), button, modifiers, QPoint(x, y));
    }
    void move(Qt::MouseButton button, int x, int y = 150)
    {
        QMouseEvent event(QEvent::MouseMove, QPointF(x, y), Qt::NoButton, button, Qt::NoModifier);
        QApplication::sendEvent(m_graph.get(), &event);
    }
    void release(Qt::MouseButton button, int x, int y = 150)
    {
        QTest::mouseRelease(m_graph.get(), button, Qt::NoModifier, QPoint(x, y));
    }
    void key(Qt::Key key) { QTest::keyClick(m_graph.get(), key); }
};

TEST_F(GraphMouse, LeftClickMarksASingleTime)
{
    QSignalSpy spy(m_graph.get(), &WidgetGraph::signalMarker);
    press(Qt::LeftButton, 200);
    EXPECT_DOUBLE_EQ(state().markerStart, timeAt(200));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeAt(200));
    ASSERT_EQ(spy.count(), 1);
    EXPECT_FLOAT_EQ(spy[0][0].toFloat(), static_cast<float>(timeAt(200)));
    release(Qt::LeftButton, 200);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(GraphMouse, LeftDragMovesTheNearerEndAndTellsItTwice)
{
    press(Qt::LeftButton, 200);
    QSignalSpy spy(m_graph.get(), &WidgetGraph::signalMarker);
    move(Qt::LeftButton, 300);
    EXPECT_DOUBLE_EQ(state().markerStart, timeAt(200));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeAt(300));
    EXPECT_EQ(spy.count(), 2);
    release(Qt::LeftButton, 300);
    move(Qt::NoButton, 400);
    EXPECT_DOUBLE_EQ(state().markerEnd, timeAt(300));
}

TEST_F(GraphMouse, ReleaseExchangesCrossedEnds)
{
    press(Qt::LeftButton, 300);
    move(Qt::LeftButton, 400);
    move(Qt::LeftButton, 100); // the start goes left
    move(Qt::LeftButton, 260); // right of the middle: the end comes near
    release(Qt::LeftButton, 260);
    EXPECT_LE(state().markerStart, state().markerEnd);
}

TEST_F(GraphMouse, ShiftKeyMovesTheNearerEnd)
{
    press(Qt::LeftButton, 200);
    move(Qt::LeftButton, 400);
    release(Qt::LeftButton, 400);
    QTest::keyPress(m_graph.get(), Qt::Key_Shift);
    press(Qt::LeftButton, 250);
    release(Qt::LeftButton, 250);
    EXPECT_DOUBLE_EQ(state().markerStart, timeAt(250));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeAt(400));
    QTest::keyRelease(m_graph.get(), Qt::Key_Shift);
    press(Qt::LeftButton, 300);
    EXPECT_DOUBLE_EQ(state().markerStart, timeAt(300));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeAt(300));
    release(Qt::LeftButton, 300);
}

TEST_F(GraphMouse, ShiftCountsEvenIfItWasPressedElsewhere)
{
    press(Qt::LeftButton, 200);
    move(Qt::LeftButton, 400);
    release(Qt::LeftButton, 400);
    press(Qt::LeftButton, 380, 150, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(state().markerStart, timeAt(200));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeAt(380));
}

TEST_F(GraphMouse, ShiftIsForgottenWithTheFocus)
{
    press(Qt::LeftButton, 200);
    move(Qt::LeftButton, 400);
    release(Qt::LeftButton, 400);
    QTest::keyPress(m_graph.get(), Qt::Key_Shift);
    m_graph->clearFocus();
    press(Qt::LeftButton, 300);
    EXPECT_DOUBLE_EQ(state().markerStart, state().markerEnd);
}

TEST_F(GraphMouse, ControlClickMarksASingleTime)
{
    press(Qt::LeftButton, 200);
    move(Qt::LeftButton, 400);
    release(Qt::LeftButton, 400);
    QTest::keyPress(m_graph.get(), Qt::Key_Control);
    press(Qt::LeftButton, 250, 150, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(state().markerStart, timeAt(250));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeAt(250));
}

TEST_F(GraphMouse, MiddleButtonHoldsTheCursor)
{
    QSignalSpy spy(m_graph.get(), &WidgetGraph::signalCursor);
    press(Qt::MiddleButton, 200, 160);
    EXPECT_TRUE(state().cursorShown);
    EXPECT_DOUBLE_EQ(state().cursorX, timeAt(200));
    EXPECT_DOUBLE_EQ(state().cursorY, 5.0);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_FLOAT_EQ(spy[0][0].toFloat(), static_cast<float>(timeAt(200)));
    EXPECT_DOUBLE_EQ(spy[0][1].toDouble(), 5.0);
    move(Qt::MiddleButton, 300, 190);
    EXPECT_DOUBLE_EQ(state().cursorX, timeAt(300));
    EXPECT_DOUBLE_EQ(state().cursorY, 4.0);
    EXPECT_EQ(spy.count(), 2);
    release(Qt::MiddleButton, 300, 190);
    EXPECT_FALSE(state().cursorShown);
    EXPECT_DOUBLE_EQ(state().cursorX, timeAt(300));
    move(Qt::NoButton, 400);
    EXPECT_DOUBLE_EQ(state().cursorX, timeAt(300));
}

TEST_F(GraphMouse, RightDragPansAndLeavesAutomaticMode)
{
    m_graph->setAutoMode(1);
    QSignalSpy spy(m_graph.get(), &WidgetGraph::signalManMode);
    const double before = state().xMin;
    press(Qt::RightButton, 300);
    EXPECT_EQ(spy.count(), 0);
    move(Qt::RightButton, 250);
    const double seconds = 50.0 * 60.0 / state().plotWidth;
    EXPECT_NEAR(state().xMin, before + seconds, 1e-9);
    EXPECT_NEAR(state().xMax - state().xMin, 60.0, 1e-9);
    EXPECT_EQ(state().autoMode, 0);
    EXPECT_EQ(spy.count(), 1);
    release(Qt::RightButton, 250);
    move(Qt::NoButton, 100);
    EXPECT_NEAR(state().xMin, before + seconds, 1e-9);
}

TEST_F(GraphMouse, KeysSwitchTheModes)
{
    key(Qt::Key_F2);
    EXPECT_EQ(state().splitMode, 0);
    key(Qt::Key_F3);
    EXPECT_EQ(state().splitMode, 1);
    key(Qt::Key_A);
    EXPECT_EQ(state().autoMode, 1);
    EXPECT_TRUE(state().rebuildPending);
    EXPECT_EQ(state().cursorMode, 0);
    key(Qt::Key_C);
    EXPECT_EQ(state().cursorMode, 1);
}

TEST_F(GraphMouse, KeyXClears)
{
    addAt(1.0, 5.0);
    key(Qt::Key_X);
    EXPECT_TRUE(state().channels[0].samples.empty());
    EXPECT_EQ(state().splitMode, 1);
}

TEST_F(GraphMouse, KeyRResets)
{
    addAt(1.0, 5.0);
    key(Qt::Key_R);
    EXPECT_EQ(state().splitMode, 0);
    EXPECT_EQ(state().autoMode, 1);
    EXPECT_TRUE(state().rebuildPending);
    EXPECT_EQ(state().xMax, 60.0);
}

TEST_F(GraphMouse, KeyZZoomsToTheMarker)
{
    press(Qt::LeftButton, 200);
    move(Qt::LeftButton, 400);
    release(Qt::LeftButton, 400);
    const double start = state().markerStart;
    const double end = state().markerEnd;
    key(Qt::Key_Z);
    EXPECT_EQ(state().xMin, start);
    EXPECT_EQ(state().xMax, end);
    EXPECT_EQ(state().autoMode, 0);
}

TEST_F(GraphMouse, ZoomAfterAClickOpensOneSecond)
{
    press(Qt::LeftButton, 200);
    release(Qt::LeftButton, 200);
    key(Qt::Key_Z);
    EXPECT_DOUBLE_EQ(state().xMax - state().xMin, 1.0);
}

TEST_F(GraphMouse, TracksTheMouseAndTakesTheKeyboard)
{
    EXPECT_TRUE(m_graph->hasMouseTracking());
    EXPECT_EQ(m_graph->focusPolicy(), Qt::StrongFocus);
}

} // namespace

} // namespace zul::test
