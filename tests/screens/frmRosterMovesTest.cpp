#include "OnRosterScreen.h"

#include "AnswerDialog.h"
#include "rules/Function.h"
#include "screens/platform/QtPlatform.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Entry = std::pair<std::string, int>;

const Box Integrity{16, "Integrity Check Failed!"};
const Box DeadlinePassed{64, "Trade Deadline is Passed!"};

class frmRosterMovesTest : public OnRosterScreen {
protected:
    static void PutSkaters(int count, int status, int rating = 60)
    {
        for (int id = 1; id <= count; ++id)
            PutSkater(id, 5, position::Center, status, rating);
    }

    // Chooses all entries of a list as Ctrl+A does.
    void ChooseAll(int index)
    {
        ClickEntry(index, 0);
        Press(Roster().lstPlayer[index], Qt::Key_A, Qt::ControlModifier);
    }

    static void PassDeadline()
    {
        LeagueData.TradeDeadlinePassed = true;
        LeagueData.TradeDeadlineInForce = true;
    }

    // A released person's contract, priced by the answers given before.
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
};

TEST_F(frmRosterMovesTest, ToProMovesEveryChosenScratchWithTextAndNumber)
{
    PutSkaters(3, status::Scratch);
    Players[2].TradeAvailable = true;
    PutGoalie(1, 5, status::Scratch);
    ChooseAll(1);
    Click(Roster().cmdToPro);
    EXPECT_THAT(Listed(1), IsEmpty());
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2*", 21}, Entry{"Skater 3", 31},
                                       Entry{"Goalie 1", 15}));
    EXPECT_EQ(Of(Roster().lblPlayer[2]), "Pro Player = 4");
    EXPECT_EQ(Of(Roster().lblPlayer[1]), "Scratches Player = 0");
    EXPECT_THAT(Counters(), ElementsAre(0, 0, 4, 4));
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmRosterMovesTest, ARefusedEntryStaysAndTheWalkGoesOn)
{
    PutSkaters(3, status::Scratch);
    Players[2].Condition = 50;
    ChooseAll(1);
    Click(Roster().cmdToPro);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Cannot Move an Injured Player!"}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 2", 21}));
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 3", 31}));
}

TEST_F(frmRosterMovesTest, EntriesThatAreNotChosenStay)
{
    PutSkaters(3, status::Pro);
    ClickEntry(2, 1);
    Click(Roster().cmdToScratchesFromPro);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 3", 31}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 2", 21}));
    EXPECT_EQ(Players[2].Status, 1);
}

TEST_F(frmRosterMovesTest, AfterAMoveNoneOfTheFourMovesIsEnabledUntilTheNextClick)
{
    PutSkaters(3, status::Pro);
    ClickEntry(2, 0);
    Click(Roster().cmdToScratchesFromPro);
    for (const QPushButton* move :
         {Roster().cmdToFarm, Roster().cmdToPro, Roster().cmdToScratchesFromPro, Roster().cmdToScratchesFromFarm})
        EXPECT_FALSE(move->isEnabled());
    EXPECT_TRUE(Roster().lstPlayer[2]->hasFocus());
    Press(Roster().lstPlayer[2], Qt::Key_Down);
    EXPECT_TRUE(Roster().cmdToScratchesFromPro->isEnabled());
}

TEST_F(frmRosterMovesTest, FromProToScratchesLeavesTheCounterOfTheDressableAlone)
{
    PutSkaters(2, status::Pro);
    ClickEntry(2, 0);
    Click(Roster().cmdToScratchesFromPro);
    EXPECT_THAT(Counters(), ElementsAre(0, 1, 1, 2));
}

TEST_F(frmRosterMovesTest, ToFarmTestsTheOverallOfThePersonShownLastForEverybodyChosen)
{
    LeagueData.FarmMaxOverall = 70;
    PutSkater(1, 5, position::Center, status::Scratch, 60);
    PutSkater(2, 5, position::Center, status::Scratch, 90);
    ClickEntry(1, 0); // shows the overall of 60
    ClickEntry(1, 1, Qt::ControlModifier);
    Click(Roster().cmdToFarm);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Players[1].Status, 0);
    EXPECT_EQ(Players[2].Status, 0);
}

