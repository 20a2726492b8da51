#include "makers/Dealing.h"
#include "makers/LinesView.h"
#include "makers/RandomTeam.h"
#include "makers/RatingList.h"
#include "makers/SecondReading.h"
#include "support/Routines.h"

#include <algorithm>
#include <cstring>
#include <set>

// The makers over thousands of random small leagues.
namespace dravik {
namespace {

constexpr int Team5 = RandomTeam::Team;
constexpr int Team6 = RandomTeam::OtherTeam;
constexpr int Leagues = 1000;

// The bytes of everybody on the other team and of that team itself.
std::string BytesOfOthers()
{
    std::string bytes;
    const auto add = [&bytes](const auto& record) {
        bytes.append(reinterpret_cast<const char*>(&record), sizeof(record));
    };
    for (int id = 1; id <= RandomTeam::Skaters; ++id)
        if (Players[id].Team != Team5) {
            add(Players[id]);
            add(RosterChanges[id]);
        }
    for (int id = 1; id <= RandomTeam::Goalkeepers; ++id)
        if (Goalies[id].Team != Team5) {
            add(Goalies[id]);
            add(RosterChangesGoalie[id]);
        }
    add(Teams[Team6]);
    return bytes;
}

bool Stands(long long skater)
{
    for (int day = 1; day <= 10; ++day)
        if (SlotsOf(Teams[Team5].ProLines[day], skater) + SlotsOf(Teams[Team5].Farm.FarmLines[day], skater) > 0)
            return true;
    return false;
}

bool StandsAsGoalie(long long goalie)
{
    for (int day = 1; day <= 10; ++day)
        for (const Lines* lines : {&Teams[Team5].ProLines[day], &Teams[Team5].Farm.FarmLines[day]})
            if (lines->StartGoalie == goalie || lines->BackupGoalie == goalie)
                return true;
    return false;
}

bool IsSuccess(const std::vector<Box>& boxes)
{
    return std::any_of(boxes.begin(), boxes.end(),
                       [](const Box& box) { return box.Text.find("run successfully") != std::string::npos; });
}

template <class Person>
bool IsUsable(const Person& person)
{
    return person.Condition >= 95 && person.Suspension == 0 && person.Contract != 0 &&
           person.Salary >= LeagueData.MinSalary && person.Salary <= LeagueData.MaxSalary;
}

class MakersPropertyTest : public SmallLeague {
protected:
    // Runs the automatic roster without a message, which tells what its second reading tells all the same.
    void RunRoster(bool partial, std::uint32_t seed)
    {
        const auto expected = second::RosterAfter(Team5, false, partial, RandomTeam::Skaters, RandomTeam::Goalkeepers);
        AutoRoster(Team5, false, partial);
        EXPECT_EQ(Machine.TakeBoxes(), expected.Boxes) << "seed " << seed;
    }
};

TEST_F(MakersPropertyTest, ARatingListIsSortedAndStable)
{
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        Row<Int16, 1, 60> ids;
        Row<Int16, 0, 60> ratings;
        std::vector<std::pair<int, int>> expected;
        const int count = random.Between(0, 60);
        for (int id = 1; id <= count; ++id) {
            const int rating = random.Between(-3, 12);
            InsertByRating(ids, ratings, id, rating);
            expected.emplace_back(id, rating);
        }
        std::stable_sort(expected.begin(), expected.end(),
                         [](const auto& one, const auto& other) { return one.second > other.second; });
        ASSERT_EQ(ratings[0], count);
        for (int place = 1; place <= count; ++place) {
            const auto& [id, rating] = expected[static_cast<std::size_t>(place - 1)];
            ASSERT_EQ(ids[place], id) << "seed " << seed << ", place " << place;
            ASSERT_EQ(ratings[place], rating) << "seed " << seed << ", place " << place;
        }
    }
}

// ---- The automatic roster ------------------------------------------------------------------------------------------

TEST_F(MakersPropertyTest, TheAutomaticRosterAgreesWithItsSecondReading)
{
    int finished = 0;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillLoosely();
        const bool verbose = random.OneIn(2);
        const bool partial = random.OneIn(3);
        const auto expected =
            second::RosterAfter(Team5, verbose, partial, RandomTeam::Skaters, RandomTeam::Goalkeepers);
        AutoRoster(Team5, verbose, partial);
        auto actual = second::RosterNow(RandomTeam::Skaters, RandomTeam::Goalkeepers);
        actual.Boxes = Machine.TakeBoxes();
        ASSERT_EQ(actual.Boxes, expected.Boxes) << "seed " << seed;
        ASSERT_EQ(actual.SkaterStatus, expected.SkaterStatus) << "seed " << seed;
        ASSERT_EQ(actual.GoalieStatus, expected.GoalieStatus) << "seed " << seed;
        ASSERT_EQ(actual.SkaterChange, expected.SkaterChange) << "seed " << seed;
        ASSERT_EQ(actual.GoalieChange, expected.GoalieChange) << "seed " << seed;
        ASSERT_EQ(actual.Modified, expected.Modified) << "seed " << seed;
        finished += actual.Modified ? 1 : 0;
    }
    EXPECT_GT(finished, Leagues / 5);
    EXPECT_LT(finished, Leagues);
}

