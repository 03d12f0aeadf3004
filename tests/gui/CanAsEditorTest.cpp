#include "gui/traffic/ValueBits.h"
#include "gui/traffic/ValueLines.h"
#include "gui/traffic/ValueSlider.h"
#include "gui/traffic/WidgetCanAs.h"
#include "tests/gui/TransmitFixture.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QSlider>
#include <QStackedWidget>

// The editor of CANaerospace messages.

namespace {

using zul::test::choose;
using zul::test::type;

class CanAsEditor : public testing::Test
{
protected:
    void SetUp() override
    {
        m_editor.setMessage(5, SendMsg());
        QObject::connect(&m_editor, &gui::MessageEditor::signalChanged, &m_editor,
                         [this](int index, const SendMsg& msg) {
                             EXPECT_EQ(index, 5);
                             m_given.push_back(msg);
                         });
    }
    void set(const SendMsg& msg)
    {
        m_editor.setMessage(5, msg);
        m_given.clear();
    }
    /// Shows a message of that data type.
    void setType(int code, std::uint32_t id = 0)
    {
        SendMsg msg;
        msg.id = id;
        msg.byteCount = 8;
        msg.data[1] = static_cast<std::uint8_t>(code);
        set(msg);
    }
    template <typename Widget>
    Widget* find(const char* name)
    {
        return m_editor.findChild<Widget*>(QLatin1String(name));
    }
    QSpinBox* number(const char* name) { return find<QSpinBox>(name); }
    QWidget* page() { return find<QStackedWidget>("value")->currentWidget(); }
    /// The lines of the page that is shown.
    QList<QLineEdit*> lines() { return page()->findChildren<QLineEdit*>(); }
    QCheckBox* bit(int number)
    {
        auto* group = m_editor.findChild<QButtonGroup*>();
        return qobject_cast<QCheckBox*>(group->button(number));
    }
    QByteArray value() const
    {
        QByteArray bytes;
        for (int i = 4; i < 8; ++i) {
            bytes.append(static_cast<char>(m_given.back().data[i]));
        }
        return bytes.toHex();
    }

