#include "terminal/LeagueAtHand.h"

#include "desk/PrepareLeague.h"
#include "files/ClientFile.h"
#include "files/VerifyFile.h"
#include "league/Failure.h"
#include "league/LetterCase.h"
#include "terminal/Problem.h"
#include "terminal/Utf8.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace dravik::terminal {

namespace {

std::string Upper(std::string text)
{
    text = UpperCase(std::move(text));
    for (char& c : text) // the accented letters of the code page
        if (static_cast<unsigned char>(c) >= 0xE0 && static_cast<unsigned char>(c) != 0xF7 &&
            static_cast<unsigned char>(c) != 0xFF)
            c = static_cast<char>(static_cast<unsigned char>(c) - 0x20);
    return text;
}

int TeamNamed(const Tables& league, const std::string& wanted)
{
    int number = 0;
    const auto [end, error] = std::from_chars(wanted.data(), wanted.data() + wanted.size(), number);
    if (error == std::errc() && end == wanted.data() + wanted.size()) {
        if (!TeamTable::Has(number) || !league.Teams[number].InUse)
            throw Problem("there is no team " + wanted);
        return number;
    }
    std::string name;
    try {
        name = Upper(FromUtf8(wanted));
    } catch (const Failure&) {
        throw Problem("there is no team \"" + wanted + "\"");
    }
    int found = 0;
    for (int team = 1; team <= TeamTable::last; ++team) {
        const Team& record = league.Teams[team];
        if (!record.InUse || (Upper(record.Name.Trimmed()) != name && Upper(record.Abbre.Trimmed()) != name))
            continue;
        if (found != 0)
            throw Problem("several teams are named \"" + wanted + "\"; give the number");
        found = team;
    }
    if (found == 0)
        throw Problem("there is no team \"" + wanted + "\"");
    return found;
}

} // namespace

std::string LeagueAtHand::Name() const { return OnOneLine(ToUtf8(League->LeagueData.Name.Trimmed())); }
std::string LeagueAtHand::NameOf(int team) const { return OnOneLine(ToUtf8(League->Teams[team].Name.Trimmed())); }

LeagueAtHand OpenLeague(const std::string& path)
{
    LeagueAtHand league{.Path = path, .League = MakeTables(), .Machine = std::make_unique<Machine>()};
    MarkRosterChangesUntouched(*league.League);
    Machine& machine = *league.Machine;
    try {
        machine.UsePlainFiles(IsPlainFile(machine, path));
        const ClientFileRead read = ReadClientFile(*league.League, SlotFilesOf(machine.Files()), path);
        const std::vector<std::string> told = machine.TakeTold();
        if (read.File == SlotFileRead::NotDecompressed)
            throw Problem(told.empty() ? std::string(NotWholeWords) : ToUtf8(told.front()));
        if (!read.Whole)
            throw Problem(std::string(NotWholeWords));
        league.IsDamaged = read.File == SlotFileRead::Damaged;
    } catch (const Failure& failed) {
        throw Problem(failed.what());
    }
    PrepareLeague(*league.League);
    return league;
}

std::vector<int> TeamsNamed(const Tables& league, const std::vector<std::string>& wanted)
{
    std::vector<int> teams;
    for (const std::string& name : wanted)
        if (const int team = TeamNamed(league, name); std::find(teams.begin(), teams.end(), team) == teams.end())
            teams.push_back(team);
    if (!wanted.empty())
        return teams;
    for (int team = 1; team <= TeamTable::last; ++team)
        if (league.Teams[team].InUse)
            teams.push_back(team);
    return teams;
}

} // namespace dravik::terminal
