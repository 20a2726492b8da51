#pragma once

#include "files/SlotFile.h"
#include "machine/Settings.h"

#include <functional>
#include <string>

namespace dravik {

// What the files of the system are read and written with: the disk, who tells of a wrapper that cannot be, the settings,
// which say whether files are wrapped, the path of the work file, which a file is called until it is whole, and who wants to
// keep what a save replaces.
struct FileAccess {
    dravik::Disk& Disk;
    Voice& Says;
    dravik::Settings& Settings;
    std::string WorkFile;
    // Hears of a file before a save takes it from its place.
    std::function<void(const std::string& path)> BeforeReplaced = {};
};

// How slot files are to be read and written at this moment.
SlotFiles SlotFilesOf(const FileAccess& access);

// Whether the user has set `SkipZIPClient` to "YES": all files of the system are then plain slot files.
bool SkipZIPClient(Settings& settings);

} // namespace dravik
