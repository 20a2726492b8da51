#include "rules/LineSlots.h"
#include "rules/RosterTexts.h"
#include "support/LeagueImage.h"
#include "support/RandomLeague.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dravik {
namespace {

// A second reading of the judgement, on a copy of the tables: what it says, what it moves, whom it wipes. Too large for a
// stack, as every whole table is.
struct PlainJudgement {
    bool Complete = true;
    bool Fixed = false;
    std::vector<std::string> Lines;
    std::vector<std::string> Boxes;
    std::vector<int> Wiped;
    PlayerTable People = Players;
    GoalieTable Keepers = Goalies;
    PlayerChangeTable Changes = RosterChanges;
    GoalieChangeTable KeeperChanges = RosterChangesGoalie;
};

std::unique_ptr<const PlainJudgement> JudgePlainly(int team)
{
    auto judged = std::make_unique<PlainJudgement>();
    PlainJudgement& judgement = *judged;
    const League& l = LeagueData;
    long long dressed[6] = {};
    long long farm[6] = {};
    long long scratches = 0;
    const auto fit = [](const auto& p) { return !(p.Condition < 95) && p.Suspension == 0 && p.Contract != 0; };
    const auto paid = [&](const auto& p) { return !(p.Salary < l.MinSalary) && !(p.Salary > l.MaxSalary); };
    const auto fix = [&](auto& change, int id) {
        change.Status = 1;
        judgement.Wiped.push_back(id);
        judgement.Fixed = true;
    };
    for (int i = 1; i <= 10000; ++i) {
        Player& p = judgement.People[i];
        if (p.InUse.Word() != -1 || p.Team != team)
            continue;
        const std::string name = p.Name.Trimmed();
        const bool placed = p.Position >= 1 && p.Position <= 4;
        if (p.Status == 2) {
            if (!fit(p) || !paid(p)) {
                judgement.Lines.push_back(name + NotFit);
                p.Status = 1;
                fix(judgement.Changes[i], i);
            } else if (placed) {
                ++dressed[p.Position];
            } else {
                judgement.Boxes.push_back(name + " has no position!");
            }
        } else if (p.Status == 0) {
            const bool rated = p.Position >= 1 && p.Position <= 5; // at 5 as the goalie of his index
            const int overall = rated ? CalculateOverall(static_cast<int>(p.Position), i) : 0;
            if (!rated)
                judgement.Boxes.push_back("Integrity Check Failed!");
            if (overall > l.FarmMaxOverall) {
                judgement.Lines.push_back(name + " overall is too high to be in farm!");
                fix(judgement.Changes[i], i);
            }
            if (l.FarmMaxSalary > 0 && p.Salary > l.FarmMaxSalary) {
                judgement.Lines.push_back(name + " salary is too high to be in farm!");
                fix(judgement.Changes[i], i);
            }
            if (fit(p) && placed)
                ++farm[p.Position];
            else if (fit(p))
                judgement.Boxes.push_back(name + " has no position!");
        }
        scratches += p.Status == 1 && fit(p);
    }
    for (int i = 1; i <= 1000; ++i) {
        Goalie& g = judgement.Keepers[i];
        if (g.InUse.Word() != -1 || g.Team != team)
            continue;
        const std::string name = g.Name.Trimmed();
        if (g.Status == 2 && fit(g) && paid(g)) {
            ++dressed[5];
        } else if (g.Status == 2) {
            judgement.Lines.push_back(name + NotFit);
            g.Status = 1;
            fix(judgement.KeeperChanges[i], 10000 + i);
        } else if (g.Status == 0) {
            farm[5] += fit(g);
            if (CalculateOverall(5, i) > l.FarmMaxOverall) {
                judgement.Lines.push_back(name + " Overall is too high to be in farm!");
                g.Status = 1;
                fix(judgement.KeeperChanges[i], 10000 + i);
            }
            if (l.FarmMaxSalary > 0 && g.Salary > l.FarmMaxSalary) {
                judgement.Lines.push_back(name + " salary is too high to be in farm!");
                g.Status = 1;
                fix(judgement.KeeperChanges[i], 10000 + i);
            }
        }
        scratches += g.Status == 1 && fit(g);
    }

    const auto wrong = [&](bool failed, const std::string& what, long long count, long long limit,
                           const std::string& closing) {
        if (!failed)
            return;
        judgement.Complete = false;
        judgement.Lines.push_back(what + "! " + std::to_string(count) + " Dressed. " + std::to_string(limit) + closing);
    };
    const long long required[6] = {
        0, l.RequiredCenters, l.RequiredLeftWings, l.RequiredRightWings, l.RequiredDefensemen, 2};
    const std::string names[6] = {"", "Centers", "Left Wings", "Right Wings", "Defenseman", "Goalie"};
    for (int p = 1; p <= 5; ++p)
        wrong(dressed[p] < required[p], "Not enough " + names[p] + " available in Pro Team", dressed[p], required[p],
              " Required.");
    const long long skaters = dressed[1] + dressed[2] + dressed[3] + dressed[4];
    wrong(skaters < 18, "Not enough players available in Pro Team", skaters, 18, " Required.");
    wrong(dressed[5] > l.MaxDressedGoalies, "Too many Goalie available in Pro Team", dressed[5], 3, " Maximum.");
    wrong(skaters > l.ProDressedSkaters, "Too many players available in Pro Team", skaters, l.ProDressedSkaters,
          " Required.");
    if (skaters + dressed[5] + scratches > l.MaxProPlayers) {
        judgement.Complete = false;
        judgement.Lines.emplace_back("Maximum Players Limit Reached in Pro Team!");
    }
    if (l.FarmEnabled && l.FarmRosterRequired) {
        for (int p = 1; p <= 5; ++p)
            wrong(dressed[p] + farm[p] < 2 * required[p], "Not enough " + names[p] + " available in Pro and Farm Team",
                  dressed[p] + farm[p], 2 * required[p], " Required.");
        const long long all = skaters + farm[1] + farm[2] + farm[3] + farm[4];
        wrong(all < 36, "Not enough players available in Pro Team and Farm Team", all, 36, " Required.");
    }
    return judged;
}

class RandomRosterTest : public SmallLeague {
protected:
    static bool StandsSomewhere(int team, int id)
    {
        const bool isGoalie = id > GoalieOffset;
        const int index = isGoalie ? id - GoalieOffset : id;
        for (const Side side : {Side::Pro, Side::Farm})
            for (int day = 1; day <= 10; ++day) {
                const Lines& lines = LinesOf(team, day, side);
                if (isGoalie && (lines.StartGoalie == index || lines.BackupGoalie == index))
                    return true;
                for (const LineSlot& slot : SkaterSlots)
                    if (!isGoalie && At(lines, slot) == index)
                        return true;
            }
        const Team& record = Teams[team];
        return !isGoalie && (record.Captain == index || record.Assistant[1] == index || record.Assistant[2] == index);
    }

