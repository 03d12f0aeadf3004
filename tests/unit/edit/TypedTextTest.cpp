#include "edit/TypedText.h"

#include <gtest/gtest.h>
#include <limits>

// What is typed into the fields of an editor.

namespace {

QString name(const char* text)
{
    return QString::fromUtf8(text);
}

TEST(TypedText, LineFeedsBecomeBlanks)
{
    EXPECT_EQ(zul::oneLine(name("a\nb\r\nc")), name("a b  c"));
    EXPECT_EQ(zul::oneLine(name("a\xe2\x80\xa8"
                                "b\xe2\x80\xa9")),
              name("a b "));
    EXPECT_EQ(zul::oneLine(name("a;b\tc <\xc3\xbc>")), name("a;b\tc <\xc3\xbc>"));
    EXPECT_EQ(zul::oneLine(QString()), QString());
}

TEST(TypedText, NumbersAreFinite)
{
    EXPECT_EQ(zul::typedNumber(name(" -1.5e3 ")), -1500.0);
    EXPECT_EQ(zul::typedNumber(name("0")), 0.0);
    for (const char* text : {"", "-", "1e", "1,5", "abc", "0x10", "inf", "-inf", "nan", "1e999"}) {
        EXPECT_FALSE(zul::typedNumber(name(text)).has_value()) << text;
    }
}

TEST(TypedText, NumberTextReadsBack)
{
    EXPECT_EQ(zul::numberText(0.0), name("0"));
    EXPECT_EQ(zul::numberText(-90.0), name("-90"));
    EXPECT_EQ(zul::numberText(0.1), name("0.1"));
    for (const double number :
         {1.0 / 3.0, 1e300, -5e-324, 18446744073709551615.0, std::numeric_limits<double>::max()}) {
        EXPECT_EQ(zul::typedNumber(zul::numberText(number)), number);
    }
}

} // namespace