TEST_F(MakersPropertyTest, TheAutomaticRosterDressesOnlyUsablePeople)
{
    int called = 0;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillLoosely();
        const auto before = second::RosterNow(RandomTeam::Skaters, RandomTeam::Goalkeepers);
        RunRoster(random.OneIn(2), seed);
        for (int id = 1; id <= RandomTeam::Skaters; ++id)
            if (Players[id].Status == 2 && before.SkaterStatus[static_cast<std::size_t>(id - 1)] != 2) {
                ASSERT_TRUE(IsUsable(Players[id])) << "seed " << seed << ", skater " << id;
                ++called;
            }
        for (int id = 1; id <= RandomTeam::Goalkeepers; ++id)
            if (Goalies[id].Status == 2 && before.GoalieStatus[static_cast<std::size_t>(id - 1)] != 2) {
                ASSERT_TRUE(IsUsable(Goalies[id])) << "seed " << seed << ", goalie " << id;
            }
    }
    EXPECT_GT(called, Leagues);
}

TEST_F(MakersPropertyTest, PartialModeSendsNobodyToTheFarm)
{
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillLoosely();
        const auto before = second::RosterNow(RandomTeam::Skaters, RandomTeam::Goalkeepers);
        RunRoster(true, seed);
        const auto after = second::RosterNow(RandomTeam::Skaters, RandomTeam::Goalkeepers);
        for (std::size_t i = 0; i < before.SkaterStatus.size(); ++i)
            ASSERT_FALSE(after.SkaterStatus[i] == 0 && before.SkaterStatus[i] != 0) << "seed " << seed << ", " << i + 1;
        for (std::size_t i = 0; i < before.GoalieStatus.size(); ++i)
            ASSERT_FALSE(after.GoalieStatus[i] == 0 && before.GoalieStatus[i] != 0) << "seed " << seed << ", " << i + 1;
    }
}

TEST_F(MakersPropertyTest, WhoeverTheAutomaticRosterMovesStandsOnNoLine)
{
    int moved = 0;
    for (std::uint32_t seed = 1; seed <= Leagues / 3; ++seed) {
        RandomTeam random(seed);
        random.FillLoosely();
        random.ScatterOnLines();
        std::set<int> standing;
        for (int id = 1; id <= RandomTeam::Skaters; ++id)
            if (Stands(id))
                standing.insert(id);
        std::set<int> inGoal;
        for (int id = 1; id <= RandomTeam::Goalkeepers; ++id)
            if (StandsAsGoalie(id))
                inGoal.insert(id);
        const auto before = second::RosterNow(RandomTeam::Skaters, RandomTeam::Goalkeepers);
        RunRoster(random.OneIn(2), seed);
        for (int id = 1; id <= RandomTeam::Skaters; ++id) {
            const bool hasMoved = Players[id].Status != before.SkaterStatus[static_cast<std::size_t>(id - 1)];
            ASSERT_EQ(Stands(id), !hasMoved && standing.count(id) == 1) << "seed " << seed << ", skater " << id;
            moved += hasMoved ? 1 : 0;
        }
        for (int id = 1; id <= RandomTeam::Goalkeepers; ++id) {
            const int was = before.GoalieStatus[static_cast<std::size_t>(id - 1)];
            const auto& goalie = Goalies[id];
            // A scratch going down keeps his slots. A suspended goalie loses them without moving, once his turn has come.
            const bool wiped = goalie.Status != was && !(was == 1 && goalie.Status == 0);
            if (goalie.Suspension != 0 && goalie.Status == was)
                continue;
            ASSERT_EQ(StandsAsGoalie(id), !wiped && inGoal.count(id) == 1) << "seed " << seed << ", goalie " << id;
        }
    }
    EXPECT_GT(moved, Leagues);
}

