#include "session/Routines.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;

// Whether every byte of `table` is 0.
template <class Table>
bool IsZero(const Table& table)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&table);
    return std::all_of(bytes, bytes + sizeof table, [](unsigned char byte) { return byte == 0; });
}

// Fills every byte of `table` with 1.
template <class Table>
void Soil(Table& table)
{
    for (auto& record : table)
        std::memset(static_cast<void*>(&record), 1, sizeof record);
}

void SoilEverything()
{
    std::memset(static_cast<void*>(&LeagueData), 1, sizeof LeagueData);
    Soil(Teams);
    Soil(Players);
    Soil(Goalies);
    Soil(Coaches);
    Soil(Prospects);
    Soil(GameSchedule);
    Soil(RosterChanges);
    Soil(RosterChangesGoalie);
    WindowTitle = TempFile = CallerScreen = "soiled";
    CurrentTeam = PlayerStatCount = GoalieStatCount = SelectedPlayer = RosterFixed = ViewerReturnMode = 7;
    Modified = SelectedIsGoalie = ListEventGuard = true;
}

template <class Table>
std::vector<std::string> All(const Table& names)
{
    return {names.begin(), names.end()};
}

TEST(ClientVariableTest, AProgramThatHasJustStartedKnowsNoLeagueAndNoTeam)
{
    SoilEverything();
    ResetClientVariables();
    EXPECT_TRUE(IsZero(LeagueData));
    EXPECT_TRUE(IsZero(Teams));
    EXPECT_TRUE(IsZero(Players));
    EXPECT_TRUE(IsZero(Goalies));
    EXPECT_TRUE(IsZero(Coaches));
    EXPECT_TRUE(IsZero(Prospects));
    EXPECT_TRUE(IsZero(GameSchedule));
    EXPECT_TRUE(IsZero(RosterChanges));
    EXPECT_TRUE(IsZero(RosterChangesGoalie));
    EXPECT_EQ(WindowTitle + TempFile + CallerScreen, "");
    EXPECT_EQ(CurrentTeam, 0);
    EXPECT_EQ(PlayerStatCount, 0);
    EXPECT_EQ(GoalieStatCount, 0);
    EXPECT_EQ(SelectedPlayer, 0);
    EXPECT_EQ(RosterFixed, 0);
    EXPECT_EQ(ViewerReturnMode, 0);
    EXPECT_FALSE(Modified || SelectedIsGoalie || ListEventGuard);
}

TEST(ClientVariableTest, AVoiceThatHasJustStartedMayNotReportAndHasNoAnswer)
{
    const MuteVoice voice;
    EXPECT_FALSE(voice.MessagesAllowed);
    EXPECT_EQ(voice.MsgResult, 0);
}

TEST(ClientVariableTest, EmptyingForALoadSparesTheLeagueTheCoachesTheRosterWordsAndTheVariables)
{
    SoilEverything();
    EmptyLeagueTables(OpenLeague);
    EXPECT_TRUE(IsZero(Prospects));
    EXPECT_TRUE(IsZero(Players));
    EXPECT_TRUE(IsZero(Goalies));
    EXPECT_TRUE(IsZero(Teams));
    EXPECT_TRUE(IsZero(GameSchedule));

    const auto untouched = [](const auto& table) {
        const auto* bytes = reinterpret_cast<const unsigned char*>(&table);
        return std::all_of(bytes, bytes + sizeof table, [](unsigned char byte) { return byte == 1; });
    };
    EXPECT_TRUE(untouched(LeagueData));
    EXPECT_TRUE(untouched(Coaches));
    EXPECT_TRUE(untouched(RosterChanges));
    EXPECT_TRUE(untouched(RosterChangesGoalie));
    EXPECT_EQ(CurrentTeam, 7);
    EXPECT_EQ(WindowTitle, "soiled");
    ResetClientVariables();
}

