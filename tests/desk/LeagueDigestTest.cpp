#include "desk/LeagueDigest.h"

#include "desk/Journal.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <functional>

namespace dravik {
namespace {

using ::testing::Each;
using ::testing::Field;

class LeagueDigestTest : public SmallLeague {
protected:
    LeagueDigestTest()
    {
        LeagueData.LeagueCode = "ABCDE";
        LeagueData.FileDate = 45000.25;
        LeagueData.SalaryCapMode = 1;
        LeagueData.SalaryCap = 52000000;
        LeagueData.ShowAllRatings = true;
        LeagueData.ShowOverall = true;
        TeamMaker(5).DressesFullRoster().FarmsFullRoster();
        Teams[5].Cash = -1250000;
        Teams[5].LinesLoadCount = 34;
        PutSkater(9999, 0, position::Center, status::Farm);
    }

    static LeagueDigest Digest() { return DigestOf(OpenLeague); }
    static const PersonDigest& Of(const LeagueDigest& digest, PersonId who)
    {
        const auto found = std::find_if(digest.People.begin(), digest.People.end(),
                                        [&](const PersonDigest& person) { return person.Who == who; });
        EXPECT_NE(found, digest.People.end());
        return *found;
    }
    // Everybody of every slot, with the longest names and ratings that are all different.
    static void FillEverySlot()
    {
        for (int slot = 1; slot <= PlayerTable::last; ++slot)
            Name(PutSkater(slot, slot % 101, position::Center, status::Pro, slot % 99), slot);
        for (int slot = 1; slot <= GoalieTable::last; ++slot)
            Name(PutGoalie(slot, slot % 101, status::Pro, slot % 99), slot);
        for (int team = 1; team <= TeamTable::last; ++team)
            TeamMaker{team};
    }

private:
    template <class Person>
    static void Name(Person& person, int slot)
    {
        std::string name = std::to_string(slot);
        name.insert(0, 40 - name.size(), 'x');
        person.Name = name;
    }
};

TEST_F(LeagueDigestTest, WhatIsWrittenIsReadBack)
{
    Players[3].Name = "Herv\xE9 G\xE2tinoisin";
    Players[3].Condition = 87;
    Players[3].Suspension = 3;
    Players[3].Contract = 2;
    Players[3].Age = 31;
    const LeagueDigest digest = Digest();
    const auto read = ReadDigest(WriteDigest(digest));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->LeagueCode.Trimmed(), "ABCDE");
    EXPECT_EQ(read->FileDate, 45000.25);
    EXPECT_TRUE(read->ShowsAllRatings);
    EXPECT_TRUE(read->ShowsOverall);
    EXPECT_EQ(read->SalaryCapMode, 1);
    EXPECT_EQ(read->SalaryCap, 52000000);
    EXPECT_EQ(read->Teams, digest.Teams);
    EXPECT_EQ(read->People, digest.People);
    ASSERT_EQ(read->Teams.size(), 1U);
    EXPECT_EQ(read->Teams[0].Cash, -1250000);
    EXPECT_EQ(read->Teams[0].LinesLoaded, 34);
    const PersonDigest& third = Of(*read, PersonIn<Player>(3));
    EXPECT_EQ(third.Name.Trimmed(), "Herv\xE9 G\xE2tinoisin");
    EXPECT_EQ(third.Condition, 87);
    EXPECT_EQ(third.Suspension, 3);
    EXPECT_EQ(third.Contract, 2);
    EXPECT_EQ(third.Age, 31);
    EXPECT_EQ(third.RatingCount, 15);
}

TEST(PersonDigestTest, PeopleAreTheSameWhereNothingOfThemDiffers)
{
    PersonDigest person{.Who = PersonIn<Player>(7), .Identity = 1, .Team = 2, .Age = 3, .Contract = 4, .Condition = 5};
    person.Suspension = 6;
    person.Status = 7;
    person.Overall = 8;
    person.RatingCount = 9;
    person.Name = "Ward Tilton";
    const std::function<void(PersonDigest&)> changes[] = {
        [](PersonDigest& other) { other.Who = PersonIn<Player>(8); },
        [](PersonDigest& other) { other.Who = PersonIn<Goalie>(7); },
        [](PersonDigest& other) { ++other.Identity; },
        [](PersonDigest& other) { other.Name = "Ward Tilten"; },
        [](PersonDigest& other) { ++other.Team; },
        [](PersonDigest& other) { ++other.Age; },
        [](PersonDigest& other) { ++other.Contract; },
        [](PersonDigest& other) { ++other.Condition; },
        [](PersonDigest& other) { ++other.Suspension; },
        [](PersonDigest& other) { ++other.Status; },
        [](PersonDigest& other) { ++other.Overall; },
        [](PersonDigest& other) { ++other.RatingCount; },
        [](PersonDigest& other) { ++other.Ratings[0]; },
        [](PersonDigest& other) { ++other.Ratings[MostRatings - 1]; },
    };
    EXPECT_EQ(person, PersonDigest(person));
    for (const auto& change : changes) {
        PersonDigest other = person;
        change(other);
        EXPECT_NE(person, other) << "change " << &change - changes;
    }
}

TEST_F(LeagueDigestTest, NumbersBeyondAByteCountAsTheNearest)
{
    Players[3].Stats[1] = 300;
    Players[3].Stats[2] = -4;
    Players[3].Team = 101;
    Goalies[1].Age = 256;
    const LeagueDigest digest = Digest();
    EXPECT_EQ(Of(digest, PersonIn<Player>(3)).Ratings[0], 255);
    EXPECT_EQ(Of(digest, PersonIn<Player>(3)).Ratings[1], 0);
    EXPECT_EQ(Of(digest, PersonIn<Player>(3)).Team, 0);
    EXPECT_EQ(Of(digest, PersonIn<Goalie>(1)).Age, 255);
}

TEST_F(LeagueDigestTest, WhatTheLeagueHidesIsNotInIt)
{
    LeagueData.ShowAllRatings = false;
    LeagueData.ShowOverall = false;
    Players[3].Stats[skater::SC] = 77;
    Players[3].Stats[skater::CK] = 10;
    Players[3].Stats[skater::FG] = 20;
    Players[3].Stats[skater::DI] = 30;
    const LeagueDigest digest = Digest();
    EXPECT_THAT(digest.People, Each(Field(&PersonDigest::Overall, 0)));
    const PersonDigest& third = Of(digest, PersonIn<Player>(3));
    EXPECT_EQ(third.RatingCount, 7);
    EXPECT_EQ(third.Ratings[0], 20) << "the mean of a group";
    EXPECT_EQ(third.Ratings[3], 77) << "a group of one";
}

TEST_F(LeagueDigestTest, APasswordAndLineUpsAreNotInIt)
{
    const std::string bytes = WriteDigest(Digest());
    Teams[5].Password = "0Cc175b9c0f1b6a831c399e269772661";
    Teams[5].ProLines[1].NormalForward(1, 1) = 7;
    EXPECT_EQ(WriteDigest(Digest()), bytes);
}

TEST_F(LeagueDigestTest, SlotsThatAreNotInUseAreNobody)
{
    Players[3].InUse = false;
    const LeagueDigest digest = Digest();
    EXPECT_TRUE(std::none_of(digest.People.begin(), digest.People.end(),
                             [](const PersonDigest& person) { return person.Who == PersonIn<Player>(3); }));
}

TEST_F(LeagueDigestTest, AFullLeagueStaysWithin300KiB)
{
    FillEverySlot();
    const LeagueDigest digest = Digest();
    ASSERT_EQ(digest.People.size(), 11000U);
    ASSERT_EQ(digest.Teams.size(), 100U);
    const std::string bytes = WriteDigest(digest);
    EXPECT_LE(bytes.size(), 300U * 1024U);
    EXPECT_GT(bytes.size(), 300U * 1024U - 60U) << "the room is used";
    const auto read = ReadDigest(bytes);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->People.size(), 11000U);
    EXPECT_EQ(read->Teams, digest.Teams);
    for (std::size_t i = 0; i < digest.People.size(); ++i) {
        EXPECT_EQ(read->People[i].Who, digest.People[i].Who);
        EXPECT_EQ(read->People[i].Identity, digest.People[i].Identity);
        EXPECT_EQ(read->People[i].Overall, digest.People[i].Overall);
    }
}

