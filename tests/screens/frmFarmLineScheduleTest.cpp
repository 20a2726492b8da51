#include "OnLineScreen.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

constexpr const char* NoGames = "Next Day Information Unavailable";

// The days of the farm's lines and the games that they are for.
class frmFarmLineScheduleTest : public OnLineScreen {
protected:
    frmFarmLineScheduleTest()
    {
        LeagueData.ScheduleShown = true;
        TeamMaker(6);
        Teams[6].Name = "Ironport Foxes";
        Teams[6].Farm.Name = "Ironport Cubs";
    }
    static void PutFarmGame(int row, int home, int away, bool isPlayed = false)
    {
        PutGame(row, home, away, true, isPlayed);
    }

    std::vector<long long> FoundRows()
    {
        std::vector<long long> rows;
        for (const Int16& row : FarmLine().GameRow)
            if (row != 0)
                rows.push_back(row);
        return rows;
    }
    void ExpectNoGames()
    {
        EXPECT_EQ(Of(FarmLine().lblGame), NoGames);
        EXPECT_FALSE(FarmLine().vscDay->isEnabled());
        EXPECT_FALSE(FarmLine().cmdCopy->isEnabled());
        EXPECT_TRUE(FarmLine().cmdCopyAll->isEnabled());
    }
    void ExpectGames(int count, int lastDay)
    {
        EXPECT_EQ(FoundRows().size(), static_cast<std::size_t>(count));
        EXPECT_EQ(FarmLine().vscDay->maximum(), lastDay);
        EXPECT_EQ(FarmLine().vscDay->minimum(), 1);
        EXPECT_TRUE(FarmLine().vscDay->isEnabled());
        EXPECT_TRUE(FarmLine().cmdCopy->isEnabled());
    }
};

TEST_F(frmFarmLineScheduleTest, NoGamesCloseTheDaysAndTheCopy) { ExpectNoGames(); }

TEST_F(frmFarmLineScheduleTest, OneGameLeavesOneDay)
{
    PutGames(1, true);
    ExpectGames(1, 1);
}

TEST_F(frmFarmLineScheduleTest, FourGamesLeaveFourDays)
{
    PutGames(4, true);
    ExpectGames(4, 4);
}

TEST_F(frmFarmLineScheduleTest, WithSevenGamesLeftTheDaysStopAtSeven)
{
    PutGames(7, true);
    ExpectGames(7, 7);
    FarmLine().vscDay->setValue(10);
    EXPECT_EQ(FarmLine().Day(), 7);
}

TEST_F(frmFarmLineScheduleTest, TenGamesLeaveTenDays)
{
    PutGames(10, true);
    ExpectGames(10, 10);
}

