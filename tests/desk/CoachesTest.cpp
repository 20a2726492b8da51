#include "desk/Coaches.h"

#include "OfficeDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CoachesTest : public OfficeDesk {
protected:
    CoachesTest()
    {
        for (const int coach : {7, 8}) {
            Coaches[coach].InUse = true;
            Coaches[coach].Team = 5;
        }
        Coaches[7].Name = "Tor Lindqvist";
        Coaches[8].Name = "Marek Zelinka";
        Five.ProCoach = 7;
        Five.Farm.FarmCoach = 8;
    }
};

TEST_F(CoachesTest, TheProCoachIsFiredByTheTeam)
{
    const LeagueBefore before;
    EXPECT_TRUE(FireProCoach(OpenWork(), 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::YesNo, "Are you sure you wants to fire Tor Lindqvist?"}));
    const std::string news = "Harbour City Gulls fired Tor Lindqvist.";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", news}, News{"team 5", news}));
    EXPECT_EQ(Five.ProCoach, 0);
    EXPECT_EQ(Coaches[7].Team, 0);
    EXPECT_TRUE(Modified);
    EXPECT_TRUE(before.DiffersOnlyIn(Five.ProCoach, Coaches[7].Team));
}

TEST_F(CoachesTest, TheFarmCoachIsFiredByTheFarm)
{
    const LeagueBefore before;
    EXPECT_TRUE(FireFarmCoach(OpenWork(), 5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::YesNo, "Are you sure you wants to fire Marek Zelinka?"}));
    const std::string news = "Pebble Creek Ducks fired Marek Zelinka.";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", news}, News{"team 5", news}));
    EXPECT_EQ(Five.Farm.FarmCoach, 0);
    EXPECT_EQ(Coaches[8].Team, 0);
    EXPECT_TRUE(Modified);
    EXPECT_TRUE(before.DiffersOnlyIn(Five.Farm.FarmCoach, Coaches[8].Team));
}

TEST_F(CoachesTest, NobodyIsFiredWithoutAYes)
{
    const LeagueBefore before;
    for (const auto fire : {FireProCoach, FireFarmCoach}) {
        Machine.Answer(button::No);
        EXPECT_FALSE(fire(OpenWork(), 5));
        EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    }
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(CoachesTest, WhereThereIsNoCoachNobodyIsAsked)
{
    Five.ProCoach = 0;
    Five.Farm.FarmCoach = 0;
    EXPECT_FALSE(FireProCoach(OpenWork(), 5));
    EXPECT_FALSE(FireFarmCoach(OpenWork(), 5));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(CoachesTest, ANumberOutsideTheTablesFailsWith9)
{
    Five.ProCoach = 501;
    Five.Farm.FarmCoach = -1;
    for (const auto fire : {FireProCoach, FireFarmCoach})
        for (const int team : {0, 5, 101})
            EXPECT_EQ(NumberOfFailure([&] { fire(OpenWork(), team); }), failure::OutOfRange) << team;
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(CoachesTest, AQuestionThatCannotBeAskedFiresNobody)
{
    FailingBoxes machine(1);
    const LeagueBefore before;
    EXPECT_EQ(NumberOfFailure([&] { FireProCoach({OpenLeague, machine, machine, Modified}, 5); }), failure::Overflow);
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
