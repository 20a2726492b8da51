#include "machine/DiskFiles.h"

#include "league/Failure.h"
#include "machine/EarlierVersions.h"
#include "machine/Replacing.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <system_error>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#undef CreateFile // a name of ours too
#undef DeleteFile
#undef RenameFile
#else
#include <unistd.h>
#endif

namespace dravik {

namespace fs = std::filesystem;

namespace {

int NumberOf(std::error_code error)
{
    struct Pair {
        std::errc Error;
        int Number;
    };
    static constexpr Pair known[] = {
        {std::errc::no_such_file_or_directory, failure::FileNotFound},
        {std::errc::not_a_directory, failure::PathNotFound},
        {std::errc::permission_denied, failure::PermissionDenied},
        {std::errc::operation_not_permitted, failure::PermissionDenied},
        {std::errc::read_only_file_system, failure::PermissionDenied},
        {std::errc::device_or_resource_busy, failure::PermissionDenied}, // another program holds it
        {std::errc::no_space_on_device, failure::DiskFull},
        {std::errc::file_too_large, failure::DiskFull},
        {std::errc::not_enough_memory, failure::OutOfMemory},
    };
    const auto* found =
        std::find_if(std::begin(known), std::end(known), [error](const Pair& pair) { return error == pair.Error; });
    return found == std::end(known) ? failure::PathAccess : found->Number;
}

[[noreturn]] void FailWith(std::error_code error) { Fail(NumberOf(error)); }

// Tells what the systems do not: a file that is not there from a folder that is not there, or is none; and a folder where
// a file is wanted from a file that may not be touched.
[[noreturn]] void FailWith(std::error_code error, const fs::path& path)
{
    std::error_code ignored;
    if (error == std::errc::no_such_file_or_directory && path.has_parent_path() &&
        !fs::is_directory(path.parent_path(), ignored))
        Fail(failure::PathNotFound);
    if (error == std::errc::permission_denied && fs::is_directory(path, ignored))
        Fail(failure::PathAccess);
    FailWith(error);
}

std::error_code LastError() { return {errno, std::generic_category()}; }

std::FILE* OpenStream(const fs::path& path, bool forWriting)
{
#ifdef _WIN32
    // What is being written may be removed meanwhile, as elsewhere: whoever interrupts the program leaves no half file. Where it
    // cannot be opened so, the library's own way says why.
    if (forWriting) {
        const HANDLE handle =
            CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                        CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle != INVALID_HANDLE_VALUE)
            return _fdopen(_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY), "wb");
    }
    return _wfopen(path.c_str(), forWriting ? L"wb" : L"rb");
#else
    return std::fopen(path.c_str(), forWriting ? "wb" : "rb");
#endif
}

class DiskFile final : public File {
public:
    DiskFile(const fs::path& path, bool forWriting) : stream(OpenStream(path, forWriting))
    {
        if (stream == nullptr)
            FailWith(LastError(), path);
    }
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;
    ~DiskFile() override
    {
        if (stream != nullptr)
            (void)std::fclose(stream);
    }

    std::size_t Read(void* data, std::size_t size) override
    {
        const std::size_t count = std::fread(data, 1, size, stream);
        if (count < size && std::ferror(stream) != 0)
            FailWith(LastError());
        return count;
    }

    void Write(const void* data, std::size_t size) override
    {
        if (std::fwrite(data, 1, size, stream) != size)
            FailWith(LastError());
    }

    void Flush() override
    {
        if (std::fflush(stream) != 0)
            FailWith(LastError());
#ifdef _WIN32
        const int synced = _commit(_fileno(stream));
#else
        const int synced = fsync(fileno(stream));
#endif
        // Pipes and some network folders cannot be synchronized; what they hold is written all the same.
        if (synced != 0 && errno != EINVAL && errno != ENOTSUP)
            FailWith(LastError());
    }

    void Close() override
    {
        std::FILE* closing = stream;
        stream = nullptr;
        if (closing != nullptr && std::fclose(closing) != 0)
            FailWith(LastError());
    }

private:
    std::FILE* stream;
};

// Where the file system takes every case of a name for the same entry, only the folder tells how the name is written.
#if defined(_WIN32) || defined(__APPLE__)
constexpr bool FileSystemTellsCase = false;
#else
constexpr bool FileSystemTellsCase = true;
#endif

// Letters of the code page as one case: ASCII, the accented letters of 192 to 254, and the four that stand elsewhere.
unsigned char Lower(unsigned char c)
{
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return static_cast<unsigned char>(c + 0x20);
    if (c == 0x8A || c == 0x8C || c == 0x8E)
        return static_cast<unsigned char>(c + 0x10);
    return c == 0x9F ? 0xFF : c;
}

bool SameName(const std::string& a, const std::string& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return Lower(static_cast<unsigned char>(x)) == Lower(static_cast<unsigned char>(y));
    });
}

} // namespace

fs::path DiskFiles::NativePath(const std::string& path) const { return path; }

std::string DiskFiles::ProgramPath(const fs::path& path) const { return path.string(); }

std::unique_ptr<File> DiskFiles::OpenFile(const std::string& path)
{
    return std::make_unique<DiskFile>(NativePath(path), false);
}

std::unique_ptr<File> DiskFiles::CreateFile(const std::string& path)
{
    return std::make_unique<DiskFile>(NativePath(path), true);
}

std::int64_t DiskFiles::FileLength(const std::string& path)
{
    const fs::path file = NativePath(path);
    std::error_code error;
    const auto length = fs::file_size(file, error);
    if (error)
        FailWith(error, file);
    return static_cast<std::int64_t>(length);
}

void DiskFiles::RenameFile(const std::string& from, const std::string& to)
{
    const fs::path source = NativePath(from);
    const fs::path target = NativePath(to);
    const std::error_code error = RenameReplacing(source, target);
    std::error_code ignored;
    if (error)
        FailWith(error, fs::exists(source, ignored) ? target : source);
}

void DiskFiles::DeleteFile(const std::string& path)
{
    const fs::path file = NativePath(path);
    std::error_code error;
    // Removing takes an empty folder just as well as a file.
    if (fs::is_directory(fs::symlink_status(file, error)))
        Fail(failure::PathAccess);
    const bool deleted = fs::remove(file, error);
    if (!error && !deleted)
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    if (error)
        FailWith(error, file);
}

std::optional<std::string> DiskFiles::FindEntry(const std::string& path)
{
    const fs::path wanted = NativePath(path);
    const fs::path name = wanted.filename();
    if (name.empty())
        return std::nullopt;
    std::error_code error;
    if (FileSystemTellsCase && fs::exists(fs::symlink_status(wanted, error)))
        return ProgramPath(name);
    const fs::path folder = wanted.has_parent_path() ? wanted.parent_path() : fs::path(".");
    const std::string wantedName = ProgramPath(name);
    std::optional<std::string> found;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::string entry = ProgramPath(entries->path().filename());
        if (entry == wantedName)
            return entry;
        // The order of a folder's entries is the file system's own; the first in the order of names is the same everywhere.
        if (SameName(entry, wantedName) && (!found || entry < *found))
            found = entry;
    }
    if (error)
        FailWith(error, folder / name);
    return found;
}

bool DiskFiles::KeepEarlier(const std::string& path, const std::string& when) noexcept
{
    try {
        return KeepEarlierVersion(NativePath(path), NativePath(ProgramFolder()) / "Earlier", when);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace dravik
