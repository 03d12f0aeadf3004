#include "gui/controls/QwtBarItem.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/measure/DialogStatistic.h"
#include "gui/measure/QwtBusLoad.h"
#include "gui/measure/QwtPeriodItem.h"
#include "gui/measure/QwtSpread.h"
#include "gui/measure/StatisticTree.h"
#include "measure/BusLoadHistogram.h"
#include "measure/SpreadHistogram.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectDial.h"
#include "project/ObjectStatistic.h"
#include "project/Project.h"
#include "tests/gui/PaintCounter.h"
#include "tests/gui/PaintRecorder.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QMetaMethod>
#include <QPointer>
#include <QScrollBar>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>

// What the statistic window's widgets draw and when, and how the window lives with its object.

namespace {

using zul::test::PaintCounter;
using zul::test::PaintRecorder;

const QColor white(255, 255, 255);
const QColor black(0, 0, 0);
const QColor bandColor(200, 200, 0);
const QColor lineColor(200, 0, 0);

/// How often a widget on the screen is painted after an action.
int paintingsAfter(QWidget& widget, const std::function<void()>& action)
{
    QApplication::processEvents();
    const PaintCounter painted(widget);
    action();
    EXPECT_EQ(painted.count, 0) << "painting is asked for, and not done at once";
    QApplication::processEvents();
    return painted.count;
}

class PeriodCell : public testing::Test
{
protected:
    PeriodCell()
    {
        m_item.resize(401, 20);
        m_item.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_item));
    }
    int paintings(const std::function<void()>& action) { return paintingsAfter(m_item, action); }
    /// The columns of a colour in the cell's upper part, as first and last one.
    std::pair<int, int> columnsOf(const QColor& color)
    {
        const QImage image = m_item.grab().toImage();
        std::pair<int, int> found{-1, -1};
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, 2) == color) {
                found = {found.first < 0 ? x : found.first, x};
            }
        }
        return found;
    }

    zul::test::SettableClock m_clock;
    gui::QwtPeriodItem m_item;
};

TEST_F(PeriodCell, TextStandsInTheMiddleInBlack)
{
    QPalette dark = m_item.palette();
    dark.setColor(QPalette::WindowText, Qt::white);
    m_item.setPalette(dark);
    m_item.setPeriod(0.01, 0.009, 0.0115, 0.012);
    const PaintRecorder painted(m_item);
    ASSERT_EQ(painted.texts.size(), 1U);
    const auto text = painted.find(QStringLiteral("[9.000 ms]  10.000 ms  [11.500 ms]"));
    EXPECT_NEAR(text.middle.x(), 200.5, 1.5);
    EXPECT_EQ(text.color, black) << "the background is light in any palette";
}

TEST_F(PeriodCell, BandGoesFromTheShortestToTheLongest)
{
    m_item.startAt(0.9);
    m_item.setPeriod(0.9, 0.25, 0.75, 1.0);
    EXPECT_EQ(columnsOf(bandColor), (std::pair<int, int>{100, 299}));
    EXPECT_EQ(columnsOf(lineColor), (std::pair<int, int>{360, 360})) << "1 pixel wide";
    m_item.setPeriod(0.9, 0.25, 0.75, 2.0);
    EXPECT_EQ(columnsOf(bandColor), (std::pair<int, int>{50, 149}));
    m_item.setPeriod(0.9, 0.5, 0.5, 1.0);
    EXPECT_EQ(columnsOf(bandColor), (std::pair<int, int>{-1, -1})) << "no band between equals";
    m_item.setPeriod(0.9, -5.0, 99.0, 1.0);
    EXPECT_EQ(columnsOf(bandColor), (std::pair<int, int>{1, 399})) << "all but the border";
}

