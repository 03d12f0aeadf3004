#include "gui/controls/NumberText.h"
#include "gui/controls/QwtBarItem.h"
#include "gui/controls/QwtByteCount.h"
#include "gui/controls/QwtCheckBox.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtHexValidator.h"
#include "gui/controls/QwtLabel.h"
#include "gui/controls/QwtLineEdit.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/QwtSpinBox.h"
#include "gui/controls/WidgetLight.h"
#include "gui/controls/WidgetLoad.h"
#include "gui/controls/WidgetStatus.h"
#include "tests/support/SettableClock.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace gui;

TEST(QwtLineEdit, RepeatsItsIndexAndTellsOfTheFocus)
{
    QwtLineEdit edit(7);
    EXPECT_TRUE(edit.autoFillBackground());
    const QSignalSpy changed(&edit, &QwtLineEdit::signalTextChanged);
    const QSignalSpy in(&edit, &QwtLineEdit::focusIn);
    const QSignalSpy out(&edit, &QwtLineEdit::focusOut);
    edit.show();
    QApplication::setActiveWindow(&edit);
    edit.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return in.count() == 1; }));
    QTest::keyClicks(&edit, QStringLiteral("0x"));
    ASSERT_EQ(changed.count(), 2);
    EXPECT_EQ(changed.at(1).at(0).toInt(), 7);
    EXPECT_EQ(changed.at(1).at(1).toString(), QStringLiteral("0x"));
    edit.clearFocus();
    EXPECT_EQ(out.count(), 1);
}

TEST(QwtComboBox, SelectsAndReportsByData)
{
    QwtComboBox box(3);
    box.addItem(QStringLiteral("CAN"), 0);
    box.addItem(QStringLiteral("ARINC 825 Raw"), 4);
    const QSignalSpy two(&box, QOverload<int, int>::of(&QwtComboBox::signalActivated));
    const QSignalSpy one(&box, QOverload<int>::of(&QwtComboBox::signalActivated));
    box.setData(4);
    EXPECT_EQ(box.currentIndex(), 1);
    EXPECT_EQ(two.count(), 0); // only the user's choice counts
    box.setData(6);
    EXPECT_EQ(box.currentIndex(), -1);
    box.setData(0);
    QTest::keyClick(&box, Qt::Key_Down);
    ASSERT_EQ(two.count(), 1);
    EXPECT_EQ(two.at(0), (QVariantList{3, 4}));
    EXPECT_EQ(one.at(0), (QVariantList{4}));
}

TEST(NumberText, ShowsAndReadsBothBases)
{
    EXPECT_EQ(numberText(255, 0), QStringLiteral("255"));
    EXPECT_EQ(numberText(255, 1), QStringLiteral("0xFF"));
    EXPECT_EQ(numberText(255, 2), QString());
    EXPECT_EQ(numberText(-1, 1), QStringLiteral("0xFFFFFFFF"));
    EXPECT_EQ(numberFromText(QStringLiteral("0x1F")), 31);
    EXPECT_EQ(numberFromText(QStringLiteral("31")), 31);
    EXPECT_EQ(numberFromText(QStringLiteral("no")), 0);
    EXPECT_EQ(numberFromText(QString()), 0);
    EXPECT_EQ(numberFromText(QStringLiteral("99999999999")), std::numeric_limits<int>::max());
    EXPECT_EQ(numberFromText(QStringLiteral("-99999999999")), std::numeric_limits<int>::min());
    EXPECT_EQ(numberFromText(QStringLiteral("0xFFFFFFFF")), -1);
    EXPECT_EQ(numberFromText(QStringLiteral("4294967295")), std::numeric_limits<int>::max());
}

TEST(QwtSpinBox, ReadsHexadecimalAlsoInDecimalMode)
{
    QwtSpinBox box(5);
    box.setRange(0, 2047);
    const QSignalSpy changed(&box, &QwtSpinBox::signalValueChanged);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("0x10"));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.value(), 16);
    EXPECT_EQ(changed.last(), (QVariantList{5, 16}));
    EXPECT_EQ(box.text(), QStringLiteral("16"));
    box.setNumberType(1);
    EXPECT_EQ(box.text(), QStringLiteral("0x10"));
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("99999"));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.value(), 2047);
    const int changes = changed.count();
    box.setNumberType(9);
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(box.value(), 2047); // showing another way changes no value
    EXPECT_EQ(changed.count(), changes);
}

