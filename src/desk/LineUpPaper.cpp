#include "desk/LineUpPaper.h"

#include "desk/GoaliePull.h"
#include "league/PersonId.h"
#include "rules/DaySlots.h"
#include "rules/LineEligibility.h"
#include "rules/NextGames.h"
#include "rules/Overall.h"
#include "rules/People.h"
#include "rules/PersonSigns.h"
#include "rules/SlotPositions.h"

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>

namespace dravik {

namespace {

constexpr std::string_view Nobody = "-";

// A slot of a line or unit under the caption of its column.
struct PaperSlot {
    std::string_view Caption;
    LineField Field;
    int Place;
};

// The lines, pairs or units of one sort, a row each.
struct PaperUnits {
    std::string_view Heading;
    std::string_view Row; // names a row, in front of its number
    int Count;
    std::span<const PaperSlot> Slots; // from left to right, as on the ice
};

constexpr PaperSlot Forwards[] = {
    {"LW", LineField::NormalForward, 2}, {"C", LineField::NormalForward, 1}, {"RW", LineField::NormalForward, 3}};
constexpr PaperSlot Pairs[] = {{"D", LineField::NormalDefense, 1}, {"D", LineField::NormalDefense, 2}};
constexpr PaperSlot PPForwards[] = {
    {"LW", LineField::PPForward, 2}, {"C", LineField::PPForward, 1}, {"RW", LineField::PPForward, 3}};
constexpr PaperSlot PPPairs[] = {{"D", LineField::PPDefense, 1}, {"D", LineField::PPDefense, 2}};
constexpr PaperSlot FourVsFour[] = {{"C", LineField::FourVsFourForward, 1},
                                    {"W", LineField::FourVsFourForward, 2},
                                    {"D", LineField::FourVsFourDefense, 1},
                                    {"D", LineField::FourVsFourDefense, 2}};
constexpr PaperSlot PenaltyKill[] = {{"C", LineField::PKForward, 1},
                                     {"W", LineField::PKForward, 2},
                                     {"D", LineField::PKDefense, 1},
                                     {"D", LineField::PKDefense, 2}};
constexpr PaperSlot PenaltyKillWithThree[] = {
    {"F", LineField::PK3Forward, 1}, {"D", LineField::PK3Defense, 1}, {"D", LineField::PK3Defense, 2}};
constexpr PaperSlot Lists[] = {{"Extra Forwards", LineField::ExtraForward, 1},
                               {"Extra Defensemen", LineField::ExtraDefense, 1},
                               {"Penalty Shots", LineField::PenaltyShot, 1}};

// All skater slots, in the order of a paper.
constexpr PaperUnits Units[] = {{"Forward Lines", "Line", 4, Forwards},
                                {"Defense Pairs", "Pair", 4, Pairs},
                                {"Power Play, Forwards", "Unit", 2, PPForwards},
                                {"Power Play, Defense", "Unit", 2, PPPairs},
                                {"4 vs 4", "Unit", 2, FourVsFour},
                                {"Penalty Kill", "Unit", 2, PenaltyKill},
                                {"Penalty Kill with Three", "Unit", 2, PenaltyKillWithThree},
                                {"Extra Players and Penalty Shots", "Number", 5, Lists}};

// Writes the line-ups of one side of a team.
class Writer {
public:
    Writer(const Tables& tables, int teamNumber, Side sideOf) :
        league(tables), team(teamNumber), side(sideOf), games(NextGames(tables, teamNumber, sideOf))
    {
    }

    [[nodiscard]] std::string TeamName(int number) const
    {
        const Team& named = league.Teams[number];
        return (side == Side::Pro ? named.Name : named.Farm.Name).Trimmed();
    }

    [[nodiscard]] PaperPart DayOf(int day) const
    {
        const Lines& lines = LinesOf(league, team, day, side);
        PaperPart part{
            .Heading = "Lines " + std::to_string(day) + GameOf(day), .Facts = FactsOf(lines, day), .Tables = {}};
        for (const PaperUnits& units : Units)
            part.Tables.push_back(TableOf(lines, units));
        part.Tables.push_back(
            {.Heading = "Goalies",
             .Columns = {"", "G"},
             .Rows = {{"Starter", NameOf({.IsGoalie = true, .Slot = static_cast<int>(lines.StartGoalie)})},
                      {"Backup", NameOf({.IsGoalie = true, .Slot = static_cast<int>(lines.BackupGoalie)})}}});
        if (PaperTable absent = AbsentOn(lines); !absent.Rows.empty())
            part.Tables.push_back(std::move(absent));
        return part;
    }

