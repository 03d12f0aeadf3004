#include "gui/frame/FileDialogs.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "gui/traffic/DialogReplay.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectReplay.h"
#include "project/Project.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

using gui::FileDialogs;
using zul::MessageCan;

/// An interface that keeps the identifiers of what it is to send, batch by batch.
class Outlet : public zul::test::ProbeInterface
{
public:
    void receive(MessageContainer& batch) override
    {
        ProbeInterface::receive(batch);
        std::string ids;
        for (const auto& message : batch.messages()) {
            const auto* frame = message_cast<MessageCan>(message.get());
            ids += (ids.empty() ? "" : " ") + std::to_string(frame->id());
        }
        batches.push_back(ids);
    }

    std::vector<std::string> batches;
};

class ReplayWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = dynamic_cast<ObjectReplay*>(m_project.createObject(ObjectType::Replay));
        m_object->addOutput(&m_outlet);
        m_dialog = new gui::DialogReplay(m_object, nullptr);
        m_timer = m_dialog->findChild<QTimer*>();
        m_project.save(QString());
        // Frames 1 to 4 at 1000 s and 1, 2 and 3 s later.
        m_home.write(QStringLiteral("trace.zla"), "0 1000 S 1 D0\n0 1001 S 2 D0\n"
                                                  "0 1002 S 3 D0\n0 1003 S 4 D0\n");
    }
    void TearDown() override { delete m_dialog; }
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    void click(const char* name) { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }
    void load(const char* name = "trace.zla")
    {
        const zul::test::ConsoleCapture console;
        FileDialogs::setNextFileName(m_home.file(QLatin1String(name)));
        click("load");
    }
    /// Lets the time go on, and the timer turn once.
    void tick(double seconds)
    {
        m_clock.advance(seconds);
        const QSignalSpy turns(m_timer, &QTimer::timeout);
        ASSERT_TRUE(QTest::qWaitFor([&] { return turns.count() > 0; }));
    }
    /// Which of Load, Start, Stop and the slider can be used, and the text of Start.
    std::string controls() const
    {
        std::string text;
        for (const char* name : {"load", "start", "stop", "position"}) {
            text += find<QWidget>(name)->isEnabled() ? "on " : "off ";
        }
        return text + find<QPushButton>("start")->text().toLatin1().toStdString();
    }
    QString counted() const { return find<QLabel>("outputCounter")->text(); }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_clock{100.0};
    Outlet m_outlet;
    Project m_project{{ObjectReplay::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    ObjectReplay* m_object = nullptr;
    QPointer<gui::DialogReplay> m_dialog;
    QTimer* m_timer = nullptr;
};

TEST_F(ReplayWindow, HasItsControls)
{
    EXPECT_EQ(m_dialog->minimumWidth(), 350);
    EXPECT_EQ(m_dialog->size(), QSize(550, 300));
    EXPECT_EQ(m_dialog->sizeHint(), QSize(550, 300));
    EXPECT_EQ(find<QPushButton>("load")->text(), QStringLiteral("Load Trace File"));
    EXPECT_EQ(find<QPushButton>("load")->minimumHeight(), 30);
    EXPECT_EQ(find<QPushButton>("stop")->text(), QStringLiteral("Stop"));
    EXPECT_FALSE(find<QPushButton>("start")->icon().isNull());
    EXPECT_FALSE(find<QPushButton>("stop")->icon().isNull());
    EXPECT_EQ(find<QToolButton>("autoRepeat")->text(), QStringLiteral("Auto Repeat"));
    EXPECT_TRUE(find<QToolButton>("autoRepeat")->isCheckable());
    EXPECT_TRUE(find<QLineEdit>("fileName")->isReadOnly());
    const auto* time = find<QLCDNumber>("time");
    EXPECT_EQ(time->digitCount(), 12);
    EXPECT_EQ(time->segmentStyle(), QLCDNumber::Filled);
    EXPECT_EQ(time->minimumSize(), QSize(220, 60));
    EXPECT_EQ(time->palette().color(QPalette::WindowText), QColor(150, 255, 150));
    EXPECT_EQ(time->palette().color(QPalette::Window), QColor(0, 0, 0));
    const auto* slider = find<QSlider>("position");
    EXPECT_EQ(slider->orientation(), Qt::Horizontal);
    EXPECT_EQ(slider->minimum(), 0);
    EXPECT_EQ(slider->maximum(), 1000);
    EXPECT_EQ(slider->tickInterval(), 250);
    EXPECT_EQ(slider->tickPosition(), QSlider::TicksBelow);
    EXPECT_FALSE(find<QWidget>("inputSwitch")->isEnabled());
    EXPECT_TRUE(find<QWidget>("outputSwitch")->isEnabled());
    EXPECT_EQ(controls(), "on off off off Start");
}

TEST_F(ReplayWindow, OutputCanBeChosenInTheNarrowestWindow)
{
    m_dialog->show();
    m_dialog->resize(350, 300);
    QApplication::processEvents();
    const auto* header = m_dialog->findChild<WidgetHeader*>();
    for (const char* name : {"outputSwitch", "outputCounter", "outputSelect"}) {
        const auto* control = find<QWidget>(name);
        EXPECT_TRUE(control->isVisible()) << name;
        EXPECT_TRUE(
            header->rect().contains(QRect(control->mapTo(header, QPoint()), control->size())))
            << name;
    }
}

TEST_F(ReplayWindow, CancelledDialogChangesNothing)
{
    load();
    FileDialogs::setNextFileName(QString());
    click("load");
    EXPECT_EQ(find<QLineEdit>("fileName")->text(), QStringLiteral("trace.zla"));
    EXPECT_EQ(m_dialog->replay().trace().frames.size(), 4U);
}

TEST_F(ReplayWindow, FileDialogStartsWhereTheLastFileWas)
{
    load();
    EXPECT_EQ(FileDialogs::lastTitle(), QStringLiteral("Open Trace File"));
    EXPECT_EQ(FileDialogs::lastFilter(),
              QStringLiteral("Trace File (*.zlb *.CAN);;All Files (*.*)"));
    EXPECT_EQ(FileDialogs::lastPath(), QString());
    load();
    EXPECT_EQ(FileDialogs::lastPath(), m_home.file(QStringLiteral("trace.zla")));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the busy cursor is gone";
}

TEST_F(ReplayWindow, ControlsFollowTheState)
{
    load();
    EXPECT_EQ(controls(), "on on off off Start");
    EXPECT_FALSE(m_timer->isActive());
    click("start");
    EXPECT_EQ(controls(), "off on on off Pause");
    EXPECT_TRUE(m_timer->isActive());
    EXPECT_EQ(m_timer->interval(), 10);
    click("start");
    EXPECT_EQ(controls(), "off on off on Start");
    EXPECT_FALSE(m_timer->isActive());
    click("start");
    click("stop");
    EXPECT_EQ(controls(), "on on off off Start");
    EXPECT_FALSE(m_timer->isActive());
}

TEST_F(ReplayWindow, FramesGoOutInTheirTimingAndAreCounted)
{
    m_object->settings().outputInterface = QStringLiteral("Nose");
    load();
    click("start");
    tick(0.5);
    EXPECT_EQ(m_outlet.batches, std::vector<std::string>{"1"});
    tick(2.0);
    EXPECT_EQ(m_outlet.batches, (std::vector<std::string>{"1", "2 3"}));
    EXPECT_EQ(m_outlet.sent.back(), "Nose");
    EXPECT_EQ(counted(), QStringLiteral("0003"));
    EXPECT_EQ(find<QSlider>("position")->value(), 833);
    tick(1.0);
    EXPECT_EQ(m_outlet.batches.back(), "4");
    EXPECT_EQ(controls(), "on on off off Start") << "the file has ended";
    EXPECT_FALSE(m_timer->isActive());
    EXPECT_EQ(counted(), QStringLiteral("0004"));
}

TEST_F(ReplayWindow, TimeGoesBlankAtTheFirstRefresh)
{
    const auto* time = find<QLCDNumber>("time");
    const auto isLit = [&] {
        const QImage image = const_cast<QLCDNumber*>(time)->grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == QColor(150, 255, 150)) {
                    return true;
                }
            }
        }
        return false;
    };
    load();
    EXPECT_TRUE(isLit());
    click("start");
    tick(0.5);
    EXPECT_FALSE(isLit());
}

