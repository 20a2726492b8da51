#include "rules/LineSlots.h"
#include "support/LineFindings.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <array>
#include <bit>
#include <random>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

enum class Judge { Pro, Strict, Lenient };

// A second reading of the rules of lines, spelled out slot by slot on a copy of the team, without the tables that the
// program's own judges read.
class PlainReading {
public:
    PlainReading(Judge whichJudge, int teamNumber, int day) :
        judge(whichJudge), number(teamNumber), Record(Teams[teamNumber]),
        lines(whichJudge == Judge::Pro ? Record.ProLines[day] : Record.Farm.FarmLines[day])
    {
        try {
            Walk();
            Complete = Text.empty();
            if (Complete)
                Text = "Lines are perfect!";
            else if (judge == Judge::Pro)
                Text += "Some errors will be automatically fixed.\r\n";
        } catch (const Failure& failure) {
            Failed = failure.Number;
        }
    }

private:
    Judge judge;
    int number;

public:
    Team Record;
    std::string Text;
    bool Complete = false;
    int Failed = 0;

private:
    Lines& lines;

    void Line(const std::string& text) { Text += text + "\r\n"; }
    static std::string Name(int id) { return Players[id].Name.Trimmed(); }
    static std::string Digits(long long value) { return std::to_string(value); }

    void Wipe(int id)
    {
        const auto clear = [id](Int16& slot) {
            if (slot == id)
                slot = 0;
        };
        for (int day = 1; day <= 10; ++day)
            for (Lines* each : {&Record.ProLines[day], &Record.Farm.FarmLines[day]}) {
                for (int line = 1; line <= 4; ++line) {
                    for (int position = 1; position <= 3; ++position)
                        clear(each->NormalForward(line, position));
                    for (int pair = 1; pair <= 2; ++pair)
                        clear(each->NormalDefense(line, pair));
                }
                for (int unit = 1; unit <= 2; ++unit) {
                    clear(each->PPForward(unit, 3));
                    clear(each->PK3Forward[unit]);
                    for (int place = 1; place <= 2; ++place) {
                        clear(each->PPForward(unit, place));
                        clear(each->PPDefense(unit, place));
                        clear(each->PKForward(unit, place));
                        clear(each->PKDefense(unit, place));
                        clear(each->FourVsFourForward(unit, place));
                        clear(each->FourVsFourDefense(unit, place));
                        clear(each->PK3Defense(unit, place));
                    }
                }
                for (int place = 1; place <= 5; ++place) {
                    clear(each->ExtraForward[place]);
                    clear(each->ExtraDefense[place]);
                    clear(each->PenaltyShot[place]);
                }
            }
        clear(Record.Captain);
        clear(Record.Assistant[1]);
        clear(Record.Assistant[2]);
    }

    void Slot(const Int16& slot, const std::string& empty)
    {
        const auto id = static_cast<int>(slot);
        if (id == 0) {
            if (judge != Judge::Lenient)
                Line(empty);
            return;
        }
        if (id < 0 || id > 10000)
            Fail(9);
        const Player& player = Players[id];
        if (player.Status == (judge == Judge::Pro ? 2 : 0) && player.Team == number) {
            if (player.Condition >= 95 && player.Suspension == 0)
                return;
            Line(Name(id) + " is injured or suspended.");
        } else {
            Line(Name(id) + " is not on farm roster for this team.");
        }
        Wipe(id);
    }

    void Goal(Int16& slot, const std::string& empty)
    {
        if (slot == 0) {
            if (judge != Judge::Lenient)
                Line(empty);
            return;
        }
        if (slot < 0 || slot > 1000)
            Fail(9);
        const Goalie& goalie = Goalies[slot];
        const bool belongs = goalie.Status == (judge == Judge::Pro ? 2 : 0) && goalie.Team == number;
        if (belongs && goalie.Condition >= 95 && goalie.Suspension == 0)
            return;
        Line(goalie.Name.Trimmed() + (belongs ? " is injured or suspended." : " is not on farm roster for this team."));
        slot = 0;
    }

    // One comparison: the left value with those on its right.
    void Twice(long long left, const std::vector<long long>& right, const std::string& words)
    {
        if (judge == Judge::Lenient && left == 0)
            return;
        for (const long long other : right)
            if (other == left) {
                Line(Name(static_cast<int>(left)) + words);
                return;
            }
    }

