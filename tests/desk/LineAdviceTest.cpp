#include "desk/LineAdvice.h"

#include "LinesDesk.h"
#include "support/LeagueBefore.h"

#include <algorithm>

namespace dravik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

// Team 5, of which everybody has the overall 60 and stands in position on both sides: nothing to advise. The skaters of a side
// are four centers, four left wings, four right wings and six defensemen, and its goalies start in their order.
class LineAdviceTest : public SmallLeague {
protected:
    LineAdviceTest() : Team5(5)
    {
        Team5.Dresses(4, position::Center).Dresses(4, position::LeftWing).Dresses(4, position::RightWing);
        Team5.Dresses(6, position::Defense).DressesGoalies(2);
        Team5.Farms(4, position::Center).Farms(4, position::LeftWing).Farms(4, position::RightWing);
        Team5.Farms(6, position::Defense).FarmsGoalies(2);
        ProSide = Members(0, 0);
        FarmSide = Members(18, 2);
        Deal(Day(), ProSide);
        Deal(Day(Side::Farm), FarmSide);
    }

    struct Squad {
        std::vector<int> C, LW, RW, D, G;
    };

    [[nodiscard]] Squad Members(std::size_t first, std::size_t goalie) const
    {
        const auto some = [](const std::vector<int>& all, std::size_t from, std::size_t count) {
            const auto begin = all.begin() + static_cast<std::ptrdiff_t>(from);
            return std::vector<int>(begin, begin + static_cast<std::ptrdiff_t>(count));
        };
        return {some(Team5.Skaters, first, 4), some(Team5.Skaters, first + 4, 4), some(Team5.Skaters, first + 8, 4),
                some(Team5.Skaters, first + 12, 6), some(Team5.GoalieIds, goalie, 2)};
    }

    static void Deal(Lines& day, const Squad& squad)
    {
        for (int line = 1; line <= 4; ++line) {
            const auto at = static_cast<std::size_t>(line - 1);
            day.NormalForward(line, 1) = squad.C[at];
            day.NormalForward(line, 2) = squad.LW[at];
            day.NormalForward(line, 3) = squad.RW[at];
            day.NormalDefense(line, 1) = squad.D[(2 * at) % 6];
            day.NormalDefense(line, 2) = squad.D[(2 * at + 1) % 6];
        }
        for (int unit = 1; unit <= 2; ++unit) {
            const auto at = static_cast<std::size_t>(unit - 1);
            day.PPForward(unit, 1) = day.PKForward(unit, 1) = day.FourVsFourForward(unit, 1) = squad.C[at];
            day.PPForward(unit, 2) = day.PKForward(unit, 2) = day.FourVsFourForward(unit, 2) = squad.LW[at];
            day.PPForward(unit, 3) = squad.RW[at];
            day.PK3Forward[unit] = squad.C[at];
            for (int place = 1; place <= 2; ++place)
                day.PPDefense(unit, place) = day.PKDefense(unit, place) = day.FourVsFourDefense(unit, place) =
                    day.PK3Defense(unit, place) = squad.D[2 * at + static_cast<std::size_t>(place) - 1];
        }
        for (int number = 1; number <= 5; ++number) {
            const auto at = static_cast<std::size_t>(number - 1);
            day.ExtraForward[number] = day.PenaltyShot[number] = at < 4 ? squad.C[at] : squad.LW[0];
            day.ExtraDefense[number] = squad.D[at];
        }
        day.StartGoalie = squad.G[0];
        day.BackupGoalie = squad.G[1];
    }

    static Lines& Day(Side side = Side::Pro) { return LinesOf(OpenLeague, 5, 1, side); }
    static void Rate(int skater, int rating)
    {
        for (Int16& stat : Players[skater].Stats)
            stat = rating;
    }
    static void RateGoalie(int goalie, int rating)
    {
        for (Int16& stat : Goalies[goalie].Stats)
            stat = rating;
    }
    // One more skater of that side, who is on no line.
    int Free(int position, int rating, Side side = Side::Pro)
    {
        side == Side::Pro ? Team5.Dresses(1, position, rating) : Team5.Farms(1, position, rating);
        return Team5.Skaters.back();
    }

