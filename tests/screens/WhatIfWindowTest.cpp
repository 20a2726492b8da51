// What offers taken and a release would come to, on the screens of the offers and of the roster.

#include "screens/market/WhatIfWindow.h"
#include "desk/WhatIf.h"
#include "OnHistory.h"
#include "OnOfferScreen.h"
#include "OnRosterScreen.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

std::string MoneyOf(long long amount) { return Machine().CurrencyNoDecimals(static_cast<double>(amount)); }

class WhatIfOnOffers : public OnOfferScreen {
protected:
    WhatIfOnOffers()
    {
        LeagueData.SalaryCapMode = 1;
        LeagueData.SalaryCap = 60000000;
        Own().Cash = 9000000;
        PutSkater(1, 5, position::Center, status::Pro);
        FreeSkater(2).Position = position::Defense;
        FreeSkater(3);
    }

    WhatIfWindow& Look()
    {
        Click(Offers().cmdWhatIf);
        return *Offers().WhatIf;
    }
    // The row of a caption: now, then, difference.
    std::vector<std::string> Row(const QString& caption)
    {
        const FigureTable* table = Offers().WhatIf->tblFigures;
        for (int row = 0; row < table->rowCount(); ++row)
            if (table->TextAt(row, 0) == caption)
                return {table->TextAt(row, 1).toStdString(), table->TextAt(row, 2).toStdString(),
                        table->TextAt(row, 3).toStdString()};
        return {};
    }
};

TEST_F(WhatIfOnOffers, TheTeamIsToldAsItIsAndAsItWouldBe)
{
    Open();
    Offer(2);
    OfferOf(2).Bonus = 1000000;
    const auto league = AllTables();
    WhatIfWindow& look = Look();
    ASSERT_TRUE(look.isVisible());
    EXPECT_EQ(Of(look.lblOffers), "With all offers taken: 1");
    EXPECT_THAT(Row("Centers"), ElementsAre("1", "1", ""));
    EXPECT_THAT(Row("Defensemen"), ElementsAre("0", "1", "+1"));
    EXPECT_THAT(Row("People in all"), ElementsAre("1", "2", "+1"));
    EXPECT_THAT(Row("Payroll this season"), ElementsAre(MoneyOf(1000000), MoneyOf(1750000), "+" + MoneyOf(750000)));
    EXPECT_THAT(Row("Room under the cap"),
                ElementsAre(MoneyOf(59000000), MoneyOf(58250000), "\u2212" + MoneyOf(750000)));
    EXPECT_THAT(Row("Bank account"), ElementsAre(MoneyOf(9000000), MoneyOf(8000000), "\u2212" + MoneyOf(1000000)));
    EXPECT_TRUE(AllTables() == league);
    EXPECT_FALSE(Modified);
}

TEST_F(WhatIfOnOffers, ItFollowsWhatIsTyped)
{
    Open();
    WhatIfWindow& look = Look();
    EXPECT_EQ(Of(look.lblOffers), "With all offers taken: 0");
    Offers().activateWindow();
    Settle();
    ClickEntry(0);
    Enter(Offers().txtOffer, "800000");
    Enter(Offers().txtDuration, "3");
    EXPECT_EQ(Of(look.lblOffers), "With all offers taken: 1");
    EXPECT_THAT(Row("Defensemen"), ElementsAre("0", "1", "+1"));
    Click(HistoryCommand(Offers(), "cmdUndo"));
    EXPECT_EQ(Of(look.lblOffers), "With all offers taken: 0");
}

TEST_F(WhatIfOnOffers, WithoutACapThereIsNone)
{
    LeagueData.SalaryCapMode = 0;
    Open();
    Look();
    EXPECT_THAT(Row("Salary cap"), ElementsAre("-", "-", ""));
    EXPECT_THAT(Row("Room under the cap"), ElementsAre("-", "-", ""));
}

TEST_F(WhatIfOnOffers, WhatIsBeyondTheFiguresIsSaidWithoutABox)
{
    Own().Cash = -2147483647;
    Open();
    Offer(2);
    OfferOf(2).Bonus = 2000000000;
    WhatIfWindow& look = Look();
    EXPECT_EQ(Of(look.lblHint), "This is beyond what can be reckoned.");
    EXPECT_EQ(look.tblFigures->rowCount(), 0);
}

TEST_F(WhatIfOnOffers, TheCommandClosesItAndSoDoesEsc)
{
    Open();
    WhatIfWindow& look = Look();
    Look();
    EXPECT_FALSE(look.isVisible());
    Look();
    QTest::keyClick(&look, Qt::Key_Escape);
    EXPECT_FALSE(look.isVisible());
}

class ReleaseOnRoster : public OnRosterScreen {};

TEST_F(ReleaseOnRoster, WhoeverIsChosenIsToldWithWhatHisReleaseWouldMean)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 60000000;
    PutSeven();
    Players[6].Contract = 4;
    Players[6].Salary = 3000000;
    Roster();
    EXPECT_EQ(Of(Roster().lblRelease), "");
    const auto league = AllTables();
    Choose(6, position::Center);
    const Released released = WithRelease(OpenLeague, 5, {.IsGoalie = false, .Slot = 6});
    EXPECT_EQ(Of(Roster().lblRelease), "With this release: rest of the contract " + MoneyOf(released.RestOfContract) +
                                           ", payroll " + MoneyOf(released.After.Total) + " instead of " +
                                           MoneyOf(released.Before.Total) + ", cap " + MoneyOf(60000000));
    EXPECT_EQ(released.Before.Total - released.After.Total, 3000000);
    EXPECT_TRUE(AllTables() == league);
    Choose(4, position::Defense);
    EXPECT_EQ(Of(Roster().lblRelease).find(MoneyOf(released.RestOfContract)), std::string::npos);
    ClickEntry(0, 1, Qt::ControlModifier);
    EXPECT_EQ(Of(Roster().lblRelease), "");
}

TEST_F(ReleaseOnRoster, AContractBeyondTheFiguresIsLeftUnsaid)
{
    PutSeven();
    Players[6].Contract = 200;
    Players[6].Salary = 2000000000;
    LeagueData.PayrollMinCondition = 100; // nobody counts
    Roster();
    Choose(6, position::Center);
    EXPECT_EQ(Of(Roster().lblRelease), "");
}

} // namespace
} // namespace dravik
