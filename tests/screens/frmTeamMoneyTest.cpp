#include "OnTeamScreen.h"

#include "support/Routines.h"
#include <limits>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TeamMoney : public OnTeamScreen {};

const Box WantsToChange{36, "Do you want to change the password for Harbour City Gulls"};

TEST_F(TeamMoney, PasswordAsksFirstWithoutAQuestionMark)
{
    Machine.Answer(button::No);
    Modified = false;
    Office().cmdPassword_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Do you want to change the password for Harbour City Gulls"}));
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(TeamMoney, TwoEqualPasswordsAreSetAsTheirDigest)
{
    Office();
    Modified = false;
    Machine.Type("a");
    Machine.Type("a");
    Office().cmdPassword_Click();
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{"Enter New Password"}, Question{"Enter New Password Again to Verify"}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Do you want to change the password for Harbour City Gulls"},
                                             Box{64, "New Password was successfully set!"}));
    EXPECT_EQ(Own().Password.Raw(), DigestOfA);
    EXPECT_TRUE(Modified);
}

TEST_F(TeamMoney, APasswordWithASpaceInItIsDigestedWithTheSpace)
{
    Machine.Type("a b");
    Machine.Type("a b");
    Office().cmdPassword_Click();
    EXPECT_EQ(Own().Password.Raw(), DigestStrToHexStr("a b"));
    EXPECT_NE(Own().Password.Raw(), DigestStrToHexStr("ab"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(WantsToChange, Box{64, "New Password was successfully set!"}));
}

TEST_F(TeamMoney, TwoEmptyPasswordsEraseItAndTheNextCheckDoesNotAsk)
{
    Own().Password = DigestOfA;
    Machine.Type("a"); // on the way in
    Office();
    Modified = false;
    Office().cmdPassword_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(WantsToChange, Box{64, "Password was erased!"}));
    EXPECT_EQ(Own().Password.Raw(), std::string(32, ' '));
    EXPECT_TRUE(Modified);
    const std::size_t asked = Machine.Questions().size();
    EXPECT_TRUE(CheckPassword(5));
    EXPECT_EQ(Machine.Questions().size(), asked);
}

TEST_F(TeamMoney, PasswordsThatDifferInLetterCaseDoNotMatch)
{
    Office();
    Modified = false;
    Machine.Type("Gulls");
    Machine.Type("gulls");
    Office().cmdPassword_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(WantsToChange, Box{48, "Password does not match!"}));
    EXPECT_EQ(Own().Password.Trimmed(), "");
    EXPECT_TRUE(Modified);
}

TEST_F(TeamMoney, OneEmptyPasswordDoesNotMatchTheOther)
{
    Machine.Type("");
    Machine.Type("gulls");
    Office().cmdPassword_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(WantsToChange, Box{48, "Password does not match!"}));
    EXPECT_EQ(Own().Password.Trimmed(), "");
}

TEST_F(TeamMoney, MoneyIsAddedAndRemoved)
{
    Office();
    Modified = false;
    Machine.Type("500");
    Office().cmdChangeFinance_Click();
    EXPECT_EQ(Own().Cash, 1500);
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Of(Office().lblFinance), "$1,500");
    Machine.Type("-2000");
    Office().cmdChangeFinance_Click();
    EXPECT_EQ(Own().Cash, -500);
    EXPECT_EQ(Of(Office().lblFinance), "-$500");
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{"How much to add/remove?"}, Question{"How much to add/remove?"}));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamMoney, AnEmptyAmountEndsTheCommand)
{
    Office();
    Modified = false;
    Office().cmdChangeFinance_Click();
    Office().cmdPayrollBonus_Click();
    EXPECT_EQ(Own().Cash, 1000);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"How much to add/remove?"},
                                                 Question{"How much to add/remove? Current Payroll Bonus is $0.00"}));
}

