#include "OnRosterScreen.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Entry = std::pair<std::string, int>;

const Box Integrity{16, "Integrity Check Failed!"};

class frmRosterOfficesTest : public OnRosterScreen {};

TEST_F(frmRosterOfficesTest, CaptainIsMarkedAndToldAndLosesHisAssistantsPlace)
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

TEST_F(frmRosterOfficesTest, ACaptainFreesHisOwnSlotAndLeavesTheOtherAssistantAlone)
{
    PutSkaters(3, status::Pro);
    for (const int slot : {1, 2}) {
        const int other = 3 - slot;
        Own().Captain = 1;
        Own().Assistant[slot] = 2;
        Own().Assistant[other] = 3;
        Choose(2, 1);
        Click(Roster().cmdCaptain);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{64, "Skater 2 has been selected as captain for Harbour City Gulls."}))
            << slot;
        EXPECT_EQ(Own().Captain, 2) << slot;
        EXPECT_EQ(Own().Assistant[slot], 0) << slot;
        EXPECT_EQ(Own().Assistant[other], 3) << slot;
        EXPECT_THAT(Listed(2),
                    ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2 (C)", 21}, Entry{"Skater 3 (A)", 31}));
        Roster().ShowPlayer(true);
    }
}

TEST_F(frmRosterOfficesTest, GoaliesAndFarmPlayersAreRefusedAnOfficeInWords)
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

TEST_F(frmRosterOfficesTest, AssistantTakesTheSlotThatIsAnswered)
{
    PutSkaters(2, status::Pro);
    const Box question1{35, "Do you want Skater 1 to be assistant #1 (Yes) or assistant #2 (No)?"};
    const Box question2{35, "Do you want Skater 2 to be assistant #1 (Yes) or assistant #2 (No)?"};
    Choose(1, 1);
    Machine.Answer(button::Yes);
    Click(Roster().cmdAssistant);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(question1, Box{64, "Skater 1 has been selected as assistant #1 for Harbour City Gulls."}));
    EXPECT_TRUE(Modified);
    Modified = false;
    Choose(2, 1);
    Machine.Answer(button::No);
    Click(Roster().cmdAssistant);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(question2, Box{64, "Skater 2 has been selected as assistant #2 for Harbour City Gulls."}));
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Own().Assistant[1], 1);
    EXPECT_EQ(Own().Assistant[2], 2);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1 (A)", 11}, Entry{"Skater 2 (A)", 21}));
}

TEST_F(frmRosterOfficesTest, CancellingTheAssistantQuestionChangesNoSlotAndStillRebuildsAndModifies)
{
    PutSkaters(3, status::Pro);
    Own().Assistant[1] = 2;
    Own().Assistant[2] = 3;
    Choose(1, 1);
    Players[1].Name = "Ward Tilton";
    Machine.Answer(button::Cancel);
    Click(Roster().cmdAssistant);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{35, "Do you want Ward Tilton to be assistant #1 (Yes) or assistant #2 (No)?"}));
    EXPECT_EQ(Own().Assistant[1], 2);
    EXPECT_EQ(Own().Assistant[2], 3);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Ward Tilton", 11}, Entry{"Skater 2 (A)", 21}, Entry{"Skater 3 (A)", 31}));
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterOfficesTest, AssistantsAndTheCaptainAreRefusedAsAssistants)
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

TEST_F(frmRosterOfficesTest, TheStarIsSetBehindTheTextAndTakenAwayAgain)
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

TEST_F(frmRosterOfficesTest, TheStarOfACaptainStandsWithoutABlankUntilTheListsAreReadAgain)
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

TEST_F(frmRosterOfficesTest, WithNoTradeTheStarIsClearedToldAndSetAgain)
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

