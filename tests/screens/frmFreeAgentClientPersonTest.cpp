#include "OnOfferScreen.h"
#include "screens/player/frmEditPlayer.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using OfferPerson = OnOfferScreen;

TEST_F(OfferPerson, ASkatersRatingsStandInTheirRows)
{
    Player& player = FreeSkater(1);
    for (int stat = 1; stat <= 15; ++stat)
        player.Stats[stat] = 60 + stat;
    LeagueData.ShowOverall = false;
    Open();
    EXPECT_THAT(Rows(), ElementsAre("CK 61", "FG 62", "DI 63", "SK 64", "ST 65", "DU 66", "PH 67", "FO 68", "PA 69",
                                    "SC 70", "DF 71", "EX 72", "LD 73", "MO 74", "PO 75"));
}

TEST_F(OfferPerson, AGoaliesRatingsAndOverallStandInTheirRows)
{
    FreeGoalie(2, 6, 30);
    Open();
    EXPECT_THAT(Rows(), ElementsAre("SK 60", "DU 60", "ST 60", "SZ 60", "AG 60", "RB 60", "SC 60", "HS 60", "RT 60",
                                    "EX 60", "LD 60", "MO 60", "PO 60", "OV 60"));
}

TEST_F(OfferPerson, GroupsAreMeansRoundedToTheNearestNumber)
{
    LeagueData.ShowAllRatings = false;
    PlayerStatCount = 7;
    GoalieStatCount = 7;
    LeagueData.ShowOverall = false;
    Player& player = FreeSkater(1);
    player.Stats[skater::CK] = 44; // (44 + 60 + 60) / 3
    player.Stats[skater::SK] = 61;
    player.Stats[skater::SC] = 71;
    Goalie& keeper = FreeGoalie(1);
    keeper.Stats[goalie::SK] = 61;
    keeper.Stats[goalie::EX] = 70;
    Open();
    EXPECT_THAT(Rows(), ElementsAre("IT 55", "PY 60", "PC 60", "SC 71", "DF 60", "ME 60", "PO 60"));
    ClickEntry(1);
    EXPECT_THAT(Rows(), ElementsAre("PH 60", "RD 60", "SC 60", "HS 60", "RT 60", "ME 63", "PO 60"));
}

TEST_F(OfferPerson, RowsOfTheOneBeforeAreHidden)
{
    LeagueData.ShowOverall = true;
    FreeSkater(1);
    FreeGoalie(1);
    Open();
    EXPECT_EQ(Rows().size(), 16U);
    ClickEntry(1);
    EXPECT_EQ(Rows().size(), 14U);
}

TEST_F(OfferPerson, AgeAndPresentSalaryAreShownAndCannotBeChanged)
{
    Player& player = FreeSkater(1, 6, 29);
    player.Salary = 1250000;
    Open();
    EXPECT_EQ(Of(Offers().txtAge), "29");
    EXPECT_EQ(Of(Offers().txtSalary), "1250000");
    EXPECT_EQ(Offers().txtSalary->toolTip(), "$1,250,000");
    EXPECT_FALSE(Offers().txtAge->isEnabled());
    EXPECT_FALSE(Offers().txtSalary->isEnabled());
}

TEST_F(OfferPerson, AgeAndPresentSalaryHaveTheRoomOfTheirLargestNumbersAndNotMuchMore)
{
    FreeSkater(1, 6, 29).Salary = 2147483647;
    Open();
    const auto holds = [](const EditBox& box, const QString& least, const QString& most) {
        EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(least)) << box.objectName().toStdString();
        EXPECT_LE(box.width(), box.fontMetrics().horizontalAdvance(most)) << box.objectName().toStdString();
    };
    holds(*Offers().txtAge, "000", "00000");
    holds(*Offers().txtSalary, "000000000000", "00000000000000");
}

TEST_F(OfferPerson, TheStatusGoesByAgeAndTeam)
{
    LeagueData.OfferRuleFlag = true;
    FreeSkater(1, 6, 30);
    FreeSkater(2, 6, 31);
    FreeSkater(3, 0, 30);
    FreeSkater(4, 5, 30);
    FreeGoalie(1, 6, 30);
    FreeGoalie(2, 0, 30);
    Open();
    const char* expected[] = {"Status : RFA", "Status : UFA", "Status : UFA",
                              "Status : RFA", "Status : RFA", "Status : UFA"};
    for (int row = 0; row < 6; ++row) {
        ClickEntry(row);
        EXPECT_EQ(Of(Offers().lblStatus), expected[row]) << row;
    }
}

