#include "gui/controls/QwtBarItem.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/measure/DialogStatistic.h"
#include "gui/measure/QwtBusLoad.h"
#include "gui/measure/QwtPeriodItem.h"
#include "gui/measure/QwtSpread.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectStatistic.h"
#include "project/Project.h"
#include "tests/gui/PaintCounter.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

using zul::MessageCan;
using zul::test::PaintCounter;

const QColor aliveColor(220, 255, 220);
const QColor white(255, 255, 255);

struct Frame
{
    std::uint32_t id;
    double time;
    MessageCan::EFrameType type = MessageCan::EFrameType::Data;
};

MessageContainer batchOf(const std::vector<Frame>& frames, const char* source = "Nose")
{
    MessageContainer batch;
    batch.setSrcDest(source);
    for (const Frame& one : frames) {
        auto* frame = new MessageCan;
        frame->setId(one.id);
        frame->setTimeStamp(one.time);
        frame->setFrameType(one.type);
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

class StatisticWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = dynamic_cast<ObjectStatistic*>(m_project.createObject(ObjectType::Statistic));
        open();
    }
    void TearDown() override { delete m_dialog; }
    /// A window for the object as it is now, of a saved project.
    void open()
    {
        delete m_dialog;
        m_dialog = new gui::DialogStatistic(m_object, nullptr);
        m_dialog->show();
        m_tree = m_dialog->findChild<QTreeWidget*>(QStringLiteral("statisticTree"));
        m_project.save(QString());
    }
    void openAs(int view)
    {
        m_object->settings().displayType = view;
        open();
    }
    template <typename Widget>
    Widget* find(const char* name = "") const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    /// A batch after so many seconds.
    void feed(double seconds, MessageContainer batch)
    {
        m_clock.advance(seconds);
        m_dialog->receive(batch);
    }
    void click(const char* name) { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }
    void choose(int view)
    {
        auto* box = find<gui::QwtComboBox>("displayType");
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < view; ++i) {
            QTest::keyClick(box, Qt::Key_Down);
        }
        ASSERT_EQ(box->currentIndex(), view);
    }
    /// The texts of the first two cells of a row.
    QString row(int index) const
    {
        const QTreeWidgetItem* item = m_tree->topLevelItem(index);
        return item->text(0) + QLatin1Char('|') + item->text(1);
    }
    template <typename Cell>
    Cell* cell(int index) const
    {
        return qobject_cast<Cell*>(m_tree->itemWidget(m_tree->topLevelItem(index), 2));
    }
    QString counted() const { return find<QLabel>("inputCounter")->text(); }
    QPoint placeOf(int index) const
    {
        return m_tree->visualItemRect(m_tree->topLevelItem(index)).topLeft() + QPoint(20, 4);
    }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_clock{100.0};
    Project m_project{{ObjectStatistic::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    ObjectStatistic* m_object = nullptr;
    QPointer<gui::DialogStatistic> m_dialog;
    QTreeWidget* m_tree = nullptr;
};

TEST_F(StatisticWindow, HasItsControls)
{
    const auto* views = find<gui::QwtComboBox>("displayType");
    QStringList texts;
    for (int i = 0; i < views->count(); ++i) {
        texts.append(views->itemText(i));
        EXPECT_EQ(views->itemData(i).toInt(), i);
    }
    EXPECT_EQ(texts.join(QLatin1Char('|')),
              QStringLiteral("Average [Msg/s]|Period Time [ms]|Spreading (Single Message)|Bus Load "
                             "Total"));
    EXPECT_EQ(m_tree->columnCount(), 3);
    EXPECT_EQ(m_tree->columnWidth(0), 60);
    EXPECT_EQ(m_tree->columnWidth(1), 80);
    EXPECT_GE(m_tree->columnWidth(2), 120) << "the last one takes the rest";
    const auto* clear = find<QPushButton>("clear");
    EXPECT_EQ(clear->text(), QStringLiteral("Clear"));
    EXPECT_EQ(clear->palette().color(QPalette::Button), QColor(255, 180, 180));
    EXPECT_TRUE(find<QWidget>("filterSetup")->isEnabled());
    EXPECT_FALSE(find<QWidget>("outputSwitch")->isEnabled());
    EXPECT_FALSE(m_project.isEdited()) << "filling the controls changes nothing";
}

TEST_F(StatisticWindow, ViewsHaveTheirPagesAndHeads)
{
    auto* pages = m_dialog->findChild<QStackedWidget*>();
    const auto* select = m_dialog->findChild<gui::QwtIdSelect*>();
    const auto heads = [this] {
        const QTreeWidgetItem* head = m_tree->headerItem();
        return head->text(0) + QLatin1Char('|') + head->text(1) + QLatin1Char('|') + head->text(2);
    };
    EXPECT_EQ(pages->currentWidget(), m_tree);
    EXPECT_EQ(heads(), QStringLiteral("Id|Total|Msg/s"));
    EXPECT_FALSE(select->isEnabled());
    choose(1);
    EXPECT_EQ(m_object->settings().displayType, 1);
    EXPECT_EQ(pages->currentWidget(), m_tree);
    EXPECT_EQ(heads(), QStringLiteral("Id|Total|ms"));
    EXPECT_FALSE(select->isEnabled());
    choose(2);
    EXPECT_NE(qobject_cast<gui::QwtSpread*>(pages->currentWidget()), nullptr);
    EXPECT_TRUE(select->isEnabled());
    choose(3);
    EXPECT_NE(qobject_cast<gui::QwtBusLoad*>(pages->currentWidget()), nullptr);
    EXPECT_FALSE(select->isEnabled());
    EXPECT_TRUE(m_project.isEdited());
    m_object->settings().displayType = 77;
    m_dialog->updateDialog();
    EXPECT_EQ(pages->currentWidget(), m_tree) << "any other number is the first view";
}

TEST_F(StatisticWindow, RatesHaveRows)
{
    feed(0.05, batchOf({{0x700, 50.0}, {9, 50.01}, {0x700, 50.02}}));
    ASSERT_EQ(m_tree->topLevelItemCount(), 2);
    EXPECT_EQ(row(0), QStringLiteral("S 1792|2"));
    EXPECT_EQ(row(1), QStringLiteral("S 9|1"));
    const QTreeWidgetItem* item = m_tree->topLevelItem(0);
    EXPECT_EQ(item->data(0, Qt::UserRole).toUInt(), 0x700U);
    EXPECT_TRUE(item->font(0).bold());
    EXPECT_FALSE(item->font(1).bold());
    EXPECT_NE(cell<gui::QwtBarItem>(0), nullptr);
    EXPECT_EQ(counted(), QStringLiteral("0003"));
}

TEST_F(StatisticWindow, PeriodsHaveRowsInHexadecimal)
{
    openAs(1);
    feed(0.05, batchOf({{0x700, 50.0}, {0x700, 50.02}, {0x700, 50.03}}));
    EXPECT_EQ(row(0), QStringLiteral("S 0x700|3"));
    const auto* period = cell<gui::QwtPeriodItem>(0);
    ASSERT_NE(period, nullptr);
    EXPECT_NEAR(period->period(), 0.01, 1e-9);
    EXPECT_NEAR(period->minimum(), 0.01, 1e-9);
    EXPECT_NEAR(period->maximum(), 0.02, 1e-9);
    EXPECT_NEAR(period->scale(), 0.024, 1e-9);
}

TEST_F(StatisticWindow, PeriodIsTakenOutrightForTwoFramesAndSmoothedThen)
{
    openAs(1);
    feed(0.05, batchOf({{7, 50.0}, {7, 50.5}}));
    const auto* period = cell<gui::QwtPeriodItem>(0);
    EXPECT_NEAR(period->filtered(), 0.5, 1e-6);
    feed(0.1, batchOf({{7, 50.6}, {7, 50.7}}));
    EXPECT_NEAR(period->period(), 0.1, 1e-6);
    EXPECT_NEAR(period->filtered(), (0.3 * 0.5 + 0.1 * 0.1) / 0.4, 1e-6);
}

TEST_F(StatisticWindow, RowTurnsWhiteAtTheFirstBatchHalfASecondLater)
{
    feed(0.05, batchOf({{7, 50.0}}));
    const QTreeWidgetItem* item = m_tree->topLevelItem(0);
    const auto marker = [&] { return item->icon(1).pixmap(16, 14).toImage(); };
    const auto background = [&](int column) { return item->background(column).color(); };
    const QImage green = marker();
    EXPECT_GT(green.pixelColor(8, 9).green(), green.pixelColor(8, 9).red());
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(background(column), aliveColor);
    }
    EXPECT_EQ(cell<QWidget>(0)->grab().toImage().pixelColor(cell<QWidget>(0)->width() - 3, 2),
              aliveColor);
    feed(0.5, batchOf({}));
    EXPECT_EQ(background(0), aliveColor) << "not exceeded";
    feed(0.02, batchOf({}));
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(background(column), white);
    }
    EXPECT_GT(marker().pixelColor(8, 9).red(), marker().pixelColor(8, 9).green());
    EXPECT_EQ(cell<QWidget>(0)->grab().toImage().pixelColor(cell<QWidget>(0)->width() - 3, 2),
              white);
    feed(0.02, batchOf({{7, 51.0}}));
    EXPECT_EQ(background(0), aliveColor);
    EXPECT_EQ(marker(), green);
}

