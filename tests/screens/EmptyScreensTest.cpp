#include "OnTeamScreen.h"
#include "screens/player/frmCoach.h"
#include "screens/player/frmProspect.h"

namespace dravik {
namespace {

using ::testing::IsEmpty;

// The screens behind the hidden commands of the team screen.
class EmptyScreens : public OnTeamScreen {
protected:
    // Presses a hidden command, made visible for the purpose.
    void PressHidden(QPushButton* command)
    {
        command->show();
        Click(command);
    }
};

TEST_F(EmptyScreens, TheCoachScreenIsAnEmptyScreenWithItsCaption)
{
    PressHidden(Office().cmdChangeCoach);
    Screen* coach = TheStage.Find("Coach");
    ASSERT_NE(dynamic_cast<frmCoach*>(coach), nullptr);
    EXPECT_TRUE(coach->isVisible());
    EXPECT_EQ(coach->windowTitle(), "Coach");
    EXPECT_LE(OffTheMiddle(*coach), 2);
    EXPECT_TRUE(coach->testAttribute(Qt::WA_Moved)) << "not left to the desktop";
    EXPECT_EQ(coach->centralWidget(), nullptr);
    EXPECT_THAT(coach->findChildren<QAbstractButton*>(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(EmptyScreens, TheFarmsCoachCommandOpensTheSameScreen)
{
    PressHidden(Office().cmdFarmChangeCoach);
    EXPECT_NE(dynamic_cast<frmCoach*>(TheStage.Find("Coach")), nullptr);
    EXPECT_EQ(ViewerReturnMode, 3);
}

TEST_F(EmptyScreens, TheProspectScreenIsAnEmptyScreenWithItsCaption)
{
    PressHidden(Office().cmdProspect);
    Screen* prospect = TheStage.Find("Prospect");
    ASSERT_NE(dynamic_cast<frmProspect*>(prospect), nullptr);
    EXPECT_TRUE(prospect->isVisible());
    EXPECT_EQ(prospect->windowTitle(), "Prospect");
    EXPECT_LE(OffTheMiddle(*prospect), 2);
    EXPECT_TRUE(prospect->testAttribute(Qt::WA_Moved)) << "not left to the desktop";
    EXPECT_EQ(prospect->centralWidget(), nullptr);
    EXPECT_THAT(prospect->findChildren<QAbstractButton*>(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(EmptyScreens, ClosingEitherShowsTheMainScreen)
{
    for (const auto& [command, name] :
         {std::pair(&frmTeam::cmdChangeCoach, "Coach"), std::pair(&frmTeam::cmdProspect, "Prospect")}) {
        PressHidden(OpenTeam(5).*command);
        ASSERT_NE(TheStage.Find(name), nullptr);
        TheStage.Find(name)->close();
        Settle();
        EXPECT_EQ(TheStage.Find(name), nullptr);
        EXPECT_TRUE(Main().isVisible()) << name;
        EXPECT_FALSE(TeamScreen()->isVisible()) << name;
    }
}

} // namespace
} // namespace dravik
