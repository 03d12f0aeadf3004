#include "comm/BatchListeners.h"
#include "core/SettingsStore.h"
#include "gui/controls/ProfileTree.h"
#include "gui/frame/DialogSelectId.h"
#include "gui/frame/QwtIdSelect.h"
#include "profile/ProfileStore.h"
#include "tests/gui/ReceiveFixture.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/WorkingDirectory.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>

// The dialog that selects an identifier, and the control that runs it.

namespace {

using gui::DialogSelectId;
using gui::ProfileTree;
using gui::QwtIdSelect;
using zul::test::batchOf;

const QByteArray profileText = "<profile>\nFlight;1;0\n<parameter>\n"
                               "NOC;4;100;0;1;0;3.0;0.7;44;FLOAT;Pitch;deg;-90;90;10;T\n"
                               "NOC;4;101;0;1;0;7.0;4.7;44;FLOAT;Alpha;deg;-90;90;10;T\n";

const QByteArray zorbText = "<ZORBprofile name=\"Sister\"><Chapter name=\"Air\">"
                            "<Parameter name=\"Speed\" unit=\"m/s\" id=\"315\"/></Chapter>"
                            "</ZORBprofile>";

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

class SelectId : public testing::Test
{
protected:
    SelectId()
    {
        DialogSelectId::destroy(); // what other tests have left
        SettingsStore::instance().setString(text("Arinc825ProfileSuffix"), text(".pro"));
        SettingsStore::instance().setString(text("CanAsProfileSuffix"), text(".zorb"));
        home.write(text("a.pro"), profileText);
        home.write(text("b.zorb"), zorbText);
    }
    ~SelectId() override
    {
        DialogSelectId::destroy();
        SettingsStore::instance().reset();
        ProfileStore::instance().unloadAll();
    }