TEST_F(StatisticWindow, RowIsPaintedAsItIs)
{
    feed(0.05, batchOf({{7, 50.0}}));
    const auto corner = [this] {
        const QRect cells = m_tree->visualItemRect(m_tree->topLevelItem(0));
        return m_tree->viewport()->grab().toImage().pixelColor(cells.left() + 1, cells.top() + 1);
    };
    EXPECT_EQ(corner(), aliveColor);
    feed(0.6, batchOf({}));
    EXPECT_EQ(corner(), white);
}

TEST_F(StatisticWindow, ErrorFrameIsRedForAsLongAsItIsTheLast)
{
    feed(0.05, batchOf({{7, 50.0, MessageCan::EFrameType::Error}}));
    const QTreeWidgetItem* item = m_tree->topLevelItem(0);
    EXPECT_EQ(row(0), QStringLiteral("ERROR FRAME|1"));
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(item->foreground(column).color(), QColor(255, 0, 0));
    }
    feed(2.0, batchOf({}));
    EXPECT_EQ(row(0), QStringLiteral("ERROR FRAME|1"));
    feed(0.05, batchOf({{7, 52.1}}));
    EXPECT_EQ(row(0), QStringLiteral("S 7|2"));
    EXPECT_EQ(item->foreground(0).color(), QColor(0, 0, 0));
}

