#include "files/OffersFile.h"
#include "MarketEvening.h"
#include "rules/Overall.h"
#include "session/Session.h"
#include "support/RandomLeague.h"
#include "support/ScriptedPlatform.h"
#include "TroubledEvening.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <map>

// Random evenings on the market beside a naive telling of the same commands, in which offers are entries of a map and a ranking
// is a list without an end: whatever is typed, and whichever box fails, both leave the same bytes and have said the same.
namespace dravik {
namespace {

using namespace market_evening;

constexpr int MostRanked = 1001;

// ---- The naive telling -----------------------------------------------------------------------------------------------

struct Naive {
    Evening& E;
    std::map<int, FreeAgentOffer>& Offers; // those that were touched
    std::vector<int>& Ranking;
    ScriptedPlatform& Machine;

    Tables& League() { return *E.League; }
    dravik::League& Rules() { return E.League->LeagueData; }
    void Result(const std::string& words) { E.Results.push_back(words); }
    FreeAgentOffer& OfferTo(int id)
    {
        if (id < 1 || id > 11000)
            Fail(9);
        return Offers[id];
    }
    bool SaysEnough(const FreeAgentOffer& offer)
    {
        return !(offer.Duration < 1) && !(offer.Salary < Rules().MinSalary);
    }
    // What is asked of skaters and goalies alike.
    struct Facts {
        bool InUse;
        long long Age, Team, Contract, Number, Position;
        std::string Name;
    };
    Facts Of(int id)
    {
        if (id > 10000) {
            const Goalie& k = League().Goalies[id - 10000];
            return {k.InUse.Word() == -1, k.Age, k.Team, k.Contract, k.Number, 5, k.Name.Trimmed()};
        }
        const Player& p = League().Players[id];
        return {p.InUse.Word() == -1, p.Age, p.Team, p.Contract, p.Number, p.Position, p.Name.Trimmed()};
    }
    static std::string Letters(long long position)
    {
        if (position < 1 || position > 5)
            Fail(9);
        const char* letters[] = {"C", "LW", "RW", "D", "G"};
        return std::string(" (") + letters[position - 1] + ")";
    }

    void Open()
    {
        Offers.clear();
        if (Rules().OffSeason.Word() != -1) {
            if (Rules().MaxOffers == 0)
                Rules().MaxOffers = 100;
            const long long left = Rules().MaxOffers - League().Teams[Own].OffersMade;
            if (left < -32768 || left > 32767)
                Fail(6);
            Rules().OffersLeft = left;
        }
        std::string words = "You can make " + std::to_string(Rules().OffersLeft);
        words += Rules().OffSeason.Word() == -1 ? " offers in total." : " offers to players you do not owned.";
        Result(words);
    }

    void ListAgents(bool withOfferOnly)
    {
        for (int at = 1; at <= 11000; ++at) {
            const Facts who = Of(at);
            if (!who.InUse || (who.Team != 0 && who.Contract != 0) ||
                (who.Team == 0 && Rules().OfferRuleFlag.Word() != -1))
                continue;
            std::string text = who.Name + Letters(who.Position);
            const int id = static_cast<int>(who.Number) + (at > 10000 ? 10000 : 0);
            if (who.Age < Rules().UFAAge) {
                if (at > 10000)
                    text += "*";
                else if (who.Team != 0)
                    text += "-RFA";
            }
            if (withOfferOnly) {
                if (id < 1 || id > 11000)
                    Fail(9);
                const auto found = Offers.find(id);
                if (!SaysEnough(found == Offers.end() ? FreeAgentOffer{} : found->second))
                    continue;
            }
            Result(std::to_string(id) + ' ' + text);
        }
    }

    void Take(int id)
    {
        if (id < 0)
            Fail(9);
        if (id >= 11000 || !Of(id).InUse) {
            Result("nobody");
            return;
        }
        const Facts who = Of(id);
        Result(who.Age < Rules().UFAAge && who.Team != 0 ? "RFA" : "UFA");
        if (who.Age < Rules().RFAAge && who.Team != 0 && who.Team != Own) {
            if (who.Team < 1 || who.Team > 100)
                Fail(9);
            Result(who.Name + " is not allowed to sign with another team that " +
                   League().Teams[who.Team].Name.Trimmed() + ".");
            return;
        }
        FreeAgentOffer& offer = OfferTo(id);
        offer.Id = id;
        Result(Words(offer));
    }