TEST_F(MakersPropertyTest, NobodyOfAnotherTeamIsEverChanged)
{
    for (std::uint32_t seed = 1; seed <= Leagues / 3; ++seed) {
        RandomTeam random(seed);
        if (random.OneIn(2))
            random.FillLoosely();
        else
            random.FillForLines();
        random.ScatterOnLines();
        LeagueData.FarmRosterRequired = random.OneIn(2);
        const std::string before = BytesOfOthers();
        AutoLinesPartial(Team5, false, 1);
        AutoLines(Team5, false, 2);
        AutoLinesFarm(Team5, false, 3);
        AutoRoster(Team5, false, true);
        AutoRoster(Team5, false, false);
        ASSERT_EQ(BytesOfOthers(), before) << "seed " << seed;
        Machine.ForgetBoxes("what the makers tell of such teams is compared with their second readings");
    }
}

// ---- The makers of lines -------------------------------------------------------------------------------------------

TEST_F(MakersPropertyTest, AutoLinesAgreesWithItsSecondReading)
{
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        random.ScatterOnLines();
        Lines& day = Teams[Team5].ProLines[4];
        Lines expected = second::DealtByThePro(second::DressedMen(Team5)).AsLines();
        expected.PullGoalerMinGoal = day.PullGoalerMinGoal;
        expected.PullGoalerMinPct = day.PullGoalerMinPct;
        AutoLines(Team5, true, 4);
        ASSERT_TRUE(IsSuccess(Machine.TakeBoxes())) << "seed " << seed;
        expected.StartGoalie = day.StartGoalie; // judged below
        expected.BackupGoalie = day.BackupGoalie;
        ASSERT_EQ(Words(day), Words(expected)) << "seed " << seed;
    }
}

TEST_F(MakersPropertyTest, TheBetterOfTheTwoBestGoaliesStartsUnlessHeIsTired)
{
    int swapped = 0;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        AutoLines(Team5, false, 1);
        std::vector<int> best;
        for (int id = 1; id <= RandomTeam::Goalkeepers; ++id)
            if (Goalies[id].Team == Team5 && Goalies[id].Status == 2)
                best.push_back(id);
        std::stable_sort(best.begin(), best.end(),
                         [](int one, int other) { return CalculateOverall(5, one) > CalculateOverall(5, other); });
        const bool tired = Goalies[best[0]].Condition <= 97 && Goalies[best[1]].Condition >= 99;
        ASSERT_EQ(Teams[Team5].ProLines[1].StartGoalie, best[tired ? 1 : 0]) << "seed " << seed;
        ASSERT_EQ(Teams[Team5].ProLines[1].BackupGoalie, best[tired ? 0 : 1]) << "seed " << seed;
        swapped += tired ? 1 : 0;
    }
    EXPECT_GT(swapped, 0);
}

TEST_F(MakersPropertyTest, ADayByAutoLinesPassesExactlyWithSixForwardsAndFiveDefensemen)
{
    int passed = 0;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        AutoLines(Team5, true, 1);
        ASSERT_TRUE(IsSuccess(Machine.TakeBoxes())) << "seed " << seed;
        const second::Men men = second::DressedMen(Team5);
        const auto defense = std::count_if(men.begin(), men.end(), [](const auto& man) { return man.Position == 4; });
        const auto forwards = static_cast<std::ptrdiff_t>(men.size()) - defense;
        const bool passes = CheckLine(Team5, false, 1, false);
        ASSERT_EQ(passes, forwards >= 6 && defense >= 5) << "seed " << seed << ", " << forwards << " + " << defense;
        passed += passes ? 1 : 0;
    }
    EXPECT_GT(passed, Leagues / 3);
    EXPECT_LT(passed, Leagues);
}

// The farm's goalies of many leagues, of every sort that the makers tell apart.
class FarmGoalies {
public:
    // Moves half of the farm's goalies of a new league to indices on both sides of 97 and 99, and gives some of them
    // troubles.
    static void Spread(RandomTeam& random)
    {
        for (int id = 1; id <= RandomTeam::Goalkeepers; ++id) {
            Goalies[Away + id] = {};
            Goalie& goalie = Goalies[id];
            if (goalie.Status != status::Farm)
                continue;
            if (random.OneIn(3))
                goalie.Condition = random.Between(90, 100);
            if (random.OneIn(8))
                goalie.Suspension = random.Between(1, 5);
            if (random.OneIn(5))
                goalie.Contract = 0;
            if (random.OneIn(8))
                goalie.InUse.SetWord(random.Between(0, 1));
            if (random.OneIn(3))
                goalie.Team = RandomTeam::OtherTeam;
            if (random.OneIn(2))
                std::swap(goalie, Goalies[Away + id]);
        }
    }