    void Walk()
    {
        Lines& l = lines;
        for (int i = 1; i <= 4; ++i) {
            const std::string n = Digits(i);
            Slot(l.NormalForward(i, 1), "Normal line # " + n + " C is empty.");
            Slot(l.NormalForward(i, 2), "Normal line # " + n + " LW is empty.");
            Slot(l.NormalForward(i, 3), "Normal line # " + n + " RW is empty.");
            Slot(l.NormalDefense(i, 1), "Normal line # " + n + " Defense #" + n + " is empty.");
            Slot(l.NormalDefense(i, 2), "Normal line # " + n + " Defense #" + n + " is empty.");
            const long long c = l.NormalForward(i, 1), lw = l.NormalForward(i, 2), rw = l.NormalForward(i, 3),
                            d1 = l.NormalDefense(i, 1), d2 = l.NormalDefense(i, 2);
            Twice(c, {lw, rw, d1, d2}, " is used twice in Normal line #" + n);
            Twice(lw, {rw, d1, d2}, " is used twice in Normal line #" + n);
            Twice(rw, {d1, d2}, " is used twice in Normal line #" + n);
            Twice(d1, {d2}, " is used twice in Normal line #" + n);
        }
        if (judge != Judge::Lenient && LeagueData.LinesOneTwoExclusive.Word() == -1) {
            const std::vector<long long> second{l.NormalForward(2, 1), l.NormalForward(2, 2), l.NormalForward(2, 3),
                                                l.NormalDefense(2, 1), l.NormalDefense(2, 2)};
            for (const long long first : {l.NormalForward(1, 1), l.NormalForward(1, 2), l.NormalForward(1, 3),
                                          l.NormalDefense(1, 1), l.NormalDefense(1, 2)})
                Twice(first, second, " is used twice in lines 1 and 2.");
        }
        const std::string pp = judge == Judge::Pro ? "PP line " : "PP line";
        for (int i = 1; i <= 2; ++i) {
            const std::string n = Digits(i);
            Slot(l.PPForward(i, 1), pp + n + " C is empty.");
            Slot(l.PPForward(i, 2), pp + n + " LW is empty.");
            Slot(l.PPForward(i, 3), pp + n + " RW is empty.");
            Slot(l.PPDefense(i, 1), "PP line " + n + " Defense #" + n + " is empty.");
            Slot(l.PKForward(i, 1), "PK line " + n + " C is empty.");
            Slot(l.PKDefense(i, 1), "PK line " + n + " Defense #" + n + " is empty.");
            Slot(l.FourVsFourForward(i, 1), "4 vs 4 line " + n + " C is empty.");
            Slot(l.FourVsFourDefense(i, 1), "4 vs 4 line " + n + " Defense #" + n + " is empty.");
            Slot(l.PK3Defense(i, 1), "PK3 line " + n + " Defense #" + n + " is empty.");
            Slot(l.PPDefense(i, 2), "PP line " + n + " Defense #" + n + " is empty.");
            Slot(l.PKForward(i, 2), "PK line " + n + " LW is empty.");
            Slot(l.PKDefense(i, 2), "PK line " + n + " Defense #" + n + " is empty.");
            Slot(l.FourVsFourForward(i, 2), "4 vs 4 line " + n + " LW is empty.");
            Slot(l.FourVsFourDefense(i, 2), "4 vs 4 line " + n + " Defense #" + n + " is empty.");
            Slot(l.PK3Defense(i, 2), "PK3 line " + n + " Defense #" + n + " is empty.");
            Slot(l.PK3Forward[i], "PK3 line " + n + (judge == Judge::Pro ? " forward is empty." : " RW is empty."));

            long long c = l.PPForward(i, 1), w = l.PPForward(i, 2), d1 = l.PPDefense(i, 1), d2 = l.PPDefense(i, 2);
            const long long rw = l.PPForward(i, 3);
            Twice(c, {w, rw, d1, d2}, " is used twice in PP line#" + n);
            Twice(w, {rw, d1, d2}, " is used twice in PP line#" + n);
            Twice(rw, {d1, d2}, " is used twice in PP line#" + n);
            Twice(d1, {d2}, " is used twice PP in line#" + n);
            c = l.PKForward(i, 1), w = l.PKForward(i, 2), d1 = l.PKDefense(i, 1), d2 = l.PKDefense(i, 2);
            Twice(c, {w, d1, d2}, " is used twice in PK line#" + n);
            Twice(w, {d1, d2}, " is used twice in PK line#" + n);
            Twice(d1, {d2}, " is used twice PK in line#" + n);
            c = l.FourVsFourForward(i, 1), w = l.FourVsFourForward(i, 2);
            d1 = l.FourVsFourDefense(i, 1), d2 = l.FourVsFourDefense(i, 2);
            Twice(c, {w, d1, d2}, " is used twice in 4 vs 4 line#" + n);
            Twice(w, {d1, d2}, " is used twice in 4 vs 4 line#" + n);
            Twice(d1, {d2}, " is used twice 4 vs 4 in line#" + n);
            c = l.PK3Forward[i], d1 = l.PK3Defense(i, 1), d2 = l.PK3Defense(i, 2);
            Twice(c, {d1, d2}, " is used twice in PK3 line#" + n);
            Twice(d1, {d2}, " is used twice PK3 in line#" + n);
        }
        for (int i = 1; i <= 5; ++i) {
            Slot(l.ExtraForward[i], "Extra Forward #" + Digits(i) + " is empty.");
            Slot(l.ExtraDefense[i], "Extra Defense #" + Digits(i) + " is empty.");
            Slot(l.PenaltyShot[i], "Penalty Shot Player #" + Digits(i) + " is empty.");
        }
        TwiceInList(l.ExtraForward, " is used twice in Extra Forward");
        TwiceInList(l.ExtraDefense, " is used twice in Extra Defense");
        TwiceInList(l.PenaltyShot, " is used twice in Extra Penalty Shot");
        Goal(l.StartGoalie, "Starting Goaler is empty.");
        Goal(l.BackupGoalie, "Backup Goaler is empty.");
        if (l.StartGoalie == l.BackupGoalie && (judge != Judge::Lenient || l.StartGoalie != 0))
            Line("Starting Goalie and BackUp Goalie are the same");
        if (judge != Judge::Pro)
            Heads();
    }

