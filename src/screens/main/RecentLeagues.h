#pragma once

#include <string>
#include <vector>

namespace dravik {

// The client files that were opened last, the newest first: ten at most, and only those that are still there.
std::vector<std::string> RecentLeagues();
// Puts the file of a league that was opened before all others.
void RememberLeagueFile(const std::string& path);

// The team whose screens were opened last in that file, 0 for none; and which it is from now on.
int TeamOfLastTime(const std::string& path);
void RememberTeam(const std::string& path, int team);

} // namespace dravik
