#include "machine/EarlierVersions.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <functional>
#include <string_view>
#include <system_error>
#include <vector>

namespace dravik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Unfinished = ".part"; // of a copy that is being made

// Whether a text has a digit wherever `form` has a 0, and else the same characters.
bool HasForm(std::u8string_view text, std::u8string_view form)
{
    return std::equal(text.begin(), text.end(), form.begin(), form.end(),
                      [](char8_t of, char8_t in) { return in == u8'0' ? of >= u8'0' && of <= u8'9' : of == in; });
}

// Whether `path` is a copy of `file`, whole or not: another file may have a name that begins like this one's.
bool IsCopyOf(const fs::path& path, const fs::path& file)
{
    constexpr std::u8string_view form = u8"0000-00-00 00.00.00";
    const fs::path copy = path.extension() == Unfinished ? path.stem() : path.filename();
    const std::u8string stem = copy.stem().u8string();
    const std::u8string name = file.stem().u8string() + u8' ';
    return copy.extension() == file.extension() && stem.starts_with(name) && stem.size() >= name.size() + form.size() &&
           HasForm(std::u8string_view(stem).substr(name.size(), form.size()), form);
}

// Gives what `file` holds the name `copy` too, which takes no room and stays when the file goes: a save must not fail for want of
// what this takes. Where the disk has no second names, it is copied as long as there is room for it, and for the save.
void Keep(const fs::path& file, const fs::path& copy)
{
    std::error_code refused;
    fs::create_hard_link(file, copy, refused);
    if (!refused)
        return;
    constexpr std::uintmax_t spare = std::uintmax_t{1} << 20U;
    if (fs::space(file).available < 2 * fs::file_size(file) + spare)
        throw fs::filesystem_error("no room", copy, std::make_error_code(std::errc::no_space_on_device));
    fs::path unfinished = copy;
    unfinished += Unfinished;
    fs::copy_file(file, unfinished, fs::copy_options::overwrite_existing);
    fs::rename(unfinished, copy);
}

fs::path NewName(const fs::path& file, const fs::path& folder, const std::string& when)
{
    for (int number = 1;; ++number) {
        fs::path name = file.stem();
        name += ' ' + when + (number == 1 ? "" : " (" + std::to_string(number) + ")");
        name += file.extension();
        if (!fs::exists(folder / name))
            return folder / name;
    }
}

void RemoveOldest(const fs::path& file, const fs::path& folder)
{
    std::vector<fs::path> copies;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (!IsCopyOf(entry.path(), file))
            continue;
        if (entry.path().extension() == Unfinished)
            fs::remove(entry.path()); // of a program that died
        else
            copies.push_back(entry.path());
    }
    std::sort(copies.begin(), copies.end(), std::greater<>());
    for (std::size_t i = MostEarlierVersions; i < copies.size(); ++i)
        fs::remove(copies[i]);
}

} // namespace

bool KeepEarlierVersion(const fs::path& file, const fs::path& folder, const std::string& when) noexcept
{
    try {
        if (!fs::is_regular_file(file))
            return true;
        fs::create_directories(folder);
        Keep(file, NewName(file, folder, when));
        RemoveOldest(file, folder);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace dravik
