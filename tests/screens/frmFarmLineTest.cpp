#include "OnLineScreen.h"
#include "rules/Function.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmFarmLineTest : public OnLineScreen {};

TEST_F(frmFarmLineTest, OpeningShowsTheFarmsNameInBothTitles)
{
    const frmFarmLine& farm = FarmLine();
    EXPECT_EQ(farm.windowTitle(), "Dravik Hockey Simulator Client - Pebble Creek Ducks - Lines");
    EXPECT_EQ(Of(farm.lblTeamName), "Lines for Pebble Creek Ducks ");
    EXPECT_EQ(Of(farm.lblComplete), "Lines are Complete");
    EXPECT_EQ(farm.findChild<QPushButton*>("cmdPartialLine"), nullptr);
}

TEST_F(frmFarmLineTest, AClearedDayShowsThePlaceholdersInEverySlot)
{
    WipesLines(5, 1, false);
    const frmFarmLine& farm = FarmLine();
    for (const BoardSlot& slot : farm.TabLine->Slots)
        EXPECT_EQ(Of(slot.Label), slot.IsGoalies() ? "Unknown Goalie" : "Unknown Player");
}

TEST_F(frmFarmLineTest, PlaceholdersEndTheListOfALeagueThatRequiresNoFarmRoster)
{
    const Entries entries = Listed(FarmLine());
    ASSERT_EQ(entries.size(), 22U);
    EXPECT_EQ(entries[20], std::pair(std::string("Unknown Player"), 320001));
    EXPECT_EQ(entries[21], std::pair(std::string("Unknown Goalie"), 320005));
}

TEST_F(frmFarmLineTest, PlaceholdersAreNotListedWhereAFarmRosterIsRequired)
{
    LeagueData.FarmRosterRequired = true;
    EXPECT_EQ(Listed(FarmLine()).size(), 20U);
}

TEST_F(frmFarmLineTest, PickingThePlaceholderHidesTheRatingsAndEmptiesASlot)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, 32000, position::Center);
    EXPECT_EQ(SelectedPlayer, 0);
    for (int row = 1; row <= 16; ++row)
        EXPECT_TRUE(farm.frmStat->lblStat[row]->isHidden());
    ClickOn(farm, SlotOn(farm, LineField::NormalForward, 1, 1));
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 0);
    EXPECT_EQ(Of(SlotOn(farm, LineField::NormalForward, 1, 1)), "Unknown Player");
}

TEST_F(frmFarmLineTest, ASuspendedFarmPlayerIsNotListed)
{
    const auto before = Listed(FarmLine()).size();
    Click(FarmLine().cmdExit);
    Players[19].Suspension = 2;
    ASSERT_EQ(Players[19].Status, status::Farm);
    EXPECT_EQ(Listed(FarmLine()).size(), before - 1);
}

TEST_F(frmFarmLineTest, WipingLeavesTheProLinesOfTheDayAlone)
{
    const long long center = ProDay().NormalForward(1, 1);
    ASSERT_NE(center, 0);
    Click(FarmLine().cmdWipeLines);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to wipe your lines?"}));
    EXPECT_EQ(FarmDay().NormalForward(1, 1), 0);
    EXPECT_EQ(ProDay().NormalForward(1, 1), center);
}

TEST_F(frmFarmLineTest, ClosingWarnsOfAnIncompleteFirstDay)
{
    LeagueData.FarmRosterRequired = true;
    frmFarmLine& farm = FarmLine();
    FarmDay().StartGoalie = 0;
    Click(farm.cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Farm Lines for Day #1 are Incomplete!"}));
    EXPECT_TRUE(Main().isVisible());
}

} // namespace
} // namespace dravik
