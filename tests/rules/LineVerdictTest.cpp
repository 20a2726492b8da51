#include "rules/LineVerdict.h"

#include "rules/LineSlots.h"
#include "support/LineFindings.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using WordSet = std::set<std::size_t>;

std::size_t WordAt(LineField field, int number, int place = 1)
{
    return static_cast<std::size_t>(SlotOf(field, number, place).Word);
}

// A finding as a test reads it.
struct Finding {
    LineFault Fault;
    int Person;
    WordSet Slots;
    std::string Words;

    bool operator==(const Finding&) const = default;
};

void PrintTo(const Finding& finding, std::ostream* out)
{
    *out << static_cast<int>(finding.Fault) << " of " << finding.Person << " in "
         << ::testing::PrintToString(finding.Slots) << ": " << finding.Words;
}

std::vector<Finding> FindingsOf(const LineVerdict& verdict)
{
    std::vector<Finding> findings;
    for (const LineFinding& finding : verdict.Findings) {
        WordSet slots;
        for (std::size_t word = 0; word < finding.Slots.size(); ++word)
            if (finding.Slots[word])
                slots.insert(word);
        findings.push_back({finding.Fault, finding.Person, slots, WordsOf(OpenLeague, verdict, finding)});
    }
    return findings;
}

// Team 5 dresses skaters 1 to 18 and goalies 1 and 2, farms skaters 19 to 36 and goalies 3 and 4, and day 1 of both
// line-ups is perfect.
class LineVerdictTest : public SmallLeague {
protected:
    LineVerdictTest() : pro(5), farm(TeamMaker(5))
    {
        pro.DressesFullRoster();
        farm = TeamMaker(5).FarmsFullRoster();
        FillDay(Day(), pro);
        FillDay(FarmDay(), farm);
    }

    static Lines& Day() { return Teams[5].ProLines[1]; }
    static Lines& FarmDay() { return Teams[5].Farm.FarmLines[1]; }
    static LineVerdict Judged() { return VerdictOnLine(5, false, 1, false); }
    static LineVerdict FarmJudged() { return VerdictOnLineFarm(5, false, 1, false); }

    TeamMaker pro;
    TeamMaker farm;
};

TEST_F(LineVerdictTest, CompleteLinesHaveNoFindings)
{
    for (const LineVerdict& verdict : {Judged(), FarmJudged()}) {
        EXPECT_TRUE(verdict.Complete);
        EXPECT_THAT(verdict.Findings, IsEmpty());
        EXPECT_EQ(TextOf(OpenLeague, verdict), "Lines are perfect!");
    }
}

TEST_F(LineVerdictTest, EveryLineOfTheTextIsTheWordsOfItsFinding)
{
    Day() = {};
    FarmDay() = {};
    LeagueData.LinesOneTwoExclusive = true;
    LeagueData.FarmRosterRequired = true;
    std::string closing = "Some errors will be automatically fixed.\r\n";
    for (const LineVerdict& verdict : {Judged(), FarmJudged()}) {
        EXPECT_FALSE(verdict.Complete);
        EXPECT_GT(verdict.Findings.size(), 100U);
        std::string text;
        for (const LineFinding& finding : verdict.Findings)
            text += WordsOf(OpenLeague, verdict, finding) + "\r\n";
        EXPECT_EQ(text + closing, TextOf(OpenLeague, verdict));
        closing.clear();
    }
}

TEST_F(LineVerdictTest, ADoubleHoldsTheLeftSlotAndThoseLikeItOnItsRight)
{
    for (const DoublesCase& group : DoublesCases())
        for (std::size_t left = 0; left < group.Slots.size(); ++left)
            for (std::size_t right = left + 1; right < group.Slots.size(); ++right) {
                FillDay(Day(), pro);
                const auto id = static_cast<int>(At(Day(), group.Slots[left]));
                At(Day(), group.Slots[right]) = id;
                const bool isPair = left + 2 == group.Slots.size();
                const WordSet slots{static_cast<std::size_t>(group.Slots[left].Word),
                                    static_cast<std::size_t>(group.Slots[right].Word)};
                const LineVerdict verdict = Judged();
                EXPECT_FALSE(verdict.Complete);
                EXPECT_THAT(FindingsOf(verdict), ElementsAre(Finding{LineFault::Double, id, slots,
                                                                     Players[id].Name.Trimmed() +
                                                                         (isPair ? group.PairWords : group.Words)}));
            }
}

