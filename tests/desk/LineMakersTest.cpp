#include "desk/LineMakers.h"

#include "LinesDesk.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LineMakersTest : public LinesDesk {
protected:
    // What the maker itself leaves in a league of its own.
    template <class Maker>
    void ExpectAsBy(Maker maker, int day)
    {
        MuteVoice mute;
        bool modified = false;
        maker({*Expected, mute, Machine, modified}, Own, false, day);
    }

    const Box Done{box::Information, "Auto Lines Function has been run successfully."};
    const Box DonePartly{box::Information, "Auto Lines Partial Function has been run successfully."};
};

TEST_F(LineMakersTest, ADayOfEitherSideIsMadeByItsMakerAndTold)
{
    EXPECT_TRUE(MakeDay(OpenWork(), Own, 4, Side::Pro).Done);
    ExpectAsBy(AutoLines, 4);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_TRUE(MakeDay(OpenWork(), Own, 7, Side::Farm).Done);
    ExpectAsBy(AutoLinesFarm, 7);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_NE(Day(Side::Farm, 7).StartGoalie, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Done, Done));
    EXPECT_TRUE(Modified);
}

TEST_F(LineMakersTest, TheRestOfADayIsMadeByThePartialMakerAndTold)
{
    Day(Side::Pro).NormalForward(2, 1) = 0;
    Remember();
    EXPECT_TRUE(MakeRestOfDay(OpenWork(), Own, 1).Done);
    ExpectAsBy(AutoLinesPartial, 1);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_NE(Day(Side::Pro).NormalForward(2, 1), 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(DonePartly));
}

TEST_F(LineMakersTest, ALeagueWithoutMakersClosesThem)
{
    LeagueData.AutoRosterDisabled = true;
    Remember();
    EXPECT_TRUE(AreMakersClosed(LeagueData));
    for (const Side side : Sides)
        EXPECT_FALSE(MakeDay(OpenWork(), Own, 1, side).Done);
    EXPECT_FALSE(MakeRestOfDay(OpenWork(), Own, 1).Done);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(LineMakersTest, AWordThatIsNotTrueLeavesThemOpen)
{
    LeagueData.AutoRosterDisabled.SetWord(1);
    EXPECT_FALSE(AreMakersClosed(LeagueData));
    EXPECT_TRUE(MakeDay(OpenWork(), Own, 2, Side::Pro).Done);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Information, "Auto Lines Function has been run successfully."}));
}

TEST_F(LineMakersTest, AnIncompleteRosterIsRefusedByTheMaker)
{
    for (const int id : Pro.GoalieIds)
        Goalies[id].Contract = 0;
    for (const int id : Farm.GoalieIds)
        Goalies[id].Contract = 0;
    const Made made = MakeDay(OpenWork(), Own, 3, Side::Pro);
    EXPECT_FALSE(made.Done);
    EXPECT_EQ(made.RosterRepaired, false);
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(
            Box{box::Information, "Roster for Team 5 is incomplete!\r\nTrying Auto Rosters Function for Team 5."},
            Box{box::Information, "Roster for Team 5 is still incomplete!\r\nCannot make lines for Team 5."}));
    EXPECT_EQ(Day(Side::Pro, 3).NormalForward(1, 1), 0);
}

TEST_F(LineMakersTest, ATeamOutOfRangeIsTold)
{
    for (const Side side : Sides)
        MakeDay(OpenWork(), 101, 1, side);
    MakeRestOfDay(OpenWork(), 0, 1);
    const Box refused{box::Critical, "Integrity Check Failed!"};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(refused, refused, refused));
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(LineMakersTest, WhatWasMadeBeforeTheLastBoxFailedStaysAndTheFailureIsTold)
{
    FailingBoxes failing(1);
    failing.MessagesAllowed = true;
    const Made made = MakeDay({OpenLeague, failing, failing, Modified}, Own, 4, Side::Pro);
    EXPECT_EQ(made.Failed, failure::Overflow);
    EXPECT_THAT(failing.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in AutoLines!"}));
    ExpectAsBy(AutoLines, 4);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
