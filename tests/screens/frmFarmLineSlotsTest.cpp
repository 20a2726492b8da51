#include "OnLineScreen.h"
#include "support/Routines.h"

#include <cstring>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The slots of the farm's lines: what a press puts there, what they show, and how they are judged.
class frmFarmLineSlotsTest : public OnLineScreen {
protected:
    // The farm's first people of each position, by the order in which a full roster is made.
    static constexpr int Center = 19;
    static constexpr int LeftWing = 20;
    static constexpr int RightWing = 21;
    static constexpr int Defender = 31;
    static constexpr int Keeper = 4;
    static constexpr int Placeholder = 32000;

    // Shows a day that is not there, as no path of the program does.
    static void GoBeyondTheLastDay(frmFarmLine& farm)
    {
        farm.vscDay->setMaximum(11);
        farm.vscDay->setValue(11);
    }

    // What is picked in the list, and what lands in a slot.
    struct Kind {
        int Id;
        int Position;
        int Stored;
        const char* Name;
    };
    static constexpr std::array<Kind, 7> Kinds{{{Center, position::Center, Center, "Skater 19"},
                                                {LeftWing, position::LeftWing, LeftWing, "Skater 20"},
                                                {RightWing, position::RightWing, RightWing, "Skater 21"},
                                                {Defender, position::Defense, Defender, "Skater 31"},
                                                {Keeper, position::Goalie, Keeper, "Goalie 4"},
                                                {Placeholder, position::Center, 0, "Unknown Player"},
                                                {Placeholder, position::Goalie, 0, "Unknown Goalie"}}};

    // The rule of a label by its name.
    static bool Accepts(const QString& label, const Kind& kind)
    {
        if (label == "lblStartGoaler" || label == "lblBackupGoaler")
            return kind.Position == position::Goalie;
        if (label.startsWith("lblExtraForward"))
            return kind.Position <= position::RightWing;
        if (label.startsWith("lblExtraDefense"))
            return kind.Position == position::Defense || (kind.Id == Placeholder && kind.Position != position::Goalie);
        return kind.Position != position::Goalie;
    }

    // Somebody whom no test picks.
    static int Standing(const BoardSlot& slot) { return slot.IsGoalies() ? 3 : 24; }
};

TEST_F(frmFarmLineSlotsTest, EverySlotTakesWhomItsRuleNamesAndNobodyElse)
{
    frmFarmLine& farm = FarmLine();
    ASSERT_EQ(farm.TabLine->Slots.size(), 69U);
    for (const Kind& kind : Kinds) {
        Pick(farm, kind.Id, kind.Position);
        for (BoardSlot& slot : farm.TabLine->Slots) {
            FarmDay() = {};
            slot.In(FarmDay()) = Standing(slot);
            slot.Label->SetName("before");
            ClickOn(farm, slot.Label);
            const bool accepts = Accepts(slot.Label->objectName(), kind);
            const std::string words = slot.Label->objectName().toStdString() + " and " + kind.Name;
            EXPECT_EQ(slot.In(FarmDay()), accepts ? kind.Stored : Standing(slot)) << words;
            EXPECT_EQ(Of(slot.Label), accepts ? kind.Name : "before") << words;
        }
    }
}

TEST_F(frmFarmLineSlotsTest, APressWritesOneSlotOfTheShownFarmDayAndNothingElse)
{
    PutGames(4, true);
    frmFarmLine& farm = FarmLine();
    farm.vscDay->setValue(2);
    FarmDay(2) = FarmDay(1);
    const auto proBefore = Own().ProLines;
    const Lines firstBefore = FarmDay(1);
    Lines expected = FarmDay(2);
    expected.NormalForward(4, 1) = Center;
    Pick(farm, Center, position::Center);
    ClickOn(farm, SlotOn(farm, LineField::NormalForward, 4, 1));
    EXPECT_EQ(std::memcmp(&FarmDay(2), &expected, sizeof expected), 0);
    EXPECT_EQ(std::memcmp(&FarmDay(1), &firstBefore, sizeof firstBefore), 0);
    EXPECT_EQ(std::memcmp(&Own().ProLines, &proBefore, sizeof proBefore), 0);
}