    // A refusal that cannot be told is told as a failure, and stays one.
    static void Refuse(Voice& says, const std::string& words)
    {
        try {
            says.ShowBox(words, 48);
        } catch (const Failure& failed) {
            says.ShowBox(std::to_string(failed.Number) + " - Out of memory in CheckInput", 16);
        }
    }
    static bool Takes(Voice& says, const std::string& text, const std::string& allowed, const std::string& proper,
                      const std::string& words)
    {
        const std::size_t wrong = text.find_first_not_of(allowed);
        if (!proper.empty() && text.substr(0, wrong).find_first_of(proper) == std::string::npos) {
            Refuse(says, "No Valid Input!");
            return false;
        }
        if (wrong != std::string::npos) {
            Refuse(says, words + " are allowed in that textbox!");
            return false;
        }
        return true;
    }
    static bool IsNumber(Voice& says, const std::string& text)
    {
        return Takes(says, text, "-0123456789", "0123456789", "Only numbers");
    }

    void Enter(Voice& says, const Formats& shown, const Command& command)
    {
        if (!IsNumber(says, command.Text)) {
            Result("entered 0");
            return;
        }
        double number = std::strtod(command.Text.c_str(), nullptr);
        const auto cut = [&](const std::string& words, double limit) {
            if (!words.empty())
                says.ShowBox(words, 48);
            Result("instead " + std::to_string(static_cast<long long>(limit)));
            number = limit;
        };
        if (command.What == Do::Salary) {
            if (number == 0) {
                Result("entered 1");
                return;
            }
            const auto most = static_cast<double>(Rules().MaxSalary);
            const auto least = static_cast<double>(Rules().MinSalary);
            if (number > most)
                cut("Maximum Salary is " + shown.CurrencyNoDecimals(most), most);
            if (number < least)
                cut("Minimum Salary is " + shown.CurrencyNoDecimals(least), least);
            OfferTo(command.Id).Salary = static_cast<long long>(number);
        } else if (command.What == Do::Duration) {
            if (number > 9)
                cut("Maximum Contract Duration is 9 years.", 9);
            else if (number < 0)
                cut("", 0);
            OfferTo(command.Id).Duration = static_cast<long long>(number);
        } else {
            if (number > 2147483647.0 || number < -2147483648.0)
                Fail(6);
            OfferTo(command.Id).Bonus = static_cast<long long>(number);
        }
        Result("entered 2");
    }

    void Comment(Voice& says, int id, const std::string& text)
    {
        std::string allowed = " '*-./0123456789";
        for (int letter = 0; letter < 26; ++letter) {
            allowed += static_cast<char>('A' + letter);
            allowed += static_cast<char>('a' + letter);
        }
        for (int letter = 192; letter <= 253; ++letter)
            allowed += static_cast<char>(letter);
        if (!Takes(says, text, allowed, "", "Only numbers, letters and spaces")) {
            Result("entered 0");
            return;
        }
        std::string stored = text.substr(0, 1000);
        stored.append(1000 - stored.size(), ' ');
        OfferTo(id).Comment = stored;
        Result("entered 2");
    }

    // The offers that a file takes.
    std::vector<FreeAgentOffer*> Whole()
    {
        std::vector<FreeAgentOffer*> all;
        for (auto& [id, offer] : Offers)
            if (offer.Id != 0 && SaysEnough(offer))
                all.push_back(&offer);
        return all;
    }
    long long ToOthers()
    {
        long long others = 0;
        for (const FreeAgentOffer* offer : Whole())
            if (Of(static_cast<int>(offer->Id)).Team != Own)
                ++others;
        return others;
    }

    void Tally()
    {
        long long salaries = 0;
        long long bonuses = 0;
        for (const FreeAgentOffer* offer : Whole()) {
            salaries += offer->Salary;
            bonuses += offer->Bonus;
        }
        for (const long long number : {static_cast<long long>(Whole().size()), ToOthers(), salaries, bonuses})
            Result(std::to_string(number));
    }

    void SaveOffers(Voice& says, const Formats& shown)
    {
        std::string report;
        const auto money = [&](long long amount) { return shown.CurrencyNoDecimals(static_cast<double>(amount)); };
        for (FreeAgentOffer* offer : Whole()) {
            offer->Team = Own;
            report += Of(static_cast<int>(offer->Id)).Name + " was offer " + money(offer->Salary) + " for " +
                      std::to_string(offer->Duration) + " year(s) with " + money(offer->Bonus) + " in bonus.\r\n";
        }
        if (report.empty()) {
            says.ShowBox("No Offer to Save!", 48);
            Result("");
        } else if (ToOthers() > Rules().OffersLeft) {
            says.ShowBox("There is more that " + std::to_string(Rules().OffersLeft) + " offers!", 48);
            Result("");
        } else {
            Result(report + "Client league file save for " + League().Teams[Own].Name.Trimmed() + " succesfully at " +
                   Machine.InFolder("Team1.dvf") + "\r\n");
        }
    }

