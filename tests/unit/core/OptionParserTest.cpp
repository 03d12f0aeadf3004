#include "core/OptionParser.h"

#include "tests/support/ConsoleCapture.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using zul::test::ConsoleCapture;

// The program's own table, and what a command line makes of it.
struct CommandLine
{
    explicit CommandLine(std::vector<const char*> arguments)
    {
        parser.addFlag("-h", "print this help");
        parser.addValue("-f", "initialisation file", "zul.ini");
        arguments.insert(arguments.begin(), "zul");
        ConsoleCapture console;
        result = parser.parse(static_cast<int>(arguments.size()), arguments.data());
        output = console.out();
    }

    std::string usage() const
    {
        ConsoleCapture console;
        parser.usage();
        return console.out();
    }

    OptionParser parser;
    bool result = false;
    std::string output;
};

TEST(OptionParser, NoArgumentsIsFine)
{
    const CommandLine line({});
    EXPECT_TRUE(line.result);
    EXPECT_EQ(line.output, "");
    EXPECT_FALSE(line.parser.isSet("-h"));
    EXPECT_FALSE(line.parser.isSet("-f"));
    EXPECT_EQ(line.parser.value("-h"), "false");
    EXPECT_EQ(line.parser.value("-f"), "zul.ini");
}

TEST(OptionParser, FlagIsSeenAndTrue)
{
    const CommandLine line({"-h"});
    EXPECT_TRUE(line.result);
    EXPECT_TRUE(line.parser.isSet("-h"));
    EXPECT_EQ(line.parser.value("-h"), "true");
}

TEST(OptionParser, FlagGivenTwiceIsSeenAndFalse)
{
    const CommandLine line({"-h", "-h"});
    EXPECT_TRUE(line.result);
    EXPECT_TRUE(line.parser.isSet("-h"));
    EXPECT_EQ(line.parser.value("-h"), "false");
}

TEST(OptionParser, FlagGivenThriceIsTrueAgain)
{
    EXPECT_EQ(CommandLine({"-h", "-h", "-h"}).parser.value("-h"), "true");
}

TEST(OptionParser, UnknownArgumentCostsALineAndParsingGoesOn)
{
    const CommandLine line({"x", "-h", "--file=a", "-f", "b"});
    EXPECT_FALSE(line.result);
    EXPECT_EQ(line.output, "unknown option x\nunknown option --file=a\n");
    EXPECT_TRUE(line.parser.isSet("-h"));
    EXPECT_EQ(line.parser.value("-f"), "b");
}

TEST(OptionParser, ComparisonIsExact)
{
    const CommandLine line({"-H", "-hf", "h", "", "-h "});
    EXPECT_FALSE(line.result);
    EXPECT_EQ(line.output, "unknown option -H\nunknown option -hf\nunknown option h\n"
                           "unknown option \nunknown option -h \n");
    EXPECT_FALSE(line.parser.isSet("-h"));
}

TEST(OptionParser, UnknownArgumentWithPercentSignsIsPrintedAsItStands)
{
    EXPECT_EQ(CommandLine({"%s%n%d"}).output, "unknown option %s%n%d\n");
}

TEST(OptionParser, ValueInLastPositionKeepsTheDefault)
{
    const CommandLine line({"-f"});
    EXPECT_TRUE(line.result);
    EXPECT_EQ(line.output, "");
    EXPECT_TRUE(line.parser.isSet("-f"));
    EXPECT_EQ(line.parser.value("-f"), "zul.ini");
}

TEST(OptionParser, ValueTakesTheNextArgumentWhateverItIs)
{
    const CommandLine line({"-f", "-h"});
    EXPECT_TRUE(line.result);
    EXPECT_EQ(line.parser.value("-f"), "-h");
    EXPECT_FALSE(line.parser.isSet("-h"));
}

TEST(OptionParser, LastValueWins)
{
    EXPECT_EQ(CommandLine({"-f", "a", "-f", "b"}).parser.value("-f"), "b");
    EXPECT_EQ(CommandLine({"-f", "a", "-f"}).parser.value("-f"), "a");
}

TEST(OptionParser, OptionOutsideTheTableReadsAsNotSet)
{
    const CommandLine line({"-x"});
    EXPECT_FALSE(line.parser.isSet("-x"));
    EXPECT_EQ(line.parser.value("-x"), "");
}

TEST(OptionParser, UsageListsTheOptionsInByteOrder)
{
    EXPECT_EQ(CommandLine({}).usage(), "Usage of zul :\n"
                                       "-f       [initialisation file] default [zul.ini]\n"
                                       "-h       print this help\n"
                                       "\n");
}

TEST(OptionParser, UsageShowsTheCurrentValue)
{
    EXPECT_NE(CommandLine({"-f", "other.ini"}).usage().find("default [other.ini]\n"),
              std::string::npos);
}

TEST(OptionParser, UsageOfAnEmptyTableIsItsHead)
{
    const OptionParser parser;
    ConsoleCapture console;
    parser.usage();
    EXPECT_EQ(console.out(), "Usage of  :\n\n");
}

TEST(OptionParser, NoArgumentVectorLeavesTheProgramNameEmpty)
{
    OptionParser parser;
    EXPECT_TRUE(parser.parse(0, nullptr));
    const std::vector<const char*> onlyNull{nullptr};
    EXPECT_TRUE(parser.parse(1, onlyNull.data()));
}

TEST(OptionParser, ThereIsOneOfTheProcess)
{
    EXPECT_EQ(&OptionParser::instance(), &OptionParser::instance());
}

} // namespace
