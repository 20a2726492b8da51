#include "MainScreenWords.h"
#include "OnMainScreen.h"
#include "screens/ElementName.h"
#include "session/Session.h"

namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Pair;
using ::testing::UnorderedElementsAreArray;

// The digest text of "a".
constexpr const char* DigestOfA = "0Cc175b9c0f1b6a831c399e269772661";

class frmMainTest : public OnMainScreen {};

TEST_F(frmMainTest, EveryControlStandsUnderItsNameWithItsFirstCaption)
{
    Main();
    ASSERT_THAT(DesignWordsOf(Main()),
                UnorderedElementsAreArray(MainScreenWords("Dravik Hockey Simulator Client", "No Team is Selected!")));
    for (int i = 1; i <= 6; ++i)
        EXPECT_EQ(Main().findChild<EntryList*>(ElementName("lstDivision", i))->count(), 0) << i;
    EXPECT_EQ(Main().findChild<QLabel*>("lblConference(1)")->alignment(), Qt::AlignCenter);
}

TEST_F(frmMainTest, BeforeALeagueIsOpenOnlyItsWordsAreSeen)
{
    Main();
    EXPECT_TRUE(Main().lblConference[1]->isVisible());
    EXPECT_FALSE(Main().lblConference[2]->isVisible());
    for (int i = 1; i <= 6; ++i) {
        EXPECT_FALSE(Main().lstDivision[i]->isVisible()) << i;
        EXPECT_FALSE(Main().lblDivision[i]->isVisible()) << i;
    }
    EXPECT_FALSE(Main().mnuTeam->menuAction()->isVisible());
    EXPECT_FALSE(Main().mnuOutputRatingCSV->isVisible());
    EXPECT_EQ(Main().windowTitle(), "Dravik Hockey Simulator Client");
}

TEST_F(frmMainTest, ASecondInstanceEndsBeforeItLoadsAnything)
{
    PutTeam(1, 1);
    Machine.Settings["LastLoadLeague"] = SaveLeague();
    ResetClientVariables();
    Machine.MessagesAllowed = false;
    Machine.OtherInstance = true;
    EXPECT_FALSE(TheStage.Start());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Dravik Hockey Simulator Client is already running!"}));
    EXPECT_THAT(Machine.FileOperations(), IsEmpty());
    EXPECT_EQ(TheStage.Find("Main"), nullptr);
    EXPECT_FALSE(Machine.MessagesAllowed);
    EXPECT_EQ(TempFile, "");
    EXPECT_EQ(WindowTitle, "");
    EXPECT_EQ(RosterChanges[1].Status, 0);
}

TEST_F(frmMainTest, StartSetsTheProgramsVariables)
{
    ResetClientVariables();
    Machine.MessagesAllowed = false;
    EXPECT_TRUE(TheStage.Start());
    EXPECT_TRUE(Machine.MessagesAllowed);
    EXPECT_EQ(TempFile, Machine.InFolder("ClientTemp.dvt"));
    EXPECT_EQ(WindowTitle, "Dravik Hockey Simulator Client");
    for (const RosterChange& change : RosterChanges)
        ASSERT_EQ(change.Status, 10);
    for (const RosterChange& change : RosterChangesGoalie)
        ASSERT_EQ(change.Status, 10);
    EXPECT_EQ(CurrentTeam, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmMainTest, StartOpensTheLeagueOfLastTime)
{
    PutTeam(3, 4);
    LeagueData.FileDate = 45000.5;
    Machine.Settings["LastLoadLeague"] = SaveLeague();
    ResetClientVariables();
    EXPECT_TRUE(TheStage.Start());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Listed(4), ElementsAre(Pair("Team 3", 3)));
    EXPECT_EQ(Main().windowTitle(), "Dravik Hockey Simulator Client - League");
    EXPECT_TRUE(Main().mnuTeam->menuAction()->isVisible());
    EXPECT_TRUE(Main().mnuOutputRatingCSV->isVisible());
    EXPECT_TRUE(Main().mnuOutputRatingCSV->isEnabled());
    EXPECT_EQ(Main().lblDate->text(), "Client File Date : March 15 2023 at 12:00");
    EXPECT_FALSE(Machine.WaitShown);
}

TEST_F(frmMainTest, ALeagueFileThatVanishedGivesNoMessageAtStart)
{
    Machine.Settings["LastLoadLeague"] = Machine.InFolder("Gone.dvs");
    EXPECT_TRUE(TheStage.Start());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Main().lblConference[1]->text(), "No League File Load!");
}

