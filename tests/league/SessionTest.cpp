#include "session/Routines.h"

#include "support/SmallLeague.h"

#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SessionTest : public SmallLeague {};

TEST_F(SessionTest, ASkaterOnWaiversIsSuspendedFor99Games)
{
    PutSkater(1, 5, position::Center, status::Pro);
    PutSkater(10000, 5, position::Defense, status::Farm);
    MarkWaived(OpenLeague, Machine, 5, 1);
    MarkWaived(OpenLeague, Machine, 5, 10000);
    EXPECT_EQ(Players[1].Suspension, 99);
    EXPECT_EQ(Players[10000].Suspension, 99);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(SessionTest, AGoalieOnWaiversIsKnownByHisIndexAnd10000)
{
    PutGoalie(1, 5, status::Pro);
    PutGoalie(1000, 5, status::Pro);
    MarkWaived(OpenLeague, Machine, 100, 10001);
    MarkWaived(OpenLeague, Machine, 1, 11000);
    EXPECT_EQ(Goalies[1].Suspension, 99);
    EXPECT_EQ(Goalies[1000].Suspension, 99);
    EXPECT_EQ(Players[1].Suspension, 0);
    EXPECT_EQ(Players[1000].Suspension, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(SessionTest, ASkatersNumberMarksNoGoalie)
{
    MarkWaived(OpenLeague, Machine, 5, 7);
    EXPECT_EQ(Goalies[7].Suspension, 0);
}

TEST_F(SessionTest, OnlyTheSuspensionOfAWaivedPersonChanges)
{
    Player& skater = PutSkater(7, 5, position::Center, status::Pro);
    Player expected = skater;
    expected.Suspension = 99;
    MarkWaived(OpenLeague, Machine, 5, 7);
    EXPECT_EQ(std::memcmp(&skater, &expected, sizeof skater), 0);
}

TEST_F(SessionTest, TheTeamOfAWaivedPersonIsNotCompared)
{
    PutSkater(7, 5, position::Center, status::Pro);
    MarkWaived(OpenLeague, Machine, 6, 7);
    EXPECT_EQ(Players[7].Suspension, 99);
}

TEST_F(SessionTest, ANumberOutOfRangeFailsTheIntegrityCheckAndMarksNobody)
{
    struct Call {
        int Team;
        int Id;
    };
    const Call calls[] = {{0, 7}, {101, 7}, {-1, 7}, {5, 0}, {5, -1}, {5, 11001}, {0, 0}};
    for (const Call& call : calls) {
        MarkWaived(OpenLeague, Machine, call.Team, call.Id);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}))
            << call.Team << " " << call.Id;
    }
    EXPECT_EQ(Players[7].Suspension, 0);
    EXPECT_EQ(Players[0].Suspension, 0);
    EXPECT_EQ(Goalies[0].Suspension, 0);
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
                                   static_cast<long long>(RosterFixed), static_cast<long long>(Modified)})
        all += std::to_string(number) + ";";
    return all;
}

TEST_F(SessionTest, NewsLogLinesAndAnErasedPlayerReachTheMachineAsTheyAre)
{
    LeagueNews("Team 5 changed its name.");
    TeamNews(5, " Skater 1 was sent to the farm.\r\n");
    TeamNews(-7, "");
    dravik::Machine().WriteLog("Status of Skater 1 was fixed.");
    PlayerErased(1, 5);
    PlayerErased(99999, 0);
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
    LeagueNews("Team 5 changed its name.");
    TeamNews(5, "Skater 1 was sent to the farm.");
    TeamNews(-7, "A team that is none.");
    dravik::Machine().WriteLog("Status of Skater 1 was fixed.");
    PlayerErased(1, 5);
    PlayerErased(99999, 0);
    EXPECT_TRUE(Everything() == before);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.FileOperations(), IsEmpty());
}

TEST_F(SessionTest, TheDeadlineIsInForceOnlyWhenTheWordIsTrue)
{
    EXPECT_FALSE(IsDeadlineInForce(LeagueData));
    LeagueData.TradeDeadlineInForce = true;
    EXPECT_TRUE(IsDeadlineInForce(LeagueData));
    LeagueData.TradeDeadlineInForce.SetWord(1);
    EXPECT_FALSE(IsDeadlineInForce(LeagueData));
    LeagueData.TradeDeadlineInForce = false;
    LeagueData.TradeDeadlinePassed = true;
    EXPECT_FALSE(IsDeadlineInForce(LeagueData));
}

} // namespace
} // namespace dravik
