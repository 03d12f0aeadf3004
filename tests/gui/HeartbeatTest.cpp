#include "comm/BatchListeners.h"
#include "tests/gui/DesktopFixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

// When the main window's heartbeat beats, above all while something modal is on the screen.

namespace {

using zul::test::DesktopTest;
using zul::test::whenModal;

constexpr int tickMs = gui::DialogMain::tickMs;

class Heartbeat : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        // An interface gives its listeners a batch at each tick, also while it is closed.
        m_home.write(QStringLiteral("default.zul"),
                     "<ZUL><ObjectCanInterface><Window open='0'/></ObjectCanInterface></ZUL>");
        comm::BatchListeners::instance().add([this](MessageContainer&) { ++m_ticks; });
    }
    void TearDown() override
    {
        DesktopTest::TearDown();
        comm::BatchListeners::instance().clear();
    }
    void startEdited()
    {
        startAndTick();
        project().save(m_home.file(QStringLiteral("mine.zul")));
        add(ObjectType::Receive);
        tick();
    }
    bool beats() const
    {
        const int before = m_ticks;
        return QTest::qWaitFor([&] { return m_ticks > before; });
    }
    bool stands() const
    {
        const int before = m_ticks;
        QTest::qWait(4 * tickMs);
        return m_ticks == before;
    }
    /// The flow asks with a real box, under which the heart beats, and Cancel leaves everything.
    void cancelUnderBeats(int actionId)
    {
        startEdited();
        bool beatsUnderTheBox = false;
        whenModal("QMessageBox", [&](QWidget& box) {
            beatsUnderTheBox = beats();
            press(box, "Cancel");
        });
        trigger(actionId);
        EXPECT_TRUE(beatsUnderTheBox);
        EXPECT_TRUE(beats());
        EXPECT_EQ(title(), QStringLiteral("ZUL     mine.zul (edited)"));
        EXPECT_EQ(project().objects().size(), 2U);
        EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 1);
        EXPECT_TRUE(m_window->isVisible());
        EXPECT_EQ(m_ended, 0);
    }
    static void press(QWidget& box, const char* text)
    {
        for (QAbstractButton* button : box.findChildren<QAbstractButton*>()) {
            if (button->text() == QLatin1String(text)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << text;
        box.close();
    }

    int m_ticks = 0;
};

TEST_F(Heartbeat, BeatsWhileNewAsks)
{
    cancelUnderBeats(0);
}

TEST_F(Heartbeat, BeatsWhileOpenAsks)
{
    cancelUnderBeats(1);
}

TEST_F(Heartbeat, BeatsWhileQuitAsks)
{
    cancelUnderBeats(5);
}

TEST_F(Heartbeat, StandsWhileTheProjectToOpenIsChosen)
{
    startAndTick();
    bool standsUnderTheChooser = false;
    whenModal("QFileDialog", [&](QWidget& chooser) {
        standsUnderTheChooser = stands();
        QTest::keyClick(&chooser, Qt::Key_Escape);
    });
    trigger(1);
    EXPECT_TRUE(standsUnderTheChooser);
    EXPECT_TRUE(beats());
}

TEST_F(Heartbeat, BeatsWhileTheNameToSaveIsChosen)
{
    startAndTick();
    bool beatsUnderTheChooser = false;
    whenModal("QFileDialog", [&](QWidget& chooser) {
        beatsUnderTheChooser = beats();
        QTest::keyClick(&chooser, Qt::Key_Escape);
    });
    trigger(4);
    EXPECT_TRUE(beatsUnderTheChooser);
    EXPECT_TRUE(beats());
}

TEST_F(Heartbeat, StandsOnceQuitGoesOn)
{
    startAndTick();
    trigger(5);
    EXPECT_EQ(m_ended, 1);
    EXPECT_TRUE(stands());
}

/// Notes the period of each timer that runs out, before what it sets off.
class TimerWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Timer) {
            if (const auto* timer = qobject_cast<QTimer*>(watched)) {
                lastPeriod = timer->interval();
            }
        }
        return false;
    }

    int lastPeriod = 0;
};

TEST_F(Heartbeat, FirstPeriodIs20MillisecondsAndEachLaterOne50)
{
    TimerWatch watch;
    qApp->installEventFilter(&watch);
    std::vector<int> periods;
    comm::BatchListeners::instance().add(
        [&](MessageContainer&) { periods.push_back(watch.lastPeriod); });
    start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return periods.size() >= 3; }));
    periods.resize(3);
    EXPECT_EQ(periods, (std::vector<int>{20, 50, 50}));
    comm::BatchListeners::instance().clear();
}

} // namespace