TEST_F(TeamMoney, TheLeadingMinusIsSetAsideForTheCheck)
{
    Machine.Type("-");
    Office().cmdChangeFinance_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
    Machine.Type("12a");
    Office().cmdChangeFinance_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Only numbers are allowed in that textbox!"}));
    Machine.Type("-1x");
    Office().cmdChangeFinance_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Only numbers are allowed in that textbox!"}));
    EXPECT_EQ(Own().Cash, 1000);
}

TEST_F(TeamMoney, AnAmountIsTheLeadingNumberOfItsText)
{
    Machine.Type("5-2");
    Office().cmdChangeFinance_Click();
    EXPECT_EQ(Own().Cash, 1005);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamMoney, CashThatDoesNotFitIsAFailureAndStays)
{
    Own().Cash = std::numeric_limits<std::int32_t>::max();
    Office();
    Modified = false;
    Machine.Type("1");
    Office().cmdChangeFinance_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in cmdChangeFinance!"}));
    EXPECT_EQ(Own().Cash, std::numeric_limits<std::int32_t>::max());
    EXPECT_FALSE(Modified);
    Machine.Type("99999999999");
    Office().cmdChangeFinance_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in cmdChangeFinance!"}));
}

TEST_F(TeamMoney, ThePayrollBonusIsAskedForWithItsPresentAmount)
{
    Own().PayrollBonus = 1234;
    Office();
    Modified = false;
    Machine.Type("66");
    Office().cmdPayrollBonus_Click();
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{"How much to add/remove? Current Payroll Bonus is $1,234.00"}));
    EXPECT_EQ(Own().PayrollBonus, 1300);
    EXPECT_TRUE(Modified);
}

TEST_F(TeamMoney, ANegativePayrollBonusBecomesZero)
{
    Own().PayrollBonus = 100;
    Machine.Type("-101");
    Office().cmdPayrollBonus_Click();
    EXPECT_EQ(Own().PayrollBonus, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamMoney, APayrollBonusThatDoesNotFitIsAFailureAndStays)
{
    Own().PayrollBonus = 5;
    Machine.Type("2147483643");
    Office().cmdPayrollBonus_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in cmdPayrollBonus!"}));
    EXPECT_EQ(Own().PayrollBonus, 5);
}

TEST_F(TeamMoney, TheBonusChangesTheShownPayroll)
{
    LeagueData.PayrollIncludesBonus = true;
    Machine.Type("700");
    Office().cmdPayrollBonus_Click();
    EXPECT_EQ(Of(Office().lblProPayRoll), "$700");
}

class CancellingMachine : public ScriptedPlatform {
public:
    std::string InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                         const std::string& /*text*/) override
    {
        Fail(Number);
    }
    int Number = failure::Cancelled;
};

TEST_F(TeamMoney, TheMoneyCommandsDropACancelFailureAndReportAnyOther)
{
    frmTeam& office = Office();
    CancellingMachine cancelling;
    UseMachine(cancelling);
    office.cmdChangeFinance_Click();
    office.cmdPayrollBonus_Click();
    EXPECT_THAT(cancelling.Boxes(), IsEmpty());
    cancelling.Number = failure::OutOfMemory;
    office.cmdChangeFinance_Click();
    office.cmdPayrollBonus_Click();
    office.cmdPassword_Click();
    EXPECT_THAT(cancelling.Boxes(), ElementsAre(Box{16, "7 - Out of memory in cmdChangeFinance!"},
                                                Box{16, "7 - Out of memory in cmdPayrollBonus!"},
                                                Box{36, "Do you want to change the password for Harbour City Gulls"},
                                                Box{16, "7 - Out of memory in cmdPassword!"}));
    UseMachine(Machine);
}

TEST_F(TeamMoney, FiringTheProCoachAsksAndSetsHimFree)
{
    Own().ProCoach = 7;
    Office();
    Modified = false;
    Office().cmdFirePro_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you wants to fire Tor Lindqvist?"}));
    EXPECT_EQ(Coaches[7].Team, 0);
    EXPECT_EQ(Own().ProCoach, 0);
    EXPECT_EQ(Of(Office().lblCoach), "");
    EXPECT_FALSE(Office().cmdFirePro->isEnabled());
    EXPECT_TRUE(Modified);
}

