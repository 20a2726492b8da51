#include "desk/LineMakers.h"
#include "desk/LinesFiles.h"
#include "makers/Makers.h"
#include "rules/LineJudge.h"
#include "session/OpenLeagueClient.h"
#include "support/ClientFileBytes.h"
#include "support/OpenedWindow.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"
#include "terminal/Verbs.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::IsEmpty;

// What the terminal makes and saves, beside what the windows' commands make and save.
class MakeVerbTest : public SmallLeague {
protected:
    // Runs the verb; how it ended, and what it printed.
    int Make(std::vector<std::string> arguments)
    {
        CLI::App program;
        const terminal::Verb verb = terminal::AddMake(program);
        arguments.insert(arguments.begin(), "make");
        std::reverse(arguments.begin(), arguments.end());
        program.parse(arguments);
        ::testing::internal::CaptureStdout();
        ::testing::internal::CaptureStderr();
        const int end = verb.Run();
        printed = ::testing::internal::GetCapturedStdout() + ::testing::internal::GetCapturedStderr();
        return end;
    }

    // What a manager does in the windows: opens the file, presses the commands, and saves; whether he could.
    bool SaveInWindows(const std::string& league, int team, bool roster, bool lines, bool farm)
    {
        OpenLeagueClient(league, Window);
        CurrentTeam = team;
        if (roster)
            AutoRoster(OpenWork(), team, true, false);
        for (int day = 1; day <= LineDays; ++day) {
            if (lines)
                MakeDay(OpenWork(), team, day, Side::Pro);
            if (farm)
                MakeDay(OpenWork(), team, day, Side::Farm);
        }
        const bool isFarmComplete = JudgeDay(OpenWork(), team, Side::Farm, 1, false).Complete;
        const bool isProComplete = JudgeDay(OpenWork(), team, Side::Pro, 1, false).Complete;
        bool saved = false;
        if (isFarmComplete && isProComplete)
            SaveLines(
                OpenWork(), OpenFiles(), Machine, team, [] {}, [&](const std::string&) { saved = true; });
        (void)Machine.TakeBoxes();
        return saved;
    }

    // A team whose roster is complete, and so are the farm's rules; its lines are empty.
    void PutCompleteTeam()
    {
        TeamMaker(1).DressesFullRoster().FarmsFullRoster();
        Teams[1].Name = "Harbour City";
        LeagueData.LeagueCode = "ABC12";
        LeagueData.FileDate = 46000;
        LeagueData.FarmEnabled = true;
    }

    OpenedWindow Window;
    std::string printed;
};

TEST_F(MakeVerbTest, WhatItSavesIsWhatTheWindowsSave)
{
    int savedOnes = 0;
    int refused = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        ResetClientVariables();
        SetOrdinaryRules();
        Dice dice(seed);
        if (seed % 2 == 0) {
            PutCompleteTeam();
            Teams[1].Cash = static_cast<int>(dice.Roll(0, 1000000));
            for (Player& player : Players)
                if (player.InUse && dice.Chance(5))
                    player.Condition = 50;
        } else {
            RollLeague(dice);
            Teams[1].Name = "Harbour City";
        }
        Teams[1].Password = "";
        const bool makersClosed = static_cast<bool>(LeagueData.AutoRosterDisabled);
        const std::string league = Machine.InFolder("League.dvs");
        // The wrapped way takes longer and is tried less often; it is the usual one.
        const bool isWrapped = seed % 10 == 0;
        Machine.Settings["SkipZIPClient"] = isWrapped ? "NO" : "YES";
        if (isWrapped)
            WriteWhole(league, Wrapped(ClientSlots(), 1));
        else
            WriteSparse(league, ClientSlots());
        const std::string out = Machine.InFolder("Out.dvl");
        const std::string byWindows = Machine.InFolder("HarbourCity.dvl");
        std::filesystem::remove(out);
        std::filesystem::remove(byWindows);

        const bool roster = dice.Chance(50);
        const bool farm = dice.Chance(80);
        std::vector<std::string> arguments{league, "--team", "1", "--lines", "--out", out};
        if (roster)
            arguments.emplace_back("--roster");
        if (farm)
            arguments.emplace_back("--farm");
        const int end = Make(arguments);
        const bool saved = !makersClosed && SaveInWindows(league, 1, roster, true, farm);
        ASSERT_EQ(end, saved ? 0 : 2) << "seed " << seed << ": " << printed;
        ASSERT_EQ(std::filesystem::exists(out), saved);
        if (saved) {
            ASSERT_TRUE(ReadWhole(out) == ReadWhole(byWindows)) << "seed " << seed;
        }
        (saved ? savedOnes : refused) += 1;
    }
    EXPECT_GE(savedOnes, 5);
    EXPECT_GE(refused, 5);
}

TEST_F(MakeVerbTest, WithoutAMakerItSavesTheLeagueAsItStands)
{
    PutCompleteTeam();
    for (int day = 1; day <= LineDays; ++day)
        for (const Side side : {Side::Pro, Side::Farm})
            MakeDay(OpenWork(), 1, day, side);
    (void)Machine.TakeBoxes();
    Machine.Settings["SkipZIPClient"] = "YES";
    const std::string league = Machine.InFolder("League.dvs");
    WriteSparse(league, ClientSlots());
    const std::string out = Machine.InFolder("Out.dvl");
    ASSERT_EQ(Make({league, "--team", "1", "--out", out}), 0) << printed;
    ASSERT_TRUE(SaveInWindows(league, 1, false, false, false));
    EXPECT_TRUE(ReadWhole(out) == ReadWhole(Machine.InFolder("HarbourCity.dvl")));
}

} // namespace
} // namespace dravik
