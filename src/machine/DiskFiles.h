#pragma once

#include "machine/Platform.h"

#include <filesystem>

namespace dravik {

// The file operations of the machine, over the standard library. What remains of Platform is left to the classes built
// on this one.
class DiskFiles : public Platform {
public:
    std::unique_ptr<File> OpenFile(const std::string& path) override;
    std::unique_ptr<File> CreateFile(const std::string& path) override;
    std::int64_t FileLength(const std::string& path) override;
    void RenameFile(const std::string& from, const std::string& to) override;
    void DeleteFile(const std::string& path) override;
    std::optional<std::string> FindEntry(const std::string& path) override;
    bool KeepEarlier(const std::string& path, const std::string& when) noexcept override;

protected:
    // A path of the program as the file system wants it, and the other way round. Here both are the same bytes.
    virtual std::filesystem::path NativePath(const std::string& path) const;
    virtual std::string ProgramPath(const std::filesystem::path& path) const;
};

} // namespace dravik