TEST_F(TeamMoney, FiringTheFarmCoachLeavesTheProCoach)
{
    Own().ProCoach = 7;
    Own().Farm.FarmCoach = 8;
    Office();
    Modified = false;
    Office().cmdFireFarm_Click();
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you wants to fire Marek Zelinka?"}));
    EXPECT_EQ(Coaches[8].Team, 0);
    EXPECT_EQ(Own().Farm.FarmCoach, 0);
    EXPECT_EQ(Of(Office().lblFarmCoach), "");
    EXPECT_FALSE(Office().cmdFireFarm->isEnabled());
    EXPECT_EQ(Coaches[7].Team, 5);
    EXPECT_EQ(Of(Office().lblCoach), "Tor Lindqvist");
}

TEST_F(TeamMoney, ACoachWhoIsNotToBeFiredStays)
{
    Own().ProCoach = 7;
    Office();
    Modified = false;
    Machine.Answer(button::No);
    Office().cmdFirePro_Click();
    EXPECT_EQ(Coaches[7].Team, 5);
    EXPECT_EQ(Own().ProCoach, 7);
    EXPECT_EQ(Of(Office().lblCoach), "Tor Lindqvist");
    EXPECT_FALSE(Modified);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you wants to fire Tor Lindqvist?"}));
}

TEST_F(TeamMoney, WithoutACoachNobodyIsFired)
{
    Office().cmdFirePro_Click();
    Office().cmdFireFarm_Click();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamMoney, AFullSeasonShowsEveryFigure)
{
    Own().Cash = 1000000;
    Own().SeasonGames = 82;
    Own().GamesPlayed = 20;
    Own().HomeGames = 9;
    Own().TotalIncome = 9000000;
    Own().TotalAttendance = 155000;
    TeamMaker(5).Dresses(2, position::Center).Farms(1, position::Center);
    Own().Cash = 1000000;
    Own().Division = 5;
    const frmTeam& office = Office();
    EXPECT_EQ(Of(office.lblFinance), "$1,000,000");
    EXPECT_EQ(Of(office.lblProPayRoll), "$2,000,000");
    EXPECT_EQ(Of(office.lblFarmPayRoll), "$100,000");
    EXPECT_EQ(Of(office.lblHGLeft), "32");
    EXPECT_EQ(Of(office.lblGameLeft), "62");
    EXPECT_EQ(Of(office.lblAverageAttendance), "17222.22");
    EXPECT_EQ(Of(office.lblAverageIncome), "$1,000,000");
    EXPECT_EQ(Of(office.lblEstimatedRevenue), "$32,000,000");
    EXPECT_EQ(Of(office.lblExpensesPerGame), "$25,610");
    EXPECT_EQ(Of(office.lblEstimatedSeasonExpense), "$1,587,820");
    EXPECT_EQ(Of(office.lblEstimatedBankAccount), "$31,412,180");
}

TEST_F(TeamMoney, SeasonGames1ShowsZeros)
{
    Own().SeasonGames = 1;
    Own().HomeGames = 1;
    Own().TotalIncome = 500;
    const frmTeam& office = Office();
    for (const QLabel* label : {office.lblHGLeft, office.lblGameLeft, office.lblAverageAttendance})
        EXPECT_EQ(Of(label), "0") << label->objectName().toStdString();
    for (const QLabel* label : {office.lblAverageIncome, office.lblEstimatedRevenue, office.lblExpensesPerGame,
                                office.lblEstimatedSeasonExpense})
        EXPECT_EQ(Of(label), "$0") << label->objectName().toStdString();
    EXPECT_EQ(Of(office.lblEstimatedBankAccount), "$1,000");
}

