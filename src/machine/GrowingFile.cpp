#include "machine/GrowingFile.h"

#include "league/Failure.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <exception>
#include <limits>
#include <system_error>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#else
#include <unistd.h>
#endif

namespace dravik {

namespace {

#ifdef _WIN32
int Open(const std::filesystem::path& path, bool isNew)
{
    int descriptor = -1;
    const int how = _O_WRONLY | _O_BINARY | _O_NOINHERIT | (isNew ? _O_CREAT | _O_EXCL : 0);
    if (_wsopen_s(&descriptor, path.c_str(), how, _SH_DENYWR, _S_IREAD | _S_IWRITE) != 0)
        return -1;
    return descriptor;
}
long long WriteSome(int descriptor, std::string_view bytes)
{
    const auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
    return _write(descriptor, bytes.data(), static_cast<unsigned>(std::min(bytes.size(), most)));
}
bool CutTo(int descriptor, std::uintmax_t length)
{
    const auto end = static_cast<long long>(length);
    return _chsize_s(descriptor, end) == 0 && _lseeki64(descriptor, end, SEEK_SET) == end;
}
bool FlushFile(int descriptor) { return _commit(descriptor) == 0; }
void CloseFile(int descriptor) { _close(descriptor); }
#else
int Open(const std::filesystem::path& path, bool isNew)
{
    constexpr mode_t forTheUser = 0600;
    return ::open(path.c_str(), O_WRONLY | O_CLOEXEC | (isNew ? O_CREAT | O_EXCL : 0), forTheUser);
}
long long WriteSome(int descriptor, std::string_view bytes) { return ::write(descriptor, bytes.data(), bytes.size()); }
bool CutTo(int descriptor, std::uintmax_t length)
{
    const auto end = static_cast<off_t>(length);
    return ::ftruncate(descriptor, end) == 0 && ::lseek(descriptor, end, SEEK_SET) == end;
}
bool FlushFile(int descriptor)
{
#ifdef __APPLE__
    const int flushed = ::fsync(descriptor);
#else
    const int flushed = ::fdatasync(descriptor);
#endif
    // Some network folders cannot be synchronized; what they hold is written all the same.
    return flushed == 0 || errno == EINVAL || errno == ENOTSUP;
}
void CloseFile(int descriptor) { ::close(descriptor); }
#endif

int OpenToGrow(const std::filesystem::path& path, std::uintmax_t keep)
{
    const bool isNew = keep == GrowingFile::New;
    if (isNew && path.has_parent_path()) {
        std::error_code ignored; // opening tells
        std::filesystem::create_directories(path.parent_path(), ignored);
    }
    const int descriptor = Open(path, isNew);
    if (descriptor < 0)
        Fail(failure::PathAccess);
    if (!isNew && !CutTo(descriptor, keep)) {
        CloseFile(descriptor);
        Fail(failure::PathAccess);
    }
    return descriptor;
}

} // namespace

GrowingFile::GrowingFile(const std::filesystem::path& path, std::uintmax_t keep) :
    descriptor(OpenToGrow(path, keep)), length(keep == New ? 0 : keep)
{
    try {
        flusher = std::thread([this] { FlushInTime(); });
    } catch (const std::system_error&) {
        CloseFile(descriptor);
        Fail(failure::PathAccess);
    }
}

GrowingFile::~GrowingFile()
{
    {
        const std::lock_guard lock(guard);
        isEnding = true;
    }
    changed.notify_one();
    flusher.join();
    CloseFile(descriptor);
}

bool GrowingFile::Append(std::string_view bytes) noexcept
{
    {
        const std::lock_guard lock(guard);
        if (hasFailed)
            return false;
    }
    bool isThere = true;
    for (std::string_view rest = bytes; isThere && !rest.empty();) {
        const long long count = WriteSome(descriptor, rest);
        if (count > 0)
            rest.remove_prefix(static_cast<std::size_t>(count));
        else
            isThere = count < 0 && errno == EINTR;
    }
    if (isThere)
        length += bytes.size();
    else
        (void)CutTo(descriptor, length);
    {
        const std::lock_guard lock(guard);
        hasFailed = hasFailed || !isThere;
        isUnflushed = true;
    }
    changed.notify_one();
    return isThere;
}

void GrowingFile::FlushInTime() noexcept
{
    constexpr auto mostUnflushed = std::chrono::milliseconds(500);
    std::unique_lock lock(guard);
    while (!isEnding || isUnflushed) {
        changed.wait(lock, [this] { return isUnflushed || isEnding; });
        // Whatever comes within that time goes to the disk together.
        changed.wait_for(lock, mostUnflushed, [this] { return isEnding; });
        if (!isUnflushed)
            continue;
        isUnflushed = false;
        lock.unlock();
        const bool isFlushed = FlushFile(descriptor);
        lock.lock();
        hasFailed = hasFailed || !isFlushed;
    }
}

} // namespace dravik
