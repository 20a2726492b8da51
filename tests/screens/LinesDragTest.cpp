#include "Dragging.h"
#include "LineLabelTable.h"
#include "OnLineScreen.h"
#include "screens/lines/AdviceList.h"

#include <cstring>
#include <QTabBar>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

bool AreAlike(const Lines& left, const Lines& right) { return std::memcmp(&left, &right, sizeof left) == 0; }

// People are brought into the slots by dragging them, and by the keys of a focused slot. Both screens, in turn.
template <class T>
class LinesDragTest : public OnLineScreen {
protected:
    static constexpr bool IsPro = std::is_same_v<T, frmLine>;

    T& TheScreen() { return Opened<T>(IsPro ? "Line" : "FarmLine"); }
    static Lines& Shown() { return IsPro ? ProDay() : FarmDay(); }

    // The last one of that position in the list; he stands in few slots.
    int RowOfSomebodyAt(int position)
    {
        const PickList* list = TheScreen().lstPlayer;
        for (int row = list->count() - 1; row >= 0; --row) {
            const int number = list->item(row)->data(Qt::UserRole).toInt();
            if (EntryPosition(number) == position && EntryId(number) != 32000)
                return row;
        }
        ADD_FAILURE() << "nobody at " << position;
        return 0;
    }
    int IdAt(int row) { return EntryId(TheScreen().lstPlayer->item(row)->data(Qt::UserRole).toInt()); }

    QWidget* LabelOf(const std::string& name)
    {
        auto* label = TheScreen().template findChild<QWidget*>(QString::fromStdString(name));
        EXPECT_NE(label, nullptr) << name;
        return label;
    }
    // Brings up the page on which a widget stands.
    void GoTo(const QWidget* widget)
    {
        for (int tab = 0; tab < TheScreen().TabLine->count(); ++tab)
            if (TheScreen().TabLine->widget(tab)->isAncestorOf(widget))
                TheScreen().TabLine->setCurrentIndex(tab);
        Settle();
        ASSERT_TRUE(widget->isVisible());
    }

    // All that the screen says about the day.
    std::vector<std::string> Words()
    {
        std::vector<std::string> words{Of(TheScreen().lblComplete), Of(TheScreen().lblPlaying)};
        for (const BoardSlot& slot : TheScreen().TabLine->Slots) {
            words.push_back(Of(slot.Label));
            words.push_back(slot.Label->accessibleName().toStdString());
        }
        return words;
    }
};

using BothScreens = ::testing::Types<frmLine, frmFarmLine>;
class ScreenNames {
public:
    template <class T>
    static std::string GetName(int /*index*/)
    {
        return std::is_same_v<T, frmLine> ? "Pro" : "Farm";
    }
};
TYPED_TEST_SUITE(LinesDragTest, BothScreens, ScreenNames);

TYPED_TEST(LinesDragTest, EverySlotTakesADropOfWhomItsRuleNamesAndOfNobodyElse)
{
    auto& screen = this->TheScreen();
    const Lines start = this->Shown();
    EachLabel([&](const LabelRow& label, int index) {
        const std::string name = label.NameOf(index);
        QWidget* target = this->LabelOf(name);
        this->GoTo(target);
        for (int position = position::Center; position <= position::Goalie; ++position) {
            this->Shown() = start;
            screen.Place();
            const int row = this->RowOfSomebodyAt(position);
            Lines expected = start;
            const bool takes = label.Takes.find(std::to_string(position)) != std::string::npos;
            if (takes)
                label.Slot(expected, index) = this->IdAt(row);
            DragEntry(screen.lstPlayer, row, target);
            EXPECT_TRUE(AreAlike(this->Shown(), expected)) << name << " and position " << position;
        }
    });
    EXPECT_THAT(this->Machine.Boxes(), IsEmpty());
}

