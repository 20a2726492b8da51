#include "Dragging.h"
#include "OnHistory.h"
#include "OnRosterScreen.h"

#include <cstring>
#include <functional>
#include <memory>
#include <QRubberBand>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Entry = std::pair<std::string, int>;

// People dragged between the three lists, beside the commands that do the same.
class RosterDrag : public OnRosterScreen {
protected:
    // The names of a list's entries.
    std::vector<std::string> Names(int index)
    {
        std::vector<std::string> names;
        for (const Entry& entry : Listed(index))
            names.push_back(entry.first);
        return names;
    }
    void Drag(int from, int row, int to) { DragEntry(Roster().lstPlayer[from], row, Roster().lstPlayer[to]); }

    // Whether `drag` leaves, byte for byte, what `byHand` leaves on the same league, and is one step.
    void ExpectSame(const std::string& words, const std::function<void()>& drag, const std::function<void()>& byHand)
    {
        const auto before = Copy(OpenLeague);
        drag();
        const auto dragged = Copy(OpenLeague);
        EXPECT_EQ(UndoWords(Roster()), "Undo: " + words);
        Undo(Roster());
        EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0) << words;
        byHand();
        EXPECT_EQ(std::memcmp(dragged.get(), &OpenLeague, sizeof OpenLeague), 0) << words;
        EXPECT_NE(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0) << words;
    }
};

TEST_F(RosterDrag, ADragIsTheMoveOfItsCommand)
{
    PutSeven();
    ExpectSame(
        "To Scratch: Skater 6", [&] { Drag(2, 0, 1); },
        [&] {
            ClickEntry(2, 0);
            Click(Roster().cmdToScratchesFromPro);
        });
    ExpectSame(
        "To Pro: Skater 2", [&] { Drag(1, 1, 2); },
        [&] {
            ClickEntry(1, 1);
            Click(Roster().cmdToPro);
        });
    ExpectSame(
        "To Farm: Skater 1", [&] { Drag(1, 0, 0); },
        [&] {
            ClickEntry(1, 0);
            Click(Roster().cmdToFarm);
        });
    ExpectSame(
        "To Scratch: Skater 4", [&] { Drag(0, 0, 1); },
        [&] {
            Choose(4, position::Defense);
            Click(Roster().cmdToScratchesFromFarm);
        });
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RosterDrag, FromProToTheFarmAndBackTwoMovesAreOneStep)
{
    PutSeven();
    ExpectSame(
        "To Farm: Skater 7", [&] { Drag(2, 1, 0); },
        [&] {
            ClickEntry(2, 1);
            Click(Roster().cmdToScratchesFromPro);
            ClickEntry(1, Roster().lstPlayer[1]->RowOf(EntryNumber(7, position::Defense)));
            Click(Roster().cmdToFarm);
        });
    EXPECT_THAT(Names(0), ElementsAre("Skater 4", "Skater 5", "Skater 7"));
    ExpectSame(
        "To Pro: Skater 5", [&] { Drag(0, 1, 2); },
        [&] {
            ClickEntry(0, 1);
            Click(Roster().cmdToScratchesFromFarm);
            ClickEntry(1, Roster().lstPlayer[1]->RowOf(EntryNumber(5, position::Center)));
            Click(Roster().cmdToPro);
        });
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RosterDrag, CtrlAndThePressOnToScratchGoesOnToTheFarm)
{
    PutSeven();
    ClickEntry(2, 0);
    QTest::mouseClick(Roster().cmdToScratchesFromPro, Qt::LeftButton, Qt::ControlModifier);
    Settle();
    EXPECT_THAT(Names(0), ElementsAre("Skater 4", "Skater 5", "Skater 6"));
    EXPECT_THAT(Names(1), ElementsAre("Skater 1", "Skater 2", "Skater 3"));
    EXPECT_EQ(UndoWords(Roster()), "Undo: To Farm: Skater 6");
    ClickEntry(2, 0);
    Click(Roster().cmdToScratchesFromPro);
    EXPECT_THAT(Names(1), ElementsAre("Skater 1", "Skater 2", "Skater 3", "Skater 7"));
}

TEST_F(RosterDrag, WhoeverIsChosenBesideGoesAlong)
{
    PutSkaters(4, status::Pro);
    ClickEntry(2, 0);
    ClickEntry(2, 2, Qt::ControlModifier);
    Drag(2, 2, 0);
    EXPECT_THAT(Names(0), ElementsAre("Skater 1", "Skater 3"));
    EXPECT_THAT(Names(2), ElementsAre("Skater 2", "Skater 4"));
    EXPECT_EQ(UndoWords(Roster()), "Undo: To Farm: 2 players");
}

// Whom the second move refuses stays on the list in between, as by hand.
TEST_F(RosterDrag, ARefusalIsTheCommandsOwn)
{
    PutSkaters(2, status::Pro);
    Roster();
    PassDeadline();
    Drag(2, 0, 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Information, "Trade Deadline is Passed!"}));
    EXPECT_THAT(Names(0), IsEmpty());
    EXPECT_THAT(Names(1), ElementsAre("Skater 1"));
    EXPECT_THAT(Names(2), ElementsAre("Skater 2"));
    EXPECT_EQ(UndoWords(Roster()), "Undo: To Farm: Skater 1");
    // One who does not leave the first list is not asked about the second.
    Players[2].Condition = 50;
    Drag(2, 0, 0);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Cannot Move an Injured Player!"}));
    EXPECT_THAT(Names(2), ElementsAre("Skater 2"));
}

TEST_F(RosterDrag, TheListThatWouldTakeHimIsFramedAndEscapeEndsIt)
{
    PutSeven();
    frmRoster& roster = Roster();
    EntryDragging drag(roster.lstPlayer[2], 0);
    const auto frames = [&] { return roster.findChildren<QRubberBand*>().size(); };
    drag.MoveTo(roster.lstPlayer[2]);
    EXPECT_EQ(frames(), 0);
    drag.MoveTo(roster.lstPlayer[1]);
    ASSERT_EQ(frames(), 1);
    EXPECT_EQ(roster.findChild<QRubberBand*>()->geometry().topLeft(),
              roster.lstPlayer[1]->mapTo(&roster, QPoint(0, 0)));
    drag.MoveTo(roster.lstPlayer[0]);
    ASSERT_EQ(frames(), 1);
    EXPECT_EQ(roster.findChild<QRubberBand*>()->geometry().topLeft(),
              roster.lstPlayer[0]->mapTo(&roster, QPoint(0, 0)));
    drag.MoveTo(roster.cmdExit);
    EXPECT_EQ(frames(), 0);
    drag.MoveTo(roster.lstPlayer[1]);
    QTest::keyClick(roster.lstPlayer[2], Qt::Key_Escape);
    EXPECT_EQ(frames(), 0);
    drag.LetGo();
    EXPECT_THAT(Names(2), ElementsAre("Skater 6", "Skater 7"));
}

} // namespace
} // namespace dravik
