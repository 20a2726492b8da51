#include "makers/Makers.h"
#include "session/Session.h"
#include "support/SmallLeague.h"

#include <functional>
#include <new>
#include <optional>
#include <stdexcept>

// What a maker says of its run: whether it came to its end, the number of the failure that ended it, and what the judgement
// of the roster did.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::optional<int> NoFailure;
constexpr std::optional<bool> NotJudged;

const Box Integrity{box::Critical, "Integrity Check Failed!"};
Box Broken(const std::string& words) { return {box::Critical, words}; }

// Team 5 has a full roster, skaters 1-18 and goalies 1-2, and a full farm behind it.
class MadeTest : public SmallLeague {
protected:
    MadeTest() : team(5) { team.DressesFullRoster().FarmsFullRoster(); }

    static Made Roster(int number = 5) { return AutoRoster(OpenWork(), number, false, false); }
    static Made PartialRoster(int number = 5) { return AutoRoster(OpenWork(), number, false, true); }
    static Made ProLines(int number = 5, int day = 1) { return AutoLines(OpenWork(), number, false, day); }
    static Made PartialLines(int number = 5, int day = 1) { return AutoLinesPartial(OpenWork(), number, false, day); }
    static Made FarmLines(int number = 5, int day = 1) { return AutoLinesFarm(OpenWork(), number, false, day); }

    static void ExpectMade(const Made& made, const std::optional<bool>& rosterRepaired)
    {
        EXPECT_TRUE(made.Done);
        EXPECT_EQ(made.Failed, NoFailure);
        EXPECT_EQ(made.RosterRepaired, rosterRepaired);
    }
    static void ExpectStopped(const Made& made, const std::optional<int>& failed)
    {
        EXPECT_FALSE(made.Done);
        EXPECT_EQ(made.Failed, failed);
    }

    TeamMaker team;
};

TEST_F(MadeTest, ARunThatComesToItsEndIsDone)
{
    ExpectMade(Roster(), NotJudged);
    ExpectMade(PartialRoster(), NotJudged);
    ExpectMade(ProLines(), false);
    ExpectMade(PartialLines(), false);
    ExpectMade(PartialLines(5, 2), false); // an empty day, which is made by AutoLines
    ExpectMade(FarmLines(), NotJudged);
    LeagueData.FarmRosterRequired = true;
    ExpectMade(FarmLines(), false);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(MadeTest, ATeamOutOfRangeIsToldAndNoFailure)
{
    for (const int number : {-1, 0, 101}) {
        for (const bool required : {false, true}) {
            LeagueData.FarmRosterRequired = required;
            for (const Made& made :
                 {Roster(number), PartialRoster(number), ProLines(number), PartialLines(number), FarmLines(number)}) {
                ExpectStopped(made, NoFailure);
                EXPECT_EQ(made.RosterRepaired, NotJudged);
            }
        }
        EXPECT_EQ(Machine.TakeBoxes(), std::vector<Box>(10, Integrity));
    }
}

TEST_F(MadeTest, ATeamWithTooFewPeopleIsNoFailure)
{
    LeagueData.RequiredCenters = 20;
    ExpectStopped(Roster(), NoFailure);
    ExpectStopped(PartialRoster(), NoFailure);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    Teams[5].ProLines[1].NormalForward(1, 1) = 1; // no empty day
    const Made all[] = {ProLines(), PartialLines()};
    for (const Made& made : all) {
        ExpectStopped(made, NoFailure);
        EXPECT_EQ(made.RosterRepaired, false);
    }
    const Box incomplete{box::Information,
                         "Roster for Team 5 is incomplete!\r\nTrying Auto Rosters Function for Team 5."};
    const Box still{box::Information, "Roster for Team 5 is still incomplete!\r\nCannot make lines for Team 5."};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(incomplete, still, incomplete, still));
}

TEST_F(MadeTest, TooFewGoaliesStopTheMakerOfRosters)
{
    for (const int goalie : team.GoalieIds)
        Goalies[goalie].Contract = 0;
    ExpectStopped(Roster(), NoFailure);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(MadeTest, TheLastJudgementOfTheRosterSaysWhetherSomebodyWasMoved)
{
    PutSkater(50, 5, position::Center, status::Pro).Condition = 94; // a nineteenth
    ExpectMade(ProLines(), true);
    EXPECT_EQ(Players[50].Status, status::Scratch);
    ExpectMade(ProLines(), false);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());

    Players[1].Condition = 94; // the first judgement moves him, and the roster is made before the last one
    ExpectMade(ProLines(), false);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{box::Information,
                                "Roster for Team 5 is incomplete!\r\nTrying Auto Rosters Function for Team 5."}));
}

