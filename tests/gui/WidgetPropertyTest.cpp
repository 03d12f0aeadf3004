#include "gui/desktop/WidgetProperty.h"

#include "core/Latin1.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace {

class WidgetPropertyTest : public testing::Test
{
protected:
    void make(PropertyKind kind, std::vector<PropertyChoice> choices = {})
    {
        m_editor = std::make_unique<WidgetProperty>(
            DeviceProperty{"Label", "Key", "", kind, std::move(choices), ""});
        QObject::connect(m_editor.get(), &WidgetProperty::signalChanged, m_editor.get(),
                         [this](const std::string& key, const std::string& value) {
                             EXPECT_EQ(key, "Key");
                             m_sent.push_back(value);
                         });
        m_editor->show();
    }
    QLineEdit* edit(const char* name = "") const
    {
        return m_editor->findChild<QLineEdit*>(QLatin1String(name));
    }
    QSpinBox* spin(const char* name) const
    {
        return m_editor->findChild<QSpinBox*>(QLatin1String(name));
    }
    QComboBox* choices() const { return m_editor->findChild<QComboBox*>(); }
    std::vector<int> spun() const
    {
        std::vector<int> values;
        for (const QSpinBox* box : m_editor->findChildren<QSpinBox*>()) {
            values.push_back(box->value());
        }
        return values;
    }
    static void type(QLineEdit* field, const char* text)
    {
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
        QTest::keyClick(field, Qt::Key_Return);
    }
    /// Chooses by the keyboard, as a user does.
    void choose(int index) const
    {
        choices()->setFocus();
        QTest::keyClick(choices(), Qt::Key_Home);
        for (int i = 0; i < index; ++i) {
            QTest::keyClick(choices(), Qt::Key_Down);
        }
    }
    std::string lastSent() const { return m_sent.empty() ? "nothing" : m_sent.back(); }

    std::unique_ptr<WidgetProperty> m_editor;
    std::vector<std::string> m_sent;
};

TEST_F(WidgetPropertyTest, FrameAndLabelAreThoseOfEveryKind)
{
    for (const int kind : {0, 1, 2, 3, 4, 5, 6, 7, 99}) {
        make(static_cast<PropertyKind>(kind));
        EXPECT_EQ(m_editor->frameShape(), QFrame::Box) << kind;
        EXPECT_EQ(m_editor->frameShadow(), QFrame::Raised);
        EXPECT_TRUE(m_editor->autoFillBackground());
        EXPECT_EQ(m_editor->palette().color(QPalette::Window), QColor(200, 200, 200));
        EXPECT_EQ(m_editor->layout()->contentsMargins(), QMargins(3, 3, 3, 3));
        const auto* label = m_editor->findChild<QLabel*>();
        EXPECT_EQ(label->text(), QStringLiteral("Label"));
        EXPECT_EQ(label->minimumWidth(), 160);
        EXPECT_EQ(label->maximumWidth(), 160);
    }
}

TEST_F(WidgetPropertyTest, EveryKindHasItsControls)
{
    struct Row
    {
        int kind;
        int edits;
        int combos;
        int spins;
    };
    // An editable selection box and every spin box hold a line edit of their own.
    for (const Row& row : {Row{0, 1, 0, 0}, Row{1, 2, 1, 0}, Row{2, 5, 1, 4}, Row{3, 6, 1, 5},
                           Row{4, 3, 1, 2}, Row{5, 0, 1, 0}, Row{6, 1, 1, 0}, Row{7, 0, 0, 0}}) {
        make(static_cast<PropertyKind>(row.kind));
        EXPECT_EQ(m_editor->findChildren<QLineEdit*>().size(), row.edits) << row.kind;
        EXPECT_EQ(m_editor->findChildren<QComboBox*>().size(), row.combos) << row.kind;
        EXPECT_EQ(m_editor->findChildren<QSpinBox*>().size(), row.spins) << row.kind;
        if (row.combos > 0) {
            EXPECT_EQ(choices()->isEditable(), row.kind == 6);
        }
    }
}

TEST_F(WidgetPropertyTest, UnknownKindTakesAValueAndShowsTheLabelAlone)
{
    make(static_cast<PropertyKind>(7), {{"A", 1}});
    m_editor->setValue("17");
    EXPECT_EQ(m_editor->value(), "17");
    EXPECT_TRUE(m_sent.empty());
}