    static std::vector<Box> CriticalBoxes(const PlainJudgement& judged)
    {
        std::vector<Box> boxes;
        for (const std::string& text : judged.Boxes)
            boxes.push_back({box::Critical, text});
        return boxes;
    }

    // Judges team 1 without a message, which tells of people without a position all the same.
    bool JudgeSilently(bool withSalaryCap)
    {
        const auto expected = JudgePlainly(1);
        const bool complete = CheckRoster(1, false, withSalaryCap, false);
        EXPECT_EQ(Machine.TakeBoxes(), CriticalBoxes(*expected));
        return complete;
    }
};

TEST_F(RandomRosterTest, JudgementsAgreeWithThePlainReading)
{
    Dice dice(81);
    int completeOnes = 0;
    for (int round = 0; round < 400; ++round) {
        RollLeague(dice, {.Teams = 2, .Skaters = 200, .Goalies = 26, .Coaches = 0});
        if (round % 2 == 0) { // leagues in which a roster has a chance
            LeagueData.FarmRosterRequired = dice.Chance(20);
            LeagueData.RequiredCenters = 2;
            LeagueData.RequiredLeftWings = 2;
            LeagueData.RequiredRightWings = 2;
            LeagueData.RequiredDefensemen = 2;
            LeagueData.ProDressedSkaters = 60;
            LeagueData.MaxProPlayers = 100;
            LeagueData.MaxDressedGoalies = 10;
        }
        const auto judged = JudgePlainly(1);
        const PlainJudgement& expected = *judged;
        const Lines otherLines = Teams[2].ProLines[1];
        const auto wiped = std::make_unique<TeamTable>(Teams);
        for (const int id : expected.Wiped)
            WipePlayerFromTeamLines(1, id);
        std::swap(*wiped, Teams); // `wiped` now holds the lines without the moved people

        ASSERT_EQ(CheckRoster(1, false, false, true), expected.Complete) << "round " << round;
        const std::string text = RosterError("Team 1", expected.Lines);
        std::vector<Box> boxes = CriticalBoxes(expected);
        if (!text.empty())
            boxes.push_back({box::Warning, text});
        ASSERT_EQ(Machine.TakeBoxes(), boxes) << "round " << round;
        ASSERT_EQ(LastRosterText(), text);
        ASSERT_EQ(RosterFixed, expected.Fixed ? 1 : 0);
        ASSERT_EQ(ImageOf(Players), ImageOf(expected.People)) << "round " << round;
        ASSERT_EQ(ImageOf(Goalies), ImageOf(expected.Keepers));
        ASSERT_EQ(ImageOf(RosterChanges), ImageOf(expected.Changes));
        ASSERT_EQ(ImageOf(RosterChangesGoalie), ImageOf(expected.KeeperChanges));
        ASSERT_EQ(ImageOf(Teams), ImageOf(*wiped)) << "round " << round;
        for (const int id : expected.Wiped)
            ASSERT_FALSE(StandsSomewhere(1, id)) << "round " << round;
        completeOnes += expected.Complete;
        ASSERT_EQ(ImageOf(otherLines), ImageOf(Teams[2].ProLines[1]));
    }
    EXPECT_GT(completeOnes, 40); // both answers were put to the test
    EXPECT_LT(completeOnes, 360);
}

TEST_F(RandomRosterTest, NobodyOfAnotherTeamIsEverChanged)
{
    Dice dice(82);
    for (int round = 0; round < 500; ++round) {
        RollLeague(dice);
        const auto skatersBefore = std::make_unique<const PlayerTable>(Players);
        const auto goaliesBefore = std::make_unique<const GoalieTable>(Goalies);
        const PlayerTable& players = *skatersBefore;
        const GoalieTable& goalies = *goaliesBefore;
        const auto second = ImageOf(Teams[2]);
        const auto third = ImageOf(Teams[3]);
        (void)JudgeSilently(true);
        for (int index = 1; index <= 150; ++index)
            if (players[index].Team != 1 || !players[index].InUse) {
                ASSERT_EQ(ImageOf(Players[index]), ImageOf(players[index]));
                ASSERT_EQ(RosterChanges[index].Status, RosterChange::Untouched);
            }
        for (int index = 1; index <= 18; ++index)
            if (goalies[index].Team != 1 || !goalies[index].InUse) {
                ASSERT_EQ(ImageOf(Goalies[index]), ImageOf(goalies[index]));
                ASSERT_EQ(RosterChangesGoalie[index].Status, RosterChange::Untouched);
            }
        ASSERT_EQ(ImageOf(Teams[2]), second);
        ASSERT_EQ(ImageOf(Teams[3]), third);
    }
}

TEST_F(RandomRosterTest, SecondCallChangesNothingAndRepeatsOnlyTheFarmSkaters)
{
    Dice dice(83);
    for (int round = 0; round < 500; ++round) {
        RollLeague(dice);
        (void)JudgeSilently(false);
        const auto players = ImageOf(Players);
        const auto goalies = ImageOf(Goalies);
        const auto teams = ImageOf(Teams);
        const auto changes = ImageOf(RosterChanges);
        const bool second = JudgeSilently(false);
        const std::string text = LastRosterText();
        ASSERT_EQ(ImageOf(Players), players);
        ASSERT_EQ(ImageOf(Goalies), goalies);
        ASSERT_EQ(ImageOf(Teams), teams);
        ASSERT_EQ(ImageOf(RosterChanges), changes);
        ASSERT_EQ(text.find(NotFit), std::string::npos);
        ASSERT_EQ(text.find(" Overall is too high"), std::string::npos);
        const bool repeats = text.find(" overall is too high") != std::string::npos ||
                             text.find(" salary is too high") != std::string::npos;
        ASSERT_EQ(RosterFixed, repeats ? 1 : 0);
        ASSERT_EQ(JudgeSilently(false), second);
        ASSERT_EQ(LastRosterText(), text);
    }
}

} // namespace
} // namespace dravik
