#include "OnRosterScreen.h"

#include "AnswerDialog.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Entry = std::pair<std::string, int>;

const Box Integrity{16, "Integrity Check Failed!"};
const Box Asked{36, "Are you sure you want to release Skater 1?"};
const Box DeadlinePassed{64, "Trade Deadline is Passed!"};

class frmRosterReleaseTest : public OnRosterScreen {
protected:
    // Releases the chosen person for so many percent.
    void Release(int percent)
    {
        Machine.Type(std::to_string(percent));
        Roster().cmdRelease_Click();
    }
    Player& PutExpensive()
    {
        Player& player = PutSkater(1, 5, position::Center, status::Scratch);
        player.Contract = 3;
        player.Salary = 1000000;
        Own().SeasonGames = 82;
        Own().GamesPlayed = 41;
        Own().Cash = 5000000;
        Choose(1, 1);
        return player;
    }

    // Releases the person of PutExpensive for `percent`, which has to end in an overflow and leave him as he is.
    void ExpectOverflow(int percent)
    {
        const long long cash = Own().Cash;
        const long long contract = Players[1].Contract;
        Own().ProLines[1].NormalForward(1, 1) = 1;
        Release(percent);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{36, "Are you sure you want to release Skater 1?"},
                                                     Box{16, "6 - Overflow in cmdRelease!"}));
        EXPECT_EQ(Players[1].Team, 5);
        EXPECT_EQ(Players[1].Contract, contract);
        EXPECT_EQ(Own().Cash, cash);
        EXPECT_EQ(Own().ProLines[1].NormalForward(1, 1), 1);
        EXPECT_FALSE(Modified);
    }
};

TEST_F(frmRosterReleaseTest, WaiversAfterTheDeadlineAreRefused)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    PassDeadline();
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(DeadlinePassed));
    EXPECT_EQ(Players[1].Suspension, 0);
}

TEST_F(frmRosterReleaseTest, AProPlayerGoesToTheScratchesAndOnWaivers)
{
    PutSkaters(2, status::Pro);
    Choose(2, 1);
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Skater 2 was sent to Waiver."}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 2", 21}));
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}));
    EXPECT_EQ(Of(Roster().lblPlayer[1]), "Scratches Player = 1");
    EXPECT_EQ(Players[2].Suspension, 99);
    EXPECT_EQ(Players[2].Status, 1);
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterReleaseTest, AProGoalieGoesToTheScratchesAndOnWaiversAndTheSkaterOfHisNumberStays)
{
    PutSkaters(2, status::Pro);
    PutGoalie(1, 5, status::Pro);
    PutGoalie(2, 5, status::Pro);
    Choose(2, 5);
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Goalie 2 was sent to Waiver."}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Goalie 2", 25}));
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2", 21}, Entry{"Goalie 1", 15}));
    EXPECT_EQ(Of(Roster().lblPlayer[1]), "Scratches Player = 1");
    EXPECT_EQ(Of(Roster().lblPlayer[2]), "Pro Player = 3");
    EXPECT_EQ(Goalies[2].Suspension, 99);
    EXPECT_EQ(Goalies[2].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[2].Status, 1);
    EXPECT_EQ(Players[2].Suspension, 0);
    EXPECT_EQ(Players[2].Status, 2);
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterReleaseTest, AnInjuredProGoalieGoesOnWaiversFromTheProList)
{
    PutGoalie(1, 5, status::Pro);
    Choose(1, 5);
    Goalies[1].Condition = 50;
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Cannot Move an Injured Goalie!"}, Integrity,
                                             Box{64, "Goalie 1 was sent to Waiver."}));
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Goalie 1", 15}));
    EXPECT_EQ(Goalies[1].Suspension, 99);
    EXPECT_EQ(Goalies[1].Status, 2);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterReleaseTest, AScratchGoesOnWaiversWhereHeStandsAndNothingIsModified)
{
    PutSkaters(1, status::Scratch);
    Choose(1, 1);
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Skater 1 was sent to Waiver."}));
    EXPECT_EQ(Players[1].Suspension, 99);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterReleaseTest, ReleaseChargesTheRestOfTheContractByTheGamesLeft)
{
    Player& player = PutExpensive();
    player.Protected = true;
    player.NoApplyRerate = true;
    player.TradeAvailable = true;
    player.NoTrade = true;
    RosterChanges[1].Status = 1;
    RosterChanges[1].Protected = true;
    Release(50);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Skater 1?"}));
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{.Prompt = "How much % does team paid the player for the rest of is contract?",
                                     .Default = "0"}));
    EXPECT_EQ(Own().Cash, 3750000);
    EXPECT_EQ(player.Team, 0);
    EXPECT_EQ(player.Contract, 0);
    for (const Boolean& flag : {player.Protected, player.NoApplyRerate, player.TradeAvailable, player.NoTrade})
        EXPECT_FALSE(flag);
    EXPECT_EQ(player.Status, 1);
    EXPECT_EQ(player.Salary, 1000000);
    EXPECT_EQ(RosterChanges[1].Status, 1);
    EXPECT_TRUE(RosterChanges[1].Protected);
    EXPECT_THAT(Listed(1), IsEmpty());
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterReleaseTest, ReleaseWithoutASeasonChargesTheFullContract)
{
    PutExpensive();
    Own().SeasonGames = 0;
    Release(50);
    EXPECT_EQ(Own().Cash, 3500000);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked));
}