TEST_F(PeriodCell, LineFollowsTheSmoothedPeriod)
{
    m_item.startAt(0.5);
    m_clock.advance(0.1);
    m_item.setPeriod(1.0, 0.0, 0.0, 1.0);
    const double filtered = (0.3 * 0.5 + 1.0 * 0.1) / 0.4;
    EXPECT_NEAR(m_item.filtered(), filtered, 1e-6);
    const int place = static_cast<int>(filtered * 401);
    EXPECT_EQ(columnsOf(lineColor), (std::pair<int, int>{place, place}));
    m_clock.advance(0.3);
    m_item.setPeriod(1.0, 0.0, 0.0, 1.0);
    EXPECT_NEAR(m_item.filtered(), (0.3 * filtered + 1.0 * 0.3) / 0.6, 1e-6)
        << "over the time since the last call";
}

TEST_F(PeriodCell, IsPaintedAgainOnlyWhenItShowsSomethingElse)
{
    m_item.startAt(0.5);
    m_item.setPeriod(0.5, 0.25, 0.75, 1.0);
    EXPECT_EQ(paintings([&] { m_item.setPeriod(0.5, 0.25, 0.75, 1.0); }), 0);
    EXPECT_EQ(paintings([&] { m_item.setPeriod(0.6, 0.25, 0.75, 1.0); }), 1) << "period";
    EXPECT_EQ(paintings([&] { m_item.setPeriod(0.6, 0.2, 0.75, 1.0); }), 1) << "shortest";
    EXPECT_EQ(paintings([&] { m_item.setPeriod(0.6, 0.2, 0.8, 1.0); }), 1) << "longest";
    EXPECT_EQ(paintings([&] { m_item.setPeriod(0.6, 0.2, 0.8, 1.2); }), 1) << "scale";
    m_clock.advance(0.5);
    EXPECT_EQ(paintings([&] { m_item.setPeriod(0.6, 0.2, 0.8, 1.2); }), 1) << "the line moved";
    EXPECT_EQ(paintings([&] { m_item.startAt(m_item.period()); }), 0);
    EXPECT_EQ(paintings([&] { m_item.startAt(0.1); }), 1) << "start";
    EXPECT_EQ(paintings([&] { m_item.setBackground(white); }), 0) << "white at first";
    EXPECT_EQ(paintings([&] { m_item.setBackground(Qt::yellow); }), 1) << "background";
    EXPECT_EQ(m_item.background(), QColor(Qt::yellow));
}

TEST(BarCell, TextStandsInTheMiddleInBlack)
{
    gui::QwtBarItem bar;
    bar.resize(201, 20);
    QPalette dark = bar.palette();
    dark.setColor(QPalette::WindowText, Qt::white);
    bar.setPalette(dark);
    bar.setRate(49.6, 100);
    const PaintRecorder painted(bar);
    const auto text = painted.find(QStringLiteral("50 Msg/s"));
    EXPECT_NEAR(text.middle.x(), 100.5, 1.5);
    EXPECT_EQ(text.color, black);
}

TEST(SpreadUpdates, GraphAndOtherMessagesAskForARepaint)
{
    SpreadHistogram histogram;
    gui::QwtSpread spread(histogram);
    spread.resize(630, 400);
    spread.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&spread));
    EXPECT_EQ(paintingsAfter(spread, [&] { spread.showChanges(); }), 0);
    EXPECT_EQ(paintingsAfter(spread, [&] { spread.slotDisplayType(1); }), 1);
    EXPECT_EQ(spread.graphMode(), HistogramMode::BlockGraph);
    EXPECT_EQ(paintingsAfter(spread, [&] { spread.slotDisplayType(0); }), 1);
    EXPECT_EQ(spread.graphMode(), HistogramMode::LineGraph);
    histogram.add(1.0, 1.0);
    EXPECT_EQ(paintingsAfter(spread, [&] { spread.showChanges(); }), 1);
    EXPECT_EQ(paintingsAfter(spread, [&] { spread.showChanges(); }), 0);
    histogram.clear();
    EXPECT_EQ(paintingsAfter(spread, [&] { spread.showChanges(); }), 1);
    spread.slotDisplayType(77);
    EXPECT_EQ(spread.graphMode(), HistogramMode::LineGraph) << "any other number is the first";
}

