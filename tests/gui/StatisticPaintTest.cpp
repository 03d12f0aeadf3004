#include "gui/controls/QwtBarItem.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/measure/DialogDial.h"
#include "gui/measure/DialogStatistic.h"
#include "gui/measure/QwtBusLoad.h"
#include "gui/measure/QwtSpread.h"
#include "gui/measure/StatisticTree.h"
#include "measure/BusLoadHistogram.h"
#include "measure/BusLoadPlot.h"
#include "measure/SpreadHistogram.h"
#include "measure/SpreadPlot.h"
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
#include <QCheckBox>
#include <QColorDialog>
#include <QPaintEvent>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

// How the pictures of the histograms reach the screen, which rows are painted again, in which order
// the windows of the measures stand, and colour choosers whose window goes.

namespace zul::test {

namespace {

QColor colorOf(const PlotColor& color)
{
    return {color.red, color.green, color.blue};
}

template <typename Item>
std::vector<Item> itemsOf(const PlotItems& items)
{
    std::vector<Item> found;
    for (const PlotItem& item : items) {
        if (const auto* wanted = std::get_if<Item>(&item)) {
            found.push_back(*wanted);
        }
    }
    return found;
}

/// Holds what a widget draws against the list that it is to draw. Its controls are left out.
void expectPainted(QWidget& widget, const PlotItems& items)
{
    for (auto* child : widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        child->hide();
    }
    const PaintRecorder painted(widget);
    std::vector<PlotLine> smooth;
    for (const PlotLine& line : itemsOf<PlotLine>(items)) {
        if (line.isSmooth) {
            smooth.push_back(line);
        }
    }
    EXPECT_LT(smooth.size(), itemsOf<PlotLine>(items).size()); // there are plain ones too
    ASSERT_EQ(painted.lines.size(), smooth.size());            // which were not drawn smoothly
    for (std::size_t i = 0; i < smooth.size(); ++i) {
        EXPECT_EQ(painted.lines[i].color, colorOf(smooth[i].color)) << i;
        EXPECT_EQ(painted.lines[i].width, smooth[i].width) << i;
        EXPECT_NEAR(painted.lines[i].line.x1(), smooth[i].from.x, 1e-6) << i;
        EXPECT_NEAR(painted.lines[i].line.y2(), smooth[i].to.y, 1e-6) << i;
    }
    const auto heads = itemsOf<PlotArrowHead>(items);
    ASSERT_GE(heads.size(), 2U); // of the axes
    ASSERT_EQ(painted.polygons.size(), heads.size());
    for (std::size_t i = 0; i < heads.size(); ++i) {
        EXPECT_EQ(painted.polygons[i].brush, colorOf(heads[i].color)) << i;
        EXPECT_FALSE(painted.polygons[i].hasOutline) << i;
        EXPECT_TRUE(painted.polygons[i].isSmooth) << i;
        ASSERT_EQ(painted.polygons[i].corners.size(), 3) << i;
        for (int corner = 0; corner < 3; ++corner) {
            const PlotPoint& wanted = heads[i].corners.at(static_cast<std::size_t>(corner));
            EXPECT_NEAR(painted.polygons[i].corners[corner].x(), wanted.x, 1e-6);
            EXPECT_NEAR(painted.polygons[i].corners[corner].y(), wanted.y, 1e-6);
        }
    }
    const auto texts = itemsOf<PlotText>(items);
    ASSERT_EQ(painted.texts.size(), texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(painted.texts[i].text, texts[i].text);
        EXPECT_EQ(painted.texts[i].color, colorOf(texts[i].color)) << qPrintable(texts[i].text);
    }
}

TEST(HistogramPainting, SpreadIsDrawnAsItsListSays)
{
    SpreadHistogram histogram;
    for (const double time : {1.0, 1.01, 1.03, 1.05, 1.08}) {
        histogram.add(time, 1.0);
    }
    gui::QwtSpread spread(histogram);
    spread.resize(630, 400);
    expectPainted(spread, spreadPlot(histogram, HistogramMode::LineGraph, {630, 400}));
}

TEST(HistogramPainting, BusLoadIsDrawnAsItsListSays)
{
    BusLoadHistogram histogram;
    for (const double time : {1.0, 1.01, 1.03, 1.05, 1.08}) {
        histogram.add(time);
    }
    gui::QwtBusLoad load(histogram);
    load.resize(630, 400);
    expectPainted(load, busLoadPlot(histogram, HistogramMode::LineGraph, {630, 400}));
}

TEST(BarCellUpdates, AnotherBackgroundAsksForARepaint)
{
    gui::QwtBarItem bar;
    bar.resize(200, 20);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    bar.setBackground(Qt::white);
    QApplication::processEvents();
    const PaintCounter painted(bar);
    bar.setBackground(Qt::white);
    QApplication::processEvents();
    EXPECT_EQ(painted.count, 0);
    bar.setBackground(Qt::yellow);
    EXPECT_EQ(painted.count, 0); // asked for, and not done at once
    QApplication::processEvents();
    EXPECT_EQ(painted.count, 1);
}

/// Notes what is painted of a widget.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion region;
};

class MeasureWindows : public testing::Test
{
protected:
    void SetUp() override { m_project.load(m_home.file(QStringLiteral("none.zul"))); }
    template <typename Record>
    Record* make(ObjectType type)
    {
        return dynamic_cast<Record*>(m_project.createObject(type));
    }
    static MessageContainer batchOf(const std::vector<std::pair<std::uint32_t, double>>& frames)
    {
        MessageContainer batch;
        batch.setSrcDest("Nose");
        for (const auto& [id, time] : frames) {
            auto* frame = new MessageCan;
            frame->setId(id);
            frame->setTimeStamp(time);
            batch.addMessage(SmartPtr<Message>(frame));
        }
        return batch;
    }
    void feed(gui::DialogBase& window, double seconds,
              const std::vector<std::pair<std::uint32_t, double>>& frames)
    {
        m_clock.advance(seconds);
        MessageContainer batch = batchOf(frames);
        window.receive(batch);
    }
    /// The widgets of a layout and of those in it, in their order.
    static std::vector<const QWidget*> widgetsIn(const QLayout* layout)
    {
        std::vector<const QWidget*> found;
        for (int i = 0; layout != nullptr && i < layout->count(); ++i) {
            if (const QWidget* widget = layout->itemAt(i)->widget()) {
                found.push_back(widget);
            }
            for (const QWidget* widget : widgetsIn(layout->itemAt(i)->layout())) {
                found.push_back(widget);
            }
        }
        return found;
    }
    /// Runs `act` as soon as a colour chooser is open.
    template <typename Action>
    static void whenChooserOpens(Action act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto* chooser = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(chooser, nullptr);
            act(*chooser);
        });
    }

    TestHome m_home;
    SettableClock m_clock{100.0};
    Project m_project{{ObjectStatistic::typeInfo(), ObjectDial::typeInfo()},
                      m_home.file(QStringLiteral("default.zul"))};
};

