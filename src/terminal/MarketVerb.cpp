#include "terminal/MarketVerb.h"

#include "league/Failure.h"
#include "terminal/Interrupt.h"
#include "terminal/Passwords.h"
#include "terminal/Problem.h"
#include "terminal/Target.h"
#include "terminal/Utf8.h"

#include <utility>

namespace dravik::terminal {

void AddMarket(CLI::App& command, MarketOptions& options, const std::string& ending)
{
    AddLeague(command, options.League);
    command.add_option("--team", options.Team, "the team, by number, name or abbreviation")
        ->type_name("N|NAME")
        ->required();
    CLI::Option_group* way = command.add_option_group("Way");
    way->add_option("--read", options.Read, "show this file as comma-separated values")->type_name("FILE" + ending);
    CLI::Option* csv = way->add_option("--csv", options.Csv, "write a file from this table")->type_name("FILE.csv");
    way->require_option(1);
    CLI::Option* out = AddOut(command, options.Out, "the file that is written", "FILE" + ending);
    csv->needs(out);
    out->needs(csv);
    AddPasswords(command, options.PasswordFile);
    AddJson(command, options.AsJson);
}

namespace {

// What fails of a file that is shown is told with its name.
Answer ShowFile(LeagueAtHand& league, int team, const MarketOptions& options, const MarketWays& ways)
{
    try {
        return ways.Show(league, team, options.Read);
    } catch (const Failure& failed) {
        throw Problem(options.Read + ": " + failed.what());
    }
}

} // namespace

Verb MarketVerb(CLI::App* command, const std::shared_ptr<MarketOptions>& options, MarketWays ways)
{
    return {command, [options, ways] {
                const Passwords known = ReadPasswords(options->PasswordFile);
                return AnswerEach({options->League}, {.AsJson = options->AsJson, .List = "leagues"},
                                  [&](const std::string& path) {
                                      RequireReplaceable({.Path = options->Out,
                                                          .Kind = ways.Kind,
                                                          .Read = {path, options->Csv, options->PasswordFile}});
                                      LeagueAtHand league = OpenLeague(path);
                                      const int team = TeamsNamed(*league.League, {options->Team}).front();
                                      Demand(*league.League, *league.Machine, team, known);
                                      return options->Csv.empty() ? ShowFile(league, team, *options, ways)
                                                                  : ways.Write(league, team, *options);
                                  });
            }};
}

Answer SavedMarket(LeagueAtHand& league, int team, const MarketOptions& options, MarketTaken taken,
                   const std::function<std::optional<std::string>(const FileAccess&)>& save)
{
    const WorkName name(options.Out);
    const auto report = save(league.Machine->Files(name.Path()));
    const bool isSaved = report && !report->empty();
    Answer answer;
    answer.Notes = std::move(taken.Notes);
    for (const std::string& words : league.Machine->TakeTold())
        answer.Notes.push_back(ToUtf8(words));
    if (isSaved)
        for (const char c : ToUtf8(*report))
            if (c != '\r')
                answer.Text += c;
    answer.Data = {{"team", team}, {"name", league.NameOf(team)}, {"out", options.Out}, {"saved", isSaved}};
    answer.Data.update(taken.Counts);
    answer.Data["told"] = answer.Notes;
    answer.Ending = !isSaved ? ending::Failed : taken.IsHeld ? ending::Findings : ending::Done;
    return answer;
}

} // namespace dravik::terminal
