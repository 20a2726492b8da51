#include "OnDraftScreen.h"
#include "session/Session.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class frmDraftTest : public OnDraftScreen {};

TEST_F(frmDraftTest, AFantasyDraftListsEverybodyWithoutATeam)
{
    frmDraft& draft = Draft();
    EXPECT_TRUE(draft.isVisible());
    EXPECT_FALSE(Main().isVisible());
    EXPECT_EQ(draft.DraftType, "Fantasy Draft");
    EXPECT_EQ(draft.windowTitle(), "Dravik Hockey Simulator Client - Fantasy Draft Client");
    EXPECT_EQ(Of(draft.lblTeam), "Draft List For : Harbour City Gulls");
    EXPECT_THAT(Of(draft.lstPlayers),
                ElementsAre(Pair("Ward Tilton (LW)", 7), Pair("Karl Dreyer (D)", 8), Pair("Piet Vos (G)", 10003)));
    EXPECT_TRUE(draft.cmdChoose->isEnabled());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmDraftTest, AnEntryDraftListsTheNamedProspectsAndClosesTheFilter)
{
    MakeEntryDraft();
    Prospects[2].Name = "   ";
    Prospects[3].Name = "\t\x01";
    frmDraft& draft = Draft();
    EXPECT_EQ(draft.DraftType, "Entry Draft");
    EXPECT_EQ(draft.windowTitle(), "Dravik Hockey Simulator Client - Entry Draft Client");
    EXPECT_THAT(Of(draft.lstPlayers), ElementsAre(Pair("Tor Lindqvist", 20001), Pair("Marek Zelinka", 20300)));
    for (const QCheckBox* filter : draft.chkPosition) {
        EXPECT_FALSE(filter->isEnabled());
        EXPECT_TRUE(filter->isChecked());
    }
}

TEST_F(frmDraftTest, WithBothFlagsFreeAgentsComeBeforeProspectsAndTheTypeIsEntryDraft)
{
    LeagueData.EntryDraft = true;
    frmDraft& draft = Draft();
    EXPECT_EQ(draft.DraftType, "Entry Draft");
    EXPECT_EQ(draft.windowTitle(), "Dravik Hockey Simulator Client - Entry Draft Client");
    EXPECT_THAT(Of(draft.lstPlayers),
                ElementsAre(Pair("Ward Tilton (LW)", 7), Pair("Karl Dreyer (D)", 8), Pair("Piet Vos (G)", 10003),
                            Pair("Tor Lindqvist", 20001), Pair("Marek Zelinka", 20300)));
    EXPECT_FALSE(draft.chkPosition[1]->isEnabled());
}

TEST_F(frmDraftTest, WithoutADraftTheListIsEmptyAndTheTitleHasTwoBlanks)
{
    LeagueData.FantasyDraft = false;
    frmDraft& draft = Draft();
    EXPECT_EQ(draft.DraftType, "");
    EXPECT_EQ(draft.windowTitle(), "Dravik Hockey Simulator Client -  Client");
    EXPECT_EQ(draft.lstPlayers->count(), 0);
    EXPECT_FALSE(draft.cmdChoose->isEnabled());
}

TEST_F(frmDraftTest, AnEntryDraftThatIsDoneIsNone)
{
    MakeEntryDraft();
    LeagueData.EntryDraftDone = 1;
    EXPECT_EQ(Draft().DraftType, "");
    EXPECT_EQ(Draft().lstPlayers->count(), 0);
    EXPECT_TRUE(Draft().chkPosition[1]->isEnabled());
}

TEST_F(frmDraftTest, AnEntryDraftThatIsDoneANegativeNumberOfTimesIsNoneEither)
{
    MakeEntryDraft();
    LeagueData.EntryDraftDone = -1;
    EXPECT_EQ(Draft().DraftType, "");
    EXPECT_EQ(Draft().lstPlayers->count(), 0);
    EXPECT_TRUE(Draft().chkPosition[1]->isEnabled());
}

TEST_F(frmDraftTest, AFantasyDraftBesideADoneEntryDraftStaysFantasy)
{
    LeagueData.EntryDraft = true;
    LeagueData.EntryDraftDone = 1;
    EXPECT_EQ(Draft().DraftType, "Fantasy Draft");
    EXPECT_EQ(Draft().lstPlayers->count(), 3);
}

