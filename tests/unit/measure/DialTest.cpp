#include "measure/DialDigits.h"
#include "measure/DialFeed.h"
#include "measure/DialScale.h"
#include "message/MessageContainer.h"
#include "project/Filter.h"
#include "project/ObjectDial.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using zul::MessageCan;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

TEST(DialScale, NeedleGoesFromMinus125To125Degrees)
{
    EXPECT_DOUBLE_EQ(dialAngle(0.0, 0.0, 1.0), -125.0);
    EXPECT_DOUBLE_EQ(dialAngle(0.5, 0.0, 1.0), 0.0);
    EXPECT_DOUBLE_EQ(dialAngle(1.0, 0.0, 1.0), 125.0);
    EXPECT_DOUBLE_EQ(dialAngle(-5.0, -10.0, 10.0), -62.5);
}

TEST(DialScale, ValueOutsideOfTheScaleHoldsTheNeedleAtItsEnd)
{
    EXPECT_DOUBLE_EQ(dialShare(-3.0, 0.0, 1.0), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(42.0, 0.0, 1.0), 1.0);
    EXPECT_DOUBLE_EQ(dialShare(infinity, 0.0, 1.0), 1.0);
    EXPECT_DOUBLE_EQ(dialShare(-infinity, 0.0, 1.0), 0.0);
}

TEST(DialScale, ScaleMayRunDownwards)
{
    EXPECT_DOUBLE_EQ(dialShare(10.0, 10.0, -10.0), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(-5.0, 10.0, -10.0), 0.75);
    EXPECT_DOUBLE_EQ(dialShare(-50.0, 10.0, -10.0), 1.0);
}

TEST(DialScale, WhatHasNoPlaceIsAtTheStart)
{
    EXPECT_DOUBLE_EQ(dialShare(noNumber, 0.0, 1.0), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(1.0, 1.0, 1.0), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(2.0, 1.0, 1.0), 1.0);
    EXPECT_DOUBLE_EQ(dialShare(0.0, 1.0, 1.0), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(1.0, infinity, infinity), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(1.0, noNumber, 1.0), 0.0);
}

TEST(DialScale, MarksCoverTheScale)
{
    EXPECT_DOUBLE_EQ(dialFirstAngle + (dialMinorMarks.count - 1) * dialMinorMarks.stepAngle, 125.0);
    EXPECT_DOUBLE_EQ(dialFirstAngle + (dialMajorMarks.count - 1) * dialMajorMarks.stepAngle, 125.0);
    EXPECT_DOUBLE_EQ(dialMinorMarks.stepAngle, 5.0);
    EXPECT_DOUBLE_EQ(dialMajorMarks.stepAngle, 25.0);
    EXPECT_DOUBLE_EQ(dialMinorMarks.from, 92.0);
    EXPECT_DOUBLE_EQ(dialMajorMarks.from, 88.0);
    EXPECT_DOUBLE_EQ(dialMinorMarks.to, 96.0);
    EXPECT_DOUBLE_EQ(dialMajorMarks.to, 96.0);
}

TEST(DialScale, TextsShowTheTrueNumberNameAndUnit)
{
    EXPECT_EQ(dialValueText(42.0, 2), QStringLiteral("42.00"));
    EXPECT_EQ(dialValueText(-0.125, 3), QStringLiteral("-0.125"));
    EXPECT_EQ(dialValueText(2.6, 0), QStringLiteral("3"));
    EXPECT_EQ(dialValueText(1.0, -5), QStringLiteral("1"));
    EXPECT_EQ(dialValueText(1.0, 99), QStringLiteral("1.0000000000"));
    EXPECT_EQ(dialValueText(noNumber, 2), QStringLiteral("nan"));
    EXPECT_EQ(dialTitle(QStringLiteral("Speed %1"), QStringLiteral("kt")),
              QStringLiteral("Speed %1 [kt]"));
    EXPECT_EQ(dialTitle(QStringLiteral("NoName"), QString()), QStringLiteral("NoName []"));
}

struct DigitsCase
{
    double value;
    int precision;
    const char* text;
    int count;
};

class DialDigitsOf : public testing::TestWithParam<DigitsCase>
{
};