TEST_F(MeasureWindows, ARowThatFallsSilentIsPaintedAgain)
{
    gui::DialogStatistic window(make<ObjectStatistic>(ObjectType::Statistic), nullptr);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    auto* tree = window.findChild<gui::StatisticTree*>();
    feed(window, 0.05, {{7, 50.0}, {8, 50.0}});
    for (int i = 1; i <= 4; ++i) { // the other one goes on
        feed(window, 0.05, {{8, 50.0 + 0.05 * i}});
    }
    QApplication::processEvents();
    const QRect identifier(tree->visualItemRect(tree->topLevelItem(0)).topLeft(), QSize(10, 10));
    const PaintedRegion painted(*tree->viewport());
    for (int i = 5; i <= 14; ++i) {
        feed(window, 0.05, {{8, 50.0 + 0.05 * i}});
    }
    QApplication::processEvents();
    ASSERT_FALSE(window.statistic().table().entry(0).active);
    ASSERT_TRUE(window.statistic().table().entry(1).active);
    EXPECT_TRUE(painted.region.intersects(identifier));
}

TEST_F(MeasureWindows, ADoubleClickOnTheCellOfARowCountsForTheRow)
{
    auto* object = make<ObjectStatistic>(ObjectType::Statistic);
    gui::DialogStatistic window(object, nullptr);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    auto* tree = window.findChild<gui::StatisticTree*>();
    feed(window, 0.05, {{7, 50.0}, {9, 50.0}});
    QApplication::processEvents();
    QWidget* cell = tree->itemWidget(tree->topLevelItem(1), 2);
    ASSERT_NE(cell, nullptr);
    QTest::mouseClick(cell, Qt::LeftButton);
    QTest::mouseDClick(cell, Qt::LeftButton);
    EXPECT_EQ(object->settings().selectedId, 9U);
    EXPECT_EQ(object->settings().displayType, 2);
}