    // Captain and assistants, as far as there are any; the farm has none.
    [[nodiscard]] std::vector<std::string> Captains() const
    {
        const Team& own = league.Teams[team];
        std::vector<std::string> captains;
        const auto add = [&](std::string_view caption, long long slot) {
            if (slot != 0 && PlayerTable::Has(slot))
                captains.push_back(std::string(caption) + ": " + league.Players[slot].Name.Trimmed());
        };
        if (side == Side::Pro) {
            add("Captain", own.Captain);
            add("Assistant", own.Assistant[1]);
            add("Assistant", own.Assistant[2]);
        }
        return captains;
    }

private:
    // Somebody's name, with his overall where the league shows it.
    [[nodiscard]] std::string NameOf(PersonId who) const
    {
        if (who.Slot == 0 || !who.HasSlot())
            return std::string(Nobody);
        return OnPerson(league, who, [&](const auto& person) {
            const std::string name = person.Name.Trimmed();
            const auto overall =
                league.LeagueData.ShowOverall ? OverallAt(league, PositionOf(person), who.Slot) : std::nullopt;
            return overall ? name + " (" + std::to_string(*overall) + ')' : name;
        });
    }

    // The game that a day is for, as far as the league tells of one against a team that there is.
    [[nodiscard]] std::string GameOf(int day) const
    {
        const auto at = static_cast<std::size_t>(day - 1);
        if (at >= games.size() || games[at].Opponent == 0 || !TeamTable::Has(games[at].Opponent))
            return {};
        return ", game day " + std::to_string(games[at].GameDay) + (games[at].IsAway ? " at " : " against ") +
               TeamName(games[at].Opponent);
    }

    [[nodiscard]] std::vector<std::string> FactsOf(const Lines& lines, int day) const
    {
        const auto pull = [&](GoaliePull value) {
            return std::to_string(ShownGoaliePull(league, team, day, side, value));
        };
        const auto points = [&](int style) { return std::to_string(static_cast<long long>(lines.Strategy[style])); };
        return {"Strategy: Physical " + points(0) + ", Defense " + points(1) + ", Offense " + points(2),
                "Goalie pull: from " + pull(GoaliePull::MinGoal) + " goals, save percentage under " +
                    pull(GoaliePull::MinPct)};
    }

    [[nodiscard]] PaperTable TableOf(const Lines& lines, const PaperUnits& units) const
    {
        PaperTable table{.Heading = std::string(units.Heading), .Columns = {""}, .Rows = {}};
        for (const PaperSlot& slot : units.Slots)
            table.Columns.emplace_back(slot.Caption);
        for (int number = 1; number <= units.Count; ++number) {
            std::vector<std::string> row{std::string(units.Row) + ' ' + std::to_string(number)};
            for (const PaperSlot& slot : units.Slots)
                row.push_back(NameOf(
                    {.IsGoalie = false, .Slot = static_cast<int>(At(lines, SlotOf(slot.Field, number, slot.Place)))}));
            table.Rows.push_back(std::move(row));
        }
        return table;
    }

    // Why somebody does not play: what keeps him from the ice, behind where he stands on the roster.
    template <class Person>
    [[nodiscard]] std::string ReasonOf(const Person& person, PersonId who) const
    {
        std::string reason = person.Status == status::Scratch ? "Scratched" : "In no slot";
        SignsOf(league, who, team).Each([&](const PersonSign& sign) {
            if (!IsTrouble(sign.Kind))
                return;
            reason += "; " + WordsOf(sign);
            if (const std::string injury = person.Injury.Trimmed(); sign.Kind == Sign::Injured && !injury.empty())
                reason += " (" + injury + ')';
        });
        return reason;
    }

    // Who is of this side, or scratched from it, and stands in no slot.
    [[nodiscard]] PaperTable AbsentOn(const Lines& lines) const
    {
        PaperTable table{.Heading = "Not Playing", .Columns = {"", "Position", "Why"}, .Rows = {}};
        const auto add = [&](const auto& person, int index) {
            using Person = std::remove_cvref_t<decltype(person)>;
            const PersonId who = PersonIn<Person>(index);
            const bool isScratched = side == Side::Pro && person.Status == status::Scratch;
            if ((!isScratched && person.Status != StatusOn(side)) || SlotsHeld(lines, who) > 0)
                return;
            const int position = PositionOf(person);
            const bool isKnown = position >= position::Center && position <= position::Goalie;
            table.Rows.push_back(
                {NameOf(who), std::string(isKnown ? PositionName[position] : Nobody), ReasonOf(person, who)});
        };
        EachOfTeam(league.Players, team, add);
        EachOfTeam(league.Goalies, team, add);
        return table;
    }

    const Tables& league;
    int team;
    Side side;
    std::vector<NextGame> games;
};

} // namespace

Paper LineUpPaper(const Tables& league, int team, Side side, int firstDay, int lastDay, const std::string& date)
{
    if (!HasLineDay(team, firstDay) || !HasLineDay(team, lastDay))
        Fail(failure::OutOfRange);
    const Writer writer(league, team, side);
    Paper paper{.Title = writer.TeamName(team) + (side == Side::Pro ? ", pro lines" : ", farm lines"),
                .Facts = {"League: " + league.LeagueData.Name.Trimmed()},
                .Parts = {}};
    if (!date.empty())
        paper.Facts.push_back("Date: " + date);
    for (std::string& captain : writer.Captains())
        paper.Facts.push_back(std::move(captain));
    for (int day = firstDay; day <= lastDay; ++day)
        paper.Parts.push_back(writer.DayOf(day));
    return paper;
}

} // namespace dravik