    void TwiceInList(const Row<Int16, 1, 5>& s, const std::string& words)
    {
        Twice(s[1], {s[2], s[3], s[4], s[5]}, words);
        Twice(s[2], {s[3], s[4], s[5]}, words);
        Twice(s[3], {s[4], s[5]}, words);
        Twice(s[4], {s[5]}, words);
    }

    void Heads()
    {
        if (LeagueData.ProDressedSkaters > 25)
            Fail(9);
        // Byte 0 to 107 without the two reserved words at 92, and the lists at 112 to 141.
        std::set<std::int16_t> values;
        const auto* bytes = reinterpret_cast<const unsigned char*>(&lines);
        for (int at = 0; at < 142; at += 2)
            if (at != 92 && at != 94 && at != 108 && at != 110)
                values.insert(static_cast<std::int16_t>(bytes[at] | bytes[at + 1] << 8));
        const auto count = static_cast<long long>(values.size());
        if (count > LeagueData.ProDressedSkaters)
            Line("More that " + Digits(LeagueData.ProDressedSkaters) + " Players Found");
        else if (judge == Judge::Strict && count < 18)
            Line("Not Enough Players Found. Minimum is 18");
    }
};

constexpr int Us = 5;
constexpr int Them = 6;
constexpr int SkaterCount = 48;
constexpr int GoalieCount = 8;

// Random small leagues of two teams with lines from nearly perfect to hopeless.
class LineJudgePropertyTest : public SmallLeague {
protected:
    std::mt19937 random;
    int day = 1;
    Judge judge = Judge::Pro;

    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    bool OneIn(int times) { return Below(times) == 0; }

    template <class Person>
    void Unsettle(Person& person, int trouble)
    {
        if (OneIn(trouble))
            person.Team = Them;
        if (OneIn(trouble))
            person.Status = Below(4);
        if (OneIn(trouble))
            person.Condition = 90 + Below(10);
        if (OneIn(trouble))
            person.Suspension = Below(3);
        person.Contract = Below(3); // which no judge of lines asks for
    }

    Int16 Anybody(int people, int table)
    {
        if (OneIn(250))
            return table + 1 + Below(20000);
        if (OneIn(250))
            return -1 - Below(20000);
        return 1 + Below(people);
    }

    void MixUp(Lines& lines, int trouble)
    {
        for (const LineSlot& slot : SkaterSlots)
            if (OneIn(trouble))
                At(lines, slot) = OneIn(3) ? Int16(0) : Anybody(SkaterCount, 10000);
        for (Int16* slot : {&lines.StartGoalie, &lines.BackupGoalie})
            if (OneIn(trouble))
                *slot = OneIn(3) ? Int16(0) : Anybody(GoalieCount, 1000);
        for (auto& points : lines.Strategy)
            points = Below(3);
        lines.PK3Reserved[1 + Below(2)] = Below(SkaterCount);
    }

