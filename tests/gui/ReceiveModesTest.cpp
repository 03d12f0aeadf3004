#include "gui/controls/QwtComboBox.h"
#include "gui/frame/MessageGuiDialog.h"
#include "profile/DataTypes.h"
#include "profile/ProfileStore.h"
#include "tests/gui/ReceiveFixture.h"

#include <QHeaderView>

// The Receive window in the display modes CANaerospace, ARINC 825 Raw and ARINC 825 Profile.

namespace {

using zul::MessageCan;
using zul::test::batchOf;

constexpr auto errorFrame = MessageCan::EFrameType::Error;
constexpr int canAerospace = 3;
constexpr int raw = 4;
constexpr int profile = 6;
constexpr std::uint32_t fsb = 0x40000;
constexpr std::uint32_t pitchKey = 2U << 26 | 4U << 19 | 100U << 2;
const QColor green(220, 255, 220);
const QColor white(255, 255, 255);
const QColor red(255, 0, 0);
const QColor black(0, 0, 0);

class ReceiveModes : public zul::test::ReceiveTest
{
protected:
    void SetUp() override
    {
        ReceiveTest::SetUp();
        m_mode = m_dialog->findChild<gui::QwtComboBox*>(QStringLiteral("displayMode"));
        gui::GuiRequests::setHandler([this](std::unique_ptr<Message> request) {
            m_dials.push_back(dynamic_cast<const MessageGuiDialog&>(*request).parameter());
        });
        addParameter("Pitch");
        addParameter("Alpha");
    }
    void TearDown() override
    {
        ReceiveTest::TearDown();
        ProfileStore::instance().unloadAll();
    }
    static void addParameter(const char* name)
    {
        ProfileParameter parameter;
        parameter.id = pitchKey;
        parameter.nme = QString::fromLatin1(name);
        parameter.pun = QStringLiteral("deg");
        parameter.dtc = static_cast<std::uint32_t>(zul::ArincType::UChar);
        parameter.max = 255.0;
        ProfileStore::instance().addToIndex(parameter);
    }
    /// What choosing the mode in the combo box does.
    void choose(int mode) const
    {
        m_mode->setData(mode);
        emit m_mode->activated(m_mode->currentIndex());
    }
    QStringList texts(int row) const
    {
        QStringList list;
        for (int column = 0; column < m_tree->columnCount(); ++column) {
            list << m_tree->topLevelItem(row)->text(column);
        }
        return list;
    }
    QStringList headers() const
    {
        QStringList list;
        for (int column = 0; column < m_tree->columnCount(); ++column) {
            list << m_tree->headerItem()->text(column);
        }
        return list;
    }
    void expectWidths(const std::vector<int>& least) const
    {
        for (int column = 0; column < static_cast<int>(least.size()); ++column) {
            EXPECT_GE(m_tree->columnWidth(column), least[static_cast<std::size_t>(column)])
                << column;
        }
    }

    gui::QwtComboBox* m_mode = nullptr;
    std::vector<int> m_dials; ///< identifiers for which a dial was asked
};

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList result;
    for (const char* text : texts) {
        result << QLatin1String(text);
    }
    return result;
}

TEST_F(ReceiveModes, ComboOffersFourModesByTheirNumbers)
{
    QStringList offered;
    for (int i = 0; i < m_mode->count(); ++i) {
        offered
            << QStringLiteral("%1 %2").arg(m_mode->itemData(i).toInt()).arg(m_mode->itemText(i));
    }
    EXPECT_EQ(offered, list({"0 CAN", "3 CANaerospace", "4 ARINC 825 Raw", "6 ARINC 825 Profile"}));
}

TEST_F(ReceiveModes, ChosenModeIsStoredAndMarksTheProject)
{
    for (const int mode : {canAerospace, raw, profile, 0}) {
        m_project.save(QString());
        choose(mode);
        EXPECT_EQ(m_object->settings().displayMode, mode);
        EXPECT_TRUE(m_project.isEdited());
    }
}

