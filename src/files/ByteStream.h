#pragma once

#include "machine/Disk.h"

#include <span>
#include <vector>

namespace dravik {

using Bytes = std::span<const unsigned char>;

// Bytes that come one piece after the other.
class ByteSource {
public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    // The next piece, valid until the next call. An empty one is the end, and the answer from then on.
    virtual Bytes Next() = 0;
};

// Bytes that can be had once more.
class RewindableSource : public ByteSource {
public:
    // Begins anew with the first byte.
    virtual void Rewind() = 0;
};

// Where bytes go one piece after the other.
class ByteSink {
public:
    ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;
    virtual ~ByteSink() = default;

    virtual void Write(Bytes bytes) = 0;
};

// The bytes of a file as they stand on the disk. Failures of the file are thrown.
class FileSource final : public RewindableSource {
public:
    FileSource(Disk& disk, const std::string& path);

    Bytes Next() override;
    void Rewind() override;

private:
    Disk& disk;
    std::string name;
    std::unique_ptr<File> file;
    std::vector<unsigned char> buffer;
};

// A file that appears under its name only when it is whole: it is written under another name, and `Commit` flushes it and
// gives it its own in one step. Without a commit nothing is left of it, and what stood under the name still does.
class WholeFile final : public ByteSink {
public:
    // The other name is `work`, in the same folder or at least on the same disk; without one it is `path` and ".part".
    WholeFile(Disk& disk, const std::string& path, const std::string& work = {});
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    ~WholeFile() override;

    void Write(Bytes bytes) override;
    void Commit();

private:
    void WriteOut();

    Disk& disk;
    std::string target;
    std::string workPath;
    std::unique_ptr<File> file;
    std::vector<unsigned char> buffer;
    bool committed = false;
};

} // namespace dravik
