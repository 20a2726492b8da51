#include "rules/Finance.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

// A routine that refuses its team has told so and done nothing, people of no team included.
namespace dravik {
namespace {

using ::testing::ElementsAre;

struct TeamRoutine {
    const char* Name;
    void (*Run)(int team);
};

constexpr TeamRoutine Routines[] = {
    {"CheckRoster", [](int team) { EXPECT_FALSE(CheckRoster(team, true, true, true)); }},
    {"CheckSalaryCap", [](int team) { EXPECT_FALSE(CheckSalaryCap(team, true)); }},
    {"CheckLine", [](int team) { EXPECT_FALSE(CheckLine(team, true, 1, true)); }},
    {"CheckLineFarm", [](int team) { EXPECT_FALSE(CheckLineFarm(team, true, 1, true)); }},
    {"CheckLineEmpty", [](int team) { EXPECT_FALSE(CheckLineEmpty(OpenLeague, Machine(), team, 1)); }},
    {"ProPayroll", [](int team) { EXPECT_EQ(ProPayroll(OpenLeague, Machine(), team), 0); }},
    {"FarmPayroll", [](int team) { EXPECT_EQ(FarmPayroll(OpenLeague, Machine(), team), 0); }},
    {"CoachPayroll", [](int team) { EXPECT_EQ(CoachPayroll(OpenLeague, Machine(), team), 0); }},
    {"ExpensePerGame", [](int team) { EXPECT_EQ(ExpensePerGame(OpenLeague, Machine(), team), 0); }},
    {"WipesLines", [](int team) { WipesLines(team, 1, true); }},
    {"WipePlayerFromTeamLines", [](int team) { WipePlayerFromTeamLines(team, 1); }},
    {"AutoRoster", [](int team) { AutoRoster(team, true, false); }},
    {"AutoRosterPartial", [](int team) { AutoRoster(team, true, true); }},
    {"AutoLines", [](int team) { AutoLines(team, true, 1); }},
    {"AutoLinesPartial", [](int team) { AutoLinesPartial(team, true, 1); }},
    {"AutoLinesFarm", [](int team) { AutoLinesFarm(team, true, 1); }},
};

class RefusedTeam : public SmallLeague, public ::testing::WithParamInterface<TeamRoutine> {};

TEST_P(RefusedTeam, IsToldOnceAndLeavesEveryByteOfTheTables)
{
    Dice dice(3);
    RollLeague(dice);
    for (int index = 1; index <= 60; ++index)
        Players[index].Team = 0;
    LeagueData.FarmEnabled = true;
    LeagueData.FarmRosterRequired = true;
    LeagueData.ExpenseFlag = false;
    RosterFixed = 0;
    const ByteVector before = AllTables();
    for (const int team : {-1, 0, 101}) {
        GetParam().Run(team);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"})) << team;
        EXPECT_TRUE(AllTables() == before) << team;
        EXPECT_FALSE(Modified);
        EXPECT_EQ(RosterFixed, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Routines, RefusedTeam, ::testing::ValuesIn(Routines),
                         [](const auto& routine) { return std::string(routine.param.Name); });

} // namespace
} // namespace dravik