TEST_P(DialDigitsOf, HaveTheirTextAndCount)
{
    const DialDigits shown = dialDigits(GetParam().value, GetParam().precision);
    EXPECT_EQ(shown.text, QLatin1String(GetParam().text));
    EXPECT_EQ(shown.count, GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(
    Values, DialDigitsOf,
    testing::Values(DigitsCase{100.0, 2, "100.00", 6}, DigitsCase{99.5, 2, "99.50", 5},
                    DigitsCase{0.0, 2, "0.00", 4}, DigitsCase{-0.0, 2, "0.00", 4},
                    DigitsCase{-0.001, 2, "-0.00", 5}, DigitsCase{0.001, 3, "0.001", 5},
                    DigitsCase{-5.25, 2, "-5.25", 5}, DigitsCase{5.0, 0, "5", 2},
                    DigitsCase{-12.0, 1, "-12.0", 5}, DigitsCase{1234.5678, 4, "1234.5678", 9},
                    DigitsCase{1.0, 50, "1.0000000000", 12}, DigitsCase{1.0, -1, "1", 2},
                    DigitsCase{9.999, 2, "10.00", 5})); // rounding brought a digit

TEST(DialDigits, WhatIsNoNumberShowsDashes)
{
    for (const double value : {infinity, -infinity, noNumber}) {
        EXPECT_EQ(dialDigits(value, 2).text, QStringLiteral("----"));
        EXPECT_EQ(dialDigits(value, 2).count, 4);
    }
}

TEST(DialDigits, LargestAndSmallestNumbersFitTheirDigits)
{
    for (const double value : {3.4e38, -3.4e38, 1e-45, -1e-45}) {
        const DialDigits shown = dialDigits(value, 10);
        EXPECT_GE(shown.count, shown.text.size());
        EXPECT_LE(shown.count, 99) << "what a display can have";
    }
}

MessageContainer batchOf(const std::vector<std::uint32_t>& ids, const char* source = "Nose")
{
    MessageContainer batch;
    batch.setSrcDest(source);
    for (std::size_t i = 0; i < ids.size(); ++i) {
        auto* frame = new MessageCan;
        frame->setId(ids[i]);
        frame->setByteCount(8);
        frame->msg()[0] = static_cast<std::uint8_t>(i + 1);
        batch.addMessage(SmartPtr<Message>(frame));
    }
    batch.addMessage(SmartPtr<Message>(new Message));
    return batch;
}

class DialFeedTest : public testing::Test
{
protected:
    DialFeed::Update feed(const MessageContainer& batch)
    {
        return m_feed.receive(batch, m_settings, m_interface, m_filter);
    }
    int lastByte() const { return m_feed.last() ? m_feed.last()->msg()[0] : -1; }

    DialFeed m_feed;
    DialSettings m_settings;
    Filter m_filter;
    std::string m_interface = allInterfaces;
};

TEST_F(DialFeedTest, LastMatchOfABatchWins)
{
    m_settings.canId = 7;
    EXPECT_FALSE(m_feed.last().has_value());
    EXPECT_EQ(feed(batchOf({7, 8, 7, 9})), DialFeed::Update::Matched);
    EXPECT_EQ(lastByte(), 3);
    EXPECT_EQ(m_feed.receivedTotal(), 4U);
    EXPECT_EQ(feed(batchOf({8})), DialFeed::Update::Counted);
    EXPECT_EQ(lastByte(), 3) << "kept";
    EXPECT_EQ(m_feed.receivedTotal(), 5U);
}

TEST_F(DialFeedTest, BatchOfAnotherInterfaceIsIgnored)
{
    m_interface = "Tail";
    EXPECT_EQ(feed(batchOf({0})), DialFeed::Update::Ignored);
    EXPECT_EQ(m_feed.receivedTotal(), 0U);
    EXPECT_EQ(feed(batchOf({0}, "Tail")), DialFeed::Update::Matched);
}

TEST_F(DialFeedTest, InputOffAndFilterCountAndTakeNothing)
{
    m_settings.inputOn = false;
    EXPECT_EQ(feed(batchOf({0})), DialFeed::Update::Counted);
    m_settings.inputOn = true;
    m_filter.setOn(true);
    m_filter.setMin(1);
    EXPECT_EQ(feed(batchOf({0})), DialFeed::Update::Counted);
    EXPECT_EQ(m_feed.receivedTotal(), 2U);
    m_filter.setMin(0);
    EXPECT_EQ(feed(batchOf({0})), DialFeed::Update::Matched);
}

} // namespace
