#include "files/ByteStream.h"

#include <algorithm>
#include <exception>

namespace dravik {

namespace {
constexpr std::size_t ReadSize = 1 << 16;
constexpr std::size_t WriteSize = 1 << 18;
} // namespace

FileSource::FileSource(Disk& from, const std::string& path) :
    disk(from), name(path), file(from.OpenFile(path)), buffer(ReadSize)
{
}

Bytes FileSource::Next()
{
    const std::size_t count = file->Read(buffer.data(), buffer.size());
    return Bytes(buffer).first(count);
}

void FileSource::Rewind()
{
    file.reset();
    file = disk.OpenFile(name);
}

WholeFile::WholeFile(Disk& on, const std::string& path, const std::string& work) :
    disk(on), target(path), workPath(work.empty() ? path + ".part" : work)
{
    buffer.reserve(WriteSize);
    file = disk.CreateFile(workPath);
}

WholeFile::~WholeFile()
{
    if (committed)
        return;
    file.reset();
    try {
        disk.DeleteFile(workPath);
    } catch (const std::exception&) { // NOLINT: the failure that brought us here is the one to tell
    }
}

void WholeFile::Write(Bytes bytes)
{
    while (!bytes.empty()) {
        const Bytes piece = bytes.first(std::min(bytes.size(), WriteSize - buffer.size()));
        buffer.insert(buffer.end(), piece.begin(), piece.end());
        bytes = bytes.subspan(piece.size());
        if (buffer.size() == WriteSize)
            WriteOut();
    }
}

void WholeFile::Commit()
{
    WriteOut();
    file->Flush();
    file->Close();
    disk.RenameFile(workPath, target);
    committed = true;
}

void WholeFile::WriteOut()
{
    if (!buffer.empty())
        file->Write(buffer.data(), buffer.size());
    buffer.clear();
}

} // namespace dravik