TEST(QwtSpinBox, NumberThatIsTooLargeIsTheLargestAndNot0)
{
    QwtSpinBox box;
    box.setRange(0, 2047);
    for (const char* text : {"0x80000000", "0xFFFFFFFF", "4294967295", "0x1FFFFFFFF",
                             "99999999999999999999", "0xFFFFFFFFFFFFFFFFF"}) {
        box.setValue(5);
        box.selectAll();
        QTest::keyClicks(&box, QLatin1String(text));
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.value(), 2047) << text;
    }
}

TEST(QwtSpinBox, NegativeValueSurvivesItsHexadecimalText)
{
    QwtSpinBox box;
    box.setRange(-10, 10);
    box.setValue(-1);
    box.setNumberType(1);
    EXPECT_EQ(box.text(), QStringLiteral("0xFFFFFFFF"));
    box.interpretText();
    EXPECT_EQ(box.value(), -1);
}

TEST(QwtByteCount, StepsThroughTheCodesAndShowsTheCounts)
{
    QwtByteCount box(2);
    const QSignalSpy changed(&box, &QwtByteCount::signalValueChanged);
    box.setValue(8);
    EXPECT_EQ(box.text(), QStringLiteral("8"));
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.text(), QStringLiteral("12"));
    EXPECT_EQ(box.byteCount(), 12);
    EXPECT_EQ(changed.last(), (QVariantList{2, 12}));
    box.setNumberType(1);
    EXPECT_EQ(box.text(), QStringLiteral("0xC"));
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("0x40"));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.byteCount(), 64);
    box.setNumberType(9);
    EXPECT_EQ(box.byteCount(), 64);
    box.setValue(13); // no code stands for it
    EXPECT_EQ(box.byteCount(), 0);
}

TEST(QwtCheckBox, MapsNumbersAndRepeatsItsIndex)
{
    QwtCheckBox box(4);
    box.setValue(0);
    EXPECT_FALSE(box.isChecked());
    const QSignalSpy toggled(&box, &QwtCheckBox::signalToggled);
    box.setValue(-3);
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(toggled.at(0), (QVariantList{4, true}));
}

TEST(QwtPushButton, RepeatsItsIndex)
{
    QwtPushButton button(11);
    const QSignalSpy clicked(&button, &QwtPushButton::signalClicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.at(0), (QVariantList{11}));
}

TEST(QwtLabel, TellsOfDoubleClicks)
{
    QwtLabel label(9);
    const QSignalSpy clicked(&label, &QwtLabel::signalDoubleClicked);
    QTest::mouseDClick(&label, Qt::LeftButton);
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.at(0), QVariantList{9});
}

TEST(QwtHexValidator, AcceptsWhatLiesInTheRange)
{
    const QwtHexValidator validator(0, 255);
    const auto state = [&](const char* text) {
        QString input = QLatin1String(text);
        int position = 0;
        return validator.validate(input, position);
    };
    for (const char* good : {"", "0", "255", "0xff", "0x", "junk"}) {
        EXPECT_EQ(state(good), QValidator::Acceptable) << good;
    }
    for (const char* bad : {"256", "0x100", "-1"}) {
        EXPECT_EQ(state(bad), QValidator::Invalid) << bad;
    }
    for (const char* octal : {"010", "0377"}) {
        EXPECT_EQ(state(octal), QValidator::Acceptable) << octal;
    }
    EXPECT_EQ(state("0400"), QValidator::Invalid);
    const QwtHexValidator fromOne(1, 5);
    QString empty;
    int position = 0;
    EXPECT_EQ(fromOne.validate(empty, position), QValidator::Invalid);
}

