#include "profile/ProfileNumbers.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

int decimal(const char* text)
{
    return zul::decimalNumber(QString::fromLatin1(text));
}

double real(const char* text)
{
    return zul::realNumber(QString::fromLatin1(text));
}

TEST(ProfileNumbers, Decimal)
{
    EXPECT_EQ(decimal("12"), 12);
    EXPECT_EQ(decimal("-1"), -1);
    EXPECT_EQ(decimal(" 7 "), 7);
    EXPECT_EQ(decimal("010"), 10);
}

TEST(ProfileNumbers, TextThatIsNoNumberIsZero)
{
    for (const char* text : {"", " ", "x", "0x10", "12a", "1.5", "-", "+", "--1", "1-", "+-1"}) {
        EXPECT_EQ(decimal(text), 0) << text;
    }
}

TEST(ProfileNumbers, DigitsOfOtherScriptsAreNoNumbers)
{
    EXPECT_EQ(zul::decimalNumber(QStringLiteral("\u0663")), 0);
    EXPECT_EQ(zul::decimalNumber(QStringLiteral("\uff15")), 0);
}

TEST(ProfileNumbers, LargeNumbersAreClampedAndSoStayOutOfEveryRange)
{
    constexpr int high = std::numeric_limits<int>::max();
    constexpr int low = std::numeric_limits<int>::min();
    EXPECT_EQ(decimal("2147483647"), high);
    EXPECT_EQ(decimal("2147483648"), high);
    EXPECT_EQ(decimal("4294967296"), high);
    EXPECT_EQ(decimal("99999999999999999999999"), high);
    EXPECT_EQ(decimal("-2147483648"), low);
    EXPECT_EQ(decimal("-99999999999999999999999"), low);
    EXPECT_EQ(decimal("+99999999999999999999"), high);
    EXPECT_EQ(zul::decimalNumber(QString(400, QLatin1Char('9'))), high);
}

TEST(ProfileNumbers, Real)
{
    EXPECT_EQ(real("1.5"), 1.5);
    EXPECT_EQ(real("-2e3"), -2000.0);
    for (const char* text : {"", "x", "1,5", "inf", "nan", "-inf", "1e999"}) {
        EXPECT_EQ(real(text), 0.0) << text;
    }
}

TEST(ProfileNumbers, PositionWithoutABitHasBitZero)
{
    std::uint32_t byte = 9;
    std::uint32_t bit = 9;
    zul::setPosition(QStringLiteral("7.3"), byte, bit);
    EXPECT_EQ(byte, 7U);
    EXPECT_EQ(bit, 3U);
    zul::setPosition(QStringLiteral("5"), byte, bit);
    EXPECT_EQ(byte, 5U);
    EXPECT_EQ(bit, 0U);
    zul::setPosition(QStringLiteral("1.2.3"), byte, bit);
    EXPECT_EQ(byte, 1U);
    EXPECT_EQ(bit, 2U);
    zul::setPosition(QStringLiteral(".4"), byte, bit);
    EXPECT_EQ(byte, 0U);
    EXPECT_EQ(bit, 4U);
    zul::setPosition(QString(), byte, bit);
    EXPECT_EQ(byte, 0U);
    EXPECT_EQ(bit, 0U);
}

} // namespace
