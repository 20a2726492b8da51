// The line-ups alone of a lines file.

#include "desk/TakeLines.h"
#include "LinesDesk.h"
#include "support/Routines.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class TakeLinesTest : public LinesDesk {
protected:
    TakeLinesTest() : Path(Machine.InFolder("Own.dvl"))
    {
        Teams[Own].Name = "Gulls";
        for (int day = 1; day <= LineDays; ++day)
            for (const Side side : Sides) {
                Day(side, day) = Day(side);
                Day(side, day).PullGoalerMinPct = 10 * day + (side == Side::Farm ? 5 : 0); // whose day it is
            }
        Teams[Own].GamesPlayed = 20;
        EXPECT_TRUE(WriteLinesFile(Own, Path));
        // What has happened since.
        Teams[Own].Cash = 4711;
        Teams[Own].Messenger = "new";
        Teams[Own].Password = "0123456789abcdef0123456789abcdef";
        for (int day = 1; day <= LineDays; ++day)
            for (const Side side : Sides) {
                Day(side, day) = {};
                Day(side, day).PullGoalerMinPct = 99;
            }
        Remember();
    }

    LoadedFile Take(const std::vector<Side>& sides = {Side::Pro, Side::Farm}, bool movedOn = true)
    {
        return TakeLines(OpenWork(), OpenFiles(), Own, Path, sides, movedOn);
    }
    static std::vector<int> Marks(Side side)
    {
        std::vector<int> marks;
        for (int day = 1; day <= LineDays; ++day)
            marks.push_back(static_cast<int>(Day(side, day).PullGoalerMinPct));
        return marks;
    }

    std::string Path;
};

TEST_F(TakeLinesTest, TheLinesAreTakenAndNothingElse)
{
    const LoadedFile taken = Take();
    EXPECT_EQ(taken.Outcome, TeamFileRead::Loaded);
    EXPECT_EQ(taken.Words, "Lines for Gulls successfully load from\r\n" + Path);
    EXPECT_THAT(taken.TakenIn.Told, IsEmpty());
    EXPECT_THAT(Marks(Side::Pro), ElementsAre(10, 20, 30, 40, 50, 60, 70, 80, 90, 100));
    EXPECT_THAT(Marks(Side::Farm), ElementsAre(15, 25, 35, 45, 55, 65, 75, 85, 95, 105));
    for (const Side side : Sides)
        for (int day = 1; day <= LineDays; ++day)
            ExpectedDay(side, day) = Day(side, day);
    EXPECT_TRUE(IsAsExpected());
    EXPECT_EQ(Day(Side::Pro).NormalForward(1, 1), Day(Side::Pro, 10).NormalForward(1, 1));
    EXPECT_NE(Day(Side::Pro).NormalForward(1, 1), 0);
}

TEST_F(TakeLinesTest, ThoseOfOneSideLeaveTheOther)
{
    Take({Side::Farm});
    EXPECT_THAT(Marks(Side::Pro), Each(99));
    EXPECT_EQ(Marks(Side::Farm)[0], 15);
    Take({Side::Pro});
    EXPECT_EQ(Marks(Side::Pro)[0], 10);
}

TEST_F(TakeLinesTest, DaysThatHaveBeenPlayedGoBy)
{
    Teams[Own].GamesPlayed = 23;
    Take();
    EXPECT_THAT(Marks(Side::Pro), ElementsAre(40, 50, 60, 70, 80, 90, 100, 99, 99, 99));
    EXPECT_THAT(Marks(Side::Farm), ElementsAre(45, 55, 65, 75, 85, 95, 105, 99, 99, 99));
    Take({Side::Pro}, false);
    EXPECT_EQ(Marks(Side::Pro)[0], 10);
}

TEST_F(TakeLinesTest, AFileOfLaterIsTakenAsItIs)
{
    Teams[Own].GamesPlayed = 3;
    Take();
    EXPECT_EQ(Marks(Side::Pro)[0], 10);
}

