#pragma once

#include "terminal/Answers.h"

#include <string>
#include <vector>

namespace dravik::terminal {

// Rows of what a verb shows, in one of three forms. Texts are UTF-8; a cell is a text, a number, a truth value, or null where there is
// nothing to say.
class Table {
public:
    explicit Table(std::vector<std::string> names) : columns(std::move(names)) {}

    // A row of as many cells as there are columns.
    void Add(std::vector<Json> cells);

    // Columns that no row says anything in are left out of this one: aligned, numbers to the right, each line behind `indent`.
    [[nodiscard]] std::string Text(const std::string& indent) const;
    // Comma-separated, lines ended by CR LF, the names of the columns first; what holds a comma, a quote or a line break is quoted. A text that
    // a spreadsheet would take for a formula has an apostrophe in front.
    [[nodiscard]] std::string Csv() const;
    // A row an object.
    [[nodiscard]] Json Data() const;

private:
    std::vector<std::string> columns;
    std::vector<std::vector<Json>> rows;
};

// The rows of a text of comma-separated values. A quote that does not end fails with 5.
std::vector<std::vector<std::string>> ReadCsv(const std::string& text);

} // namespace dravik::terminal