TEST_F(frmRosterMovesTest, ToFarmRefusesEveryChosenEntryByTheOneOverall)
{
    LeagueData.FarmMaxOverall = 70;
    PutSkater(1, 5, position::Center, status::Scratch, 60);
    PutSkater(2, 5, position::Center, status::Scratch, 90);
    PassDeadline();   // comes behind the overall
    ClickEntry(1, 1); // shows the overall of 90
    ClickEntry(1, 0, Qt::ControlModifier);
    Click(Roster().cmdToFarm);
    const Box tooHigh{48, "Player Overall is too high to be sent to farm!"};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(tooHigh, tooHigh));
    EXPECT_EQ(Roster().lstPlayer[1]->count(), 2);
}

TEST_F(frmRosterMovesTest, AnOverallAtTheLimitMayGoToTheFarm)
{
    PutSkaters(1, status::Scratch, 60);
    LeagueData.FarmMaxOverall = CalculateOverall(position::Center, 1);
    ClickEntry(1, 0);
    Click(Roster().cmdToFarm);
    EXPECT_EQ(Players[1].Status, 0);
}

TEST_F(frmRosterMovesTest, ToFarmEndsAtTheTradeDeadlineAtTheFirstChosenEntry)
{
    PutSkaters(3, status::Scratch);
    PassDeadline();
    ChooseAll(1);
    Click(Roster().cmdToFarm);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(DeadlinePassed));
    EXPECT_EQ(Roster().lstPlayer[1]->count(), 3);
}

TEST_F(frmRosterMovesTest, ToFarmIsOpenWhileTheDeadlineIsNotBothPassedAndInForce)
{
    PutSkaters(2, status::Scratch);
    LeagueData.TradeDeadlinePassed = true;
    ClickEntry(1, 0);
    Click(Roster().cmdToFarm);
    LeagueData.TradeDeadlinePassed = false;
    LeagueData.TradeDeadlineInForce = true;
    ClickEntry(1, 0);
    Click(Roster().cmdToFarm);
    EXPECT_EQ(Roster().lstPlayer[0]->count(), 2);
}

TEST_F(frmRosterMovesTest, ThreeFarmEntriesWithOnePlaceLeftMoveOneThenAreRefusedOnce)
{
    PutSkaters(3, status::Farm);
    PutSkater(4, 5, position::Center, status::Pro);
    LeagueData.MaxProPlayers = 2;
    ChooseAll(0);
    Click(Roster().cmdToScratchesFromFarm);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Maximum Pro Players Limit Reached!"}));
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1", 11}));
    EXPECT_THAT(Listed(0), ElementsAre(Entry{"Skater 2", 21}, Entry{"Skater 3", 31}));
    EXPECT_THAT(Counters(), ElementsAre(2, 1, 1, 2));
}

TEST_F(frmRosterMovesTest, LeavingTheFarmGoesByTheCounterAndNotByAFreshCount)
{
    PutSkaters(1, status::Farm);
    PutSkater(4, 5, position::Center, status::Pro);
    LeagueData.MaxProPlayers = 1;
    ClickEntry(0, 0);
    Roster().StatusCount[3] = 0;
    Click(Roster().cmdToScratchesFromFarm);
    EXPECT_EQ(Players[1].Status, 1);
}

TEST_F(frmRosterMovesTest, BrokenCommandsAreToldUnderTheirNames)
{
    Roster();
    SelectedPlayer = 10001;
    SelectedIsGoalie = false;
    const auto told = [&](const auto& command) {
        command();
        const std::vector<Box> boxes = Machine.TakeBoxes();
        return boxes.size() == 1 ? boxes[0] : Box{0, "not one box"};
    };
    const auto broken = [](const std::string& ending) { return Box{16, "9 - Subscript out of range" + ending}; };
    EXPECT_EQ(told([&] { Roster().cmdRelease_Click(); }), broken(" in cmdRelease!"));
    EXPECT_EQ(told([&] { Roster().cmdSendToWaiver_Click(); }), broken(" in cmdSendToWaiver!"));
    EXPECT_EQ(told([&] { Roster().cmdCaptain_Click(); }), broken(" in cmdCaptain!"));
    EXPECT_EQ(told([&] { Roster().cmdAssistant_Click(); }), broken(" in cmdAssistant!"));
    EXPECT_EQ(told([&] { Roster().cmdTradeAvailable_Click(); }), broken(" in cmdTradeAvailable!"));
    EXPECT_EQ(told([&] { Roster().chkProtected->toggle(); }), broken(" in chkProtected!"));
}

