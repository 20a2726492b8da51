#include "machine/InputCheck.h"
#include "OfficeEvening.h"
#include "support/ScriptedPlatform.h"
#include "support/TroubledVoice.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>

// Random evenings in a team's office beside a naive telling of the same: whatever is typed, and whichever box or question fails,
// both leave the same bytes and have said the same.
namespace dravik {
namespace {

using namespace office_evening;

// ---- The naive telling ---------------------------------------------------------------------------------------------

struct Naive {
    Office& O;
    Voice& Says;
    const Formats& Shown;
    int Number;

    Team& Own() { return O.League->Teams[Number]; }
    bool Passes(const std::string& text, int mode, bool required)
    {
        return CheckInput(Says, text, static_cast<InputMode>(mode), required);
    }
    static double Lead(const std::string& text)
    {
        try {
            return std::stod(text);
        } catch (const std::invalid_argument&) {
            return 0;
        }
    }
    static bool IsBlank(const std::string& text)
    {
        return text.find_first_not_of(std::string("\0 ", 2)) == std::string::npos;
    }

    void Price(int level, const std::string& text)
    {
        if (!Passes(text, 0, true)) {
            O.Result = "refused ";
            return;
        }
        const double value = Lead(text);
        long long price = Own().TicketPrice[level];
        bool isShown = true;
        if (value >= -32768 && value <= 32767) {
            isShown = value > 999 || value < 1;
            price = value > 999 ? 999 : value < 1 ? 1 : static_cast<long long>(value);
            Own().TicketPrice[level] = price;
            O.Modified = true;
        }
        O.Result = "taken " + (isShown ? std::to_string(price) : "");
    }

    void Seats(int level, const std::string& text)
    {
        if (!Passes(text, 0, true)) {
            O.Result = "refused ";
            return;
        }
        const double value = Lead(text);
        if (value < -2147483648.0)
            Fail(failure::Overflow);
        Own().ArenaCapacity[level] = value > 99999 ? 99999 : static_cast<long long>(value);
        O.Modified = true;
        O.Result = value > 99999 ? "taken 99999" : "taken ";
    }

    void Rename(Text<40>& name, const std::string& text)
    {
        O.Result = "not done";
        if (!Passes(text, 2, true))
            return;
        Says.TeamNews(Number, "Team Name Change : " + name.Trimmed() + " changed name to " + text);
        Store(name, text);
    }
    void Abbreviate(Text<3>& name, const std::string& text)
    {
        O.Result = "not done";
        if (!Passes(text, 1, true))
            return;
        if (text.size() == 3)
            Store(name, text);
        else
            Says.ShowBox("Abbreviation must be 3 characters long!", 48);
        O.Modified = true;
    }
    template <std::size_t N>
    void Store(Text<N>& field, const std::string& text)
    {
        field = text;
        O.Modified = true;
        O.Result = "done";
    }
    void Call(Text<40>& field, const std::string& text)
    {
        O.Result = "not done";
        if (Passes(text, 2, false))
            Store(field, text);
    }
    void Hire(const std::string& text)
    {
        O.Result = "not done";
        if (!Passes(text, 1, false))
            return;
        const std::string head = "General Manager Change : " + Own().Name.Trimmed();
        if (!IsBlank(Own().Gm.Raw()))
            Says.TeamNews(Number, head + " fired general manager " + Own().Gm.Trimmed());
        if (!IsBlank(text))
            Says.TeamNews(Number, head + " hired general manager " + text);
        Store(Own().Gm, text);
    }
    void Reach(Text<40>& field, const std::string& kind, const std::string& text)
    {
        field = text;
        Says.LeagueNews(Own().Name.Trimmed() + " " + kind + " Address was change to " + field.Trimmed() + ".");
        O.Modified = true;
    }
    void Mood(Int16& field, const std::string& text)
    {
        if (!Passes(text, 0, false)) {
            O.Result = "refused ";
            return;
        }
        const double value = Lead(text);
        if (value > 32767)
            Fail(failure::Overflow);
        field = value < 1 ? 1 : static_cast<long long>(value);
        O.Modified = true;
        O.Result = value < 1 ? "taken 1" : "taken ";
    }
    void Fire(Int16& coach, const std::string& employer)
    {
        if (coach != 0) {
            Coach& man = O.League->Coaches[coach];
            if (Says.ShowBox("Are you sure you wants to fire " + man.Name.Trimmed() + "?", 36) == button::Yes) {
                const std::string news = employer + " fired " + man.Name.Trimmed() + ".";
                Says.LeagueNews(news);
                Says.TeamNews(Number, news);
                man.Team = 0;
                coach = 0;
                O.Modified = true;
                O.Result += "done";
                return;
            }
        }
        O.Result += "not done";
    }
    void Add(Int32& field, const std::string& prompt, bool staysAbove)
    {
        const std::string text = Says.AskText(prompt);
        if (text.empty() || !Passes(text[0] == '-' ? text.substr(1) : text, 0, false))
            return;
        const double amount = Lead(text);
        const double sum = amount + static_cast<double>(field);
        for (const double number : {amount, sum})
            if (number < -2147483648.0 || number > 2147483647.0)
                Fail(failure::Overflow);
        field = staysAbove && sum < 0 ? 0 : static_cast<long long>(sum);
        O.Result += "figures ";
        O.Modified = true;
    }

