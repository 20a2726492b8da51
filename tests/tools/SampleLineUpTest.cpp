#include "rules/LineSlots.h"
#include "SampleFixture.h"
#include "support/Routines.h"

#include <set>

namespace dravik {

namespace {

class SampleLineUpTest : public SampleTables {
protected:
    static bool LinesPass(int team)
    {
        bool pass = true;
        for (int day = 1; day <= 10; ++day)
            pass = CheckLine(team, false, day, false) && pass;
        return pass;
    }

    static bool FarmLinesPass(int team)
    {
        bool pass = true;
        for (int day = 1; day <= 10; ++day)
            pass = CheckLineFarm(team, false, day, false) && pass;
        return pass;
    }

    static bool RosterPasses(int team) { return CheckRoster(team, false, true, false); }

    // Judged one by one, since a judge repairs what it finds.
    static bool Whole(int team)
    {
        const bool roster = RosterPasses(team);
        const bool lines = LinesPass(team);
        return FarmLinesPass(team) && lines && roster;
    }

    static std::vector<int> TeamsThatPass()
    {
        std::vector<int> passing = TeamNumbers();
        std::erase_if(passing, [](int team) { return !Whole(team); });
        return passing;
    }
};

} // namespace

TEST_F(SampleLineUpTest, TwentyTeamsAreWholeAndExactlyTheTenWithHolesAreNot)
{
    EXPECT_EQ(SampleHoles.size(), 10U);
    EXPECT_EQ(TeamsThatPass(), WholeTeams());
    EXPECT_EQ(WholeTeams().size(), 20U);
    EXPECT_THAT(Machine.Boxes(), ::testing::IsEmpty());
}

TEST_F(SampleLineUpTest, EveryOtherLeagueHasTheSameWholeTeams)
{
    for (const SampleOptions& options :
         {SampleOptions{.Seed = 2}, SampleOptions{.Seed = 0xFFFFFFFFFFFFFFFF}, SampleOptions{.Divisions = 4},
          SampleOptions{.OffSeason = true}, SampleOptions{.Deadline = true}, SampleOptions{.Full = true}}) {
        MakeSampleLeague(options);
        EXPECT_EQ(TeamsThatPass(), WholeTeams())
            << options.Seed << ' ' << options.Divisions << options.OffSeason << options.Deadline << options.Full;
    }
}

TEST_F(SampleLineUpTest, JudgingAWholeTeamFindsNothingToRepair)
{
    for (const int team : WholeTeams()) {
        const std::string before(reinterpret_cast<const char*>(&Teams[team]), sizeof(Team));
        EXPECT_TRUE(Whole(team)) << team;
        EXPECT_EQ(LastRosterText(), "") << team;
        EXPECT_EQ(RosterFixed, 0) << team;
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(&Teams[team]), sizeof(Team)), before) << team;
    }
}

TEST_F(SampleLineUpTest, TheInjuredSkaterStandsOnALineAndHisRosterIsShort)
{
    const int team = TeamWith(Hole::InjuredOnLine);
    const long long injured = Teams[team].ProLines[1].NormalForward(1, 1);
    EXPECT_LT(Players[injured].Condition, 95);
    EXPECT_EQ(Players[injured].Status, status::Pro);
    EXPECT_GT(PlayOnLineInteger(team, static_cast<int>(injured), 1), 1);
    EXPECT_FALSE(RosterPasses(team));
    EXPECT_EQ(Players[injured].Status, status::Scratch);
}

TEST_F(SampleLineUpTest, TheTeamWithEmptySlotsHasAGoodRoster)
{
    const int team = TeamWith(Hole::EmptySlots);
    EXPECT_TRUE(RosterPasses(team));
    EXPECT_TRUE(FarmLinesPass(team));
    for (const int day : {1, 3, 5, 7, 9})
        EXPECT_FALSE(CheckLine(team, false, day, false)) << day;
    for (const int day : {2, 4, 6, 8, 10})
        EXPECT_TRUE(CheckLine(team, false, day, false)) << day;
}

TEST_F(SampleLineUpTest, TheShortRosterDressesSixteen)
{
    const int team = TeamWith(Hole::ShortRoster);
    EXPECT_EQ(Count(Players,
                    [&](const Player& player) {
                        return player.Team == team && player.InUse && player.Status == status::Pro;
                    }),
              16);
    EXPECT_FALSE(RosterPasses(team));
    EXPECT_THAT(LastRosterText(), ::testing::HasSubstr("Not enough Defenseman available in Pro Team! "));
}

