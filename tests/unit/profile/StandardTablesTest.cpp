#include "profile/StandardTables.h"

#include <QFile>
#include <QTextStream>

#include <gtest/gtest.h>

namespace {

// "code;label" a line.
zul::CodeTable listed(const char* fileName)
{
    QFile file(QStringLiteral(ZUL_TEST_DATA "/tables/") + QLatin1String(fileName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << fileName;
    QTextStream stream(&file);
    zul::CodeTable table;
    for (QString line = stream.readLine(); !line.isNull(); line = stream.readLine()) {
        const int end = line.indexOf(QLatin1Char(';'));
        table[line.left(end).toUInt()] = line.mid(end + 1);
    }
    return table;
}

// All 128 codes, those that are not listed reserved.
zul::CodeTable listedFids(const char* fileName)
{
    zul::CodeTable table = listed(fileName);
    for (std::uint32_t code = 0; code < zul::fidCount; ++code) {
        table.emplace(code, QStringLiteral("Reserved"));
    }
    return table;
}

std::size_t reservedCount(const zul::CodeTable& table)
{
    std::size_t count = 0;
    for (const auto& [code, label] : table) {
        count += label == QLatin1String(zul::reservedFid) ? 1U : 0U;
    }
    return count;
}

TEST(StandardTables, FunctionCodesOf825Part2)
{
    const zul::CodeTable table = zul::makeFidTable825Part2();
    EXPECT_EQ(table, listedFids("function-codes-825-2.txt"));
    EXPECT_EQ(table.size(), 128U);
    EXPECT_EQ(reservedCount(table), 128U - 35U);
}

TEST(StandardTables, FunctionCodesOf825Part3)
{
    const zul::CodeTable table = zul::makeFidTable825Part3();
    EXPECT_EQ(table, listedFids("function-codes-825-3.txt"));
    EXPECT_EQ(table.size(), 128U);
    for (const std::uint32_t code : {1U, 2U, 3U, 5U, 6U, 7U, 40U, 41U, 42U, 74U, 75U, 76U, 99U,
                                     100U, 101U, 120U, 121U, 122U, 124U}) {
        EXPECT_EQ(table.at(code), QStringLiteral("Reserved")) << code;
    }
    EXPECT_EQ(reservedCount(table), 19U);
}

TEST(StandardTables, Code21IsReservedInOneVersionAndWingsInTheOther)
{
    EXPECT_EQ(zul::makeFidTable825Part2().at(21), QStringLiteral("Reserved"));
    EXPECT_EQ(zul::makeFidTable825Part3().at(21), QStringLiteral("Wings"));
}

TEST(StandardTables, Units)
{
    const zul::CodeTable table = zul::makeUnitTable();
    EXPECT_EQ(table, listed("units.txt"));
    EXPECT_EQ(table.size(), 54U);
    EXPECT_EQ(table.rbegin()->first, 53U);
}

TEST(StandardTables, DeliberateWattStandsTwice)
{
    const zul::CodeTable table = zul::makeUnitTable();
    EXPECT_EQ(table.at(34), QStringLiteral("W"));
    EXPECT_EQ(table.at(38), QStringLiteral("W"));
}

} // namespace