TEST_F(LeagueDigestTest, NamesOfPeopleWithATeamAreKeptFirstAndThenTheirRatings)
{
    TeamMaker(6).Dresses(10, position::Center);
    for (int slot = 9000; slot < 9010; ++slot)
        PutSkater(slot, 0, position::Center, status::Farm);
    const LeagueDigest digest = Digest();
    const std::size_t whole = WriteDigest(digest).size();
    const auto keptWith = [&](std::size_t most) {
        const auto read = ReadDigest(WriteDigest(digest, most));
        EXPECT_TRUE(read);
        std::array<int, 4> kept{}; // names and ratings of those with a team, then of the others
        for (const PersonDigest& person : read->People) {
            const std::size_t of = person.Team != 0 ? 0 : 2;
            kept.at(of) += person.Name.Trimmed().empty() ? 0 : 1;
            kept.at(of + 1) += person.RatingCount == 0 ? 0 : 1;
        }
        return kept;
    };
    const auto [names, ratings, others, ratingsOfOthers] = keptWith(whole);
    EXPECT_EQ(names, ratings);
    EXPECT_EQ(others, 11);
    EXPECT_EQ(ratingsOfOthers, 11);
    EXPECT_EQ(keptWith(0), (std::array<int, 4>{}));
    EXPECT_EQ(keptWith(whole - 1), (std::array{names, ratings, 11, 10}));
    EXPECT_EQ(keptWith(whole - 11 * 15), (std::array{names, ratings, 11, 0}));
    const auto [fewer, none, nobody, nothing] = keptWith(whole - 11 * 15 - 11 * 40 - 15 * 60);
    EXPECT_LE(fewer, names);
    EXPECT_LT(none, ratings);
    EXPECT_EQ(nothing, 0);
}

