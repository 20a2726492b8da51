#pragma once

#include <string>
#include <string_view>
#include <vector>

// A paper to share with others, and the texts that are made of it. It is a value of words alone: what a league hides has been
// left out of it by whoever made it. All texts are in the single-byte code page.
namespace dravik {

// A table of a paper. Every row has as many cells as there are columns; the first cell of a row names it.
struct PaperTable {
    std::string Heading;
    std::vector<std::string> Columns;
    std::vector<std::vector<std::string>> Rows;

    bool operator==(const PaperTable&) const = default;
};

// What a paper says under one heading: a day of lines, for example.
struct PaperPart {
    std::string Heading;
    std::vector<std::string> Facts; // a sentence or a caption and its value each
    std::vector<PaperTable> Tables;

    bool operator==(const PaperPart&) const = default;
};

struct Paper {
    std::string Title;
    std::vector<std::string> Facts;
    std::vector<PaperPart> Parts;

    bool operator==(const Paper&) const = default;
};

// The paper in columns of fixed width, a line feed behind each line and no blank at the end of one. A character without a shape
// of its own, such as a line feed in a damaged name, stands as a blank, here and in all other texts.
std::string PlainTextOf(const Paper& paper);

// The same for a forum: one block that keeps its columns and in which no tag counts. A name
// that would end the block stands with a soft hyphen in it, which is not seen.
std::string ForumTextOf(const Paper& paper);

// Headings, lists and tables with bars. Whatever would count as a mark in a name stands behind a backslash.
std::string MarkdownOf(const Paper& paper);

// A whole page of HTML, which names its encoding, needs nothing from elsewhere and runs nothing. The bytes are those of the code page;
// who makes another encoding of them names it in `encoding`.
std::string HtmlOf(const Paper& paper, std::string_view encoding = "windows-1252");

} // namespace dravik
