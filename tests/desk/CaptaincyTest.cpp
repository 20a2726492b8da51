#include "desk/Captaincy.h"

#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CaptaincyTest : public SmallLeague {
protected:
    CaptaincyTest() : Five(Teams[5])
    {
        const TeamMaker made(5);
        PutSkater(1, 5, position::Center, status::Pro);
        PutSkater(2, 5, position::Defense, status::Scratch);
        PutSkater(3, 5, position::Center, status::Farm);
        PutGoalie(1, 5, status::Pro);
    }

    static PersonId Skater(int slot) { return {.IsGoalie = false, .Slot = slot}; }
    bool Captain(PersonId who) { return MakeCaptain(OpenWork(), 5, who); }
    bool Assistant(PersonId who) { return MakeAssistant(OpenWork(), 5, who); }

    Team& Five;
    PersonId Keeper{.IsGoalie = true, .Slot = 1};
};

TEST_F(CaptaincyTest, AGoalieIsNeither)
{
    EXPECT_FALSE(Captain(Keeper));
    EXPECT_FALSE(Assistant(Keeper));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Goalie cannot be Captain!"},
                                                 Box{box::Information, "Goalie cannot be Assistant!"}));
}

TEST_F(CaptaincyTest, AManOfTheFarmIsNeither)
{
    EXPECT_FALSE(Captain(Skater(3)));
    EXPECT_FALSE(Assistant(Skater(3)));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Farm Player cannot be Captain!"},
                                                 Box{box::Information, "Farm Player cannot be Assistant!"}));
}

TEST_F(CaptaincyTest, ACaptainIsNoAssistantAnyMore)
{
    Five.Assistant[1] = 2;
    Five.Assistant[2] = 2;
    EXPECT_TRUE(Captain(Skater(2)));
    EXPECT_EQ(Five.Captain, 2);
    EXPECT_EQ(Five.Assistant[1], 0);
    EXPECT_EQ(Five.Assistant[2], 0);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Information, "Skater 2 has been selected as captain for Team 5."}));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", "Skater 2 has been selected as captain."}));
}

TEST_F(CaptaincyTest, YesMakesTheFirstAssistantNoTheSecondCancelNone)
{
    const Box question{box::YesNoCancel, "Do you want Skater 1 to be assistant #1 (Yes) or assistant #2 (No)?"};
    Machine.Answer(button::Cancel);
    EXPECT_TRUE(Assistant(Skater(1)));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(question));
    EXPECT_EQ(Five.Assistant[1], 0);
    Machine.Answer(button::Yes);
    EXPECT_TRUE(Assistant(Skater(1)));
    EXPECT_EQ(Five.Assistant[1], 1);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(question, Box{box::Information, "Skater 1 has been selected as assistant #1 for Team 5."}));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", "Skater 1 has been selected as assistant."}));
    Machine.Answer(button::No);
    EXPECT_TRUE(Assistant(Skater(2)));
    EXPECT_EQ(Five.Assistant[2], 2);
    EXPECT_EQ(Machine.TakeBoxes().at(1).Text, "Skater 2 has been selected as assistant #2 for Team 5.");
    Machine.TakeNews();
}

TEST_F(CaptaincyTest, WhoHoldsAnOfficeIsNotMadeAssistantAgain)
{
    Five.Assistant[2] = 1;
    Five.Captain = 2;
    EXPECT_FALSE(Assistant(Skater(1)));
    EXPECT_FALSE(Assistant(Skater(2)));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Skater 1 is already an assistant for Team 5."},
                                                 Box{box::Information, "Skater 2 is already a captain for Team 5."}));
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
}

} // namespace
} // namespace dravik
