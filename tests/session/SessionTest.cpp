#include "session/Session.h"

#include "session/PinnedPeople.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
    CurrentTeam = PlayerStatCount = GoalieStatCount = SelectedPlayer = ViewerReturnMode = 7;
    Modified = SelectedIsGoalie = ListEventGuard = true;
}

// Taken before anything has run.
const bool ModifiedAtStart = Modified;
const bool IsGoalieAtStart = SelectedIsGoalie;
const bool GuardAtStart = ListEventGuard;

class SessionTest : public SmallLeague {};

TEST_F(SessionTest, NothingIsModifiedChosenOrGuardedAtTheStart)
{
    EXPECT_FALSE(ModifiedAtStart);
    EXPECT_FALSE(IsGoalieAtStart);
    EXPECT_FALSE(GuardAtStart);
}

// They stand in what is stored and in what the windows ask, under these numbers.
TEST_F(SessionTest, ReturnModesAndCallersHaveTheirValues)
{
    EXPECT_EQ(return_mode::Roster, 2);
    EXPECT_EQ(return_mode::Offers, 3);
    EXPECT_EQ(return_mode::Draft, 4);
    EXPECT_EQ(return_mode::Office, 5);
    EXPECT_EQ(return_mode::ProTeam, 2);
    EXPECT_EQ(return_mode::FarmTeam, 3);
    EXPECT_EQ(caller_screen::Main, "Main");
    EXPECT_EQ(caller_screen::Team, "Team");
}

TEST_F(SessionTest, NobodyIsPinnedInAProgramThatHasJustStarted)
{
    PutSkater(3, 5, position::Center, status::Pro);
    ASSERT_TRUE(OpenPins().Toggle(OpenLeague, {.IsGoalie = false, .Slot = 3}));
    const Text<5> code = LeagueData.LeagueCode;
    ResetClientVariables();
    LeagueData.LeagueCode = code; // the same person of the same league
    PutSkater(3, 5, position::Center, status::Pro);
    EXPECT_FALSE(OpenPins().Has(OpenLeague, {.IsGoalie = false, .Slot = 3}));
}

TEST_F(SessionTest, AProgramThatHasJustStartedKnowsNoLeagueAndNoTeam)
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
    EXPECT_EQ(ViewerReturnMode, 0);
    EXPECT_FALSE(Modified || SelectedIsGoalie || ListEventGuard);
}

TEST_F(SessionTest, EmptyingForALoadSparesTheLeagueTheCoachesTheRosterWordsAndTheVariables)
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

// Everything that the program knows, as bytes.
std::string Everything()
{
    std::string all;
    const auto add = [&all](const auto& table) { all.append(reinterpret_cast<const char*>(&table), sizeof table); };
    add(LeagueData);
    add(Teams);
    add(Players);
    add(Goalies);
    add(Coaches);
    add(Prospects);
    add(GameSchedule);
    add(RosterChanges);
    add(RosterChangesGoalie);
    all += WindowTitle + TempFile + CallerScreen;
    for (const long long number : {static_cast<long long>(CurrentTeam), static_cast<long long>(Machine().MsgResult),
                                   static_cast<long long>(Modified)})
        all += std::to_string(number) + ";";
    return all;
}

TEST_F(SessionTest, NewsLogLinesAndAnErasedPlayerReachTheMachineAsTheyAre)
{
    dravik::Machine().LeagueNews("Team 5 changed its name.");
    dravik::Machine().TeamNews(5, " Skater 1 was sent to the farm.\r\n");
    dravik::Machine().TeamNews(-7, "");
    dravik::Machine().WriteLog("Status of Skater 1 was fixed.");
    dravik::Machine().PlayerErased(1, 5);
    dravik::Machine().PlayerErased(99999, 0);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Team 5 changed its name."},
                                                News{"team 5", " Skater 1 was sent to the farm.\r\n"},
                                                News{"team -7", ""}, News{"log", "Status of Skater 1 was fixed."}));
    EXPECT_THAT(Machine.ToldNews(), IsEmpty());
    EXPECT_THAT(Machine.ErasedPlayers(), ElementsAre(std::pair(1, 5), std::pair(99999, 0)));
}

TEST_F(SessionTest, NewsLogLinesAndAnErasedPlayerHaveNoEffect)
{
    TeamMaker(5).DressesFullRoster();
    const std::string before = Everything();
    dravik::Machine().LeagueNews("Team 5 changed its name.");
    dravik::Machine().TeamNews(5, "Skater 1 was sent to the farm.");
    dravik::Machine().TeamNews(-7, "A team that is none.");
    dravik::Machine().WriteLog("Status of Skater 1 was fixed.");
    dravik::Machine().PlayerErased(1, 5);
    dravik::Machine().PlayerErased(99999, 0);
    EXPECT_TRUE(Everything() == before);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.FileOperations(), IsEmpty());
}

TEST_F(SessionTest, WhoIsSelectedIsKnownByKindAndSlot)
{
    SelectPerson(PersonIn<Goalie>(7));
    EXPECT_EQ(SelectedPlayer, 7);
    EXPECT_TRUE(SelectedIsGoalie);
    EXPECT_EQ(SelectedPerson(), PersonIn<Goalie>(7));
    SelectPerson(PersonIn<Player>(10000));
    EXPECT_EQ(SelectedPlayer, 10000);
    EXPECT_FALSE(SelectedIsGoalie);
    EXPECT_EQ(SelectedPerson(), PersonIn<Player>(10000));
}

TEST_F(SessionTest, TheWaitScreenIsTheMachines)
{
    dravik::Machine().ShowWait();
    EXPECT_TRUE(Machine.WaitShown);
    dravik::Machine().CloseWait();
    EXPECT_FALSE(Machine.WaitShown);
}

} // namespace
} // namespace dravik
