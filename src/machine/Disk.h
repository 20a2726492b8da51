#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace dravik {

#ifdef _WIN32
inline constexpr char PathSeparator = '\\';
#else
inline constexpr char PathSeparator = '/';
#endif

// A file that is open for reading or for writing. Destroying it closes it without a word; `Close` tells of failures.
class File {
public:
    File() = default;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    virtual ~File() = default;

    // Reads up to `size` bytes and returns how many came; 0 is the end of the file.
    virtual std::size_t Read(void* data, std::size_t size) = 0;
    // Writes all `size` bytes or fails.
    virtual void Write(const void* data, std::size_t size) = 0;
    // Hands everything written so far to the disk, so that a later rename never shows a half-written file.
    virtual void Flush() = 0;
    virtual void Close() = 0;
};

// The files of the machine. Paths are in the single-byte code page; characters outside it stand escaped. Every operation
// reports what goes wrong as a Failure with the number that fits.
class Disk {
public:
    Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;
    virtual ~Disk() = default;

    // The folder in which the program keeps its files, without a separator at the end.
    virtual std::string ProgramFolder() = 0;

    // Opens an existing file for reading.
    virtual std::unique_ptr<File> OpenFile(const std::string& path) = 0;
    // Creates a file for writing, emptying what stands there.
    virtual std::unique_ptr<File> CreateFile(const std::string& path) = 0;
    virtual std::int64_t FileLength(const std::string& path) = 0;
    // Gives `from` the name `to`, replacing what stands there in one step.
    virtual void RenameFile(const std::string& from, const std::string& to) = 0;
    virtual void DeleteFile(const std::string& path) = 0;
    // The name of the first entry that matches the path, whatever its case; an entry of exactly this name comes first.
    virtual std::optional<std::string> FindEntry(const std::string& path) = 0;

    // Keeps a copy of the file, if there is one, in the folder `Earlier` of the program's, as of `when` (`SortableTime`), beside
    // the latest others of it. Nothing fails; whether it is kept.
    virtual bool KeepEarlier(const std::string& path, const std::string& when) noexcept = 0;
};

} // namespace dravik
