#include "rules/RosterTexts.h"
#include "support/LineFindings.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

// It is the condition that makes a person unfit for the judges, never the text of his injury.
namespace dravik {
namespace {

// Team 5 has a full roster on both sides and perfect lines on day 1: skaters 1-18 and goalies 1-2 dressed, 19-36 and 3-4
// on the farm.
class FitPeopleTest : public SmallLeague {
protected:
    FitPeopleTest()
    {
        TeamMaker pro(5);
        pro.DressesFullRoster();
        FillDay(Teams[5].ProLines[1], pro);
        TeamMaker farm(5);
        farm.FarmsFullRoster();
        FillDay(Teams[5].Farm.FarmLines[1], farm);
        LeagueData.FarmRosterRequired = true;
    }

    template <class Person>
    static void Injure(Person& person, int condition, const char* injury)
    {
        person.Condition = condition;
        person.Injury = injury;
    }
    static void InjureEverybody(int condition, const char* injury)
    {
        for (int id = 1; id <= 36; ++id)
            Injure(Players[id], condition, injury);
        for (int id = 1; id <= 4; ++id)
            Injure(Goalies[id], condition, injury);
    }
};

TEST_F(FitPeopleTest, WithAnInjuryTextAt95EverybodyIsFitForTheRosterJudge)
{
    InjureEverybody(95, "Broken Leg");
    EXPECT_TRUE(CheckRoster(5, false, false, false));
    EXPECT_EQ(LastRosterText(), "");
}

TEST_F(FitPeopleTest, WithoutAnInjuryTextAt94NobodyIsFitForTheRosterJudge)
{
    Injure(Players[1], 94, "");
    Injure(Players[36], 94, "");
    Injure(Goalies[1], 94, "");
    Injure(Goalies[4], 94, "");
    EXPECT_FALSE(CheckRoster(5, false, false, false));
    EXPECT_EQ(
        LastRosterText(),
        RosterError("Team 5", {
                                  "Skater 1" + NotFit,
                                  "Goalie 1" + NotFit,
                                  "Not enough Goalie available in Pro Team! 1 Dressed. 2 Required.",
                                  "Not enough players available in Pro Team! 17 Dressed. 18 Required.",
                                  "Not enough Defenseman available in Pro and Farm Team! 11 Dressed. 12 Required.",
                                  "Not enough Goalie available in Pro and Farm Team! 2 Dressed. 4 Required.",
                                  "Not enough players available in Pro Team and Farm Team! 34 Dressed. 36 Required.",
                              }));
}

TEST_F(FitPeopleTest, WithAnInjuryTextAt95EverybodyIsFitForTheLineJudges)
{
    InjureEverybody(95, "Broken Leg");
    EXPECT_TRUE(CheckLine(5, false, 1, false));
    EXPECT_TRUE(CheckLineFarm(5, false, 1, false));
    LeagueData.FarmRosterRequired = false;
    EXPECT_TRUE(CheckLineFarm(5, false, 1, false));
}

TEST_F(FitPeopleTest, WithoutAnInjuryTextAt94NobodyIsFitForTheLineJudges)
{
    Injure(Goalies[1], 94, "");
    EXPECT_FALSE(CheckLine(5, false, 1, false));
    EXPECT_EQ(LastLinesText(), Told({"Goalie 1 is injured or suspended.", "Some errors will be automatically fixed."}));
    Injure(Goalies[4], 94, "");
    EXPECT_FALSE(CheckLineFarm(5, false, 1, false));
    EXPECT_EQ(LastLinesText(), Told({"Goalie 4 is injured or suspended."}));

    const auto refuses = [](const char* name) {
        return LastLinesText().starts_with(std::string(name) + " is injured or suspended.\r\n");
    };
    Injure(Players[1], 94, "");
    EXPECT_FALSE(CheckLine(5, false, 1, false));
    EXPECT_TRUE(refuses("Skater 1")) << LastLinesText();
    Injure(Players[19], 94, "");
    EXPECT_FALSE(CheckLineFarm(5, false, 1, false));
    EXPECT_TRUE(refuses("Skater 19")) << LastLinesText();
}

} // namespace
} // namespace dravik
