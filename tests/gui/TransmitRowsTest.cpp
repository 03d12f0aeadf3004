#include "gui/traffic/Widget825Raw.h"
#include "gui/traffic/WidgetCanAs.h"
#include "gui/traffic/WidgetTransmitCan.h"
#include "tests/gui/TransmitFixture.h"
#include "tests/support/ConsoleCapture.h"

#include <QHeaderView>
#include <QScrollBar>

// The rows of the Transmit window: what stands in them, how high and how wide.

namespace {

using Ids = std::vector<std::vector<std::uint32_t>>;

class TransmitRows : public zul::test::TransmitTest
{
};

TEST_F(TransmitRows, HasItsTable)
{
    addLine(1);
    open();
    QStringList headers;
    for (int i = 0; i < m_table->columnCount(); ++i) {
        headers.append(m_table->horizontalHeaderItem(i)->text());
    }
    EXPECT_EQ(headers, (QStringList{QStringLiteral("Name"), QStringLiteral("Message"),
                                    QStringLiteral("Transmit")}));
    EXPECT_EQ(m_table->columnWidth(0), 80);
    EXPECT_EQ(m_table->columnWidth(2), 80);
    EXPECT_EQ(m_table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Interactive);
    EXPECT_EQ(m_table->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    EXPECT_EQ(m_table->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
    EXPECT_EQ(m_table->selectionMode(), QAbstractItemView::ExtendedSelection);
    EXPECT_EQ(m_table->selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(m_table->palette().color(QPalette::Highlight), QColor(210, 210, 255));
    EXPECT_EQ(m_table->palette().color(QPalette::HighlightedText), QColor(0, 0, 0));
    EXPECT_TRUE(m_table->verticalHeader()->isHidden());
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Transmit Messages"));
    EXPECT_EQ(m_dialog->minimumWidth(), 400);
    const QTableWidgetItem& item = *m_table->item(0, 0);
    EXPECT_TRUE(item.font().bold());
    EXPECT_STREQ(item.data(256).typeName(), "SendMsg*");
    EXPECT_EQ(item.data(256).value<SendMsg*>(), &line(0));
}

TEST_F(TransmitRows, BuildingAndRebuildingSendNothingWithAutoTxOn)
{
    addLine(0x1FFFFFFF).byteCount = 17; // no mode has such an identifier, no code such a count
    addLine(3).byteCount = 8;
    m_object->settings().autoTx = true;
    for (const int mode : {0, 3, 4}) {
        m_object->settings().displayMode = mode;
        delete m_dialog;
        open();
        click("numberFormat");
        EXPECT_TRUE(m_interface.batches.empty()) << mode;
    }
    EXPECT_EQ(line(0).id, 0x1FFFFFFFU); // what editors correct is their copy
    EXPECT_EQ(line(0).byteCount, 17U);
    EXPECT_EQ(line(1).mode, 0U);
}

TEST_F(TransmitRows, RunningStateSurvivesARebuild)
{
    addLine(7, 5000, 1);
    addLine(8, 5000, 0);
    open();
    click("numberFormat");
    EXPECT_EQ(button(0)->text(), QStringLiteral("Running"));
    EXPECT_EQ(button(1)->text(), QStringLiteral("Stopped"));
    EXPECT_EQ(rateBox(0)->value(), 5000);
    EXPECT_EQ(line(0).running, 1);
}

TEST_F(TransmitRows, DisplayModeChoosesTheEditor)
{
    addLine(1).byteCount = 8;
    open();
    auto* modes = find<gui::QwtComboBox>("displayMode");
    EXPECT_NE(dynamic_cast<WidgetTransmitCan*>(m_table->editor(0)), nullptr);
    EXPECT_EQ(m_table->rowHeight(0), 40);
    zul::test::choose(modes, 3);
    EXPECT_EQ(m_object->settings().displayMode, 3);
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_NE(dynamic_cast<WidgetCanAs*>(m_table->editor(0)), nullptr);
    EXPECT_EQ(m_table->rowHeight(0), 80);
    EXPECT_EQ(m_table->editor(0)->height(), 50);
    zul::test::choose(modes, 4);
    EXPECT_NE(dynamic_cast<Widget825Raw*>(m_table->editor(0)), nullptr);
    EXPECT_EQ(m_table->rowHeight(0), 40);
    zul::test::choose(modes, 0);
    EXPECT_NE(dynamic_cast<WidgetTransmitCan*>(m_table->editor(0)), nullptr);
}

TEST_F(TransmitRows, DisplayModeOfNoEditorHasLowRowsWithTheButtonAlone)
{
    addLine(1);
    m_object->settings().displayMode = 6;
    open();
    EXPECT_EQ(m_table->editor(0), nullptr);
    EXPECT_EQ(m_table->rowHeight(0), 25);
    EXPECT_EQ(button(0)->text(), QStringLiteral("Transmit"));
    EXPECT_EQ(find<gui::QwtComboBox>("displayMode")->currentIndex(), -1);
}

TEST_F(TransmitRows, RowsFollowTheHeightOfTheirPayload)
{
    addLine(1).byteCount = 64;
    addLine(2).byteCount = 33;
    for (const int mode : {0, 4}) {
        m_object->settings().displayMode = mode;
        delete m_dialog;
        open();
        EXPECT_EQ(m_table->rowHeight(0), 80);
        EXPECT_EQ(m_table->rowHeight(1), 60);
        auto* byteCount = m_table->editor(1)->findChild<QSpinBox*>(QStringLiteral("byteCount"));
        zul::test::type(byteCount, "64");
        EXPECT_EQ(m_table->rowHeight(1), 80);
        zul::test::type(byteCount, "8");
        EXPECT_EQ(m_table->rowHeight(1), 40);
        line(1).byteCount = 33;
    }
}

TEST_F(TransmitRows, NumberTypeRebuildsTheRows)
{
    addLine(0x1F);
    open();
    auto canId = [&] { return m_table->editor(0)->findChild<QSpinBox*>(QStringLiteral("canId")); };
    EXPECT_EQ(canId()->text(), QStringLiteral("31"));
    click("numberFormat");
    EXPECT_EQ(m_object->settings().numberType, 1);
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_EQ(canId()->text(), QStringLiteral("0x1F"));
    EXPECT_EQ(cells(0)[0]->text(), QStringLiteral("0x00"));
}

TEST_F(TransmitRows, HostileLinesNeitherCrashNorReadBeyondThePayload)
{
    SendMsg& hostile = addLine(0xFFFFFFFF, -5, 7);
    hostile.byteCount = 4'000'000'000U;
    hostile.mode = 77;
    hostile.min = std::numeric_limits<float>::max();
    hostile.max = -hostile.min;
    hostile.data[1] = 255;
    m_object->settings().numberType = 12345;
    for (const int mode : {0, 3, 4, -1, 77}) {
        m_object->settings().displayMode = mode;
        delete m_dialog;
        open();
        m_dialog->show();
        QApplication::processEvents();
        EXPECT_EQ(button(0)->text(), QStringLiteral("Running"));
        EXPECT_EQ(rateBox(0)->text(), QStringLiteral("Single"));
        zul::test::ConsoleCapture console;
        QMetaObject::invokeMethod(m_dialog.data(), "slotTransmitSingle", Q_ARG(int, 0));
    }
    EXPECT_EQ(m_interface.ids(), Ids(5, {0xFFFFFFFF}));
    EXPECT_EQ(m_interface.frame(0).byteCount(), 4'000'000'000U);
}

TEST_F(TransmitRows, RowsFarBelowGetTheirControlsWhenTheyComeIntoView)
{
    constexpr int count = 3'000;
    for (int i = 0; i < count; ++i) {
        addLine(static_cast<std::uint32_t>(i)).byteCount = i % 2 == 0 ? 8 : 64;
    }
    open();
    m_dialog->show();
    EXPECT_NE(m_table->editor(count - 1), nullptr); // a rebuild goes to the bottom
    m_table->scrollToTop();
    EXPECT_EQ(m_table->rowCount(), count);
    EXPECT_NE(m_table->editor(0), nullptr);
    constexpr int middle = count / 2;
    EXPECT_EQ(m_table->editor(middle), nullptr);
    EXPECT_EQ(m_table->rowHeight(middle), 40);
    EXPECT_EQ(m_table->rowHeight(middle + 1), 80);
    m_table->verticalScrollBar()->setValue(m_table->rowViewportPosition(middle));
    ASSERT_NE(m_table->editor(middle), nullptr);
    EXPECT_EQ(m_table->editor(middle)->message().id, static_cast<std::uint32_t>(middle));
    m_object->settings().outputOn = true;
    zul::test::ConsoleCapture console;
    QTest::mouseClick(button(middle), Qt::LeftButton);
    EXPECT_EQ(m_interface.ids(), (Ids{{middle}}));
    int controls = 0;
    for (int row = 0; row < count; ++row) {
        controls += m_table->editor(row) != nullptr ? 1 : 0;
    }
    EXPECT_LT(controls, 200);
}

TEST_F(TransmitRows, MessagesStretchAndScrollWhereThereIsNoRoom)
{
    addLine(1);
    for (const auto& [mode, width] : {std::pair{0, 700}, {3, 700}, {4, 550}}) {
        m_object->settings().displayMode = mode;
        delete m_dialog;
        open();
        m_dialog->show();
        m_dialog->resize(1600, 300);
        QApplication::processEvents();
        EXPECT_EQ(m_table->horizontalHeader()->sectionResizeMode(1), QHeaderView::Stretch);
        EXPECT_EQ(m_table->columnWidth(1), m_table->viewport()->width() - 160);
        m_dialog->resize(500, 300);
        QApplication::processEvents();
        EXPECT_GE(m_table->columnWidth(1), width);
        EXPECT_GE(m_table->columnWidth(1), m_table->editor(0)->minimumSizeHint().width());
        EXPECT_GE(m_table->columnWidth(1), m_table->editor(0)->minimumWidth());
        EXPECT_GT(m_table->horizontalScrollBar()->maximum(), 0);
    }
}

TEST_F(TransmitRows, WheelGoesOnToTheTableAndChangesNoNumber)
{
    for (int i = 0; i < 20; ++i) {
        addLine(5);
    }
    open();
    m_dialog->show();
    m_table->scrollToTop();
    auto* canId = m_table->editor(0)->findChild<QSpinBox*>(QStringLiteral("canId"));
    QWheelEvent wheel(QPointF(5, 5), canId->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(canId, &wheel);
    EXPECT_EQ(canId->value(), 5);
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_EQ(canId->focusPolicy(), Qt::StrongFocus);
}

} // namespace
