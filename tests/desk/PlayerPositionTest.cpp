#include "desk/PlayerPosition.h"

#include "PlayerDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PlayerPositionTest : public PlayerDesk {};

TEST_F(PlayerPositionTest, EverySkaterWithoutAPositionBecomesACenterAndIsTold)
{
    for (const int slot : {1, 20, 10000})
        PutSkater(slot, 9, 0, status::Pro);
    Players[20].Position = 5;
    Players[10000].Position = 255;
    const LeagueBefore before;
    RepairPositions(OpenWork());
    const auto told = [](const std::string& name) {
        return Box{box::Warning, name + " has no position! He's now center."};
    };
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(told("Skater 1"), told("Skater 20"), told("Skater 10000")));
    for (const int slot : {1, 20, 10000})
        EXPECT_EQ(Players[slot].Position, position::Center) << slot;
    EXPECT_TRUE(before.DiffersOnlyIn(Players[1].Position, Players[20].Position, Players[10000].Position));
    EXPECT_FALSE(Modified);
    RepairPositions(OpenWork());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerPositionTest, WhoHasOneAndWhoIsNotInUseStayAsTheyAre)
{
    for (int position = position::Center; position <= position::Defense; ++position)
        PutSkater(20 + position, 9, position, status::Farm);
    PutSkater(30, 9, 0, status::Farm).InUse = false;
    PutSkater(31, 9, 0, status::Farm).InUse.SetWord(1); // not True
    Players[0].InUse = true;                            // the placeholder
    const LeagueBefore before;
    RepairPositions(OpenWork());
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerPositionTest, ABoxThatFailsEndsTheRepairBeforeItsSkater)
{
    for (const int slot : {20, 21, 22})
        PutSkater(slot, 9, 0, status::Pro);
    FailingBoxes machine(1);
    EXPECT_EQ(NumberOfFailure([&] { RepairPositions({OpenLeague, machine, machine, Modified}); }), failure::Overflow);
    EXPECT_EQ(Players[20].Position, 0);
    EXPECT_EQ(Players[21].Position, 0);
}

TEST_F(PlayerPositionTest, AnotherPositionIsNews)
{
    const std::pair<int, const char*> names[] = {{4, "D"}, {1, "C"}, {3, "RW"}, {2, "LW"}};
    for (const auto& [position, name] : names) {
        const LeagueBefore before;
        SetPosition(OpenWork(), 7, position);
        EXPECT_EQ(Tilton.Position, position);
        EXPECT_THAT(Machine.TakeNews(),
                    ElementsAre(News{"league", std::string("Ward Tilton position was change to ") + name}));
        EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Position));
    }
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
