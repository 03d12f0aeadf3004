#include "gui/measure/WidgetDial.h"

#include <QtMath>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

/// Pixels of a needle instrument of 200 x 200.
class NeedleDrawing : public testing::Test
{
protected:
    NeedleDrawing() { m_dial.resize(201, 201); }
    QImage image() { return m_dial.grab().toImage(); }
    /// The colour at a distance from the centre, in the direction of an angle from the top.
    QColor at(double angle, double distance)
    {
        const double radians = qDegreesToRadians(angle);
        return image().pixelColor(qRound(100.5 + distance * qSin(radians) - 0.5),
                                  qRound(100.5 - distance * qCos(radians) - 0.5));
    }
    bool isNeedleAt(double angle) { return at(angle, 50) == QColor(200, 0, 0); }

    WidgetDial m_dial;
};

TEST_F(NeedleDrawing, HasItsFrameAndDefaults)
{
    EXPECT_EQ(m_dial.frameStyle(), QFrame::Box | QFrame::Sunken);
    EXPECT_TRUE(m_dial.autoFillBackground());
    EXPECT_EQ(m_dial.minimumSize(), QSize(100, 100));
    EXPECT_DOUBLE_EQ(m_dial.minimum(), 0.0);
    EXPECT_DOUBLE_EQ(m_dial.maximum(), 1.0);
    EXPECT_EQ(m_dial.precision(), 2);
    EXPECT_EQ(m_dial.name(), QStringLiteral("NoName"));
    EXPECT_EQ(m_dial.color(), QColor(200, 0, 0));
}

TEST_F(NeedleDrawing, NeedleStandsAtItsStartBeforeTheFirstValue)
{
    m_dial.setMinimum(-10.0);
    m_dial.setMaximum(10.0);
    EXPECT_TRUE(isNeedleAt(-125));
    EXPECT_FALSE(isNeedleAt(0)) << "0 would lie in the middle";
}

TEST_F(NeedleDrawing, NeedlePointsToItsValueAndIsHeldAtTheEnds)
{
    for (const auto& [value, angle] : std::vector<std::pair<double, double>>{{0.0, -125.0},
                                                                             {0.25, -62.5},
                                                                             {0.5, 0.0},
                                                                             {0.75, 62.5},
                                                                             {1.0, 125.0},
                                                                             {42.0, 125.0},
                                                                             {-42.0, -125.0},
                                                                             {qQNaN(), -125.0},
                                                                             {qInf(), 125.0}}) {
        m_dial.setValue(value);
        EXPECT_TRUE(isNeedleAt(angle)) << value;
    }
    m_dial.setMinimum(5.0);
    m_dial.setMaximum(5.0);
    m_dial.setValue(5.0);
    EXPECT_TRUE(isNeedleAt(-125)) << "a scale without length";
}

TEST_F(NeedleDrawing, MarksStandRoundTheScale)
{
    m_dial.setValue(1.0);
    const QColor back = m_dial.palette().color(QPalette::Window);
    for (int angle = -125; angle <= 100; angle += 5) {
        EXPECT_LT(at(angle, 94).lightness(), back.lightness()) << angle;
        if (angle % 25 == 0) {
            EXPECT_LT(at(angle, 90).lightness(), back.lightness()) << angle;
        } else {
            EXPECT_EQ(at(angle, 89), back) << angle;
        }
    }
    EXPECT_EQ(at(180, 98), back);
    EXPECT_LT(at(0, 94).lightness(), at(5, 94).lightness()) << "major marks are black";
}

TEST_F(NeedleDrawing, TextsStandBelowAndShowTheTrueNumber)
{
    const auto differs = [](const QImage& left, const QImage& right, const QRect& area) {
        return left.copy(area) != right.copy(area);
    };
    const QRect valueArea(30, 130, 140, 40);
    const QRect nameArea(30, 172, 140, 24);
    m_dial.setValue(1.0);
    const QImage before = image();
    m_dial.setValue(42.0);
    EXPECT_TRUE(differs(before, image(), valueArea)) << "the needle is held, the text is not";
    m_dial.setValue(1.0);
    EXPECT_EQ(image(), before);
    m_dial.setPrecision(0);
    EXPECT_TRUE(differs(before, image(), valueArea));
    m_dial.setPrecision(2);
    m_dial.setName(QStringLiteral("Speed"));
    EXPECT_TRUE(differs(before, image(), nameArea));
    EXPECT_FALSE(differs(before, image(), valueArea));
    m_dial.setUnit(QStringLiteral("kt"));
    m_dial.setColor(QColor(0, 0, 200));
    EXPECT_EQ(at(125, 50), QColor(0, 0, 200));
}

TEST_F(NeedleDrawing, LongNumberIsNotCut)
{
    m_dial.setValue(-123456789012345.0);
    const QImage picture = image();
    const QColor back = m_dial.palette().color(QPalette::Window);
    for (int y = 140; y < 175; ++y) {
        EXPECT_EQ(picture.pixelColor(2, y), back);
        EXPECT_EQ(picture.pixelColor(198, y), back);
    }
}

} // namespace
