#include "desk/PrepareLeague.h"

#include "league/RatingNames.h"
#include "support/LeagueBefore.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

class PrepareLeagueTest : public SmallLeague {
protected:
    // What a placeholder of either kind is.
    template <class Person>
    static void ExpectPlaceholder(const Person& person, const char* name, int endurance)
    {
        EXPECT_TRUE(person.InUse);
        EXPECT_EQ(person.Name.Trimmed(), name);
        EXPECT_EQ(person.Number, 0);
        EXPECT_EQ(person.Team, 0);
        EXPECT_EQ(person.Status, status::Farm);
        EXPECT_EQ(person.Country.Trimmed(), "CAN");
        EXPECT_EQ(person.Age, 30);
        EXPECT_EQ(person.Weight, 200);
        EXPECT_EQ(person.Height, 70);
        EXPECT_EQ(person.Contract, 1);
        EXPECT_EQ(person.Salary, 1000);
        EXPECT_EQ(person.Condition, 100);
        for (long long stat = person.Stats.first; stat <= person.Stats.last; ++stat)
            EXPECT_EQ(person.Stats[stat], stat == endurance ? 80 : 37) << stat;
    }
};

TEST_F(PrepareLeagueTest, TheFirstSlotsBecomePlaceholders)
{
    LeagueData.UnknownRating = 37;
    for (auto* number : {&Players[0].Number, &Goalies[0].Number})
        *number = 99;
    for (auto* team : {&Players[0].Team, &Goalies[0].Team})
        *team = 5;
    PrepareLeague(OpenLeague);
    ExpectPlaceholder(Players[0], "Unknown Player", skater::DU);
    EXPECT_EQ(Players[0].Position, position::Center);
    ExpectPlaceholder(Goalies[0], "Unknown Goalie", goalie::DU);
}

TEST_F(PrepareLeagueTest, TheTwoWordsOfEverybodyAreCopied)
{
    for (const long long slot : {1LL, PlayerTable::last}) {
        Players[slot].TradeAvailable = true;
        Players[slot].Protected.SetWord(1);
    }
    for (const long long slot : {1LL, GoalieTable::last}) {
        Goalies[slot].TradeAvailable.SetWord(2);
        Goalies[slot].Protected = true;
    }
    RosterChanges[2].TradeAvailable = true;
    RosterChangesGoalie[2].Protected = true;
    PrepareLeague(OpenLeague);
    for (const long long slot : {1LL, PlayerTable::last}) {
        EXPECT_EQ(RosterChanges[slot].TradeAvailable.Word(), -1) << slot;
        EXPECT_EQ(RosterChanges[slot].Protected.Word(), 1) << slot;
    }
    for (const long long slot : {1LL, GoalieTable::last}) {
        EXPECT_EQ(RosterChangesGoalie[slot].TradeAvailable.Word(), 2) << slot;
        EXPECT_EQ(RosterChangesGoalie[slot].Protected.Word(), -1) << slot;
    }
    EXPECT_EQ(RosterChanges[2].TradeAvailable.Word(), 0);
    EXPECT_EQ(RosterChangesGoalie[2].Protected.Word(), 0);
}

TEST_F(PrepareLeagueTest, RulesThatOlderFilesDoNotKnowGetTheirDefaults)
{
    struct Row {
        Int16 League::*Rule;
        int Default;
    };
    const Row rows[] = {
        {&League::ProDressedSkaters, 18}, {&League::MaxDressedGoalies, 2},  {&League::RequiredCenters, 3},
        {&League::RequiredLeftWings, 3},  {&League::RequiredRightWings, 3}, {&League::RequiredDefensemen, 6},
        {&League::OverallWeightCK, 50},
    };
    for (const Row& row : rows)
        LeagueData.*row.Rule = 0;
    PrepareLeague(OpenLeague);
    for (const Row& row : rows)
        EXPECT_EQ(LeagueData.*row.Rule, row.Default) << &row - rows;

    for (const int held : {-1, 1, 7}) {
        for (const Row& row : rows)
            LeagueData.*row.Rule = held;
        PrepareLeague(OpenLeague);
        for (const Row& row : rows)
            EXPECT_EQ(LeagueData.*row.Rule, held) << &row - rows;
    }
}

} // namespace
} // namespace dravik
