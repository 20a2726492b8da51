// What the judges, the money rules, the makers and the advice on lines cost, each against one bare walk over the 11000 people of a full league
// inside one run: the counter "ratio" is the time of ours divided by the time of the walk; both times are in microseconds. Ends
// with 1 when a ratio is above its limit.
//
//     judges_bench

#include "bench/FullTeam.h"
#include "bench/Ratio.h"
#include "desk/LineAdvice.h"
#include "desk/LinesOfAllDays.h"
#include "makers/Makers.h"
#include "rules/Finance.h"
#include "rules/LineJudge.h"
#include "rules/People.h"
#include "rules/RosterJudge.h"
#include "rules/SalaryCap.h"
#include "rules/WipeLines.h"
#include "session/Session.h"

#include <array>
#include <cstring>

namespace dravik {
namespace {

bool LinesAreComplete() { return CheckLine(OpenWork(), Own, false, 1, true).Complete; }
bool FarmLinesAreComplete() { return CheckLineFarm(OpenWork(), Own, false, 1, true).Complete; }
bool RosterIsComplete() { return CheckRoster(OpenWork(), Own, true, false, false).Complete; }

// Looks at every record of both tables once and counts the team's people, with the program's own walk: what is measured
// is what the routines add to it.
long long WalkTables()
{
    long long found = 0;
    const auto count = [&](const auto& /*person*/, int /*index*/) { ++found; };
    EachOfTeam(Players, Own, count);
    EachOfTeam(Goalies, Own, count);
    return found;
}

// The same in a plain loop. How long that one takes depends on where the compiler puts it, so it is told beside the other and
// no limit is in terms of it.
long long WalkWrittenOut()
{
    long long found = 0;
    for (const Player& player : Players)
        found += player.InUse && player.Team == Own ? 1 : 0;
    for (const Goalie& keeper : Goalies)
        found += keeper.InUse && keeper.Team == Own ? 1 : 0;
    return found;
}

void UseFullLeague()
{
    static ScriptedPlatform machine;
    static const bool filled = [] {
        UseMachine(machine);
        PutTeam();
        return true;
    }();
    benchmark::DoNotOptimize(filled);
    Demand(WalkTables() == Skaters + Keepers);
}

void Nothing() {}
void EmptyAllDays()
{
    for (int day = 1; day <= LineDays; ++day)
        WipesLines(OpenLeague, Machine(), Own, day, true);
}
void FillAllDays()
{
    for (int day = 1; day <= LineDays; ++day)
        AutoLines(OpenWork(), Own, false, day);
}
void LookAtAllDays()
{
    static const auto scratch = MakeTables();
    benchmark::DoNotOptimize(dravik::LookAtAllDays(OpenLeague, Machine(), Own, Side::Pro, *scratch).data());
}
void EmptyDay() { WipesLines(OpenLeague, Machine(), Own, 1, true); }
void EmptyFarmDay() { WipesLines(OpenLeague, Machine(), Own, 1, false); }
void RefillFarmDay() { AutoLinesFarm(OpenWork(), Own, false, 1); }
void RefillDay() { AutoLines(OpenWork(), Own, false, 1); }

// Puts the third line into the first places of all units and lists, where whoever is better is free then.
void WeakenDay(Side side)
{
    OpenLeague.LeagueData.ShowOverall = true;
    Lines& lines = LinesOf(OpenLeague, Own, 1, side);
    for (const LineSlot& slot : SkaterSlots)
        if (slot.Number <= 2 && slot.Field != LineField::NormalForward && slot.Field != LineField::NormalDefense) {
            const bool isDefense = WantsDefense(slot.Field);
            At(lines, slot) = At(lines, SlotOf(isDefense ? LineField::NormalDefense : LineField::NormalForward, 3,
                                               isDefense ? slot.Place : 1 + (slot.Number + slot.Place) % 3));
        }
}
void WeakenProDay()
{
    RefillDay();
    WeakenDay(Side::Pro);
}
void WeakenFarmDay()
{
    RefillFarmDay();
    WeakenDay(Side::Farm);
}

constexpr double JudgeLimit = 4;
constexpr double RosterAndCapLimit = 2; // one walk for the roster and for both payrolls
constexpr double CopyLimit = 1.5;       // of one memcpy
constexpr double MakerLimit = 30;
constexpr double AllDaysLimit = 15; // a copy of the league and ten judgements
constexpr double AdviceLimit = 15;  // of the two milliseconds that a day's advice may take, about a fifteenth

struct Case {
    const char* Name = nullptr;
    double Limit = 0;            // in walks; 0 = none
    void (*Prepare)() = nullptr; // goes before each round, outside its time
    void (*Work)() = nullptr;
    bool (*Holds)() = [] { return true; }; // what must be true after the last round
};

// In partial mode nobody is sent down, so the farm stays empty here.
bool TeamIsDressed()
{
    int dressed = 0;
    const auto count = [&](const auto& person, int /*index*/) { dressed += person.Status == status::Pro ? 1 : 0; };
    EachOfTeam(Players, Own, count);
    EachOfTeam(Goalies, Own, count);
    return dressed == 20;
}

constexpr std::array Cases{
    Case{"WalkWrittenOut", 0, Nothing, [] { benchmark::DoNotOptimize(WalkWrittenOut()); }},
    Case{"JudgeRoster", JudgeLimit, Nothing, [] { Demand(RosterIsComplete()); }},
    Case{"JudgeRosterAndCap", RosterAndCapLimit, Nothing,
         [] { Demand(CheckRoster(OpenWork(), Own, true, true, false).Complete); }},
    Case{"JudgeCap", JudgeLimit, Nothing, [] { Demand(CheckSalaryCap(OpenWork(), Own, false).Within); }},
    Case{"JudgeLines", JudgeLimit, RefillDay, [] { Demand(LinesAreComplete()); }},
    Case{"JudgeEmptyLines", JudgeLimit, EmptyDay, [] { Demand(!LinesAreComplete()); }},
    Case{"JudgeFarmLines", JudgeLimit, RefillFarmDay, [] { Demand(FarmLinesAreComplete()); }},
    Case{"JudgeEmptyFarmLines", JudgeLimit, EmptyFarmDay, [] { Demand(!FarmLinesAreComplete()); }},
    Case{"LookAtAllEmptyDays", AllDaysLimit, EmptyAllDays, LookAtAllDays},
    Case{"LookAtAllDays", AllDaysLimit, FillAllDays, LookAtAllDays},
    Case{"AdviseLines", AdviceLimit, WeakenProDay, [] { Demand(AdviceOn(OpenLeague, Own, Side::Pro, 1).size() > 5); }},
    Case{"AdviseFarmLines", AdviceLimit, WeakenFarmDay,
         [] { Demand(AdviceOn(OpenLeague, Own, Side::Farm, 1).size() > 5); }},
    Case{"PayPro", JudgeLimit, Nothing, [] { Demand(ProPayroll(OpenLeague, Machine(), Own) > 0); }},
    Case{"PayFarm", JudgeLimit, Nothing, [] { Demand(FarmPayroll(OpenLeague, Machine(), Own) > 0); }},
    Case{"MakeLines", MakerLimit, EmptyDay, [] { AutoLines(OpenWork(), Own, false, 1); }, LinesAreComplete},
    Case{"MakeLinesPartly", MakerLimit, EmptyDay, [] { AutoLinesPartial(OpenWork(), Own, false, 1); },
         LinesAreComplete},
    Case{"MakeFarmLines", MakerLimit, EmptyFarmDay, [] { AutoLinesFarm(OpenWork(), Own, false, 1); },
         FarmLinesAreComplete},
    // These two come last: who is dressed afterwards is their own choice.
    Case{"MakeRoster", MakerLimit, ScratchEverybody, [] { AutoRoster(OpenWork(), Own, false, false); },
         RosterIsComplete},
    Case{"MakeRosterPartly", MakerLimit, ScratchEverybody, [] { AutoRoster(OpenWork(), Own, false, true); },
         TeamIsDressed},
};

void AgainstAWalk(benchmark::State& state, const Case& row)
{
    constexpr double microsecond = 1e-6;
    UseFullLeague();
    const auto walk = [] { benchmark::DoNotOptimize(WalkTables()); };
    const double ratio = Compare(state, row.Work, walk, microsecond, row.Prepare);
    Demand(row.Holds());
    if (row.Limit != 0)
        HoldTo(state, ratio, row.Limit);
}

// A whole league, copied onto the heap and given up again, against one memcpy of its size.
void CopyALeague(benchmark::State& state)
{
    constexpr double microsecond = 1e-6;
    UseFullLeague();
    const auto target = MakeTables();
    const auto ours = [] { benchmark::DoNotOptimize(Copy(OpenLeague).get()); };
    const auto bare = [&] {
        std::memcpy(static_cast<void*>(target.get()), &OpenLeague, sizeof OpenLeague);
        benchmark::ClobberMemory();
    };
    HoldTo(state, Compare(state, ours, bare, microsecond), CopyLimit);
}

void RegisterCases()
{
    benchmark::RegisterBenchmark("CopyALeague", CopyALeague)
        ->Iterations(2001)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
    for (const Case& row : Cases)
        benchmark::RegisterBenchmark(row.Name, [&row](benchmark::State& state) { AgainstAWalk(state, row); })
            ->Iterations(2001)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
}

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    dravik::RegisterCases();
    return dravik::RunBenchmarks(argc, argv);
}