TEST(QwtHexValidator, NumbersBeyondAnIntAreOutOfEveryRange)
{
    const QwtHexValidator aroundZero(-5, 5);
    const QwtHexValidator allInts(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    int position = 0;
    for (const char* text : {"0xFFFFFFFF", "99999999999", "-99999999999"}) {
        QString input = QLatin1String(text);
        EXPECT_EQ(aroundZero.validate(input, position), QValidator::Invalid) << text;
        EXPECT_EQ(allInts.validate(input, position), QValidator::Invalid) << text;
    }
    QString negative = QStringLiteral("-5");
    EXPECT_EQ(aroundZero.validate(negative, position), QValidator::Acceptable);
}

TEST(QwtBarItem, SmoothsTheRateAndFloorsTheMaximum)
{
    zul::test::SettableClock clock(100.0);
    QwtBarItem bar(6);
    EXPECT_EQ(bar.index(), 6);
    EXPECT_EQ(bar.rate(), 0.0);
    EXPECT_EQ(bar.maximum(), 100U);
    clock.advance(1.0);
    bar.setValue(130.0, 0);
    EXPECT_NEAR(bar.rate(), 130.0 / 1.3, 1e-4);
    EXPECT_EQ(bar.maximum(), 1U);
    bar.setValue(50.0, 200);
    bar.resize(100, 20);
    const QImage image = bar.grab().toImage();
    EXPECT_EQ(image.pixelColor(5, 2), QColor(100, 200, 100));
    EXPECT_EQ(image.pixelColor(95, 2), QColor(Qt::white));
    bar.setBackground(QColor(220, 255, 220));
    EXPECT_EQ(bar.grab().toImage().pixelColor(95, 2), QColor(220, 255, 220));
}

TEST(QwtBarItem, BarIsAsWideAsItsShareOfTheMaximum)
{
    zul::test::SettableClock clock(100.0);
    QwtBarItem bar;
    bar.resize(200, 20);
    clock.advance(1.0);
    bar.setValue(130.0, 400);
    ASSERT_NEAR(bar.rate(), 100.0, 1e-4);
    const QImage image = bar.grab().toImage();
    EXPECT_EQ(image.pixelColor(48, 1), QColor(100, 200, 100));
    EXPECT_EQ(image.pixelColor(51, 1), QColor(Qt::white));
}

TEST(QwtBarItem, RateStandsInTheMiddle)
{
    zul::test::SettableClock clock(100.0);
    QwtBarItem bar;
    bar.resize(120, 20);
    clock.advance(1.0);
    bar.setValue(130.0, 400);
    const QImage shown = bar.grab().toImage();
    QImage expected(shown.size(), shown.format());
    {
        QPainter painter(&expected);
        painter.setFont(bar.font());
        painter.fillRect(expected.rect(), Qt::white);
        painter.fillRect(0, 0, 30, 20, QColor(100, 200, 100));
        painter.setPen(bar.palette().color(QPalette::WindowText));
        painter.drawText(expected.rect(), Qt::AlignCenter, QStringLiteral("100 Msg/s"));
    }
    EXPECT_EQ(shown, expected);
}

TEST(QwtBarItem, SmoothsOverTheTimeSinceTheLastCall)
{
    zul::test::SettableClock clock(100.0);
    QwtBarItem bar;
    clock.advance(1.0);
    bar.setValue(130.0, 200);
    ASSERT_NEAR(bar.rate(), 100.0, 1e-4);
    clock.advance(0.5);
    bar.setValue(10.0, 200);
    EXPECT_NEAR(bar.rate(), (0.3 * 100.0 + 0.5 * 10.0) / 0.8, 1e-4);
    bar.setValue(1000.0, 200); // no time has passed
    EXPECT_NEAR(bar.rate(), (0.3 * 100.0 + 0.5 * 10.0) / 0.8, 1e-4);
}

TEST(WidgetLight, PaletteChangesOnlyWithTheState)
{
    WidgetLight light;
    EXPECT_EQ(light.frameStyle(), 49);
    EXPECT_EQ(light.minimumSize(), QSize(20, 20));
    EXPECT_EQ(light.alignment(), Qt::AlignCenter);
    light.setState(0);
    EXPECT_EQ(light.palette().color(QPalette::Window), QColor(255, 0, 0));
    QPalette marked = light.palette();
    marked.setColor(QPalette::Window, Qt::blue);
    light.setPalette(marked);
    light.setState(0);
    EXPECT_EQ(light.palette().color(QPalette::Window), QColor(Qt::blue));
    light.setState(-4);
    EXPECT_EQ(light.palette().color(QPalette::Window), QColor(0, 255, 0));
    EXPECT_EQ(light.state(), -4);
}

TEST(WidgetLoad, LimitsTheLoadAndShowsBoth)
{
    WidgetLoad load;
    EXPECT_EQ(load.height(), 18);
    EXPECT_EQ(load.text(), QStringLiteral("0/s   0.0 %"));
    load.set(1234, 120.0);
    EXPECT_EQ(load.text(), QStringLiteral("1234/s   100.0 %"));
    load.set(5, -3.0);
    EXPECT_EQ(load.load(), 0.0);
    load.set(5, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(load.load(), 0.0);
}

TEST(WidgetLoad, BarColourGoesFromGreenOverYellowToRed)
{
    EXPECT_EQ(WidgetLoad::barColor(0.0), QColor(0, 255, 0));
    EXPECT_EQ(WidgetLoad::barColor(10.5), QColor(52, 255, 0));
    EXPECT_EQ(WidgetLoad::barColor(49.99), QColor(249, 255, 0));
    EXPECT_EQ(WidgetLoad::barColor(50.0), QColor(255, 250, 0));
    EXPECT_EQ(WidgetLoad::barColor(100.0), QColor(255, 0, 0));
}

TEST(WidgetLoad, PaintsBackgroundBarAndOutline)
{
    WidgetLoad load;
    load.resize(200, 18);
    load.set(0, 0.0);
    EXPECT_EQ(load.grab().toImage().pixelColor(190, 3), QColor(240, 240, 240));
    load.set(7, 25.0);
    const QImage image = load.grab().toImage();
    EXPECT_EQ(image.pixelColor(190, 3), QColor(230, 255, 230));
    EXPECT_EQ(image.pixelColor(10, 3), QColor(125, 255, 0));
    EXPECT_EQ(image.pixelColor(49, 3), QColor(125, 255, 0));
    EXPECT_EQ(image.pixelColor(50, 3), QColor(230, 255, 230));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(199, 17), QColor(Qt::white));
    load.set(7, 120.0);
    EXPECT_EQ(load.grab().toImage().pixelColor(190, 3), QColor(255, 0, 0));
}

TEST(WidgetLoad, TellsOfDoubleClicks)
{
    WidgetLoad load;
    const QSignalSpy clicked(&load, &WidgetLoad::signalDoubleClicked);
    QTest::mouseDClick(&load, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);
}

TEST(WidgetStatus, ShowsLabelValueAndColour)
{
    WidgetStatus row;
    EXPECT_EQ(row.label(), QStringLiteral("Status "));
    row.set({"State", "Active", "#dcffdc"});
    EXPECT_EQ(row.label(), QStringLiteral("State"));
    EXPECT_EQ(row.value(), QStringLiteral("Active"));
    EXPECT_EQ(row.valueColor(), QColor(0xdc, 0xff, 0xdc));
    row.set({"Temperature \xB0", "x", "nonsense"}); // Latin-1
    EXPECT_EQ(row.label(), QString::fromUtf8("Temperature \xC2\xB0"));
    EXPECT_FALSE(row.valueColor().isValid());
}

TEST(WidgetStatus, ColourIsThatOfTheActiveAndOfTheInactiveGroup)
{
    WidgetStatus row;
    row.set({"State", "Active", "#dcffdc"});
    const QPalette colors = row.findChild<QLineEdit*>()->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        EXPECT_EQ(colors.color(group, QPalette::Base), QColor(0xdc, 0xff, 0xdc)) << group;
    }
    EXPECT_NE(colors.color(QPalette::Disabled, QPalette::Base), QColor(0xdc, 0xff, 0xdc));
}

} // namespace