TEST_F(OfferPerson, ShowingSomebodyGivesHisOfferItsId)
{
    FreeSkater(1);
    FreeGoalie(3);
    Open();
    EXPECT_EQ(OfferOf(1).Id, 1);
    EXPECT_EQ(OfferOf(10003).Id, 0);
    ClickEntry(1);
    EXPECT_EQ(OfferOf(10003).Id, 10003);
    EXPECT_EQ(Offers().OfferIndex(), 10003);
}

TEST_F(OfferPerson, TheBoxesShowHisOffer)
{
    FreeSkater(1);
    FreeSkater(2);
    Open();
    Offer(2);
    OfferOf(2).Bonus = -7;
    OfferOf(2).Comment = "  A word \xE9 ";
    ClickEntry(1);
    EXPECT_THAT(Boxes(), ElementsAre("750000", "2", "-7", "A word \xC3\xA9"));
    ClickEntry(0);
    EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", ""));
}

TEST_F(OfferPerson, AYoungPlayerOfAnotherTeamCanBeSelectedAndHisBoxesStayClosed)
{
    FreeSkater(1, 6, 22);
    FreeSkater(2, 6, 21);
    Open();
    Enter(Offers().txtOffer, "600000");
    EnterComment("Come");
    ClickEntry(1);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{48, "Skater 2 is not allowed to sign with another team that Pebble Creek Ducks."}));
    EXPECT_EQ(Offers().lstPlayers->currentRow(), 1);
    EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", ""));
    EXPECT_FALSE(BoxesAreOpen());
    EXPECT_EQ(OfferOf(2).Id, 0);
    EXPECT_EQ(Of(Offers().lblStatus), "Status : RFA");
    EXPECT_EQ(Of(Offers().txtAge), "21");
    EXPECT_EQ(Rows().size(), 16U);
    ClickEntry(0);
    EXPECT_TRUE(BoxesAreOpen()) << "the next one opens them again";
    EXPECT_THAT(Boxes(), ElementsAre("600000", "0", "0", "Come"));
}

TEST_F(OfferPerson, NothingIsWrittenForABlockedPlayer)
{
    FreeSkater(1, 6, 21);
    Open();
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{48, "Skater 1 is not allowed to sign with another team that Pebble Creek Ducks."}));
    OfferOf(1).Salary = 750000;
    OfferOf(1).Duration = 3;
    Click(Offers().cmdSaveToFile);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Offer to Save!"}));
}

TEST_F(OfferPerson, AYoungGoalieOfAnotherTeamIsBlockedToo)
{
    FreeGoalie(4, 6, 21);
    Open();
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{48, "Goalie 4 is not allowed to sign with another team that Pebble Creek Ducks."}));
    EXPECT_FALSE(BoxesAreOpen());
    EXPECT_EQ(OfferOf(10004).Id, 0);
}

