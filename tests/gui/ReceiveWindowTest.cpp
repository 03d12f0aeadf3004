#include "gui/controls/QwtComboBox.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/MessageGuiDialog.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "tests/gui/ReceiveFixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>

// What the Receive window paints, and what its controls, its menu and its double click do.

namespace {

using gui::DialogReceive;
using zul::MessageCan;
using zul::test::batchOf;

constexpr auto errorFrame = MessageCan::EFrameType::Error;
const QColor green(220, 255, 220);
const QColor white(255, 255, 255);
const QColor red(255, 0, 0);
const QColor black(0, 0, 0);

class ReceiveWindow : public zul::test::ReceiveTest
{
protected:
    void SetUp() override
    {
        ReceiveTest::SetUp();
        m_header = m_dialog->findChild<WidgetHeader*>();
        m_mode = m_dialog->findChild<gui::QwtComboBox*>(QStringLiteral("displayMode"));
        gui::GuiRequests::setHandler([this](std::unique_ptr<Message> request) {
            const auto& dial = dynamic_cast<const MessageGuiDialog&>(*request);
            EXPECT_EQ(dial.objectType(), 8);
            m_dials.push_back(dial.parameter());
        });
    }
    /// The row that shows the identifier, painted with it in decimal.
    QTreeWidgetItem* row(int id) const
    {
        for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
            if (m_tree->topLevelItem(i)->text(2) == QString::asprintf("S %d", id)) {
                return m_tree->topLevelItem(i);
            }
        }
        return nullptr;
    }
    bool paintedRow(int id) const
    {
        return QTest::qWaitFor([&] { return row(id) != nullptr; });
    }
    bool paintedBackground(const QColor& color) const
    {
        return QTest::qWaitFor(
            [&] { return m_tree->topLevelItem(0)->background(0).color() == color; });
    }
    /// Texts of a column from the top down.
    QStringList column(int index) const
    {
        QStringList list;
        for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
            list.append(m_tree->topLevelItem(i)->text(index));
        }
        return list;
    }
    QStringList sorted(int index, Qt::SortOrder order) const
    {
        m_tree->sortByColumn(index, order);
        return column(2);
    }
    /// Asks for the context menu on the tree; returns its entries, none if there is no menu.
    QStringList contextMenu(bool chooseFirst = false) const
    {
        QStringList entries;
        QTimer watch;
        const QPoint place(40, 50);
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) {
                return;
            }
            watch.stop();
            EXPECT_EQ(menu->pos(), place);
            for (QAction* action : menu->actions()) {
                entries.append(action->text());
            }
            menu->setActiveAction(menu->actions().constFirst());
            QTest::keyClick(menu, chooseFirst ? Qt::Key_Return : Qt::Key_Escape);
        });
        watch.start(0);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), place);
        QApplication::sendEvent(m_tree->viewport(), &event);
        return entries;
    }

    WidgetHeader* m_header = nullptr;
    gui::QwtComboBox* m_mode = nullptr;
    std::vector<int> m_dials; ///< identifiers for which a dial was asked
};

TEST_F(ReceiveWindow, ChangeOfTheNumberTypeRepaintsAllRowsAtOnce)
{
    for (const std::uint32_t id : {0x1FU, 0x2EU, 0x3DU}) {
        feed(batchOf(id, 1));
    }
    ASSERT_TRUE(paintedRow(0x3D));
    const QStringList decimal{QStringLiteral("S 31"), QStringLiteral("S 46"),
                              QStringLiteral("S 61")};
    EXPECT_EQ(column(2), decimal);
    click("numberFormat");
    EXPECT_EQ(column(2), (QStringList{QStringLiteral("S 0x1F"), QStringLiteral("S 0x2E"),
                                      QStringLiteral("S 0x3D")}));
    for (const QString& bytes : column(4)) {
        EXPECT_EQ(bytes, QStringLiteral("  0-> $ab"));
    }
    click("numberFormat");
    EXPECT_EQ(column(2), decimal);
}

