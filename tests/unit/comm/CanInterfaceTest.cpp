#include "comm/CanInterface.h"

#include "comm/BatchListeners.h"
#include "message/MessageCan.h"
#include "message/MessageCtrl.h"
#include "project/ObjectReceive.h"
#include "project/Project.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/FixtureModules.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>
#include <memory>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace {

using comm::CanInterface;

const auto* const modules =
    testing::AddGlobalTestEnvironment(new zul::test::FixtureModuleEnvironment(
        {"good", "status_driven", "status_driven_fd", "device_throws", "create_device_null",
         "create_device_throws"}));

std::string property(CanInterface& interface, const char* key)
{
    interface.device()->setProperty("PublishCounts", "1");
    return interface.device()->getStringProp(key);
}

template <typename Condition>
bool eventually(Condition condition)
{
    constexpr int deadlineMs = 5000;
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.hasExpired(deadlineMs)) {
            return false;
        }
        QThread::yieldCurrentThread();
    }
    return true;
}

#if defined(__SANITIZE_ADDRESS__)
void setLeakCheck(bool on)
{
    on ? __lsan_enable() : __lsan_disable();
}
#else
void setLeakCheck(bool) {}
#endif

class CanInterfaceTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_bus = dynamic_cast<CanInterface*>(m_project.createObject(ObjectType::CanInterface));
        m_bus->setName(QStringLiteral("CAN 1"));
        m_receiver = m_project.createObject(ObjectType::Receive);
        m_receiver->setDialog(&m_window);
    }
    void TearDown() override
    {
        m_receiver->setDialog(nullptr);
        comm::BatchListeners::instance().clear();
        if (m_bus->isConnected()) {
            m_bus->disconnect();
        }
        m_bus->poll(); // frees what the reader still took
        m_bus->selectDevice(std::string());
    }
    void select(const char* module) { ASSERT_TRUE(m_bus->selectDevice(module)); }
    void set(const char* key, const char* value) { m_bus->device()->setProperty(key, value); }
    MessageContainer addressedTo(const char* name)
    {
        MessageContainer batch;
        auto* frame = new zul::MessageCan;
        frame->setId(0x123);
        frame->setByteCount(2);
        batch.addMessage(SmartPtr<Message>(frame));
        batch.setSrcDest(name);
        return batch;
    }

    zul::test::TestHome m_home;
    Project m_project{{CanInterface::typeInfo(), ObjectReceive::typeInfo()},
                      m_home.file(QStringLiteral("default.zul"))};
    CanInterface* m_bus = nullptr;
    Object* m_receiver = nullptr;
    zul::test::ProbeWindow m_window;
    zul::test::ConsoleCapture m_console;
};

TEST_F(CanInterfaceTest, NewOneHasNoDeviceAndTheSizeOfItsStatusWindow)
{
    EXPECT_EQ(m_bus->device(), nullptr);
    EXPECT_EQ(m_bus->status(), DeviceStatus::Closed);
    EXPECT_EQ(m_bus->errorMessage(), QString());
    EXPECT_FALSE(m_bus->connect());
    EXPECT_FALSE(m_bus->disconnect());
    EXPECT_EQ(m_bus->busLoad(), 0.0);
    EXPECT_EQ(m_bus->frameRate(), 0);
    EXPECT_EQ(m_bus->width(), 400);
    EXPECT_EQ(m_bus->height(), 400);
    EXPECT_TRUE(m_bus->poll());
}

TEST_F(CanInterfaceTest, SelectingReplacesTheDeviceAndAnEmptyNameRemovesIt)
{
    select("libCanGood");
    set("Baudrate", "500000");
    select("libCanGood");
    EXPECT_EQ(m_bus->device()->baudrate(), 1000000);
    EXPECT_EQ(property(*m_bus, "LiveCount"), "1");
    EXPECT_FALSE(m_bus->selectDevice("libCanNowhere"));
    EXPECT_EQ(m_bus->device(), nullptr);
    EXPECT_FALSE(m_bus->selectDevice(""));
}

TEST_F(CanInterfaceTest, ModuleThatMakesNoDeviceLeavesNone)
{
    EXPECT_FALSE(m_bus->selectDevice("libCanCreateDeviceNull"));
    EXPECT_EQ(m_bus->device(), nullptr);
    EXPECT_FALSE(m_bus->selectDevice("libCanCreateDeviceThrows"));
    EXPECT_EQ(m_bus->device(), nullptr);
}

