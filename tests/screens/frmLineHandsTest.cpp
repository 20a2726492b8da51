#include "desk/SlotPicks.h"
#include "Dragging.h"
#include "OnHistory.h"
#include "OnLineScreen.h"
#include "rules/Overall.h"
#include "screens/lines/SlotPicker.h"
#include "screens/panels/EntrySigns.h"

#include <cstring>
#include <QTabBar>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// Lines made by hand: the picker, swaps, looks, and the keys.
class LineHands : public OnLineScreen {
protected:
    LineHands() { PutGames(10); }

    static SlotPicker& PickerOf(const LinesScreen& screen) { return *screen.findChild<SlotPicker*>("Picker"); }
    static bool IsOpen(const LinesScreen& screen) { return PickerOf(screen).IsOpen(); }
    static std::vector<std::string> Offered(const LinesScreen& screen)
    {
        std::vector<std::string> names;
        for (int row = 0; row < PickerOf(screen).lstPick->count(); ++row)
            names.push_back(PickerOf(screen).lstPick->item(row)->text().toStdString());
        return names;
    }
    // Presses a key where the focus is, as a user does.
    void Key(LinesScreen& screen, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        PressScreenKey(screen, key, modifiers);
        ++Keys;
    }
    void Type(LinesScreen& screen, const char* letters)
    {
        for (const char* letter = letters; *letter != 0; ++letter) {
            QTest::keyClick(screen.focusWidget(), *letter);
            ++Keys;
        }
        Settle();
    }
    static std::string NameIn(const LinesScreen& screen, LineField field, int number, int place = 1)
    {
        return screen.TabLine->SlotAt(field, number, place).Label->text().toStdString();
    }
    static void GoTo(LinesScreen& screen, QWidget* slot)
    {
        screen.activateWindow();
        slot->setFocus();
        Settle();
        ASSERT_TRUE(slot->hasFocus());
    }
    static bool IsDay(const Lines& wanted) { return std::memcmp(&ProDay(), &wanted, sizeof wanted) == 0; }

    int Keys = 0;
};

TEST_F(LineHands, ThePickerOffersThoseWhoMayStandThereBestFirst)
{
    frmLine& line = Line();
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 2, 3);
    GoTo(line, slot);
    Key(line, Qt::Key_F2);
    ASSERT_TRUE(IsOpen(line));
    EXPECT_EQ(Of(PickerOf(line).lblSlot), slot->Where().toStdString());
    std::vector<std::string> expected;
    for (const SlotPick& pick :
         PicksFor(OpenWork(), 5, Side::Pro, line.TabLine->SlotAt(LineField::NormalForward, 2, 3).Slot))
        expected.push_back(Players[pick.Who.Slot].Name.Trimmed());
    EXPECT_EQ(Offered(line), expected);
    EXPECT_EQ(PickerOf(line).lstPick->currentItem()->text(), slot->text()) << "who stands there is chosen";
    const SlotPick best =
        PicksFor(OpenWork(), 5, Side::Pro, line.TabLine->SlotAt(LineField::NormalForward, 2, 3).Slot)[0];
    EXPECT_THAT(PickerOf(line).lstPick->item(0)->data(entry::AsideRole).toStringList().join(' ').toStdString(),
                std::string(PositionName[best.Position]) + ' ' + std::to_string(*best.Overall));
}

TEST_F(LineHands, ThePickerTellsTheSignsOfPeople)
{
    const int hurt = Pro.Skaters[3];
    Players[hurt].Name = "Wim Vanderson";
    Players[hurt].Injury = "Sprained ankle";
    Players[hurt].Condition = 97;
    frmLine& line = Line();
    GoTo(line, SlotOn(line, LineField::NormalForward, 1, 1));
    Key(line, Qt::Key_F2);
    Type(line, "vand");
    ASSERT_EQ(PickerOf(line).lstPick->count(), 1);
    const auto signsIn = [](EntryList& list, int row) { return EntrySigns::On(&list)->Of(*NumberOf(list.item(row))); };
    const int row = line.lstPlayer->RowOf(EntryNumber(hurt, static_cast<int>(Players[hurt].Position)));
    EXPECT_EQ(signsIn(*PickerOf(line).lstPick, 0), signsIn(*line.lstPlayer, row));
    EXPECT_TRUE(signsIn(*PickerOf(line).lstPick, 0).Has(Sign::InSlots));
}

