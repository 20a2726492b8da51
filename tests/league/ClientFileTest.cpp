#include "league/ClientFile.h"

#include "league/Failure.h"
#include "league/OutsideCode.h"
#include "support/LeagueImage.h"
#include "support/OpenedWindow.h"
#include "support/SmallLeague.h"

#include <filesystem>
#include <limits>

namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ClientFileTest : public SmallLeague {
protected:
    // Puts the tables as they stand into a file of the test's folder and gives its path. Plain unless told otherwise,
    // and the settings say so: that route is the quick one.
    std::string SavePlain(const std::string& name = "League.dvs")
    {
        Machine.Settings["SkipZIPClient"] = "YES";
        WriteSparse(Machine.InFolder(name), ClientSlots());
        return Machine.InFolder(name);
    }
    std::string SaveWrapped(const std::string& name = "League.dvs")
    {
        WriteWhole(Machine.InFolder(name), Wrapped(ClientSlots(), 1));
        return Machine.InFolder(name);
    }

    void Open(const std::string& path) { OpenLeagueClient(path, Window); }

    // Noise in every table but the league's rules, to see what a failed open leaves of it.
    void ScrambleTables()
    {
        const League rules = LeagueData;
        ScrambleLeague(77);
        LeagueData = rules;
        league = ImageOf(LeagueData);
        coaches = ImageOf(Coaches);
    }

    [[nodiscard]] bool LeagueDataIsUntouched() const { return ImageOf(LeagueData) == league; }
    [[nodiscard]] bool CoachesAreUntouched() const { return ImageOf(Coaches) == coaches; }

    void ExpectNothingRead() const
    {
        EXPECT_TRUE(FiveTablesAreEmpty());
        EXPECT_TRUE(LeagueDataIsUntouched());
        EXPECT_TRUE(CoachesAreUntouched());
    }

    [[nodiscard]] bool WorkFileIsThere() const { return std::filesystem::exists(TempFile); }

    // The names of what lies in the test's folder.
    [[nodiscard]] std::vector<std::string> FilesLeft() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(Machine.Folder()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    OpenedWindow Window;

private:
    ByteVector league;
    ByteVector coaches;
};

TEST_F(ClientFileTest, AWrappedFileFillsEveryTableByteForByte)
{
    ScrambleLeague(1);
    const ByteVector slots = ClientSlots();
    const std::string path = SaveWrapped();
    ResetClientVariables();
    TempFile = Machine.InFolder("ClientTemp.dvt");
    Open(path);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(ClientSlots() == slots);
    EXPECT_THAT(FilesLeft(), ElementsAre("League.dvs"));
}

TEST_F(ClientFileTest, APlainFileFillsEveryTableByteForByte)
{
    ScrambleLeague(2);
    const ByteVector slots = ClientSlots();
    const std::string path = SavePlain();
    ResetClientVariables();
    TempFile = Machine.InFolder("ClientTemp.dvt");
    Open(path);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(ClientSlots() == slots);
    EXPECT_THAT(FilesLeft(), ElementsAre("League.dvs"));
}

TEST_F(ClientFileTest, WhatStandsBehindARecordInItsSlotIsIgnored)
{
    ScrambleLeague(3);
    const ByteVector slots = ClientSlots();
    ByteVector noisy = slots;
    const std::pair<std::size_t, std::size_t> samples[] = {{1, 40},      {2, 565},    {3, 40},     {403, 155},
                                                           {10403, 142}, {11403, 65}, {11903, 18}, {16902, 18}};
    for (const auto& [record, length] : samples)
        std::fill_n(noisy.begin() + static_cast<std::ptrdiff_t>(client_file::Offset(record) + length),
                    client_file::Slot - length, static_cast<unsigned char>(0xEE));
    noisy.resize(client_file::SlotCount * client_file::Slot, 0xEE);
    Machine.Settings["SkipZIPClient"] = "YES";
    WriteSparse(Machine.InFolder("League.dvs"), noisy);
    EmptyLeagueTables();
    Open(Machine.InFolder("League.dvs"));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_TRUE(ClientSlots() == slots);
}

TEST_F(ClientFileTest, ALongestAndAShortestFileHaveTheKnownLengths)
{
    EXPECT_EQ(ClientSlots().size(), 58649978U);
    EXPECT_EQ(client_file::SlotCount * client_file::Slot, 58653410U);
}

TEST_F(ClientFileTest, TheWindowIsSetInOrder)
{
    LeagueData.FileDate = 45231.573; // 1 November 2023, 13:45:07
    Open(SavePlain("My League.dvs"));
    EXPECT_THAT(Window.Calls, ElementsAre("caption Dravik Hockey Simulator Client - My League", "place teams", "centre",
                                          "show menus", "draft off &Draft List", "free agents on",
                                          "date Client File Date : November 1 2023 at 13:45"));
    EXPECT_EQ(WindowTitle, "Dravik Hockey Simulator Client - My League");
    EXPECT_EQ(Machine.Settings["LastLoadLeague"], Machine.InFolder("My League.dvs"));
    EXPECT_EQ(Machine.WaitCount, 1);
    EXPECT_FALSE(Machine.WaitShown);
}

TEST_F(ClientFileTest, TheLastFourCharactersAreCutFromTheTitleWhateverTheyAre)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    const ByteVector slots = ClientSlots();
    for (const auto& [name, title] : {std::pair{"Season", "Se"}, {"abcd", ""}, {"abc", ""}, {"a.b.dvs", "a.b"}}) {
        WriteSparse(Machine.InFolder(name), slots);
        Open(Machine.InFolder(name));
        EXPECT_EQ(WindowTitle, std::string("Dravik Hockey Simulator Client - ") + title);
    }
}