TEST_F(CanInterfaceTest, FailureToOpenKeepsItClosedWithTheDevicesText)
{
    select("libCanGood");
    set("FailOpen", "1");
    EXPECT_FALSE(m_bus->connect());
    EXPECT_FALSE(m_bus->isConnected());
    EXPECT_FALSE(m_bus->errorMessage().isEmpty());
    EXPECT_EQ(m_bus->status(), DeviceStatus::Closed);
}

TEST_F(CanInterfaceTest, FramesReachWindowsAndListenersUnderTheInterfacesName)
{
    std::vector<std::uint32_t> heard;
    comm::BatchListeners::instance().add(
        [&](MessageContainer& batch) { heard.push_back(batch.size()); });
    zul::test::ProbeWindow statusWindow;
    m_bus->setDialog(&statusWindow);
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    set("InjectFrames", "3");
    std::uint32_t seen = 0;
    EXPECT_TRUE(eventually([&] {
        m_bus->poll();
        seen += m_window.sizes.back();
        return seen == 3;
    }));
    EXPECT_EQ(m_window.sources.back(), "CAN 1");
    EXPECT_EQ(heard.size(), m_window.sizes.size());
    EXPECT_EQ(statusWindow.sizes, m_window.sizes);
    m_bus->setDialog(nullptr);
}

/// Notes its turn in a list that others write to as well.
class TurnWindow : public zul::test::ProbeWindow
{
public:
    TurnWindow(std::vector<std::string>& turns, std::string name)
        : m_turns(turns), m_name(std::move(name))
    {
    }
    void receive(MessageContainer&) override { m_turns.push_back(m_name); }

private:
    std::vector<std::string>& m_turns;
    std::string m_name;
};

TEST_F(CanInterfaceTest, BatchGoesToWindowsStatusWindowAndListenersBeforeTheEstimateAndTheEnd)
{
    std::vector<std::string> turns;
    TurnWindow window(turns, "window");
    TurnWindow statusWindow(turns, "status window");
    m_receiver->setDialog(&window);
    m_bus->setDialog(&statusWindow);
    zul::test::SettableClock clock;
    m_bus->poll();
    clock.advance(1.0);
    comm::BatchListeners::instance().add([&](MessageContainer&) {
        turns.emplace_back("listener");
        EXPECT_EQ(m_bus->frameRate(), 0); // not estimated yet
        EXPECT_TRUE(m_bus->isConnected());
    });
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    set("InjectFrames", "30");
    m_bus->link().drain();
    set("Lost", "1");
    turns.clear();
    EXPECT_FALSE(m_bus->poll());
    EXPECT_EQ(turns, (std::vector<std::string>{"window", "status window", "listener"}));
    EXPECT_GT(m_bus->frameRate(), 0); // estimated as connected, before the end
    EXPECT_FALSE(m_bus->isConnected());
    m_bus->setDialog(nullptr);
    m_receiver->setDialog(&m_window);
}

TEST_F(CanInterfaceTest, FrameRateIsCutToAWholeNumber)
{
    zul::test::SettableClock clock;
    m_bus->poll();
    clock.advance(1.0);
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    set("InjectFrames", "4");
    m_bus->link().drain();
    m_bus->poll();
    EXPECT_EQ(m_bus->frameRate(), 2); // 4 / 1.5
}

TEST_F(CanInterfaceTest, EmptyBatchesAreDeliveredAlsoWhileDisconnected)
{
    m_bus->poll();
    m_bus->poll();
    EXPECT_EQ(m_window.sizes, (std::vector<std::uint32_t>{0, 0}));
}

TEST_F(CanInterfaceTest, EachBatchBearsTheNameOfItsTime)
{
    m_bus->poll();
    m_bus->setName(QStringLiteral("CAN \u00C4"));
    m_bus->poll();
    m_bus->setName(QString());
    m_bus->poll();
    EXPECT_EQ(m_window.sources, (std::vector<std::string>{"CAN 1", "CAN \xC4", ""}));
}

TEST_F(CanInterfaceTest, BatchesAreSentByTheAddressedInterfaceAlone)
{
    select("libCanGood");
    MessageContainer toAll = addressedTo("All Interfaces");
    m_receiver->send(toAll); // not connected
    ASSERT_TRUE(m_bus->connect());
    MessageContainer toOther = addressedTo("CAN 2");
    m_receiver->send(toOther);
    EXPECT_EQ(property(*m_bus, "SendCount"), "0");
    m_receiver->send(toAll);
    MessageContainer toThis = addressedTo("CAN 1");
    m_receiver->send(toThis);
    EXPECT_EQ(property(*m_bus, "SendCount"), "2");
    EXPECT_EQ(toThis.messages()[0].useCount(), 1U); // the container still owns it
}

