#include "tests/support/TestHome.h"
#include "traffic/TraceRecorder.h"

#include <QDir>
#include <QLocale>

#include <gtest/gtest.h>

// CTest runs this program two hours east of Greenwich, and in a language that has digits of its
// own.

namespace {

// 21 November 2026, 18:35:09.123 UTC.
constexpr double startTime = 1795286109.123;

TEST(TraceElsewhere, FilesAreNamedInLocalTimeAndPlainDigits)
{
    ASSERT_NE(QLocale::system().zeroDigit(), QLatin1Char('0'));
    const zul::test::TestHome home;
    TraceRecorder recorder;
    ASSERT_TRUE(recorder.startOrStop(home.path().toLatin1().toStdString(), startTime));
    ASSERT_TRUE(recorder.startOrStop({}, startTime));
    const QStringList names{QStringLiteral("zultrace_20261121_203509_123.zla"),
                            QStringLiteral("zultrace_20261121_203509_123.zlb")};
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files, QDir::Name), names);
    EXPECT_EQ(home.read(names[1]).mid(12, 7), QByteArray("\xEA\x07\x0B\x15\x14\x23\x09"));
}

} // namespace