    static std::vector<LineAdvice> Given(Side side = Side::Pro) { return AdviceOn(OpenLeague, 5, side, 1); }
    static std::vector<std::string> Words(Side side = Side::Pro)
    {
        std::vector<std::string> words;
        for (const LineAdvice& piece : Given(side))
            words.push_back(WordsOf(OpenLeague, piece));
        return words;
    }

    TeamMaker Team5;
    Squad ProSide;
    Squad FarmSide;
};

TEST_F(LineAdviceTest, OfEqualsInPositionNobodyIsAdvised)
{
    EXPECT_THAT(Words(), IsEmpty());
    EXPECT_THAT(Words(Side::Farm), IsEmpty());
    Free(position::Defense, 60);
    Free(position::Center, 59);
    EXPECT_THAT(Words(), IsEmpty());
}

TEST_F(LineAdviceTest, SomebodyBetterWhoIsFreeIsToldOnceAKindAndTheGreatestGainFirst)
{
    const int free = Free(position::Defense, 64);
    Players[free].Name = "Cyril Slobansky";
    Rate(ProSide.D[4], 56);
    Rate(ProSide.D[5], 52);
    EXPECT_THAT(Words(), ElementsAre("Cyril Slobansky (64, D) is in no pair; pair 3 plays 56 and 52.",
                                     "Cyril Slobansky (64, D) is no extra defenseman; extra defenseman 5 is 56.",
                                     "Cyril Slobansky (64, D) is on no power play; power play 2 plays 60 and 60.",
                                     "Cyril Slobansky (64, D) is on no 4 vs 4; 4 vs 4 unit 2 plays 60 and 60.",
                                     "Cyril Slobansky (64, D) is on no penalty kill; penalty kill 2 plays 60 and 60.",
                                     "Cyril Slobansky (64, D) is on no penalty kill of three; "
                                     "penalty kill of three 2 plays 60 and 60."));
    const LineAdvice first = Given().front();
    EXPECT_EQ(first.Kind, AdviceKind::Better);
    EXPECT_EQ(first.Who, (PersonId{false, free}));
    EXPECT_EQ(first.Instead, (PersonId{false, ProSide.D[5]}));
    EXPECT_EQ(first.Slot.Word, SlotOf(LineField::NormalDefense, 3, 2).Word);
    EXPECT_EQ(first.Gain(), 12);
    EXPECT_EQ(DeedOf(OpenLeague, first),
              "Put Cyril Slobansky in for " + Players[ProSide.D[5]].Name.Trimmed() + ", pair 3");
}

TEST_F(LineAdviceTest, ForwardsAreToldWithTheirPlace)
{
    const int free = Free(position::LeftWing, 66);
    EXPECT_THAT(Words(),
                Contains("Skater " + std::to_string(free) + " (66, LW) is on no line; line 4 plays 60 at LW."));
    EXPECT_THAT(Words(), Contains("Skater " + std::to_string(free) +
                                  " (66, LW) is on no penalty kill; penalty kill 2 plays 60 at W."));
    EXPECT_THAT(Words(), Contains("Skater " + std::to_string(free) +
                                  " (66, LW) is on no penalty kill of three; penalty kill of three 2 plays 60 at F."));
    EXPECT_THAT(Words(),
                Contains("Skater " + std::to_string(free) + " (66, LW) is no extra forward; extra forward 5 is 60."));
}

TEST_F(LineAdviceTest, TwoWhoAreFreeAreToldOfTwoSlots)
{
    const int good = Free(position::Center, 70);
    const int better = Free(position::Center, 75);
    Rate(ProSide.C[1], 50);
    Rate(ProSide.C[2], 55);
    const auto given = Given();
    ASSERT_GE(given.size(), 2U);
    EXPECT_EQ(given[0].Who.Slot, better);
    EXPECT_EQ(given[0].At.Number, 2);
    const auto other = std::find_if(given.begin(), given.end(), [&](const LineAdvice& piece) {
        return piece.Who.Slot == good && piece.At.Field == LineField::NormalForward;
    });
    ASSERT_NE(other, given.end());
    EXPECT_EQ(other->Instead.Slot, ProSide.C[2]);
}