TEST_F(ReceiveModes, ColumnsOfArinc825Raw)
{
    choose(raw);
    EXPECT_EQ(headers(), list({"Count", "Id", "Time", "LCC", "FID/FSB/LCL/PVT/DOC/Address/Port",
                               "RCI", "DATA"}));
    QStringList toolTips;
    for (int column = 0; column < 7; ++column) {
        toolTips << m_tree->headerItem()->toolTip(column);
        EXPECT_EQ(m_tree->headerItem()->font(column).pixelSize(), 12);
    }
    EXPECT_EQ(
        toolTips,
        list({"Message Count", "Id", "Time",
              "Logical Communication Channel\n\n0 EEC Exception Event Channel\n1 Reserved\n2 "
              "NOC Normal Operation Channel\n3 DMC Directed Message Channel\n5 NSC Node "
              "Service Channel\n5 UDC User Defined Channel\n6 TMC Test/Maintenance Channel\n7 "
              "FMC CAN Base Frame Migration Channel",
              "FID/PORT", "Redundancy Channel Identifier", "Can Message Data"}));
    expectWidths({60, 60, 80, 40, 200, 40, 100});
}

TEST_F(ReceiveModes, ColumnsOfArinc825Profile)
{
    choose(profile);
    EXPECT_EQ(headers(),
              list({"Count", "Id", "LCC/FID/DOC/LCL/PVT", "RCI", "Parameter", "Value", "Unit"}));
    QStringList toolTips;
    for (int column = 0; column < 7; ++column) {
        toolTips << m_tree->headerItem()->toolTip(column);
        EXPECT_EQ(m_tree->headerItem()->font(column).pixelSize(), 12);
    }
    EXPECT_EQ(toolTips,
              list({"Message Count", "Id",
                    "LCC Logical Communication Channel\nFID Function Code Identifier\n"
                    "DOC Data Object Code\nLCL Local Bit\nPVT Private Bit",
                    "Redundancy Channel Identifier", "Parameter Name", "Parameter Value", "Unit"}));
    expectWidths({80, 80, 150, 40, 300, 120, 80});
}

TEST_F(ReceiveModes, ColumnsOfCanComeBackAsTheyWere)
{
    const QFont font = m_tree->headerItem()->font(0);
    choose(raw);
    m_tree->sortByColumn(6, Qt::AscendingOrder);
    choose(canAerospace);
    EXPECT_EQ(headers(), list({"Msgs", "Time", "Id", "Len", "Message"}));
    EXPECT_TRUE(m_tree->headerItem()->toolTip(0).isEmpty());
    EXPECT_EQ(m_tree->headerItem()->font(0), font);
    EXPECT_EQ(m_tree->header()->sortIndicatorSection(), -1) << "chosen from other columns";
    expectWidths({100, 100, 100, 50});
}

TEST_F(ReceiveModes, CanAndCanAerospaceKeepTheRowsAndAnyOtherSwitchEmptiesThem)
{
    feed(batchOf(300, 8));
    choose(canAerospace); // the first switch empties them in any case
    EXPECT_EQ(m_tree->topLevelItemCount(), 0);
    feed(batchOf(300, 8));
    choose(0);
    EXPECT_EQ(texts(0),
              list({"1", "1.5000", "S 300", "D8", "  0-> 171 000 000 000 000 000 000 000"}));
    choose(canAerospace);
    ASSERT_EQ(m_tree->topLevelItemCount(), 1);
    EXPECT_EQ(m_tree->topLevelItem(0)->text(4), QStringLiteral("NOD 171 NODATA  0 000 | "));
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    for (const int mode : {raw, profile, raw, 0, profile, canAerospace}) {
        choose(mode);
        EXPECT_EQ(m_tree->topLevelItemCount(), 0) << mode;
        EXPECT_EQ(m_dialog->table().rowCount(), 0) << mode;
        emit m_tree->itemDoubleClicked(nullptr, 0);
        EXPECT_TRUE(m_dials.empty()) << "nothing is current";
        feed(batchOf(pitchKey, 8));
        EXPECT_NE(m_tree->topLevelItemCount(), 0) << mode;
        m_tree->setCurrentItem(m_tree->topLevelItem(0));
    }
    EXPECT_EQ(m_dialog->table().receivedTotal(), 8U);
}

