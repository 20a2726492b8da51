#pragma once

#include "league/Failure.h"
#include "machine/Voice.h"
#include "support/RandomLeague.h"

#include <string>
#include <utility>
#include <vector>

namespace dravik {

// What was said over a command, line by line.
using Said = std::vector<std::string>;

// Answers by its seed, types one of the texts that it is given, and fails at one of its boxes or questions: the `failAt`-th,
// from 1. Whatever it is told it writes down.
class TroubledVoice final : public Voice {
public:
    TroubledVoice(unsigned seed, int failAt, std::vector<std::string> texts) :
        dice(seed), untilFailure(failAt), typed(std::move(texts))
    {
        MessagesAllowed = true;
    }

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
        return typed.at(static_cast<std::size_t>(dice.Roll(0, static_cast<long long>(typed.size()) - 1)));
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
    std::vector<std::string> typed;
};

// What came of a command: what was said, and the number of its failure behind it.
template <class Does>
Said SaidOver(unsigned seed, int failAt, const std::vector<std::string>& texts, Does&& does)
{
    TroubledVoice says(seed, failAt, texts);
    try {
        does(says);
    } catch (const Failure& failed) {
        says.Heard.push_back("failed " + std::to_string(failed.Number));
    }
    return says.Heard;
}

} // namespace dravik
