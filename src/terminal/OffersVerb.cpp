#include "desk/FreeAgents.h"
#include "desk/Market.h"
#include "desk/MarketDoors.h"
#include "desk/Offers.h"
#include "files/OffersFile.h"
#include "files/VerifyFile.h"
#include "terminal/Answers.h"
#include "terminal/CsvFile.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/MarketVerb.h"
#include "terminal/Problem.h"
#include "terminal/Table.h"
#include "terminal/Utf8.h"

#include <memory>
#include <set>

// `dravik offers`: the offers to free agents, from a table and to one.
namespace dravik::terminal {

namespace {

Answer ReadOffers(LeagueAtHand& league, int team, const std::string& path)
{
    Machine& machine = *league.Machine;
    std::vector<FreeAgentOffer> offers;
    machine.UsePlainFiles(IsPlainFile(machine, path));
    const TeamFileRead read = ReadOffersFile(*league.League, machine.Files(), team, path, offers);
    if (read != TeamFileRead::Loaded)
        throw Problem(path + ": this is no offer file of this league and this team, or it is damaged");
    Table table({"id", "name", "salary", "years", "bonus", "comment"});
    for (const FreeAgentOffer& offer : offers)
        table.Add({static_cast<int>(offer.Id), ToUtf8(NameOfNumber(*league.League, static_cast<int>(offer.Id))),
                   static_cast<int>(offer.Salary), static_cast<int>(offer.Duration), static_cast<int>(offer.Bonus),
                   ToUtf8(offer.Comment.Trimmed())});
    Answer answer;
    answer.Text = table.Csv();
    answer.Data = {{"team", team}, {"name", league.NameOf(team)}, {"offers", table.Data()}};
    return answer;
}

// Enters a row of the table as if it was typed. What the boxes tell is noted with the place of the row.
void Enter(LeagueAtHand& league, int team, OfferTable& offers, const std::set<int>& agents, const CsvFile& table,
           std::size_t row, std::vector<std::string>& told)
{
    const Work work = league.AtWork();
    const int id = table.Number(row, "id", 1, OfferTable::last);
    const auto who = agents.contains(id) ? FreeAgentOf(*league.League, id) : std::nullopt;
    if (!who)
        throw Problem(table.Place(row) + ": number " + std::to_string(id) + " cannot be made an offer");
    if (TakeOffer(*league.League, team, offers, *who) == nullptr)
        throw Problem(table.Place(row) + ": " + ToUtf8(BarredWords(*league.League, *who)));
    const TakesInstead unseen = [](int) {};
    const auto enter = [&](const auto& offer, const char* column) {
        const std::string text = table.Cell(row, column);
        const bool isRefused = !text.empty() && offer(text) == Entered::Refused;
        for (const std::string& words : league.Machine->TakeTold())
            told.push_back(table.Place(row) + ", " + column + ": " + ToUtf8(words));
        if (isRefused) {
            const std::string words = told.back();
            throw Problem(words);
        }
    };
    enter([&](const std::string& text) { return OfferSalary(work, offers, *who, text, unseen); }, "salary");
    enter([&](const std::string& text) { return OfferDuration(work, offers, *who, text, unseen); }, "years");
    enter([&](const std::string& text) { return OfferBonus(work, offers, *who, text); }, "bonus");
    enter([&](const std::string& text) { return OfferComment(work, offers, *who, text); }, "comment");
}

Answer WriteOffers(LeagueAtHand& league, int team, const MarketOptions& options)
{
    if (!DoorsOf(league.League->LeagueData).AreFreeAgentsOpen)
        throw Problem("no offers can be made: the trade deadline is in force");
    const CsvFile table(options.Csv, {"id", "salary", "years"});
    const Work work = league.AtWork();
    const auto market = MakeMarket();
    OpenOffers(work, team, market->Offers);
    std::set<int> agents;
    EachFreeAgent(*league.League, market->Offers, {}, [&](const FreeAgent& agent) { agents.insert(agent.Id); });
    MarketTaken taken;
    std::set<int> entered;
    for (std::size_t row = 0; row < table.Count(); ++row) {
        Enter(league, team, market->Offers, agents, table, row, taken.Notes);
        if (!entered.insert(table.Number(row, "id", 1, OfferTable::last)).second)
            throw Problem(table.Place(row) + ": this person has an offer above");
    }
    taken.IsHeld = !taken.Notes.empty();
    return SavedMarket(league, team, options, std::move(taken), [&](const FileAccess& files) {
        return SaveOffersAs(work, files, team, options.Out, market->Offers);
    });
}

} // namespace

Verb AddOffers(CLI::App& program)
{
    const auto options = std::make_shared<MarketOptions>();
    CLI::App* command =
        program.add_subcommand("offers", "Show a team's offer file as a table, or write one from a table");
    AddMarket(*command, *options, ".dvf");
    command->footer(
        "The table has a row an offer, with the columns id, salary and years, and if need be bonus and comment; "
        "others\n"
        "count for nothing. The limits of the league hold as where an offer is typed: what is above or below becomes\n"
        "the limit, and is told. Ends with 0, 1 when something was changed to a limit, 2 when nothing was written.\n\n"
        "Examples:\n"
        "  dravik offers League.dvs --team 7 --csv offers.csv --out Gulls.dvf\n"
        "  dravik offers League.dvs --team 7 --read Gulls.dvf > offers.csv");
    return MarketVerb(command, options, {.Kind = SystemFile::Offers, .Show = ReadOffers, .Write = WriteOffers});
}

} // namespace dravik::terminal