TEST(BusLoadUpdates, GraphSettingsAndOtherMessagesAskForARepaint)
{
    BusLoadHistogram histogram;
    gui::QwtBusLoad load(histogram);
    load.resize(630, 400);
    load.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&load));
    histogram.add(1.0);
    EXPECT_EQ(paintingsAfter(load, [&] { load.showChanges(); }), 1);
    EXPECT_EQ(paintingsAfter(load, [&] { load.showChanges(); }), 0);
    EXPECT_EQ(paintingsAfter(load, [&] { load.slotDisplayType(1); }), 1);
    EXPECT_EQ(histogram.count(), 1U);
    EXPECT_EQ(paintingsAfter(load, [&] { load.slotResolution(50); }), 1);
    EXPECT_EQ(histogram.resolution(), 50U);
    EXPECT_EQ(histogram.count(), 0U);
    EXPECT_EQ(paintingsAfter(load, [&] { load.slotTotalTime(700); }), 1);
    EXPECT_EQ(histogram.measureTime(), 700U);
}

TEST(TinyStatisticWidgets, AreDrawn)
{
    SpreadHistogram spreading;
    BusLoadHistogram loading;
    for (const double time : {1.0, 1.01, 1.03, 1.05, 1.08}) {
        spreading.add(time, 1.0);
        loading.add(time);
    }
    gui::QwtSpread spread(spreading);
    gui::QwtBusLoad load(loading);
    gui::QwtPeriodItem period;
    gui::QwtBarItem bar;
    period.setPeriod(0.01, 0.01, 0.02, 0.024);
    bar.setRate(5.0, 10);
    for (QWidget* widget : std::vector<QWidget*>{&spread, &load, &period, &bar}) {
        for (const QSize size : {QSize(1, 1), QSize(1, 900), QSize(900, 1), QSize(131, 201)}) {
            widget->resize(size);
            widget->grab();
        }
    }
    spread.slotDisplayType(1);
    load.slotDisplayType(1);
    for (QWidget* widget : std::vector<QWidget*>{&spread, &load}) {
        widget->resize(1, 1);
        widget->grab();
    }
}

MessageContainer batchOf(const std::vector<std::pair<std::uint32_t, double>>& frames)
{
    MessageContainer batch;
    batch.setSrcDest("Nose");
    for (const auto& [id, time] : frames) {
        auto* frame = new zul::MessageCan;
        frame->setId(id);
        frame->setTimeStamp(time);
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

class StatisticLife : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = make();
        m_dialog = new gui::DialogStatistic(m_object, nullptr);
        m_dialog->show();
        m_tree = m_dialog->findChild<gui::StatisticTree*>();
    }
    void TearDown() override { delete m_dialog; }
    ObjectStatistic* make()
    {
        return dynamic_cast<ObjectStatistic*>(m_project.createObject(ObjectType::Statistic));
    }
    void feed(double seconds, const std::vector<std::pair<std::uint32_t, double>>& frames)
    {
        m_clock.advance(seconds);
        MessageContainer batch = batchOf(frames);
        m_dialog->receive(batch);
    }
    /// The object has another view, and the window is told.
    void changeView(int view)
    {
        m_object->settings().displayType = view;
        m_dialog->updateDialog();
    }
    const Statistic& statistic() const { return m_dialog->statistic(); }
    QWidget* page() const { return m_dialog->findChild<QStackedWidget*>()->currentWidget(); }
    gui::QwtPeriodItem* period(int row) const
    {
        return qobject_cast<gui::QwtPeriodItem*>(m_tree->itemWidget(m_tree->topLevelItem(row), 2));
    }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_clock{100.0};
    Project m_project{{ObjectStatistic::typeInfo(), ObjectDial::typeInfo()},
                      m_home.file(QStringLiteral("default.zul"))};
    ObjectStatistic* m_object = nullptr;
    QPointer<gui::DialogStatistic> m_dialog;
    gui::StatisticTree* m_tree = nullptr;
};

