#include "comm/BatchListeners.h"
#include "core/SettingsStore.h"
#include "gui/desktop/DialogProfile.h"
#include "gui/frame/DialogSelectId.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "profile/ProfileStore.h"
#include "tests/gui/DesktopFixture.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/WorkingDirectory.h"

#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

// What the main window does with the dialog that selects an identifier.

namespace {

using gui::DialogSelectId;

class SelectIdDesktop : public zul::test::DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        SettingsStore::instance().setString(QStringLiteral("Arinc825ProfileSuffix"),
                                            QStringLiteral(".pro"));
        m_home.write(QStringLiteral("a.pro"), "<profile>\nFlight;1;0\n");
    }
    void TearDown() override
    {
        DesktopTest::TearDown();
        ProfileStore::instance().unloadAll();
    }
    static void notify(std::uint32_t id)
    {
        auto* frame = new zul::MessageCan;
        frame->setId(id);
        MessageContainer batch;
        batch.addMessage(SmartPtr<Message>(frame));
        comm::BatchListeners::instance().notify(batch);
    }
    static const QTreeWidget& tree(const char* name)
    {
        return *DialogSelectId::instance().findChild<QTreeWidget*>(QLatin1String(name));
    }
    void click(const char* button) const
    {
        const auto* panel = m_window->findChild<gui::DialogProfile*>();
        QTest::mouseClick(panel->findChild<QToolButton*>(QLatin1String(button)), Qt::LeftButton);
    }

    zul::test::EnvironmentVariable noHome{"ZUL_HOME", nullptr};
    zul::test::WorkingDirectory directory{m_home.path()};
};

TEST_F(SelectIdDesktop, IdentifiersAreListedThatCameBeforeTheFirstUse)
{
    start();
    notify(77);
    ASSERT_EQ(tree("activeIds").topLevelItemCount(), 1);
    EXPECT_EQ(tree("activeIds").topLevelItem(0)->text(0), QStringLiteral("77"));
}

TEST_F(SelectIdDesktop, ProfilesThatTheStartLoadsAreListed)
{
    SettingsStore::instance().setInteger(QStringLiteral("AutoLoadProfile"), 1);
    start();
    EXPECT_EQ(tree("arincProfiles").topLevelItemCount(), 1);
}

TEST_F(SelectIdDesktop, TreesFollowTheProfileDock)
{
    start();
    EXPECT_EQ(tree("arincProfiles").topLevelItemCount(), 0);
    click("Load All");
    EXPECT_EQ(tree("arincProfiles").topLevelItemCount(), 1);
    click("Clear");
    EXPECT_EQ(tree("arincProfiles").topLevelItemCount(), 0);
}

TEST_F(SelectIdDesktop, NextMainWindowBeginsWithAnEmptyList)
{
    start();
    notify(77);
    restart();
    notify(78);
    ASSERT_EQ(tree("activeIds").topLevelItemCount(), 1);
    EXPECT_EQ(tree("activeIds").topLevelItem(0)->text(0), QStringLiteral("78"));
}

} // namespace