TEST_F(ReplayWindow, OutputOffPlaysSilently)
{
    click("outputSwitch");
    EXPECT_FALSE(m_object->settings().outputOn);
    EXPECT_FALSE(m_project.isEdited());
    load();
    click("start");
    tick(1.5);
    EXPECT_TRUE(m_outlet.batches.empty());
    EXPECT_EQ(counted(), QStringLiteral("0000"));
    click("outputSwitch");
    tick(1.0);
    EXPECT_EQ(m_outlet.batches, std::vector<std::string>{"3"});
    EXPECT_EQ(counted(), QStringLiteral("0003"));
}

TEST_F(ReplayWindow, SliderMovesAPausedReplay)
{
    load();
    click("start");
    tick(0.5);
    click("start");
    auto* slider = find<QSlider>("position");
    slider->setValue(500);
    EXPECT_DOUBLE_EQ(m_dialog->replay().elapsed(), 1.5);
    EXPECT_EQ(m_dialog->replay().position(), 2U);
    EXPECT_EQ(slider->value(), 500);
    click("start");
    tick(0.75);
    EXPECT_EQ(m_outlet.batches, (std::vector<std::string>{"1", "3"}));
}

TEST_F(ReplayWindow, ShowingThePositionDoesNotMoveIt)
{
    load();
    click("start");
    tick(0.1234);
    EXPECT_EQ(find<QSlider>("position")->value(), 41);
    EXPECT_NEAR(m_dialog->replay().elapsed(), 0.1234, 1e-9);
    click("start");
    EXPECT_NEAR(m_dialog->replay().elapsed(), 0.1234, 1e-9);
}

