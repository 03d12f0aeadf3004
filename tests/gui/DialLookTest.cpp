#include "gui/controls/WidgetLight.h"
#include "gui/measure/DialLights.h"
#include "gui/measure/DialNumber.h"
#include "gui/measure/WidgetDial.h"
#include "message/MessageCan.h"
#include "tests/gui/PaintCounter.h"
#include "tests/gui/PaintRecorder.h"

#include <QApplication>
#include <QTest>

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace {

using zul::test::PaintCounter;
using zul::test::PaintedLine;
using zul::test::PaintedText;
using zul::test::PaintRecorder;

const QColor grey(100, 100, 100);
const QColor black(0, 0, 0);

/// The three forms of a dial as widgets of their own.
class NeedleGeometry : public testing::TestWithParam<QSize>
{
protected:
    NeedleGeometry() { m_dial.resize(GetParam()); }
    /// Pixels of the widget for a unit of the drawing.
    double scale() const { return std::min(GetParam().width(), GetParam().height()) / 200.0; }
    /// A place of the drawing, turned by an angle, in pixels of the widget.
    QPointF pixel(QPointF place, double angle = 0.0) const
    {
        const double radians = angle * std::acos(-1.0) / 180.0;
        const QPointF turned(place.x() * std::cos(radians) - place.y() * std::sin(radians),
                             place.x() * std::sin(radians) + place.y() * std::cos(radians));
        return QPointF(GetParam().width() / 2.0, GetParam().height() / 2.0) + turned * scale();
    }
    static bool isNear(QPointF left, QPointF right) { return QLineF(left, right).length() < 0.01; }
    void expectLine(const PaintedLine& line, double angle, double from, const QColor& color) const
    {
        EXPECT_TRUE(isNear(line.line.p1(), pixel({0.0, -from}, angle))) << angle;
        EXPECT_TRUE(isNear(line.line.p2(), pixel({0.0, -96.0}, angle))) << angle;
        EXPECT_EQ(line.color, color) << angle;
        EXPECT_NEAR(line.width, scale(), 0.01) << angle;
    }

    WidgetDial m_dial;
};

INSTANTIATE_TEST_SUITE_P(Sizes, NeedleGeometry,
                         testing::Values(QSize(200, 200), QSize(300, 150), QSize(120, 500),
                                         QSize(100, 100), QSize(801, 603)));

TEST_P(NeedleGeometry, MarksStandEvery5And25Degrees)
{
    const PaintRecorder painted(m_dial);
    ASSERT_EQ(painted.lines.size(), 51U + 11U);
    for (std::size_t i = 0; i < 51; ++i) {
        expectLine(painted.lines[i], -125.0 + static_cast<double>(i) * 5.0, 92.0, grey);
    }
    for (std::size_t i = 0; i < 11; ++i) {
        expectLine(painted.lines[51 + i], -125.0 + static_cast<double>(i) * 25.0, 88.0, black);
    }
}

TEST_P(NeedleGeometry, NeedleIsATriangleTurnedToItsValue)
{
    m_dial.setColor(QColor(10, 20, 30));
    m_dial.setMinimum(-10.0);
    m_dial.setMaximum(30.0);
    for (const auto& [value, angle] : std::vector<std::pair<double, double>>{
             {-10.0, -125.0}, {0.0, -62.5}, {5.0, -31.25}, {30.0, 125.0}, {31.0, 125.0}}) {
        m_dial.setValue(value);
        const PaintRecorder painted(m_dial);
        ASSERT_EQ(painted.polygons.size(), 1U);
        const auto& needle = painted.polygons[0];
        ASSERT_EQ(needle.corners.size(), 3);
        EXPECT_TRUE(isNear(needle.corners[0], pixel({7.0, 8.0}, angle))) << value;
        EXPECT_TRUE(isNear(needle.corners[1], pixel({-7.0, 8.0}, angle))) << value;
        EXPECT_TRUE(isNear(needle.corners[2], pixel({0.0, -96.0}, angle))) << value;
        EXPECT_EQ(needle.brush, QColor(10, 20, 30));
        EXPECT_FALSE(needle.hasOutline);
        EXPECT_TRUE(needle.isConvex);
    }
}

TEST_P(NeedleGeometry, TextsStandInTheMiddleOfTheirRectangles)
{
    m_dial.setColor(QColor(10, 20, 30));
    m_dial.setValue(0.5);
    m_dial.setName(QStringLiteral("Wing"));
    m_dial.setUnit(QStringLiteral("deg"));
    const PaintRecorder painted(m_dial);
    ASSERT_EQ(painted.texts.size(), 2U);
    const auto expectText = [&](const QString& wording, int pointSize, double top) {
        const PaintedText text = painted.find(wording);
        EXPECT_EQ(text.font.pointSize(), pointSize) << wording.toStdString();
        EXPECT_EQ(text.font.weight(), 75) << wording.toStdString();
        EXPECT_EQ(text.color, QColor(10, 20, 30)) << wording.toStdString();
        EXPECT_NEAR(text.scale, scale(), 1e-6);
        // The line lies in the middle of the 50 units below `top`, so its base line does not.
        const QFontMetricsF letters(text.font, nullptr);
        const double base = top + 25.0 + (letters.ascent() - letters.descent()) / 2.0;
        EXPECT_NEAR(text.middle.x(), pixel({0.0, 0.0}).x(), 1.0) << wording.toStdString();
        EXPECT_NEAR(text.middle.y(), pixel({0.0, base}).y(), 2.0 * scale() + 1.0)
            << wording.toStdString();
    };
    expectText(QStringLiteral("0.50"), 24, 30.0);
    expectText(QStringLiteral("Wing [deg]"), 12, 60.0);
}

/// A widget on the screen that is told something, and how often it is painted then.
class Repaints : public testing::Test
{
protected:
    static int paintingsAfter(QWidget& widget, const std::function<void()>& action)
    {
        QApplication::processEvents();
        const PaintCounter painted(widget);
        action();
        EXPECT_EQ(painted.count, 0) << "painting is asked for, and not done at once";
        QApplication::processEvents();
        return painted.count;
    }
};

TEST_F(Repaints, EachSetterOfTheNeedleAsksForOne)
{
    WidgetDial dial;
    dial.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dial));
    EXPECT_EQ(paintingsAfter(dial, [] {}), 0);
    EXPECT_EQ(paintingsAfter(dial, [&] { dial.setMinimum(-1.0); }), 1) << "minimum";
    EXPECT_EQ(paintingsAfter(dial, [&] { dial.setMaximum(5.0); }), 1) << "maximum";
    EXPECT_EQ(paintingsAfter(dial, [&] { dial.setValue(2.0); }), 1) << "value";
    EXPECT_EQ(paintingsAfter(dial, [&] { dial.setPrecision(3); }), 1) << "precision";
    EXPECT_EQ(paintingsAfter(dial, [&] { dial.setName(QStringLiteral("N")); }), 1) << "name";
    EXPECT_EQ(paintingsAfter(dial, [&] { dial.setUnit(QStringLiteral("m")); }), 1) << "unit";
    EXPECT_EQ(paintingsAfter(dial, [&] { dial.setColor(Qt::blue); }), 1) << "colour";
    EXPECT_DOUBLE_EQ(dial.minimum(), -1.0);
    EXPECT_DOUBLE_EQ(dial.maximum(), 5.0);
    EXPECT_DOUBLE_EQ(dial.value(), 2.0);
    EXPECT_EQ(dial.precision(), 3);
    EXPECT_EQ(dial.unit(), QStringLiteral("m"));
}