TEST_F(LineHands, TypingFiltersByAnyPartOfANameAndEnterPlaces)
{
    Players[Pro.Skaters[7]].Name = "Jean D'Aubremont";
    Players[Pro.Skaters[9]].Name = "Wim Vanderson";
    frmLine& line = Line();
    GoTo(line, SlotOn(line, LineField::NormalForward, 1, 2));
    const Lines before = ProDay();
    Key(line, Qt::Key_F2);
    Type(line, "aubre");
    EXPECT_THAT(Offered(line), ElementsAre("Jean D'Aubremont"));
    EXPECT_TRUE(IsDay(before));
    Key(line, Qt::Key_Return);
    EXPECT_FALSE(IsOpen(line));
    Lines expected = before;
    expected.NormalForward(1, 2) = Pro.Skaters[7];
    EXPECT_TRUE(IsDay(expected));
    EXPECT_EQ(NameIn(line, LineField::NormalForward, 1, 2), "Jean D'Aubremont");
    EXPECT_TRUE(SlotOn(line, LineField::NormalForward, 1, 2)->hasFocus());
    EXPECT_THAT(UndoWords(line), "Undo: Place Jean D'Aubremont, " +
                                     SlotOn(line, LineField::NormalForward, 1, 2)->Where().toStdString() + ", day 1");
    Undo(line);
    EXPECT_TRUE(IsDay(before));
}

TEST_F(LineHands, ALetterOnASlotBeginsToPick)
{
    Players[Pro.Skaters[9]].Name = "Wim Vanderson";
    frmLine& line = Line();
    GoTo(line, SlotOn(line, LineField::NormalForward, 1, 2));
    Type(line, "va");
    ASSERT_TRUE(IsOpen(line));
    EXPECT_EQ(PickerOf(line).txtName->text(), "va");
    EXPECT_THAT(Offered(line), ElementsAre("Wim Vanderson"));
}

TEST_F(LineHands, NobodyOfTheNameIsSaidAndEnterDoesNothing)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    GoTo(line, SlotOn(line, LineField::NormalForward, 1, 1));
    Key(line, Qt::Key_F2);
    Type(line, "qqq");
    EXPECT_TRUE(PickerOf(line).lblNobody->isVisible());
    EXPECT_FALSE(PickerOf(line).cmdShowPlayer->isEnabled());
    Key(line, Qt::Key_Return);
    EXPECT_TRUE(IsOpen(line));
    EXPECT_TRUE(IsDay(before));
    for (int letter = 0; letter < 3; ++letter)
        Key(line, Qt::Key_Backspace);
    EXPECT_FALSE(PickerOf(line).lblNobody->isVisible());
    EXPECT_EQ(Offered(line).size(), 18U);
}

TEST_F(LineHands, EscapeAndAPressElsewhereCloseIt)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 1, 1);
    GoTo(line, slot);
    Key(line, Qt::Key_F2);
    Key(line, Qt::Key_Escape);
    EXPECT_FALSE(IsOpen(line));
    EXPECT_TRUE(slot->hasFocus());
    EXPECT_EQ(TheStage.Find("Line"), &line) << "the screen stays";
    Key(line, Qt::Key_Menu);
    ASSERT_TRUE(IsOpen(line));
    line.lstPlayer->setFocus();
    Settle();
    EXPECT_FALSE(IsOpen(line));
    QTest::mouseClick(slot, Qt::RightButton);
    Settle();
    EXPECT_TRUE(IsOpen(line));
    Key(line, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(line.Day(), 3);
    EXPECT_FALSE(IsOpen(line));
    GoTo(line, SlotOn(line, LineField::NormalForward, 1, 1));
    Key(line, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(IsOpen(line));
    Key(line, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(line.TabLine->currentIndex(), 1);
    EXPECT_FALSE(IsOpen(line));
    EXPECT_TRUE(IsDay(before));
}

TEST_F(LineHands, AClickInThePickerPlacesAndShowPlayerOnlyShows)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 3, 1);
    GoTo(line, slot);
    Key(line, Qt::Key_F2);
    PickerOf(line).lstPick->setCurrentRow(4);
    const std::string shown = PickerOf(line).lstPick->item(4)->text().toStdString();
    QTest::mouseClick(PickerOf(line).cmdShowPlayer, Qt::LeftButton);
    Settle();
    EXPECT_FALSE(IsOpen(line));
    EXPECT_TRUE(IsDay(before));
    EXPECT_EQ(line.frmStat->title().toStdString(), shown);
    EXPECT_EQ(line.lstPlayer->Chosen()->text().toStdString(), shown);
    Key(line, Qt::Key_F2);
    Key(line, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_TRUE(IsDay(before));
    Key(line, Qt::Key_F2);
    EntryList* list = PickerOf(line).lstPick;
    const std::string placed = list->item(2)->text().toStdString();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
    Settle();
    EXPECT_EQ(NameIn(line, LineField::NormalForward, 3, 1), placed);
}

TEST_F(LineHands, ThePickerStaysWithinTheWindow)
{
    frmLine& line = Line();
    for (const BoardSlot& slot : line.TabLine->Slots) {
        for (int tab = 0; tab < line.TabLine->count(); ++tab)
            if (line.TabLine->widget(tab)->isAncestorOf(slot.Label))
                line.TabLine->setCurrentIndex(tab);
        Settle();
        GoTo(line, slot.Label);
        Key(line, Qt::Key_F2);
        ASSERT_TRUE(IsOpen(line));
        EXPECT_TRUE(line.rect().contains(PickerOf(line).geometry())) << slot.Label->Where().toStdString();
        Key(line, Qt::Key_Escape);
    }
}

TEST_F(LineHands, TheFarmOffersItsPlaceholderLast)
{
    LeagueData.FarmRosterRequired.SetWord(0);
    frmFarmLine& farm = FarmLine();
    GoTo(farm, SlotOn(farm, LineField::NormalForward, 1, 1));
    Key(farm, Qt::Key_F2);
    EXPECT_EQ(Offered(farm).back(), "Unknown Player");
    EXPECT_EQ(Offered(farm).size(), 19U);
    Type(farm, "unknown");
    Key(farm, Qt::Key_Return);
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 0);
    EXPECT_EQ(NameIn(farm, LineField::NormalForward, 1, 1), "Unknown Player");
}

