#include "gui/frame/FileDialogs.h"
#include "gui/measure/WidgetGraph.h"
#include "tests/gui/GraphWindowFixture.h"

#include <QApplication>
#include <QImage>
#include <QLabel>

// The oscilloscope's window with its plot.

namespace zul::test {

namespace {

using gui::FileDialogs;
using gui::GraphCommand;

class GraphPlotWindow : public GraphWindowTest
{
protected:
    void SetUp() override
    {
        GraphWindowTest::SetUp();
        m_plot = m_dialog->findChild<WidgetGraph*>();
        ASSERT_NE(m_plot, nullptr);
        m_dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_dialog));
        QApplication::setActiveWindow(m_dialog);
    }
    WidgetGraph* m_plot = nullptr;
};

TEST_F(GraphPlotWindow, HasThePlotAsItsEngine)
{
    EXPECT_EQ(&m_dialog->engine(), static_cast<GraphEngine*>(m_plot));
    EXPECT_EQ(state().channels.size(), 16U);
    EXPECT_EQ(m_dialog->findChild<QLabel*>(QStringLiteral("noOpenGl")), nullptr);
    EXPECT_GT(m_plot->width(), 300);
    EXPECT_GT(m_plot->height(), 150);
}

TEST_F(GraphPlotWindow, PanningTurnsTheButtonToManual)
{
    EXPECT_TRUE(command(GraphCommand::AutoMode).isChecked());
    ASSERT_TRUE(QTest::qWaitFor([&] { return state().plotWidth > 0.0; }));
    QTest::mousePress(m_plot, Qt::RightButton, Qt::NoModifier, QPoint(200, 100));
    QMouseEvent move(QEvent::MouseMove, QPointF(150, 100), Qt::NoButton, Qt::RightButton,
                     Qt::NoModifier);
    QApplication::sendEvent(m_plot, &move);
    QTest::mouseRelease(m_plot, Qt::RightButton, Qt::NoModifier, QPoint(150, 100));
    EXPECT_FALSE(command(GraphCommand::AutoMode).isChecked());
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Man"));
    EXPECT_EQ(graph().autoMode, 0);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphPlotWindow, SnapshotHasThePlotInIt)
{
    graph().backgroundColor = QStringLiteral("#0000ff");
    m_dialog->updateDialog();
    ASSERT_TRUE(QTest::qWaitFor([&] { return state().plotWidth > 0.0; }));
    const QString file = m_home.file(QStringLiteral("scope.bmp"));
    FileDialogs::setNextFileName(file);
    click(GraphCommand::Snapshot);
    const QImage image(file);
    ASSERT_EQ(image.size(), m_dialog->size());
    const QPoint inPlot = m_plot->mapTo(m_dialog, QPoint(m_plot->width() - 60, 25));
    EXPECT_EQ(image.pixelColor(inPlot), QColor(0, 0, 255));
    const QPoint beside = m_plot->mapTo(m_dialog, QPoint(3, m_plot->height() - 3));
    EXPECT_EQ(image.pixelColor(beside), QColor(0xbb, 0xbb, 0xbb));
    EXPECT_TRUE(m_home.read(QStringLiteral("scope.bmp")).startsWith("BM"));
}

TEST_F(GraphPlotWindow, KeysOfThePlotMoveTheButtonsAndAreKept)
{
    m_plot->setFocus();
    m_project.save(QString());
    const auto key = [this](Qt::Key pressed) { QTest::keyClick(m_plot, pressed); };
    key(Qt::Key_F2);
    EXPECT_TRUE(command(GraphCommand::SingleMode).isChecked());
    EXPECT_FALSE(command(GraphCommand::SplitMode).isChecked());
    EXPECT_EQ(graph().splitMode, 0);
    EXPECT_TRUE(m_project.isEdited());
    key(Qt::Key_F3);
    EXPECT_TRUE(command(GraphCommand::SplitMode).isChecked());
    EXPECT_EQ(graph().splitMode, 1);
    key(Qt::Key_Z);
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Man"));
    EXPECT_EQ(graph().autoMode, 0);
    EXPECT_EQ(graph().xRange, 1.0);
    key(Qt::Key_A);
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Auto"));
    EXPECT_EQ(graph().autoMode, 1);
    key(Qt::Key_X);
    EXPECT_EQ(graph().xRange, 60.0);
    key(Qt::Key_Z);
    key(Qt::Key_R);
    EXPECT_EQ(graph().autoMode, 1);
    EXPECT_EQ(graph().splitMode, 0);
    EXPECT_EQ(graph().xRange, 60.0);
    EXPECT_TRUE(command(GraphCommand::SingleMode).isChecked());
    graph().cursorMode = 0;
    m_dialog->updateDialog();
    key(Qt::Key_C);
    EXPECT_EQ(graph().cursorMode, 1);
}

TEST_F(GraphPlotWindow, KeysThatChangeNothingLeaveTheProjectAsItWas)
{
    m_plot->setFocus();
    m_project.save(QString());
    QTest::keyClick(m_plot, Qt::Key_F3);
    QTest::keyClick(m_plot, Qt::Key_A);
    QTest::keyClick(m_plot, Qt::Key_X, Qt::ControlModifier);
    EXPECT_FALSE(m_project.isEdited());
}

} // namespace

} // namespace zul::test