TEST_F(LineVerdictTest, ASkaterThreeTimesInALineIsTwoFindings)
{
    const auto id = static_cast<int>(Day().NormalForward(2, 1));
    Day().NormalForward(2, 3) = Day().NormalDefense(2, 2) = id;
    const std::string words = Players[id].Name.Trimmed() + " is used twice in Normal line #2";
    const std::size_t center = WordAt(LineField::NormalForward, 2, 1);
    const std::size_t wing = WordAt(LineField::NormalForward, 2, 3);
    const std::size_t defense = WordAt(LineField::NormalDefense, 2, 2);
    EXPECT_THAT(FindingsOf(Judged()), ElementsAre(Finding{LineFault::Double, id, {center, wing, defense}, words},
                                                  Finding{LineFault::Double, id, {wing, defense}, words}));
}

TEST_F(LineVerdictTest, ASkaterInLinesOneAndTwoIsAboutBothSlots)
{
    LeagueData.LinesOneTwoExclusive = true;
    const auto id = static_cast<int>(Day().NormalForward(1, 2));
    Day().NormalDefense(2, 1) = id;
    EXPECT_THAT(FindingsOf(Judged()),
                ElementsAre(Finding{LineFault::LinesShared,
                                    id,
                                    {WordAt(LineField::NormalForward, 1, 2), WordAt(LineField::NormalDefense, 2, 1)},
                                    Players[id].Name.Trimmed() + " is used twice in lines 1 and 2."}));
}

TEST_F(LineVerdictTest, AGoalieWhoIsHisOwnBackupIsAboutBothGoalies)
{
    Day().BackupGoalie = Day().StartGoalie;
    FarmDay().BackupGoalie = FarmDay().StartGoalie;
    for (const auto& [verdict, id] : {std::pair(Judged(), 1), std::pair(FarmJudged(), 3)})
        EXPECT_THAT(FindingsOf(verdict), ElementsAre(Finding{LineFault::SameGoalies,
                                                             id,
                                                             {StartGoalieWord, BackupGoalieWord},
                                                             "Starting Goalie and BackUp Goalie are the same"}));
}

TEST_F(LineVerdictTest, SomebodyRefusedIsAboutAllSlotsOfTheDayThatHeldHim)
{
    for (const bool isUnfit : {true, false}) {
        FillDay(Day(), pro);
        const int id = pro.Skaters[0];
        Players[id].Condition = isUnfit ? 94 : 100;
        Players[id].Status = isUnfit ? status::Pro : status::Scratch;
        WordSet slots;
        for (const LineSlot& slot : SkaterSlots)
            if (At(Day(), slot) == id)
                slots.insert(static_cast<std::size_t>(slot.Word));
        ASSERT_GT(slots.size(), 1U);
        const auto findings = FindingsOf(Judged());
        EXPECT_EQ(findings.front(),
                  (Finding{isUnfit ? LineFault::Unfit : LineFault::Stranger, id, slots,
                           Players[id].Name.Trimmed() +
                               (isUnfit ? " is injured or suspended." : " is not on farm roster for this team.")}));
        // All others are about the slots that he left.
        for (std::size_t i = 1; i < findings.size(); ++i)
            EXPECT_TRUE(std::includes(slots.begin(), slots.end(), findings[i].Slots.begin(), findings[i].Slots.end()));
    }
}

TEST_F(LineVerdictTest, ARefusedGoalieIsAboutTheSlotThatHeldHim)
{
    Goalies[1].Suspension = 2;
    Goalies[2].Status = status::Farm;
    EXPECT_THAT(
        FindingsOf(Judged()),
        ElementsAre(
            Finding{LineFault::Unfit, 1, {StartGoalieWord}, "Goalie 1 is injured or suspended."},
            Finding{LineFault::Stranger, 2, {BackupGoalieWord}, "Goalie 2 is not on farm roster for this team."},
            Finding{LineFault::SameGoalies,
                    0,
                    {StartGoalieWord, BackupGoalieWord},
                    "Starting Goalie and BackUp Goalie are the same"}));
}

TEST_F(LineVerdictTest, AnEmptySlotIsAboutItself)
{
    for (const LineSlot& slot : SkaterSlots) {
        FillDay(Day(), pro);
        At(Day(), slot) = 0;
        const auto findings = FindingsOf(Judged());
        ASSERT_EQ(findings.size(), 1U);
        EXPECT_EQ(findings[0].Fault, LineFault::Empty);
        EXPECT_EQ(findings[0].Person, 0);
        EXPECT_EQ(findings[0].Slots, WordSet{static_cast<std::size_t>(slot.Word)});
    }
    FillDay(Day(), pro);
    Day().StartGoalie = 0;
    EXPECT_THAT(FindingsOf(Judged()),
                ElementsAre(Finding{LineFault::Empty, 0, {StartGoalieWord}, "Starting Goaler is empty."}));
}