// A desktop that fails to show its first boxes, so that the failure leaves the routine that wanted to tell.
class FailingBoxes : public ScriptedPlatform {
public:
    int FailuresLeft = 0;

    int MessageBox(const std::string& text, int kind, const std::string& title) override
    {
        if (FailuresLeft-- > 0)
            Fail(failure::Overflow);
        return ScriptedPlatform::MessageBox(text, kind, title);
    }
};

TEST_F(frmRosterMovesTest, BrokenMovesAreToldUnderTheirNamesAndToProWithoutItsMark)
{
    PutSkater(1, 5, position::Center, status::Scratch);
    PutSkater(2, 5, position::Center, status::Pro);
    PutSkater(3, 5, position::Center, status::Farm);
    Roster();
    for (int id = 1; id <= 3; ++id)
        Players[id].Condition = 50;
    FailingBoxes desktop;
    UseMachine(desktop);
    const auto told = [&](int list, QPushButton* command) {
        ClickEntry(list, 0);
        desktop.FailuresLeft = 2; // the refusal's box, and the one that tells of it
        Click(command);
        return desktop.TakeBoxes();
    };
    EXPECT_THAT(told(1, Roster().cmdToPro), ElementsAre(Box{16, "6 - Overflow in cmdToPro"}));
    EXPECT_THAT(told(1, Roster().cmdToFarm), ElementsAre(Box{16, "6 - Overflow in cmdToFarm!"}));
    EXPECT_THAT(told(2, Roster().cmdToScratchesFromPro),
                ElementsAre(Box{16, "6 - Overflow in cmdToScratchesFromPro!"}));
    EXPECT_THAT(told(0, Roster().cmdToScratchesFromFarm),
                ElementsAre(Box{16, "6 - Overflow in cmdToScratchesFromFarm!"}));
    UseMachine(Machine);
}

TEST_F(frmRosterMovesTest, WaiversAfterTheDeadlineAreRefused)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    PassDeadline();
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(DeadlinePassed));
    EXPECT_EQ(Players[1].Suspension, 0);
}

TEST_F(frmRosterMovesTest, AProPlayerGoesToTheScratchesAndOnWaivers)
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

TEST_F(frmRosterMovesTest, AnInjuredProGoalieGoesOnWaiversFromTheProList)
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

TEST_F(frmRosterMovesTest, AScratchGoesOnWaiversWhereHeStandsAndNothingIsModified)
{
    PutSkaters(1, status::Scratch);
    Choose(1, 1);
    Roster().cmdSendToWaiver_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Skater 1 was sent to Waiver."}));
    EXPECT_EQ(Players[1].Suspension, 99);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterMovesTest, ReleaseChargesTheRestOfTheContractByTheGamesLeft)
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

TEST_F(frmRosterMovesTest, ReleaseWithoutASeasonChargesTheFullContract)
{
    PutExpensive();
    Own().SeasonGames = 0;
    Release(50);
    EXPECT_EQ(Own().Cash, 3500000);
}

TEST_F(frmRosterMovesTest, ReleaseOfAGoalieAsksForTheGoalerAndTakesHimOffTheLines)
{
    const TeamMaker made = CompleteTeam(5);
    const int keeper = made.GoalieIds[0];
    Choose(keeper, 5);
    Machine.TakeBoxes();
    Machine.Type("0");
    Roster().cmdRelease_Click();
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{.Prompt = "How much % does team paid the goaler for the rest of is contract?",
                                     .Default = "0"}));
    EXPECT_EQ(Own().ProLines[1].StartGoalie, 0);
    EXPECT_EQ(Goalies[keeper].Team, 0);
}

TEST_F(frmRosterMovesTest, APercentThatIsNoNumberOrACancelledBoxReleasesForNothing)
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
}

TEST_F(frmRosterMovesTest, APercentIsHeldBetweenZeroAndAHundred)
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
}

TEST_F(frmRosterMovesTest, APercentIsRoundedTiesToEven)
{
    PutExpensive();
    Machine.Type("2.5 or so");
    Roster().cmdRelease_Click();
    EXPECT_EQ(Own().Cash, 4950000);
}

