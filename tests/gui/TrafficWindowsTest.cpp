#include "core/SettingsStore.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/WidgetStatus.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/MessageGuiDialog.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/traffic/DialogStatus.h"
#include "message/MessageCtrl.h"
#include "message/MessageStatus.h"
#include "tests/gui/ReceiveFixture.h"
#include "tests/support/ProbeObjects.h"

#include <QAbstractEventDispatcher>
#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QToolButton>

#include <set>

namespace {

using zul::MessageCan;
using zul::test::batchOf;

class DialogReceiveTest : public zul::test::ReceiveTest
{
};

TEST_F(DialogReceiveTest, HasItsColumnsAndControls)
{
    QStringList headers;
    for (int i = 0; i < m_tree->columnCount(); ++i) {
        headers.append(m_tree->headerItem()->text(i));
    }
    EXPECT_EQ(headers,
              (QStringList{QStringLiteral("Msgs"), QStringLiteral("Time"), QStringLiteral("Id"),
                           QStringLiteral("Len"), QStringLiteral("Message")}));
    EXPECT_EQ(m_tree->columnWidth(0), 100);
    EXPECT_GE(m_tree->columnWidth(1), 100);
    EXPECT_GE(m_tree->columnWidth(2), 100);
    EXPECT_EQ(m_tree->columnWidth(3), 50);
    EXPECT_TRUE(m_tree->rootIsDecorated());
    EXPECT_TRUE(m_tree->uniformRowHeights());
    EXPECT_TRUE(m_tree->isSortingEnabled());
    EXPECT_EQ(m_dialog->minimumWidth(), 350);
    EXPECT_EQ(m_dialog->size(), QSize(550, 300));
    auto* clear = m_dialog->findChild<QPushButton*>(QStringLiteral("clear"));
    EXPECT_EQ(clear->text(), QStringLiteral("Clear"));
    EXPECT_EQ(clear->height(), 22);
    EXPECT_EQ(clear->palette().color(QPalette::Button), QColor(255, 180, 180));
}

TEST_F(DialogReceiveTest, ChoosingTheModeBringsBackHeadersAndWidths)
{
    m_tree->setColumnWidth(3, 333);
    m_tree->headerItem()->setText(0, QStringLiteral("?"));
    auto* mode = m_dialog->findChild<gui::QwtComboBox*>();
    emit mode->activated(0);
    EXPECT_EQ(m_tree->columnWidth(3), 50);
    EXPECT_EQ(m_tree->headerItem()->text(0), QStringLiteral("Msgs"));
}

TEST_F(DialogReceiveTest, FrameBecomesAGreenRow)
{
    feed(batchOf(0x12, 2));
    ASSERT_EQ(m_tree->topLevelItemCount(), 1);
    const QTreeWidgetItem& row = *m_tree->topLevelItem(0);
    EXPECT_EQ(row.text(2), QStringLiteral("18")); // until the first painting
    ASSERT_TRUE(painted(2, "S 18"));
    EXPECT_EQ(row.text(0), QStringLiteral("1"));
    EXPECT_EQ(row.text(1), QStringLiteral("1.5000"));
    EXPECT_EQ(row.text(3), QStringLiteral("D2"));
    EXPECT_EQ(row.text(4), QStringLiteral("  0-> 171 000"));
    EXPECT_EQ(row.background(0).color(), QColor(220, 255, 220));
    EXPECT_EQ(row.background(4).color(), QColor(220, 255, 220));
    EXPECT_EQ(row.child(2)->background(4).color(), QColor(220, 255, 220));
    EXPECT_EQ(row.foreground(2).color(), QColor(0, 0, 0));
    EXPECT_FALSE(row.icon(0).isNull());
    EXPECT_EQ(row.font(2).weight(), 75);
    EXPECT_TRUE(row.font(3).bold());
    EXPECT_EQ(row.font(4).family(), QStringLiteral("Courier"));
    EXPECT_EQ(row.childCount(), 3);
    EXPECT_FALSE(row.data(0, Qt::UserRole).isValid());
}

TEST_F(DialogReceiveTest, RowsStayGreenWhileNoBatchComes)
{
    feed(batchOf(1, 1));
    ASSERT_TRUE(painted(2, "S 1"));
    m_clock.advance(10.0);
    QTest::qWait(3 * gui::DialogReceive::paintPeriodMs); // paintings alone age nothing
    EXPECT_EQ(m_tree->topLevelItem(0)->background(0).color(), QColor(220, 255, 220));
    EXPECT_TRUE(m_dialog->table().row(0).active);
}

TEST_F(DialogReceiveTest, SilentRowTurnsWhiteAtTheNextBatchAfterHalfASecond)
{
    feed(batchOf(1, 1));
    ASSERT_TRUE(painted(2, "S 1"));
    m_clock.advance(0.6);
    MessageContainer empty;
    empty.setSrcDest("Nose");
    feed(empty);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return m_tree->topLevelItem(0)->background(0).color() == QColor(255, 255, 255); }));
    feed(batchOf(1, 1));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return m_tree->topLevelItem(0)->background(0).color() == QColor(220, 255, 220); }));
}

