#include "files/CsvFile.h"

namespace dravik {

CsvRow& CsvRow::operator<<(std::string_view field)
{
    text += separator;
    text += field;
    separator = ",";
    return *this;
}

void CsvFile::Add(const CsvRow& row)
{
    constexpr std::size_t pieceLength = 1 << 16;
    piece += row.Text() + "\r\n";
    if (piece.size() >= pieceLength)
        WriteOut();
}

void CsvFile::Close()
{
    WriteOut();
    file->Close();
}

void CsvFile::WriteOut()
{
    file->Write(piece.data(), piece.size());
    piece.clear();
}

} // namespace dravik