#ifndef _WIN32 // where no name may hold the escape byte

TEST_F(ClientFileTest, AnEscapedCharacterOfTheNameIsCutFromTheTitleAsOne)
{
    Machine.Settings["SkipZIPClient"] = "YES";
    const ByteVector slots = ClientSlots();
    const std::pair<std::string, std::string> names[] = {
        {"S\x1A{43B}son", "S"},
        {"\x1A{41B}\x1A{438}\x1A{433}\x1A{430}.dvs", "\x1A{41B}\x1A{438}\x1A{433}\x1A{430}"},
        {"\x1A{41B}\x1A{438}\x1A{433}", ""}, // three characters
        {"\x1A{41B}\x1A{438}\x1A{433}\x1A{430}", ""},
        {"\x1A{41B}\x1A{438}\x1A{433}\x1A{430}1", "\x1A{41B}"},
    };
    for (const auto& [name, title] : names) {
        WriteSparse(Machine.InFolder(name), slots);
        Open(Machine.InFolder(name));
        EXPECT_EQ(WindowTitle, "Dravik Hockey Simulator Client - " + title);
    }
}

#endif

TEST_F(ClientFileTest, TheWaitScreenGoesBeforeTheSettingIsStoredAndTheMenusFollow)
{
    Machine.OnEvent = [this](const std::string& event) { Window.Calls.push_back(event); };
    const std::string path = SavePlain();
    Open(path);
    EXPECT_THAT(Window.Calls, ElementsAre("wait up", "caption Dravik Hockey Simulator Client - League", "place teams",
                                          "centre", "show menus", "wait down", "setting LastLoadLeague",
                                          "draft off &Draft List", "free agents on", ::testing::StartsWith("date ")));
}

TEST_F(ClientFileTest, TheEntryFoundInAnotherCaseIsTheOneOpened)
{
    SavePlain("LEAGUE.DVS");
    Open(Machine.InFolder("League.dvs"));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(WindowTitle, "Dravik Hockey Simulator Client - League");
    EXPECT_EQ(Machine.Settings["LastLoadLeague"], Machine.InFolder("League.dvs"));
}

TEST_F(ClientFileTest, AFileWithFourDivisionsOpens)
{
    LeagueData.DivisionCount = 4;
    Open(SavePlain());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(LeagueData.DivisionCount, 4);
    EXPECT_THAT(Window.Calls, Contains("place teams"));
}

