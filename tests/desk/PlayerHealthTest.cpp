#include "desk/PlayerHealth.h"

#include "desk/PlayerFields.h"
#include "PlayerDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PlayerHealthTest : public PlayerDesk {
protected:
    PlayerHealthTest() : Day(Teams[5].ProLines[2])
    {
        PutSkater(107, 5, position::Center, status::Pro);
        Day.StartGoalie = 7;
        Day.PenaltyShot[1] = 107;
        Day.PenaltyShot[2] = 7;
    }

    // What was heard of while a number was stored.
    std::vector<HealthTurn> TurnsAt(PersonId who, NumberField field, const char* text)
    {
        std::vector<HealthTurn> turns;
        EXPECT_TRUE(SetNumber(OpenWork(), who, field, text, [&](HealthTurn turn) { turns.push_back(turn); })) << text;
        return turns;
    }

    Lines& Day;
};

TEST_F(PlayerHealthTest, AConditionIsWithin0And100)
{
    const std::pair<const char*, int> typings[] = {{"101", 100}, {"300", 100}, {"100", 100}, {"95", 95},
                                                   {"94", 94},   {"0", 0},     {"-1", 0},    {"5-", 5}};
    for (const auto& [text, stored] : typings)
        for (const PersonId who : {Skater, Keeper}) {
            TurnsAt(who, NumberField::Condition, text);
            EXPECT_EQ(NumberOf(OpenLeague, who, NumberField::Condition), stored) << text;
        }
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerHealthTest, BelowAHealthyConditionASkaterIsInjuredBenchedAndOutOfTheLines)
{
    const LeagueBefore before;
    EXPECT_THAT(TurnsAt(Skater, NumberField::Condition, "94"), ElementsAre(HealthTurn::Injured));
    EXPECT_EQ(Tilton.Condition, 94);
    EXPECT_EQ(Tilton.Injury.Trimmed(), "Unknown");
    EXPECT_EQ(Tilton.Status, status::Scratch);
    EXPECT_EQ(Day.PenaltyShot[2], 0);
    EXPECT_EQ(Day.PenaltyShot[1], 107);
    EXPECT_EQ(Day.StartGoalie, 7);
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Condition, Tilton.Injury, Tilton.Status, Day.PenaltyShot[2]));
}

TEST_F(PlayerHealthTest, AnInjuredGoalieStaysInTheLinesAndTheSkaterOfHisSlotPlus100LeavesThem)
{
    const LeagueBefore before;
    EXPECT_THAT(TurnsAt(Keeper, NumberField::Condition, "0"), ElementsAre(HealthTurn::Injured));
    EXPECT_EQ(Vos.Injury.Trimmed(), "Unknown");
    EXPECT_EQ(Vos.Status, status::Scratch);
    EXPECT_EQ(Day.StartGoalie, 7);
    EXPECT_EQ(Day.PenaltyShot[1], 0);
    EXPECT_EQ(Day.PenaltyShot[2], 7);
    EXPECT_TRUE(before.DiffersOnlyIn(Vos.Condition, Vos.Injury, Vos.Status, Day.PenaltyShot[1]));
}

TEST_F(PlayerHealthTest, TheTurnIsHeardOfBeforeAnythingFollows)
{
    EXPECT_EQ(NumberOfFailure([&] {
                  SetNumber(OpenWork(), Skater, NumberField::Condition, "94", [&](HealthTurn /*turn*/) {
                      EXPECT_EQ(Tilton.Condition, 94);
                      EXPECT_TRUE(Modified);
                      EXPECT_EQ(Tilton.Injury.Trimmed(), "");
                      EXPECT_EQ(Tilton.Status, status::Pro);
                      Fail(failure::OutOfMemory);
                  });
              }),
              failure::OutOfMemory);
    EXPECT_EQ(Tilton.Injury.Trimmed(), "");
    EXPECT_EQ(Tilton.Status, status::Pro);
    EXPECT_EQ(Day.PenaltyShot[2], 7);
}

TEST_F(PlayerHealthTest, FurtherBelowNothingFollows)
{
    Tilton.Condition = 94;
    Tilton.Injury = "Knee";
    const LeagueBefore before;
    EXPECT_THAT(TurnsAt(Skater, NumberField::Condition, "80"), IsEmpty());
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Condition));
}

TEST_F(PlayerHealthTest, OnlyTheDressedAreBenched)
{
    for (const int standing : {int{status::Farm}, int{status::Scratch}, 3}) {
        Tilton.Status = standing;
        Tilton.Condition = 100;
        EXPECT_THAT(TurnsAt(Skater, NumberField::Condition, "50"), ElementsAre(HealthTurn::Injured));
        EXPECT_EQ(Tilton.Status, standing);
    }
}

