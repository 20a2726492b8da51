#include "desk/Ranking.h"

#include "OnMarket.h"
#include "support/FailingBoxes.h"

#include <numeric>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Rank = std::optional<int>;

const Box NobodyChosen{box::Warning, "No Player Select!"};
const Box AtTheEdge{box::Warning, "This player can be move!"};

class RankingTest : public OnMarket {
protected:
    // Ranks these ids and nobody else.
    void Set(const std::vector<int>& ids)
    {
        Ranking = {};
        for (std::size_t rank = 0; rank < ids.size(); ++rank)
            Ranking[static_cast<long long>(rank)] = ids[rank];
    }
    static std::vector<int> Everybody()
    {
        std::vector<int> ids(1001);
        std::iota(ids.begin(), ids.end(), 1);
        return ids;
    }
    // The whole ranking without the free ranks behind it.
    std::vector<int> Ids()
    {
        std::vector<int> ids;
        for (const Int16& id : Ranking)
            ids.push_back(static_cast<int>(id));
        while (!ids.empty() && ids.back() == 0)
            ids.pop_back();
        return ids;
    }
    bool Last(Rank id) { return RankLast(OpenWork(), Ranking, id); }
    bool Off(Rank rank) { return Unrank(OpenWork(), Ranking, rank); }
    Rank Up(Rank rank, int count) { return MoveRank(OpenWork(), Ranking, rank, RankStep::Up, count); }
    Rank Down(Rank rank, int count) { return MoveRank(OpenWork(), Ranking, rank, RankStep::Down, count); }
};

TEST_F(RankingTest, WhoIsRankedComesBehindTheOthers)
{
    EXPECT_TRUE(Last(10003));
    EXPECT_TRUE(Last(7));
    EXPECT_TRUE(Last(20300));
    EXPECT_THAT(Ids(), ElementsAre(10003, 7, 20300));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, WhoIsRankedAlreadyStaysWhereHeIsWithoutAWord)
{
    Set({7, 8});
    EXPECT_TRUE(ChangesNothing([&] {
        EXPECT_TRUE(Last(7));
        EXPECT_TRUE(Last(8));
    }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, AThousandAndOneFillTheRankingAndOneMoreChangesAndSaysNothing)
{
    std::vector<int> ids = Everybody();
    ids.pop_back();
    Set(ids);
    EXPECT_TRUE(Last(1001));
    EXPECT_EQ(Ids(), Everybody());
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_TRUE(Last(1002)); }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, TheFirstFreeRankIsTaken)
{
    Set({7, 0, 8}); // as no command leaves it
    EXPECT_TRUE(Last(9));
    EXPECT_THAT(Ids(), ElementsAre(7, 9, 8));
}

TEST_F(RankingTest, RankingNobodyIsToldInAWarning)
{
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_FALSE(Last(std::nullopt)); }));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NobodyChosen));
}

TEST_F(RankingTest, AnIdBelowOneIsPassedOverWithoutAWord)
{
    Set({7});
    for (const int id : {0, -3})
        EXPECT_TRUE(ChangesNothing([&] { EXPECT_FALSE(Last(id)); }));
    EXPECT_TRUE(Last(1));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, AnIdThatFitsNoRankFailsWith6)
{
    EXPECT_TRUE(Last(32767));
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(FailureFrom([&] { Last(32768); }), failure::Overflow); }));
    Set(Everybody());
    EXPECT_EQ(FailureFrom([&] { Last(32768); }), 0) << "with no rank to fit";
}

TEST_F(RankingTest, EverybodyBehindARankThatIsTakenOffMovesUp)
{
    Set({7, 8, 10003, 20001});
    EXPECT_TRUE(Off(1));
    EXPECT_THAT(Ids(), ElementsAre(7, 10003, 20001));
    EXPECT_TRUE(Off(2));
    EXPECT_THAT(Ids(), ElementsAre(7, 10003));
    EXPECT_TRUE(Off(0));
    EXPECT_TRUE(Off(0));
    EXPECT_THAT(Ids(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, InAFullRankingTheLastRankStays)
{
    Set(Everybody());
    EXPECT_TRUE(Off(998));
    EXPECT_EQ(Ranking[997], 998);
    EXPECT_EQ(Ranking[998], 1000);
    EXPECT_EQ(Ranking[999], 1001);
    EXPECT_EQ(Ranking[1000], 1001);
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_TRUE(Off(1000)); }));
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_TRUE(Off(1001)); })) << "nor is there anybody behind it";
}

