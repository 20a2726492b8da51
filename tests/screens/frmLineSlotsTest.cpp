#include "Dragging.h"
#include "LineLabelTable.h"
#include "OnLineScreen.h"
#include "support/Routines.h"

#include <cstring>
#include <map>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LineSlots : public OnLineScreen {
protected:
    // Somebody of a position who may be dressed.
    int SomebodyAt(int position)
    {
        if (position == position::Goalie)
            return Pro.GoalieIds.back();
        int found = 0;
        for (const int id : Pro.Skaters)
            if (Players[id].Position == position)
                found = id;
        return found;
    }

    SlotLabel* LabelOf(const LabelRow& row, int index)
    {
        return Line().findChild<SlotLabel*>(QString::fromStdString(row.NameOf(index)));
    }

    static bool AreSame(const Lines& a, const Lines& b) { return std::memcmp(&a, &b, sizeof(Lines)) == 0; }
};

// Picks somebody of each position and presses every slot label.
class EverySlot : public LineSlots, public ::testing::WithParamInterface<int> {};

TEST_P(EverySlot, TakesWhomItsRuleAllowsAndNobodyElse)
{
    frmLine& line = Line();
    const int position = GetParam();
    const int id = SomebodyAt(position);
    Pick(line, id, position);
    int labels = 0;
    EachLabel([&](const LabelRow& row, int index) {
        ++labels;
        SlotLabel* label = LabelOf(row, index);
        ASSERT_NE(label, nullptr) << row.NameOf(index);
        const bool takes = row.Takes.find(std::to_string(position)) != std::string::npos;
        Lines expected = ProDay();
        if (takes)
            row.Slot(expected, index) = id;
        const std::string before = Of(label);
        Modified = false;
        ClickOn(line, label);
        EXPECT_TRUE(AreSame(ProDay(), expected)) << row.NameOf(index);
        EXPECT_EQ(Modified, takes) << row.NameOf(index);
        const std::string name = position == position::Goalie ? Goalies[id].Name.Trimmed() : Players[id].Name.Trimmed();
        EXPECT_EQ(Of(label), takes ? name : before) << row.NameOf(index);
    });
    EXPECT_EQ(labels, 69);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OfAllPositions, EverySlot, ::testing::Values(1, 2, 3, 4, 5));

// What a screen reader hears of each sort of slot, and so what is painted in it: the line or unit, and the place.
TEST_F(LineSlots, EverySlotSaysItsLineAndItsPlace)
{
    const std::map<std::string, std::string> words{
        {"lblNormalTrioC", "Line #, C"},
        {"lblNormalTrioLW", "Line #, LW"},
        {"lblNormalTrioRW", "Line #, RW"},
        {"lblNormalTrioD1", "Line #, D1"},
        {"lblNormalTrioD2", "Line #, D2"},
        {"lblPPTrioC", "PowerPlay unit #, C"},
        {"lblPPTrioLW", "PowerPlay unit #, LW"},
        {"lblPPTrioRW", "PowerPlay unit #, RW"},
        {"lblPPDuoD1", "PowerPlay unit #, D1"},
        {"lblPPDuoD2", "PowerPlay unit #, D2"},
        {"lbl44TrioC", "4 vs 4 unit #, C"},
        {"lbl44TrioW", "4 vs 4 unit #, W"},
        {"lbl44DuoD1", "4 vs 4 unit #, D1"},
        {"lbl44DuoD2", "4 vs 4 unit #, D2"},
        {"lblPKTrioC", "5 vs 4 Penalty Kill unit #, C"},
        {"lblPKTrioW", "5 vs 4 Penalty Kill unit #, W"},
        {"lblPKDuoD1", "5 vs 4 Penalty Kill unit #, D1"},
        {"lblPKDuoD2", "5 vs 4 Penalty Kill unit #, D2"},
        {"lblPK3TrioC", "* vs 3 Penalty Kill unit #, F"},
        {"lblPK3DuoD1", "* vs 3 Penalty Kill unit #, D1"},
        {"lblPK3DuoD2", "* vs 3 Penalty Kill unit #, D2"},
        {"lblExtraForward", "Extra Forward #"},
        {"lblExtraDefense", "Extra Defenseman #"},
        {"lblPenaltyShot", "Penalty Shot #"},
        {"lblStartGoaler", "Starting Goalie"},
        {"lblBackupGoaler", "Backup Goalie"},
    };
    EachLabel([&](const LabelRow& row, int index) {
        const SlotLabel* label = LabelOf(row, index);
        ASSERT_NE(label, nullptr) << row.NameOf(index);
        const QString expected = QString::fromStdString(words.at(row.Name)).replace('#', QString::number(index));
        EXPECT_EQ(label->Where(), expected) << row.NameOf(index);
    });
}