TEST_F(frmRosterMovesTest, NoReleasesNobodyAndStillCountsAsModified)
{
    PutExpensive();
    Machine.Answer(button::No);
    Roster().cmdRelease_Click();
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_EQ(Players[1].Team, 5);
    EXPECT_EQ(Own().Cash, 5000000);
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterMovesTest, AContractBeyondThirtyTwoBitsIsAFailureThatReleasesNobody)
{
    Player& player = PutExpensive();
    player.Salary = 2000000000;
    Own().SeasonGames = 0;
    Release(0);
    EXPECT_EQ(Machine.Boxes().back(), (Box{16, "6 - Overflow in cmdRelease!"}));
    EXPECT_EQ(player.Team, 5);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterMovesTest, APercentBeyondSixteenBitsFailsBeforeItIsCut)
{
    const Player& player = PutExpensive();
    Release(40000);
    EXPECT_EQ(Machine.Boxes().back(), (Box{16, "6 - Overflow in cmdRelease!"}));
    EXPECT_EQ(player.Team, 5);
}

TEST_F(frmRosterMovesTest, CaptainIsMarkedAndToldAndLosesHisAssistantsPlace)
{
    PutSkaters(2, status::Pro);
    Own().Captain = 1;
    Own().Assistant[1] = 2;
    Own().Assistant[2] = 2;
    Choose(2, 1);
    Click(Roster().cmdCaptain);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Skater 2 has been selected as captain for Harbour City Gulls."}));
    EXPECT_EQ(Own().Captain, 2);
    EXPECT_EQ(Own().Assistant[1], 0);
    EXPECT_EQ(Own().Assistant[2], 0);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2 (C)", 21}));
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterMovesTest, GoaliesAndFarmPlayersAreRefusedAnOfficeInWords)
{
    PutGoalie(1, 5, status::Pro);
    PutSkaters(1, status::Farm);
    Choose(1, 5);
    Roster().cmdCaptain_Click();
    Roster().cmdAssistant_Click();
    Choose(1, 1);
    Roster().cmdCaptain_Click();
    Roster().cmdAssistant_Click();
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Goalie cannot be Captain!"}, Box{64, "Goalie cannot be Assistant!"},
                            Box{64, "Farm Player cannot be Captain!"}, Box{64, "Farm Player cannot be Assistant!"}));
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterMovesTest, AssistantTakesTheSlotThatIsAnswered)
{
    PutSkaters(2, status::Pro);
    const Box question1{35, "Do you want Skater 1 to be assistant #1 (Yes) or assistant #2 (No)?"};
    const Box question2{35, "Do you want Skater 2 to be assistant #1 (Yes) or assistant #2 (No)?"};
    Choose(1, 1);
    Machine.Answer(button::Yes);
    Click(Roster().cmdAssistant);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(question1, Box{64, "Skater 1 has been selected as assistant #1 for Harbour City Gulls."}));
    Choose(2, 1);
    Machine.Answer(button::No);
    Click(Roster().cmdAssistant);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(question2, Box{64, "Skater 2 has been selected as assistant #2 for Harbour City Gulls."}));
    EXPECT_EQ(Own().Assistant[1], 1);
    EXPECT_EQ(Own().Assistant[2], 2);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1 (A)", 11}, Entry{"Skater 2 (A)", 21}));
}