TEST_F(frmFarmLineSlotsTest, WithNoSelectionASlotClickDoesNothing)
{
    frmFarmLine& farm = FarmLine();
    SelectedPlayer = Center;
    const Lines before = FarmDay();
    ClickOn(farm, SlotOn(farm, LineField::NormalForward, 4, 1));
    EXPECT_EQ(std::memcmp(&FarmDay(), &before, sizeof before), 0);
    EXPECT_FALSE(Modified);
}

TEST_F(frmFarmLineSlotsTest, ARefusedClickMarksNothingAsChanged)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Keeper, position::Goalie);
    ClickOn(farm, SlotOn(farm, LineField::NormalForward, 1, 1));
    EXPECT_FALSE(Modified);
}

TEST_F(frmFarmLineSlotsTest, ClickingASlotWithUnknownPlayerEmptiesIt)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Placeholder, position::Center);
    SlotLabel* slot = SlotOn(farm, LineField::NormalForward, 1, 1);
    ClickOn(farm, slot);
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 0);
    EXPECT_EQ(Of(slot), "Unknown Player");
    EXPECT_EQ(slot->Shown(), SlotLabel::Mark::Empty);
    EXPECT_TRUE(Modified);
}

TEST_F(frmFarmLineSlotsTest, ClickingAGoaliesSlotWithUnknownGoalieEmptiesIt)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Placeholder, position::Goalie);
    ClickOn(farm, StartSlot(farm).Label);
    EXPECT_EQ(FarmDay().StartGoalie, 0);
    EXPECT_EQ(Of(StartSlot(farm).Label), "Unknown Goalie");
    EXPECT_EQ(FarmDay().BackupGoalie, 4);
}

TEST_F(frmFarmLineSlotsTest, TheExtraDefenseTakesThePlaceholderOfACenter)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Placeholder, position::Center);
    ClickOn(farm, SlotOn(farm, LineField::ExtraDefense, 2));
    EXPECT_EQ(FarmDay().ExtraDefense[2], 0);
    EXPECT_EQ(Of(SlotOn(farm, LineField::ExtraDefense, 2)), "Unknown Player");
}

TEST_F(frmFarmLineSlotsTest, TheExtraDefenseRefusesACenterAndThePlaceholderOfAGoalie)
{
    frmFarmLine& farm = FarmLine();
    const long long before = FarmDay().ExtraDefense[2];
    Pick(farm, Center, position::Center);
    ClickOn(farm, SlotOn(farm, LineField::ExtraDefense, 2));
    Pick(farm, Placeholder, position::Goalie);
    ClickOn(farm, SlotOn(farm, LineField::ExtraDefense, 2));
    EXPECT_EQ(FarmDay().ExtraDefense[2], before);
}

TEST_F(frmFarmLineSlotsTest, AFarmDefensemanGoesToThePenaltyShotsAndACenterToo)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Defender, position::Defense);
    ClickOn(farm, SlotOn(farm, LineField::PenaltyShot, 1));
    Pick(farm, Center + 9, position::Center);
    ClickOn(farm, SlotOn(farm, LineField::PenaltyShot, 2));
    EXPECT_EQ(FarmDay().PenaltyShot[1], Defender);
    EXPECT_EQ(FarmDay().PenaltyShot[2], Center + 9);
}

TEST_F(frmFarmLineSlotsTest, AClearedDayShowsThePlaceholdersInEverySlot)
{
    WipesLines(5, 1, false);
    const frmFarmLine& farm = FarmLine();
    for (const BoardSlot& slot : farm.TabLine->Slots) {
        EXPECT_EQ(Of(slot.Label), slot.IsGoalies() ? "Unknown Goalie" : "Unknown Player");
        EXPECT_EQ(slot.Label->Shown(), SlotLabel::Mark::Empty);
    }
}

TEST_F(frmFarmLineSlotsTest, EverySlotShowsTheTrimmedNameOfItsPerson)
{
    Players[Center].Name = "  Bo Lind ";
    frmFarmLine& farm = FarmLine();
    for (const BoardSlot& slot : farm.TabLine->Slots) {
        const long long id = slot.In(FarmDay());
        EXPECT_EQ(Of(slot.Label), slot.IsGoalies() ? Goalies[id].Name.Trimmed() : Players[id].Name.Trimmed());
    }
    EXPECT_EQ(Of(SlotOn(farm, LineField::NormalForward, 1, 1)), "Bo Lind");
}