TEST_F(LineSlots, WithNoSelectionNoSlotDoesAnything)
{
    frmLine& line = Line();
    Pick(line, Pro.Skaters[0], position::Center);
    line.ShowPlayer(); // lists everybody anew, and nobody chosen
    ASSERT_EQ(line.lstPlayer->Chosen(), nullptr);
    ASSERT_EQ(SelectedPlayer, Pro.Skaters[0]);
    const Lines before = ProDay();
    EachLabel([&](const LabelRow& row, int index) { ClickOn(line, LabelOf(row, index)); });
    EXPECT_TRUE(AreSame(ProDay(), before));
    EXPECT_FALSE(Modified);
}

TEST_F(LineSlots, ASelectionThatAFilterTookAwayIsNone)
{
    frmLine& line = Line();
    const int id = SomebodyAt(position::Center);
    Pick(line, id, position::Center);
    line.chkPosition[position::Goalie]->click();
    EXPECT_EQ(SelectedPlayer, id);
    const Lines before = ProDay();
    ClickOn(line, SlotOn(line, LineField::NormalForward, 4, 1));
    EXPECT_TRUE(AreSame(ProDay(), before));
}

TEST_F(LineSlots, ADefensemanCanPlayCenter)
{
    frmLine& line = Line();
    const int id = SomebodyAt(position::Defense);
    Pick(line, id, position::Defense);
    ClickOn(line, SlotOn(line, LineField::NormalForward, 1, 1));
    EXPECT_EQ(ProDay().NormalForward(1, 1), id);
}

TEST_F(LineSlots, TheSamePlayerCanStandTwiceAndTheVerdictSaysSo)
{
    frmLine& line = Line();
    const auto id = static_cast<int>(ProDay().NormalForward(1, 1));
    Pick(line, id, static_cast<int>(Players[id].Position));
    ClickOn(line, SlotOn(line, LineField::NormalForward, 1, 2));
    EXPECT_EQ(ProDay().NormalForward(1, 1), id);
    EXPECT_EQ(ProDay().NormalForward(1, 2), id);
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_TRUE(line.cmdDebug->isEnabled());
    EXPECT_EQ(line.txtReasons->toPlainText().toStdString(),
              Players[id].Name.Trimmed() +
                  " is used twice in Normal line #1\nSome errors will be automatically fixed.");
}

TEST_F(LineSlots, APlayerOfEverySortGoesToPenaltyShots)
{
    frmLine& line = Line();
    int number = 0;
    for (const int position : {position::Center, position::LeftWing, position::RightWing, position::Defense}) {
        ++number;
        Pick(line, SomebodyAt(position), position);
        ClickOn(line, SlotOn(line, LineField::PenaltyShot, number));
        EXPECT_EQ(ProDay().PenaltyShot[number], SomebodyAt(position));
    }
}

TEST_F(LineSlots, ASlotOfTheShownDayIsFilledAndOfNoOther)
{
    PutGames(10);
    frmLine& line = Line();
    line.vscDay->setValue(4);
    const int id = SomebodyAt(position::LeftWing);
    Pick(line, id, position::LeftWing);
    ClickOn(line, SlotOn(line, LineField::NormalForward, 2, 2));
    for (int day = 2; day <= 10; ++day)
        EXPECT_EQ(ProDay(day).NormalForward(2, 2), day == 4 ? id : 0) << day;
}

