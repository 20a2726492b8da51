#pragma once

#include <cstddef>
#include <string>

// What an interruption (Ctrl+C, the end that another process asks for) must not leave behind.
namespace dravik::terminal {

// From here on an interruption ends the program as it always does, once what stands below is put in order. One that whoever
// started the program has closed to it (nohup) stays closed. A file that grows above a limit fails as on a full disk.
void PutInOrderAtInterrupt();

// A name beside `target`, in the same folder, that no other process and no other thread uses: what a file is called until it is
// whole. While this lives, an interruption removes the file of this name, or the empty folder.
class WorkName {
public:
    explicit WorkName(const std::string& target);
    // The name `path` itself, within a folder that has such a name.
    struct Unchanged {};
    static constexpr Unchanged AsItIs{};
    WorkName(const std::string& path, Unchanged asItIs);
    WorkName(const WorkName&) = delete;
    WorkName& operator=(const WorkName&) = delete;
    ~WorkName();

    [[nodiscard]] const std::string& Path() const { return path; }

private:
    std::string path;
    std::size_t place;
};

} // namespace dravik::terminal
