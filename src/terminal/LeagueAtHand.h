#pragma once

#include "machine/Work.h"
#include "terminal/Machine.h"

#include <memory>
#include <string>
#include <vector>

namespace dravik::terminal {

// A league that was opened, with the machine that it is worked on with.
struct LeagueAtHand {
    std::string Path;
    std::unique_ptr<Tables> League;
    std::unique_ptr<dravik::terminal::Machine> Machine;
    bool IsDamaged = false; // its stream does not fit its checksum: some of it may be wrong
    bool Modified = false;

    Work AtWork() { return {*League, *Machine, *Machine, Modified}; }
    // The names of the league and of a team, in UTF-8 and on one line.
    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string NameOf(int team) const;
};

// Opens the client file `path`, wrapped or plain, and makes it ready as the windows do. What is none is a Problem.
LeagueAtHand OpenLeague(const std::string& path);

// The teams in use that `wanted` names, by number, name or abbreviation, whatever the case of letters, each once; all of them where
// it names none. What names no team, and what names several, is a Problem.
std::vector<int> TeamsNamed(const Tables& league, const std::vector<std::string>& wanted);

} // namespace dravik::terminal
