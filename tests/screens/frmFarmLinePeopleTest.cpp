#include "OnLineScreen.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

const std::pair<std::string, int> UnknownPlayer{"Unknown Player", 320001};
const std::pair<std::string, int> UnknownGoalie{"Unknown Goalie", 320005};

// The list of the farm's people, and what a pick in it shows.
class frmFarmLinePeopleTest : public OnLineScreen {
protected:
    // The farm's people are the skaters 19 to 36 and the goalies 3 and 4.
    static constexpr int Center = 19;
    static constexpr int Keeper = 3;

    bool IsListed(int id, int position) { return FarmLine().lstPlayer->RowOf(EntryNumber(id, position)) >= 0; }
    void ExpectRatingsHidden()
    {
        for (int row = 1; row <= 16; ++row) {
            EXPECT_TRUE(FarmLine().frmStat->lblStat[row]->isHidden()) << row;
            EXPECT_TRUE(FarmLine().frmStat->lblStatLabel[row]->isHidden()) << row;
        }
    }
    std::string RowOf(int row)
    {
        const StatPanel& panel = *FarmLine().frmStat;
        EXPECT_FALSE(panel.lblStat[row]->isHidden()) << row;
        return Of(panel.lblStatLabel[row]) + " " + Of(panel.lblStat[row]);
    }
};

TEST_F(frmFarmLinePeopleTest, TheListHoldsTheFarmInTheOrderOfTheTablesAndThePlaceholdersLast)
{
    const Entries entries = Listed(FarmLine());
    ASSERT_EQ(entries.size(), 22U);
    for (std::size_t row = 0; row < 18; ++row) {
        const int id = Center + static_cast<int>(row);
        EXPECT_EQ(entries[row], std::pair("Skater " + std::to_string(id), EntryNumber(id, Players[id].Position)));
    }
    EXPECT_EQ(entries[18], std::pair(std::string("Goalie 3"), 35));
    EXPECT_EQ(entries[19], std::pair(std::string("Goalie 4"), 45));
    EXPECT_EQ(entries[20], UnknownPlayer);
    EXPECT_EQ(entries[21], UnknownGoalie);
}

TEST_F(frmFarmLinePeopleTest, ThePlaceholdersGoByTheirTrimmedNames)
{
    Players[0].Name = "  Nobody in particular ";
    Goalies[0].Name = " Nobody in the net ";
    const Entries entries = Listed(FarmLine());
    EXPECT_EQ(entries[20].first, "Nobody in particular");
    EXPECT_EQ(entries[21].first, "Nobody in the net");
}

TEST_F(frmFarmLinePeopleTest, WithFarmRosterRequiredTrueTheTwoExtraEntriesAreNotInTheList)
{
    LeagueData.FarmRosterRequired = true;
    const Entries entries = Listed(FarmLine());
    EXPECT_EQ(entries.size(), 20U);
    EXPECT_EQ(entries.back(), std::pair(std::string("Goalie 4"), 45));
}

TEST_F(frmFarmLinePeopleTest, AFarmPlayerWhoIsSuspendedIsNotListed)
{
    Players[Center].Suspension = 2;
    Goalies[Keeper].Suspension = 1;
    EXPECT_FALSE(IsListed(Center, position::Center));
    EXPECT_FALSE(IsListed(Keeper, position::Goalie));
}

TEST_F(frmFarmLinePeopleTest, AConditionOfNinetyFiveIsListedAndOneBelowIsNot)
{
    Players[Center].Condition = 95;
    Players[Center + 1].Condition = 94;
    Goalies[3].Condition = 95;
    Goalies[4].Condition = 94;
    EXPECT_TRUE(IsListed(Center, position::Center));
    EXPECT_FALSE(IsListed(Center + 1, position::LeftWing));
    EXPECT_TRUE(IsListed(3, position::Goalie));
    EXPECT_FALSE(IsListed(4, position::Goalie));
}

TEST_F(frmFarmLinePeopleTest, ScratchedAndDressedPeopleAreNotListed)
{
    Players[Center].Status = status::Scratch;
    Goalies[Keeper].Status = status::Scratch;
    EXPECT_FALSE(IsListed(Center, position::Center));
    EXPECT_FALSE(IsListed(Keeper, position::Goalie));
    EXPECT_FALSE(IsListed(1, position::Center));
    EXPECT_FALSE(IsListed(1, position::Goalie));
}

TEST_F(frmFarmLinePeopleTest, PeopleOfAnotherTeamAreNotListed)
{
    Players[Center].Team = 6;
    Goalies[Keeper].Team = 6;
    EXPECT_FALSE(IsListed(Center, position::Center));
    EXPECT_FALSE(IsListed(Keeper, position::Goalie));
}

TEST_F(frmFarmLinePeopleTest, ARecordInUseByAWordOfOneIsNotListed)
{
    Players[Center].InUse.SetWord(1);
    Goalies[Keeper].InUse = false;
    EXPECT_FALSE(IsListed(Center, position::Center));
    EXPECT_FALSE(IsListed(Keeper, position::Goalie));
}

