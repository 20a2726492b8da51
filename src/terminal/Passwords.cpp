#include "terminal/Passwords.h"

#include "desk/Password.h"
#include "league/Failure.h"
#include "terminal/Ask.h"
#include "terminal/Problem.h"
#include "terminal/Utf8.h"

#include <charconv>
#include <fstream>
#include <optional>
#include <sys/stat.h>

namespace dravik::terminal {

namespace {

bool MayOthersRead([[maybe_unused]] const std::string& path)
{
#ifndef _WIN32
    struct stat about {};
    constexpr unsigned others = S_IRGRP | S_IROTH | S_IWGRP | S_IWOTH;
    return stat(path.c_str(), &about) == 0 && (about.st_mode & others) != 0;
#else
    return false;
#endif
}

std::string InCodePage(const std::string& typed)
{
    try {
        return FromUtf8(typed);
    } catch (const Failure&) {
        return typed; // as it stands: it may come from a terminal of the code page
    }
}

} // namespace

Passwords ReadPasswords(const std::string& path)
{
    Passwords known;
    if (path.empty())
        return known;
    std::ifstream file(PathOf(path), std::ios::binary);
    if (!file)
        throw Problem(path + ": cannot be read");
    if (MayOthersRead(path))
        throw Problem(path + ": others may read or change these passwords; take that right from them (chmod 600)");
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        if (++number == 1)
            line = std::string(WithoutByteOrderMark(line));
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line.front() == '#')
            continue;
        int team = 0;
        const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), team);
        const auto at = static_cast<std::size_t>(end - line.data());
        if (error != std::errc() || !TeamTable::Has(team) || at == line.size() || (line[at] != ' ' && line[at] != '\t'))
            throw Problem(path + ": line " + std::to_string(number) + " is no team's number, a blank and its password");
        known[team].push_back(InCodePage(line.substr(at + 1)));
    }
    if (file.bad()) // a folder opens as a file does
        throw Problem(path + ": cannot be read");
    return known;
}

Proof Prove(const Tables& league, Machine& machine, int team, const Passwords& known)
{
    // A team without a password is open to the empty answer as to any other.
    if (CheckPassword(league, machine, team))
        return Proof::Proven;
    (void)machine.TakeTold();
    const auto passwords = known.find(team);
    if (passwords == known.end())
        return Proof::Unknown;
    for (const std::string& password : passwords->second) {
        machine.Answer(password);
        const bool proven = CheckPassword(league, machine, team);
        (void)machine.TakeTold();
        if (proven)
            return Proof::Proven;
    }
    return Proof::Wrong;
}

std::string Demand(const Tables& league, Machine& machine, int team, const Passwords& known)
{
    Passwords tried = known;
    const std::string name = std::to_string(team) + " " + OnOneLine(ToUtf8(league.Teams[team].Name.Trimmed()));
    Proof proof = Prove(league, machine, team, known);
    if (proof == Proof::Unknown) {
        const std::optional<std::string> typed =
            AskHidden("Password of " + name + " (" + OnOneLine(ToUtf8(league.LeagueData.Name.Trimmed())) + "): ");
        if (!typed)
            throw Problem("team " + name + ": Password Required!");
        tried = {{team, {InCodePage(*typed)}}};
        proof = Prove(league, machine, team, tried);
    }
    if (proof != Proof::Proven)
        throw Problem("team " + name + ": Password is incorrect!");
    for (const std::string& password : tried[team]) {
        machine.Answer(password);
        const bool fits = CheckPassword(league, machine, team);
        machine.Answer({});
        (void)machine.TakeTold();
        if (fits)
            return password;
    }
    return {};
}

} // namespace dravik::terminal
