// Offers and rankings that come back: what was there when a screen closed, and what a file holds.

#include "files/OffersFile.h"
#include "OnDraftScreen.h"
#include "OnHistory.h"
#include "OnOfferScreen.h"
#include "session/OpenHistory.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BringBackOffers : public OnOfferScreen {
protected:
    BringBackOffers()
    {
        FreeSkater(1).Name = "Ward Tilton";
        FreeSkater(2).Name = "Ole Brandt";
    }

    // Makes an offer to each of the two, and closes the screen.
    void OfferAndLeave()
    {
        Open();
        for (const int row : {0, 1}) {
            ClickEntry(row);
            Enter(Offers().txtOffer, QString::number(800000 + row));
            Enter(Offers().txtDuration, "3");
        }
        Click(Offers().cmdExit);
    }
    [[nodiscard]] bool CanBringBack() { return Offers().cmdBringBack->isVisible(); }
};

TEST_F(BringBackOffers, TheScreenStartsEmptyAndBringsThemBackInOneStep)
{
    OfferAndLeave();
    Open();
    EXPECT_EQ(OfferOf(1).Salary, 0);
    ASSERT_TRUE(CanBringBack());
    EXPECT_EQ(Offers().cmdBringBack->text().toStdString(), "Bring Bac&k 2 Offers");
    Click(Offers().cmdBringBack);
    EXPECT_EQ(OfferOf(1).Salary, 800000);
    EXPECT_EQ(OfferOf(2).Salary, 800001);
    EXPECT_EQ(OfferOf(2).Id, 2);
    EXPECT_THAT(Boxes(), ElementsAre("800000", "3", "0", ""));
    EXPECT_EQ(Of(Offers().lblOffersCost), "2 in all: $1,600,001 a season, $0 in bonus");
    EXPECT_FALSE(CanBringBack());
    EXPECT_EQ(UndoWords(Offers()), "Undo: Bring back offers");
    Undo(Offers());
    EXPECT_EQ(OfferOf(1).Salary, 0);
    EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", ""));
    EXPECT_TRUE(CanBringBack());
    Redo(Offers());
    EXPECT_EQ(OfferOf(2).Duration, 3);
}

TEST_F(BringBackOffers, AVisitWithoutAnyLeavesThoseOfTheOneBefore)
{
    OfferAndLeave();
    Open();
    Click(Offers().cmdExit);
    Open();
    ASSERT_TRUE(CanBringBack());
    EXPECT_EQ(Offers().cmdBringBack->text().toStdString(), "Bring Bac&k 2 Offers");
}

TEST_F(BringBackOffers, OffersOfAnotherTeamAreNotKeptAsItsOwn)
{
    Open();
    ClickEntry(0);
    Enter(Offers().txtOffer, "800000");
    Enter(Offers().txtDuration, "3");
    KeptWork().OffersBy = 6;
    Click(Offers().cmdExit);
    EXPECT_THAT(KeptWork().Offers, IsEmpty());
}

TEST_F(BringBackOffers, ItsKeyBringsThemBackToo)
{
    OfferAndLeave();
    Open();
    PressScreenKey(Offers(), Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return OfferOf(1).Salary == 800000; }));
}

TEST_F(BringBackOffers, TheTabKeyGoesItsWayAsWithoutThem)
{
    OfferAndLeave();
    Open();
    for (const QPushButton* command : {Offers().cmdLoad, Offers().cmdBringBack})
        EXPECT_EQ(command->focusPolicy(), Qt::NoFocus);
    Offers().cmdSearch->setFocus();
    Press(Offers().cmdSearch, Qt::Key_Tab);
    EXPECT_TRUE(Offers().cmdSaveToFile->hasFocus());
}

TEST_F(BringBackOffers, NobodySeesThoseOfAnotherTeam)
{
    OfferAndLeave();
    Open(6);
    EXPECT_FALSE(CanBringBack());
    EXPECT_EQ(UndoWords(Offers()), "") << "the offers of another team are no step of this one";
    EXPECT_EQ(OfferOf(1).Salary, 0);
    Click(Offers().cmdExit);
    Open(5);
    EXPECT_TRUE(CanBringBack());
}

TEST_F(BringBackOffers, NoStepOfAnotherTeamBringsThemBackForIt)
{
    OfferAndLeave();
    {
        const OpenStep step = OpenHistory().Open({.Words = "Pay", .Where = "Team", .Team = 6, .Drag = 0});
        Teams[6].Cash = 5;
    }
    Open(6);
    EXPECT_EQ(UndoWords(Offers()), "");
    Undo(Offers());
    EXPECT_EQ(OfferOf(1).Salary, 0);
    EXPECT_EQ(Teams[6].Cash, 5);
    Enter(Offers().txtOffer, "900000");
    Offers().lstPlayers->setFocus();
    Undo(Offers());
    EXPECT_EQ(OfferOf(1).Salary, 0);
    EXPECT_EQ(UndoWords(Offers()), "");
    Click(Offers().cmdExit);
    Open(5);
    EXPECT_TRUE(CanBringBack());
}

TEST_F(BringBackOffers, TheyStayKeptWhenNothingIsDone)
{
    OfferAndLeave();
    Open();
    Click(Offers().cmdExit);
    Open();
    EXPECT_TRUE(CanBringBack());
}

