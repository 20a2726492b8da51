#include "SampleFixture.h"
#include "support/Routines.h"

#include <cstdint>
#include <set>

namespace dravik {

namespace {

// All bytes of a table as one number (FNV-1a).
template <class Record>
std::uint64_t Mixed(std::uint64_t hash, const Record& record)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    for (std::size_t i = 0; i < sizeof record; ++i)
        hash = (hash ^ bytes[i]) * 0x100000001B3U;
    return hash;
}

constexpr std::uint64_t Basis = 0xCBF29CE484222325U;

std::uint64_t HashOfEverything()
{
    std::uint64_t hash = Mixed(Mixed(Basis, LeagueData), Teams);
    hash = Mixed(Mixed(hash, Players), Goalies);
    return Mixed(Mixed(Mixed(hash, Coaches), Prospects), GameSchedule);
}

std::uint64_t HashOf(const SampleOptions& options)
{
    MakeSampleLeague(options);
    return HashOfEverything();
}

class SampleLeagueTest : public SampleTables {};

} // namespace

TEST_F(SampleLeagueTest, TheSameSeedMakesTheSameBytes)
{
    const std::uint64_t first = HashOfEverything();
    PutSkater(17, 3, position::Center, status::Pro);
    Coaches[1].Reserved1 = 1;
    Teams[99].Name = "Left from another league";
    EXPECT_NE(HashOfEverything(), first);
    EXPECT_EQ(HashOf({}), first);
}

// Fixed here so that another compiler, optimisation level or machine that makes another league fails.
TEST_F(SampleLeagueTest, SeedOneIsTheSameLeagueOnEveryMachine)
{
    EXPECT_EQ(Mixed(Basis, GameSchedule), 5553070042342193614U);
    EXPECT_EQ(Mixed(Mixed(Basis, Players), Goalies), 4105816457697421191U);
    EXPECT_EQ(Mixed(Mixed(Basis, Coaches), Prospects), 15444858606381207341U);
}

TEST_F(SampleLeagueTest, AnotherSeedMakesAnotherLeague)
{
    const std::uint64_t first = HashOfEverything();
    const std::string code = LeagueData.LeagueCode.Trimmed();
    EXPECT_NE(HashOf({.Seed = 2}), first);
    EXPECT_NE(LeagueData.LeagueCode.Trimmed(), code);
}

TEST_F(SampleLeagueTest, EveryOptionChangesTheLeague)
{
    const std::set<std::uint64_t> hashes{HashOfEverything(), HashOf({.Divisions = 4}), HashOf({.OffSeason = true}),
                                         HashOf({.Deadline = true}), HashOf({.Full = true})};
    EXPECT_EQ(hashes.size(), 5U);
}

TEST_F(SampleLeagueTest, ShowsNoBoxAndAsksNothing)
{
    EXPECT_THAT(Machine.Boxes(), ::testing::IsEmpty());
    EXPECT_THAT(Machine.Questions(), ::testing::IsEmpty());
}

TEST_F(SampleLeagueTest, RefusesOtherNumbersOfDivisions)
{
    EXPECT_THROW(MakeSampleLeague({.Divisions = 5}), Failure);
    EXPECT_THROW(MakeSampleLeague({.Divisions = 0}), Failure);
}

TEST_F(SampleLeagueTest, RefusesAnOffSeasonBehindTheDeadline)
{
    EXPECT_THROW(MakeSampleLeague({.OffSeason = true, .Deadline = true}), Failure);
}

TEST_F(SampleLeagueTest, HasThirtyTeamsFiveInEachOfSixDivisions)
{
    EXPECT_EQ(TeamNumbers().size(), 30U);
    EXPECT_EQ(LeagueData.DivisionCount, 6);
    for (int division = 1; division <= 6; ++division) {
        EXPECT_EQ(Count(Teams, [&](const Team& team) { return team.InUse && team.Division == division; }), 5);
        EXPECT_NE(LeagueData.Division[division].Name.Trimmed(), "");
        EXPECT_EQ(LeagueData.Division[division].Conference, division <= 3 ? 1 : 2);
    }
    EXPECT_NE(LeagueData.Conference[1].Trimmed(), LeagueData.Conference[2].Trimmed());
}

