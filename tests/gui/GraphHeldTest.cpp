#include "gui/measure/DialogGraphSetup.h"
#include "gui/measure/GlyphTexture.h"
#include "tests/gui/GraphGlFixture.h"
#include "tests/gui/GraphWindowFixture.h"

#include <QComboBox>
#include <QMouseEvent>

// Buttons whose release is lost, an open setup while keys are pressed, and the width of texts.

namespace zul::test {

namespace {

class GraphHeld : public GraphGlTest
{
protected:
    void press(Qt::MouseButton button, int x = 200)
    {
        QTest::mousePress(m_graph.get(), button, Qt::NoModifier, QPoint(x, 150));
    }
    void move(Qt::MouseButtons buttons, int x = 300)
    {
        QMouseEvent event(QEvent::MouseMove, QPointF(x, 150), Qt::NoButton, buttons,
                          Qt::NoModifier);
        QApplication::sendEvent(m_graph.get(), &event);
    }
    /// Whether moving with all buttons moves marker, cursor or range: a button is still held.
    bool isMoved()
    {
        const double end = state().markerEnd;
        const double start = state().markerStart;
        const double cursor = state().cursorX;
        const double left = state().xMin;
        move(Qt::LeftButton | Qt::MiddleButton | Qt::RightButton, 420);
        return state().markerEnd != end || state().markerStart != start ||
               state().cursorX != cursor || state().xMin != left;
    }
};

class GraphHeldButton : public GraphHeld, public testing::WithParamInterface<Qt::MouseButton>
{
};

TEST_P(GraphHeldButton, IsLetGoByAMoveWithoutIt)
{
    press(GetParam());
    move(Qt::NoButton);
    EXPECT_FALSE(state().cursorShown);
    EXPECT_FALSE(isMoved());
}

TEST_P(GraphHeldButton, StaysHeldWhileOthersAreLetGo)
{
    press(GetParam());
    move(GetParam());
    EXPECT_TRUE(isMoved());
}

TEST_P(GraphHeldButton, IsLetGoWithTheFocus)
{
    press(GetParam());
    m_graph->clearFocus();
    EXPECT_FALSE(state().cursorShown);
    EXPECT_FALSE(isMoved());
}

TEST_P(GraphHeldButton, IsLetGoByAPlotThatIsHidden)
{
    m_graph->clearFocus(); // hiding takes it away too
    m_graph->setFocusPolicy(Qt::NoFocus);
    press(GetParam());
    m_graph->hide();
    EXPECT_FALSE(state().cursorShown);
    EXPECT_FALSE(isMoved());
}

INSTANTIATE_TEST_SUITE_P(Buttons, GraphHeldButton,
                         testing::Values(Qt::LeftButton, Qt::MiddleButton, Qt::RightButton));

TEST_F(GraphHeld, TextsAreMeasuredAsTheyAreDrawn)
{
    m_graph->makeCurrent();
    gui::GlyphTexture glyphs(gui::GlyphTexture::scopeFont());
    const std::string text(40, '0');
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        glyphs.load(ratio);
        std::vector<gui::GraphVertex> corners;
        glyphs.addTo(corners, {{0.0F, 0.0F}, text}, GraphColor());
        float right = 0.0F;
        for (const gui::GraphVertex& corner : corners) {
            right = std::max(right, corner.place.x);
        }
        EXPECT_NEAR(static_cast<float>(glyphs.width(text)), right, 0.51F) << ratio;
    }
}

class GraphSetupByKey : public GraphWindowTest
{
};

TEST_F(GraphSetupByKey, OpenSetupFollowsTheKeys)
{
    graph().cursorMode = 0;
    m_dialog->updateDialog();
    m_dialog->show();
    click(gui::GraphCommand::Setup);
    const auto* mode = m_dialog->findChild<gui::DialogGraphSetup*>()->findChild<QComboBox*>(
        QStringLiteral("cursorMode"));
    ASSERT_EQ(mode->currentIndex(), 0);
    auto* plot = m_dialog->findChild<WidgetGraph*>();
    ASSERT_NE(plot, nullptr);
    QTest::keyClick(plot, Qt::Key_C);
    EXPECT_EQ(graph().cursorMode, 1);
    EXPECT_EQ(mode->currentIndex(), 1);
}

} // namespace

} // namespace zul::test