TEST_F(frmFarmLineSlotsTest, ASlotBeyondTheTableFailsInPlaceAndInTheJudge)
{
    FarmDay().NormalForward(1, 1) = 10001;
    OpenFrom(MainWithLeague(), "FarmLine", "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"},
                                             Box{16, "9 - Subscript out of range in CheckLineFarm!"}));
    EXPECT_TRUE(TheStage.Find("FarmLine")->isVisible());
}

TEST_F(frmFarmLineSlotsTest, TheStrictJudgeFailsUnderTheProJudgesName)
{
    LeagueData.FarmRosterRequired = true;
    FarmDay().NormalForward(1, 1) = 10001;
    OpenFrom(MainWithLeague(), "FarmLine", "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"},
                                             Box{16, "9 - Subscript out of range in CheckLine!"}));
}

// A day that is not there fails in its lookups, after the mark of the change and before the verdict.
TEST_F(frmFarmLineSlotsTest, CheckMarksTheChangeFirstAndJudgesLast)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Center, position::Center);
    LeagueData.FarmRosterRequired = true;
    FarmDay().StartGoalie = 0;
    Modified = false;
    GoBeyondTheLastDay(farm);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"},
                                             Box{16, "9 - Subscript out of range in Check!"}));
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
    farm.vscDay->setValue(1);
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Incomplete");
    EXPECT_TRUE(farm.cmdDebug->isEnabled());
}

// The lookups stand before the judge, so that they still tell of the slots he takes away.
TEST_F(frmFarmLineSlotsTest, CheckTellsOfSlotsThatTheJudgeThenEmpties)
{
    FarmDay() = {};
    FarmDay().NormalForward(1, 1) = Center;
    frmFarmLine& farm = FarmLine();
    Pick(farm, Center, position::Center);
    Players[Center].Condition = 50;
    farm.Check();
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 0);
    EXPECT_EQ(Of(farm.lblPlaying), "(1) - L-1C, ");
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Incomplete");
    farm.Check();
    EXPECT_EQ(Of(farm.lblPlaying), "(0) - ");
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
}

TEST_F(frmFarmLineSlotsTest, WhomTheJudgeTookOutKeepsHisCaptionAndIsMarked)
{
    frmFarmLine& farm = FarmLine();
    Players[Center].Suspension = 3;
    farm.Check();
    SlotLabel* slot = SlotOn(farm, LineField::NormalForward, 1, 1);
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 0);
    EXPECT_EQ(Of(slot), "Skater 19");
    EXPECT_EQ(slot->Shown(), SlotLabel::Mark::Refused);
    farm.Place();
    EXPECT_EQ(Of(slot), "Unknown Player");
    EXPECT_EQ(slot->Shown(), SlotLabel::Mark::Empty);
}

TEST_F(frmFarmLineSlotsTest, APersonOnThePresentDayWhoIsDressedIsRefused)
{
    FarmDay(2).NormalForward(1, 1) = 1; // a pro
    PutGames(4, true);
    frmFarmLine& farm = FarmLine();
    farm.vscDay->setValue(2);
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Incomplete");
    EXPECT_EQ(FarmDay(2).NormalForward(1, 1), 0);
    EXPECT_EQ(SlotOn(farm, LineField::NormalForward, 1, 1)->Shown(), SlotLabel::Mark::Refused);
}

TEST_F(frmFarmLineSlotsTest, WithoutFarmTeamsAStrangerStandsUnmarked)
{
    LeagueData.FarmEnabled = false;
    FarmDay().NormalForward(1, 1) = 1;
    frmFarmLine& farm = FarmLine();
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 1);
    EXPECT_EQ(SlotOn(farm, LineField::NormalForward, 1, 1)->Shown(), SlotLabel::Mark::Filled);
}

TEST_F(frmFarmLineSlotsTest, TheSaveCommandOfTheTeamScreenIsNotTouched)
{
    ProDay().StartGoalie = 0;
    frmTeam& office = OpenTeam(5);
    ASSERT_FALSE(office.cmdSaveToFile->isEnabled());
    ProDay().StartGoalie = 1;
    OpenFrom(office, "FarmLine", "Team");
    auto& farm = static_cast<frmFarmLine&>(*TheStage.Find("FarmLine"));
    ASSERT_TRUE(CheckLine(5, false, 1, false));
    ASSERT_EQ(Of(farm.lblComplete), "Lines are Complete");
    EXPECT_FALSE(office.cmdSaveToFile->isEnabled());
    Click(farm.cmdExit);
    EXPECT_TRUE(office.cmdSaveToFile->isEnabled()); // the team screen looks at both sides itself
}