TEST_F(ReceiveModes, SameModeChosenAgainKeepsTheRows)
{
    choose(raw);
    feed(batchOf(pitchKey, 8));
    choose(raw);
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
}

TEST_F(ReceiveModes, CanAerospaceShowsTheSameTextOnAllLines)
{
    choose(canAerospace);
    feed(batchOf(300, 64));
    ASSERT_TRUE(painted(4, "NOD 171 NODATA  0 000 | "));
    const QTreeWidgetItem& top = *m_tree->topLevelItem(0);
    for (int line = 0; line < 3; ++line) {
        EXPECT_EQ(top.child(line)->text(4), top.text(4));
        EXPECT_FALSE(top.child(line)->isHidden());
    }
    choose(0);
    EXPECT_TRUE(top.child(2)->text(4).startsWith(QLatin1String(" 48-> ")));
}

TEST_F(ReceiveModes, OnlyTheCanModesTestTheInterface)
{
    m_object->settings().inputInterface = QStringLiteral("Tail");
    m_dialog->updateDialog();
    for (const auto& [mode, isTaken] :
         {std::pair(0, false), {canAerospace, false}, {raw, true}, {profile, true}}) {
        choose(mode);
        feed(batchOf(pitchKey, 8)); // from "Nose"
        EXPECT_EQ(m_tree->topLevelItemCount() > 0, isTaken) << mode;
    }
}

TEST_F(ReceiveModes, FilterAndInputSwitchCountInAllModes)
{
    m_object->filter().setOn(true);
    m_object->filter().setMax(10);
    for (const int mode : {canAerospace, raw, profile}) {
        choose(mode);
        const std::uint32_t before = m_dialog->table().receivedTotal();
        feed(batchOf(pitchKey, 8));
        EXPECT_EQ(m_tree->topLevelItemCount(), 0) << mode;
        m_object->settings().inputOn = false;
        feed(batchOf(5, 8));
        m_object->settings().inputOn = true;
        EXPECT_EQ(m_tree->topLevelItemCount(), 0) << mode;
        EXPECT_EQ(m_dialog->table().receivedTotal(), before + 2) << mode;
    }
}

TEST_F(ReceiveModes, RawRowShowsFieldsAndBytes)
{
    choose(raw);
    feed(batchOf(pitchKey | 2, 20));
    ASSERT_TRUE(painted(3, "NOC"));
    EXPECT_EQ(texts(0),
              list({"1", "136315282", "1.5000", "NOC", "SFID 4 FSB 0 LCL 0 PVT 0 DOC 100", "C",
                    "  0-> 171 000 000 000 000 000 000 000 000 000 000 000 000 000 000 "
                    "000"}));
    click("numberFormat");
    EXPECT_EQ(texts(0)[1], QStringLiteral("0x8200192"));
    EXPECT_EQ(texts(0)[4], QStringLiteral("SFID 0x4 FSB 0x0 LCL 0x0 PVT 0x0 DOC 0x64"));
    const QTreeWidgetItem& top = *m_tree->topLevelItem(0);
    EXPECT_EQ(top.child(0)->text(6), QStringLiteral(" 16-> $00 $00 $00 $00 "));
    EXPECT_EQ(top.font(3).weight(), 75);
    EXPECT_EQ(top.font(6).family(), QStringLiteral("Courier"));
    EXPECT_EQ(top.font(6).weight(), 75);
    EXPECT_EQ(top.icon(0).isNull(), false);
}

TEST_F(ReceiveModes, RawRowHasAFourthEmptyLineAlways)
{
    choose(raw);
    feed(batchOf(pitchKey, 64));
    ASSERT_TRUE(painted(3, "NOC"));
    QTreeWidgetItem& top = *m_tree->topLevelItem(0);
    ASSERT_EQ(top.childCount(), 4);
    for (int line = 0; line < 3; ++line) {
        EXPECT_FALSE(top.child(line)->isHidden());
        EXPECT_FALSE(top.child(line)->text(6).isEmpty());
        EXPECT_EQ(top.child(line)->background(0).color(), green);
    }
    EXPECT_EQ(top.child(3)->background(0).style(), Qt::NoBrush) << "it is none of the row's lines";
    feed(batchOf(pitchKey, 8));
    ASSERT_TRUE(painted(0, "2"));
    for (const auto order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
        m_tree->sortByColumn(6, order);
        for (int line = 0; line < 3; ++line) {
            EXPECT_TRUE(top.child(line)->isHidden());
        }
        EXPECT_FALSE(top.child(3)->isHidden());
        EXPECT_TRUE(top.child(3)->text(6).isEmpty());
        EXPECT_EQ(top.child(3)->font(6).family(), QStringLiteral("Courier"));
    }
}

