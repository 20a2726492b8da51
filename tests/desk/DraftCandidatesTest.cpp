#include "desk/DraftCandidates.h"

#include "OnMarket.h"

#include <tuple>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Two skaters and a goalie are without a team; skater 9 has one. Prospects 1 and 300 have names.
class DraftCandidatesTest : public OnMarket {
protected:
    using Entry = std::tuple<int, std::string, int>; // the overall is -1 where none is shown

    DraftCandidatesTest()
    {
        PutSkater(7, 0, position::LeftWing, status::Farm, 61).Name = "Ward Tilton";
        PutSkater(8, 0, position::Defense, status::Farm, 62).Name = "  Karl Dreyer ";
        PutSkater(9, 5, position::Center, status::Pro).Name = "Nils Ekdahl";
        PutGoalie(3, 0, status::Farm, 63).Name = "Piet Vos";
        Prospects[1].Name = "Tor Lindqvist";
        Prospects[300].Name = " Marek Zelinka";
        LeagueData.FantasyDraft = true;
        LeagueData.ShowOverall = false;
        for (bool& shown : Shown)
            shown = true;
    }

    [[nodiscard]] std::vector<Entry> Told() const
    {
        std::vector<Entry> entries;
        EachDraftCandidate(OpenLeague, Shown, [&](const DraftCandidate& candidate) {
            entries.emplace_back(candidate.Id, candidate.Text, candidate.Overall.value_or(-1));
        });
        return entries;
    }

    PositionFilter Shown{};
};

TEST_F(DraftCandidatesTest, InAFantasyDraftEverybodyWithoutATeamIsOne)
{
    EXPECT_EQ(DraftTypeOf(LeagueData), "Fantasy Draft");
    EXPECT_FALSE(IsEntryDraftAhead(LeagueData));
    EXPECT_THAT(Told(), ElementsAre(Entry(7, "Ward Tilton (LW)", -1), Entry(8, "Karl Dreyer (D)", -1),
                                    Entry(10003, "Piet Vos (G)", -1)));
}

TEST_F(DraftCandidatesTest, ContractHealthAndAgePlayNoPart)
{
    Players[7].Contract = 3;
    Players[8].Condition = 0;
    Players[8].Suspension = 9;
    Goalies[3].Age = 18;
    EXPECT_EQ(Told().size(), 3U);
}

