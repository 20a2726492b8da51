#include "JournalDesk.h"

#include <cstring>

// What is brought back of a journal, and what is refused.
namespace dravik {
namespace {

class BringBackTest : public JournalDesk {
protected:
    std::string BringItBack() { return BringBack(history, OpenLeague, *market, Read()); }
    [[nodiscard]] static bool IsLeague(const Tables& other)
    {
        return std::memcmp(&OpenLeague, &other, sizeof other) == 0;
    }
};

TEST_F(BringBackTest, AllStepsAreBackAndCanBeUndone)
{
    Rename("Arena");
    Pay(90);
    Pay(80);
    Rename("Other Arena");
    Pay(70);
    const auto end = Copy(OpenLeague);
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_TRUE(IsLeague(*end));
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 70");
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 90);
    EXPECT_EQ(Arena(), "Arena");
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(Arena(), "Arena") << "what belongs to the beginning stays";
}

TEST_F(BringBackTest, WhatWasUndoneCanBeRedone)
{
    Pay(90);
    Pay(80);
    Pay(70);
    history.Undo();
    history.Undo();
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_EQ(OwnTeam.Cash, 90);
    EXPECT_EQ(history.Redo(), Turned::Done);
    EXPECT_EQ(history.Redo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 70);
    EXPECT_EQ(history.Redo(), Turned::Nothing);
}

TEST_F(BringBackTest, WhatCannotBeRedoneAnyMoreIsLeftOut)
{
    Pay(90);
    Pay(80);
    history.Undo();
    OwnTeam.Cash = 85; // where the undone step would write
    history.Fold();
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_EQ(OwnTeam.Cash, 85);
    EXPECT_EQ(history.ToRedo(), nullptr);
}

TEST_F(BringBackTest, NoDragGoesOnBehindIt)
{
    Pay(90, 3);
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    Pay(80, 3);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 90);
}

TEST_F(BringBackTest, APasswordStaysThatOfTheFile)
{
    Pay(90);
    {
        const OpenStep step = history.Open(Label("Change Password"));
        OwnTeam.Password = std::string(32, '8');
    }
    {
        const OpenStep step = history.Open(Label("Load"));
        OwnTeam.Password = "";
        OwnTeam.Cash = 80;
    }
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_EQ(OwnTeam.Password.Raw(), Secret);
    EXPECT_EQ(OwnTeam.Cash, 80);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 90") << "the password alone is no step";
    EXPECT_EQ(OwnTeam.Password.Raw(), Secret);
}

