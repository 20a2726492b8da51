#pragma once

#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <string_view>
#include <thread>

namespace dravik {

// A file that only grows. What is appended is with the system at once, and so survives the end of the process, whatever ends it;
// a thread of its own hands it to the disk within a second, so that it mostly survives the end of the machine.
class GrowingFile {
public:
    // Creates `path` and the folder that it lies in; a file that is there already is never touched. Fails as the disk does.
    static constexpr std::uintmax_t New = UINTMAX_MAX;
    // Or goes on behind the first `keep` bytes of a file; what stands there behind them is cut off.
    explicit GrowingFile(const std::filesystem::path& path, std::uintmax_t keep = New);
    GrowingFile(const GrowingFile&) = delete;
    GrowingFile& operator=(const GrowingFile&) = delete;
    // What is not on the disk yet goes there first.
    ~GrowingFile();

    // Whether the bytes are there, in one piece. Once they are not, because the disk is full or gone, nothing more is taken;
    // what of them is there after all is cut off, if that can be done.
    bool Append(std::string_view bytes) noexcept;

private:
    void FlushInTime() noexcept;

    int descriptor;
    std::uintmax_t length = 0;
    std::mutex guard; // of what follows
    std::condition_variable changed;
    bool isUnflushed = false;
    bool hasFailed = false;
    bool isEnding = false;
    std::thread flusher; // the last: it uses the others
};

} // namespace dravik