TEST(DialNumberText, IsWrittenOnlyWhereItDiffers)
{
    gui::DialNumber number;
    number.showValue(2.5, 2);
    EXPECT_DOUBLE_EQ(number.value(), 2.5);
    number.display(7);
    number.showValue(2.5, 2);
    EXPECT_DOUBLE_EQ(number.value(), 7.0) << "the same text";
    number.showValue(2.504, 2);
    EXPECT_DOUBLE_EQ(number.value(), 7.0) << "another number with the same text";
    number.showValue(2.51, 2);
    EXPECT_DOUBLE_EQ(number.value(), 2.51);
    EXPECT_EQ(number.text(), QStringLiteral("2.51"));
}

TEST(DialNumberText, FirstOneCountsAsWritten)
{
    gui::DialNumber number;
    EXPECT_DOUBLE_EQ(number.value(), 100.0);
    number.display(7);
    number.showValue(100.0, 2);
    EXPECT_DOUBLE_EQ(number.value(), 7.0);
}

TEST(DialNumberText, IsWrittenAnewWithAnotherCountOfDigits)
{
    gui::DialNumber number;
    for (const double value : {1.5, -1.5, 1234.5, 0.0, -0.5, 99.5}) {
        number.showValue(value, 1);
        EXPECT_DOUBLE_EQ(number.value(), value);
        EXPECT_FALSE(number.checkOverflow(value));
    }
    EXPECT_EQ(number.digitCount(), 4) << "of 99.5: one decimal, the point, and two digits";
}

