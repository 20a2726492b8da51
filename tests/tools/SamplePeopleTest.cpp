#include "SampleFixture.h"
#include "support/Routines.h"

#include <map>
#include <set>

namespace dravik {

namespace {

class SamplePeopleTest : public SampleTables {
protected:
    template <class Table>
    static int CountOf(const Table& table, int team, int status)
    {
        return Count(
            table, [&](const auto& person) { return person.InUse && person.Team == team && person.Status == status; });
    }

    template <class Person>
    static bool Hurt(const Person& person)
    {
        return person.InUse && person.Condition < 95;
    }

    static std::vector<int> Overalls()
    {
        std::vector<int> overalls;
        for (int index = 1; index <= PlayerTable::last; ++index)
            if (Players[index].InUse)
                overalls.push_back(CalculateOverall(static_cast<int>(Players[index].Position), index));
        for (int index = 1; index <= GoalieTable::last; ++index)
            if (Goalies[index].InUse)
                overalls.push_back(CalculateOverall(position::Goalie, index));
        return overalls;
    }
};

} // namespace

TEST_F(SamplePeopleTest, WholeTeamsDressEighteenSkatersAndTwoGoalies)
{
    for (const int team : WholeTeams()) {
        EXPECT_EQ(CountOf(Players, team, status::Pro), 18) << team;
        EXPECT_EQ(CountOf(Goalies, team, status::Pro), 2) << team;
    }
}

TEST_F(SamplePeopleTest, ProSidesHoldTwentyToTwentySixSkatersAndTwoOrThreeGoalies)
{
    std::set<int> sizes;
    for (const int team : TeamNumbers()) {
        const int skaters = CountOf(Players, team, status::Pro) + CountOf(Players, team, status::Scratch);
        const int goalies = CountOf(Goalies, team, status::Pro) + CountOf(Goalies, team, status::Scratch);
        EXPECT_TRUE(skaters >= 20 && skaters <= 26) << team << ": " << skaters;
        EXPECT_TRUE(goalies == 2 || goalies == 3) << team << ": " << goalies;
        sizes.insert(skaters * 10 + goalies);
    }
    EXPECT_GT(sizes.size(), 5U);
}

TEST_F(SamplePeopleTest, FarmsHoldAboutAsMany)
{
    for (const int team : WholeTeams()) {
        const int skaters = CountOf(Players, team, status::Farm);
        const int goalies = CountOf(Goalies, team, status::Farm);
        EXPECT_TRUE(skaters >= 20 && skaters <= 28) << team << ": " << skaters;
        EXPECT_TRUE(goalies >= 2 && goalies <= 4) << team << ": " << goalies;
    }
}

TEST_F(SamplePeopleTest, EverybodyInUseKnowsHisOwnSlotAndHasAName)
{
    const auto check = [](const auto& table, long long last) {
        for (long long index = 1; index <= last; ++index) {
            if (!table[index].InUse)
                continue;
            EXPECT_EQ(table[index].Number, index);
            EXPECT_NE(table[index].Name.Trimmed(), "");
            EXPECT_EQ(table[index].Country.Trimmed().size(), 3U);
            EXPECT_LE(table[index].Status, 2);
            EXPECT_TRUE(table[index].Age >= 18 && table[index].Age <= 45);
        }
    };
    check(Players, PlayerTable::last);
    check(Goalies, GoalieTable::last);
}

TEST_F(SamplePeopleTest, EverySkaterHasAPosition)
{
    std::map<long long, int> positions;
    for (const Player& player : Players)
        if (player.InUse)
            ++positions[player.Position];
    EXPECT_EQ(positions.size(), 4U);
    for (int position = position::Center; position <= position::Defense; ++position)
        EXPECT_GT(positions[position], 500);
}

TEST_F(SamplePeopleTest, SeveralThousandSlotsAreInUseAndTheOthersLieAmongThem)
{
    const auto scattered = [](const auto& table, long long last, int least) {
        const int used = Count(table, [](const auto& person) { return bool(person.InUse); });
        EXPECT_GT(used, least);
        // Used and unused slots change places some hundred times: nothing is dense.
        int changes = 0;
        for (long long index = 2; index <= last; ++index)
            changes += static_cast<bool>(table[index].InUse) != static_cast<bool>(table[index - 1].InUse) ? 1 : 0;
        EXPECT_GT(changes, used / 2);
    };
    scattered(Players, PlayerTable::last, 3500);
    scattered(Goalies, GoalieTable::last, 350);
    EXPECT_TRUE(std::any_of(&Players[9900], &Players[10000], [](const Player& player) { return bool(player.InUse); }));
    EXPECT_TRUE(std::any_of(&Goalies[990], &Goalies[1000], [](const Goalie& goalie) { return bool(goalie.InUse); }));
}

TEST_F(SamplePeopleTest, RetiredPlayersLieInUnusedSlotsWithAllTheyHad)
{
    EXPECT_GT(Count(Players,
                    [](const Player& player) {
                        return !player.InUse && !player.Name.Trimmed().empty() && player.Team != 0 &&
                               player.Status == status::Pro;
                    }),
              100);
    EXPECT_GT(Count(Players, [](const Player& player) { return !player.InUse && player.Name.Trimmed().empty(); }),
              1000);
}

TEST_F(SamplePeopleTest, FullLeavesNoSlotUnused)
{
    MakeSampleLeague({.Full = true});
    EXPECT_EQ(Count(Players, [](const Player& player) { return bool(player.InUse); }), 10000);
    EXPECT_EQ(Count(Goalies, [](const Goalie& goalie) { return bool(goalie.InUse); }), 1000);
    EXPECT_EQ(Count(Coaches, [](const Coach& coach) { return bool(coach.InUse); }), 500);
    EXPECT_EQ(Count(Prospects, [](const Prospect& prospect) { return !prospect.Name.Trimmed().empty(); }), 300);
}

TEST_F(SamplePeopleTest, Slot0IsLeftToTheReader)
{
    EXPECT_FALSE(Players[0].InUse);
    EXPECT_EQ(Players[0].Name.Trimmed(), "");
    EXPECT_FALSE(Goalies[0].InUse);
}

TEST_F(SamplePeopleTest, ThereAreFreeAgentsAndUnsignedPlayers)
{
    EXPECT_GT(Count(Players, [](const Player& player) { return player.InUse && player.Team == 0; }), 2000);
    EXPECT_GT(Count(Goalies, [](const Goalie& goalie) { return goalie.InUse && goalie.Team == 0; }), 200);
    const auto unsignedOnTeams = [] {
        return Count(Players,
                     [](const Player& player) { return player.InUse && player.Team != 0 && player.Contract == 0; });
    };
    const int inSeason = unsignedOnTeams();
    EXPECT_GE(inSeason, 30);
    MakeSampleLeague({.OffSeason = true});
    EXPECT_GT(unsignedOnTeams(), inSeason);
}

TEST_F(SamplePeopleTest, ThereAreInjuredPlayersWithWordsForIt)
{
    int hurtOnTeams = 0;
    for (const Player& player : Players) {
        if (!Hurt(player))
            continue;
        EXPECT_NE(player.Injury.Trimmed(), "") << player.Name.Trimmed();
        hurtOnTeams += player.Team != 0 ? 1 : 0;
    }
    EXPECT_GT(hurtOnTeams, 30);
    EXPECT_GT(Count(Goalies, Hurt<Goalie>), 0);
    EXPECT_GT(
        Count(Players,
              [](const Player& player) { return player.InUse && player.Condition > 94 && player.Condition < 100; }),
        100);
}

TEST_F(SamplePeopleTest, ThereAreSuspendedPlayersAndSomeOnWaivers)
{
    EXPECT_GT(
        Count(Players,
              [](const Player& player) { return player.InUse && player.Suspension > 0 && player.Suspension < 99; }),
        5);
    EXPECT_GT(Count(Players, [](const Player& player) { return player.InUse && player.Suspension == 99; }), 0);
}

TEST_F(SamplePeopleTest, OverallsReachFromTheMiddleFortiesToTheUpperEighties)
{
    const std::vector<int> overalls = Overalls();
    const auto [lowest, highest] = std::ranges::minmax(overalls);
    EXPECT_TRUE(lowest >= 40 && lowest <= 50) << lowest;
    EXPECT_TRUE(highest >= 86 && highest <= 90) << highest;
    EXPECT_GT(std::ranges::count_if(overalls, [](int overall) { return overall >= 70; }), 300);
    EXPECT_GT(std::ranges::count_if(overalls, [](int overall) { return overall <= 58; }), 1000);
}

TEST_F(SamplePeopleTest, ProsAreBetterThanTheFarm)
{
    const auto average = [](int status) {
        long long sum = 0;
        long long count = 0;
        for (int index = 1; index <= PlayerTable::last; ++index)
            if (Players[index].InUse && Players[index].Team != 0 && Players[index].Status == status) {
                sum += CalculateOverall(static_cast<int>(Players[index].Position), index);
                ++count;
            }
        return sum / count;
    };
    EXPECT_GE(average(status::Pro), average(status::Farm) + 10);
}

TEST_F(SamplePeopleTest, NobodyOnAFarmIsTooGoodOrTooDearForIt)
{
    for (int index = 1; index <= PlayerTable::last; ++index) {
        const Player& player = Players[index];
        if (!player.InUse || player.Team == 0 || player.Status != status::Farm)
            continue;
        EXPECT_LE(CalculateOverall(static_cast<int>(player.Position), index), LeagueData.FarmMaxOverall);
        EXPECT_LE(player.Salary, LeagueData.FarmMaxSalary);
    }
}

TEST_F(SamplePeopleTest, DefensemenDefendBetterThanTheyScore)
{
    long long defending = 0;
    long long scoring = 0;
    long long passers = 0;
    for (const Player& player : Players) {
        if (!player.InUse || player.Position != position::Defense)
            continue;
        defending += player.Stats[skater::DF];
        scoring += player.Stats[skater::SC];
        passers += player.Stats[skater::DF] <= player.Stats[skater::SC] ? 1 : 0;
    }
    EXPECT_GT(defending, scoring);
    EXPECT_GT(passers, 0); // both kinds of weights are in use
}

TEST_F(SamplePeopleTest, RatingsLieBetween25And99)
{
    const auto check = [](const auto& table) {
        for (const auto& person : table)
            for (const Int16& stat : person.Stats) {
                EXPECT_TRUE(!person.InUse || (stat >= 25 && stat <= 99)) << person.Name.Trimmed();
            }
    };
    check(Players);
    check(Goalies);
}

TEST_F(SamplePeopleTest, SalariesAreLegal)
{
    const auto check = [](const auto& table) {
        for (const auto& person : table)
            EXPECT_TRUE(!person.InUse ||
                        (person.Salary >= LeagueData.MinSalary && person.Salary <= LeagueData.MaxSalary));
    };
    check(Players);
    check(Goalies);
}

TEST_F(SamplePeopleTest, NamesAreSingleBytesWithAccentsAndApostrophes)
{
    int accented = 0;
    int apostrophes = 0;
    int beyondLatin = 0;
    std::set<std::string> names;
    for (const Player& player : Players) {
        if (!player.InUse)
            continue;
        const std::string name = player.Name.Trimmed();
        EXPECT_TRUE(names.insert(name).second) << name;
        accented += name.find('\xE9') != std::string::npos || name.find('\xC9') != std::string::npos ? 1 : 0;
        apostrophes += name.find('\'') != std::string::npos ? 1 : 0;
        beyondLatin += name.find('\x9A') != std::string::npos || name.find('\x8A') != std::string::npos ? 1 : 0;
        EXPECT_EQ(name.find('\xC3'), std::string::npos) << name; // where a letter of two bytes would begin
    }
    EXPECT_GT(accented, 50);
    EXPECT_GT(apostrophes, 20);
    EXPECT_GT(beyondLatin, 5);
}

TEST_F(SamplePeopleTest, CaptainsAndAssistantsAreThreeDressedSkatersOfTheirTeam)
{
    int without = 0;
    for (const int number : WholeTeams()) {
        const Team& team = Teams[number];
        if (team.Captain == 0) {
            ++without;
            continue;
        }
        const std::set<long long> leaders{team.Captain, team.Assistant[1], team.Assistant[2]};
        EXPECT_EQ(leaders.size(), 3U) << number;
        for (const long long leader : leaders) {
            EXPECT_EQ(Players[leader].Team, number);
            EXPECT_EQ(Players[leader].Status, status::Pro);
        }
    }
    EXPECT_EQ(without, 2);
}

TEST_F(SamplePeopleTest, ThereAreClausesOffersAndRookies)
{
    EXPECT_GT(Count(Players, [](const Player& player) { return player.InUse && bool(player.NoTrade); }), 20);
    EXPECT_GT(Count(Players, [](const Player& player) { return player.InUse && bool(player.TradeAvailable); }), 20);
    EXPECT_GT(Count(Players, [](const Player& player) { return player.InUse && bool(player.Rookie); }), 50);
    EXPECT_GT(Count(Players, [](const Player& player) { return player.InUse && bool(player.NoApplyRerate); }), 20);
    EXPECT_EQ(Count(Players, [](const Player& player) { return bool(player.NoTrade) && bool(player.TradeAvailable); }),
              0);
}

TEST_F(SamplePeopleTest, ProtectedCountsCountTheProtected)
{
    int most = 0;
    for (const int number : TeamNumbers()) {
        const auto isHis = [&](const auto& person) {
            return person.InUse && person.Team == number && bool(person.Protected);
        };
        const int count = Count(Players, isHis) + Count(Goalies, isHis);
        EXPECT_EQ(Teams[number].ProtectedCount, count) << number;
        EXPECT_LE(count, LeagueData.MaxProtected);
        most = std::max(most, count);
    }
    EXPECT_GT(most, 0);
}

} // namespace dravik
