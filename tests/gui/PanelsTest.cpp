#include "gui/desktop/DialogProfileResult.h"
#include "gui/desktop/DialogSplash.h"
#include "gui/desktop/DialogTasks.h"
#include "project/ObjectReceive.h"
#include "tests/gui/DesktopFixture.h"

#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

// The small windows of the desktop: tasks, splash screen, profile check result.

namespace {

using gui::DialogSplash;
using zul::test::DesktopTest;
using zul::test::texts;

class TasksPanel : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        startAndTick();
        m_list = m_window->findChild<QListWidget*>(QStringLiteral("tasks"));
    }

    QListWidget* m_list = nullptr;
};

TEST_F(TasksPanel, ListsEveryTypeThatHasWindows)
{
    EXPECT_EQ(m_list->windowTitle(), QStringLiteral("Tasks"));
    QStringList labels;
    std::vector<int> types;
    for (int i = 0; i < m_list->count(); ++i) {
        const QListWidgetItem& item = *m_list->item(i);
        labels.append(item.text());
        types.push_back(item.data(Qt::UserRole).toInt());
        EXPECT_EQ(item.toolTip(), item.text() + QStringLiteral(" to project"));
        EXPECT_FALSE(item.icon().isNull()) << i;
    }
    EXPECT_EQ(labels, texts({"Add Receive Window", "Add Transmit Window", "Add Trace Window",
                             "Add Data Visualization"}));
    EXPECT_EQ(types, (std::vector<int>{1, 2, 4, 8}));
}

TEST_F(TasksPanel, DoubleClickAddsAnObjectAndASingleOneDoesNot)
{
    const QSignalSpy wanted(m_window->findChild<gui::DialogTasks*>(),
                            &gui::DialogTasks::signalSelectWindow);
    const QPoint spot = m_list->visualItemRect(m_list->item(2)).center();
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    EXPECT_EQ(wanted.count(), 0);
    QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0).at(0).toInt(), 4);
    ASSERT_EQ(project().objects().size(), 1U);
    EXPECT_NE(subWindow(*project().objects().begin()->second), nullptr);
}

class SplashScreen : public testing::Test
{
protected:
    void TearDown() override
    {
        if (!m_splash.isNull()) {
            m_splash->finish();
            delete m_splash;
        }
    }
    // The topmost and the lowest dark row of the text lines in the picture.
    int darkPixels(int top, int bottom) const
    {
        const QImage image = m_splash->grab().toImage();
        int count = 0;
        for (int y = top; y < bottom; ++y) {
            for (int x = 5; x < 100; ++x) {
                count += image.pixelColor(x, y) == QColor(0, 0, 0) ? 1 : 0;
            }
        }
        return count;
    }

    QPointer<DialogSplash> m_splash = &DialogSplash::instance();
};

TEST_F(SplashScreen, IsShownAtItsFirstUseAndIsTheOne)
{
    EXPECT_TRUE(m_splash->isVisible());
    EXPECT_EQ(m_splash->pixmap().size(), QSize(534, 250));
    EXPECT_EQ(&DialogSplash::instance(), m_splash);
}

TEST_F(SplashScreen, LinesStandBelowEachOther)
{
    const int before = darkPixels(16, 32);
    m_splash->addMessage(QStringLiteral("MMMMMMMM"));
    EXPECT_GT(darkPixels(16, 32), before + 20);
    const int below = darkPixels(33, 46);
    m_splash->addMessage(QStringLiteral("MMMMMMMM"));
    EXPECT_GT(darkPixels(33, 46), below + 20);
    EXPECT_EQ(m_splash->lines().size(), 2);
}

TEST_F(SplashScreen, SixteenthLinePushesOutTheFirst)
{
    QStringList expected;
    for (int i = 1; i <= 16; ++i) {
        m_splash->addMessage(QString::number(i));
        if (i > 1) {
            expected.append(QString::number(i));
        }
        EXPECT_EQ(m_splash->lines().size(), std::min(i, 15));
    }
    EXPECT_EQ(m_splash->lines(), expected);
}

TEST_F(SplashScreen, ClosesAtAMousePress)
{
    QTest::mousePress(m_splash, Qt::LeftButton);
    EXPECT_FALSE(m_splash->isVisible());
    EXPECT_FALSE(m_splash.isNull());
}

TEST_F(SplashScreen, FinishForgetsItAndTheTimerClosesIt)
{
    m_splash->finish();
    EXPECT_TRUE(m_splash->isVisible()); // lingers
    m_splash->slotTimeout();
    EXPECT_FALSE(m_splash->isVisible());
    const QPointer<DialogSplash> old = m_splash;
    m_splash = &DialogSplash::instance();
    EXPECT_NE(m_splash, old);
    EXPECT_TRUE(m_splash->lines().isEmpty());
    delete old;
}

TEST(ProfileResult, ShowsTheReportAndOkHidesIt)
{
    gui::DialogProfileResult dialog;
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Profile Check Result"));
    EXPECT_EQ(dialog.size(), QSize(400, 300));
    auto* text = dialog.findChild<QTextEdit*>();
    EXPECT_TRUE(text->isReadOnly());
    EXPECT_TRUE(text->acceptRichText());
    EXPECT_FALSE(text->isUndoRedoEnabled());
    dialog.setText(QStringLiteral("<b>Double</b> FID<br>12"));
    EXPECT_EQ(text->toPlainText(), QStringLiteral("Double FID\n12"));
    dialog.show();
    auto* ok = dialog.findChild<QPushButton*>();
    EXPECT_EQ(ok->text(), QStringLiteral("Ok"));
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    dialog.setText(QStringLiteral("again"));
    EXPECT_EQ(text->toPlainText(), QStringLiteral("again"));
}

} // namespace