    static DialogSelectId& dialog() { return DialogSelectId::instance(); }
    template <typename Control>
    static Control& find(const char* name)
    {
        return *dialog().findChild<Control*>(text(name));
    }
    static QTreeWidget& arinc() { return find<QTreeWidget>("arincProfiles"); }
    static QTreeWidget& zorb() { return find<QTreeWidget>("canAerospaceProfiles"); }
    static QTreeWidget& active() { return find<QTreeWidget>("activeIds"); }
    static QTabWidget& tabs() { return *dialog().findChild<QTabWidget*>(); }
    static void click(const char* name)
    {
        QTest::mouseClick(&find<QPushButton>(name), Qt::LeftButton);
    }
    /// The parameter's item, unfolded.
    static QTreeWidgetItem* parameter(const QTreeWidget& tree, int row)
    {
        tree.topLevelItem(0)->setExpanded(true);
        tree.topLevelItem(0)->child(0)->setExpanded(true);
        return tree.topLevelItem(0)->child(0)->child(row);
    }
    static QStringList listed()
    {
        QStringList ids;
        for (int i = 0; i < active().topLevelItemCount(); ++i) {
            ids << active().topLevelItem(i)->text(0);
        }
        return ids;
    }
    static void notify(std::uint32_t id)
    {
        MessageContainer batch = batchOf(id, 1);
        comm::BatchListeners::instance().notify(batch);
    }
    static void load()
    {
        ProfileStore::instance().loadAll();
        dialog().refill();
    }
    static void doubleClick(QTreeWidget& tree, QTreeWidgetItem* item)
    {
        tree.scrollToItem(item);
        const QPoint place = tree.visualItemRect(item).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    zul::test::TestHome home;
    zul::test::WorkingDirectory directory{home.path()};
    zul::test::EnvironmentVariable noHome{"ZUL_HOME", nullptr};
};

TEST_F(SelectId, HasItsTextsAndSize)
{
    EXPECT_EQ(dialog().windowTitle(), text("Select Message"));
    EXPECT_EQ(dialog().size(), QSize(400, 250));
    EXPECT_TRUE(dialog().isModal());
    EXPECT_EQ(dialog().parentWidget(), nullptr);
    ASSERT_EQ(tabs().count(), 3);
    EXPECT_EQ(tabs().tabText(0), text("ARINC 825"));
    EXPECT_EQ(tabs().tabText(1), text("CANaerospace"));
    EXPECT_EQ(tabs().tabText(2), text("Active Ids"));
    for (const QTreeWidget* tree : {&arinc(), &zorb(), &active()}) {
        EXPECT_TRUE(tree->isHeaderHidden());
        EXPECT_EQ(tree->selectionMode(), QAbstractItemView::SingleSelection);
    }
    EXPECT_EQ(find<QPushButton>("clearList").text(), text("Clear List"));
    EXPECT_EQ(find<QPushButton>("clearList").palette().color(QPalette::Button),
              QColor(255, 180, 180));
    EXPECT_EQ(find<QPushButton>("ok").text(), text("Ok"));
}

TEST_F(SelectId, ThereIsOneUntilItIsDestroyed)
{
    DialogSelectId* const first = &dialog();
    EXPECT_EQ(&DialogSelectId::instance(), first);
    notify(5);
    EXPECT_EQ(listed(), QStringList{text("5")});
    DialogSelectId::destroy();
    DialogSelectId::destroy();
    notify(6); // there is none to hear it
    EXPECT_TRUE(listed().isEmpty());
    notify(7);
    EXPECT_EQ(listed(), QStringList{text("7")}) << "heard once";
}

TEST_F(SelectId, ProfilesAreShownOnThreeLevels)
{
    load();
    ASSERT_EQ(arinc().topLevelItemCount(), 1);
    EXPECT_EQ(arinc().topLevelItem(0)->text(0), text("Flight"));
    EXPECT_EQ(arinc().topLevelItem(0)->child(0)->text(0), text("4 Flight State"));
    const QTreeWidgetItem* pitch = parameter(arinc(), 0);
    EXPECT_EQ(pitch->text(0), text("Pitch [deg]"));
    EXPECT_EQ(pitch->toolTip(0),
              text("Pitch [deg]\nLCC:\t2\nFID:\t4\nLCL:\t0\nPVT:\t1\nDOC:\t100\n"));
    const std::uint32_t id = 2U << 26 | 4U << 19 | 1U << 16 | 100U << 2;
    EXPECT_EQ(pitch->data(0, 2000).toUInt(), id);
    ASSERT_NE(ProfileTree::parameter(*pitch), nullptr);
    EXPECT_EQ(ProfileTree::parameter(*pitch)->nme, text("Pitch"));
    EXPECT_EQ(pitch->data(0, 2001).value<void*>(), ProfileTree::parameter(*pitch));
    for (const QTreeWidgetItem* item :
         {arinc().topLevelItem(0), arinc().topLevelItem(0)->child(0)}) {
        EXPECT_FALSE(item->data(0, 2000).isValid());
        EXPECT_EQ(ProfileTree::parameter(*item), nullptr);
    }
    EXPECT_EQ(parameter(zorb(), 0)->data(0, 2000).toUInt(), 315U);
    ProfileStore::instance().unloadAll();
    dialog().refill();
    EXPECT_EQ(arinc().topLevelItemCount(), 0);
    EXPECT_EQ(zorb().topLevelItemCount(), 0);
}

TEST_F(SelectId, IdentifiersOfAllBatchesAreListedFromTheMakingOn)
{
    dialog();
    for (const std::uint32_t id : {9U, 2047U, 2048U, 9U, 0x1FFFFFFFU}) {
        notify(id);
    }
    EXPECT_EQ(listed(), (QStringList{text("9"), text("2047"), text("0x800"), text("0x1fffffff")}));
    EXPECT_EQ(active().topLevelItem(2)->data(0, 2000).toUInt(), 2048U);
    tabs().setCurrentIndex(2);
    dialog().show();
    click("clearList");
    EXPECT_TRUE(listed().isEmpty());
    notify(9);
    EXPECT_EQ(listed(), QStringList{text("9")});
}

TEST_F(SelectId, OkTakesWhatIsSelectedOnTheCurrentTab)
{
    load();
    notify(55);
    dialog().show();
    arinc().setCurrentItem(parameter(arinc(), 1));
    active().setCurrentItem(active().topLevelItem(0));
    click("ok");
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(dialog().chosenParameter().nme, text("Alpha"));
    EXPECT_EQ(dialog().chosenId(), dialog().chosenParameter().id);
    tabs().setCurrentIndex(2);
    dialog().show();
    click("ok");
    EXPECT_EQ(dialog().chosenId(), 55U);
    EXPECT_EQ(dialog().chosenParameter().id, 55U);
    EXPECT_EQ(dialog().chosenParameter().parameterKind, ParameterKind::Raw);
    EXPECT_EQ(dialog().chosenParameter().nme, text("Alpha")) << "other fields stay";
}

TEST_F(SelectId, DoubleClickTakesTheItemAndHides)
{
    load();
    dialog().show();
    tabs().setCurrentIndex(1);
    doubleClick(zorb(), parameter(zorb(), 0));
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(dialog().chosenId(), 315U);
    EXPECT_EQ(dialog().chosenParameter().nme, text("Speed"));
}

TEST_F(SelectId, ProfileOrGroupGivesIdentifierZeroAndKeepsTheParameter)
{
    load();
    dialog().show();
    arinc().setCurrentItem(parameter(arinc(), 0));
    click("ok");
    ASSERT_NE(dialog().chosenId(), 0U);
    arinc().setCurrentItem(arinc().topLevelItem(0)->child(0));
    dialog().show();
    click("ok");
    EXPECT_EQ(dialog().chosenId(), 0U);
    EXPECT_EQ(dialog().chosenParameter().nme, text("Pitch"));
}

TEST_F(SelectId, ChosenParameterOutlivesTheProfile)
{
    load();
    dialog().show();
    arinc().setCurrentItem(parameter(arinc(), 0));
    click("ok");
    ProfileStore::instance().unloadAll();
    dialog().refill();
    EXPECT_EQ(dialog().chosenParameter().nme, text("Pitch"));
}

class IdSelect : public SelectId
{
protected:
    IdSelect()
    {
        QObject::connect(&control, &QwtIdSelect::signalId, &control,
                         [this](int id) { told << QStringLiteral("id %1").arg(id); });
        QObject::connect(&control, &QwtIdSelect::signalParameter, &control,
                         [this](const ProfileParameter& para) { told << para.nme; });
        QObject::connect(&control, &QwtIdSelect::signalSelect, &control,
                         [this] { told << QStringLiteral("select"); });
        control.show();
    }
    QSpinBox& spinBox() const { return *control.findChild<QSpinBox*>(); }
    /// Presses the button, and then does that in the dialog.
    template <typename Action>
    void select(Action action)
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (QApplication::activeModalWidget() == &dialog()) {
                timer.stop();
                action();
            }
        });
        timer.start(0);
        QTest::mouseClick(control.findChild<QPushButton*>(), Qt::LeftButton);
    }

    QwtIdSelect control;
    QStringList told;
};

