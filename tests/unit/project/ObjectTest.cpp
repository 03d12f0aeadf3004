#include "project/ObjectReceive.h"
#include "project/ObjectStatus.h"
#include "project/ObjectTypes.h"
#include "project/WindowMakers.h"
#include "tests/support/ProbeObjects.h"

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <utility>

namespace {

using zul::test::ProbeInterface;
using zul::test::ProbeWindow;

TEST(Object, NewOneHasTheDefaultsAndARisingId)
{
    const ObjectReceive first;
    const ObjectReceive second;
    EXPECT_GT(second.id(), first.id());
    EXPECT_EQ(first.name(), QStringLiteral("unnamed"));
    EXPECT_TRUE(first.isOpen());
    EXPECT_EQ(first.xPos(), 0);
    EXPECT_EQ(first.yPos(), 0);
    EXPECT_EQ(first.width(), 600);
    EXPECT_EQ(first.height(), 400);
    EXPECT_EQ(first.dialog(), nullptr);
    EXPECT_EQ(first.recordVersion(), 1);
}

TEST(Object, WiringIgnoresNull)
{
    ObjectReceive object;
    object.addOutput(nullptr);
    object.removeOutput(nullptr);
    object.addInput(nullptr);
    object.removeInput(nullptr);
    EXPECT_TRUE(object.outputs().empty());
    EXPECT_TRUE(object.inputs().empty());
}

TEST(Object, AddOutputWiresBothEnds)
{
    ObjectReceive from;
    ProbeInterface to;
    from.addOutput(&to);
    EXPECT_EQ(from.outputs().at(to.id()), &to);
    EXPECT_EQ(to.inputs().at(from.id()), &from);
    EXPECT_TRUE(from.inputs().empty());
}

TEST(Object, DestructionTakesItOutOfTheWiringAndTellsItsWindow)
{
    ProbeInterface interface;
    ProbeWindow window;
    {
        ObjectReceive object;
        object.addOutput(&interface);
        interface.addOutput(&object);
        object.setDialog(&window);
    }
    EXPECT_TRUE(interface.inputs().empty());
    EXPECT_TRUE(interface.outputs().empty());
    ASSERT_EQ(window.objects.size(), 1U);
    EXPECT_EQ(window.objects[0], nullptr);
}

TEST(Object, BatchesReachTheOutputsInAscendingIdAndTheirWindows)
{
    ObjectReceive from;
    ProbeInterface first;
    ProbeInterface second;
    from.addOutput(&second);
    from.addOutput(&first);
    MessageContainer batch;
    batch.setSrcDest("All Interfaces");
    from.send(batch);
    EXPECT_EQ(first.sent.size(), 1U);
    EXPECT_EQ(second.sent.size(), 1U);

    ObjectReceive shown;
    ProbeWindow window;
    shown.receive(batch); // without a window: nothing
    shown.setDialog(&window);
    shown.receive(batch);
    EXPECT_EQ(window.sources, (std::vector<std::string>{"All Interfaces"}));
    shown.setDialog(nullptr);
}

/// Does something to the project while it handles its batch.
class ActingWindow : public ProbeWindow
{
public:
    explicit ActingWindow(std::function<void()> action) : m_action(std::move(action)) {}
    void receive(MessageContainer& batch) override
    {
        ProbeWindow::receive(batch);
        m_action();
    }

private:
    std::function<void()> m_action;
};

TEST(Object, WindowMayChangeTheWiringWhileItHandlesItsBatch)
{
    ProbeInterface from;
    ProbeWindow lastWindow;
    std::array<std::unique_ptr<ObjectReceive>, 4> objects;
    for (auto& object : objects) {
        object = std::make_unique<ObjectReceive>();
    }
    ObjectReceive added;
    ActingWindow window([&] {
        objects[0].reset();
        objects[2].reset();
        from.removeOutput(objects[1].get());
        from.addOutput(&added);
    });
    for (const auto& object : objects) {
        from.addOutput(object.get());
    }
    objects[1]->setDialog(&window);
    objects[3]->setDialog(&lastWindow);
    added.setDialog(&lastWindow);
    MessageContainer batch;
    from.send(batch);
    EXPECT_EQ(window.sources.size(), 1U);
    EXPECT_EQ(lastWindow.sources.size(), 2U);
    from.send(batch);
    EXPECT_EQ(window.sources.size(), 1U);
    EXPECT_EQ(lastWindow.sources.size(), 4U);
    objects[1]->setDialog(nullptr);
    objects[3]->setDialog(nullptr);
    added.setDialog(nullptr);
}

TEST(Object, WindowIsMadeByTheTableOfMakers)
{
    ObjectReceive object;
    EXPECT_EQ(object.createDialog(nullptr), nullptr);
    ProbeWindow window;
    WindowMakers::instance().set(ObjectType::Receive,
                                 [&](Object&, QWidget*) -> ObjectWindow* { return &window; });
    EXPECT_EQ(object.createDialog(nullptr), &window);
    WindowMakers::instance().clear();
    EXPECT_EQ(object.createDialog(nullptr), nullptr);
}

TEST(ObjectTypes, TableIsCompleteAndWithoutDuplicates)
{
    struct Row
    {
        int id;
        const char* title;
        const char* tag;
    };
    const std::vector<Row> expected{{15, "CAN Interface", "ObjectCanInterface"},
                                    {1, "Receive Window", "ObjectReceive"},
                                    {2, "Transmit Window", "ObjectTransmit"},
                                    {4, "Trace Window", "ObjectTrace"},
                                    {5, "Replay Window", "ObjectReplay"},
                                    {7, "Oscilloscope", "ObjectGraph"},
                                    {8, "Data Visualization", "ObjectDial"},
                                    {9, "Node Service Window", "ObjectNodeService"},
                                    {10, "CAN Statistic", "ObjectStatistic"},
                                    {11, "Function Gen. Control", "ObjectFunctionGen"}};
    ASSERT_EQ(objectTypes.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(static_cast<int>(objectTypes[i].type), expected[i].id);
        EXPECT_STREQ(objectTypes[i].title, expected[i].title);
        EXPECT_STREQ(objectTypes[i].tag, expected[i].tag);
        EXPECT_EQ(findObjectType(objectTypes[i].type), &objectTypes[i]);
    }
    EXPECT_EQ(static_cast<int>(statusType.type), 6);
    EXPECT_STREQ(statusType.title, "CAN Status");
    EXPECT_STREQ(findObjectType(ObjectType::Status)->tag, "ObjectStatus");
    EXPECT_EQ(findObjectType(static_cast<ObjectType>(3)), nullptr);
    EXPECT_EQ(allInterfacesName(), QStringLiteral("All Interfaces"));
}

TEST(ObjectStatus, RecordIsItsWindowAlone)
{
    ObjectStatus status;
    status.setSize(120, 130);
    QDomDocument document;
    QDomElement root = zul::XmlHandler::addElement(document, document, QStringLiteral("ZUL"));
    status.writeXml(document, root);
    const QDomElement element = root.firstChildElement(QStringLiteral("ObjectStatus"));
    ASSERT_FALSE(element.isNull());
    EXPECT_EQ(element.childNodes().size(), 1);
    ObjectStatus read;
    read.readXml(element);
    EXPECT_EQ(read.width(), 120);
    EXPECT_EQ(read.height(), 130);
    EXPECT_EQ(ObjectStatus::typeInfo().title, QStringLiteral("CAN Status"));
    EXPECT_NE(ObjectStatus::create(), nullptr);
    EXPECT_EQ(status.recordVersion(), 1);
}

} // namespace