TEST_F(frmRosterMovesTest, CancellingTheAssistantQuestionChangesNoSlotAndStillRebuildsAndModifies)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    Players[1].Name = "Ward Tilton";
    Machine.Answer(button::Cancel);
    Click(Roster().cmdAssistant);
    EXPECT_EQ(Machine.Boxes().size(), 1U);
    EXPECT_EQ(Own().Assistant[1], 0);
    EXPECT_EQ(Own().Assistant[2], 0);
    EXPECT_EQ(EntryTextAt(2, 0), "Ward Tilton");
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterMovesTest, AssistantsAndTheCaptainAreRefusedAsAssistants)
{
    PutSkaters(3, status::Pro);
    Own().Assistant[1] = 1;
    Own().Assistant[2] = 2;
    Own().Captain = 3;
    for (int id = 1; id <= 3; ++id) {
        Choose(id, 1);
        Click(Roster().cmdAssistant);
    }
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Skater 1 is already an assistant for Harbour City Gulls."},
                                             Box{64, "Skater 2 is already an assistant for Harbour City Gulls."},
                                             Box{64, "Skater 3 is already a captain for Harbour City Gulls."}));
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterMovesTest, TheStarIsSetBehindTheTextAndTakenAwayAgain)
{
    PutSkaters(2, status::Pro);
    PutGoalie(1, 5, status::Farm);
    Choose(2, 1);
    Click(Roster().cmdTradeAvailable);
    EXPECT_EQ(EntryTextAt(2, 1), "Skater 2*");
    EXPECT_TRUE(Players[2].TradeAvailable);
    EXPECT_TRUE(RosterChanges[2].TradeAvailable);
    EXPECT_TRUE(Modified);
    Click(Roster().cmdTradeAvailable);
    EXPECT_EQ(EntryTextAt(2, 1), "Skater 2");
    EXPECT_FALSE(Players[2].TradeAvailable);
    EXPECT_FALSE(RosterChanges[2].TradeAvailable);
    Choose(1, 5);
    Click(Roster().cmdTradeAvailable);
    EXPECT_EQ(EntryTextAt(0, 0), "Goalie 1*");
    EXPECT_TRUE(RosterChangesGoalie[1].TradeAvailable);
}

TEST_F(frmRosterMovesTest, TheStarOfACaptainStandsWithoutABlankUntilTheListsAreReadAgain)
{
    PutSkaters(2, status::Pro);
    Own().Captain = 1;
    Own().Assistant[2] = 2;
    for (const auto& [row, mark] : {std::pair{0, " (C)"}, std::pair{1, " (A)"}}) {
        const std::string name = "Skater " + std::to_string(row + 1) + mark;
        ClickEntry(2, row);
        Click(Roster().cmdTradeAvailable);
        EXPECT_EQ(EntryTextAt(2, row), name + "*");
        Roster().ShowPlayer(false);
        EXPECT_EQ(EntryTextAt(2, row), name + " *");
        ClickEntry(2, row);
        Click(Roster().cmdTradeAvailable);
        EXPECT_EQ(EntryTextAt(2, row), name);
    }
}

TEST_F(frmRosterMovesTest, WithNoTradeTheStarIsClearedToldAndSetAgain)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    Players[1].NoTrade = true;
    Players[1].TradeAvailable = true;
    Roster().cmdTradeAvailable_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity));
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_TRUE(Players[1].TradeAvailable);
    EXPECT_TRUE(RosterChanges[1].TradeAvailable);
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1*");
}

TEST_F(frmRosterMovesTest, ProtectingCountsUpAndDownAndWritesTheChanges)
{
    LeagueData.OffSeason = true;
    PutSkaters(1, status::Pro);
    PutGoalie(1, 5, status::Pro);
    ClickEntry(2, 0);
    Click(Roster().chkProtected);
    EXPECT_TRUE(Players[1].Protected);
    EXPECT_TRUE(RosterChanges[1].Protected);
    EXPECT_TRUE(Modified);
    ClickEntry(2, 1);
    Click(Roster().chkProtected);
    EXPECT_TRUE(Goalies[1].Protected);
    EXPECT_TRUE(RosterChangesGoalie[1].Protected);
    EXPECT_EQ(Own().ProtectedCount, 2);
    EXPECT_EQ(Of(Roster().lblProtectedTotal), " Total Protected Players: 2");
    Click(Roster().chkProtected);
    EXPECT_FALSE(Goalies[1].Protected);
    EXPECT_FALSE(RosterChangesGoalie[1].Protected);
    EXPECT_EQ(Of(Roster().lblProtectedTotal), " Total Protected Players: 1");
}

TEST_F(frmRosterMovesTest, ProtectionAtTheLimitKeepsItsTickUntilTheNextStatsAndStoresNothing)
{
    LeagueData.OffSeason = true;
    LeagueData.MaxProtected = 1;
    PutSkaters(2, status::Pro);
    Players[2].Protected = true;
    ClickEntry(2, 0);
    Click(Roster().chkProtected);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Maximum Number of Protected Players Reached!"}));
    EXPECT_TRUE(Roster().chkProtected->isChecked());
    EXPECT_FALSE(Players[1].Protected);
    EXPECT_EQ(Own().ProtectedCount, 1);
    EXPECT_TRUE(Modified);
    Roster().ShowStats();
    EXPECT_FALSE(Roster().chkProtected->isChecked());
    EXPECT_EQ(Own().ProtectedCount, 1);
}

