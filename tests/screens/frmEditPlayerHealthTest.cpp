#include "OnViewer.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ViewerHealth : public OnViewer {};

TEST_F(ViewerHealth, ConditionStaysWithinZeroAndOneHundred)
{
    frmEditPlayer& viewer = Edit(7);
    for (const Typing& typing : {Typing{"101", 100}, {"-1", 0}, {"94", 94}, {"300", 100}}) {
        Enter(viewer.txtCondition, typing.Text);
        EXPECT_EQ(Tilton().Condition, typing.Stored);
        EXPECT_EQ(Of(viewer.txtCondition), std::to_string(typing.Stored));
    }
}

TEST_F(ViewerHealth, SuspensionStaysWithinZeroAndNinetyNine)
{
    frmEditPlayer& viewer = Edit(7);
    for (const Typing& typing : {Typing{"100", 99}, {"-1", 0}, {"99", 99}, {"12", 12}}) {
        Enter(viewer.txtSuspension, typing.Text);
        EXPECT_EQ(Tilton().Suspension, typing.Stored);
        EXPECT_EQ(Of(viewer.txtSuspension), std::to_string(typing.Stored));
    }
}

TEST_F(ViewerHealth, TheInjuryIsOpenBelowAConditionOf100AndClosedFromThereOn)
{
    for (const bool isGoalie : {false, true}) {
        frmEditPlayer& viewer = Edit(7, isGoalie);
        for (const auto& [condition, open] : {std::pair(99, true), {100, false}, {0, true}, {101, false}, {95, true}}) {
            Tilton().Condition = isGoalie ? 1 : condition;
            Vos().Condition = isGoalie ? condition : 1;
            Tilton().Injury = "Knee";
            Vos().Injury = "Groin";
            viewer.lstPlayer_Click();
            EXPECT_EQ(viewer.txtInjury->isEnabled(), open) << condition << (isGoalie ? " goalie" : " skater");
            EXPECT_EQ(Of(viewer.txtInjury), !open ? "" : isGoalie ? "Groin" : "Knee");
        }
    }
}

TEST_F(ViewerHealth, ConditionBelow95InjuresAndTakesOutOfTheLines)
{
    DressForLines();
    frmEditPlayer& viewer = Edit(7);
    viewer.txtInjury->setEnabled(false);
    Enter(viewer.txtCondition, "94");
    EXPECT_EQ(Tilton().Condition, 94);
    EXPECT_TRUE(viewer.txtInjury->isEnabled());
    EXPECT_TRUE(viewer.txtInjury->hasFocus());
    EXPECT_EQ(Of(viewer.txtInjury), "");
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Unknown");
    EXPECT_TRUE(viewer.Changed());
    EXPECT_EQ(Tilton().Status, 1);
    EXPECT_EQ(Teams[5].ProLines[2].PenaltyShot[2], 0);
    EXPECT_EQ(Teams[5].ProLines[2].PenaltyShot[1], 107);
    EXPECT_EQ(Teams[5].ProLines[2].StartGoalie, 7);
    EXPECT_EQ(RosterChanges[7].Status, 10); // untouched
    Enter(viewer.txtInjury, "Left knee");
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Left knee");
}

TEST_F(ViewerHealth, AnUnknownInjuryIsShownWhenItsEmptyBoxIsLeft)
{
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtCondition, "94");
    EXPECT_TRUE(viewer.txtInjury->hasFocus());
    Press(viewer.txtInjury, Qt::Key_Tab);
    EXPECT_EQ(Of(viewer.txtInjury), "Unknown");
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Unknown");
}

TEST_F(ViewerHealth, AnInjuryThatStandsInItsBoxStaysThereForTheFocus)
{
    Tilton().Condition = 97;
    Tilton().Injury = "Knee";
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtCondition, "90");
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Unknown");
    EXPECT_EQ(Of(viewer.txtInjury), "Knee");
    Press(viewer.txtInjury, Qt::Key_Tab);
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Knee");
}

TEST_F(ViewerHealth, ConditionFallingFurtherBelow95ChangesNothingElse)
{
    Tilton().Condition = 94;
    Tilton().Injury = "Knee";
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtCondition, "80");
    EXPECT_EQ(Tilton().Condition, 80);
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Knee");
    EXPECT_EQ(Tilton().Status, 2);
    EXPECT_FALSE(viewer.Changed());
}

TEST_F(ViewerHealth, OnlyAStatusOfTwoBecomesOne)
{
    Tilton().Status = 0;
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtCondition, "0");
    EXPECT_EQ(Tilton().Status, 0);
    EXPECT_TRUE(viewer.Changed());
}