TEST_F(StatisticLife, ColumnsHaveTheirWidthsAndMarkersTheirSize)
{
    EXPECT_EQ(m_tree->columnWidth(0), 60);
    EXPECT_EQ(m_tree->columnWidth(1), 80);
    m_tree->header()->setStretchLastSection(false); // it takes the rest of the window otherwise
    EXPECT_EQ(m_tree->columnWidth(2), 120);
    EXPECT_EQ(m_tree->iconSize(), QSize(16, 14));
    EXPECT_EQ(m_tree->boldFont().weight(), 75);
}

TEST_F(StatisticLife, PeriodIsTakenOutrightForTwoFramesAndSmoothedFromTheThird)
{
    changeView(1);
    feed(0.05, {{7, 50.0}});
    EXPECT_NEAR(period(0)->filtered(), 0.0, 1e-9) << "one frame has no period";
    feed(0.05, {{7, 50.25}});
    const double second = period(0)->period();
    EXPECT_NEAR(second, 0.25 - 0.05, 1e-6) << "from the running clock";
    EXPECT_NEAR(period(0)->filtered(), second, 1e-6) << "the second frame's period is taken";
    feed(0.05, {{7, 50.75}});
    const double third = period(0)->period();
    EXPECT_NEAR(third, 0.5 - 0.05, 1e-6);
    EXPECT_NEAR(period(0)->filtered(), (0.3 * second + 0.05 * third) / 0.35, 1e-6)
        << "the third frame's is smoothed";
}

TEST_F(StatisticLife, AnotherViewFromElsewhereStartsAnew)
{
    const auto* views = m_dialog->findChild<gui::QwtComboBox*>(QStringLiteral("displayType"));
    const auto* select = m_dialog->findChild<gui::QwtIdSelect*>();
    feed(0.05, {{7, 50.0}, {8, 50.01}});
    ASSERT_EQ(m_tree->topLevelItemCount(), 2);
    m_project.save(QString());
    changeView(1);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_EQ(statistic().table().rowCount(), 0);
    EXPECT_EQ(m_tree->headerItem()->text(2), QStringLiteral("ms"));
    EXPECT_EQ(views->currentIndex(), 1);
    EXPECT_EQ(page(), m_tree);
    feed(0.05, {{7, 50.1}});
    EXPECT_NE(period(0), nullptr) << "the cells are those of the new view";
    m_object->settings().selectedId = 9;
    changeView(2);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_NE(qobject_cast<gui::QwtSpread*>(page()), nullptr);
    EXPECT_TRUE(select->isEnabled());
    EXPECT_EQ(select->id(), 9);
    EXPECT_EQ(views->currentIndex(), 2);
    changeView(3);
    EXPECT_NE(qobject_cast<gui::QwtBusLoad*>(page()), nullptr);
    EXPECT_FALSE(select->isEnabled());
    EXPECT_FALSE(m_project.isEdited()) << "showing changes nothing";
}

TEST_F(StatisticLife, SameViewFromElsewhereKeepsTheRows)
{
    feed(0.05, {{7, 50.0}});
    m_object->settings().inputOn = false;
    m_dialog->updateDialog();
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    EXPECT_EQ(statistic().table().rowCount(), 1);
}

TEST_F(StatisticLife, AnotherObjectTakesThePlaceOfTheFirst)
{
    feed(0.05, {{7, 50.0}});
    ObjectStatistic* other = make();
    other->settings().displayType = 1;
    other->settings().inputInterface = QStringLiteral("Tail");
    m_dialog->setObject(other);
    m_dialog->updateDialog();
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    feed(0.05, {{7, 50.1}});
    EXPECT_EQ(m_tree->topLevelItemCount(), 0) << "it takes the frames of another interface";
    QTest::mouseClick(m_dialog->findChild<QWidget*>(QStringLiteral("filterSwitch")),
                      Qt::LeftButton);
    EXPECT_TRUE(other->filter().isOn());
    EXPECT_FALSE(m_object->filter().isOn());
    m_dialog->setObject(m_object);
}

