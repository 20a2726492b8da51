#include "rules/LineGroups.h"

#include "rules/Overall.h"
#include "support/LineFindings.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <cmath>

namespace dravik {
namespace {

using ::testing::ElementsAre;

class LineGroupsTest : public SmallLeague {
protected:
    static GroupAverages Averages(Voice& says, const LineGroup& group, int number)
    {
        return AveragesOf(OpenLeague, says, Teams[1].ProLines[1], group, number);
    }
    static std::vector<const LineGroup*> All()
    {
        return {&NormalLines, &PowerPlayUnits, &PenaltyKillUnits, &FourVsFourUnits, &PenaltyKillWithThreeUnits};
    }
};

// The slots that no skater may hold two of are those of the groups, in the order of judging.
TEST_F(LineGroupsTest, TheGroupsHoldTheSlotsThatAreComparedFromLeftToRight)
{
    std::size_t at = 0;
    const std::vector<DoublesCase> cases = DoublesCases();
    const auto expectNext = [&](const LineGroup& group, int number) {
        std::vector<int> words;
        for (const GroupMember& member : group.Members)
            words.push_back(SlotOf(member.Field, number, member.Place).Word);
        std::vector<int> expected;
        for (const LineSlot& slot : cases.at(at).Slots)
            expected.push_back(slot.Word);
        EXPECT_EQ(words, expected) << at;
        ++at;
    };
    for (int line = 1; line <= NormalLines.Count; ++line)
        expectNext(NormalLines, line);
    for (int unit = 1; unit <= 2; ++unit)
        for (const LineGroup* group :
             {&PowerPlayUnits, &PenaltyKillUnits, &FourVsFourUnits, &PenaltyKillWithThreeUnits})
            expectNext(*group, unit);
    EXPECT_EQ(at, 12U);
}

TEST_F(LineGroupsTest, RandomLinesAverageAsByHand)
{
    for (unsigned seed = 1; seed <= 10; ++seed) {
        Dice dice(seed);
        RollLeague(dice);
        for (int index = 1; index <= 150; ++index)
            Players[index].Position = dice.Roll(1, 4);
        Players[0].Position = position::Center;
        for (const LineGroup* group : All())
            for (int number = 1; number <= group->Count; ++number) {
                const GroupAverages averages = Averages(Machine, *group, number);
                double overall = 0;
                Row<double, 1, 15> sums;
                for (const GroupMember& member : group->Members) {
                    const auto id =
                        static_cast<int>(At(Teams[1].ProLines[1], SlotOf(member.Field, number, member.Place)));
                    overall += *OverallAt(OpenLeague, static_cast<int>(Players[id].Position), id);
                    for (int stat = 1; stat <= 15; ++stat)
                        sums[stat] += static_cast<double>(Players[id].Stats[stat]);
                }
                const auto members = static_cast<double>(group->Members.size());
                EXPECT_EQ(averages.Overall, std::nearbyint(overall / members)) << seed;
                for (int stat = 1; stat <= 15; ++stat)
                    EXPECT_EQ(static_cast<double>(averages.Ratings[stat]), std::nearbyint(sums[stat] / members))
                        << seed;
            }
    }
}

TEST_F(LineGroupsTest, ASkaterWithoutAPositionIsToldForEachOfHisSlots)
{
    Players[0].Position = position::Center;
    PutSkater(1, 1, 0, status::Pro);
    Teams[1].ProLines[1].PK3Defense(2, 1) = 1;
    Teams[1].ProLines[1].PK3Defense(2, 2) = 1;
    Averages(Machine, PenaltyKillWithThreeUnits, 2);
    const Box told{box::Critical, "Integrity Check Failed!"};
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(told, told));
}

TEST_F(LineGroupsTest, ANumberOutsideTheTableFailsAndSoDoesALineThatIsNone)
{
    const auto failureOf = [this](const LineGroup& group, int number) {
        try {
            Averages(Machine, group, number);
        } catch (const Failure& failed) {
            return failed.Number;
        }
        return 0;
    };
    EXPECT_EQ(failureOf(NormalLines, 5), failure::OutOfRange);
    EXPECT_EQ(failureOf(PowerPlayUnits, 0), failure::OutOfRange);
    Teams[1].ProLines[1].NormalForward(3, 1) = 20000;
    EXPECT_EQ(failureOf(NormalLines, 3), failure::OutOfRange);
    EXPECT_NE(failureOf(NormalLines, 2), failure::OutOfRange);
    const Box failed{box::Critical, "Integrity Check Failed!"};
    EXPECT_EQ(Machine.Boxes(), std::vector(5, failed)) << "of the placeholder in each slot of line 2";
}

} // namespace
} // namespace dravik
