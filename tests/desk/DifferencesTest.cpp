#include "desk/Differences.h"

#include "desk/MatchedPeople.h"
#include "support/PlainFormats.h"
#include "support/RandomLeague.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <random>
#include <utility>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Teams 5 and 6 of division 1 and team 7 of division 2, each with people of its own; skater 40 and goalie 9 have no team.
class DifferencesTest : public SmallLeague {
protected:
    DifferencesTest()
    {
        LeagueData.ShowAllRatings = true;
        LeagueData.ShowOverall = true;
        const char* const names[] = {"GUL", "DUC", "TER"};
        for (int team = 5; team <= 7; ++team) {
            TeamMaker{team};
            Teams[team].Abbre = names[team - 5];
            Teams[team].Division = team == 7 ? 2 : 1;
        }
        for (int slot = 1; slot <= 30; ++slot)
            PutSkater(slot, 5 + (slot - 1) / 10, 1 + slot % 4, status::Pro, 60);
        for (int slot = 1; slot <= 6; ++slot)
            PutGoalie(slot, 5 + (slot - 1) / 2, status::Pro, 60);
        PutSkater(40, 0, position::Center, status::Farm);
        PutGoalie(9, 0, status::Farm);
        Remember();
    }

    // From here on the league is the later one.
    void Remember() { Earlier = DigestOf(OpenLeague); }
    // Through the bytes, as the program does.
    [[nodiscard]] std::vector<Difference> Found() const
    {
        const auto kept = ReadDigest(WriteDigest(Earlier));
        EXPECT_TRUE(kept);
        return DifferencesBetween(*kept, OpenLeague);
    }
    // "kind: subject words" is too much for most tests: these are subjects with words.
    [[nodiscard]] std::vector<std::string> Told(int team = 0, bool isProved = false) const
    {
        std::vector<std::string> told;
        for (const Difference& difference : ToldTo(OpenLeague, Found(), team, isProved))
            told.push_back(SubjectOf(difference) + ": " + WordsOf(OpenLeague, Shown, difference));
        return told;
    }
    static void Rename(Player& person, const char* name) { person.Name = name; }

    PlainFormats Shown;
    LeagueDigest Earlier;
};

TEST_F(DifferencesTest, TheSameLeagueDiffersInNothing) { EXPECT_THAT(Found(), IsEmpty()); }

TEST_F(DifferencesTest, HurtAndFitAgain)
{
    Goalies[1].Condition = 94;
    Remember();
    Players[1].Condition = 87;
    Players[1].Injury = "sprained knee";
    Players[2].Condition = 95;
    Players[3].Condition = 94;
    Goalies[1].Condition = 95;
    EXPECT_THAT(Told(), ElementsAre("Skater 1: hurt: sprained knee, condition 87", "Skater 3: hurt, condition 94",
                                    "Goalie 1: fit again, condition 95"));
}

TEST_F(DifferencesTest, WhoStaysHurtIsNoNews)
{
    Players[1].Condition = 60;
    Remember();
    Players[1].Condition = 80;
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(DifferencesTest, SuspensionsAndWaiversBeginAndEnd)
{
    Players[1].Suspension = 2;
    Players[2].Suspension = 99;
    Players[3].Suspension = 99;
    Players[4].Suspension = 5;
    Remember();
    Players[1].Suspension = 0;
    Players[2].Suspension = 0;
    Players[3].Suspension = 1;
    Players[4].Suspension = 4;
    Goalies[2].Suspension = 99;
    EXPECT_THAT(Told(), ElementsAre("Skater 3: suspended for 1 game", "Skater 1: back from his suspension",
                                    "Goalie 2: on waivers", "Skater 2: no longer on waivers",
                                    "Skater 3: no longer on waivers"));
}

TEST_F(DifferencesTest, MovedSignedSignedAgainAndReleased)
{
    Players[1].Team = 6;
    Players[40].Team = 7;
    Players[40].Contract = 3;
    Players[11].Contract = 4;
    Goalies[6].Team = 0;
    EXPECT_THAT(Told(), ElementsAre("Skater 1: moved from GUL to DUC", "Skater 40: signed by TER, 3 years",
                                    "Skater 11: contract made longer, 4 years left", "Goalie 6: released by TER"));
}

TEST_F(DifferencesTest, WhoIsGoneAndWhoCameAreTold)
{
    Players[1].InUse = false;
    Rename(Players[2], "Somebody Else");
    Players[40] = {};
    EXPECT_THAT(Told(),
                ElementsAre("Skater 1: no longer in the league, was with GUL",
                            "Skater 2: no longer in the league, was with GUL", "Skater 40: no longer in the league",
                            "Somebody Else: new in the league, with GUL"));
}

TEST_F(DifferencesTest, WhoseNameHadNoRoomGoesUnsaid)
{
    Earlier.People[0].Name = {};
    Players[1].InUse = false;
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(DifferencesTest, WhoIsInAnotherSlotIsStillHimself)
{
    Players[50] = std::exchange(Players[1], {});
    Players[50].Condition = 50;
    PutSkater(1, 7, position::Center, status::Pro).Name = "Newcomer";
    const auto found = ToldTo(OpenLeague, Found(), 0, false);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].Kind, DifferenceKind::Hurt);
    EXPECT_EQ(found[0].Who, PersonIn<Player>(50));
    EXPECT_EQ(found[1].Kind, DifferenceKind::Came);
    EXPECT_EQ(found[1].Who, PersonIn<Player>(1));
}

