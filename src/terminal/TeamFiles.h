#pragma once

#include "terminal/Answers.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Passwords.h"

#include <string>
#include <vector>

namespace dravik::terminal {

// Files of one team.
enum class TeamFileKind { Lines, Offers, Draft };

// Whose file it is: all five bytes of the league's code, and the number of the team (1..100).
struct TeamFileHead {
    std::string Code;
    int Team = 0;
};

// The head of the file `path`, plain or wrapped. What is no file of that kind is a Problem, which names it.
TeamFileHead HeadOf(const std::string& path, TeamFileKind kind);

// Takes the lines file `path` in, over the record of `team` (1..100), whose password was proven before: the file brings another one.
// What is damaged, and what is of another league or team, is a Problem, which names it.
void TakeInLines(LeagueAtHand& league, const std::string& path, int team);

// Which teams a verb over all teams has to leave out, and why.
class LeftOut {
public:
    // Whether the password of `team` is known, or it has none; otherwise it is noted.
    bool MayWorkOn(const LeagueAtHand& league, int team, const Passwords& known);

    // The same for a verb that shows the rest of a team without it. A team that was asked for by name (`named`) is asked for its
    // password at a terminal; one that is not proven there is a Problem.
    bool MayShow(LeagueAtHand& league, int team, bool named, const Passwords& known);

    // One line, "  Not checked, ...: 3 Owls, 7 Gulls", with its line break; nothing where nobody was left out.
    [[nodiscard]] std::string Text(const std::string& what) const;
    [[nodiscard]] Json Data() const;

private:
    struct Team {
        int Number;
        std::string Name;
        bool IsWrong; // a password is known and does not fit
    };
    std::vector<Team> teams;
};

} // namespace dravik::terminal