TEST_F(frmRosterMovesTest, UntickingARefusedProtectionLowersTheCountAndNeverBelowZero)
{
    LeagueData.OffSeason = true;
    LeagueData.MaxProtected = 1;
    PutSkaters(2, status::Pro);
    Players[2].Protected = true;
    ClickEntry(2, 0);
    Click(Roster().chkProtected);
    Click(Roster().chkProtected);
    EXPECT_EQ(Own().ProtectedCount, 0);
    LeagueData.MaxProtected = 0;
    Click(Roster().chkProtected);
    Click(Roster().chkProtected);
    EXPECT_EQ(Own().ProtectedCount, 0);
}

TEST_F(frmRosterMovesTest, FlagsDoNothingWhileEventsAreHeldBack)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    ListEventGuard = true;
    Roster().chkProtected->toggle();
    Roster().chkNoApplyRerate->toggle();
    Roster().chkNoTrade->toggle();
    ListEventGuard = false;
    EXPECT_FALSE(Players[1].Protected);
    EXPECT_FALSE(Players[1].NoApplyRerate);
    EXPECT_FALSE(Players[1].NoTrade);
    EXPECT_FALSE(Modified);
}

TEST_F(frmRosterMovesTest, NoApplyRerateCopiesItsBox)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    Roster().chkNoApplyRerate->toggle();
    EXPECT_TRUE(Players[1].NoApplyRerate);
    EXPECT_TRUE(Modified);
    Roster().chkNoApplyRerate->toggle();
    EXPECT_FALSE(Players[1].NoApplyRerate);
}

TEST_F(frmRosterMovesTest, NoTradeClearsTheStarAndClosesItsCommand)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    Click(Roster().cmdTradeAvailable);
    Roster().chkNoTrade->toggle();
    EXPECT_TRUE(Players[1].NoTrade);
    EXPECT_FALSE(Players[1].TradeAvailable);
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1");
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    Roster().chkNoTrade->toggle();
    EXPECT_FALSE(Players[1].NoTrade);
    EXPECT_TRUE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterMovesTest, AutomaticRostersTellOfTheirWorkAndRebuildTheLists)
{
    const TeamMaker made = TeamMaker(5).DressesFullRoster();
    const auto scratchAll = [&] {
        for (const int id : made.Skaters)
            Players[id].Status = status::Scratch;
        for (const int id : made.GoalieIds)
            Goalies[id].Status = status::Scratch;
    };
    scratchAll();
    Roster();
    ASSERT_EQ(Roster().lstPlayer[2]->count(), 0);
    Click(Roster().cmdAutoRosterPartial);
    EXPECT_EQ(Roster().lstPlayer[2]->count(), 20);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Auto Roster Partial Function has been run successfully."}));
    scratchAll();
    Click(Roster().cmdAutoRoster);
    EXPECT_EQ(Roster().lstPlayer[2]->count(), 20);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Auto Roster Function has been run successfully."}));
    EXPECT_EQ(Of(Roster().lblComplete), "Roster Is Complete");
}

// The maker notes its own changes; the command adds nothing.
TEST_F(frmRosterMovesTest, AnAutomaticRosterThatStopsEarlyModifiesNothing)
{
    Roster();
    Click(Roster().cmdAutoRoster);
    EXPECT_FALSE(Machine.TakeBoxes().empty());
    Click(Roster().cmdAutoRosterPartial);
    EXPECT_FALSE(Machine.TakeBoxes().empty());
    EXPECT_FALSE(Modified);
}

// The whole way through the real dialogs: the question and the amount of a release.
TEST_F(frmRosterMovesTest, ReleaseThroughTheRealDialogs)
{
    PutExpensive();
    QtPlatform desktop({QString::fromStdString(Machine.InFolder("settings.ini")),
                        QString::fromStdString(Machine.Folder()), QString::fromStdString(Machine.InFolder("lock"))});
    UseMachine(desktop);
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
    UseMachine(Machine);
    EXPECT_EQ(Own().Cash, 3750000);
    EXPECT_EQ(Players[1].Team, 0);
}

} // namespace
} // namespace dravik