TEST_F(StatisticWindow, RateOfASilentIdentifierFallsToZero)
{
    for (int i = 0; i < 40; ++i) {
        feed(0.05, batchOf({{7, 50.0 + i * 0.05}, {7, 50.01 + i * 0.05}}));
    }
    const auto* bar = cell<gui::QwtBarItem>(0);
    EXPECT_NEAR(bar->rate(), 40.0, 2.0);
    EXPECT_EQ(bar->maximum(), 40U);
    for (int i = 0; i < 100; ++i) {
        feed(0.05, batchOf({}));
    }
    EXPECT_NEAR(bar->rate(), 0.0, 0.1);
    EXPECT_EQ(bar->maximum(), 40U) << "the highest rate stays the scale";
}

TEST_F(StatisticWindow, IdentifiersOfManyBatchesFillTheWindowAndMore)
{
    m_dialog->show();
    QApplication::processEvents();
    for (std::uint32_t id = 0; id < 80; id += 2) {
        const double time = 50.0 + id * 0.05;
        feed(0.05, batchOf({{id, time}, {id + 1, time}}));
        QApplication::processEvents();
    }
    EXPECT_EQ(m_tree->topLevelItemCount(), 80);
    EXPECT_EQ(m_tree->topLevelItem(79)->data(0, Qt::UserRole).toUInt(), 79U);
    EXPECT_NE(m_tree->itemWidget(m_tree->topLevelItem(0), 2), nullptr);
}