    void Count(const second::Keepers& keepers)
    {
        const auto overall = [](int id) { return id == 0 ? -1 : CalculateOverall(5, id); };
        swapped += overall(keepers.Start) < overall(keepers.Backup) ? 1 : 0;
        missing += keepers.Start == 0 || keepers.Backup == 0 ? 1 : 0;
    }

    // Among the leagues counted both happened, and neither in most of them.
    void Expect() const
    {
        EXPECT_GT(swapped, 0);
        EXPECT_LT(swapped, Leagues / 2);
        EXPECT_GT(missing, 0);
        EXPECT_LT(missing, Leagues / 2);
    }

private:
    static constexpr int Away = 90;

    int swapped = 0;
    int missing = 0;
};

TEST_F(MakersPropertyTest, TheFarmsSimpleRouteAgreesWithItsSecondReading)
{
    FarmGoalies goalies;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        goalies.Spread(random);
        random.ScatterOnLines();
        Lines& day = Teams[Team5].Farm.FarmLines[4];
        second::Men men = second::FarmMenSimply(Team5);
        std::array<int, 5> counted{};
        for (const auto& man : men)
            ++counted[static_cast<std::size_t>(man.Position)];
        men.resize(std::min<std::size_t>(men.size(), 17));
        Lines expected = second::DealtByTheFarm(men, counted).AsLines();
        expected.PullGoalerMinGoal = day.PullGoalerMinGoal;
        expected.PullGoalerMinPct = day.PullGoalerMinPct;
        AutoLinesFarm(Team5, true, 4);
        ASSERT_TRUE(IsSuccess(Machine.TakeBoxes())) << "seed " << seed;
        const second::Keepers keepers = second::FarmKeepersSimply(Team5);
        expected.StartGoalie = keepers.Start;
        expected.BackupGoalie = keepers.Backup;
        ASSERT_EQ(Words(day), Words(expected)) << "seed " << seed;
        goalies.Count(keepers);
    }
    goalies.Expect();
}

TEST_F(MakersPropertyTest, TheFarmsTwinAgreesWithItsSecondReading)
{
    FarmGoalies goalies;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        goalies.Spread(random);
        random.ScatterOnLines();
        LeagueData.FarmRosterRequired = true;
        LeagueData.FarmEnabled = false;
        Lines& day = Teams[Team5].Farm.FarmLines[4];
        Lines expected = second::DealtByThePro(second::FarmMenByRequirement(Team5)).AsLines();
        expected.PullGoalerMinGoal = day.PullGoalerMinGoal;
        expected.PullGoalerMinPct = day.PullGoalerMinPct;
        AutoLinesFarm(Team5, true, 4);
        ASSERT_TRUE(IsSuccess(Machine.TakeBoxes())) << "seed " << seed;
        const second::Keepers keepers = second::FarmKeepersUnderContract(Team5);
        expected.StartGoalie = keepers.Start;
        expected.BackupGoalie = keepers.Backup;
        ASSERT_EQ(Words(day), Words(expected)) << "seed " << seed;
        goalies.Count(keepers);
    }
    goalies.Expect();
}

TEST_F(MakersPropertyTest, ACompleteHealthyDayIsUnchangedByTheRepair)
{
    int unchanged = 0;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        AutoLines(Team5, false, 1);
        Lines& day = Teams[Team5].ProLines[1];
        day.PullGoalerMinGoal = random.Between(0, 9);
        if (!CheckLine(Team5, false, 1, false))
            continue;
        std::swap(day.StartGoalie, day.BackupGoalie);
        const auto before = Words(day);
        ASSERT_THAT(Machine.TakeBoxes(), ::testing::IsEmpty()) << "seed " << seed;
        AutoLinesPartial(Team5, true, 1);
        ASSERT_EQ(Machine.TakeBoxes(),
                  std::vector<Box>({{64, "Auto Lines Partial Function has been run successfully."}}))
            << "seed " << seed;
        ASSERT_EQ(Words(day), before) << "seed " << seed;
        ++unchanged;
    }
    EXPECT_GT(unchanged, Leagues / 3);
}

// Whether two slots may not hold the same man.
bool Collide(const LineSlot& one, const LineSlot& other)
{
    using enum LineField;
    const auto bothOf = [&](std::initializer_list<LineField> fields) {
        const auto isOf = [&](LineField field) {
            return std::find(fields.begin(), fields.end(), field) != fields.end();
        };
        return isOf(one.Field) && isOf(other.Field);
    };
    if (bothOf({ExtraForward}) || bothOf({ExtraDefense}) || bothOf({PenaltyShot}))
        return true;
    if (bothOf({NormalForward, NormalDefense}) && LeagueData.LinesOneTwoExclusive && one.Number <= 2 &&
        other.Number <= 2)
        return true;
    return one.Number == other.Number &&
           (bothOf({NormalForward, NormalDefense}) || bothOf({PPForward, PPDefense}) ||
            bothOf({PKForward, PKDefense}) || bothOf({FourVsFourForward, FourVsFourDefense}) ||
            bothOf({PK3Forward, PK3Defense}));
}

