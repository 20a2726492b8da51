#include "files/DraftFile.h"
#include "OnDraftScreen.h"
#include "session/Session.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

const Box NobodyChosen{48, "No Player Select!"};
const Box AtTheEdge{48, "This player can be move!"};

class DraftRankingTest : public OnDraftScreen {
protected:
    std::vector<bool> Enabled()
    {
        const frmDraft& draft = Draft();
        return {draft.cmdSaveToFile->isEnabled(), draft.cmdUp->isEnabled(), draft.cmdDown->isEnabled(),
                draft.cmdRemove->isEnabled()};
    }
};

// Somebody is chosen on either list; the one that had the focus last is the one at hand.
TEST_F(DraftRankingTest, ARemovalThatClosesItsCommandGivesTheFocusBackToTheRanking)
{
    Choose({0});
    ClickEntry(Draft().lstPlayers, 0);
    ClickEntry(Draft().lstDraftList, 0);
    ASSERT_TRUE(Draft().lstPlayers->currentItem()->isSelected());
    Draft().cmdRemove->setFocus();
    Press(Draft().cmdRemove, Qt::Key_Space);
    EXPECT_EQ(Draft().lstDraftList->count(), 0);
    EXPECT_FALSE(Draft().cmdRemove->isEnabled());
    EXPECT_TRUE(Draft().lstDraftList->hasFocus());
}

TEST_F(DraftRankingTest, ChoosingRanksBehindTheOthers)
{
    Choose({2, 0});
    EXPECT_THAT(Ranking(), ElementsAre(10003, 7));
    EXPECT_THAT(Of(Draft().lstDraftList), ElementsAre(Pair("Piet Vos (G)", 10003), Pair("Ward Tilton (LW)", 7)));
    EXPECT_EQ(Of(Draft().lblTotal), "2 Players List");
    EXPECT_THAT(Enabled(), ElementsAre(true, true, true, true));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), nullptr);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(DraftRankingTest, ProspectsAreRankedByTheirName)
{
    MakeEntryDraft();
    Choose({1, 0});
    EXPECT_THAT(Ranking(), ElementsAre(20300, 20001));
    EXPECT_THAT(Of(Draft().lstDraftList), ElementsAre(Pair("Marek Zelinka", 20300), Pair("Tor Lindqvist", 20001)));
}

TEST_F(DraftRankingTest, ChoosingWithoutAPlayerIsToldInAWarning)
{
    Click(Draft().cmdChoose);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(NobodyChosen));
    EXPECT_THAT(Ranking(), IsEmpty());
}

TEST_F(DraftRankingTest, ChoosingTheSamePlayerTwiceLeavesOneEntryAndNoMessage)
{
    Choose({1, 0, 1});
    EXPECT_THAT(Ranking(), ElementsAre(8, 7));
    EXPECT_EQ(Draft().lstDraftList->count(), 2);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, ASecondChoiceShowsTheRankingAnewWithNobodyChosenInIt)
{
    Choose({0, 1});
    ClickEntry(Draft().lstDraftList, 1);
    Draft().lblTotal->clear();
    Choose({0});
    EXPECT_EQ(Of(Draft().lblTotal), "2 Players List");
    EXPECT_EQ(Draft().lstDraftList->Chosen(), nullptr);
}

TEST_F(DraftRankingTest, AChoiceIntoAFullListShowsTheRankingAnewWithNobodyChosenInIt)
{
    FillRanking();
    Draft().ShowPlayer();
    Settle();
    ClickEntry(Draft().lstDraftList, 0);
    Draft().lblTotal->clear();
    Choose({1001});
    EXPECT_EQ(Of(Draft().lblTotal), "1001 Players List");
    EXPECT_EQ(Draft().lstDraftList->Chosen(), nullptr);
}