TEST_F(TeamMoney, SeasonGames2ShowsFigures)
{
    Own().SeasonGames = 2;
    Own().HomeGames = 1;
    Own().TotalIncome = 500;
    Own().TotalAttendance = 7;
    const frmTeam& office = Office();
    EXPECT_EQ(Of(office.lblGameLeft), "2");
    EXPECT_EQ(Of(office.lblHGLeft), "0");
    EXPECT_EQ(Of(office.lblAverageIncome), "$500");
    EXPECT_EQ(Of(office.lblAverageAttendance), "7.00");
}

TEST_F(TeamMoney, WithNoHomeGamesTheAveragesShowZeroAndNothingIsDivided)
{
    Own().SeasonGames = 82;
    Own().GamesPlayed = 2;
    Own().HomeGames = 0;
    Own().TotalIncome = 500;
    const frmTeam& office = Office();
    EXPECT_EQ(Of(office.lblHGLeft), "41");
    EXPECT_EQ(Of(office.lblGameLeft), "80");
    EXPECT_EQ(Of(office.lblAverageAttendance), "0");
    for (const QLabel* label : {office.lblAverageIncome, office.lblEstimatedRevenue, office.lblExpensesPerGame,
                                office.lblEstimatedSeasonExpense})
        EXPECT_EQ(Of(label), "$0") << label->objectName().toStdString();
    EXPECT_EQ(Of(office.lblEstimatedBankAccount), "$1,000");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamMoney, AnOddSeasonLeavesHalfAHomeGame)
{
    Own().SeasonGames = 81;
    Own().HomeGames = 40;
    EXPECT_EQ(Of(Office().lblHGLeft), "0.5");
    Own().HomeGames = 41;
    Office().UpdateFinance();
    EXPECT_EQ(Of(Office().lblHGLeft), "-0.5");
}

TEST_F(TeamMoney, AHalfGameHasTheDecimalSignOfTheLocale)
{
    Own().SeasonGames = 83;
    Own().GamesPlayed = 40;
    Own().HomeGames = 20;
    Own().TotalAttendance = 377497;
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    OnDesktop([this] {
        EXPECT_EQ(Of(Office().lblHGLeft), "21,5");
        EXPECT_EQ(Of(Office().lblAverageAttendance), "18874,85");
        EXPECT_EQ(Of(Office().lblGameLeft), "43");
        Own().SeasonGames = 4082;
        Office().UpdateFinance();
        EXPECT_EQ(Of(Office().lblHGLeft), "2021");
    });
    QLocale::setDefault(before);
}

TEST_F(TeamMoney, WithoutExpensesTheAccountIsCashAndRevenue)
{
    LeagueData.ExpenseFlag = true;
    TeamMaker(5).Dresses(1, position::Center);
    Own().Cash = 1000;
    Own().HomeGames = 1;
    Own().TotalIncome = 500;
    Own().Division = 5;
    const frmTeam& office = Office();
    EXPECT_EQ(Of(office.lblExpensesPerGame), "$0");
    EXPECT_EQ(Of(office.lblEstimatedRevenue), "$20,000");
    EXPECT_EQ(Of(office.lblEstimatedBankAccount), "$21,000");
}

TEST_F(TeamMoney, AnOverflowOfTheSeasonIsReportedAndThePayrollsStand)
{
    TeamMaker(5).Dresses(3, position::Center);
    for (int i = 1; i <= 3; ++i)
        Players[i].Salary = 2000000000;
    Own().Cash = 1000;
    Own().Division = 5;
    Own().SeasonGames = 4;
    Own().HomeGames = 1;
    Players[3].Salary = 100;
    Own().GamesPlayed = 0;
    Players[2].InUse = false;
    Own().SeasonGames = 2;
    Own().GamesPlayed = -3; // five games of a thousand million are too much
    const frmTeam& office = Office();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in UpdateFinance!"}));
    EXPECT_EQ(Of(office.lblFinance), "$1,000");
    EXPECT_EQ(Of(office.lblProPayRoll), "$2,000,000,128"); // as far as a 32-bit float goes
    EXPECT_FALSE(office.txtAbbre->isEnabled());            // opening goes on behind it
}
} // namespace
} // namespace dravik