TEST_F(ClientFileTest, RatingCountsFollowShowAllRatings)
{
    Open(SavePlain());
    EXPECT_EQ(PlayerStatCount, 15);
    EXPECT_EQ(GoalieStatCount, 13);
    LeagueData.ShowAllRatings.SetWord(1);
    Open(SavePlain());
    EXPECT_EQ(PlayerStatCount, 7) << "only -1 is True";
    EXPECT_EQ(GoalieStatCount, 7);
}

TEST_F(ClientFileTest, MenusFollowTheSeason)
{
    struct Row {
        bool OffSeason, Deadline, Fantasy, Entry;
        int EntryDone;
        std::vector<std::string> Calls;
    };
    const std::string off = "draft off &Draft List";
    const std::string fantasy = "draft on Fantasy &Draft List";
    const std::string entry = "draft on Entry &Draft List";
    const Row rows[] = {
        {false, false, true, true, 0, {off, "free agents on"}},
        {false, true, true, true, 0, {off, "free agents off"}},
        {true, true, false, false, 0, {off, "free agents on"}},
        {true, false, true, false, 0, {off, "free agents on", fantasy}},
        {true, false, false, true, 0, {off, "free agents on", entry}},
        {true, false, false, true, 1, {off, "free agents on"}},
        {true, false, true, true, -1, {off, "free agents on", fantasy}},
        {true, false, true, true, 0, {off, "free agents on", fantasy, entry}}, // the second test wins
    };
    for (const Row& row : rows) {
        LeagueData.OffSeason = row.OffSeason;
        LeagueData.TradeDeadlineInForce = row.Deadline;
        LeagueData.FantasyDraft = row.Fantasy;
        LeagueData.EntryDraft = row.Entry;
        LeagueData.EntryDraftDone = row.EntryDone;
        Window.Calls.clear();
        Open(SavePlain());
        ASSERT_GE(Window.Calls.size(), 6U);
        EXPECT_THAT(std::vector(Window.Calls.begin() + 4, Window.Calls.end() - 1), row.Calls);
    }
}

TEST_F(ClientFileTest, TheFirstSlotsBecomeThePlaceholders)
{
    LeagueData.UnknownRating = 37;
    Open(SavePlain());

    Player player;
    player.InUse = true;
    player.Name = "Unknown Player";
    player.Country = "CAN";
    player.Age = 30;
    player.Weight = 200;
    player.Height = 70;
    player.Position = 1;
    player.Contract = 1;
    player.Salary = 1000;
    player.Condition = 100;
    for (auto& stat : player.Stats)
        stat = 37;
    player.Stats[6] = 80;
    EXPECT_TRUE(ImageOf(Players[0]) == ImageOf(player));

    Goalie goalie;
    goalie.InUse = true;
    goalie.Name = "Unknown Goalie";
    goalie.Country = "CAN";
    goalie.Age = 30;
    goalie.Weight = 200;
    goalie.Height = 70;
    goalie.Contract = 1;
    goalie.Salary = 1000;
    goalie.Condition = 100;
    for (auto& stat : goalie.Stats)
        stat = 37;
    goalie.Stats[2] = 80;
    EXPECT_TRUE(ImageOf(Goalies[0]) == ImageOf(goalie));
}

TEST_F(ClientFileTest, RosterChangesTakeTheTwoWordsAndKeepTheirStatus)
{
    PutSkater(1, 5, position::Center, status::Pro).TradeAvailable = true;
    PutSkater(10000, 5, position::Center, status::Pro).Protected = true;
    Players[3].Protected.SetWord(1);
    PutGoalie(1000, 5, status::Farm).TradeAvailable = true;
    RosterChanges[2].TradeAvailable = true;
    RosterChanges[2].Protected = true;
    RosterChanges[10000].Status = 1;
    Open(SavePlain());
    EXPECT_TRUE(RosterChanges[1].TradeAvailable);
    EXPECT_FALSE(RosterChanges[1].Protected);
    EXPECT_FALSE(RosterChanges[2].TradeAvailable);
    EXPECT_FALSE(RosterChanges[2].Protected);
    EXPECT_EQ(RosterChanges[3].Protected.Word(), 1) << "the word is copied as it stands";
    EXPECT_TRUE(RosterChanges[10000].Protected);
    EXPECT_TRUE(RosterChangesGoalie[1000].TradeAvailable);
    EXPECT_EQ(RosterChanges[1].Status, 10);
    EXPECT_EQ(RosterChanges[10000].Status, 1);
    EXPECT_EQ(RosterChangesGoalie[1000].Status, 10);
}

