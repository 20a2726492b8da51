#include "desk/TicketPrices.h"

#include "ArenaDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TicketPricesTest : public ArenaDesk {};

TEST_F(TicketPricesTest, APriceIsTheNumberAtTheHeadOfItsTextWithin1And999)
{
    const Typing typings[] = {
        {"45", 45, {}},     {"1", 1, {}},       {"999", 999, {}},    {"7-2", 7, {}},   {"8-", 8, {}},
        {"0045", 45, {}},   {"0", 1, 1},        {"-5", 1, 1},        {"-32768", 1, 1}, {"--9", 1, 1},
        {"1000", 999, 999}, {"1001", 999, 999}, {"32767", 999, 999},
    };
    for (const Typing& typing : typings) {
        const LeagueBefore before;
        Modified = false;
        Five.TicketPrice[3] = 30;
        const TypedNumber typed = SetTicketPrice(OpenWork(), 5, 3, typing.Text);
        EXPECT_TRUE(typed.Accepted) << typing.Text;
        EXPECT_EQ(typed.Shown, typing.Shown) << typing.Text;
        EXPECT_EQ(Five.TicketPrice[3], typing.Stored) << typing.Text;
        EXPECT_TRUE(Modified) << typing.Text;
        EXPECT_TRUE(before.DiffersOnlyIn(Five.TicketPrice[3])) << typing.Text;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TicketPricesTest, ANumberThatDoesNotFitStoresNothingAndIsToldNobody)
{
    const LeagueBefore before;
    for (const char* text : {"32768", "-32769", "99999999999999999999"}) {
        const TypedNumber typed = SetTicketPrice(OpenWork(), 5, 4, text);
        EXPECT_TRUE(typed.Accepted) << text;
        EXPECT_EQ(typed.Shown, 40) << text;
    }
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TicketPricesTest, ATextThatIsNoNumberIsRefusedAndTold)
{
    const std::pair<const char*, Box> refused[] = {
        {"", NoValidInput}, {"-", NoValidInput}, {"a12", NoValidInput}, {"12a", OnlyNumbers}, {"12.5", OnlyNumbers}};
    const LeagueBefore before;
    for (const auto& [text, told] : refused) {
        const TypedNumber typed = SetTicketPrice(OpenWork(), 5, 1, text);
        EXPECT_FALSE(typed.Accepted) << text;
        EXPECT_FALSE(typed.Shown) << text;
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(told)) << text;
    }
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(TicketPricesTest, ARefusalThatCannotBeToldIsAFailureOfTheCheckAndARefusalStill)
{
    FailingBoxes machine(1);
    const LeagueBefore before;
    EXPECT_FALSE(SetTicketPrice({OpenLeague, machine, machine, Modified}, 5, 1, "x").Accepted);
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckInput"}));
    EXPECT_TRUE(before.IsUntouched());
}

TEST_F(TicketPricesTest, ATeamOrLevelOutOfRangeFailsWith9)
{
    const LeagueBefore before;
    const std::pair<int, int> places[] = {{0, 1}, {101, 1}, {5, 0}, {5, 6}};
    for (const auto& [team, level] : places)
        EXPECT_EQ(NumberOfFailure([&] { SetTicketPrice(OpenWork(), team, level, "45"); }), failure::OutOfRange)
            << team << ' ' << level;
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TicketPricesTest, OnlyTheTrueWordKeepsThePricesFromTheManager)
{
    EXPECT_TRUE(ManagerSetsPrices(LeagueData));
    LeagueData.TicketRuleFlag.SetWord(1);
    EXPECT_TRUE(ManagerSetsPrices(LeagueData));
    LeagueData.TicketRuleFlag = true;
    EXPECT_FALSE(ManagerSetsPrices(LeagueData));
}

} // namespace
} // namespace dravik
