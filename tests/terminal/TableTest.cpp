#include "terminal/Table.h"

#include "league/Failure.h"

#include <gmock/gmock.h>

namespace dravik::terminal {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(TableTest, NumbersStandToTheRightAndEmptyColumnsAreLeftOut)
{
    Table table({"id", "name", "nothing", "flag"});
    table.Add({7, "Côte", nullptr, true});
    table.Add({1234, "A", "", false});
    EXPECT_EQ(table.Text("  "), "    id  name  flag\n"
                                "     7  Côte  yes\n"
                                "  1234  A     no\n");
    EXPECT_EQ(table.Csv(), "id,name,nothing,flag\r\n7,Côte,,yes\r\n1234,A,,no\r\n");
    EXPECT_EQ(table.Data().dump(), R"([{"id":7,"name":"Côte","nothing":null,"flag":true},)"
                                   R"({"id":1234,"name":"A","nothing":"","flag":false}])");
}

TEST(TableTest, ARowThatDoesNotFitFails)
{
    Table table({"id", "name"});
    EXPECT_THROW(table.Add({7}), Failure);
    EXPECT_EQ(table.Text(""), "");
}

TEST(TableTest, WhatCsvHoldsComesBack)
{
    Table table({"a", "b"});
    table.Add({"x,\"y\"", "two\r\nlines"});
    table.Add({"", "z"});
    EXPECT_THAT(ReadCsv(table.Csv()),
                ElementsAre(ElementsAre("a", "b"), ElementsAre("x,\"y\"", "two\r\nlines"), ElementsAre("", "z")));
}

TEST(TableTest, NoTextOfCsvIsAFormulaAndNumbersStayNumbers)
{
    Table table({"a", "b"});
    for (const char* text : {"=1", "+1", "-1", "@x", "\tx", "a=1", "'a"})
        table.Add({text, -1});
    EXPECT_EQ(table.Csv(), "a,b\r\n'=1,-1\r\n'+1,-1\r\n'-1,-1\r\n'@x,-1\r\n'\tx,-1\r\na=1,-1\r\n'a,-1\r\n");
}

TEST(TableTest, NoCellTearsTheColumns)
{
    Table table({"a", "b"});
    table.Add({"x\r\ny\tz\x1B", 1});
    EXPECT_EQ(table.Text(""), "a       b\nx y z   1\n");
}

TEST(TableTest, EmptyLinesAreNoRowsAndTheLastNeedsNoEnd)
{
    EXPECT_THAT(ReadCsv(""), IsEmpty());
    EXPECT_THAT(ReadCsv("\r\n\n"), IsEmpty());
    EXPECT_THAT(ReadCsv("a,b\n\n1,"), ElementsAre(ElementsAre("a", "b"), ElementsAre("1", "")));
}

TEST(TableTest, AQuoteThatDoesNotEndFails) { EXPECT_THROW(ReadCsv("a,\"b"), Failure); }

} // namespace
} // namespace dravik::terminal