TEST_F(SampleLineUpTest, TheDoubledSkaterIsTheOnlyFaultOfHisTeam)
{
    const int team = TeamWith(Hole::DoubledSkater);
    EXPECT_TRUE(RosterPasses(team));
    EXPECT_TRUE(FarmLinesPass(team));
    const Lines& lines = Teams[team].ProLines[1];
    EXPECT_EQ(lines.PPForward(1, 1), lines.PPForward(1, 2));
    EXPECT_FALSE(CheckLine(team, false, 1, false));
}

TEST_F(SampleLineUpTest, TheTeamAboveTheCapFailsByItsPayrollAlone)
{
    const int team = TeamWith(Hole::OverCap);
    EXPECT_TRUE(CheckRoster(team, false, false, false));
    EXPECT_FALSE(CheckSalaryCap(team, false));
    EXPECT_TRUE(LinesPass(team));
    EXPECT_TRUE(FarmLinesPass(team));
}

TEST_F(SampleLineUpTest, TheShortFarmLacksAGoalieAndDefensemen)
{
    const int team = TeamWith(Hole::FarmShort);
    EXPECT_FALSE(RosterPasses(team));
    EXPECT_THAT(LastRosterText(), ::testing::HasSubstr("Not enough Goalie available in Pro and Farm Team! "));
    EXPECT_THAT(LastRosterText(), ::testing::HasSubstr("Not enough Defenseman available in Pro and Farm Team! "));
    EXPECT_TRUE(LinesPass(team));
    EXPECT_FALSE(CheckLineFarm(team, false, 1, false));
}

TEST_F(SampleLineUpTest, TheFarmWithoutLaterLinesPassesItsFirstTwoDays)
{
    const int team = TeamWith(Hole::FarmLinesEmpty);
    EXPECT_TRUE(RosterPasses(team));
    EXPECT_TRUE(LinesPass(team));
    for (int day = 1; day <= 10; ++day)
        EXPECT_EQ(CheckLineFarm(team, false, day, false), day <= 2) << day;
}

TEST_F(SampleLineUpTest, TheTeamWithoutLinesHasAGoodRoster)
{
    const int team = TeamWith(Hole::NoLines);
    EXPECT_TRUE(RosterPasses(team));
    for (int day = 1; day <= 10; ++day) {
        EXPECT_TRUE(CheckLineEmpty(OpenLeague, Machine, team, day)) << day;
        for (const LineSlot& slot : SkaterSlots)
            EXPECT_EQ(At(Teams[team].Farm.FarmLines[day], slot), 0);
    }
}

TEST_F(SampleLineUpTest, StrangersStandOnTheLinesOfATeamWithAGoodRoster)
{
    const int team = TeamWith(Hole::StrangerOnLine);
    EXPECT_TRUE(RosterPasses(team));
    const long long traded = Teams[team].ProLines[1].NormalDefense(3, 1);
    const long long scratched = Teams[team].ProLines[1].PenaltyShot[5];
    EXPECT_NE(Players[traded].Team, team);
    EXPECT_EQ(Players[scratched].Team, team);
    EXPECT_EQ(Players[scratched].Status, status::Scratch);
    EXPECT_FALSE(CheckLine(team, false, 1, false));
    EXPECT_EQ(Teams[team].ProLines[10].NormalDefense(3, 1), 0);
}

TEST_F(SampleLineUpTest, TheThirdGoalieIsOneTooMany)
{
    const int team = TeamWith(Hole::ThirdGoalie);
    EXPECT_FALSE(RosterPasses(team));
    EXPECT_THAT(LastRosterText(),
                ::testing::HasSubstr("Too many Goalie available in Pro Team! 3 Dressed. 3 Maximum.\r\n"));
    EXPECT_TRUE(LinesPass(team));
}

TEST_F(SampleLineUpTest, StrategiesDifferAndSpendAtMostFivePoints)
{
    std::set<std::vector<long long>> styles;
    for (const int team : TeamNumbers())
        for (const Lines& lines : Teams[team].ProLines) {
            const std::vector<long long> style{lines.Strategy[0], lines.Strategy[1], lines.Strategy[2]};
            EXPECT_LE(style[0] + style[1] + style[2], 5) << team;
            styles.insert(style);
        }
    EXPECT_GT(styles.size(), 3U);
}

TEST_F(SampleLineUpTest, TheBackupStartsOnSomeDays)
{
    int other = 0;
    for (const int team : WholeTeams())
        for (int day = 2; day <= 10; ++day)
            other += Teams[team].ProLines[day].StartGoalie != Teams[team].ProLines[1].StartGoalie ? 1 : 0;
    EXPECT_GT(other, 5);
}

} // namespace dravik
