#include "desk/History.h"

#include "HistoryDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HistoryTest : public HistoryDesk {};

TEST_F(HistoryTest, AStepIsUndoneAndRedone)
{
    Pay(70);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(history.Redo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 70);
}

TEST_F(HistoryTest, StepsAreUndoneFromTheLastAndRedoneFromTheFirst)
{
    Pay(70);
    Pay(40);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 70);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    history.Redo();
    EXPECT_EQ(OwnTeam.Cash, 70);
    history.Redo();
    EXPECT_EQ(OwnTeam.Cash, 40);
    EXPECT_EQ(history.Redo(), Turned::Nothing);
}

TEST_F(HistoryTest, ItSaysWhatItWouldUndoAndRedo)
{
    EXPECT_EQ(history.UndoWords(Here), "");
    EXPECT_EQ(history.RedoWords(Here), "");
    Pay(70);
    Pay(40);
    history.Undo();
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 70");
    EXPECT_EQ(history.RedoWords(Here), "Redo: Pay 40");
    EXPECT_EQ(history.ToUndo()->Label.Team, Own);
}

TEST_F(HistoryTest, ElsewhereItSaysWhereTheStepWas)
{
    Pay(70);
    EXPECT_EQ(history.UndoWords("Lines"), "Undo: Pay 70 (Team)");
    history.Undo();
    EXPECT_EQ(history.RedoWords("Lines"), "Redo: Pay 70 (Team)");
}

TEST_F(HistoryTest, AStepWithinAnotherIsAPartOfIt)
{
    {
        const OpenStep outer = history.Open(Label("Release"));
        Pay(70);
        EXPECT_TRUE(history.IsOpen());
        Rename("Dome");
    }
    EXPECT_FALSE(history.IsOpen());
    EXPECT_EQ(history.UndoWords(Here), "Undo: Release");
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(Arena(), "");
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

TEST_F(HistoryTest, NothingIsUndoneOrRedoneWhileAStepIsOpen)
{
    Pay(70);
    Pay(40);
    history.Undo();
    const auto before = Copy(OpenLeague);
    const OpenStep step = history.Open(Label("Wipe"));
    EXPECT_EQ(history.Undo(), Turned::StepIsOpen);
    EXPECT_EQ(history.Redo(), Turned::StepIsOpen);
    EXPECT_EQ(history.ToUndo(), nullptr);
    EXPECT_EQ(history.ToRedo(), nullptr);
    EXPECT_EQ(history.UndoWords(Here), "");
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0);
}

