#include "OnRosterScreen.h"

#include "support/Routines.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int DeadlinePassedAndInForce = 3;

class frmRosterStatsTest : public OnRosterScreen {
protected:
    // What the stat panel shows from row 1 on.
    std::vector<std::string> PanelRows()
    {
        std::vector<std::string> rows;
        for (int row = 1; row <= 16; ++row)
            if (IsShown(Roster().Stats->lblStat[row]))
                rows.push_back(Of(Roster().Stats->lblStatLabel[row]) + " " + Of(Roster().Stats->lblStat[row]));
        return rows;
    }
};

TEST_F(frmRosterStatsTest, StatPanelShowsAllRatingsOfASkaterWithHisOverallBehindThem)
{
    Player& player = PutSkater(1, 5, position::Center, status::Pro);
    for (int stat = 1; stat <= 15; ++stat)
        player.Stats[stat] = 40 + stat;
    ClickEntry(2, 0);
    const int overall = CalculateOverall(position::Center, 1);
    EXPECT_THAT(PanelRows(),
                ElementsAre("CK 41", "FG 42", "DI 43", "SK 44", "ST 45", "DU 46", "PH 47", "FO 48", "PA 49", "SC 50",
                            "DF 51", "EX 52", "LD 53", "MO 54", "PO 55", "OV " + std::to_string(overall)));
    EXPECT_EQ(Roster().PlayerOverall(), overall);
}

TEST_F(frmRosterStatsTest, StatPanelShowsTheGroupsOfAGoalieWithHisOverallInTheEighthRow)
{
    ShowAllRatings(false);
    Goalie& keeper = PutGoalie(1, 5, status::Pro);
    for (int stat = 1; stat <= 13; ++stat)
        keeper.Stats[stat] = 40 + stat;
    ClickEntry(2, 0);
    const int overall = CalculateOverall(position::Goalie, 1);
    EXPECT_THAT(PanelRows(), ElementsAre("PH 43", "RD 46", "SC 47", "HS 48", "RT 49", "ME 51", "PO 53",
                                         "OV " + std::to_string(overall)));
    EXPECT_EQ(Roster().PlayerOverall(), overall);
}

TEST_F(frmRosterStatsTest, TheOverallHasNoRowWhereTheLeagueHidesItButTheScreenKnowsIt)
{
    LeagueData.ShowOverall = false;
    PutSkater(1, 5, position::Center, status::Pro, 66);
    PutGoalie(1, 5, status::Pro, 55);
    ClickEntry(2, 0);
    EXPECT_EQ(PanelRows().size(), 15U);
    EXPECT_EQ(Roster().PlayerOverall(), CalculateOverall(position::Center, 1));
    ClickEntry(2, 1);
    EXPECT_EQ(PanelRows().size(), 13U);
    EXPECT_EQ(Roster().PlayerOverall(), CalculateOverall(position::Goalie, 1));
}

TEST_F(frmRosterStatsTest, NumbersOfTheStatPanelStandAtTheRight)
{
    for (const QLabel* number : Roster().Stats->lblStat)
        EXPECT_TRUE(number->alignment() & Qt::AlignRight);
}

TEST_F(frmRosterStatsTest, AGoalieNumberOutOfRangeEndsTheStatPanel)
{
    PutSkater(1, 5, position::Center, status::Pro, 66);
    ClickEntry(2, 0);
    SelectedIsGoalie = true;
    for (const int id : {-1, 1001, 10001}) {
        SelectedPlayer = id;
        Roster().ShowStats();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"})) << id;
    }
    EXPECT_EQ(Roster().PlayerOverall(), CalculateOverall(position::Center, 1));
}

TEST_F(frmRosterStatsTest, ASkaterNumberOutOfRangeIsAFailureOfTheStatPanel)
{
    Roster();
    SelectedPlayer = 10001;
    Roster().ShowStats();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in ShowStats!"}));
}

TEST_F(frmRosterStatsTest, ClickEnablesTheCommandsOfOnePerson)
{
    PutSkater(1, 5, position::Center, status::Pro);
    ClickEntry(2, 0);
    frmRoster& roster = Roster();
    for (const QWidget* enabled : std::initializer_list<QWidget*>{
             roster.cmdTradeAvailable, roster.cmdCaptain, roster.cmdAssistant, roster.cmdRelease, roster.chkProtected,
             roster.chkNoApplyRerate, roster.chkNoTrade})
        EXPECT_TRUE(enabled->isEnabled()) << enabled->objectName().toStdString();
    EXPECT_FALSE(roster.cmdSendToWaiver->isEnabled());
}

