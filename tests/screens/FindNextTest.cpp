#include "OnDraftScreen.h"
#include "OnOfferScreen.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Question TheQuestion{"Complete or Part of the Player Name?", "Player Search"};
const Box NotFound{64, "Player not found!"};

class OfferFindNext : public OnOfferScreen {
protected:
    OfferFindNext()
    {
        int index = 0;
        for (const char* name : {"Ward Tilton", "Marek Zelinka", "Zel Ek", "R\xE9mi Gauthi\xE8re", "Piet Hazel"})
            FreeSkater(++index).Name = name;
    }

    int Row() { return Offers().lstPlayers->currentRow(); }
    void PressF3() { Press(QApplication::focusWidget(), Qt::Key_F3); }
    void SearchFor(const std::string& answer)
    {
        Machine.Type(answer);
        Click(Offers().cmdSearch);
        EXPECT_THAT(Machine.Questions(), ::testing::Contains(TheQuestion));
    }
};

TEST_F(OfferFindNext, F3GoesOnBehindTheCurrentEntryAndRoundToIt)
{
    Open();
    SearchFor("ZEL");
    ASSERT_EQ(Row(), 1);
    for (const int row : {2, 4, 1, 2}) {
        PressF3();
        EXPECT_EQ(Row(), row);
        EXPECT_EQ(Offers().OfferIndex(), row + 1) << "he is shown";
        EXPECT_TRUE(Offers().lstPlayers->IsChosen(row));
        EXPECT_TRUE(Offers().lstPlayers->hasFocus());
    }
    EXPECT_EQ(Machine.Questions().size(), 1U);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferFindNext, ItGoesOnFromWhomTheUserChoseMeanwhile)
{
    Open();
    SearchFor("zel");
    ClickEntry(3);
    PressF3();
    EXPECT_EQ(Row(), 4);
}

TEST_F(OfferFindNext, TheCommandDoesTheSame)
{
    Open();
    SearchFor("zel");
    Click(Offers().cmdFindNext);
    EXPECT_EQ(Row(), 2);
    EXPECT_TRUE(Offers().lstPlayers->hasFocus());
    EXPECT_EQ(Offers().cmdFindNext->text(), "Find Next");
    EXPECT_TRUE(Offers().cmdFindNext->toolTip().contains("(F3)"));
}

TEST_F(OfferFindNext, WithoutAnEarlierSearchItAsks)
{
    Open();
    ClickEntry(2);
    Machine.Type("ward");
    PressF3();
    EXPECT_THAT(Machine.Questions(), ElementsAre(TheQuestion));
    EXPECT_EQ(Row(), 0) << "the search begins at the top";
    SearchFor("hazel");
    PressF3();
    EXPECT_EQ(Row(), 4) << "he is the only one, and comes round to himself";
}

TEST_F(OfferFindNext, ACancelledSearchIsNoneToGoOnWith)
{
    Open();
    PressF3();
    EXPECT_EQ(Row(), 0);
    PressF3();
    EXPECT_EQ(Machine.Questions().size(), 2U);
    SearchFor("zel");
    Click(Offers().cmdSearch); // cancelled
    EXPECT_EQ(Row(), 0);
    PressF3();
    EXPECT_EQ(Row(), 1) << "the one before is gone on with";
    EXPECT_EQ(Machine.Questions().size(), 4U);
}

TEST_F(OfferFindNext, WhatNobodyHasIsToldAsTheSearchTellsIt)
{
    Open();
    ClickEntry(2);
    SearchFor("Gretel");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    PressF3();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    EXPECT_EQ(Row(), 2);
}

TEST_F(OfferFindNext, AccentsCountAsTheyDoInTheSearch)
{
    Open();
    SearchFor("remi");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    PressF3();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    SearchFor("R\xC9MI");
    EXPECT_EQ(Row(), 3);
    ClickEntry(0);
    PressF3();
    EXPECT_EQ(Row(), 3);
}

TEST_F(OfferFindNext, AnOfferThatIsBeingTypedIsStoredForWhomItWasTyped)
{
    Open();
    SearchFor("zel");
    TypeInto(Offers().txtDuration, "3");
    PressF3();
    EXPECT_EQ(Row(), 2);
    EXPECT_EQ(OfferOf(2).Duration, 3);
    EXPECT_EQ(OfferOf(3).Duration, 0);
    EXPECT_TRUE(Offers().lstPlayers->hasFocus());
}