TEST_F(frmRosterReleaseTest, ReleaseOfAGoalieAsksForTheGoalerAndTakesHimOffTheLines)
{
    const TeamMaker made = CompleteTeam(5);
    const int keeper = made.GoalieIds[0];
    Choose(keeper, 5);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    Machine.Type("0");
    Roster().cmdRelease_Click();
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{.Prompt = "How much % does team paid the goaler for the rest of is contract?",
                                     .Default = "0"}));
    EXPECT_EQ(Own().ProLines[1].StartGoalie, 0);
    EXPECT_EQ(Goalies[keeper].Team, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Goalie 1?"}));
}

TEST_F(frmRosterReleaseTest, APercentThatIsNoNumberOrACancelledBoxReleasesForNothing)
{
    for (const char* answer : {"abc", ""}) {
        PutExpensive();
        Machine.Type(answer);
        Roster().cmdRelease_Click();
        EXPECT_EQ(Own().Cash, 5000000) << answer;
        EXPECT_EQ(Players[1].Team, 0) << answer;
        Roster().ShowPlayer(true);
        PutSkater(1, 5, position::Center, status::Scratch);
        Roster().ShowPlayer(true);
    }
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Asked));
}

TEST_F(frmRosterReleaseTest, APercentIsHeldBetweenZeroAndAHundred)
{
    PutExpensive();
    Release(150);
    EXPECT_EQ(Own().Cash, 2500000);
    Player& again = PutSkater(1, 5, position::Center, status::Scratch);
    again.Contract = 3;
    Own().Cash = 5000000;
    Release(-5);
    EXPECT_EQ(Own().Cash, 5000000);
    EXPECT_EQ(again.Team, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Asked));
}

TEST_F(frmRosterReleaseTest, APercentIsRoundedTiesToEven)
{
    PutExpensive();
    Machine.Type("2.5 or so");
    Roster().cmdRelease_Click();
    EXPECT_EQ(Own().Cash, 4950000);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked));
}

TEST_F(frmRosterReleaseTest, NoReleasesNobodyAndStillCountsAsModified)
{
    PutExpensive();
    Machine.Answer(button::No);
    Roster().cmdRelease_Click();
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_EQ(Players[1].Team, 5);
    EXPECT_EQ(Own().Cash, 5000000);
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked));
}

TEST_F(frmRosterReleaseTest, AContractBeyondThirtyTwoBitsIsAFailureThatReleasesNobody)
{
    Player& player = PutExpensive();
    player.Salary = 2000000000;
    Own().SeasonGames = 0;
    Release(0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Box{16, "6 - Overflow in cmdRelease!"}));
    EXPECT_EQ(player.Team, 5);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterReleaseTest, APercentBeyondSixteenBitsFailsBeforeItIsCut)
{
    const Player& player = PutExpensive();
    Release(40000);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Box{16, "6 - Overflow in cmdRelease!"}));
    EXPECT_EQ(player.Team, 5);
}

