#include "rules/LineJudge.h"
#include "rules/RosterJudge.h"
#include "rules/SalaryCap.h"
#include "session/Session.h"
#include "support/LineFindings.h"
#include "support/SmallLeague.h"

#include <functional>
#include <new>
#include <optional>
#include <stdexcept>

// How a judgement can end, as its verdict holds it: with an answer, without one, or with the number of a failure.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::optional<int> NoFailure;

const Box Integrity{box::Critical, "Integrity Check Failed!"};
Box Broken(const std::string& words) { return {box::Critical, words}; }

// Team 5 has a full roster and complete lines on day 1, pro and farm.
class VerdictTest : public SmallLeague {
protected:
    VerdictTest() : pro(5), farm(5)
    {
        pro.DressesFullRoster();
        farm.FarmsFullRoster();
        FillDay(Teams[5].ProLines[1], pro);
        FillDay(Teams[5].Farm.FarmLines[1], farm);
    }

    static RosterVerdict Roster(int team = 5) { return CheckRoster(OpenWork(), team, false, true, false); }
    static CapVerdict Cap(int team = 5) { return CheckSalaryCap(OpenWork(), team, false); }
    static LineVerdict ProLines(int team = 5) { return CheckLine(OpenWork(), team, false, 1, false); }
    static LineVerdict FarmLines(int team = 5) { return CheckLineFarm(OpenWork(), team, false, 1, false); }

    // Has the next box end in what `fail` throws.
    void FailNextBox(const std::function<void()>& fail)
    {
        Machine.OnEvent = [this, fail](const std::string& event) {
            if (event != "box")
                return;
            const auto once = fail; // the listener ends here, and what it holds
            Machine.OnEvent = nullptr;
            once();
        };
    }

    TeamMaker pro;
    TeamMaker farm;
};

TEST_F(VerdictTest, NobodyHasFailedWhereAllIsWell)
{
    const RosterVerdict roster = Roster();
    EXPECT_TRUE(roster.Complete);
    EXPECT_FALSE(roster.Repaired);
    EXPECT_EQ(roster.Failed, NoFailure);
    EXPECT_EQ(TextOf(OpenLeague, 5, roster), "");
    ASSERT_TRUE(roster.Cap);
    EXPECT_TRUE(roster.Cap->Within);
    EXPECT_EQ(roster.Cap->Failed, NoFailure);

    EXPECT_TRUE(Cap().Within);
    EXPECT_EQ(Cap().Failed, NoFailure);
    EXPECT_EQ(TextOf(OpenLeague, Machine, 5, Cap()), "");

    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        for (const LineVerdict& lines : {ProLines(), FarmLines()}) {
            EXPECT_TRUE(lines.Complete);
            EXPECT_EQ(lines.Failed, NoFailure);
            EXPECT_EQ(TextOf(OpenLeague, lines), "Lines are perfect!");
        }
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(VerdictTest, WhatIsWrongIsNoFailure)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    Players[1].Contract = 0;
    const RosterVerdict roster = Roster();
    EXPECT_FALSE(roster.Complete);
    EXPECT_TRUE(roster.Repaired);
    EXPECT_EQ(roster.Failed, NoFailure);
    ASSERT_TRUE(roster.Cap);
    EXPECT_FALSE(roster.Cap->Within);
    EXPECT_EQ(roster.Cap->Failed, NoFailure);
    EXPECT_EQ(TextOf(OpenLeague, Machine, 5, *roster.Cap), "Team 5 is over the salary cap by $18,999,999.00!\r\n");

    Teams[5].Farm.FarmLines[1].StartGoalie = 0;
    LeagueData.FarmRosterRequired = true;
    for (const LineVerdict& lines : {ProLines(), FarmLines()}) {
        EXPECT_FALSE(lines.Complete);
        EXPECT_EQ(lines.Failed, NoFailure);
        EXPECT_NE(TextOf(OpenLeague, lines), "");
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(VerdictTest, ATeamOutOfRangeIsToldAndNoFailure)
{
    for (const int team : {-1, 0, 101}) {
        const RosterVerdict roster = Roster(team);
        EXPECT_FALSE(roster.Complete || roster.Repaired || roster.Failed || roster.Cap);
        EXPECT_EQ(TextOf(OpenLeague, team, roster), "");
        const CapVerdict cap = Cap(team);
        EXPECT_FALSE(cap.Within || cap.Failed);
        EXPECT_EQ(TextOf(OpenLeague, Machine, team, cap), "");
        for (const LineVerdict& lines : {ProLines(team), FarmLines(team)}) {
            EXPECT_FALSE(lines.Complete || lines.Failed);
            EXPECT_EQ(TextOf(OpenLeague, lines), "");
        }
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Integrity, Integrity, Integrity, Integrity));
    }
}

TEST_F(VerdictTest, AnOverflowOfTheRosterLeavesWhatWasFoundByThenAndNoPayroll)
{
    LeagueData.FarmRosterRequired = true;
    LeagueData.RequiredDefensemen = 16384;
    Players[1].Condition = 0;
    const RosterVerdict roster = Roster();
    EXPECT_FALSE(roster.Complete);
    EXPECT_TRUE(roster.Repaired);
    EXPECT_EQ(roster.Failed, failure::Overflow);
    EXPECT_FALSE(roster.Cap);
    EXPECT_NE(TextOf(OpenLeague, 5, roster).find("Not enough Defenseman"), std::string::npos)
        << TextOf(OpenLeague, 5, roster);
    EXPECT_EQ(TextOf(OpenLeague, 5, roster).find("Some errors will be automatically fixed."), std::string::npos)
        << "closed only at its end";
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Broken("6 - Overflow in CheckRoster!")));
}