TEST_F(HistoryTest, AStepThatFailsHalfWayClosesWithWhatDiffers)
{
    try {
        const OpenStep step = history.Open(Label("Release"));
        OwnTeam.Cash = 70;
        Fail(failure::Overflow);
    } catch (const Failure&) {
        EXPECT_FALSE(history.IsOpen());
    }
    EXPECT_EQ(history.UndoWords(Here), "Undo: Release");
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(HistoryTest, AStepInWhichNothingDiffersIsNoneAndLeavesRedoAlone)
{
    Pay(70);
    Pay(40);
    history.Undo();
    {
        const OpenStep step = history.Open(Label("Thinks again"));
        OwnTeam.Cash = 1;
        OwnTeam.Cash = 70;
    }
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 70");
    EXPECT_EQ(history.Redo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 40);
}

TEST_F(HistoryTest, BehindAStepNothingThatWasUndoneCanBeRedone)
{
    Pay(70);
    Pay(40);
    history.Undo();
    history.Undo();
    Pay(30);
    EXPECT_EQ(history.Redo(), Turned::Nothing);
    EXPECT_EQ(OwnTeam.Cash, 30);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

// ---- Drags -------------------------------------------------------------------------------------------------------------

TEST_F(HistoryTest, StepsOfOneDragAreOneUnderTheLaterWords)
{
    Pay(70, 1);
    Pay(60, 1);
    Pay(50, 1);
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 50");
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    history.Redo();
    EXPECT_EQ(OwnTeam.Cash, 50);
}

TEST_F(HistoryTest, StepsOfTwoDragsAndOfNoneStayApart)
{
    Pay(70, 1);
    Pay(60, 2);
    Pay(50);
    Pay(40);
    for (const int cash : {50, 60, 70, 100}) {
        EXPECT_EQ(history.Undo(), Turned::Done);
        EXPECT_EQ(OwnTeam.Cash, cash);
    }
}

TEST_F(HistoryTest, ADragThatComesBackToItsBeginningIsNoStep)
{
    Pay(80);
    Pay(70, 1);
    Pay(80, 1);
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 80");
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(HistoryTest, ADragThatComesBackAndGoesOnIsAStepAgain)
{
    Pay(70, 1);
    Pay(100, 1);
    Pay(60, 1);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

TEST_F(HistoryTest, AnUndoEndsADrag)
{
    Pay(70, 1);
    Pay(60);
    history.Undo();
    Pay(50, 1);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 70);
}

TEST_F(HistoryTest, WhatChangesOutsideWithinADragIsPartOfIt)
{
    Pay(70, 1);
    Rename("Dome");
    Pay(60, 1);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(Arena(), "");
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

// ---- What changes outside of steps -----------------------------------------------------------------------------------------

TEST_F(HistoryTest, WhatChangesOutsideBelongsToTheStepBeforeIt)
{
    Pay(70);
    Rename("Dome");
    Pay(40);
    history.Undo();
    EXPECT_EQ(Arena(), "Dome");
    history.Undo();
    EXPECT_EQ(Arena(), "");
    EXPECT_EQ(OwnTeam.Cash, 100);
    history.Redo();
    EXPECT_EQ(Arena(), "Dome");
    EXPECT_EQ(OwnTeam.Cash, 70);
}

TEST_F(HistoryTest, InFrontOfTheFirstStepItBelongsToTheBeginning)
{
    Rename("Dome");
    Pay(70);
    history.Undo();
    EXPECT_EQ(Arena(), "Dome");
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

TEST_F(HistoryTest, ItBelongsToTheStepBeforeItEvenWithoutAnotherOne)
{
    Pay(70);
    Rename("Dome");
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(Arena(), "");
    history.Redo();
    EXPECT_EQ(Arena(), "Dome");
}

TEST_F(HistoryTest, BehindAnUndoItBelongsToTheStepBeforeThatIsNotUndone)
{
    Pay(70);
    Pay(40);
    history.Undo();
    Rename("Dome");
    EXPECT_EQ(history.Redo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 40);
    EXPECT_EQ(Arena(), "Dome");
    history.Undo();
    EXPECT_EQ(Arena(), "Dome");
    history.Undo();
    EXPECT_EQ(Arena(), "");
}

TEST_F(HistoryTest, WhenAllIsUndoneItBelongsToTheBeginning)
{
    Pay(70);
    history.Undo();
    Rename("Dome");
    history.Redo();
    history.Undo();
    EXPECT_EQ(Arena(), "Dome");
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(HistoryTest, AStepThatIsTakenBackFromOutsideIsGone)
{
    Pay(90);
    Pay(70);
    OwnTeam.Cash = 90;
    history.Fold();
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 90");
}

TEST_F(HistoryTest, NoStepIsOpenedForWhatIsFolded)
{
    Rename("Dome");
    history.Fold();
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    {
        const OpenStep step = history.Open(Label("Release"));
        OwnTeam.Cash = 70;
        history.Fold();
    }
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100) << "a fold within a step is none";
}

// ---- What is refused -------------------------------------------------------------------------------------------------------

TEST_F(HistoryTest, UndoDoesNotReplaceBytesThatChangedUnderIt)
{
    Pay(70);
    OwnTeam.Cash = 71;
    Rename("Dome");
    const auto before = Copy(OpenLeague);
    EXPECT_EQ(history.Undo(), Turned::Changed);
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0);
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 70");
}

TEST_F(HistoryTest, OnceTheyAreFoldedItDoes)
{
    Pay(70);
    OwnTeam.Cash = 71;
    history.Fold();
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 100);
    history.Redo();
    EXPECT_EQ(OwnTeam.Cash, 71);
}

TEST_F(HistoryTest, RedoDoesNotReplaceBytesThatChangedUnderIt)
{
    Pay(70);
    Pay(40);
    history.Undo();
    OwnTeam.Cash = 71;
    EXPECT_EQ(history.Redo(), Turned::Changed);
    history.Fold();
    EXPECT_EQ(history.Redo(), Turned::Changed) << "what a fold keeps, no redo replaces";
    EXPECT_EQ(OwnTeam.Cash, 71);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 100);
}

// ---- Its end ---------------------------------------------------------------------------------------------------------------

TEST_F(HistoryTest, TheFirstCommandForAnotherTeamEndsIt)
{
    Pay(70);
    Pay(40, 0, 6);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 70);
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    history.Redo();
    EXPECT_EQ(OwnTeam.Cash, 40);
}

TEST_F(HistoryTest, StepsThatWereUndoneEndThereToo)
{
    Pay(70);
    history.Undo();
    Pay(40, 0, 6);
    EXPECT_EQ(history.Redo(), Turned::Nothing);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(HistoryTest, ACommandForAnotherTeamThatChangesNothingEndsNothing)
{
    Pay(70);
    {
        const OpenStep step = history.Open(Label("Nothing", 0, 6));
    }
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 70");
}

TEST_F(HistoryTest, NoDragReachesAnotherTeam)
{
    Pay(70, 1);
    Pay(40, 1, 6);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 70);
}

TEST_F(HistoryTest, OpeningALeagueEndsIt)
{
    Pay(70);
    Pay(60);
    history.Undo();
    OwnTeam.Cash = 500;
    history.Begin();
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    EXPECT_EQ(history.Redo(), Turned::Nothing);
    Pay(400);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 500);
}