TEST_F(DraftRankingTest, NoCommandOfTheRankingTouchesModified)
{
    for (const bool before : {false, true}) {
        Modified = before;
        Choose({0, 1, 2});
        EXPECT_EQ(Modified, before);
        for (QPushButton* command : {Draft().cmdUp, Draft().cmdDown, Draft().cmdRemove}) {
            ClickEntry(Draft().lstDraftList, 1);
            Click(command);
            EXPECT_EQ(Modified, before) << command->objectName().toStdString();
        }
        EXPECT_EQ(Draft().lstDraftList->count(), 2) << "each of them did something";
        OpenMarket().Ranking = {};
        Draft().PlaceOffer();
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, AnIdBelowOneIsPassedOver)
{
    for (const int number : {0, -3}) {
        Players[7].Number = number;
        Draft().ShowPlayer();
        Choose({0});
    }
    EXPECT_THAT(Ranking(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, AnIdThatDoesNotFitIsAFailure)
{
    Goalies[3].Number = 32767;
    Choose({2});
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in cmdChoose!"}));
    EXPECT_THAT(Ranking(), IsEmpty());
}

TEST_F(DraftRankingTest, AThousandAndOneFillTheListAndOneMoreChangesAndSaysNothing)
{
    FillRanking();
    frmDraft& draft = Draft();
    OpenMarket().Ranking[1000] = 0;
    draft.PlaceOffer();
    draft.ShowPlayer();
    Choose({1000});
    EXPECT_EQ(OpenMarket().Ranking[1000], 1001);
    EXPECT_EQ(Of(draft.lblTotal), "1001 Players List");
    const DraftRanking before = OpenMarket().Ranking;
    Choose({1001});
    for (long long rank = 0; rank <= 1000; ++rank)
        EXPECT_EQ(OpenMarket().Ranking[rank], before[rank]);
    EXPECT_EQ(draft.lstDraftList->count(), 1001);
    EXPECT_EQ(Of(draft.lblTotal), "1001 Players List");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, RemovingMovesEverybodyBehindUp)
{
    Choose({0, 1, 2});
    ClickEntry(Draft().lstDraftList, 0);
    Click(Draft().cmdRemove);
    EXPECT_THAT(Ranking(), ElementsAre(8, 10003));
    EXPECT_EQ(Of(Draft().lblTotal), "2 Players List");
    EXPECT_EQ(Draft().lstDraftList->Chosen(), nullptr);
    Click(Draft().cmdRemove);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NobodyChosen));
    for (int left = 2; left > 0; --left) {
        ClickEntry(Draft().lstDraftList, left - 1);
        Click(Draft().cmdRemove);
    }
    EXPECT_THAT(Ranking(), IsEmpty());
    EXPECT_EQ(Of(Draft().lblTotal), "0 Players List");
    EXPECT_THAT(Enabled(), ElementsAre(false, false, false, false));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, ARemovedPlayerCanBeChosenAgain)
{
    Choose({0, 1});
    ClickEntry(Draft().lstDraftList, 0);
    Click(Draft().cmdRemove);
    Choose({0});
    EXPECT_THAT(Ranking(), ElementsAre(8, 7));
}

TEST_F(DraftRankingTest, RemovingFromAFullListLeavesTheLastRankAsItIs)
{
    FillRanking();
    frmDraft& draft = Draft();
    ClickEntry(draft.lstDraftList, 998);
    Click(draft.cmdRemove);
    EXPECT_EQ(OpenMarket().Ranking[997], 998);
    EXPECT_EQ(OpenMarket().Ranking[998], 1000);
    EXPECT_EQ(OpenMarket().Ranking[999], 1001);
    EXPECT_EQ(OpenMarket().Ranking[1000], 1001);
    EXPECT_EQ(draft.lstDraftList->count(), 1001);
}

TEST_F(DraftRankingTest, TheLastEntryOfAFullListCannotBeRemoved)
{
    FillRanking();
    frmDraft& draft = Draft();
    ClickEntry(draft.lstDraftList, 1000);
    Click(draft.cmdRemove);
    EXPECT_EQ(OpenMarket().Ranking[1000], 1001);
    EXPECT_EQ(draft.lstDraftList->count(), 1001);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, UpSwapsWithTheOneAboveAndKeepsHimChosen)
{
    Choose({0, 1, 2});
    ClickEntry(Draft().lstDraftList, 2);
    Click(Draft().cmdUp);
    EXPECT_THAT(Ranking(), ElementsAre(7, 10003, 8));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(1));
    EXPECT_EQ(Draft().lstDraftList->currentRow(), 1);
    EXPECT_TRUE(Draft().cmdUp->hasFocus());
    Press(Draft().cmdUp, Qt::Key_Space);
    EXPECT_THAT(Ranking(), ElementsAre(10003, 7, 8));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, DownSwapsWithTheOneBelowAndKeepsHimChosen)
{
    Choose({0, 1, 2});
    ClickEntry(Draft().lstDraftList, 0);
    Click(Draft().cmdDown);
    EXPECT_THAT(Ranking(), ElementsAre(8, 7, 10003));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(1));
    EXPECT_TRUE(Draft().cmdDown->hasFocus());
    Press(Draft().cmdDown, Qt::Key_Space);
    EXPECT_THAT(Ranking(), ElementsAre(8, 10003, 7));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, UpOnTheFirstAndDownOnTheLastAreToldAndChangeNothing)
{
    Choose({0, 1});
    ClickEntry(Draft().lstDraftList, 0);
    Click(Draft().cmdUp);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(AtTheEdge));
    ClickEntry(Draft().lstDraftList, 1);
    Click(Draft().cmdDown);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(AtTheEdge));
    EXPECT_THAT(Ranking(), ElementsAre(7, 8));
}

