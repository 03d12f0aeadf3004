#include "gui/desktop/DialogProject.h"

#include "comm/CanInterface.h"
#include "core/Kernel.h"
#include "core/Observer.h"
#include "gui/controls/WidgetLoad.h"
#include "gui/desktop/BusStates.h"
#include "gui/frame/MessageBoxes.h"
#include "tests/gui/DesktopFixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

// The project panel, in its place in the main window.

namespace {

using comm::CanInterface;
using gui::MessageBoxes;
using zul::test::DesktopTest;
using zul::test::texts;
using zul::test::whenModal;

constexpr int nameColumn = 0;
constexpr int connectColumn = 1;
constexpr int loadColumn = 2;

class InterfacesWatch : public gui::Observer
{
public:
    InterfacesWatch() { observe(&gui::Kernel::instance(), gui::Kernel::interfacesAspect); }
    void update(gui::ObserverModel*, int aspect) override { aspects.push_back(aspect); }

    std::vector<int> aspects;
};

class ProjectPanel : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        m_home.write(QStringLiteral("default.zul"), "<ZUL/>");
        startAndTick();
    }
    void TearDown() override
    {
        project().clear();
        DesktopTest::TearDown();
        for (const Device* device : m_devices) {
            delete device; // a deleted interface leaves its device behind
        }
    }
    CanInterface& addInterface(const char* module = "libCanGood")
    {
        click("interface-add");
        auto& made = dynamic_cast<CanInterface&>(*project().interfaces().rbegin()->second);
        if (*module != '\0') {
            EXPECT_TRUE(made.selectDevice(module));
            m_devices.push_back(made.device());
        }
        return made;
    }
    static void set(CanInterface& interface, const char* key, const char* value)
    {
        interface.device()->setProperty(key, value);
    }
    QToolButton* button(const char* name) const
    {
        return m_window->findChild<QToolButton*>(QLatin1String(name));
    }
    void click(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    QPoint cell(int row, int column) const
    {
        return interfaceTable()->visualRect(interfaceTable()->model()->index(row, column)).center();
    }
    void clickCell(int row, int column) const
    {
        QTest::mouseClick(interfaceTable()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          cell(row, column));
    }
    /// All events of a double click.
    void doubleClickCell(int row, int column) const
    {
        clickCell(row, column);
        QTest::mouseDClick(interfaceTable()->viewport(), Qt::LeftButton, Qt::NoModifier,
                           cell(row, column));
        QTest::mouseRelease(interfaceTable()->viewport(), Qt::LeftButton, Qt::NoModifier,
                            cell(row, column));
    }
    QString text(int row, int column) const { return interfaceTable()->item(row, column)->text(); }
    WidgetLoad* load(int row) const
    {
        return dynamic_cast<WidgetLoad*>(interfaceTable()->cellWidget(row, loadColumn));
    }
    bool canChange() const
    {
        EXPECT_EQ(button("interface-delete")->isEnabled(),
                  button("interface-configure")->isEnabled());
        return button("interface-delete")->isEnabled();
    }
    QWidget* panel() const { return m_window->findChild<gui::DialogProject*>(); }
    /// Answers the context menu of the panel.
    void chooseInContextMenu(const char* wanted) const
    {
        QStringList entries;
        whenPopup([&](QMenu& menu) {
            for (QAction* action : menu.actions()) {
                entries.append(action->text());
                if (action->text() == QLatin1String(wanted)) {
                    menu.setActiveAction(action);
                }
            }
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(panel(), &event);
        EXPECT_EQ(entries, texts({"Rename", "Delete"}));
    }
    static void whenPopup(const std::function<void(QMenu& menu)>& inspect)
    {
        QTimer::singleShot(0, qApp, [inspect] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            inspect(*menu);
        });
    }

private:
    std::vector<Device*> m_devices;
};

struct StateRow
{
    int state;
    const char* text;
    QColor color;
};

const std::array<StateRow, 7> stateRows{{
    {0, "BUS detached", {150, 150, 150}},
    {1, "BUS open", {0, 200, 0}},
    {2, "BUS open", {0, 200, 0}},
    {4, "BUS passive", {255, 150, 0}},
    {5, "BUS Off", {255, 0, 0}},
    {6, "BUS open", {0, 200, 0}},
    {-1, "BUS open", {0, 200, 0}},
}};

TEST(BusStates, EveryStateHasItsLook)
{
    for (const StateRow& row : stateRows) {
        const auto& look = gui::busStateLook(static_cast<DeviceStatus>(row.state));
        EXPECT_STREQ(look.text, row.text) << row.state;
        EXPECT_EQ(look.color, row.color) << row.state;
    }
}

TEST_F(ProjectPanel, TableAndButtonsAreBuilt)
{
    const QTableWidget& table = *interfaceTable();
    EXPECT_EQ(table.columnCount(), 3);
    QStringList headers;
    for (int column = 0; column < table.columnCount(); ++column) {
        headers.append(table.horizontalHeaderItem(column)->text());
    }
    EXPECT_EQ(headers, texts({"Interface", "Connect", "Load"}));
    EXPECT_EQ(table.selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(table.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(table.horizontalHeader()->sectionResizeMode(nameColumn),
              QHeaderView::ResizeToContents);
    EXPECT_EQ(button("interface-add")->toolTip(), QStringLiteral("Add Interface to Project"));
    EXPECT_EQ(button("interface-delete")->toolTip(), QStringLiteral("Delete Interface"));
    EXPECT_EQ(button("interface-configure")->toolTip(), QStringLiteral("Configure Interface"));
    EXPECT_TRUE(button("interface-add")->isEnabled());
    EXPECT_FALSE(canChange());
    for (const char* name : {"interface-add", "interface-delete", "interface-configure"}) {
        EXPECT_FALSE(button(name)->icon().isNull());
    }
}

TEST_F(ProjectPanel, AddedInterfaceHasARowAndNoDevice)
{
    InterfacesWatch watch;
    CanInterface& interface = addInterface("");
    EXPECT_EQ(watch.aspects, std::vector<int>{1});
    EXPECT_EQ(interface.device(), nullptr);
    EXPECT_TRUE(project().isEdited());
    ASSERT_EQ(interfaceTable()->rowCount(), 1);
    EXPECT_EQ(interfaceTable()->rowHeight(0), 20);
    const QTableWidgetItem& name = *interfaceTable()->item(0, nameColumn);
    EXPECT_EQ(name.text(), QStringLiteral("unnamed"));
    EXPECT_EQ(name.data(Qt::UserRole).toInt(), interface.id());
    EXPECT_EQ(name.font().pixelSize(), 12);
    EXPECT_FALSE(name.font().bold());
    EXPECT_EQ(name.flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    const QTableWidgetItem& state = *interfaceTable()->item(0, connectColumn);
    EXPECT_EQ(state.text(), QStringLiteral("BUS detached"));
    EXPECT_EQ(state.font().pixelSize(), 12);
    EXPECT_TRUE(state.font().bold());
    EXPECT_EQ(state.flags(), Qt::ItemIsEnabled);
    EXPECT_EQ(state.foreground().color(), QColor(150, 150, 150));
    ASSERT_NE(load(0), nullptr);
    EXPECT_EQ(load(0)->messageRate(), 0U);
}

TEST_F(ProjectPanel, RowsStandInTheOrderOfTheInterfaces)
{
    std::vector<int> ids;
    for (int i = 0; i < 3; ++i) {
        ids.push_back(addInterface("").id());
        add(ObjectType::Receive);
    }
    ASSERT_EQ(interfaceTable()->rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(interfaceTable()->item(row, nameColumn)->data(Qt::UserRole).toInt(),
                  ids[static_cast<std::size_t>(row)]);
    }
}

TEST_F(ProjectPanel, ClickOnTheStateConnectsAndASecondOneDisconnects)
{
    CanInterface& interface = addInterface();
    clickCell(0, connectColumn);
    EXPECT_TRUE(interface.isConnected());
    EXPECT_EQ(text(0, connectColumn), QStringLiteral("BUS open"));
    EXPECT_EQ(interfaceTable()->item(0, connectColumn)->foreground().color(), QColor(0, 200, 0));
    EXPECT_FALSE(canChange());
    clickCell(0, connectColumn);
    EXPECT_FALSE(interface.isConnected());
    EXPECT_EQ(text(0, connectColumn), QStringLiteral("BUS detached"));
    EXPECT_TRUE(canChange());
}

TEST_F(ProjectPanel, FailureToOpenIsToldWithTheDevicesText)
{
    CanInterface& interface = addInterface();
    set(interface, "FailOpen", "1");
    const int asked = MessageBoxes::count();
    MessageBoxes::setNextAnswer(QMessageBox::Ok);
    clickCell(0, connectColumn);
    EXPECT_EQ(MessageBoxes::count(), asked + 1);
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Critical);
    EXPECT_EQ(MessageBoxes::last().title, QStringLiteral("Error"));
    EXPECT_EQ(MessageBoxes::last().text,
              QStringLiteral("Could not open device !\n\nfixture: no adapter"));
    EXPECT_EQ(MessageBoxes::last().buttons,
              std::vector<QMessageBox::StandardButton>{QMessageBox::Ok});
    EXPECT_EQ(text(0, connectColumn), QStringLiteral("BUS detached"));
    EXPECT_TRUE(canChange());
}

TEST_F(ProjectPanel, InterfaceWithoutADeviceCannotBeOpenedAndHasNoText)
{
    addInterface("");
    MessageBoxes::setNextAnswer(QMessageBox::Ok);
    clickCell(0, connectColumn);
    EXPECT_EQ(MessageBoxes::last().text, QStringLiteral("Could not open device !\n\n"));
    EXPECT_EQ(text(0, connectColumn), QStringLiteral("BUS detached"));
}

TEST_F(ProjectPanel, StateFollowsTheDeviceAtTheNextTurnOfItsTimer)
{
    CanInterface& interface = addInterface();
    clickCell(0, connectColumn);
    for (const StateRow& row : stateRows) {
        set(interface, "BusStatus", std::to_string(row.state).c_str());
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const QTableWidgetItem& state = *interfaceTable()->item(0, connectColumn);
            return state.text() == QLatin1String(row.text) &&
                   state.foreground().color() == row.color;
        })) << row.state;
        if (row.state == 0) {
            tick();
            EXPECT_TRUE(canChange());
            clickCell(0, connectColumn); // lost: the click connects again
            set(interface, "BusStatus", "1");
        }
    }
}