TEST_F(DraftCandidatesTest, WhoIsNotInUseAndWhoHasATeamIsNone)
{
    Players[7].InUse.SetWord(1);
    Players[8].Team = -1;
    Goalies[3].InUse = false;
    PutSkater(0, 0, position::Center, status::Farm); // the placeholder
    PutGoalie(0, 0, status::Farm);
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(DraftCandidatesTest, ASkaterWithoutAPositionIsPassedOver)
{
    for (const int position : {0, 5, 6, 255}) {
        Players[7].Position = position;
        EXPECT_EQ(Told().size(), 2U) << position;
    }
}

TEST_F(DraftCandidatesTest, APositionThatIsNotShownIsPassedOver)
{
    for (int position = 1; position <= 4; ++position)
        PutSkater(position, 0, position, status::Farm);
    for (int hidden = 1; hidden <= 5; ++hidden) {
        Shown[hidden] = false;
        for (const Entry& entry : Told()) {
            const int id = std::get<0>(entry);
            const int position = id > GoalieOffset ? 5 : static_cast<int>(Players[id].Position);
            EXPECT_NE(position, hidden);
        }
        const std::size_t held = hidden == 2 || hidden == 4 ? 2 : 1; // Tilton and Dreyer play there, too
        EXPECT_EQ(Told().size(), 7 - held) << hidden;
        Shown[hidden] = true;
    }
}

TEST_F(DraftCandidatesTest, TheFirstAndTheLastSlotsAreLookedAt)
{
    PutSkater(1, 0, position::Center, status::Farm);
    PutSkater(10000, 0, position::RightWing, status::Farm);
    PutGoalie(1, 0, status::Farm);
    PutGoalie(1000, 0, status::Farm);
    EXPECT_THAT(Told(), ElementsAre(Entry(1, "Skater 1 (C)", -1), Entry(7, "Ward Tilton (LW)", -1),
                                    Entry(8, "Karl Dreyer (D)", -1), Entry(10000, "Skater 10000 (RW)", -1),
                                    Entry(10001, "Goalie 1 (G)", -1), Entry(10003, "Piet Vos (G)", -1),
                                    Entry(11000, "Goalie 1000 (G)", -1)));
}

TEST_F(DraftCandidatesTest, TheIdIsTheNumberOfTheRecordAndTheOverallThatOfItsSlot)
{
    LeagueData.ShowOverall = true;
    Players[7].Number = 8;
    Goalies[3].Number = 32767;
    EXPECT_THAT(Told(), ElementsAre(Entry(8, "Ward Tilton (LW)", 61), Entry(8, "Karl Dreyer (D)", 62),
                                    Entry(42767, "Piet Vos (G)", 63)));
}

TEST_F(DraftCandidatesTest, InAnEntryDraftTheProspectsWithANameAreThem)
{
    LeagueData.FantasyDraft = false;
    LeagueData.EntryDraft = true;
    LeagueData.ShowOverall = true;
    Prospects[2].Name = "   ";
    Shown = {};
    EXPECT_EQ(DraftTypeOf(LeagueData), "Entry Draft");
    EXPECT_TRUE(IsEntryDraftAhead(LeagueData));
    EXPECT_THAT(Told(), ElementsAre(Entry(20001, "Tor Lindqvist", -1), Entry(20300, "Marek Zelinka", -1)));
}

TEST_F(DraftCandidatesTest, AnEntryDraftThatIsDoneIsNotAhead)
{
    LeagueData.FantasyDraft = false;
    LeagueData.EntryDraft = true;
    for (const int done : {1, -1}) {
        LeagueData.EntryDraftDone = done;
        EXPECT_FALSE(IsEntryDraftAhead(LeagueData));
        EXPECT_EQ(DraftTypeOf(LeagueData), "");
        EXPECT_THAT(Told(), IsEmpty());
    }
    LeagueData.EntryDraftDone = 0;
    LeagueData.EntryDraft.SetWord(1); // which is not True
    EXPECT_FALSE(IsEntryDraftAhead(LeagueData));
}

TEST_F(DraftCandidatesTest, WhereBothAreAheadItIsAnEntryDraftWithTheFreeAgentsInFront)
{
    LeagueData.EntryDraft = true;
    EXPECT_EQ(DraftTypeOf(LeagueData), "Entry Draft");
    std::vector<int> ids;
    for (const Entry& entry : Told())
        ids.push_back(std::get<0>(entry));
    EXPECT_THAT(ids, ElementsAre(7, 8, 10003, 20001, 20300));
}

TEST_F(DraftCandidatesTest, WithoutADraftNobodyIsOne)
{
    LeagueData.FantasyDraft.SetWord(1); // which is not True
    EXPECT_EQ(DraftTypeOf(LeagueData), "");
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(DraftCandidatesTest, LookingChangesNothingAndTellsNothing)
{
    LeagueData.ShowOverall = true;
    LeagueData.EntryDraft = true;
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(Told().size(), 5U); }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(DraftCandidatesTest, ARankedPersonIsNamedByHisId)
{
    PutSkater(10000, 0, position::RightWing, status::Farm);
    PutGoalie(1, 0, status::Farm);
    PutGoalie(1000, 0, status::Farm);
    EXPECT_EQ(RankedName(OpenLeague, 7), "Ward Tilton (LW)");
    EXPECT_EQ(RankedName(OpenLeague, 8), "Karl Dreyer (D)");
    EXPECT_EQ(RankedName(OpenLeague, 10000), "Skater 10000 (RW)");
    EXPECT_EQ(RankedName(OpenLeague, 10001), "Goalie 1 (G)");
    EXPECT_EQ(RankedName(OpenLeague, 11000), "Goalie 1000 (G)");
    EXPECT_EQ(RankedName(OpenLeague, 20001), "Tor Lindqvist");
    EXPECT_EQ(RankedName(OpenLeague, 20300), "Marek Zelinka");
}

TEST_F(DraftCandidatesTest, AnIdOutsideTheTablesHasNoName)
{
    for (const int id : {-1, 11001, 20000, 20301, 32767})
        EXPECT_EQ(FailureFrom([&] { RankedName(OpenLeague, id); }), failure::OutOfRange) << id;
    EXPECT_EQ(FailureFrom([&] { RankedName(OpenLeague, 2); }), failure::OutOfRange) << "a skater without a position";
}

} // namespace
} // namespace dravik
