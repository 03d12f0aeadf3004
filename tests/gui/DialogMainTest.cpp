#include "core/SettingsStore.h"
#include "gui/desktop/MainActions.h"
#include "gui/frame/MessageBoxes.h"
#include "tests/gui/DesktopFixture.h"

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

#include <algorithm>
#include <map>

// The main window as it stands: actions, menus, toolbar, docks, title, keys.

namespace {

using zul::test::DesktopTest;
using zul::test::texts;

class DialogMainTest : public DesktopTest
{
};

struct ActionRow
{
    int id;
    const char* text;
    const char* shortcut;
    const char* statusTip;
    const char* iconText;
};

constexpr std::array<ActionRow, 15> actionRows{{
    {0, "&New Project", "Ctrl+N", "Create new Project", "New Project"},
    {1, "&Open Project", "Ctrl+O", "Open Project", "Open Project"},
    {2, "&Close Project", "", "Close Project", "Close Project"},
    {3, "&Save Project", "Ctrl+S", "Save Project File", "Save"},
    {4, "&Save Project As", "", "Save Project File As", "Save As"},
    {5, "&Quit", "Ctrl+Q", "Quit Application", "Quit"},
    {6, "&Connect", "", "Connect CAN Interface", "Connect"},
    {7, "About", "", "Show License Information", "About"},
    {8, "Help", "F1", "Help Window", "Help"},
    {9, "&Tile", "", "Tile the windows", "Tile"},
    {10, "&Cascade", "", "Cascade the windows", "Cascade"},
    {11, "Cl&ose", "Ctrl+F4", "Close the active window", "Close"},
    {12, "Close &All", "", "Close all the windows", "Close All"},
    {13, "Preferences", "", "Open Preferences Dialog", "Preferences"},
    {14, "Profile Editor ARINC-825", "", "Open Profile Editor", "Profile Editor ARINC-825"},
}};

TEST_F(DialogMainTest, ActionsHaveTheirTexts)
{
    start();
    for (const ActionRow& row : actionRows) {
        const QAction* found = action(row.id);
        ASSERT_NE(found, nullptr) << row.id;
        EXPECT_EQ(found->text(), QLatin1String(row.text));
        EXPECT_EQ(found->shortcut(), QKeySequence(QLatin1String(row.shortcut))) << row.text;
        EXPECT_EQ(found->statusTip(), QLatin1String(row.statusTip));
        EXPECT_EQ(found->iconText(), QLatin1String(row.iconText));
    }
    EXPECT_EQ(m_window->actions().size(), static_cast<int>(actionRows.size()));
}

TEST_F(DialogMainTest, MenusStandInTheirOrder)
{
    start();
    QStringList titles;
    for (const QAction* top : m_window->menuBar()->actions()) {
        titles.append(top->text());
    }
    EXPECT_EQ(titles, texts({"&File", "&View", "&Extras", "&Window", "&Help"}));
    EXPECT_EQ(shown("&File"), texts({"&New Project", "&Open Project", "-", "&Save Project",
                                     "&Save Project As", "-", "&Quit"}));
    EXPECT_EQ(shown("&View"),
              texts({"Main Toolbar", "Project", "Add Object to Project", "Profile"}));
    EXPECT_EQ(shown("&Extras"), texts({"Preferences", "Profile Editor ARINC-825"}));
    EXPECT_EQ(shown("&Help"), texts({"About", "Help"}));
}

TEST_F(DialogMainTest, ToolBarHoldsNewOpenAndSave)
{
    start();
    const auto bars = m_window->findChildren<QToolBar*>(QStringLiteral("mainToolbar"));
    ASSERT_EQ(bars.size(), 1);
    EXPECT_EQ(bars[0]->windowTitle(), QStringLiteral("Main Toolbar"));
    const auto actions = bars[0]->actions();
    ASSERT_EQ(actions.size(), 5);
    EXPECT_EQ(actions[0], action(0));
    EXPECT_EQ(actions[1], action(1));
    EXPECT_TRUE(actions[2]->isSeparator());
    EXPECT_EQ(actions[3], action(3));
    EXPECT_EQ(actions[4], action(4));
}

TEST_F(DialogMainTest, DocksStandLeftAndMayGoRight)
{
    start();
    const auto docks = m_window->findChildren<QDockWidget*>();
    ASSERT_EQ(docks.size(), 3);
    for (const QDockWidget* dock : docks) {
        EXPECT_EQ(dock->allowedAreas(), Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        EXPECT_EQ(m_window->dockWidgetArea(m_window->findChild<QDockWidget*>(dock->objectName())),
                  Qt::LeftDockWidgetArea);
    }
    EXPECT_EQ(docks[0]->windowTitle(), QStringLiteral("Project"));
    EXPECT_EQ(docks[1]->windowTitle(), QStringLiteral("Add Object to Project"));
    EXPECT_EQ(docks[2]->windowTitle(), QStringLiteral("Profile"));
}

TEST_F(DialogMainTest, ViewMenuTogglesToolBarAndDocks)
{
    start();
    const auto toggles = menu("&View")->actions();
    ASSERT_EQ(toggles.size(), 4);
    const std::vector<QWidget*> shownThings{
        m_window->findChild<QToolBar*>(QStringLiteral("mainToolbar")),
        m_window->findChild<QDockWidget*>(QStringLiteral("Project")),
        m_window->findChild<QDockWidget*>(QStringLiteral("Add Object to Project")),
        m_window->findChild<QDockWidget*>(QStringLiteral("Profile"))};
    for (int i = 0; i < toggles.size(); ++i) {
        const QWidget* thing = shownThings[static_cast<std::size_t>(i)];
        EXPECT_TRUE(toggles[i]->isChecked());
        EXPECT_TRUE(thing->isVisible());
        toggles[i]->trigger();
        EXPECT_FALSE(thing->isVisible()) << i;
        toggles[i]->trigger();
        EXPECT_TRUE(thing->isVisible()) << i;
    }
}

TEST_F(DialogMainTest, HasStatusBarIconAndCentralArea)
{
    start();
    EXPECT_TRUE(m_window->statusBar()->isVisible());
    EXPECT_FALSE(m_window->windowIcon().isNull());
    EXPECT_EQ(m_window->centralWidget(), &m_window->mdiArea());
    EXPECT_EQ(m_window->mdiArea().horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_EQ(m_window->mdiArea().verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_FALSE(m_window->mdiArea().background().texture().isNull());
}

TEST_F(DialogMainTest, TitleTellsTheFileAndWhetherItWasEdited)
{
    start();
    EXPECT_EQ(title(), QStringLiteral("ZUL     default.zul"));
    project().markEdited();
    EXPECT_EQ(title(), QStringLiteral("ZUL     default.zul"));
    tick();
    EXPECT_EQ(title(), QStringLiteral("ZUL     default.zul (edited)"));
    project().save(m_home.file(QStringLiteral("bus test.zul")));
    tick();
    EXPECT_EQ(title(), QStringLiteral("ZUL     bus test.zul"));
    trigger(0);
    EXPECT_EQ(title(), QStringLiteral("ZUL     "));
}

TEST_F(DialogMainTest, TitleShowsAFileNameWithQtsMarkAsItIs)
{
    start();
    project().save(m_home.file(QStringLiteral("a[*]b.zul")));
    project().markEdited();
    tick();
    QString onScreen = title();
    onScreen.replace(QStringLiteral("[*][*]"), QStringLiteral("[*]"));
    EXPECT_EQ(onScreen, QStringLiteral("ZUL     a[*]b.zul (edited)"));
}

TEST_F(DialogMainTest, HeartbeatRunsByItself)
{
    start();
    project().markEdited();
    EXPECT_TRUE(QTest::qWaitFor([&] { return title().endsWith(QStringLiteral(" (edited)")); }));
    project().save(QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !title().endsWith(QStringLiteral(" (edited)")); }));
}

TEST_F(DialogMainTest, MenusBringUpTheDialogs)
{
    startAndTick();
    const std::map<int, const char*> dialogs{
        {7, "DialogAbout"}, {8, "DialogHelp"}, {13, "gui::DialogPreferences"}};
    for (const auto& [id, name] : dialogs) {
        const auto windows = m_window->findChildren<QDialog*>();
        const auto found =
            std::find_if(windows.begin(), windows.end(), [name = name](QDialog* window) {
                return QLatin1String(window->metaObject()->className()) == QLatin1String(name);
            });
        ASSERT_NE(found, windows.end()) << name;
        EXPECT_FALSE((*found)->isVisible()) << name;
        for (int turn = 0; turn < 2; ++turn) { // a second time too
            for (QAction* action : m_window->findChildren<QAction*>()) {
                if (action->data().isValid() && action->data().toInt() == id) {
                    action->trigger();
                }
            }
            EXPECT_TRUE((*found)->isVisible()) << name;
            (*found)->close();
            EXPECT_FALSE((*found)->isVisible()) << name;
        }
    }
}

TEST_F(DialogMainTest, ActionsWithoutAMenuDoNothing)
{
    startAndTick();
    const QString before = title();
    const int asked = gui::MessageBoxes::count();
    trigger(2);
    trigger(6);
    m_window->slotMenuViewAbout();
    EXPECT_EQ(title(), before);
    EXPECT_EQ(gui::MessageBoxes::count(), asked);
    EXPECT_EQ(m_ended, 0);
}

class RestoreTopLevel : public DialogMainTest
{
protected:
    void SetUp() override
    {
        DialogMainTest::SetUp();
        m_home.write(QStringLiteral("default.zul"), "<ZUL><TopLevelWindow x='31' y='17' "
                                                    "width='811' height='607'/></ZUL>");
    }
    void setValue(int value)
    {
        SettingsStore::instance().setInteger(QStringLiteral("RestoreTopLevel"), value);
    }
    QRect geometry() const { return {m_window->pos(), m_window->size()}; }
    void moveAwayAndReload()
    {
        m_window->resize(900, 700);
        m_window->move(5, 6);
        m_window->slotMenuRecent(recentAction());
    }
    QAction* recentAction()
    {
        m_recent.setData(m_home.file(QStringLiteral("default.zul")));
        return &m_recent;
    }

    QAction m_recent{nullptr};
};

TEST_F(RestoreTopLevel, NeverGivesTheDefaultSize)
{
    setValue(0);
    startAndTick();
    EXPECT_EQ(m_window->size(), QSize(1024, 768));
    moveAwayAndReload();
    EXPECT_EQ(geometry(), QRect(5, 6, 900, 700));
}

TEST_F(RestoreTopLevel, OnStartIsTheDefaultAndLoadingLeavesTheWindow)
{
    startAndTick();
    EXPECT_EQ(geometry(), QRect(31, 17, 811, 607));
    moveAwayAndReload();
    EXPECT_EQ(geometry(), QRect(5, 6, 900, 700));
}

TEST_F(RestoreTopLevel, AlwaysFollowsEveryProject)
{
    setValue(2);
    startAndTick();
    EXPECT_EQ(geometry(), QRect(31, 17, 811, 607));
    moveAwayAndReload();
    EXPECT_EQ(geometry(), QRect(31, 17, 811, 607));
}

TEST_F(RestoreTopLevel, ChangeCountsForTheNextProject)
{
    startAndTick();
    setValue(2);
    moveAwayAndReload();
    EXPECT_EQ(geometry(), QRect(31, 17, 811, 607));
    setValue(0);
    moveAwayAndReload();
    EXPECT_EQ(geometry(), QRect(5, 6, 900, 700));
}

TEST_F(RestoreTopLevel, NewProjectLeavesTheWindowWhereItIs)
{
    setValue(2);
    startAndTick();
    m_window->resize(900, 700);
    m_window->move(5, 6);
    trigger(0);
    EXPECT_EQ(geometry(), QRect(5, 6, 900, 700));
}

TEST_F(RestoreTopLevel, AnotherNumberCountsAtTheStartOnly)
{
    setValue(7);
    startAndTick();
    EXPECT_EQ(geometry(), QRect(31, 17, 811, 607));
    moveAwayAndReload();
    EXPECT_EQ(geometry(), QRect(5, 6, 900, 700));
}

class MainWindowKeys : public DialogMainTest
{
protected:
    void SetUp() override
    {
        DialogMainTest::SetUp();
        startAndTick();
        qApp->installEventFilter(m_window.get());
    }
};

TEST_F(MainWindowKeys, ControlZIsSwallowedAndItsRepetitionPasses)
{
    QLineEdit edit;
    edit.setText(QStringLiteral("first"));
    QTest::keyClicks(&edit, QStringLiteral("xy"));
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), QStringLiteral("firstxy"));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, QString(), true);
    QCoreApplication::sendEvent(&edit, &repeated);
    EXPECT_EQ(edit.text(), QStringLiteral("first")); // undone by the control itself
}

TEST_F(MainWindowKeys, OtherKeysPass)
{
    QLineEdit edit;
    QTest::keyClicks(&edit, QStringLiteral("zZ"));
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), QStringLiteral("zZ"));
    EXPECT_EQ(edit.selectedText(), QStringLiteral("zZ"));
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(m_window->eventFilter(&edit, &released));
}

TEST_F(MainWindowKeys, ControlF4ClosesTheActiveWindowWithoutTheMenuHavingBeenOpened)
{
    m_home.write(QStringLiteral("default.zul"),
                 "<ZUL><ObjectReceive><Window name='A' open='1'/></ObjectReceive>"
                 "<ObjectReceive><Window name='B' open='1'/></ObjectReceive></ZUL>");
    restart();
    tick();
    ASSERT_EQ(m_window->mdiArea().subWindowList().size(), 2);
    pressKey(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(m_window->mdiArea().subWindowList().size(), 1);
    EXPECT_EQ(project().objects().size(), 2U);
    pressKey(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(m_window->mdiArea().subWindowList().isEmpty());
}

TEST_F(MainWindowKeys, ControlNMakesANewProject)
{
    add(ObjectType::Receive);
    project().save(QString());
    pressKey(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(project().objects().empty());
}

} // namespace