TEST_F(WidgetPropertyTest, SpinBoxesHaveTheRangesOfTheRegisters)
{
    struct Row
    {
        PropertyKind kind;
        const char* field;
        const char* name;
        int minimum;
        int maximum;
        int shift;
    };
    constexpr auto nbtp = PropertyKind::Nbtp;
    constexpr auto dbtp = PropertyKind::Dbtp;
    constexpr auto tdcr = PropertyKind::Tdcr;
    const std::array<Row, 11> rows{{{nbtp, "NBTP", "NSJW", 0, 127, 25},
                                    {nbtp, "NBTP", "NBRP", 0, 511, 16},
                                    {nbtp, "NBTP", "NTSEG1", 1, 255, 8},
                                    {nbtp, "NBTP", "NTSEG2", 1, 127, 0},
                                    {dbtp, "DBTP", "TDC", 0, 1, 23},
                                    {dbtp, "DBTP", "DBRP", 0, 31, 16},
                                    {dbtp, "DBTP", "DTSEG1", 0, 31, 8},
                                    {dbtp, "DBTP", "DTSEG2", 0, 15, 4},
                                    {dbtp, "DBTP", "DSJW", 0, 15, 0},
                                    {tdcr, "TDCR", "TDCO", 0, 127, 8},
                                    {tdcr, "TDCR", "TDCF", 0, 127, 0}}};
    for (const Row& row : rows) {
        make(row.kind);
        ASSERT_NE(spin(row.name), nullptr) << row.name;
        EXPECT_EQ(spin(row.name)->minimum(), row.minimum) << row.name;
        EXPECT_EQ(spin(row.name)->maximum(), row.maximum) << row.name;
        EXPECT_GE(edit(row.field)->minimumWidth(), 120);
        // The highest value alone fills the field's bits, of which the register shows nothing else.
        const auto bits = static_cast<std::uint32_t>(row.maximum) << row.shift;
        m_editor->setValue(zul::toLatin1(QString::asprintf("0x%08X", bits)));
        EXPECT_EQ(spin(row.name)->value(), row.maximum) << row.name;
        for (const QSpinBox* other : m_editor->findChildren<QSpinBox*>()) {
            if (other != spin(row.name)) {
                EXPECT_EQ(other->value(), other->minimum()) << row.name;
            }
        }
    }
}

/// The label that stands nearest to the control, beside that of the whole property.
const QLabel* labelBeside(const WidgetProperty& editor, const QWidget& control)
{
    const QLabel* nearest = nullptr;
    int least = 0;
    for (const QLabel* label : editor.findChildren<QLabel*>()) {
        if (label->text() == QStringLiteral("Label")) {
            continue;
        }
        const QRect one = label->geometry();
        const QRect other = control.geometry();
        const int across = std::max({0, other.left() - one.right(), one.left() - other.right()});
        const int down = std::max({0, other.top() - one.bottom(), one.top() - other.bottom()});
        if (nearest == nullptr || across + down < least) {
            nearest = label;
            least = across + down;
        }
    }
    return nearest;
}

TEST_F(WidgetPropertyTest, EveryFieldAndSpinBoxHasItsNameBesideIt)
{
    const std::vector<std::pair<PropertyKind, std::vector<const char*>>> rows{
        {PropertyKind::Btr, {"BTR0", "BTR1"}},
        {PropertyKind::Nbtp, {"NBTP", "NSJW", "NBRP", "NTSEG1", "NTSEG2"}},
        {PropertyKind::Dbtp, {"DBTP", "TDC", "DBRP", "DTSEG1", "DTSEG2", "DSJW"}},
        {PropertyKind::Tdcr, {"TDCR", "TDCO", "TDCF"}}};
    for (const auto& [kind, names] : rows) {
        make(kind, {{"1 Mbit/s", 1}});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_editor.get()));
        for (const char* name : names) {
            const auto* control = m_editor->findChild<QWidget*>(QLatin1String(name));
            ASSERT_NE(control, nullptr) << name;
            const QLabel* label = labelBeside(*m_editor, *control);
            EXPECT_EQ(label->text(), QLatin1String(name));
            EXPECT_TRUE(label->isVisible()) << name;
            EXPECT_EQ(label->font().pixelSize(), 10) << name;
        }
    }
}

