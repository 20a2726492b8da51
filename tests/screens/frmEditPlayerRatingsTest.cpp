#include "OnViewer.h"
#include "support/Routines.h"

// The boxes of the ratings.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ViewerRatings : public OnViewer {};

TEST_F(ViewerRatings, ARatingGoesIntoTheRecordAndTheOverallFollows)
{
    frmEditPlayer& viewer = Edit(7);
    const std::string before = Of(viewer.txtStats[16]);
    Enter(viewer.txtStats[skater::SC], "99");
    Enter(viewer.txtStats[skater::PA], "99");
    EXPECT_EQ(Tilton().Stats[skater::SC], 99);
    EXPECT_EQ(Of(viewer.txtStats[16]), std::to_string(CalculateOverall(2, 7)));
    EXPECT_NE(Of(viewer.txtStats[16]), before);
    EXPECT_TRUE(Modified);
    Enter(viewer.txtStats[skater::SC], "-7"); // a rating has no limits
    EXPECT_EQ(Tilton().Stats[skater::SC], -7);
}

TEST_F(ViewerRatings, ARatingOfAGoalieIsHis)
{
    frmEditPlayer& viewer = Edit(7, true);
    Enter(viewer.txtStats[13], "88");
    EXPECT_EQ(Vos().Stats[13], 88);
    EXPECT_EQ(Tilton().Stats[13], 60);
    EXPECT_EQ(Of(viewer.txtStats[14]), std::to_string(CalculateOverall(5, 7)));
}

TEST_F(ViewerRatings, InGroupsTheOverallsRowStoresIntoTheEighthRating)
{
    LeagueData.ShowAllRatings = false;
    PlayerStatCount = 7;
    GoalieStatCount = 7;
    frmEditPlayer& viewer = Edit(7);
    EXPECT_EQ(Rows(viewer).back(), "OV " + std::to_string(CalculateOverall(2, 7)));
    Enter(viewer.txtStats[8], "12");
    EXPECT_EQ(Tilton().Stats[8], 12);
    EXPECT_EQ(Rows(viewer).back(), "OV " + std::to_string(CalculateOverall(2, 7)));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    frmEditPlayer& goalie = Edit(7, true);
    Enter(goalie.txtStats[8], "13");
    EXPECT_EQ(Vos().Stats[8], 13);
    EXPECT_EQ(Rows(goalie).back(), "OV " + std::to_string(CalculateOverall(5, 7)));
    EXPECT_EQ(Tilton().Stats[8], 12);
}

TEST_F(ViewerRatings, InGroupsTheMeanGoesIntoTheRatingOfItsRow)
{
    LeagueData.ShowAllRatings = false;
    PlayerStatCount = 7;
    Tilton().Stats[1] = 30;
    Tilton().Stats[2] = 60;
    Tilton().Stats[3] = 90;
    frmEditPlayer& viewer = Edit(7);
    EXPECT_EQ(Rows(viewer).front(), "IT 60");
    Enter(viewer.txtStats[1], "60");
    EXPECT_EQ(Tilton().Stats[1], 60);
    EXPECT_EQ(Rows(viewer).front(), "IT 60"); // only the overall is worked out anew
    EXPECT_EQ(Tilton().Stats[2], 60);
    EXPECT_EQ(Tilton().Stats[3], 90);
}

TEST_F(ViewerRatings, TheOverallRowHasNoRatingToStoreInto)
{
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtStats[16], "80");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in txtStats!"}));
}

TEST_F(ViewerRatings, ARatingBoxSelectsItsTextWhenItGetsTheFocus)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.txtStats[2]->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(viewer.txtStats[2]->selectedText(), "60");
    Click(viewer.txtStats[5]);
    EXPECT_EQ(viewer.txtStats[5]->selectedText(), "60");
}

} // namespace
} // namespace dravik