TEST_F(ProjectPanel, ClickOnAPassiveOrSilencedBusDisconnects)
{
    CanInterface& interface = addInterface();
    for (const char* state : {"4", "5"}) {
        set(interface, "BusStatus", state);
        clickCell(0, connectColumn);
        EXPECT_TRUE(interface.isConnected());
        EXPECT_FALSE(canChange());
        clickCell(0, connectColumn);
        EXPECT_FALSE(interface.isConnected());
    }
}

TEST_F(ProjectPanel, LostDeviceChangesTheTextWithoutAMessage)
{
    CanInterface& interface = addInterface();
    clickCell(0, connectColumn);
    const int asked = MessageBoxes::count();
    set(interface, "Lost", "1");
    tick();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return text(0, connectColumn) == QStringLiteral("BUS detached"); }));
    EXPECT_TRUE(canChange());
    EXPECT_EQ(MessageBoxes::count(), asked);
}

TEST_F(ProjectPanel, ButtonsFollowTheSelectedInterface)
{
    addInterface();
    addInterface();
    clickCell(0, connectColumn);
    EXPECT_FALSE(canChange());
    clickCell(1, nameColumn);
    EXPECT_TRUE(canChange());
    clickCell(0, nameColumn);
    EXPECT_FALSE(canChange());
    clickCell(1, loadColumn);
    EXPECT_EQ(canChange(), load(1) != nullptr);
}