TEST_F(DraftRankingTest, TheOnlyEntryIsFirstAndLast)
{
    Choose({0});
    for (QPushButton* command : {Draft().cmdUp, Draft().cmdDown}) {
        ClickEntry(Draft().lstDraftList, 0);
        Click(command);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(AtTheEdge));
    }
}

TEST_F(DraftRankingTest, UpAndDownWithoutAChoiceAreToldOnce)
{
    Choose({0, 1});
    for (QPushButton* command : {Draft().cmdUp, Draft().cmdDown, Draft().cmdRemove}) {
        Click(command);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NobodyChosen));
    }
    EXPECT_THAT(Ranking(), ElementsAre(7, 8));
}

TEST_F(DraftRankingTest, TheLastRankOfAFullListMovesUpAndNoFurtherDown)
{
    FillRanking();
    frmDraft& draft = Draft();
    ClickEntry(draft.lstDraftList, 1000);
    Click(draft.cmdDown);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(AtTheEdge));
    Click(draft.cmdUp);
    EXPECT_EQ(OpenMarket().Ranking[999], 1001);
    EXPECT_EQ(OpenMarket().Ranking[1000], 1000);
    Click(draft.cmdDown);
    EXPECT_EQ(OpenMarket().Ranking[1000], 1001);
}

TEST_F(DraftRankingTest, NobodySwapsWithAFreeSlot)
{
    Choose({0, 1});
    frmDraft& draft = Draft();
    OpenMarket().Ranking[0] = 0; // as no command leaves it
    ClickEntry(draft.lstDraftList, 1);
    Click(draft.cmdUp);
    EXPECT_EQ(OpenMarket().Ranking[0], 0);
    EXPECT_EQ(OpenMarket().Ranking[1], 8);
    OpenMarket().Ranking[0] = 7;
    OpenMarket().Ranking[1] = 0;
    ClickEntry(draft.lstDraftList, 0);
    Click(draft.cmdDown);
    EXPECT_EQ(OpenMarket().Ranking[0], 7);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftRankingTest, FailuresOfTheCommandsAreToldByTheirNames)
{
    Choose({0, 1});
    frmDraft& draft = Draft();
    while (draft.lstDraftList->count() < 1004)
        draft.lstDraftList->Add("beyond the ranking", 1);
    for (const auto& [command, ending] :
         {std::pair(draft.cmdUp, " in cmdUp!"), std::pair(draft.cmdDown, " in cmdDown!")}) {
        draft.lstDraftList->setCurrentRow(1002);
        Click(command);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, std::string("9 - Subscript out of range") + ending}));
    }
}

TEST_F(DraftRankingTest, FailuresOfRemovingAndOpeningAreToldByTheirNames)
{
    frmDraft& draft = Draft();
    FailingBoxes removing(1);
    UseMachine(removing);
    draft.cmdRemove_Click();
    EXPECT_THAT(removing.Boxes(), ElementsAre(Box{16, "6 - Overflow in cmdRemove!"}));
    FailingBoxes opening(1);
    UseMachine(opening);
    CurrentTeam = 0;
    draft.FormLoad();
    UseMachine(Machine);
    EXPECT_THAT(opening.Boxes(), ElementsAre(Box{16, "6 - Overflow in FormLoad frmFantasyEntryDraftClient!"}));
}