TEST_F(LineHands, ThePlaceholderIsNobodyToLookAt)
{
    LeagueData.FarmRosterRequired.SetWord(0);
    frmFarmLine& farm = FarmLine();
    Pick(farm, static_cast<int>(FarmDay().NormalForward(2, 1)), position::Center);
    const auto chosen = farm.lstPlayer->Chosen()->text();
    GoTo(farm, SlotOn(farm, LineField::NormalForward, 1, 1));
    Key(farm, Qt::Key_F2);
    Type(farm, "unknown");
    Key(farm, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_FALSE(IsOpen(farm));
    ASSERT_NE(farm.lstPlayer->Chosen(), nullptr);
    EXPECT_EQ(farm.lstPlayer->Chosen()->text(), chosen);
    EXPECT_EQ(SelectedPlayer, FarmDay().NormalForward(2, 1));
}

TEST_F(LineHands, HiddenOverallsStayHiddenInThePicker)
{
    LeagueData.ShowOverall = false;
    frmLine& line = Line();
    GoTo(line, SlotOn(line, LineField::NormalForward, 1, 1));
    Key(line, Qt::Key_F2);
    for (int row = 0; row < PickerOf(line).lstPick->count(); ++row)
        EXPECT_EQ(PickerOf(line).lstPick->item(row)->data(entry::AsideRole).toStringList().size(), 1);
}

TEST_F(LineHands, ADragFromSlotToSlotSwaps)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    Lines expected = before;
    expected.NormalForward(1, 1) = before.NormalForward(2, 2);
    expected.NormalForward(2, 2) = before.NormalForward(1, 1);
    SlotLabel* from = SlotOn(line, LineField::NormalForward, 1, 1);
    SlotLabel* to = SlotOn(line, LineField::NormalForward, 2, 2);
    const std::string first = from->text().toStdString();
    const std::string second = to->text().toStdString();
    DragSlot(from, to);
    EXPECT_TRUE(IsDay(expected));
    EXPECT_EQ(from->text().toStdString(), second);
    EXPECT_EQ(to->text().toStdString(), first);
    EXPECT_THAT(UndoWords(line), StartsWith("Undo: Swap " + from->Where().toStdString() + " and "));
    EXPECT_TRUE(static_cast<bool>(Modified));
    Undo(line);
    EXPECT_TRUE(IsDay(before));
}