TEST_F(HistoryTest, AStepInWhichALeagueIsOpenedIsNone)
{
    {
        const OpenStep step = history.Open(Label("Open League"));
        OwnTeam.Cash = 70;
        history.Begin();
        OwnTeam.Cash = 60;
    }
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    Pay(50);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 60);
}

TEST_F(HistoryTest, WithoutABeginningItBeginsWithTheFirstStep)
{
    History other(OpenLeague);
    EXPECT_EQ(other.Undo(), Turned::Nothing);
    other.Fold();
    {
        const OpenStep step = other.Open(Label("Pay"));
        OwnTeam.Cash = 70;
    }
    other.Undo();
    EXPECT_EQ(OwnTeam.Cash, 100);
}

// ---- The market ------------------------------------------------------------------------------------------------------------

class HistoryOfAMarketTest : public HistoryTest {
protected:
    HistoryOfAMarketTest() { history.Join(*market); }

    void Offer(int id, int salary)
    {
        const OpenStep step = history.Open(Label("Offer"));
        history.Watch(id);
        market->Offers[id].Salary = salary;
    }
    [[nodiscard]] long long Salary(int id) const { return market->Offers[id].Salary; }

    std::unique_ptr<Market> market = MakeMarket();
};

TEST_F(HistoryOfAMarketTest, OffersThatAreWatchedAreUndone)
{
    Offer(3, 500);
    Offer(11000, 700);
    history.Undo();
    EXPECT_EQ(Salary(11000), 0);
    EXPECT_EQ(Salary(3), 500);
    history.Undo();
    EXPECT_EQ(Salary(3), 0);
    history.Redo();
    history.Redo();
    EXPECT_EQ(Salary(3), 500);
    EXPECT_EQ(Salary(11000), 700);
}

TEST_F(HistoryOfAMarketTest, WithoutABeginningItBeginsWithTheFirstOfferThatIsWatched)
{
    History other(OpenLeague);
    other.Join(*market);
    other.Watch(3);
    {
        const OpenStep step = other.Open(Label("Offer"));
        market->Offers[3].Salary = 500;
    }
    EXPECT_EQ(other.Undo(), Turned::Done);
    EXPECT_EQ(Salary(3), 0);
}