    void MakeLeague(unsigned seed)
    {
        random.seed(seed);
        judge = static_cast<Judge>(Below(3));
        day = 1 + Below(10);
        const int home = judge == Judge::Pro ? status::Pro : status::Farm;
        const int trouble = 1 << (1 + Below(10));

        Players[0].Name = OneIn(2) ? "" : "Unknown Player";
        LeagueData.FarmRosterRequired.SetWord(judge == Judge::Strict ? -1 : Below(2));
        LeagueData.LinesOneTwoExclusive.SetWord(Below(3) - 1);
        LeagueData.ProDressedSkaters = OneIn(4) ? Below(30) - 2 : 20 + Below(6);

        Teams[Us] = {};
        Teams[Them] = {};
        TeamMaker team(Us);
        TeamMaker others(Them);
        for (int id = 1; id <= SkaterCount; ++id) {
            Unsettle(PutSkater(id, Us, id <= 12 ? 1 : 4, home), trouble);
            team.Skaters.push_back(id);
        }
        for (int id = 1; id <= GoalieCount; ++id) {
            Unsettle(PutGoalie(id, Us, home), trouble);
            team.GoalieIds.push_back(id);
        }
        // Lines for the judged day and its neighbour are enough to see what a repair does elsewhere.
        for (const int each : {day, 1 + day % 10})
            for (const Side side : {Side::Pro, Side::Farm})
                for (const int number : {Us, Them}) {
                    Lines& lines = LinesOf(number, each, side);
                    if (!OneIn(4))
                        FillDay(lines, team);
                    MixUp(lines, trouble);
                }
        Teams[Us].Captain = Below(SkaterCount);
        Teams[Us].Assistant[1] = Below(SkaterCount);
        Teams[Us].Assistant[2] = Below(SkaterCount);
    }

    [[nodiscard]] bool RunJudge(bool showMessage) const
    {
        return judge == Judge::Pro ? CheckLine(Us, showMessage, day, false)
                                   : CheckLineFarm(Us, showMessage, day, false);
    }

    // Asked for no message, a judge tells nothing but the slot that he fails at.
    void ExpectNothingToldButAFailure()
    {
        const Box failed{16, std::string("9 - Subscript out of range in ") +
                                 (judge == Judge::Lenient ? "CheckLineFarm!" : "CheckLine!")};
        EXPECT_THAT(Machine.TakeBoxes(), ::testing::AnyOf(IsEmpty(), ElementsAre(failed)));
    }

    // The records that a judge could reach, in one run of bytes.
    static std::string People()
    {
        std::string bytes;
        for (int id = 0; id <= SkaterCount + 1; ++id)
            bytes.append(reinterpret_cast<const char*>(&Players[id]), sizeof(Player));
        for (int id = 0; id <= GoalieCount + 1; ++id)
            bytes.append(reinterpret_cast<const char*>(&Goalies[id]), sizeof(Goalie));
        return bytes;
    }
    static std::string Bytes(const Team& team) { return {reinterpret_cast<const char*>(&team), sizeof(Team)}; }

    [[nodiscard]] const Lines& JudgedDay() const
    {
        return LinesOf(Us, day, judge == Judge::Pro ? Side::Pro : Side::Farm);
    }
};

TEST_F(LineJudgePropertyTest, TheJudgesAgreeWithThePlainReading)
{
    int complete = 0;
    int told = 0;
    int failed = 0;
    for (unsigned seed = 1; seed <= 6000; ++seed) {
        SCOPED_TRACE(seed);
        MakeLeague(seed);
        const PlainReading expected(judge, Us, day);
        EXPECT_EQ(RunJudge(true), expected.Complete);
        EXPECT_EQ(LastLinesText(), expected.Text);
        if (expected.Failed != 0) {
            const std::string name = judge == Judge::Lenient ? "CheckLineFarm" : "CheckLine";
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in " + name + "!"}));
        } else {
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, expected.Text}));
        }
        EXPECT_EQ(Bytes(Teams[Us]), Bytes(expected.Record));
        ++(expected.Failed != 0 ? failed : expected.Complete ? complete : told);
        if (HasFailure())
            break;
    }
    // The leagues are of every kind.
    EXPECT_GT(complete, 500);
    EXPECT_GT(told, 2000);
    EXPECT_GT(failed, 200);
}

