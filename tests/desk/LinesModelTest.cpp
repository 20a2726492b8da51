#include "LinesEvening.h"
#include "rules/LineJudge.h"
#include "support/RandomLeague.h"
#include "support/ScriptedPlatform.h"
#include "support/TroubledVoice.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

// Random evenings over the lines beside a naive telling of the same commands, step by step: whatever is answered or typed, and
// whichever box or question fails, both leave the same bytes and have said the same. The naive telling knows a day as its 76
// words.
namespace dravik {
namespace {

using namespace lines_evening;

// ---- The naive telling ---------------------------------------------------------------------------------------------

struct Naive {
    Evening& E;
    Voice& Says;
    const Formats& Shown;
    const Command& C;

    using Words = std::array<std::int16_t, 76>;
    Tables& L() const { return *E.League; }
    bool IsPro() const { return C.Side == Side::Pro; }

    Lines& Day(int day) const
    {
        if (day < 1 || day > 10)
            Fail(failure::OutOfRange);
        return IsPro() ? L().Teams[Own].ProLines[day] : L().Teams[Own].Farm.FarmLines[day];
    }
    Words Read(int day) const
    {
        Words words{};
        std::memcpy(words.data(), &Day(day), sizeof words);
        return words;
    }
    void Write(int day, const Words& words) const
    {
        std::memcpy(static_cast<void*>(&Day(day)), words.data(), sizeof words);
    }
    static bool IsReserved(std::size_t word) { return word == 46 || word == 47; }

    // The word of a slot: line by line through the groups, then the extras in turn.
    static std::size_t WordOf(int slot)
    {
        std::vector<int> words;
        for (int line = 0; line < 4; ++line)
            for (const int first : {0, 4, 8, 12, 16})
                words.push_back(first + line);
        for (int unit = 0; unit < 2; ++unit)
            for (const int first : {20, 22, 24, 26, 28})
                words.push_back(first + unit);
        for (const int group : {38, 30})
            for (int unit = 0; unit < 2; ++unit)
                for (const int first : {0, 2, 4, 6})
                    words.push_back(group + first + unit);
        for (int unit = 0; unit < 2; ++unit)
            for (const int first : {48, 50, 52})
                words.push_back(first + unit);
        for (int number = 0; number < 5; ++number)
            for (const int first : {56, 61, 66})
                words.push_back(first + number);
        words.push_back(54);
        words.push_back(55);
        return static_cast<std::size_t>(words.at(static_cast<std::size_t>(slot)));
    }

    void Place() const
    {
        const std::size_t word = WordOf(C.Slot);
        bool takes = !C.Who.IsGoalie;
        if (word == 54 || word == 55)
            takes = C.Who.IsGoalie;
        else if (word >= 56 && word <= 60)
            takes = takes && (C.Position == 1 || C.Position == 2 || C.Position == 3);
        else if (word >= 61 && word <= 65)
            takes = takes && (C.Position == 4 || (!IsPro() && C.Who.Slot == 0));
        E.Result = takes ? "placed" : "refused";
        if (!takes)
            return;
        Words words = Read(C.Day);
        words[word] = static_cast<std::int16_t>(C.Who.Slot);
        Write(C.Day, words);
    }