TEST_F(frmMainTest, WithoutALastLeagueNoFileIsLookedFor)
{
    EXPECT_TRUE(TheStage.Start());
    EXPECT_THAT(Machine.FileOperations(), IsEmpty());
}

// A machine whose folder or open dialog fails.
class BrokenMachine : public ScriptedPlatform {
public:
    std::string ProgramFolder() override { Fail(failure::PathAccess); }
};

TEST_F(frmMainTest, AFailureAtStartIsReported)
{
    BrokenMachine broken;
    UseMachine(broken);
    EXPECT_TRUE(TheStage.Start());
    EXPECT_THAT(broken.Boxes(), ElementsAre(Box{16, "75 - Path/File access error in FormLoad FrmMain!"}));
    UseMachine(Machine);
}

TEST_F(frmMainTest, SixDivisionsFillSixListsInTeamNumberOrder)
{
    PutTwelveTeams();
    Main();
    WindowTitle = "Dravik Hockey Simulator Client - Autumn";
    MainWithLeague();
    EXPECT_EQ(Main().windowTitle(), "Dravik Hockey Simulator Client - Autumn");
    EXPECT_EQ(Main().lblConference[1]->text(), "East");
    EXPECT_EQ(Main().lblConference[1]->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(Main().lblConference[2]->text(), "West");
    EXPECT_TRUE(Main().lblConference[2]->isVisible());
    for (int division = 1; division <= 6; ++division) {
        EXPECT_EQ(LabelOf(division), "Division " + std::to_string(division));
        EXPECT_TRUE(Main().lblDivision[division]->isVisible());
        EXPECT_TRUE(Main().lstDivision[division]->isVisible());
        EXPECT_THAT(Listed(division), ElementsAre(Pair("Team " + std::to_string(division), division),
                                                  Pair("Team " + std::to_string(division + 6), division + 6)));
    }
    EXPECT_TRUE(Main().mnuTeam->menuAction()->isVisible());
}

TEST_F(frmMainTest, WithFourDivisionsLists3And6StayHiddenAndTheirTeamsDoNotAppear)
{
    PutTwelveTeams();
    LeagueData.DivisionCount = 4;
    MainWithLeague();
    for (const int division : {1, 2, 4, 5}) {
        EXPECT_TRUE(Main().lstDivision[division]->isVisible()) << division;
        EXPECT_TRUE(Main().lblDivision[division]->isVisible()) << division;
        EXPECT_EQ(Main().lstDivision[division]->count(), 2) << division;
    }
    for (const int division : {3, 6}) {
        EXPECT_FALSE(Main().lstDivision[division]->isVisible()) << division;
        EXPECT_FALSE(Main().lblDivision[division]->isVisible()) << division;
        for (const int shown : {1, 2, 4, 5})
            EXPECT_THAT(Listed(shown), Not(Contains(Pair("Team " + std::to_string(division), division))));
    }
}

TEST_F(frmMainTest, AnyOtherCountThanSixIsTheNarrowLayout)
{
    for (const int count : {0, 2, 5, 7}) {
        LeagueData.DivisionCount = count;
        MainWithLeague();
        EXPECT_FALSE(Main().lstDivision[3]->isVisible()) << count;
        EXPECT_TRUE(Main().lstDivision[5]->isVisible()) << count;
    }
}

TEST_F(frmMainTest, TheNarrowLayoutIsNarrower)
{
    MainWithLeague();
    const int wide = Main().width();
    LeagueData.DivisionCount = 4;
    MainWithLeague();
    EXPECT_LT(Main().width(), wide);
}

TEST_F(frmMainTest, ReopeningWithFourDivisionsAfterSixHidesListsAndLabels3And6)
{
    PutTwelveTeams();
    MainWithLeague();
    LeagueData.DivisionCount = 4;
    Main().PlaceTeam();
    for (const int division : {3, 6}) {
        EXPECT_FALSE(Main().lstDivision[division]->isVisible()) << division;
        EXPECT_FALSE(Main().lblDivision[division]->isVisible()) << division;
    }
}

TEST_F(frmMainTest, AFileWithFourDivisionsOpensWithTheFourLists)
{
    PutTwelveTeams();
    LeagueData.DivisionCount = 4;
    const std::string path = SaveLeague();
    LeagueData.DivisionCount = 6;
    MainWithLeague();
    Machine.Choose(path);
    Main().mnuOpen_Click();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    for (int division = 1; division <= 6; ++division) {
        const bool isInUse = division != 3 && division != 6;
        EXPECT_EQ(Main().lstDivision[division]->isVisible(), isInUse) << division;
        EXPECT_EQ(Main().lblDivision[division]->isVisible(), isInUse) << division;
    }
    EXPECT_THAT(Listed(2), ElementsAre(Pair("Team 2", 2), Pair("Team 8", 8)));
}

TEST_F(frmMainTest, ATeamInNoDivisionStopsThePlacingButNotTheOpen)
{
    PutTeam(1, 1);
    PutTeam(2, 7);
    PutTeam(3, 1);
    LeagueData.FileDate = 45000.5;
    LeagueData.OffSeason = true;
    LeagueData.EntryDraft = true;
    LeagueData.ProDressedSkaters = 0;
    const std::string path = SaveLeague();
    Machine.Choose(path);
    Main().mnuOpen_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in PlaceTeam!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true)) << "the open still goes on";
    EXPECT_THAT(Listed(1), ElementsAre(Pair("Team 1", 1)));
    EXPECT_TRUE(Main().mnuTeam->menuAction()->isVisible());
    EXPECT_TRUE(Main().mnuOutputRatingCSV->isVisible());
    EXPECT_EQ(Main().mnuDraft->text(), "Entry &Draft List");
    EXPECT_EQ(Main().lblDate->text(), "Client File Date : March 15 2023 at 12:00");
    EXPECT_EQ(Machine.Settings["LastLoadLeague"], path);
    EXPECT_EQ(Players[0].Name.Trimmed(), "Unknown Player");
    EXPECT_EQ(LeagueData.ProDressedSkaters, 18);
    EXPECT_FALSE(Machine.WaitShown);
}