TEST_F(ReceiveWindow, PaintsEvery100MillisecondsByATimerThatRunsOnce)
{
    auto* timer = m_dialog->findChild<QTimer*>();
    EXPECT_TRUE(timer->isSingleShot());
    EXPECT_EQ(timer->interval(), 100);
    const QSignalSpy turns(timer, &QTimer::timeout);
    EXPECT_TRUE(QTest::qWaitFor([&] { return turns.count() >= 2; })) << "it is started again";
}

TEST_F(ReceiveWindow, LinesOfAFrameThatClaims99BytesAreShownAlsoBehindAnErrorFrame)
{
    feed(batchOf(0x1F, 0, errorFrame));
    ASSERT_TRUE(painted(2, "ERROR FRAME"));
    feed(batchOf(0x1F, 99));
    ASSERT_TRUE(paintedRow(0x1F));
    EXPECT_FALSE(row(0x1F)->child(2)->isHidden());
}

TEST_F(ReceiveWindow, BatchOfAnotherInterfaceDoesNotAgeRows)
{
    m_object->settings().inputInterface = QStringLiteral("Nose");
    m_dialog->updateDialog();
    feed(batchOf(1, 1));
    ASSERT_TRUE(paintedRow(1));
    m_clock.advance(0.6);
    MessageContainer foreign = batchOf(2, 1);
    foreign.setSrcDest("Tail");
    feed(std::move(foreign));
    EXPECT_TRUE(m_dialog->table().row(0).active);
    feed(batchOf(3, 1));
    EXPECT_FALSE(m_dialog->table().row(0).active);
}

TEST_F(ReceiveWindow, RowThatIsSilentBeforeItsFirstPaintingIsShownAsSilent)
{
    feed(batchOf(1, 1));
    m_clock.advance(0.6);
    feed(batchOf(2, 1));
    ASSERT_TRUE(paintedRow(1));
    EXPECT_EQ(row(1)->background(0).color(), white);
    EXPECT_FALSE(row(1)->icon(0).isNull());
}

TEST_F(ReceiveWindow, TreeIsShownAgainAfterEachPainting)
{
    feed(batchOf(1, 1));
    ASSERT_TRUE(paintedRow(1));
    EXPECT_TRUE(m_tree->viewport()->updatesEnabled());
    EXPECT_TRUE(m_tree->updatesEnabled());
}

TEST_F(ReceiveWindow, HeaderTreeAndButtonsStandBelowEachOther)
{
    m_dialog->show();
    const auto* clear = m_dialog->findChild<QWidget*>(QStringLiteral("clear"));
    EXPECT_LT(m_header->geometry().bottom(), m_tree->geometry().top());
    EXPECT_LT(m_tree->geometry().bottom(), m_mode->geometry().top());
    EXPECT_LT(m_mode->geometry().right(), clear->geometry().left());
    EXPECT_LT(m_tree->geometry().bottom(), clear->geometry().top());
}

TEST_F(ReceiveWindow, LinesOfAFrameThatClaims99BytesAreShown)
{
    feed(batchOf(0x1F, 99));
    ASSERT_TRUE(paintedRow(0x1F));
    for (int line = 0; line < 3; ++line) {
        EXPECT_FALSE(row(0x1F)->child(line)->isHidden());
    }
}

TEST_F(ReceiveWindow, TextOfTheNewRowGoesWithTheFirstPainting)
{
    click("numberFormat");
    feed(batchOf(0x2E, 1));
    EXPECT_EQ(column(2), QStringList{QStringLiteral("0X2E")});
    ASSERT_TRUE(painted(2, "S 0x2E"));
    feed(batchOf(0x3D, 1));
    click("numberFormat"); // paints it before its time
    EXPECT_EQ(column(2), (QStringList{QStringLiteral("S 46"), QStringLiteral("S 61")}));
}

TEST_F(ReceiveWindow, WithTheInputOffNoRowChangesAndRowsTurnSilent)
{
    feed(batchOf(1, 2));
    ASSERT_TRUE(paintedRow(1));
    click("inputSwitch");
    feed(batchOf(1, 8));
    m_clock.advance(0.6);
    feed(batchOf(1, 8));
    feed(batchOf(2, 8));
    ASSERT_TRUE(paintedBackground(white));
    ASSERT_EQ(m_tree->topLevelItemCount(), 1);
    EXPECT_EQ(row(1)->text(0), QStringLiteral("1"));
    EXPECT_EQ(row(1)->text(3), QStringLiteral("D2"));
}