TEST_F(OfferFindNext, ATextThatIsRefusedKeepsItsPersonShown)
{
    Open();
    SearchFor("zel");
    TypeInto(Offers().txtDuration, "x");
    PressF3();
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_EQ(Row(), 1);
    EXPECT_TRUE(Offers().txtDuration->hasFocus());
}

TEST_F(OfferFindNext, TheTabKeyGoesItsWayAsWithoutIt)
{
    Open();
    Offers().cmdSearch->setFocus();
    Press(Offers().cmdSearch, Qt::Key_Tab);
    EXPECT_TRUE(Offers().cmdSaveToFile->hasFocus());
}

TEST_F(OfferFindNext, AnotherScreenBeginsWithoutASearch)
{
    Open();
    SearchFor("zel");
    Offers().close();
    Settle();
    Open();
    Machine.Type("hazel");
    PressF3();
    EXPECT_EQ(Machine.Questions().size(), 2U);
    EXPECT_EQ(Row(), 4);
}

TEST_F(OfferFindNext, AFailureIsToldByItsName)
{
    Open();
    SearchFor("Gretel");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    FailingBoxes silent(1);
    UseMachine(silent);
    Click(Offers().cmdFindNext);
    UseMachine(Machine);
    EXPECT_THAT(silent.Boxes(), ElementsAre(Box{16, "6 - Overflow in cmdFindNext!"}));
}

using DraftFindNext = OnDraftScreen;

TEST_F(DraftFindNext, WhatNobodyHasIsToldAndLeavesWhoIsChosen)
{
    frmDraft& draft = Draft();
    draft.lstPlayers->setCurrentRow(1);
    Machine.Type("Gretel");
    Click(draft.cmdSearch);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    EXPECT_EQ(draft.lstPlayers->currentRow(), 1);
    for (const bool byKey : {true, false}) {
        if (byKey)
            Press(draft.cmdSearch, Qt::Key_F3);
        else
            Click(draft.cmdFindNext);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
        EXPECT_EQ(draft.lstPlayers->currentRow(), 1);
        EXPECT_TRUE(draft.lstPlayers->hasFocus());
    }
    FailingBoxes silent(1);
    UseMachine(silent);
    Click(draft.cmdFindNext);
    UseMachine(Machine);
    EXPECT_THAT(silent.Boxes(), ElementsAre(Box{16, "6 - Overflow in cmdFindNext!"}));
}

TEST_F(DraftFindNext, F3AndTheCommandGoOnAmongThoseWhoCanBeDrafted)
{
    Players[8].Name = "Karl Tilton";
    frmDraft& draft = Draft();
    Machine.Type("TIL");
    Click(draft.cmdSearch);
    EXPECT_THAT(Machine.Questions(), ElementsAre(TheQuestion));
    ASSERT_EQ(draft.lstPlayers->Chosen()->text(), "Ward Tilton (LW)");
    Press(draft.cmdSearch, Qt::Key_F3);
    EXPECT_EQ(draft.lstPlayers->Chosen()->text(), "Karl Tilton (D)");
    EXPECT_TRUE(draft.lstPlayers->hasFocus());
    Press(draft.lstPlayers, Qt::Key_F3);
    EXPECT_EQ(draft.lstPlayers->Chosen()->text(), "Ward Tilton (LW)");
    Click(draft.cmdFindNext);
    EXPECT_EQ(draft.lstPlayers->Chosen()->text(), "Karl Tilton (D)");
    EXPECT_EQ(Machine.Questions().size(), 1U);
}

TEST_F(DraftFindNext, AListFilledAnewIsSearchedFromItsTop)
{
    frmDraft& draft = Draft();
    Machine.Type("vos");
    Click(draft.cmdSearch);
    EXPECT_THAT(Machine.Questions(), ElementsAre(TheQuestion));
    Click(draft.chkPosition[1]);
    ASSERT_EQ(draft.lstPlayers->currentRow(), -1);
    Press(draft.chkPosition[1], Qt::Key_F3);
    EXPECT_EQ(draft.lstPlayers->Chosen()->text(), "Piet Vos (G)");
}

TEST_F(DraftFindNext, WithoutAnEarlierSearchItAsksAndTellsWhatNobodyHas)
{
    frmDraft& draft = Draft();
    Machine.Type("Nobody");
    Press(draft.lstPlayers, Qt::Key_F3);
    EXPECT_THAT(Machine.Questions(), ElementsAre(TheQuestion));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    Press(draft.lstPlayers, Qt::Key_F3);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NotFound));
    EXPECT_EQ(Machine.Questions().size(), 1U);
    EXPECT_EQ(draft.lstPlayers->Chosen(), nullptr);
}

} // namespace
} // namespace dravik