TEST_F(StatisticWindow, ClearEmptiesAll)
{
    feed(0.05, batchOf({{7, 50.0}, {7, 50.1}}));
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(0));
    click("clear");
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_EQ(m_dialog->statistic().table().rowCount(), 0);
    EXPECT_EQ(m_dialog->statistic().table().rateMax(), 0U);
    EXPECT_DOUBLE_EQ(m_dialog->statistic().table().periodScale(), 0.0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5));
    QApplication::sendEvent(m_dialog, &event); // no current item, no menu that would block
    feed(0.05, batchOf({{8, 50.2}}));
    EXPECT_EQ(row(0), QStringLiteral("S 8|1"));
    EXPECT_EQ(counted(), QStringLiteral("0003"));
}

TEST_F(StatisticWindow, AnotherViewEmptiesTheRowsAndTheSpreadingButNotTheBusLoad)
{
    openAs(3);
    feed(0.05, batchOf({{7, 50.0}}));
    auto& statistic = const_cast<Statistic&>(m_dialog->statistic());
    EXPECT_EQ(statistic.busLoad().count(), 1U);
    choose(2);
    m_dialog->findChild<gui::QwtIdSelect*>()->findChild<QSpinBox*>()->setValue(7);
    feed(0.05, batchOf({{7, 50.1}}));
    EXPECT_EQ(statistic.spread().count(), 1U);
    choose(0);
    EXPECT_EQ(statistic.spread().count(), 0U);
    feed(0.05, batchOf({{7, 50.2}}));
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    choose(3);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_EQ(statistic.busLoad().count(), 1U);
    click("clear");
    EXPECT_EQ(statistic.busLoad().count(), 0U);
}

TEST_F(StatisticWindow, DoubleClickShowsTheSpreadingOfARow)
{
    feed(0.05, batchOf({{7, 50.0}, {9, 50.1}}));
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(1));
    QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(1));
    EXPECT_EQ(m_object->settings().selectedId, 9U);
    EXPECT_EQ(m_object->settings().displayType, 2);
    EXPECT_EQ(m_dialog->findChild<gui::QwtIdSelect*>()->id(), 9);
    EXPECT_EQ(find<gui::QwtComboBox>("displayType")->currentIndex(), 2);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(StatisticWindow, ContextMenuShowsTheSpreadingOfTheCurrentRow)
{
    feed(0.05, batchOf({{7, 50.0}, {9, 50.1}}));
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(1));
    QStringList entries;
    QTimer::singleShot(0, m_dialog, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const QAction* action : menu->actions()) {
            entries.append(action->text());
        }
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5));
    QApplication::sendEvent(m_dialog, &event);
    EXPECT_EQ(entries, QStringList{QStringLiteral("Show Spreading")});
    EXPECT_EQ(m_object->settings().selectedId, 9U);
    EXPECT_EQ(m_object->settings().displayType, 2);
}

TEST_F(StatisticWindow, FramesOfOtherIdentifiersOnlyCountInTheSpreading)
{
    m_object->settings().selectedId = 7;
    openAs(2);
    auto* spread = m_dialog->findChild<gui::QwtSpread*>();
    feed(0.05, batchOf({{7, 50.0}, {7, 50.1}, {7, 50.3}}));
    const QImage before = spread->grab().toImage();
    feed(0.05, batchOf({{8, 50.3}, {9, 50.4}}));
    EXPECT_EQ(spread->grab().toImage(), before);
    EXPECT_EQ(counted(), QStringLiteral("0005"));
    feed(0.05, batchOf({{7, 50.5}}));
    EXPECT_NE(spread->grab().toImage(), before);
}