TEST_F(VerdictTest, APayrollThatFailsIsNoFailureOfTheRoster)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.MaxSalary = 2147483647;
    Players[1].Salary = Players[2].Salary = 2147483647;
    const RosterVerdict roster = Roster();
    EXPECT_TRUE(roster.Complete);
    EXPECT_EQ(roster.Failed, NoFailure);
    ASSERT_TRUE(roster.Cap);
    EXPECT_TRUE(roster.Cap->Within) << "what was found by then";
    EXPECT_EQ(roster.Cap->Failed, failure::Overflow);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Broken("6 - Overflow in CheckSalaryCap!")));

    const CapVerdict cap = Cap();
    EXPECT_EQ(cap.Failed, failure::Overflow);
    EXPECT_EQ(TextOf(OpenLeague, Machine, 5, cap), "");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Broken("6 - Overflow in CheckSalaryCap!")));
}

TEST_F(VerdictTest, AnAmountThatFailsBehindTheAnswerLeavesTheAnswer)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = -2147483648;
    const CapVerdict cap = Cap();
    EXPECT_FALSE(cap.Within);
    EXPECT_EQ(cap.Failed, failure::Overflow);
    EXPECT_EQ(TextOf(OpenLeague, Machine, 5, cap), "");
    const RosterVerdict roster = Roster();
    EXPECT_FALSE(roster.Complete);
    EXPECT_EQ(roster.Failed, NoFailure);
    EXPECT_EQ(Machine.Boxes(), std::vector<Box>(2, Broken("6 - Overflow in CheckSalaryCap!")));
}

TEST_F(VerdictTest, ASlotOutsideItsTableEndsEachJudgeOfLinesWith9)
{
    struct Call {
        bool Required;
        LineVerdict (*Judge)(int);
        Lines& Day;
        const char* Text;
    };
    const Call calls[] = {
        {false, ProLines, Teams[5].ProLines[1], "9 - Subscript out of range in CheckLine!"},
        {false, FarmLines, Teams[5].Farm.FarmLines[1], "9 - Subscript out of range in CheckLineFarm!"},
        {true, FarmLines, Teams[5].Farm.FarmLines[1], "9 - Subscript out of range in CheckLine!"},
    };
    PutSkater(50, 6, position::Center, status::Pro);
    for (const Call& call : calls) {
        LeagueData.FarmRosterRequired = call.Required;
        call.Day.NormalForward(1, 1) = 50;
        call.Day.BackupGoalie = -1;
        const LineVerdict lines = call.Judge(5);
        EXPECT_FALSE(lines.Complete);
        EXPECT_EQ(lines.Failed, failure::OutOfRange);
        EXPECT_EQ(TextOf(OpenLeague, lines), "Skater 50 is not on farm roster for this team.\r\n");
        EXPECT_EQ(lines.Findings.size(), 1U);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Broken(call.Text)));
    }
}

// The box that would tell of the team ends in one failure or another.
TEST_F(VerdictTest, WhateverABoxEndsInStandsInTheVerdictByItsNumber)
{
    struct Kind {
        std::function<void()> Throw;
        int Number;
        std::string Told;
    };
    const Kind kinds[] = {
        {[] { Fail(failure::DiskFull); }, failure::DiskFull, "61 - Disk full"},
        {[] { throw std::bad_alloc(); }, failure::OutOfMemory, "7 - Out of memory"},
        {[] { throw std::logic_error("any other"); }, failure::InvalidCall, "5 - Invalid procedure call or argument"},
    };
    struct Judge {
        std::function<std::optional<int>()> FailureOf;
        std::string Ending;
    };
    const Judge judges[] = {
        {[] { return Roster(0).Failed; }, " in CheckRoster!"},
        {[] { return Cap(0).Failed; }, " in CheckSalaryCap!"},
        {[] { return ProLines(0).Failed; }, " in CheckLine!"},
        {[] { return FarmLines(0).Failed; }, " in CheckLineFarm!"},
    };
    for (const Kind& kind : kinds)
        for (const Judge& judge : judges) {
            FailNextBox(kind.Throw);
            EXPECT_EQ(judge.FailureOf(), kind.Number);
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Integrity, Broken(kind.Told + judge.Ending)));
        }
}

TEST_F(VerdictTest, OfTwoFailuresOfTheStrictFarmJudgeTheOuterOneStands)
{
    LeagueData.FarmRosterRequired = true;
    Teams[5].Farm.FarmLines[1].StartGoalie = -1;
    FailNextBox([] { throw std::bad_alloc(); });
    EXPECT_EQ(FarmLines().Failed, failure::OutOfMemory);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Broken("9 - Subscript out of range in CheckLine!"),
                                             Broken("7 - Out of memory in CheckLineFarm!")));
}

} // namespace
} // namespace dravik
