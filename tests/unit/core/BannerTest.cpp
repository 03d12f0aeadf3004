#include "core/Banner.h"

#include "core/Version.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/support/WorkingDirectory.h"

#include <QDir>

#include <gmock/gmock.h>
#include <regex>
#include <sstream>
#include <vector>

namespace {

using namespace zul;

std::vector<std::string> bannerLines()
{
    test::ConsoleCapture console;
    printBanner();
    std::istringstream text(console.out());
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(Version, Texts)
{
    EXPECT_EQ(versionText(), "ZUL 1.8.9");
    EXPECT_EQ(versionNumbers(), "1.8.9");
    EXPECT_EQ(productName(), "ZUL");
    EXPECT_EQ(version.year, 2020);
}

TEST(Version, BuildStampIsTheCompilersDateAndTime)
{
    const std::regex form("[A-Z][a-z]{2} [ 0-9][0-9] 20[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}");
    EXPECT_TRUE(std::regex_match(buildStamp(), form)) << buildStamp();
}

TEST(Banner, LinesInOrder)
{
    const std::string dashes(49, '-');
    const std::vector<std::string> lines = bannerLines();
    ASSERT_GE(lines.size(), 7U);
    EXPECT_EQ(lines[0], dashes);
    EXPECT_EQ(lines[1], "");
    EXPECT_THAT(
        std::vector<std::string>(lines.end() - 4, lines.end()),
        testing::ElementsAre(
            "                Version  : ZUL 1.8.9", "                Compiled : " + buildStamp(),
            "                CWD      : " + std::string(qPrintable(QDir::currentPath())), dashes));
}

TEST(Banner, WorkingDirectoryIsCutAt255Bytes)
{
    const test::TestHome home;
    const QString deep = home.file(QString(200, QLatin1Char('a')) + QLatin1Char('/') +
                                   QString(200, QLatin1Char('b')));
    ASSERT_TRUE(QDir().mkpath(deep));
    const test::WorkingDirectory here(deep);
    const std::string expected(QDir::currentPath().toLocal8Bit().left(255).constData());
    const std::vector<std::string> lines = bannerLines();
    EXPECT_EQ(lines.at(lines.size() - 2), "                CWD      : " + expected);
}

} // namespace