TEST_F(ClientFileTest, DefaultsOfOlderFilesStandInForZeros)
{
    LeagueData.ProDressedSkaters = 0;
    LeagueData.MaxDressedGoalies = 0;
    LeagueData.RequiredCenters = 0;
    LeagueData.RequiredLeftWings = 0;
    LeagueData.RequiredRightWings = 0;
    LeagueData.RequiredDefensemen = 0;
    LeagueData.OverallWeightCK = 0;
    LeagueData.MaxOffers = 0;
    Open(SavePlain());
    EXPECT_EQ(LeagueData.ProDressedSkaters, 18);
    EXPECT_EQ(LeagueData.MaxDressedGoalies, 2);
    EXPECT_EQ(LeagueData.RequiredCenters, 3);
    EXPECT_EQ(LeagueData.RequiredLeftWings, 3);
    EXPECT_EQ(LeagueData.RequiredRightWings, 3);
    EXPECT_EQ(LeagueData.RequiredDefensemen, 6);
    EXPECT_EQ(LeagueData.OverallWeightCK, 50);
    EXPECT_EQ(LeagueData.MaxOffers, 0) << "its default belongs to the offer screen";
}

TEST_F(ClientFileTest, AFileWithoutDressedSkatersBehavesAsEighteen)
{
    LeagueData.ProDressedSkaters = 0;
    Open(SavePlain());
    EXPECT_EQ(LeagueData.ProDressedSkaters, 18);
    LeagueData.ProDressedSkaters = -1;
    Open(SavePlain());
    EXPECT_EQ(LeagueData.ProDressedSkaters, -1) << "only 0 is replaced";
}

TEST_F(ClientFileTest, CurrentTeamStaysThroughASecondOpen)
{
    const std::string path = SavePlain();
    Open(path);
    CurrentTeam = 5;
    Open(path);
    EXPECT_EQ(CurrentTeam, 5);
}

TEST_F(ClientFileTest, AReloadReplacesWhatTheFirstLoadBrought)
{
    PutSkater(7, 5, position::Center, status::Pro);
    Open(SavePlain());
    Players[7] = {};
    const std::string path = SavePlain();
    PutSkater(7, 5, position::Center, status::Pro);
    Open(path);
    EXPECT_FALSE(Players[7].InUse);
}