TEST_F(MadeTest, ADayOutOfRangeEndsTheMakersOfLinesWith9)
{
    for (const int day : {0, 11}) {
        ExpectStopped(ProLines(5, day), failure::OutOfRange);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Integrity, Broken("9 - Subscript out of range in AutoLines!")));
        ExpectStopped(PartialLines(5, day), failure::OutOfRange);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Integrity, Broken("9 - Subscript out of range in AutoLinesPartial!")));
        for (const bool required : {false, true}) {
            LeagueData.FarmRosterRequired = required;
            ExpectStopped(FarmLines(5, day), failure::OutOfRange);
            EXPECT_THAT(Machine.TakeBoxes(),
                        ElementsAre(Integrity, Broken(required ? "9 - Subscript out of range in AutoLines!"
                                                               : "9 - Subscript out of range in AutoLinesFarm!")));
        }
        LeagueData.FarmRosterRequired = false;
    }
}

TEST_F(MadeTest, AnOverflowEndsTheMakerOfRostersWith6)
{
    LeagueData.ProDressedSkaters = -32768;
    ExpectStopped(Roster(), failure::Overflow);
    ExpectStopped(PartialRoster(), failure::Overflow);
    EXPECT_EQ(Machine.Boxes(), std::vector<Box>(2, Broken("6 - Overflow in AutoRoster!")));
}

TEST_F(MadeTest, ASkaterWithoutAPositionEndsTheMakerOfRostersWith9)
{
    PutSkater(50, 5, 0, status::Farm, 50);
    ExpectStopped(Roster(), failure::OutOfRange);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Broken("9 - Subscript out of range in AutoRoster!")));
}

// An empty day is made by AutoLines, whose failure is that of the run.
TEST_F(MadeTest, AFailureOfTheMakerThatAnotherCallsIsItsOwnToo)
{
    LeagueData.ProDressedSkaters = 20;
    PutSkater(50, 5, 0, status::Pro, 50);
    const Box told[] = {Broken("Skater 50 has no position!"), Broken("9 - Subscript out of range in AutoLines!")};
    const Made made = PartialLines();
    ExpectStopped(made, failure::OutOfRange);
    EXPECT_EQ(made.RosterRepaired, false);
    EXPECT_THAT(Machine.Boxes(), ::testing::ElementsAreArray(told));
}

TEST_F(MadeTest, ASlotOutsideTheTableEndsTheMakerThatRepairsWith9)
{
    ExpectMade(ProLines(), false);
    Teams[5].ProLines[1].NormalForward(2, 1) = 10001;
    const Made made = PartialLines();
    ExpectStopped(made, failure::OutOfRange);
    EXPECT_EQ(made.RosterRepaired, false);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Broken("9 - Subscript out of range in AutoLinesPartial!")));
}

TEST_F(MadeTest, AHoleThatNobodyFillsIsNoFailure)
{
    LeagueData.RequiredDefensemen = 4;
    LeagueData.ProDressedSkaters = 20;
    for (const int skater : {17, 18})
        Players[skater].Position = position::Center;
    Teams[5].ProLines[1].NormalForward(1, 1) = 1;
    ExpectStopped(PartialLines(), NoFailure); // four defensemen cannot be five extra ones
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Information, "Auto Lines Partial Function Error."}));
}

// The box that would tell of the team ends in one failure or another.
TEST_F(MadeTest, WhateverABoxEndsInIsTheNumberOfTheRun)
{
    struct Kind {
        std::function<void()> Throw;
        int Number;
        std::string Told;
    };
    const Kind kinds[] = {
        {[] { Fail(failure::DiskFull); }, failure::DiskFull, "61 - Disk full"},
        {[] { throw std::bad_alloc(); }, failure::OutOfMemory, "7 - Out of memory"},
        {[] { throw std::logic_error("any other"); }, failure::InvalidCall, "5 - Invalid procedure call or argument"},
    };
    struct Maker {
        std::function<Made()> Run;
        std::string Ending;
    };
    const Maker makers[] = {
        {[] { return Roster(0); }, " in AutoRoster!"},
        {[] { return ProLines(0); }, " in AutoLines!"},
        {[] { return PartialLines(0); }, " in AutoLinesPartial!"},
        {[] { return FarmLines(0); }, " in AutoLinesFarm!"},
    };
    for (const Kind& kind : kinds)
        for (const Maker& maker : makers) {
            Machine.OnEvent = [&](const std::string&) {
                const auto once = kind.Throw; // the listener ends here, and what it holds
                Machine.OnEvent = nullptr;
                once();
            };
            ExpectStopped(maker.Run(), kind.Number);
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Integrity, Broken(kind.Told + maker.Ending)));
        }
}

// The success box comes before a run of lines is done.
TEST_F(MadeTest, ASuccessThatCannotBeToldIsAFailure)
{
    const auto failOnce = [this](const std::string&) {
        Machine.OnEvent = nullptr;
        Fail(failure::OutOfMemory);
    };
    Machine.OnEvent = failOnce;
    ExpectStopped(AutoRoster(OpenWork(), 5, true, false), failure::OutOfMemory);
    Machine.OnEvent = failOnce;
    ExpectStopped(AutoLines(OpenWork(), 5, true, 1), failure::OutOfMemory);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Information, "Auto Roster Function has been run successfully."},
                                             Broken("7 - Out of memory in AutoRoster!"),
                                             Box{box::Information, "Auto Lines Function has been run successfully."},
                                             Broken("7 - Out of memory in AutoLines!")));
}

} // namespace
} // namespace dravik
