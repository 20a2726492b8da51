#include "RosterEvening.h"
#include "rules/Waivers.h"
#include "rules/WipeLines.h"
#include "session/Session.h"
#include "support/RandomLeague.h"
#include "TroubledEvening.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

// Random evenings at the desk beside a naive telling of the same commands, step by step and for one kind of person at a time:
// whatever is answered, and whichever box or question fails, both leave the same bytes and have said the same.
namespace dravik {
namespace {

using namespace roster_evening;

// ---- The naive telling ---------------------------------------------------------------------------------------------

template <class Person>
struct Naive {
    Evening& E;
    Voice& Says;
    const Formats& Shown;
    Person& Man;
    RosterChange& Change;
    int Id; // in the form that both kinds share
    bool Goalie;

    League& Rules() { return E.League->LeagueData; }
    Team& Five() { return E.League->Teams[Own]; }
    std::string Name() { return Man.Name.Trimmed(); }

    bool Move(int from, int to)
    {
        const std::string kind = Goalie ? "Goalie" : "Player";
        if (Man.Condition < 95)
            return Warn("Cannot Move an Injured " + kind + "!");
        if (Man.Suspension != 0)
            return Warn("Cannot Move an Suspended Player!");
        if (Man.Contract == 0)
            return Warn(kind + " without a contract can not be move!");
        if (to == 0) {
            if (Rules().FarmMaxSalary > 0 && Man.Salary > Rules().FarmMaxSalary)
                return Warn(kind + " Salary is too high to be send in the Farm!");
            if (WaiverCheck(*E.League, Says, Id)) {
                const std::string question = Goalie ? "Do you want to send this goalie to waiver?"
                                                    : "Do you want to send this player to waiver?";
                if (Says.ShowBox(question, box::YesNo) == button::No)
                    return false;
                if (!Goalie)
                    Man.Suspension = 99;
            }
        }
        WipePlayerFromTeamLines(*E.League, Says, Own, Id);
        Man.Status = to;
        Change.Status = to;
        E.Counts[from] = E.Counts[from] - 1;
        E.Counts[to] = E.Counts[to] + 1;
        if (to == 0)
            E.Counts[3] = E.Counts[3] - 1;
        else if (to == 1 && from == 0)
            E.Counts[3] = E.Counts[3] + 1;
        E.Modified = true;
        return true;
    }

    void Waive()
    {
        if (Rules().TradeDeadlinePassed && Rules().TradeDeadlineInForce) {
            Says.ShowBox("Trade Deadline is Passed!", box::Information);
            return;
        }
        if (Man.Status == 2 && !Move(2, 1))
            Says.ShowBox("Integrity Check Failed!", box::Critical);
        Man.Suspension = 99;
        Says.ShowBox(Name() + " was sent to Waiver.", box::Information);
    }

    bool Release()
    {
        if (Says.ShowBox("Are you sure you want to release " + Name() + "?", box::YesNo) != button::Yes)
            return false;
        const std::string answer =
            Says.InputBox(Goalie ? "How much % does team paid the goaler for the rest of is contract?"
                                 : "How much % does team paid the player for the rest of is contract?",
                          "Dravik Hockey Simulator Client", "0");
        double percent = 0;
        try {
            percent = std::stod(answer);
        } catch (const std::invalid_argument&) {
            percent = 0;
        }
        percent = std::nearbyint(percent);
        if (percent > 32767)
            Fail(failure::Overflow);
        percent = std::min(100.0, std::max(0.0, percent));

        const auto years = static_cast<double>(Man.Contract);
        const auto salary = static_cast<double>(Man.Salary);
        const auto games = static_cast<double>(Five().SeasonGames);
        const double whole = games < 1 ? years * salary : (years - 1) * salary;
        if (whole > 2147483647.0 || whole < -2147483648.0)
            Fail(failure::Overflow);
        const double begun = games < 1 ? 0 : salary * (games - static_cast<double>(Five().GamesPlayed)) / games;
        const double rest = std::nearbyint(whole + begun);
        if (rest > 2147483647.0 || rest < -2147483648.0)
            Fail(failure::Overflow);
        const double price = percent * rest / 100;
        const double cash = std::nearbyint(static_cast<double>(Five().Cash) - price);
        if (cash > 2147483647.0 || cash < -2147483648.0)
            Fail(failure::Overflow);
        Five().Cash = static_cast<long long>(cash);
        WipePlayerFromTeamLines(*E.League, Says, Own, Id);
        const std::string news = Name() + " was released by " + Five().Name.Trimmed() + " for " + Shown.Currency(price);
        Says.LeagueNews(news);
        Says.TeamNews(Own, news);
        Man.Team = 0;
        Man.Contract = 0;
        Man.NoApplyRerate = Man.Protected = Man.TradeAvailable = Man.NoTrade = false;
        return true;
    }

    bool Captain()
    {
        if (Goalie)
            return Inform("Goalie cannot be Captain!");
        if (Man.Status == 0)
            return Inform("Farm Player cannot be Captain!");
        if (Five().Assistant[1] == Id)
            Five().Assistant[1] = 0;
        if (Five().Assistant[2] == Id)
            Five().Assistant[2] = 0;
        Five().Captain = Id;
        Inform(Name() + " has been selected as captain for " + Five().Name.Trimmed() + ".");
        Says.TeamNews(Own, Name() + " has been selected as captain.");
        return true;
    }

