#include "core/SettingsStore.h"
#include "gui/desktop/DialogAbout.h"
#include "gui/desktop/DialogStatusBar.h"
#include "gui/desktop/WindowDesk.h"
#include "gui/frame/GuiRequests.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/MessageGuiAboutDialog.h"
#include "gui/frame/MessageGuiDialog.h"
#include "project/ObjectReceive.h"
#include "tests/gui/DesktopFixture.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>

// The tool windows in the main window.

namespace {

using zul::test::DesktopTest;
using zul::test::ProbeDialog;
using zul::test::texts;

QRect frameOf(const QMdiSubWindow& window)
{
    return {window.pos(), window.size()};
}

QRect geometryOf(const Object& object)
{
    return {object.xPos(), object.yPos(), object.width(), object.height()};
}

class DeskWindows : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        startAndTick();
    }
    void place(const Object& object, const QRect& rectangle) const
    {
        QMdiSubWindow* window = subWindow(object);
        window->showNormal();
        window->resize(rectangle.size());
        window->move(rectangle.topLeft());
    }
    void activate(const Object& object) const
    {
        m_window->mdiArea().setActiveSubWindow(subWindow(object));
    }
};

TEST_F(DeskWindows, SelectingATypeMakesTheObjectAndItsWindow)
{
    Object* receive = add(ObjectType::Receive);
    EXPECT_EQ(receive->type(), ObjectType::Receive);
    ASSERT_NE(subWindow(*receive), nullptr);
    EXPECT_TRUE(subWindow(*receive)->isVisible());
    EXPECT_FALSE(subWindow(*receive)->windowIcon().isNull());
    EXPECT_NE(treeItem(*receive), nullptr);
    EXPECT_TRUE(project().isEdited());
}

TEST_F(DeskWindows, SubWindowAndMenuShowTheWindowsOwnIcon)
{
    const Object* receive = add(ObjectType::Receive);
    m_window->slotObjectRename(receive->id(), QStringLiteral("Nose"));
    shown("&Window");
    for (const QIcon& icon :
         {subWindow(*receive)->windowIcon(), entry("&Window", QStringLiteral("Nose"))->icon()}) {
        const QImage picture = icon.pixmap(32).toImage();
        EXPECT_EQ(picture.pixelColor(picture.rect().center()), QColor(Qt::red));
    }
    const QImage ofType = treeItem(*receive)->icon(0).pixmap(32).toImage();
    EXPECT_EQ(ofType.pixelColor(ofType.rect().center()), QColor(Qt::blue));
}

TEST_F(DeskWindows, NewWindowIsPlacedAndSizedByTheAreaAlone)
{
    QMdiArea reference;
    reference.resize(m_window->mdiArea().size());
    reference.show();
    const auto placed = [&reference] {
        QMdiSubWindow* window = reference.addSubWindow(new ProbeDialog(nullptr, nullptr));
        window->show();
        return frameOf(*window);
    };
    const QRect first = placed();
    const Object* receive = add(ObjectType::Receive);
    EXPECT_EQ(frameOf(*subWindow(*receive)), first);
    const QRect second = placed();
    gui::GuiRequests::send(
        std::make_unique<MessageGuiDialog>(static_cast<int>(ObjectType::Dial), 0));
    const Object& dial = *project().objects().rbegin()->second;
    EXPECT_EQ(frameOf(*subWindow(dial)), second);
    EXPECT_NE(second, first);
    // Not what objects have from the start.
    EXPECT_NE(first.size(), QSize(ObjectReceive().width(), ObjectReceive().height()));
}

TEST_F(DeskWindows, TypeWithoutAWindowLeavesItsObjectInTheProject)
{
    const Object* transmit = add(ObjectType::Transmit);
    EXPECT_EQ(transmit->type(), ObjectType::Transmit);
    EXPECT_EQ(subWindow(*transmit), nullptr);
    EXPECT_NE(treeItem(*transmit), nullptr);
    m_window->slotObjectSelect(transmit->id());
    m_window->slotObjectRename(transmit->id(), QStringLiteral("Sender"));
    EXPECT_EQ(transmit->name(), QStringLiteral("Sender"));
    m_window->slotObjectDelete(transmit->id());
    EXPECT_TRUE(project().objects().empty());
}