TEST_F(OfferPerson, AYoungPlayerOfTheOwnTeamOrOfNobodyIsNotBlocked)
{
    LeagueData.OfferRuleFlag = true;
    FreeSkater(1, 5, 18);
    FreeSkater(2, 0, 18);
    FreeGoalie(1, 5, 18);
    Open();
    for (int row = 0; row < 3; ++row) {
        ClickEntry(row);
        EXPECT_TRUE(BoxesAreOpen()) << row;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferPerson, TheGoalieOfSlot999IsShown)
{
    FreeGoalie(999);
    Open();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(BoxesAreOpen());
    EXPECT_EQ(OfferOf(10999).Id, 10999);
}

TEST_F(OfferPerson, TheGoalieOfSlot1000IsListedAndCannotBeShown)
{
    FreeGoalie(999);
    FreeGoalie(1000);
    Open();
    EXPECT_EQ(Listed(), (Entries{{"Goalie 999 (G)*", 10999}, {"Goalie 1000 (G)*", 11000}}));
    ClickEntry(1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(OfferOf(11000).Id, 0);
    EXPECT_EQ(Of(Offers().txtAge), "25") << "what the one before had stays";
}

TEST_F(OfferPerson, AnEntryWhoseSlotIsNotInUseCannotBeShown)
{
    FreeSkater(1).Number = 9;
    Open();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(OfferPerson, AFailureIsReportedWithAFullStop)
{
    FreeSkater(1, 101, 21); // a team that is none
    Open();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in LstPlayers Click."}));
    EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", ""));
}

TEST_F(OfferPerson, ADoubleClickShowsTheRecordAndTheOffersAreKept)
{
    FreeSkater(1);
    FreeGoalie(4);
    Open();
    Enter(Offers().txtOffer, "600000");
    DoubleClickEntry(1);
    ASSERT_NE(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_EQ(SelectedPlayer, 4);
    EXPECT_TRUE(SelectedIsGoalie);
    EXPECT_EQ(ViewerReturnMode, 3);
    EXPECT_FALSE(Offers().isVisible());
    TheStage.Find("EditPlayer")->close();
    Settle();
    EXPECT_TRUE(Offers().isVisible());
    EXPECT_FALSE(Main().isVisible());
    EXPECT_EQ(OfferOf(1).Salary, 600000);
    EXPECT_EQ(Offers().lstPlayers->currentRow(), 1);
}

TEST_F(OfferPerson, EnterShowsTheRecordOfASkater)
{
    FreeSkater(3);
    Open();
    SelectedIsGoalie = true;
    Press(Offers().lstPlayers, Qt::Key_Return);
    ASSERT_NE(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_EQ(SelectedPlayer, 3);
    EXPECT_FALSE(SelectedIsGoalie);
}

TEST_F(OfferPerson, ArrowsAndLettersChooseAsAClickDoes)
{
    FreeSkater(1).Name = "Ari Nieminen";
    FreeSkater(2).Name = "Oskar Brandt";
    FreeSkater(3).Name = "Olle Frisk";
    Open();
    PickList* list = Offers().lstPlayers;
    list->setFocus();
    Press(list, Qt::Key_Down);
    EXPECT_EQ(Offers().OfferIndex(), 2);
    Press(list, Qt::Key_End);
    EXPECT_EQ(Offers().OfferIndex(), 3);
    Press(list, Qt::Key_Home);
    EXPECT_EQ(Offers().OfferIndex(), 1);
    QTest::keyClick(list, 'o');
    QTest::keyClick(list, 'l');
    Settle();
    EXPECT_EQ(Offers().OfferIndex(), 3);
}

using OfferSearch = OnOfferScreen;

TEST_F(OfferSearch, AsksAndChoosesTheFirstEntryThatContainsTheAnswer)
{
    FreeSkater(1).Name = "Ward Tilton";
    FreeSkater(2).Name = "Marek Zelinka";
    FreeSkater(3).Name = "Zel Zelinka";
    Open();
    Machine.Type("ZEL");
    Click(Offers().cmdSearch);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Complete or Part of the Player Name?", "Player Search"}));
    EXPECT_EQ(Offers().lstPlayers->currentRow(), 1);
    EXPECT_EQ(Offers().OfferIndex(), 2);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferSearch, LooksAtTheWholeTextOfAnEntry)
{
    FreeSkater(1, 6, 31);
    FreeSkater(2, 6, 30);
    Open();
    Machine.Type(")-rfa");
    Click(Offers().cmdSearch);
    EXPECT_EQ(Offers().OfferIndex(), 2);
}

TEST_F(OfferSearch, TellsWhenNobodyFits)
{
    FreeSkater(1);
    FreeSkater(2);
    Open();
    ClickEntry(1);
    Machine.Type("Gretel");
    Click(Offers().cmdSearch);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}));
    EXPECT_EQ(Offers().lstPlayers->currentRow(), 1);
}

TEST_F(OfferSearch, ACancelledSearchChoosesTheFirstEntry)
{
    FreeSkater(1);
    FreeSkater(2);
    Open();
    ClickEntry(1);
    Click(Offers().cmdSearch);
    EXPECT_EQ(Offers().lstPlayers->currentRow(), 0);
    EXPECT_EQ(Offers().OfferIndex(), 1);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Complete or Part of the Player Name?", "Player Search"}));
}

TEST_F(OfferSearch, FindsNobodyInAnEmptyList)
{
    Open();
    Machine.Type("");
    Click(Offers().cmdSearch);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}));
}

} // namespace
} // namespace dravik