TEST_F(DialogReceiveTest, ErrorFrameIsRedKeepsTheBytesAndANormalFrameIsBlackAgain)
{
    feed(batchOf(1, 1));
    ASSERT_TRUE(painted(2, "S 1"));
    feed(batchOf(1, 8, MessageCan::EFrameType::Error));
    ASSERT_TRUE(painted(2, "ERROR FRAME"));
    const QTreeWidgetItem& row = *m_tree->topLevelItem(0);
    EXPECT_EQ(row.text(3), QString());
    EXPECT_EQ(row.text(4), QStringLiteral("  0-> 171"));
    EXPECT_EQ(row.foreground(0).color(), QColor(255, 0, 0));
    EXPECT_EQ(row.foreground(4).color(), QColor(255, 0, 0));
    feed(batchOf(1, 1));
    ASSERT_TRUE(painted(2, "S 1"));
    EXPECT_EQ(row.foreground(0).color(), QColor(0, 0, 0));
}

TEST_F(DialogReceiveTest, LongFrameShowsItsLinesAndAShortOneHidesThem)
{
    feed(batchOf(1, 64));
    ASSERT_TRUE(painted(3, "D64"));
    const QTreeWidgetItem& row = *m_tree->topLevelItem(0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(row.child(i)->isHidden()) << i;
        EXPECT_TRUE(row.child(i)->text(4).startsWith(QString::asprintf(" %2d-> ", 16 * (i + 1))));
    }
    feed(batchOf(1, 33));
    ASSERT_TRUE(painted(3, "D33"));
    EXPECT_FALSE(row.child(1)->isHidden());
    EXPECT_TRUE(row.child(2)->isHidden());
    feed(batchOf(1, 8));
    ASSERT_TRUE(painted(3, "D8"));
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(row.child(i)->isHidden()) << i;
    }
}

TEST_F(DialogReceiveTest, NumberTypeRepaintsEveryRowAtOnce)
{
    feed(batchOf(0x1F, 1));
    ASSERT_TRUE(painted(2, "S 31"));
    click("numberFormat");
    EXPECT_EQ(m_tree->topLevelItem(0)->text(2), QStringLiteral("S 0x1F"));
    EXPECT_EQ(m_tree->topLevelItem(0)->text(4), QStringLiteral("  0-> $ab"));
    EXPECT_EQ(m_object->settings().numberType, 1);
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf(0x2E, 1));
    EXPECT_EQ(m_tree->topLevelItem(1)->text(2), QStringLiteral("0X2E"));
}

TEST_F(DialogReceiveTest, OnlyTheSelectedInterfaceCounts)
{
    m_object->settings().inputInterface = QStringLiteral("Tail");
    m_dialog->updateDialog();
    feed(batchOf(1, 1));
    EXPECT_EQ(m_dialog->table().receivedTotal(), 0U);
    m_object->settings().inputInterface = QStringLiteral("Nose");
    m_dialog->updateDialog();
    feed(batchOf(1, 1));
    EXPECT_EQ(m_dialog->table().receivedTotal(), 1U);
}