TEST_F(DeskWindows, UnknownTypeMakesNothing)
{
    m_window->slotWindowSelect(99);
    EXPECT_TRUE(project().objects().empty());
    EXPECT_FALSE(project().isEdited());
}

TEST_F(DeskWindows, GeometryOfEveryWindowComesBackExactly)
{
    const std::vector<QRect> places{
        {10, 20, 300, 200}, {150, 90, 411, 263}, {-15, 77, 250, 190}, {400, 310, 222, 333}};
    for (std::size_t i = 0; i < places.size(); ++i) {
        place(*add(i % 2 == 0 ? ObjectType::Receive : ObjectType::Trace), places[i]);
    }
    m_window->resize(1001, 703);
    m_window->move(13, 29);
    trigger(5);
    restart();
    tick();
    EXPECT_EQ(QRect(m_window->pos(), m_window->size()), QRect(13, 29, 1001, 703));
    ASSERT_EQ(project().objects().size(), places.size());
    std::size_t i = 0;
    for (const auto& [id, object] : project().objects()) {
        ASSERT_NE(subWindow(*object), nullptr);
        EXPECT_EQ(frameOf(*subWindow(*object)), places[i]) << i;
        EXPECT_EQ(geometryOf(*object), places[i]) << i;
        ++i;
    }
}

TEST_F(DeskWindows, ClosedWindowComesBackFromTheTreeWhereItWas)
{
    const QRect where(33, 44, 278, 199);
    const QRect other(100, 5, 260, 240);
    Object* receive = add(ObjectType::Receive);
    receive->setName(QStringLiteral("Nose"));
    place(*receive, where);
    Object* trace = add(ObjectType::Trace);
    place(*trace, other);
    subWindow(*receive)->close();
    EXPECT_EQ(subWindow(*receive), nullptr);
    EXPECT_EQ(geometryOf(*receive), where);
    EXPECT_EQ(geometryOf(*trace), other); // all windows are stored
    EXPECT_EQ(project().windowRectangle().width, m_window->width());

    QTreeWidget* tree = objectTree();
    const QPoint spot = tree->visualItemRect(treeItem(*receive)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    ASSERT_NE(subWindow(*receive), nullptr);
    EXPECT_EQ(frameOf(*subWindow(*receive)), where);
    EXPECT_EQ(subWindow(*receive)->windowTitle(), QStringLiteral("Nose"));
    EXPECT_EQ(frameOf(*subWindow(*trace)), other);
}

TEST_F(DeskWindows, ClosedWindowStaysClosedAtTheNextStart)
{
    place(*add(ObjectType::Receive), {33, 44, 278, 199});
    Object* trace = add(ObjectType::Trace);
    subWindow(*trace)->close();
    trigger(5);
    restart();
    tick();
    ASSERT_EQ(project().objects().size(), 2U);
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 1);
    EXPECT_EQ(frameOf(*m_window->mdiArea().subWindowList().constFirst()), QRect(33, 44, 278, 199));
}

TEST_F(DeskWindows, MaximizedWindowKeepsTheGeometryThatItGoesBackTo)
{
    Object* receive = add(ObjectType::Receive);
    place(*receive, {33, 44, 278, 199});
    subWindow(*receive)->showMaximized();
    trigger(3);
    EXPECT_EQ(geometryOf(*receive), QRect(33, 44, 278, 199));
}

TEST_F(DeskWindows, MinimizedWindowKeepsTheGeometryThatItGoesBackTo)
{
    Object* receive = add(ObjectType::Receive);
    place(*receive, {33, 44, 278, 199});
    subWindow(*receive)->showMinimized();
    subWindow(*receive)->close();
    EXPECT_EQ(geometryOf(*receive), QRect(33, 44, 278, 199));
}

TEST_F(DeskWindows, NewWindowThatIsMaximizedAtOnceKeepsItsFirstPlace)
{
    Object* receive = add(ObjectType::Receive);
    const QRect first = frameOf(*subWindow(*receive));
    subWindow(*receive)->showMaximized();
    trigger(3);
    EXPECT_EQ(geometryOf(*receive), first);
}

TEST_F(DeskWindows, SelectingAnObjectWithAWindowGivesThatTheFocus)
{
    Object* first = add(ObjectType::Receive);
    Object* second = add(ObjectType::Trace);
    activate(*second);
    m_window->slotObjectSelect(first->id());
    EXPECT_EQ(m_window->mdiArea().activeSubWindow(), subWindow(*first));
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 2);
    subWindow(*second)->showMinimized();
    m_window->slotObjectSelect(second->id());
    EXPECT_FALSE(subWindow(*second)->isMinimized());
    m_window->slotObjectSelect(12345);
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 2);
}

