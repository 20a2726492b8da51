#pragma once

#include "desk/LeagueDigest.h"
#include "machine/Formats.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Two states of a league told in a manager's words: what is different in the later one.
namespace dravik {

// What may be different, in the order in which it is told.
enum class DifferenceKind {
    Hole, // a change tears a hole into his team's lines
    Hurt,
    Fit, // again
    Suspended,
    BackFromSuspension,
    OnWaivers,
    OffWaivers,
    Moved, // from team to team
    Signed,
    SignedAgain,
    Released,
    Gone, // nobody in the league has his name any more
    Came, // nobody had it before
    Rose, // his ratings
    Fell,
    Shifted, // some rose as much as others fell
    Placed,  // pro, scratch or farm
    Cash,
    Payroll,
    LinesLoaded,
    SalaryCap,
    Deadline
};

// What a difference is to a manager: what its sign shows.
enum class DifferenceTone { Bad, Good, Up, Down, Money, News };

// What is told of a kind.
struct DifferenceRow {
    DifferenceKind Kind;
    DifferenceTone Tone;
    bool IsPrivate;           // shown behind the team's password alone
    std::string_view Subject; // whom it is about where it is nobody
    std::string_view Words;   // "%" and a letter stand for what differs
};
const DifferenceRow& RowOf(DifferenceKind kind);

struct RatingChange {
    std::string_view Label; // of two letters, as the league shows it
    int Before;
    int After;

    bool operator==(const RatingChange&) const = default;
};

// One difference. `Before` and `After` are what its kind is counted in: condition, games of a suspension, years of a contract,
// statuses, units of money, times loaded; of a move the teams.
struct Difference {
    DifferenceKind Kind{};
    int Team = 0;      // whom it concerns: of a person his team now, else the one that he was with; 0 = nobody
    int OtherTeam = 0; // that he was with before, if it is another one
    std::optional<PersonId> Who = {}; // where he stands in the later state; none of who is gone, and of no person
    std::string Name = {};            // his
    long long Before = 0;
    long long After = 0;
    std::string Injury = {};
    std::vector<RatingChange> Ratings = {}; // the overall first
    std::vector<int> ProDays = {};          // of a hole: the days of the lines that he stands in
    std::vector<int> FarmDays = {};

    bool operator==(const Difference&) const = default;
};

// What is different in `later`, which was made ready and which nobody has touched, from what is remembered of `earlier`. Kinds in
// their order, people by slot, teams by number. Ratings are compared where both show them in the same way.
//
// Somebody is the same person in both where a name of his kind is: first in the same slot, as nobody's number changes while he
// stays; then, of equal names elsewhere, those of equal age in the order of their slots, and what is left where it is one in each
// state and no younger. A slot with another name in it is another person's.
std::vector<Difference> DifferencesBetween(const LeagueDigest& earlier, const Tables& later);

// Its words behind the name: "hurt: sprained knee, condition 87". Names of teams are those in `league`, the later state.
std::string WordsOf(const Tables& league, const Formats& shown, const Difference& difference);
// Whom it is about: his name, or what stands for it.
std::string SubjectOf(const Difference& difference);

// How near a difference is to a team.
enum class Circle { Own, Division, League };
Circle CircleOf(const Tables& league, const Difference& difference, int team);

// Those that a manager of `team` (0 = none) may see, the nearest first, each circle in its order: what is private only of his
// own team and once its password `isProved`.
std::vector<Difference> ToldTo(const Tables& league, const std::vector<Difference>& all, int team, bool isProved);

} // namespace dravik