TEST_F(ReceiveModes, RawErrorFrameIsRedAndEmptiesCellsUntilTheNextFrame)
{
    choose(raw);
    feed(batchOf(pitchKey, 8));
    ASSERT_TRUE(painted(3, "NOC"));
    feed(batchOf(pitchKey, 8, errorFrame));
    ASSERT_TRUE(painted(3, "ERROR FRAME"));
    EXPECT_EQ(texts(0), list({"2", "136315280", "1.5000", "ERROR FRAME", "", "", ""}));
    for (int column = 0; column < 7; ++column) {
        EXPECT_EQ(m_tree->topLevelItem(0)->foreground(column).color(), red) << column;
    }
    feed(batchOf(pitchKey, 8));
    ASSERT_TRUE(painted(3, "NOC"));
    EXPECT_EQ(texts(0)[5], QStringLiteral("A"));
    EXPECT_FALSE(texts(0)[4].isEmpty());
    EXPECT_FALSE(texts(0)[6].isEmpty());
    for (int column = 0; column < 7; ++column) {
        EXPECT_EQ(m_tree->topLevelItem(0)->foreground(column).color(), black) << column;
    }
}

TEST_F(ReceiveModes, ReservedChannelShowsNoFields)
{
    choose(raw);
    feed(batchOf(1U << 26 | 55, 8));
    ASSERT_TRUE(painted(3, "RES"));
    EXPECT_EQ(texts(0)[4], QString());
}

TEST_F(ReceiveModes, FsbMakesTwoRowsInRawAndOneInProfile)
{
    choose(raw);
    feed(batchOf(pitchKey, 8));
    feed(batchOf(pitchKey | fsb, 8));
    EXPECT_EQ(m_tree->topLevelItemCount(), 2);
    choose(profile);
    feed(batchOf(7U << 2, 8));
    feed(batchOf(7U << 2 | fsb, 8));
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    ASSERT_TRUE(painted(0, "2"));
}

TEST_F(ReceiveModes, ProfileHasARowForEachParameterOfAFrame)
{
    choose(profile);
    feed(batchOf(pitchKey | 1, 8));
    ASSERT_EQ(m_tree->topLevelItemCount(), 2);
    ASSERT_TRUE(painted(0, "1"));
    const QStringList pitch = list({"1", "0x8200190", "$2/$4/$64/$0/$0", "B", "Pitch"});
    EXPECT_EQ(texts(0).mid(0, 5), pitch);
    EXPECT_EQ(texts(0)[6], QStringLiteral("deg"));
    EXPECT_TRUE(texts(0)[5].startsWith(QLatin1String("171.0")));
    EXPECT_EQ(texts(1)[4], QStringLiteral("Alpha"));
    EXPECT_EQ(texts(1)[0], QStringLiteral("1"));
    const QTreeWidgetItem& top = *m_tree->topLevelItem(0);
    EXPECT_EQ(top.childCount(), 0);
    EXPECT_EQ(top.font(3).weight(), 75);
    EXPECT_EQ(top.background(6).color(), green);
    click("numberFormat");
    EXPECT_EQ(texts(0)[2], QStringLiteral("2/4/100/0/0")) << "the other way round";
    EXPECT_EQ(texts(0)[1], QStringLiteral("0x8200190"));
}

TEST_F(ReceiveModes, RedundancyChannelsOfOneParameterHaveTheirOwnRows)
{
    choose(profile);
    feed(batchOf(pitchKey | 1, 8));
    feed(batchOf(pitchKey | 3, 8));
    ASSERT_EQ(m_tree->topLevelItemCount(), 4);
    EXPECT_EQ(texts(0)[3], QStringLiteral("B"));
    EXPECT_EQ(texts(2)[3], QStringLiteral("D"));
}