TEST_F(WidgetPropertyTest, TextIsSentAsTyped)
{
    make(PropertyKind::Text);
    QTest::keyClicks(edit(), QStringLiteral("a 1"));
    EXPECT_EQ(m_sent, (std::vector<std::string>{"a", "a ", "a 1"}));
    m_editor->setValue("b");
    EXPECT_EQ(edit()->text(), QStringLiteral("b"));
    EXPECT_EQ(m_sent.size(), 3U);
    QTest::sendKeyEvent(QTest::Click, edit(), Qt::Key_Adiaeresis, QString(QChar(0xE4)),
                        Qt::NoModifier);
    EXPECT_EQ(lastSent(), "b\xE4"); // Latin-1
}

TEST_F(WidgetPropertyTest, SettingTheSameValueLeavesTheCursor)
{
    make(PropertyKind::Text);
    m_editor->setValue("abc");
    edit()->setCursorPosition(1);
    m_editor->setValue("abc");
    EXPECT_EQ(edit()->cursorPosition(), 1);
    QTest::keyClicks(edit(), QStringLiteral("X"));
    m_editor->setValue(lastSent());
    EXPECT_EQ(edit()->text(), QStringLiteral("aXbc"));
    EXPECT_EQ(edit()->cursorPosition(), 2);
}

TEST_F(WidgetPropertyTest, EditableSelectionKeepsWhatIsTyped)
{
    make(PropertyKind::EditableSelection, {{"Bus A", 0}, {"Bus B", 1}});
    EXPECT_EQ(choices()->count(), 2);
    EXPECT_EQ(choices()->currentText(), QString());
    type(choices()->lineEdit(), "bus a");
    EXPECT_EQ(lastSent(), "bus a");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("bus a"));
    EXPECT_EQ(choices()->count(), 2);
    m_sent.clear();
    m_editor->setValue("elsewhere");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("elsewhere"));
    EXPECT_TRUE(m_sent.empty());
    QTest::keyClick(choices(), Qt::Key_Down);
    EXPECT_EQ(lastSent(), "Bus A");
    QTest::keyClick(choices(), Qt::Key_Down);
    EXPECT_EQ(lastSent(), "Bus B");
}

TEST_F(WidgetPropertyTest, SelectionShowsAndSendsNumbers)
{
    make(PropertyKind::Selection, {{"A", 1}, {"B", 22}, {"C", -3}});
    EXPECT_EQ(choices()->currentIndex(), -1);
    m_editor->setValue("22");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("B"));
    m_editor->setValue("0x1");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("A"));
    m_editor->setValue("-3");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("C"));
    m_editor->setValue("7");
    EXPECT_EQ(choices()->currentIndex(), -1);
    EXPECT_TRUE(m_sent.empty());
    choose(1);
    EXPECT_EQ(lastSent(), "22");
    EXPECT_EQ(m_editor->value(), "22");
    choose(2);
    EXPECT_EQ(lastSent(), "-3");
}

TEST_F(WidgetPropertyTest, ValueThatIsNoNumberReadsAsZero)
{
    make(PropertyKind::Selection, {{"None", 0}, {"B", 2}});
    m_editor->setValue("2");
    m_editor->setValue("rubbish");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("None"));
    make(PropertyKind::Nbtp, {{"None", 0}});
    m_editor->setValue("12 monkeys");
    EXPECT_EQ(edit("NBTP")->text(), QStringLiteral("0x00000000"));
    EXPECT_EQ(choices()->currentText(), QStringLiteral("None"));
    type(edit("NBTP"), "xyz");
    EXPECT_EQ(lastSent(), "xyz");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("None"));
}

