#include "tests/gui/GraphGlFixture.h"

#include <QSignalSpy>
#include <QTimer>

// Keys with modifiers, and the clock of the repaints.

namespace zul::test {

namespace {

class GraphKeys : public GraphGlTest
{
protected:
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_graph.get(), key, modifiers);
    }
    void press(int x, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mousePress(m_graph.get(), Qt::LeftButton, modifiers, QPoint(x, 150));
    }
};

TEST_F(GraphKeys, LettersWithControlAltOrMetaDoNothing)
{
    addAt(1.0, 5.0);
    m_graph->setSplitMode(1);
    m_graph->setCurrentTime(1.0); // takes the rebuild that a mode asks for
    QSignalSpy spy(m_graph.get(), &WidgetGraph::signalModes);
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        for (const Qt::Key letter : {Qt::Key_A, Qt::Key_C, Qt::Key_R, Qt::Key_X, Qt::Key_Z}) {
            key(letter, modifier);
            key(letter, modifier | Qt::ShiftModifier);
        }
    }
    EXPECT_EQ(state().channels[0].samples.size(), 1U);
    EXPECT_EQ(state().autoMode, 0);
    EXPECT_EQ(state().cursorMode, 0);
    EXPECT_EQ(state().splitMode, 1);
    EXPECT_EQ(state().xMax - state().xMin, 60.0);
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(GraphKeys, LettersWithShiftAct)
{
    addAt(1.0, 5.0);
    key(Qt::Key_A, Qt::ShiftModifier);
    EXPECT_EQ(state().autoMode, 1);
    key(Qt::Key_C, Qt::ShiftModifier);
    EXPECT_EQ(state().cursorMode, 1);
    key(Qt::Key_X, Qt::ShiftModifier);
    EXPECT_TRUE(state().channels[0].samples.empty());
    key(Qt::Key_Z, Qt::ShiftModifier);
    EXPECT_EQ(state().autoMode, 0);
    key(Qt::Key_R, Qt::ShiftModifier);
    EXPECT_EQ(state().splitMode, 0);
}

TEST_F(GraphKeys, EachKeyThatActsTellsIt)
{
    QSignalSpy spy(m_graph.get(), &WidgetGraph::signalModes);
    int told = 0;
    for (const Qt::Key acting :
         {Qt::Key_F2, Qt::Key_F3, Qt::Key_A, Qt::Key_C, Qt::Key_R, Qt::Key_X, Qt::Key_Z}) {
        key(acting);
        EXPECT_EQ(spy.count(), ++told);
    }
    key(Qt::Key_B);
    key(Qt::Key_Escape);
    EXPECT_EQ(spy.count(), told);
}

TEST_F(GraphKeys, ShiftAndAPressTellTheMarker)
{
    press(200);
    QSignalSpy spy(m_graph.get(), &WidgetGraph::signalMarker);
    press(400, Qt::ShiftModifier);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_FLOAT_EQ(spy[0][0].toFloat(), static_cast<float>(state().markerStart));
    EXPECT_FLOAT_EQ(spy[0][1].toFloat(), static_cast<float>(state().markerEnd));
    EXPECT_LT(state().markerStart, state().markerEnd);
}

TEST_F(GraphKeys, RepaintsEveryThirtyMilliseconds)
{
    const auto timers = m_graph->findChildren<QTimer*>();
    ASSERT_EQ(timers.size(), 1);
    EXPECT_EQ(timers[0]->interval(), 30);
    EXPECT_TRUE(timers[0]->isActive());
    EXPECT_FALSE(timers[0]->isSingleShot());
}

} // namespace

} // namespace zul::test