TYPED_TEST(LinesDragTest, ADropIsThePickAndTheClickInOne)
{
    auto& screen = this->TheScreen();
    const Lines start = this->Shown();
    SlotLabel* slot = this->SlotOn(screen, LineField::NormalForward, 1, 2);
    const int row = this->RowOfSomebodyAt(position::Defense);

    this->Pick(screen, this->IdAt(row), position::Defense);
    this->ClickOn(screen, slot);
    const Lines byClicks = this->Shown();
    const auto words = this->Words();
    ASSERT_FALSE(AreAlike(byClicks, start));

    this->Shown() = start;
    screen.Place();
    screen.ShowPlayer();
    Modified = false;
    DragEntry(screen.lstPlayer, row, slot);
    EXPECT_TRUE(AreAlike(this->Shown(), byClicks));
    EXPECT_EQ(this->Words(), words);
    EXPECT_EQ(SelectedPlayer, this->IdAt(row));
    EXPECT_TRUE(Modified);
}

TYPED_TEST(LinesDragTest, ARefusedDropLeavesEverythingAsItWas)
{
    auto& screen = this->TheScreen();
    const Lines lines = this->Shown();
    EntryDragging drag(screen.lstPlayer, this->RowOfSomebodyAt(position::Goalie));
    const auto words = this->Words();
    drag.MoveTo(this->SlotOn(screen, LineField::NormalForward, 1, 1));
    drag.LetGo();
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
    EXPECT_EQ(this->Words(), words);
    EXPECT_FALSE(Modified);
    EXPECT_THAT(this->Machine.Boxes(), IsEmpty());
}

TYPED_TEST(LinesDragTest, ADropBesideTheSlotsDoesNothing)
{
    auto& screen = this->TheScreen();
    const Lines lines = this->Shown();
    const int row = this->RowOfSomebodyAt(position::Center);
    for (const QWidget* target :
         {static_cast<QWidget*>(screen.lstPlayer), static_cast<QWidget*>(screen.lblTeamName),
          static_cast<QWidget*>(screen.TabLine->Parts.Headings[0].Label), static_cast<QWidget*>(screen.cmdAutoLines)})
        DragEntry(screen.lstPlayer, row, target);
    EntryDragging outside(screen.lstPlayer, row);
    outside.MoveTo(&screen, QPoint(-200, -200));
    outside.LetGo();
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
    EXPECT_FALSE(Modified);
    EXPECT_THAT(this->Machine.Boxes(), IsEmpty());
}

TYPED_TEST(LinesDragTest, ASlotThatWasPassedOnTheWayTakesNothing)
{
    auto& screen = this->TheScreen();
    const long long first = this->Shown().NormalForward(1, 1);
    const int row = this->RowOfSomebodyAt(position::Center);
    EntryDragging drag(screen.lstPlayer, row);
    drag.MoveTo(this->SlotOn(screen, LineField::NormalForward, 1, 1));
    drag.MoveTo(this->SlotOn(screen, LineField::NormalForward, 2, 1));
    drag.LetGo();
    EXPECT_EQ(this->Shown().NormalForward(1, 1), first);
    EXPECT_EQ(this->Shown().NormalForward(2, 1), this->IdAt(row));
}

TYPED_TEST(LinesDragTest, NothingLandsBeforeTheButtonIsLetGo)
{
    auto& screen = this->TheScreen();
    const Lines lines = this->Shown();
    const int row = this->RowOfSomebodyAt(position::Center);
    EntryDragging drag(screen.lstPlayer, row);
    drag.MoveTo(this->SlotOn(screen, LineField::NormalForward, 1, 1));
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
    drag.LetGo();
    EXPECT_FALSE(AreAlike(this->Shown(), lines));
}

TYPED_TEST(LinesDragTest, OnlyASlotThatTakesHimShowsIt)
{
    auto& screen = this->TheScreen();
    SlotLabel* first = this->SlotOn(screen, LineField::NormalForward, 1, 1);
    SlotLabel* second = this->SlotOn(screen, LineField::NormalDefense, 2, 1);
    {
        EntryDragging drag(screen.lstPlayer, this->RowOfSomebodyAt(position::Center));
        drag.MoveTo(first);
        EXPECT_TRUE(first->IsDropTarget());
        drag.MoveTo(second);
        EXPECT_FALSE(first->IsDropTarget());
        EXPECT_TRUE(second->IsDropTarget());
        drag.LetGo();
        EXPECT_FALSE(second->IsDropTarget());
    }
    EntryDragging refused(screen.lstPlayer, this->RowOfSomebodyAt(position::Goalie));
    refused.MoveTo(first);
    EXPECT_FALSE(first->IsDropTarget());
    refused.LetGo();
}