TEST_F(frmDraftTest, AFlagThatIsNotTrueCountsAsFalse)
{
    LeagueData.FantasyDraft.SetWord(1);
    LeagueData.EntryDraft.SetWord(1);
    EXPECT_EQ(Draft().DraftType, "");
    EXPECT_EQ(Draft().lstPlayers->count(), 0);
}

TEST_F(frmDraftTest, TheTitleDoesNotFollowTheOpenFile)
{
    Main();
    WindowTitle = "Dravik Hockey Simulator Client - Winter";
    EXPECT_EQ(Draft().windowTitle(), "Dravik Hockey Simulator Client - Fantasy Draft Client");
}

TEST_F(frmDraftTest, WhoIsErasedOnATeamOrWithoutAPositionIsNotListed)
{
    Players[7].InUse = false;
    Players[8].Position = 0;
    PutSkater(10, 0, 5, status::Farm);
    PutSkater(11, 1, position::Center, status::Farm);
    PutGoalie(4, 100, status::Farm);
    Goalies[3].InUse.SetWord(1);
    Players[0].InUse = true; // the placeholder
    Players[0].Position = position::Center;
    Goalies[0].InUse = true;
    EXPECT_THAT(Of(Draft().lstPlayers), IsEmpty());
    EXPECT_FALSE(Draft().cmdChoose->isEnabled());
}

TEST_F(frmDraftTest, TheFirstSlotsOfTheTablesAreListed)
{
    PutSkater(1, 0, position::Center, status::Farm).Name = "First Skater";
    PutGoalie(1, 0, status::Farm).Name = "First Goalie";
    EXPECT_THAT(Of(Draft().lstPlayers),
                ElementsAre(Pair("First Skater (C)", 1), Pair("Ward Tilton (LW)", 7), Pair("Karl Dreyer (D)", 8),
                            Pair("First Goalie (G)", 10001), Pair("Piet Vos (G)", 10003)));
}

TEST_F(frmDraftTest, WhoIsInjuredOrSuspendedIsListed)
{
    Players[7].Condition = 20;
    Players[7].Injury = "Broken stick";
    Players[8].Suspension = 5;
    Goalies[3].Condition = 0;
    EXPECT_EQ(Draft().lstPlayers->count(), 3);
}

TEST_F(frmDraftTest, AContractPlaysNoPart)
{
    Players[7].Contract = 0;
    Players[8].Contract = 9;
    EXPECT_EQ(Draft().lstPlayers->count(), 3);
}

TEST_F(frmDraftTest, TheLastSlotsOfTheTablesAreListedAndTheNumberIsTheRecordsOwn)
{
    PutSkater(10000, 0, position::RightWing, status::Farm).Name = "Last Skater";
    PutGoalie(1000, 0, status::Farm).Name = "Last Goalie";
    Players[7].Number = 70;
    Goalies[3].Number = 30;
    EXPECT_THAT(Of(Draft().lstPlayers),
                ElementsAre(Pair("Ward Tilton (LW)", 70), Pair("Karl Dreyer (D)", 8), Pair("Last Skater (RW)", 10000),
                            Pair("Piet Vos (G)", 10030), Pair("Last Goalie (G)", 11000)));
}

TEST_F(frmDraftTest, TheControlsCarryTheirCaptions)
{
    const frmDraft& draft = Draft();
    EXPECT_EQ(Of(draft.lblTotal), "0 Players List");
    std::vector<std::string> filters;
    for (const QCheckBox* filter : draft.chkPosition) {
        filters.push_back(filter->text().toStdString());
        EXPECT_TRUE(filter->isChecked());
    }
    EXPECT_THAT(filters, ElementsAre("C", "LW", "RW", "DF", "G"));
    std::vector<std::string> commands;
    for (const QPushButton* command : {draft.cmdChoose, draft.cmdRemove, draft.cmdUp, draft.cmdDown, draft.cmdSearch,
                                       draft.cmdSaveToFile, draft.cmdExit})
        commands.push_back(command->text().remove('&').toStdString());
    EXPECT_THAT(commands, ElementsAre("-->", "<--", "UP", "Down", "Search Player", "Save to File", "Exit"));
    std::vector<std::string> labels;
    for (const QLabel* label : draft.findChildren<QLabel*>())
        labels.push_back(Of(label));
    EXPECT_THAT(labels, ::testing::IsSupersetOf({"Players", "Show : "}));
}

