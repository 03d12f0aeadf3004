#include "gui/controls/QwtLineEdit.h"
#include "gui/controls/QwtSpinBox.h"
#include "gui/traffic/Widget825Raw.h"
#include "gui/traffic/WidgetTransmitCan.h"
#include "tests/gui/TransmitFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>
#include <QStackedWidget>

// The editors of plain CAN frames and of ARINC 825 identifiers.

namespace {

using zul::test::choose;
using zul::test::type;

/// An editor, and the lines that it gave back.
template <typename Editor>
class EditorTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_editor.setMessage(3, SendMsg());
        QObject::connect(&m_editor, &gui::MessageEditor::signalChanged, &m_editor,
                         [this](int index, const SendMsg& msg) {
                             EXPECT_EQ(index, 3);
                             m_given.push_back(msg);
                         });
    }
    void set(const SendMsg& msg)
    {
        m_editor.setMessage(3, msg);
        m_given.clear();
    }
    template <typename Widget>
    Widget* find(const char* name)
    {
        return m_editor.template findChild<Widget*>(QLatin1String(name));
    }
    QSpinBox* number(const char* name) { return find<QSpinBox>(name); }
    QList<gui::QwtLineEdit*> cells() { return m_editor.template findChildren<gui::QwtLineEdit*>(); }
    QLabel* label(const char* text)
    {
        for (QLabel* label : m_editor.template findChildren<QLabel*>()) {
            if (label->text() == QLatin1String(text)) {
                return label;
            }
        }
        ADD_FAILURE() << text;
        return nullptr;
    }
    void expectRows(int rows)
    {
        static constexpr const char* names[] = {"B0", "B16", "B32", "B48"};
        for (int row = 0; row < 4; ++row) {
            EXPECT_EQ(!label(names[row])->isHidden(), row < rows) << row;
            EXPECT_EQ(!cells()[16 * row]->isHidden(), row < rows) << row;
        }
    }
    int enabledCells()
    {
        int count = 0;
        for (const gui::QwtLineEdit* cell : cells()) {
            count += cell->isEnabledTo(&m_editor) ? 1 : 0;
        }
        return count;
    }
    void expectLook()
    {
        EXPECT_EQ(m_editor.frameStyle(), 34);
        EXPECT_EQ(m_editor.palette().color(m_editor.backgroundRole()), QColor(220, 220, 220));
        EXPECT_TRUE(m_editor.autoFillBackground());
        EXPECT_EQ(cells()[0]->palette().color(QPalette::Active, QPalette::Base),
                  QColor(255, 255, 255));
    }
    /// Shows a message of so many bytes, and what comes of it.
    void expectHeight(std::uint32_t bytes, int rows, int height)
    {
        QSignalSpy heights(&m_editor, &Editor::signalHeight);
        SendMsg msg;
        msg.byteCount = bytes;
        set(msg);
        expectRows(rows);
        EXPECT_EQ(enabledCells(), static_cast<int>(std::min(bytes, 64U))) << bytes;
        EXPECT_EQ(m_editor.minimumHeight(), height);
        EXPECT_EQ(m_editor.maximumHeight(), height);
        ASSERT_GT(heights.count(), 0);
        EXPECT_EQ(heights.last()[0], 3);
        EXPECT_EQ(heights.last()[1].toInt(), height);
    }
    /// For byte counts that the spin box has codes for, and for all from 0 on.
    void expectHeights()
    {
        for (const auto& [bytes, rows, height] :
             {std::tuple{17U, 2, 40}, {33U, 3, 60}, {49U, 4, 80}, {4'000'000'000U, 4, 80}}) {
            expectHeight(0, 1, 40);
            expectHeight(bytes, rows, height);
        }
        for (const auto& [bytes, rows, height] :
             {std::tuple{8U, 1, 40}, {16U, 1, 40}, {32U, 2, 40}, {48U, 3, 60}, {64U, 4, 80}}) {
            expectHeight(bytes, rows, height);
        }
    }

    Editor m_editor;
    std::vector<SendMsg> m_given;
};

using CanEditor = EditorTest<WidgetTransmitCan>;
using RawEditor = EditorTest<Widget825Raw>;

TEST_F(CanEditor, HasItsControls)
{
    expectLook();
    EXPECT_EQ(number("canId")->width(), 100);
    label("CanId");
    label("Mode");
    label("BC");
    EXPECT_EQ(label("B48")->width(), 30);
    EXPECT_EQ(number("byteCount")->toolTip(), QStringLiteral("Message Byte Count"));
    const auto* mode = find<QComboBox>("mode");
    ASSERT_EQ(mode->count(), 6);
    EXPECT_EQ(mode->itemText(5), QStringLiteral("29 Bit BRS"));
    EXPECT_EQ(mode->itemData(5), 5);
    ASSERT_EQ(cells().size(), 64);
    const QValidator* validator = cells()[0]->validator();
    for (const gui::QwtLineEdit* cell : cells()) {
        EXPECT_EQ(cell->toolTip(), QStringLiteral("Message Payload"));
        EXPECT_EQ(cell->validator(), validator);
    }
}

TEST_F(CanEditor, ControlsFollowEachOtherInTabOrder)
{
    QList<QWidget*> wanted{find<QWidget>("mode"), find<QWidget>("byteCount")};
    for (gui::QwtLineEdit* cell : cells()) {
        wanted.append(cell);
    }
    const QWidget* widget = number("canId");
    for (const QWidget* next : wanted) {
        do {
            widget = widget->nextInFocusChain();
        } while (!(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy() != nullptr ||
                 widget->parentWidget()->inherits("QAbstractSpinBox"));
        EXPECT_EQ(widget, next);
    }
}

TEST_F(CanEditor, TextsOfAllCellsFitInTheirSmallestWidth)
{
    SendMsg msg;
    msg.byteCount = 64;
    for (int i = 0; i < 64; ++i) {
        msg.data[i] = 0xDD;
    }
    m_editor.setNumberType(1);
    set(msg);
    m_editor.resize(m_editor.minimumSizeHint());
    m_editor.show();
    EXPECT_LE(m_editor.minimumSizeHint().width(), 700);
    for (const gui::QwtLineEdit* cell : cells()) {
        EXPECT_GE(cell->width(), cell->fontMetrics().horizontalAdvance(cell->text()));
        EXPECT_GE(cell->height(), cell->fontMetrics().height());
    }
    EXPECT_LE(cells()[63]->mapTo(&m_editor, cells()[63]->rect().bottomRight()).y(), 79);
}

TEST_F(CanEditor, IdentifierIsGivenBack)
{
    type(number("canId"), "0x123");
    ASSERT_FALSE(m_given.empty());
    EXPECT_EQ(m_given.back().id, 0x123U);
    EXPECT_EQ(m_editor.message().id, 0x123U);
}

TEST_F(CanEditor, IdentifierMayBeOneAboveTheLargestUntilTheNextRebuild)
{
    choose(find<QComboBox>("mode"), 1);
    EXPECT_EQ(number("canId")->maximum(), 0x20000000);
    type(number("canId"), "0x20000000");
    EXPECT_EQ(m_given.back().id, 0x20000000U);
    m_editor.setNumberType(1);
    EXPECT_EQ(m_editor.message().id, 0x1FFFFFFFU);
}

TEST_F(CanEditor, ChangeTo11BitClampsTheIdentifier)
{
    SendMsg msg;
    msg.mode = 1;
    msg.id = 0x1FFFFFFF;
    set(msg);
    EXPECT_EQ(number("canId")->value(), 0x1FFFFFFF);
    choose(find<QComboBox>("mode"), 0);
    ASSERT_EQ(m_given.size(), 1U);
    EXPECT_EQ(m_given.back().mode, 0U);
    EXPECT_EQ(m_given.back().id, 2047U);
    EXPECT_EQ(number("canId")->maximum(), 2047);
}

TEST_F(CanEditor, ValidatorRefuses300AndTheSlotClamps)
{
    SendMsg msg;
    msg.byteCount = 8;
    set(msg);
    type(cells()[0], "300");
    EXPECT_EQ(cells()[0]->text(), QStringLiteral("30"));
    EXPECT_EQ(m_given.back().data[0], 30);
    for (const auto& [text, value] :
         {std::pair{"300", 255}, {"-5", 0}, {"0xFF", 255}, {"010", 8}, {"", 0}, {"x", 0}}) {
        cells()[5]->setText(QStringLiteral("1"));
        cells()[5]->setText(QLatin1String(text));
        EXPECT_EQ(m_given.back().data[5], value) << text;
    }
}

TEST_F(CanEditor, IndexBeyondThePayloadIsClamped)
{
    for (const auto& [index, place] : {std::pair{-1, 0}, {64, 63}, {1'000'000, 63}}) {
        QMetaObject::invokeMethod(&m_editor, "slotData", Q_ARG(int, index),
                                  Q_ARG(QString, QStringLiteral("77")));
        EXPECT_EQ(m_given.back().data[place], 77) << index;
        set(SendMsg());
    }
}

TEST_F(CanEditor, ByteCountIsGivenBackAndLaysOutTheRows)
{
    type(number("byteCount"), "48");
    EXPECT_EQ(m_given.back().byteCount, 48U);
    expectRows(3);
    EXPECT_EQ(enabledCells(), 48);
    EXPECT_EQ(m_editor.height(), 60);
    QTest::keyClick(number("byteCount"), Qt::Key_Up);
    EXPECT_EQ(m_given.back().byteCount, 64U);
}

TEST_F(CanEditor, RowsAndHeightsFollowTheByteCount)
{
    expectHeights();
}

TEST_F(CanEditor, ByteCountOf0DisablesAllCellsAndKeepsTheFirstRow)
{
    set(SendMsg());
    expectRows(1);
    EXPECT_EQ(enabledCells(), 0);
}

TEST_F(CanEditor, NumberTypeShowsAllInItsBase)
{
    SendMsg msg;
    msg.id = 31;
    msg.byteCount = 12;
    msg.data[0] = 10;
    set(msg);
    EXPECT_EQ(cells()[0]->text(), QStringLiteral("10"));
    m_editor.setNumberType(1);
    EXPECT_EQ(number("canId")->text(), QStringLiteral("0x1F"));
    EXPECT_EQ(number("byteCount")->text(), QStringLiteral("0xC"));
    EXPECT_EQ(cells()[0]->text(), QStringLiteral("0x0A"));
    EXPECT_TRUE(m_given.empty()); // a rebuild is no edit
}

TEST_F(RawEditor, HasItsControls)
{
    expectLook();
    EXPECT_EQ(m_editor.minimumWidth(), 400);
    const auto* mode = find<QComboBox>("mode");
    ASSERT_EQ(mode->count(), 3);
    EXPECT_EQ(mode->itemText(0), QStringLiteral("29 Bit"));
    EXPECT_EQ(mode->itemData(0), 1);
    EXPECT_EQ(mode->itemText(1), QStringLiteral("29 Bit FD"));
    EXPECT_EQ(mode->itemData(1), 3);
    EXPECT_EQ(mode->itemText(2), QStringLiteral("29 Bit BRS"));
    EXPECT_EQ(mode->itemData(2), 5);
    const auto* lcc = find<QComboBox>("lcc");
    QStringList names;
    for (int i = 0; i < lcc->count(); ++i) {
        names.append(lcc->itemText(i));
        EXPECT_EQ(lcc->itemData(i), i);
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')), QStringLiteral("EEC RES NOC DMC NSC UDC TMC FMC"));
    EXPECT_EQ(lcc->toolTip(),
              QStringLiteral("EEC Exception Event Channel\n1 Reserved Channel\nNOC Normal "
                             "Operation Channel\nDMC Directed Message Channel\nNSC Node Service "
                             "Channel\nUDC User Defined Channel\nTMC Test Maintenance "
                             "Channel\nFMC Frame Migration Channel"));
    EXPECT_EQ(label("LCC")->toolTip(), QStringLiteral("LCC Logical Communication Channel"));
    EXPECT_EQ(label(" FSB ")->toolTip(), QStringLiteral("Functional Status Bit"));
    ASSERT_EQ(cells().size(), 64);
    EXPECT_EQ(cells()[0]->validator(), nullptr);
    EXPECT_EQ(cells()[0]->toolTip(), QStringLiteral("Message Payload"));
}

TEST_F(RawEditor, ModeWithout29BitsBecomes1)
{
    for (const auto& [before, after] :
         {std::pair{0U, 1U}, {1U, 1U}, {2U, 1U}, {3U, 3U}, {4U, 1U}, {5U, 5U}, {77U, 1U}}) {
        SendMsg msg;
        msg.mode = before;
        set(msg);
        EXPECT_EQ(m_editor.message().mode, after);
        EXPECT_EQ(find<QComboBox>("mode")->currentData().toUInt(), after);
    }
    choose(find<QComboBox>("mode"), 3);
    EXPECT_EQ(m_given.back().mode, 3U);
}

struct NumberRow
{
    std::uint32_t lcc;
    const char* name;
    const char* toolTip;
    int maximum;
    unsigned shift;
    std::uint32_t mask;
};

class RawNumbers : public RawEditor, public testing::WithParamInterface<NumberRow>
{
};

TEST_P(RawNumbers, ChangeTheirBitsAlone)
{
    const NumberRow& row = GetParam();
    QSpinBox* box = number(row.name);
    EXPECT_EQ(box->minimum(), 0);
    EXPECT_EQ(box->maximum(), row.maximum);
    EXPECT_EQ(box->toolTip(), QLatin1String(row.toolTip));
    label(row.name);
    for (const std::uint32_t others : {0U, 0xFFFFFFFFU}) {
        SendMsg msg;
        msg.id = (others & ~0x1C000000U) | row.lcc << 26;
        set(msg);
        EXPECT_EQ(box->value(), static_cast<int>((msg.id & row.mask) >> row.shift));
        EXPECT_TRUE(box->isVisibleTo(&m_editor));
        for (const int value : {0, 1, 42, static_cast<int>(row.mask >> row.shift)}) {
            box->setValue(value);
            const std::uint32_t wanted = (msg.id & ~row.mask) | static_cast<std::uint32_t>(value)
                                                                    << row.shift;
            EXPECT_EQ(m_editor.message().id, wanted) << value;
        }
        ASSERT_FALSE(m_given.empty());
        EXPECT_EQ(m_given.back().id, m_editor.message().id);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Fields, RawNumbers,
    testing::Values(NumberRow{2, "Src FID", "Source FID Function Code Identifier", 127, 19,
                              0x03F80000},
                    NumberRow{0, "DOC", "DOC Data Object Code", 16384, 2, 0x0000FFFC},
                    NumberRow{3, "SA", "Source Address", 127, 19, 0x03F80000},
                    NumberRow{3, "DA", "Destination Address", 127, 12, 0x0007F000},
                    NumberRow{3, "SP", "Source Port", 63, 6, 0x00000FC0},
                    NumberRow{3, "DP", "Destination Port", 63, 0, 0x0000003F},
                    NumberRow{4, "C-FID", "Client FID", 127, 19, 0x03F80000},
                    NumberRow{6, "S-FID", "Server FID", 127, 9, 0x0000FE00},
                    NumberRow{4, "SID", "SID", 127, 2, 0x000001FC}));

TEST_F(RawEditor, FlagsChangeTheirBits)
{
    struct Row
    {
        std::uint32_t lcc;
        const char* name;
        const char* toolTip;
        std::uint32_t mask;
    };
    for (const Row& row : {Row{0, "FSB", "FSB Data Flag", 0x40000},
                           {0, "LCL", "LCL Local Data Bit", 0x20000},
                           {0, "PVT", "PVT Private Data Bit", 0x10000},
                           {4, "SMT", "SMT Service Message Type", 0x40000},
                           {4, "LCL", "LCL Local Data Bit", 0x20000},
                           {4, "PVT", "PVT Private Data Bit", 0x10000}}) {
        for (const std::uint32_t others : {0U, 0x03FFFFFFU}) {
            SendMsg msg;
            msg.id = row.lcc << 26 | others;
            set(msg);
            QCheckBox* box = nullptr; // both pages have LCL and PVT
            for (QCheckBox* each : m_editor.findChildren<QCheckBox*>(QLatin1String(row.name))) {
                box = each->isVisibleTo(&m_editor) ? each : box;
            }
            ASSERT_NE(box, nullptr) << row.name;
            EXPECT_EQ(box->toolTip(), QLatin1String(row.toolTip));
            EXPECT_EQ(box->isChecked(), others != 0);
            QTest::mouseClick(box, Qt::LeftButton);
            EXPECT_EQ(m_given.back().id, msg.id ^ row.mask) << row.name;
            box->setCheckState(Qt::PartiallyChecked); // only state 2 sets the bit
            EXPECT_EQ(m_editor.message().id, msg.id & ~row.mask);
            box->setTristate(false);
        }
    }
}

TEST_F(RawEditor, RciIsTheLowestTwoBits)
{
    for (const std::uint32_t lcc : {2U, 6U}) {
        SendMsg msg;
        msg.id = lcc << 26 | 0x4;
        set(msg);
        QComboBox* box = nullptr;
        for (QComboBox* each : m_editor.findChildren<QComboBox*>(QStringLiteral("RCI"))) {
            box = each->isVisibleTo(&m_editor) ? each : box;
        }
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->toolTip(), QStringLiteral("RCI Redundancy Channel Identifier"));
        EXPECT_EQ(box->itemText(0) + box->itemText(1) + box->itemText(2) + box->itemText(3),
                  QStringLiteral("ABCD"));
        choose(box, 3);
        EXPECT_EQ(m_given.back().id, msg.id | 3);
    }
}

TEST_F(RawEditor, ChannelBringsItsPageAndTheSameBitsUnderNewNames)
{
    SendMsg msg;
    msg.id = 0x00540000 | 0xABC; // FID 10 and FSB
    set(msg);
    auto* pages = find<QStackedWidget>("fields");
    const int data = pages->currentIndex();
    EXPECT_EQ(number("Src FID")->value(), 10);
    choose(find<QComboBox>("lcc"), 4);
    EXPECT_EQ(m_given.back().id, 4U << 26 | msg.id);
    const int service = pages->currentIndex();
    EXPECT_NE(service, data);
    EXPECT_EQ(number("C-FID")->value(), 10);
    EXPECT_TRUE(find<QCheckBox>("SMT")->isChecked());
    EXPECT_EQ(number("SID")->value(), 0xABC >> 2 & 127);
    m_given.clear();
    choose(find<QComboBox>("lcc"), 3);
    EXPECT_EQ(m_given.size(), 1U) << "one change is told once";
    EXPECT_EQ(number("SA")->value(), 10);
    EXPECT_EQ(number("DP")->value(), 0xABC & 63);
    const int address = pages->currentIndex();
    EXPECT_NE(address, data);
    EXPECT_NE(address, service);
    for (const auto& [lcc, page] : {std::pair{0, data},
                                    {2, data},
                                    {5, data},
                                    {7, data},
                                    {3, address},
                                    {4, service},
                                    {6, service}}) {
        msg.id = static_cast<std::uint32_t>(lcc) << 26;
        set(msg);
        EXPECT_EQ(pages->currentIndex(), page) << lcc;
        msg.id = 1U << 26; // the reserved channel leaves the page
        set(msg);
        EXPECT_EQ(pages->currentIndex(), page);
    }
}

TEST_F(RawEditor, DocOf16384IsStoredAs0)
{
    SendMsg msg;
    msg.id = 0xFFFC;
    set(msg);
    EXPECT_EQ(number("DOC")->value(), 16383);
    type(number("DOC"), "16384");
    EXPECT_EQ(m_given.back().id, 0U);
}

TEST_F(RawEditor, PayloadTakesTheLowByte)
{
    SendMsg msg;
    msg.byteCount = 8;
    set(msg);
    type(cells()[0], "300");
    EXPECT_EQ(m_given.back().data[0], 44);
    type(cells()[1], "-1");
    EXPECT_EQ(m_given.back().data[1], 255);
}

TEST_F(RawEditor, RowsAndHeightsFollowTheByteCount)
{
    expectHeights();
}

TEST_F(RawEditor, ByteCountAsksForNoUpdatingFlag)
{
    SendMsg msg;
    msg.byteCount = 8;
    m_editor.setMessage(3, msg);
    EXPECT_EQ(m_given.size(), 1U); // the spin box went from 0 to 8
    msg.byteCount = 17;            // which no code stands for: the box shows 0
    m_editor.setMessage(3, msg);
    EXPECT_EQ(m_editor.message().byteCount, 0U);
    EXPECT_EQ(m_given.back().byteCount, 0U);
    m_editor.setMessage(3, msg);
    EXPECT_EQ(m_editor.message().byteCount, 17U); // it showed 0 before
}

TEST_F(RawEditor, NumberTypeShowsAllInItsBase)
{
    SendMsg msg;
    msg.id = 0x03F80000;
    msg.byteCount = 1;
    msg.data[0] = 10;
    set(msg);
    m_editor.setNumberType(1);
    EXPECT_EQ(number("Src FID")->text(), QStringLiteral("0x7F"));
    EXPECT_EQ(cells()[0]->text(), QStringLiteral("0x0A"));
    EXPECT_TRUE(m_given.empty());
}

} // namespace