TEST_F(CanInterfaceTest, NameOfTheAddressMustBeExactlyTheInterfaces)
{
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    for (const char* name : {"can 1", "CAN 1 ", " CAN 1", "CAN 11", "CAN", "CAN1", "",
                             "all interfaces", "All Interfaces ", "All"}) {
        MessageContainer batch = addressedTo(name);
        m_receiver->send(batch);
        EXPECT_EQ(property(*m_bus, "SendCount"), "0") << name;
    }
    MessageContainer batch = addressedTo("CAN 1");
    m_receiver->send(batch);
    EXPECT_EQ(property(*m_bus, "SentLog"), "291/0/2 ");
}

TEST_F(CanInterfaceTest, FailureToSendIsIgnoredAndTheRestIsSent)
{
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    set("FailSend", "1");
    MessageContainer batch = addressedTo("CAN 1");
    batch.addMessage(SmartPtr<Message>(new zul::MessageCtrl));
    batch.addMessage(SmartPtr<Message>());
    m_receiver->send(batch);
    EXPECT_EQ(property(*m_bus, "SendCount"), "2");
}

TEST_F(CanInterfaceTest, LostHardwareDisconnectsAtTheNextPoll)
{
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    EXPECT_TRUE(m_bus->poll());
    set("Lost", "1");
    EXPECT_FALSE(m_bus->poll());
    EXPECT_FALSE(m_bus->isConnected());
    EXPECT_EQ(property(*m_bus, "CloseCount"), "1");
    EXPECT_TRUE(m_bus->poll());
}

TEST_F(CanInterfaceTest, WhatWasWaitingAtDisconnectComesWithTheNextPoll)
{
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    set("InjectFrames", "5");
    EXPECT_TRUE(m_bus->disconnect());
    EXPECT_EQ(m_bus->status(), DeviceStatus::Closed);
    EXPECT_TRUE(m_window.sizes.empty());
    m_bus->poll();
    EXPECT_EQ(m_window.sizes, (std::vector<std::uint32_t>{5}));
    EXPECT_NE(m_console.out().find("Stop Thread\n"), std::string::npos);
}

TEST_F(CanInterfaceTest, DisconnectTellsWhetherTheDeviceCouldBeClosedAndEndsInAnyCase)
{
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    set("FailClose", "1");
    EXPECT_FALSE(m_bus->disconnect());
    EXPECT_FALSE(m_bus->isConnected());
    EXPECT_EQ(m_bus->errorMessage(), QStringLiteral("fixture: close failed"));
    set("FailClose", "0");
    ASSERT_TRUE(m_bus->connect());
    EXPECT_TRUE(m_bus->disconnect());
}

TEST_F(CanInterfaceTest, DeviceIsClosedBeforeItIsDestroyed)
{
    select("libCanGood");
    const std::string before = property(*m_bus, "DestroyedOpen");
    ASSERT_TRUE(m_bus->connect());
    select("libCanGood");
    EXPECT_EQ(property(*m_bus, "LiveCount"), "1");
    EXPECT_EQ(property(*m_bus, "DestroyedOpen"), before);
}

TEST_F(CanInterfaceTest, ReaderThatIsStuckInItsDeviceIsLeftAlone)
{
    auto bus = std::make_unique<CanInterface>();
    bus->selectDevice("libCanGood");
    Device* device = bus->device();
    device->setProperty("HoldReceive", "1");
    setLeakCheck(false); // the reader will be left behind on purpose
    EXPECT_TRUE(bus->connect());
    setLeakCheck(true);
    ASSERT_TRUE(eventually([&] { return property(*bus, "HeldCount") == "1"; }));
    QElapsedTimer timer;
    timer.start();
    bus.reset();
    EXPECT_LT(timer.elapsed(), 5000); // that it came back at all
    device->setProperty("HoldReceive", "0");
    EXPECT_TRUE(eventually([&] {
        device->setProperty("PublishCounts", "1");
        return device->getStringProp("HeldCount") == "0";
    }));
    delete device; // the reader does not come back to it
}

TEST_F(CanInterfaceTest, ReconnectingAtOnceReadsAgain)
{
    select("libCanGood");
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(m_bus->connect());
        EXPECT_TRUE(m_bus->disconnect());
    }
    ASSERT_TRUE(m_bus->connect());
    m_bus->poll();
    m_window.sizes.clear();
    set("InjectFrames", "1");
    EXPECT_TRUE(eventually([&] {
        m_bus->poll();
        return m_window.sizes.back() == 1;
    }));
}

TEST_F(CanInterfaceTest, ExchangingTheDeviceRightAfterADisconnectIsSafe)
{
    for (int i = 0; i < 20; ++i) {
        select("libCanGood");
        ASSERT_TRUE(m_bus->connect());
        m_bus->disconnect();
        m_bus->selectDevice(std::string());
    }
}

