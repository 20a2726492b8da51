#include "rules/WipeLines.h"

#include "support/FailingBoxes.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <array>
#include <bit>
#include <cstddef>
#include <memory>

namespace dravik {
namespace {

using ::testing::ElementsAre;

constexpr std::size_t WordCount = 76;
using Words = std::array<int, WordCount>;

// The first words of the fields that a wipe knows, in the record of 76.
constexpr std::size_t Reserved = 46;
constexpr std::size_t ReservedEnd = 48;
constexpr std::size_t GoalieWords = 54;
constexpr std::size_t GoalieWordsEnd = 56;
constexpr std::size_t Strategy = 71;
constexpr std::size_t Pull = 74;

bool IsSkaterWord(std::size_t word)
{
    return word < Strategy && !(word >= Reserved && word < ReservedEnd) &&
           !(word >= GoalieWords && word < GoalieWordsEnd);
}

Words WordsOf(const Lines& lines)
{
    const auto raw = std::bit_cast<std::array<Int16, WordCount>>(lines);
    Words words{};
    for (std::size_t i = 0; i < WordCount; ++i)
        words[i] = static_cast<int>(raw[i]);
    return words;
}

void SetWords(Lines& lines, const Words& words)
{
    std::array<Int16, WordCount> raw;
    for (std::size_t i = 0; i < WordCount; ++i)
        raw[i] = words[i];
    lines = std::bit_cast<Lines>(raw);
}

Words AllOf(int value)
{
    Words words{};
    words.fill(value);
    return words;
}

class WipeLinesTest : public SmallLeague {
protected:
    // Fills every word of every day of the team, pro and farm.
    static void Flood(int team, int value)
    {
        for (int day = 1; day <= 10; ++day) {
            SetWords(Teams[team].ProLines[day], AllOf(value));
            SetWords(Teams[team].Farm.FarmLines[day], AllOf(value));
        }
    }
};

TEST_F(WipeLinesTest, WipeOfAFarmDayLeavesTheProDayAlone)
{
    Flood(5, 3);
    WipesLines(5, 4, false);
    EXPECT_EQ(WordsOf(Teams[5].ProLines[4]), AllOf(3));
    EXPECT_EQ(Teams[5].Farm.FarmLines[4].NormalForward(1, 1), 0);
}

TEST_F(WipeLinesTest, WipeOfAProDayLeavesTheFarmDayAlone)
{
    Flood(5, 3);
    WipesLines(5, 4, true);
    EXPECT_EQ(WordsOf(Teams[5].Farm.FarmLines[4]), AllOf(3));
    EXPECT_EQ(Teams[5].ProLines[4].NormalForward(1, 1), 0);
}

TEST_F(WipeLinesTest, WipeEmptiesAllSlotsAndPointsOfItsDayOnly)
{
    for (const bool pro : {true, false}) {
        Flood(5, 3);
        Flood(6, 3);
        WipesLines(5, 4, pro);
        Words expected{};
        expected[Reserved] = 3;
        expected[Reserved + 1] = 3;
        expected[Pull] = 3;
        expected[Pull + 1] = 3;
        EXPECT_EQ(WordsOf(pro ? Teams[5].ProLines[4] : Teams[5].Farm.FarmLines[4]), expected);
        for (int day = 1; day <= 10; ++day) {
            if (day != 4 || !pro) {
                EXPECT_EQ(WordsOf(Teams[5].ProLines[day]), AllOf(3));
            }
            if (day != 4 || pro) {
                EXPECT_EQ(WordsOf(Teams[5].Farm.FarmLines[day]), AllOf(3));
            }
            EXPECT_EQ(WordsOf(Teams[6].ProLines[day]), AllOf(3));
            EXPECT_EQ(WordsOf(Teams[6].Farm.FarmLines[day]), AllOf(3));
        }
    }
}

TEST_F(WipeLinesTest, PullOfTheGoalieStaysAndTheStrategyPointsDoNot)
{
    Lines& lines = Teams[5].ProLines[1];
    lines.PullGoalerMinGoal = 2;
    lines.PullGoalerMinPct = 80;
    lines.Strategy[0] = 1;
    lines.Strategy[1] = 2;
    lines.Strategy[2] = 2;
    WipesLines(5, 1, true);
    EXPECT_EQ(lines.PullGoalerMinGoal, 2);
    EXPECT_EQ(lines.PullGoalerMinPct, 80);
    for (const Int16& points : lines.Strategy)
        EXPECT_EQ(points, 0);
}

TEST_F(WipeLinesTest, WipeOfADayLeavesTheCaptainsAndModifiedAlone)
{
    Flood(5, 3);
    Teams[5].Captain = 3;
    Teams[5].Assistant[1] = 3;
    WipesLines(5, 1, true);
    EXPECT_EQ(Teams[5].Captain, 3);
    EXPECT_EQ(Teams[5].Assistant[1], 3);
    EXPECT_FALSE(Modified);
}

TEST_F(WipeLinesTest, TeamOrDayOutsideItsRangeFailsTheIntegrityCheckAndDoesNothing)
{
    Flood(1, 3);
    Flood(100, 3);
    Teams[1].Captain = Teams[100].Captain = 3;
    PutSkater(3, 1, position::Center, status::Pro);
    const auto before = AllTables();
    const int wrong[][2] = {{0, 1}, {101, 1}, {-1, 1}, {1, 0}, {1, 11}, {100, -1}};
    for (const auto& [team, day] : wrong) {
        WipesLines(team, day, true);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
        WipesLines(team, day, false);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
    }
    for (const int team : {-1, 0, 101})
        for (const int person : {3, 10003}) {
            WipePlayerFromTeamLines(team, person);
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Integrity Check Failed!"}));
        }
    EXPECT_TRUE(AllTables() == before);
    EXPECT_FALSE(Modified);
}

TEST_F(WipeLinesTest, FirstAndLastTeamAndDayCanBeWiped)
{
    Flood(1, 3);
    Flood(100, 3);
    WipesLines(1, 10, true);
    WipesLines(100, 1, false);
    EXPECT_EQ(Teams[1].ProLines[10].StartGoalie, 0);
    EXPECT_EQ(Teams[100].Farm.FarmLines[1].StartGoalie, 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre());
}

TEST_F(WipeLinesTest, WipingAPlayerWhoStandsInNoSlotChangesNothing)
{
    Flood(5, 3);
    Teams[5].Captain = 3;
    const auto before = ImageOf(Teams);
    WipePlayerFromTeamLines(5, 4);
    WipePlayerFromTeamLines(5, GoalieOffset + 4);
    EXPECT_EQ(ImageOf(Teams), before);
}

TEST_F(WipeLinesTest, WipingAGoalieLeavesASkaterWithTheSameIndexAlone)
{
    Flood(5, 3);
    Words expected = AllOf(3);
    expected[GoalieWords] = 0;
    expected[GoalieWords + 1] = 0;
    WipePlayerFromTeamLines(5, GoalieOffset + 3);
    for (int day = 1; day <= 10; ++day) {
        EXPECT_EQ(WordsOf(Teams[5].ProLines[day]), expected);
        EXPECT_EQ(WordsOf(Teams[5].Farm.FarmLines[day]), expected);
    }
}

TEST_F(WipeLinesTest, WipingAGoalieLeavesASkaterSlotWithHisNumberAndTenThousandAlone)
{
    Flood(5, GoalieOffset + 3);
    Teams[5].Captain = GoalieOffset + 3;
    const auto before = ImageOf(Teams);
    WipePlayerFromTeamLines(5, GoalieOffset + 3);
    EXPECT_EQ(ImageOf(Teams), before);
}

TEST_F(WipeLinesTest, WipingASkaterLeavesAGoalieWithTheSameIndexAlone)
{
    Flood(5, 3);
    Words expected = AllOf(3);
    for (std::size_t word = 0; word < WordCount; ++word)
        if (IsSkaterWord(word))
            expected[word] = 0;
    WipePlayerFromTeamLines(5, 3);
    for (int day = 1; day <= 10; ++day) {
        EXPECT_EQ(WordsOf(Teams[5].ProLines[day]), expected);
        EXPECT_EQ(WordsOf(Teams[5].Farm.FarmLines[day]), expected);
    }
}

TEST_F(WipeLinesTest, WipedGoalieLeavesTheCaptainAlone)
{
    Teams[5].Captain = 3;
    Teams[5].Assistant[1] = 3;
    Teams[5].Assistant[2] = 3;
    WipePlayerFromTeamLines(5, GoalieOffset + 3);
    EXPECT_EQ(Teams[5].Captain, 3);
    EXPECT_EQ(Teams[5].Assistant[1], 3);
    EXPECT_EQ(Teams[5].Assistant[2], 3);
}

TEST_F(WipeLinesTest, CaptainLosesTheCByAnyWipe)
{
    Teams[5].Captain = 3;
    Teams[5].Assistant[1] = 4;
    Teams[5].Assistant[2] = 3;
    WipePlayerFromTeamLines(5, 3);
    EXPECT_EQ(Teams[5].Captain, 0);
    EXPECT_EQ(Teams[5].Assistant[1], 4);
    EXPECT_EQ(Teams[5].Assistant[2], 0);
    WipePlayerFromTeamLines(5, 4);
    EXPECT_EQ(Teams[5].Assistant[1], 0);
}

TEST_F(WipeLinesTest, WipedSlotStandsEmptyAndNothingClosesUp)
{
    Lines& lines = Teams[5].ProLines[2];
    for (int number = 1; number <= 5; ++number)
        lines.PenaltyShot[number] = number;
    WipePlayerFromTeamLines(5, 2);
    const int expected[] = {1, 0, 3, 4, 5};
    for (int number = 1; number <= 5; ++number)
        EXPECT_EQ(lines.PenaltyShot[number], expected[number - 1]);
}

TEST_F(WipeLinesTest, Number10000IsStillASkater)
{
    Lines& lines = Teams[5].ProLines[2];
    lines.NormalForward(1, 1) = 10000;
    Teams[5].Captain = 10000;
    WipePlayerFromTeamLines(5, 10000);
    EXPECT_EQ(lines.NormalForward(1, 1), 0);
    EXPECT_EQ(Teams[5].Captain, 0);
}

TEST_F(WipeLinesTest, WipeOfAPersonDoesNotSetModified)
{
    Flood(5, 3);
    WipePlayerFromTeamLines(5, 3);
    EXPECT_FALSE(Modified);
}

TEST_F(WipeLinesTest, WipedPersonStandsNowhereAndAllOthersStayWhereTheyStood)
{
    Dice dice(52);
    for (int round = 0; round < 1000; ++round) {
        RollLeague(dice, {.Teams = 3, .Skaters = 15, .Goalies = 4, .Coaches = 0});
        const auto team = static_cast<int>(dice.Roll(1, 3));
        const bool isGoalie = dice.Chance(40);
        const auto index = static_cast<int>(isGoalie ? dice.Roll(1, 4) : dice.Roll(1, 15));
        const auto table = std::make_unique<TeamTable>(Teams);
        WipePlayerFromTeamLines(team, isGoalie ? GoalieOffset + index : index);

        TeamTable& expected = *table;
        for (int day = 1; day <= 10; ++day)
            for (Lines* lines : {&expected[team].ProLines[day], &expected[team].Farm.FarmLines[day]}) {
                Words words = WordsOf(*lines);
                for (std::size_t word = 0; word < WordCount; ++word) {
                    const bool goalieWord = word >= GoalieWords && word < GoalieWordsEnd;
                    if (words[word] == index && (isGoalie ? goalieWord : IsSkaterWord(word)))
                        words[word] = 0;
                }
                SetWords(*lines, words);
            }
        Team& record = expected[team];
        for (Int16* letter : {&record.Captain, &record.Assistant[1], &record.Assistant[2]})
            if (!isGoalie && *letter == index)
                *letter = 0;
        ASSERT_EQ(ImageOf(Teams), ImageOf(expected)) << "round " << round;
    }
}

TEST_F(WipeLinesTest, AFailureIsReportedWithTheNameOfItsRoutine)
{
    FailingBoxes failing(1);
    UseMachine(failing);
    WipesLines(0, 1, true);
    EXPECT_THAT(failing.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in WipesLines!"}));
    failing.FailuresLeft = 1;
    WipePlayerFromTeamLines(0, 1);
    EXPECT_THAT(failing.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in WipePlayerFromTeamLines!"}));
    UseMachine(Machine);
}

} // namespace
} // namespace dravik