TEST_F(ViewerHealth, ConditionOf95HealsAndClearsTheInjury)
{
    Tilton().Condition = 90;
    Tilton().Injury = "Knee";
    Tilton().Status = 1;
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtCondition, "95");
    EXPECT_EQ(Tilton().Condition, 95);
    EXPECT_EQ(Tilton().Injury.Trimmed(), "");
    EXPECT_EQ(Of(viewer.txtInjury), "");
    EXPECT_FALSE(viewer.txtInjury->isEnabled());
    EXPECT_EQ(Tilton().Status, 1);
    EXPECT_FALSE(viewer.Changed());
}

TEST_F(ViewerHealth, AnyConditionOf95OrMoreClearsTheInjuryWhereverItComesFrom)
{
    frmEditPlayer& viewer = Edit(7);
    for (const auto& [before, now] : {std::pair(94, "95"), {97, "98"}, {97, "97"}, {99, "95"}, {97, "100"}}) {
        Tilton().Condition = before;
        Tilton().Injury = "Knee";
        viewer.lstPlayer_Click();
        EXPECT_EQ(Of(viewer.txtInjury), "Knee");
        Enter(viewer.txtCondition, now);
        EXPECT_EQ(Tilton().Injury.Trimmed(), "") << before << " to " << now;
        EXPECT_EQ(Of(viewer.txtInjury), "");
        EXPECT_FALSE(viewer.txtInjury->isEnabled());
    }
    EXPECT_EQ(Tilton().Status, 2);
    EXPECT_FALSE(viewer.Changed());
}

TEST_F(ViewerHealth, AHealedGoalieLosesHisInjury)
{
    Vos().Condition = 60;
    Vos().Injury = "Groin";
    Tilton().Injury = "Knee";
    frmEditPlayer& viewer = Edit(7, true);
    EXPECT_EQ(Of(viewer.txtInjury), "Groin");
    Enter(viewer.txtCondition, "96");
    EXPECT_EQ(Vos().Injury.Trimmed(), "");
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Knee");
}

TEST_F(ViewerHealth, AnInjuredGoalieStaysInTheLinesAndTheSkaterOfHisIdPlus100LeavesThem)
{
    DressForLines();
    frmEditPlayer& viewer = Edit(7, true);
    Enter(viewer.txtCondition, "50");
    EXPECT_EQ(Vos().Condition, 50);
    EXPECT_EQ(Vos().Status, 1);
    EXPECT_EQ(Vos().Injury.Trimmed(), "Unknown");
    EXPECT_EQ(Teams[5].ProLines[2].StartGoalie, 7);
    EXPECT_EQ(Teams[5].ProLines[2].PenaltyShot[1], 0);
    EXPECT_EQ(Teams[5].ProLines[2].PenaltyShot[2], 7);
    EXPECT_EQ(Players[107].Status, 2);
}

TEST_F(ViewerHealth, ASuspensionBenchesAndTakesOutOfTheLines)
{
    DressForLines();
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtSuspension, "3");
    EXPECT_EQ(Tilton().Suspension, 3);
    EXPECT_TRUE(viewer.Changed());
    EXPECT_EQ(Tilton().Status, 1);
    EXPECT_EQ(Teams[5].ProLines[2].PenaltyShot[2], 0);
    EXPECT_EQ(Teams[5].ProLines[2].PenaltyShot[1], 107);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerHealth, ASuspendedGoalieIsWipedByTheSameWrongNumber)
{
    DressForLines();
    frmEditPlayer& viewer = Edit(7, true);
    Enter(viewer.txtSuspension, "3");
    EXPECT_EQ(Vos().Status, 1);
    EXPECT_EQ(Teams[5].ProLines[2].StartGoalie, 7);
    EXPECT_EQ(Teams[5].ProLines[2].PenaltyShot[1], 0);
}

TEST_F(ViewerHealth, ALongerSuspensionAndItsEndChangeNothingElse)
{
    Tilton().Suspension = 3;
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtSuspension, "5");
    Enter(viewer.txtSuspension, "0");
    EXPECT_EQ(Tilton().Suspension, 0);
    EXPECT_EQ(Tilton().Status, 2);
    EXPECT_FALSE(viewer.Changed());
}

TEST_F(ViewerHealth, WithoutATeamThereAreNoLinesToLeave)
{
    Tilton().Team = 0;
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtSuspension, "3");
    Enter(viewer.txtCondition, "40");
    EXPECT_EQ(Tilton().Status, 1);
    EXPECT_TRUE(viewer.Changed());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerHealth, ASuspensionInAnImpossibleTeamIsReported)
{
    frmEditPlayer& viewer = Edit(7);
    Tilton().Team = 101;
    Enter(viewer.txtSuspension, "3");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"},
                                             Box{16, "9 - Subscript out of range in txtSuspension!"}));
    EXPECT_EQ(Tilton().Suspension, 3);
}

} // namespace
} // namespace dravik