TEST_F(frmFarmLineSlotsTest, AHeadingAveragesTheFarmLineWithThePlaceholderInItsHole)
{
    FarmDay().NormalForward(2, 3) = 0;
    const std::array<int, 5> ratings{70, 60, 10, 50, 40};
    const std::array<long long, 5> members{FarmDay().NormalForward(2, 1), FarmDay().NormalForward(2, 2), 0,
                                           FarmDay().NormalDefense(2, 1), FarmDay().NormalDefense(2, 2)};
    for (std::size_t i = 0; i < members.size(); ++i)
        Players[members[i]].Stats[1] = ratings[i];
    frmFarmLine& farm = FarmLine();
    ClickOn(farm, farm.TabLine->Parts.Headings[1].Label);
    EXPECT_EQ(farm.frmStat->title(), "Normal " + farm.TabLine->Parts.Headings[1].Label->text());
    EXPECT_EQ(Of(farm.frmStat->lblStat[0]), "T");
    EXPECT_EQ(Of(farm.frmStat->lblStat[1]), "46");
}

TEST_F(frmFarmLineSlotsTest, ThePlaceholdersOverallCountsInALine)
{
    FarmDay().PK3Forward[1] = 0;
    for (auto& stat : Players[0].Stats)
        stat = 90;
    for (const long long id : {FarmDay().PK3Defense(1, 1), FarmDay().PK3Defense(1, 2)})
        for (auto& stat : Players[id].Stats)
            stat = 30;
    frmFarmLine& farm = FarmLine();
    ClickOn(farm, farm.findChild<QLabel*>("lblPK3Trio(1)"));
    EXPECT_EQ(Of(farm.frmStat->lblStatLabel[16]), "OV");
    EXPECT_EQ(Of(farm.frmStat->lblStat[16]), "50");
}

TEST_F(frmFarmLineSlotsTest, FailuresOfSlotsAndHeadingsAreToldUnderTheirNames)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Center, position::Center);
    GoBeyondTheLastDay(farm);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in Place!"},
                                                 Box{16, "9 - Subscript out of range in Check!"}));
    const auto expectFailure = [&](QWidget* pressed, const std::string& name) {
        ClickOn(farm, pressed);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in " + name + "!"}));
    };
    expectFailure(SlotOn(farm, LineField::NormalForward, 3, 2), "lblNormalTrioLW");
    expectFailure(SlotOn(farm, LineField::PK3Forward, 2), "lblPK3TrioC");
    expectFailure(SlotOn(farm, LineField::ExtraForward, 5), "lblExtraForward");
    expectFailure(farm.TabLine->Parts.Headings[0].Label, "lblNormalTrio");
    expectFailure(farm.TabLine->Parts.Headings[4].Label, "lblPPTrio");
    expectFailure(farm.TabLine->Parts.Headings[6].Label, "lbl44Trio");
    expectFailure(farm.TabLine->Parts.Headings[8].Label, "lblPKTrio");
    expectFailure(farm.TabLine->Parts.Headings[10].Label, "lblPK3Trio");
    EXPECT_TRUE(farm.isVisible());
}

TEST_F(frmFarmLineSlotsTest, StrategyPointsGoToTheFarmsDay)
{
    frmFarmLine& farm = FarmLine();
    farm.TabLine->setCurrentIndex(farm.TabLine->count() - 1);
    for (int presses = 0; presses < 3; ++presses)
        Press(farm.hscStats[1], Qt::Key_Right);
    EXPECT_EQ(FarmDay().Strategy[1], 3);
    EXPECT_EQ(ProDay().Strategy[1], 0);
    EXPECT_EQ(Of(farm.lblPoint), "2");
}

