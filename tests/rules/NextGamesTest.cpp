#include "rules/NextGames.h"

#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NextGamesTest : public SmallLeague {
protected:
    NextGamesTest() { LeagueData.ScheduleShown = true; }

    static void PutPro(int row, int home, int away)
    {
        ScheduleRow& game = GameSchedule[row];
        game.GameDay = row + 100;
        game.ProGame = true;
        game.ProHome = home;
        game.ProAway = away;
    }
    static void PutFarm(int row, int home, int away)
    {
        ScheduleRow& game = GameSchedule[row];
        game.GameDay = row + 100;
        game.FarmGame = true;
        game.FarmHome = home;
        game.FarmAway = away;
    }
    static std::vector<NextGame> Pro() { return NextGames(OpenLeague, 5, Side::Pro); }
    static std::vector<NextGame> Left() { return GamesToCome(OpenLeague, 5, Side::Pro); }
    static std::vector<NextGame> Farm() { return NextGames(OpenLeague, 5, Side::Farm); }
};

TEST_F(NextGamesTest, WhoPlaysWhomWhereAndWhen)
{
    PutPro(2, 5, 6);
    PutPro(3, 7, 5);
    PutFarm(3, 5, 8);
    EXPECT_THAT(Pro(), ElementsAre(NextGame{.Row = 2, .GameDay = 102, .Opponent = 6, .IsAway = false},
                                   NextGame{.Row = 3, .GameDay = 103, .Opponent = 7, .IsAway = true}));
    EXPECT_THAT(Farm(), ElementsAre(NextGame{.Row = 3, .GameDay = 103, .Opponent = 8, .IsAway = false}));
}

TEST_F(NextGamesTest, ATeamThatPlaysItselfIsAtHome)
{
    PutPro(1, 5, 5);
    EXPECT_THAT(Pro(), ElementsAre(NextGame{.Row = 1, .GameDay = 101, .Opponent = 5, .IsAway = false}));
}

TEST_F(NextGamesTest, OnlyGamesToComeCount)
{
    for (int row = 1; row <= 6; ++row)
        PutPro(row, 5, 6);
    GameSchedule[1].ProPlayed = true;
    GameSchedule[2].ProPlayed.SetWord(1);
    GameSchedule[3].ProGame = false;
    GameSchedule[4].ProGame.SetWord(1);
    GameSchedule[5].ProHome = 7;
    GameSchedule[6].FarmPlayed = true;
    ASSERT_EQ(Pro().size(), 1U);
    EXPECT_EQ(Pro()[0].Row, 6);
}

TEST_F(NextGamesTest, TheLastRowIsReachedAndTheEleventhGameIsNot)
{
    for (int row = 4990; row <= 5000; ++row)
        PutPro(row, 5, 6);
    ASSERT_EQ(Pro().size(), 10U);
    EXPECT_EQ(Pro().back().Row, 4999);
    ASSERT_EQ(Left().size(), 11U);
    EXPECT_EQ(Left().back().Row, 5000);
    GameSchedule[4990].ProPlayed = true;
    EXPECT_EQ(Pro().back().Row, 5000);
}

TEST_F(NextGamesTest, AHiddenOrBlockedCalendarHoldsNone)
{
    PutPro(1, 5, 6);
    PutFarm(1, 5, 6);
    const auto expectOpen = [](bool isOpen) {
        EXPECT_EQ(IsScheduleOpen(LeagueData), isOpen);
        EXPECT_EQ(Pro().empty(), !isOpen);
        EXPECT_EQ(Left().empty(), !isOpen);
        EXPECT_EQ(Farm().empty(), !isOpen);
    };
    expectOpen(true);
    for (const int word : {0, 1}) {
        LeagueData.ScheduleShown.SetWord(word);
        expectOpen(false);
    }
    LeagueData.ScheduleShown = true;
    for (const int blocked : {1, -1, 2}) {
        LeagueData.ScheduleBlocked = blocked;
        expectOpen(false);
    }
}

TEST_F(NextGamesTest, AnOpponentWhoIsNoTeamIsToldAsHeStands)
{
    PutPro(1, 5, 101);
    PutPro(2, -3, 5);
    ASSERT_EQ(Pro().size(), 2U);
    EXPECT_EQ(Pro()[0].Opponent, 101);
    EXPECT_EQ(Pro()[1].Opponent, -3);
}

TEST_F(NextGamesTest, ARowSaysTheSameToBoth)
{
    PutFarm(7, 5, 6);
    EXPECT_EQ(GameInRow(OpenLeague, Side::Farm, 7, false).Opponent, 6);
    EXPECT_EQ(GameInRow(OpenLeague, Side::Farm, 7, true).Opponent, 5);
    EXPECT_EQ(GameInRow(OpenLeague, Side::Farm, 7, true).GameDay, 107);
    for (const int row : {0, 5001})
        try {
            GameInRow(OpenLeague, Side::Pro, row, false);
            FAIL() << row;
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.Number, failure::OutOfRange);
        }
}

// The naive reading: everything that may count, thrown away one by one.
TEST_F(NextGamesTest, RandomCalendarsReadTheSame)
{
    Dice dice(1);
    for (int round = 0; round < 20; ++round) {
        for (auto row = ScheduleTable::first; row <= ScheduleTable::last; ++row) {
            ScheduleRow& game = GameSchedule[row];
            game = {};
            game.GameDay = row / 15;
            game.ProGame.SetWord(dice.Pick({-1, -1, 0, 1}));
            game.ProPlayed.SetWord(dice.Chance(round * 5) ? dice.Pick({-1, 1}) : 0);
            game.ProHome = dice.Roll(0, 400);
            game.ProAway = dice.Roll(0, 400);
        }
        std::vector<NextGame> expected;
        for (int row = 1; row <= 5000; ++row) {
            const ScheduleRow& game = GameSchedule[row];
            if (game.ProGame.Word() != -1 || game.ProPlayed.Word() != 0)
                continue;
            if (game.ProHome == 5)
                expected.push_back({row, static_cast<int>(game.GameDay), static_cast<int>(game.ProAway), false});
            else if (game.ProAway == 5)
                expected.push_back({row, static_cast<int>(game.GameDay), static_cast<int>(game.ProHome), true});
        }
        EXPECT_EQ(Left(), expected) << round;
        if (expected.size() > 10)
            expected.resize(10);
        EXPECT_EQ(Pro(), expected) << round;
        EXPECT_THAT(Farm(), IsEmpty());
    }
}

} // namespace
} // namespace dravik