TEST_F(LineJudgePropertyTest, NobodyIsMovedAndTheOtherTeamKeepsItsLines)
{
    for (unsigned seed = 10001; seed <= 12000; ++seed) {
        SCOPED_TRACE(seed);
        MakeLeague(seed);
        const std::string people = People();
        const std::string others = Bytes(Teams[Them]);
        (void)RunJudge(false);
        ExpectNothingToldButAFailure();
        EXPECT_EQ(People(), people);
        EXPECT_EQ(Bytes(Teams[Them]), others);
        if (HasFailure())
            break;
    }
}

TEST_F(LineJudgePropertyTest, CompleteLinesStayUntouched)
{
    int complete = 0;
    for (unsigned seed = 20001; seed <= 24000; ++seed) {
        SCOPED_TRACE(seed);
        MakeLeague(seed);
        const std::string before = Bytes(Teams[Us]);
        if (!RunJudge(false)) {
            ExpectNothingToldButAFailure();
            continue;
        }
        ++complete;
        EXPECT_EQ(LastLinesText(), "Lines are perfect!");
        EXPECT_EQ(Bytes(Teams[Us]), before);
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
        if (HasFailure())
            break;
    }
    EXPECT_GT(complete, 300);
}

TEST_F(LineJudgePropertyTest, ASecondCallRepairsNothing)
{
    for (unsigned seed = 30001; seed <= 33000; ++seed) {
        SCOPED_TRACE(seed);
        MakeLeague(seed);
        (void)RunJudge(false);
        const std::string repaired = Bytes(Teams[Us]);
        const std::vector<Box> told = Machine.Boxes();
        ExpectNothingToldButAFailure();
        (void)RunJudge(false);
        EXPECT_EQ(Machine.TakeBoxes(), told);
        EXPECT_EQ(Bytes(Teams[Us]), repaired);
        if (HasFailure())
            break;
    }
}

// A judge writes nothing but zeroes, and only where somebody stood.
TEST_F(LineJudgePropertyTest, EveryByteOfTheTeamStaysOrBecomesZero)
{
    int changed = 0;
    for (unsigned seed = 40001; seed <= 42000; ++seed) {
        SCOPED_TRACE(seed);
        MakeLeague(seed);
        const std::string before = Bytes(Teams[Us]);
        (void)RunJudge(false);
        ExpectNothingToldButAFailure();
        const std::string after = Bytes(Teams[Us]);
        for (std::size_t at = 0; at < after.size(); ++at)
            EXPECT_TRUE(after[at] == before[at] || after[at] == 0);
        changed += after != before ? 1 : 0;
        if (HasFailure())
            break;
    }
    EXPECT_GT(changed, 500);
}

TEST_F(LineJudgePropertyTest, WhoStillStandsInAJudgedDayMayStandThere)
{
    int judged = 0;
    for (unsigned seed = 50001; seed <= 53000; ++seed) {
        SCOPED_TRACE(seed);
        MakeLeague(seed);
        (void)RunJudge(false);
        if (!Machine.TakeBoxes().empty())
            continue; // it failed half way
        ++judged;
        const auto mayStand = [&](const auto& person) {
            return person.Team == Us && person.Status == (judge == Judge::Pro ? status::Pro : status::Farm) &&
                   person.Condition >= 95 && person.Suspension == 0;
        };
        for (const LineSlot& slot : SkaterSlots)
            EXPECT_TRUE(At(JudgedDay(), slot) == 0 || mayStand(Players[At(JudgedDay(), slot)]));
        for (const Int16& slot : {JudgedDay().StartGoalie, JudgedDay().BackupGoalie})
            EXPECT_TRUE(slot == 0 || mayStand(Goalies[slot]));
        if (HasFailure())
            break;
    }
    EXPECT_GT(judged, 2000);
}

TEST_F(LineJudgePropertyTest, ADayIsEmptyWhenAllItsSlotsAreZero)
{
    int empty = 0;
    for (unsigned seed = 60001; seed <= 64000; ++seed) {
        SCOPED_TRACE(seed);
        random.seed(seed);
        Lines& lines = Teams[Us].ProLines[3];
        lines = {};
        MixUp(lines, 100);
        const std::array<std::int16_t, 76> words = std::bit_cast<std::array<std::int16_t, 76>>(lines);
        bool zero = true;
        for (std::size_t word = 0; word < 71; ++word)
            zero = zero && (word == 46 || word == 47 || words[word] == 0);
        EXPECT_EQ(CheckLineEmpty(OpenLeague, Machine, Us, 3), zero);
        empty += zero ? 1 : 0;
    }
    EXPECT_GT(empty, 1000);
    EXPECT_LT(empty, 3500);
}

} // namespace
} // namespace dravik
