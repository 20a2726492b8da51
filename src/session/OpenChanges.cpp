#include "session/OpenChanges.h"

#include "machine/Replacing.h"
#include "session/Session.h"

#include <exception>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace dravik {

namespace fs = std::filesystem;

namespace {

struct Changes {
    fs::path Folder;
    ChangesSince Since;
};
Changes TheChanges;

// A league is known by its code; characters that no file system takes are in it, too.
std::string NameOf(const Text<5>& leagueCode)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string name;
    for (const char character : leagueCode.Raw()) {
        const auto code = static_cast<unsigned char>(character);
        name += digits[code / 16];
        name += digits[code % 16];
    }
    return name + ".digest";
}

// What stands there; nothing of what cannot be read, or is longer than a digest can be.
std::string ReadWhole(const fs::path& path)
{
    std::string bytes(MostDigestBytes + 1, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

// The old one stays until the new one is whole. What a full disk leaves of it goes.
void WriteWhole(const fs::path& path, std::string_view bytes)
{
    std::error_code ignored;
    fs::create_directories(path.parent_path(), ignored);
    fs::path fresh = path;
    fresh += ".new";
    std::ofstream file(fresh, std::ios::binary);
    fs::permissions(fresh, fs::perms::owner_read | fs::perms::owner_write, ignored); // it tells of teams' money
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file || RenameReplacing(fresh, path))
        fs::remove(fresh, ignored);
}

} // namespace

void KeepDigests(const fs::path& folder)
{
    TheChanges.Folder = folder;
    ForgetChanges();
}

void ForgetChanges() noexcept { TheChanges.Since = {}; }

void LookForChanges(bool isDamaged) noexcept
{
    ForgetChanges();
    if (TheChanges.Folder.empty() || isDamaged)
        return;
    try {
        const fs::path path = TheChanges.Folder / NameOf(LeagueData.LeagueCode);
        const LeagueDigest now = DigestOf(OpenLeague);
        const std::string bytes = WriteDigest(now);
        const std::string kept = ReadWhole(path);
        if (kept == bytes)
            return;
        const auto before = ReadDigest(kept);
        const bool isOfLeague = before && before->LeagueCode.Raw() == now.LeagueCode.Raw();
        if (isOfLeague && before->FileDate > now.FileDate)
            return;
        WriteWhole(path, bytes);
        if (!isOfLeague)
            return;
        if (auto all = DifferencesBetween(*before, OpenLeague); !all.empty())
            TheChanges.Since = {.FileDate = before->FileDate, .All = std::move(all)};
    } catch (const std::exception&) {
        ForgetChanges(); // without room nobody is told anything
    }
}

const ChangesSince& OpenChanges() { return TheChanges.Since; }

std::vector<Difference> ChangesToldTo(int team, bool isProved)
{
    return ToldTo(OpenLeague, TheChanges.Since.All, team, isProved);
}

} // namespace dravik