TEST_F(frmMainTest, PlacingTeamsAgainReplacesTheLists)
{
    PutTeam(1, 1);
    MainWithLeague();
    Teams[1].InUse = false;
    PutTeam(2, 1).Name = "  Ironport Foxes ";
    Main().PlaceTeam();
    EXPECT_THAT(Listed(1), ElementsAre(Pair("Ironport Foxes", 2)));
}

TEST_F(frmMainTest, AnEntryCarriesTheTeamsOwnNumber)
{
    PutTeam(7, 2).Number = 70;
    MainWithLeague();
    EXPECT_THAT(Listed(2), ElementsAre(Pair("Team 7", 70)));
}

TEST_F(frmMainTest, AccentedNamesAreShownAsTheyAre)
{
    PutTeam(1, 1).Name = "Caf\xE9 d'\xC9toile";
    MainWithLeague();
    EXPECT_EQ(Main().lstDivision[1]->item(0)->text(), QString::fromUtf8("Café d'Étoile"));
}

TEST_F(frmMainTest, ATeamInNoDivisionIsAFailureOfPlaceTeam)
{
    PutTeam(1, 1);
    PutTeam(2, 7);
    Main().PlaceTeam();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in PlaceTeam!"}));
    EXPECT_FALSE(Main().mnuTeam->menuAction()->isVisible());
    Main().lstDivision[1]->setCurrentRow(0);
    EXPECT_EQ(CurrentTeam, 0); // the lists are not ready
}

TEST_F(frmMainTest, AClickChoosesTheTeam)
{
    PutTwelveTeams();
    MainWithLeague();
    ClickEntry(2, 1);
    EXPECT_EQ(CurrentTeam, 8);
    EXPECT_EQ(ChosenEntries(), 1);
}

TEST_F(frmMainTest, ExactlyOneTeamIsChosenInTheSixLists)
{
    PutTwelveTeams();
    MainWithLeague();
    ClickEntry(2, 1);
    ClickEntry(5, 0);
    EXPECT_EQ(CurrentTeam, 5);
    EXPECT_EQ(ChosenEntries(), 1);
    EXPECT_NE(Main().lstDivision[5]->Chosen(), nullptr);
    ClickEntry(2, 1); // the same entry as at first, which lost its choice
    EXPECT_EQ(CurrentTeam, 8);
    EXPECT_EQ(ChosenEntries(), 1);
}

TEST_F(frmMainTest, AClickThatChoosesNoEntryDoesNothing)
{
    PutTwelveTeams();
    MainWithLeague();
    ClickEntry(2, 1);
    EntryList* list = Main().lstDivision[3];
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(10, list->visualItemRect(list->item(1)).bottom() + 40));
    Settle();
    EXPECT_EQ(CurrentTeam, 8);
    EXPECT_NE(Main().lstDivision[2]->Chosen(), nullptr);
    Main().lstDivision_Click(3);
    EXPECT_EQ(CurrentTeam, 8);
    EXPECT_EQ(ChosenEntries(), 1);
}

