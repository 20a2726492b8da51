#include "OnAnyScreen.h"

// What a mouse button may do to a list of entries, on every list of every screen.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EntryButtons : public OnAnyScreen {
protected:
    static std::vector<EntryList*> ListsOf(const Screen& screen)
    {
        std::vector<EntryList*> lists;
        for (EntryList* list : screen.findChildren<EntryList*>())
            if (list->isVisible() && list->count() > 1)
                lists.push_back(list);
        return lists;
    }

    static void ClickWith(EntryList* list, int row, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
    {
        QTest::mouseClick(list->viewport(), button, modifiers, list->visualItemRect(list->item(row)).center());
        Settle();
    }

    static std::vector<int> ChosenRowsOf(const EntryList* list)
    {
        std::vector<int> rows;
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->isSelected())
                rows.push_back(row);
        return rows;
    }
};

constexpr const char* Names[] = {"Main", "Roster", "Line", "FarmLine", "FreeAgent", "Draft", "EditPlayer"};
constexpr Qt::MouseButton OtherButtons[] = {Qt::RightButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton};
constexpr Qt::KeyboardModifier Modifiers[] = {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier};

TEST_F(EntryButtons, OnEveryListOnlyTheLeftButtonChoosesAndMakesCurrent)
{
    EachOf(Names, [](Screen& screen, const std::string& name) {
        const std::vector<EntryList*> lists = ListsOf(screen);
        EXPECT_FALSE(lists.empty()) << name;
        for (EntryList* list : lists) {
            list->setEnabled(true);
            ClickWith(list, 0, Qt::LeftButton, Qt::NoModifier);
            ASSERT_EQ(list->currentRow(), 0) << name;
            for (const Qt::MouseButton button : OtherButtons)
                for (const Qt::KeyboardModifier modifiers : Modifiers) {
                    ClickWith(list, 1, button, modifiers);
                    EXPECT_EQ(list->currentRow(), 0) << name << ' ' << button << ' ' << modifiers;
                    EXPECT_THAT(ChosenRowsOf(list), ElementsAre(0)) << name << ' ' << button << ' ' << modifiers;
                }
            ClickWith(list, 1, Qt::LeftButton, Qt::NoModifier);
            EXPECT_EQ(list->currentRow(), 1) << name;
        }
    });
}

TEST_F(EntryButtons, OnEveryListTheFocusMakesNobodyCurrent)
{
    EachOf(Names, [](Screen& screen, const std::string& name) {
        for (EntryList* list : ListsOf(screen)) {
            list->setEnabled(true);
            list->clearFocus();
            list->Unchoose();
            list->setFocus(Qt::TabFocusReason);
            ASSERT_TRUE(list->hasFocus()) << name;
            EXPECT_EQ(list->currentRow(), -1) << name;
            Press(list, Qt::Key_Down);
            EXPECT_EQ(list->currentRow(), 0) << name;
            EXPECT_THAT(ChosenRowsOf(list), ElementsAre(0)) << name;
        }
    });
}

// Pressed on one of several chosen entries, the right button would make him current without a word.
TEST_F(EntryButtons, TheStarGoesToThePersonOnShowWhateverOtherButtonsTouched)
{
    OpenScreen("Roster");
    const Entries before = Listed(1);
    ASSERT_GE(before.size(), 3U);
    ClickEntry(1, 0);
    ASSERT_EQ(SelectedPlayer, 900);
    PickList* scratches = Roster().lstPlayer[1];
    for (const Qt::MouseButton button : OtherButtons)
        for (const Qt::KeyboardModifier modifiers : Modifiers) {
            ClickWith(scratches, 1, button, modifiers);
            ClickWith(scratches, 2, button, modifiers);
        }
    Click(Roster().cmdTradeAvailable);
    EXPECT_EQ(EntryTextAt(1, 0), "Skater 900*");
    Click(Roster().cmdTradeAvailable);
    EXPECT_EQ(Listed(1), before);
    for (const int index : {900, 901, 902})
        EXPECT_FALSE(Players[index].TradeAvailable) << index;
}

TEST_F(EntryButtons, AnotherButtonOnOneOfSeveralChosenEntriesLeavesThemAsTheyAre)
{
    OpenScreen("Roster");
    ClickEntry(1, 0);
    ClickEntry(1, 1, Qt::ControlModifier);
    PickList* scratches = Roster().lstPlayer[1];
    ClickWith(scratches, 0, Qt::RightButton, Qt::NoModifier);
    EXPECT_THAT(ChosenRowsOf(scratches), ElementsAre(0, 1));
    EXPECT_EQ(scratches->currentRow(), 1);
    EXPECT_EQ(SelectedPlayer, 901);
}

} // namespace
} // namespace dravik
