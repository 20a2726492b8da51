#include "SampleFixture.h"

#include <map>
#include <set>

namespace dravik {

namespace {

// One side of a calendar: what a row says of its pro game, or of its farm game.
struct Calendar {
    Boolean ScheduleRow::*Game;
    Boolean ScheduleRow::*Played;
    Int16 ScheduleRow::*Away;
    Int16 ScheduleRow::*Home;
};

constexpr Calendar ProCalendar{&ScheduleRow::ProGame, &ScheduleRow::ProPlayed, &ScheduleRow::ProAway,
                               &ScheduleRow::ProHome};
constexpr Calendar FarmCalendar{&ScheduleRow::FarmGame, &ScheduleRow::FarmPlayed, &ScheduleRow::FarmAway,
                                &ScheduleRow::FarmHome};

std::vector<ScheduleRow> GamesOf(const Calendar& calendar)
{
    std::vector<ScheduleRow> games;
    for (const ScheduleRow& row : GameSchedule)
        if (row.*calendar.Game)
            games.push_back(row);
    return games;
}

class SampleCalendarTest : public SampleTables, public ::testing::WithParamInterface<const Calendar*> {
protected:
    const Calendar& Side = *GetParam();
    const std::vector<ScheduleRow> Games = GamesOf(Side);

    [[nodiscard]] long long Away(const ScheduleRow& row) const { return row.*Side.Away; }
    [[nodiscard]] long long Home(const ScheduleRow& row) const { return row.*Side.Home; }
};

INSTANTIATE_TEST_SUITE_P(Sides, SampleCalendarTest, ::testing::Values(&ProCalendar, &FarmCalendar),
                         [](const auto& side) { return side.param == &ProCalendar ? "Pro" : "Farm"; });

class SampleSeasonTest : public SampleTables {};

} // namespace

TEST_P(SampleCalendarTest, EveryTeamPlaysEightyTwoGamesHalfOfThemAtHome)
{
    EXPECT_EQ(Games.size(), 30U * 82 / 2);
    std::map<long long, int> home;
    std::map<long long, int> away;
    for (const ScheduleRow& game : Games) {
        ++home[Home(game)];
        ++away[Away(game)];
        EXPECT_NE(Home(game), Away(game));
    }
    EXPECT_EQ(home.size(), 30U);
    for (const int team : TeamNumbers()) {
        EXPECT_EQ(home[team], 41) << team;
        EXPECT_EQ(away[team], 41) << team;
    }
}

TEST_P(SampleCalendarTest, EverybodyMeetsEverybodyAtHomeAndAway)
{
    std::set<std::pair<long long, long long>> met;
    for (const ScheduleRow& game : Games)
        met.emplace(Home(game), Away(game));
    EXPECT_EQ(met.size(), 30U * 29);
}

TEST_P(SampleCalendarTest, NobodyPlaysTwiceOnADay)
{
    std::set<std::pair<long long, long long>> busy;
    for (const ScheduleRow& game : Games) {
        EXPECT_TRUE(busy.emplace(game.GameDay, Home(game)).second);
        EXPECT_TRUE(busy.emplace(game.GameDay, Away(game)).second);
    }
}

TEST_P(SampleCalendarTest, GameDaysRiseAndThePlayedOnesComeFirst)
{
    for (std::size_t i = 1; i < Games.size(); ++i) {
        EXPECT_LE(Games[i - 1].GameDay, Games[i].GameDay);
        if (Games[i].*Side.Played) {
            EXPECT_TRUE(Games[i - 1].*Side.Played);
        }
        if (Games[i - 1].GameDay == Games[i].GameDay) {
            EXPECT_EQ((Games[i - 1].*Side.Played).Word(), (Games[i].*Side.Played).Word());
        }
    }
}

TEST_P(SampleCalendarTest, PartOfItIsPlayedAndTenGamesAreLeftForEverybody)
{
    std::map<long long, int> left;
    int played = 0;
    for (const ScheduleRow& game : Games) {
        if (game.*Side.Played) {
            ++played;
            continue;
        }
        ++left[Home(game)];
        ++left[Away(game)];
    }
    EXPECT_GT(played, 600);
    for (const int team : TeamNumbers())
        EXPECT_GE(left[team], 10) << team;
}

TEST_F(SampleSeasonTest, MostRowsHoldAGameOfBothSidesAndSomeHoldOne)
{
    const auto count = [](bool pro, bool farm) {
        return Count(GameSchedule, [&](const ScheduleRow& row) {
            return static_cast<bool>(row.ProGame) == pro && static_cast<bool>(row.FarmGame) == farm;
        });
    };
    EXPECT_GT(count(true, true), 1000);
    EXPECT_GT(count(true, false), 20);
    EXPECT_GT(count(false, true), 20);
}

TEST_F(SampleSeasonTest, ARowWithoutAGameStandsAmongTheOthers)
{
    long long last = 0;
    for (long long row = 1; row <= ScheduleTable::last; ++row)
        if (GameSchedule[row].ProGame || GameSchedule[row].FarmGame)
            last = row;
    bool gap = false;
    for (long long row = 1; row < last; ++row)
        gap = gap || (!GameSchedule[row].ProGame && !GameSchedule[row].FarmGame);
    EXPECT_TRUE(gap);
    EXPECT_LT(last, 1500);
}

TEST_F(SampleSeasonTest, TheTeamsCountTheirGamesAsTheCalendarDoes)
{
    std::map<long long, int> games;
    std::map<long long, int> home;
    for (const ScheduleRow& game : GamesOf(ProCalendar)) {
        if (!game.ProPlayed)
            continue;
        ++games[game.ProHome];
        ++games[game.ProAway];
        ++home[game.ProHome];
    }
    for (const int team : TeamNumbers()) {
        EXPECT_EQ(Teams[team].SeasonGames, 82);
        EXPECT_EQ(Teams[team].GamesPlayed, games[team]) << team;
        EXPECT_EQ(Teams[team].HomeGames, home[team]) << team;
        EXPECT_GT(home[team], 0);
    }
}

TEST_F(SampleSeasonTest, SomeTeamsHavePlayedAGameMoreThanOthers)
{
    std::set<long long> games;
    for (const int team : TeamNumbers())
        games.insert(Teams[team].GamesPlayed);
    EXPECT_EQ(games.size(), 2U);
    EXPECT_EQ(*games.begin() + 1, *games.rbegin());
}

TEST_F(SampleSeasonTest, BehindTheDeadlineMoreIsPlayedAndTenGamesAreLeft)
{
    const auto played = [] { return Count(GameSchedule, [](const ScheduleRow& row) { return bool(row.ProPlayed); }); };
    const int before = played();
    MakeSampleLeague({.Deadline = true});
    EXPECT_GT(played(), before);
    for (const int team : TeamNumbers())
        EXPECT_LE(Teams[team].GamesPlayed, 72) << team;
}

TEST_F(SampleSeasonTest, TheCalendarOfFourDivisionsIsBalancedToo)
{
    MakeSampleLeague({.Divisions = 4});
    std::map<long long, int> home;
    std::map<long long, int> away;
    for (const ScheduleRow& game : GamesOf(ProCalendar)) {
        ++home[game.ProHome];
        ++away[game.ProAway];
    }
    for (const int team : TeamNumbers()) {
        EXPECT_EQ(home[team], 41) << team;
        EXPECT_EQ(away[team], 41) << team;
    }
}

} // namespace dravik