TEST_F(ProjectPanel, ClickOutsideTheRowsChangesNothing)
{
    addInterface();
    clickCell(0, nameColumn);
    QTest::mouseClick(interfaceTable()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(10, interfaceTable()->viewport()->height() - 3));
    EXPECT_TRUE(canChange());
    EXPECT_EQ(text(0, connectColumn), QStringLiteral("BUS detached"));
}

TEST_F(ProjectPanel, LoadBarShowsTheTrafficAndZeroOnceDisconnected)
{
    CanInterface& interface = addInterface();
    set(interface, "Baudrate", "1000");
    clickCell(0, connectColumn);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        set(interface, "InjectFrames", "50");
        return load(0)->messageRate() > 0 && load(0)->load() > 0.0;
    }));
    clickCell(0, connectColumn);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return load(0)->messageRate() == 0 && load(0)->load() == 0.0; }));
    EXPECT_EQ(load(0)->text(), QStringLiteral("0/s   0.0 %"));
}

TEST_F(ProjectPanel, DoubleClickOnTheLoadBarOpensTheStatusWindow)
{
    addInterface();
    CanInterface& second = addInterface();
    second.setName(QStringLiteral("Tail"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return load(1)->y() > 0; })); // laid out
    QTest::mouseClick(load(1), Qt::LeftButton);
    QTest::mouseDClick(load(1), Qt::LeftButton);
    ASSERT_NE(subWindow(second), nullptr);
    EXPECT_EQ(subWindow(second)->windowTitle(), QStringLiteral("Tail"));
    EXPECT_EQ(subWindow(second)->size(), QSize(400, 400));
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 1);
    QTest::mouseClick(load(1), Qt::LeftButton);
    QTest::mouseDClick(load(1), Qt::LeftButton);
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 1);
}

