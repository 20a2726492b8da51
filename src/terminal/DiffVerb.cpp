#include "desk/Differences.h"
#include "files/ClientFile.h"
#include "terminal/Answers.h"
#include "terminal/Ask.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Passwords.h"
#include "terminal/Problem.h"
#include "terminal/TeamFiles.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <set>
#include <string_view>

// `dravik diff`: what changed in a league from one client file to another.
namespace dravik::terminal {

namespace {

struct DiffOptions : CommonOptions {
    std::string Earlier;
    std::string Later;
};

// What programs know a kind by, and whether it is told with the numbers before and after.
struct KindName {
    DifferenceKind Kind;
    std::string_view Name;
    bool IsCounted;
};

constexpr std::array<KindName, 22> KindNames{{
    {DifferenceKind::Hole, "hole", false},
    {DifferenceKind::Hurt, "hurt", true},
    {DifferenceKind::Fit, "fit", true},
    {DifferenceKind::Suspended, "suspended", true},
    {DifferenceKind::BackFromSuspension, "back from suspension", true},
    {DifferenceKind::OnWaivers, "on waivers", true},
    {DifferenceKind::OffWaivers, "off waivers", true},
    {DifferenceKind::Moved, "moved", true},
    {DifferenceKind::Signed, "signed", true},
    {DifferenceKind::SignedAgain, "signed again", true},
    {DifferenceKind::Released, "released", true},
    {DifferenceKind::Gone, "gone", false},
    {DifferenceKind::Came, "came", false},
    {DifferenceKind::Rose, "rose", false},
    {DifferenceKind::Fell, "fell", false},
    {DifferenceKind::Shifted, "shifted", false},
    {DifferenceKind::Placed, "placed", true},
    {DifferenceKind::Cash, "cash", true},
    {DifferenceKind::Payroll, "payroll", true},
    {DifferenceKind::LinesLoaded, "lines loaded", true},
    {DifferenceKind::SalaryCap, "salary cap", true},
    {DifferenceKind::Deadline, "deadline", false},
}};
static_assert([] {
    for (std::size_t index = 0; index < KindNames.size(); ++index)
        if (KindNames[index].Kind != static_cast<DifferenceKind>(index))
            return false;
    return static_cast<std::size_t>(DifferenceKind::Deadline) + 1 == KindNames.size();
}());

// Under which heading a difference stands, in the order in which they are told.
constexpr int OfTheLeague = 0;
constexpr int OfNoTeam = TeamTable::last + 1; // the teams are between

bool IsOfTheLeague(const Difference& difference) { return difference.Team == 0 && difference.Name.empty(); }

// The differences of two files that may be told, by the headings.
class Told {
public:
    Told(LeagueAtHand& before, LeagueAtHand& behind, const DiffOptions& options, const Passwords& known) :
        earlier(before), later(behind)
    {
        const std::vector<int> named = TeamsNamed(*later.League, options.Teams);
        const bool isAll = options.Teams.empty();
        wanted = {named.begin(), named.end()};
        for (const int team : named)
            if (MayShowBoth(team, !isAll, known))
                proven.insert(team);
        for (Difference& difference : DifferencesBetween(DigestOf(*earlier.League), *later.League)) {
            const auto heading = HeadingOf(difference, isAll);
            if (heading && (!RowOf(difference.Kind).IsPrivate || proven.contains(difference.Team)))
                headings[*heading].push_back(std::move(difference));
        }
    }

    [[nodiscard]] bool IsNothing() const { return headings.empty(); }
    [[nodiscard]] const LeftOut& Left() const { return left; }

    [[nodiscard]] std::string Text() const
    {
        std::string text;
        for (const auto& [heading, differences] : headings) {
            text += "  " +
                    (heading == OfTheLeague ? "The league"
                     : heading == OfNoTeam  ? "Without a team"
                                            : std::to_string(heading) + " " + later.NameOf(heading)) +
                    "\n";
            for (const Difference& difference : differences)
                text += "    " + OnOneLine(ToUtf8(SubjectOf(difference)) + ": " + Words(difference)) + "\n";
        }
        return text;
    }

    [[nodiscard]] Json Data() const
    {
        Json data = Json::array();
        for (const auto& [heading, differences] : headings)
            for (const Difference& difference : differences)
                data.push_back(DataOf(difference));
        return data;
    }

private:
    // What is private of a team stands in both files: each is opened with the password that it holds. Where they hold the same, it
    // is asked for once.
    bool MayShowBoth(int team, bool named, const Passwords& known)
    {
        if (!named || !IsAtTerminal())
            return left.MayWorkOn(later, team, known) && left.MayWorkOn(earlier, team, known);
        const std::string typed = Demand(*later.League, *later.Machine, team, known);
        Passwords tried = known;
        tried[team].push_back(typed);
        if (Prove(*earlier.League, *earlier.Machine, team, tried) != Proof::Proven)
            Demand(*earlier.League, *earlier.Machine, team, {});
        return true;
    }

    // None of what concerns no team that is wanted. A move is told of the team that somebody came to, if it is wanted.
    [[nodiscard]] std::optional<int> HeadingOf(const Difference& difference, bool isAll) const
    {
        if (IsOfTheLeague(difference))
            return OfTheLeague;
        for (const int team : {difference.Team, difference.OtherTeam})
            if (wanted.contains(team))
                return team;
        return isAll ? std::optional(OfNoTeam) : std::nullopt;
    }

