#include "RecordEvening.h"
#include "rules/WipeLines.h"
#include "support/ScriptedPlatform.h"
#include "support/TroubledVoice.h"

#include <array>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <type_traits>

// Random edits of records beside a naive telling of the same: whatever is typed, and whichever box fails, both leave the same
// bytes and have said the same.
namespace dravik {
namespace {

using namespace record_evening;

// ---- The naive telling ---------------------------------------------------------------------------------------------

double Lead(const std::string& text)
{
    try {
        return std::stod(text);
    } catch (const std::invalid_argument&) {
        return 0;
    }
}

long long Fit(double value, double least, double most)
{
    const double whole = std::nearbyint(value);
    if (whole < least || whole > most)
        Fail(failure::Overflow);
    return static_cast<long long>(whole);
}
long long FitLong(double value) { return Fit(value, -2147483648.0, 2147483647.0); }
long long FitShort(double value) { return Fit(value, -32768, 32767); }
long long FitByte(double value) { return Fit(value, 0, 255); }

template <class Person>
struct Naive {
    Desk& D;
    Voice& Says;
    Person& Man;
    PersonId Who;

    Tables& All() { return *D.League; }
    std::string Called() { return Man.Name.Trimmed(); }
    [[nodiscard]] std::string Kind() const { return Who.IsGoalie ? "goalie" : "player"; }

    void Bench()
    {
        if (Man.Status == 2)
            Man.Status = 1;
        if (Man.Team != 0)
            WipePlayerFromTeamLines(All(), Says, static_cast<int>(Man.Team), Who.Slot + (Who.IsGoalie ? 100 : 0));
    }

    void Number(int field, const std::string& text)
    {
        const League& rules = All().LeagueData;
        double value = Lead(text);
        const auto cut = [&value](double above, double below, double becomes) {
            if (value > above)
                value = above;
            if (value < below)
                value = becomes;
        };
        constexpr double any = 1e300;
        switch (field) {
        case 0: // age
        case 1: // weight
            cut(any, 1, 1);
            break;
        case 2: // height
            cut(any, 1, 0);
            break;
        case 3: // contract
            cut(9, 1, 0);
            break;
        case 4: // salary
            cut(static_cast<double>(rules.MaxSalary), static_cast<double>(rules.MinSalary),
                static_cast<double>(rules.MinSalary));
            break;
        case 5: // condition
            cut(100, 0, 0);
            break;
        default: // suspension
            cut(99, 0, 0);
        }
        const long long now = FitLong(value);
        if (field == 3 && now == 0 && Man.Team != 0 && !rules.OffSeason) {
            Says.ShowBox("Zero year contract is not allowed for players who are playing in a team.", 64);
            D.Result = "refused";
            return;
        }
        const long long condition = Man.Condition;
        const long long suspension = Man.Suspension;
        const auto number = static_cast<double>(now);
        if (field == 0)
            Man.Age = FitShort(number);
        else if (field == 1)
            Man.Weight = FitShort(number);
        else if (field == 2)
            Man.Height = FitShort(number);
        else if (field == 3)
            Man.Contract = now;
        else if (field == 4)
            Man.Salary = now;
        else if (field == 5)
            Man.Condition = now;
        else
            Man.Suspension = now;
        D.Modified = true;
        if (field == 5 && now >= 95) {
            D.Result += "healed ";
            Man.Injury = "";
        } else if (field == 5 && condition >= 95) {
            D.Result += "injured ";
            Man.Injury = "Unknown";
            Bench();
        } else if (field == 6 && suspension == 0 && now > 0) {
            D.Result += "suspended ";
            Bench();
            const std::string team = Man.Team == 0 ? "" : All().Teams[Man.Team].Name.Trimmed();
            Says.LeagueNews(Called() + " from " + team + " suspended for " + std::to_string(now) + " game(s)");
        }
        D.Result += "stored";
    }

    void Word(int field, const std::string& text)
    {
        if (field == 0)
            Man.Name = text;
        else if (field == 1)
            Man.Country = text;
        else
            Man.Injury = text;
        D.Modified = true;
    }

    void Rate(int rating, const std::string& text)
    {
        Man.Stats[rating] = FitShort(Lead(text));
        D.Modified = true;
    }

    void Flag(int field, bool on)
    {
        if (field == 0)
            Man.Rookie = on;
        else if (field == 1)
            Man.NoTrade = on;
        else
            Man.NoApplyRerate = on;
    }

    bool Erase()
    {
        const std::string name = Called();
        if (Says.ShowBox("Are you sure you want to erase " + name + "?", 36) != button::Yes)
            return false;
        if (Man.Team != 0) {
            const std::string team = All().Teams[Man.Team].Name.Trimmed();
            if (Says.ShowBox(name + " is hired by " + team + "! Do you want release the " + Kind() + "?", 36) !=
                button::Yes)
                return false;
            const bool retires = Says.ShowBox("Is " + name + " retiring?", 36) == button::Yes;
            const std::string news = name + (retires ? " retired from " : " was released by ") + team;
            Says.LeagueNews(news);
            Says.TeamNews(static_cast<int>(Man.Team), news);
        }
        D.Modified = true;
        return true;
    }