TEST(ClientVariableTest, ARosterWordThatNobodyHasTouchedIs10)
{
    ResetClientVariables();
    RosterChanges[3].Protected = true;
    MarkRosterChangesUntouched();
    for (const RosterChange& change : RosterChanges)
        ASSERT_EQ(change.Status, 10);
    for (const RosterChange& change : RosterChangesGoalie)
        ASSERT_EQ(change.Status, 10);
    EXPECT_TRUE(RosterChanges[3].Protected); // only the word itself is set
    ResetClientVariables();
}

TEST(ClientVariableTest, TheTablesHaveTheirSlots)
{
    EXPECT_EQ(sizeof Teams / sizeof(Team), 100U);
    EXPECT_EQ(sizeof Players / sizeof(Player), 10001U);
    EXPECT_EQ(sizeof Goalies / sizeof(Goalie), 1001U);
    EXPECT_EQ(sizeof Coaches / sizeof(Coach), 500U);
    EXPECT_EQ(sizeof Prospects / sizeof(Prospect), 300U);
    EXPECT_EQ(sizeof GameSchedule / sizeof(ScheduleRow), 5000U);
    EXPECT_EQ(sizeof RosterChanges / sizeof(RosterChange), 10000U);
    EXPECT_EQ(sizeof RosterChangesGoalie / sizeof(RosterChange), 1000U);
}

template <class Table>
void ReachesFromTo(Table& table, long long first, long long last)
{
    EXPECT_NO_THROW((void)table[first]);
    EXPECT_NO_THROW((void)table[last]);
    EXPECT_THROW((void)table[first - 1], Failure);
    EXPECT_THROW((void)table[last + 1], Failure);
}

TEST(ClientVariableTest, OnlySkatersAndGoaliesHaveASlot0)
{
    ReachesFromTo(Teams, 1, 100);
    ReachesFromTo(Players, 0, 10000);
    ReachesFromTo(Goalies, 0, 1000);
    ReachesFromTo(Coaches, 1, 500);
    ReachesFromTo(Prospects, 1, 300);
    ReachesFromTo(GameSchedule, 1, 5000);
    ReachesFromTo(RosterChanges, 1, 10000);
    ReachesFromTo(RosterChangesGoalie, 1, 1000);
}

TEST(ClientVariableTest, ThePositionsHaveTheirNamesInOrder)
{
    EXPECT_THAT(All(PositionName), ElementsAre("C", "LW", "RW", "D", "G"));
    EXPECT_EQ(PositionName[position::LeftWing], "LW");
    EXPECT_EQ(PositionName[position::Goalie], "G");
}

TEST(ClientVariableTest, TheRatingsOfASkaterHaveTheirCaptionsInOrder)
{
    EXPECT_THAT(All(SkaterStatName), ElementsAre("CK", "FG", "DI", "SK", "ST", "DU", "PH", "FO", "PA", "SC", "DF", "EX",
                                                 "LD", "MO", "PO", "OV"));
    EXPECT_THAT(All(SkaterGroupName), ElementsAre("IT", "PY", "PC", "SC", "DF", "ME", "PO", "OV"));
}

TEST(ClientVariableTest, TheRatingsOfAGoalieHaveTheirCaptionsInOrder)
{
    EXPECT_THAT(All(GoalieStatName),
                ElementsAre("SK", "DU", "ST", "SZ", "AG", "RB", "SC", "HS", "RT", "EX", "LD", "MO", "PO", "OV"));
    EXPECT_THAT(All(GoalieGroupName), ElementsAre("PH", "RD", "SC", "HS", "RT", "ME", "PO", "OV"));
}

TEST(ClientVariableTest, TheNamedRatingsStandWhereTheirCaptionsDo)
{
    EXPECT_EQ(SkaterStatName[skater::CK], "CK");
    EXPECT_EQ(SkaterStatName[skater::DU], "DU");
    EXPECT_EQ(SkaterStatName[skater::DF], "DF");
    EXPECT_EQ(SkaterStatName[skater::PO], "PO");
    EXPECT_EQ(GoalieStatName[goalie::SK], "SK");
    EXPECT_EQ(GoalieStatName[goalie::DU], "DU");
    EXPECT_EQ(GoalieStatName[goalie::RT], "RT");
    EXPECT_EQ(GoalieStatName[goalie::PO], "PO");
}

} // namespace
} // namespace dravik