TEST_F(SampleLeagueTest, WithFourDivisionsOnlyOneTwoFourAndFiveHaveTeams)
{
    MakeSampleLeague({.Divisions = 4});
    EXPECT_EQ(LeagueData.DivisionCount, 4);
    EXPECT_EQ(TeamNumbers().size(), 30U);
    for (int division = 1; division <= 6; ++division) {
        const int teams = Count(Teams, [&](const Team& team) { return team.InUse && team.Division == division; });
        if (division == 3 || division == 6)
            EXPECT_EQ(teams, 0) << division;
        else
            EXPECT_TRUE(teams == 7 || teams == 8) << division;
    }
}

TEST_F(SampleLeagueTest, TeamNumbersHaveGaps)
{
    const std::vector<int> numbers = TeamNumbers();
    EXPECT_GT(numbers.back(), static_cast<int>(numbers.size()));
    for (const int number : numbers)
        EXPECT_EQ(Teams[number].Number, number);
}

TEST_F(SampleLeagueTest, TeamsHaveDifferentNamesThatTheTeamScreenWouldTake)
{
    std::set<std::string> names;
    std::set<std::string> abbreviations;
    for (const int number : TeamNumbers()) {
        const Team& team = Teams[number];
        for (const auto& name : {team.Name.Trimmed(), team.Farm.Name.Trimmed()}) {
            EXPECT_TRUE(names.insert(name).second) << name;
            EXPECT_LT(name.size(), 40U) << name;
            EXPECT_TRUE(CheckInput(name, InputMode::NumbersAndLetters, true)) << name;
        }
        for (const auto& abbreviation : {team.Abbre.Trimmed(), team.Farm.Abbre.Trimmed()}) {
            EXPECT_TRUE(abbreviations.insert(abbreviation).second) << abbreviation;
            EXPECT_EQ(abbreviation.size(), 3U);
        }
        EXPECT_TRUE(CheckInput(team.City.Trimmed(), InputMode::NumbersAndLetters, true));
        EXPECT_TRUE(CheckInput(team.ArenaName.Trimmed(), InputMode::NumbersAndLetters, true));
        EXPECT_TRUE(CheckInput(team.Gm.Trimmed(), InputMode::Letters, false)) << team.Gm.Trimmed();
    }
}

TEST_F(SampleLeagueTest, ThePublishedPasswordsProve)
{
    for (const TeamPassword& password : SamplePasswords) {
        Machine.Type(std::string(password.Password));
        EXPECT_TRUE(CheckPassword(password.Team)) << password.Team;
        Machine.Type(std::string(password.Password) + "x");
        EXPECT_FALSE(CheckPassword(password.Team)) << password.Team;
        EXPECT_THAT(Machine.TakeBoxes(), ::testing::ElementsAre(Box{box::Warning, "Password is incorrect!"}));
    }
    EXPECT_EQ(Machine.Questions().size(), 6U);
    EXPECT_EQ(Teams[3].Password.Raw(), "73b6e28698dde5b14a573cf24a57a421");  // "puck"
    EXPECT_EQ(Teams[12].Password.Raw(), "d1d31525ee06ebaa015c86ca5beb143e"); // "IceBox1"
}

TEST_F(SampleLeagueTest, AllOtherTeamsAreOpen)
{
    EXPECT_EQ(Count(Teams, [](const Team& team) { return !team.Password.Trimmed().empty(); }), 3);
    EXPECT_TRUE(CheckPassword(1));
    EXPECT_THAT(Machine.Questions(), ::testing::IsEmpty());
}

TEST_F(SampleLeagueTest, TheLeagueCodeHasFiveCharacters) { EXPECT_EQ(LeagueData.LeagueCode.Trimmed().size(), 5U); }

TEST_F(SampleLeagueTest, TheFileDateLiesInTheSeasonAndKnowsNoClock)
{
    // 4 October 2030 is day 47760.
    const double date = LeagueData.FileDate;
    EXPECT_GT(date, 47760);
    EXPECT_LT(date, 47760 + 190);
    EXPECT_NE(date, static_cast<double>(static_cast<int>(date)));
    MakeSampleLeague({});
    EXPECT_EQ(static_cast<double>(LeagueData.FileDate), date);
}

