#include "OnViewer.h"

// What is ticked: the position and the flags.
namespace dravik {
namespace {

class ViewerOptions : public OnViewer {};

TEST_F(ViewerOptions, AnotherPositionGoesIntoRecordAndEntry)
{
    frmEditPlayer& viewer = Edit(7);
    Press(viewer.optPosition[4], Qt::Key_Space);
    EXPECT_EQ(Tilton().Position, 4);
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (D)");
    EXPECT_EQ(NumberAt(viewer, 0), 74);
    EXPECT_EQ(viewer.PlayerPosition(), 4);
}

TEST_F(ViewerOptions, PositionsAreLeftAloneWhileTheScreenSetsThemAndInNewRecords)
{
    frmEditPlayer& viewer = Edit(7);
    Tilton().Position = 4;
    viewer.lstPlayer_Click(); // ticks it
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (LW)");
    Tilton().Position = 2;
    viewer.lstPlayer_Click();
    viewer.cmdNewPlayer_Click();
    viewer.optPosition_Click(4);
    viewer.cmdNewGoaler_Click();
    viewer.optPosition_Click(4);
    EXPECT_EQ(Tilton().Position, 2);
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (LW)");
    EXPECT_FALSE(Modified);
}

TEST_F(ViewerOptions, FlagsCopyThemselvesToTheRecord)
{
    frmEditPlayer& viewer = Edit(7);
    Press(viewer.chkRookie, Qt::Key_Space);
    EXPECT_TRUE(Tilton().Rookie);
    Press(viewer.chkNoTrade, Qt::Key_Space);
    EXPECT_TRUE(Tilton().NoTrade);
    Press(viewer.chkNoApplyRerate, Qt::Key_Space);
    EXPECT_TRUE(Tilton().NoApplyRerate);
    Press(viewer.chkRookie, Qt::Key_Space);
    EXPECT_EQ(Tilton().Rookie.Word(), 0);
    EXPECT_FALSE(Vos().NoTrade);
}

TEST_F(ViewerOptions, FlagsOfAGoalieAreHisAndAreShown)
{
    struct Flag {
        QCheckBox* frmEditPlayer::*Box;
        Boolean Goalie::*Field;
    };
    for (const Flag& flag : {Flag{&frmEditPlayer::chkRookie, &Goalie::Rookie},
                             {&frmEditPlayer::chkNoTrade, &Goalie::NoTrade},
                             {&frmEditPlayer::chkNoApplyRerate, &Goalie::NoApplyRerate}}) {
        frmEditPlayer& viewer = Edit(7, true);
        for (const int word : {-1, 0, -1}) {
            Press(viewer.*flag.Box, Qt::Key_Space);
            EXPECT_EQ((Vos().*flag.Field).Word(), word);
            viewer.lstPlayer_Click(); // shows the record anew
            EXPECT_EQ((viewer.*flag.Box)->isChecked(), word == -1);
        }
    }
    EXPECT_FALSE(Tilton().Rookie);
    EXPECT_FALSE(Tilton().NoTrade);
    EXPECT_FALSE(Tilton().NoApplyRerate);
}

TEST_F(ViewerOptions, FlagsWaitForTheSaveOfANewRecord)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewGoaler_Click();
    Press(viewer.chkRookie, Qt::Key_Space);
    viewer.cmdNewPlayer_Click();
    Press(viewer.chkNoTrade, Qt::Key_Space);
    EXPECT_TRUE(viewer.chkRookie->isChecked());
    EXPECT_TRUE(viewer.chkNoTrade->isChecked());
    EXPECT_FALSE(Tilton().Rookie);
    EXPECT_FALSE(Tilton().NoTrade);
}

} // namespace
} // namespace dravik