    [[nodiscard]] std::string Words(const Difference& difference) const
    {
        return ToUtf8(WordsOf(*later.League, *later.Machine, difference));
    }

    [[nodiscard]] Json DataOf(const Difference& difference) const
    {
        const KindName& kind = KindNames.at(static_cast<std::size_t>(difference.Kind));
        const auto team = [](int number) { return number == 0 ? Json() : Json(number); };
        const auto counted = [&](long long number) { return kind.IsCounted ? Json(number) : Json(); };
        Json ratings = Json::array();
        for (const RatingChange& change : difference.Ratings)
            ratings.push_back({{"name", ToUtf8(change.Label)}, {"before", change.Before}, {"after", change.After}});
        return {{"kind", kind.Name},
                {"team", team(difference.Team)},
                {"other_team", team(difference.OtherTeam)},
                {"id", difference.Who ? Json(difference.Who->CommonId()) : Json()},
                {"name", ToUtf8(difference.Name)},
                {"words", Words(difference)},
                {"before", counted(difference.Before)},
                {"after", counted(difference.After)},
                {"ratings", std::move(ratings)},
                {"pro_days", difference.ProDays},
                {"farm_days", difference.FarmDays}};
    }

    LeagueAtHand& earlier;
    LeagueAtHand& later;
    std::set<int> wanted;
    std::set<int> proven;
    std::map<int, std::vector<Difference>> headings;
    LeftOut left;
};

LeagueAtHand OpenEarlier(const std::string& path)
{
    try {
        return OpenLeague(path);
    } catch (const Problem& problem) {
        throw Problem(path + ": " + problem.what());
    }
}

std::string DateOf(const LeagueAtHand& league) { return league.Machine->LongDate(league.League->LeagueData.FileDate); }

Answer Diff(const std::string& path, const DiffOptions& options, const Passwords& known)
{
    LeagueAtHand later = OpenLeague(path);
    LeagueAtHand earlier = OpenEarlier(options.Earlier);
    if (earlier.League->LeagueData.LeagueCode.Raw() != later.League->LeagueData.LeagueCode.Raw())
        throw Problem(options.Earlier + ": this client file is of another league");
    const Told told(earlier, later, options, known);

    Answer answer;
    const std::string date = DateOf(later);
    const std::string earlierDate = DateOf(earlier);
    answer.Text = OnOneLine(path) + ": " + later.Name() + (date.empty() ? "" : ", " + date) + ", since " +
                  OnOneLine(options.Earlier) + (earlierDate.empty() ? "" : " of " + earlierDate) + "\n";
    for (const LeagueAtHand* league : {&earlier, &later})
        if (league->IsDamaged)
            answer.Text += "  " + OnOneLine(league->Path) + ": " + std::string(DamagedWords) + "\n";
    answer.Text += (told.IsNothing() ? "  Nothing is different.\n" : told.Text()) +
                   told.Left().Text("Money, places and lines are not told");
    if (earlier.League->LeagueData.FileDate > later.League->LeagueData.FileDate)
        answer.Notes.push_back("this file is the older one; " + options.Earlier + " is of a later date");
    const bool isDamaged = earlier.IsDamaged || later.IsDamaged;
    answer.Data = {{"earlier", options.Earlier},    {"league", later.Name()}, {"date", date},
                   {"earlier_date", earlierDate},   {"damaged", isDamaged},   {"changes", told.Data()},
                   {"left_out", told.Left().Data()}};
    answer.Ending = told.IsNothing() && !isDamaged ? ending::Done : ending::Findings;
    return answer;
}

} // namespace

Verb AddDiff(CLI::App& program)
{
    const auto options = std::make_shared<DiffOptions>();
    CLI::App* command = program.add_subcommand("diff", "Tell what changed from one client file of a league to another");
    command->add_option("OLD.dvs", options->Earlier, "the earlier client file")->required()->type_name("");
    command->add_option("NEW.dvs", options->Later, "the later one, of the same league")->required()->type_name("");
    AddTeams(*command, *options);
    AddPasswords(*command, options->PasswordFile);
    AddJson(*command, options->AsJson);
    command->footer(
        "Tells injuries, suspensions, waivers, moves, contracts, ratings as the league shows them, the cap and the\n"
        "deadline. Money, who was placed where, and holes in the lines of a team are told behind its password alone,\n"
        "which each of both files may hold another one of. With --team: what concerns it, and the rules of the "
        "league.\n"
        "Ends with 0 when nothing is different, 1 when something is, or a file is damaged, 2 when something failed.\n\n"
        "Examples:\n"
        "  dravik diff Yesterday.dvs Today.dvs\n"
        "  dravik diff Yesterday.dvs Today.dvs --team 7 --passwords secret.txt\n"
        "  dravik diff Yesterday.dvs Today.dvs --json");
    return {command, [options] {
                const Passwords known = ReadPasswords(options->PasswordFile);
                return AnswerEach({options->Later}, {.AsJson = options->AsJson, .List = "leagues"},
                                  [&](const std::string& path) { return Diff(path, *options, known); });
            }};
}

} // namespace dravik::terminal