TEST_F(DialogReceiveTest, InputOffGoesOnCountingInTheHeader)
{
    click("inputSwitch");
    EXPECT_FALSE(m_object->settings().inputOn);
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf(1, 1));
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    auto* counter = m_dialog->findChild<QLabel*>(QStringLiteral("inputCounter"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter->text() == QStringLiteral("0001"); }));
}

TEST_F(DialogReceiveTest, FilterSwitchWritesThrough)
{
    click("filterSwitch");
    EXPECT_TRUE(m_object->filter().isOn());
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(DialogReceiveTest, ClearEmptiesTheTreeAndKeepsTheCounter)
{
    feed(batchOf(1, 1));
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    click("clear");
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_EQ(m_dialog->table().receivedTotal(), 1U);
    feed(batchOf(2, 1));
    EXPECT_TRUE(painted(2, "S 2"));
}

TEST_F(DialogReceiveTest, FirstSwitchOfTheDisplayModeEmptiesTheRowsTheNextDoesNot)
{
    feed(batchOf(1, 1));
    auto* mode = m_dialog->findChild<gui::QwtComboBox*>(QStringLiteral("displayMode"));
    emit mode->signalActivated(0);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    feed(batchOf(1, 1));
    emit mode->signalActivated(0);
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
}

TEST_F(DialogReceiveTest, DoubleClickAsksForADialWithoutAnIdentifier)
{
    std::vector<int> wanted;
    gui::GuiRequests::setHandler([&](std::unique_ptr<Message> request) {
        const auto& dial = dynamic_cast<const MessageGuiDialog&>(*request);
        wanted.push_back(dial.objectType());
        wanted.push_back(dial.parameter());
    });
    emit m_tree->itemDoubleClicked(nullptr, 0); // nothing is current yet
    EXPECT_TRUE(wanted.empty());
    feed(batchOf(77, 1));
    m_dialog->show();
    const QRect place = m_tree->visualItemRect(m_tree->topLevelItem(0));
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    EXPECT_EQ(wanted, (std::vector<int>{8, 0}));
}

TEST_F(DialogReceiveTest, SortsByNumbers)
{
    feed(batchOf(100, 1));
    feed(batchOf(9, 1));
    ASSERT_TRUE(painted(2, "S 100"));
    EXPECT_EQ(m_tree->topLevelItem(0)->text(2), QStringLiteral("S 100")); // order of arrival
    m_tree->sortByColumn(2, Qt::AscendingOrder);
    EXPECT_EQ(m_tree->topLevelItem(0)->text(2), QStringLiteral("S 9"));
    m_tree->sortByColumn(2, Qt::DescendingOrder);
    EXPECT_EQ(m_tree->topLevelItem(0)->text(2), QStringLiteral("S 100"));
}

TEST_F(DialogReceiveTest, SurvivesItsObject)
{
    feed(batchOf(1, 1));
    m_project.deleteObject(m_object->id());
    EXPECT_EQ(m_dialog->object(), nullptr);
    feed(batchOf(2, 1));
    click("numberFormat");
    click("inputSwitch");
    click("clear");
    m_dialog->updateDialog();
    EXPECT_EQ(m_dialog->table().receivedTotal(), 1U);
}

class DialogStatusTest : public testing::Test
{
protected:
    void TearDown() override
    {
        SettingsStore::instance().reset();
        delete m_dialog;
    }
    void report(std::size_t entries)
    {
        auto* status = new zul::MessageStatus;
        for (std::size_t i = 0; i < entries; ++i) {
            status->entries.push_back(
                {"Label " + std::to_string(i), std::to_string(i * i), "#ffffff"});
        }
        MessageContainer batch;
        batch.addMessage(SmartPtr<Message>(new Message));
        batch.addMessage(SmartPtr<Message>(status));
        m_dialog->receive(batch);
    }
    std::vector<WidgetStatus*> visibleRows() const
    {
        std::vector<WidgetStatus*> rows;
        for (auto* row : m_dialog->findChildren<WidgetStatus*>()) {
            if (!row->isHidden()) {
                rows.push_back(row);
            }
        }
        return rows;
    }

    zul::test::ProbeInterface m_interface;
    QPointer<gui::DialogStatus> m_dialog = new gui::DialogStatus(&m_interface, nullptr);
};

TEST_F(DialogStatusTest, StartsWithTwentyHiddenRows)
{
    EXPECT_EQ(m_dialog->findChildren<WidgetStatus*>().size(), 20);
    EXPECT_TRUE(visibleRows().empty());
    EXPECT_EQ(m_dialog->size(), QSize(200, 400));
}

TEST_F(DialogStatusTest, EachReportReplacesTheView)
{
    report(3);
    ASSERT_EQ(visibleRows().size(), 3U);
    EXPECT_EQ(visibleRows()[2]->label(), QStringLiteral("Label 2"));
    EXPECT_EQ(visibleRows()[2]->value(), QStringLiteral("4"));
    report(1);
    EXPECT_EQ(visibleRows().size(), 1U);
    report(0);
    EXPECT_TRUE(visibleRows().empty());
}

TEST_F(DialogStatusTest, ReportOfMoreThanTwentyShowsTheFirstTwenty)
{
    report(25);
    ASSERT_EQ(visibleRows().size(), 20U);
    EXPECT_EQ(visibleRows()[19]->label(), QStringLiteral("Label 19"));
}

TEST_F(DialogStatusTest, ClearStatusGoesToItsOwnInterface)
{
    auto* button = m_dialog->findChild<QPushButton*>(QStringLiteral("clearStatus"));
    EXPECT_EQ(button->text(), QStringLiteral("Clear Status"));
    EXPECT_EQ(button->palette().color(QPalette::Button), QColor(255, 180, 180));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(m_interface.sent, std::vector<std::string>{"All Interfaces"});
}

TEST_F(DialogStatusTest, ClosesWithoutAskingAndKeepsTheInterfaceWhateverTheSetting)
{
    for (const int policy : {0, 1, 2, 3}) {
        SettingsStore::instance().setInteger(QStringLiteral("OnCloseDialog"), policy);
        delete m_dialog;
        m_dialog = new gui::DialogStatus(&m_interface, nullptr);
        const QSignalSpy kept(m_dialog.data(), &gui::DialogBase::signalDeleteDialog);
        const QSignalSpy removed(m_dialog.data(), &gui::DialogBase::signalDeleteObject);
        const int asked = gui::MessageBoxes::count();
        EXPECT_TRUE(m_dialog->close()) << policy;
        EXPECT_EQ(gui::MessageBoxes::count(), asked) << policy;
        EXPECT_EQ(removed.count(), 0) << policy;
        ASSERT_EQ(kept.count(), 1) << policy;
        EXPECT_EQ(kept.at(0).at(0).toInt(), m_interface.id());
    }
}

/// Timers of 200 ms that run for the object's children or as single shots.
std::set<int> timersFor(const QObject& object)
{
    QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    std::set<int> ids;
    for (const QObject* owner : {static_cast<const QObject*>(dispatcher), &object}) {
        for (QObject* child : owner->findChildren<QObject*>()) {
            for (const auto& timer : dispatcher->registeredTimers(child)) {
                if (timer.interval == 200) {
                    ids.insert(timer.timerId);
                }
            }
        }
    }
    return ids;
}

TEST_F(DialogStatusTest, ItsTimerOf200MillisecondsRunsOnceAndChangesNothing)
{
    delete m_dialog;
    const std::set<int> others = timersFor(QObject());
    m_dialog = new gui::DialogStatus(&m_interface, nullptr);
    std::set<int> own = timersFor(*m_dialog);
    for (const int id : others) {
        own.erase(id);
    }
    ASSERT_EQ(own.size(), 1U);
    report(3);
    EXPECT_TRUE(QTest::qWaitFor([&] { return timersFor(*m_dialog).count(*own.begin()) == 0; }));
    ASSERT_EQ(visibleRows().size(), 3U);
    EXPECT_EQ(visibleRows()[2]->value(), QStringLiteral("4"));
}

} // namespace
