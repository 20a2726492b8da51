#include "desk/TeamNames.h"

#include "league/Trimming.h"
#include "machine/InputCheck.h"

#include <string_view>

namespace dravik {

namespace {

// The pattern of all of them: `CheckInput`, then the rule of the name, which says whether it took the text.
template <class Rule>
bool Take(const Work& work, const std::string& text, InputMode mode, bool required, Rule&& rule)
{
    if (!CheckInput(work.Says, text, mode, required))
        return false;
    const bool taken = rule();
    work.Modified = true;
    return taken;
}

bool Rename(const Work& work, int team, Text<40>& name, const std::string& text, std::string_view warning)
{
    return Take(work, text, InputMode::NumbersAndLetters, true, [&] {
        if (text.empty()) { // which `CheckInput` refuses before
            work.Says.ShowBox(warning, box::Warning);
            return false;
        }
        work.Says.TeamNews(team, "Team Name Change : " + name.Trimmed() + " changed name to " + text);
        name = text;
        return true;
    });
}

bool Abbreviate(const Work& work, Text<3>& field, const std::string& text)
{
    return Take(work, text, InputMode::Letters, true, [&] {
        constexpr std::size_t length = 3;
        if (text.size() != length) {
            work.Says.ShowBox("Abbreviation must be 3 characters long!", box::Warning);
            return false;
        }
        field = text;
        return true;
    });
}

} // namespace

bool RenameTeam(const Work& work, int team, const std::string& text)
{
    return Rename(work, team, work.League.Teams[team].Name, text, "Team Name must be at least one character!");
}

bool RenameFarm(const Work& work, int team, const std::string& text)
{
    return Rename(work, team, work.League.Teams[team].Farm.Name, text,
                  "Farm Team Name must be at least one character!");
}

bool AbbreviateTeam(const Work& work, int team, const std::string& text)
{
    return Abbreviate(work, work.League.Teams[team].Abbre, text);
}

bool AbbreviateFarm(const Work& work, int team, const std::string& text)
{
    return Abbreviate(work, work.League.Teams[team].Farm.Abbre, text);
}

bool NameCity(const Work& work, int team, const std::string& text)
{
    return Take(work, text, InputMode::NumbersAndLetters, false, [&] {
        work.League.Teams[team].City = text;
        return true;
    });
}

bool NameGeneralManager(const Work& work, int number, const std::string& text)
{
    return Take(work, text, InputMode::Letters, false, [&] {
        Team& team = work.League.Teams[number];
        const std::string change = "General Manager Change : " + team.Name.Trimmed();
        if (!RemoveSpaces(team.Gm.Raw()).empty())
            work.Says.TeamNews(number, change + " fired general manager " + team.Gm.Trimmed());
        if (!RemoveSpaces(text).empty())
            work.Says.TeamNews(number, change + " hired general manager " + text);
        team.Gm = text;
        return true;
    });
}

} // namespace dravik