TEST_F(IdSelect, HasItsLook)
{
    auto* button = control.findChild<QPushButton*>();
    EXPECT_EQ(button->text(), text("Select Id"));
    EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(control.frameStyle(), 49);
    EXPECT_EQ(spinBox().minimum(), 0);
    EXPECT_EQ(spinBox().maximum(), 0x1FFFFFFF);
    control.resize(600, 40);
    QApplication::processEvents();
    EXPECT_NEAR(spinBox().width(), 2 * button->width(), 10);
}

TEST_F(IdSelect, TypedIdentifierIsTold)
{
    spinBox().setFocus();
    spinBox().selectAll();
    QTest::keyClicks(&spinBox(), text("47"));
    EXPECT_EQ(control.id(), 47);
    EXPECT_EQ(told, (QStringList{text("id 4"), text("id 47")}));
}

TEST_F(IdSelect, SetterTellsNothingAndClamps)
{
    control.setId(12);
    EXPECT_EQ(spinBox().value(), 12);
    EXPECT_EQ(control.id(), 12);
    control.setId(-1);
    EXPECT_EQ(control.id(), 0);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(IdSelect, ChoiceIsToldInOrderEachOnce)
{
    load();
    select([] {
        arinc().setCurrentItem(parameter(arinc(), 0));
        click("ok");
    });
    const int id = spinBox().value();
    EXPECT_EQ(id, static_cast<int>(dialog().chosenId()));
    EXPECT_EQ(control.id(), id);
    EXPECT_EQ(control.parameter().nme, text("Pitch"));
    EXPECT_EQ(told, (QStringList{QStringLiteral("id %1").arg(id), text("Pitch"), text("select")}));
}

TEST_F(IdSelect, IdentifierOfMoreThan29BitsIsShownAsTheLargest)
{
    dialog();
    notify(0xFFFFFFFF);
    select([] {
        tabs().setCurrentIndex(2);
        active().setCurrentItem(active().topLevelItem(0));
        click("ok");
    });
    EXPECT_EQ(control.id(), 0x1FFFFFFF);
}

TEST_F(IdSelect, CancelLeavesEverythingAsItWas)
{
    control.setId(12);
    load();
    select([] {
        arinc().setCurrentItem(parameter(arinc(), 0));
        QTest::keyClick(&dialog(), Qt::Key_Escape);
    });
    EXPECT_EQ(control.id(), 12);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(IdSelect, DialogThatGoesMeanwhileCancels)
{
    control.setId(12);
    select([] { DialogSelectId::destroy(); });
    EXPECT_EQ(control.id(), 12);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(IdSelect, ControlThatGoesMeanwhileTellsNothing)
{
    auto* passing = new QwtIdSelect;
    passing->show();
    QTimer::singleShot(0, &dialog(), [&] {
        delete passing;
        dialog().accept();
    });
    passing->slotSelect();
    EXPECT_FALSE(dialog().isVisible());
}

} // namespace
