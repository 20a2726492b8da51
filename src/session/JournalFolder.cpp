#include "session/JournalFolder.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace dravik {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Ending = ".journal";
constexpr std::size_t MostBytes = std::size_t{256} << 20U; // of a file that is read; no evening fills that

std::string Hexadecimal(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text += digits[code / 16];
        text += digits[code % 16];
    }
    return text;
}

std::string NameOfLeague(const JournalHead& head) { return Hexadecimal(head.LeagueCode.Raw()) + '-'; }

std::string NameOfBeginning(const JournalHead& head)
{
    return NameOfLeague(head) +
           Hexadecimal({reinterpret_cast<const char*>(head.Beginning.data()), head.Beginning.size()}) + '-';
}

// The journals in a folder whose names begin so, in the order of their names.
std::vector<fs::path> Journals(const fs::path& folder, std::string_view beginning)
{
    std::vector<fs::path> found;
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::u8string name = entries->path().filename().u8string();
        const std::string_view bytes(reinterpret_cast<const char*>(name.data()), name.size());
        if (bytes.starts_with(beginning) && bytes.ends_with(Ending))
            found.push_back(entries->path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

bool IsOfLeague(const JournalHead& journal, const JournalHead& league)
{
    return journal.LeagueCode.Raw() == league.LeagueCode.Raw();
}

void Remove(const fs::path& file)
{
    std::error_code ignored;
    fs::remove(file, ignored);
}

} // namespace

fs::path JournalFolder::NewPath(const JournalHead& head) const
{
    const std::string beginning = NameOfBeginning(head);
    int last = 0;
    for (const fs::path& journal : Journals(path, beginning)) {
        const std::string name = journal.filename().string();
        int number = 0;
        std::from_chars(name.data() + beginning.size(), name.data() + name.size(), number);
        last = std::max(last, number);
    }
    return path / (beginning + std::to_string(last + 1) + std::string(Ending));
}

std::optional<FoundJournal> JournalFolder::LatestUnsaved(const JournalHead& head, const fs::path& besides) const
{
    std::optional<FoundJournal> latest;
    for (const fs::path& journal : Journals(path, NameOfBeginning(head))) {
        if (journal == besides)
            continue;
        auto found = Read(journal);
        if (found && found->Read.Unsaved && IsOfLeague(found->Read.Head, head) &&
            found->Read.Head.Beginning == head.Beginning &&
            (!latest || found->Read.Unsaved->Time >= latest->Read.Unsaved->Time))
            latest = std::move(found);
    }
    return latest;
}

void JournalFolder::Tidy(const JournalHead& opened, fs::file_time_type now) const
{
    constexpr auto kept = std::chrono::hours(24 * 30);
    for (const fs::path& journal : Journals(path, "")) {
        std::error_code error;
        const auto written = fs::last_write_time(journal, error);
        if (!error && now - written > kept)
            Remove(journal);
    }
    for (const fs::path& journal : Journals(path, NameOfLeague(opened))) {
        const auto found = Read(journal);
        if (found && IsOfLeague(found->Read.Head, opened) && found->Read.Head.FileDate < opened.FileDate &&
            !found->Read.Unsaved)
            Remove(journal);
    }
}

std::optional<FoundJournal> JournalFolder::Read(const fs::path& path)
{
    std::error_code error;
    const auto size = fs::file_size(path, error);
    if (error || size > MostBytes)
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    auto outcome = ReadJournal(bytes);
    if (!outcome.Journal)
        return std::nullopt;
    return FoundJournal{.Path = path, .Read = std::move(*outcome.Journal)};
}

} // namespace dravik