    bool Assistant()
    {
        if (Goalie)
            return Inform("Goalie cannot be Assistant!");
        if (Man.Status == 0)
            return Inform("Farm Player cannot be Assistant!");
        const std::string behind = " for " + Five().Name.Trimmed() + ".";
        if (Five().Assistant[1] == Id || Five().Assistant[2] == Id)
            return Inform(Name() + " is already an assistant" + behind);
        if (Five().Captain == Id)
            return Inform(Name() + " is already a captain" + behind);
        const int answer =
            Says.ShowBox("Do you want " + Name() + " to be assistant #1 (Yes) or assistant #2 (No)?", box::YesNoCancel);
        if (answer == button::Cancel)
            return true;
        const int place = answer == button::Yes ? 1 : 2;
        Five().Assistant[place] = Id;
        Inform(Name() + " has been selected as assistant #" + std::to_string(place) + behind);
        Says.TeamNews(Own, Name() + " has been selected as assistant.");
        return true;
    }

    void Protect(bool tick)
    {
        if (tick && Five().ProtectedCount >= Rules().MaxProtected) {
            Inform("Maximum Number of Protected Players Reached!");
        } else {
            Five().ProtectedCount = tick ? Five().ProtectedCount + 1 : std::max(0LL, Five().ProtectedCount - 1);
            Man.Protected = tick;
            Change.Protected = tick;
        }
        E.Modified = true;
    }

    void Star()
    {
        const auto set = [&](bool available) {
            Man.TradeAvailable = available;
            Change.TradeAvailable = available;
        };
        if (Man.NoTrade) {
            set(false);
            Says.ShowBox("Integrity Check Failed!", box::Critical);
        }
        set(!Man.TradeAvailable);
        E.Modified = true;
    }

    bool Warn(const std::string& text)
    {
        Says.ShowBox(text, box::Warning);
        return false;
    }
    bool Inform(const std::string& text)
    {
        Says.ShowBox(text, box::Information);
        return false;
    }
};

template <class Person>
void Naively(Naive<Person> by, const Command& command)
{
    std::string& result = by.E.Result;
    switch (command.Number) {
    case 0:
        result = by.Move(command.From, command.To) ? "moved" : "stays";
        break;
    case 1:
        by.Waive();
        break;
    case 2:
        result = by.Release() ? "released" : "stays";
        break;
    case 3:
        result = by.Captain() ? "told" : "refused";
        break;
    case 4:
        result = by.Assistant() ? "told" : "refused";
        break;
    case 5:
        by.Protect(command.Tick);
        break;
    case 6:
        by.Star();
        break;
    case 7:
        by.Man.NoTrade = command.Tick;
        by.E.Modified = true;
        break;
    default:
        by.Man.NoApplyRerate = command.Tick;
        by.E.Modified = true;
        break;
    }
}

void Naively(Evening& evening, Voice& says, const Formats& shown, const Command& command)
{
    Tables& league = *evening.League;
    const int slot = command.Who.Slot;
    if (command.Who.IsGoalie)
        Naively(Naive<Goalie>{evening, says, shown, league.Goalies[slot], league.RosterChangesGoalie[slot],
                              10000 + slot, true},
                command);
    else
        Naively(Naive<Player>{evening, says, shown, league.Players[slot], league.RosterChanges[slot], slot, false},
                command);
}

// ---- Both side by side ---------------------------------------------------------------------------------------------

TEST(RosterModelTest, RandomEveningsAreThoseOfTheNaiveTelling)
{
    constexpr unsigned leagues = 25;
    constexpr int commands = 150;
    const PlainFormats shown;
    int failures = 0;
    int boxes = 0;
    for (unsigned seed = 1; seed <= leagues; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollLeague(dice);
        LeagueData.MaxProtected = 3;
        Evening desk{.League = Copy(OpenLeague)};
        Evening naive{.League = Copy(OpenLeague)};
        for (int turn = 0; turn < commands; ++turn) {
            const Command command = RollCommand(dice);
            const auto answers = static_cast<unsigned>(dice.Roll(1, 1000000));
            const int failAt = dice.Chance(30) ? static_cast<int>(dice.Roll(1, 3)) : 0;
            const Said byDesk = Told(answers, failAt, [&](Voice& says) { AtTheDesk(desk, says, shown, command); });
            const Said byNaive = Told(answers, failAt, [&](Voice& says) { Naively(naive, says, shown, command); });
            ASSERT_EQ(byDesk, byNaive) << "league " << seed << ", turn " << turn << ", command " << command.Number;
            ASSERT_EQ(desk.Result, naive.Result) << "league " << seed << ", turn " << turn;
            ASSERT_EQ(desk.Modified, naive.Modified) << "league " << seed << ", turn " << turn;
            ASSERT_EQ(std::memcmp(&desk.Counts, &naive.Counts, sizeof desk.Counts), 0);
            ASSERT_EQ(std::memcmp(desk.League.get(), naive.League.get(), sizeof(Tables)), 0)
                << "league " << seed << ", turn " << turn << ", command " << command.Number;
            failures += !byDesk.empty() && byDesk.back().starts_with("failed") ? 1 : 0;
            boxes += static_cast<int>(byDesk.size());
        }
    }
    // The evenings were not idle ones.
    EXPECT_GT(failures, 100);
    EXPECT_GT(boxes, 1500);
}

} // namespace
} // namespace dravik
