#pragma once

#include "desk/DraftCandidates.h"
#include "desk/FreeAgents.h"
#include "desk/Market.h"
#include "desk/Offers.h"
#include "desk/Ranking.h"
#include "files/OffersFile.h"
#include "session/Session.h"
#include "support/RandomLeague.h"
#include "support/ScriptedPlatform.h"
#include "support/TroubledVoice.h"

#include <iterator>
#include <memory>
#include <optional>
#include <string>

// What a manager does on the market on a random evening: the commands of the desk, each given what it needs.
namespace dravik::market_evening {

inline constexpr int Own = 1;
enum class Do {
    Open,
    ListAgents,
    Take,
    Salary,
    Duration,
    Bonus,
    Comment,
    InShort,
    Tally,
    SaveOffers,
    ListCandidates,
    RankLast,
    Unrank,
    Move,
    MoveTo,
    ListRanked,
    SaveRanking
};
inline constexpr int CommandCount = 17;

// What a command is given. Of these each takes what it needs.
struct Command {
    Do What;
    int Id;
    std::optional<int> Chosen; // an id, or a rank
    int From;
    int To;
    bool Up;
    bool WithOfferOnly;
    PositionFilter Shown;
    std::string Text;
};

// One league, and what was said over it beside boxes.
struct Evening {
    std::unique_ptr<Tables> League;
    bool Modified = false;
    Said Results{}; // of the last command
};

inline std::string Words(const FreeAgentOffer& offer)
{
    return std::to_string(offer.Salary) + '/' + std::to_string(offer.Duration) + '/' + std::to_string(offer.Bonus) +
           '/' + offer.Comment.Trimmed();
}

struct Desk {
    Evening& E;
    Market& M;
    ScriptedPlatform& Machine;

