#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace dravik {

// How many earlier versions of a file are kept.
inline constexpr std::size_t MostEarlierVersions = 10;

// Keeps what `file` holds, which is about to be replaced by another file of its name, in `folder`, which is made if need be: under
// its name with `when` in front of the ending, "Gulls 2026-01-12 21.03.15.dvl", and with " (2)" and so on behind it where that is
// taken. Of the versions of this file the latest by their names stay, `MostEarlierVersions` of them. `when` is a time as
// `SortableTime` writes it. Where there is no file, there is nothing to keep. Whether nothing went wrong; the file stays.
bool KeepEarlierVersion(const std::filesystem::path& file, const std::filesystem::path& folder,
                        const std::string& when) noexcept;

} // namespace dravik
