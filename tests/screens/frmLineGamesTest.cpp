#include "OnLineScreen.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The walk through the calendar, the days and the heading of the game.
class LineGames : public OnLineScreen {
protected:
    static std::vector<long long> Rows(const LinesScreen& screen)
    {
        std::vector<long long> rows;
        for (const Int16& row : screen.GameRow)
            rows.push_back(row);
        return rows;
    }

    // Opens the screen anew, after the calendar changed.
    frmLine& Anew()
    {
        if (TheStage.Find("Line") != nullptr)
            Click(Line().cmdExit);
        return Line();
    }

    static void ClickDay(LinesScreen& screen, int day)
    {
        QTest::mouseClick(screen.vscDay, Qt::LeftButton, {}, screen.vscDay->CellOf(day).center());
        Settle();
    }
};

TEST_F(LineGames, WithoutAGameThereIsOneDay)
{
    PutGames(0);
    frmLine& line = Line();
    EXPECT_THAT(Rows(line), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_FALSE(line.vscDay->isEnabled());
    EXPECT_FALSE(line.cmdCopy->isEnabled());
    EXPECT_TRUE(line.cmdCopyAll->isEnabled());
    EXPECT_EQ(Of(line.lblGame), "Next Day Information Unavailable");
    ClickDay(line, 2);
    EXPECT_EQ(line.Day(), 1);
}

TEST_F(LineGames, OneGameMakesOneDay)
{
    PutGames(1);
    frmLine& line = Line();
    EXPECT_TRUE(line.vscDay->isEnabled());
    EXPECT_TRUE(line.cmdCopy->isEnabled());
    EXPECT_EQ(line.vscDay->maximum(), 1);
    EXPECT_EQ(Of(line.lblGame), "Lines 1 - For Game 101 vs Ironport Foxes");
}

TEST_F(LineGames, FourGamesMakeFourDays)
{
    PutGames(4);
    EXPECT_EQ(Line().vscDay->maximum(), 4);
    EXPECT_THAT(Rows(Line()), ElementsAre(1, 2, 3, 4, 0, 0, 0, 0, 0, 0));
}

TEST_F(LineGames, WithSevenGamesTheDaysStopAtSeven)
{
    PutGames(7);
    frmLine& line = Line();
    EXPECT_EQ(line.vscDay->maximum(), 7);
    line.vscDay->setValue(9);
    EXPECT_EQ(line.Day(), 7);
    ClickDay(line, 8);
    EXPECT_EQ(line.Day(), 7);
    ClickDay(line, 6);
    EXPECT_EQ(line.Day(), 6);
}

TEST_F(LineGames, TenGamesMakeTenDays)
{
    PutGames(10);
    frmLine& line = Line();
    EXPECT_EQ(line.vscDay->maximum(), 10);
    EXPECT_EQ(line.GameRow[10], 10);
}

TEST_F(LineGames, TheWalkStopsAtTheTenthGame)
{
    PutGames(13);
    EXPECT_THAT(Rows(Line()), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
    EXPECT_EQ(Line().vscDay->maximum(), 10);
}

TEST_F(LineGames, HomeAndAwayAreToldApartAndTheHeadingSaysVsForBoth)
{
    PutGames(2);
    frmLine& line = Line();
    EXPECT_FALSE(static_cast<bool>(line.GameIsAway[1]));
    EXPECT_TRUE(static_cast<bool>(line.GameIsAway[2]));
    ClickDay(line, 2);
    EXPECT_EQ(Of(line.lblGame), "Lines 2 - For Game 102 vs Ironport Foxes");
}

TEST_F(LineGames, OnlyOwnUnplayedProGamesCount)
{
    PutGames(1);
    TeamMaker(7);
    PutGame(2, 5, 6, false, true); // played
    PutGame(3, 6, 7);              // of others
    PutGame(4, 5, 6, true);        // the farm's
    PutGame(5, 6, 5);              // counts
    GameSchedule[6].ProHome = 5;   // no game at all
    PutGame(7, 5, 6);
    GameSchedule[7].ProPlayed.SetWord(1); // neither played nor not
    PutGame(8, 5, 6);
    GameSchedule[8].ProGame.SetWord(1);
    PutGame(5000, 5, 6); // the last row counts too
    EXPECT_THAT(Rows(Line()), ElementsAre(1, 5, 5000, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(LineGames, ARowCanHoldAProGameAndAFarmGame)
{
    PutGames(1);
    TeamMaker(7);
    Teams[7].Farm.Name = "Grover Pups";
    GameSchedule[1].FarmGame = true;
    GameSchedule[1].FarmHome = 7;
    GameSchedule[1].FarmAway = 5;
    EXPECT_EQ(Of(Line().lblGame), "Lines 1 - For Game 101 vs Ironport Foxes");
    EXPECT_FALSE(static_cast<bool>(Line().GameIsAway[1]));
    Click(Line().cmdExit);
    EXPECT_EQ(Of(FarmLine().lblGame), "Lines 1 - For Game 101 vs Grover Pups");
    EXPECT_TRUE(static_cast<bool>(FarmLine().GameIsAway[1]));
}

TEST_F(LineGames, ATeamThatPlaysItselfIsAtHome)
{
    PutGames(0);
    PutGame(1, 5, 5);
    EXPECT_FALSE(static_cast<bool>(Line().GameIsAway[1]));
    EXPECT_EQ(Of(Line().lblGame), "Lines 1 - For Game 101 vs Harbour City Gulls");
}

TEST_F(LineGames, AScheduleThatIsNotShownOrIsBlockedHoldsNoGames)
{
    PutGames(3);
    LeagueData.ScheduleShown = false;
    EXPECT_EQ(Of(Anew().lblGame), "Next Day Information Unavailable");
    LeagueData.ScheduleShown.SetWord(1);
    EXPECT_EQ(Of(Anew().lblGame), "Next Day Information Unavailable");
    LeagueData.ScheduleShown = true;
    for (const int blocked : {1, -1, 2}) {
        LeagueData.ScheduleBlocked = blocked;
        EXPECT_EQ(Of(Anew().lblGame), "Next Day Information Unavailable") << blocked;
    }
    LeagueData.ScheduleBlocked = 0;
    EXPECT_EQ(Of(Anew().lblGame), "Lines 1 - For Game 101 vs Ironport Foxes");
}

TEST_F(LineGames, AnOpponentWhoIsNoTeamEndsThePlacing)
{
    PutGames(1);
    GameSchedule[1].ProAway = 101;
    OpenFrom(MainWithLeague(), "Line", "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"}));
    EXPECT_TRUE(Line().isVisible());
}

TEST_F(LineGames, AChangeOfDayShowsTheDayGoesBackToTheFirstTabAndJudges)
{
    PutGames(10);
    FillDay(ProDay(3), Pro);
    frmLine& line = Line();
    line.TabLine->setCurrentIndex(5);
    Modified = false;
    ClickDay(line, 3);
    EXPECT_EQ(line.Day(), 3);
    EXPECT_EQ(line.TabLine->currentIndex(), 0);
    EXPECT_EQ(Of(line.lblComplete), "Lines are Complete");
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Of(SlotOn(line, LineField::PPForward, 1, 1)), Players[ProDay(3).PPForward(1, 1)].Name.Trimmed());
    ClickDay(line, 4);
    EXPECT_EQ(Of(line.lblComplete), "Lines are Incomplete");
    EXPECT_EQ(Of(SlotOn(line, LineField::PPForward, 1, 1)), "");
}

TEST_F(LineGames, ArrowKeysGoFromDayToDay)
{
    PutGames(3);
    frmLine& line = Line();
    line.vscDay->setFocus();
    Press(line.vscDay, Qt::Key_Right);
    EXPECT_EQ(line.Day(), 2);
    Press(line.vscDay, Qt::Key_End);
    EXPECT_EQ(line.Day(), 3);
    Press(line.vscDay, Qt::Key_Left);
    EXPECT_EQ(line.Day(), 2);
    Press(line.vscDay, Qt::Key_Home);
    EXPECT_EQ(line.Day(), 1);
}

TEST_F(LineGames, AllTenDaysAreOneClickAway)
{
    PutGames(10);
    frmLine& line = Line();
    for (int day = 10; day >= 1; --day) {
        ClickDay(line, day);
        EXPECT_EQ(line.Day(), day);
        EXPECT_EQ(Of(line.lblGame),
                  "Lines " + std::to_string(day) + " - For Game " + std::to_string(day + 100) + " vs Ironport Foxes");
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