TEST_F(frmRosterOfficesTest, WithoutACurrentEntryTheStarIsStoredAndTheTextsStay)
{
    PutSkaters(2, status::Pro);
    PutGoalie(1, 5, status::Scratch);
    const auto toggle = [&](int id, int position) {
        Choose(id, position);
        Roster().ShowPlayer(true); // leaves nobody current
        Modified = false;
        Roster().cmdTradeAvailable_Click();
        EXPECT_TRUE(Modified);
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
    };
    toggle(2, 1);
    EXPECT_TRUE(Players[2].TradeAvailable);
    EXPECT_TRUE(RosterChanges[2].TradeAvailable);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2", 21}));
    toggle(2, 1);
    EXPECT_FALSE(Players[2].TradeAvailable);
    EXPECT_FALSE(RosterChanges[2].TradeAvailable);
    EXPECT_THAT(Listed(2), ElementsAre(Entry{"Skater 1", 11}, Entry{"Skater 2*", 21}));
    toggle(1, 5);
    EXPECT_TRUE(Goalies[1].TradeAvailable);
    EXPECT_TRUE(RosterChangesGoalie[1].TradeAvailable);
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Goalie 1", 15}));
}

TEST_F(frmRosterOfficesTest, ProtectingCountsUpAndDownAndWritesTheChanges)
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

TEST_F(frmRosterOfficesTest, ProtectionAtTheLimitKeepsItsTickUntilTheNextStatsAndStoresNothing)
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

TEST_F(frmRosterOfficesTest, UntickingARefusedProtectionLowersTheCountAndNeverBelowZero)
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
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Maximum Number of Protected Players Reached!"},
                                             Box{64, "Maximum Number of Protected Players Reached!"}));
}

TEST_F(frmRosterOfficesTest, FlagsDoNothingWhileEventsAreHeldBack)
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

TEST_F(frmRosterOfficesTest, NoApplyRerateCopiesItsBox)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    Roster().chkNoApplyRerate->toggle();
    EXPECT_TRUE(Players[1].NoApplyRerate);
    EXPECT_TRUE(Modified);
    Roster().chkNoApplyRerate->toggle();
    EXPECT_FALSE(Players[1].NoApplyRerate);
}

TEST_F(frmRosterOfficesTest, NoTradeClearsTheStarAndClosesItsCommand)
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

TEST_F(frmRosterOfficesTest, NoTradeWithoutAStarSetsNone)
{
    PutSkaters(1, status::Pro);
    Choose(1, 1);
    Roster().chkNoTrade->toggle();
    EXPECT_TRUE(Players[1].NoTrade);
    EXPECT_FALSE(Players[1].TradeAvailable);
    EXPECT_FALSE(RosterChanges[1].TradeAvailable);
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1");
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(Modified);
}

TEST_F(frmRosterOfficesTest, TheStarOfAGoalieWhoSharesTheCaptainsNumberIsClearedToHisBareName)
{
    PutSkaters(2, status::Pro);
    PutGoalie(2, 5, status::Pro).TradeAvailable = true;
    Own().Captain = 2;
    Choose(2, 5);
    ASSERT_EQ(EntryTextAt(2, 2), "Goalie 2*");
    Click(Roster().cmdTradeAvailable);
    EXPECT_EQ(EntryTextAt(2, 2), "Goalie 2");
    EXPECT_FALSE(Goalies[2].TradeAvailable);
    EXPECT_FALSE(RosterChangesGoalie[2].TradeAvailable);
    EXPECT_FALSE(Players[2].TradeAvailable);
}

TEST_F(frmRosterOfficesTest, WithNoTradeAStarThatStandsThereAlreadyGetsASecondOne)
{
    PutSkaters(1, status::Pro);
    Players[1].TradeAvailable = true;
    Choose(1, 1);
    ASSERT_EQ(EntryTextAt(2, 0), "Skater 1*");
    Players[1].NoTrade = true;
    Roster().cmdTradeAvailable_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Integrity));
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1**");
    EXPECT_TRUE(Players[1].TradeAvailable);
    Roster().ShowPlayer(false);
    EXPECT_EQ(EntryTextAt(2, 0), "Skater 1*");
}

