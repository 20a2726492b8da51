#include "desk/WhatIf.h"

#include "desk/Release.h"
#include "files/OffersFile.h"
#include "OnMarket.h"
#include "rules/Finance.h"
#include "rules/ReleaseCost.h"
#include "support/RandomLeague.h"

#include <limits>

namespace dravik {
namespace {

using ::testing::ElementsAre;

// Says yes to everything and pays nothing.
class Agreeing : public Voice {
public:
    int MessageBox(const std::string& /*text*/, int /*kind*/, const std::string& /*title*/) override
    {
        return button::Yes;
    }
    std::string InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                         const std::string& /*text*/) override
    {
        return "0";
    }
};

class WhatIfTest : public OnMarket {
protected:
    WhatIfTest()
    {
        LeagueData.SalaryCapMode = 1;
        LeagueData.SalaryCap = 60000000;
        SetOffice();
    }

    static void SetOffice()
    {
        Teams[5].Cash = 9000000;
        Teams[5].SeasonGames = 80;
        Teams[5].GamesPlayed = 20;
    }
    // Three dressed centers.
    static void DressThree()
    {
        TeamMaker(5).Dresses(3, position::Center);
        SetOffice();
    }

    AllTaken Taken()
    {
        AllTaken taken;
        EXPECT_TRUE(ChangesNothing([&] { taken = WithAllOffersTaken(OpenLeague, 5, Offers); }));
        return taken;
    }
    static Released Release(PersonId who) { return WithRelease(OpenLeague, 5, who); }
};

TEST_F(WhatIfTest, PeopleCountInTheirPositionsWhereverTheyStand)
{
    TeamMaker(5)
        .Dresses(1, position::Center)
        .Scratches(2, position::LeftWing)
        .Farms(3, position::RightWing)
        .Dresses(4, position::Defense)
        .FarmsGoalies(5);
    Players[1].Position = 0;
    EXPECT_THAT(CountPeople(OpenLeague, 5), ElementsAre(0, 2, 3, 4, 5));
    EXPECT_THAT(CountPeople(OpenLeague, 6), ElementsAre(0, 0, 0, 0, 0));
}

TEST_F(WhatIfTest, WithoutAnOfferAllStaysAsItIs)
{
    DressThree();
    const AllTaken taken = Taken();
    EXPECT_EQ(taken.Offers, 0);
    EXPECT_EQ(taken.Now, taken.Then);
    EXPECT_EQ(taken.Now.Payroll.Pro, 3000000);
    EXPECT_EQ(taken.Now.PerGame, 3000000 / 80);
}

TEST_F(WhatIfTest, WhoeverTakesAnOfferIsPaidItAndHisBonus)
{
    DressThree();
    FreeSkater(10, 6).Position = position::Defense;
    FreeGoalie(20, 0);
    Offer(10, 750000, 2);
    Offers[10].Bonus = 100000;
    Offer(10020, 2000000, 1);
    Offers[10020].Bonus = 50000;
    const AllTaken taken = Taken();
    EXPECT_EQ(taken.Offers, 2);
    EXPECT_THAT(taken.Now.People, ElementsAre(3, 0, 0, 0, 0));
    EXPECT_THAT(taken.Then.People, ElementsAre(3, 0, 0, 1, 1));
    EXPECT_EQ(taken.Then.Payroll.Total, 5750000);
    EXPECT_EQ(taken.Then.Payroll.Cap, 60000000);
    EXPECT_EQ(taken.Then.Money, 8850000);
    EXPECT_EQ(taken.Then.PerGame, 71875);
}

TEST_F(WhatIfTest, ThePeopleOfTheTeamStayWhereTheyStand)
{
    FreeSkater(10, 5).Status = status::Farm;
    FreeSkater(11, 5).Status = status::Pro;
    LeagueData.FarmSalaryPct = 10;
    LeagueData.FarmEnabled = true;
    Offer(10, 1000000);
    Offer(11, 2000000);
    const AllTaken taken = Taken();
    EXPECT_EQ(taken.Now.People, taken.Then.People);
    EXPECT_EQ(taken.Now.Payroll.Pro, 0);
    EXPECT_EQ(taken.Then.Payroll.Pro, 2000000);
    EXPECT_EQ(taken.Then.Payroll.Farm, 100000);
}

TEST_F(WhatIfTest, AnOfferThatNoFileTakesIsNone)
{
    FreeSkater(10, 6);
    Offer(10, 1000000, 0);
    FreeSkater(11, 6);
    Offer(11);
    Offers[11].Id = 0;
    const AllTaken taken = Taken();
    EXPECT_EQ(taken.Offers, 0);
    EXPECT_EQ(taken.Now, taken.Then);
}

TEST_F(WhatIfTest, ACapThatGoesWithTheMoneyFallsByTheBonuses)
{
    LeagueData.SalaryCapMode = 2;
    FreeSkater(10, 6);
    Offer(10, 1000000);
    Offers[10].Bonus = 4000000;
    const AllTaken taken = Taken();
    EXPECT_EQ(taken.Now.Payroll.Cap, 69000000);
    EXPECT_EQ(taken.Then.Payroll.Cap, 65000000);
}

TEST_F(WhatIfTest, MoneyBeyond32BitsFailsWith6AndATeamThatIsNoneWith9)
{
    Teams[5].Cash = std::numeric_limits<int>::min();
    FreeSkater(10, 6);
    Offer(10);
    Offers[10].Bonus = 1;
    EXPECT_EQ(FailureFrom([this] { WithAllOffersTaken(OpenLeague, 5, Offers); }), failure::Overflow);
    EXPECT_EQ(FailureFrom([this] { WithAllOffersTaken(OpenLeague, 101, Offers); }), failure::OutOfRange);
    EXPECT_EQ(FailureFrom([] { WithRelease(OpenLeague, 5, {.IsGoalie = true, .Slot = 1001}); }), failure::OutOfRange);
}

// The second reading: sums by hand over what stands in the tables.
TEST_F(WhatIfTest, RandomOffersComeToWhatASumByHandComesTo)
{
    Dice dice(7);
    for (int round = 0; round < 30; ++round) {
        for (int slot = 1; slot <= 60; ++slot) {
            Player& player = PutSkater(slot, dice.Roll(0, 6), dice.Roll(1, 4), dice.Roll(1, 2));
            player.Contract = dice.Roll(0, 2);
            player.Salary = dice.Roll(1, 9) * 100000;
            Offers[slot] = {};
            if (player.Contract == 0 && dice.Chance(60)) {
                Offer(slot, dice.Roll(1, 9) * 300000, dice.Roll(0, 4));
                Offers[slot].Bonus = dice.Roll(0, 20000);
            }
        }
        PeopleByPosition people{};
        long long pay = 0;
        long long money = Teams[5].Cash;
        for (int slot = 1; slot <= 60; ++slot) {
            const Player& player = Players[slot];
            const FreeAgentOffer& offer = Offers[slot];
            const bool takes = offer.Id == slot && offer.Duration > 0 && offer.Salary >= LeagueData.MinSalary;
            if (!takes && player.Team != 5)
                continue;
            ++people.at(static_cast<std::size_t>(player.Position - 1));
            if (takes) {
                pay += offer.Salary;
                money -= offer.Bonus;
            } else if (player.Contract > 0) {
                pay += player.Salary;
            }
        }
        const AllTaken taken = Taken();
        EXPECT_EQ(taken.Then.People, people) << round;
        EXPECT_EQ(taken.Then.Payroll.Total, pay) << round;
        EXPECT_EQ(taken.Then.Money, money) << round;
    }
}

TEST_F(WhatIfTest, AReleaseTellsTheRestOfTheContractAndThePayrollWithoutHim)
{
    DressThree();
    Players[2].Contract = 3;
    Players[2].Salary = 4000000;
    Released released;
    EXPECT_TRUE(ChangesNothing([&] { released = Release(Skater(2)); }));
    EXPECT_EQ(released.RestOfContract, 11000000);
    EXPECT_EQ(released.Before.Total, 6000000);
    EXPECT_EQ(released.After.Total, 2000000);
    EXPECT_EQ(released.After.Cap, 60000000);
}

// The command itself, on a league that may change.
TEST_F(WhatIfTest, AReleaseComesToWhatTheCommandComesTo)
{
    LeagueData.FarmPayrollInCap = true;
    LeagueData.CoachPayrollInCap = true;
    LeagueData.FarmEnabled = true;
    LeagueData.FarmSalaryPct = 40;
    Dice dice(3);
    for (int round = 0; round < 20; ++round) {
        for (int slot = 1; slot <= 30; ++slot) {
            Player& player = PutSkater(slot, 5, dice.Roll(1, 4), dice.Roll(0, 2));
            player.Contract = dice.Roll(0, 5);
            player.Salary = dice.Roll(1, 90) * 100000;
            PutGoalie(slot, 5, dice.Roll(0, 2)).Contract = dice.Roll(0, 2);
        }
        const PersonId who{.IsGoalie = dice.Chance(30), .Slot = static_cast<int>(dice.Roll(1, 30))};
        const long long rest = OnPerson(OpenLeague, who, [](const auto& person) {
            return RestOfContract(Teams[5], person.Contract, person.Salary);
        });
        const Released released = Release(who);
        const auto copy = Copy(OpenLeague);
        Agreeing says;
        bool modified = false;
        ASSERT_TRUE(ReleasePerson({*copy, says, dravik::Machine(), modified}, 5, who));
        EXPECT_EQ(released.RestOfContract, rest) << round;
        EXPECT_EQ(released.Before, StandingAgainstCap(OpenLeague, 5)) << round;
        EXPECT_EQ(released.After, StandingAgainstCap(*copy, 5)) << round;
    }
}

} // namespace
} // namespace dravik
