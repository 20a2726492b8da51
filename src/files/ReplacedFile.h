#pragma once

#include "files/FileAccess.h"

#include <string>

namespace dravik {

// What stands where a new file is being saved. It stays until the new one takes its place in one step, so that a program
// that is killed meanwhile leaves the old file or the new one. Where no new one comes, it is deleted at the end: it says what
// holds no more.
class ReplacedFile {
public:
    ReplacedFile(const FileAccess& access, std::string target);
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;
    ~ReplacedFile();

    // The new file has taken its place.
    void Replaced() { replaced = true; }

private:
    Disk& disk;
    std::string path;
    bool replaced = false;
};

} // namespace dravik
