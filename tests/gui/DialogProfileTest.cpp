#include "gui/desktop/DialogProfile.h"

#include "core/SettingsStore.h"
#include "gui/desktop/DialogProfileResult.h"
#include "gui/frame/FileDialogs.h"
#include "profile/ProfileStore.h"
#include "tests/gui/DesktopFixture.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/WorkingDirectory.h"

#include <QGuiApplication>
#include <QLayout>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>

// The panel of the profiles, and what the main window does with it.

namespace {

using gui::DialogProfile;
using gui::DialogProfileResult;
using gui::FileDialogs;
using zul::test::DesktopTest;
using zul::test::EnvironmentVariable;
using zul::test::TestHome;
using zul::test::texts;
using zul::test::WorkingDirectory;

const QByteArray profileText = "<profile>\nFlight;1;0\n<fid>\nOwn;21\n<parameter>\n"
                               "NOC;21;7;1;0;0;0.0;0.7;0;UCHAR;Mode;n.a.;0;255;10;T\n"
                               "NOC;4;100;0;1;0;3.0;0.7;44;FLOAT;Pitch;deg;-90;90;10;T\n"
                               "NOC;4;100;0;1;0;7.0;4.7;44;FLOAT;Alpha;deg;-90;90;10;T\n";

const QByteArray zorbText = "<ZORBprofile name=\"Sister\"><Chapter name=\"Air\">"
                            "<Parameter name=\"Speed\" unit=\"m/s\" id=\"315\"/></Chapter>"
                            "<Chapter name=\"Empty\"/></ZORBprofile>";

QString name(const char* text)
{
    return QString::fromLatin1(text);
}

// Texts of an item's children.
QStringList childTexts(const QTreeWidgetItem& item)
{
    QStringList result;
    for (int i = 0; i < item.childCount(); ++i) {
        result << item.child(i)->text(0);
    }
    return result;
}

class ProfilePanel : public testing::Test
{
protected:
    ProfilePanel()
    {
        SettingsStore& settings = SettingsStore::instance();
        settings.setString(name("Arinc825ProfileSuffix"), name(".pro"));
        settings.setString(name("CanAsProfileSuffix"), name(".zorb"));
        panel.setResultWindow(&result);
        panel.resize(300, 500);
        panel.show();
        tabs = panel.findChild<QTabWidget*>();
        arinc = qobject_cast<QTreeWidget*>(tabs->widget(0));
        zorb = qobject_cast<QTreeWidget*>(tabs->widget(1));
    }
    ~ProfilePanel() override { SettingsStore::instance().reset(); }

    void click(const char* button)
    {
        QTest::mouseClick(panel.findChild<QToolButton*>(name(button)), Qt::LeftButton);
    }

    // What the result window shows.
    QString report() const { return result.findChild<QTextEdit*>()->toPlainText(); }

