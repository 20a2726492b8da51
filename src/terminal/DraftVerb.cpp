#include "desk/DraftCandidates.h"
#include "desk/MarketDoors.h"
#include "desk/Ranking.h"
#include "files/VerifyFile.h"
#include "terminal/Answers.h"
#include "terminal/CsvFile.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/MarketVerb.h"
#include "terminal/Problem.h"
#include "terminal/Table.h"
#include "terminal/Utf8.h"

#include <memory>

// `dravik draft`: the ranking for a draft, from a table and to one.
namespace dravik::terminal {

namespace {

Answer ReadRanking(LeagueAtHand& league, int team, const std::string& path)
{
    Machine& machine = *league.Machine;
    const auto ranking = std::make_unique<DraftRanking>();
    machine.UsePlainFiles(IsPlainFile(machine, path));
    if (ReadDraftFile(*league.League, machine.Files(), team, path, *ranking) != TeamFileRead::Loaded)
        throw Problem(path + ": this is no draft file of this league and this team, or it is damaged");
    Table table({"rank", "id", "name"});
    int rank = 0;
    for (const long long id : *ranking)
        if (id != 0)
            table.Add({++rank, static_cast<int>(id), ToUtf8(NameOfNumber(*league.League, static_cast<int>(id)))});
    Answer answer;
    answer.Text = table.Csv();
    answer.Data = {{"team", team}, {"name", league.NameOf(team)}, {"ranking", table.Data()}};
    return answer;
}

Answer WriteRanking(LeagueAtHand& league, int team, const MarketOptions& options)
{
    constexpr int lastProspect = ProspectOffset + ProspectTable::last;
    if (!DoorsOf(league.League->LeagueData).IsDraftOpen())
        throw Problem("no draft is ahead");
    const CsvFile table(options.Csv, {"id"});
    const auto wanted = std::make_unique<DraftRanking>();
    for (std::size_t row = 0; row < table.Count(); ++row) {
        if (!DraftRanking::Has(static_cast<long long>(row)))
            throw Problem(table.Place(row) + ": nobody more can be ranked");
        (*wanted)[static_cast<long long>(row)] = table.Number(row, "id", 1, lastProspect);
    }
    const auto ranking = std::make_unique<DraftRanking>();
    const TakenIn taken = TakeInRanking(*league.League, *ranking, *wanted);
    MarketTaken notes;
    for (const std::string& words : taken.Told)
        notes.Notes.push_back(ToUtf8(words));
    notes.IsHeld = static_cast<std::size_t>(taken.Count) < table.Count();
    notes.Counts["ranked"] = taken.Count;
    return SavedMarket(league, team, options, std::move(notes),
                       [&](const FileAccess& files) -> std::optional<std::string> {
                           if (!MaySaveRanking(league.AtWork(), taken.Count))
                               return std::nullopt;
                           const auto report = SaveRankingAs(*league.League, files, team, options.Out, *ranking,
                                                             DraftTypeOf(league.League->LeagueData));
                           return report ? std::optional(OnOneLine(*report) + "\n") : std::nullopt;
                       });
}

} // namespace

Verb AddDraft(CLI::App& program)
{
    const auto options = std::make_shared<MarketOptions>();
    CLI::App* command =
        program.add_subcommand("draft", "Show a team's draft file as a table, or write one from a table");
    AddMarket(*command, *options, ".dvd");
    command->footer(
        "The table has a row a person, best first, with the column id: a skater's number, a goalie's + 10000, a\n"
        "prospect's + 20000. Whoever cannot be drafted, and whoever stands there a second time, is left out.\n"
        "Ends with 0, 1 when somebody was left out, 2 when nothing was written.\n\n"
        "Examples:\n"
        "  dravik draft League.dvs --team 7 --csv ranking.csv --out Gulls.dvd\n"
        "  dravik draft League.dvs --team 7 --read Gulls.dvd > ranking.csv");
    return MarketVerb(command, options, {.Kind = SystemFile::Draft, .Show = ReadRanking, .Write = WriteRanking});
}

} // namespace dravik::terminal