TEST_F(HistoryOfAMarketTest, AnOfferOfWhichNobodySpokeIsNotLookedAt)
{
    {
        const OpenStep step = history.Open(Label("Offer"));
        market->Offers[4].Salary = 500;
    }
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    EXPECT_EQ(Salary(4), 500);
}

TEST_F(HistoryOfAMarketTest, WhatStoodThereWhenItWasWatchedFirstIsTheBeginning)
{
    market->Offers[4].Salary = 300;
    Offer(4, 500);
    Offer(4, 600);
    history.Undo();
    EXPECT_EQ(Salary(4), 500);
    history.Undo();
    EXPECT_EQ(Salary(4), 300);
}

TEST_F(HistoryOfAMarketTest, OneRunReachesFromOneOfferIntoTheNext)
{
    const auto fill = [&](int id, unsigned char byte) {
        std::memset(static_cast<void*>(&market->Offers[id]), byte, sizeof(FreeAgentOffer));
    };
    {
        const OpenStep step = history.Open(Label("Offers"));
        for (const int id : {7, 8, 9}) {
            history.Watch(id);
            fill(id, 'x');
        }
    }
    const auto filled = std::make_unique<OfferTable>(market->Offers);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(Salary(8), 0);
    EXPECT_EQ(history.Redo(), Turned::Done);
    EXPECT_EQ(std::memcmp(filled.get(), &market->Offers, sizeof *filled), 0);
    EXPECT_EQ(history.Undo(), Turned::Done) << "the shadow has followed into each";
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

TEST_F(HistoryOfAMarketTest, ANumberThatNoOfferHasIsPassedOver)
{
    for (const int id : {-1, 0, 11001, 32767})
        history.Watch(id);
    Offer(1, 5);
    history.Undo();
    EXPECT_EQ(Salary(1), 0);
}

TEST_F(HistoryOfAMarketTest, TheRankingIsUndone)
{
    {
        const OpenStep step = history.Open(Label("Rank"));
        market->Ranking[0] = 20007;
        market->Ranking[1000] = 5;
    }
    history.Undo();
    EXPECT_EQ(market->Ranking[0], 0);
    EXPECT_EQ(market->Ranking[1000], 0);
    history.Redo();
    EXPECT_EQ(market->Ranking[0], 20007);
}

TEST_F(HistoryOfAMarketTest, WhatIsEmptiedOutsideComesBackWithTheStepBefore)
{
    Offer(3, 500);
    Pay(70);
    EmptyMarket(*market);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(Salary(3), 500);
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(HistoryTest, WithoutAMarketNothingIsWatched)
{
    history.Watch(3);
    const auto market = MakeMarket();
    market->Offers[3].Salary = 9;
    market->Ranking[0] = 4;
    history.Join(*market);
    {
        const OpenStep step = history.Open(Label("Rank"));
        history.Watch(3);
        market->Offers[3].Salary = 10;
        market->Ranking[0] = 5;
    }
    history.Undo();
    EXPECT_EQ(market->Offers[3].Salary, 9);
    EXPECT_EQ(market->Ranking[0], 4);
}

// ---- Who is told -------------------------------------------------------------------------------------------------------------

TEST_F(HistoryTest, EveryChangeIsToldInItsOrder)
{
    Rename("Dome");
    Pay(70);
    Pay(60, 1);
    Rename("Barn");
    Pay(50, 1);
    history.Undo();
    history.Redo();
    {
        const OpenStep step = history.Open(Label("Nothing"));
    }
    Pay(40, 0, 6);
    history.Begin();
    std::vector<std::string> kinds;
    for (const std::string& heard : notes.Heard)
        kinds.push_back(heard.substr(0, heard.find(' ')) + heard.substr(heard.rfind(' ')));
    EXPECT_THAT(kinds, ElementsAre("folded beginning", "closed 70", "closed 60", "folded 60", "merged 50", "undone 50",
                                   "redone 50", "other team", "closed 40", "other league"));
}

TEST_F(HistoryTest, AStepThatIsGoneIsToldAsSuch)
{
    Pay(70, 1);
    Pay(100, 1);
    Pay(80);
    OwnTeam.Cash = 100;
    history.Fold();
    ASSERT_EQ(notes.Heard.size(), 4U);
    EXPECT_THAT(notes.Heard[1], ::testing::EndsWith("into Pay 100, which is gone"));
    EXPECT_THAT(notes.Heard[3], ::testing::EndsWith("into Pay 80, which is gone"));
    EXPECT_EQ(history.Undo(), Turned::Nothing);
}

TEST_F(HistoryTest, NobodyIsToldWhatNobodyAskedFor)
{
    history.TellTo(nullptr);
    Pay(70);
    history.Undo();
    history.Redo();
    Rename("Dome");
    history.Fold();
    history.Begin();
    EXPECT_THAT(notes.Heard, IsEmpty());
}

// ---- Steps of another day ------------------------------------------------------------------------------------------------

class ReplayTest : public HistoryTest {
protected:
    // A step that leaves so much cash, from another history of the same league.
    Step PaidBefore(int cash)
    {
        const int before = static_cast<int>(OwnTeam.Cash);
        Pay(cash);
        Step step = *history.ToUndo();
        OwnTeam.Cash = before;
        history.TellTo(nullptr);
        history.Begin();
        history.TellTo(&notes);
        notes.Heard.clear();
        return step;
    }
};

TEST_F(ReplayTest, PutsItsBytesAndStandsLast)
{
    const Step step = PaidBefore(70);
    Rename("Dome"); // outside
    EXPECT_EQ(history.Replay(step), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 70);
    EXPECT_EQ(history.UndoWords(Here), "Undo: Pay 70");
    EXPECT_EQ(notes.Heard.size(), 2U);
    EXPECT_EQ(notes.Heard.back(), "closed Pay 70");
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(Arena(), "Dome") << "that belongs to the beginning";
    EXPECT_EQ(history.Redo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 70);
}

TEST_F(ReplayTest, BytesThatAreOthersAreNotReplaced)
{
    const Step step = PaidBefore(70);
    OwnTeam.Cash = 101;
    EXPECT_EQ(history.Replay(step), Turned::Changed);
    EXPECT_EQ(OwnTeam.Cash, 101);
    EXPECT_EQ(history.ToUndo(), nullptr);
}

TEST_F(ReplayTest, IsNotDoneWithinAStepNorWithoutAChange)
{
    const Step step = PaidBefore(70);
    EXPECT_EQ(history.Replay({.Label = Label("Nothing"), .Change = {}}), Turned::Nothing);
    const OpenStep open = history.Open(Label("Open"));
    EXPECT_EQ(history.Replay(step), Turned::StepIsOpen);
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(ReplayTest, NoDragGoesOnWithIt)
{
    Step step = PaidBefore(70);
    step.Label.Drag = 4;
    EXPECT_EQ(history.Replay(step), Turned::Done);
    Pay(60, 4);
    EXPECT_EQ(history.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 70);
}

TEST_F(ReplayTest, WithoutRoomItsBytesArePutAllTheSame)
{
    const Step step = PaidBefore(70);
    History small(OpenLeague, 100);
    EXPECT_EQ(small.Replay(step), Turned::NoRoom);
    EXPECT_EQ(OwnTeam.Cash, 70);
    EXPECT_EQ(small.ToUndo(), nullptr);
}

TEST_F(HistoryTest, WhatEndsIsPartOfTheBeginning)
{
    Pay(70);
    Pay(40);
    history.Undo();
    HistoryNotes told;
    history.TellTo(&told);
    history.End();
    EXPECT_EQ(history.Undo(), Turned::Nothing);
    EXPECT_EQ(history.Redo(), Turned::Nothing);
    EXPECT_THAT(told.Heard, ::testing::ElementsAre("other team"));
    history.End();
    EXPECT_EQ(told.Heard.size(), 1U) << "nothing is left to end";
    Pay(30);
    history.Undo();
    EXPECT_EQ(OwnTeam.Cash, 70);
}

} // namespace
} // namespace dravik
