#include "OnClientFile.h"

namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using ClientFileTest = OnClientFile;

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
    EmptyLeagueTables(OpenLeague);
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

// Notes what is in the tables when the wait screen comes up, and when it has had its time.
class MachineThatWaits : public ScriptedPlatform {
public:
    bool ReadBefore = false;
    bool ReadMeanwhile = false;

    void ShowWaitOver(const std::function<void()>& work) override
    {
        ReadBefore = static_cast<bool>(Teams[5].InUse);
        ScriptedPlatform::ShowWaitOver(work);
        ReadMeanwhile = static_cast<bool>(Teams[5].InUse);
    }
};

TEST_F(ClientFileTest, ItIsReadWhileTheWaitScreenHasItsTime)
{
    Teams[5].InUse = true;
    const std::string path = SaveWrapped();
    MachineThatWaits waiting;
    UseMachine(waiting);
    Open(path);
    UseMachine(Machine);
    EXPECT_FALSE(waiting.ReadBefore);
    EXPECT_TRUE(waiting.ReadMeanwhile);
    EXPECT_THAT(waiting.Boxes(), IsEmpty());
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

} // namespace
} // namespace dravik
