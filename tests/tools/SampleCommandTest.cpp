#include "files/WrapFile.h"
#include "sample-league/Command.h"
#include "SampleFixture.h"
#include "session/OpenLeagueClient.h"
#include "session/Session.h"
#include "support/OpenedWindow.h"

#include <filesystem>
#include <sstream>

namespace dravik {

namespace {

class SampleCommandTest : public SmallLeague {
protected:
    SampleCommandTest() { UseMachine(Tool); }

    int Run(const std::vector<std::string>& arguments)
    {
        Out.str("");
        Err.str("");
        return sample::Run(Tool, arguments, Out, Err);
    }

    // The bytes of a file that the command wrote into the test's folder.
    std::string Bytes(const std::string& name)
    {
        const auto file = Tool.OpenFile(Machine.InFolder(name));
        std::string bytes(static_cast<std::size_t>(Tool.FileLength(Machine.InFolder(name))), '\0');
        bytes.resize(file->Read(bytes.data(), bytes.size()));
        return bytes;
    }

    // The client file of the given options, wrapped unless they ask for a plain one.
    std::string Made(std::vector<std::string> options)
    {
        options.insert(options.end(), {"--out", Machine.InFolder("made.dvs")});
        EXPECT_EQ(Run(options), 0) << Err.str();
        return Bytes("made.dvs");
    }

    sample::ToolMachine Tool;
    std::ostringstream Out;
    std::ostringstream Err;
};

constexpr std::size_t Slot = 3470;

template <class Record>
Record RecordAt(const std::string& bytes, std::size_t number)
{
    Record record;
    std::copy_n(bytes.data() + (number - 1) * Slot, sizeof record, reinterpret_cast<char*>(&record));
    return record;
}

} // namespace

TEST_F(SampleCommandTest, HelpNamesEveryOptionAndPassword)
{
    EXPECT_EQ(Run({"--help"}), 0);
    for (const char* option :
         {"--seed", "--out", "--plain", "--divisions 4|6", "--off-season", "--deadline", "--full", "--help"})
        EXPECT_THAT(Out.str(), ::testing::HasSubstr(option));
    for (const TeamPassword& password : SamplePasswords)
        EXPECT_THAT(Out.str(), ::testing::HasSubstr("\"" + std::string(password.Password) + "\""));
    EXPECT_EQ(Err.str(), "");
}

TEST_F(SampleCommandTest, ArgumentsThatAreNotUnderstoodEndWith2)
{
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"--bogus"}, "unknown argument \"--bogus\""},
        {{"league.dvs"}, "unknown argument \"league.dvs\""},
        {{""}, "unknown argument \"\""},
        {{"--seed"}, "--seed needs a value"},
        {{"--out"}, "--out needs a value"},
        {{"--out", ""}, "--out needs a value"},
        {{"--seed", "12x"}, "--seed needs a whole number from 0 on, not \"12x\""},
        {{"--seed", "-1"}, "--seed needs a whole number from 0 on, not \"-1\""},
        {{"--seed", "18446744073709551616"}, "--seed needs a whole number from 0 on, not \"18446744073709551616\""},
        {{"--divisions", "5"}, "--divisions is 4 or 6"},
        {{"--off-season", "--deadline"}, "--off-season and --deadline exclude each other"},
    };
    for (const auto& [arguments, complaint] : cases) {
        EXPECT_EQ(Run(arguments), 2) << complaint;
        EXPECT_EQ(Err.str(), "sample-league: " + complaint + "\nTry sample-league --help.\n");
        EXPECT_EQ(Out.str(), "");
    }
}

TEST_F(SampleCommandTest, AFileThatCannotBeWrittenEndsWith1)
{
    for (const auto& layout : {std::vector<std::string>{}, std::vector<std::string>{"--plain"}}) {
        std::vector<std::string> arguments = layout;
        const std::string path = Machine.InFolder("no-such-folder/league.dvs");
        arguments.insert(arguments.end(), {"--out", path});
        EXPECT_EQ(Run(arguments), 1);
        EXPECT_THAT(Err.str(), ::testing::StartsWith("sample-league: cannot write " + path + ": "));
        EXPECT_EQ(Out.str(), "");
    }
}

