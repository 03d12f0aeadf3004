#include "project/Project.h"

#include "project/ObjectReceive.h"
#include "project/ObjectTransmit.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/TestHome.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

using zul::test::ProbeInterface;
using zul::test::ProbeWindow;

std::unique_ptr<Object> makeInterface()
{
    return std::make_unique<ProbeInterface>();
}

std::vector<ObjectTypeInfo> types()
{
    return {makeObjectTypeInfo(ObjectType::CanInterface, &makeInterface), ObjectReceive::typeInfo(),
            ObjectTransmit::typeInfo()};
}

void writeFile(const QString& path, const QByteArray& text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ProjectTest : public testing::Test
{
protected:
    QString path(const char* name) const { return m_home.path() + QLatin1String(name); }
    ProbeInterface& interface(Object* object) { return dynamic_cast<ProbeInterface&>(*object); }

    zul::test::TestHome m_home;
    Project m_project{types(), path("default.zul")};
};

TEST_F(ProjectTest, MissingDefaultFileGivesAnEmptyProjectOfThatName)
{
    EXPECT_TRUE(m_project.objects().empty());
    EXPECT_EQ(m_project.fileName(), path("default.zul"));
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_EQ(m_project.windowRectangle().width, 1024);
    EXPECT_EQ(m_project.windowRectangle().height, 768);
    m_project.save(QString());
    EXPECT_TRUE(QFile::exists(path("default.zul")));
}

TEST_F(ProjectTest, EveryInterfaceIsWiredToEveryWindowAndNothingElseIs)
{
    const Object* windows[3];
    for (const Object*& window : windows) {
        window = m_project.createObject(ObjectType::Receive);
    }
    const Object* first = m_project.createObject(ObjectType::CanInterface);
    const Object* second = m_project.createObject(ObjectType::CanInterface);
    const Object* late = m_project.createObject(ObjectType::Transmit);
    for (const Object* bus : {first, second}) {
        EXPECT_EQ(bus->outputs().size(), 4U);
        EXPECT_EQ(bus->inputs().size(), 4U);
    }
    EXPECT_EQ(first->outputs().count(second->id()), 0U);
    EXPECT_EQ(second->inputs().count(first->id()), 0U);
    for (const Object* window : {windows[0], windows[1], windows[2], late}) {
        EXPECT_EQ(window->outputs().size(), 2U);
        EXPECT_EQ(window->inputs().size(), 2U);
    }
    EXPECT_EQ(m_project.interfaces().size(), 2U);
}

TEST_F(ProjectTest, UnknownTypeAndUnknownIdsChangeNothing)
{
    EXPECT_EQ(m_project.createObject(ObjectType::Status), nullptr);
    EXPECT_FALSE(m_project.deleteObject(123456));
    EXPECT_FALSE(m_project.renameObject(123456, QStringLiteral("x")));
    EXPECT_EQ(m_project.object(123456), nullptr);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(ProjectTest, CreatingRenamingAndDeletingMarkItEdited)
{
    const int id = m_project.createObject(ObjectType::Receive)->id();
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_EQ(m_project.object(id)->type(), ObjectType::Receive);
    EXPECT_EQ(m_project.object(id)->project(), &m_project);
    m_project.save(QString());
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_TRUE(m_project.renameObject(id, QStringLiteral("Nose")));
    EXPECT_EQ(m_project.object(id)->name(), QStringLiteral("Nose"));
    EXPECT_TRUE(m_project.isEdited());
    m_project.save(QString());
    EXPECT_TRUE(m_project.deleteObject(id));
    EXPECT_TRUE(m_project.isEdited());
    m_project.save(QString());
    m_project.markEdited();
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(ProjectTest, PollReachesTheInterfacesInAscendingId)
{
    std::vector<int> log;
    std::vector<int> expected;
    for (int i = 0; i < 3; ++i) {
        ProbeInterface& bus = interface(m_project.createObject(ObjectType::CanInterface));
        m_project.createObject(ObjectType::Receive);
        bus.pollLog = &log;
        expected.push_back(bus.id());
    }
    m_project.poll();
    EXPECT_EQ(log, expected);
    m_project.deleteObject(expected[1]);
    log.clear();
    m_project.poll();
    EXPECT_EQ(log, (std::vector<int>{expected[0], expected[2]}));
}

TEST_F(ProjectTest, ClearDisconnectsOpenInterfacesAndIdsGoOnRising)
{
    Object* last = m_project.createObject(ObjectType::CanInterface);
    interface(last).state = DeviceStatus::BusOff;
    const int lastId = last->id();
    m_project.setWindowRectangle({1, 2, 300, 400});
    m_project.clear();
    EXPECT_TRUE(m_project.objects().empty());
    EXPECT_TRUE(m_project.interfaces().empty());
    EXPECT_EQ(m_project.fileName(), QString());
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_EQ(m_project.windowRectangle().width, 300);
    EXPECT_GT(m_project.createObject(ObjectType::Receive)->id(), lastId);
}

TEST_F(ProjectTest, SavedProjectComesBackInItsOrderWithHigherIds)
{
    m_project.createObject(ObjectType::Receive)->setName(QStringLiteral("A"));
    m_project.createObject(ObjectType::CanInterface)->setName(QStringLiteral("B"));
    Object* third = m_project.createObject(ObjectType::Transmit);
    third->setName(QString::fromUtf8("C \xC3\xBC <&\">"));
    third->setPosition(-5, 17);
    third->setSize(321, 234);
    ProbeWindow window;
    third->setDialog(&window);
    m_project.setWindowRectangle({10, 20, 800, 600});
    const int highest = third->id();
    EXPECT_TRUE(m_project.save(path("p.zul")));
    third->setDialog(nullptr);
    EXPECT_EQ(m_project.fileName(), path("p.zul"));

    EXPECT_TRUE(m_project.load(path("p.zul")));
    EXPECT_FALSE(m_project.isEdited());
    ASSERT_EQ(m_project.objects().size(), 3U);
    auto object = m_project.objects().begin();
    EXPECT_GT(object->first, highest);
    EXPECT_EQ(object->second->name(), QStringLiteral("A"));
    EXPECT_FALSE(object->second->isOpen());
    EXPECT_EQ((++object)->second->name(), QStringLiteral("B"));
    EXPECT_EQ((++object)->second->name(), QString::fromUtf8("C \xC3\xBC <&\">"));
    EXPECT_TRUE(object->second->isOpen());
    EXPECT_EQ(object->second->xPos(), -5);
    EXPECT_EQ(object->second->yPos(), 17);
    EXPECT_EQ(object->second->width(), 321);
    EXPECT_EQ(object->second->height(), 234);
    EXPECT_EQ(m_project.windowRectangle().x, 10);
    EXPECT_EQ(m_project.windowRectangle().y, 20);
    EXPECT_EQ(m_project.windowRectangle().width, 800);
    EXPECT_EQ(m_project.windowRectangle().height, 600);
}

TEST_F(ProjectTest, UnchangedProjectSavesToTheSameBytes)
{
    for (const ObjectType type : {ObjectType::Receive, ObjectType::Transmit,
                                  ObjectType::CanInterface, ObjectType::Receive}) {
        m_project.createObject(type);
    }
    m_project.save(path("a.zul"));
    const QByteArray first = readFile(path("a.zul"));
    ASSERT_FALSE(first.isEmpty());
    m_project.save(QString());
    EXPECT_EQ(readFile(path("a.zul")), first);
    m_project.load(path("a.zul"));
    m_project.save(QString());
    QByteArray reloaded = readFile(path("a.zul"));
    // A window that is marked open in a file is written as open only once it has been opened.
    EXPECT_EQ(reloaded, first);
}

TEST_F(ProjectTest, FileHasVersionRectangleAndObjectsAndNothingElse)
{
    m_project.createObject(ObjectType::Receive);
    m_project.save(path("a.zul"));
    QDomDocument document;
    ASSERT_TRUE(zul::XmlHandler::loadDocument(path("a.zul"), document));
    const QDomElement root = document.documentElement();
    EXPECT_EQ(root.tagName(), QStringLiteral("ZUL"));
    EXPECT_EQ(root.childNodes().size(), 3);
    const QDomElement version = root.firstChildElement();
    EXPECT_EQ(version.tagName(), QStringLiteral("Version"));
    EXPECT_EQ(version.attribute(QStringLiteral("id")), QStringLiteral("1"));
    EXPECT_EQ(version.nextSiblingElement().tagName(), QStringLiteral("TopLevelWindow"));
    EXPECT_FALSE(readFile(path("a.zul")).startsWith("<?xml"));
    EXPECT_TRUE(readFile(path("a.zul")).contains("\n    <Version"));
}

TEST_F(ProjectTest, RootAloneGivesAnEmptyProjectOfTheDefaultSize)
{
    writeFile(path("root.zul"), "<ZUL/>");
    m_project.setWindowRectangle({1, 2, 300, 400});
    EXPECT_TRUE(m_project.load(path("root.zul")));
    EXPECT_TRUE(m_project.objects().empty());
    EXPECT_EQ(m_project.windowRectangle().x, 0);
    EXPECT_EQ(m_project.windowRectangle().y, 0);
    EXPECT_EQ(m_project.windowRectangle().width, 1024);
    EXPECT_EQ(m_project.windowRectangle().height, 768);
}

TEST_F(ProjectTest, SmallMainWindowIsRaisedTo100)
{
    writeFile(path("small.zul"), "<ZUL><TopLevelWindow x='3' width='50'/></ZUL>");
    m_project.load(path("small.zul"));
    EXPECT_EQ(m_project.windowRectangle().x, 3);
    EXPECT_EQ(m_project.windowRectangle().y, 0);
    EXPECT_EQ(m_project.windowRectangle().width, 100);
    EXPECT_EQ(m_project.windowRectangle().height, 100);
}

TEST_F(ProjectTest, UnknownElementsAndStatusRecordsAreSkipped)
{
    writeFile(path("odd.zul"), "<ZUL><ObjectStatus/><Nonsense><ObjectReceive/></Nonsense>"
                               "<ObjectReceive><Extra/><Window name='R'/></ObjectReceive></ZUL>");
    m_project.load(path("odd.zul"));
    ASSERT_EQ(m_project.objects().size(), 1U);
    EXPECT_EQ(m_project.objects().begin()->second->name(), QStringLiteral("R"));
}

TEST_F(ProjectTest, ElementWithoutChildrenKeepsTheDefaults)
{
    writeFile(path("bare.zul"), "<ZUL><ObjectReceive/></ZUL>");
    m_project.load(path("bare.zul"));
    const Object& object = *m_project.objects().begin()->second;
    EXPECT_EQ(object.name(), QStringLiteral("unnamed"));
    EXPECT_EQ(object.width(), 600);
    EXPECT_TRUE(object.isOpen());
}

TEST_F(ProjectTest, BrokenFileCountsAsNotLoadedAndIsKeptWhenItIsSavedOver)
{
    const QByteArray broken = "<ZUL><ObjectReceive><Window name='R'/></ObjectReceive><Oops";
    writeFile(path("broken.zul"), broken);
    EXPECT_TRUE(m_project.load(path("broken.zul")));
    EXPECT_TRUE(m_project.objects().empty());
    EXPECT_EQ(m_project.fileName(), path("broken.zul"));
    m_project.save(QString());
    EXPECT_EQ(readFile(path("broken.zul.bak")), broken);
    EXPECT_TRUE(readFile(path("broken.zul")).contains("<ZUL>"));
    QFile::remove(path("broken.zul.bak"));
    m_project.save(QString());
    EXPECT_FALSE(QFile::exists(path("broken.zul.bak")));
}

TEST_F(ProjectTest, BrokenFileIsKeptAlsoWhenAnotherProjectCameInBetween)
{
    writeFile(path("default.zul"), "no xml");
    m_project.load(path("default.zul"));
    m_project.clear();
    m_project.save(path("./default.zul"));
    EXPECT_EQ(readFile(path("default.zul.bak")), QByteArray("no xml"));
    EXPECT_TRUE(readFile(path("default.zul")).contains("<ZUL>"));
}

TEST_F(ProjectTest, FileWithTooManyObjectsCountsAsBroken)
{
    QByteArray text = "<ZUL>";
    for (int i = 0; i <= Project::maxObjects; ++i) {
        text += "<ObjectReceive/>";
    }
    text += "</ZUL>";
    writeFile(path("many.zul"), text);
    m_project.load(path("many.zul"));
    EXPECT_TRUE(m_project.objects().empty());
    m_project.save(QString());
    EXPECT_EQ(readFile(path("many.zul.bak")), text);
}

TEST_F(ProjectTest, NamesWithAllKindsOfCharactersSurviveTheFile)
{
    const QString name = QString::fromUtf8("tab\there\nline \xF0\x9F\x9B\xA9 \xE6\xBC\xA2");
    m_project.createObject(ObjectType::Receive)->setName(name + QChar(1) + QChar(0xFFFF));
    m_project.save(path("names.zul"));
    m_project.load(path("names.zul"));
    ASSERT_EQ(m_project.objects().size(), 1U);
    EXPECT_EQ(m_project.objects().begin()->second->name(), name);
}

TEST_F(ProjectTest, ObjectMayBeDeletedWhileABatchIsOnItsWay)
{
    ProbeInterface& bus = interface(m_project.createObject(ObjectType::CanInterface));
    const int first = m_project.createObject(ObjectType::Receive)->id();
    const int second = m_project.createObject(ObjectType::Receive)->id();
    struct Deleter : ProbeWindow
    {
        void receive(MessageContainer&) override { project->deleteObject(victim); }
        Project* project = nullptr;
        int victim = 0;
    } window;
    window.project = &m_project;
    window.victim = second;
    m_project.object(first)->setDialog(&window);
    MessageContainer batch;
    bus.send(batch);
    EXPECT_EQ(m_project.object(second), nullptr);
    m_project.object(first)->setDialog(nullptr);
}

TEST_F(ProjectTest, SavingUnderAnotherNameLeavesTheBrokenFileAlone)
{
    writeFile(path("broken.zul"), "no xml");
    m_project.load(path("broken.zul"));
    m_project.save(path("good.zul"));
    EXPECT_EQ(readFile(path("broken.zul")), QByteArray("no xml"));
    EXPECT_FALSE(QFile::exists(path("broken.zul.bak")));
    EXPECT_FALSE(QFile::exists(path("good.zul.bak")));
}

TEST_F(ProjectTest, FailureToWriteIsNotReported)
{
    m_project.createObject(ObjectType::Receive);
    EXPECT_TRUE(m_project.save(path("missing/directory/p.zul")));
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_EQ(m_project.fileName(), path("missing/directory/p.zul"));
}

} // namespace
