#include "desk/RosterPaper.h"

#include "league/PersonId.h"
#include "rules/Overall.h"
#include "rules/People.h"
#include "rules/PersonSigns.h"

#include <string_view>
#include <type_traits>

namespace dravik {

namespace {

struct RosterPlace {
    status::Number Status;
    std::string_view Heading;
};

constexpr RosterPlace Places[] = {{status::Pro, "Pro"}, {status::Scratch, "Scratches"}, {status::Farm, "Farm"}};

std::string WordsOfSigns(const Tables& league, PersonId who, int team)
{
    std::string words;
    SignsOf(league, who, team).Each([&](const PersonSign& sign) {
        if (!words.empty())
            words += "; ";
        words += WordsOf(sign);
    });
    return words;
}

PaperTable TableOf(const Tables& league, const Formats& shown, int team, const RosterPlace& place)
{
    PaperTable table{.Heading = std::string(place.Heading),
                     .Columns = {"", "Position", "Age", "Condition", "Years", "Salary"},
                     .Rows = {}};
    const auto showsOverall = static_cast<bool>(league.LeagueData.ShowOverall);
    if (showsOverall)
        table.Columns.emplace_back("Overall");
    table.Columns.emplace_back("Remarks");
    const auto add = [&](const auto& person, int index) {
        if (person.Status != place.Status)
            return;
        const PersonId who = PersonIn<std::remove_cvref_t<decltype(person)>>(index);
        const auto number = [](long long value) { return std::to_string(value); };
        const int position = PositionOf(person);
        const bool isKnown = position >= position::Center && position <= position::Goalie;
        std::vector<std::string> row{
            person.Name.Trimmed(),   isKnown ? std::string(PositionName[position]) : "-",
            number(person.Age),      number(person.Condition),
            number(person.Contract), shown.CurrencyNoDecimals(static_cast<double>(person.Salary))};
        if (showsOverall) {
            const auto overall = OverallAt(league, position, index);
            row.push_back(overall ? number(*overall) : "-");
        }
        row.push_back(WordsOfSigns(league, who, team));
        table.Rows.push_back(std::move(row));
    };
    EachOfTeam(league.Players, team, add);
    EachOfTeam(league.Goalies, team, add);
    return table;
}

} // namespace

Paper RosterPaper(const Tables& league, const Formats& shown, int team, const std::string& date)
{
    Paper paper{.Title = league.Teams[team].Name.Trimmed() + ", roster",
                .Facts = {"League: " + league.LeagueData.Name.Trimmed()},
                .Parts = {}};
    if (!date.empty())
        paper.Facts.push_back("Date: " + date);
    PaperPart part{.Heading = "Roster", .Facts = {}, .Tables = {}};
    for (const RosterPlace& place : Places)
        part.Tables.push_back(TableOf(league, shown, team, place));
    paper.Parts.push_back(std::move(part));
    return paper;
}

} // namespace dravik