    void CopyTo(int to) const
    {
        if (C.Day < 1 || C.Day > 10 || to < 1 || to > 10) {
            Says.ShowBox("9 - Subscript out of range in Copy!", box::Critical);
            return;
        }
        const Words from = Read(C.Day);
        Words words = Read(to);
        for (std::size_t i = 0; i < words.size(); ++i)
            if (!IsReserved(i))
                words[i] = from[i];
        Write(to, words);
    }
    void AskAndCopy() const
    {
        const std::string answer =
            Says.InputBox("What day do you have to copy your lines?", "Dravik Hockey Simulator Client", "");
        double number = 0;
        try {
            number = std::stod(answer);
        } catch (const std::invalid_argument&) {
            number = 0;
        }
        number = std::nearbyint(number);
        if (number > 32767)
            Fail(failure::Overflow);
        if (number < 1 || number > C.Other) {
            Says.ShowBox("Please entry a number between 1 and " + std::to_string(C.Other) + ".", box::Warning);
            return;
        }
        const std::string to = std::to_string(static_cast<int>(number));
        const std::string from = std::to_string(C.Day);
        if (Says.ShowBox("Are you want to you want to copy the lines from day " + from + " to day " + to + "?",
                         box::YesNo) == button::No)
            return;
        CopyTo(static_cast<int>(number));
        Says.ShowBox("Lines " + from + " was successfully copy to Lines " + to + ".", box::Information);
    }
    void CopyToAll() const
    {
        const std::string from = std::to_string(C.Day);
        if (Says.ShowBox("Are you want to you want to copy the lines from day " + from + " to day all the others day?",
                         box::YesNo) == button::No)
            return;
        for (int day = 1; day <= 10; ++day)
            if (day != C.Day)
                CopyTo(day);
        Says.ShowBox("Lines " + from + " was successfully copy to day all the others day.", box::Information);
    }

    void Wipe() const
    {
        E.Result = "kept"; // what a failure leaves is not asked for
        if (Says.ShowBox("Are you sure you want to wipe your lines?", box::YesNo) == button::No)
            return;
        E.Result = "wiped";
        if (C.Day < 1 || C.Day > 10) {
            try {
                Says.ShowBox("Integrity Check Failed!", box::Critical);
            } catch (const Failure&) {
                Says.ShowBox("7 - Out of memory in WipesLines!", box::Critical);
            }
            return;
        }
        Words words = Read(C.Day);
        for (std::size_t i = 0; i <= 73; ++i)
            if (!IsReserved(i))
                words[i] = 0;
        Write(C.Day, words);
    }

    void Give() const
    {
        const int left = 5 - C.Bars[0] - C.Bars[1] - C.Bars[2];
        E.Result = left < 0 ? "too many" : std::to_string(left);
        if (left < 0)
            return;
        Words words = Read(C.Day);
        words[71 + static_cast<std::size_t>(C.Style)] =
            static_cast<std::int16_t>(C.Bars.at(static_cast<std::size_t>(C.Style)));
        Write(C.Day, words);
    }

    // Digits and minus signs, with one digit at least before anything else.
    bool IsNumber() const
    {
        const std::size_t bad = C.Text.find_first_not_of("0123456789-");
        const std::size_t digit = C.Text.find_first_of("0123456789");
        if (bad == std::string::npos && digit != std::string::npos)
            return true;
        const std::string words =
            digit == std::string::npos || digit > bad ? "No Valid Input!" : "Only numbers are allowed in that textbox!";
        try {
            Says.ShowBox(words, box::Warning);
        } catch (const Failure&) {
            Says.ShowBox("7 - Out of memory in CheckInput", box::Critical);
        }
        return false;
    }
    void Pull() const
    {
        const std::size_t word = C.IsGoal ? 74 : 75;
        if (IsNumber()) {
            const int number = std::stoi(C.Text);
            if (number > 32767 || number < -32768)
                Fail(failure::Overflow);
            Words words = Read(C.Day);
            words[word] = static_cast<std::int16_t>(number);
            Write(C.Day, words);
            E.Modified = true;
        }
        const League& rules = L().LeagueData;
        const long long own = Read(C.Day)[word];
        const long long otherwise = C.IsGoal ? rules.PullGoalerMinGoalDefault : rules.PullGoalerMinPctDefault;
        E.Result = std::to_string(own != 0 ? own : otherwise);
    }

    template <class Maker>
    void Make(Maker maker) const
    {
        E.Result = "not made";
        if (L().LeagueData.AutoRosterDisabled.Word() != -1 &&
            maker({L(), Says, Shown, E.Modified}, Own, true, C.Day).Done)
            E.Result = "made";
    }

    void Warn() const
    {
        const Work work{L(), Says, Shown, E.Modified};
        const bool complete = IsPro() ? CheckLine(work, Own, false, 1, false).Complete
                                      : CheckLineFarm(work, Own, false, 1, false).Complete;
        if (!complete)
            Says.ShowBox(IsPro() ? "Lines for Day #1 are Incomplete!" : "Farm Lines for Day #1 are Incomplete!",
                         box::Warning);
    }