TEST_F(SampleCommandTest, ThePlainFileIsASlotFileOfTheWholeLeague)
{
    const std::string bytes = Made({"--plain"});
    EXPECT_EQ(Out.str(), "Wrote " + Machine.InFolder("made.dvs") + "\n");
    ASSERT_EQ(bytes.size(), 16902 * Slot + 2 + 36);
    EXPECT_EQ(bytes.substr(0, 40), std::string("\x26\0", 2) + "DRVK Client Files Version 1.12 - Start");
    EXPECT_EQ(bytes.substr(16902 * Slot), std::string("\x24\0", 2) + "DRVK Client Files Version 1.12 - End");
    EXPECT_EQ(RecordAt<League>(bytes, 2).LeagueCode.Raw(), LeagueData.LeagueCode.Raw());
    EXPECT_EQ(RecordAt<Prospect>(bytes, 302).Name.Raw(), Prospects[300].Name.Raw());
    EXPECT_EQ(RecordAt<Team>(bytes, 303).Name.Raw(), Teams[1].Name.Raw());
    EXPECT_EQ(RecordAt<Team>(bytes, 402).Number, 0);
    EXPECT_EQ(RecordAt<Player>(bytes, 403).Name.Raw(), Players[1].Name.Raw());
    EXPECT_EQ(RecordAt<Player>(bytes, 10402).Reserved5, Players[10000].Reserved5);
    EXPECT_EQ(RecordAt<Goalie>(bytes, 11402).Name.Raw(), Goalies[1000].Name.Raw());
    EXPECT_EQ(RecordAt<Coach>(bytes, 11403).Name.Raw(), Coaches[1].Name.Raw());
    EXPECT_EQ(RecordAt<ScheduleRow>(bytes, 11903).ProHome, GameSchedule[1].ProHome);
}

TEST_F(SampleCommandTest, TheWrappedFileSaysThePlainLengthAndIsSmall)
{
    const std::string bytes = Made({});
    ASSERT_GT(bytes.size(), 4U);
    Int32 length;
    std::copy_n(bytes.data(), 4, reinterpret_cast<char*>(&length));
    EXPECT_EQ(length, static_cast<long long>(16902 * Slot + 2 + 36));
    EXPECT_GT(bytes.size(), 200'000U);
    EXPECT_LT(bytes.size(), 2'000'000U);
}

TEST_F(SampleCommandTest, ThePlainFileAndTheWrappedOneHoldTheSame)
{
    const std::string plain = Made({"--plain"});
    Made({});
    ASSERT_TRUE(ZlibDecompress(Machine, Machine, Machine.InFolder("made.dvs"), Machine.InFolder("unwrapped")));
    EXPECT_TRUE(Bytes("unwrapped") == plain);
}

TEST_F(SampleCommandTest, TheClientOpensBothLayouts)
{
    for (const bool plain : {false, true}) {
        Made(plain ? std::vector<std::string>{"--plain"} : std::vector<std::string>{});
        ResetClientVariables();
        TempFile = Machine.InFolder("ClientTemp.dvt");
        UseMachine(Machine);
        Machine.Settings["SkipZIPClient"] = plain ? "Yes" : "No";
        OpenedWindow window;
        OpenLeagueClient(Machine.InFolder("made.dvs"), window);
        EXPECT_THAT(Machine.Boxes(), ::testing::IsEmpty());
        EXPECT_EQ(LeagueData.Name.Trimmed(), "Aurora Crown Hockey League");
        EXPECT_EQ(Teams[32].Name.Trimmed(), "Skarnholm Walkers");
        EXPECT_EQ(Players[0].Name.Trimmed(), "Unknown Player");
        UseMachine(Tool);
    }
}

TEST_F(SampleCommandTest, EverySeedHasAFileOfItsOwn)
{
    const std::string one = Made({"--seed", "1"});
    EXPECT_TRUE(Made({}) == one);
    EXPECT_FALSE(Made({"--seed", "18446744073709551615"}) == one);
    EXPECT_TRUE(Made({"--seed", "1"}) == one);
}

TEST_F(SampleCommandTest, TheOptionsMakeTheOtherLeagues)
{
    Made({"--plain", "--divisions", "4"});
    EXPECT_EQ(LeagueData.DivisionCount, 4);
    Made({"--plain", "--divisions", "6", "--deadline"});
    EXPECT_EQ(LeagueData.DivisionCount, 6);
    EXPECT_TRUE(LeagueData.TradeDeadlineInForce);
    Made({"--plain", "--off-season"});
    EXPECT_TRUE(LeagueData.OffSeason);
    Made({"--plain", "--full"});
    EXPECT_TRUE(std::all_of(&Players[1], &Players[10000], [](const Player& player) { return bool(player.InUse); }));
}

TEST_F(SampleCommandTest, AFailedWriteLeavesTheOldFile)
{
    const std::string path = Machine.InFolder("made.dvs");
    Made({"--plain", "--seed", "5"});
    const std::string before = Bytes("made.dvs");
    std::filesystem::create_directories(Machine.InFolder("folder.dvs/inside"));
    EXPECT_EQ(Run({"--plain", "--out", Machine.InFolder("folder.dvs")}), 1);
    EXPECT_TRUE(std::filesystem::is_directory(Machine.InFolder("folder.dvs")));
    EXPECT_TRUE(Bytes("made.dvs") == before);
}

} // namespace dravik