TEST_F(LineSlots, CaptionsReadTheTrimmedNamesOfTheDay)
{
    const auto id = ProDay().PK3Forward[2];
    Players[id].Name = "   Dale O'Meara   ";
    ProDay().BackupGoalie = 0;
    frmLine& line = Line();
    EXPECT_EQ(Of(SlotOn(line, LineField::PK3Forward, 2)), "Dale O'Meara");
    EXPECT_EQ(Of(StartSlot(line).Label), Goalies[ProDay().StartGoalie].Name.Trimmed());
    EXPECT_EQ(Of(BackupSlot(line).Label), "");
}

TEST_F(LineSlots, AnInjuredPlayerKeepsHisCaptionUntilTheDayIsShownAnewAndIsMarkedAtOnce)
{
    PutGames(2);
    const auto id = ProDay().NormalForward(1, 1);
    const std::string name = Players[id].Name.Trimmed();
    Players[id].Condition = 94;
    frmLine& line = Line();
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 1, 1);
    EXPECT_EQ(ProDay().NormalForward(1, 1), 0);
    EXPECT_EQ(Of(label), name);
    EXPECT_EQ(label->Shown(), SlotLabel::Mark::Refused);
    EXPECT_EQ(line.lstPlayer->RowOf(EntryNumber(id, Players[id].Position)), -1);
    EXPECT_THAT(line.txtReasons->toPlainText().toStdString(),
                ::testing::StartsWith(name + " is injured or suspended.\n"));
    line.Place();
    EXPECT_EQ(Of(label), "");
    EXPECT_EQ(label->Shown(), SlotLabel::Mark::Empty);
}

TEST_F(LineSlots, SomebodyPutOverAWipedPlayerIsShownAsStanding)
{
    const auto id = ProDay().NormalForward(1, 1);
    Players[id].Suspension = 3;
    frmLine& line = Line();
    const int other = SomebodyAt(position::Center);
    Pick(line, other, position::Center);
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 1, 1);
    ASSERT_EQ(label->Shown(), SlotLabel::Mark::Refused);
    ClickOn(line, label);
    EXPECT_EQ(label->Shown(), SlotLabel::Mark::Filled);
    EXPECT_EQ(Of(label), Players[other].Name.Trimmed());
}

TEST_F(LineSlots, MarksAndOverallsFollowWhatStandsThere)
{
    ProDay().ExtraForward[3] = 0;
    frmLine& line = Line();
    SlotLabel* empty = SlotOn(line, LineField::ExtraForward, 3);
    EXPECT_EQ(empty->Shown(), SlotLabel::Mark::Empty);
    EXPECT_EQ(empty->Aside(), "");
    EXPECT_EQ(empty->accessibleName(), "Extra Forward 3:  (empty)");
    SlotLabel* filled = SlotOn(line, LineField::ExtraForward, 2);
    const auto id = static_cast<int>(ProDay().ExtraForward[2]);
    EXPECT_EQ(filled->Shown(), SlotLabel::Mark::Filled);
    EXPECT_EQ(filled->Aside(), QString::number(CalculateOverall(static_cast<int>(Players[id].Position), id)));
    EXPECT_EQ(filled->accessibleName().toStdString(),
              "Extra Forward 2: " + Players[id].Name.Trimmed() + ", overall " + filled->Aside().toStdString());
}

TEST_F(LineSlots, NoOverallIsShownWhereTheLeagueKeepsItToItself)
{
    LeagueData.ShowOverall = false;
    const frmLine& line = Line();
    for (const BoardSlot& slot : line.TabLine->Slots)
        EXPECT_EQ(slot.Label->Aside(), "");
    for (const BoardHeading& heading : line.TabLine->Parts.Headings)
        EXPECT_EQ(Of(heading.Average), "");
    for (int row = 0; row < line.lstPlayer->count(); ++row)
        EXPECT_EQ(line.lstPlayer->item(row)->data(entry::AsideRole).toStringList().size(), 1);
}

TEST_F(LineSlots, EnterAndSpaceOnAFocusedSlotActLikeAClick)
{
    frmLine& line = Line();
    const int id = SomebodyAt(position::RightWing);
    Pick(line, id, position::RightWing);
    int unit = 1;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        SlotLabel* label = SlotOn(line, LineField::NormalForward, ++unit, 3);
        label->setFocus();
        ASSERT_TRUE(label->hasFocus());
        Press(label, key);
        EXPECT_EQ(ProDay().NormalForward(unit, 3), id);
        EXPECT_EQ(Of(label), Players[id].Name.Trimmed());
    }
}