TEST_F(DifferencesTest, NamesakesAreToldApartBySlotThenByAge)
{
    for (const int slot : {1, 2, 3})
        Rename(Players[slot], "Jan Novak");
    Players[1].Age = 20;
    Players[2].Age = 25;
    Players[3].Age = 30;
    Remember();
    Players[50] = std::exchange(Players[1], {});
    Players[51] = std::exchange(Players[2], {});
    std::swap(Players[50], Players[51]);
    Players[50].Team = 6; // the one of 25
    EXPECT_THAT(Told(), ElementsAre("Jan Novak: moved from GUL to DUC"));
    Players[51].Age = 21; // a birthday tells who is left
    EXPECT_THAT(Told(), ElementsAre("Jan Novak: moved from GUL to DUC"));
    Players[51].Age = 19; // nobody grows younger
    EXPECT_THAT(Told(),
                ElementsAre("Jan Novak: moved from GUL to DUC", "Jan Novak: no longer in the league, was with GUL",
                            "Jan Novak: new in the league, with GUL"));
}

TEST_F(DifferencesTest, ASkaterIsNoGoalieOfHisName)
{
    Goalies[20] = {};
    PutGoalie(20, 5, status::Pro).Name = "Skater 1";
    Players[1].InUse = false;
    EXPECT_THAT(Told(), ElementsAre("Skater 1: no longer in the league, was with GUL",
                                    "Skater 1: new in the league, with GUL"));
}

TEST_F(DifferencesTest, RatingsRoseFellAndShifted)
{
    Players[1].Stats[skater::SC] = 66;
    Players[2].Stats[skater::DF] = 58;
    Players[3].Stats[skater::SC] = 61;
    Players[3].Stats[skater::PA] = 59;
    Goalies[1].Stats[goalie::RB] = 62;
    LeagueData.ShowOverall = false;
    Earlier.ShowsOverall = false;
    EXPECT_THAT(Told(), ElementsAre("Skater 1: SC 60 to 66", "Goalie 1: RB 60 to 62", "Skater 2: DF 60 to 58",
                                    "Skater 3: PA 60 to 59, SC 60 to 61"));
    for (const Difference& difference : Found()) {
        EXPECT_EQ(difference.Before, 0) << "its ratings tell it all";
        EXPECT_EQ(difference.After, 0);
    }
}

TEST_F(DifferencesTest, TheOverallComesFirstAndDecides)
{
    for (auto& rating : Players[1].Stats)
        rating = 50;
    const auto found = Found();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].Kind, DifferenceKind::Fell);
    ASSERT_EQ(found[0].Ratings.size(), 16U);
    EXPECT_EQ(found[0].Before, 0) << "ratings are counted in nothing of their own";
    EXPECT_EQ(found[0].After, 0);
    EXPECT_EQ(found[0].Ratings[0].Label, "OV");
    EXPECT_LT(found[0].Ratings[0].After, found[0].Ratings[0].Before);
    EXPECT_EQ(found[0].Ratings[1], (RatingChange{"CK", 60, 50}));
}

