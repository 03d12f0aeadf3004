#include "core/Kernel.h"
#include "gui/frame/ActivityCounter.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "project/Project.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

using gui::WidgetInterfaceSelect;

std::unique_ptr<Object> makeInterface()
{
    return std::make_unique<zul::test::ProbeInterface>();
}

class HeaderTest : public testing::Test
{
protected:
    void SetUp() override { gui::Kernel::instance().setProject(&m_project); }
    void TearDown() override { gui::Kernel::instance().setProject(nullptr); }
    Object& addInterface(const char* name)
    {
        Object* object = m_project.createObject(ObjectType::CanInterface);
        object->setName(QLatin1String(name));
        return *object;
    }
    static void changed() { gui::Kernel::instance().notify(gui::Kernel::interfacesAspect); }
    static QStringList names(const WidgetInterfaceSelect& select)
    {
        QStringList list;
        for (const QAction* action : select.menu()->actions()) {
            list.append(action->data().toString());
        }
        return list;
    }

    zul::test::TestHome m_home;
    Project m_project{{makeObjectTypeInfo(ObjectType::CanInterface, &makeInterface)},
                      m_home.file(QStringLiteral("default.zul"))};
};

TEST_F(HeaderTest, SelectorListsAllAndTheInterfacesInOrder)
{
    addInterface("Nose");
    addInterface("Tail & fin");
    const WidgetInterfaceSelect select;
    EXPECT_EQ(select.interface(), QStringLiteral("All Interfaces"));
    EXPECT_EQ(names(select), (QStringList{QStringLiteral("All Interfaces"), QStringLiteral("Nose"),
                                          QStringLiteral("Tail & fin")}));
}

TEST_F(HeaderTest, ChoosingAnActionTellsAndSettingFromOutsideDoesNot)
{
    addInterface("Nose");
    WidgetInterfaceSelect select;
    const QSignalSpy spy(&select, &WidgetInterfaceSelect::signalChanged);
    select.menu()->actions().at(1)->trigger();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), QStringLiteral("Nose"));
    EXPECT_EQ(select.findChild<QToolButton*>(QStringLiteral("interfaceButton"))->text(),
              QStringLiteral("Nose"));
    select.setInterface(QStringLiteral("Elsewhere"));
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(select.interface(), QStringLiteral("Elsewhere"));
}

TEST_F(HeaderTest, DeletingTheShownInterfaceRebuildsTheMenuAndKeepsTheName)
{
    const int id = addInterface("Nose").id();
    WidgetInterfaceSelect select;
    select.setInterface(QStringLiteral("Nose"));
    m_project.deleteObject(id);
    changed();
    EXPECT_EQ(names(select), QStringList{QStringLiteral("All Interfaces")});
    EXPECT_EQ(select.findChild<QToolButton*>(QStringLiteral("interfaceButton"))->text(),
              QStringLiteral("Nose"));
    EXPECT_EQ(select.interface(), QStringLiteral("Nose"));
}

TEST_F(HeaderTest, OtherAspectsAreIgnored)
{
    WidgetInterfaceSelect select;
    addInterface("Nose");
    select.update(&gui::Kernel::instance(), 2);
    EXPECT_EQ(names(select).size(), 1);
    select.update(&gui::Kernel::instance(), 1);
    EXPECT_EQ(names(select).size(), 2);
}

template <typename T>
T& control(WidgetHeader& header, const char* name)
{
    return *header.findChild<T*>(QLatin1String(name));
}

TEST_F(HeaderTest, SwitchesToggleTellAndShow)
{
    WidgetHeader header;
    const QSignalSpy input(&header, &WidgetHeader::signalInputOn);
    const QSignalSpy output(&header, &WidgetHeader::signalOutputOn);
    const QSignalSpy filter(&header, &WidgetHeader::signalFilterOn);
    const QSignalSpy number(&header, &WidgetHeader::signalNumberType);
    const QSignalSpy setup(&header, &WidgetHeader::signalSetup);
    const QSignalSpy filterSetup(&header, &WidgetHeader::signalFilterSetup);
    for (const char* name : {"inputSwitch", "outputSwitch", "filterSwitch", "numberFormat",
                             "dialogSetup", "filterSetup"}) {
        QTest::mouseClick(&control<QToolButton>(header, name), Qt::LeftButton);
    }
    EXPECT_EQ(input.at(0), QVariantList{false});
    EXPECT_EQ(output.at(0), QVariantList{false});
    EXPECT_EQ(filter.at(0), QVariantList{true});
    EXPECT_EQ(number.at(0), QVariantList{1});
    EXPECT_EQ(setup.count(), 1);
    EXPECT_EQ(filterSetup.count(), 1);
    auto& filterSwitch = control<QToolButton>(header, "filterSwitch");
    EXPECT_EQ(filterSwitch.text(), QStringLiteral("Filter on"));
    EXPECT_TRUE(filterSwitch.font().bold());
    EXPECT_EQ(filterSwitch.font().pixelSize(), 12);
    EXPECT_EQ(filterSwitch.palette().color(filterSwitch.foregroundRole()), QColor(240, 140, 0));
    EXPECT_EQ(control<QToolButton>(header, "numberFormat").text(), QStringLiteral("Hex\n0x1"));
    QTest::mouseClick(&filterSwitch, Qt::LeftButton);
    QTest::mouseClick(&control<QToolButton>(header, "numberFormat"), Qt::LeftButton);
    EXPECT_EQ(filterSwitch.text(), QStringLiteral("Filter off"));
    EXPECT_FALSE(filterSwitch.font().bold());
    EXPECT_EQ(filterSwitch.palette().color(filterSwitch.foregroundRole()), QColor(150, 150, 150));
    EXPECT_EQ(control<QToolButton>(header, "numberFormat").text(), QStringLiteral("Dec\n123"));
}