TEST_F(LineAdviceTest, WhoIsHurtSuspendedElsewhereOrWithoutAPositionIsNotProposed)
{
    const int free = Free(position::Center, 90);
    ASSERT_THAT(Words(), Not(IsEmpty()));
    const Player fit = Players[free];
    Players[free].Condition = 94;
    EXPECT_THAT(Words(), IsEmpty());
    Players[free] = fit;
    Players[free].Suspension = 1;
    EXPECT_THAT(Words(), IsEmpty());
    Players[free] = fit;
    for (const int status : {status::Farm, status::Scratch}) {
        Players[free].Status = status;
        EXPECT_THAT(Words(), IsEmpty()) << status;
    }
    Players[free] = fit;
    Players[free].Team = 6;
    EXPECT_THAT(Words(), IsEmpty());
    Players[free] = fit;
    for (const int position : {0, 5}) {
        Players[free].Position = position;
        EXPECT_THAT(Words(), IsEmpty()) << position;
    }
}

TEST_F(LineAdviceTest, WhatTheJudgeFindsIsNoAdvice)
{
    Free(position::Center, 90);
    const int weak = ProSide.C[3];
    Rate(weak, 30);
    ASSERT_EQ(Given().front().Instead.Slot, weak);
    const auto isNamed = [&] {
        const auto given = Given();
        return std::any_of(given.begin(), given.end(),
                           [&](const LineAdvice& piece) { return piece.Instead.Slot == weak; });
    };
    Players[weak].Condition = 50;
    EXPECT_FALSE(isNamed());
    Players[weak].Condition = 100;
    Day().ExtraForward[4] = 0;
    EXPECT_TRUE(isNamed());
    Day().NormalForward(4, 2) = weak; // twice in a line
    EXPECT_FALSE(isNamed());
    Day().NormalForward(4, 2) = ProSide.LW[3];
    Day().NormalForward(4, 1) = 0;
    EXPECT_FALSE(isNamed());
    Day().NormalForward(4, 1) = 20000;
    EXPECT_FALSE(isNamed());
    Day().NormalForward(4, 1) = -3;
    EXPECT_FALSE(isNamed());
}

TEST_F(LineAdviceTest, WhoStandsInLinesOneAndTwoIsLeftToTheJudgeWhereTheyMayNotShare)
{
    Free(position::Center, 90);
    Rate(ProSide.C[0], 30);
    Day().NormalForward(2, 1) = ProSide.C[0];
    EXPECT_EQ(Given().front().At.Number, 2);
    LeagueData.LinesOneTwoExclusive = true;
    for (const LineAdvice& piece : Given())
        EXPECT_FALSE(piece.At.Field == LineField::NormalForward && piece.At.Number <= 2);
}

// The farm's judge compares those lines where a roster is required alone.
TEST_F(LineAdviceTest, OnAFarmThatNeedsNoRosterLinesOneAndTwoMayShare)
{
    LeagueData.LinesOneTwoExclusive = true;
    LeagueData.ProDressedSkaters = 25;
    Free(position::Center, 90, Side::Farm);
    Rate(FarmSide.C[0], 30);
    Day(Side::Farm).NormalForward(2, 1) = FarmSide.C[0];
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        const auto given = Given(Side::Farm);
        const bool isTold = std::any_of(given.begin(), given.end(), [](const LineAdvice& piece) {
            return piece.At.Field == LineField::NormalForward && piece.At.Number <= 2;
        });
        EXPECT_EQ(isTold, !required);
    }
}