TEST_F(LineSlots, EnterOnASlotThatRefusesHimDoesNothing)
{
    frmLine& line = Line();
    Pick(line, SomebodyAt(position::Goalie), position::Goalie);
    const Lines before = ProDay();
    Modified = false;
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 1, 1);
    label->setFocus();
    Press(label, Qt::Key_Return);
    EXPECT_TRUE(AreSame(ProDay(), before));
    EXPECT_FALSE(Modified);
}

TEST_F(LineSlots, APlayerDraggedFromTheListOntoASlotIsPutThere)
{
    frmLine& line = Line();
    const int id = SomebodyAt(position::RightWing);
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 1, 3);
    ASSERT_NE(ProDay().NormalForward(1, 3), id);
    DragEntry(line.lstPlayer, line.lstPlayer->RowOf(EntryNumber(id, position::RightWing)), label);
    EXPECT_EQ(SelectedPlayer, id);
    EXPECT_EQ(ProDay().NormalForward(1, 3), id);
    EXPECT_EQ(Of(label), Players[id].Name.Trimmed());
    EXPECT_TRUE(Modified);
}

TEST_F(LineSlots, ADropThatTheSlotRefusesLeavesEverythingAsItWas)
{
    frmLine& line = Line();
    SlotLabel* label = SlotOn(line, LineField::NormalForward, 1, 3);
    const std::string before = Of(label);
    const Lines lines = ProDay();
    DragEntry(line.lstPlayer, line.lstPlayer->RowOf(EntryNumber(SomebodyAt(position::Goalie), position::Goalie)),
              label);
    EXPECT_TRUE(AreSame(ProDay(), lines));
    EXPECT_EQ(Of(label), before);
    EXPECT_FALSE(Modified);
}

TEST_F(LineSlots, OnlyTheLeftButtonPressesASlot)
{
    frmLine& line = Line();
    Pick(line, SomebodyAt(position::Center), position::Center);
    const Lines before = ProDay();
    for (const auto button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(SlotOn(line, LineField::NormalForward, 3, 2), button);
    EXPECT_TRUE(AreSame(ProDay(), before));
}

TEST_F(LineSlots, ArrowsMoveBetweenTheSlotsAsTheyStandOnTheIce)
{
    frmLine& line = Line();
    const auto at = [&](int number, int place) { return SlotOn(line, LineField::NormalForward, number, place); };
    at(1, 2)->setFocus(); // the left wing
    Press(at(1, 2), Qt::Key_Right);
    EXPECT_TRUE(at(1, 1)->hasFocus());
    Press(at(1, 1), Qt::Key_Right);
    EXPECT_TRUE(at(1, 3)->hasFocus());
    Press(at(1, 3), Qt::Key_Right);
    EXPECT_TRUE(at(1, 3)->hasFocus());
    Press(at(1, 3), Qt::Key_Left);
    EXPECT_TRUE(at(1, 1)->hasFocus());
    Press(at(1, 1), Qt::Key_Down);
    EXPECT_TRUE(SlotOn(line, LineField::NormalDefense, 1, 1)->hasFocus() ||
                SlotOn(line, LineField::NormalDefense, 1, 2)->hasFocus());
    Press(line.focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(at(2, 1)->hasFocus() || at(2, 2)->hasFocus() || at(2, 3)->hasFocus());
    Press(line.focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(SlotOn(line, LineField::NormalDefense, 1, 1)->hasFocus() ||
                SlotOn(line, LineField::NormalDefense, 1, 2)->hasFocus());
}

TEST_F(LineSlots, ASlotBeyondTheTableEndsThePlacingAndIsMarked)
{
    ProDay().NormalForward(1, 1) = 20000;
    OpenFrom(MainWithLeague(), "Line", "Main");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"},
                                                 Box{16, "9 - Subscript out of range in CheckLine!"},
                                                 Box{16, "9 - Subscript out of range in CheckLine!"}));
    frmLine& line = Line();
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_EQ(SlotOn(line, LineField::NormalForward, 1, 1)->Shown(), SlotLabel::Mark::Refused);
}

} // namespace
} // namespace dravik
