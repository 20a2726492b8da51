#include "desk/Paper.h"

#include <gtest/gtest.h>

namespace dravik {
namespace {

// A paper whose names hold the marks of every form, and an accent of the code page.
Paper Marked()
{
    return {
        .Title = "Caf\xE9 <b>Kings</b>",
        .Facts = {"Captain: A & B"},
        .Parts = {{.Heading = "Lines 1",
                   .Facts = {"Strategy: none"},
                   .Tables = {{.Heading = "Goalies",
                               .Columns = {"", "G"},
                               .Rows = {{"Starter", "[b]Ren\xE9[/b] *|_`#~\\"}, {"Backup", "O'Dea \"x\"\n[/CODE]"}}},
                              {.Heading = "Pairs", .Columns = {"", "D", "D"}, .Rows = {{"Pair 1", "Longer", "-"}}}}},
                  {.Heading = "Lines 2", .Facts = {}, .Tables = {}}}};
}

TEST(PaperTest, PlainTextStandsInColumnsAndKeepsEveryMark)
{
    EXPECT_EQ(PlainTextOf(Marked()), "Caf\xE9 <b>Kings</b>\n"
                                     "Captain: A & B\n"
                                     "\n"
                                     "Lines 1\n"
                                     "=======\n"
                                     "Strategy: none\n"
                                     "\n"
                                     "Goalies\n"
                                     "         G\n"
                                     "Starter  [b]Ren\xE9[/b] *|_`#~\\\n"
                                     "Backup   O'Dea \"x\" [/CODE]\n"
                                     "\n"
                                     "Pairs\n"
                                     "        D       D\n"
                                     "Pair 1  Longer  -\n"
                                     "\n"
                                     "Lines 2\n"
                                     "=======\n");
}

TEST(PaperTest, WhatHasNoShapeIsABlankInEveryForm)
{
    const Paper paper{.Title = "A\x1B\x07\x7F\x81\x8D\x8F\x90\x9D\r\n\tZ", .Facts = {}, .Parts = {}};
    for (const std::string& text : {PlainTextOf(paper), ForumTextOf(paper), MarkdownOf(paper), HtmlOf(paper)})
        EXPECT_NE(text.find('A' + std::string(11, ' ') + 'Z'), std::string::npos) << text;
}

TEST(PaperTest, ForumTextIsOneBlockThatNoNameEnds)
{
    std::string expected = "[code]\n" + PlainTextOf(Marked()) + "[/code]\n";
    expected.replace(expected.find("[/CODE]"), 1, "[\xAD");
    EXPECT_EQ(ForumTextOf(Marked()), expected);
}

TEST(PaperTest, MarkdownHasEveryMarkOfANameBehindABackslash)
{
    EXPECT_EQ(MarkdownOf(Marked()), "# Caf\xE9 \\<b\\>Kings\\</b\\>\n"
                                    "\n"
                                    "- Captain: A \\& B\n"
                                    "\n"
                                    "## Lines 1\n"
                                    "\n"
                                    "- Strategy: none\n"
                                    "\n"
                                    "### Goalies\n"
                                    "\n"
                                    "|  | G |\n"
                                    "| --- | --- |\n"
                                    "| Starter | \\[b\\]Ren\xE9\\[/b\\] \\*\\|\\_\\`\\#\\~\\\\ |\n"
                                    "| Backup | O'Dea \"x\" \\[/CODE\\] |\n"
                                    "\n"
                                    "### Pairs\n"
                                    "\n"
                                    "|  | D | D |\n"
                                    "| --- | --- | --- |\n"
                                    "| Pair 1 | Longer | - |\n"
                                    "\n"
                                    "## Lines 2\n");
}

TEST(PaperTest, HtmlNamesItsCodePageAndHoldsNoTagOfAName)
{
    EXPECT_EQ(HtmlOf(Marked()),
              "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"windows-1252\">\n"
              "<title>Caf\xE9 &lt;b&gt;Kings&lt;/b&gt;</title>\n"
              "<style>table { border-collapse: collapse } th, td { text-align: left; padding: 0 1em 0 0 }</style>\n"
              "</head>\n<body>\n"
              "<h1>Caf\xE9 &lt;b&gt;Kings&lt;/b&gt;</h1>\n"
              "<p>Captain: A &amp; B</p>\n"
              "<h2>Lines 1</h2>\n"
              "<p>Strategy: none</p>\n"
              "<h3>Goalies</h3>\n<table>\n"
              "<tr><th></th><th>G</th></tr>\n"
              "<tr><td>Starter</td><td>[b]Ren\xE9[/b] *|_`#~\\</td></tr>\n"
              "<tr><td>Backup</td><td>O&#39;Dea &quot;x&quot; [/CODE]</td></tr>\n"
              "</table>\n"
              "<h3>Pairs</h3>\n<table>\n"
              "<tr><th></th><th>D</th><th>D</th></tr>\n"
              "<tr><td>Pair 1</td><td>Longer</td><td>-</td></tr>\n"
              "</table>\n"
              "<h2>Lines 2</h2>\n"
              "</body>\n</html>\n");
}

TEST(PaperTest, APageOfHtmlNamesTheEncodingThatItsReaderWillMeet)
{
    std::string expected = HtmlOf(Marked());
    const std::string own = "<meta charset=\"windows-1252\">";
    ASSERT_NE(expected.find(own), std::string::npos);
    expected.replace(expected.find(own), own.size(), "<meta charset=\"utf-8\">");
    EXPECT_EQ(HtmlOf(Marked(), "utf-8"), expected);
}

} // namespace
} // namespace dravik