// The whole way through the real dialogs: the question and the amount of a release.
TEST_F(frmRosterReleaseTest, ReleaseThroughTheRealDialogs)
{
    PutExpensive();
    OnDesktop([this] {
        OnDialog<QDialog>([](QDialog& question) {
            dravik::Click(question, "cmdYes");
            OnDialog<QDialog>([](QDialog& amount) {
                auto* box = amount.findChild<QLineEdit*>();
                ASSERT_NE(box, nullptr);
                EXPECT_EQ(box->text(), "0");
                box->setText("50");
                dravik::Press(amount, Qt::Key_Return);
            });
        });
        Roster().cmdRelease_Click();
    });
    EXPECT_EQ(Own().Cash, 3750000);
    EXPECT_EQ(Players[1].Team, 0);
}

TEST_F(frmRosterReleaseTest, WaiversAreOpenWithOnlyOneFlagOfTheDeadline)
{
    PutSkaters(2, status::Scratch);
    for (const int id : {1, 2}) {
        LeagueData.TradeDeadlinePassed = id == 1;
        LeagueData.TradeDeadlineInForce = id == 2;
        Choose(id, 1);
        Roster().cmdSendToWaiver_Click();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Skater " + std::to_string(id) + " was sent to Waiver."}));
        EXPECT_EQ(Players[id].Suspension, 99);
    }
}

TEST_F(frmRosterReleaseTest, ReleaseOfAGoalieClearsHisFlagsAndContractAndLeavesHisChanges)
{
    Goalie& keeper = PutGoalie(4, 5, status::Scratch);
    keeper.Protected = true;
    keeper.NoApplyRerate = true;
    keeper.TradeAvailable = true;
    keeper.NoTrade = true;
    keeper.Contract = 2;
    Own().SeasonGames = 0;
    Own().Cash = 5000000;
    Choose(4, 5);
    RosterChangesGoalie[4].Status = 1;
    RosterChangesGoalie[4].Protected = true;
    RosterChangesGoalie[4].TradeAvailable = true;
    Release(100);
    EXPECT_EQ(Own().Cash, 3000000);
    EXPECT_EQ(keeper.Team, 0);
    EXPECT_EQ(keeper.Contract, 0);
    for (const Boolean& flag : {keeper.Protected, keeper.NoApplyRerate, keeper.TradeAvailable, keeper.NoTrade})
        EXPECT_FALSE(flag);
    EXPECT_EQ(keeper.Status, 1);
    EXPECT_EQ(keeper.Salary, 1000000);
    EXPECT_EQ(RosterChangesGoalie[4].Status, 1);
    EXPECT_TRUE(RosterChangesGoalie[4].Protected);
    EXPECT_TRUE(RosterChangesGoalie[4].TradeAvailable);
    EXPECT_THAT(Listed(1), IsEmpty());
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Goalie 4?"}));
}

TEST_F(frmRosterReleaseTest, ContractYearsAheadBeyondThirtyTwoBitsAreAFailureThatReleasesNobody)
{
    PutExpensive().Salary = 2000000000; // two more years of it
    ExpectOverflow(0);
    PutExpensive().Salary = 1073741823; // just fits
    Own().GamesPlayed = 82;
    Release(0);
    EXPECT_EQ(Players[1].Team, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked));
}

TEST_F(frmRosterReleaseTest, ARestBeyondThirtyTwoBitsIsAFailureThatReleasesNobodyEvenForNothing)
{
    Player& player = PutExpensive();
    player.Contract = 2;
    player.Salary = 1431655765; // and half a year more
    Own().GamesPlayed = 40;
    ExpectOverflow(0);
}

TEST_F(frmRosterReleaseTest, AnAccountBelowThirtyTwoBitsIsAFailureThatReleasesNobody)
{
    PutExpensive();
    Own().Cash = -2147000000;
    ExpectOverflow(50);
}