    void Create(const NewRecord& from)
    {
        D.Result = "unlisted ";
        const int ratings = Who.IsGoalie ? 13 : 15;
        bool filled = !from.Name.empty() && !from.Country.empty() && !from.Age.empty() && !from.Weight.empty() &&
                      !from.Height.empty() && !from.Contract.empty() && !from.Salary.empty() && !from.Condition.empty();
        for (int i = 0; i < ratings; ++i)
            filled = filled && !from.Ratings.at(static_cast<std::size_t>(i)).empty();
        if (!filled) {
            Says.ShowBox("Missing Field!", 48);
            D.Result += "missing";
            return;
        }
        Man.InUse = true;
        Man.Number = Who.Slot;
        Man.Name = from.Name;
        Man.Country = from.Country;
        Man.Age = FitShort(Lead(from.Age));
        Man.Weight = FitShort(Lead(from.Weight));
        Man.Height = FitShort(Lead(from.Height));
        Man.Contract = FitByte(Lead(from.Contract));
        Man.Salary = FitLong(Lead(from.Salary));
        Man.Condition = FitByte(Lead(from.Condition));
        Man.Team = 0;
        for (int i = 1; i <= ratings; ++i)
            Man.Stats[i] = FitShort(Lead(from.Ratings.at(static_cast<std::size_t>(i - 1))));
        Place(from.Position);
        Man.NoApplyRerate = from.NoApplyRerate;
        Man.Rookie = from.Rookie;
        Man.NoTrade = from.NoTrade;
        Says.LeagueNews(Called() + " was created.");
        D.Result = "listed ";
        Says.ShowBox(Called() + " was successfully created!", 64);
        D.Modified = true;
        D.Result += "made";
    }
    void Place(int place)
    {
        if constexpr (std::is_same_v<Person, Player>)
            Man.Position = place;
    }
};

void RepairNaively(Desk& desk, Voice& says)
{
    for (int slot = 1; slot <= 10000; ++slot) {
        Player& player = desk.League->Players[slot];
        if (player.InUse && (player.Position < 1 || player.Position > 4)) {
            says.ShowBox(player.Name.Trimmed() + " has no position! He's now center.", 48);
            player.Position = 1;
        }
    }
}

template <class Person>
void Naively(Naive<Person> by, const Command& command)
{
    static const char* const places[] = {"C", "LW", "RW", "D"};
    const int place = command.Choice % 4;
    by.D.Result.clear();
    switch (command.Number) {
    case ANumber:
        by.Number(command.Choice % 7, command.Text);
        break;
    case AText:
        by.Word(command.Choice % 3, command.Text);
        break;
    case ARating:
        by.Rate(command.Choice, command.Text);
        break;
    case AFlag:
        by.Flag(command.Choice % 3, command.Tick);
        break;
    case APosition:
        by.Place(1 + place);
        by.Says.LeagueNews(by.Called() + " position was change to " + places[place]);
        break;
    case AnErasure:
        by.D.Result = by.Erase() ? "erased" : "stays";
        break;
    case ANewRecord:
        by.Create(command.Record);
        break;
    default:
        RepairNaively(by.D, by.Says);
    }
}

void Naively(Desk& desk, Voice& says, const Command& command)
{
    Tables& league = *desk.League;
    const PersonId who = command.Who;
    if (who.IsGoalie)
        Naively(Naive<Goalie>{desk, says, league.Goalies[who.Slot], who}, command);
    else
        Naively(Naive<Player>{desk, says, league.Players[who.Slot], who}, command);
}

// ---- Both side by side ---------------------------------------------------------------------------------------------

TEST(PlayerRecordModelTest, RandomEditsAreThoseOfTheNaiveTelling)
{
    constexpr unsigned leagues = 25;
    constexpr int commands = 150;
    const ScriptedPlatform shown;
    int failures = 0;
    int said = 0;
    std::array<int, CommandCount> done{};
    for (unsigned seed = 1; seed <= leagues; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollLeague(dice);
        LeagueData.OffSeason = dice.Chance(30);
        Desk desk{.League = Copy(OpenLeague)};
        Desk naive{.League = Copy(OpenLeague)};
        for (int turn = 0; turn < commands; ++turn) {
            const Command command = RollCommand(dice);
            const auto answers = static_cast<unsigned>(dice.Roll(1, 1000000));
            const int failAt = dice.Chance(20) ? static_cast<int>(dice.Roll(1, 3)) : 0;
            const Said byDesk =
                SaidOver(answers, failAt, {}, [&](Voice& says) { AtTheDesk(desk, says, shown, command); });
            const Said byNaive = SaidOver(answers, failAt, {}, [&](Voice& says) { Naively(naive, says, command); });
            ASSERT_EQ(byDesk, byNaive) << "league " << seed << ", turn " << turn << ", command " << command.Number;
            ASSERT_EQ(desk.Modified, naive.Modified) << "league " << seed << ", turn " << turn;
            ASSERT_EQ(std::memcmp(desk.League.get(), naive.League.get(), sizeof(Tables)), 0)
                << "league " << seed << ", turn " << turn << ", command " << command.Number;
            const bool failed = !byDesk.empty() && byDesk.back().starts_with("failed");
            if (!failed) {
                ASSERT_EQ(desk.Result, naive.Result) << "league " << seed << ", turn " << turn;
                ++done.at(static_cast<std::size_t>(command.Number));
            }
            failures += failed ? 1 : 0;
            said += static_cast<int>(byDesk.size());
        }
    }
    // The edits were not idle ones.
    EXPECT_GT(failures, 100);
    EXPECT_GT(said, 1000);
    for (const int times : done)
        EXPECT_GT(times, 50);
}

} // namespace
} // namespace dravik