TEST_F(BringBackTest, AnotherTeamsWorkBelongsToTheBeginning)
{
    Pay(90);
    {
        const OpenStep step = history.Open(Label("Rename", 0, 6));
        Teams[6].Name = "Others";
    }
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_EQ(OwnTeam.Cash, 90);
    EXPECT_EQ(Teams[6].Name.Trimmed(), "Others");
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

// ---- The market ------------------------------------------------------------------------------------------------------

TEST_F(BringBackTest, AnOfferIsThePersonsAndCanBeSaved)
{
    OfferTo(300, 500000);
    OfferTo(10007, 600000);
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    for (const int id : {300, 10007}) {
        EXPECT_EQ(market->Offers[id].Id, id);
        EXPECT_EQ(market->Offers[id].Duration, 2);
    }
    EXPECT_EQ(market->Offers[300].Salary, 500000);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(market->Offers[10007].Salary, 0);
    EXPECT_EQ(market->Offers[10007].Id, 10007) << "whom one looks at stands in no step";
}

TEST_F(BringBackTest, OffersThatWereBegunAnewAreBack)
{
    OfferTo(300, 500000);
    {
        const OpenStep step = history.Open(Label("Begin new offers"));
        for (FreeAgentOffer& offer : market->Offers)
            offer = {};
    }
    market->Offers[300].Id = 300; // looked at once more
    OfferTo(301, 700000);
    const FreeAgentOffer offer = market->Offers[301];
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_EQ(std::memcmp(&market->Offers[301], &offer, sizeof offer), 0);
    EXPECT_EQ(market->Offers[300].Salary, 0);
    EXPECT_EQ(market->Offers[300].Id, 300);
    for (int undone = 0; undone < 2; ++undone)
        EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(market->Offers[300].Salary, 500000);
    EXPECT_EQ(market->Offers[300].Id, 300);
}

TEST_F(BringBackTest, WhatIsDoneToAnOfferLaterIsAStep)
{
    OfferTo(300, 500000);
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    {
        const OpenStep step = history.Open(Label("Offer more"));
        market->Offers[300].Salary = 900000;
    }
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(market->Offers[300].Salary, 500000);
}

TEST_F(BringBackTest, TheRankingIsBack)
{
    {
        const OpenStep step = history.Open(Label("Rank"));
        market->Ranking[0] = 20017;
    }
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_EQ(market->Ranking[0], 20017);
}

// ---- Refusals ----------------------------------------------------------------------------------------------------------

TEST_F(BringBackTest, WhatDoesNotFitIsRefusedAndChangesNothing)
{
    Rename("Arena");
    Pay(90);
    OfferTo(300, 500000);
    Pay(80);
    StartAgain();
    for (const int place : {0, 1, 2}) {
        SCOPED_TRACE(place);
        OpenLeague = *beginning;
        EmptyMarket(*market);
        if (place == 0)
            Rename("Strange");
        else if (place == 1)
            OwnTeam.Cash = 101;
        else
            market->Offers[300].Salary = 1;
        history.Begin();
        const auto before = Copy(OpenLeague);
        const auto marketBefore = std::make_unique<Market>(*market);
        EXPECT_EQ(BringItBack(), "It does not fit the league that is open.");
        EXPECT_TRUE(IsLeague(*before));
        EXPECT_EQ(std::memcmp(market.get(), marketBefore.get(), sizeof *market), 0);
        EXPECT_EQ(history.ToUndo(), nullptr);
    }
}

TEST_F(BringBackTest, NothingIsBroughtBackBehindAnotherStep)
{
    Pay(90);
    StartAgain();
    Pay(95);
    EXPECT_EQ(BringItBack(), "It cannot be brought back behind what has been done since.");
    EXPECT_EQ(OwnTeam.Cash, 95);
    history.Undo();
    EXPECT_EQ(BringItBack(), "It cannot be brought back behind what has been done since.");
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(BringBackTest, WithoutRoomForTheStepsTheWorkIsBackAllTheSame)
{
    Pay(90);
    Pay(80);
    Pay(70);
    Pay(60);
    history.Undo();
    history.Undo();
    StartAgain();
    History small(OpenLeague, 100);
    small.Join(*market);
    EXPECT_EQ(BringBack(small, OpenLeague, *market, Read()), "");
    EXPECT_EQ(OwnTeam.Cash, 80);
    EXPECT_EQ(small.ToUndo(), nullptr);
    EXPECT_TRUE(small.IsOutOfRoom());
}

// ---- A second death ------------------------------------------------------------------------------------------------------

TEST_F(BringBackTest, TheJournalGoesOnBehindWhatWasBroughtBack)
{
    Pay(90);
    {
        const OpenStep step = history.Open(Label("Change Password"));
        OwnTeam.Password = "";
    }
    Pay(80);
    Pay(70);
    history.Undo();
    written.resize(written.size() - 1); // the last entry is torn
    StartAgain();
    const JournalRead read = Read();
    written.resize(read.Whole);
    EXPECT_EQ(BringItBack(), "");
    EXPECT_EQ(OwnTeam.Cash, 70);
    JournalWriter goesOn(read.Sealed, Sink(), Clock());
    history.TellTo(&goesOn);
    for (int undone = 0; undone < 2; ++undone)
        EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 90);
    history.Redo();
    EXPECT_EQ(Read().Whole, written.size());
    EXPECT_EQ(Read().Steps.size(), 3U) << "the password alone is none by now";
    EXPECT_EQ(Read().Done, 2U);
    const auto end = Copy(OpenLeague);
    StartAgain();
    EXPECT_EQ(BringItBack(), "");
    EXPECT_TRUE(IsLeague(*end));
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 100);
}

} // namespace
} // namespace dravik