TYPED_TEST(LinesDragTest, EscapeEndsADrag)
{
    auto& screen = this->TheScreen();
    const Lines lines = this->Shown();
    EntryDragging drag(screen.lstPlayer, this->RowOfSomebodyAt(position::Center));
    drag.MoveTo(this->SlotOn(screen, LineField::NormalForward, 1, 1));
    QTest::keyClick(screen.lstPlayer, Qt::Key_Escape);
    drag.LetGo();
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
    EXPECT_FALSE(Modified);
    EXPECT_TRUE(screen.isVisible());
}

TYPED_TEST(LinesDragTest, OverATabItsPageComesUpAndItsSlotsTakeTheDrop)
{
    auto& screen = this->TheScreen();
    const int row = this->RowOfSomebodyAt(position::Defense);
    const QTabBar* tabs = screen.TabLine->tabBar();
    SlotLabel* target = this->SlotOn(screen, LineField::PPDefense, 2, 1);
    ASSERT_FALSE(target->isVisible());
    EntryDragging drag(screen.lstPlayer, row);
    drag.MoveTo(tabs, tabs->tabRect(1).center());
    EXPECT_EQ(screen.TabLine->currentIndex(), 1);
    ASSERT_TRUE(target->isVisible());
    QApplication::processEvents();
    drag.MoveTo(target);
    drag.LetGo();
    EXPECT_EQ(this->Shown().PPDefense(2, 1), this->IdAt(row));
}

TYPED_TEST(LinesDragTest, AClickThatTremblesIsNoDrag)
{
    auto& screen = this->TheScreen();
    const Lines lines = this->Shown();
    QWidget* viewport = screen.lstPlayer->viewport();
    const QPoint point = screen.lstPlayer->visualItemRect(screen.lstPlayer->item(2)).center();
    QTest::mousePress(viewport, Qt::LeftButton, {}, point);
    QTest::mouseMove(viewport, point + QPoint(1, 1));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, point + QPoint(1, 1));
    EXPECT_EQ(SelectedPlayer, this->IdAt(2));
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
}

TYPED_TEST(LinesDragTest, AfterADropNothingOfTheDragIsLeft)
{
    auto& screen = this->TheScreen();
    // The advice on the day is another behind a drop.
    const auto countWidgets = [&screen] {
        return screen.template findChildren<QWidget*>().size() -
               screen.Advice->template findChildren<QWidget*>().size();
    };
    const auto widgets = countWidgets();
    SlotLabel* target = this->SlotOn(screen, LineField::NormalForward, 1, 1);
    DragEntry(screen.lstPlayer, this->RowOfSomebodyAt(position::Center), target);
    EXPECT_EQ(countWidgets(), widgets);
    EXPECT_FALSE(screen.lstPlayer->viewport()->testAttribute(Qt::WA_SetCursor));

    // A move without a button is none.
    const Lines lines = this->Shown();
    QTest::mouseMove(screen.lstPlayer->viewport(), QPoint(30, 30));
    QTest::mouseMove(target, QPoint(5, 5));
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
}

TYPED_TEST(LinesDragTest, AMoveOffTheListChoosesNobodyElse)
{
    auto& screen = this->TheScreen();
    const int row = this->RowOfSomebodyAt(position::Center);
    EntryDragging drag(screen.lstPlayer, row);
    drag.MoveTo(screen.lstPlayer->viewport(), screen.lstPlayer->visualItemRect(screen.lstPlayer->item(0)).center());
    drag.LetGo();
    EXPECT_EQ(SelectedPlayer, this->IdAt(row));
    EXPECT_TRUE(screen.lstPlayer->IsChosen(row));
    EXPECT_EQ(screen.lstPlayer->ChosenCount(), 1);
}