TEST_F(ClientFileTest, AMissingFileEmptiesTheTablesAndSaysSo)
{
    ScrambleTables();
    WindowTitle = "as before";
    Machine.WaitShown = true;
    WriteWhole(TempFile, {1, 2, 3});
    Open(Machine.InFolder("Gone.dvs"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "Cannot find last client league file!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false)) << "closed if it was open";
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_EQ(Machine.WaitCount, 0);
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_TRUE(LeagueDataIsUntouched());
    EXPECT_TRUE(CoachesAreUntouched()) << "coaches are not emptied";
    EXPECT_THAT(Window.Calls, IsEmpty());
    EXPECT_EQ(WindowTitle, "as before");
    EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U);
    EXPECT_TRUE(WorkFileIsThere()) << "nothing is cleaned up before the file is found";
}

TEST_F(ClientFileTest, AWorkFileLeftBehindIsDeleted)
{
    WriteWhole(TempFile, {1, 2, 3});
    Open(SavePlain());
    EXPECT_FALSE(WorkFileIsThere());
    WriteWhole(TempFile, {1, 2, 3});
    WriteWhole(Machine.InFolder("Bad.dvs"), {1, 2, 3});
    Open(Machine.InFolder("Bad.dvs"));
    EXPECT_FALSE(WorkFileIsThere());
}

TEST_F(ClientFileTest, AWrongStartMagicLeavesLeagueDataUntouched)
{
    LeagueData.Name = "Another League";
    Machine.Settings["SkipZIPClient"] = "YES";
    const ByteVector slots = ClientSlots();
    LeagueData.Name = "This League";
    // The length's two bytes, the first and last character, the version.
    for (const std::size_t at : {0U, 1U, 2U, 39U, 30U}) {
        ByteVector bad(slots.begin(), slots.begin() + 2 * client_file::Slot);
        bad[at] ^= 1U;
        WriteWhole(Machine.InFolder("League.dvs"), bad);
        ScrambleTables();
        Machine.TakeBoxes();
        Open(Machine.InFolder("League.dvs"));
        EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"})) << at;
        EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
        EXPECT_TRUE(FiveTablesAreEmpty());
        EXPECT_TRUE(LeagueDataIsUntouched());
        EXPECT_TRUE(CoachesAreUntouched());
        EXPECT_FALSE(Machine.WaitShown);
        EXPECT_THAT(Window.Calls, IsEmpty());
        EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U);
    }
}

TEST_F(ClientFileTest, AWrongEndMagicEmptiesTheTablesAgainAndKeepsLeagueDataAndCoaches)
{
    LeagueData.Name = "Another League";
    Coaches[500].Name = "Last Coach";
    PutSkater(1, 5, position::Center, status::Pro);
    ByteVector slots = ClientSlots();
    slots.back() ^= 1U;
    Machine.Settings["SkipZIPClient"] = "YES";
    WriteSparse(Machine.InFolder("League.dvs"), slots);
    LeagueData.Name = "This League";
    Coaches[500] = {};
    WindowTitle = "as before";
    PlayerStatCount = 9;
    Open(Machine.InFolder("League.dvs"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_EQ(LeagueData.Name.Trimmed(), "Another League");
    EXPECT_EQ(Coaches[500].Name.Trimmed(), "Last Coach");
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_THAT(Window.Calls, IsEmpty());
    EXPECT_EQ(WindowTitle, "as before");
    EXPECT_EQ(PlayerStatCount, 9);
    EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U);
}

TEST_F(ClientFileTest, AFileOfAnotherVersionIsAWrongMagic)
{
    ByteVector slots = ClientSlots();
    const std::string other = "DRVK Client Files Version 1.13 - Start";
    std::copy(other.begin(), other.end(), slots.begin() + 2);
    slots.resize(100000);
    Machine.Settings["SkipZIPClient"] = "YES";
    WriteWhole(Machine.InFolder("League.dvs"), slots);
    Open(Machine.InFolder("League.dvs"));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
}

TEST_F(ClientFileTest, SkipZIPClientIsTrimmedAndItsCaseDoesNotMatter)
{
    const std::string path = SavePlain();
    for (const char* yes : {"YES", "yes", "  Yes "}) {
        Machine.Settings["SkipZIPClient"] = yes;
        Machine.TakeBoxes();
        Open(path);
        EXPECT_THAT(Machine.Boxes(), IsEmpty()) << yes;
    }
    for (const char* no : {"", "No", "Y", "YES!", "-1", "True"}) {
        Machine.Settings["SkipZIPClient"] = no;
        Machine.TakeBoxes();
        Open(path);
        EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}))
            << no;
    }
}

TEST_F(ClientFileTest, APlainFileReadAsWrappedEndsInTheDecompressionMessage)
{
    const std::string path = SavePlain();
    Machine.Settings.clear();
    ScrambleTables();
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in Zlib Decompress!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_TRUE(LeagueDataIsUntouched());
    EXPECT_TRUE(CoachesAreUntouched());
    EXPECT_TRUE(Machine.WaitShown) << "the wait screen stays up";
    EXPECT_THAT(Window.Calls, IsEmpty());
    EXPECT_THAT(FilesLeft(), ElementsAre("League.dvs"));
}

