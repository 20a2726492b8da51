// What a step of the history costs where a command changes most: closing it on a full league, against one copy of the tables
// inside one run. The counter "ratio" is the time of closing divided by that of the copy; both times are in microseconds.
// "changed" is how many bytes the command changed, and "excess" what the step takes above twice as much. Ends with 1 when a
// ratio or an excess is above its limit.
//
//     history_bench

#include "bench/FullTeam.h"
#include "desk/CopyLines.h"
#include "desk/History.h"
#include "files/LinesFile.h"
#include "rules/WipeLines.h"

#include <array>
#include <cstring>
#include <memory>

namespace dravik {
namespace {

constexpr double CloseLimit = 3;     // copies of the tables
constexpr double EverybodyLimit = 8; // where a byte in the record of everybody changes
constexpr double ExcessLimit = 4096; // bytes

// The league, with a manager who has a hundred offers out, and the lines file of his team.
struct Evening {
    ScriptedPlatform Machine;
    std::unique_ptr<Market> Offers = MakeMarket();
    History Past{OpenLeague};
    std::string LinesPath = Machine.InFolder("Lines.dvl");

    Evening()
    {
        UseMachine(Machine);
        PutTeam();
        TempFile = Machine.InFolder("TempFile");
        Machine.Settings["SkipZIPClient"] = "YES"; // the quick way
        Demand(WriteLinesFile(OpenLeague, OpenFiles(), Own, LinesPath));
        Past.Join(*Offers);
        Past.Begin();
        for (int id = 1; id <= 100; ++id) {
            Past.Watch(id * 100);
            Offers->Offers[id * 100].Id = id * 100;
        }
    }
};

// Empties all days, of which a lines file brings back every slot, and sets everybody aside.
void EmptyTeam()
{
    ScratchEverybody();
    for (int day = 1; day <= 10; ++day) {
        WipesLines(OpenLeague, Machine(), Own, day, true);
        WipesLines(OpenLeague, Machine(), Own, day, false);
    }
}
// And nobody's status is known to the list of changes, as when no lines file has been loaded or saved yet.
void ForgetTeam()
{
    EmptyTeam();
    MarkRosterChangesUntouched(OpenLeague);
}
void EmptyOtherDays()
{
    for (int day = 2; day <= 10; ++day)
        WipesLines(OpenLeague, Machine(), Own, day, true);
}

struct Case {
    const char* Name;
    double Limit; // in copies of the tables
    void (*Prepare)();
    void (*Command)(const Evening& evening);
};
constexpr std::array Cases{
    Case{"AutomaticRoster", CloseLimit, EmptyTeam, [](const Evening&) { AutoRoster(OpenWork(), Own, false, false); }},
    Case{"CopyToAllDays", CloseLimit, EmptyOtherDays,
         [](const Evening&) { CopyLinesToAllDays(OpenWork(), Own, Side::Pro, 1); }},
    Case{"LoadLines", EverybodyLimit, ForgetTeam,
         [](const Evening& evening) {
             Demand(ReadLinesFile(OpenLeague, OpenFiles(), Own, evening.LinesPath) == TeamFileRead::Loaded);
         }},
};

std::size_t BytesIn(const ByteDifference& change)
{
    std::size_t bytes = 0;
    RunReader reader(change.Stored());
    while (const auto run = reader.Next())
        bytes += run->Before.size();
    return bytes;
}

void CloseAStep(benchmark::State& state, const Case& row)
{
    constexpr double microsecond = 1e-6;
    const auto evening = std::make_unique<Evening>();
    History& past = evening->Past;
    row.Prepare();
    std::unique_ptr<OpenStep> step;
    const auto open = [&] {
        past.Undo();
        step.reset(new OpenStep(past.Open({.Words = row.Name, .Where = "Bench", .Team = Own})));
        row.Command(*evening);
        evening->Machine.ForgetBoxes("what a command tells is not measured");
    };
    const auto target = MakeTables();
    const auto copy = [&] {
        std::memcpy(static_cast<void*>(target.get()), &OpenLeague, sizeof OpenLeague);
        benchmark::ClobberMemory();
    };
    const double ratio = Compare(
        state, [&] { step.reset(); }, copy, microsecond, open);
    HoldTo(state, ratio, row.Limit);

    Demand(past.ToUndo() != nullptr && past.ToUndo()->Label.Words == row.Name);
    const std::size_t changed = BytesIn(past.ToUndo()->Change);
    const double excess = static_cast<double>(past.ToUndo()->Held()) - 2.0 * static_cast<double>(changed);
    Demand(changed > 100);
    state.counters["changed"] = static_cast<double>(changed);
    state.counters["excess"] = excess;
    if (excess > ExcessLimit)
        HoldTo(state, excess, ExcessLimit);
}

// Opening a step looks for what changed outside of one; undoing it does, and puts the bytes back.
void TurnAStep(benchmark::State& state)
{
    constexpr double microsecond = 1e-6;
    const auto evening = std::make_unique<Evening>();
    History& past = evening->Past;
    EmptyTeam();
    {
        const OpenStep step = past.Open({.Words = "Make", .Where = "Bench", .Team = Own});
        AutoRoster(OpenWork(), Own, false, false);
    }
    const auto target = MakeTables();
    const auto copy = [&] {
        std::memcpy(static_cast<void*>(target.get()), &OpenLeague, sizeof OpenLeague);
        benchmark::ClobberMemory();
    };
    const auto undo = [&] { Demand(past.Undo() == Turned::Done); };
    HoldTo(state, Compare(state, undo, copy, microsecond, [&] { past.Redo(); }), CloseLimit);
}

void RegisterCases()
{
    for (const Case& row : Cases)
        benchmark::RegisterBenchmark(row.Name, [&row](benchmark::State& state) { CloseAStep(state, row); })
            ->Iterations(501)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Undo", TurnAStep)->Iterations(501)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    dravik::RegisterCases();
    return dravik::RunBenchmarks(argc, argv);
}