    void Does(Voice& says, const Formats& shown, const Command& command)
    {
        const Work work{*E.League, says, shown, E.Modified};
        const FileAccess files{Machine, says, Machine, Machine.InFolder("work")};
        const PersonId who = PersonOf(command.Id);
        const auto result = [&](const std::string& words) { E.Results.push_back(words); };
        const auto instead = [&](int number) { result("instead " + std::to_string(number)); };
        const auto entered = [&](Entered entered) { result("entered " + std::to_string(static_cast<int>(entered))); };
        switch (command.What) {
        case Do::Open:
            OpenOffers(work, Own, M.Offers);
            result(OfferLimitWords(E.League->LeagueData));
            break;
        case Do::ListAgents:
            EachFreeAgent(*E.League, M.Offers, {.WithOfferOnly = command.WithOfferOnly},
                          [&](const FreeAgent& agent) { result(std::to_string(agent.Id) + ' ' + agent.Text); });
            break;
        case Do::Take:
            if (const auto agent = FreeAgentOf(*E.League, command.Id)) {
                result(IsRestricted(*E.League, *agent) ? "RFA" : "UFA");
                const FreeAgentOffer* offer = TakeOffer(*E.League, Own, M.Offers, *agent);
                result(offer != nullptr ? Words(*offer) : BarredWords(*E.League, *agent));
            } else {
                result("nobody");
            }
            break;
        case Do::Salary:
            entered(OfferSalary(work, M.Offers, who, command.Text, instead));
            break;
        case Do::Duration:
            entered(OfferDuration(work, M.Offers, who, command.Text, instead));
            break;
        case Do::Bonus:
            entered(OfferBonus(work, M.Offers, who, command.Text));
            break;
        case Do::Comment:
            entered(OfferComment(work, M.Offers, who, command.Text));
            break;
        case Do::InShort:
            result(OfferInShort(*E.League, shown, M.Offers, who));
            break;
        case Do::Tally: {
            const OffersTally tally = TallyOffers(*E.League, Own, M.Offers);
            for (const long long number : {tally.Count + 0LL, tally.ToOthers + 0LL, tally.Salaries, tally.Bonuses})
                result(std::to_string(number));
            break;
        }
        case Do::SaveOffers:
            result(SaveOffers(work, files, Own, M.Offers).value_or("not compressed"));
            break;
        case Do::ListCandidates:
            result(DraftTypeOf(E.League->LeagueData));
            EachDraftCandidate(*E.League, command.Shown, [&](const DraftCandidate& candidate) {
                result(std::to_string(candidate.Id) + ' ' + candidate.Text + ' ' +
                       std::to_string(candidate.Overall.value_or(-1)));
            });
            break;
        case Do::RankLast:
            result(RankLast(work, M.Ranking, command.Chosen) ? "shown anew" : "stays");
            break;
        case Do::Unrank:
            result(Unrank(work, M.Ranking, command.Chosen) ? "shown anew" : "stays");
            break;
        case Do::Move: {
            const RankStep step = command.Up ? RankStep::Up : RankStep::Down;
            result(std::to_string(MoveRank(work, M.Ranking, command.Chosen, step, command.To).value_or(-1)));
            break;
        }
        case Do::MoveTo:
            result(std::to_string(MoveRankTo(M.Ranking, command.From, command.To)));
            break;
        case Do::ListRanked:
            EachRanked(*E.League, M.Ranking,
                       [&](int id, const std::string& name) { result(std::to_string(id) + ' ' + name); });
            break;
        case Do::SaveRanking:
            if (MaySaveRanking(work, command.To))
                result(SaveRanking(*E.League, files, Own, M.Ranking, "Some Draft").value_or("not compressed"));
            break;
        }
    }
};

inline constexpr int Skaters = 60;
inline constexpr int Keepers = 12;

inline void RollPerson(Dice& dice, auto& person)
{
    if (dice.Chance(60))
        person.Contract = 0;
    if (dice.Chance(3))
        person.Number = dice.Pick({0, -4, 70, 10003, 32767});
    if (dice.Chance(2))
        person.Team = dice.Pick({-1, 101});
}

// What the market asks beside what any random league has.
inline void RollMarket(Dice& dice)
{
    RollLeague(dice, {.Teams = 3, .Skaters = Skaters, .Goalies = Keepers, .Coaches = 1});
    League& rules = LeagueData;
    rules.RFAAge = dice.Roll(17, 28);
    rules.UFAAge = dice.Roll(22, 36);
    rules.OfferRuleFlag = dice.Chance(50);
    rules.OffSeason = dice.Chance(40);
    rules.MaxOffers = dice.Pick({0, 0, 1, 4, 50, 32767});
    rules.OffersLeft = dice.Pick({-1, 0, 2, 50});
    rules.ShowOverall = dice.Chance(50);
    rules.FantasyDraft = dice.Chance(60);
    rules.EntryDraft = dice.Chance(50);
    rules.EntryDraftDone = dice.Chance(20) ? 1 : 0;
    if (dice.Chance(15))
        rules.MaxSalary = rules.MinSalary - 1000; // limits that cross
    Teams[Own].OffersMade = dice.Chance(10) ? -32768 : dice.Roll(0, 6);
    for (int slot = 1; slot <= Skaters; ++slot)
        RollPerson(dice, Players[slot]);
    for (int slot = 1; slot <= Keepers; ++slot)
        RollPerson(dice, Goalies[slot]);
    // Whoever stands behind them is there to be ranked, and for nothing else.
    for (int slot = Skaters + 1; slot <= 1100; ++slot)
        Players[slot].Position = position::Center;
    for (int slot = 1; slot <= 300; ++slot)
        Prospects[slot].Name = dice.Chance(20) ? "Prospect " + std::to_string(slot) : std::string(dice.Roll(0, 9), ' ');
}

inline int RollId(Dice& dice)
{
    if (dice.Chance(4))
        return static_cast<int>(dice.Pick({-1, 0, 10000, 10999, 11000, 11001, 20001, 32767}));
    if (dice.Chance(75)) // mostly one of a few, so that whole offers come of it
        return static_cast<int>(dice.Chance(70) ? dice.Roll(1, 6) : dice.Roll(1, Skaters));
    return static_cast<int>(10000 + (dice.Chance(70) ? dice.Roll(1, 2) : dice.Roll(1, Keepers)));
}

// An id for the ranking: mostly one that has a name.
inline std::optional<int> RollRankedId(Dice& dice)
{
    if (dice.Chance(5))
        return std::nullopt;
    if (dice.Chance(3))
        return static_cast<int>(dice.Pick({-3, 0, 32768, 42767}));
    if (dice.Chance(20))
        return 20000 + static_cast<int>(dice.Roll(1, 300));
    return static_cast<int>(dice.Chance(20) ? 10000 + dice.Roll(1, Keepers) : dice.Roll(1, 1100));
}

inline std::string RollText(Dice& dice, Do what)
{
    static const std::string numbers[] = {"",        "0",          "-",           "1",          "3",
                                          "8",       "9",          "10",          "-5",         "5-",
                                          "3-7",     "--4",        "500000",      "750000",     "1000000",
                                          "4000000", "9000001",    "99999999999", "-0",         "2.5",
                                          "12a",     "a12",        "$5",          "2147483647", "1,000",
                                          "-1",      "2147483648", "-2147483649", "7 ",         "-99999999999999"};
    static const std::string comments[] = {"", "Come", "Come, please", "a_b", "\xE9t\xE9", "\x80", "1 2 3", "  x "};
    if (what != Do::Comment)
        return numbers[dice.Roll(0, std::size(numbers) - 1)];
    return dice.Chance(5) ? std::string(1001, 'y') : comments[dice.Roll(0, std::size(comments) - 1)];
}

inline Command RollCommand(Dice& dice, int ranked)
{
    Command command{.What = static_cast<Do>(dice.Roll(0, CommandCount - 1)),
                    .Id = RollId(dice),
                    .Chosen = std::nullopt,
                    .From = 0,
                    .To = ranked,
                    .Up = dice.Chance(50),
                    .WithOfferOnly = dice.Chance(50),
                    .Shown = {},
                    .Text = {}};
    if ((command.What == Do::Open && dice.Chance(90)) ||
        ((command.What == Do::SaveOffers || command.What == Do::SaveRanking) && dice.Chance(60)))
        command.What = Do::Salary;
    const auto rank = [&] {
        return static_cast<int>(dice.Chance(30) ? dice.Pick({0, ranked - 1}) : dice.Roll(0, ranked - 1));
    };
    if (command.What == Do::RankLast)
        command.Chosen = RollRankedId(dice);
    else if (ranked > 0 && dice.Chance(90))
        command.Chosen = rank();
    if (command.What == Do::MoveTo) {
        if (ranked == 0)
            command.What = Do::ListRanked;
        else {
            command.From = rank();
            command.To = rank();
        }
    }
    for (bool& shown : command.Shown)
        shown = dice.Chance(70);
    command.Text = RollText(dice, command.What);
    return command;
}

} // namespace dravik::market_evening
