#include "league/FreeAgentOffer.h"
#include "league/League.h"
#include "league/Person.h"
#include "league/Prospect.h"
#include "league/RosterChange.h"
#include "league/ScheduleRow.h"
#include "league/Team.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace dravik {
namespace {

using ::testing::IsEmpty;

// What stands in a record beside zeroes: the offset of each other byte and its value.
template <class Record>
std::map<int, int> BytesOf(const Record& record)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    std::map<int, int> found;
    for (std::size_t at = 0; at < sizeof record; ++at) {
        if (bytes[at] != 0)
            found[static_cast<int>(at)] = bytes[at];
    }
    return found;
}

using Bytes = std::map<int, int>;

TEST(RecordsTest, AFreshRecordIsAllZero)
{
    EXPECT_THAT(BytesOf(League()), IsEmpty());
    EXPECT_THAT(BytesOf(Team()), IsEmpty());
    EXPECT_THAT(BytesOf(Player()), IsEmpty());
    EXPECT_THAT(BytesOf(Goalie()), IsEmpty());
    EXPECT_THAT(BytesOf(Coach()), IsEmpty());
    EXPECT_THAT(BytesOf(Prospect()), IsEmpty());
    EXPECT_THAT(BytesOf(ScheduleRow()), IsEmpty());
    EXPECT_THAT(BytesOf(RosterChange()), IsEmpty());
}

TEST(RecordsTest, TheFieldsOfALeagueLieAtTheirBytes)
{
    League league;
    league.DivisionCount = 6;
    league.RFAAge = 25;
    league.FarmMaxOverall = 70;
    league.WaiverMinGames = -2;
    league.SalaryCapMode = 2;
    league.SalaryCap = 0x04030201;
    league.FarmSalaryPct = 10;
    league.OverallWeightFG = 20;
    league.OverallWeightSC = 23;
    league.OffSeason = true;
    league.FileDate = 1.0;
    league.MinSalaryCap = 0x0D0C0B0A;
    league.RequiredDefensemen = 6;
    league.OverallWeightCK = 50;
    league.MaxOffers = 100;
    EXPECT_EQ(BytesOf(league),
              (Bytes{{372, 6},    {382, 25}, {385, 70}, {388, 0xFE}, {389, 0xFF}, {392, 2},   {393, 1},   {394, 2},
                     {395, 3},    {396, 4},  {405, 10}, {445, 20},   {452, 23},   {459, 255}, {460, 255}, {507, 0xF0},
                     {508, 0x3F}, {517, 10}, {518, 11}, {519, 12},   {520, 13},   {535, 6},   {539, 50},  {541, 100}}));
}

TEST(RecordsTest, TheConferencesAndDivisionsOfALeagueStandOneBehindTheOther)
{
    League league;
    std::memset(static_cast<void*>(&league), 0, sizeof league);
    league.Conference[2] = "W";
    league.Division[1].Conference = 1;
    league.Division[6].Name = "S";
    league.Division[6].Conference = 2;
    const auto bytes = BytesOf(league);
    EXPECT_EQ(bytes.at(80), 'W');
    EXPECT_EQ(bytes.at(81), ' ');
    EXPECT_EQ(bytes.at(119), ' ');
    EXPECT_EQ(bytes.at(160), 1);
    EXPECT_EQ(bytes.at(330), 'S');
    EXPECT_EQ(bytes.at(369), ' ');
    EXPECT_EQ(bytes.at(370), 2);
    EXPECT_EQ(bytes.count(371), 0U);
}

TEST(RecordsTest, TheFieldsOfATeamLieAtTheirBytes)
{
    Team team;
    team.InUse = true;
    team.Number = 300;
    team.Division = 6;
    team.Captain = 1;
    team.Assistant[1] = 2;
    team.Assistant[2] = 3;
    team.ArenaCapacity[1] = 4;
    team.ArenaCapacity[5] = 5;
    team.TicketPrice[1] = 6;
    team.TicketPrice[5] = 7;
    team.Cash = -1;
    team.ProCoach = 8;
    team.HomeGames = 9;
    team.ProLines[1].NormalForward(1, 1) = 10;
    team.ProLines[10].PullGoalerMinPct = 11;
    team.Farm.FarmCoach = 12;
    team.Farm.FarmLines[1].NormalForward(1, 1) = 13;
    team.Farm.FarmLines[10].PullGoalerMinPct = 14;
    team.PayrollBonus = 15;
    team.OffersMade = 16;
    EXPECT_EQ(BytesOf(team), (Bytes{{0, 255},   {1, 255},   {2, 44},    {3, 1},    {281, 6},  {283, 1},   {285, 2},
                                    {287, 3},   {289, 4},   {305, 5},   {309, 6},  {317, 7},  {319, 255}, {320, 255},
                                    {321, 255}, {322, 255}, {331, 8},   {341, 9},  {343, 10}, {1861, 11}, {1906, 12},
                                    {1910, 13}, {3428, 14}, {3430, 15}, {3436, 16}}));
}