TEST_F(DifferencesTest, OnlyTheRatingsThatTheLeagueShowsAreTold)
{
    LeagueData.ShowAllRatings = false;
    LeagueData.ShowOverall = false;
    Remember();
    Players[1].Stats[skater::CK] = 63;
    Players[2].Stats[skater::SC] = 70;
    EXPECT_THAT(Told(), ElementsAre("Skater 1: IT 60 to 61", "Skater 2: SC 60 to 70"));
    LeagueData.ShowAllRatings = true; // what was a group cannot be held against single ones
    LeagueData.ShowOverall = true;
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(DifferencesTest, MoneyPayrollLoadsAndStatusesAreTheTeamsOwn)
{
    Teams[5].Cash += 500;
    Teams[5].LinesLoadCount = 4;
    Players[1].Status = status::Farm;
    Players[2].Salary = Players[2].Salary + 1000;
    Teams[6].Cash += 77;
    Players[11].Status = status::Scratch;
    EXPECT_THAT(Told(5, false), IsEmpty());
    EXPECT_THAT(Told(7, true), IsEmpty());
    const auto told = Told(5, true);
    ASSERT_EQ(told.size(), 4U);
    EXPECT_EQ(told[0], "Skater 1: pro to farm");
    EXPECT_EQ(told[1], "Bank account: +500.000000, 500.000000 now");
    EXPECT_TRUE(told[2].starts_with("Payroll: ")) << told[2];
    EXPECT_EQ(told[3], "Your lines: loaded, 4 times by now");
    EXPECT_EQ(Told(6, true).size(), 2U + 0U) << "the money and the status of team 6";
}

TEST_F(DifferencesTest, TheCapAndTheDeadlineAreEverybodys)
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 100;
    Remember();
    LeagueData.SalaryCap = 90;
    LeagueData.TradeDeadlinePassed = true;
    EXPECT_THAT(Told(), ElementsAre("Salary cap: -10.000000, 90.000000 now", "Trade deadline: is over"));
    LeagueData.SalaryCapMode = 0;
    EXPECT_THAT(Told(), ElementsAre("Trade deadline: is over"));
}

TEST_F(DifferencesTest, AHoleNamesTheDaysThatItIsOn)
{
    for (const int day : {1, 3, 7})
        Teams[5].ProLines[day].NormalForward(1, 1) = 1;
    Teams[5].ProLines[2].StartGoalie = 1;
    Players[2].Status = status::Farm;
    Teams[5].Farm.FarmLines[2].NormalForward(1, 1) = 2;
    Remember();
    Players[1].Condition = 50;
    Goalies[1].Team = 6;
    Players[2].InUse = false;
    EXPECT_THAT(Told(5, true), ElementsAre("Skater 1: leaves holes in the lines of days 1, 3 and 7",
                                           "Goalie 1: leaves holes in the lines of day 2",
                                           "Skater 1: hurt, condition 50", "Goalie 1: moved from GUL to DUC",
                                           "Skater 2: no longer in the league, was with GUL", Told(5, true).back()));
    EXPECT_TRUE(Told(5, true).back().starts_with("Payroll"));
    EXPECT_THAT(Told(5, false), ElementsAre("Skater 1: hurt, condition 50", "Goalie 1: moved from GUL to DUC",
                                            "Skater 2: no longer in the league, was with GUL"));
}

TEST_F(DifferencesTest, AHoleInTheFarmsLinesIsToldBehindThatInTheOthers)
{
    Teams[5].ProLines[1].NormalForward(1, 1) = 1;
    for (const int day : {2, 4})
        Teams[5].Farm.FarmLines[day].NormalForward(1, 1) = 2;
    Players[2].Status = status::Farm;
    Remember();
    Players[2].Condition = 50;
    EXPECT_THAT(Told(5, true), ::testing::Contains("Skater 2: leaves holes in the farm's lines of days 2 and 4"));
    const Difference both{.Kind = DifferenceKind::Hole, .Team = 5, .Name = "Somebody", .ProDays = {1}, .FarmDays = {2}};
    EXPECT_EQ(WordsOf(OpenLeague, Machine, both), "leaves holes in the lines of day 1; the farm's lines of day 2");
    EXPECT_EQ(both.Before, 0) << "a hole is counted in nothing";
    EXPECT_EQ(both.After, 0);
}