TEST_F(SampleLeagueTest, TheDeadlineSetsBothOfItsFlags)
{
    EXPECT_FALSE(LeagueData.TradeDeadlinePassed);
    EXPECT_FALSE(LeagueData.TradeDeadlineInForce);
    MakeSampleLeague({.Deadline = true});
    EXPECT_TRUE(LeagueData.TradeDeadlinePassed);
    EXPECT_TRUE(LeagueData.TradeDeadlineInForce);
    EXPECT_FALSE(LeagueData.OffSeason);
}

TEST_F(SampleLeagueTest, TheOffSeasonHoldsAnEntryDraftAndNoCalendar)
{
    EXPECT_FALSE(LeagueData.OffSeason);
    EXPECT_FALSE(LeagueData.EntryDraft);
    MakeSampleLeague({.OffSeason = true});
    EXPECT_TRUE(LeagueData.OffSeason);
    EXPECT_TRUE(LeagueData.EntryDraft);
    EXPECT_EQ(LeagueData.EntryDraftDone, 0);
    EXPECT_FALSE(LeagueData.FantasyDraft);
    EXPECT_GT(LeagueData.OffersLeft, 0);
    EXPECT_EQ(
        Count(GameSchedule, [](const ScheduleRow& row) { return row.ProGame.Word() != 0 || row.FarmGame.Word() != 0; }),
        0);
    EXPECT_FALSE(LeagueData.ScheduleShown);
    for (const int number : TeamNumbers()) {
        EXPECT_EQ(Teams[number].GamesPlayed, Teams[number].SeasonGames);
        EXPECT_GE(Teams[number].ProtectedCount, 9);
    }
}

TEST_F(SampleLeagueTest, NearlyAllTeamsHaveTheirCoachesAndOneHasNone)
{
    int without = 0;
    for (const int number : TeamNumbers()) {
        const Team& team = Teams[number];
        if (team.ProCoach == 0 && team.Farm.FarmCoach == 0) {
            ++without;
            continue;
        }
        EXPECT_NE(team.ProCoach, team.Farm.FarmCoach);
        for (const long long index :
             {static_cast<long long>(team.ProCoach), static_cast<long long>(team.Farm.FarmCoach)}) {
            EXPECT_TRUE(Coaches[index].InUse);
            EXPECT_EQ(Coaches[index].Team, number);
            EXPECT_NE(Coaches[index].Name.Trimmed(), "");
            EXPECT_GT(Coaches[index].Salary, 0);
        }
    }
    EXPECT_EQ(without, 1);
    EXPECT_EQ(Count(Coaches, [](const Coach& coach) { return coach.InUse && coach.Team == 0; }), 45);
}

TEST_F(SampleLeagueTest, TwoHundredProspectsLieScattered)
{
    EXPECT_EQ(Count(Prospects, [](const Prospect& prospect) { return !prospect.Name.Trimmed().empty(); }), 200);
    EXPECT_NE(
        Count(Prospects,
              [at = 0](const Prospect& prospect) mutable { return ++at <= 200 && !prospect.Name.Trimmed().empty(); }),
        200);
}

TEST_F(SampleLeagueTest, FieldsThatNoRuleReadsHoldBytes)
{
    EXPECT_NE(LeagueData.Reserved11.Raw(), std::string(16, ' '));
    EXPECT_NE(LeagueData.Reserved17.Raw().substr(0, 11), LeagueData.Reserved17.Raw().substr(11));
    std::set<long long> words;
    for (const Team& team : Teams)
        if (team.InUse)
            words.insert(team.Reserved1);
    EXPECT_GT(words.size(), 25U);
    EXPECT_NE(Teams[1].Reserved3.Raw(), Teams[2].Reserved3.Raw());
    EXPECT_GT(Count(Players, [](const Player& player) { return player.Reserved2 != 0 && player.Reserved5 < 0; }), 1000);
    EXPECT_GT(Count(Goalies, [](const Goalie& goalie) { return goalie.Reserved1 != 0; }), 300);
}

TEST_F(SampleLeagueTest, TheReservedWordsOfThePenaltyKillStayZero)
{
    for (const int number : TeamNumbers())
        for (int day = 1; day <= 10; ++day)
            for (int unit = 1; unit <= 2; ++unit) {
                EXPECT_EQ(Teams[number].ProLines[day].PK3Reserved[unit], 0);
                EXPECT_EQ(Teams[number].Farm.FarmLines[day].PK3Reserved[unit], 0);
            }
}

} // namespace dravik