TEST_F(LineVerdictTest, AHeadCountIsAboutNoSlot)
{
    LeagueData.ProDressedSkaters = 17;
    EXPECT_THAT(FindingsOf(FarmJudged()),
                ElementsAre(Finding{LineFault::TooMany, 0, {}, "More that 17 Players Found"}));
    LeagueData.ProDressedSkaters = 18;
    LeagueData.FarmRosterRequired = true;
    FarmDay() = {};
    EXPECT_EQ(FindingsOf(FarmJudged()).back(),
              (Finding{LineFault::TooFew, 0, {}, "Not Enough Players Found. Minimum is 18"}));
}

TEST_F(LineVerdictTest, WithoutFarmTeamsNothingIsSaidOfTheFarm)
{
    Day() = {};
    ASSERT_FALSE(Judged().Complete);
    LeagueData.FarmEnabled = false;
    const LineVerdict verdict = FarmJudged();
    EXPECT_TRUE(verdict.Complete);
    EXPECT_THAT(verdict.Findings, IsEmpty());
    EXPECT_EQ(TextOf(OpenLeague, verdict), "");
}

TEST_F(LineVerdictTest, ADayOutOfRangeHasNoFindings)
{
    Day() = {};
    ASSERT_FALSE(Judged().Complete);
    for (const LineVerdict& verdict : {VerdictOnLine(5, true, 11, false), VerdictOnLineFarm(101, true, 1, false)}) {
        EXPECT_FALSE(verdict.Complete);
        EXPECT_THAT(verdict.Findings, IsEmpty());
        EXPECT_EQ(TextOf(OpenLeague, verdict), "");
    }
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}, Box{16, "Integrity Check Failed!"}));
}

TEST_F(LineVerdictTest, AJudgementThatFailsKeepsWhatItFoundByThen)
{
    Day().NormalForward(1, 1) = 0;
    Day().PenaltyShot[5] = 10001;
    const LineVerdict verdict = Judged();
    EXPECT_FALSE(verdict.Complete);
    EXPECT_THAT(FindingsOf(verdict),
                ElementsAre(Finding{
                    LineFault::Empty, 0, {WordAt(LineField::NormalForward, 1, 1)}, "Normal line # 1 C is empty."}));
    EXPECT_EQ(TextOf(OpenLeague, verdict), "Normal line # 1 C is empty.\r\n");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in CheckLine!"}));
}

TEST_F(LineVerdictTest, ALaterJudgementLeavesAnEarlierVerdictAsItWas)
{
    Day().StartGoalie = 0;
    const LineVerdict first = Judged();
    FillDay(Day(), pro);
    ASSERT_TRUE(CheckLine(5, false, 1, false));
    EXPECT_EQ(FindingsOf(first).at(0).Words, "Starting Goaler is empty.");
    EXPECT_EQ(LastLinesText(), "Lines are perfect!");
}

TEST_F(LineVerdictTest, TheTextIsShownWhenAsked)
{
    Day().StartGoalie = 0;
    const LineVerdict verdict = VerdictOnLine(5, true, 1, false);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, TextOf(OpenLeague, verdict)}));
    EXPECT_TRUE(VerdictOnLineFarm(5, true, 1, false).Complete);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lines are perfect!"}));
}

TEST_F(LineVerdictTest, TheLogTakesTheTeamTheFarmToldByBothNames)
{
    Teams[5].Name = "  Harbour City Gulls ";
    Teams[5].Farm.Name = " Pebble Creek Ducks  ";
    EXPECT_TRUE(CheckLine(5, false, 1, true));
    EXPECT_TRUE(CheckLineFarm(5, false, 1, true));
    LeagueData.FarmRosterRequired = true;
    Day().StartGoalie = 0;
    FarmDay().StartGoalie = 0;
    EXPECT_FALSE(CheckLine(5, false, 1, true));
    EXPECT_FALSE(CheckLineFarm(5, false, 1, true));
    EXPECT_THAT(
        Machine.TakeNews(),
        ElementsAre(
            News{"log", "Harbour City Gulls lines errors : Lines are perfect!"},
            News{"log", "Pebble Creek Ducks (Harbour City Gulls) lines errors : Lines are perfect!"},
            News{"log", "Harbour City Gulls lines errors : Starting Goaler is empty.\r\n"
                        "Some errors will be automatically fixed.\r\n"},
            News{"log", "Pebble Creek Ducks (Harbour City Gulls) lines errors : Starting Goaler is empty.\r\n"}));
    EXPECT_FALSE(CheckLine(5, true, 1, false));
    EXPECT_FALSE(CheckLineFarm(5, true, 1, false));
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    const std::string empty = "Starting Goaler is empty.\r\n";
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, empty + "Some errors will be automatically fixed.\r\n"}, Box{64, empty}));
}

} // namespace
} // namespace dravik