TEST_F(DraftRankingTest, TheRankingStartsEmptyEachTime)
{
    Choose({0, 1});
    Click(Draft().cmdExit);
    EXPECT_EQ(TheStage.Find("Draft"), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Ranking(), IsEmpty());
    EXPECT_EQ(Draft().lstDraftList->count(), 0);
    EXPECT_FALSE(Modified);
}

// An entry of the ranking is dragged by the mouse from one row to another: to its upper or to its lower half.
class DraftDrag : public OnDraftScreen {
protected:
    DraftDrag()
    {
        for (int index = 11; index <= 15; ++index)
            PutSkater(index, 0, position::Center, status::Farm).Name = "Skater " + std::to_string(index);
        LeagueData.FantasyDraft = true;
        frmDraft& draft = Draft();
        for (int rank = 0; rank < 5; ++rank)
            OpenMarket().Ranking[rank] = 11 + rank;
        draft.PlaceOffer();
        Settle();
    }

    enum class Half { Upper, Lower };
    void Drag(int from, int to, Half half)
    {
        RankList* list = Draft().lstDraftList;
        const QRect row = list->visualItemRect(list->item(to));
        DragTo(from, {row.center().x(), half == Half::Upper ? row.top() + 2 : row.bottom() - 2});
    }
    void DragTo(int from, const QPoint& point)
    {
        PressAndMove(from, point);
        QTest::mouseRelease(Viewport(), Qt::LeftButton, {}, point);
        Settle();
    }
    void PressAndMove(int from, const QPoint& point)
    {
        QTest::mousePress(Viewport(), Qt::LeftButton, {}, Spot(Draft().lstDraftList, from));
        QMouseEvent move(QEvent::MouseMove, point, Viewport()->mapToGlobal(point), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(Viewport(), &move);
        Settle();
    }
    QWidget* Viewport() { return Draft().lstDraftList->viewport(); }
};

TEST_F(DraftDrag, AnEntryGoesBetweenTheTwoWhereItIsDropped)
{
    Drag(0, 2, Half::Lower);
    EXPECT_THAT(Ranking(), ElementsAre(12, 13, 11, 14, 15));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(2));
    EXPECT_EQ(Draft().lstDraftList->item(2)->text(), "Skater 11 (C)");
    Drag(4, 1, Half::Upper);
    EXPECT_THAT(Ranking(), ElementsAre(12, 15, 13, 11, 14));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(1));
    EXPECT_EQ(Draft().lstDraftList->count(), 5);
    EXPECT_EQ(Of(Draft().lblTotal), "5 Players List");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftDrag, LeavesModifiedAlone)
{
    for (const bool before : {false, true}) {
        Modified = before;
        Drag(0, 2, Half::Lower);
        EXPECT_EQ(Modified, before);
    }
    EXPECT_THAT(Ranking(), ElementsAre(13, 11, 12, 14, 15));
}

TEST_F(DraftDrag, ToTheTopAndToTheEnd)
{
    Drag(3, 0, Half::Upper);
    EXPECT_THAT(Ranking(), ElementsAre(14, 11, 12, 13, 15));
    RankList* list = Draft().lstDraftList;
    DragTo(1, {20, list->visualItemRect(list->item(4)).bottom() + 40});
    EXPECT_THAT(Ranking(), ElementsAre(14, 12, 13, 15, 11));
}

TEST_F(DraftDrag, DroppedWhereItStandsChangesNothing)
{
    Drag(2, 1, Half::Lower);
    EXPECT_THAT(Ranking(), ElementsAre(11, 12, 13, 14, 15));
    Drag(2, 3, Half::Upper);
    EXPECT_THAT(Ranking(), ElementsAre(11, 12, 13, 14, 15));
    EXPECT_EQ(Draft().lstDraftList->count(), 5);
}

