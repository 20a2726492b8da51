#include "screens/main/RecentLeagues.h"

#include "machine/Paths.h"
#include "screens/Remembered.h"
#include "session/Session.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace dravik {

namespace {

constexpr std::size_t Most = 10;
constexpr const char* LeaguesKey = "RecentLeagues";
constexpr const char* TeamKey = "LastTeam";
// No path holds it.
constexpr char Between = '\n';

std::vector<std::string> Remembrance()
{
    std::vector<std::string> paths;
    std::istringstream words(Remembered(LeaguesKey));
    for (std::string path; std::getline(words, path, Between);)
        if (!path.empty())
            paths.push_back(path);
    return paths;
}

} // namespace

std::vector<std::string> RecentLeagues()
{
    std::vector<std::string> paths = Remembrance();
    std::erase_if(paths, [](const std::string& path) { return !FileExist(Machine(), path); });
    return paths;
}

void RememberLeagueFile(const std::string& path)
{
    std::vector<std::string> paths = Remembrance();
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
    paths.resize(std::min(paths.size(), Most));
    std::string words;
    for (const std::string& one : paths)
        words += one + Between;
    Remember(LeaguesKey, words);
}

int TeamOfLastTime(const std::string& path)
{
    const std::string words = Remembered(TeamKey);
    int team = 0;
    const auto [stopped, error] = std::from_chars(words.data(), words.data() + words.size(), team);
    const bool isWhole =
        error == std::errc() && words.substr(static_cast<std::size_t>(stopped - words.data())) == Between + path;
    return isWhole ? team : 0;
}

void RememberTeam(const std::string& path, int team) { Remember(TeamKey, std::to_string(team) + Between + path); }

} // namespace dravik
