#include "terminal/Verbs.h"

namespace dravik::terminal {

void AddThreads(CLI::App& command, int& threads)
{
    constexpr int most = 64;
    command.add_option("-j,--threads", threads, "work on so many files at once")
        ->type_name("N")
        ->check(CLI::Range(1, most))
        ->capture_default_str();
}

void AddLeagues(CLI::App& command, CommonOptions& options)
{
    command.add_option("LEAGUE.dvs", options.Leagues, "client files of the simulator")->required()->type_name("");
    AddThreads(command, options.Threads);
}

void AddTeams(CLI::App& command, CommonOptions& options)
{
    command.add_option("--team", options.Teams, "a team, by number, name or abbreviation; without it all of them")
        ->type_name("N|NAME")
        ->take_all()
        ->expected(1);
}

void AddLeague(CLI::App& command, std::string& league)
{
    command.add_option("LEAGUE.dvs", league, "client file of the simulator")->required()->type_name("");
}

void AddPasswords(CLI::App& command, std::string& file)
{
    command
        .add_option("--passwords", file,
                    "passwords of teams: a line a team, number, blank, password; others may not read the file")
        ->type_name("FILE");
}

CLI::Option* AddOut(CLI::App& command, std::string& out, const char* help, const std::string& type)
{
    const auto isNamed = [](const std::string& name) {
        return name.empty() ? std::string("no name stands there") : "";
    };
    return command.add_option("--out", out, help)->type_name(type)->check(isNamed);
}

void AddJson(CLI::App& command, bool& asJson) { command.add_flag("--json", asJson, "tell it as JSON"); }

} // namespace dravik::terminal
