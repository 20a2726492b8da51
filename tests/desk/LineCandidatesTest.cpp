#include "desk/LineCandidates.h"

#include "LinesDesk.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LineCandidatesTest : public SmallLeague {
protected:
    using Visits = std::vector<std::pair<int, int>>; // in the form that both kinds share, and his position

    LineCandidatesTest()
    {
        const TeamMaker made(5);
        PutSkater(3, 5, position::Defense, status::Pro);
        PutSkater(4, 5, position::LeftWing, status::Farm);
        PutSkater(9, 5, position::Center, status::Pro);
        PutSkater(10000, 5, position::RightWing, status::Pro);
        PutGoalie(1, 5, status::Farm);
        PutGoalie(2, 5, status::Pro);
        PutGoalie(1000, 5, status::Pro);
        PutSkater(11, 6, position::Center, status::Pro);
        PutSkater(12, 5, position::Center, status::Scratch);
    }

    Visits Visited(Side side)
    {
        Visits visits;
        EachLineCandidate(OpenWork(), 5, side,
                          [&](PersonId who, int position) { visits.emplace_back(who.CommonId(), position); });
        return visits;
    }
};

TEST_F(LineCandidatesTest, SkatersComeBeforeGoaliesInTheOrderOfTheTables)
{
    EXPECT_THAT(Visited(Side::Pro), ElementsAre(std::pair(3, 4), std::pair(9, 1), std::pair(10000, 3),
                                                std::pair(10002, 5), std::pair(11000, 5)));
    EXPECT_THAT(Visited(Side::Farm), ElementsAre(std::pair(4, 2), std::pair(10001, 5)));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(LineCandidatesTest, WhoIsNotInUseHurtOrSuspendedIsNone)
{
    Players[3].Condition = 94;
    Players[9].Suspension = 1;
    Players[10000].InUse.SetWord(1);
    Goalies[2].Condition = 95;
    Goalies[1000].Suspension = 1;
    EXPECT_THAT(Visited(Side::Pro), ElementsAre(std::pair(10002, 5)));
}

TEST_F(LineCandidatesTest, NobodyAsksForAContract)
{
    Players[4].Contract = 0;
    EXPECT_THAT(Visited(Side::Farm), ElementsAre(std::pair(4, 2), std::pair(10001, 5)));
}

TEST_F(LineCandidatesTest, ASkaterWithoutAPositionIsToldAndLeftOut)
{
    Players[3].Position = 0;
    Players[9].Position = 5;
    EXPECT_THAT(Visited(Side::Pro), ElementsAre(std::pair(10000, 3), std::pair(10002, 5), std::pair(11000, 5)));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Skater 3 has no position!"},
                                                 Box{box::Critical, "Skater 9 has no position!"}));
    Players[9].Condition = 50;
    Visited(Side::Pro);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Skater 3 has no position!"}))
        << "nobody asks for the position of somebody unfit";
}

TEST_F(LineCandidatesTest, WhenTheBoxFailsThoseBeforeHimHaveBeenVisited)
{
    Players[9].Position = 0;
    FailingBoxes failing(1);
    int visits = 0;
    try {
        EachLineCandidate({OpenLeague, failing, failing, Modified}, 5, Side::Pro, [&](PersonId, int) { ++visits; });
        FAIL() << "the box was shown";
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.Number, failure::Overflow);
    }
    EXPECT_EQ(visits, 1);
}

TEST_F(LineCandidatesTest, ThePlaceholdersPlayOnFarmsThatNeedNoRoster)
{
    for (const int word : {0, 1, -1}) {
        LeagueData.FarmRosterRequired.SetWord(word);
        EXPECT_EQ(ArePlaceholdersCandidates(LeagueData, Side::Farm), word == 0) << word;
        EXPECT_FALSE(ArePlaceholdersCandidates(LeagueData, Side::Pro)) << word;
    }
}

} // namespace
} // namespace dravik