TEST_F(LineAdviceTest, SomebodyOutOfPositionMakesRoomForSomebodyNoWorse)
{
    const int center = Free(position::Center, 60);
    Players[center].Name = "Royce Mottford";
    const int free = ProSide.D[5];
    Players[free].Name = "Cyril Slobansky";
    Day().NormalDefense(3, 2) = center;
    Rate(free, 60);
    ASSERT_THAT(Words(),
                ElementsAre("Royce Mottford (C) plays D in pair 3, 60 there, though Cyril Slobansky (60, D) is free."));
    const LineAdvice piece = Given().front();
    EXPECT_EQ(piece.Kind, AdviceKind::OutOfPosition);
    EXPECT_EQ(piece.Gain(), 0);
    ASSERT_TRUE(FollowAdvice(OpenWork(), 5, Side::Pro, 1, piece));
    EXPECT_EQ(Day().NormalDefense(3, 2), free);
    EXPECT_THAT(Words(), IsEmpty());
    Day().NormalDefense(3, 2) = center;
    Rate(free, 58);
    EXPECT_THAT(Words(), IsEmpty());
}

TEST_F(LineAdviceTest, NobodyIsProposedOutOfHisPosition)
{
    const int free = Free(position::RightWing, 90);
    std::vector<std::string> where;
    for (const LineAdvice& piece : Given())
        where.push_back(DeedOf(OpenLeague, piece));
    const auto inFor = [](int free, int holder, const std::string& slot) {
        return "Put Skater " + std::to_string(free) + " in for Skater " + std::to_string(holder) + ", " + slot;
    };
    EXPECT_THAT(where,
                ElementsAre(inFor(free, ProSide.RW[3], "line 4"), inFor(free, ProSide.RW[1], "power play 2"),
                            inFor(free, ProSide.LW[1], "4 vs 4 unit 2"), inFor(free, ProSide.LW[1], "penalty kill 2"),
                            inFor(free, ProSide.C[1], "penalty kill of three 2"),
                            inFor(free, ProSide.LW[0], "extra forward 5")));
}

TEST_F(LineAdviceTest, PenaltyShotsHaveNoPositionToBeBetterAt)
{
    for (int number = 1; number <= 5; ++number)
        Rate(static_cast<int>(Day().PenaltyShot[number] = ProSide.RW[static_cast<std::size_t>(number - 1) % 4]), 60);
    Day().PenaltyShot[5] = ProSide.D[0];
    Rate(ProSide.LW[0], 60);
    EXPECT_THAT(Words(), IsEmpty());
}

TEST_F(LineAdviceTest, TheCaptainOnNoLineComesFirstWhateverHeIsWorth)
{
    const int captain = Free(position::Center, 50);
    Players[captain].Name = "Karl Tichanek";
    Teams[5].Captain = captain;
    Free(position::Defense, 70);
    ASSERT_THAT(Words().front(), "The captain, Karl Tichanek (50, C), is on no line; line 4 plays 60 at C.");
    const LineAdvice piece = Given().front();
    EXPECT_EQ(piece.Gain(), -10);
    ASSERT_TRUE(FollowAdvice(OpenWork(), 5, Side::Pro, 1, piece));
    EXPECT_EQ(Day().NormalForward(4, 1), captain);
    for (const LineAdvice& next : Given()) {
        EXPECT_NE(next.Kind, AdviceKind::CaptainOffLines);
        EXPECT_NE(next.Instead.Slot, captain) << "the last line of a captain is nobody else's";
    }
}

TEST_F(LineAdviceTest, ACaptainOnAUnitIsOnALineAndOneAmongTheExtrasIsNot)
{
    const int captain = Free(position::Center, 60);
    Teams[5].Captain = captain;
    Day().ExtraForward[1] = captain;
    Day().PenaltyShot[1] = captain;
    ASSERT_EQ(Given().size(), 1U);
    EXPECT_EQ(Given().front().Kind, AdviceKind::CaptainOffLines);
    Day().PK3Forward[2] = captain;
    EXPECT_THAT(Given(), IsEmpty());
}

