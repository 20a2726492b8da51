#include "desk/Release.h"

#include "support/FailingBoxes.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ReleaseTest : public SmallLeague {
protected:
    ReleaseTest() : Five(Teams[5])
    {
        const TeamMaker made(5);
        Five.Cash = 5000000;
        PutSkater(1, 5, position::Center, status::Pro).Contract = 3;
        PutGoalie(1, 5, status::Pro).Contract = 2;
    }

    Team& Five;
    PersonId Skater{.IsGoalie = false, .Slot = 1};
    PersonId Keeper{.IsGoalie = true, .Slot = 1};
};

TEST_F(ReleaseTest, AReleaseCostsThePercentThatWasSaid)
{
    Machine.Type("50");
    Players[1].Protected = Players[1].TradeAvailable = Players[1].NoTrade = Players[1].NoApplyRerate = true;
    Five.ProLines[3].PPForward(1, 2) = 1;
    Five.Captain = 1;
    EXPECT_TRUE(ReleasePerson(OpenWork(), 5, Skater));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::YesNo, "Are you sure you want to release Skater 1?"}));
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{"How much % does team paid the player for the rest of is contract?",
                                     "Dravik Hockey Simulator Client", "0"}));
    EXPECT_EQ(Five.Cash, 3500000);
    EXPECT_EQ(Players[1].Team, 0);
    EXPECT_EQ(Players[1].Contract, 0);
    EXPECT_FALSE(Players[1].Protected || Players[1].TradeAvailable || Players[1].NoTrade || Players[1].NoApplyRerate);
    EXPECT_EQ(Five.ProLines[3].PPForward(1, 2), 0);
    EXPECT_EQ(Five.Captain, 0);
    const std::string news = "Skater 1 was released by Team 5 for $1,500,000.00";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", news}, News{"team 5", news}));
}

TEST_F(ReleaseTest, AGoalieIsAskedAboutAsAGoaler)
{
    Machine.Type("");
    EXPECT_TRUE(ReleasePerson(OpenWork(), 5, Keeper));
    EXPECT_EQ(Machine.Questions().at(0).Prompt, "How much % does team paid the goaler for the rest of is contract?");
    EXPECT_EQ(Five.Cash, 5000000);
    EXPECT_EQ(Goalies[1].Team, 0);
    EXPECT_EQ(Players[1].Team, 5);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::YesNo, "Are you sure you want to release Goalie 1?"}));
    Machine.TakeNews();
}

TEST_F(ReleaseTest, MoreThanAllIsAllAndLessThanNothingIsNothing)
{
    Machine.Type("250");
    EXPECT_TRUE(ReleasePerson(OpenWork(), 5, Skater));
    EXPECT_EQ(Five.Cash, 2000000);
    Machine.Type("-250");
    EXPECT_TRUE(ReleasePerson(OpenWork(), 5, Keeper));
    EXPECT_EQ(Five.Cash, 2000000);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::YesNo, "Are you sure you want to release Skater 1?"},
                                             Box{box::YesNo, "Are you sure you want to release Goalie 1?"}));
    Machine.TakeNews();
}

TEST_F(ReleaseTest, NoReleasesNobody)
{
    Machine.Answer(button::No);
    EXPECT_FALSE(ReleasePerson(OpenWork(), 5, Skater));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::YesNo, "Are you sure you want to release Skater 1?"}));
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_EQ(Players[1].Team, 5);
    EXPECT_EQ(Five.Cash, 5000000);
}

TEST_F(ReleaseTest, APriceThatTheCashCannotHoldLeavesHimOnTheTeam)
{
    Five.Cash = -2147000000;
    Machine.Type("100");
    EXPECT_THROW(ReleasePerson(OpenWork(), 5, Skater), Failure);
    EXPECT_EQ(Players[1].Team, 5);
    EXPECT_EQ(Five.Cash, -2147000000);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::YesNo, "Are you sure you want to release Skater 1?"}));
}

} // namespace
} // namespace dravik
