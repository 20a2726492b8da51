#include "terminal/Table.h"

#include "league/Failure.h"
#include "terminal/Machine.h"
#include "terminal/Utf8.h"

#include <algorithm>

namespace dravik::terminal {

namespace {

std::string PlainText(const Json& cell)
{
    if (cell.is_null())
        return {};
    if (cell.is_boolean())
        return cell.get<bool>() ? "yes" : "no";
    return cell.is_string() ? cell.get<std::string>() : cell.dump();
}

// What a cell shows in columns, which a tab or the end of a line would tear.
std::string ColumnText(const Json& cell)
{
    std::string text = WithoutControls(OnOneLine(PlainText(cell)));
    std::replace(text.begin(), text.end(), '\t', ' ');
    return text;
}

// How many characters a text of UTF-8 has.
std::size_t WidthOf(const std::string& text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string Padded(const std::string& text, std::size_t width, bool toTheRight)
{
    const std::string blanks(width - WidthOf(text), ' ');
    return toTheRight ? blanks + text : text + blanks;
}

// A text that a spreadsheet would take for a formula begins with an apostrophe, which says that it is none.
std::string CsvText(const Json& cell)
{
    const std::string text = PlainText(cell);
    const bool isFormula = cell.is_string() && text.find_first_of("=+-@\t\r") == 0;
    return isFormula ? "'" + text : text;
}

std::string Quoted(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

} // namespace

void Table::Add(std::vector<Json> cells)
{
    if (cells.size() != columns.size())
        Fail(failure::InvalidCall);
    rows.push_back(std::move(cells));
}

std::string Table::Text(const std::string& indent) const
{
    std::string text;
    std::vector<std::size_t> widths(columns.size(), 0);
    std::vector<bool> numbers(columns.size(), true);
    for (std::size_t column = 0; column < columns.size(); ++column)
        for (const auto& row : rows) {
            widths[column] = std::max(widths[column], WidthOf(ColumnText(row[column])));
            numbers[column] = numbers[column] && (row[column].is_number() || row[column].is_null());
        }
    const auto add = [&](const auto& textOf) {
        std::string line = indent;
        for (std::size_t column = 0; column < columns.size(); ++column)
            if (widths[column] > 0)
                line +=
                    Padded(textOf(column), std::max(widths[column], WidthOf(columns[column])), numbers[column]) + "  ";
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    };
    if (!rows.empty())
        add([&](std::size_t column) { return columns[column]; });
    for (const auto& row : rows)
        add([&](std::size_t column) { return ColumnText(row[column]); });
    return text;
}

std::string Table::Csv() const
{
    std::string text;
    const auto add = [&](const auto& textOf) {
        for (std::size_t column = 0; column < columns.size(); ++column)
            text += (column == 0 ? "" : ",") + Quoted(textOf(column));
        text += "\r\n";
    };
    add([&](std::size_t column) { return columns[column]; });
    for (const auto& row : rows)
        add([&](std::size_t column) { return CsvText(row[column]); });
    return text;
}

Json Table::Data() const
{
    Json data = Json::array();
    for (const auto& row : rows) {
        Json entry = Json::object();
        for (std::size_t column = 0; column < columns.size(); ++column)
            entry[columns[column]] = row[column];
        data.push_back(std::move(entry));
    }
    return data;
}

std::vector<std::vector<std::string>> ReadCsv(const std::string& text)
{
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> row;
    std::string cell;
    bool isQuoted = false;
    const auto endRow = [&] {
        row.push_back(std::exchange(cell, {}));
        if (row.size() > 1 || !row.front().empty())
            rows.push_back(row);
        row.clear();
    };
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (isQuoted) {
            if (c != '"')
                cell += c;
            else if (at + 1 < text.size() && text[at + 1] == '"')
                cell += text[++at];
            else
                isQuoted = false;
        } else if (c == '"' && cell.empty()) {
            isQuoted = true;
        } else if (c == ',') {
            row.push_back(std::exchange(cell, {}));
        } else if (c == '\n') {
            endRow();
        } else if (c != '\r') {
            cell += c;
        }
    }
    if (isQuoted)
        Fail(failure::InvalidCall);
    if (!row.empty() || !cell.empty())
        endRow();
    return rows;
}

} // namespace dravik::terminal