TEST_F(PlayerHealthTest, FromAHealthyConditionOnThereIsNoInjury)
{
    const std::pair<int, const char*> conditions[] = {{94, "95"}, {0, "100"}, {97, "98"}, {97, "97"}, {99, "95"}};
    for (const auto& [condition, text] : conditions) {
        Tilton.Condition = condition;
        Tilton.Injury = "Knee";
        Vos.Condition = condition;
        Vos.Injury = "Groin";
        const LeagueBefore before;
        EXPECT_THAT(TurnsAt(Skater, NumberField::Condition, text), ElementsAre(HealthTurn::Healed)) << text;
        EXPECT_EQ(Tilton.Injury.Raw(), std::string(40, ' '));
        EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Condition, Tilton.Injury));
        EXPECT_THAT(TurnsAt(Keeper, NumberField::Condition, text), ElementsAre(HealthTurn::Healed)) << text;
        EXPECT_EQ(Vos.Injury.Trimmed(), "");
    }
}

TEST_F(PlayerHealthTest, AnInjuryIsShownBelowPerfectConditionOnly)
{
    Tilton.Injury = " Knee";
    Vos.Injury = "Groin";
    for (const int condition : {0, 94, 95, 99}) {
        Tilton.Condition = Vos.Condition = condition;
        EXPECT_EQ(InjuryOf(OpenLeague, Skater), "Knee") << condition;
        EXPECT_EQ(InjuryOf(OpenLeague, Keeper), "Groin") << condition;
    }
    for (const int condition : {100, 101, 255}) {
        Tilton.Condition = Vos.Condition = condition;
        EXPECT_EQ(InjuryOf(OpenLeague, Skater), std::nullopt) << condition;
        EXPECT_EQ(InjuryOf(OpenLeague, Keeper), std::nullopt) << condition;
    }
}

TEST_F(PlayerHealthTest, ASuspensionBenchesAndIsNews)
{
    const LeagueBefore before;
    EXPECT_THAT(TurnsAt(Skater, NumberField::Suspension, "3"), ElementsAre(HealthTurn::Suspended));
    EXPECT_EQ(Tilton.Suspension, 3);
    EXPECT_EQ(Tilton.Status, status::Scratch);
    EXPECT_EQ(Day.PenaltyShot[2], 0);
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Ward Tilton from Harbour City Gulls suspended for 3 game(s)"}));
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Suspension, Tilton.Status, Day.PenaltyShot[2]));
    EXPECT_TRUE(Modified);
}

TEST_F(PlayerHealthTest, ASuspendedGoalieIsWipedByTheSameWrongNumber)
{
    EXPECT_THAT(TurnsAt(Keeper, NumberField::Suspension, "120"), ElementsAre(HealthTurn::Suspended));
    EXPECT_EQ(Vos.Suspension, 99);
    EXPECT_EQ(Vos.Status, status::Scratch);
    EXPECT_EQ(Day.StartGoalie, 7);
    EXPECT_EQ(Day.PenaltyShot[1], 0);
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Piet Vos from Harbour City Gulls suspended for 99 game(s)"}));
}

TEST_F(PlayerHealthTest, ALongerSuspensionAndItsEndAreNone)
{
    Tilton.Suspension = 3;
    const LeagueBefore before;
    for (const char* text : {"5", "0", "-4", "0"})
        EXPECT_THAT(TurnsAt(Skater, NumberField::Suspension, text), IsEmpty()) << text;
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Suspension));
    EXPECT_EQ(Tilton.Suspension, 0);
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(PlayerHealthTest, WithoutATeamThereAreNoLinesAndTheNewsNameNone)
{
    Tilton.Team = 0;
    TurnsAt(Skater, NumberField::Suspension, "1");
    TurnsAt(Skater, NumberField::Condition, "1");
    EXPECT_EQ(Tilton.Status, status::Scratch);
    EXPECT_EQ(Day.PenaltyShot[2], 7);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Ward Tilton from  suspended for 1 game(s)"}));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerHealthTest, AnImpossibleTeamIsToldAndASuspensionFailsThereWith9)
{
    Tilton.Team = 101;
    const Box integrity{box::Critical, "Integrity Check Failed!"};
    EXPECT_EQ(NumberOfFailure([&] { SetNumber(OpenWork(), Skater, NumberField::Suspension, "3"); }),
              failure::OutOfRange);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(integrity));
    EXPECT_EQ(Tilton.Suspension, 3);
    EXPECT_EQ(Tilton.Status, status::Scratch);
    EXPECT_THAT(TurnsAt(Skater, NumberField::Condition, "3"), ElementsAre(HealthTurn::Injured));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(integrity));
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

} // namespace
} // namespace dravik