TEST_F(frmDraftTest, ATickLeavesItsPositionOutOfTheListAndTheRankingAsItIs)
{
    Choose({1});
    const frmDraft& draft = Draft();
    ASSERT_EQ(draft.chkPosition[4]->text(), "DF");
    Click(draft.chkPosition[4]);
    EXPECT_THAT(Of(draft.lstPlayers), ElementsAre(Pair("Ward Tilton (LW)", 7), Pair("Piet Vos (G)", 10003)));
    EXPECT_THAT(Ranking(), ElementsAre(8));
    EXPECT_THAT(Of(draft.lstDraftList), ElementsAre(Pair("Karl Dreyer (D)", 8)));
    Click(draft.chkPosition[5]);
    EXPECT_THAT(Of(draft.lstPlayers), ElementsAre(Pair("Ward Tilton (LW)", 7)));
    Click(draft.chkPosition[2]);
    EXPECT_FALSE(draft.cmdChoose->isEnabled());
    Click(draft.chkPosition[4]);
    EXPECT_THAT(Of(draft.lstPlayers), ElementsAre(Pair("Karl Dreyer (D)", 8)));
    EXPECT_TRUE(draft.cmdChoose->isEnabled());
}

TEST_F(frmDraftTest, TheFilterLetsProspectsPass)
{
    LeagueData.EntryDraft = true;
    frmDraft& draft = Draft();
    for (QCheckBox* filter : draft.chkPosition)
        filter->setChecked(false); // closed, so no user can
    EXPECT_THAT(Of(draft.lstPlayers), ElementsAre(Pair("Tor Lindqvist", 20001), Pair("Marek Zelinka", 20300)));
}

TEST_F(frmDraftTest, ATeamOutOfRangeIsToldAndTheScreenStaysUpAndEmpty)
{
    for (const int team : {0, 101}) {
        CurrentTeam = team;
        TheStage.Open("Draft", MainWithLeague());
        Settle();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"})) << team;
        const frmDraft& draft = Draft();
        EXPECT_TRUE(draft.isVisible());
        EXPECT_FALSE(Main().isVisible());
        EXPECT_EQ(Of(draft.lblTeam), "Draft List For : ");
        EXPECT_EQ(draft.DraftType, "");
        EXPECT_EQ(draft.lstPlayers->count(), 0);
        Click(draft.cmdChoose);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Player Select!"}));
        Click(draft.cmdExit);
        EXPECT_TRUE(Main().isVisible());
    }
}

TEST_F(frmDraftTest, UnknownIdsAreFailuresOfPlaceOffer)
{
    frmDraft& draft = Draft();
    for (const int id : {-1, 11001, 20301}) {
        OpenMarket().Ranking = {};
        OpenMarket().Ranking[0] = id;
        draft.PlaceOffer();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in PlaceOffer!"})) << id;
        EXPECT_EQ(draft.lstDraftList->count(), 0);
    }
}

TEST_F(frmDraftTest, SearchSelectsTheFirstEntryThatContainsTheAnswer)
{
    frmDraft& draft = Draft();
    Machine.Type("vOS");
    Click(draft.cmdSearch);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Complete or Part of the Player Name?", "Player Search"}));
    ASSERT_NE(draft.lstPlayers->Chosen(), nullptr);
    EXPECT_EQ(draft.lstPlayers->Chosen()->text(), "Piet Vos (G)");
    Machine.Type("(d)");
    Click(draft.cmdSearch);
    EXPECT_EQ(draft.lstPlayers->Chosen()->text(), "Karl Dreyer (D)");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmDraftTest, ACancelledSearchSelectsTheFirstEntry)
{
    frmDraft& draft = Draft();
    Click(draft.cmdSearch);
    EXPECT_EQ(draft.lstPlayers->currentRow(), 0);
    EXPECT_NE(draft.lstPlayers->Chosen(), nullptr);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Complete or Part of the Player Name?", "Player Search"}));
}

