#include "desk/NewPlayer.h"

#include "PlayerDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NewPlayerTest : public PlayerDesk {
protected:
    NewPlayerTest()
    {
        Brisk = {.Name = "Lenny Brisk",
                 .Country = "Sweden",
                 .Age = "19",
                 .Weight = "188",
                 .Height = "74",
                 .Contract = "12", // no limits on the way in
                 .Salary = "1",
                 .Condition = "97"};
        for (int rating = 1; rating <= 16; ++rating)
            Brisk.Ratings.push_back(std::to_string(50 + rating));
        Brisk.Ratings.back().clear(); // the box of the overall
    }

    // Creates him; how often he was listed.
    int ListedAt(PersonId who)
    {
        int listed = 0;
        EXPECT_TRUE(CreatePlayer(OpenWork(), who, Brisk, [&] {
            ++listed;
            EXPECT_THAT(Machine.Boxes(), IsEmpty()); // he is listed before he is told
            EXPECT_FALSE(Modified);
        }));
        return listed;
    }
    template <class Person>
    static void ExpectBrisk(const Person& made)
    {
        EXPECT_TRUE(made.InUse);
        EXPECT_EQ(made.Number, 20);
        EXPECT_EQ(made.Name.Trimmed(), "Lenny Brisk");
        EXPECT_EQ(made.Country.Raw(), "Swe");
        EXPECT_EQ(made.Age, 19);
        EXPECT_EQ(made.Weight, 188);
        EXPECT_EQ(made.Height, 74);
        EXPECT_EQ(made.Contract, 12);
        EXPECT_EQ(made.Salary, 1);
        EXPECT_EQ(made.Condition, 97);
        EXPECT_EQ(made.Team, 0);
        for (int rating = 1; rating <= made.Stats.last; ++rating)
            EXPECT_EQ(made.Stats[rating], 50 + rating);
        EXPECT_EQ(made.Suspension, 4); // what a record does not name stays
        EXPECT_EQ(made.Injury.Trimmed(), "Knee");
        EXPECT_EQ(made.Status, status::Pro);
    }

    NewRecord Brisk;
};

TEST_F(NewPlayerTest, ASkaterIsMadeOfItsTextsPositionAndFlags)
{
    Players[20].Team = 9;
    Players[20].Suspension = 4;
    Players[20].Injury = "Knee";
    Players[20].Status = status::Pro;
    Players[20].NoTrade = true;
    Brisk.Position = position::RightWing;
    Brisk.Rookie = Brisk.NoApplyRerate = true;
    const LeagueBefore before;
    EXPECT_EQ(ListedAt({.IsGoalie = false, .Slot = 20}), 1);
    ExpectBrisk(Players[20]);
    EXPECT_EQ(Players[20].Position, position::RightWing);
    EXPECT_EQ(Players[20].Rookie.Word(), -1);
    EXPECT_EQ(Players[20].NoApplyRerate.Word(), -1);
    EXPECT_EQ(Players[20].NoTrade.Word(), 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Lenny Brisk was successfully created!"}));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Lenny Brisk was created."}));
    EXPECT_TRUE(Modified);
    EXPECT_TRUE(before.DiffersOnlyIn(Players[20]));
}

TEST_F(NewPlayerTest, AGoalieIsMadeOfItsTextsAndFlags)
{
    Goalies[20].Team = 9;
    Goalies[20].Suspension = 4;
    Goalies[20].Injury = "Knee";
    Goalies[20].Status = status::Pro;
    Brisk.NoTrade = true;
    const LeagueBefore before;
    EXPECT_EQ(ListedAt({.IsGoalie = true, .Slot = 20}), 1);
    ExpectBrisk(Goalies[20]);
    EXPECT_EQ(Goalies[20].NoTrade.Word(), -1);
    EXPECT_EQ(Goalies[20].Rookie.Word(), 0);
    EXPECT_TRUE(before.DiffersOnlyIn(Goalies[20]));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Lenny Brisk was created."}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Information, "Lenny Brisk was successfully created!"}));
}

