#include "gui/controls/NumberText.h"
#include "gui/controls/QwtByteCount.h"
#include "gui/controls/QwtHexValidator.h"
#include "gui/controls/QwtSpinBox.h"
#include "gui/traffic/Widget825Raw.h"
#include "gui/traffic/WidgetCanAs.h"
#include "gui/traffic/WidgetTransmitCan.h"
#include "tests/gui/TransmitFixture.h"

#include <QStackedWidget>

// Numbers whose base is taken from how they begin, and what is entered where none can be read.

namespace {

using zul::test::type;

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

TEST(OctalEntry, DigitsThatTheBaseHasNotAreNoNumber)
{
    for (const char* typed : {"08", "09", "0800", "0x", "0xG", "00000000000000000000000000009"}) {
        EXPECT_EQ(gui::wideNumberFromText(text(typed)), 0) << typed;
        EXPECT_EQ(gui::numberFromText(text(typed)), 0) << typed;
    }
    EXPECT_EQ(gui::wideNumberFromText(text("010")), 8);
    EXPECT_EQ(gui::wideNumberFromText(text("0")), 0);
}

TEST(OctalEntry, DigitsOfTheBaseThatAreTooManyAreTheLargestNumber)
{
    constexpr qlonglong largest = std::numeric_limits<qlonglong>::max();
    for (const char* typed :
         {"99999999999999999999", "0777777777777777777777777", "0xFFFFFFFFFFFFFFFFFF"}) {
        EXPECT_EQ(gui::wideNumberFromText(text(typed)), largest) << typed;
    }
}

TEST(OctalEntry, ValidatorTakesItAsZero)
{
    const gui::QwtHexValidator byte(0, 255);
    const gui::QwtHexValidator aboveZero(1, 255);
    for (const char* typed : {"08", "0800"}) {
        QString entered = text(typed);
        int position = 0;
        EXPECT_EQ(byte.validate(entered, position), QValidator::Acceptable) << typed;
        EXPECT_EQ(aboveZero.validate(entered, position), QValidator::Invalid) << typed;
    }
}

TEST(OctalEntry, SpinBoxTakesItAsZero)
{
    gui::QwtSpinBox box;
    box.setRange(0, 2047);
    for (const char* typed : {"08", "0800"}) {
        box.setValue(5);
        type(&box, typed);
        EXPECT_EQ(box.value(), 0) << typed;
    }
}

TEST(OctalEntry, PayloadCellStoresZero)
{
    SendMsg message;
    message.byteCount = 8;
    message.data[0] = 9;
    WidgetTransmitCan can;
    Widget825Raw arinc;
    for (gui::MessageEditor* editor :
         {static_cast<gui::MessageEditor*>(&can), static_cast<gui::MessageEditor*>(&arinc)}) {
        editor->setMessage(0, message);
        for (QLineEdit* cell : editor->findChildren<QLineEdit*>()) {
            if (cell->toolTip() == text("Message Payload")) {
                type(cell, "08");
                EXPECT_EQ(cell->text(), text("08"));
                break;
            }
        }
        EXPECT_EQ(editor->message().data[0], 0);
    }
}

TEST(ByteCountEntry, CountIsReadInTheBaseThatItBeginsWith)
{
    gui::QwtByteCount box;
    const auto enter = [&box](const char* typed) {
        type(&box, typed);
        return box.byteCount();
    };
    EXPECT_EQ(enter("0x10"), 16);
    EXPECT_EQ(enter("010"), 8);
    EXPECT_EQ(enter("48"), 48);
    EXPECT_EQ(enter("0X40"), 64);
}

TEST(ByteCountEntry, CountThatIsNotInTheTableBecomesCode0)
{
    gui::QwtByteCount box;
    for (const char* typed : {"9", "17", "63", "65", "-1", "08", "0x11", "no"}) {
        box.setValue(32);
        type(&box, typed);
        EXPECT_EQ(box.value(), 0) << typed;
        EXPECT_EQ(box.byteCount(), 0) << typed;
        EXPECT_EQ(box.text(), text("0")) << typed;
    }
}

TEST(Letters, ZeroAmongThemSurvivesAnEditAndAnUntouchedField)
{
    SendMsg message;
    message.byteCount = 8;
    message.data[1] = 25; // ACHAR_4
    message.data[4] = 'A';
    message.data[6] = 'C';
    message.data[7] = 'D';
    WidgetCanAs editor;
    editor.setMessage(0, message);
    auto* page = editor.findChild<QStackedWidget*>(text("value"))->currentWidget();
    auto* line = page->findChild<QLineEdit*>();
    EXPECT_EQ(line->text().toLatin1(), QByteArray("A\0CD", 4));
    EXPECT_EQ(line->displayText().at(1), QLatin1Char(' ')) << "shown as a blank";
    line->setFocus();
    line->clearFocus();
    editor.setNumberType(1);
    const auto bytes = [&editor] {
        const SendMsg& shown = editor.message();
        return QByteArray(reinterpret_cast<const char*>(&shown.data[4]), 4);
    };
    EXPECT_EQ(bytes(), QByteArray("A\0CD", 4));
    QTest::keyClick(line, Qt::Key_Home);
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClicks(line, text("Z"));
    EXPECT_EQ(bytes(), QByteArray("Z\0CD", 4));
}

TEST(ArincEditor, Has50PixelsUntilItShowsAMessage)
{
    Widget825Raw editor;
    EXPECT_EQ(editor.height(), 50);
    EXPECT_EQ(editor.minimumWidth(), 400);
    editor.setMessage(0, SendMsg());
    EXPECT_EQ(editor.height(), 40);
}

} // namespace