TEST_F(frmDraftTest, ASearchInVainKeepsTheChoice)
{
    frmDraft& draft = Draft();
    ClickEntry(draft.lstPlayers, 1);
    Machine.Type("Ekdahl"); // he has a team
    Click(draft.cmdSearch);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}));
    EXPECT_EQ(draft.lstPlayers->Chosen(), draft.lstPlayers->item(1));
}

TEST_F(frmDraftTest, AFailureOfTheSearchIsToldByItsName)
{
    frmDraft& draft = Draft();
    SilentInput silent;
    UseMachine(silent);
    Click(draft.cmdSearch);
    UseMachine(Machine);
    EXPECT_THAT(silent.Boxes(), ElementsAre(Box{16, "7 - Out of memory in cmdSearch!"}));
}

TEST_F(frmDraftTest, OverallsAreDrawnBesideFreeAgentsOnlyWhereTheLeagueShowsThem)
{
    const auto asides = [this] {
        QStringList all;
        for (int row = 0; row < Draft().lstPlayers->count(); ++row)
            all << Draft().lstPlayers->item(row)->data(entry::AsideRole).toStringList().join('|');
        return all;
    };
    LeagueData.EntryDraft = true;
    EXPECT_EQ(asides(), QStringList({"60", "60", "60", "", ""}));
    LeagueData.ShowOverall = false;
    Draft().ShowPlayer();
    EXPECT_EQ(asides(), QStringList({"", "", "", "", ""}));
}

TEST_F(frmDraftTest, LettersJumpToAnEntry)
{
    frmDraft& draft = Draft();
    draft.lstPlayers->setFocus();
    QTest::keyClicks(draft.lstPlayers, "pi");
    ASSERT_NE(draft.lstPlayers->Chosen(), nullptr);
    EXPECT_EQ(draft.lstPlayers->Chosen()->text(), "Piet Vos (G)");
}

// The viewer is one of the program's own; it comes back to the draft.
class DraftViewer : public OnDraftScreen {
protected:
    void ExpectViewer(int id, bool isGoalie)
    {
        Screen* viewer = TheStage.Find("EditPlayer");
        ASSERT_NE(viewer, nullptr);
        EXPECT_TRUE(viewer->isVisible());
        EXPECT_FALSE(Draft().isVisible());
        EXPECT_EQ(SelectedPlayer, id);
        EXPECT_EQ(SelectedIsGoalie, isGoalie);
        EXPECT_EQ(ViewerReturnMode, 4);
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
        viewer->close();
        Settle();
        EXPECT_TRUE(Draft().isVisible());
        EXPECT_FALSE(Main().isVisible());
    }
};

TEST_F(DraftViewer, ADoubleClickOnASkaterOrGoalieShowsHim)
{
    DoubleClickEntry(Draft().lstPlayers, 1);
    ExpectViewer(8, false);
    DoubleClickEntry(Draft().lstPlayers, 2);
    ExpectViewer(3, true);
}

TEST_F(DraftViewer, EnterOnAChosenEntryDoesTheSame)
{
    ClickEntry(Draft().lstPlayers, 0);
    Press(Draft().lstPlayers, Qt::Key_Return);
    ExpectViewer(7, false);
}

TEST_F(DraftViewer, ADoubleClickInTheRankingShowsWhoStandsThereAndTheRankingStays)
{
    Choose({2, 0});
    DoubleClickEntry(Draft().lstDraftList, 0);
    ExpectViewer(3, true);
    DoubleClickEntry(Draft().lstDraftList, 1);
    ExpectViewer(7, false);
    EXPECT_THAT(Ranking(), ElementsAre(10003, 7));
    EXPECT_EQ(Draft().lstDraftList->count(), 2);
}

TEST_F(DraftViewer, AProspectGoesToTheViewerAsAGoalieOutOfRange)
{
    MakeEntryDraft();
    DoubleClickEntry(Draft().lstPlayers, 1);
    ExpectViewer(10300, true);
    Choose({0});
    DoubleClickEntry(Draft().lstDraftList, 0);
    ExpectViewer(10001, true);
}

TEST_F(DraftViewer, ADoubleClickWithoutAChoiceOpensNothing)
{
    Draft().lstPlayers_DblClick();
    Draft().lstDraftList_DblClick();
    EXPECT_EQ(TheStage.Find("EditPlayer"), nullptr);
}

} // namespace
} // namespace dravik