TEST_F(frmRosterReleaseTest, TheRestIsRoundedTiesToEvenBeforeThePercentIsTaken)
{
    for (const auto& [salary, charged] : {std::pair{5, 2}, std::pair{7, 4}}) { // 2.5 and 3.5
        Player& player = PutExpensive();
        player.Contract = 1;
        player.Salary = salary;
        Release(100);
        EXPECT_EQ(Own().Cash, 5000000 - charged) << salary;
        PutSkater(1, 5, position::Center, status::Scratch);
        Roster().ShowPlayer(true);
    }
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Asked));
}

// What is left is rounded, not what is paid.
TEST_F(frmRosterReleaseTest, TheAccountAfterABuyOutIsRoundedTiesToEven)
{
    for (const auto& [before, after] : {std::pair{11, 8}, std::pair{10, 8}}) { // 8.5 and 7.5
        Player& player = PutExpensive();
        player.Contract = 1;
        player.Salary = 5;
        Own().SeasonGames = 0;
        Own().Cash = before;
        Release(50);
        EXPECT_EQ(Own().Cash, after);
        PutSkater(1, 5, position::Center, status::Scratch);
        Roster().ShowPlayer(true);
    }
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked, Asked));
}

TEST_F(frmRosterReleaseTest, AnInjuredProSkaterGoesOnWaiversFromTheProList)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    Players[1].Condition = 50;
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Cannot Move an Injured Player!"}, Integrity,
                                             Box{64, "Skater 1 was sent to Waiver."}));
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}));
    EXPECT_THAT(Listed(1), IsEmpty());
    EXPECT_EQ(Players[1].Suspension, 99);
    EXPECT_EQ(Players[1].Status, 2);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterReleaseTest, AReleasedSkaterLeavesTheLinesAndHisOfficeToTheGoalieOfHisNumber)
{
    PutSkaters(2, status::Pro);
    PutGoalie(2, 5, status::Pro);
    Own().Captain = 2;
    Own().Assistant[1] = 1;
    for (Lines* day : {&Own().ProLines[10], &Own().Farm.FarmLines[1]}) {
        day->NormalForward(1, 1) = 2;
        day->PenaltyShot[5] = 2;
        day->PenaltyShot[4] = 1;
        day->StartGoalie = 2;
    }
    Choose(2, 1);
    Release(0);
    for (Lines* day : {&Own().ProLines[10], &Own().Farm.FarmLines[1]}) {
        EXPECT_EQ(day->NormalForward(1, 1), 0);
        EXPECT_EQ(day->PenaltyShot[5], 0);
        EXPECT_EQ(day->PenaltyShot[4], 1);
        EXPECT_EQ(day->StartGoalie, 2);
    }
    EXPECT_EQ(Own().Captain, 0);
    EXPECT_EQ(Own().Assistant[1], 1);
    EXPECT_EQ(Goalies[2].Team, 5);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1 (A)", 11}, Entry{"Goalie 2", 25}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Skater 2?"}));
}

TEST_F(frmRosterReleaseTest, AReleasedGoalieLeavesTheSkaterOfHisNumberAsHeIs)
{
    PutSkaters(2, status::Pro);
    PutGoalie(2, 5, status::Pro);
    Own().Captain = 2;
    Lines& day = Own().ProLines[4];
    day.NormalForward(1, 1) = 2;
    day.BackupGoalie = 2;
    Choose(2, 5);
    const auto skater = ImageOf(Players[2]);
    Release(0);
    EXPECT_TRUE(ImageOf(Players[2]) == skater);
    EXPECT_EQ(day.NormalForward(1, 1), 2);
    EXPECT_EQ(day.BackupGoalie, 0);
    EXPECT_EQ(Own().Captain, 2);
    EXPECT_EQ(Goalies[2].Team, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Goalie 2?"}));
}

TEST_F(frmRosterReleaseTest, AReleaseIsNewsOfTheLeagueAndOfTheTeam)
{
    PutExpensive();
    Release(50);
    const std::string news = "Skater 1 was released by Harbour City Gulls for $1,250,000.00";
    EXPECT_THAT(Machine.ToldNews(), ElementsAre(News{"league", news}, News{"team 5", news}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked));
}

TEST_F(frmRosterReleaseTest, WhoIsNotReleasedIsNoNews)
{
    PutExpensive();
    Machine.Answer(button::No);
    Roster().cmdRelease_Click();
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Asked));
}

} // namespace
} // namespace dravik
