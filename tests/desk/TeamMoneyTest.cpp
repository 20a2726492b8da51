#include "desk/TeamMoney.h"

#include "OfficeDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TeamMoneyTest : public OfficeDesk {
protected:
    TeamMoneyTest()
    {
        Five.Cash = 1000;
        Five.PayrollBonus = 1234;
    }

    using Command = void (*)(const Work&, int, const std::function<void()>&);

    // Types the answer; how often the figures were shown.
    int ShownAfter(Command command, const std::string& answer)
    {
        int shown = 0;
        Machine.Type(answer);
        Modified = false;
        command(OpenWork(), 5, [&] {
            ++shown;
            EXPECT_FALSE(Modified); // the figures come before the mark
        });
        return shown;
    }
};

TEST_F(TeamMoneyTest, WhatIsTypedIsAddedSignAndAll)
{
    const LeagueBefore before;
    const std::pair<const char*, int> sums[] = {
        {"500", 1500}, {"-2000", -500}, {"5-2", -495}, {"0", -495}, {"--7", -495}};
    for (const auto& [text, sum] : sums) {
        EXPECT_EQ(ShownAfter(ChangeCash, text), 1) << text;
        EXPECT_EQ(Five.Cash, sum) << text;
        EXPECT_TRUE(Modified) << text;
    }
    EXPECT_EQ(Machine.Questions().front(), Question{"How much to add/remove?"});
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(before.DiffersOnlyIn(Five.Cash));
}

TEST_F(TeamMoneyTest, TheBonusIsAskedForWithItsAmountAndNeverFallsBelow0)
{
    const LeagueBefore before;
    EXPECT_EQ(ShownAfter(ChangePayrollBonus, "66"), 1);
    EXPECT_EQ(Five.PayrollBonus, 1300);
    EXPECT_EQ(ShownAfter(ChangePayrollBonus, "-1300"), 1);
    EXPECT_EQ(Five.PayrollBonus, 0);
    EXPECT_EQ(ShownAfter(ChangePayrollBonus, "-1"), 1);
    EXPECT_EQ(Five.PayrollBonus, 0);
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"How much to add/remove? Current Payroll Bonus is $1,234.00"},
                                                 Question{"How much to add/remove? Current Payroll Bonus is $1,300.00"},
                                                 Question{"How much to add/remove? Current Payroll Bonus is $0.00"}));
    EXPECT_TRUE(before.DiffersOnlyIn(Five.PayrollBonus));
}

TEST_F(TeamMoneyTest, AnEmptyAnswerEndsTheCommandAndAWordIsRefused)
{
    const LeagueBefore before;
    for (const Command command : {ChangeCash, ChangePayrollBonus}) {
        EXPECT_EQ(ShownAfter(command, ""), 0);
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
        EXPECT_EQ(ShownAfter(command, "-"), 0);
        EXPECT_EQ(ShownAfter(command, "-1x"), 0);
        EXPECT_EQ(ShownAfter(command, "12a"), 0);
        EXPECT_EQ(ShownAfter(command, ",5"), 0);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NoValidInput, OnlyNumbers, OnlyNumbers, NoValidInput));
        EXPECT_FALSE(Modified);
    }
    EXPECT_TRUE(before.IsUntouched());
}

TEST_F(TeamMoneyTest, ASumThatDoesNotFitFailsWith6AndTheAmountStays)
{
    Five.Cash = 2147483647;
    Five.PayrollBonus = 2147483647;
    const LeagueBefore before;
    for (const Command command : {ChangeCash, ChangePayrollBonus})
        for (const char* amount : {"1", "2147483648", "-2147483649"}) {
            Machine.Type(amount);
            EXPECT_EQ(NumberOfFailure([&] { command(OpenWork(), 5, [] { ADD_FAILURE() << "shown"; }); }),
                      failure::Overflow)
                << amount;
        }
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(TeamMoneyTest, FiguresThatCannotBeShownLeaveTheSumAndNoMark)
{
    Machine.Type("1");
    EXPECT_EQ(NumberOfFailure([&] { ChangeCash(OpenWork(), 5, [] { Fail(failure::OutOfMemory); }); }),
              failure::OutOfMemory);
    EXPECT_EQ(Five.Cash, 1001);
    EXPECT_FALSE(Modified);
}

TEST_F(TeamMoneyTest, AQuestionThatCannotBeAskedChangesNothing)
{
    SilentInput machine;
    const LeagueBefore before;
    for (const Command command : {ChangeCash, ChangePayrollBonus})
        EXPECT_EQ(NumberOfFailure([&] {
                      command({OpenLeague, machine, machine, Modified}, 5, [] {});
                  }),
                  failure::OutOfMemory);
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