TEST_F(TakeLinesTest, AFileWhoseDaysAreAllPlayedChangesNothing)
{
    for (const int games : {30, 31, 32767}) {
        Teams[Own].GamesPlayed = games;
        Remember();
        EXPECT_THAT(Take().TakenIn.Told, ElementsAre("All of its days have been played.")) << games;
        EXPECT_TRUE(IsAsExpected());
    }
    Teams[Own].GamesPlayed = 29;
    Take();
    EXPECT_EQ(Marks(Side::Pro)[0], 100);
}

TEST_F(TakeLinesTest, WhoIsGoneIsToldOnceAndTakenOutByTheJudge)
{
    const auto center = static_cast<int>(Pro.Skaters.front());
    Players[center].Name = "Ward Tilton";
    Players[center].Team = Own + 1;
    const LoadedFile taken = Take({Side::Pro});
    ASSERT_THAT(taken.TakenIn.Told, Not(IsEmpty()));
    EXPECT_EQ(taken.TakenIn.Told.front(), "Ward Tilton is no more in the team.");
    EXPECT_EQ(taken.TakenIn.Told.size(), 11U) << "and ten days are not complete";
    EXPECT_EQ(taken.TakenIn.Told.back(), "Lines #10 are incomplete!");
    for (const DaySlot& slot : DaySlots) {
        if (!slot.IsGoalies()) {
            EXPECT_NE(At(Day(Side::Pro, 3), slot), center);
        }
    }
}

TEST_F(TakeLinesTest, IncompleteDaysOfTheFarmAreToldAsItsOwn)
{
    LeagueData.FarmRosterRequired = true;
    const auto center = static_cast<int>(Farm.Skaters.front());
    Players[center].Name = "Ward Tilton";
    Players[center].Team = Own + 1;
    const LoadedFile taken = Take({Side::Farm});
    ASSERT_EQ(taken.TakenIn.Told.size(), 11U);
    EXPECT_EQ(taken.TakenIn.Told[0], "Ward Tilton is no more in the team.");
    EXPECT_EQ(taken.TakenIn.Told[1], "Farm Lines #1 are incomplete!");
    EXPECT_EQ(taken.TakenIn.Told[10], "Farm Lines #10 are incomplete!");
}

TEST_F(TakeLinesTest, NumbersOfNobodyStandNowhere)
{
    Teams[Own].ProLines[1].NormalForward(1, 1) = 32767;
    Teams[Own].ProLines[1].StartGoalie = -3;
    EXPECT_TRUE(WriteLinesFile(Own, Path));
    Take({Side::Pro});
    EXPECT_EQ(Day(Side::Pro).NormalForward(1, 1), 0);
    EXPECT_EQ(Day(Side::Pro).StartGoalie, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TakeLinesTest, AFileOfAnotherTeamOrLeagueOrWithoutItsEndIsRefused)
{
    const auto isRefused = [&](const std::string& why) {
        const LoadedFile taken = Take();
        EXPECT_EQ(taken.Outcome, TeamFileRead::Refused) << why;
        EXPECT_EQ(taken.Words, "File for Gulls unsuccessfully load from\r\n" + Path) << why;
        EXPECT_TRUE(IsAsExpected()) << why;
    };
    Machine.Settings["SkipZIPClient"] = "YES";
    EXPECT_TRUE(WriteLinesFile(Own, Path));
    const auto length = std::filesystem::file_size(Path);
    std::filesystem::resize_file(Path, length - 1);
    isRefused("without its end");
    EXPECT_TRUE(WriteLinesFile(Own + 1, Path));
    isRefused("of another team");
    EXPECT_TRUE(WriteLinesFile(Own, Path));
    LeagueData.LeagueCode = "Other";
    Remember();
    isRefused("of another league");
    std::filesystem::remove(Path);
    isRefused("gone");
}

} // namespace
} // namespace dravik
