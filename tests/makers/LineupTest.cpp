#include "makers/OpenRun.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

class LineupTest : public SmallLeague {
protected:
    int Insert(int id)
    {
        InsertInLineup(OpenLeague, Machine, List, id);
        return id;
    }

    [[nodiscard]] std::vector<long long> Ids() const
    {
        std::vector<long long> ids;
        for (int place = 1; place <= List.Count(); ++place)
            ids.push_back(List.Ids[place]);
        return ids;
    }

    [[nodiscard]] std::vector<long long> Ratings() const
    {
        std::vector<long long> ratings;
        for (int place = 1; place <= List.Count(); ++place)
            ratings.push_back(List.Ratings[place]);
        return ratings;
    }

    Lineup List;
};

TEST_F(LineupTest, TheListRunsFromBestToWorst)
{
    TeamMaker(5).Dresses(1, position::Center, 50).Dresses(1, position::Defense, 70).Dresses(1, position::LeftWing, 60);
    for (int id = 1; id <= 3; ++id)
        Insert(id);
    EXPECT_THAT(Ids(), ElementsAre(2, 3, 1));
    EXPECT_THAT(Ratings(), ElementsAre(70, 60, 50));
}

TEST_F(LineupTest, AmongEqualRatingsTheEarlierInsertedStandsFirst)
{
    TeamMaker(5).Dresses(4, position::Center, 60);
    Insert(3);
    Insert(1);
    Insert(4);
    Insert(2);
    EXPECT_THAT(Ids(), ElementsAre(3, 1, 4, 2));
}

TEST_F(LineupTest, EntryZeroOfTheRatingsIsTheCount)
{
    TeamMaker(5).Dresses(2, position::Center);
    EXPECT_EQ(List.Ratings[0], 0);
    Insert(1);
    Insert(2);
    EXPECT_EQ(List.Ratings[0], 2);
    EXPECT_EQ(List.Count(), 2);
}

TEST_F(LineupTest, ASkatersIdComesBackAsItWas)
{
    TeamMaker(5).Dresses(1, position::Center);
    EXPECT_EQ(Insert(1), 1);
}

TEST_F(LineupTest, AGoaliesIdComesBackAsThePlainIndex)
{
    PutGoalie(7, 5, status::Pro, 66);
    EXPECT_EQ(Insert(10007), 7);
    EXPECT_THAT(Ids(), ElementsAre(7));
    EXPECT_THAT(Ratings(), ElementsAre(66));
}

TEST_F(LineupTest, Id10000IsTheLastSkater)
{
    PutSkater(10000, 5, position::Defense, status::Pro, 44);
    EXPECT_EQ(Insert(10000), 10000);
    EXPECT_THAT(Ids(), ElementsAre(10000));
    EXPECT_THAT(Ratings(), ElementsAre(44));
}

TEST_F(LineupTest, ASkaterWithoutAPositionIsToldAndRatedZero)
{
    PutSkater(1, 5, 0, status::Pro, 60);
    Insert(1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_THAT(Ratings(), ElementsAre(0));
}

TEST_F(LineupTest, EmptyingLeavesNothingBehindTheEnd)
{
    TeamMaker(5).Dresses(5, position::Center);
    for (int id = 1; id <= 5; ++id)
        Insert(id);
    List.Ratings[0] = 2;
    List.Empty();
    EXPECT_EQ(List.Count(), 0);
    for (int place = 1; place <= 5; ++place) {
        EXPECT_EQ(List.Ids[place], 0);
        EXPECT_EQ(List.Ratings[place], 0);
    }
}

TEST_F(LineupTest, APlaceBehindTheEndIsThatOfRecordZero)
{
    TeamMaker(5).Dresses(1, position::Center);
    Insert(1);
    OpenRun run;
    run.Lines.List = List;
    EXPECT_EQ(&run.Lines.SkaterAt(1), &Players[1]);
    EXPECT_EQ(&run.Lines.SkaterAt(2), &Players[0]);
}

TEST_F(LineupTest, AFullListFailsWithNumber9)
{
    PutSkater(1, 5, position::Center, status::Pro);
    for (int i = 0; i < 11000; ++i)
        Insert(1);
    try {
        Insert(1);
        FAIL() << "the list has no end";
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.Number, failure::OutOfRange);
    }
    EXPECT_EQ(List.Count(), 11000);
}

TEST_F(LineupTest, ARatingBelowZeroStandsLast)
{
    PutSkater(1, 5, position::Center, status::Pro, -20);
    PutSkater(2, 5, position::Center, status::Pro, 0);
    PutSkater(3, 5, position::Center, status::Pro, 1);
    for (int id = 1; id <= 3; ++id)
        Insert(id);
    EXPECT_THAT(Ids(), ElementsAre(3, 2, 1));
    EXPECT_LT(List.Ratings[3], 0);
}

} // namespace
} // namespace dravik
