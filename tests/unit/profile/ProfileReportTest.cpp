#include "profile/ProfileReport.h"

#include "tests/support/SettableClock.h"

#include <gtest/gtest.h>

namespace {

// 2026-11-21 07:08:09 UTC
constexpr double morning = 1795244889.0;

class Report : public testing::Test
{
protected:
    zul::test::SettableClock clock{morning};
    bool valid = false;
    QString result = QStringLiteral("old");
    zul::ProfileReport report{QStringLiteral("a.pro"), valid, result};
    QString head = QStringLiteral("Profile : a.pro<br>Time    : 21.11.2026 07:08:09<br><br>");
};

TEST_F(Report, StartsWithFileAndTimeAndIsValid)
{
    EXPECT_TRUE(valid);
    EXPECT_EQ(result, head);
}

TEST_F(Report, ErrorNamesLineAndKind)
{
    report.error(12, "FID %d invalid. Range must be in [0..127]", 200);
    EXPECT_FALSE(valid);
    EXPECT_EQ(result,
              head + QStringLiteral("Line 12: <b><font color=#ff0000>Error   :</b>  FID 200 "
                                    "invalid. Range must be in [0..127]<br>"));
}

TEST_F(Report, WarningMakesAProfileInvalidToo)
{
    report.warning(-1, "MIN greater MAX");
    EXPECT_FALSE(valid);
    EXPECT_EQ(result,
              head + QStringLiteral(
                         "Line -1: <b><font color=#ff9900>Warning :</b>  MIN greater MAX<br>"));
}

TEST_F(Report, TagsInTextsOfAFileStayText)
{
    report.error(1, "Invalid DTN %s",
                 zul::reportText(QStringLiteral("<b>\u00b0C & \u03a9")).constData());
    EXPECT_TRUE(result.endsWith(QStringLiteral("Invalid DTN &lt;b&gt;\u00b0C &amp; \u03a9<br>")))
        << result.toStdString();
}

TEST_F(Report, TagsInAFileNameStayText)
{
    EXPECT_TRUE(zul::reportHead(QStringLiteral("<i>.pro")).contains(QStringLiteral("&lt;i&gt;")));
}

TEST_F(Report, LongReportEndsWithAClosingLine)
{
    for (int line = 0; line < 20000; ++line) {
        report.error(line, "Syntax Error, wrong number of tokens %d", 1);
    }
    const QString closing =
        QStringLiteral("<b>Report too long. Further messages are left out.</b><br>");
    EXPECT_LE(result.size(), zul::maxReportLength + closing.size());
    EXPECT_GT(result.size(), zul::maxReportLength - 200);
    EXPECT_TRUE(result.endsWith(closing));
    EXPECT_EQ(result.count(closing), 1);
}

} // namespace