    void Do(const Command& command)
    {
        Team& own = Own();
        const std::string& text = command.Text;
        O.Result.clear();
        switch (command.Number) {
        case 0:
            return Price(command.Level, text);
        case 1:
            return Seats(command.Level, text);
        case 2:
            return Call(own.ArenaName, text);
        case 3:
            return Rename(own.Name, text);
        case 4:
            return Rename(own.Farm.Name, text);
        case 5:
            return Abbreviate(own.Abbre, text);
        case 6:
            return Abbreviate(own.Farm.Abbre, text);
        case 7:
            return Call(own.City, text);
        case 8:
            return Hire(text);
        case 9:
            return Reach(own.Email, "Email", text);
        case 10:
            return Reach(own.Messenger, "Messenger", text);
        case 11:
            return Mood(own.ProMorale, text);
        case 12:
            return Mood(own.Farm.FarmMorale, text);
        case 13:
            Fire(own.ProCoach, own.Name.Trimmed());
            return Fire(own.Farm.FarmCoach, own.Farm.Name.Trimmed());
        case 14:
            return Add(own.Cash, "How much to add/remove?", false);
        default:
            return Add(own.PayrollBonus,
                       "How much to add/remove? Current Payroll Bonus is " +
                           Shown.Currency(static_cast<double>(own.PayrollBonus)),
                       true);
        }
    }
};

// ---- Both side by side ---------------------------------------------------------------------------------------------

TEST(TeamOfficeModelTest, RandomEveningsAreThoseOfTheNaiveTelling)
{
    constexpr unsigned leagues = 25;
    constexpr int commands = 200;
    const ScriptedPlatform shown;
    int failures = 0;
    int said = 0;
    std::array<int, CommandCount> done{};
    for (unsigned seed = 1; seed <= leagues; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollLeague(dice);
        for (int team = 1; team <= 3; ++team) {
            Teams[team].ProCoach = dice.Roll(0, 6);
            Teams[team].Farm.FarmCoach = dice.Roll(0, 6);
        }
        Office desk{.League = Copy(OpenLeague)};
        Office naive{.League = Copy(OpenLeague)};
        for (int turn = 0; turn < commands; ++turn) {
            const Command command = RollCommand(dice);
            const auto answers = static_cast<unsigned>(dice.Roll(1, 1000000));
            const int failAt = dice.Chance(20) ? static_cast<int>(dice.Roll(1, 3)) : 0;
            const Said byDesk =
                SaidOver(answers, failAt, Typed, [&](Voice& says) { AtTheDesk(desk, says, shown, command); });
            const Said byNaive = SaidOver(answers, failAt, Typed, [&](Voice& says) {
                Naive{naive, says, shown, command.Team}.Do(command);
            });
            ASSERT_EQ(byDesk, byNaive) << "league " << seed << ", turn " << turn << ", command " << command.Number;
            ASSERT_EQ(desk.Modified, naive.Modified) << "league " << seed << ", turn " << turn;
            ASSERT_EQ(std::memcmp(desk.League.get(), naive.League.get(), sizeof(Tables)), 0)
                << "league " << seed << ", turn " << turn << ", command " << command.Number << ' ' << command.Text;
            const bool failed = !byDesk.empty() && byDesk.back().starts_with("failed");
            if (!failed) {
                ASSERT_EQ(desk.Result, naive.Result)
                    << "league " << seed << ", turn " << turn << ", command " << command.Number << ' ' << command.Text;
                ++done.at(static_cast<std::size_t>(command.Number));
            }
            failures += failed ? 1 : 0;
            said += static_cast<int>(byDesk.size());
        }
    }
    // The evenings were not idle ones.
    EXPECT_GT(failures, 100);
    EXPECT_GT(said, 1500);
    for (const int times : done)
        EXPECT_GT(times, 100);
}

} // namespace
} // namespace dravik