TEST_F(DeskWindows, DeletingAnObjectClosesItsWindowWithoutAQuestion)
{
    SettingsStore::instance().setInteger(QStringLiteral("OnCloseDialog"), 2);
    const int asked = gui::MessageBoxes::count();
    Object* receive = add(ObjectType::Receive);
    const Object* kept = add(ObjectType::Trace);
    const QPointer<ProbeDialog> window = dialog(*receive);
    m_window->slotObjectDelete(receive->id());
    EXPECT_EQ(gui::MessageBoxes::count(), asked);
    EXPECT_EQ(project().objects().size(), 1U);
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 1);
    EXPECT_NE(treeItem(*kept), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));
    m_window->slotObjectDelete(12345);
    EXPECT_EQ(project().objects().size(), 1U);
}

TEST_F(DeskWindows, RenamingAnObjectRenamesItsWindow)
{
    Object* receive = add(ObjectType::Receive);
    project().save(QString());
    m_window->slotObjectRename(receive->id(), QStringLiteral("Tail"));
    EXPECT_EQ(receive->name(), QStringLiteral("Tail"));
    EXPECT_EQ(subWindow(*receive)->windowTitle(), QStringLiteral("Tail"));
    EXPECT_EQ(dialog(*receive)->name(), QStringLiteral("Tail"));
    EXPECT_TRUE(project().isEdited());
}

TEST_F(DeskWindows, ClosingWithThePolicyToRemoveTakesTheObjectAway)
{
    SettingsStore::instance().setInteger(QStringLiteral("OnCloseDialog"), 1);
    Object* receive = add(ObjectType::Receive);
    const Object* kept = add(ObjectType::Receive);
    subWindow(*receive)->close();
    EXPECT_EQ(project().objects().size(), 1U);
    EXPECT_EQ(objectTree()->topLevelItem(0)->childCount(), 1);
    EXPECT_NE(subWindow(*kept), nullptr);
}

TEST_F(DeskWindows, ClosingWithThePolicyToAskAndCancelKeepsBoth)
{
    SettingsStore::instance().setInteger(QStringLiteral("OnCloseDialog"), 2);
    const Object* receive = add(ObjectType::Receive);
    gui::MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    subWindow(*receive)->close();
    EXPECT_EQ(project().objects().size(), 1U);
    EXPECT_NE(subWindow(*receive), nullptr);
    EXPECT_TRUE(subWindow(*receive)->isVisible());
}

TEST_F(DeskWindows, ReplacingTheProjectNeverAsksAboutWindows)
{
    SettingsStore::instance().setInteger(QStringLiteral("OnCloseDialog"), 2);
    add(ObjectType::Receive);
    add(ObjectType::Trace);
    project().save(QString());
    const int asked = gui::MessageBoxes::count();
    trigger(0);
    EXPECT_EQ(gui::MessageBoxes::count(), asked);
    EXPECT_TRUE(m_window->mdiArea().subWindowList().isEmpty());
}

TEST_F(DeskWindows, WindowMenuIsOffWithoutWindows)
{
    EXPECT_EQ(shown("&Window"), texts({"&Tile", "&Cascade", "-", "Cl&ose", "Close &All", "-"}));
    for (const int id : {9, 10, 11, 12}) {
        EXPECT_FALSE(action(id)->isEnabled()) << id;
    }
    add(ObjectType::Receive);
    for (const int id : {9, 10, 11, 12}) {
        EXPECT_TRUE(action(id)->isEnabled()) << id; // without the menu having been opened
    }
    trigger(12);
    shown("&Window");
    for (const int id : {9, 10, 11, 12}) {
        EXPECT_FALSE(action(id)->isEnabled()) << id;
    }
}