TEST_F(ReceiveWindow, SilenceColoursTheLinesBelowToo)
{
    feed(batchOf(1, 64));
    ASSERT_TRUE(paintedRow(1));
    m_clock.advance(0.6);
    feed(MessageContainer());
    ASSERT_TRUE(paintedBackground(white));
    for (int column = 0; column < m_tree->columnCount(); ++column) {
        EXPECT_EQ(row(1)->background(column).color(), white) << column;
        for (int line = 0; line < 3; ++line) {
            EXPECT_EQ(row(1)->child(line)->background(column).color(), white) << line;
        }
    }
    feed(batchOf(1, 64));
    ASSERT_TRUE(paintedBackground(green));
    EXPECT_EQ(row(1)->child(2)->background(4).color(), green);
}

TEST_F(ReceiveWindow, ErrorColoursTheTopLineAlone)
{
    feed(batchOf(1, 64));
    ASSERT_TRUE(paintedRow(1));
    feed(batchOf(1, 8, errorFrame));
    ASSERT_TRUE(painted(2, "ERROR FRAME"));
    const QTreeWidgetItem& top = *m_tree->topLevelItem(0);
    for (int column = 0; column < m_tree->columnCount(); ++column) {
        EXPECT_EQ(top.foreground(column).color(), red) << column;
        for (int line = 0; line < 3; ++line) {
            EXPECT_NE(top.child(line)->foreground(column).color(), red) << line;
        }
    }
    feed(batchOf(1, 8));
    ASSERT_TRUE(paintedRow(1));
    for (int column = 0; column < m_tree->columnCount(); ++column) {
        EXPECT_EQ(top.foreground(column).color(), black) << column;
    }
}

TEST_F(ReceiveWindow, ErrorFrameLeavesTheLinesOfTheFrameBeforeItAsTheyStand)
{
    feed(batchOf(1, 64));
    ASSERT_TRUE(paintedRow(1));
    const QTreeWidgetItem& top = *m_tree->topLevelItem(0);
    const QString bytes = top.text(4);
    const QString lastBytes = top.child(2)->text(4);
    feed(batchOf(1, 0, errorFrame));
    ASSERT_TRUE(painted(2, "ERROR FRAME"));
    EXPECT_EQ(top.text(0), QStringLiteral("2"));
    EXPECT_EQ(top.text(4), bytes);
    EXPECT_EQ(top.child(2)->text(4), lastBytes);
    for (int line = 0; line < 3; ++line) {
        EXPECT_FALSE(top.child(line)->isHidden()) << line;
    }
    feed(batchOf(1, 8));
    ASSERT_TRUE(paintedRow(1));
    EXPECT_TRUE(top.child(0)->isHidden());
}

TEST_F(ReceiveWindow, PayloadStandsBoldInCourierOnEveryLine)
{
    feed(batchOf(1, 64));
    const QTreeWidgetItem& top = *m_tree->topLevelItem(0);
    EXPECT_EQ(top.font(4).weight(), 75);
    EXPECT_EQ(top.font(4).family(), QStringLiteral("Courier"));
    for (int line = 0; line < 3; ++line) {
        EXPECT_EQ(top.child(line)->font(4).weight(), 75) << line;
        EXPECT_EQ(top.child(line)->font(4).family(), QStringLiteral("Courier")) << line;
    }
}

/// Mean of the picture's opaque pixels.
QColor meanOf(const QImage& picture)
{
    std::array<int, 3> sum{};
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            if (color.alpha() == 255) {
                sum[0] += color.red();
                sum[1] += color.green();
                sum[2] += color.blue();
                ++count;
            }
        }
    }
    return count > 0 ? QColor(sum[0] / count, sum[1] / count, sum[2] / count) : QColor();
}