TEST_F(frmFarmLinePeopleTest, NeitherAContractNorAMissingOneMatters)
{
    Players[Center].Contract = 0;
    EXPECT_TRUE(IsListed(Center, position::Center));
}

TEST_F(frmFarmLinePeopleTest, ASkaterWithoutAPositionIsToldAndNotListed)
{
    Players[Center].Position = 0;
    OpenFrom(MainWithLeague(), "FarmLine", "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Skater 19 has no position!"}));
    EXPECT_FALSE(IsListed(Center, 0));
    EXPECT_EQ(Listed(FarmLine()).size(), 21U);
}

TEST_F(frmFarmLinePeopleTest, ASkaterWithTheGoaliesDigitHasNoPosition)
{
    Players[Center].Position = position::Goalie;
    OpenFrom(MainWithLeague(), "FarmLine", "Main");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Skater 19 has no position!"}));
    EXPECT_FALSE(IsListed(Center, position::Goalie));
    EXPECT_EQ(Listed(FarmLine()).size(), 21U);
}

TEST_F(frmFarmLinePeopleTest, ASkaterWithoutAPositionIsToldWhateverTheFilterSays)
{
    frmFarmLine& farm = FarmLine();
    for (QCheckBox* filter : farm.chkPosition)
        filter->setChecked(false);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    Players[Center].Position = 6;
    farm.ShowPlayer();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Skater 19 has no position!"}));
}

TEST_F(frmFarmLinePeopleTest, ASkaterWhoIsNotListedAnywayMayHaveNoPosition)
{
    Players[Center].Position = 0;
    Players[Center].Suspension = 1;
    OpenFrom(MainWithLeague(), "FarmLine", "Main");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmFarmLinePeopleTest, AFailureOfTheListIsToldUnderItsName)
{
    frmFarmLine& farm = FarmLine();
    Players[Center].Position = 0;
    Machine.OnEvent = [this](const std::string& event) {
        if (event == "box" && Machine.Boxes().size() == 1)
            Fail(failure::InvalidCall);
    };
    farm.ShowPlayer();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Skater 19 has no position!"},
                                             Box{16, "5 - Invalid procedure call or argument in ShowPlayer!"}));
    EXPECT_EQ(farm.lstPlayer->count(), 0);
    Machine.OnEvent = {};
}

TEST_F(frmFarmLinePeopleTest, EachFilterHidesItsPosition)
{
    frmFarmLine& farm = FarmLine();
    for (int position = position::Center; position <= position::Goalie; ++position) {
        Click(farm.chkPosition[position]);
        for (const auto& [name, number] : Listed(farm))
            EXPECT_TRUE(EntryPosition(number) != position || EntryId(number) == 32000) << name;
        Click(farm.chkPosition[position]);
        EXPECT_EQ(Listed(farm).size(), 22U);
    }
}

TEST_F(frmFarmLinePeopleTest, ThePlaceholdersAreListedWhateverTheFilterSays)
{
    frmFarmLine& farm = FarmLine();
    for (QCheckBox* filter : farm.chkPosition)
        Click(filter);
    EXPECT_THAT(Listed(farm), ElementsAre(UnknownPlayer, UnknownGoalie));
}

TEST_F(frmFarmLinePeopleTest, AFilterTakesTheChoiceAndLeavesThePersonAtHand)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Center, position::Center);
    Click(farm.chkPosition[position::Goalie]);
    EXPECT_EQ(farm.lstPlayer->Chosen(), nullptr);
    EXPECT_EQ(SelectedPlayer, Center);
    ExpectRatingsHidden();
    EXPECT_TRUE(farm.frmStat->lblStat[0]->isHidden());
    EXPECT_TRUE(farm.frmStat->lblStatLabel[0]->isHidden());
    ClickOn(farm, SlotOn(farm, LineField::NormalForward, 4, 3));
    EXPECT_NE(FarmDay().NormalForward(4, 3), Center);
}

TEST_F(frmFarmLinePeopleTest, APickShowsTheSkatersRatingsAndHisSlotsOnTheFarm)
{
    FarmDay() = {};
    FarmDay().NormalForward(2, 1) = Center;
    FarmDay().PenaltyShot[3] = Center;
    ProDay().NormalForward(4, 3) = Center;
    Players[Center].Stats[1] = 42;
    frmFarmLine& farm = FarmLine();
    Pick(farm, Center, position::Center);
    EXPECT_EQ(SelectedPlayer, Center);
    EXPECT_EQ(farm.SelectedPosition(), position::Center);
    EXPECT_FALSE(SelectedIsGoalie);
    EXPECT_EQ(Of(farm.frmStat->lblStat[0]), "C");
    EXPECT_FALSE(farm.frmStat->lblStatLabel[0]->isHidden());
    EXPECT_EQ(RowOf(1), "CK 42");
    EXPECT_EQ(RowOf(15).substr(0, 3), "PO ");
    EXPECT_EQ(RowOf(16).substr(0, 3), "OV ");
    EXPECT_EQ(Of(farm.lblPlaying), "(2) - L-2C, PS-3, ");
}

