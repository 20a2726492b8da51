#include "desk/TeamCheck.h"

#include "rules/LineJudge.h"
#include "support/PlainFormats.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <cstring>

namespace dravik {
namespace {

bool AreSame(const Tables& one, const Tables& other)
{
    return std::memcmp(static_cast<const void*>(&one), static_cast<const void*>(&other), sizeof one) == 0;
}

class TeamCheckTest : public SmallLeague {
protected:
    // What a judge says of a fresh copy of the league.
    template <class Judge>
    auto OnACopy(const Judge& judge)
    {
        const auto copy = Copy(OpenLeague);
        MuteVoice mute;
        bool modified = false;
        return judge(Work{*copy, mute, formats, modified});
    }

    void ExpectDays(const DayVerdicts& days, int team, Side side)
    {
        for (int day = 1; day <= LineDays; ++day) {
            const LineVerdict& found = days[static_cast<std::size_t>(day - 1)];
            const LineVerdict alone = OnACopy([&](const Work& work) { return JudgeDay(work, team, side, day, false); });
            EXPECT_EQ(found.Complete, alone.Complete);
            EXPECT_EQ(found.Failed, alone.Failed);
            EXPECT_EQ(TextOf(OpenLeague, found), TextOf(OpenLeague, alone));
        }
    }

    PlainFormats formats;
};

TEST_F(TeamCheckTest, EachJudgeSaysWhatHeSaysOfACopyOfItsOwn)
{
    Dice dice(20260112);
    int complete = 0;
    int repaired = 0;
    for (int round = 0; round < 200; ++round) {
        RollLeague(dice);
        const auto before = Copy(OpenLeague);
        const auto scratch = Copy(OpenLeague);
        for (int team = 1; team <= 3; ++team) {
            const TeamCheck check = LookAtTeam(OpenLeague, formats, team, *scratch);
            const RosterVerdict roster =
                OnACopy([&](const Work& work) { return CheckRoster(work, team, false, true, false); });
            EXPECT_EQ(check.Roster.Complete, roster.Complete);
            EXPECT_EQ(check.Roster.Failed, roster.Failed);
            EXPECT_EQ(TextOf(OpenLeague, team, check.Roster), TextOf(OpenLeague, team, roster));
            ASSERT_EQ(check.Roster.Cap.has_value(), roster.Cap.has_value());
            if (roster.Cap) {
                EXPECT_EQ(TextOf(OpenLeague, formats, team, *check.Roster.Cap),
                          TextOf(OpenLeague, formats, team, *roster.Cap));
            }
            ExpectDays(check.Pro, team, Side::Pro);
            ExpectDays(check.Farm, team, Side::Farm);
            complete += check.IsComplete() ? 1 : 0;
            repaired += roster.Repaired ? 1 : 0;
        }
        ASSERT_TRUE(AreSame(*scratch, OpenLeague)) << "in round " << round;
        ASSERT_TRUE(AreSame(*before, OpenLeague));
    }
    EXPECT_GT(repaired, 100) << "a roster that nobody repairs tries nothing";
}

TEST_F(TeamCheckTest, ATeamIsCompleteWhenRosterPayrollAndAllDaysAre)
{
    TeamMaker maker(5);
    maker.DressesFullRoster();
    LeagueData.FarmEnabled = false;
    const std::vector<int> forwards(maker.Skaters.begin(), maker.Skaters.begin() + 12);
    const std::vector<int> defense(maker.Skaters.begin() + 12, maker.Skaters.end());
    for (int day = 1; day <= LineDays; ++day)
        FillLines(Teams[5].ProLines[day], forwards, defense, maker.GoalieIds);
    const auto look = [&] { return LookAtTeam(OpenLeague, formats, 5, *Copy(OpenLeague)); };
    EXPECT_TRUE(look().IsComplete());

    Teams[5].ProLines[10].StartGoalie = 0;
    EXPECT_FALSE(look().IsComplete());
    EXPECT_TRUE(look().Roster.Complete);
    Teams[5].ProLines[10] = Teams[5].ProLines[1];

    Players[maker.Skaters[0]].Status = status::Scratch;
    EXPECT_FALSE(look().Roster.Complete);
    EXPECT_FALSE(look().IsComplete());
    Players[maker.Skaters[0]].Status = status::Pro;

    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 1;
    EXPECT_FALSE(look().Roster.Cap->Within);
    EXPECT_FALSE(look().IsComplete());
}

} // namespace
} // namespace dravik