    void ListCandidates(const PositionFilter& shown)
    {
        const bool entry = Rules().EntryDraft.Word() == -1 && Rules().EntryDraftDone == 0;
        const bool fantasy = Rules().FantasyDraft.Word() == -1;
        Result(entry ? "Entry Draft" : fantasy ? "Fantasy Draft" : "");
        for (int at = 1; fantasy && at <= 11000; ++at) {
            const Facts who = Of(at);
            if (!who.InUse || who.Team != 0 || who.Position < 1 || who.Position > (at > 10000 ? 5 : 4) ||
                !shown[who.Position])
                continue;
            const int slot = at > 10000 ? at - 10000 : at;
            MuteVoice mute;
            const int overall = Rules().ShowOverall.Word() == -1
                                    ? CalculateOverall(League(), mute, static_cast<int>(who.Position), slot)
                                    : -1;
            Result(std::to_string(who.Number + (at > 10000 ? 10000 : 0)) + ' ' + who.Name + Letters(who.Position) +
                   ' ' + std::to_string(overall));
        }
        for (int slot = 1; entry && slot <= 300; ++slot) {
            const std::string name = League().Prospects[slot].Name.Trimmed();
            if (!name.empty())
                Result(std::to_string(20000 + slot) + ' ' + name + " -1");
        }
    }

    bool Nobody(Voice& says, const std::optional<int>& chosen)
    {
        if (!chosen)
            says.ShowBox("No Player Select!", 48);
        return !chosen;
    }

    void RankLast(Voice& says, std::optional<int> id)
    {
        if (Nobody(says, id) || *id <= 0) {
            Result("stays");
            return;
        }
        if (std::count(Ranking.begin(), Ranking.end(), *id) == 0 && Ranking.size() < MostRanked) {
            if (*id > 32767)
                Fail(6);
            Ranking.push_back(*id);
        }
        Result("shown anew");
    }

    void Unrank(Voice& says, std::optional<int> rank)
    {
        if (Nobody(says, rank)) {
            Result("stays");
            return;
        }
        if (*rank < static_cast<int>(Ranking.size())) {
            const bool full = Ranking.size() == MostRanked;
            const int last = Ranking.back();
            Ranking.erase(Ranking.begin() + *rank);
            if (full)
                Ranking.push_back(last);
        }
        Result("shown anew");
    }

    void Move(Voice& says, std::optional<int> rank, bool up)
    {
        const int last = static_cast<int>(Ranking.size()) - 1;
        int now = -1;
        if (!Nobody(says, rank)) {
            if ((up && *rank == 0) || (!up && *rank == last)) {
                says.ShowBox("This player can be move!", 48);
            } else {
                now = up ? *rank - 1 : *rank + 1;
                std::iter_swap(Ranking.begin() + *rank, Ranking.begin() + now);
            }
        }
        Result(std::to_string(now));
    }

    void MoveTo(int from, int to)
    {
        const int id = Ranking[static_cast<std::size_t>(from)];
        Ranking.erase(Ranking.begin() + from);
        Ranking.insert(Ranking.begin() + to, id);
        Result(std::to_string(to));
    }

    void ListRanked()
    {
        for (const int id : Ranking) {
            if ((id > 11000 && id <= 20000) || id > 20300)
                Fail(9);
            if (id > 20000)
                Result(std::to_string(id) + ' ' + League().Prospects[id - 20000].Name.Trimmed());
            else
                Result(std::to_string(id) + ' ' + Of(id).Name + Letters(Of(id).Position));
        }
    }

    void SaveRanking(Voice& says)
    {
        if (Ranking.empty())
            says.ShowBox("Your list is empty!", 48);
        else
            Result("Some Draft File save for " + League().Teams[Own].Name.Trimmed() + " succesfully at\r\n" +
                   Machine.InFolder("Team1.dvd"));
    }