TEST_F(ReceiveModes, UnknownIdentifierIsShownAsUnknownParameter)
{
    choose(profile);
    feed(batchOf(5U << 26 | 55U << 2 | 2, 8));
    ASSERT_TRUE(painted(0, "1"));
    EXPECT_EQ(texts(0), list({"1", "0x140000dc", "$5/$0/$37/$0/$0", "C", "Unknown Parameter",
                              "NO DATA", ""}));
}

TEST_F(ReceiveModes, ProfileErrorFrameLosesItsNamesUntilTheRowIsMadeAnew)
{
    choose(profile);
    feed(batchOf(pitchKey, 8));
    ASSERT_TRUE(painted(0, "1"));
    feed(batchOf(pitchKey, 8, errorFrame));
    ASSERT_TRUE(painted(2, "ERROR FRAME"));
    EXPECT_EQ(texts(0), list({"2", "0x8200190", "ERROR FRAME", "", "", "", "deg"}));
    EXPECT_EQ(m_tree->topLevelItem(0)->foreground(6).color(), red);
    feed(batchOf(pitchKey, 8));
    ASSERT_TRUE(painted(2, "$2/$4/$64/$0/$0"));
    EXPECT_EQ(m_tree->topLevelItem(0)->foreground(6).color(), black);
    EXPECT_EQ(texts(0)[3], QString());
    EXPECT_EQ(texts(0)[4], QString());
    EXPECT_FALSE(texts(0)[5].isEmpty());
    click("clear");
    feed(batchOf(pitchKey, 8));
    EXPECT_EQ(texts(0)[4], QStringLiteral("Pitch"));
}

TEST_F(ReceiveModes, SilentRowsTurnWhiteInAllModes)
{
    for (const int mode : {raw, profile}) {
        choose(mode);
        feed(batchOf(pitchKey, 8));
        ASSERT_TRUE(painted(0, "1"));
        m_clock.advance(0.6);
        feed(MessageContainer());
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return m_tree->topLevelItem(0)->background(6).color() == white;
        })) << mode;
    }
}

TEST_F(ReceiveModes, TopLinesOfTheArincModesAskForADialWithTheirIdentifier)
{
    choose(raw);
    feed(batchOf(pitchKey | fsb, 64));
    QTreeWidgetItem* top = m_tree->topLevelItem(0);
    m_tree->setCurrentItem(top);
    emit m_tree->itemDoubleClicked(top, 0);
    m_tree->setCurrentItem(top->child(0));
    emit m_tree->itemDoubleClicked(top, 0);
    choose(profile);
    feed(batchOf(pitchKey | 1, 8));
    m_tree->setCurrentItem(m_tree->topLevelItem(1));
    emit m_tree->itemDoubleClicked(nullptr, 0);
    EXPECT_EQ(m_dials, (std::vector<int>{static_cast<int>(pitchKey | fsb), 0,
                                         static_cast<int>(pitchKey | 1)}));
}

TEST_F(ReceiveModes, RowsOutliveTheProfiles)
{
    choose(profile);
    feed(batchOf(pitchKey, 8));
    ProfileStore::instance().unloadAll();
    feed(batchOf(pitchKey, 8));
    ASSERT_TRUE(painted(0, "2"));
    EXPECT_EQ(texts(0)[4], QStringLiteral("Pitch"));
    EXPECT_TRUE(texts(0)[5].startsWith(QLatin1String("171.0")));
    m_tree->sortByColumn(5, Qt::AscendingOrder);
    EXPECT_EQ(m_tree->topLevelItemCount(), 2);
}