TEST_F(frmFarmLineSlotsTest, StrategyPullAndHeadingsAreThoseOfTheShownDay)
{
    PutGames(2, true);
    FarmDay(2) = FarmDay(1);
    FarmDay(2).NormalForward(1, 1) = Center + 9;
    FarmDay(1).Strategy[1] = 2;
    FarmDay(1).PullGoalerMinGoal = 3;
    for (const int id : {Center, Center + 9})
        Players[id].Stats[1] = id == Center ? 10 : 60;
    for (const long long id : {FarmDay(1).NormalForward(1, 2), FarmDay(1).NormalForward(1, 3),
                               FarmDay(1).NormalDefense(1, 1), FarmDay(1).NormalDefense(1, 2)})
        Players[id].Stats[1] = 10;
    frmFarmLine& farm = FarmLine();
    const Lines first = FarmDay(1);
    farm.vscDay->setValue(2);
    ClickOn(farm, farm.TabLine->Parts.Headings[0].Label);
    EXPECT_EQ(Of(farm.frmStat->lblStat[1]), "20");
    farm.TabLine->setCurrentIndex(farm.TabLine->count() - 1);
    Press(farm.hscStats[1], Qt::Key_Right);
    EXPECT_EQ(FarmDay(2).Strategy[1], 1);
    TypeInto(farm.txtPullGoalerMinGoal, "6");
    Press(farm.txtPullGoalerMinGoal, Qt::Key_Tab);
    EXPECT_EQ(FarmDay(2).PullGoalerMinGoal, 6);
    EXPECT_EQ(std::memcmp(&FarmDay(1), &first, sizeof first), 0);
}

TEST_F(frmFarmLineSlotsTest, ASumBeyondFiveFallsBack)
{
    FarmDay().Strategy[0] = 4;
    frmFarmLine& farm = FarmLine();
    farm.TabLine->setCurrentIndex(farm.TabLine->count() - 1);
    Press(farm.hscStats[2], Qt::Key_Right);
    Press(farm.hscStats[2], Qt::Key_Right);
    EXPECT_EQ(farm.hscStats[2]->value(), 1);
    EXPECT_EQ(Of(farm.lblStatsPoint[2]), "1");
    EXPECT_EQ(Of(farm.lblPoint), "0");
    EXPECT_EQ(FarmDay().Strategy[2], 1);
}

TEST_F(frmFarmLineSlotsTest, TheGoaliePullOfTheFarmsDayShowsTheDefaultAndTakesWhatIsTyped)
{
    LeagueData.PullGoalerMinGoalDefault = 4;
    LeagueData.PullGoalerMinPctDefault = 75;
    frmFarmLine& farm = FarmLine();
    EXPECT_EQ(farm.txtPullGoalerMinGoal->text(), "4");
    EXPECT_EQ(farm.txtPullGoalerMinPct->text(), "75");
    EXPECT_EQ(FarmDay().PullGoalerMinGoal, 0);
    farm.TabLine->setCurrentIndex(farm.TabLine->count() - 1);
    TypeInto(farm.txtPullGoalerMinGoal, "6");
    Press(farm.txtPullGoalerMinGoal, Qt::Key_Tab);
    EXPECT_EQ(FarmDay().PullGoalerMinGoal, 6);
    EXPECT_EQ(ProDay().PullGoalerMinGoal, 0);
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmFarmLineSlotsTest, ARefusedGoaliePullKeepsTheFocus)
{
    frmFarmLine& farm = FarmLine();
    farm.TabLine->setCurrentIndex(farm.TabLine->count() - 1);
    TypeInto(farm.txtPullGoalerMinPct, "many");
    Press(farm.txtPullGoalerMinPct, Qt::Key_Tab);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_TRUE(farm.txtPullGoalerMinPct->hasFocus());
    EXPECT_EQ(FarmDay().PullGoalerMinPct, 0);
    EXPECT_FALSE(Modified);
    farm.txtPullGoalerMinPct->setText("1"); // lets the screen go
}

TEST_F(frmFarmLineSlotsTest, EventsAreHeldBackWhileTheFocusGoesBackToARefusedText)
{
    frmFarmLine& farm = FarmLine();
    farm.TabLine->setCurrentIndex(farm.TabLine->count() - 1);
    for (EditBox* box : {farm.txtPullGoalerMinGoal, farm.txtPullGoalerMinPct}) {
        TypeInto(box, "x");
        EXPECT_THAT(GuardWhileFocusGoesTo(box, [&] { Press(box, Qt::Key_Tab); }), ElementsAre(true));
        EXPECT_FALSE(ListEventGuard);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
        TypeInto(box, "1");
    }
}

} // namespace
} // namespace dravik