    void List() const
    {
        E.Result = !IsPro() && L().LeagueData.FarmRosterRequired.Word() == 0 ? "with placeholders:" : "people:";
        const auto fits = [this](const auto& person) {
            return person.InUse.Word() == -1 && person.Team == Own && person.Status == (IsPro() ? 2 : 0) &&
                   person.Condition >= 95 && person.Suspension == 0;
        };
        for (int i = 1; i <= 10000; ++i) {
            const Player& player = L().Players[i];
            if (!fits(player))
                continue;
            if (player.Position < 1 || player.Position > 4)
                Says.ShowBox(player.Name.Trimmed() + " has no position!", box::Critical);
            else
                E.Result += ' ' + std::to_string(i) + '/' + std::to_string(static_cast<int>(player.Position));
        }
        for (int i = 1; i <= 1000; ++i)
            if (fits(L().Goalies[i]))
                E.Result += ' ' + std::to_string(i + 10000) + "/5";
    }
};

void Naively(Evening& evening, Voice& says, const Formats& shown, const Command& command)
{
    const Naive by{evening, says, shown, command};
    switch (command.Number) {
    case 0:
        return by.Place();
    case 1:
        return by.CopyTo(command.Other);
    case 2:
        return by.AskAndCopy();
    case 3:
        return by.CopyToAll();
    case 4:
        return by.Wipe();
    case 5:
        return by.Give();
    case 6:
        return by.Pull();
    case 7:
        return command.Side == Side::Pro ? by.Make(AutoLines) : by.Make(AutoLinesFarm);
    case 8:
        return by.Make(AutoLinesPartial);
    case 9:
        return by.Warn();
    default:
        return by.List();
    }
}

// ---- Both side by side ---------------------------------------------------------------------------------------------

TEST(LinesModelTest, RandomEveningsAreThoseOfTheNaiveTelling)
{
    constexpr unsigned leagues = 12;
    constexpr int commands = 150;
    const ScriptedPlatform shown;
    int failures = 0;
    int said = 0;
    int made = 0;
    for (unsigned seed = 1; seed <= leagues; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollLeague(dice);
        LeagueData.AutoRosterDisabled.SetWord(dice.Pick({-1, 0, 0, 1}));
        LeagueData.PullGoalerMinGoalDefault = 4;
        LeagueData.PullGoalerMinPctDefault = 82;
        Evening desk{.League = Copy(OpenLeague)};
        Evening naive{.League = Copy(OpenLeague)};
        for (int turn = 0; turn < commands; ++turn) {
            const Command command = RollCommand(dice);
            desk.Result.clear();
            naive.Result.clear();
            const auto answers = static_cast<unsigned>(dice.Roll(1, 1000000));
            const int failAt = dice.Chance(30) ? static_cast<int>(dice.Roll(1, 3)) : 0;
            const Said byDesk =
                SaidOver(answers, failAt, Typed, [&](Voice& says) { AtTheDesk(desk, says, shown, command); });
            const Said byNaive =
                SaidOver(answers, failAt, Typed, [&](Voice& says) { Naively(naive, says, shown, command); });
            const bool failed = !byDesk.empty() && byDesk.back().starts_with("failed");
            const auto where = [&] {
                return "league " + std::to_string(seed) + ", turn " + std::to_string(turn) + ", command " +
                       std::to_string(command.Number);
            };
            ASSERT_EQ(byDesk, byNaive) << where();
            ASSERT_TRUE(failed || desk.Result == naive.Result) << where() << desk.Result << naive.Result;
            ASSERT_EQ(desk.Modified, naive.Modified) << where();
            ASSERT_EQ(std::memcmp(desk.League.get(), naive.League.get(), sizeof(Tables)), 0) << where();
            failures += failed ? 1 : 0;
            said += static_cast<int>(byDesk.size());
            made += desk.Result == "made" ? 1 : 0;
        }
    }
    // The evenings were not idle ones.
    EXPECT_GT(failures, 80);
    EXPECT_GT(said, 800);
    EXPECT_GT(made, 5);
}

} // namespace
} // namespace dravik
