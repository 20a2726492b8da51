#include "desk/Arena.h"

#include "ArenaDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ArenaTest : public ArenaDesk {};

TEST_F(ArenaTest, ALevelHasAtMost99999Seats)
{
    const Typing typings[] = {
        {"2500", 2500, {}}, {"99999", 99999, {}}, {"100000", 99999, 99999}, {"99999999999999999999", 99999, 99999},
        {"0", 0, {}},       {"-5", -5, {}},       {"7-2", 7, {}},           {"-2147483648", -2147483648LL, {}}};
    for (const Typing& typing : typings) {
        const LeagueBefore before;
        Modified = false;
        const TypedNumber typed = SetArenaCapacity(OpenWork(), 5, 2, typing.Text);
        EXPECT_TRUE(typed.Accepted) << typing.Text;
        EXPECT_EQ(typed.Shown, typing.Shown) << typing.Text;
        EXPECT_EQ(Five.ArenaCapacity[2], typing.Stored) << typing.Text;
        EXPECT_TRUE(Modified) << typing.Text;
        EXPECT_TRUE(before.DiffersOnlyIn(Five.ArenaCapacity[2])) << typing.Text;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ArenaTest, SeatsThatDoNotFit32BitsFailWith6AndStoreNothing)
{
    const LeagueBefore before;
    EXPECT_EQ(NumberOfFailure([&] { SetArenaCapacity(OpenWork(), 5, 3, "-2147483649"); }), failure::Overflow);
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(ArenaTest, SeatsThatAreNoNumberAreRefusedAndTold)
{
    const LeagueBefore before;
    EXPECT_FALSE(SetArenaCapacity(OpenWork(), 5, 1, "").Accepted);
    EXPECT_FALSE(SetArenaCapacity(OpenWork(), 5, 1, "9x").Accepted);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NoValidInput, OnlyNumbers));
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(ArenaTest, TheTotalIsThePlainSumHoweverGreat)
{
    EXPECT_EQ(TotalCapacity(Five), 15000);
    for (Int32& capacity : Five.ArenaCapacity)
        capacity = 2147483647;
    EXPECT_EQ(TotalCapacity(Five), 10737418235LL);
}

TEST_F(ArenaTest, ANameIsCutTo40Characters)
{
    const LeagueBefore before;
    EXPECT_TRUE(NameArena(OpenWork(), 5, std::string(39, 'x') + "yz"));
    EXPECT_EQ(Five.ArenaName.Raw(), std::string(39, 'x') + "y");
    EXPECT_TRUE(NameArena(OpenWork(), 5, ""));
    EXPECT_EQ(Five.ArenaName.Raw(), std::string(40, ' '));
    EXPECT_TRUE(Modified);
    EXPECT_TRUE(before.DiffersOnlyIn(Five.ArenaName));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ArenaTest, ANameOfOtherSignsIsRefusedAndTold)
{
    const LeagueBefore before;
    EXPECT_FALSE(NameArena(OpenWork(), 5, "Dome_"));
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Warning, "Only numbers, letters and spaces are allowed in that textbox!"}));
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