TEST_F(LineAdviceTest, ACaptainWhoMayNotPlayIsNoMatterOfTheLines)
{
    LeagueData.ProDressedSkaters = 25; // heads are no matter either
    const int captain = Free(position::Center, 60);
    Teams[5].Captain = captain;
    ASSERT_EQ(Given().size(), 1U);
    Players[captain].Condition = 90;
    EXPECT_THAT(Given(), IsEmpty());
    Players[captain].Condition = 100;
    Players[captain].Status = status::Farm;
    EXPECT_THAT(Given(), IsEmpty());
    EXPECT_THAT(Given(Side::Farm), IsEmpty());
}

TEST_F(LineAdviceTest, ATiredStarterMakesRoomForAFreshBackup)
{
    Goalies[ProSide.G[0]].Condition = 97;
    Goalies[ProSide.G[1]].Condition = 99;
    const std::string starter = Goalies[ProSide.G[0]].Name.Trimmed();
    const std::string backup = Goalies[ProSide.G[1]].Name.Trimmed();
    EXPECT_THAT(Words(), ElementsAre("The starter, " + starter + ", is tired (condition 97); the backup, " + backup +
                                     ", is fresh (99)."));
    const LineAdvice piece = Given().front();
    EXPECT_EQ(piece.Gain(), 2);
    EXPECT_EQ(DeedOf(OpenLeague, piece), "Start " + backup + " for " + starter);
    ASSERT_TRUE(FollowAdvice(OpenWork(), 5, Side::Pro, 1, piece));
    EXPECT_EQ(Day().StartGoalie, ProSide.G[1]);
    EXPECT_EQ(Day().BackupGoalie, ProSide.G[0]);
    EXPECT_THAT(Words(), IsEmpty());
}

TEST_F(LineAdviceTest, AStarterIsTiredUpTo97AndABackupFreshFrom99)
{
    for (int starts = 95; starts <= 100; ++starts)
        for (int waits = 95; waits <= 100; ++waits) {
            Goalies[ProSide.G[0]].Condition = starts;
            Goalies[ProSide.G[1]].Condition = waits;
            EXPECT_EQ(Given().size(), starts <= 97 && waits >= 99 ? 1U : 0U) << starts << ' ' << waits;
        }
}

TEST_F(LineAdviceTest, AGoalieWhoIsFreeIsToldOfTheWeakerOfTheTwo)
{
    Team5.DressesGoalies(1, 80);
    const std::string name = Goalies[Team5.GoalieIds.back()].Name.Trimmed();
    EXPECT_THAT(Words(), ElementsAre(name + " (80, G) is neither starter nor backup; the backup is 60."));
    RateGoalie(ProSide.G[0], 40);
    EXPECT_THAT(Words(), ElementsAre(name + " (80, G) is neither starter nor backup; the starter is 40."));
    ASSERT_TRUE(FollowAdvice(OpenWork(), 5, Side::Pro, 1, Given().front()));
    EXPECT_EQ(Day().StartGoalie, Team5.GoalieIds.back());
    Day().BackupGoalie = Day().StartGoalie;
    RateGoalie(ProSide.G[0], 99);
    EXPECT_THAT(Words(), IsEmpty()) << "a goalie who is his own backup is the judge's";
}

TEST_F(LineAdviceTest, NobodyIsAdvisedWhereOverallsAreHidden)
{
    Free(position::Center, 90);
    Goalies[ProSide.G[0]].Condition = 95;
    Teams[5].Captain = Team5.Skaters.back();
    const LineAdvice piece = Given().front();
    for (const int word : {0, 1}) {
        LeagueData.ShowOverall.SetWord(word);
        EXPECT_FALSE(IsAdviceGiven(LeagueData));
        EXPECT_THAT(Words(), IsEmpty());
        EXPECT_FALSE(FollowAdvice(OpenWork(), 5, Side::Pro, 1, piece));
    }
}