TEST_F(NewPlayerTest, EveryTextIsNeeded)
{
    const LeagueBefore before;
    for (const auto text : {&NewRecord::Name, &NewRecord::Country, &NewRecord::Age, &NewRecord::Weight,
                            &NewRecord::Height, &NewRecord::Contract, &NewRecord::Salary, &NewRecord::Condition})
        for (const bool isGoalie : {false, true}) {
            NewRecord missing = Brisk;
            (missing.*text).clear();
            EXPECT_FALSE(CreatePlayer(OpenWork(), {isGoalie, 20}, missing, [] { ADD_FAILURE() << "listed"; }));
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Missing Field!"}));
        }
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(NewPlayerTest, ASkaterNeeds15RatingsAndAGoalie13)
{
    for (const auto& [isGoalie, needed] : {std::pair(false, 15U), {true, 13U}}) {
        const LeagueBefore before;
        for (std::size_t rating = 0; rating < needed; ++rating) {
            NewRecord missing = Brisk;
            missing.Ratings[rating].clear();
            EXPECT_FALSE(CreatePlayer(OpenWork(), {isGoalie, 20}, missing, [] {})) << rating;
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Missing Field!"})) << rating;
        }
        NewRecord few = Brisk;
        few.Ratings.resize(needed - 1);
        EXPECT_FALSE(CreatePlayer(OpenWork(), {isGoalie, 20}, few, [] {}));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Missing Field!"}));
        EXPECT_TRUE(before.IsUntouched());
        few = Brisk;
        few.Ratings.resize(needed);
        EXPECT_TRUE(CreatePlayer(OpenWork(), {isGoalie, 20}, few, [] {}));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Lenny Brisk was successfully created!"}));
    }
    Machine.TakeNews();
}

TEST_F(NewPlayerTest, ANumberThatDoesNotFitFailsWith6AndWhatWasStoredStays)
{
    Brisk.Weight = "40000";
    EXPECT_EQ(NumberOfFailure([&] { CreatePlayer(OpenWork(), {false, 20}, Brisk, [] {}); }), failure::Overflow);
    EXPECT_TRUE(Players[20].InUse);
    EXPECT_EQ(Players[20].Number, 20);
    EXPECT_EQ(Players[20].Age, 19);
    EXPECT_EQ(Players[20].Weight, 0);
    EXPECT_EQ(Players[20].Height, 0);
    Brisk.Weight = "188";
    Brisk.Ratings[3] = "32768";
    EXPECT_EQ(NumberOfFailure([&] { CreatePlayer(OpenWork(), {true, 20}, Brisk, [] {}); }), failure::Overflow);
    EXPECT_EQ(Goalies[20].Condition, 97);
    EXPECT_EQ(Goalies[20].Stats[3], 53);
    EXPECT_EQ(Goalies[20].Stats[4], 0);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
}

TEST_F(NewPlayerTest, ABoxThatFailsLeavesTheRecordWithoutTheMark)
{
    FailingBoxes machine(1);
    bool listed = false;
    EXPECT_EQ(NumberOfFailure([&] {
                  CreatePlayer({OpenLeague, machine, machine, Modified}, {false, 20}, Brisk, [&] { listed = true; });
              }),
              failure::Overflow);
    EXPECT_TRUE(listed);
    EXPECT_TRUE(Players[20].InUse);
    EXPECT_FALSE(Modified);
}

TEST_F(NewPlayerTest, TheFirstFreeSlotIsGivenOut)
{
    EXPECT_EQ(FreeSlotFor(OpenWork(), false), 1);
    EXPECT_EQ(FreeSlotFor(OpenWork(), true), 1);
    for (int slot = 1; slot <= 6; ++slot)
        Players[slot].InUse = Goalies[slot].InUse = true;
    EXPECT_EQ(FreeSlotFor(OpenWork(), false), 8);
    EXPECT_EQ(FreeSlotFor(OpenWork(), true), 8);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(NewPlayerTest, TheLastSlotIsNeverGivenOutAndAFullTableIsTold)
{
    const auto full = [](const std::string& kind) {
        return Box{box::Warning, "You have reach the maximum number of available " + kind +
                                     "!\r\nPlease erase some before creating new ones."};
    };
    for (int slot = 1; slot < PlayerTable::last; ++slot)
        Players[slot].InUse = true;
    for (int slot = 1; slot < GoalieTable::last; ++slot)
        Goalies[slot].InUse = true;
    EXPECT_EQ(FreeSlotFor(OpenWork(), false), 0);
    EXPECT_EQ(FreeSlotFor(OpenWork(), true), 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(full("players"), full("goalies")));
    Players[9999].InUse = false;
    Goalies[999].InUse = false;
    EXPECT_EQ(FreeSlotFor(OpenWork(), false), 9999);
    EXPECT_EQ(FreeSlotFor(OpenWork(), true), 999);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