TEST_F(HeaderTest, ToolTipsAreTold)
{
    WidgetHeader header;
    EXPECT_EQ(control<QLabel>(header, "inputCounter").toolTip(), QStringLiteral("Input Activity"));
    EXPECT_EQ(control<QToolButton>(header, "inputSwitch").toolTip(),
              QStringLiteral("Enable/Disable Input"));
    EXPECT_EQ(control<QToolButton>(header, "filterSwitch").toolTip(),
              QStringLiteral("Enable/Disable Filter"));
    EXPECT_EQ(control<QToolButton>(header, "filterSetup").toolTip(),
              QStringLiteral("Filter Setup"));
    EXPECT_EQ(control<QToolButton>(header, "dialogSetup").toolTip(),
              QStringLiteral("Dialog Setup"));
    EXPECT_EQ(control<QToolButton>(header, "numberFormat").toolTip(),
              QStringLiteral("Decimal/Hex Display"));
    EXPECT_EQ(control<QToolButton>(header, "outputSwitch").toolTip(),
              QStringLiteral("Enable/Disable Output"));
    EXPECT_EQ(control<QLabel>(header, "outputCounter").toolTip(),
              QStringLiteral("Output Activity"));
    EXPECT_EQ(control<QLabel>(header, "inputCounter").text(), QStringLiteral("0000"));
}

TEST_F(HeaderTest, ModesEnableTheirHalf)
{
    struct Row
    {
        WidgetHeader::Mode mode;
        bool input;
        bool output;
    };
    for (const Row& row :
         {Row{WidgetHeader::Mode::Input, true, false}, Row{WidgetHeader::Mode::Output, false, true},
          Row{WidgetHeader::Mode::Both, true, true}}) {
        WidgetHeader header;
        header.setMode(row.mode);
        for (const char* name :
             {"inputSelect", "inputCounter", "inputSwitch", "filterSwitch", "filterSetup"}) {
            EXPECT_EQ(control<QWidget>(header, name).isEnabled(), row.input) << name;
        }
        for (const char* name : {"outputSelect", "outputCounter", "outputSwitch"}) {
            EXPECT_EQ(control<QWidget>(header, name).isEnabled(), row.output) << name;
        }
        EXPECT_TRUE(control<QWidget>(header, "dialogSetup").isEnabled());
        EXPECT_TRUE(control<QWidget>(header, "numberFormat").isEnabled());
    }
}

TEST_F(HeaderTest, InterfacesAreShownAndTold)
{
    addInterface("Nose");
    WidgetHeader header;
    const QSignalSpy input(&header, &WidgetHeader::signalInputInterface);
    const QSignalSpy output(&header, &WidgetHeader::signalOutputInterface);
    control<WidgetInterfaceSelect>(header, "inputSelect").menu()->actions().at(1)->trigger();
    control<WidgetInterfaceSelect>(header, "outputSelect").menu()->actions().at(1)->trigger();
    EXPECT_EQ(input.at(0).at(0).toString(), QStringLiteral("Nose"));
    EXPECT_EQ(output.at(0).at(0).toString(), QStringLiteral("Nose"));
    header.setInputOn(false); // a refresh keeps what was chosen
    EXPECT_EQ(control<WidgetInterfaceSelect>(header, "inputSelect").interface(),
              QStringLiteral("Nose"));
}

TEST_F(HeaderTest, InputCounterIsGreenWhileItChanges)
{
    zul::test::SettableClock clock(100.0);
    WidgetHeader header;
    auto& counter = control<QLabel>(header, "inputCounter");
    const auto color = [&] { return counter.palette().color(counter.foregroundRole()); };
    EXPECT_EQ(color(), QColor(150, 150, 150));
    header.setInputCount(12345);
    EXPECT_EQ(counter.text(), QStringLiteral("2345"));
    EXPECT_EQ(color(), QColor(0, 150, 0));
    clock.advance(0.5);
    header.setInputCount(12345);
    EXPECT_EQ(color(), QColor(0, 150, 0));
    clock.advance(0.01);
    header.setInputCount(12345);
    EXPECT_EQ(color(), QColor(150, 150, 150));
}

TEST_F(HeaderTest, OutputCounterStaysGrey)
{
    WidgetHeader header;
    header.setOutputCount(7);
    auto& counter = control<QLabel>(header, "outputCounter");
    EXPECT_EQ(counter.text(), QStringLiteral("0007"));
    EXPECT_EQ(counter.palette().color(counter.foregroundRole()), QColor(150, 150, 150));
}

TEST_F(HeaderTest, CustomControlsStandInTheMiddle)
{
    WidgetHeader header;
    auto* custom = new QToolButton;
    header.addCustomWidget(custom);
    header.addCustomStretch();
    EXPECT_TRUE(header.isAncestorOf(custom));
}

} // namespace