TYPED_TEST(LinesDragTest, EnterAndTheSpaceBarOnAFocusedSlotAreClicks)
{
    auto& screen = this->TheScreen();
    const Lines start = this->Shown();
    const int row = this->RowOfSomebodyAt(position::RightWing);
    SlotLabel* slot = this->SlotOn(screen, LineField::NormalForward, 1, 1);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        this->Shown() = start;
        screen.Place();
        this->Pick(screen, this->IdAt(row), position::RightWing);
        slot->setFocus();
        this->Press(slot, key);
        EXPECT_EQ(this->Shown().NormalForward(1, 1), this->IdAt(row)) << key;
        EXPECT_EQ(this->Of(slot), Players[this->IdAt(row)].Name.Trimmed()) << key;
    }
}

TYPED_TEST(LinesDragTest, TheKeysKeepTheRulesOfTheSlots)
{
    auto& screen = this->TheScreen();
    const Lines lines = this->Shown();
    const auto press = [&](int position, SlotLabel* slot) {
        this->Pick(screen, this->IdAt(this->RowOfSomebodyAt(position)), position);
        const auto words = this->Words();
        this->GoTo(slot);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            slot->setFocus();
            this->Press(slot, key);
        }
        EXPECT_EQ(this->Words(), words);
    };
    press(position::Goalie, this->SlotOn(screen, LineField::NormalForward, 1, 1));
    press(position::Center, this->SlotOn(screen, LineField::ExtraDefense, 1));
    press(position::Defense, this->SlotOn(screen, LineField::ExtraForward, 1));
    press(position::Center, this->StartSlot(screen).Label);
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
    EXPECT_FALSE(Modified);
}

TYPED_TEST(LinesDragTest, WithNobodyChosenTheKeysDoNothing)
{
    auto& screen = this->TheScreen();
    const Lines lines = this->Shown();
    SelectedPlayer = this->IdAt(this->RowOfSomebodyAt(position::RightWing));
    SlotLabel* slot = this->SlotOn(screen, LineField::NormalForward, 1, 1);
    slot->setFocus();
    this->Press(slot, Qt::Key_Return);
    this->Press(slot, Qt::Key_Space);
    EXPECT_TRUE(AreAlike(this->Shown(), lines));
    EXPECT_FALSE(Modified);
}

class FarmLinesDragTest : public OnLineScreen {};

TEST_F(FarmLinesDragTest, ThePlaceholderOfAPlayerEmptiesTheSlotItIsDroppedOn)
{
    frmFarmLine& farm = FarmLine();
    SlotLabel* slot = SlotOn(farm, LineField::NormalForward, 1, 1);
    DragEntry(farm.lstPlayer, farm.lstPlayer->RowOf(320001), slot);
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 0);
    EXPECT_EQ(Of(slot), "Unknown Player");
}

TEST_F(FarmLinesDragTest, ThePlaceholderOfAPlayerIsTakenByTheExtraDefense)
{
    frmFarmLine& farm = FarmLine();
    SlotLabel* slot = SlotOn(farm, LineField::ExtraDefense, 3);
    farm.TabLine->setCurrentIndex(5);
    Settle();
    ASSERT_TRUE(slot->isVisible());
    DragEntry(farm.lstPlayer, farm.lstPlayer->RowOf(320001), slot);
    EXPECT_EQ(FarmDay().ExtraDefense[3], 0);
    EXPECT_EQ(Of(slot), "Unknown Player");
}

TEST_F(FarmLinesDragTest, ThePlaceholderOfAGoalieIsTakenByTheGoalieSlotsAlone)
{
    frmFarmLine& farm = FarmLine();
    const long long center = FarmDay().NormalForward(1, 1);
    DragEntry(farm.lstPlayer, farm.lstPlayer->RowOf(320005), SlotOn(farm, LineField::NormalForward, 1, 1));
    EXPECT_EQ(FarmDay().NormalForward(1, 1), center);
    farm.TabLine->setCurrentIndex(7);
    Settle();
    ASSERT_TRUE(StartSlot(farm).Label->isVisible());
    DragEntry(farm.lstPlayer, farm.lstPlayer->RowOf(320005), StartSlot(farm).Label);
    EXPECT_EQ(FarmDay().StartGoalie, 0);
    EXPECT_EQ(Of(StartSlot(farm).Label), "Unknown Goalie");
}

} // namespace
} // namespace dravik
