#pragma once

#include <CLI/CLI.hpp>

namespace dravik::terminal {

// What the program is asked to do: each verb is added to the command line, and says how it ended once it was called.
struct Verb {
    CLI::App* Command = nullptr;
    std::function<int()> Run;
};

Verb AddCheck(CLI::App& program);
Verb AddShow(CLI::App& program);
Verb AddVerify(CLI::App& program);
Verb AddMake(CLI::App& program);
Verb AddExport(CLI::App& program);
Verb AddOffers(CLI::App& program);
Verb AddDraft(CLI::App& program);
Verb AddDiff(CLI::App& program);
Verb AddSheet(CLI::App& program);

// The options that several verbs have.
struct CommonOptions {
    std::vector<std::string> Leagues;
    std::vector<std::string> Teams;
    std::string PasswordFile;
    bool AsJson = false;
    int Threads = 1;
};

// The client files, one or more, and the threads for them.
void AddLeagues(CLI::App& command, CommonOptions& options);
// Teams by number, name or abbreviation; without them all.
void AddTeams(CLI::App& command, CommonOptions& options);
// One client file.
void AddLeague(CLI::App& command, std::string& league);
void AddPasswords(CLI::App& command, std::string& file);
// Where to: a name that is not empty. `type` is "FILE.dvl", or "FOLDER".
CLI::Option* AddOut(CLI::App& command, std::string& out, const char* help, const std::string& type);
void AddJson(CLI::App& command, bool& asJson);
void AddThreads(CLI::App& command, int& threads);

} // namespace dravik::terminal