TEST_F(ReceiveModes, SavedModeHasItsColumnsFromTheStart)
{
    for (const auto& [mode, columns] : {std::pair(3, 5), {4, 7}, {6, 7}, {0, 5}}) {
        ObjectReceive object;
        object.settings().displayMode = mode;
        gui::DialogReceive dialog(&object, nullptr);
        auto* tree = dialog.findChild<QTreeWidget*>(QStringLiteral("receiveTree"));
        EXPECT_EQ(tree->columnCount(), columns) << mode;
        auto* combo = dialog.findChild<gui::QwtComboBox*>(QStringLiteral("displayMode"));
        EXPECT_EQ(combo->currentData().toInt(), mode);
        MessageContainer batch = batchOf(pitchKey, 8);
        dialog.receive(batch);
        EXPECT_EQ(tree->topLevelItemCount(), mode == profile ? 2 : 1);
    }
}

TEST_F(ReceiveModes, UnknownSavedModeCountsAsCanAndIsKept)
{
    for (const int mode : {5, 99, -1}) {
        ObjectReceive object;
        object.settings().displayMode = mode;
        gui::DialogReceive dialog(&object, nullptr);
        const auto* tree = dialog.findChild<QTreeWidget*>(QStringLiteral("receiveTree"));
        EXPECT_EQ(tree->columnCount(), 5);
        EXPECT_EQ(dialog.findChild<gui::QwtComboBox*>(QStringLiteral("displayMode"))->currentText(),
                  QStringLiteral("CAN"));
        MessageContainer batch = batchOf(5, 8);
        dialog.receive(batch);
        EXPECT_EQ(tree->topLevelItemCount(), 1);
        EXPECT_EQ(object.settings().displayMode, mode);
    }
}

TEST_F(ReceiveModes, UpdateTakesOverTheModeOfTheObject)
{
    feed(batchOf(pitchKey, 8));
    m_object->settings().displayMode = raw;
    m_dialog->updateDialog();
    EXPECT_EQ(m_tree->columnCount(), 7);
    EXPECT_EQ(m_tree->topLevelItemCount(), 0) << "rows of other columns";
    feed(batchOf(pitchKey, 8));
    m_tree->setColumnWidth(0, 333);
    m_dialog->updateDialog();
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    EXPECT_EQ(m_tree->columnWidth(0), 333) << "what the user set stays";
}

TEST_F(ReceiveModes, ParameterRowsSortByTheirValues)
{
    choose(profile);
    for (const auto& [rci, value] : {std::pair(0U, 30), {1U, 200}, {2U, 9}}) {
        MessageContainer batch = batchOf(pitchKey | rci, 8);
        dynamic_cast<MessageCan&>(*batch.messages().front()).msg()[0] =
            static_cast<std::uint8_t>(value);
        feed(std::move(batch));
    }
    ASSERT_TRUE(painted(0, "1"));
    m_tree->sortByColumn(5, Qt::AscendingOrder);
    QString order;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        order += texts(i)[3];
    }
    EXPECT_EQ(order, QStringLiteral("CCAABB"));
}

TEST_F(ReceiveModes, DialGetsTheIdentifierOfTheFrameThatMadeTheRow)
{
    choose(profile);
    MessageContainer batch = batchOf(pitchKey, 8);
    auto* later = new MessageCan;
    later->setId(pitchKey | 0x40000U);
    batch.addMessage(SmartPtr<Message>(later));
    feed(std::move(batch));
    ASSERT_EQ(m_tree->topLevelItemCount(), 2) << "two parameters, and both frames are theirs";
    for (int row = 0; row < 2; ++row) {
        EXPECT_EQ(m_tree->topLevelItem(row)->data(0, 256).toUInt(), pitchKey);
    }
}

TEST_F(ReceiveModes, CanAerospaceLinesSortByWhatTheyShow)
{
    choose(canAerospace);
    feed(batchOf(1800, 8)); // of a later class, with a smaller first byte
    MessageContainer batch = batchOf(300, 8);
    feed(std::move(batch));
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return m_tree->topLevelItemCount() == 2 && !m_tree->topLevelItem(1)->text(4).isEmpty();
    }));
    for (const auto order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
        m_tree->sortByColumn(4, order);
        const bool isAscending =
            m_tree->topLevelItem(0)->text(4) < m_tree->topLevelItem(1)->text(4);
        EXPECT_EQ(isAscending, order == Qt::AscendingOrder);
    }
}

} // namespace
