#include "desk/Paper.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace dravik {

namespace {

constexpr std::string_view ColumnGap = "  ";

// A text on one line, as every form of a paper begins with it.
std::string OnOneLine(std::string_view text)
{
    constexpr unsigned char firstWithShape = 0x20;
    constexpr std::string_view shapeless = "\x7F\x81\x8D\x8F\x90\x9D"; // the code page defines none of these
    std::string line(text);
    for (char& letter : line)
        if (static_cast<unsigned char>(letter) < firstWithShape || shapeless.find(letter) != std::string_view::npos)
            letter = ' ';
    return line;
}

// `text` on one line, with `escape(letter)` in the place of each letter.
template <class Escape>
std::string Escaped(std::string_view text, Escape&& escape)
{
    std::string escaped;
    for (const char letter : OnOneLine(text))
        escaped += escape(letter);
    return escaped;
}

std::string InMarkdown(std::string_view text)
{
    return Escaped(text, [](char letter) {
        constexpr std::string_view marks = R"(\`*_[]<>#|~&)";
        return marks.find(letter) == std::string_view::npos ? std::string(1, letter) : std::string{'\\', letter};
    });
}

std::string InHtml(std::string_view text)
{
    return Escaped(text, [](char letter) -> std::string {
        switch (letter) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\'':
            return "&#39;";
        default:
            return {letter};
        }
    });
}

// The width of each column: that of its longest text.
std::vector<std::size_t> WidthsOf(const PaperTable& table)
{
    std::vector<std::size_t> widths;
    for (const std::string& column : table.Columns)
        widths.push_back(column.size());
    for (const auto& row : table.Rows)
        for (std::size_t at = 0; at < row.size(); ++at)
            widths[at] = std::max(widths[at], row[at].size());
    return widths;
}

std::string InColumns(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths)
{
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        std::string cell = OnOneLine(cells[at]);
        cell.resize(widths[at], ' ');
        line += cell;
        line += ColumnGap;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string LinesOfFacts(const std::vector<std::string>& facts)
{
    std::string lines;
    for (const std::string& fact : facts)
        lines += OnOneLine(fact) + '\n';
    return lines;
}

std::string PlainTableOf(const PaperTable& table)
{
    const std::vector<std::size_t> widths = WidthsOf(table);
    std::string text = OnOneLine(table.Heading) + '\n' + InColumns(table.Columns, widths);
    for (const auto& row : table.Rows)
        text += InColumns(row, widths);
    return text;
}

std::string MarkdownRowOf(const std::vector<std::string>& cells)
{
    std::string row = "|";
    for (const std::string& cell : cells)
        row += ' ' + InMarkdown(cell) + " |";
    return row + '\n';
}

std::string MarkdownFactsOf(const std::vector<std::string>& facts)
{
    std::string list;
    for (const std::string& fact : facts)
        list += "- " + InMarkdown(fact) + '\n';
    return list.empty() ? list : list + '\n';
}

std::string MarkdownTableOf(const PaperTable& table)
{
    std::string text = "### " + InMarkdown(table.Heading) + "\n\n" + MarkdownRowOf(table.Columns) + '|';
    for (std::size_t at = 0; at < table.Columns.size(); ++at)
        text += " --- |";
    text += '\n';
    for (const auto& row : table.Rows)
        text += MarkdownRowOf(row);
    return text + '\n';
}

std::string Tagged(std::string_view tag, std::string_view text)
{
    return '<' + std::string(tag) + '>' + InHtml(text) + "</" + std::string(tag) + '>';
}

std::string HtmlFactsOf(const std::vector<std::string>& facts)
{
    std::string paragraphs;
    for (const std::string& fact : facts)
        paragraphs += Tagged("p", fact) + '\n';
    return paragraphs;
}

std::string HtmlRowOf(std::string_view tag, const std::vector<std::string>& cells)
{
    std::string row = "<tr>";
    for (const std::string& cell : cells)
        row += Tagged(tag, cell);
    return row + "</tr>\n";
}

std::string HtmlTableOf(const PaperTable& table)
{
    std::string text = Tagged("h3", table.Heading) + "\n<table>\n" + HtmlRowOf("th", table.Columns);
    for (const auto& row : table.Rows)
        text += HtmlRowOf("td", row);
    return text + "</table>\n";
}

// Takes from a text of several lines what would end a forum's block.
std::string WithoutEndOfBlock(std::string text)
{
    constexpr std::string_view end = "[/code";
    constexpr char softHyphen = '\xAD';
    const auto same = [](char letter, char other) {
        return (letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter) == other;
    };
    for (auto at = text.begin(); (at = std::search(at, text.end(), end.begin(), end.end(), same)) != text.end();)
        at = text.insert(at + 1, softHyphen);
    return text;
}

} // namespace

std::string PlainTextOf(const Paper& paper)
{
    std::string text = OnOneLine(paper.Title) + '\n' + LinesOfFacts(paper.Facts);
    for (const PaperPart& part : paper.Parts) {
        text += '\n' + OnOneLine(part.Heading) + '\n' + std::string(part.Heading.size(), '=') + '\n';
        text += LinesOfFacts(part.Facts);
        for (const PaperTable& table : part.Tables)
            text += '\n' + PlainTableOf(table);
    }
    return text;
}

std::string ForumTextOf(const Paper& paper) { return "[code]\n" + WithoutEndOfBlock(PlainTextOf(paper)) + "[/code]\n"; }

std::string MarkdownOf(const Paper& paper)
{
    std::string text = "# " + InMarkdown(paper.Title) + "\n\n" + MarkdownFactsOf(paper.Facts);
    for (const PaperPart& part : paper.Parts) {
        text += "## " + InMarkdown(part.Heading) + "\n\n" + MarkdownFactsOf(part.Facts);
        for (const PaperTable& table : part.Tables)
            text += MarkdownTableOf(table);
    }
    text.pop_back();
    return text;
}

std::string HtmlOf(const Paper& paper, std::string_view encoding)
{
    std::string text = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"" + std::string(encoding) +
                       "\">\n" + Tagged("title", paper.Title) +
                       "\n<style>table { border-collapse: collapse } th, td { text-align: left; padding: 0 1em 0 0 }"
                       "</style>\n</head>\n<body>\n" +
                       Tagged("h1", paper.Title) + '\n' + HtmlFactsOf(paper.Facts);
    for (const PaperPart& part : paper.Parts) {
        text += Tagged("h2", part.Heading) + '\n' + HtmlFactsOf(part.Facts);
        for (const PaperTable& table : part.Tables)
            text += HtmlTableOf(table);
    }
    return text + "</body>\n</html>\n";
}

} // namespace dravik
