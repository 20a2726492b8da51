#include "desk/FirstDay.h"
#include "desk/LineMakers.h"
#include "desk/LinesFiles.h"
#include "files/ClientFile.h"
#include "league/Failure.h"
#include "makers/Makers.h"
#include "rules/LineJudge.h"
#include "rules/RosterJudge.h"
#include "terminal/Answers.h"
#include "terminal/DayRange.h"
#include "terminal/Interrupt.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Passwords.h"
#include "terminal/Problem.h"
#include "terminal/Target.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <algorithm>
#include <memory>

// `dravik make`: a team's roster and lines by the makers, saved as the windows save them.
namespace dravik::terminal {

namespace {

struct MakeOptions {
    std::string League;
    std::string Team;
    std::string PasswordFile;
    std::string Days = "1-10";
    std::string Out;
    bool Roster = false;
    bool RosterPartial = false;
    bool Lines = false;
    bool LinesPartial = false;
    bool Farm = false;
    bool AsJson = false;
};

// Runs the makers that were asked for, in the order in which a manager goes through his screens.
void RunMakers(const Work& work, int team, const MakeOptions& options, const DayRange& days)
{
    if (options.Roster || options.RosterPartial)
        AutoRoster(work, team, true, options.RosterPartial);
    for (int day = days.First; day <= days.Last; ++day) {
        if (options.Lines)
            MakeDay(work, team, day, Side::Pro);
        if (options.LinesPartial)
            MakeRestOfDay(work, team, day);
        if (options.Farm)
            MakeDay(work, team, day, Side::Farm);
    }
}

// What the makers told, each text once.
void Tell(std::vector<std::string>& into, const std::vector<std::string>& told)
{
    for (const std::string& text : told)
        if (std::find(into.begin(), into.end(), ToUtf8(text)) == into.end())
            into.push_back(ToUtf8(text));
}

Answer Make(const std::string& path, const MakeOptions& options, const Passwords& known)
{
    const DayRange days = DaysOf(options.Days);
    RequireReplaceable({.Path = options.Out, .Kind = SystemFile::Lines, .Read = {path, options.PasswordFile}});
    LeagueAtHand league = OpenLeague(path);
    Machine& machine = *league.Machine;
    const int team = TeamsNamed(*league.League, {options.Team}).front();
    const std::string password = Demand(*league.League, machine, team, known);
    const bool wantsMakers =
        options.Roster || options.RosterPartial || options.Lines || options.LinesPartial || options.Farm;
    if (wantsMakers && AreMakersClosed(league.League->LeagueData))
        throw Problem(std::string(MakersClosedWords));
    const Work work = league.AtWork();
    RunMakers(work, team, options, days);
    Answer answer;
    std::vector<std::string> told;
    Tell(told, machine.TakeTold());

    // The windows enable their command only when day 1 of both sides is complete.
    const LineVerdict farm = JudgeDay(work, team, Side::Farm, 1, false);
    const LineVerdict pro = JudgeDay(work, team, Side::Pro, 1, false);
    (void)machine.TakeTold();
    if (pro.Complete && !farm.Complete) {
        answer.Notes = std::move(told);
        answer.Notes.emplace_back(FirstDayWarning(Side::Farm));
        answer.Ending = ending::Failed;
    } else {
        // The password is proven; the one call that saves asks for it once more.
        const WorkName name(options.Out);
        bool isSaved = false;
        machine.Answer(password);
        SaveLinesAs(
            work, machine.Files(name.Path()), machine, team, options.Out, [] {},
            [&](const std::string& /*target*/) { isSaved = true; });
        Tell(told, machine.TakeTold());
        if (isSaved)
            for (const std::string& text : told)
                answer.Text += text + "\n";
        else
            answer.Notes = told;
        answer.Ending = isSaved ? ending::Done : ending::Failed;
    }
    if (league.IsDamaged)
        answer.Notes.emplace_back(DamagedWords);
    answer.Data = {{"team", team},
                   {"name", league.NameOf(team)},
                   {"out", options.Out},
                   {"saved", answer.Ending == ending::Done},
                   {"told", answer.Ending == ending::Done ? told : answer.Notes}};
    return answer;
}

} // namespace

Verb AddMake(CLI::App& program)
{
    const auto options = std::make_shared<MakeOptions>();
    CLI::App* command =
        program.add_subcommand("make", "Have the makers build a team's roster and lines, and save its lines file");
    AddLeague(*command, options->League);
    command->add_option("--team", options->Team, "the team, by number, name or abbreviation")
        ->type_name("N|NAME")
        ->required();
    CLI::Option_group* roster = command->add_option_group("Roster");
    roster->add_flag("--roster", options->Roster, "make the roster anew from the ratings");
    roster->add_flag("--roster-partial", options->RosterPartial, "fill the holes of the roster");
    roster->require_option(0, 1);
    CLI::Option_group* lines = command->add_option_group("Lines");
    lines->add_flag("--lines", options->Lines, "make the pro lines anew");
    lines->add_flag("--lines-partial", options->LinesPartial,
                    "keep what is usable of the pro lines, and fill the rest");
    lines->require_option(0, 1);
    command->add_flag("--farm", options->Farm, "make the farm lines");
    AddDays(*command, options->Days);
    AddOut(*command, options->Out, "the lines file that is written", "FILE.dvl")->required();
    AddPasswords(*command, options->PasswordFile);
    AddJson(*command, options->AsJson);
    command->footer("The file is the one that the windows save, byte for byte. It appears when it is whole; until then "
                    "an older one\n"
                    "stays. Ends with 0, or 2 when nothing was saved.\n\n"
                    "Examples:\n"
                    "  dravik make League.dvs --team Gulls --lines-partial --farm --out Gulls.dvl\n"
                    "  dravik make League.dvs --team 7 --roster --lines --days 1 --out 7.dvl --passwords secret.txt");
    return {command, [options] {
                const Passwords known = ReadPasswords(options->PasswordFile);
                return AnswerEach({options->League}, {.AsJson = options->AsJson, .List = "leagues"},
                                  [&](const std::string& path) { return Make(path, *options, known); });
            }};
}

} // namespace dravik::terminal
