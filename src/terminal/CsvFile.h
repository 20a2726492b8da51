#pragma once

#include <string>
#include <vector>

namespace dravik::terminal {

// A file of comma-separated values whose first row names the columns, in whatever order. Texts are in the code page.
class CsvFile {
public:
    // A file that cannot be read, that holds characters that the code page lacks, or that lacks one of the columns `needed`,
    // is a Problem, which names it.
    CsvFile(const std::string& path, const std::vector<std::string>& needed);

    [[nodiscard]] std::size_t Count() const { return rows.size(); }
    // What stands in a row (from 0); empty where the row or the file has no such column.
    [[nodiscard]] std::string Cell(std::size_t row, const std::string& column) const;
    // The same as a number from `least` to `most`; anything else is a Problem, which names the row.
    [[nodiscard]] int Number(std::size_t row, const std::string& column, int least, int most) const;
    // Where a row stands, for whoever is told: "offers.csv, row 3".
    [[nodiscard]] std::string Place(std::size_t row) const;

private:
    std::string name;
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;
};

} // namespace dravik::terminal