TEST_F(ReceiveWindow, AliveIsAGreenIconAndSilentARedOneOfTheSameShape)
{
    const auto icon = [this] {
        return m_tree->topLevelItem(0)
            ->icon(0)
            .pixmap(m_tree->iconSize())
            .toImage()
            .convertToFormat(QImage::Format_ARGB32);
    };
    feed(batchOf(1, 1));
    ASSERT_TRUE(paintedBackground(green));
    const QImage alive = icon();
    m_clock.advance(0.6);
    feed(MessageContainer());
    ASSERT_TRUE(paintedBackground(white));
    const QImage silent = icon();
    EXPECT_EQ(alive.size(), QSize(16, 14));
    EXPECT_GT(meanOf(alive).green(), meanOf(alive).red() + 50);
    EXPECT_GT(meanOf(silent).red(), meanOf(silent).green() + 50);
    EXPECT_EQ(alive.convertToFormat(QImage::Format_Alpha8),
              silent.convertToFormat(QImage::Format_Alpha8));
}

TEST_F(ReceiveWindow, MenuOpensOnlyWithACurrentRowAndAsksForADial)
{
    feed(batchOf(1, 1));
    EXPECT_TRUE(contextMenu().isEmpty());
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    EXPECT_EQ(contextMenu(), QStringList{QStringLiteral("Open Dial Dialog")});
    EXPECT_TRUE(m_dials.empty());
    contextMenu(true);
    EXPECT_EQ(m_dials, std::vector<int>{0});
    m_tree->topLevelItem(0)->setData(0, Qt::UserRole, 55);
    contextMenu(true);
    EXPECT_EQ(m_dials, (std::vector<int>{0, 55}));
}

TEST_F(ReceiveWindow, DoubleClickActsOnTheCurrentItemAndNotOnTheOneUnderTheMouse)
{
    feed(batchOf(1, 64));
    feed(batchOf(2, 1));
    QTreeWidgetItem* first = m_tree->topLevelItem(0);
    QTreeWidgetItem* second = m_tree->topLevelItem(1);
    first->setData(0, Qt::UserRole, 55);
    second->setData(0, Qt::UserRole, 66);
    m_tree->setCurrentItem(first);
    emit m_tree->itemDoubleClicked(second, 0);
    EXPECT_EQ(m_dials, std::vector<int>{55});
    m_tree->setCurrentItem(first->child(1)); // a line below has no identifier
    emit m_tree->itemDoubleClicked(first, 0);
    EXPECT_EQ(m_dials, (std::vector<int>{55, 0}));
}

TEST_F(ReceiveWindow, AfterClearNothingIsCurrent)
{
    feed(batchOf(1, 1));
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    click("clear");
    emit m_tree->itemDoubleClicked(nullptr, 0);
    EXPECT_TRUE(m_dials.empty());
    EXPECT_TRUE(contextMenu().isEmpty());
}

TEST_F(ReceiveWindow, SelectedInterfaceIsStoredAndMarksTheProject)
{
    m_object->settings().inputInterface = QStringLiteral("Tail");
    m_dialog->updateDialog();
    feed(batchOf(1, 1));
    EXPECT_EQ(m_dialog->table().receivedTotal(), 0U);
    auto* select = m_dialog->findChild<gui::WidgetInterfaceSelect*>(QStringLiteral("inputSelect"));
    select->menu()->actions().constFirst()->trigger();
    EXPECT_EQ(m_object->settings().inputInterface, QStringLiteral("All Interfaces"));
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf(1, 1));
    EXPECT_EQ(m_dialog->table().receivedTotal(), 1U);
    m_project.save(QString());
    emit select->signalChanged(QStringLiteral("Wing"));
    EXPECT_EQ(m_object->settings().inputInterface, QStringLiteral("Wing"));
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf(1, 1));
    EXPECT_EQ(m_dialog->table().receivedTotal(), 1U);
}

