#include "app/Composition.h"

#include "comm/CanInterface.h"
#include "gui/controls/WidgetStatus.h"
#include "gui/frame/DialogBase.h"
#include "gui/measure/DialogDial.h"
#include "gui/measure/DialogGraph.h"
#include "gui/measure/DialogStatistic.h"
#include "gui/node/DialogFunctionGen.h"
#include "gui/node/DialogNodeService.h"
#include "gui/traffic/DialogReceive.h"
#include "gui/traffic/DialogReplay.h"
#include "gui/traffic/DialogStatus.h"
#include "gui/traffic/DialogTrace.h"
#include "gui/traffic/DialogTransmit.h"
#include "project/Project.h"
#include "project/WindowMakers.h"
#include "tests/support/FixtureModules.h"
#include "tests/support/TestHome.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

// The program's types with the windows that the program gives them.

namespace {

const auto* const modules =
    testing::AddGlobalTestEnvironment(new zul::test::FixtureModuleEnvironment({"good"}));

class Composition : public testing::Test
{
protected:
    void SetUp() override { app::registerWindowMakers(); }
    void TearDown() override
    {
        m_window.reset();
        WindowMakers::instance().clear();
    }
    /// The window that the object makes for itself.
    gui::DialogBase* windowOf(Object& object)
    {
        m_window.reset(dynamic_cast<gui::DialogBase*>(object.createDialog(nullptr)));
        return m_window.get();
    }
    template <typename Window>
    void expectWindow(ObjectType type, const char* title)
    {
        Object* object = m_project.createObject(type);
        object->setName(QStringLiteral("Nose"));
        const gui::DialogBase* window = windowOf(*object);
        ASSERT_NE(dynamic_cast<const Window*>(window), nullptr) << title;
        EXPECT_EQ(window->object(), object);
        EXPECT_EQ(object->dialog(), window);
        EXPECT_EQ(window->name(), QStringLiteral("Nose"));
        EXPECT_EQ(window->typeTitle(), QLatin1String(title));
        EXPECT_FALSE(window->windowIcon().pixmap(16).isNull());
    }

    zul::test::TestHome m_home;
    Project m_project{app::objectTypeInfos(), m_home.file(QStringLiteral("default.zul"))};
    std::unique_ptr<gui::DialogBase> m_window;
};

TEST_F(Composition, InterfaceMakesItsStatusWindow)
{
    expectWindow<gui::DialogStatus>(ObjectType::CanInterface, statusType.title);
}

TEST_F(Composition, ReceiveObjectMakesAReceiveWindow)
{
    expectWindow<gui::DialogReceive>(ObjectType::Receive, "Receive Window");
}

TEST_F(Composition, TraceObjectMakesATraceWindow)
{
    expectWindow<gui::DialogTrace>(ObjectType::Trace, "Trace Window");
}

TEST_F(Composition, ReplayObjectMakesAReplayWindow)
{
    expectWindow<gui::DialogReplay>(ObjectType::Replay, "Replay Window");
}

TEST_F(Composition, TransmitObjectMakesATransmitWindow)
{
    expectWindow<gui::DialogTransmit>(ObjectType::Transmit, "Transmit Window");
}

TEST_F(Composition, GraphObjectMakesAnOscilloscope)
{
    expectWindow<gui::DialogGraph>(ObjectType::Graph, "Oscilloscope");
}

TEST_F(Composition, DialObjectMakesADataVisualizationWindow)
{
    expectWindow<gui::DialogDial>(ObjectType::Dial, "Data Visualization");
}

TEST_F(Composition, StatisticObjectMakesAStatisticWindow)
{
    expectWindow<gui::DialogStatistic>(ObjectType::Statistic, "CAN Statistic");
}

TEST_F(Composition, NodeServiceObjectMakesANodeServiceWindow)
{
    expectWindow<gui::DialogNodeService>(ObjectType::NodeService, "Node Service Window");
}

TEST_F(Composition, FunctionGenObjectMakesAGeneratorPanel)
{
    expectWindow<gui::DialogFunctionGen>(ObjectType::FunctionGen, "Function Gen. Control");
}

TEST_F(Composition, EveryTypeHasAnIconAndAWindow)
{
    EXPECT_EQ(m_project.types().size(), 10U);
    for (const auto& [type, info] : m_project.types()) {
        EXPECT_FALSE(info.icon.isNull()) << static_cast<int>(type);
        EXPECT_NE(windowOf(*m_project.createObject(type)), nullptr) << static_cast<int>(type);
    }
}

TEST_F(Composition, ClearStatusReachesTheDeviceAsControl0)
{
    auto& bus =
        dynamic_cast<comm::CanInterface&>(*m_project.createObject(ObjectType::CanInterface));
    ASSERT_TRUE(bus.selectDevice("libCanGood"));
    ASSERT_TRUE(bus.connect());
    QTest::mouseClick(windowOf(bus)->findChild<QPushButton*>(QStringLiteral("clearStatus")),
                      Qt::LeftButton);
    bus.device()->setProperty("PublishCounts", "1");
    EXPECT_EQ(bus.device()->getStringProp("SentLog"), "ctrl:0 ");
    bus.device()->setProperty("InjectStatus", "0 0 0 0 2");
    bus.link().drain();
    bus.poll();
    int shown = 0;
    for (const WidgetStatus* row : m_window->findChildren<WidgetStatus*>()) {
        shown += row->isHidden() ? 0 : 1;
    }
    EXPECT_EQ(shown, 2);
    bus.disconnect();
    bus.selectDevice(std::string());
}

} // namespace
