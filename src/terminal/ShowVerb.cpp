#include "desk/FreeAgents.h"
#include "desk/Market.h"
#include "files/ClientFile.h"
#include "rules/DaySlots.h"
#include "rules/LineLookups.h"
#include "rules/NextGames.h"
#include "rules/People.h"
#include "terminal/People.h"
#include "terminal/Problem.h"
#include "terminal/TeamFiles.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <array>
#include <memory>

// `dravik show`: a league, its teams, people, lines and games.
namespace dravik::terminal {

namespace {

struct ShowOptions : CommonOptions {
    bool ListTeams = false;
    bool Roster = false;
    bool FreeAgents = false;
    bool Schedule = false;
    int LinesDay = 0; // 1..10; 0: no lines
    bool Farm = false;
    bool AsCsv = false;
};

// What is shown of one league.
struct Shown {
    Table Rows;
    LeftOut Left;           // teams whose private decisions stay behind their passwords
    std::string LeftWhat{}; // what of them is not shown
};

std::string DivisionOf(const Tables& league, int team)
{
    const auto division = static_cast<int>(league.Teams[team].Division);
    return decltype(League::Division)::Has(division) ? ToUtf8(league.LeagueData.Division[division].Name.Trimmed()) : "";
}

Shown TeamsOf(LeagueAtHand& league, const std::vector<int>& teams)
{
    Shown shown{.Rows = Table({"number", "name", "abbreviation", "farm", "division", "people", "games played"}),
                .Left = {}};
    for (const int team : teams) {
        const Team& record = league.League->Teams[team];
        int people = 0;
        const auto count = [&](const auto& /*person*/, int /*index*/) { ++people; };
        EachOfTeam(league.League->Players, team, count);
        EachOfTeam(league.League->Goalies, team, count);
        shown.Rows.Add({team, league.NameOf(team), ToUtf8(record.Abbre.Trimmed()), ToUtf8(record.Farm.Name.Trimmed()),
                        DivisionOf(*league.League, team), people, static_cast<int>(record.GamesPlayed)});
    }
    return shown;
}

Shown RosterOf(LeagueAtHand& league, const std::vector<int>& teams, bool named, const Passwords& known)
{
    Shown shown{.Rows = Table(Joined(FactColumns(*league.League), PrivateColumns())),
                .Left = {},
                .LeftWhat = "Statuses and flags are not shown"};
    for (const int team : teams) {
        const bool isProven = shown.Left.MayShow(league, team, named, known);
        const auto add = [&](const auto& person, int index) {
            const PersonId who = PersonIn<std::remove_cvref_t<decltype(person)>>(index);
            shown.Rows.Add(Joined(FactsOf(league, who), PrivateCells(*league.League, who, isProven)));
        };
        EachOfTeam(std::as_const(league.League->Players), team, add);
        EachOfTeam(std::as_const(league.League->Goalies), team, add);
    }
    return shown;
}

Shown FreeAgentsOf(LeagueAtHand& league)
{
    Shown shown{.Rows = Table(Joined(FactColumns(*league.League), std::vector<std::string>{"restricted"})), .Left = {}};
    const auto market = MakeMarket();
    EachFreeAgent(*league.League, market->Offers, {}, [&](const FreeAgent& agent) {
        if (const auto who = FreeAgentOf(*league.League, agent.Id))
            shown.Rows.Add(Joined(FactsOf(league, *who), std::vector<Json>{IsRestricted(*league.League, *who)}));
    });
    return shown;
}

// Who stands in a slot; a number outside the tables is nobody.
std::string NameIn(const Tables& league, const DaySlot& slot, int index)
{
    const PersonId who{.IsGoalie = slot.IsGoalies(), .Slot = index};
    if (index == 0 || !who.HasSlot())
        return {};
    return ToUtf8(OnPerson(league, who, [](const auto& person) { return person.Name.Trimmed(); }));
}

std::string SlotName(const DaySlot& slot, std::size_t place)
{
    if (slot.IsGoalies())
        return slot.Word == StartGoalieWord ? "G-1" : "G-2";
    return SlotTag(SkaterSlots[place]);
}

Shown LinesOf(LeagueAtHand& league, const std::vector<int>& teams, bool named, const ShowOptions& options,
              const Passwords& known)
{
    Shown shown{.Rows = Table({"team", "slot", "id", "name"}), .Left = {}, .LeftWhat = "Lines are not shown"};
    const Side side = options.Farm ? Side::Farm : Side::Pro;
    for (const int team : teams) {
        if (named)
            Demand(*league.League, *league.Machine, team, known);
        else if (!shown.Left.MayWorkOn(league, team, known))
            continue;
        const Lines& lines = dravik::LinesOf(*league.League, team, options.LinesDay, side);
        for (std::size_t place = 0; place < DaySlots.size(); ++place) {
            const DaySlot& slot = DaySlots[place];
            const auto index = static_cast<int>(At(lines, slot));
            const PersonId who{.IsGoalie = slot.IsGoalies(), .Slot = index};
            shown.Rows.Add({league.NameOf(team), SlotName(slot, place), index == 0 ? Json() : Json(who.CommonId()),
                            NameIn(*league.League, slot, index)});
        }
        static constexpr std::array points{"strategy: physical", "strategy: defense", "strategy: offense"};
        for (std::size_t at = 0; at < points.size(); ++at)
            shown.Rows.Add(
                {league.NameOf(team), points[at], static_cast<int>(lines.Strategy[static_cast<int>(at)]), ""});
        shown.Rows.Add({league.NameOf(team), "goalie pulled: goals", static_cast<int>(lines.PullGoalerMinGoal), ""});
        shown.Rows.Add({league.NameOf(team), "goalie pulled: percent", static_cast<int>(lines.PullGoalerMinPct), ""});
    }
    return shown;
}

std::string TeamText(LeagueAtHand& league, long long team)
{
    return TeamTable::Has(team) ? league.NameOf(static_cast<int>(team)) : "";
}

// Games that are still to be played: of the whole calendar, or the next ten of each team that was asked for.
Shown ScheduleOf(LeagueAtHand& league, const std::vector<int>& teams, bool named)
{
    const Tables& tables = *league.League;
    if (!IsScheduleOpen(tables.LeagueData))
        throw Problem("the league does not show its calendar");
    Shown shown{.Rows = Table({"row", "day", "side", "away", "home"}), .Left = {}};
    const auto add = [&](int row, Side side) {
        const NextGame game = GameInRow(tables, side, row, false);
        const NextGame away = GameInRow(tables, side, row, true);
        shown.Rows.Add({row, game.GameDay, side == Side::Pro ? "pro" : "farm", TeamText(league, game.Opponent),
                        TeamText(league, away.Opponent)});
    };
    if (named) {
        for (const int team : teams)
            for (const Side side : {Side::Pro, Side::Farm})
                for (const NextGame& game : NextGames(tables, team, side))
                    add(game.Row, side);
        return shown;
    }
    for (int row = 1; row <= ScheduleTable::last; ++row) {
        const ScheduleRow& game = tables.GameSchedule[row];
        if (game.ProGame && !game.ProPlayed)
            add(row, Side::Pro);
        if (game.FarmGame && !game.FarmPlayed)
            add(row, Side::Farm);
    }
    return shown;
}

Answer Show(const std::string& path, const ShowOptions& options, const Passwords& known)
{
    LeagueAtHand league = OpenLeague(path);
    const bool named = !options.Teams.empty();
    const std::vector<int> teams = TeamsNamed(*league.League, options.Teams);
    const Shown shown = options.LinesDay != 0 ? LinesOf(league, teams, named, options, known)
                        : options.Schedule    ? ScheduleOf(league, teams, named)
                        : options.FreeAgents  ? FreeAgentsOf(league)
                        : options.Roster || (named && !options.ListTeams) ? RosterOf(league, teams, named, known)
                                                                          : TeamsOf(league, teams);
    Answer answer;
    const League& rules = league.League->LeagueData;
    const std::string date = league.Machine->LongDate(rules.FileDate);
    if (options.AsCsv) {
        answer.Text = shown.Rows.Csv();
        if (const std::string left = shown.Left.Text(shown.LeftWhat); !left.empty())
            answer.Notes.push_back(left.substr(2, left.size() - 3));
    } else {
        answer.Text = OnOneLine(path) + ": " + league.Name() + (date.empty() ? "" : ", " + date) + "\n" +
                      shown.Rows.Text("  ") + shown.Left.Text(shown.LeftWhat);
    }
    if (league.IsDamaged)
        answer.Notes.emplace_back(DamagedWords);
    answer.Data = {{"league", league.Name()},
                   {"code", ToUtf8(rules.LeagueCode.Trimmed())},
                   {"date", date},
                   {"damaged", league.IsDamaged},
                   {"rows", shown.Rows.Data()},
                   {"left_out", shown.Left.Data()}};
    return answer;
}

int Run(const ShowOptions& options)
{
    const Passwords known = ReadPasswords(options.PasswordFile);
    return AnswerEach(options.Leagues, {.AsJson = options.AsJson, .Threads = options.Threads, .List = "leagues"},
                      [&](const std::string& path) { return Show(path, options, known); });
}

} // namespace

Verb AddShow(CLI::App& program)
{
    const auto options = std::make_shared<ShowOptions>();
    CLI::App* command = program.add_subcommand("show", "Show a league: its teams, people, lines and games");
    AddLeagues(*command, *options);
    AddTeams(*command, *options);
    CLI::Option_group* what = command->add_option_group("What");
    what->add_flag("--teams", options->ListTeams, "the teams; what is shown without --team");
    what->add_flag("--roster", options->Roster, "the people of teams; what is shown with --team");
    what->add_option("--lines", options->LinesDay, "the lines of a day, 1 the next game, behind the team's password")
        ->type_name("DAY")
        ->check(CLI::Range(1, LineDays));
    what->add_flag("--free-agents", options->FreeAgents, "whoever can be made an offer");
    what->add_flag("--schedule", options->Schedule, "the games to come, where the league shows them");
    what->require_option(0, 1);
    command->add_flag("--farm", options->Farm, "with --lines: those of the farm team");
    AddPasswords(*command, options->PasswordFile);
    CLI::Option_group* form = command->add_option_group("Form");
    form->add_flag("--csv", options->AsCsv, "tell it as comma-separated values");
    AddJson(*form, options->AsJson);
    form->require_option(0, 1);
    command->footer(
        "Ratings, overalls and the calendar are shown as the league shows them. Statuses, flags and lines of a team\n"
        "show behind its password alone. Ends with 0, or 2 when something failed.\n\n"
        "Examples:\n"
        "  dravik show League.dvs\n"
        "  dravik show League.dvs --team Gulls --passwords secret.txt\n"
        "  dravik show League.dvs --free-agents --csv > agents.csv\n"
        "  dravik show League.dvs --team 7 --lines 1 --farm\n"
        "  dravik show League.dvs --team 7 --schedule --json");
    return {command, [options] { return Run(*options); }};
}

} // namespace dravik::terminal
