// What is undone and done again on the roster screen.

#include "OnHistory.h"
#include "OnRosterScreen.h"
#include "session/OpenHistory.h"
#include "support/FailingAllocation.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UndoRoster : public OnRosterScreen {
protected:
    UndoRoster() { PutSeven(); }
};

TEST_F(UndoRoster, AMoveOfSeveralIsOneStepAndTheListsShowIt)
{
    frmRoster& roster = Roster();
    const auto before = AllTables();
    const auto scratches = Listed(status::Scratch);
    ClickEntry(status::Scratch, 0);
    ClickEntry(status::Scratch, 1, Qt::ControlModifier);
    Click(roster.cmdToPro);
    ASSERT_EQ(Listed(status::Pro).size(), 4U);
    EXPECT_EQ(UndoWords(roster), "Undo: To Pro: 2 players");
    Undo(roster);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(Listed(status::Scratch), scratches);
    EXPECT_EQ(roster.StatusCount()[status::Pro], 2);
    Redo(roster);
    EXPECT_EQ(Listed(status::Pro).size(), 4U);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(UndoRoster, APersonsCommandsNameHim)
{
    frmRoster& roster = Roster();
    Players[6].Name = "Ward Tilton";
    const auto before = AllTables();
    ClickEntry(status::Pro, 0);
    Click(roster.cmdCaptain);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{64, "Ward Tilton has been selected as captain for Harbour City Gulls."}));
    EXPECT_EQ(UndoWords(roster), "Undo: Make Captain: Ward Tilton");
    ClickEntry(status::Pro, 0);
    Click(roster.cmdTradeAvailable);
    EXPECT_EQ(UndoWords(roster), "Undo: Trade Available: Ward Tilton");
    roster.chkNoTrade->show();
    Click(roster.chkNoTrade);
    EXPECT_TRUE(Players[6].NoTrade);
    EXPECT_EQ(UndoWords(roster), "Undo: No Trade: Ward Tilton");
    for (int step = 1; step <= 3; ++step)
        Undo(roster);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(UndoWords(roster), "");
}

TEST_F(UndoRoster, WhoeverWasChosenStaysChosen)
{
    frmRoster& roster = Roster();
    ClickEntry(status::Scratch, 0);
    Click(roster.cmdToPro);
    ClickEntry(status::Scratch, 1);
    const int chosen = roster.lstPlayer[status::Scratch]->Chosen()->data(entry::NumberRole).toInt();
    Undo(roster);
    ASSERT_NE(roster.lstPlayer[status::Scratch]->Chosen(), nullptr);
    EXPECT_EQ(roster.lstPlayer[status::Scratch]->Chosen()->data(entry::NumberRole).toInt(), chosen);
    EXPECT_TRUE(roster.cmdToFarm->isEnabled());
}

TEST_F(UndoRoster, AnAutomaticRosterComesBackInOne)
{
    TeamMaker(5).DressesFullRoster();
    frmRoster& roster = Roster();
    const auto before = AllTables();
    Click(roster.cmdAutoRoster);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U) << "its report";
    EXPECT_EQ(UndoWords(roster), "Undo: Auto Made Roster");
    const auto made = AllTables();
    Undo(roster);
    EXPECT_TRUE(AllTables() == before);
    Redo(roster);
    EXPECT_TRUE(AllTables() == made);
}

TEST_F(UndoRoster, WhatWasDoneForATeamWaitsUntilSheIsChosenAgain)
{
    ClickEntry(status::Scratch, 0);
    Click(Roster().cmdToPro);
    Undo(Roster());
    TeamMaker other(6);
    Click(Roster().cmdExit);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U) << "an incomplete roster is told of";
    OpenFrom(Main(), "Main", 6);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_EQ(RedoWords(*RosterScreen()), "");
    Redo(*RosterScreen());
    EXPECT_EQ(Players[1].Status, status::Scratch);
    Click(RosterScreen()->cmdExit);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    OpenFrom(Main(), "Main", 5);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_EQ(RedoWords(*RosterScreen()), "Redo: To Pro: " + Players[1].Name.Trimmed());
    Redo(*RosterScreen());
    EXPECT_EQ(Players[1].Status, status::Pro);
}

TEST_F(UndoRoster, WithoutRoomTheCommandSaysSo)
{
    Roster();
    {
        const FailingAllocation first(1);
        OpenHistory().Begin();
    }
    Roster().ShowHistory();
    EXPECT_EQ(UndoWords(Roster()), "");
    EXPECT_EQ(HistoryCommand(Roster(), "cmdUndo")->accessibleName().toStdString(), History::OutOfRoomWords);
    ClickEntry(status::Scratch, 0);
    Click(Roster().cmdToPro);
    EXPECT_EQ(UndoWords(Roster()), "Undo: To Pro: " + Players[1].Name.Trimmed()) << "there is room again";
}

TEST_F(UndoRoster, TheFirstCommandForAnotherTeamEndsTheWayBack)
{
    frmRoster& roster = Roster();
    ClickEntry(status::Scratch, 0);
    Click(roster.cmdToPro);
    PutSkater(20, 6, position::Center, status::Scratch);
    TeamMaker other(6);
    Click(roster.cmdExit);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U) << "an incomplete roster is told of";
    OpenFrom(Main(), "Main", 6);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_EQ(UndoWords(*RosterScreen()), "") << "another manager's";
    Undo(*RosterScreen());
    EXPECT_EQ(Players[1].Status, status::Pro);
    ClickEntry(status::Scratch, 0);
    Click(RosterScreen()->cmdToPro);
    EXPECT_EQ(UndoWords(*RosterScreen()), "Undo: To Pro: " + Players[20].Name.Trimmed());
    Undo(*RosterScreen());
    EXPECT_EQ(UndoWords(*RosterScreen()), "");
    EXPECT_EQ(Players[1].Status, status::Pro);
}

} // namespace
} // namespace dravik