TEST_F(WidgetPropertyTest, BtrShowsTheBytesOfAPreset)
{
    make(PropertyKind::Btr, {{"1 Mbit/s", 0x0014}, {"500 kbit/s", 0x011C}});
    EXPECT_EQ(edit("BTR0")->width(), 40);
    EXPECT_EQ(edit("BTR1")->width(), 40);
    const auto labels = m_editor->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 3);
    EXPECT_EQ(labels[1]->text(), QStringLiteral("BTR0"));
    EXPECT_EQ(labels[1]->font().pixelSize(), 10);
    EXPECT_LT(labels[1]->y(), edit("BTR0")->y());
    m_editor->setValue("20");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("1 Mbit/s"));
    EXPECT_EQ(edit("BTR0")->text(), QStringLiteral("00"));
    EXPECT_EQ(edit("BTR1")->text(), QStringLiteral("14"));
    EXPECT_TRUE(m_sent.empty());
    choose(1);
    EXPECT_EQ(lastSent(), "284");
    EXPECT_EQ(edit("BTR0")->text(), QStringLiteral("01"));
    EXPECT_EQ(edit("BTR1")->text(), QStringLiteral("1c"));
    m_editor->setValue("0xFFFF1234");
    EXPECT_EQ(choices()->currentIndex(), -1);
    EXPECT_EQ(edit("BTR0")->text(), QStringLiteral("12"));
    EXPECT_EQ(edit("BTR1")->text(), QStringLiteral("34"));
}

TEST_F(WidgetPropertyTest, TypedBtrBytesAreExchanged)
{
    make(PropertyKind::Btr);
    m_editor->setValue("52"); // 00, 34
    type(edit("BTR0"), "12");
    EXPECT_EQ(m_sent, std::vector<std::string>{"13330"});
    EXPECT_EQ(edit("BTR0")->text(), QStringLiteral("34"));
    EXPECT_EQ(edit("BTR1")->text(), QStringLiteral("12"));
    edit("BTR0")->setFocus();
    QTest::keyClick(edit("BTR0"), Qt::Key_Return); // nothing was typed
    QTest::keyClick(edit("BTR1"), Qt::Key_Return);
    EXPECT_EQ(m_sent.size(), 1U);
    EXPECT_EQ(edit("BTR0")->text(), QStringLiteral("34"));
}

TEST_F(WidgetPropertyTest, BtrFieldOfMoreThanAByteIsNotCut)
{
    make(PropertyKind::Btr);
    m_editor->setValue("20"); // 00, 14
    type(edit("BTR1"), "123");
    EXPECT_EQ(lastSent(), "74496"); // 0x12300
    EXPECT_EQ(edit("BTR0")->text(), QStringLiteral("23"));
    EXPECT_EQ(edit("BTR1")->text(), QStringLiteral("00"));
    type(edit("BTR0"), "1234");
    EXPECT_EQ(lastSent(), "4660"); // 0x1234
}

TEST_F(WidgetPropertyTest, RegisterShowsAValueWithoutAMatchingChoice)
{
    make(PropertyKind::Nbtp, {{"1 Mbit/s", 0x06000A03}, {"All", -1}});
    m_editor->setValue("0x06000A03");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("1 Mbit/s"));
    EXPECT_EQ(spun(), (std::vector<int>{3, 0, 10, 3}));
    m_editor->setValue("33556482"); // 0x02000802
    EXPECT_EQ(choices()->currentIndex(), -1);
    EXPECT_EQ(edit("NBTP")->text(), QStringLiteral("0x02000802"));
    EXPECT_EQ(spun(), (std::vector<int>{1, 0, 8, 2}));
    m_editor->setValue("0xFFFFFFFF");
    EXPECT_EQ(choices()->currentText(), QStringLiteral("All"));
    EXPECT_EQ(spun(), (std::vector<int>{127, 511, 255, 127}));
    EXPECT_TRUE(m_sent.empty());
}

TEST_F(WidgetPropertyTest, ChoiceOfARegisterFillsFieldAndSpinBoxes)
{
    make(PropertyKind::Dbtp, {{"4 Mbit/s", 0x00000A33}, {"With TDC", 0x00800A33}});
    choose(1);
    EXPECT_EQ(lastSent(), "0x00800A33");
    EXPECT_EQ(edit("DBTP")->text(), QStringLiteral("0x00800A33"));
    EXPECT_EQ(spun(), (std::vector<int>{1, 0, 10, 3, 3}));
    EXPECT_EQ(m_editor->value(), "0x00800A33");
}