TEST_F(MeasureWindows, StatisticStandsInItsOrder)
{
    gui::DialogStatistic window(make<ObjectStatistic>(ObjectType::Statistic), nullptr);
    const std::vector<const QWidget*> wanted{
        window.findChild<WidgetHeader*>(),
        window.findChild<gui::QwtComboBox*>(QStringLiteral("displayType")),
        window.findChild<gui::QwtIdSelect*>(), window.findChild<QWidget*>(QStringLiteral("clear")),
        window.findChild<gui::StatisticTree*>()->parentWidget()};
    EXPECT_EQ(widgetsIn(window.layout()), wanted);
}

TEST_F(MeasureWindows, DialStandsInItsOrder)
{
    gui::DialogDial window(make<ObjectDial>(ObjectType::Dial), nullptr);
    const std::vector<const QWidget*> wanted{
        window.findChild<WidgetHeader*>(),
        window.findChild<gui::QwtIdSelect*>(),
        window.findChild<gui::QwtComboBox*>(QStringLiteral("displayType")),
        window.findChild<QStackedWidget*>(),
        window.findChild<QCheckBox*>(QStringLiteral("showProperties")),
        window.findChild<QWidget*>(QStringLiteral("properties"))};
    EXPECT_EQ(widgetsIn(window.layout()), wanted);
}

class DialChooser : public MeasureWindows
{
protected:
    void SetUp() override
    {
        MeasureWindows::SetUp();
        m_object = make<ObjectDial>(ObjectType::Dial);
        m_object->settings().showProperties = true;
        m_window = new gui::DialogDial(m_object, nullptr);
        m_window->show();
    }
    void TearDown() override { delete m_window; }
    void clickColor() const
    {
        // The slot and not the mouse: the button goes with its window.
        QMetaObject::invokeMethod(m_window, "slotColor");
    }

    ObjectDial* m_object = nullptr;
    QPointer<gui::DialogDial> m_window;
};

TEST_F(DialChooser, AWindowMayGoWhileItIsOpen)
{
    whenChooserOpens([this](QColorDialog&) { delete m_window; });
    m_project.save(QString());
    const auto before = m_object->color();
    clickColor();
    EXPECT_EQ(m_window, nullptr);
    EXPECT_EQ(m_object->color().red, before.red);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(DialChooser, AnObjectMayGoWhileItIsOpen)
{
    whenChooserOpens([this](QColorDialog& chooser) {
        m_project.deleteObject(m_object->id());
        chooser.setCurrentColor(QColor(1, 2, 3));
        chooser.accept();
    });
    clickColor();
    ASSERT_NE(m_window, nullptr);
    EXPECT_EQ(m_window->object(), nullptr);
    EXPECT_TRUE(m_window->isVisible());
}

} // namespace

} // namespace zul::test
