#include "desk/TeamCheck.h"
#include "files/ClientFile.h"
#include "league/Failure.h"
#include "terminal/Answers.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Passwords.h"
#include "terminal/Problem.h"
#include "terminal/TeamFiles.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <set>

// `dravik check`: what the judges say of teams.
namespace dravik::terminal {

namespace {

struct CheckOptions : CommonOptions {
    std::vector<std::string> Lines; // lines files to take in first
};

// The findings of one subject of a team, in the judge's words and order.
using Words = std::vector<std::string>;

Words WithFailure(Words words, const std::optional<int>& failed)
{
    if (failed)
        words.push_back(std::to_string(*failed) + " - " + Failure(*failed).what());
    return words;
}

Words RosterWords(const LeagueAtHand& league, const RosterVerdict& verdict)
{
    Words words;
    for (const RosterFinding& finding : verdict.Findings)
        words.push_back(OnOneLine(ToUtf8(WordsOf(*league.League, finding))));
    return WithFailure(std::move(words), verdict.Failed);
}

Words CapWords(const LeagueAtHand& league, int team, const std::optional<CapVerdict>& verdict)
{
    Words words;
    if (!verdict)
        return words;
    for (const CapFinding& finding : verdict->Findings)
        words.push_back(OnOneLine(ToUtf8(WordsOf(*league.League, *league.Machine, team, finding))));
    return WithFailure(std::move(words), verdict->Failed);
}

Words DayWords(const LeagueAtHand& league, const LineVerdict& verdict)
{
    Words words;
    for (const LineFinding& finding : verdict.Findings)
        words.push_back(OnOneLine(ToUtf8(WordsOf(*league.League, verdict, finding))));
    return WithFailure(std::move(words), verdict.Failed);
}

// "day 3", "days 1 to 4, 7": the days (from 1) in rows.
std::string InRows(const std::vector<int>& days)
{
    std::string rows;
    for (std::size_t first = 0; first < days.size();) {
        std::size_t last = first;
        while (last + 1 < days.size() && days[last + 1] == days[last] + 1)
            ++last;
        rows += (rows.empty() ? "" : ", ") + std::to_string(days[first]) +
                (last == first ? "" : (last == first + 1 ? ", " : " to ") + std::to_string(days[last]));
        first = last + 1;
    }
    return (days.size() == 1 ? "day " : "days ") + rows;
}

// Findings of several days with the same words stand on one line.
void TellDays(const LeagueAtHand& league, const DayVerdicts& verdicts, const std::string& side, std::string& text)
{
    std::vector<std::pair<std::string, std::vector<int>>> found;
    for (std::size_t day = 0; day < verdicts.size(); ++day)
        for (std::string& words : DayWords(league, verdicts[day])) {
            auto known = std::find_if(found.begin(), found.end(), [&](const auto& one) { return one.first == words; });
            if (known == found.end())
                known = found.insert(found.end(), {std::move(words), {}});
            if (known->second.empty() || known->second.back() != static_cast<int>(day) + 1)
                known->second.push_back(static_cast<int>(day) + 1);
        }
    for (const auto& [words, days] : found)
        text += "    " + side + ", " + InRows(days) + ": " + words + "\n";
}

std::string TextOf(const LeagueAtHand& league, int team, const TeamCheck& check)
{
    std::string text = "  " + std::to_string(team) + " " + league.NameOf(team) + ": " +
                       (check.IsComplete() ? "complete" : "not complete") + "\n";
    for (const std::string& words : RosterWords(league, check.Roster))
        text += "    roster: " + words + "\n";
    for (const std::string& words : CapWords(league, team, check.Roster.Cap))
        text += "    payroll: " + words + "\n";
    TellDays(league, check.Pro, "pro lines", text);
    TellDays(league, check.Farm, "farm lines", text);
    return text;
}

Json JsonOf(const LeagueAtHand& league, const DayVerdicts& verdicts)
{
    Json days = Json::array();
    for (std::size_t day = 0; day < verdicts.size(); ++day)
        days.push_back(
            {{"day", day + 1}, {"complete", verdicts[day].Complete}, {"findings", DayWords(league, verdicts[day])}});
    return days;
}

Json JsonOf(const LeagueAtHand& league, int team, const TeamCheck& check)
{
    return {{"number", team},
            {"name", league.NameOf(team)},
            {"complete", check.IsComplete()},
            {"roster", {{"complete", check.Roster.Complete}, {"findings", RosterWords(league, check.Roster)}}},
            {"payroll",
             {{"within", !check.Roster.Cap || check.Roster.Cap->Within},
              {"findings", CapWords(league, team, check.Roster.Cap)}}},
            {"pro", JsonOf(league, check.Pro)},
            {"farm", JsonOf(league, check.Farm)}};
}

// The lines files of the command line, each with the team that it names; and which of them some league has taken in.
class LinesFiles {
public:
    explicit LinesFiles(const std::vector<std::string>& paths)
    {
        for (const std::string& path : paths)
            files.push_back({path, HeadOf(path, TeamFileKind::Lines)});
    }