    void Does(Voice& says, const Formats& shown, const Command& command)
    {
        switch (command.What) {
        case Do::Open:
            Open();
            break;
        case Do::ListAgents:
            ListAgents(command.WithOfferOnly);
            break;
        case Do::Take:
            Take(command.Id);
            break;
        case Do::Salary:
        case Do::Duration:
        case Do::Bonus:
            Enter(says, shown, command);
            break;
        case Do::Comment:
            Comment(says, command.Id, command.Text);
            break;
        case Do::InShort: {
            const auto found = Offers.find(command.Id);
            const bool isOne = found != Offers.end() && found->second.Id != 0 && SaysEnough(found->second);
            Result(isOne ? shown.CurrencyNoDecimals(static_cast<double>(found->second.Salary)) + " x " +
                               std::to_string(found->second.Duration)
                         : "");
            break;
        }
        case Do::Tally:
            Tally();
            break;
        case Do::SaveOffers:
            SaveOffers(says, shown);
            break;
        case Do::ListCandidates:
            ListCandidates(command.Shown);
            break;
        case Do::RankLast:
            RankLast(says, command.Chosen);
            break;
        case Do::Unrank:
            Unrank(says, command.Chosen);
            break;
        case Do::Move:
            Move(says, command.Chosen, command.Up);
            break;
        case Do::MoveTo:
            MoveTo(command.From, command.To);
            break;
        case Do::ListRanked:
            ListRanked();
            break;
        case Do::SaveRanking:
            SaveRanking(says);
            break;
        }
    }
};

// ---- Both side by side -----------------------------------------------------------------------------------------------

bool SameRanking(const DraftRanking& ranking, const std::vector<int>& naive)
{
    for (long long rank = 0; rank <= DraftRanking::last; ++rank)
        if (ranking[rank] != (rank < static_cast<long long>(naive.size()) ? naive[static_cast<std::size_t>(rank)] : 0))
            return false;
    return true;
}

TEST(MarketModelTest, RandomEveningsAreThoseOfTheNaiveTelling)
{
    constexpr unsigned leagues = 16;
    constexpr int commands = 200;
    const PlainFormats shown;
    ScriptedPlatform machine;
    std::map<std::string, int> seen;
    for (unsigned seed = 1; seed <= leagues; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollMarket(dice);
        Evening desk{.League = Copy(OpenLeague)};
        Evening naive{.League = Copy(OpenLeague)};
        const auto market = MakeMarket();
        std::map<int, FreeAgentOffer> offers;
        std::vector<int> ranking;
        for (int id = 1, most = static_cast<int>(dice.Pick({0, 3, 999, 1001})); id <= most; ++id) {
            ranking.push_back(id);
            market->Ranking[id - 1] = id;
        }
        for (int turn = 0; turn < commands; ++turn) {
            const Command command = RollCommand(dice, static_cast<int>(ranking.size()));
            SCOPED_TRACE("league " + std::to_string(seed) + ", turn " + std::to_string(turn) + ", command " +
                         std::to_string(static_cast<int>(command.What)));
            const int failAt = dice.Chance(30) ? static_cast<int>(dice.Roll(1, 2)) : 0;
            desk.Results.clear();
            naive.Results.clear();
            const Said byDesk = Told(seed, failAt, [&](Voice& says) {
                Desk{desk, *market, machine}.Does(says, shown, command);
            });
            const Said byNaive = Told(seed, failAt, [&](Voice& says) {
                Naive{naive, offers, ranking, machine}.Does(says, shown, command);
            });
            ASSERT_EQ(byDesk, byNaive);
            ASSERT_EQ(desk.Results, naive.Results);
            ASSERT_FALSE(desk.Modified);
            ASSERT_EQ(std::memcmp(desk.League.get(), naive.League.get(), sizeof(Tables)), 0);
            ASSERT_TRUE(SameRanking(market->Ranking, ranking));
            for (const auto& [id, offer] : offers)
                ASSERT_EQ(std::memcmp(&market->Offers[id], &offer, sizeof offer), 0) << id;
            for (const std::string& told : byDesk)
                ++seen[told.substr(0, 12)];
            for (const std::string& result : desk.Results)
                ++seen[result.substr(0, 7)];
        }
        for (int id = 1; id <= 11000; ++id) {
            const auto found = offers.find(id);
            const FreeAgentOffer expected = found == offers.end() ? FreeAgentOffer{} : found->second;
            ASSERT_EQ(std::memcmp(&market->Offers[id], &expected, sizeof expected), 0) << id;
        }
    }
    // The evenings were not idle ones: everything that can be told was.
    for (const char* told :
         {"box 48 Maxim", "box 48 Minim", "box 48 No Va", "box 48 Only ", "box 48 No Of", "box 48 There",
          "box 48 No Pl", "box 48 This ", "box 48 Your ", "box 16 7 - O", "failed 6",     "failed 7",
          "failed 9",     "entered",      "instead",      "nobody",       "RFA",          "UFA",
          "You can",      "Entry D",      "Fantasy",      "Some Dr",      "stays",        "shown a"})
        EXPECT_GT(seen[told], 0) << told;
}

} // namespace
} // namespace dravik
