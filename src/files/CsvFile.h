#pragma once

#include "machine/Disk.h"

#include <memory>
#include <string>
#include <string_view>

namespace dravik {

// One row of a comma-separated file: its fields in order, as bytes of the code page. A field is never quoted, so a comma in it
// parts it.
class CsvRow {
public:
    CsvRow& operator<<(std::string_view field);
    CsvRow& operator<<(long long number) { return *this << std::to_string(number); }

    [[nodiscard]] const std::string& Text() const { return text; }

private:
    std::string text;
    std::string_view separator; // none before the first field, be it empty
};

// A comma-separated file under its own name from the first row on, so that what was written before a failure stays. Each row
// ends with CR LF. Failures are the disk's, and thrown.
class CsvFile {
public:
    CsvFile(Disk& disk, const std::string& path) : file(disk.CreateFile(path)) {}

    void Add(const CsvRow& row);
    // Writes what is left. A file that is not closed lacks its last rows.
    void Close();

private:
    void WriteOut();

    std::unique_ptr<File> file;
    std::string piece;
};

} // namespace dravik
