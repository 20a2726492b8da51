#include "OnRosterScreen.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

class frmRosterCaptionsTest : public OnRosterScreen {
protected:
    // A person in whose place the keys go on: chosen, with the focus on his list.
    void ChooseProWithFocus(int row)
    {
        ClickEntry(2, row);
        ASSERT_TRUE(Roster().lstPlayer[2]->hasFocus());
    }
    // Goes to a command with the tab key and presses it with the space bar.
    void PressByKey(QPushButton* command)
    {
        for (int steps = 0; QApplication::focusWidget() != command && steps < 30; ++steps)
            Press(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), command);
        Press(command, Qt::Key_Space);
    }
};

TEST_F(frmRosterCaptionsTest, HidingTheDetailsClosesEveryCommandAndBoxOfAPersonAndEmptiesThePanel)
{
    PutSkaters(1, status::Pro);
    ClickEntry(2, 0);
    frmRoster& roster = Roster();
    const std::initializer_list<QWidget*> ofPerson{
        roster.cmdToFarm,         roster.cmdToPro,     roster.cmdToScratchesFromFarm, roster.cmdToScratchesFromPro,
        roster.cmdTradeAvailable, roster.cmdCaptain,   roster.cmdAssistant,           roster.cmdRelease,
        roster.cmdSendToWaiver,   roster.chkProtected, roster.chkNoApplyRerate,       roster.chkNoTrade};
    for (QWidget* control : ofPerson)
        control->setEnabled(true);
    for (int row = 0; row <= 16; ++row) {
        roster.Stats->lblStat[row]->show();
        roster.Stats->lblStatLabel[row]->show();
    }
    roster.HidePlayerDetails();
    for (const QWidget* control : ofPerson)
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    for (int row = 0; row <= 16; ++row) {
        EXPECT_FALSE(IsShown(roster.Stats->lblStat[row])) << row;
        EXPECT_FALSE(IsShown(roster.Stats->lblStatLabel[row])) << row;
    }
    for (const QWidget* open : std::initializer_list<QWidget*>{roster.cmdAutoRoster, roster.cmdAutoRosterPartial,
                                                               roster.cmdExit, roster.chkPosition[1]})
        EXPECT_TRUE(open->isEnabled()) << open->objectName().toStdString();
}

// The next command that is open would be a filter, which the next press of the space bar would turn.
TEST_F(frmRosterCaptionsTest, AfterAnOfficeGivenByKeyTheFocusIsOnTheListAgain)
{
    PutSkaters(3, status::Pro);
    Roster();
    for (QPushButton* command : {Roster().cmdCaptain, Roster().cmdAssistant}) {
        ChooseProWithFocus(command == Roster().cmdCaptain ? 0 : 1);
        PressByKey(command);
        EXPECT_TRUE(Roster().lstPlayer[2]->hasFocus()) << command->text().toStdString();
        Press(QApplication::focusWidget(), Qt::Key_Space);
        for (const QCheckBox* filter : Roster().chkPosition)
            EXPECT_TRUE(filter->isChecked()) << command->text().toStdString();
        EXPECT_EQ(Roster().lstPlayer[2]->count(), 3);
    }
    EXPECT_EQ(Own().Captain, 1);
    EXPECT_EQ(Own().Assistant[1], 2);
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Skater 1 has been selected as captain for Harbour City Gulls."},
                            Box{35, "Do you want Skater 2 to be assistant #1 (Yes) or assistant #2 (No)?"},
                            Box{64, "Skater 2 has been selected as assistant #1 for Harbour City Gulls."}));
}

TEST_F(frmRosterCaptionsTest, AStarRefusedForNoTradeClosesItsCommandAndGivesTheFocusBack)
{
    PutSkaters(1, status::Pro);
    ChooseProWithFocus(0);
    Players[1].NoTrade = true;
    PressByKey(Roster().cmdTradeAvailable);
    EXPECT_FALSE(Roster().cmdTradeAvailable->isEnabled());
    EXPECT_TRUE(Roster().lstPlayer[2]->hasFocus());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
}

TEST_F(frmRosterCaptionsTest, AMoveByKeyGivesTheFocusBackToItsList)
{
    PutSkaters(3, status::Pro);
    ChooseProWithFocus(1);
    PressByKey(Roster().cmdToScratchesFromPro);
    EXPECT_TRUE(Roster().lstPlayer[2]->hasFocus());
    EXPECT_THAT(Listed(1), ElementsAre(std::pair<std::string, int>{"Skater 2", 21}));
}

TEST_F(frmRosterCaptionsTest, ACommandThatStaysOpenKeepsTheFocus)
{
    PutSkaters(1, status::Pro);
    ChooseProWithFocus(0);
    PressByKey(Roster().cmdTradeAvailable);
    EXPECT_TRUE(Players[1].TradeAvailable);
    EXPECT_TRUE(Roster().cmdTradeAvailable->hasFocus());
}

} // namespace
} // namespace dravik