TEST_F(WidgetPropertyTest, TypedRegisterIsStoredAsTyped)
{
    make(PropertyKind::Tdcr, {{"Off", 0}, {"On", 0x1000}});
    type(edit("TDCR"), "1000");
    EXPECT_EQ(m_sent, std::vector<std::string>{"1000"});
    EXPECT_EQ(edit("TDCR")->text(), QStringLiteral("1000"));
    EXPECT_EQ(choices()->currentText(), QStringLiteral("On"));
    EXPECT_EQ(spun(), (std::vector<int>{16, 0}));
    type(edit("TDCR"), "0x7f7F");
    EXPECT_EQ(lastSent(), "0x7f7F");
    EXPECT_EQ(choices()->currentIndex(), -1);
    EXPECT_EQ(spun(), (std::vector<int>{127, 127}));
    QTest::keyClick(edit("TDCR"), Qt::Key_Return);
    EXPECT_EQ(m_sent.size(), 2U);
}

TEST_F(WidgetPropertyTest, SpinBoxComposesTheRegister)
{
    make(PropertyKind::Nbtp, {{"1 Mbit/s", 0x06000A03}});
    m_editor->setValue("0x06000A02");
    EXPECT_EQ(choices()->currentIndex(), -1);
    QTest::keyClick(spin("NTSEG2"), Qt::Key_Up);
    EXPECT_EQ(m_sent, std::vector<std::string>{"0x06000A03"});
    EXPECT_EQ(edit("NBTP")->text(), QStringLiteral("0x06000A03"));
    EXPECT_EQ(choices()->currentText(), QStringLiteral("1 Mbit/s"));
    spin("NBRP")->setValue(511);
    EXPECT_EQ(lastSent(), "0x07FF0A03");
}

TEST_F(WidgetPropertyTest, HighestSegmentAndJumpWidthKeepTheRestAtZero)
{
    make(PropertyKind::Nbtp);
    m_editor->setValue("0x00000000");
    spin("NTSEG2")->setValue(127);
    EXPECT_EQ(lastSent(), "0x0000007F");
    spin("NSJW")->setValue(127);
    EXPECT_EQ(lastSent(), "0xFE00007F");
    EXPECT_EQ(edit("NBTP")->text(), QStringLiteral("0xFE00007F"));
    spin("NTSEG1")->setValue(2);
    spin("NTSEG1")->setValue(1);
    EXPECT_EQ(lastSent(), "0xFE00017F");
}

TEST_F(WidgetPropertyTest, TdcBitIsTheFirstSpinBox)
{
    make(PropertyKind::Dbtp);
    m_editor->setValue("0x00800000");
    EXPECT_EQ(spun(), (std::vector<int>{1, 0, 0, 0, 0}));
    QTest::keyClick(spin("TDC"), Qt::Key_Down);
    EXPECT_EQ(lastSent(), "0x00000000");
    QTest::keyClick(spin("TDC"), Qt::Key_Up);
    EXPECT_EQ(lastSent(), "0x00800000");
}

TEST_F(WidgetPropertyTest, SpinBoxShowsWhatTheDeviceMadeOfIt)
{
    make(PropertyKind::Tdcr, {{"On", 0x1000}});
    QObject::connect(m_editor.get(), &WidgetProperty::signalChanged, m_editor.get(),
                     [this] { m_editor->setValue("0x00001000"); });
    spin("TDCF")->setValue(5);
    EXPECT_EQ(edit("TDCR")->text(), QStringLiteral("0x00001000"));
    EXPECT_EQ(choices()->currentText(), QStringLiteral("On"));
    EXPECT_EQ(spun(), (std::vector<int>{16, 0}));
}

TEST_F(WidgetPropertyTest, SpinBoxShowsTheRegisterInItsFormWhateverTheDeviceSays)
{
    make(PropertyKind::Tdcr, {{"On", 0x1000}});
    QObject::connect(m_editor.get(), &WidgetProperty::signalChanged, m_editor.get(),
                     [this] { m_editor->setValue("4096"); });
    spin("TDCF")->setValue(5);
    EXPECT_EQ(edit("TDCR")->text(), QStringLiteral("0x00001000"));
    EXPECT_EQ(choices()->currentText(), QStringLiteral("On"));
}

} // namespace