TEST_F(frmFarmLinePeopleTest, AGoalieShowsNoSlots)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Center, position::Center);
    Pick(farm, Keeper, position::Goalie);
    EXPECT_EQ(SelectedPlayer, Keeper);
    EXPECT_TRUE(SelectedIsGoalie);
    EXPECT_EQ(farm.SelectedPosition(), position::Goalie);
    EXPECT_EQ(Of(farm.frmStat->lblStat[0]), "G");
    EXPECT_EQ(RowOf(1).substr(0, 3), "SK ");
    EXPECT_EQ(RowOf(14).substr(0, 3), "OV ");
    EXPECT_TRUE(farm.frmStat->lblStat[15]->isHidden());
    EXPECT_TRUE(farm.frmStat->lblStat[16]->isHidden());
    EXPECT_EQ(Of(farm.lblPlaying), "");
}

TEST_F(frmFarmLinePeopleTest, APickKeepsTheCaptionOfThePanel)
{
    frmFarmLine& farm = FarmLine();
    const QString before = farm.frmStat->title();
    Pick(farm, Center, position::Center);
    EXPECT_EQ(farm.frmStat->title(), before);
    EXPECT_THAT(before.toStdString(), Not(IsEmpty()));
}

TEST_F(frmFarmLinePeopleTest, APickKeepsTheCaptionThatAHeadingLeft)
{
    frmFarmLine& farm = FarmLine();
    ClickOn(farm, farm.TabLine->Parts.Headings[1].Label);
    const QString heading = farm.frmStat->title();
    EXPECT_EQ(heading, "Normal " + farm.TabLine->Parts.Headings[1].Label->text());
    Pick(farm, Center, position::Center);
    EXPECT_EQ(farm.frmStat->title(), heading);
    Pick(farm, Keeper, position::Goalie);
    EXPECT_EQ(farm.frmStat->title(), heading);
}

TEST_F(frmFarmLinePeopleTest, PickingUnknownPlayerHidesTheStatRowsAndShowsNothingElse)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, Center + 3, position::Center);
    ASSERT_NE(Of(farm.lblPlaying), "");
    const QString caption = farm.frmStat->title();
    Pick(farm, 32000, position::Center);
    EXPECT_EQ(SelectedPlayer, 0);
    EXPECT_EQ(farm.SelectedPosition(), position::Center);
    EXPECT_FALSE(SelectedIsGoalie);
    ExpectRatingsHidden();
    EXPECT_FALSE(farm.frmStat->lblStat[0]->isHidden());
    EXPECT_EQ(farm.frmStat->title(), caption);
    EXPECT_EQ(Of(farm.lblPlaying), "");
}

TEST_F(frmFarmLinePeopleTest, PickingUnknownGoalieIsAGoalieWithoutANumber)
{
    frmFarmLine& farm = FarmLine();
    Pick(farm, 32000, position::Goalie);
    EXPECT_EQ(SelectedPlayer, 0);
    EXPECT_EQ(farm.SelectedPosition(), position::Goalie);
    EXPECT_TRUE(SelectedIsGoalie);
    ExpectRatingsHidden();
}

// The name of the one before must not stand over hidden ratings.
TEST_F(frmFarmLinePeopleTest, ThePlaceholderTakesTheNameOfTheOneBeforeOffThePanel)
{
    frmFarmLine& farm = FarmLine();
    const auto isNamed = [&](const QString& name) {
        const auto labels = farm.frmStat->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) { return label->text() == name; });
    };
    Pick(farm, Center, position::Center);
    EXPECT_TRUE(isNamed("Skater 19"));
    Pick(farm, 32000, position::Center);
    EXPECT_FALSE(isNamed("Skater 19"));
}

TEST_F(frmFarmLinePeopleTest, ThePlaceholderShowsNoSlotsThoughEverySlotIsEmpty)
{
    FarmDay() = {};
    frmFarmLine& farm = FarmLine();
    Pick(farm, 32000, position::Center);
    farm.Check();
    EXPECT_EQ(Of(farm.lblPlaying), "");
}

TEST_F(frmFarmLinePeopleTest, ASkaterAtHandFromElsewhereIsLookedUpOnOpening)
{
    FarmDay() = {};
    FarmDay().NormalForward(2, 1) = Center;
    MainWithLeague();
    SelectedPlayer = Center;
    SelectedIsGoalie = false;
    EXPECT_EQ(Of(FarmLine().lblPlaying), "(1) - L-2C, ");
}

TEST_F(frmFarmLinePeopleTest, AGoalieAtHandFromElsewhereIsNotLookedUpOnOpening)
{
    MainWithLeague();
    SelectedPlayer = Center; // a skater's number, too
    SelectedIsGoalie = true;
    EXPECT_EQ(Of(FarmLine().lblPlaying), "");
}

TEST_F(frmFarmLinePeopleTest, AFailureOfAPickIsToldUnderItsName)
{
    frmFarmLine& farm = FarmLine();
    PlayerStatCount = 17;
    Pick(farm, Center, position::Center);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in LstPlayer_Click!"}));
    EXPECT_TRUE(farm.isVisible());
}

} // namespace
} // namespace dravik
