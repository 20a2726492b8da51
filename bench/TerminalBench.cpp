#include "bench/BareInflate.h"
#include "bench/Ratio.h"
#include "desk/LineMakers.h"
#include "rules/LineJudge.h"
#include "rules/RosterJudge.h"
#include "support/ClientFileBytes.h"
#include "support/SmallLeague.h"
#include "terminal/Verbs.h"

#include <iostream>
#include <sstream>

// What `dravik check` of a full league costs, in terms of what nobody can do without: inflating the file and asking the judges.
namespace dravik {
namespace {

constexpr double CheckLimit = 1.3; // of inflating, and a hundred times a team's roster with its payroll and twenty days
constexpr double ThreadsLimit = 1 / 1.8; // of one league after the other
constexpr double millisecond = 1e-3;

// Fills the open league to its last slot: a hundred teams with complete rosters and lines for all days, and everybody else
// without a team.
void FillLeague()
{
    ResetClientVariables();
    SetOrdinaryRules();
    LeagueData.LeagueCode = "ABC12";
    LeagueData.FileDate = 46000;
    LeagueData.FarmEnabled = true;
    LeagueData.FarmMaxOverall = 99;
    for (int team = 1; team <= TeamTable::last; ++team) {
        TeamMaker(team).DressesFullRoster().FarmsFullRoster();
        for (int day = 1; day <= LineDays; ++day)
            for (const Side side : {Side::Pro, Side::Farm})
                MakeDay(OpenWork(), team, day, side);
    }
    for (int index = 1; index <= PlayerTable::last; ++index)
        if (!Players[index].InUse)
            PutSkater(index, 0, 1 + index % 4, status::Farm, 40 + index % 50);
    for (int index = 1; index <= GoalieTable::last; ++index)
        if (!Goalies[index].InUse)
            PutGoalie(index, 0, status::Farm, 40 + index % 50);
}

const std::string& FullLeague()
{
    static ScriptedPlatform machine;
    static const std::string path = [] {
        UseMachine(machine);
        FillLeague();
        (void)machine.TakeBoxes();
        WriteWhole(machine.InFolder("Full.dvs"), Wrapped(ClientSlots(), 9));
        return machine.InFolder("Full.dvs");
    }();
    return path;
}

// Runs the verb itself, its text thrown away. It has to end with everybody complete.
void Check(std::vector<std::string> arguments)
{
    CLI::App program;
    const terminal::Verb verb = terminal::AddCheck(program);
    arguments.insert(arguments.begin(), "check");
    std::reverse(arguments.begin(), arguments.end());
    program.parse(arguments);
    std::ostringstream text;
    std::streambuf* before = std::cout.rdbuf(text.rdbuf());
    const int end = verb.Run();
    std::cout.rdbuf(before);
    Demand(end == 0 && text.str().find("100 Team 100: complete") != std::string::npos);
}

void BareCheck()
{
    InflateBare(FullLeague());
    constexpr int team = 50;
    for (int time = 0; time < TeamTable::last; ++time) {
        Demand(CheckRoster(OpenWork(), team, false, true, false).Complete);
        for (int day = 1; day <= LineDays; ++day)
            for (const Side side : {Side::Pro, Side::Farm})
                Demand(JudgeDay(OpenWork(), team, side, day, false).Complete);
    }
}

void CheckAFullLeague(benchmark::State& state)
{
    const std::string& league = FullLeague();
    HoldTo(state,
           Compare(
               state, [&] { Check({league}); }, BareCheck, millisecond),
           CheckLimit);
}

// Two at a time, several times over: how long a thread waits for its processor counts for little then.
void CheckLeaguesOnTwoThreads(benchmark::State& state)
{
    constexpr std::size_t leagues = 12;
    const std::vector<std::string> one(leagues, FullLeague());
    std::vector<std::string> two = one;
    two.insert(two.begin(), {"-j", "2"});
    HoldTo(state,
           Compare(
               state, [&] { Check(two); }, [&] { Check(one); }, millisecond),
           ThreadsLimit);
}

void RegisterCases()
{
    const auto add = [](const char* name, void (*work)(benchmark::State&), int times) {
        benchmark::RegisterBenchmark(name, work)->Iterations(times)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    add("CheckAFullLeague", CheckAFullLeague, 31);
    add("CheckLeaguesOnTwoThreads", CheckLeaguesOnTwoThreads, 9);
}

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    dravik::RegisterCases();
    return dravik::RunBenchmarks(argc, argv);
}
