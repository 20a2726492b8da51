#include "league/PersonId.h"

#include "support/SmallLeague.h"

#include <limits>

namespace dravik {
namespace {

constexpr PersonId Skater(int slot) { return {.IsGoalie = false, .Slot = slot}; }
constexpr PersonId Keeper(int slot) { return {.IsGoalie = true, .Slot = slot}; }

class PersonIdTest : public SmallLeague {};

TEST_F(PersonIdTest, Number10000IsTheLastSkaterAnd10001TheFirstGoalie)
{
    EXPECT_EQ(PersonOf(0), Skater(0));
    EXPECT_EQ(PersonOf(1), Skater(1));
    EXPECT_EQ(PersonOf(9999), Skater(9999));
    EXPECT_EQ(PersonOf(10000), Skater(10000));
    EXPECT_EQ(PersonOf(10001), Keeper(1));
    EXPECT_EQ(PersonOf(11000), Keeper(1000));
}

TEST_F(PersonIdTest, ANumberOutsideTheTablesMeansASlotThatIsNotThere)
{
    EXPECT_EQ(PersonOf(-1), Skater(-1));
    EXPECT_EQ(PersonOf(11001), Keeper(1001));
    EXPECT_EQ(PersonOf(std::numeric_limits<int>::min()), Skater(std::numeric_limits<int>::min()));
    EXPECT_EQ(PersonOf(std::numeric_limits<int>::max()), Keeper(std::numeric_limits<int>::max() - 10000));
    for (const int id : {0, 1, 10000, 10001, 11000})
        EXPECT_TRUE(PersonOf(id).HasSlot()) << id;
    for (const int id : {-1, 11001, 20001, 32767})
        EXPECT_FALSE(PersonOf(id).HasSlot()) << id;
}

TEST_F(PersonIdTest, NobodyYetIsTheSkaterInSlot0) { EXPECT_EQ(PersonId(), Skater(0)); }

TEST_F(PersonIdTest, EveryNumberComesBackAsItWas)
{
    for (int id = -2; id <= 32767; ++id)
        ASSERT_EQ(PersonOf(id).CommonId(), id);
}

TEST_F(PersonIdTest, ThePlaceholderOfTheGoaliesHasNoNumberOfHisOwn)
{
    EXPECT_EQ(Keeper(0).CommonId(), 10000);
    EXPECT_NE(PersonOf(Keeper(0).CommonId()), Keeper(0));
}

TEST_F(PersonIdTest, TheKindOfARecordTellsWhoStandsInASlot)
{
    EXPECT_EQ(PersonIn<Player>(7), Skater(7));
    EXPECT_EQ(PersonIn<const Player>(7), Skater(7));
    EXPECT_EQ(PersonIn<Goalie>(7), Keeper(7));
    EXPECT_EQ(PersonIn<const Goalie>(7), Keeper(7));
}

TEST_F(PersonIdTest, ARecordNamesItsPersonByTheNumberThatStandsInIt)
{
    Players[7].Number = 8;
    Goalies[7].Number = 9;
    EXPECT_EQ(CommonNumberOf(Players[7]), 8);
    EXPECT_EQ(CommonNumberOf(Goalies[7]), 10009);
}

TEST_F(PersonIdTest, EachKindIsLookedUpInItsOwnTables)
{
    Players[7].Age = 19;
    Goalies[7].Age = 41;
    const auto ageOf = [](PersonId who) {
        return OnPerson(OpenLeague, who, [](const auto& person) -> long long { return person.Age; });
    };
    EXPECT_EQ(ageOf(Skater(7)), 19);
    EXPECT_EQ(ageOf(Keeper(7)), 41);
    ChangeOf(OpenLeague, Skater(7)).Status = 1;
    ChangeOf(OpenLeague, Keeper(7)).Status = 2;
    EXPECT_EQ(RosterChanges[7].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[7].Status, 2);
}

TEST_F(PersonIdTest, SomebodyWithoutASlotFailsWithNumber9)
{
    for (const PersonId who : {Skater(-1), Skater(10001), Keeper(-1), Keeper(1001)}) {
        try {
            OnPerson(OpenLeague, who, [](const auto& person) { ADD_FAILURE() << person.Name.Trimmed(); });
            ADD_FAILURE() << "nobody stands there";
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.Number, failure::OutOfRange);
        }
    }
}

} // namespace
} // namespace dravik