TEST_F(ReplayWindow, SliderOfAPausedReplayMovesByKeys)
{
    load();
    click("start");
    click("start");
    auto* slider = find<QSlider>("position");
    for (int position = 1; position <= 20; ++position) {
        QTest::keyClick(slider, Qt::Key_Right);
        ASSERT_EQ(slider->value(), position);
    }
}

TEST_F(ReplayWindow, StopGoesBackToTheStart)
{
    load();
    click("start");
    tick(1.5);
    click("stop");
    EXPECT_EQ(m_dialog->replay().position(), 0U);
    EXPECT_EQ(find<QSlider>("position")->value(), 0);
}

TEST_F(ReplayWindow, AutoRepeatBeginsAgain)
{
    click("autoRepeat");
    EXPECT_TRUE(m_object->settings().autoRepeat);
    EXPECT_FALSE(m_project.isEdited());
    load();
    click("start");
    tick(3.5);
    EXPECT_EQ(controls(), "off on on off Pause");
    tick(0.5);
    EXPECT_EQ(m_outlet.batches, (std::vector<std::string>{"1 2 3 4", "1"}));
    click("autoRepeat");
    EXPECT_FALSE(m_object->settings().autoRepeat);
}

TEST_F(ReplayWindow, InterfacesAreStoredAndMarkTheProject)
{
    auto* header = m_dialog->findChild<WidgetHeader*>();
    emit header->signalInputInterface(QStringLiteral("Tail"));
    EXPECT_EQ(m_object->settings().inputInterface, QStringLiteral("Tail"));
    EXPECT_TRUE(m_project.isEdited());
    m_project.save(QString());
    emit header->signalOutputInterface(QStringLiteral("Wing"));
    EXPECT_EQ(m_object->settings().outputInterface, QStringLiteral("Wing"));
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(ReplayWindow, SettingsComeFromTheObject)
{
    auto& settings = m_object->settings();
    settings.outputOn = false;
    settings.autoRepeat = true;
    settings.outputInterface = QStringLiteral("Wing");
    m_dialog->updateDialog();
    EXPECT_FALSE(m_dialog->findChild<WidgetHeader*>()->isOutputOn());
    EXPECT_TRUE(find<QToolButton>("autoRepeat")->isChecked());
    EXPECT_EQ(find<gui::WidgetInterfaceSelect>("outputSelect")->interface(),
              QStringLiteral("Wing"));
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(ReplayWindow, FileThatCannotBeOpenedIsEmpty)
{
    load("missing.zlb");
    EXPECT_EQ(find<QLineEdit>("fileName")->text(), QStringLiteral("missing.zlb"));
    EXPECT_TRUE(m_dialog->replay().trace().frames.empty());
    click("start");
    tick(0.5);
    EXPECT_EQ(controls(), "on on off off Start");
}

TEST_F(ReplayWindow, ForcedCloseStopsTheTimer)
{
    load();
    click("start");
    m_dialog->forceClose();
    EXPECT_FALSE(m_timer->isActive());
}

TEST_F(ReplayWindow, WindowWithoutAnObjectStops)
{
    load();
    click("start");
    m_project.deleteObject(m_object->id());
    ASSERT_EQ(m_dialog->object(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_timer->isActive(); }));
    EXPECT_TRUE(m_outlet.batches.empty());
    click("outputSwitch");
    click("autoRepeat");
    emit m_dialog->findChild<WidgetHeader*>()->signalInputInterface(QStringLiteral("Tail"));
    emit m_dialog->findChild<WidgetHeader*>()->signalOutputInterface(QStringLiteral("Tail"));
    m_dialog->updateDialog();
}

} // namespace
