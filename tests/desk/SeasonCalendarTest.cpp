#include "desk/SeasonCalendar.h"

#include "LinesDesk.h"

namespace dravik {
namespace {

using ::testing::IsEmpty;

class SeasonCalendarTest : public LinesDesk {
protected:
    SeasonCalendarTest()
    {
        LeagueData.ScheduleShown = true;
        TeamMaker(6).Dresses(2, position::Center, 70).DressesGoalies(1, 80);
        for (int number = 0; number < 14; ++number)
            Put(101 + number, 50 + number + (number >= 3 ? 1 : 0), number % 2 == 0);
        Remember();
    }

    static void Put(int row, int day, bool isHome)
    {
        ScheduleRow& game = GameSchedule[row];
        game.GameDay = day;
        game.ProGame = true;
        game.ProHome = isHome ? Own : 6;
        game.ProAway = isHome ? 6 : Own;
    }
    static std::vector<CalendarDay> Left() { return SeasonLeft(OpenLeague, Own); }
    static bool MayChoose() { return MayChooseStarters(OpenLeague, dravik::Machine(), Own); }
    bool Start(int day, PersonId keeper) { return StartInGoal(OpenWork(), Own, day, keeper); }
};

TEST_F(SeasonCalendarTest, TheWholeSeasonLeftIsToldWithTheDaysOfTheLines)
{
    Day(Side::Pro, 2).StartGoalie = 77;
    const std::vector<CalendarDay> left = Left();
    ASSERT_EQ(left.size(), 14U);
    for (std::size_t place = 0; place < left.size(); ++place) {
        EXPECT_EQ(left[place].Game, GamesToCome(OpenLeague, Own, Side::Pro)[place]);
        EXPECT_EQ(left[place].Day, place < 10 ? std::optional(static_cast<int>(place) + 1) : std::nullopt);
    }
    EXPECT_EQ(left[0].Starter, Pro.GoalieIds[0]);
    EXPECT_EQ(left[1].Starter, 77);
    EXPECT_EQ(left[10].Starter, 0);
}

TEST_F(SeasonCalendarTest, DaysInARowEndWithADayOff)
{
    const std::vector<CalendarDay> left = Left();
    EXPECT_EQ(left[0].InARow, 1);
    EXPECT_EQ(left[1].InARow, 2);
    EXPECT_EQ(left[2].InARow, 3);
    EXPECT_EQ(left[3].InARow, 1);
    EXPECT_EQ(left[13].InARow, 11);
    GameSchedule[102].ProPlayed = true;
    EXPECT_EQ(Left()[1].InARow, 1);
}

TEST_F(SeasonCalendarTest, TheStrengthOfTheOpponentIsToldWhereOverallsAreShown)
{
    GameSchedule[102].ProHome = 101;
    EXPECT_EQ(Left()[0].Opponent, StrengthOfTeams(OpenLeague)[6]);
    EXPECT_EQ(Left()[1].Opponent, std::nullopt);
    LeagueData.ShowOverall = false;
    for (const CalendarDay& day : Left())
        EXPECT_EQ(day.Opponent, std::nullopt);
}

TEST_F(SeasonCalendarTest, AHiddenOrBlockedCalendarHoldsNothing)
{
    LeagueData.ScheduleBlocked = 1;
    EXPECT_THAT(Left(), IsEmpty());
    LeagueData.ScheduleBlocked = 0;
    LeagueData.ScheduleShown = false;
    EXPECT_THAT(Left(), IsEmpty());
}

TEST_F(SeasonCalendarTest, TheBackupAndTheStarterChangePlaces)
{
    Lines& day = Day(Side::Pro);
    const int first = static_cast<int>(day.StartGoalie);
    const int second = static_cast<int>(day.BackupGoalie);
    ASSERT_NE(first, second);
    EXPECT_TRUE(Start(1, Keeper(second)));
    ExpectedDay(Side::Pro).StartGoalie = second;
    ExpectedDay(Side::Pro).BackupGoalie = first;
    EXPECT_TRUE(IsAsExpected());
    EXPECT_TRUE(Modified);
}

TEST_F(SeasonCalendarTest, AThirdOneTakesTheStartersPlace)
{
    PutGoalie(99, Own, status::Pro);
    Remember();
    EXPECT_TRUE(Start(1, Keeper(99)));
    ExpectedDay(Side::Pro).StartGoalie = 99;
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(SeasonCalendarTest, WhereNobodyStartsTheBackupDoesAndHisPlaceIsHisToo)
{
    Lines& day = Day(Side::Pro);
    day.StartGoalie = 0;
    Remember();
    EXPECT_TRUE(Start(1, Keeper(static_cast<int>(day.BackupGoalie))));
    ExpectedDay(Side::Pro).StartGoalie = day.BackupGoalie;
    EXPECT_TRUE(IsAsExpected());
}

TEST_F(SeasonCalendarTest, WhoStartsAlreadyOrIsNoGoalieChangesNothing)
{
    Modified = false;
    EXPECT_FALSE(Start(1, Keeper(static_cast<int>(Day(Side::Pro).StartGoalie))));
    EXPECT_FALSE(Start(1, Skater(Pro.Skaters[0])));
    EXPECT_TRUE(IsAsExpected());
    EXPECT_FALSE(Modified);
    for (const int day : {0, 11})
        EXPECT_EQ(FailureOfCommand([&] { Start(day, Keeper(1)); }), failure::OutOfRange);
}

TEST_F(SeasonCalendarTest, StartersAreChosenWithACompleteRosterAlone)
{
    EXPECT_TRUE(MayChoose());
    EXPECT_TRUE(IsAsExpected());
    for (const int keeper : Pro.GoalieIds)
        Goalies[keeper].Condition = 50;
    Remember();
    EXPECT_FALSE(MayChoose());
    EXPECT_TRUE(IsAsExpected());
}

} // namespace
} // namespace dravik