TEST_F(StatisticLife, ObjectOfAnotherKindIsAsGoodAsNone)
{
    feed(0.05, {{7, 50.0}});
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    m_dialog->setObject(m_project.createObject(ObjectType::Dial));
    m_project.save(QString());
    m_dialog->updateDialog();
    feed(0.05, {{8, 50.1}});
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    for (const char* name : {"inputSwitch", "filterSwitch", "filterSetup", "clear"}) {
        QTest::mouseClick(m_dialog->findChild<QWidget*>(QLatin1String(name)), Qt::LeftButton);
    }
    QTest::keyClick(m_dialog->findChild<QWidget*>(QStringLiteral("displayType")), Qt::Key_Down);
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_EQ(m_tree->topLevelItemCount(), 0) << "what was measured can be cleared all the same";
    m_dialog->setObject(m_object);
}

TEST_F(StatisticLife, SlotsStandInTheirOrder)
{
    const std::vector<std::string> wanted{"slotInputOn(bool)",
                                          "slotFilterSetup()",
                                          "slotFilterOn(bool)",
                                          "slotSetup()",
                                          "slotInputInterface(QString)",
                                          "slotDisplayType(int)",
                                          "slotId(int)",
                                          "slotItemChanged(QTreeWidgetItem*,QTreeWidgetItem*)",
                                          "slotDoubleClick(QTreeWidgetItem*,int)",
                                          "slotDial(bool)",
                                          "slotClear()"};
    std::vector<std::string> found;
    const QMetaObject* meta = m_dialog->metaObject();
    for (int i = gui::DialogBase::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        found.push_back(meta->method(i).methodSignature().toStdString());
    }
    EXPECT_EQ(found, wanted);
}

TEST_F(StatisticLife, TensOfThousandsOfRowsComeAndGo)
{
    constexpr std::uint32_t count = 50'000;
    std::vector<std::pair<std::uint32_t, double>> frames;
    for (std::uint32_t id = 0; id < count; ++id) {
        frames.emplace_back(id, 50.0);
    }
    QElapsedTimer timer;
    timer.start();
    feed(0.05, frames);
    EXPECT_EQ(m_tree->topLevelItemCount(), static_cast<int>(count));
    for (int i = 0; i < 5; ++i) {
        feed(0.05, frames);
    }
    m_tree->scrollToBottom();
    EXPECT_NE(m_tree->itemWidget(m_tree->topLevelItem(count - 1), 2), nullptr);
    QTest::mouseClick(m_dialog->findChild<QWidget*>(QStringLiteral("clear")), Qt::LeftButton);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    EXPECT_LT(timer.elapsed(), 20'000) << "it grows with the number of rows, not with its square";
}

TEST_F(StatisticLife, LeafingThroughManyRowsKeepsFewCells)
{
    std::vector<std::pair<std::uint32_t, double>> frames;
    for (std::uint32_t id = 0; id < 2'000; ++id) {
        frames.emplace_back(id, 50.0);
    }
    feed(0.05, frames);
    feed(0.05, {});
    QScrollBar* bar = m_tree->verticalScrollBar();
    while (bar->value() < bar->maximum()) {
        bar->setValue(bar->value() + bar->pageStep());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    feed(0.05, frames);
    EXPECT_LE(m_tree->findChildren<gui::QwtBarItem*>().size(), 500);
    bar->setValue(0);
    auto* cell = qobject_cast<gui::QwtBarItem*>(m_tree->itemWidget(m_tree->topLevelItem(0), 2));
    ASSERT_NE(cell, nullptr) << "a row has its cell again when it comes back";
    EXPECT_NEAR(cell->rate(), 2.0, 1e-6) << "and need not rise from 0";
}

TEST_F(StatisticLife, TinyWindowIsDrawn)
{
    for (const int view : {0, 1, 2, 3}) {
        changeView(view);
        feed(0.05, {{7, 50.0}, {7, 50.1}, {0, 50.2}, {0, 50.3}});
        for (QWidget* widget : m_dialog->findChildren<QWidget*>()) {
            widget->setMinimumSize(0, 0);
        }
        m_dialog->setMinimumSize(1, 1);
        m_dialog->resize(1, 1);
        QApplication::processEvents();
        m_dialog->grab();
        feed(0.05, {{9, 50.4}});
    }
}

} // namespace
