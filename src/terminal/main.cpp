#include "terminal/Console.h"
#include "terminal/Interrupt.h"
#include "terminal/Machine.h"
#include "terminal/Problem.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

// The terminal's program: finds the verb and has it run.
int main(int argc, char** argv)
{
    using namespace dravik::terminal;
    const ConsoleOutput output;
    CLI::App program("Leagues of the Dravik Hockey Simulator at the terminal, for scripts and for many teams.",
                     "dravik");
    program.set_version_flag("--version", DRAVIK_VERSION);
    program.require_subcommand(1);
    program.failure_message([](const CLI::App* /*app*/, const CLI::Error& error) {
        return WithoutControls(OnOneLine("dravik: " + std::string(error.what()))) + "; --help tells more\n";
    });
    program.footer(
        "Ends with 0 when it is done and all is well, 1 when something was found, 2 when something failed.\n"
        "A team with a password shows what is private behind it alone: it is asked for at the terminal, or read\n"
        "from --passwords FILE.");
    const Verb verbs[] = {AddCheck(program), AddShow(program),   AddVerify(program),
                          AddMake(program),  AddExport(program), AddOffers(program),
                          AddDraft(program), AddDiff(program),   AddSheet(program)};
    try {
        const std::vector<std::string> arguments = Utf8Arguments(argc, argv);
        program.parse(
            std::vector<std::string>(arguments.rbegin(), arguments.rend() - 1)); // the last first, without the name
    } catch (const CLI::ParseError& asked) {
        return program.exit(asked) == 0 ? ending::Done : ending::Failed;
    }
    PutInOrderAtInterrupt();
    try {
        for (const Verb& verb : verbs)
            if (verb.Command->parsed())
                return verb.Run();
    } catch (const std::exception& failed) {
        std::cerr << WithoutControls(OnOneLine("dravik: " + std::string(failed.what()))) << std::endl;
    }
    return ending::Failed;
}