TEST_F(ReceiveWindow, UpdateFeedsHeaderAndDisplayMode)
{
    EXPECT_FALSE(m_header->isOutputOn());
    auto& settings = m_object->settings();
    settings.inputOn = false;
    settings.numberType = 1;
    settings.inputInterface = QStringLiteral("Tail");
    m_object->filter().setOn(true);
    m_header->setOutputOn(true);
    m_mode->setCurrentIndex(-1);
    m_dialog->updateDialog();
    EXPECT_FALSE(m_header->isInputOn());
    EXPECT_TRUE(m_header->isFilterOn());
    EXPECT_FALSE(m_header->isOutputOn());
    EXPECT_EQ(m_header->numberType(), 1);
    EXPECT_EQ(m_dialog->findChild<gui::WidgetInterfaceSelect*>(QStringLiteral("inputSelect"))
                  ->interface(),
              QStringLiteral("Tail"));
    EXPECT_EQ(m_mode->currentIndex(), 0);
    EXPECT_FALSE(m_project.isEdited());
    feed(batchOf(1, 1)); // the new interface counts at once
    EXPECT_EQ(m_dialog->table().receivedTotal(), 0U);
}

TEST_F(ReceiveWindow, WhileTheControlsAreFedTheirSignalsAreIgnoredButTheInterfaces)
{
    feed(batchOf(1, 1));
    auto& settings = m_object->settings();
    m_mode->setCurrentIndex(-1);
    int fed = 0;
    QObject::connect(m_mode, QOverload<int>::of(&QComboBox::currentIndexChanged), m_mode, [&] {
        ++fed; // within the update
        emit m_header->signalInputOn(false);
        emit m_header->signalFilterOn(true);
        emit m_header->signalFilterSetup();
        emit m_mode->signalActivated(0);
        click("clear");
        EXPECT_FALSE(m_project.isEdited());
        emit m_header->signalInputInterface(QStringLiteral("Tail"));
    });
    m_dialog->updateDialog();
    ASSERT_EQ(fed, 1);
    EXPECT_TRUE(settings.inputOn);
    EXPECT_FALSE(m_object->filter().isOn());
    EXPECT_FALSE(m_dialog->findChild<gui::DialogFilter*>()->isVisible());
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    EXPECT_EQ(settings.inputInterface, QStringLiteral("Tail"));
    EXPECT_TRUE(m_project.isEdited());
    click("clear"); // and only within it
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
}

class ReceiveSorting : public ReceiveWindow
{
protected:
    // Counts, times and lengths stand in another order as texts than as numbers.
    void SetUp() override
    {
        ReceiveWindow::SetUp();
        SetUpRows();
    }
    void SetUpRows()
    {
        feedTimes(10, frame(1, 16, 10.0, 200));
        feedTimes(9, frame(2, 8, 100.5, 9));
        feedTimes(1, frame(3, 12, 9.0, 30));
        ASSERT_TRUE(paintedRow(3));
    }
    void feedTimes(int count, const MessageCan& sent)
    {
        for (int i = 0; i < count; ++i) {
            MessageContainer batch;
            batch.addMessage(SmartPtr<Message>(new MessageCan(sent)));
            feed(std::move(batch));
        }
    }
    static MessageCan frame(std::uint32_t id, std::uint32_t byteCount, double time,
                            std::uint8_t first)
    {
        MessageCan made;
        made.setId(id);
        made.setByteCount(byteCount);
        made.setTimeStamp(time);
        made.msg()[0] = first;
        return made;
    }
    void expectOrder(int column, const QStringList& ascending) const
    {
        EXPECT_EQ(sorted(column, Qt::AscendingOrder), ascending) << column;
        const QStringList descending{ascending[2], ascending[1], ascending[0]};
        EXPECT_EQ(sorted(column, Qt::DescendingOrder), descending) << column;
    }
};

TEST_F(ReceiveSorting, EveryColumnSortsByItsNumbers)
{
    const QString one = QStringLiteral("S 1");
    const QString two = QStringLiteral("S 2");
    const QString three = QStringLiteral("S 3");
    expectOrder(0, {three, two, one}); // 1, 9, 10 messages
    expectOrder(1, {three, one, two}); // 9, 10, 100.5 seconds
    expectOrder(2, {one, two, three});
    expectOrder(3, {two, three, one}); // 8, 12, 16 bytes
    expectOrder(4, {two, three, one}); // first byte 9, 30, 200
}