TEST_F(CanInterfaceTest, DeviceThatThrowsEndsInConsoleLinesOnly)
{
    select("libCanDeviceThrows");
    EXPECT_FALSE(m_bus->connect());
    EXPECT_EQ(m_bus->status(), DeviceStatus::Closed);
    m_bus->errorMessage();
    m_bus->busLoad();
    m_bus->poll();
    m_bus->disconnect();
    EXPECT_NE(m_console.err().find("open failed"), std::string::npos);
}

TEST_F(CanInterfaceTest, LoadOfAStatusDrivenDeviceComesFromItsReports)
{
    for (const char* module : {"libCanGRV614UDP", "libCanGRV614UDP_FD"}) {
        select(module);
        ASSERT_TRUE(m_bus->connect());
        set("InjectStatus", "250000 250000 500 500");
        EXPECT_TRUE(eventually([&] {
            m_bus->poll();
            return m_bus->busLoad() > 0.0;
        })) << module;
        m_bus->disconnect();
        m_bus->poll();
        EXPECT_EQ(m_bus->busLoad(), 0.0);
    }
}

TEST_F(CanInterfaceTest, LoadOfAnotherDeviceComesFromItsFramesAndCanExceed100)
{
    select("libCanGood");
    set("Baudrate", "1");
    ASSERT_TRUE(m_bus->connect());
    set("InjectStatus", "250000 250000 500 500");
    set("InjectFrames", "50");
    EXPECT_TRUE(eventually([&] {
        m_bus->poll();
        return m_bus->busLoad() > 100.0;
    }));
    set("Baudrate", "0");
    EXPECT_EQ(m_bus->busLoad(), 0.0);
}

TEST_F(CanInterfaceTest, WithoutADeviceTheLoadIsToldInAMegabit)
{
    select("libCanGood");
    set("Baudrate", "500000");
    ASSERT_TRUE(m_bus->connect());
    set("InjectFrames", "50");
    ASSERT_TRUE(eventually([&] {
        m_bus->poll();
        return m_bus->busLoad() > 0.0;
    }));
    const double load = m_bus->busLoad();
    m_bus->selectDevice(std::string());
    EXPECT_DOUBLE_EQ(m_bus->busLoad(), load / 2);
}

TEST_F(CanInterfaceTest, ProjectFileRestoresDevicePropertiesAndName)
{
    select("libCanGood");
    set("InterfaceName", "Nose");
    set("Baudrate", "250000");
    m_project.save(QString());
    m_receiver->setDialog(nullptr);
    m_bus->selectDevice(std::string());
    m_project.load(m_project.fileName());
    m_bus = dynamic_cast<CanInterface*>(m_project.interfaces().begin()->second);
    m_receiver = m_project.objects().rbegin()->second.get();
    ASSERT_NE(m_bus->device(), nullptr);
    EXPECT_EQ(m_bus->name(), QStringLiteral("Nose"));
    EXPECT_EQ(m_bus->device()->baudrate(), 250000);
}

TEST_F(CanInterfaceTest, PropertiesWithoutADeviceBeforeThemAreSkipped)
{
    m_home.write(QStringLiteral("odd.zul"),
                 "<ZUL><ObjectCanInterface><Property id='InterfaceName' value='X'/>"
                 "<Device id='libCanNowhere'/><Property id='InterfaceName' value='Y'/>"
                 "<Window name='W'/></ObjectCanInterface><ObjectReceive/></ZUL>");
    m_receiver->setDialog(nullptr);
    m_project.load(m_home.file(QStringLiteral("odd.zul")));
    m_bus = dynamic_cast<CanInterface*>(m_project.interfaces().begin()->second);
    m_receiver = m_project.objects().rbegin()->second.get();
    EXPECT_EQ(m_bus->device(), nullptr);
    EXPECT_EQ(m_bus->name(), QStringLiteral("W"));
    m_project.save(QString());
    EXPECT_FALSE(m_home.read(QStringLiteral("odd.zul")).contains("Property"));
}

TEST_F(CanInterfaceTest, ClearingTheProjectDisconnects)
{
    select("libCanGood");
    ASSERT_TRUE(m_bus->connect());
    m_receiver->setDialog(nullptr);
    Device* device = m_bus->device();
    m_bus->poll();
    m_project.clear();
    device->setProperty("PublishCounts", "1");
    EXPECT_EQ(device->getStringProp("CloseCount"), "1");
    delete device; // a deleted interface leaves its device behind
    SetUp();
}

} // namespace