TEST_F(LineHands, ARefusedDropIsShownAndDoesNothing)
{
    frmLine& line = Line();
    ProDay().NormalForward(4, 3) = 0;
    const Lines before = ProDay();
    line.TabLine->setCurrentIndex(5); // the extras
    Settle();
    SlotLabel* forward = SlotOn(line, LineField::ExtraForward, 1);
    SlotLabel* defense = SlotOn(line, LineField::ExtraDefense, 1);
    ASSERT_TRUE(forward->isVisible());
    DragSlot(forward, defense, false);
    EXPECT_FALSE(defense->IsDropTarget());
    EXPECT_EQ(forward->cursor().shape(), Qt::ForbiddenCursor);
    QTest::keyClick(forward, Qt::Key_Escape);
    DragSlot(forward, defense);
    EXPECT_TRUE(IsDay(before));
    DragSlot(forward, forward);
    EXPECT_TRUE(IsDay(before)) << "let go where it began it is no press";
    SlotLabel* other = SlotOn(line, LineField::ExtraForward, 2);
    DragSlot(forward, other, false);
    EXPECT_TRUE(other->IsDropTarget());
    QTest::keyClick(forward, Qt::Key_Escape);
    EXPECT_FALSE(other->IsDropTarget());
    EXPECT_TRUE(IsDay(before));
}

TEST_F(LineHands, ASwapTakesThreeKeysAndEscapeBacksOut)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 1, 2);
    GoTo(line, slot);
    Key(line, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(slot->IsTaken());
    EXPECT_THAT(slot->accessibleName().toStdString(), ::testing::EndsWith(" (taken up)"));
    Key(line, Qt::Key_Escape);
    EXPECT_FALSE(slot->IsTaken());
    EXPECT_EQ(TheStage.Find("Line"), &line);
    Keys = 0;
    Key(line, Qt::Key_Space, Qt::ControlModifier);
    Key(line, Qt::Key_Right);
    Key(line, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Keys, 3);
    Lines expected = before;
    expected.NormalForward(1, 2) = before.NormalForward(1, 1); // left wing, center, right wing
    expected.NormalForward(1, 1) = before.NormalForward(1, 2);
    EXPECT_TRUE(IsDay(expected));
    EXPECT_FALSE(slot->IsTaken());
}

TEST_F(LineHands, WhoeverWasTakenUpIsLetGoWithTheDayAndAnEmptySlotHasNobody)
{
    ProDay().NormalForward(2, 1) = 0;
    frmLine& line = Line();
    const Lines before = ProDay();
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 1, 1);
    GoTo(line, slot);
    Key(line, Qt::Key_Space, Qt::ControlModifier);
    Key(line, Qt::Key_2, Qt::ControlModifier);
    EXPECT_FALSE(slot->IsTaken());
    Key(line, Qt::Key_1, Qt::ControlModifier);
    SlotLabel* empty = SlotOn(line, LineField::NormalForward, 2, 1);
    GoTo(line, empty);
    Key(line, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_FALSE(empty->IsTaken());
    GoTo(line, slot);
    Key(line, Qt::Key_Space, Qt::ControlModifier);
    GoTo(line, empty);
    Key(line, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_FALSE(slot->IsTaken());
    EXPECT_TRUE(IsDay(before));
    EXPECT_EQ(HistoryTold(), "They cannot change places");
}

TEST_F(LineHands, ShiftOrTheMiddleButtonLooksWithoutPlacing)
{
    frmLine& line = Line();
    const Lines before = ProDay();
    Pick(line, static_cast<int>(ProDay().NormalForward(2, 1)), position::Center);
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 1, 1);
    const std::string name = slot->text().toStdString();
    QTest::mouseClick(slot, Qt::LeftButton, Qt::ShiftModifier);
    Settle();
    EXPECT_TRUE(IsDay(before));
    EXPECT_EQ(line.frmStat->title().toStdString(), name);
    EXPECT_EQ(line.lstPlayer->Chosen()->text().toStdString(), name);
    SlotLabel* other = SlotOn(line, LineField::NormalForward, 3, 2);
    QTest::mouseClick(other, Qt::MiddleButton);
    Settle();
    EXPECT_TRUE(IsDay(before));
    EXPECT_EQ(line.frmStat->title(), other->text());
}

// Of somebody whom the list leaves out nobody is placed afterwards.
TEST_F(LineHands, ALookAtSomebodyWhoIsNotListedPicksNobody)
{
    frmLine& line = Line();
    QTest::mouseClick(line.chkPosition[position::Center], Qt::LeftButton, {},
                      QPoint(8, line.chkPosition[position::Center]->height() / 2));
    Settle();
    ASSERT_FALSE(line.chkPosition[position::Center]->isChecked());
    const Lines before = ProDay();
    SlotLabel* slot = SlotOn(line, LineField::NormalForward, 1, 1);
    QTest::mouseClick(slot, Qt::MiddleButton);
    Settle();
    EXPECT_EQ(line.frmStat->title(), slot->text());
    EXPECT_EQ(line.lstPlayer->Chosen(), nullptr);
    EXPECT_TRUE(slot->IsPicked());
    Click(SlotOn(line, LineField::NormalForward, 2, 1));
    EXPECT_TRUE(IsDay(before));
}

