// An evening of random commands on a random league, with a journal, which goes on until the process is killed.
//
//     journal_evening play FOLDER LEAGUE EVENING LOG   brings back what the journals in FOLDER hold unsaved, and goes on from
//                                                      there; before the journal hears of a state, its number stands in LOG
//     journal_evening back FOLDER LEAGUE               brings it back, and prints the number of the state
//
// LEAGUE and EVENING are seeds. Ends with 1 when something did not go as it should, and says what on standard error.

#include "desk/AnyCommand.h"
#include "desk/JournalState.h"
#include "machine/Clock.h"
#include "session/OpenHistory.h"
#include "session/OpenJournal.h"
#include "session/OpenMarket.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

namespace dravik {
namespace {

Seal State() { return JournalState(OpenLeague, OpenMarket()); }

void OpenRolledLeague(unsigned seed, const char* folder)
{
    Dice dice(seed);
    RollAny(dice, static_cast<Kind>(seed % KindCount));
    MarkRosterChangesUntouched(OpenLeague);
    for (Team& team : Teams)
        team.Password = "";
    KeepJournals(folder, LocalTime);
    BeginHistory();
    BeginJournal();
}

// Brings back whatever there is. What does not go is told in a box.
bool BringAllBack(const ScriptedPlatform& machine)
{
    if (!UnsavedWorkWords().empty() && !BringBackWork()) {
        for (const Box& box : machine.Boxes())
            std::cerr << box.Text << '\n';
        return false;
    }
    return true;
}

class Evening {
public:
    Evening(unsigned seed, ScriptedPlatform& files, const char* logPath) :
        dice(seed), disk(files), log(std::fopen(logPath, "ab"))
    {
        Note();
    }

    [[noreturn]] void Play()
    {
        for (;;) {
            if (JournalWords() != "")
                Fail("the journal has stopped");
            if (dice.Chance(15))
                GoBack(static_cast<int>(dice.Roll(1, 6)));
            else
                TakeStep();
        }
    }

private:
    // One line at once, so that it is there whole when the process dies.
    void Note()
    {
        (void)std::fprintf(log, "%llu\n", static_cast<unsigned long long>(State()));
        (void)std::fflush(log);
    }
    [[noreturn]] static void Fail(const char* why)
    {
        std::cerr << why << '\n';
        std::_Exit(1);
    }

    // The commands work on a league of their own.
    void Run(const AnyCommand::Does& does)
    {
        *league = OpenLeague;
        const auto answers = static_cast<unsigned>(dice.Roll(1, 1000000));
        const int failAt = dice.Chance(20) ? static_cast<int>(dice.Roll(1, 3)) : 0;
        SaidOver(answers, failAt, Typed, [&](Voice& says) { does(says); });
        OpenLeague = *league;
        disk.FailNoMore();
        disk.ForgetBoxes("nobody looks at them");
    }
    void TakeStep()
    {
        // Somebody else, whose changes belong to the step before. Without one they are no work, and are not brought back.
        if (dice.Chance(20) && OpenHistory().ToUndo() != nullptr) {
            Run(commands.Roll());
            Note();
        }
        *league = OpenLeague;
        const auto does = commands.Roll();
        const OpenStep step = OpenHistory().Open({.Words = "Command",
                                                  .Where = "Desk",
                                                  .Team = dice.Chance(1) ? Own + 1 : Own,
                                                  .Drag = static_cast<std::uint64_t>(dice.Chance(30) ? 1 : 0)});
        Run(does);
        Note();
    }
    void GoBack(int turns)
    {
        History& history = OpenHistory();
        for (; turns > 0 && history.ToUndo() != nullptr; --turns) {
            const DeskContents desk{OpenLeague, &OpenMarket()};
            const ByteDifference& change = history.ToUndo()->Change;
            Put(desk, change, DifferenceEnd::Before); // to see where it leads
            Note();
            Put(desk, change, DifferenceEnd::After);
            if (history.Undo() != Turned::Done)
                Fail("a step does not go back");
        }
    }

    Dice dice;
    ScriptedPlatform& disk;
    std::FILE* log;
    std::unique_ptr<Tables> league = Copy(OpenLeague);
    AnyCommand commands{dice, league, OpenMarket(), disk, [](int offer) { OpenHistory().Watch(offer); }};
};

int Run(int argc, char** argv)
{
    const std::string_view mode = argc > 1 ? argv[1] : "";
    if (!(mode == "play" && argc == 6) && !(mode == "back" && argc == 4)) {
        std::cerr << "usage: " << argv[0] << " play FOLDER LEAGUE EVENING LOG | back FOLDER LEAGUE\n";
        return 2;
    }
    ScriptedPlatform machine;
    machine.Settings["SkipZIPClient"] = "YES"; // the quick way
    UseMachine(machine);
    OpenRolledLeague(static_cast<unsigned>(std::atoi(argv[3])), argv[2]);
    if (!BringAllBack(machine))
        return 1;
    if (mode == "play")
        Evening(static_cast<unsigned>(std::atoi(argv[4])), machine, argv[5]).Play();
    std::cout << State() << '\n';
    KeepJournals({}, {});
    return 0;
}

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::Run(argc, argv); }