TEST_F(MakersPropertyTest, TheRepairTakesTheWorstManWhoMayStandThereAndTouchesNothingElse)
{
    // In the order of the repair: lines, units, extras.
    using enum LineField;
    std::vector<LineSlot> order;
    const auto add = [&order](LineField field, int number, int places) {
        for (int place = 1; place <= places; ++place)
            order.push_back(SlotOf(field, number, place));
    };
    for (int line = 1; line <= 4; ++line) {
        add(NormalForward, line, 3);
        add(NormalDefense, line, 2);
    }
    for (int unit = 1; unit <= 2; ++unit) {
        add(PPForward, unit, 3);
        for (const LineField field :
             {PPDefense, PKForward, PKDefense, FourVsFourForward, FourVsFourDefense, PK3Defense})
            add(field, unit, 2);
        add(PK3Forward, unit, 1);
    }
    for (int number = 1; number <= 5; ++number)
        for (const LineField field : {ExtraForward, ExtraDefense, PenaltyShot})
            add(field, number, 1);
    ASSERT_EQ(order.size(), SkaterSlots.size());

    int refused = 0;
    for (std::uint32_t seed = 1; seed <= Leagues; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        AutoLines(Team5, false, 1);
        Lines& day = Teams[Team5].ProLines[1];
        const int holes = random.Between(0, 30);
        for (int hole = 0; hole < holes; ++hole)
            At(day, SkaterSlots[static_cast<std::size_t>(random.Between(0, 66))]) =
                random.OneIn(2) ? 0 : random.Between(1, RandomTeam::Skaters);

        Lines expected = day;
        bool filled = true;
        second::Men men = second::DressedMen(Team5);
        std::reverse(men.begin(), men.end());
        const auto belongs = [&men](long long id) {
            return std::any_of(men.begin(), men.end(), [id](const auto& man) { return man.Id == id; });
        };
        for (const LineSlot& slot : order) {
            if (belongs(At(expected, slot)))
                continue;
            const auto found = std::find_if(men.begin(), men.end(), [&](const auto& man) {
                return (man.Position == 4) == WantsDefense(slot.Field) &&
                       std::none_of(order.begin(), order.end(), [&](const LineSlot& other) {
                           return other.Word != slot.Word && Collide(slot, other) && At(expected, other) == man.Id;
                       });
            });
            At(expected, slot) = found == men.end() ? 0 : found->Id;
            filled = filled && found != men.end();
        }

        ASSERT_THAT(Machine.TakeBoxes(), ::testing::IsEmpty()) << "seed " << seed;
        AutoLinesPartial(Team5, true, 1);
        ASSERT_EQ(Words(day), Words(expected)) << "seed " << seed;
        ASSERT_EQ(Machine.TakeBoxes(),
                  std::vector<Box>({{64, filled ? "Auto Lines Partial Function has been run successfully."
                                                : "Auto Lines Partial Function Error."}}))
            << "seed " << seed;
        refused += filled ? 0 : 1;
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, Leagues / 2);
}

TEST_F(MakersPropertyTest, NoMakerTouchesTheGoaliePullOrTheReservedWords)
{
    for (std::uint32_t seed = 1; seed <= Leagues / 3; ++seed) {
        RandomTeam random(seed);
        random.FillForLines();
        random.ScatterOnLines();
        const auto kept = [] {
            std::vector<long long> words;
            for (int day = 1; day <= 10; ++day)
                for (const Lines* lines : {&Teams[Team5].ProLines[day], &Teams[Team5].Farm.FarmLines[day]})
                    for (const Int16* word : {&lines->PullGoalerMinGoal, &lines->PullGoalerMinPct,
                                              &lines->PK3Reserved[1], &lines->PK3Reserved[2]})
                        words.push_back(*word);
            return words;
        };
        Teams[Team5].ProLines[1].PK3Reserved[1] = random.Between(1, 99);
        const auto before = kept();
        AutoLinesPartial(Team5, false, 1);
        AutoLines(Team5, false, 1);
        AutoLinesFarm(Team5, false, 1);
        ASSERT_EQ(kept(), before) << "seed " << seed;
        Machine.ForgetBoxes("what the makers tell of such teams is compared with their second readings");
    }
}

} // namespace
} // namespace dravik