TEST_F(BringBackOffers, WhoeverWasSignedMeanwhileIsToldOf)
{
    OfferAndLeave();
    Players[1].Contract = 2;
    Open();
    Click(Offers().cmdBringBack);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Ward Tilton can no longer be made an offer."}));
    EXPECT_EQ(OfferOf(1).Salary, 0);
    EXPECT_EQ(OfferOf(2).Salary, 800001);
}

TEST_F(BringBackOffers, AFileIsLoadedInOneStep)
{
    Open();
    Offer(1);
    Offer(2);
    const std::string path = Machine.InFolder("Gulls.dvf");
    ASSERT_EQ(WriteOffersFile(OpenLeague, OpenFiles(), Machine, 5, path, OpenMarket().Offers).Outcome,
              OffersFileWrite::Saved);
    Click(Offers().cmdExit);
    Open();
    Machine.Choose(path);
    Click(Offers().cmdLoad);
    EXPECT_THAT(
        Machine.TakeBoxes(),
        ElementsAre(Box{box::Information, "Offers file for Harbour City Gulls successfully load from\r\n" + path}));
    EXPECT_EQ(OfferOf(2).Salary, 750000);
    EXPECT_EQ(UndoWords(Offers()), "Undo: Load offers");
    Undo(Offers());
    EXPECT_EQ(OfferOf(2).Salary, 0);
}

TEST_F(BringBackOffers, AFailureToTellIsToldByTheCommandsName)
{
    Open();
    FailingBoxes silent(1);
    silent.Choose(Machine.InFolder("None.dvf"));
    UseMachine(silent);
    Click(Offers().cmdLoad);
    UseMachine(Machine);
    EXPECT_THAT(silent.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in cmdLoad!"}));
}

TEST_F(BringBackOffers, AFileThatIsNoneIsRefusedAndChangesNothing)
{
    Open();
    Enter(Offers().txtOffer, "900000");
    const std::string path = Machine.InFolder("None.dvf");
    Machine.Choose(path);
    Click(Offers().cmdLoad);
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Critical, "File for Harbour City Gulls unsuccessfully load from\r\n" + path}));
    EXPECT_EQ(OfferOf(1).Salary, 900000);
}

TEST_F(BringBackOffers, ADialogThatIsCancelledDoesNothing)
{
    Open();
    Enter(Offers().txtOffer, "900000");
    Click(Offers().cmdLoad);
    EXPECT_THAT(Machine.Dialogs(),
                ElementsAre(std::pair<std::string, std::string>(
                    Machine.ProgramFolder(), "DRVK Offers File (*.dvf) |*.dvf|All Files (*.*) | *.*")));
    EXPECT_EQ(OfferOf(1).Salary, 900000);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

class BringBackRanking : public OnDraftScreen {
protected:
    [[nodiscard]] bool CanBringBack() { return Draft().cmdBringBack->isVisible(); }
};

TEST_F(BringBackRanking, TheScreenStartsEmptyAndBringsItBackInOneStep)
{
    Choose({0, 1, 2});
    const auto ranked = Ranking();
    Click(Draft().cmdExit);
    EXPECT_THAT(Of(Draft().lstDraftList), IsEmpty());
    ASSERT_TRUE(CanBringBack());
    EXPECT_EQ(Draft().cmdBringBack->text().toStdString(), "Bring &Back List of 3");
    PressScreenKey(Draft(), Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Ranking() == ranked; }));
    EXPECT_EQ(Of(Draft().lstDraftList).size(), 3U);
    EXPECT_FALSE(CanBringBack());
    EXPECT_EQ(UndoWords(Draft()), "Undo: Bring back the draft list");
    Undo(Draft());
    EXPECT_THAT(Ranking(), IsEmpty());
    EXPECT_TRUE(CanBringBack());
}

TEST_F(BringBackRanking, NoStepOfAnotherTeamBringsItBackForIt)
{
    TeamMaker other(6);
    Choose({0, 1});
    Draft().close();
    Settle();
    {
        const OpenStep step = OpenHistory().Open({.Words = "Pay", .Where = "Team", .Team = 6, .Drag = 0});
        Teams[6].Cash = 5;
    }
    CurrentTeam = 6;
    TheStage.Open("Draft", Main());
    Settle();
    EXPECT_EQ(UndoWords(Draft()), "");
    Undo(Draft());
    EXPECT_THAT(Ranking(), IsEmpty());
    EXPECT_FALSE(CanBringBack());
}

TEST_F(BringBackRanking, AFileIsLoadedInOneStep)
{
    Choose({2, 0});
    const auto ranked = Ranking();
    const std::string path = Machine.InFolder("List.dvd");
    ASSERT_TRUE(WriteDraftFile(OpenLeague, OpenFiles(), OwnNumber(), OpenMarket().Ranking, path));
    Click(Draft().cmdExit);
    Machine.Choose(path);
    Click(Draft().cmdLoad);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_EQ(Ranking(), ranked);
    EXPECT_EQ(UndoWords(Draft()), "Undo: Load a draft list");
    Undo(Draft());
    EXPECT_THAT(Of(Draft().lstDraftList), IsEmpty());
}

} // namespace
} // namespace dravik