// Eighteen skaters are dressed: whoever makes room and stands elsewhere too would make them nineteen.
TEST_F(LineAdviceTest, TheFarmIsAdvisedOfItsOwnPeopleWithinItsHeadCount)
{
    const int free = Free(position::LeftWing, 70, Side::Farm);
    EXPECT_THAT(Words(), IsEmpty());
    for (const bool required : {false, true}) {
        LeagueData.FarmRosterRequired = required;
        LeagueData.ProDressedSkaters = 18;
        ASSERT_EQ(Given(Side::Farm).size(), 1U);
        EXPECT_EQ(Given(Side::Farm).front().Who.Slot, free);
        EXPECT_EQ(Given(Side::Farm).front().Instead.Slot, FarmSide.LW[3]);
        LeagueData.ProDressedSkaters = 19;
        EXPECT_EQ(Given(Side::Farm).size(), 6U);
    }
    LeagueData.ProDressedSkaters = 18;
    LeagueData.FarmEnabled = false; // nobody counts
    EXPECT_EQ(Given(Side::Farm).size(), 6U);
}

// The third and fourth left wings stand nowhere else: without one of them the farm has seventeen.
TEST_F(LineAdviceTest, AFarmThatNeedsEighteenKeepsThem)
{
    Day(Side::Farm).NormalForward(1, 2) = FarmSide.LW[1];
    Rate(FarmSide.LW[0], 80);
    const auto line = [&] {
        const auto given = Given(Side::Farm);
        const auto piece = std::find_if(given.begin(), given.end(),
                                        [](const LineAdvice& one) { return one.At.Field == LineField::NormalForward; });
        return piece == given.end() ? 0 : piece->At.Number;
    };
    EXPECT_EQ(line(), 4);
    LeagueData.FarmRosterRequired = true;
    EXPECT_EQ(line(), 2);
}

TEST_F(LineAdviceTest, AdviceThatIsNotGivenAnyMoreIsNotFollowed)
{
    Free(position::Center, 90);
    const LineAdvice piece = Given().front();
    ASSERT_TRUE(FollowAdvice(OpenWork(), 5, Side::Pro, 1, piece));
    const auto before = Copy(OpenLeague);
    EXPECT_FALSE(FollowAdvice(OpenWork(), 5, Side::Pro, 1, piece));
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0);
}

// A skater's slot and how it is spoken of: who is free, who stands there out of position.
struct SlotWords {
    LineField Field;
    int Number;
    int Place;
    const char* Better;
    const char* OutOfPosition;
};

constexpr SlotWords WordsOfSlots[] = {
    {LineField::NormalForward, 4, 1, " is on no line; line 4 plays 52 at C.", " plays C on line 4"},
    {LineField::NormalForward, 2, 2, " is on no line; line 2 plays 52 at LW.", " plays LW on line 2"},
    {LineField::NormalForward, 1, 3, " is on no line; line 1 plays 52 at RW.", " plays RW on line 1"},
    {LineField::NormalDefense, 3, 1, " is in no pair; pair 3 plays 52 at D.", " plays D in pair 3"},
    {LineField::NormalDefense, 1, 2, " is in no pair; pair 1 plays 52 at D.", " plays D in pair 1"},
    {LineField::PPForward, 2, 1, " is on no power play; power play 2 plays 52 at C.", " plays C on power play 2"},
    {LineField::PPForward, 1, 2, " is on no power play; power play 1 plays 52 at LW.", " plays LW on power play 1"},
    {LineField::PPForward, 1, 3, " is on no power play; power play 1 plays 52 at RW.", " plays RW on power play 1"},
    {LineField::PPDefense, 1, 1, " is on no power play; power play 1 plays 52 at D.", " plays D on power play 1"},
    {LineField::PPDefense, 2, 2, " is on no power play; power play 2 plays 52 at D.", " plays D on power play 2"},
    {LineField::PKForward, 1, 1, " is on no penalty kill; penalty kill 1 plays 52 at C.", " plays C on penalty kill 1"},
    {LineField::PKForward, 2, 2, " is on no penalty kill; penalty kill 2 plays 52 at W.", " plays W on penalty kill 2"},
    {LineField::PKDefense, 1, 1, " is on no penalty kill; penalty kill 1 plays 52 at D.", " plays D on penalty kill 1"},
    {LineField::PKDefense, 2, 2, " is on no penalty kill; penalty kill 2 plays 52 at D.", " plays D on penalty kill 2"},
    {LineField::FourVsFourForward, 1, 1, " is on no 4 vs 4; 4 vs 4 unit 1 plays 52 at C.", " plays C on 4 vs 4 unit 1"},
    {LineField::FourVsFourForward, 2, 2, " is on no 4 vs 4; 4 vs 4 unit 2 plays 52 at W.", " plays W on 4 vs 4 unit 2"},
    {LineField::FourVsFourDefense, 1, 1, " is on no 4 vs 4; 4 vs 4 unit 1 plays 52 at D.", " plays D on 4 vs 4 unit 1"},
    {LineField::FourVsFourDefense, 2, 2, " is on no 4 vs 4; 4 vs 4 unit 2 plays 52 at D.", " plays D on 4 vs 4 unit 2"},
    {LineField::PK3Forward, 2, 1, " is on no penalty kill of three; penalty kill of three 2 plays 52 at F.",
     " plays F on penalty kill of three 2"},
    {LineField::PK3Defense, 1, 1, " is on no penalty kill of three; penalty kill of three 1 plays 52 at D.",
     " plays D on penalty kill of three 1"},
    {LineField::PK3Defense, 2, 2, " is on no penalty kill of three; penalty kill of three 2 plays 52 at D.",
     " plays D on penalty kill of three 2"},
    {LineField::ExtraForward, 5, 1, " is no extra forward; extra forward 5 is 52.", " plays F as extra forward 5"},
    {LineField::ExtraDefense, 2, 1, " is no extra defenseman; extra defenseman 2 is 52.",
     " plays D as extra defenseman 2"},
};