TEST_F(DifferencesTest, WhatWasWrongBeforeIsNoHole)
{
    Players[1].Condition = 50;
    Teams[5].ProLines[1].NormalForward(1, 1) = 1;  // hurt already
    Teams[5].ProLines[1].NormalForward(1, 2) = 11; // of another team
    Remember();
    Players[1].Condition = 40;
    Players[11].Condition = 40;
    EXPECT_THAT(Told(5, true), ElementsAre("Skater 11: hurt, condition 40"));
    EXPECT_THAT(Told(6, true), ElementsAre("Skater 11: hurt, condition 40"));
}

TEST_F(DifferencesTest, ASlotTakenByATeamMateIsNoHole)
{
    Teams[5].ProLines[1].NormalForward(1, 1) = 1;
    Remember();
    Rename(Players[1], "Newcomer");
    EXPECT_THAT(Told(5, true), ElementsAre("Skater 1: no longer in the league, was with GUL",
                                           "Newcomer: new in the league, with GUL"));
}

TEST_F(DifferencesTest, TheOwnTeamComesFirstThenItsDivisionThenAll)
{
    Players[21].Condition = 50; // team 7
    Players[11].Condition = 50; // team 6
    Players[1].Condition = 50;  // team 5
    Players[22].Team = 5;
    EXPECT_THAT(Told(5), ElementsAre("Skater 1: hurt, condition 50", "Skater 22: moved from TER to GUL",
                                     "Skater 11: hurt, condition 50", "Skater 21: hurt, condition 50"));
    EXPECT_THAT(Told(7), ElementsAre("Skater 21: hurt, condition 50", "Skater 22: moved from TER to GUL",
                                     "Skater 1: hurt, condition 50", "Skater 11: hurt, condition 50"));
    EXPECT_THAT(Told(0), ElementsAre("Skater 1: hurt, condition 50", "Skater 11: hurt, condition 50",
                                     "Skater 21: hurt, condition 50", "Skater 22: moved from TER to GUL"));
}

TEST_F(DifferencesTest, EveryKindHasItsRowAndWords)
{
    for (int kind = 0; kind <= static_cast<int>(DifferenceKind::Deadline); ++kind) {
        const DifferenceRow& row = RowOf(static_cast<DifferenceKind>(kind));
        EXPECT_EQ(static_cast<int>(row.Kind), kind);
        EXPECT_FALSE(row.Words.empty());
    }
    for (const auto kind : {DifferenceKind::Hole, DifferenceKind::Placed, DifferenceKind::Cash, DifferenceKind::Payroll,
                            DifferenceKind::LinesLoaded})
        EXPECT_TRUE(RowOf(kind).IsPrivate);
    EXPECT_EQ(SubjectOf({.Kind = DifferenceKind::Cash}), "Bank account");
}

// People of a random league, dealt to other slots: with names of their own everybody is found again.
TEST_F(DifferencesTest, EverybodyIsFoundInWhateverSlot)
{
    for (unsigned seed = 1; seed <= 10; ++seed) {
        Dice dice(seed);
        RollLeague(dice);
        int number = 0;
        for (Player& person : Players)
            person.Name = "Person " + std::to_string(++number);
        for (Goalie& person : Goalies)
            person.Name = "Keeper " + std::to_string(++number);
        const auto earlier = DigestOf(OpenLeague).People;
        std::mt19937 random(seed);
        for (int turn = 0; turn < 500; ++turn)
            std::swap(Players[1 + static_cast<int>(random() % 200)], Players[1 + static_cast<int>(random() % 200)]);
        const auto later = DigestOf(OpenLeague).People;
        const auto matched = MatchPeople(earlier, later);
        ASSERT_EQ(matched.size(), later.size());
        for (const MatchedPerson& pair : matched) {
            ASSERT_GE(pair.Earlier, 0);
            ASSERT_GE(pair.Later, 0);
            EXPECT_EQ(earlier[static_cast<std::size_t>(pair.Earlier)].Name.Trimmed(),
                      later[static_cast<std::size_t>(pair.Later)].Name.Trimmed());
        }
    }
}

} // namespace
} // namespace dravik
