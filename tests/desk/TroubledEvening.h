#pragma once

#include "league/Failure.h"
#include "league/Formats.h"
#include "league/Voice.h"
#include "support/RandomLeague.h"

#include <string>
#include <vector>

// What random evenings at the desk are told by: whatever is answered, and whichever box or question fails, the desk and a naive
// telling of the same commands have to say the same.
namespace dravik {

using Said = std::vector<std::string>;

// Answers by its seed, and fails at one of its boxes or questions.
class TroubledVoice final : public Voice {
public:
    TroubledVoice(unsigned seed, int failAt) : dice(seed), untilFailure(failAt) { MessagesAllowed = true; }

    int MessageBox(const std::string& text, int kind, const std::string& /*title*/) override
    {
        Hear("box " + std::to_string(kind) + ' ' + text);
        if (kind == box::YesNo)
            return dice.Chance(70) ? button::Yes : button::No;
        constexpr long long answers[] = {button::Yes, button::No, button::Cancel};
        return kind == box::YesNoCancel ? static_cast<int>(dice.Pick(answers)) : button::Ok;
    }
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override
    {
        Hear("question " + prompt + ' ' + title + ' ' + text);
        static constexpr const char* answers[] = {"", "0", "50", "100", "101", "-3", "33.5", "many", "40000"};
        return answers[dice.Roll(0, 8)];
    }
    void LeagueNews(std::string_view text) override { Heard.push_back("league " + std::string(text)); }
    void TeamNews(int team, std::string_view text) override
    {
        Heard.push_back("team " + std::to_string(team) + ' ' + std::string(text));
    }

    Said Heard;

private:
    void Hear(const std::string& what)
    {
        Heard.push_back(what);
        if (--untilFailure == 0)
            Fail(failure::OutOfMemory);
    }

    Dice dice;
    int untilFailure;
};

class PlainMoney final : public Formats {
public:
    [[nodiscard]] std::string Currency(double amount) const override { return std::to_string(amount); }
    [[nodiscard]] std::string CurrencyNoDecimals(double amount) const override { return std::to_string(amount); }
    [[nodiscard]] std::string Fixed(double value, int /*decimals*/) const override { return std::to_string(value); }
    [[nodiscard]] std::string LongDate(double days) const override { return std::to_string(days); }
    [[nodiscard]] std::string ShortTime(double days) const override { return std::to_string(days); }
};

// What came of a command: what was said, and the number of its failure.
template <class Does>
Said Told(unsigned seed, int failAt, Does&& does)
{
    TroubledVoice says(seed, failAt);
    try {
        does(says);
    } catch (const Failure& failed) {
        says.Heard.push_back("failed " + std::to_string(failed.Number));
    }
    return says.Heard;
}

} // namespace dravik
