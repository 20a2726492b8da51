#include "OnMainScreen.h"
#include "OnTeamScreen.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class MainLists : public OnMainScreen {
protected:
    void SetUp() override { PutTwelveTeams(); }

    // Renames the team whose screen is open, in its box.
    void Rename(const QString& name)
    {
        EditBox* box = TeamScreen()->txtTeamName;
        TypeInto(box, name);
        Press(box, Qt::Key_Tab);
    }
};

// Team 13 belongs to no division: placing the teams ends at it, with the twelve others listed and no list ready.
TEST_F(MainLists, ADoubleClickTakesItsTeamThoughTheListsAreNotReady)
{
    PutTeam(13, 7);
    Main().PlaceTeam();
    Settle();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in PlaceTeam!"}));
    ClickEntry(2, 1);
    ASSERT_EQ(CurrentTeam, 0);
    DoubleClickEntry(2, 1);
    EXPECT_EQ(CurrentTeam, 8);
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(MainLists, ADoubleClickWithAWrongPasswordTakesItsTeamThoughTheListsAreNotReady)
{
    PutTeam(13, 7);
    Teams[8].Password = DigestOfA;
    Main().PlaceTeam();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in PlaceTeam!"}));
    Machine.Type("b");
    DoubleClickEntry(2, 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
    EXPECT_EQ(CurrentTeam, 8);
    EXPECT_EQ(TeamScreen(), nullptr);
}

// While a click clears the other lists, a click among them is held back and a double click is not.
TEST_F(MainLists, OnlyADoubleClickIsTakenWhileAnotherListsClickIsAtWork)
{
    MainWithLeague();
    ClickEntry(4, 1);
    ASSERT_EQ(CurrentTeam, 10);
    bool clicked = false;
    QObject::connect(Main().lstDivision[4], &QListWidget::itemSelectionChanged, &Main(), [&] {
        if (std::exchange(clicked, true))
            return;
        EXPECT_EQ(CurrentTeam, 1); // the click on list 1 is at work
        ClickEntry(2, 1);
        EXPECT_EQ(CurrentTeam, 1);
        EXPECT_EQ(TeamScreen(), nullptr);
        DoubleClickEntry(2, 1);
        EXPECT_EQ(CurrentTeam, 8);
    });
    Main().lstDivision[1]->setFocus();
    Press(Main().lstDivision[1], Qt::Key_Down);
    EXPECT_TRUE(clicked);
    EXPECT_EQ(CurrentTeam, 8);
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_EQ(TeamScreen()->txtTeamName->text(), "Team 8");
}

TEST_F(MainLists, WithFourListsTheTeamsOfDivisions3And6StandInListsNobodySees)
{
    LeagueData.DivisionCount = 4;
    MainWithLeague();
    EXPECT_THAT(Listed(3), ElementsAre(Pair("Team 3", 3), Pair("Team 9", 9)));
    EXPECT_THAT(Listed(6), ElementsAre(Pair("Team 6", 6), Pair("Team 12", 12)));
    EXPECT_FALSE(Main().lstDivision[3]->isVisible());
    EXPECT_FALSE(Main().lstDivision[6]->isVisible());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(MainLists, ARenamedTeamIsListedAnewWithoutAChoiceAndStaysTheCurrentOne)
{
    MainWithLeague();
    DoubleClickEntry(2, 1);
    ASSERT_EQ(ChosenEntries(), 1);
    Rename("Ironport Foxes");
    Click(TeamScreen()->cmdExit);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Listed(2), ElementsAre(Pair("Team 2", 2), Pair("Ironport Foxes", 8)));
    EXPECT_EQ(ChosenEntries(), 0);
    EXPECT_EQ(CurrentTeam, 8);
    Main().mnuViewTeam->trigger();
    Settle();
    ASSERT_NE(TeamScreen(), nullptr);
    EXPECT_EQ(TeamScreen()->txtTeamName->text(), "Ironport Foxes");
}

TEST_F(MainLists, ARenameWithFourListsLeavesTheHiddenTeamsHidden)
{
    LeagueData.DivisionCount = 4;
    OpenTeam(9);
    Rename("Ironport Foxes");
    Click(TeamScreen()->cmdExit);
    EXPECT_THAT(Listed(3), ElementsAre(Pair("Team 3", 3), Pair("Ironport Foxes", 9)));
    EXPECT_FALSE(Main().lstDivision[3]->isVisible());
    EXPECT_EQ(ChosenEntries(), 0);
    EXPECT_EQ(CurrentTeam, 9);
}

TEST_F(MainLists, AClickThatChoosesNoEntryDoesNothing)
{
    EntryList* list = MainWithLeague().lstDivision[1];
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->item(0)).center());
    Settle();
    const long long chosen = CurrentTeam;
    ASSERT_EQ(chosen, list->item(0)->data(entry::NumberRole).toInt());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(list->viewport()->width() / 2, list->viewport()->height() - 2));
    Settle();
    ASSERT_NE(list->Chosen(), nullptr);
    EXPECT_EQ(list->Chosen(), list->item(0));
    EXPECT_EQ(CurrentTeam, chosen);
}

} // namespace
} // namespace dravik