TEST_F(StatisticWindow, HistogramsAreRepaintedOnlyWhenTheyHaveOtherMessages)
{
    m_object->settings().selectedId = 7;
    for (const int view : {2, 3}) {
        openAs(view);
        auto* page = m_dialog->findChild<QStackedWidget*>()->currentWidget();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_dialog));
        feed(0.05, batchOf({{7, 50.0}, {7, 50.1}}));
        QApplication::processEvents();
        const PaintCounter painted(*page);
        feed(0.05, batchOf({}));
        QApplication::processEvents();
        EXPECT_EQ(painted.count, 0) << view;
        feed(0.05, batchOf({{7, 50.2}}));
        QApplication::processEvents();
        EXPECT_EQ(painted.count, 1) << view;
        click("clear");
        QApplication::processEvents();
        EXPECT_EQ(painted.count, 2) << view;
    }
}

TEST_F(StatisticWindow, OtherIdentifierStartsTheSpreadingAnew)
{
    m_object->settings().selectedId = 7;
    openAs(2);
    feed(0.05, batchOf({{7, 50.0}, {7, 50.1}}));
    m_dialog->findChild<gui::QwtIdSelect*>()->findChild<QSpinBox*>()->setValue(8);
    EXPECT_EQ(m_object->settings().selectedId, 8U);
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_EQ(const_cast<Statistic&>(m_dialog->statistic()).spread().count(), 0U);
}

TEST_F(StatisticWindow, BatchFromAnotherInterfaceOnlyAdvancesTheClock)
{
    m_object->settings().inputInterface = QStringLiteral("Tail");
    open();
    const double clock = m_dialog->statistic().clock();
    feed(0.25, batchOf({{7, 50.0}}));
    EXPECT_DOUBLE_EQ(m_dialog->statistic().clock(), clock + 0.25);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_EQ(counted(), QStringLiteral("0000"));
    emit m_dialog->findChild<WidgetHeader*>()->signalInputInterface(QStringLiteral("Nose"));
    EXPECT_EQ(m_object->settings().inputInterface, QStringLiteral("Nose"));
    feed(0.05, batchOf({{7, 50.0}}));
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
}

TEST_F(StatisticWindow, InputSwitchAndFilterDecide)
{
    click("inputSwitch");
    EXPECT_FALSE(m_object->settings().inputOn);
    feed(0.05, batchOf({{7, 50.0}}));
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_EQ(counted(), QStringLiteral("0001"));
    click("inputSwitch");
    m_object->filter().setMin(8);
    click("filterSwitch");
    EXPECT_TRUE(m_object->filter().isOn());
    feed(0.05, batchOf({{7, 50.0}, {8, 50.0}}));
    EXPECT_EQ(row(0), QStringLiteral("S 8|1"));
    auto* filter = m_dialog->findChild<gui::DialogFilter*>();
    click("filterSetup");
    EXPECT_TRUE(filter->isVisible());
    filter->findChild<QSpinBox*>(QStringLiteral("minId"))->setValue(7);
    feed(0.05, batchOf({{7, 50.1}}));
    EXPECT_EQ(m_tree->topLevelItemCount(), 2);
}

TEST_F(StatisticWindow, WithoutItsObjectItDoesNothing)
{
    feed(0.05, batchOf({{7, 50.0}}));
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(0));
    click("filterSetup");
    m_project.deleteObject(m_object->id());
    EXPECT_FALSE(m_dialog->findChild<gui::DialogFilter*>()->isVisible());
    feed(0.05, batchOf({{8, 50.1}}));
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(0));
    choose(2);
    m_dialog->updateDialog();
    click("inputSwitch");
    click("clear");
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
}

