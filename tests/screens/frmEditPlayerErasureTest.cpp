#include "OnViewer.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ViewerErasure : public OnViewer {
protected:
    // Agrees to erase and to release, and says whether the person retires.
    void AnswerAll(int retires)
    {
        Machine.Answer(button::Yes);
        Machine.Answer(button::Yes);
        Machine.Answer(retires);
    }
    static std::vector<Box> QuestionsAbout(const std::string& name, const std::string& kind)
    {
        return {Box{36, "Are you sure you want to erase " + name + "?"},
                Box{36, name + " is hired by Harbour City Gulls! Do you want release the " + kind + "?"},
                Box{36, "Is " + name + " retiring?"}};
    }
    static void ExpectErased(const frmEditPlayer& viewer)
    {
        EXPECT_EQ(viewer.lstPlayer->count(), 0);
        EXPECT_FALSE(viewer.cmdErase->isEnabled());
        EXPECT_TRUE(Modified);
    }
};

TEST_F(ViewerErasure, ASkaterIsErasedWhetherHeRetiresOrIsReleased)
{
    for (const int retires : {button::Yes, button::No}) {
        frmEditPlayer& viewer = Edit(7);
        AnswerAll(retires);
        viewer.cmdErase_Click();
        EXPECT_EQ(Machine.TakeBoxes(), QuestionsAbout("Ward Tilton", "player")) << retires;
        ExpectErased(viewer);
        EXPECT_TRUE(Tilton().InUse);
        EXPECT_EQ(Tilton().Team, 5);
    }
}

TEST_F(ViewerErasure, AGoalieIsErasedWhetherHeRetiresOrIsReleased)
{
    for (const int retires : {button::Yes, button::No}) {
        frmEditPlayer& viewer = Edit(7, true);
        AnswerAll(retires);
        viewer.cmdErase_Click();
        EXPECT_EQ(Machine.TakeBoxes(), QuestionsAbout("Piet Vos", "goalie")) << retires;
        ExpectErased(viewer);
        EXPECT_TRUE(Vos().InUse);
        EXPECT_EQ(Vos().Team, 5);
    }
}

TEST_F(ViewerErasure, NobodyIsChosenInThePlaceOfWhoIsErased)
{
    frmEditPlayer& viewer = Edit(0);
    viewer.cmdErase_Click();
    ASSERT_EQ(viewer.lstPlayer->count(), 1);
    EXPECT_EQ(Entry(viewer, 0), "Piet Vos (G)");
    EXPECT_EQ(viewer.lstPlayer->currentRow(), -1);
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
    EXPECT_FALSE(viewer.cmdErase->isEnabled());
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{36, "Are you sure you want to erase Ward Tilton?"},
                            Box{36, "Ward Tilton is hired by Harbour City Gulls! Do you want release the player?"},
                            Box{36, "Is Ward Tilton retiring?"}));
}

TEST_F(ViewerErasure, EraseAsksOnceWithoutATeam)
{
    Tilton().Team = 0;
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdErase_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to erase Ward Tilton?"}));
    EXPECT_EQ(viewer.lstPlayer->count(), 0);
}

TEST_F(ViewerErasure, AnythingButYesKeepsTheEntry)
{
    frmEditPlayer& viewer = Edit(7);
    const Box first{36, "Are you sure you want to erase Ward Tilton?"};
    Machine.Answer(button::No);
    viewer.cmdErase_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(first));
    Machine.Answer(button::Yes);
    Machine.Answer(button::Cancel);
    viewer.cmdErase_Click();
    EXPECT_THAT(
        Machine.TakeBoxes(),
        ElementsAre(first, Box{36, "Ward Tilton is hired by Harbour City Gulls! Do you want release the player?"}));
    EXPECT_EQ(viewer.lstPlayer->count(), 1);
    EXPECT_TRUE(viewer.cmdErase->isEnabled());
    EXPECT_FALSE(Modified);
}

TEST_F(ViewerErasure, EraseWithoutACurrentEntryDoesNothing)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.lstPlayer->setCurrentRow(-1);
    viewer.cmdErase_Click();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(viewer.lstPlayer->count(), 1);
}

TEST_F(ViewerErasure, ErasingFromAnImpossibleTeamIsReported)
{
    frmEditPlayer& viewer = Edit(7);
    Tilton().Team = 101;
    viewer.cmdErase_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to erase Ward Tilton?"},
                                             Box{16, "9 - Subscript out of range in cmdErase!"}));
    EXPECT_EQ(viewer.lstPlayer->count(), 1);
}

} // namespace
} // namespace dravik
