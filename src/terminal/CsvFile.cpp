#include "terminal/CsvFile.h"

#include "league/Failure.h"
#include "terminal/Problem.h"
#include "terminal/Table.h"
#include "terminal/Utf8.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <sstream>

namespace dravik::terminal {

CsvFile::CsvFile(const std::string& path, const std::vector<std::string>& needed) : name(path)
{
    std::ifstream file(PathOf(path), std::ios::binary);
    std::ostringstream read;
    if (file.peek() != std::ifstream::traits_type::eof())
        read << file.rdbuf();
    if (!file.is_open() || file.bad() || !read) // a folder opens as a file does
        throw Problem(path + ": cannot be read");
    const std::string text = read.str();
    try {
        rows = ReadCsv(FromUtf8(WithoutByteOrderMark(text))); // spreadsheets put one in front
    } catch (const Failure&) {
        throw Problem(path + ": holds a character that no file of the system can hold, or a quote that does not end");
    }
    if (!rows.empty()) {
        columns = rows.front();
        rows.erase(rows.begin());
    }
    for (const std::string& column : needed)
        if (std::find(columns.begin(), columns.end(), column) == columns.end())
            throw Problem(path + ": has no column \"" + column + "\" in its first row");
}

std::string CsvFile::Cell(std::size_t row, const std::string& column) const
{
    const auto at = static_cast<std::size_t>(std::find(columns.begin(), columns.end(), column) - columns.begin());
    return at < rows.at(row).size() ? rows[row][at] : std::string();
}

int CsvFile::Number(std::size_t row, const std::string& column, int least, int most) const
{
    const std::string text = Cell(row, column);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < least || number > most)
        throw Problem(Place(row) + ": the " + column + " \"" + ToUtf8(text) + "\" is no number from " +
                      std::to_string(least) + " to " + std::to_string(most));
    return number;
}

std::string CsvFile::Place(std::size_t row) const { return name + ", row " + std::to_string(row + 2); }

} // namespace dravik::terminal