TEST_F(ProjectPanel, DoubleClickOnTheStateDoesNotOpenTheProperties)
{
    CanInterface& interface = addInterface();
    doubleClickCell(0, connectColumn);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(interface.isConnected()); // one click, not two
}

TEST_F(ProjectPanel, DoubleClickOnTheNameOpensThePropertiesOfAClosedInterface)
{
    CanInterface& interface = addInterface();
    project().save(QString());
    InterfacesWatch watch;
    QString dialogTitle;
    whenModal("gui::DialogInterfaceProperties", [&](QWidget& dialog) {
        dialogTitle = dialog.windowTitle();
        auto* name = dialog.findChild<QWidget*>(QStringLiteral("InterfaceName"));
        QTest::keyClicks(name->findChild<QLineEdit*>(), QStringLiteral("Nose"));
        EXPECT_EQ(interface.name(), QStringLiteral("Nose"));
        QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("ok")), Qt::LeftButton);
    });
    doubleClickCell(0, nameColumn);
    EXPECT_EQ(dialogTitle, QStringLiteral("Interface Properties"));
    EXPECT_EQ(text(0, nameColumn), QStringLiteral("Nose"));
    EXPECT_EQ(watch.aspects, std::vector<int>{1});
    EXPECT_TRUE(project().isEdited());
    EXPECT_TRUE(canChange());
}

TEST_F(ProjectPanel, DoubleClickOnTheNameOfAnOpenInterfaceOpensNothing)
{
    addInterface();
    clickCell(0, connectColumn);
    InterfacesWatch watch;
    doubleClickCell(0, nameColumn);
    EXPECT_TRUE(watch.aspects.empty());
    EXPECT_FALSE(canChange());
}

TEST_F(ProjectPanel, ConfigureOpensThePropertiesOfTheSelectedInterface)
{
    addInterface();
    CanInterface& second = addInterface();
    set(second, "InterfaceName", "Second");
    clickCell(1, nameColumn);
    QString shownName;
    whenModal("gui::DialogInterfaceProperties", [&](QWidget& dialog) {
        shownName = dialog.findChild<QWidget*>(QStringLiteral("InterfaceName"))
                        ->findChild<QLineEdit*>()
                        ->text();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    click("interface-configure");
    EXPECT_EQ(shownName, QStringLiteral("Second"));
    EXPECT_EQ(second.name(), QStringLiteral("unnamed")); // only Ok takes it from the device
}

TEST_F(ProjectPanel, DeletingAnInterfaceTakesItsStatusWindowAlong)
{
    CanInterface& first = addInterface();
    const int firstId = first.id();
    CanInterface& second = addInterface();
    m_window->slotObjectSelect(firstId);
    m_window->slotObjectSelect(second.id());
    clickCell(0, nameColumn);
    InterfacesWatch watch;
    click("interface-delete");
    EXPECT_EQ(watch.aspects, std::vector<int>{1});
    EXPECT_EQ(project().object(firstId), nullptr);
    ASSERT_EQ(interfaceTable()->rowCount(), 1);
    EXPECT_EQ(interfaceTable()->item(0, nameColumn)->data(Qt::UserRole).toInt(), second.id());
    EXPECT_FALSE(canChange()); // none is selected
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 1);
    EXPECT_NE(subWindow(second), nullptr);
    tick();
}

TEST_F(ProjectPanel, TreeHasAGroupForEveryTypeThatHasWindows)
{
    Object* second = nullptr;
    Object* first = add(ObjectType::Receive);
    addInterface("");
    add(ObjectType::Dial);
    second = add(ObjectType::Receive);
    const QTreeWidget& tree = *objectTree();
    QStringList groups;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QTreeWidgetItem& group = *tree.topLevelItem(i);
        groups.append(group.text(0));
        EXPECT_TRUE(group.isExpanded()) << i;
        EXPECT_FALSE(group.icon(0).isNull());
        EXPECT_EQ(group.data(0, Qt::UserRole).toInt(), -1);
        EXPECT_FALSE(group.flags().testFlag(Qt::ItemIsEditable));
    }
    EXPECT_EQ(groups,
              texts({"Receive Window", "Transmit Window", "Trace Window", "Data Visualization"}));
    ASSERT_EQ(tree.topLevelItem(0)->childCount(), 2);
    EXPECT_EQ(tree.topLevelItem(0)->child(0), treeItem(*first));
    EXPECT_EQ(tree.topLevelItem(0)->child(1), treeItem(*second));
    EXPECT_EQ(tree.topLevelItem(1)->childCount(), 0);
    EXPECT_EQ(treeItem(*first)->text(0), QStringLiteral("unnamed"));
    EXPECT_FALSE(treeItem(*first)->icon(0).isNull());
    EXPECT_EQ(treeItem(*first)->flags(),
              Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable);
}