TEST_F(RankingTest, TakingNobodyOffIsToldInAWarning)
{
    Set({7});
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_FALSE(Off(std::nullopt)); }));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NobodyChosen));
}

TEST_F(RankingTest, ARankOutsideTheTableFailsWith9)
{
    Set({7, 8});
    EXPECT_EQ(FailureFrom([&] { Off(-1); }), failure::OutOfRange);
    EXPECT_EQ(FailureFrom([&] { Up(1002, 1004); }), failure::OutOfRange);
    EXPECT_EQ(FailureFrom([&] { Down(1002, 1004); }), failure::OutOfRange);
    EXPECT_EQ(FailureFrom([&] { Up(-1, 2); }), failure::OutOfRange);
    EXPECT_THAT(Ids(), ElementsAre(7, 8));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, ARankIsExchangedWithItsNeighbour)
{
    Set({7, 8, 9});
    EXPECT_EQ(Up(2, 3), 1);
    EXPECT_THAT(Ids(), ElementsAre(7, 9, 8));
    EXPECT_EQ(Up(1, 3), 0);
    EXPECT_THAT(Ids(), ElementsAre(9, 7, 8));
    EXPECT_EQ(Down(0, 3), 1);
    EXPECT_EQ(Down(1, 3), 2);
    EXPECT_THAT(Ids(), ElementsAre(7, 8, 9));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, TheFirstMovesNoFurtherUpAndTheLastNoFurtherDown)
{
    Set({7, 8});
    EXPECT_TRUE(ChangesNothing([&] {
        EXPECT_EQ(Up(0, 2), std::nullopt);
        EXPECT_EQ(Down(1, 2), std::nullopt);
    }));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(AtTheEdge, AtTheEdge));
    Set({7});
    EXPECT_EQ(Up(0, 1), std::nullopt);
    EXPECT_EQ(Down(0, 1), std::nullopt);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(AtTheEdge, AtTheEdge));
}

TEST_F(RankingTest, TheLastOfAFullRankingMovesUpAndDownAgain)
{
    Set(Everybody());
    EXPECT_EQ(Down(1000, 1001), std::nullopt);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(AtTheEdge));
    EXPECT_EQ(Up(1000, 1001), 999);
    EXPECT_EQ(Ranking[999], 1001);
    EXPECT_EQ(Down(999, 1001), 1000);
    EXPECT_EQ(Ids(), Everybody());
}

TEST_F(RankingTest, MovingNobodyIsToldInAWarning)
{
    Set({7, 8});
    EXPECT_TRUE(ChangesNothing([&] {
        EXPECT_EQ(Up(std::nullopt, 2), std::nullopt);
        EXPECT_EQ(Down(std::nullopt, 2), std::nullopt);
    }));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NobodyChosen, NobodyChosen));
}