TEST_F(frmRosterStatsTest, WaiversAreOpenWhereTheLeagueAllowsThemUntilTheDeadlineHasPassedAndIsInForce)
{
    LeagueData.WaiverAllowed = true;
    PutSkater(1, 5, position::Center, status::Pro);
    for (int both = 0; both <= DeadlinePassedAndInForce; ++both) {
        LeagueData.TradeDeadlinePassed = (both & 1) != 0;
        LeagueData.TradeDeadlineInForce = (both & 2) != 0;
        ClickEntry(2, 0);
        EXPECT_EQ(Roster().cmdSendToWaiver->isEnabled(), both != DeadlinePassedAndInForce) << both;
    }
}

TEST_F(frmRosterStatsTest, FarmPlayersAndGoaliesCannotBeMadeCaptainOrAssistant)
{
    PutSkater(1, 5, position::Center, status::Farm);
    PutSkater(2, 5, position::Center, status::Scratch);
    PutGoalie(1, 5, status::Pro);
    for (const auto& [id, position, may] : {std::tuple{1, 1, false}, std::tuple{2, 1, true}, std::tuple{1, 5, false}}) {
        Choose(id, position);
        EXPECT_EQ(Roster().cmdCaptain->isEnabled(), may) << id << ' ' << position;
        EXPECT_EQ(Roster().cmdAssistant->isEnabled(), may) << id << ' ' << position;
        EXPECT_TRUE(Roster().cmdTradeAvailable->isEnabled()) << id << ' ' << position;
    }
}

TEST_F(frmRosterStatsTest, FlagBoxesAreSetFromTheRecordWithoutCountingAsAnEdit)
{
    Player& player = PutSkater(1, 5, position::Center, status::Pro);
    player.Protected = true;
    player.NoTrade = true;
    player.NoApplyRerate = true;
    Goalie& keeper = PutGoalie(1, 5, status::Pro);
    keeper.NoApplyRerate = true;
    ClickEntry(2, 0);
    EXPECT_TRUE(Roster().chkProtected->isChecked());
    EXPECT_TRUE(Roster().chkNoTrade->isChecked());
    EXPECT_TRUE(Roster().chkNoApplyRerate->isChecked());
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    ClickEntry(2, 1);
    EXPECT_FALSE(Roster().chkProtected->isChecked());
    EXPECT_FALSE(Roster().chkNoTrade->isChecked());
    EXPECT_TRUE(Roster().chkNoApplyRerate->isChecked());
    EXPECT_TRUE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_TRUE(player.NoTrade);
    EXPECT_EQ(Own().ProtectedCount, 1);
    EXPECT_FALSE(Modified);
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(frmRosterStatsTest, GoalieNumbersAtBothEndsOfTheTableAreShown)
{
    Roster();
    SelectedIsGoalie = true;
    for (const int id : {0, 1000}) {
        Goalies[id].Stats[goalie::SK] = 40 + id % 7;
        SelectedPlayer = id;
        Roster().ShowStats();
        EXPECT_THAT(Machine.Boxes(), IsEmpty()) << id;
        EXPECT_EQ(PanelRows().at(0), "SK " + std::to_string(40 + id % 7));
    }
}

TEST_F(frmRosterStatsTest, TheRatingsStandThereBeforeTheOverallIsWorkedOut)
{
    PutSkater(1, 5, 0, status::Pro);
    Roster({Box{48, "Skater 1 has no position!"}, Box{16, "Skater 1 has no position!"},
            Box{16, "Skater 1 has no position!"}});
    SelectedPlayer = 1;
    SelectedIsGoalie = false;
    std::size_t rowsAtBox = 0;
    Machine.OnEvent = [&](const std::string& /*event*/) { rowsAtBox = PanelRows().size(); };
    Roster().ShowStats();
    Machine.OnEvent = {};
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_EQ(rowsAtBox, 15U);
    EXPECT_EQ(PanelRows().back(), "OV 0");
    EXPECT_EQ(Roster().PlayerOverall(), 0);
}

TEST_F(frmRosterStatsTest, MoreRowsThanRatingsAreAFailureThatLeavesTheRatings)
{
    PutSkater(1, 5, position::Center, status::Pro, 66);
    ClickEntry(2, 0);
    Roster().HidePlayerDetails();
    const long long overall = Roster().PlayerOverall();
    Players[1].Stats[skater::CK] = 99;
    PlayerStatCount = 16;
    Roster().ShowStats();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in ShowStats!"}));
    EXPECT_EQ(PanelRows().size(), 15U);
    EXPECT_EQ(Roster().PlayerOverall(), overall);
}

} // namespace
} // namespace dravik
