#include "makers/AutoRosterTeam.h"
#include "support/Routines.h"

// What the makers tell the news, and in which order.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MakersNewsTest : public AutoRosterTest {
protected:
    MakersNewsTest() { Teams[5].Name = " Team 5 "; }

    const News RosterHasRun{"league", "Auto Roster Function has been run for Team 5."};
    const News LinesHaveRun{"league", "Auto Lines Function has been run for Team 5."};
};

TEST_F(MakersNewsTest, ARosterThatStaysTellsOnlyThatItHasRun)
{
    Run();
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(RosterHasRun));
    Run(false);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(RosterHasRun));
}

TEST_F(MakersNewsTest, WhoeverComesUpOrGoesDownIsTold)
{
    PutSkater(19, 5, position::Center, status::Farm, 65).Name = " Ward Tilton ";
    PutGoalie(3, 5, status::Farm, 65).Name = " Ike Marsh ";
    Players[12].Name = " Cole Farrow "; // the last of those whom no position requires
    Run();
    EXPECT_EQ(Players[12].Status, 0);
    EXPECT_EQ(Goalies[2].Status, 0);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Ward Tilton of Team 5 was sent to pro."},
                                                News{"league", "Cole Farrow of Team 5 was sent to farm."},
                                                News{"league", "Ike Marsh of Team 5 was sent to pro."},
                                                News{"league", "Goalie 2 of Team 5 was sent to farm."}, RosterHasRun));
}

TEST_F(MakersNewsTest, AScratchWhoIsDressedIsNotTold)
{
    PutSkater(19, 5, position::Center, status::Scratch, 80);
    LeagueData.FarmMaxOverall = 50;
    Run();
    EXPECT_EQ(Players[19].Status, 2);
    EXPECT_EQ(Players[12].Status, 1);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(RosterHasRun));
}

TEST_F(MakersNewsTest, ACallUpAboveTheCapIsNotTold)
{
    LeagueData.SalaryCapMode = 1;
    PutSkater(19, 5, position::Center, status::Farm, 65);
    PutGoalie(3, 5, status::Farm, 65);
    Run();
    EXPECT_EQ(Players[19].Status, 0);
    EXPECT_EQ(Goalies[3].Status, 0);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(RosterHasRun));
}

TEST_F(MakersNewsTest, APartialRosterHasItsOwnWords)
{
    Players[4].Status = status::Farm;
    Run(true, true);
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Skater 4 of Team 5 was sent to pro."},
                            News{"league", "Auto Roster Partial Function has been run for Team 5."}));
}

TEST_F(MakersNewsTest, ARunThatEndsEarlyDoesNotTellThatItHasRun)
{
    Goalies[2].Team = 6;
    Run();
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
    LeagueData.RequiredCenters = 5;
    Run();
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(MakersNewsTest, LinesTellThatTheyHaveBeenMade)
{
    AutoLines(5, true, 1);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(LinesHaveRun));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Auto Lines Function has been run successfully."}));
    AutoLines(5, false, 1);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(LinesHaveRun));
}

TEST_F(MakersNewsTest, LinesThatNeedARosterTellOfItFirst)
{
    Players[4].Status = status::Farm;
    AutoLines(5, true, 1);
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Skater 4 of Team 5 was sent to pro."}, RosterHasRun, LinesHaveRun));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Roster for Team 5 is incomplete!\r\n"
                                                     "Trying Auto Rosters Function for Team 5."},
                                             Box{64, "Auto Lines Function has been run successfully."}));
}

TEST_F(MakersNewsTest, RepairedLinesHaveTheirOwnWords)
{
    AutoLines(5, false, 1);
    Teams[5].ProLines[1].NormalForward(1, 1) = 0;
    Machine.TakeNews();
    AutoLinesPartial(5, false, 1);
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Auto Lines Partial Function has been run for Team 5."}));
}

TEST_F(MakersNewsTest, ARepairThatLeavesAHoleIsNotTold)
{
    AutoLines(5, false, 1);
    for (int id = 13; id <= 18; ++id)
        Players[id].Position = position::Center;
    LeagueData.RequiredDefensemen = 0;
    Machine.TakeNews();
    Teams[5].ProLines[1].NormalDefense(1, 1) = 0;
    AutoLinesPartial(5, false, 1);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Auto Lines Partial Function Error."}));
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(MakersNewsTest, AnEmptyDayThatIsRepairedIsToldAsMade)
{
    AutoLinesPartial(5, false, 1);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(LinesHaveRun));
}

TEST_F(MakersNewsTest, TheFarmsLinesAreToldInTheSameWordsOnBothRoutes)
{
    Five.FarmsFullRoster();
    AutoLinesFarm(5, false, 1);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(LinesHaveRun));
    LeagueData.FarmRosterRequired = true;
    AutoLinesFarm(5, false, 1);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(LinesHaveRun));
}

} // namespace
} // namespace dravik