TEST_F(frmFarmLineScheduleTest, TheWalkStopsAtTenGames)
{
    PutGames(11, true);
    ExpectGames(10, 10);
    EXPECT_THAT(FoundRows(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
}

TEST_F(frmFarmLineScheduleTest, HomeGamesAndAwayGamesAreToldApart)
{
    PutFarmGame(2, 5, 6);
    PutFarmGame(3, 6, 5);
    const frmFarmLine& farm = FarmLine();
    EXPECT_FALSE(farm.GameIsAway[1]);
    EXPECT_TRUE(farm.GameIsAway[2]);
}

TEST_F(frmFarmLineScheduleTest, ATeamAgainstItselfPlaysAtHome)
{
    PutFarmGame(1, 5, 5);
    EXPECT_FALSE(FarmLine().GameIsAway[1]);
    EXPECT_EQ(Of(FarmLine().lblGame), "Lines 1 - For Game 101 vs Pebble Creek Ducks");
}

TEST_F(frmFarmLineScheduleTest, TheOpponentGoesByHisFarmsNameAtHomeAndAway)
{
    TeamMaker(7);
    Teams[7].Farm.Name = "Alder Bay Otters";
    PutFarmGame(40, 5, 6);
    PutFarmGame(41, 7, 5);
    frmFarmLine& farm = FarmLine();
    EXPECT_EQ(Of(farm.lblGame), "Lines 1 - For Game 140 vs Ironport Cubs");
    farm.vscDay->setValue(2);
    EXPECT_EQ(Of(farm.lblGame), "Lines 2 - For Game 141 vs Alder Bay Otters");
}

TEST_F(frmFarmLineScheduleTest, PlayedGamesAreNoneOfTheNext)
{
    PutFarmGame(1, 5, 6, true);
    PutFarmGame(2, 6, 5);
    PutFarmGame(3, 5, 6, true);
    PutFarmGame(4, 5, 6);
    EXPECT_THAT(FoundRows(), ElementsAre(2, 4));
}

TEST_F(frmFarmLineScheduleTest, GamesOfOthersAreNoneOfTheNext)
{
    PutFarmGame(1, 6, 7);
    PutFarmGame(2, 6, 5);
    EXPECT_THAT(FoundRows(), ElementsAre(2));
}

TEST_F(frmFarmLineScheduleTest, AProGameInTheRowIsNotTheFarms)
{
    PutGame(1, 5, 6);
    ExpectNoGames();
}

TEST_F(frmFarmLineScheduleTest, AProGameAndAFarmGameOfOneRowAreKeptApart)
{
    PutGame(1, 5, 6);
    PutFarmGame(1, 6, 5);
    GameSchedule[1].ProPlayed = true;
    PutGame(2, 6, 7);
    PutFarmGame(2, 5, 6);
    PutGame(3, 5, 6);
    PutFarmGame(3, 6, 7);
    EXPECT_THAT(FoundRows(), ElementsAre(1, 2));
    EXPECT_TRUE(FarmLine().GameIsAway[1]);
    EXPECT_FALSE(FarmLine().GameIsAway[2]);
}

TEST_F(frmFarmLineScheduleTest, APlayedFarmGameIsOverThoughTheProGameIsNot)
{
    PutGame(1, 5, 6);
    PutFarmGame(1, 5, 6, true);
    ExpectNoGames();
}

TEST_F(frmFarmLineScheduleTest, TeamsInARowWithoutAFarmGameAreNoGame)
{
    PutFarmGame(1, 5, 6);
    GameSchedule[1].FarmGame = false;
    ExpectNoGames();
}

TEST_F(frmFarmLineScheduleTest, AWordOfOneIsNoFarmGame)
{
    PutFarmGame(1, 5, 6);
    GameSchedule[1].FarmGame.SetWord(1);
    ExpectNoGames();
}

TEST_F(frmFarmLineScheduleTest, TheLastRowOfTheCalendarIsReached)
{
    PutFarmGame(5000, 6, 5);
    EXPECT_THAT(FoundRows(), ElementsAre(5000));
    EXPECT_EQ(Of(FarmLine().lblGame), "Lines 1 - For Game 5100 vs Ironport Cubs");
}

TEST_F(frmFarmLineScheduleTest, AScheduleThatIsNotShownHasNoGames)
{
    PutGames(4, true);
    LeagueData.ScheduleShown = false;
    ExpectNoGames();
}

TEST_F(frmFarmLineScheduleTest, ABlockedScheduleHasNoGames)
{
    PutGames(4, true);
    LeagueData.ScheduleBlocked = 1;
    ExpectNoGames();
}

TEST_F(frmFarmLineScheduleTest, AChangeOfDayShowsThatDayAndGoesBackToTheFirstTab)
{
    PutGames(4, true);
    FarmDay(3).NormalForward(1, 1) = 20;
    frmFarmLine& farm = FarmLine();
    farm.TabLine->setCurrentIndex(4);
    Modified = false;
    QTest::mouseClick(farm.vscDay, Qt::LeftButton, {}, farm.vscDay->CellOf(3).center());
    Settle();
    EXPECT_EQ(farm.Day(), 3);
    EXPECT_EQ(farm.TabLine->currentIndex(), 0);
    EXPECT_EQ(Of(SlotOn(farm, LineField::NormalForward, 1)), "Skater 20");
    EXPECT_EQ(Of(SlotOn(farm, LineField::NormalForward, 2)), "Unknown Player");
    EXPECT_TRUE(Modified);
}

TEST_F(frmFarmLineScheduleTest, ADayThatOnlyTheCalendarCutsOffCannotBeReached)
{
    PutGames(4, true);
    frmFarmLine& farm = FarmLine();
    QTest::mouseClick(farm.vscDay, Qt::LeftButton, {}, farm.vscDay->CellOf(5).center());
    Settle();
    EXPECT_EQ(farm.Day(), 1);
}

TEST_F(frmFarmLineScheduleTest, AnOpponentOutOfTheTableFailsInPlaceAndTheScreenStaysOpen)
{
    PutFarmGame(1, 5, 101);
    OpenFrom(MainWithLeague(), "FarmLine", "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"}));
    EXPECT_NE(TheStage.Find("FarmLine"), nullptr);
}

} // namespace
} // namespace dravik
