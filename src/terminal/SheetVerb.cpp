#include "desk/LineUpPaper.h"
#include "desk/Paper.h"
#include "desk/RosterPaper.h"
#include "files/ClientFile.h"
#include "league/Failure.h"
#include "terminal/Answers.h"
#include "terminal/DayRange.h"
#include "terminal/Interrupt.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Passwords.h"
#include "terminal/Problem.h"
#include "terminal/Target.h"
#include "terminal/TeamFiles.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <algorithm>
#include <array>
#include <memory>

// `dravik sheet`: a team's lines or roster on a sheet to share.
namespace dravik::terminal {

namespace {

// A form that a sheet is made in.
struct SheetForm {
    const char* Option;
    const char* Help;
    std::string (*Of)(const Paper&);
};

std::string HtmlInUtf8Of(const Paper& paper) { return HtmlOf(paper, "utf-8"); }

// The first is the one that is made where none is asked for.
constexpr std::array<SheetForm, 4> Forms{{
    {"--text", "columns of fixed width; what is made without a form", PlainTextOf},
    {"--forum", "a block for a forum, which keeps its columns", ForumTextOf},
    {"--markdown", "Markdown", MarkdownOf},
    {"--html", "a page of HTML", HtmlInUtf8Of},
}};

struct SheetOptions {
    std::string League;
    std::string Team;
    std::string PasswordFile;
    std::string Lines; // a lines file to take in first
    std::string Days = "1";
    std::string Out; // empty: what is made is shown
    std::array<bool, Forms.size()> IsForm{};
    bool Farm = false;
    bool Roster = false;
};

// Writes `text` to the file `path`, which appears when it is whole.
void WriteSheet(Machine& machine, const std::string& path, const std::string& text)
{
    const WorkName work(path);
    try {
        const auto file = machine.CreateFile(work.Path());
        file->Write(text.data(), text.size());
        file->Flush();
        file->Close();
        machine.RenameFile(work.Path(), path);
    } catch (const Failure& failed) {
        try {
            machine.DeleteFile(work.Path());
        } catch (const Failure&) {
            // nothing was begun
        }
        throw Problem(path + ": " + failed.what());
    }
}

Answer Sheet(const std::string& path, const SheetOptions& options, const Passwords& known)
{
    const DayRange days = DaysOf(options.Days);
    RequireReplaceable({.Path = options.Out, .Read = {path, options.Lines, options.PasswordFile}});
    LeagueAtHand league = OpenLeague(path);
    const int team = TeamsNamed(*league.League, {options.Team}).front();
    Demand(*league.League, *league.Machine, team, known);
    const std::string date = league.Machine->LongDate(league.League->LeagueData.FileDate);
    if (!options.Lines.empty())
        TakeInLines(league, options.Lines, team);
    const Paper paper = options.Roster ? RosterPaper(*league.League, *league.Machine, team, date)
                                       : LineUpPaper(*league.League, team, options.Farm ? Side::Farm : Side::Pro,
                                                     days.First, days.Last, date);
    const auto asked = std::find(options.IsForm.begin(), options.IsForm.end(), true);
    const SheetForm& form = asked == options.IsForm.end()
                                ? Forms.front()
                                : Forms.at(static_cast<std::size_t>(asked - options.IsForm.begin()));
    const std::string sheet = ToUtf8(form.Of(paper));

    Answer answer;
    if (options.Out.empty()) {
        answer.Text = sheet;
    } else {
        WriteSheet(*league.Machine, options.Out, sheet);
        answer.Text = "Sheet of " + league.NameOf(team) + " saved at " + options.Out + "\n";
    }
    if (league.IsDamaged)
        answer.Notes.emplace_back(DamagedWords);
    return answer;
}

} // namespace

Verb AddSheet(CLI::App& program)
{
    const auto options = std::make_shared<SheetOptions>();
    CLI::App* command =
        program.add_subcommand("sheet", "Make a sheet of a team's lines or roster to share with others");
    AddLeague(*command, options->League);
    command->add_option("--team", options->Team, "the team, by number, name or abbreviation")
        ->type_name("N|NAME")
        ->required();
    command->add_option("--lines", options->Lines, "a lines file of the team to take in before")->type_name("FILE.dvl");
    CLI::Option* days = AddDays(*command, options->Days);
    CLI::Option* farm = command->add_flag("--farm", options->Farm, "the lines of the farm team");
    command->add_flag("--roster", options->Roster, "the roster in the place of lines")->excludes(days)->excludes(farm);
    CLI::Option_group* forms = command->add_option_group("Form");
    for (std::size_t form = 0; form < Forms.size(); ++form)
        forms->add_flag(Forms[form].Option, options->IsForm[form], Forms[form].Help);
    forms->require_option(0, 1);
    AddOut(*command, options->Out, "the file that is written; without it the sheet is shown", "FILE");
    AddPasswords(*command, options->PasswordFile);
    command->footer(
        "The sheet is the one that the windows copy, in UTF-8. What the league hides does not stand on it, nor do "
        "single\n"
        "ratings. Lines and roster show behind the team's password. A file appears when it is whole; until then an\n"
        "older one stays. Ends with 0, or 2 when something failed.\n\n"
        "Examples:\n"
        "  dravik sheet League.dvs --team Gulls\n"
        "  dravik sheet League.dvs --team 7 --lines Gulls.dvl --days 1-10 --farm --markdown\n"
        "  dravik sheet League.dvs --team 7 --roster --html --out roster.html --passwords secret.txt");
    return {command, [options] {
                const Passwords known = ReadPasswords(options->PasswordFile);
                return AnswerEach({options->League}, {.List = "leagues"},
                                  [&](const std::string& path) { return Sheet(path, *options, known); });
            }};
}

} // namespace dravik::terminal
