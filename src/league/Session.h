#pragma once

#include <string_view>

// What the session offers to the rules and screens: the sinks of news and log lines, and the two small words on a
// player that belong to no rule.
namespace dravik {

// News and log lines are composed for the simulator's own version of these routines; the client hands them to the
// machine as they are and keeps and shows none. `team` may be any number.
void LeagueNews(std::string_view text);
void TeamNews(int team, std::string_view text);
void WriteLog(std::string_view text);

// Marks a person as sent to waivers: his `Suspension` becomes 99. `team` is 1..100, `id` 1..11000 (a goalie is his index
// + 10000); anything else shows "Integrity Check Failed!" in a critical box.
void MarkWaived(int team, int id);

// Tells the machine that the player editor erases a player. It has no other effect.
void PlayerErased(int id, int team);

// Whether the trade deadline is in force.
bool IsDeadlineInForce();

} // namespace dravik