TEST_F(LineHands, CtrlAndADigitGoesToThatDayIfItIsOpen)
{
    PutGames(0);
    for (int row = 1; row <= 10; ++row)
        GameSchedule[row] = {};
    PutGames(7);
    frmLine& line = Line();
    for (const auto& [key, day] : {std::pair(Qt::Key_5, 5), std::pair(Qt::Key_7, 7), std::pair(Qt::Key_8, 7),
                                   std::pair(Qt::Key_0, 7), std::pair(Qt::Key_1, 1)}) {
        Key(line, key, Qt::ControlModifier);
        EXPECT_EQ(line.Day(), day);
    }
}

TEST_F(LineHands, CtrlTabTurnsThePagesAndTheFocusComesAlong)
{
    frmLine& line = Line();
    GoTo(line, SlotOn(line, LineField::NormalForward, 1, 2));
    Key(line, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(line.TabLine->currentIndex(), 1);
    EXPECT_TRUE(SlotOn(line, LineField::PPForward, 1, 1)->hasFocus() ||
                SlotOn(line, LineField::PPForward, 1, 2)->hasFocus());
    Key(line, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    Key(line, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line.TabLine->currentIndex(), line.TabLine->count() - 1);
    EXPECT_TRUE(line.hscStats[0]->hasFocus());
    Key(line, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(line.TabLine->currentIndex(), 0);
}

TEST_F(LineHands, F6JumpsBetweenTheListAndTheBoard)
{
    frmLine& line = Line();
    line.activateWindow();
    line.lstPlayer->setFocus();
    Key(line, Qt::Key_F6);
    EXPECT_NE(qobject_cast<SlotLabel*>(line.focusWidget()), nullptr);
    Key(line, Qt::Key_Right);
    QWidget* slot = line.focusWidget();
    Key(line, Qt::Key_F6);
    EXPECT_TRUE(line.lstPlayer->hasFocus());
    Key(line, Qt::Key_F6);
    EXPECT_EQ(line.focusWidget(), slot) << "back to where he was";
}

// A text that is refused keeps the focus, whatever key is pressed.
TEST_F(LineHands, ARefusedTextHoldsTheKeysBack)
{
    frmLine& line = Line();
    line.TabLine->setCurrentIndex(line.TabLine->count() - 1);
    Settle();
    GoTo(line, line.txtPullGoalerMinGoal);
    QTest::keyClicks(line.txtPullGoalerMinGoal, "x");
    Key(line, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(line.Day(), 1);
    EXPECT_TRUE(line.txtPullGoalerMinGoal->hasFocus());
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    QTest::keyClick(line.txtPullGoalerMinGoal, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line.txtPullGoalerMinGoal, "2");
    Key(line, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(line.Day(), 2);
}

TEST_F(LineHands, ALineOfFiveTakesTwentyKeys)
{
    const char* names[] = {"Kirbson", "Sedgwood", "Wexridge", "Mottford", "Grunbauer"};
    const int ids[] = {Pro.Skaters[5], Pro.Skaters[1], Pro.Skaters[9], Pro.Skaters[13], Pro.Skaters[15]};
    for (int at = 0; at < 5; ++at)
        Players[ids[at]].Name = names[at];
    ProDay().NormalForward = {};
    ProDay().NormalDefense = {};
    frmLine& line = Line();
    line.activateWindow();
    line.lstPlayer->setFocus();
    Keys = 0;
    Key(line, Qt::Key_F6); // to the board, the left wing of the first line
    const auto put = [&](const char* letters) {
        Type(line, letters);
        Key(line, Qt::Key_Return);
    };
    put("ki");
    Key(line, Qt::Key_Right);
    put("se");
    Key(line, Qt::Key_Right);
    put("we");
    Key(line, Qt::Key_Down);
    put("gr");
    Key(line, Qt::Key_Left);
    put("mo");
    EXPECT_LE(Keys, 20);
    EXPECT_EQ(ProDay().NormalForward(1, 2), ids[0]);
    EXPECT_EQ(ProDay().NormalForward(1, 1), ids[1]);
    EXPECT_EQ(ProDay().NormalForward(1, 3), ids[2]);
    EXPECT_EQ(ProDay().NormalDefense(1, 1), ids[3]);
    EXPECT_EQ(ProDay().NormalDefense(1, 2), ids[4]);
}

} // namespace
} // namespace dravik
