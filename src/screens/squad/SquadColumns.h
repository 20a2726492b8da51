#pragma once

#include "league/PersonId.h"
#include "league/Tables.h"
#include "machine/Formats.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The columns of the squad table: what each shows of somebody, and what it is sorted by.
namespace dravik {

// The tables of the window, each with columns of its own.
enum class SquadKind : unsigned char { Skaters, Goalies, Prospects };
inline constexpr SquadKind SquadKinds[] = {SquadKind::Skaters, SquadKind::Goalies, SquadKind::Prospects};

// Through whose eyes the table is seen.
struct SquadSight {
    const Tables* League = nullptr;
    const Formats* Shown = nullptr;
    int Proved = 0; // the team whose screens are open behind its password, whose decisions are shown; 0 = none
    int Asking = 0; // the team that is chosen, which may ask somebody or not; 0 = none

    bool operator==(const SquadSight&) const = default;
};

// Somebody in the table: a slot of the table of his kind.
struct SquadPerson {
    SquadKind Kind = SquadKind::Skaters;
    int Slot = 0;

    // Whom it is, where he is a skater or a goalie.
    [[nodiscard]] PersonId Id() const { return {.IsGoalie = Kind == SquadKind::Goalies, .Slot = Slot}; }
    bool operator==(const SquadPerson&) const = default;
};

// His number where all three kinds share one: a goalie's slot + 10000, a prospect's + 20000.
int CommonIdOf(SquadPerson who);

// Whether a slot is in use: a prospect's by his name. How many of a table are.
bool IsSomebody(const Tables& league, SquadPerson who);
int CountOf(const Tables& league, SquadKind kind);
// The last slot of that table.
int LastSlotOf(SquadKind kind);

// The key of the column with his team.
inline constexpr std::string_view TeamKey = "Team";

// His team; null where he has none that is in use.
const Team* TeamOf(const SquadSight& sight, SquadPerson who);

// How somebody is called, as bytes of the code page without outer blanks.
std::string NameOf(const Tables& league, SquadPerson who);

// How a column is sorted the first time: by the alphabet, by numbers from the least or from the most.
enum class SquadOrder : unsigned char { Words, LeastFirst, MostFirst };

// What stands in the cells of a column, for those who draw them: words at the left, and numbers of several kinds at the right.
enum class SquadCells : unsigned char { Words, Name, Number, Money, Rating, Condition };

struct SquadColumn {
    // The number of a cell; none where there is none, or where it is nobody's business.
    using Number = std::optional<long long> (*)(const SquadSight& sight, SquadPerson who, int rating);
    // Its words, where they are other than the number.
    using Words = std::string (*)(const SquadSight& sight, SquadPerson who, int rating);

    std::string_view Key;     // in the settings
    std::string_view Caption; // of the heading
    std::string_view Meaning; // the caption in words
    SquadOrder Order = SquadOrder::MostFirst;
    SquadCells Cells = SquadCells::Words;
    bool IsHiddenAtFirst = false;
    bool IsDecision = false;   // of a team: stands in the table while the screens of one are open
    Number NumberOf = nullptr; // none for a column that is sorted by its words
    Words WordsOf = nullptr;
    Words SpokenOf = nullptr; // in full, where a cell is short
    int Rating = 0;           // which row of the ratings it shows

    [[nodiscard]] bool IsAtRight() const { return Cells >= SquadCells::Number; }
};

// All columns of a table in their first order: of the ratings those that the league shows, single or as groups, the overall where
// it shows it, and what is a team's decision while the screens of one are open.
std::vector<SquadColumn> SquadColumnsOf(SquadKind kind, const SquadSight& sight);

// What a cell shows; nothing where there is nothing to show.
std::string SquadText(const SquadColumn& column, const SquadSight& sight, SquadPerson who);
// The same for a file: money as a plain number.
std::string SquadPlainText(const SquadColumn& column, const SquadSight& sight, SquadPerson who);

// A cell in full, for a tooltip and a screen reader: what it is of and what it says, "Condition: 87 (Injured)".
std::string SquadSpokenText(const SquadColumn& column, const SquadSight& sight, SquadPerson who);

// Whether somebody belongs to the team whose decisions are shown.
bool IsOwn(const SquadSight& sight, SquadPerson who);

} // namespace dravik
