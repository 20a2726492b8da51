#include "terminal/People.h"

#include "league/Trimming.h"
#include "rules/StatRows.h"
#include "terminal/Utf8.h"

#include <algorithm>

namespace dravik::terminal {

namespace {

// The captions of the ratings that a league shows, of skaters and then what goalies have besides.
std::vector<std::string> RatingColumns(const Tables& league)
{
    const League& rules = league.LeagueData;
    const ShownRatings shown = RatingsShownBy(rules);
    std::vector<std::string> names;
    const auto note = [&](int /*row*/, const StatRow& stat) {
        if (std::find(names.begin(), names.end(), stat.Label) == names.end())
            names.emplace_back(stat.Label);
    };
    // The placeholders have every rating.
    TellSkaterRatings(league, 0, shown.Skater, note);
    TellGoalieRatings(league, 0, shown.Goalie, note);
    return names;
}

std::string PositionText(const Tables& league, PersonId who)
{
    const int position = OnPerson(league, who, [](const auto& person) { return PositionOf(person); });
    return PositionName.Has(position) ? std::string(PositionName[position]) : "";
}

} // namespace

std::vector<std::string> FactColumns(const Tables& league)
{
    std::vector<std::string> columns{"id",       "name",   "position",  "team",   "country",    "age",      "rookie",
                                     "contract", "salary", "condition", "injury", "suspension", "pro games"};
    if (league.LeagueData.ShowOverall)
        columns.emplace_back("overall");
    return Joined(std::move(columns), RatingColumns(league));
}

std::vector<Json> FactsOf(LeagueAtHand& league, PersonId who)
{
    const Tables& tables = *league.League;
    std::vector<Json> cells = OnPerson(tables, who, [&](const auto& person) {
        const auto team = static_cast<int>(person.Team);
        return std::vector<Json>{who.CommonId(),
                                 ToUtf8(person.Name.Trimmed()),
                                 PositionText(tables, who),
                                 TeamTable::Has(team) ? Json(league.NameOf(team)) : Json(),
                                 ToUtf8(person.Country.Trimmed()),
                                 static_cast<int>(person.Age),
                                 static_cast<bool>(person.Rookie),
                                 static_cast<int>(person.Contract),
                                 static_cast<int>(person.Salary),
                                 static_cast<int>(person.Condition),
                                 ToUtf8(person.Injury.Trimmed()),
                                 static_cast<int>(person.Suspension),
                                 static_cast<int>(person.ProGames)};
    });
    const League& rules = tables.LeagueData;
    const ShownRatings shown = RatingsShownBy(rules);
    const StatRows stats = who.IsGoalie ? GoalieStatRows(tables, *league.Machine, who.Slot, shown.Goalie)
                                        : SkaterStatRows(tables, *league.Machine, who.Slot, shown.Skater);
    (void)league.Machine->TakeTold(); // that somebody has no position
    if (rules.ShowOverall)
        cells.emplace_back(stats.Overall);
    for (const std::string& name : RatingColumns(tables)) {
        const auto stat = std::find_if(stats.Ratings.begin(), stats.Ratings.end(),
                                       [&](const StatRow& row) { return row.Label == name; });
        cells.push_back(stat == stats.Ratings.end() ? Json() : Json(stat->Value));
    }
    return cells;
}

std::vector<std::string> PrivateColumns() { return {"status", "protected", "trade available", "no trade"}; }

std::vector<Json> PrivateCells(const Tables& league, PersonId who, bool isProven)
{
    if (!isProven)
        return std::vector<Json>(PrivateColumns().size());
    return OnPerson(league, who, [](const auto& person) {
        static constexpr const char* statuses[] = {"farm", "scratch", "pro"};
        const auto status = static_cast<std::size_t>(static_cast<int>(person.Status));
        return std::vector<Json>{status < std::size(statuses) ? Json(statuses[status]) : Json(),
                                 static_cast<bool>(person.Protected), static_cast<bool>(person.TradeAvailable),
                                 static_cast<bool>(person.NoTrade)};
    });
}

} // namespace dravik::terminal