TEST_F(ReceiveSorting, RowThatComesWhileTheTreeIsSortedStandsInItsPlaceWithItsLinesHidden)
{
    m_tree->sortByColumn(2, Qt::DescendingOrder);
    feed(batchOf(4, 8));
    feed(batchOf(0, 8));
    ASSERT_TRUE(paintedRow(0));
    QStringList order;
    for (const char* id : {"S 4", "S 3", "S 2", "S 1", "S 0"}) {
        order.append(QLatin1String(id));
    }
    EXPECT_EQ(column(2), order);
    for (int line = 0; line < 3; ++line) {
        EXPECT_TRUE(row(4)->child(line)->isHidden());
    }
}

TEST_F(ReceiveSorting, NewRowStandsInItsPlaceAlsoByColumnsThatAreNotPaintedYet)
{
    for (const int sortColumn : {0, 1, 3, 4}) {
        m_tree->sortByColumn(sortColumn, Qt::AscendingOrder);
        const auto id = static_cast<std::uint32_t>(50 + sortColumn);
        feedTimes(1, frame(id, 64, 1e6, 255)); // the largest of all, but for the count
        const QString name = QString::asprintf("S %u", id);
        ASSERT_TRUE(QTest::qWaitFor([&] { return column(2).contains(name); }));
        EXPECT_EQ(column(2).indexOf(name), sortColumn == 0 ? 1 : 3) << sortColumn;
        click("clear");
        SetUpRows();
    }
}

TEST_F(ReceiveSorting, NewRowsOfOneBatchAreSortedInAtOnce)
{
    m_tree->sortByColumn(2, Qt::DescendingOrder);
    MessageContainer batch;
    for (std::uint32_t id = 10; id < 110; ++id) {
        batch.addMessage(SmartPtr<Message>(new MessageCan(frame(id, 8, 1.0, 0))));
    }
    const QSignalSpy sorts(m_tree->model(), &QAbstractItemModel::layoutChanged);
    batch.setSrcDest("Nose");
    feed(std::move(batch));
    EXPECT_LE(sorts.count(), 2);
    ASSERT_TRUE(paintedRow(109));
    EXPECT_EQ(column(2).constFirst(), QStringLiteral("S 109"));
}

TEST_F(ReceiveSorting, RowsStayInTheirPlacesWhileValuesChange)
{
    m_tree->sortByColumn(0, Qt::AscendingOrder);
    const QStringList before = column(2);
    const QSignalSpy changes(m_tree->model(), &QAbstractItemModel::dataChanged);
    feedTimes(30, frame(3, 12, 9.0, 30));
    ASSERT_TRUE(QTest::qWaitFor([&] { return row(3)->text(0) == QStringLiteral("31"); }));
    EXPECT_EQ(column(2), before);
    EXPECT_EQ(changes.count(), 0) << "the model is silent while rows are painted";
}

TEST_F(ReceiveSorting, MessagesSortAlsoByBytesThatStandOnTheLinesBelow)
{
    click("clear");
    for (const std::uint32_t id : {1U, 2U, 3U}) {
        MessageCan sent = frame(id, 64, 1.0, 7);
        sent.msg()[20] = static_cast<std::uint8_t>(id == 1 ? 50 : id);
        feedTimes(1, sent);
    }
    ASSERT_TRUE(paintedRow(3));
    expectOrder(4, {QStringLiteral("S 2"), QStringLiteral("S 3"), QStringLiteral("S 1")});
}

TEST_F(ReceiveSorting, LinesKeepTheirOrderHoweverTheRowsAreSorted)
{
    feed(batchOf(4, 64));
    ASSERT_TRUE(paintedRow(4));
    for (int column = 0; column < m_tree->columnCount(); ++column) {
        for (const auto order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
            m_tree->sortByColumn(column, order);
            for (int line = 0; line < 3; ++line) {
                EXPECT_TRUE(row(4)->child(line)->text(4).startsWith(
                    QString::asprintf(" %2d-> ", 16 * (line + 1))))
                    << column << " " << order << " " << line;
            }
        }
    }
}

} // namespace
