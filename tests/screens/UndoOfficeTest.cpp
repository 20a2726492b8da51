// What is undone and done again on the team's screens and on the market.

#include "OnDraftScreen.h"
#include "OnHistory.h"
#include "OnOfferScreen.h"
#include "OnTeamScreen.h"
#include "screens/team/frmTicket.h"
#include "session/OpenHistory.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using UndoTeam = OnTeamScreen;

TEST_F(UndoTeam, ABoxIsAStepUnderItsName)
{
    frmTeam& office = Office();
    const auto before = AllTables();
    Enter(office.txtEmail, "new@example.org");
    EXPECT_EQ(UndoWords(office), "Undo: Change " + office.txtEmail->accessibleName().toStdString());
    Press(office.cmdExit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(AllTables() == before);
    EXPECT_EQ(Of(office.txtEmail), "ward@example.org");
}

TEST_F(UndoTeam, TicketPricesComeBackOnTheirScreenAndFromTheTeams)
{
    for (int level = 1; level <= 5; ++level)
        Own().TicketPrice[level] = 20;
    Click(Office().cmdTicketArena);
    auto& tickets = *static_cast<frmTicket*>(TheStage.Find("Ticket"));
    TypeInto(tickets.txtTicket[1], "30");
    Press(tickets.txtTicket[1], Qt::Key_Tab);
    ASSERT_EQ(Own().TicketPrice[1], 30);
    EXPECT_EQ(UndoWords(tickets), "Undo: Change Level 1 Level Ticket Price");
    tickets.cmdExit->setFocus();
    Undo(tickets);
    EXPECT_EQ(Own().TicketPrice[1], 20);
    EXPECT_EQ(Of(tickets.txtTicket[1]), "20");
    Redo(tickets);
    EXPECT_EQ(Of(tickets.txtTicket[1]), "30");
    Click(tickets.cmdExit);
    EXPECT_EQ(UndoWords(Office()), "Undo: Change Level 1 Level Ticket Price (Tickets)");
    Undo(Office());
    EXPECT_EQ(Own().TicketPrice[1], 20);
}

using UndoOffers = OnOfferScreen;

TEST_F(UndoOffers, AnOfferComesBackBoxByBox)
{
    FreeSkater(1).Name = "Ward Tilton";
    FreeSkater(2);
    Open();
    ClickEntry(0);
    Enter(Offers().txtOffer, "900000");
    Enter(Offers().txtDuration, "3");
    EXPECT_EQ(UndoWords(Offers()), "Undo: Change Duration: Ward Tilton");
    ClickEntry(1);
    Offers().lstPlayers->setFocus();
    Undo(Offers());
    EXPECT_EQ(OfferOf(1).Duration, 0);
    EXPECT_EQ(OfferOf(1).Salary, 900000);
    Undo(Offers());
    EXPECT_EQ(OfferOf(1).Salary, 0);
    Redo(Offers());
    Redo(Offers());
    ClickEntry(0);
    EXPECT_THAT(Boxes(), ElementsAre("900000", "3", "0", ""));
    Offers().lstPlayers->setFocus();
    Undo(Offers());
    EXPECT_THAT(Boxes(), ElementsAre("900000", "0", "0", ""));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(UndoOffers, WhatIsOfferedBehindAnUndoIsStillAnOfferToThatPerson)
{
    FreeSkater(1);
    Open();
    ClickEntry(0);
    Enter(Offers().txtOffer, "900000");
    Offers().lstPlayers->setFocus();
    Undo(Offers());
    Enter(Offers().txtOffer, "800000");
    EXPECT_EQ(OfferOf(1).Id, 1);
    EXPECT_EQ(OfferOf(1).Salary, 800000);
    EXPECT_EQ(RedoWords(Offers()), "");
}

TEST_F(UndoOffers, WhomOneLooksAtStopsNoWayBack)
{
    FreeSkater(1);
    FreeSkater(2);
    Open();
    Enter(Offers().txtOffer, "900000");
    ClickEntry(1);
    Enter(Offers().txtOffer, "800000");
    Offers().lstPlayers->setFocus();
    Undo(Offers());
    Undo(Offers());
    ClickEntry(0);
    ClickEntry(1);
    Redo(Offers());
    Redo(Offers());
    EXPECT_EQ(OfferOf(1).Salary, 900000);
    EXPECT_EQ(OfferOf(2).Salary, 800000);
    EXPECT_EQ(OfferOf(2).Id, 2);
}

TEST_F(UndoOffers, WhatCannotBePutAgainIsTold)
{
    FreeSkater(1).Name = "Ward Tilton";
    Open();
    Enter(Offers().txtOffer, "900000");
    Offers().lstPlayers->setFocus();
    Undo(Offers());
    OfferOf(1).Salary = 700000;
    Redo(Offers());
    EXPECT_EQ(OfferOf(1).Salary, 700000);
    EXPECT_EQ(HistoryTold(), "What it would replace has changed since: Change Salary: Ward Tilton");
}

using UndoDraft = OnDraftScreen;

TEST_F(UndoDraft, ARankingComesBackStepByStep)
{
    Choose({0, 1, 2});
    EXPECT_EQ(UndoWords(Draft()), "Undo: Add to the draft list: " + Of(Draft().lstPlayers)[2].first);
    const auto ranked = Ranking();
    ASSERT_EQ(ranked.size(), 3U);
    ClickEntry(Draft().lstDraftList, 2);
    Click(Draft().cmdUp);
    Undo(Draft());
    EXPECT_EQ(Ranking(), ranked);
    EXPECT_EQ(Of(Draft().lstDraftList).size(), 3U);
    for (int step = 1; step <= 3; ++step)
        Undo(Draft());
    EXPECT_THAT(Ranking(), IsEmpty());
    EXPECT_THAT(Of(Draft().lstDraftList), IsEmpty());
    EXPECT_EQ(UndoWords(Draft()), "");
    for (int step = 1; step <= 3; ++step)
        Redo(Draft());
    EXPECT_EQ(Ranking(), ranked);
}

TEST_F(UndoDraft, ARankingThatIsBegunAnewComesBackByAStepOfItsOwn)
{
    Choose({0, 1});
    const auto ranked = Ranking();
    Click(Draft().cmdExit);
    EXPECT_THAT(Of(Draft().lstDraftList), IsEmpty());
    EXPECT_EQ(UndoWords(Draft()), "Undo: Begin a new draft list");
    Undo(Draft());
    EXPECT_EQ(Ranking(), ranked);
    EXPECT_EQ(Of(Draft().lstDraftList).size(), 2U);
}

TEST_F(UndoDraft, AnEmptyRankingBegunAnewIsNoStep)
{
    Draft();
    Click(Draft().cmdExit);
    EXPECT_EQ(UndoWords(Draft()), "");
}

TEST_F(UndoOffers, OffersThatAreBegunAnewComeBackByAStepOfTheirOwn)
{
    FreeSkater(1);
    Open();
    EXPECT_EQ(UndoWords(Offers()), "");
    ClickEntry(0);
    Enter(Offers().txtOffer, "900000");
    Enter(Offers().txtDuration, "3");
    Click(Offers().cmdExit);
    Open();
    EXPECT_EQ(OfferOf(1).Salary, 0);
    Offers().lstPlayers->setFocus();
    EXPECT_EQ(UndoWords(Offers()), "Undo: Begin new offers");
    Undo(Offers());
    EXPECT_EQ(OfferOf(1).Salary, 900000);
    EXPECT_EQ(OfferOf(1).Duration, 3);
    EXPECT_THAT(Boxes(), ElementsAre("900000", "3", "0", ""));
}

} // namespace
} // namespace dravik