TEST_F(frmMainTest, AClickBeforeTheTeamsArePlacedDoesNothing)
{
    Main().lstDivision[1]->Add("Team 9", 9);
    Main().lstDivision[1]->setCurrentRow(0);
    EXPECT_EQ(CurrentTeam, 0);
}

TEST_F(frmMainTest, ArrowsWithinAListChooseLikeAClick)
{
    PutTwelveTeams();
    MainWithLeague();
    Main().lstDivision[4]->setFocus();
    Press(Main().lstDivision[4], Qt::Key_Down);
    EXPECT_EQ(CurrentTeam, 4);
    Press(Main().lstDivision[4], Qt::Key_Down);
    EXPECT_EQ(CurrentTeam, 10);
    Press(Main().lstDivision[4], Qt::Key_Up);
    EXPECT_EQ(CurrentTeam, 4);
    Main().lstDivision[1]->setFocus();
    Press(Main().lstDivision[1], Qt::Key_End);
    EXPECT_EQ(CurrentTeam, 7);
    EXPECT_EQ(ChosenEntries(), 1);
}

TEST_F(frmMainTest, LettersJumpToATeamAndChooseIt)
{
    PutTeam(1, 1).Name = "Harbour City Gulls";
    PutTeam(2, 1).Name = "Ironport Foxes";
    MainWithLeague();
    Main().lstDivision[1]->setFocus();
    QTest::keyClicks(Main().lstDivision[1], "iron");
    EXPECT_EQ(CurrentTeam, 2);
}

TEST_F(frmMainTest, TheChosenTeamStandsBelowTheLists)
{
    PutTwelveTeams();
    MainWithLeague();
    EXPECT_EQ(Main().findChild<QLabel*>("lblChosen")->text(), "No Team is Selected!");
    ClickEntry(2, 1);
    EXPECT_EQ(Main().findChild<QLabel*>("lblChosen")->text(), "Team 8");
    EXPECT_EQ(Main().findChild<QLabel*>("lblChosenPlace")->text(), "Division 2, East");
}

TEST_F(frmMainTest, ADoubleClickOpensTheTeamScreenAndHidesMain)
{
    PutTwelveTeams();
    MainWithLeague();
    DoubleClickEntry(3, 1);
    EXPECT_EQ(CurrentTeam, 9);
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_FALSE(Main().isVisible());
    EXPECT_THAT(Machine.Questions(), IsEmpty());
}

TEST_F(frmMainTest, EnterOnAnEntryActsLikeADoubleClick)
{
    PutTwelveTeams();
    MainWithLeague();
    Main().lstDivision[3]->setFocus();
    Press(Main().lstDivision[3], Qt::Key_Down);
    Press(Main().lstDivision[3], Qt::Key_Return);
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_EQ(CurrentTeam, 3);
    EXPECT_TRUE(TeamScreen()->isVisible());
}

TEST_F(frmMainTest, TheRightPasswordOpensTheTeamScreen)
{
    PutTeam(1, 1).Password = DigestOfA;
    MainWithLeague();
    Machine.Type("a");
    DoubleClickEntry(1, 0);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!"}));
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_TRUE(TeamScreen()->isVisible());
}

TEST_F(frmMainTest, ATeamDoubleClickedWithAWrongPasswordStaysCurrentAndTheMenusAskAgain)
{
    PutTeam(1, 1).Password = DigestOfA;
    MainWithLeague();
    Machine.Type("b");
    DoubleClickEntry(1, 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Password is incorrect!"}));
    EXPECT_EQ(CurrentTeam, 1);
    EXPECT_EQ(TeamScreen(), nullptr);
    EXPECT_TRUE(Main().isVisible());
    Main().mnuViewTeam->trigger();
    EXPECT_EQ(Machine.Questions().size(), 2U);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
    EXPECT_EQ(TeamScreen(), nullptr);
}

TEST_F(frmMainTest, ASingleClickAsksForNoPassword)
{
    PutTeam(1, 1).Password = DigestOfA;
    MainWithLeague();
    ClickEntry(1, 0);
    EXPECT_EQ(CurrentTeam, 1);
    EXPECT_THAT(Machine.Questions(), IsEmpty());
}
} // namespace
} // namespace dravik