TEST_F(ClientFileTest, AWrappedFileReadAsPlainEndsInTheMagicTest)
{
    const std::string path = SaveWrapped();
    Machine.Settings["SkipZIPClient"] = "YES";
    ScrambleTables();
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
    EXPECT_TRUE(FiveTablesAreEmpty());
    EXPECT_TRUE(LeagueDataIsUntouched());
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_THAT(FilesLeft(), ElementsAre("League.dvs"));
}

TEST_F(ClientFileTest, AFileThatCannotBeReadToItsEndChangesNothingOutsideTheEmptiedTables)
{
    ScrambleLeague(4);
    const ByteVector slots = ClientSlots();
    ResetClientVariables();
    TempFile = Machine.InFolder("ClientTemp.dvt");
    ScrambleTables();
    for (const bool plain : {false, true}) {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        const std::string path = Machine.InFolder("League.dvs");
        WriteWhole(path, plain ? slots : Wrapped(slots, 1));
        const auto reads = static_cast<std::size_t>(std::filesystem::file_size(path) / 65536);
        ASSERT_GT(reads, 10U);
        // Nobody may see a half league behind the box.
        Machine.OnEvent = [this](const std::string& event) {
            if (event == "box")
                ExpectNothingRead();
        };
        // Three operations find the file and one opens it. The last read comes when the coaches have long been read.
        for (const std::size_t read : {std::size_t{1}, std::size_t{2}, reads / 2, reads}) {
            Machine.TakeBoxes();
            Machine.CloseWait();
            Machine.FailFileOperation(4 + read, failure::PathAccess);
            Open(path);
            EXPECT_EQ(Machine.FileOperations().back(), "read");
            const std::string ending = plain ? " in OpenLeagueClient!" : " in Zlib Decompress!";
            EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "75 - Path/File access error" + ending}));
            EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
            EXPECT_TRUE(Machine.WaitShown) << "the wait screen stays up";
            ExpectNothingRead();
            EXPECT_THAT(Window.Calls, IsEmpty());
        }
    }
}

TEST_F(ClientFileTest, AFileDateThatIsNoDateEndsInTheCommonFailureMessage)
{
    // The last one is the end of the year 9999 once it is rounded to the second.
    for (const double date :
         {1e300, -1e300, std::numeric_limits<double>::quiet_NaN(), 2958466.0, -657435.0, 2958465.999995}) {
        LeagueData.FileDate = date;
        Machine.TakeBoxes();
        Window.Calls.clear();
        Open(SavePlain());
        EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in OpenLeagueClient!"}));
        EXPECT_EQ(Window.Calls.back(), "date Client File Date : ") << "everything before the date is shown";
    }
    for (const double date : {2958465.0, 2958465.99999, -657434.0}) {
        LeagueData.FileDate = date;
        Machine.TakeBoxes();
        Open(SavePlain());
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
    }
    LeagueData.FileDate = 2958465.99999;
    Open(SavePlain());
    EXPECT_EQ(Window.Calls.back(), "date Client File Date : December 31 9999 at 23:59");
}

TEST_F(ClientFileTest, OpeningTheWorkFileItselfDeletesItFirst)
{
    const std::string path = SaveWrapped("ClientTemp.dvt");
    ASSERT_EQ(path, TempFile);
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "53 - File not found in Zlib Decompress!"}));
    EXPECT_FALSE(WorkFileIsThere());
}

TEST_F(ClientFileTest, OpeningAPlainWorkFileItselfDeletesItFirst)
{
    const std::string path = SavePlain("ClientTemp.dvt");
    ASSERT_EQ(path, TempFile);
    Open(path);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Critical, "53 - File not found in OpenLeagueClient!"}));
    EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(true));
    EXPECT_FALSE(WorkFileIsThere());
    EXPECT_TRUE(FiveTablesAreEmpty());
}

} // namespace
} // namespace dravik
