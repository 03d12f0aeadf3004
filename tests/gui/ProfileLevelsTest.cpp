#include "core/SettingsStore.h"
#include "gui/desktop/DialogProfile.h"
#include "profile/ProfileStore.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TestHome.h"
#include "tests/support/WorkingDirectory.h"

#include <QCursor>
#include <QGuiApplication>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>
#include <set>

// What the panel of the profiles shows of its levels, and while it loads.

namespace {

using gui::DialogProfile;
using zul::test::EnvironmentVariable;
using zul::test::TestHome;
using zul::test::WorkingDirectory;

QString name(const char* text)
{
    return QString::fromLatin1(text);
}

class ProfileLevels : public testing::Test
{
protected:
    ProfileLevels()
    {
        SettingsStore::instance().setString(name("Arinc825ProfileSuffix"), name(".pro"));
        home.write(name("a.pro"), "<profile>\nFlight;1;0\n<parameter>\n"
                                  "NOC;4;100;0;1;0;3.0;0.7;44;FLOAT;Pitch;deg;-90;90;10;T\n");
        panel.show();
        tree = qobject_cast<QTreeWidget*>(panel.findChild<QTabWidget*>()->widget(0));
    }
    ~ProfileLevels() override { SettingsStore::instance().reset(); }
    void loadAll()
    {
        QTest::mouseClick(panel.findChild<QToolButton*>(name("Load All")), Qt::LeftButton);
    }

    TestHome home;
    WorkingDirectory directory{home.path()};
    EnvironmentVariable noHome{"ZUL_HOME", nullptr};
    ProfileStore store;
    DialogProfile panel{store};
    QTreeWidget* tree = nullptr;
};

TEST_F(ProfileLevels, EachLevelHasItsOwnIcon)
{
    loadAll();
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    QTreeWidgetItem* profile = tree->topLevelItem(0);
    profile->setExpanded(true);
    QTreeWidgetItem* group = profile->child(0);
    group->setExpanded(true);
    ASSERT_GT(group->childCount(), 0);
    std::vector<QImage> pictures;
    for (const QTreeWidgetItem* item : {profile, group, group->child(0)}) {
        pictures.push_back(item->icon(0).pixmap(16).toImage());
        EXPECT_FALSE(pictures.back().isNull());
    }
    EXPECT_NE(pictures[0], pictures[1]);
    EXPECT_NE(pictures[1], pictures[2]);
    EXPECT_NE(pictures[0], pictures[2]);
}

TEST_F(ProfileLevels, CursorWaitsUntilAllIsLoadedAndListed)
{
    std::vector<int> shapes;
    const auto note = [&shapes] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        shapes.push_back(cursor == nullptr ? -1 : static_cast<int>(cursor->shape()));
    };
    QObject::connect(tree->model(), &QAbstractItemModel::rowsInserted, &panel, note);
    QObject::connect(&panel, &DialogProfile::signalProfilesChanged, &panel, note);
    loadAll();
    ASSERT_GE(shapes.size(), 2U);
    EXPECT_EQ(std::set<int>(shapes.begin(), shapes.end()),
              std::set<int>{static_cast<int>(Qt::WaitCursor)});
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