TEST_F(LeagueDigestTest, NoByteCanChangeUnnoticed)
{
    const std::string bytes = WriteDigest(Digest());
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        std::string damaged = bytes;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
        ASSERT_FALSE(ReadDigest(damaged)) << at;
    }
}

TEST_F(LeagueDigestTest, ANameOrRatingsThatNobodyHasRoomForAreNone)
{
    LeagueDigest one;
    one.People.push_back({.Who = {.IsGoalie = false, .Slot = 1}, .Name = "N", .RatingCount = MostRatings});
    std::string bytes = WriteDigest(one);
    bytes.resize(bytes.size() - SealSize);
    const std::size_t behindRecord = bytes.size() - MostRatings - 1;
    const auto isRead = [&](char name, char ratings) {
        std::string changed = bytes;
        changed[behindRecord - 2] = name;
        changed[behindRecord - 1] = ratings;
        changed += std::string(static_cast<std::size_t>(name - 1 + ratings) - MostRatings, 'x');
        return ReadDigest(changed + WriteSeal(SealOver(0, changed))).has_value();
    };
    EXPECT_TRUE(isRead(1, MostRatings));
    EXPECT_TRUE(isRead(40, MostRatings));
    EXPECT_FALSE(isRead(41, MostRatings));
    EXPECT_FALSE(isRead(1, MostRatings + 1));
    EXPECT_FALSE(isRead(41, MostRatings + 1));
}

TEST_F(LeagueDigestTest, WhatIsCutOrLongerOrForeignIsNone)
{
    const std::string bytes = WriteDigest(Digest());
    for (std::size_t length = 0; length < bytes.size(); length += 7)
        ASSERT_FALSE(ReadDigest(std::string_view(bytes).substr(0, length))) << length;
    EXPECT_FALSE(ReadDigest(bytes + 'x'));
    EXPECT_FALSE(ReadDigest(std::string(bytes.size(), '\0')));
    EXPECT_FALSE(ReadDigest(std::string(MostDigestBytes + 1, 'x')));
    EXPECT_TRUE(ReadDigest(bytes));
}

TEST_F(LeagueDigestTest, RandomLeaguesAreReadBack)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        Dice dice(seed);
        RollLeague(dice);
        const LeagueDigest digest = Digest();
        const auto read = ReadDigest(WriteDigest(digest));
        ASSERT_TRUE(read) << seed;
        EXPECT_EQ(read->Teams, digest.Teams) << seed;
        EXPECT_EQ(read->People, digest.People) << seed;
    }
}

} // namespace
} // namespace dravik