    WidgetCanAs m_editor;
    std::vector<SendMsg> m_given;
};

TEST_F(CanAsEditor, HasItsControls)
{
    EXPECT_EQ(m_editor.frameStyle(), 34);
    EXPECT_EQ(m_editor.palette().color(m_editor.backgroundRole()), QColor(220, 220, 220));
    EXPECT_EQ(m_editor.minimumWidth(), 730);
    EXPECT_EQ(m_editor.minimumHeight(), 50);
    EXPECT_EQ(m_editor.maximumHeight(), 50);
    EXPECT_EQ(number("canId")->width(), 100);
    EXPECT_EQ(number("nodeId")->maximum(), 255);
    EXPECT_EQ(number("messageId")->maximum(), 255);
    EXPECT_EQ(find<QComboBox>("mode")->count(), 6);
    EXPECT_GE(find<QStackedWidget>("value")->minimumWidth(), 150);
    const auto* service = find<QComboBox>("service");
    EXPECT_TRUE(service->isEditable());
    ASSERT_EQ(service->count(), 8);
    EXPECT_EQ(service->itemText(0), QStringLiteral("0 IDS"));
    EXPECT_EQ(service->itemText(6), QStringLiteral("6 FPS"));
    EXPECT_EQ(service->itemText(7), QStringLiteral("7 STS"));
    const auto* type = find<QComboBox>("dataType");
    ASSERT_EQ(type->count(), 30);
    EXPECT_EQ(type->itemText(0), QStringLiteral("NODATA"));
    EXPECT_EQ(type->itemText(29), QStringLiteral("ACHAR_3"));
    EXPECT_EQ(type->itemData(29), 29);
    QStringList labels;
    for (const QLabel* label :
         m_editor.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        labels.append(label->text());
    }
    EXPECT_EQ(labels.join(QLatin1Char('/')),
              QStringLiteral("CanId/Mode/NodeId/Data Type/Service/MsgId"));
}

TEST_F(CanAsEditor, ByteCountBelow4IsRaised)
{
    EXPECT_EQ(m_editor.message().byteCount, 4U);
    SendMsg msg;
    msg.byteCount = 5;
    set(msg);
    EXPECT_EQ(m_editor.message().byteCount, 5U);
}

TEST_F(CanAsEditor, DataType0SendsTheHeaderOf4Bytes)
{
    type(number("nodeId"), "17");
    choose(find<QComboBox>("dataType"), 1);
    choose(find<QComboBox>("dataType"), 0);
    choose(find<QComboBox>("service"), 3);
    type(number("messageId"), "0xFE");
    const SendMsg& msg = m_given.back();
    EXPECT_EQ(msg.byteCount, 4U);
    EXPECT_EQ(msg.data[0], 17);
    EXPECT_EQ(msg.data[1], 0);
    EXPECT_EQ(msg.data[2], 3);
    EXPECT_EQ(msg.data[3], 0xFE);
}

TEST_F(CanAsEditor, IdentifierIsClampedByTheMode)
{
    SendMsg msg;
    msg.mode = 1;
    msg.id = 0x1FFFFFFF;
    set(msg);
    EXPECT_EQ(number("canId")->maximum(), 0x20000000);
    type(number("canId"), "0x20000000");
    EXPECT_EQ(m_given.back().id, 0x1FFFFFFFU); // it rebuilds
    choose(find<QComboBox>("mode"), 0);
    EXPECT_EQ(m_given.back().id, 2047U);
    EXPECT_EQ(m_given.back().mode, 0U);
}

TEST_F(CanAsEditor, HexadecimalIdentifierCanBeTypedInDecimalMode)
{
    type(number("canId"), "0x123");
    EXPECT_EQ(m_given.back().id, 0x123U);
}

struct PageRow
{
    int code;
    const char* page; // class
    int lines;        // of the page
    int enabled;
    int lowestBit; // 32 for a page without bits
    int maxLength;
    std::uint32_t byteCount;
};

class CanAsPages : public CanAsEditor, public testing::WithParamInterface<PageRow>
{
};

TEST_P(CanAsPages, ComeWithTheDataType)
{
    const PageRow& row = GetParam();
    SendMsg msg;
    msg.byteCount = 64;
    set(msg);
    choose(find<QComboBox>("dataType"), row.code == 0 ? 1 : 0);
    choose(find<QComboBox>("dataType"), row.code);
    EXPECT_EQ(m_given.back().data[1], row.code);
    EXPECT_EQ(m_given.back().byteCount, row.byteCount);
    EXPECT_STREQ(page()->metaObject()->className(), row.page);
    if (row.lowestBit < 32) {
        for (int i = 0; i < 32; ++i) {
            EXPECT_EQ(bit(i)->isEnabledTo(&m_editor), i >= row.lowestBit) << i;
        }
        return;
    }
    ASSERT_EQ(lines().size(), row.lines);
    for (int i = 0; i < row.lines; ++i) {
        EXPECT_EQ(lines()[i]->isEnabledTo(&m_editor), i < row.enabled) << i;
        EXPECT_EQ(lines()[i]->maxLength(), row.maxLength);
    }
}

constexpr const char* linesPage = "gui::ValueLines";
constexpr const char* bitsPage = "gui::ValueBits";

INSTANTIATE_TEST_SUITE_P(
    All, CanAsPages,
    testing::Values(
        PageRow{0, linesPage, 1, 0, 32, 100, 4}, PageRow{1, linesPage, 1, 0, 32, 100, 4},
        PageRow{2, "gui::ValueSlider", 3, 3, 32, 100, 8}, PageRow{3, linesPage, 1, 1, 32, 100, 8},
        PageRow{4, linesPage, 1, 1, 32, 100, 8}, PageRow{5, bitsPage, 0, 0, 0, 0, 8},
        PageRow{6, linesPage, 2, 1, 32, 100, 6}, PageRow{7, linesPage, 2, 1, 32, 100, 6},
        PageRow{8, bitsPage, 0, 0, 16, 0, 6}, PageRow{9, linesPage, 4, 1, 32, 100, 5},
        PageRow{10, linesPage, 4, 1, 32, 100, 5}, PageRow{11, bitsPage, 0, 0, 24, 0, 5},
        PageRow{12, linesPage, 2, 2, 32, 100, 8}, PageRow{13, linesPage, 2, 2, 32, 100, 8},
        PageRow{14, bitsPage, 0, 0, 0, 0, 8}, PageRow{15, linesPage, 4, 4, 32, 100, 8},
        PageRow{16, linesPage, 4, 4, 32, 100, 8}, PageRow{17, bitsPage, 0, 0, 0, 0, 8},
        PageRow{18, linesPage, 4, 2, 32, 100, 6}, PageRow{19, linesPage, 4, 2, 32, 100, 6},
        PageRow{20, bitsPage, 0, 0, 16, 0, 6}, PageRow{21, linesPage, 1, 1, 32, 100, 8},
        PageRow{22, linesPage, 1, 1, 32, 100, 8}, PageRow{23, linesPage, 1, 1, 32, 1, 5},
        PageRow{24, linesPage, 1, 1, 32, 2, 6}, PageRow{25, linesPage, 1, 1, 32, 4, 8},
        PageRow{26, linesPage, 4, 3, 32, 100, 7}, PageRow{27, linesPage, 4, 3, 32, 100, 7},
        PageRow{28, bitsPage, 0, 0, 8, 0, 7}, PageRow{29, linesPage, 1, 1, 32, 3, 7}));

struct TypedRow
{
    int code;
    int input;
    const char* text;
    const char* value; // bytes 4 to 7
};

class CanAsTyped : public CanAsEditor, public testing::WithParamInterface<TypedRow>
{
};

TEST_P(CanAsTyped, ValuesAreGivenBackByteForByte)
{
    const TypedRow& row = GetParam();
    setType(row.code);
    type(lines()[row.input], row.text);
    ASSERT_FALSE(m_given.empty());
    EXPECT_EQ(value(), QByteArray(row.value));
    EXPECT_EQ(lines()[row.input]->text(), QLatin1String(row.text)); // it stays as it is typed
}

INSTANTIATE_TEST_SUITE_P(
    Types, CanAsTyped,
    testing::Values(TypedRow{2, 1, "1.5", "3fc00000"}, TypedRow{3, 0, "-2", "fffffffe"},
                    TypedRow{3, 0, "0x12345678", "12345678"},
                    TypedRow{4, 0, "4294967295", "ffffffff"}, TypedRow{6, 0, "0x10", "00100000"},
                    TypedRow{7, 0, "65535", "ffff0000"}, TypedRow{9, 0, "-1", "ff000000"},
                    TypedRow{10, 0, "200", "c8000000"}, TypedRow{12, 1, "-2", "0000fffe"},
                    TypedRow{13, 1, "0xABCD", "0000abcd"}, TypedRow{15, 0, "1", "01000000"},
                    TypedRow{15, 1, "2", "00020000"}, TypedRow{15, 2, "3", "00000300"},
                    TypedRow{15, 3, "-4", "000000fc"}, TypedRow{16, 3, "0xFF", "000000ff"},
                    TypedRow{18, 1, "5", "00050000"}, TypedRow{19, 1, "5", "00050000"},
                    TypedRow{21, 0, "77", "0000004d"}, TypedRow{22, 0, "0xFFFF", "0000ffff"},
                    TypedRow{23, 0, "A", "41202020"}, TypedRow{24, 0, "AB", "41422020"},
                    TypedRow{25, 0, "ABCD", "41424344"}, TypedRow{26, 2, "7", "00000700"},
                    TypedRow{27, 2, "7", "00000700"}, TypedRow{29, 0, "ABC", "41424320"}));

TEST_F(CanAsEditor, TextTypesTakeNoMoreLettersThanTheyHold)
{
    setType(24);
    type(lines()[0], "XYZ");
    EXPECT_EQ(lines()[0]->text(), QStringLiteral("XY"));
    EXPECT_EQ(value(), QByteArray("58592020"));
}

TEST_F(CanAsEditor, BitsAreSetByTheirBoxes)
{
    setType(5);
    for (const int number : {31, 24, 16, 8, 0}) {
        QTest::mouseClick(bit(number), Qt::LeftButton);
    }
    EXPECT_EQ(value(), QByteArray("81010101"));
    QTest::mouseClick(bit(31), Qt::LeftButton);
    EXPECT_EQ(value(), QByteArray("01010101"));
    EXPECT_EQ(bit(5)->width(), 16);
}

TEST_F(CanAsEditor, BitsStandFromRightToLeftInTwoRowsWithAGap)
{
    setType(5);
    m_editor.resize(900, 50);
    m_editor.show();
    for (int i = 1; i < 32; ++i) {
        if (i == 16) {
            EXPECT_LT(bit(16)->y(), bit(0)->y());
            EXPECT_EQ(bit(16)->x(), bit(0)->x());
            continue;
        }
        const int step = bit(i - 1)->x() - bit(i)->x();
        EXPECT_EQ(step > 16, i % 16 == 8) << i;
        EXPECT_GE(step, 16);
        EXPECT_EQ(bit(i)->y(), bit(i - 1)->y());
    }
    for (const QLabel* label : page()->findChildren<QLabel*>()) {
        const QPoint middle = label->mapTo(&m_editor, label->rect().center());
        int below = -1;
        for (int i = 0; i < 32; ++i) {
            const QRect box(bit(i)->mapTo(&m_editor, QPoint()), bit(i)->size());
            const bool isUnder = middle.x() >= box.left() && middle.x() <= box.right() &&
                                 middle.y() > box.center().y() && middle.y() < box.bottom() + 12;
            below = isUnder ? i : below;
        }
        EXPECT_EQ(label->text(), QString::asprintf("%2d", below));
        const QPoint end = label->mapTo(&m_editor, label->rect().bottomRight());
        EXPECT_LE(end.y(), 48) << qPrintable(label->text()); // within the frame
        EXPECT_EQ(label->font().pixelSize(), 8);
    }
}

TEST_F(CanAsEditor, AllBitsAreSetAndResetAtOnceInAllFourBytes)
{
    setType(11);
    const auto buttons = page()->findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_EQ(buttons[0]->text(), QStringLiteral("Set all"));
    EXPECT_EQ(buttons[1]->text(), QStringLiteral("Reset all"));
    QTest::mouseClick(buttons[0], Qt::LeftButton);
    EXPECT_EQ(value(), QByteArray("ffffffff"));
    EXPECT_TRUE(bit(31)->isChecked());
    EXPECT_TRUE(bit(0)->isChecked());
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    EXPECT_EQ(value(), QByteArray("00000000"));
    EXPECT_FALSE(bit(31)->isChecked());
    EXPECT_EQ(m_given.size(), 2U);
}

TEST_F(CanAsEditor, SliderSetsTheValueBetweenItsLimits)
{
    SendMsg msg;
    msg.data[1] = 2;
    msg.byteCount = 8;
    msg.min = -10.0F;
    msg.max = 10.0F;
    set(msg);
    auto* slider = page()->findChild<QSlider*>();
    EXPECT_EQ(slider->minimum(), 0);
    EXPECT_EQ(slider->maximum(), 1000);
    EXPECT_EQ(slider->value(), 500);
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(m_given.back().actual, 10.0F);
    EXPECT_EQ(value(), QByteArray("41200000"));
    EXPECT_EQ(find<QLineEdit>("actual")->text(), QStringLiteral("10.00"));
    for (int i = 1; i <= 20; ++i) { // no step is swallowed
        QTest::keyClick(slider, Qt::Key_Left);
        EXPECT_EQ(slider->value(), 1000 - i);
    }
    EXPECT_EQ(m_given.size(), 21U);
}

TEST_F(CanAsEditor, TypedValueMovesTheSliderAlone)
{
    setType(2);
    auto* slider = page()->findChild<QSlider*>();
    type(find<QLineEdit>("actual"), "0.25");
    EXPECT_EQ(m_given.back().actual, 0.25F);
    EXPECT_EQ(value(), QByteArray("3e800000"));
    EXPECT_EQ(slider->value(), 250);
    EXPECT_EQ(find<QLineEdit>("actual")->text(), QStringLiteral("0.25"));
    type(find<QLineEdit>("actual"), "abc");
    EXPECT_EQ(m_given.back().actual, 0.0F);
}

TEST_F(CanAsEditor, LimitsAreReadAtReturn)
{
    setType(2);
    auto* maximum = find<QLineEdit>("maximum");
    type(maximum, "4");
    EXPECT_TRUE(m_given.empty());
    QTest::keyClick(maximum, Qt::Key_Return);
    ASSERT_EQ(m_given.size(), 1U);
    EXPECT_EQ(m_given.back().max, 4.0F);
    EXPECT_EQ(maximum->text(), QStringLiteral("4.00"));
    auto* minimum = find<QLineEdit>("minimum");
    type(minimum, "-4");
    QTest::keyClick(minimum, Qt::Key_Return);
    EXPECT_EQ(m_given.back().min, -4.0F);
    EXPECT_EQ(page()->findChild<QSlider*>()->value(), 500);
    EXPECT_EQ(minimum->width(), 60);
    EXPECT_EQ(maximum->width(), 60);
}

TEST_F(CanAsEditor, LimitThatIsLeftAsItWasShownKeepsItsDigits)
{
    SendMsg msg;
    msg.data[1] = 2;
    msg.max = 0.126F;
    set(msg);
    auto* maximum = find<QLineEdit>("maximum");
    EXPECT_EQ(maximum->text(), QStringLiteral("0.13"));
    emit maximum->editingFinished(); // it loses the focus
    EXPECT_TRUE(m_given.empty());
    EXPECT_EQ(m_editor.message().max, 0.126F);
    QTest::keyClick(maximum, Qt::Key_Return);
    ASSERT_EQ(m_given.size(), 1U);
    EXPECT_EQ(m_given.back().max, 0.13F) << "the return key takes what is shown";
}

TEST_F(CanAsEditor, ServiceIsShownByItsEntryBelowIdentifier200Alone)
{
    auto* service = find<QComboBox>("service");
    SendMsg msg;
    msg.data[2] = 7;
    msg.id = 199;
    set(msg);
    EXPECT_EQ(service->currentText(), QStringLiteral("7 STS"));
    msg.id = 200;
    set(msg);
    EXPECT_EQ(service->currentText(), QStringLiteral("7"));
    msg.id = 130;
    msg.data[2] = 8;
    set(msg);
    EXPECT_EQ(service->currentText(), QStringLiteral("8"));
    m_editor.setNumberType(1);
    msg.data[2] = 0x1F;
    set(msg);
    EXPECT_EQ(service->currentText(), QStringLiteral("0x1f"));
}

TEST_F(CanAsEditor, ServiceCanBeTyped)
{
    auto* line = find<QComboBox>("service")->lineEdit();
    type(line, "0x1F");
    EXPECT_EQ(m_given.back().data[2], 0x1F);
    EXPECT_EQ(line->text(), QStringLiteral("0x1F"));
    type(line, "1");
    EXPECT_EQ(line->text(), QStringLiteral("1")); // nothing is completed
    EXPECT_EQ(m_given.back().data[2], 1);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(find<QComboBox>("service")->count(), 8);
}

TEST_F(CanAsEditor, ShowsTheValueOfAMessage)
{
    SendMsg msg;
    msg.byteCount = 8;
    msg.data[1] = 12;
    msg.data[4] = 0xFF;
    msg.data[5] = 0xFE;
    msg.data[7] = 9;
    set(msg);
    EXPECT_EQ(lines()[0]->text(), QStringLiteral("-2"));
    EXPECT_EQ(lines()[1]->text(), QStringLiteral("9"));
    m_editor.setNumberType(1);
    EXPECT_EQ(lines()[0]->text(), QStringLiteral("0xFFFFFFFE"));
    EXPECT_EQ(lines()[1]->text(), QStringLiteral("0x9"));
    EXPECT_EQ(number("canId")->text(), QStringLiteral("0x0"));
    msg.data[1] = 0;
    set(msg);
    EXPECT_EQ(lines()[0]->text(), QString());
}

TEST_F(CanAsEditor, ShowingAMessageChangesNothingOfIt)
{
    for (int code = 0; code < 30; ++code) {
        SendMsg msg;
        msg.byteCount = 8;
        msg.data[1] = static_cast<std::uint8_t>(code);
        for (int i = 4; i < 8; ++i) {
            msg.data[i] = static_cast<std::uint8_t>(i == 5 ? 0 : 0xF0 + i);
        }
        m_given.clear();
        m_editor.setMessage(5, msg);
        for (const int numberType : {1, 0}) {
            m_editor.setNumberType(numberType);
            for (int i = 0; i < 8; ++i) {
                EXPECT_EQ(m_editor.message().data[i], msg.data[i]) << code << " byte " << i;
            }
        }
        EXPECT_TRUE(m_given.empty()) << code;
    }
}

TEST_F(CanAsEditor, UnknownDataTypeLeavesWhatIsInUse)
{
    setType(3);
    setType(200);
    EXPECT_EQ(find<QComboBox>("dataType")->currentIndex(), -1);
    EXPECT_STREQ(page()->metaObject()->className(), linesPage);
    EXPECT_TRUE(lines()[0]->isEnabledTo(&m_editor));
    type(lines()[0], "5");
    EXPECT_EQ(value(), QByteArray("00000000"));
    setType(0);
    setType(200);
    EXPECT_FALSE(lines()[0]->isEnabledTo(&m_editor));
}

} // namespace