TEST_F(ProjectPanel, GroupsStayExpanded)
{
    add(ObjectType::Receive);
    QTreeWidget* tree = objectTree();
    const QPoint spot = tree->visualItemRect(tree->topLevelItem(0)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    QTest::keyClick(tree, Qt::Key_Left);
    EXPECT_TRUE(tree->topLevelItem(0)->isExpanded());
    EXPECT_EQ(project().objects().size(), 1U);
}

TEST_F(ProjectPanel, RenamingByEditingReachesObjectAndWindow)
{
    Object* receive = add(ObjectType::Receive);
    project().save(QString());
    QTreeWidget* tree = objectTree();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree->visualItemRect(treeItem(*receive)).center());
    // Not through the popup: a display without a window manager does not give the focus back.
    for (QAction* entry : panel()->findChild<QMenu*>()->actions()) {
        if (entry->text() == QStringLiteral("Rename")) {
            entry->trigger();
        }
    }
    auto* editor = tree->viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, QStringLiteral("Wing"));
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return receive->name() == QStringLiteral("Wing"); }));
    EXPECT_EQ(subWindow(*receive)->windowTitle(), QStringLiteral("Wing"));
    EXPECT_TRUE(project().isEdited());
}

TEST_F(ProjectPanel, GroupsAndNothingCannotBeRenamedOrDeleted)
{
    const int asked = MessageBoxes::count();
    QTreeWidget* tree = objectTree();
    tree->setCurrentItem(nullptr);
    chooseInContextMenu("Rename");
    chooseInContextMenu("Delete");
    tree->setCurrentItem(tree->topLevelItem(0));
    chooseInContextMenu("Rename");
    chooseInContextMenu("Delete");
    QTest::keyClick(tree, Qt::Key_F2);
    EXPECT_EQ(tree->viewport()->findChild<QLineEdit*>(), nullptr);
    EXPECT_EQ(MessageBoxes::count(), asked);
}

TEST_F(ProjectPanel, DeletingAsksAndCancelKeeps)
{
    Object* receive = add(ObjectType::Receive);
    objectTree()->setCurrentItem(treeItem(*receive));
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    chooseInContextMenu("Delete");
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Question);
    EXPECT_EQ(MessageBoxes::last().title, QStringLiteral("ZUL Warning"));
    EXPECT_EQ(MessageBoxes::last().text, QStringLiteral("Really delete the object ?"));
    EXPECT_EQ(MessageBoxes::last().buttons,
              (std::vector<QMessageBox::StandardButton>{QMessageBox::Yes, QMessageBox::Cancel}));
    EXPECT_EQ(project().objects().size(), 1U);
    objectTree()->setCurrentItem(treeItem(*receive));
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    chooseInContextMenu("Delete");
    EXPECT_TRUE(project().objects().empty());
    EXPECT_TRUE(m_window->mdiArea().subWindowList().isEmpty());
    EXPECT_EQ(objectTree()->topLevelItem(0)->childCount(), 0);
}

TEST_F(ProjectPanel, PanelFollowsTheReplacedProject)
{
    addInterface();
    clickCell(0, connectColumn);
    add(ObjectType::Receive);
    InterfacesWatch watch;
    MessageBoxes::setNextAnswer(QMessageBox::No);
    trigger(0);
    EXPECT_EQ(interfaceTable()->rowCount(), 0);
    EXPECT_EQ(objectTree()->topLevelItem(0)->childCount(), 0);
    EXPECT_FALSE(canChange());
    EXPECT_FALSE(watch.aspects.empty());
}

} // namespace