TEST_F(frmRosterOfficesTest, AScratchMayBeCaptainAndAssistant)
{
    PutSkaters(2, status::Scratch);
    Choose(1, 1);
    Click(Roster().cmdCaptain);
    Choose(2, 1);
    Machine.Answer(button::Yes);
    Click(Roster().cmdAssistant);
    EXPECT_EQ(Own().Captain, 1);
    EXPECT_EQ(Own().Assistant[1], 2);
    EXPECT_THAT(Listed(1), ElementsAre(Entry{"Skater 1 (C)", 11}, Entry{"Skater 2 (A)", 21}));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Skater 1 has been selected as captain for Harbour City Gulls."},
                            Box{35, "Do you want Skater 2 to be assistant #1 (Yes) or assistant #2 (No)?"},
                            Box{64, "Skater 2 has been selected as assistant #1 for Harbour City Gulls."}));
}

TEST_F(frmRosterOfficesTest, OfficesAreNewsOfTheTeam)
{
    PutSkaters(3, status::Pro);
    Choose(1, 1);
    Click(Roster().cmdCaptain);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", "Skater 1 has been selected as captain."}));
    for (const int slot : {1, 2}) {
        Choose(slot + 1, 1);
        Machine.Answer(slot == 1 ? button::Yes : button::No);
        Click(Roster().cmdAssistant);
        EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", "Skater " + std::to_string(slot + 1) +
                                                                       " has been selected as assistant."}));
    }
    Own().Assistant[2] = 0;
    Choose(3, 1);
    Machine.Answer(button::Cancel);
    Click(Roster().cmdAssistant);
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Skater 1 has been selected as captain for Harbour City Gulls."},
                            Box{35, "Do you want Skater 2 to be assistant #1 (Yes) or assistant #2 (No)?"},
                            Box{64, "Skater 2 has been selected as assistant #1 for Harbour City Gulls."},
                            Box{35, "Do you want Skater 3 to be assistant #1 (Yes) or assistant #2 (No)?"},
                            Box{64, "Skater 3 has been selected as assistant #2 for Harbour City Gulls."},
                            Box{35, "Do you want Skater 3 to be assistant #1 (Yes) or assistant #2 (No)?"}));
}

// Where more than one list has a current entry, as only code makes them.
TEST_F(frmRosterOfficesTest, TheStarGoesToTheFirstListWithACurrentEntryFromTheFarmUp)
{
    PutSkater(1, 5, position::Center, status::Farm);
    PutSkater(2, 5, position::Center, status::Scratch);
    PutSkater(3, 5, position::Center, status::Pro);
    const auto star = [&](std::initializer_list<int> lists) {
        Roster().ShowPlayer(true);
        for (const int index : lists)
            Roster().lstPlayer[index]->setCurrentRow(0, QItemSelectionModel::NoUpdate);
        SelectedPlayer = 900; // nobody's entry goes by his number
        SelectedIsGoalie = false;
        Roster().cmdTradeAvailable_Click();
        Players[900].TradeAvailable = false;
        return std::vector{EntryTextAt(0, 0), EntryTextAt(1, 0), EntryTextAt(2, 0)};
    };
    EXPECT_THAT(star({2, 1, 0}), ElementsAre("Skater 1*", "Skater 2", "Skater 3"));
    EXPECT_THAT(star({2, 1}), ElementsAre("Skater 1", "Skater 2*", "Skater 3"));
    EXPECT_THAT(star({2}), ElementsAre("Skater 1", "Skater 2", "Skater 3*"));
}

TEST_F(frmRosterOfficesTest, NoApplyRerateAndNoTradeLeaveTheListOfChangesAlone)
{
    PutSkaters(1, status::Pro);
    PutGoalie(1, 5, status::Pro);
    for (const int position : {position::Center, position::Goalie}) {
        Choose(1, position);
        const auto skaters = ImageOf(RosterChanges);
        const auto goalies = ImageOf(RosterChangesGoalie);
        Roster().chkNoApplyRerate->toggle();
        Roster().chkNoTrade->toggle();
        EXPECT_TRUE(ImageOf(RosterChanges) == skaters) << position;
        EXPECT_TRUE(ImageOf(RosterChangesGoalie) == goalies) << position;
    }
    EXPECT_TRUE(Players[1].NoApplyRerate);
    EXPECT_TRUE(Goalies[1].NoApplyRerate);
}

} // namespace
} // namespace dravik