TEST(RecordsTest, TheTextsOfATeamFillTheirWidthsAndNoMore)
{
    Team team;
    team.Abbre = "NY";
    team.Password = std::string(40, 'p');
    team.Farm.Abbre = "ABCD";
    Bytes expected{{44, 'N'}, {45, 'Y'}, {46, ' '}, {1903, 'A'}, {1904, 'B'}, {1905, 'C'}};
    for (int at = 247; at <= 278; ++at)
        expected[at] = 'p';
    EXPECT_EQ(BytesOf(team), expected);
}

TEST(RecordsTest, TheFieldsOfASkaterLieAtTheirBytes)
{
    Player player;
    player.Number = 0x0201;
    player.Team = 3;
    player.Age = 4;
    player.Height = 5;
    player.Position = 6;
    player.Contract = 7;
    player.NoTrade = true;
    player.Salary = 0x0B0A0908;
    player.Reserved1 = 12;
    player.Condition = 13;
    player.Suspension = 14;
    player.Status = 15;
    player.Stats[1] = 16;
    player.Stats[15] = 17;
    player.ProGames = 18;
    player.Reserved5 = 19;
    EXPECT_EQ(BytesOf(player), (Bytes{{2, 1},    {3, 2},    {44, 3},   {49, 4},   {53, 5},   {55, 6},   {56, 7},
                                      {65, 255}, {66, 255}, {67, 8},   {68, 9},   {69, 10},  {70, 11},  {111, 12},
                                      {112, 13}, {113, 14}, {114, 15}, {115, 16}, {143, 17}, {145, 18}, {153, 19}}));
}

TEST(RecordsTest, TheFieldsOfAGoalieLieOneByteEarlierBehindTheMissingPosition)
{
    Goalie goalie;
    goalie.Number = 0x0201;
    goalie.Team = 3;
    goalie.Height = 5;
    goalie.Contract = 7;
    goalie.NoTrade = true;
    goalie.Salary = 0x0B0A0908;
    goalie.Condition = 13;
    goalie.Suspension = 14;
    goalie.Status = 15;
    goalie.Stats[1] = 16;
    goalie.Stats[13] = 17;
    goalie.ProGames = 18;
    EXPECT_EQ(BytesOf(goalie), (Bytes{{2, 1},
                                      {3, 2},
                                      {44, 3},
                                      {53, 5},
                                      {55, 7},
                                      {64, 255},
                                      {65, 255},
                                      {66, 8},
                                      {67, 9},
                                      {68, 10},
                                      {69, 11},
                                      {111, 13},
                                      {112, 14},
                                      {113, 15},
                                      {114, 16},
                                      {138, 17},
                                      {140, 18}}));
}

TEST(RecordsTest, TheFieldsOfACoachLieAtTheirBytes)
{
    Coach coach;
    coach.Team = 1;
    coach.Age = 2;
    coach.Contract = 3;
    coach.Salary = 4;
    coach.Ratings[1] = 5;
    coach.Ratings[7] = 255;
    coach.Reserved1 = 6;
    EXPECT_EQ(BytesOf(coach), (Bytes{{44, 1}, {49, 2}, {51, 3}, {52, 4}, {56, 5}, {62, 255}, {63, 6}}));
}

TEST(RecordsTest, TheWordsOfAScheduleRowFollowEachOther)
{
    ScheduleRow row;
    row.GameDay = 1;
    row.ProGame = true;
    row.ProAway = 2;
    row.ProHome = 3;
    row.FarmPlayed.SetWord(4);
    row.FarmAway = 5;
    row.FarmHome = 6;
    EXPECT_EQ(BytesOf(row), (Bytes{{0, 1}, {2, 255}, {3, 255}, {6, 2}, {8, 3}, {12, 4}, {14, 5}, {16, 6}}));
}