TEST_F(LineAdviceTest, EverySlotOfASkaterHasItsWords)
{
    Players[1].Name = "Royce Mottford";
    Players[1].Position = position::Defense;
    Players[2].Name = "Cyril Slobansky";
    Players[2].Position = position::Center;
    for (const SlotWords& row : WordsOfSlots) {
        LineAdvice piece{.Kind = AdviceKind::Better,
                         .Who = PersonIn<Player>(2),
                         .Instead = PersonIn<Player>(1),
                         .Slot = DaySlots[0],
                         .At = SlotOf(row.Field, row.Number, row.Place),
                         .Figure = 64,
                         .Standing = 52};
        EXPECT_EQ(WordsOf(OpenLeague, piece), std::string("Cyril Slobansky (64, C)") + row.Better);
        piece.Kind = AdviceKind::OutOfPosition;
        EXPECT_EQ(WordsOf(OpenLeague, piece), std::string("Royce Mottford (D)") + row.OutOfPosition +
                                                  ", 52 there, though Cyril Slobansky (64, C) is free.");
        Players[1].Position = 9; // which has no letter
        EXPECT_EQ(WordsOf(OpenLeague, piece), std::string("Royce Mottford") + row.OutOfPosition +
                                                  ", 52 there, though Cyril Slobansky (64, C) is free.");
        Players[1].Position = position::Defense;
    }
    const LineAdvice shot{.Kind = AdviceKind::Better,
                          .Who = PersonIn<Player>(2),
                          .Instead = PersonIn<Player>(1),
                          .Slot = DaySlots[0],
                          .At = SlotOf(LineField::PenaltyShot, 1)};
    EXPECT_EQ(NumberOfFailure([&] { (void)WordsOf(OpenLeague, shot); }), failure::OutOfRange)
        << "nobody is better at it";
}

TEST_F(LineAdviceTest, ATeamOrADayThatIsNoneFails)
{
    for (const auto& [team, day] : {std::pair(0, 1), std::pair(101, 1), std::pair(5, 0), std::pair(5, 11)}) {
        try {
            (void)AdviceOn(OpenLeague, team, Side::Pro, day);
            ADD_FAILURE() << team << ' ' << day;
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.Number, failure::OutOfRange);
        }
    }
}

} // namespace
} // namespace dravik
