#include "desk/SlotPicks.h"

#include "desk/LineCandidates.h"
#include "desk/PlaceOnLine.h"
#include "LinesDesk.h"
#include "rules/Overall.h"
#include "support/RandomLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

class SlotPicksTest : public LinesDesk {
protected:
    static std::vector<SlotPick> Picks(const DaySlot& slot, Side side = Side::Pro)
    {
        return PicksFor(OpenWork(), Own, side, slot);
    }
};

TEST_F(SlotPicksTest, ASlotIsForThePositionThatItsPlaceNames)
{
    for (int place = 1; place <= 3; ++place) {
        EXPECT_EQ(PositionOfSlot(Of(LineField::NormalForward, 4, place)), place);
        EXPECT_EQ(PositionOfSlot(Of(LineField::PPForward, 2, place)), place);
    }
    for (const LineField field : {LineField::NormalDefense, LineField::PPDefense, LineField::PKDefense,
                                  LineField::FourVsFourDefense, LineField::PK3Defense})
        EXPECT_EQ(PositionOfSlot(Of(field, 1, 2)), position::Defense);
    EXPECT_EQ(PositionOfSlot(Of(LineField::ExtraDefense, 5)), position::Defense);
    for (const DaySlot& slot : {Of(LineField::PKForward, 1, 2), Of(LineField::FourVsFourForward, 2, 2),
                                Of(LineField::PK3Forward, 1), Of(LineField::ExtraForward, 2)})
        EXPECT_EQ(PositionOfSlot(slot), position::Center);
    EXPECT_EQ(PositionOfSlot(Of(LineField::PenaltyShot, 3)), 0);
    EXPECT_EQ(PositionOfSlot(SlotIn(StartGoalieWord)), position::Goalie);
    EXPECT_EQ(PositionOfSlot(SlotIn(BackupGoalieWord)), position::Goalie);
}

TEST_F(SlotPicksTest, TheListOffersThemAndTheSlotTakesThemBestFirst)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        ResetClientVariables();
        Dice dice(seed);
        RollLeague(dice);
        LeagueData.ShowOverall = dice.Chance(70);
        for (const Side side : Sides)
            for (const DaySlot& slot : DaySlots) {
                // Every candidate in turn behind those who are better, or as good and before him.
                std::vector<SlotPick> expected;
                MuteVoice mute;
                bool modified = false;
                EachLineCandidate({OpenLeague, mute, Machine, modified}, 2, side, [&](PersonId who, int position) {
                    if (!TakesSomebody(slot, side, who, position))
                        return;
                    const int at = PositionOfSlot(slot) == 0 ? position : PositionOfSlot(slot);
                    std::optional<int> overall;
                    if (LeagueData.ShowOverall)
                        overall = OverallAt(OpenLeague, at, who.Slot);
                    auto place = expected.begin();
                    while (place != expected.end() && overall <= place->Overall)
                        ++place;
                    expected.insert(place, {who, position, overall});
                });
                const PersonId nobody{.IsGoalie = slot.IsGoalies(), .Slot = 0};
                const int position = slot.IsGoalies() ? position::Goalie : position::Center;
                if (side == Side::Farm && LeagueData.FarmRosterRequired.Word() == 0 &&
                    TakesSomebody(slot, side, nobody, position))
                    expected.push_back({nobody, position, std::nullopt});
                EXPECT_THAT(PicksFor(OpenWork(), 2, side, slot), ElementsAreArray(expected))
                    << seed << ' ' << slot.Word;
            }
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(SlotPicksTest, AWingIsJudgedAsADefensemanWhereADefensemanIsWanted)
{
    const int id = Pro.Skaters[4];
    const std::vector<SlotPick> picks = Picks(Of(LineField::NormalDefense, 1, 1));
    const auto wing =
        std::find_if(picks.begin(), picks.end(), [id](const SlotPick& pick) { return pick.Who.Slot == id; });
    ASSERT_NE(wing, picks.end());
    EXPECT_EQ(wing->Overall, OverallAt(OpenLeague, position::Defense, id));
    EXPECT_EQ(wing->Position, PositionOf(Players[id]));
}

TEST_F(SlotPicksTest, HiddenOverallsLeaveTheOrderOfTheList)
{
    LeagueData.ShowOverall = false;
    int last = 0;
    for (const SlotPick& pick : Picks(Of(LineField::NormalForward, 1, 1))) {
        EXPECT_EQ(pick.Overall, std::nullopt);
        EXPECT_GT(pick.Who.Slot, last);
        last = pick.Who.Slot;
    }
    EXPECT_GT(last, 0);
}

TEST_F(SlotPicksTest, NobodyIsToldOfASkaterWithoutAPosition)
{
    Players[Pro.Skaters[0]].Position = 0;
    for (const SlotPick& pick : Picks(Of(LineField::NormalForward, 1, 1)))
        EXPECT_NE(pick.Who.Slot, Pro.Skaters[0]);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