TEST(RecordsTest, ARosterChangeIsAByteAndTwoWords)
{
    RosterChange change;
    change.Status = RosterChange::Untouched;
    change.Protected = true;
    change.TradeAvailable.SetWord(0x0201);
    EXPECT_EQ(BytesOf(change), (Bytes{{0, 10}, {1, 255}, {2, 255}, {3, 1}, {4, 2}}));
}

TEST(RecordsTest, TheFieldsOfAnOfferLieAtTheirBytesAndItsCommentFillsTheRest)
{
    FreeAgentOffer offer;
    offer.Id = 0x0201;
    offer.Team = 3;
    offer.Salary = 0x07060504;
    offer.Duration = 8;
    offer.Bonus = -2;
    EXPECT_EQ(BytesOf(offer), (Bytes{{0, 1},
                                     {1, 2},
                                     {2, 3},
                                     {4, 4},
                                     {5, 5},
                                     {6, 6},
                                     {7, 7},
                                     {8, 8},
                                     {10, 254},
                                     {11, 255},
                                     {12, 255},
                                     {13, 255}}));
    offer.Comment = std::string(2000, 'c');
    EXPECT_EQ(BytesOf(offer).size(), 12U + 1000U);
    EXPECT_EQ(BytesOf(offer).count(1014), 0U);
}

TEST(RecordsTest, TheSlotsOfALineUpStandAtTheirWordsTheFirstIndexRunningFastest)
{
    Lines lines;
    int value = 0;
    // Word by word, as a reader of the file meets them.
    for (int place = 1; place <= 3; ++place)
        for (int line = 1; line <= 4; ++line)
            lines.NormalForward(line, place) = ++value;
    for (int place = 1; place <= 2; ++place)
        for (int line = 1; line <= 4; ++line)
            lines.NormalDefense(line, place) = ++value;
    for (int place = 1; place <= 3; ++place)
        for (int unit = 1; unit <= 2; ++unit)
            lines.PPForward(unit, place) = ++value;
    const auto fillPairs = [&value](auto& pairs) {
        for (int place = 1; place <= 2; ++place)
            for (int unit = 1; unit <= 2; ++unit)
                pairs(unit, place) = ++value;
    };
    const auto fillRow = [&value](auto& row) {
        for (auto& word : row)
            word = ++value;
    };
    fillPairs(lines.PPDefense);
    fillPairs(lines.PKForward);
    fillPairs(lines.PKDefense);
    fillPairs(lines.FourVsFourForward);
    fillPairs(lines.FourVsFourDefense);
    fillRow(lines.PK3Reserved);
    fillRow(lines.PK3Forward);
    fillPairs(lines.PK3Defense);
    lines.StartGoalie = ++value;
    lines.BackupGoalie = ++value;
    fillRow(lines.ExtraForward);
    fillRow(lines.ExtraDefense);
    fillRow(lines.PenaltyShot);
    fillRow(lines.Strategy);
    lines.PullGoalerMinGoal = ++value;
    lines.PullGoalerMinPct = ++value;

    EXPECT_EQ(value, 76);
    Bytes expected;
    for (int word = 0; word < 76; ++word)
        expected[2 * word] = word + 1;
    EXPECT_EQ(BytesOf(lines), expected);
}

TEST(RecordsTest, AWordThatIsNeitherTrueNorFalseSurvivesACopyOfItsRecord)
{
    Player player;
    player.Rookie.SetWord(7);
    player.Protected.SetWord(-300);
    const Player copy = player;
    EXPECT_EQ(copy.Rookie.Word(), 7);
    EXPECT_EQ(copy.Protected.Word(), -300);
    EXPECT_FALSE(copy.Rookie);
    EXPECT_EQ(std::memcmp(&copy, &player, sizeof player), 0);
}

TEST(RecordsTest, BytesOfEveryKindSurviveInTheFieldsThatNoRuleReads)
{
    std::string bytes(sizeof(Team), '\0');
    for (std::size_t at = 0; at < bytes.size(); ++at)
        bytes[at] = static_cast<char>(at * 37 + 11);
    Team team;
    std::memcpy(static_cast<void*>(&team), bytes.data(), bytes.size());
    const Team copy = team;
    EXPECT_EQ(std::memcmp(&copy, bytes.data(), bytes.size()), 0);
}

} // namespace
} // namespace dravik