TEST_F(DraftDrag, DroppedOutsideTheListChangesNothing)
{
    for (const QPoint& outside : {QPoint(20, -5), QPoint(-5, 20), QPoint(20, 5000), QPoint(5000, 20)})
        DragTo(2, outside);
    EXPECT_THAT(Ranking(), ElementsAre(11, 12, 13, 14, 15));
    EXPECT_EQ(Draft().lstDraftList->count(), 5);
}

TEST_F(DraftDrag, EscapeEndsIt)
{
    const QPoint top(20, 2);
    PressAndMove(3, top);
    Press(Draft().lstDraftList, Qt::Key_Escape);
    QTest::mouseMove(Viewport(), Spot(Draft().lstDraftList, 1));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(3)) << "not whatever the mouse passes";
    QTest::mouseRelease(Viewport(), Qt::LeftButton, {}, top);
    Settle();
    EXPECT_THAT(Ranking(), ElementsAre(11, 12, 13, 14, 15));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(3));
    EXPECT_TRUE(Draft().isVisible());
}

TEST_F(DraftDrag, AShakyClickOnlyChooses)
{
    const QPoint start = Spot(Draft().lstDraftList, 3);
    PressAndMove(3, start + QPoint(0, 2));
    QTest::mouseRelease(Viewport(), Qt::LeftButton, {}, start + QPoint(0, 2));
    EXPECT_THAT(Ranking(), ElementsAre(11, 12, 13, 14, 15));
    EXPECT_EQ(Draft().lstDraftList->currentRow(), 3);
}

TEST_F(DraftDrag, TheDraggedEntryStaysChosenWhateverTheMousePasses)
{
    PressAndMove(3, Spot(Draft().lstDraftList, 0));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(3));
    QTest::mouseRelease(Viewport(), Qt::LeftButton, {}, QPoint(-5, -5));
    EXPECT_EQ(Draft().lstDraftList->Chosen(), Draft().lstDraftList->item(3));
}

TEST_F(DraftDrag, ALineShowsWhereTheEntryWouldGo)
{
    const RankList* list = Draft().lstDraftList;
    const auto colourAbove = [&](int row) {
        const QImage image = Viewport()->grab().toImage();
        return image.pixelColor(image.width() / 2, list->visualItemRect(list->item(row)).top());
    };
    const QColor line = list->palette().color(QPalette::Highlight);
    EXPECT_NE(colourAbove(1), line);
    PressAndMove(4, list->visualItemRect(list->item(1)).topLeft() + QPoint(20, 2));
    EXPECT_EQ(colourAbove(1), line);
    QTest::mouseRelease(Viewport(), Qt::LeftButton, {}, QPoint(-5, -5));
    Settle();
    EXPECT_NE(colourAbove(1), line);
}

TEST_F(DraftDrag, OnlyTheLeftButtonDrags)
{
    QTest::mousePress(Viewport(), Qt::RightButton, {}, Spot(Draft().lstDraftList, 3));
    const QPoint top(20, 2);
    QMouseEvent move(QEvent::MouseMove, top, Viewport()->mapToGlobal(top), Qt::NoButton, Qt::RightButton, {});
    QApplication::sendEvent(Viewport(), &move);
    QTest::mouseRelease(Viewport(), Qt::RightButton, {}, top);
    EXPECT_THAT(Ranking(), ElementsAre(11, 12, 13, 14, 15));
}

TEST_F(DraftDrag, EveryDragHasTheEffectOfRepeatedUpOrDown)
{
    for (int from = 0; from < 5; ++from)
        for (int to = 0; to < 5; ++to) {
            const auto reset = [this, from] {
                for (int rank = 0; rank < 5; ++rank)
                    OpenMarket().Ranking[rank] = 11 + rank;
                Draft().PlaceOffer();
                Draft().lstDraftList->setCurrentRow(from);
            };
            reset();
            for (int step = from; step != to; step += to < from ? -1 : 1)
                Click(to < from ? Draft().cmdUp : Draft().cmdDown);
            const auto byCommands = Ranking();
            reset();
            Drag(from, to, to < from ? Half::Upper : Half::Lower);
            EXPECT_EQ(Ranking(), byCommands) << from << " to " << to;
            EXPECT_EQ(Draft().lstDraftList->currentRow(), to) << from << " to " << to;
        }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