    TestHome home;
    WorkingDirectory directory{home.path()};
    EnvironmentVariable noHome{"ZUL_HOME", nullptr};
    ProfileStore store;
    DialogProfileResult result;
    DialogProfile panel{store};
    QTabWidget* tabs = nullptr;
    QTreeWidget* arinc = nullptr;
    QTreeWidget* zorb = nullptr;
};

TEST_F(ProfilePanel, HasItsTextsAndToolTips)
{
    EXPECT_EQ(panel.windowTitle(), name("Select Message"));
    EXPECT_EQ(panel.layout()->contentsMargins(), QMargins(3, 3, 3, 3));
    QStringList buttons;
    for (const QToolButton* button : panel.findChildren<QToolButton*>()) {
        if (!button->toolTip().isEmpty()) {
            buttons << button->text() + QLatin1Char('|') + button->toolTip();
        }
    }
    EXPECT_EQ(buttons, texts({"Load|Load Profile", "Load All|Reload all profiles",
                              "Clear|Unload all profiles", "Check|Check all profiles"}));
    EXPECT_EQ(tabs->tabText(0), name("ARINC 825"));
    EXPECT_EQ(tabs->tabText(1), name("CANaerospace"));
    EXPECT_TRUE(arinc->isHeaderHidden());
    EXPECT_TRUE(zorb->isHeaderHidden());
}

TEST_F(ProfilePanel, LoadAllListsProfilesGroupsAndParameters)
{
    home.write(name("a.pro"), profileText);
    home.write(name("b.zorb"), zorbText);
    click("Load All");
    EXPECT_FALSE(result.isVisible());
    ASSERT_EQ(arinc->topLevelItemCount(), 1);
    QTreeWidgetItem* top = arinc->topLevelItem(0);
    EXPECT_EQ(top->text(0), name("Flight"));
    EXPECT_EQ(childTexts(*top), texts({"4 Flight State", "21 Own"}));
    top->setExpanded(true);
    top->child(0)->setExpanded(true);
    EXPECT_EQ(childTexts(*top->child(0)), texts({"Pitch [deg]", "Alpha [deg]"}));
    EXPECT_EQ(top->child(0)->child(0)->toolTip(0),
              name("Pitch [deg]\nLCC:\t2\nFID:\t4\nLCL:\t0\nPVT:\t1\nDOC:\t100\n"));
    for (const QTreeWidgetItem* item : {top, top->child(0), top->child(0)->child(0)}) {
        EXPECT_FALSE(item->icon(0).isNull());
    }
    ASSERT_EQ(zorb->topLevelItemCount(), 1);
    EXPECT_EQ(childTexts(*zorb->topLevelItem(0)), texts({"0 Air", "1 Empty"}));
}

TEST_F(ProfilePanel, ArrowUnfoldsAGroup)
{
    home.write(name("a.pro"), profileText);
    click("Load All");
    QTreeWidgetItem* group = arinc->topLevelItem(0)->child(0);
    arinc->topLevelItem(0)->setExpanded(true);
    arinc->setCurrentItem(group);
    arinc->setFocus();
    QTest::keyClick(arinc, Qt::Key_Right);
    EXPECT_TRUE(group->isExpanded());
    EXPECT_EQ(group->childCount(), 2);
    QTest::keyClick(arinc, Qt::Key_Left);
    QTest::keyClick(arinc, Qt::Key_Right);
    EXPECT_EQ(group->childCount(), 2);
}

TEST_F(ProfilePanel, TagsInNamesAreSeenNotObeyed)
{
    QByteArray text = profileText;
    text.replace("Pitch", "<b>P</b>");
    home.write(name("a.pro"), text);
    click("Load All");
    QTreeWidgetItem* group = arinc->topLevelItem(0)->child(0);
    arinc->topLevelItem(0)->setExpanded(true);
    group->setExpanded(true);
    EXPECT_TRUE(group->child(0)->toolTip(0).contains(name("&lt;b&gt;P")));
}

TEST_F(ProfilePanel, LoadAllShowsWhatTheCheckFound)
{
    home.write(name("a.pro"), profileText + "NOC;4;1;0;0;0;0.1;0.7;0;UCHAR;N;U;0;1;1;T\n");
    home.write(name("b.pro"), "<profile>\nOther;1;0\n");
    const QSignalSpy changed(&panel, &DialogProfile::signalProfilesChanged);
    click("Load All");
    EXPECT_TRUE(result.isVisible());
    EXPECT_TRUE(report().contains(name("Profile : a.pro")));
    EXPECT_TRUE(report().contains(name("Line 9: Error")));
    EXPECT_LT(report().indexOf(name("SPP Bit must be 0")),
              report().indexOf(name("uses the same id/sub-id name as a.pro")));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ProfilePanel, AfterClearBothTreesAreEmptyAndCheckShowsNothing)
{
    home.write(name("a.pro"), profileText);
    home.write(name("b.zorb"), zorbText);
    click("Load All");
    const QSignalSpy changed(&panel, &DialogProfile::signalProfilesChanged);
    click("Clear");
    EXPECT_EQ(arinc->topLevelItemCount(), 0);
    EXPECT_EQ(zorb->topLevelItemCount(), 0);
    EXPECT_EQ(changed.count(), 1);
    click("Check");
    EXPECT_FALSE(result.isVisible());
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(ProfilePanel, CheckAgainRepeatsWhatWasFound)
{
    home.write(name("a.pro"), "<profile>\nA;1;0\n");
    home.write(name("b.pro"), "<profile>\nB;1;0\n");
    click("Load All");
    result.hide();
    click("Check");
    EXPECT_TRUE(result.isVisible());
    EXPECT_EQ(report().count(name("uses the same id")), 2);
}

TEST_F(ProfilePanel, LoadAsksForAFile)
{
    home.write(name("a.xml"), "<Arinc825Profile name=\"A\"/>");
    const QSignalSpy changed(&panel, &DialogProfile::signalProfilesChanged);
    FileDialogs::setNextFileName(QString());
    click("Load");
    EXPECT_EQ(FileDialogs::lastTitle(), name("Open Profile"));
    EXPECT_EQ(FileDialogs::lastFilter(), name("Profile File (*.pro *.xml);;All Files (*.*)"));
    EXPECT_EQ(changed.count(), 0);
    FileDialogs::setNextFileName(home.file(name("a.xml")));
    click("Load");
    EXPECT_EQ(arinc->topLevelItemCount(), 1);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(ProfilePanel, FileThatFailsToLoadIsNotTold)
{
    home.write(name("a.pro"), profileText);
    FileDialogs::setNextFileName(home.file(name("a.pro")));
    click("Load");
    EXPECT_EQ(arinc->topLevelItemCount(), 0);
    EXPECT_FALSE(result.isVisible());
}

class ProfileDock : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        SettingsStore& settings = SettingsStore::instance();
        settings.setString(name("Arinc825ProfileSuffix"), name(".pro"));
        settings.setInteger(name("AutoLoadProfile"), 1);
    }
    void TearDown() override
    {
        ProfileStore::instance().loadAll(); // the settings are gone, and so is every profile
        DesktopTest::TearDown();
    }

    const QTreeWidget& arincTree() const
    {
        const auto* panel = m_window->findChild<DialogProfile*>();
        return *qobject_cast<QTreeWidget*>(panel->findChild<QTabWidget*>()->widget(0));
    }

    EnvironmentVariable noHome{"ZUL_HOME", nullptr};
    WorkingDirectory directory{m_home.path()};
};

TEST_F(ProfileDock, ListsTheProfilesThatAreLoadedAtTheStart)
{
    m_home.write(name("a.pro"), profileText);
    start();
    EXPECT_EQ(arincTree().topLevelItemCount(), 1);
    EXPECT_FALSE(m_window->findChild<DialogProfileResult*>()->isVisible());
    SettingsStore::instance().reset();
}

TEST_F(ProfileDock, WithoutTheSettingNothingIsLoaded)
{
    SettingsStore::instance().setInteger(name("AutoLoadProfile"), 0);
    m_home.write(name("a.pro"), profileText);
    start();
    EXPECT_EQ(arincTree().topLevelItemCount(), 0);
    SettingsStore::instance().reset();
}

TEST_F(ProfileDock, FaultsAreShownAtTheStart)
{
    m_home.write(name("a.pro"), "<profile>\nA\n");
    start();
    const auto* result = m_window->findChild<DialogProfileResult*>();
    EXPECT_TRUE(result->isVisible());
    EXPECT_TRUE(result->findChild<QTextEdit*>()->toPlainText().contains(
        name("Syntax Error, wrong number of tokens 1")));
    SettingsStore::instance().reset();
}

} // namespace
