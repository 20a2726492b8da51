#include "support/Routines.h"
#include "support/SmallLeague.h"

// What the makers still show while the program allows no messages: only what nobody has to ask for.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Team 5 has a full roster, skaters 1-18 and goalies 1-2, and a full farm behind it.
class AllowedReportsTest : public SmallLeague {
protected:
    AllowedReportsTest() : team(5)
    {
        team.DressesFullRoster().FarmsFullRoster();
        Machine.MessagesAllowed = false;
    }

    TeamMaker team;

    const Box IntegrityFailed{16, "Integrity Check Failed!"};
    const Box Incomplete{64, "Roster for Team 5 is incomplete!\r\nTrying Auto Rosters Function for Team 5."};
    const Box StillIncomplete{64, "Roster for Team 5 is still incomplete!\r\nCannot make lines for Team 5."};
};

TEST_F(AllowedReportsTest, AutoRosterDoesNotTellItsSuccess)
{
    for (const bool partial : {false, true}) {
        Modified = false;
        AutoRoster(5, true, partial);
        EXPECT_TRUE(Modified);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, AutoRosterDoesNotTellItsShortages)
{
    LeagueData.RequiredCenters = 20;
    AutoRoster(5, true, false);
    LeagueData.RequiredCenters = 3;
    for (const int goalie : team.GoalieIds)
        Goalies[goalie].Contract = 0;
    AutoRoster(5, true, false);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, AutoRosterTellsOfTooManyScratchesAllTheSame)
{
    LeagueData.MaxProPlayers = 17;
    AutoRoster(5, true, false);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Team 5 has too many players in scratch \r\n"
                                                     "that cannot be sent to farm without being sent to waiver."}));
}

TEST_F(AllowedReportsTest, AutoLinesDoesNotTellItsSuccess)
{
    AutoLines(5, true, 1);
    EXPECT_EQ(Teams[5].ProLines[1].StartGoalie, 1);
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, AutoLinesPartialDoesNotTellItsSuccess)
{
    AutoLines(5, false, 1);
    Modified = false;
    AutoLinesPartial(5, true, 1);
    EXPECT_TRUE(Modified);
    AutoLinesPartial(5, true, 2); // an empty day, which is made by AutoLines
    EXPECT_EQ(Teams[5].ProLines[2].StartGoalie, 1);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, AutoLinesPartialTellsOfAHoleAllTheSame)
{
    LeagueData.RequiredDefensemen = 4;
    LeagueData.ProDressedSkaters = 20;
    for (const int skater : {17, 18})
        Players[skater].Position = position::Center;
    Teams[5].ProLines[1].NormalForward(1, 1) = 1;
    AutoLinesPartial(5, true, 1); // four defensemen cannot be five extra ones
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Auto Lines Partial Function Error."}));
}

TEST_F(AllowedReportsTest, TheFarmsMakerDoesNotTellItsSuccessOnEitherRoute)
{
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        Modified = false;
        AutoLinesFarm(5, true, 1);
        EXPECT_TRUE(Modified);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(AllowedReportsTest, AnIncompleteRosterIsToldAllTheSame)
{
    LeagueData.RequiredCenters = 20;
    AutoLines(5, false, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Incomplete, StillIncomplete));
}

TEST_F(AllowedReportsTest, AFailedIntegrityCheckIsToldAllTheSame)
{
    AutoRoster(0, false, false);
    AutoLines(0, false, 1);
    AutoLinesPartial(0, false, 1);
    AutoLinesFarm(0, false, 1);
    EXPECT_EQ(Machine.Boxes(), std::vector<Box>(4, IntegrityFailed));
}

} // namespace
} // namespace dravik