TEST_F(RankingTest, NobodyChangesPlacesWithAFreeRank)
{
    Set({0, 8});
    EXPECT_TRUE(ChangesNothing([&] {
        EXPECT_EQ(Up(1, 2), std::nullopt);
        EXPECT_EQ(Down(1, 3), std::nullopt);
    }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, MovingToARankPassesTheOnesBetween)
{
    for (int from = 0; from < 5; ++from)
        for (int to = 0; to < 5; ++to) {
            std::vector<int> expected{11, 12, 13, 14, 15};
            Set(expected);
            EXPECT_EQ(MoveRankTo(Ranking, from, to), to);
            expected.erase(expected.begin() + from);
            expected.insert(expected.begin() + to, 11 + from);
            EXPECT_EQ(Ids(), expected) << from << " to " << to;
        }
}

TEST_F(RankingTest, MovingToARankEndsInFrontOfAFreeOne)
{
    Set({7, 8, 0, 9});
    EXPECT_EQ(MoveRankTo(Ranking, 0, 3), 1);
    EXPECT_THAT(Ids(), ElementsAre(8, 7, 0, 9));
    EXPECT_EQ(MoveRankTo(Ranking, 3, 0), 3);
    EXPECT_THAT(Ids(), ElementsAre(8, 7, 0, 9));
}

TEST_F(RankingTest, MovingToARankEndsAtTheEdgesOfTheTable)
{
    Set(Everybody());
    EXPECT_EQ(FailureFrom([&] { MoveRankTo(Ranking, 999, 1001); }), failure::OutOfRange);
    EXPECT_EQ(Ranking[1000], 1000) << "as far as it came";
    Set({7, 8});
    EXPECT_EQ(FailureFrom([&] { MoveRankTo(Ranking, 1, -1); }), failure::OutOfRange);
    EXPECT_THAT(Ids(), ElementsAre(8, 7));
}

TEST_F(RankingTest, ABoxThatFailsChangesNothing)
{
    Set({7, 8});
    const std::function<void()> commands[] = {[&] { Last(std::nullopt); }, [&] { Off(std::nullopt); },
                                              [&] { Up(std::nullopt, 2); }, [&] { Up(0, 2); }, [&] { Down(1, 2); }};
    for (const auto& command : commands) {
        FailingBoxes failing(1);
        UseMachine(failing);
        EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(FailureFrom(command), failure::Overflow); }));
        UseMachine(Machine);
    }
}

TEST_F(RankingTest, TheRankedAreToldBestFirst)
{
    PutSkater(7, 0, position::LeftWing, status::Farm);
    PutGoalie(3, 0, status::Farm);
    Prospects[1].Name = "Tor Lindqvist";
    Set({20001, 0, 7, 10003});
    std::vector<std::pair<int, std::string>> told;
    const auto tell = [&](int id, const std::string& name) { told.emplace_back(id, name); };
    EXPECT_TRUE(ChangesNothing([&] { EachRanked(OpenLeague, Ranking, tell); }));
    EXPECT_THAT(told, ElementsAre(std::pair(20001, "Tor Lindqvist"), std::pair(7, "Skater 7 (LW)"),
                                  std::pair(10003, "Goalie 3 (G)")));
    told.clear();
    Ranking[2] = 15000;
    EXPECT_EQ(FailureFrom([&] { EachRanked(OpenLeague, Ranking, tell); }), failure::OutOfRange);
    EXPECT_THAT(told, ElementsAre(std::pair(20001, "Tor Lindqvist"))) << "whoever stands before him";
}

TEST_F(RankingTest, AnEmptyRankingIsNotSaved)
{
    EXPECT_FALSE(MaySaveRanking(OpenWork(), 0));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Your list is empty!"}));
    EXPECT_TRUE(MaySaveRanking(OpenWork(), 1));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(RankingTest, ASavedRankingIsToldWithItsDraftAndItsPlace)
{
    Set({7});
    const std::string target = Machine.InFolder("HarbourCityGulls.dvd");
    EXPECT_TRUE(ChangesNothing([&] {
        EXPECT_EQ(SaveRanking(OpenLeague, OpenFiles(), 5, Ranking, "Entry Draft"),
                  "Entry Draft File save for Harbour City Gulls succesfully at\r\n" + target);
    }));
    EXPECT_TRUE(Machine.FindEntry(target).has_value());
    EXPECT_THAT(Machine.Boxes(), IsEmpty()) << "that is up to the caller";
}

TEST_F(RankingTest, ARankingThatCannotBeCompressedIsToldAndHasNoWords)
{
    Set({7});
    Machine.FailFileOperation(3, failure::DiskFull);
    EXPECT_EQ(SaveRanking(OpenLeague, OpenFiles(), 5, Ranking, "Entry Draft"), std::nullopt);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "61 - Disk full in Zlib Compress!"}));
}

TEST_F(RankingTest, ANameThatNoFileMayHaveFailsWith75)
{
    Teams[5].Name = "Gulls/Ducks";
    EXPECT_EQ(FailureFrom([&] { SaveRanking(OpenLeague, OpenFiles(), 5, Ranking, ""); }), failure::PathAccess);
}

} // namespace
} // namespace dravik