TEST_F(DeskWindows, WindowMenuListsTheWindowsAndChecksTheActiveOne)
{
    Object* first = add(ObjectType::Receive);
    Object* second = add(ObjectType::Trace);
    m_window->slotObjectRename(first->id(), QStringLiteral("Nose & tail"));
    m_window->slotObjectRename(second->id(), QStringLiteral("Log"));
    activate(*second);
    EXPECT_EQ(shown("&Window").mid(6), texts({"Nose && tail", "Log"}));
    const QAction* nose = entry("&Window", QStringLiteral("Nose && tail"));
    const QAction* log = entry("&Window", QStringLiteral("Log"));
    EXPECT_TRUE(nose->isCheckable());
    EXPECT_FALSE(nose->isChecked());
    EXPECT_TRUE(log->isChecked());
    EXPECT_FALSE(log->icon().isNull());
    entry("&Window", QStringLiteral("Nose && tail"))->trigger();
    EXPECT_EQ(m_window->mdiArea().activeSubWindow(), subWindow(*first));
    shown("&Window");
    EXPECT_TRUE(entry("&Window", QStringLiteral("Nose && tail"))->isChecked());
    EXPECT_FALSE(entry("&Window", QStringLiteral("Log"))->isChecked());
}

TEST_F(DeskWindows, TileCascadeAndCloseActOnTheArea)
{
    Object* first = add(ObjectType::Receive);
    Object* second = add(ObjectType::Trace);
    trigger(10);
    EXPECT_TRUE(frameOf(*subWindow(*first)).intersects(frameOf(*subWindow(*second))));
    trigger(9);
    EXPECT_FALSE(frameOf(*subWindow(*first)).intersects(frameOf(*subWindow(*second))));
    activate(*first);
    trigger(11);
    EXPECT_EQ(subWindow(*first), nullptr);
    EXPECT_NE(subWindow(*second), nullptr);
    trigger(12);
    EXPECT_TRUE(m_window->mdiArea().subWindowList().isEmpty());
    EXPECT_EQ(project().objects().size(), 2U);
}

TEST_F(DeskWindows, RequestForAWindowMakesObjectAndWindowAndHandsTheMessageOn)
{
    gui::GuiRequests::send(
        std::make_unique<MessageGuiDialog>(static_cast<int>(ObjectType::Dial), 77));
    ASSERT_EQ(project().objects().size(), 1U);
    const Object& dial = *project().objects().begin()->second;
    EXPECT_EQ(dial.type(), ObjectType::Dial);
    EXPECT_NE(treeItem(dial), nullptr);
    ASSERT_NE(dialog(dial), nullptr);
    EXPECT_EQ(dialog(dial)->messageTypes, std::vector<int>{1});
}

TEST_F(DeskWindows, RequestForAnUnknownTypeOrAWindowlessOneIsHarmless)
{
    gui::GuiRequests::send(std::make_unique<MessageGuiDialog>(99, 0));
    EXPECT_TRUE(project().objects().empty());
    gui::GuiRequests::send(
        std::make_unique<MessageGuiDialog>(static_cast<int>(ObjectType::Status), 0));
    EXPECT_TRUE(project().objects().empty()) << "the window of an interface is no object";
    gui::GuiRequests::send(
        std::make_unique<MessageGuiDialog>(static_cast<int>(ObjectType::Transmit), 0));
    EXPECT_EQ(project().objects().size(), 1U);
    EXPECT_TRUE(m_window->mdiArea().subWindowList().isEmpty());
}

TEST_F(DeskWindows, RequestOfAnotherTypeGoesToEveryWindow)
{
    const Object* first = add(ObjectType::Receive);
    const Object* second = add(ObjectType::Trace);
    gui::GuiRequests::send(std::make_unique<Message>(42));
    gui::GuiRequests::send(std::make_unique<MessageGuiAboutDialog>());
    EXPECT_EQ(dialog(*first)->messageTypes, std::vector<int>{42});
    EXPECT_EQ(dialog(*second)->messageTypes, std::vector<int>{42});
}

TEST_F(DeskWindows, DoubleClickOnTheVersionShowsTheAboutBox)
{
    const auto* about = m_window->findChild<DialogAbout*>();
    ASSERT_NE(about, nullptr);
    EXPECT_FALSE(about->isVisible());
    auto* bar = m_window->findChild<gui::DialogStatusBar*>();
    ASSERT_EQ(bar, m_window->statusBar());
    QTest::mouseDClick(bar->findChild<QWidget*>(QStringLiteral("version")), Qt::LeftButton);
    EXPECT_TRUE(about->isVisible());
}

TEST_F(DeskWindows, RequestsAfterTheMainWindowAreDropped)
{
    m_window.reset();
    gui::GuiRequests::send(std::make_unique<Message>(42));
}

} // namespace