TEST_F(StatisticWindow, LongIdentifiersAreNotCut)
{
    auto* frame = new MessageCan;
    frame->setId(0x1FFFFFFF);
    frame->setMode(MessageCan::EMsgMode::ExtendedFdBrs);
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(frame));
    feed(0.05, batch);
    const QTreeWidgetItem* item = m_tree->topLevelItem(0);
    EXPECT_EQ(item->text(0), QStringLiteral("EB 536870911"));
    EXPECT_GT(m_tree->columnWidth(0), QFontMetrics(item->font(0)).horizontalAdvance(item->text(0)));
    click("clear");
    EXPECT_EQ(m_tree->columnWidth(0), 60);
}

TEST_F(StatisticWindow, RowsGetTheirCellsWhenTheyComeIntoView)
{
    std::vector<Frame> frames;
    for (std::uint32_t id = 0; id < 500; ++id) {
        for (int i = 0; i < 5; ++i) {
            frames.push_back({id, 50.0 + i * 0.001});
        }
    }
    feed(0.05, batchOf(frames));
    EXPECT_EQ(m_tree->topLevelItemCount(), 500);
    EXPECT_NE(cell<gui::QwtBarItem>(0), nullptr);
    EXPECT_NEAR(cell<gui::QwtBarItem>(0)->rate(), 0.0, 1e-9) << "a new bar rises from 0";
    EXPECT_EQ(cell<gui::QwtBarItem>(499), nullptr);
    EXPECT_EQ(row(499), QStringLiteral("S 499|5"));
    feed(0.05, batchOf({}));
    m_tree->verticalScrollBar()->setValue(m_tree->verticalScrollBar()->maximum());
    ASSERT_NE(cell<gui::QwtBarItem>(499), nullptr);
    EXPECT_NEAR(cell<gui::QwtBarItem>(499)->rate(), 5.0, 1e-6) << "it did so before";
    EXPECT_EQ(cell<gui::QwtBarItem>(250), nullptr);
    m_tree->scrollToItem(m_tree->topLevelItem(250));
    EXPECT_NE(cell<gui::QwtBarItem>(250), nullptr);
}

TEST_F(StatisticWindow, TallerWindowGivesMoreRowsTheirCells)
{
    openAs(1);
    std::vector<Frame> frames;
    for (std::uint32_t id = 0; id < 60; ++id) {
        for (int i = 0; i < 5; ++i) {
            frames.push_back({id, 50.0 + i * 0.01});
        }
    }
    feed(0.05, batchOf(frames));
    EXPECT_EQ(cell<gui::QwtPeriodItem>(55), nullptr);
    m_dialog->resize(600, 2'000);
    QApplication::processEvents();
    ASSERT_NE(cell<gui::QwtPeriodItem>(55), nullptr);
    EXPECT_NEAR(cell<gui::QwtPeriodItem>(55)->filtered(), 0.01, 1e-6);
}

TEST_F(StatisticWindow, CellsAreRepaintedOnlyWhenTheyShowSomethingElse)
{
    feed(0.05, batchOf({{7, 50.0}, {8, 50.0}}));
    for (int i = 0; i < 100; ++i) {
        feed(0.05, batchOf({}));
    }
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_dialog));
    QApplication::processEvents();
    const PaintCounter first(*cell<gui::QwtBarItem>(0));
    const PaintCounter viewport(*m_tree->viewport());
    feed(0.05, batchOf({}));
    QApplication::processEvents();
    EXPECT_EQ(first.count, 0);
    EXPECT_EQ(viewport.count, 0);
    feed(0.05, batchOf({{7, 55.0}}));
    QApplication::processEvents();
    EXPECT_GT(first.count, 0);
    EXPECT_GT(viewport.count, 0);
}

} // namespace