    // Takes those of `league` in, over the teams of `teams`, or all where none was wanted; they are the teams to check then.
    void TakeIn(LeagueAtHand& league, std::vector<int>& teams, bool named, const Passwords& known)
    {
        if (files.empty())
            return;
        std::vector<int> taken;
        for (const File& file : files) {
            if (file.Head.Code != league.League->LeagueData.LeagueCode.Raw())
                continue;
            const int team = file.Head.Team;
            if (named && std::find(teams.begin(), teams.end(), team) == teams.end())
                continue;
            Note(file.Path);
            Demand(*league.League, *league.Machine, team, known);
            TakeInLines(league, file.Path, team);
            taken.push_back(team);
        }
        std::sort(taken.begin(), taken.end());
        taken.erase(std::unique(taken.begin(), taken.end()), taken.end());
        proven.insert({league.Path, {taken.begin(), taken.end()}});
        if (!named)
            teams = taken;
    }

    // Whether the password of a team was proven before its record came from a file.
    bool IsProven(const std::string& league, int team)
    {
        const std::lock_guard guard(mutex);
        const auto of = proven.find(league);
        return of != proven.end() && of->second.contains(team);
    }

    // Files that belong to none of the leagues.
    [[nodiscard]] std::vector<std::string> Left() const
    {
        std::vector<std::string> left;
        for (const File& file : files)
            if (!used.contains(file.Path))
                left.push_back(file.Path);
        return left;
    }

private:
    struct File {
        std::string Path;
        TeamFileHead Head;
    };

    void Note(const std::string& path)
    {
        const std::lock_guard guard(mutex);
        used.insert(path);
    }

    std::vector<File> files;
    std::mutex mutex;
    std::set<std::string> used;
    std::map<std::string, std::set<int>> proven;
};

Answer Check(const std::string& path, const CheckOptions& options, const Passwords& known, LinesFiles& lines)
{
    LeagueAtHand league = OpenLeague(path);
    std::vector<int> teams = TeamsNamed(*league.League, options.Teams);
    const bool named = !options.Teams.empty();
    lines.TakeIn(league, teams, named, known);
    const auto scratch = Copy(*league.League);

    Answer answer;
    answer.Text = OnOneLine(path) + ": " + league.Name() + "\n";
    answer.Data["league"] = league.Name();
    answer.Data["damaged"] = league.IsDamaged;
    Json checked = Json::array();
    LeftOut left;
    bool isComplete = !league.IsDamaged;
    if (league.IsDamaged)
        answer.Text += "  " + std::string(DamagedWords) + "\n";
    for (const int team : teams) {
        if (!lines.IsProven(path, team)) {
            if (named)
                Demand(*league.League, *league.Machine, team, known);
            else if (!left.MayWorkOn(league, team, known))
                continue;
        }
        const TeamCheck check = LookAtTeam(*league.League, *league.Machine, team, *scratch);
        isComplete = isComplete && check.IsComplete();
        if (options.AsJson)
            checked.push_back(JsonOf(league, team, check));
        else
            answer.Text += TextOf(league, team, check);
    }
    answer.Text += left.Text("Not checked");
    answer.Data["teams"] = std::move(checked);
    answer.Data["left_out"] = left.Data();
    answer.Ending = isComplete ? ending::Done : ending::Findings;
    return answer;
}

int Run(const CheckOptions& options)
{
    const Passwords known = ReadPasswords(options.PasswordFile);
    LinesFiles lines(options.Lines);
    int end = AnswerEach(options.Leagues, {.AsJson = options.AsJson, .Threads = options.Threads, .List = "leagues"},
                         [&](const std::string& path) { return Check(path, options, known, lines); });
    for (const std::string& path : lines.Left()) {
        std::cerr << "dravik: " << path << ": this lines file belongs to none of these leagues and teams" << std::endl;
        end = ending::Failed;
    }
    return end;
}

} // namespace

Verb AddCheck(CLI::App& program)
{
    const auto options = std::make_shared<CheckOptions>();
    CLI::App* command =
        program.add_subcommand("check", "Judge rosters, payrolls and the lines of all ten days, pro and farm");
    AddLeagues(*command, *options);
    AddTeams(*command, *options);
    command
        ->add_option("--lines", options->Lines,
                     "a lines file to take in before; without --team its team alone is checked")
        ->type_name("FILE.dvl")
        ->take_all()
        ->expected(1);
    AddPasswords(*command, options->PasswordFile);
    AddJson(*command, options->AsJson);
    command->footer("Each league and each day is judged on a copy; no file changes.\n"
                    "Ends with 0 when all is complete, 1 when something was found, 2 when something failed.\n\n"
                    "Examples:\n"
                    "  dravik check League.dvs --team Gulls\n"
                    "  dravik check League.dvs --passwords secret.txt\n"
                    "  dravik check League.dvs --team 7 --lines Gulls.dvl\n"
                    "  dravik check -j 4 Monday.dvs Tuesday.dvs Friday.dvs --json");
    return {command, [options] { return Run(*options); }};
}

} // namespace dravik::terminal