zul::MessageCan frameOf(int dataType, std::uint32_t byteCount = 8)
{
    zul::MessageCan frame;
    frame.setByteCount(byteCount);
    frame.msg()[1] = static_cast<std::uint8_t>(dataType);
    return frame;
}

class Lights : public testing::Test
{
protected:
    WidgetLight* light(int byte, int bit) const
    {
        return m_lights.findChild<WidgetLight*>(QString::asprintf("light%d.%d", byte, bit));
    }

    gui::DialLights m_lights;
};

TEST_F(Lights, NumbersAreWrittenOnlyForAnotherDataType)
{
    const QString mark = QStringLiteral("x");
    light(4, 0)->setText(mark);
    m_lights.showFrame(frameOf(0));
    EXPECT_EQ(light(4, 0)->text(), QStringLiteral("24")) << "the first data type is another";
    light(4, 0)->setText(mark);
    m_lights.showFrame(frameOf(0));
    EXPECT_EQ(light(4, 0)->text(), mark);
    m_lights.showFrame(frameOf(12));
    EXPECT_EQ(light(4, 0)->text(), QStringLiteral("8"));
    m_lights.showFrame(frameOf(26));
    EXPECT_EQ(light(7, 0)->text(), QString());
    m_lights.showFrame(frameOf(255, 0));
    EXPECT_EQ(light(7, 0)->text(), QStringLiteral("0")) << "the byte is read whatever the frame is";
}

TEST_F(Lights, FollowEachFrameWhateverTheNumbers)
{
    zul::MessageCan frame = frameOf(6);
    for (int byte = 0; byte < 8; ++byte) {
        frame.msg()[byte] = static_cast<std::uint8_t>(1U << static_cast<unsigned>(byte));
    }
    m_lights.showFrame(frame);
    for (int byte = 0; byte < 8; ++byte) {
        for (int bit = 0; bit < 8; ++bit) {
            EXPECT_EQ(light(byte, bit)->state(), byte == bit ? 1 : 0) << byte << '.' << bit;
        }
    }
    frame.setByteCount(3);
    m_lights.showFrame(frame);
    for (int byte = 0; byte < 8; ++byte) {
        EXPECT_EQ(light(byte, byte)->state(), byte < 3 ? 1 : 0) << byte;
    }
}

TEST_F(Lights, NumbersAreSmall)
{
    EXPECT_EQ(light(0, 0)->font().pixelSize(), 9);
}

TEST(TinyForms, AreDrawn)
{
    WidgetDial needle;
    gui::DialNumber number;
    gui::DialLights lights;
    needle.setValue(qQNaN());
    needle.setName(QString(10'000, QLatin1Char('W')));
    number.showValue(-3.4e38, 10);
    lights.showFrame(frameOf(15));
    for (QWidget* widget : std::vector<QWidget*>{&needle, &number, &lights}) {
        widget->setMinimumSize(0, 0);
        for (const QSize size : {QSize(1, 1), QSize(1, 300), QSize(300, 1), QSize(2, 2)}) {
            widget->resize(size);
            widget->grab();
        }
    }
}

} // namespace
