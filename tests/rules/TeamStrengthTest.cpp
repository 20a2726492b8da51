#include "rules/TeamStrength.h"

#include "rules/Overall.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <map>

namespace dravik {
namespace {

class TeamStrengthTest : public SmallLeague {
protected:
    static TeamStrength Of(int team) { return StrengthOfTeams(OpenLeague)[team]; }
    static PositionRank Rank(StrongIn what, int team = 5)
    {
        return RanksOf(OpenLeague, team)[static_cast<std::size_t>(what)];
    }
    static int OverallOf(int slot) { return *OverallAt(OpenLeague, PositionOf(Players[slot]), slot); }
};

TEST_F(TeamStrengthTest, TheBestEighteenSkatersAndTheBestGoalieCountWhereverTheyStand)
{
    TeamMaker(5)
        .Farms(9, position::Center, 80)
        .Scratches(9, position::Defense, 60)
        .Dresses(30, position::LeftWing, 20)
        .FarmsGoalies(1, 77)
        .DressesGoalies(2, 50);
    const int best = OverallOf(1);
    const int second = OverallOf(10);
    ASSERT_GT(best, second);
    EXPECT_EQ(Of(5).Skaters, (best + second) / 2);
    EXPECT_EQ(Of(5).Goalie, OverallAt(OpenLeague, position::Goalie, 1));
}

TEST_F(TeamStrengthTest, FewerThanEighteenAreTheMeanOfThoseThatThereAre)
{
    TeamMaker(5).Dresses(2, position::Center, 70);
    EXPECT_EQ(Of(5).Skaters, OverallOf(1));
    EXPECT_EQ(Of(5).Goalie, std::nullopt);
    EXPECT_EQ(Of(6), TeamStrength{});
}

TEST_F(TeamStrengthTest, WhoHasNoPositionOrNoTeamOrIsNotInUseCountsNowhere)
{
    TeamMaker(5).Dresses(4, position::Center, 70);
    Players[1].Position = 0;
    Players[2].Position = 5;
    Players[3].InUse = false;
    Players[4].Team = 101;
    EXPECT_EQ(Of(5), TeamStrength{});
    Players[2].Position = 1;
    EXPECT_EQ(Of(5).Skaters, OverallOf(2));
    EXPECT_EQ(Of(5).Goalie, std::nullopt);
}

TEST_F(TeamStrengthTest, ARankCountsTheTeamsThatAreBetter)
{
    for (int team = 1; team <= 4; ++team)
        TeamMaker(team).Dresses(2, position::Center, 40 + 10 * team);
    TeamMaker(5).Dresses(2, position::Center, 60); // as the second
    TeamMaker(6).Dresses(1, position::Center, 90); // has no pair
    TeamMaker(7).Dresses(2, position::Center, 90);
    Teams[7].InUse = false;
    const PositionRank rank = Rank(StrongIn::CenterPair);
    EXPECT_EQ(rank.Rank, 3);
    EXPECT_EQ(rank.Teams, 5);
    EXPECT_EQ(rank.Best, RanksOf(OpenLeague, 4)[0].Mean);
    EXPECT_EQ(rank.Median, rank.Mean);
    EXPECT_EQ(Rank(StrongIn::CenterPair, 2).Rank, 3);
    EXPECT_EQ(Rank(StrongIn::CenterPair, 6).Rank, 0);
    EXPECT_EQ(Rank(StrongIn::CenterPair, 6).Mean, std::nullopt);
    EXPECT_EQ(Rank(StrongIn::Goalies).Teams, 0);
}

TEST_F(TeamStrengthTest, WingsCountOnBothSides)
{
    TeamMaker(5).Dresses(2, position::LeftWing, 80).Dresses(1, position::RightWing, 60);
    EXPECT_EQ(Rank(StrongIn::Wings).Mean, std::nullopt);
    TeamMaker(5).Dresses(1, position::RightWing, 40);
    const double expected = (OverallOf(1) + OverallOf(2) + OverallOf(3) + OverallOf(4)) / 4.0;
    EXPECT_EQ(Rank(StrongIn::Wings).Mean, expected);
}

TEST_F(TeamStrengthTest, ATeamOutOfRangeFailsWith9)
{
    for (const int team : {0, 101})
        try {
            RanksOf(OpenLeague, team);
            FAIL() << team;
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.Number, failure::OutOfRange);
        }
}

// The second reading: everybody of a team sorted whole, teams compared one with the other.
TEST_F(TeamStrengthTest, RandomLeaguesReadTheSame)
{
    Dice dice(11);
    for (int round = 0; round < 5; ++round) {
        for (int team = 1; team <= 8; ++team)
            TeamMaker made(team);
        for (int slot = 1; slot <= 400; ++slot) {
            PutSkater(slot, static_cast<int>(dice.Roll(0, 8)), static_cast<int>(dice.Roll(1, 4)),
                      static_cast<int>(dice.Roll(0, 2)), static_cast<int>(dice.Roll(20, 99)));
            PutGoalie(slot, static_cast<int>(dice.Roll(0, 8)), static_cast<int>(dice.Roll(0, 2)),
                      static_cast<int>(dice.Roll(20, 99)));
        }
        std::map<int, std::map<int, std::vector<int>>> people;
        for (int slot = 1; slot <= 400; ++slot) {
            people[static_cast<int>(Players[slot].Team)][PositionOf(Players[slot])].push_back(OverallOf(slot));
            people[static_cast<int>(Goalies[slot].Team)][5].push_back(*OverallAt(OpenLeague, 5, slot));
        }
        for (auto& [team, positions] : people)
            for (auto& [position, overalls] : positions)
                std::sort(overalls.rbegin(), overalls.rend());
        std::map<int, double> pairs;
        for (int team = 1; team <= 8; ++team) {
            std::vector<int> skaters;
            for (int position = 1; position <= 4; ++position)
                skaters.insert(skaters.end(), people[team][position].begin(), people[team][position].end());
            std::sort(skaters.rbegin(), skaters.rend());
            ASSERT_GE(skaters.size(), 18U);
            double sum = 0;
            for (std::size_t place = 0; place < 18; ++place)
                sum += skaters[place];
            EXPECT_EQ(Of(team).Skaters, static_cast<int>(std::nearbyint(sum / 18))) << round << ' ' << team;
            EXPECT_EQ(Of(team).Goalie, people[team][5][0]) << round << ' ' << team;
            const std::vector<int>& backs = people[team][4];
            ASSERT_GE(backs.size(), 4U);
            pairs[team] = (backs[0] + backs[1] + backs[2] + backs[3]) / 4.0;
        }
        for (int team = 1; team <= 8; ++team) {
            int better = 0;
            for (const auto& [other, mean] : pairs)
                better += mean > pairs[team] ? 1 : 0;
            const PositionRank rank = Rank(StrongIn::DefensePairs, team);
            EXPECT_EQ(rank.Mean, pairs[team]) << round << ' ' << team;
            EXPECT_EQ(rank.Rank, better + 1) << round << ' ' << team;
            EXPECT_EQ(rank.Teams, 8) << round;
        }
    }
}

} // namespace
} // namespace dravik
