#include "AnswerDialog.h"
#include "OnViewer.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ViewerRecords : public OnViewer {
protected:
    // Fills what a new record needs.
    static void Fill(frmEditPlayer& viewer, int ratings)
    {
        viewer.txtName->setText("Lenny Brisk");
        viewer.txtCountry->setText("SWE");
        viewer.txtAge->setText("19");
        viewer.txtWeight->setText("188");
        viewer.txtHeight->setText("74");
        viewer.txtContract->setText("12"); // no limits on the way in
        viewer.txtSalary->setText("1");
        for (int row = 1; row <= ratings; ++row)
            viewer.txtStats[row]->setText(QString::number(50 + row));
    }
    static void TickFlags(frmEditPlayer& viewer)
    {
        for (QCheckBox* flag : {viewer.chkRookie, viewer.chkNoTrade, viewer.chkNoApplyRerate})
            Press(flag, Qt::Key_Space);
    }

    // Saves the filled record with each of its boxes empty in turn, which has to be refused.
    void ExpectEveryFieldRequired(frmEditPlayer& viewer, int ratings, const std::function<void()>& save)
    {
        std::vector<EditBox*> required{viewer.txtName,   viewer.txtCountry,  viewer.txtAge,    viewer.txtWeight,
                                       viewer.txtHeight, viewer.txtContract, viewer.txtSalary, viewer.txtCondition};
        required.insert(required.end(), viewer.txtStats.begin(), viewer.txtStats.begin() + ratings);
        for (EditBox* box : required) {
            const QString text = box->text();
            box->clear();
            save();
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Missing Field!"})) << box->objectName().toStdString();
            EXPECT_TRUE(viewer.NewPlayerMode() || viewer.NewGoalieMode());
            box->setText(text);
        }
    }
};

TEST_F(ViewerRecords, SearchSelectsTheFirstEntryThatHoldsTheAnswerInAnyCase)
{
    PutSkater(20, 9, position::Center, status::Pro).Name = "Karl Dreyer";
    frmEditPlayer& viewer = Edit(0);
    Machine.Type("dREY");
    viewer.cmdSearch_Click();
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Complete or Part of the Player's Name?", "Player Search"}));
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 1);
    EXPECT_EQ(Of(viewer.txtName), "Karl Dreyer");
    EXPECT_EQ(SelectedPlayer, 20);
    Machine.Type("(g)"); // the whole text of the entry counts
    viewer.cmdSearch_Click();
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 2);
    Machine.Type("r");
    viewer.cmdSearch_Click();
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerRecords, LettersFindAnyPartOfANameInTheListAndShowIt)
{
    PutSkater(20, 9, position::Center, status::Pro).Name = "Karl D'Aubremont";
    frmEditPlayer& viewer = Edit(0);
    viewer.lstPlayer->setFocus();
    QTest::keyClicks(viewer.lstPlayer, "aubre");
    EXPECT_EQ(SelectedPlayer, 20);
    EXPECT_EQ(Of(viewer.txtName), "Karl D'Aubremont");
    const auto* tag = viewer.lstPlayer->findChild<QLabel*>("lblTyped");
    ASSERT_NE(tag, nullptr);
    EXPECT_TRUE(tag->isVisible());
    EXPECT_EQ(tag->text(), "aubre");
}

TEST_F(ViewerRecords, SearchThroughTheRealDialogs)
{
    frmEditPlayer& viewer = Edit(0);
    OnDesktop([&] {
        OnDialog<QDialog>([](QDialog& question) {
            EXPECT_EQ(question.windowTitle(), "Player Search");
            auto* answer = question.findChild<QLineEdit*>();
            ASSERT_NE(answer, nullptr);
            QTest::keyClicks(answer, "vos");
            dravik::Press(question, Qt::Key_Return);
        });
        viewer.cmdSearch_Click();
    });
    EXPECT_EQ(Of(viewer.txtName), "Piet Vos");
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 1);
}

TEST_F(ViewerRecords, SearchTellsWhenNobodyIsFound)
{
    frmEditPlayer& viewer = Edit(0);
    viewer.lstPlayer->setCurrentRow(1);
    Machine.Type("Nobody");
    viewer.cmdSearch_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}));
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 1);
}

TEST_F(ViewerRecords, ACancelledSearchFindsTheFirstEntry)
{
    frmEditPlayer& viewer = Edit(0);
    viewer.lstPlayer->setCurrentRow(1);
    viewer.cmdSearch_Click();
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Complete or Part of the Player's Name?", "Player Search"}));
}

TEST_F(ViewerRecords, AFailureOfTheSearchIsReported)
{
    frmEditPlayer& viewer = Edit(7);
    Machine.Type("Nobody");
    AtNextBox([] { Fail(failure::OutOfMemory); });
    viewer.cmdSearch_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}, Box{16, "7 - Out of memory in cmdSearch!"}));
}

TEST_F(ViewerRecords, ANewPlayerBeginsWithClearBoxesInTheFirstFreeSlot)
{
    Players[1].InUse = true;
    Players[1].Position = 1;
    frmEditPlayer& viewer = Edit(7);
    viewer.chkEdit->setChecked(false);
    viewer.cmdNewPlayer_Click();
    EXPECT_TRUE(viewer.NewPlayerMode());
    EXPECT_EQ(viewer.FreeSlot(), 2);
    EXPECT_EQ(viewer.cmdNewPlayer->text(), "Save Player");
    EXPECT_TRUE(viewer.chkEdit->isChecked());
    EXPECT_TRUE(viewer.cmdErase->isEnabled());
    for (const EditBox* box : {viewer.txtName, viewer.txtCountry, viewer.txtAge, viewer.txtWeight, viewer.txtHeight,
                               viewer.txtInjury, viewer.txtContract, viewer.txtSalary, viewer.txtTeam})
        EXPECT_EQ(Of(box), "");
    EXPECT_EQ(Of(viewer.txtCondition), "100");
    EXPECT_EQ(Of(viewer.txtSuspension), "0");
    EXPECT_THAT(Rows(viewer), ElementsAre("CK ", "FG ", "DI ", "SK ", "ST ", "DU ", "PH ", "FO ", "PA ", "SC ", "DF ",
                                          "EX ", "LD ", "MO ", "PO "));
    EXPECT_TRUE(viewer.txtStats[15]->isEnabled());
    EXPECT_TRUE(viewer.optPosition[1]->isChecked());
    EXPECT_TRUE(viewer.optPosition[4]->isEnabled());
    EXPECT_FALSE(Players[2].InUse);
    EXPECT_EQ(Tilton().Position, 2);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerRecords, ANewPlayerShowsAllRatingsEvenWhereTheLeagueShowsGroups)
{
    LeagueData.ShowAllRatings = false;
    PlayerStatCount = 7;
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewPlayer_Click();
    EXPECT_EQ(Rows(viewer).size(), 15U);
}

TEST_F(ViewerRecords, ANewPlayerIsSavedWithItsBoxes)
{
    Players[1].Suspension = 4; // what a save does not name stays
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewPlayer_Click();
    Fill(viewer, 15);
    Press(viewer.optPosition[3], Qt::Key_Space);
    Press(viewer.chkRookie, Qt::Key_Space);
    viewer.cmdNewPlayer_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
    const Player& made = Players[1];
    EXPECT_TRUE(made.InUse);
    EXPECT_EQ(made.Number, 1);
    EXPECT_EQ(made.Name.Trimmed(), "Lenny Brisk");
    EXPECT_EQ(made.Country.Trimmed(), "SWE");
    EXPECT_EQ(made.Age, 19);
    EXPECT_EQ(made.Weight, 188);
    EXPECT_EQ(made.Height, 74);
    EXPECT_EQ(made.Contract, 12);
    EXPECT_EQ(made.Salary, 1);
    EXPECT_EQ(made.Condition, 100);
    EXPECT_EQ(made.Team, 0);
    EXPECT_EQ(made.Suspension, 4);
    EXPECT_EQ(made.Position, 3);
    EXPECT_TRUE(made.Rookie);
    EXPECT_FALSE(made.NoTrade);
    for (int row = 1; row <= 15; ++row)
        EXPECT_EQ(made.Stats[row], 50 + row);
    EXPECT_EQ(Entry(viewer, 1), "Lenny Brisk (RW)");
    EXPECT_EQ(NumberAt(viewer, 1), 13);
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 1);
    EXPECT_EQ(SelectedPlayer, 1);
    EXPECT_FALSE(viewer.NewPlayerMode());
    EXPECT_EQ(viewer.cmdNewPlayer->text(), "New Player");
    EXPECT_TRUE(Modified);
}

TEST_F(ViewerRecords, ANewPlayerIsSavedWithAllHisFlagsAndInNoTeam)
{
    Players[1].Team = 9; // of whoever was in the slot
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewPlayer_Click();
    Fill(viewer, 15);
    TickFlags(viewer);
    viewer.cmdNewPlayer_Click();
    for (const Boolean& flag : {Players[1].Rookie, Players[1].NoTrade, Players[1].NoApplyRerate})
        EXPECT_EQ(flag.Word(), -1);
    EXPECT_EQ(Players[1].Team, 0);
    EXPECT_EQ(Of(viewer.txtTeam), "");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
}

TEST_F(ViewerRecords, ANewGoalieIsSavedWithItsBoxes)
{
    Goalies[1].Team = 9; // of whoever was in the slot
    Goalies[1].Suspension = 4;
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewGoaler_Click();
    EXPECT_TRUE(viewer.NewGoalieMode());
    EXPECT_EQ(viewer.FreeSlot(), 1);
    EXPECT_EQ(viewer.cmdNewGoaler->text(), "Save Goalie");
    EXPECT_THAT(Rows(viewer),
                ElementsAre("SK ", "DU ", "ST ", "SZ ", "AG ", "RB ", "SC ", "HS ", "RT ", "EX ", "LD ", "MO ", "PO "));
    EXPECT_TRUE(viewer.optGoaler->isChecked());
    EXPECT_FALSE(viewer.optGoaler->isHidden());
    Fill(viewer, 13);
    viewer.txtCondition->setText("97");
    TickFlags(viewer);
    viewer.cmdNewGoaler_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
    const Goalie& made = Goalies[1];
    EXPECT_TRUE(made.InUse);
    EXPECT_EQ(made.Number, 1);
    EXPECT_EQ(made.Name.Trimmed(), "Lenny Brisk");
    EXPECT_EQ(made.Country.Trimmed(), "SWE");
    EXPECT_EQ(made.Age, 19);
    EXPECT_EQ(made.Weight, 188);
    EXPECT_EQ(made.Height, 74);
    EXPECT_EQ(made.Contract, 12);
    EXPECT_EQ(made.Salary, 1);
    EXPECT_EQ(made.Condition, 97);
    EXPECT_EQ(made.Team, 0);
    EXPECT_EQ(made.Suspension, 4);
    for (const Boolean& flag : {made.Rookie, made.NoTrade, made.NoApplyRerate})
        EXPECT_EQ(flag.Word(), -1);
    for (int row = 1; row <= 13; ++row)
        EXPECT_EQ(made.Stats[row], 50 + row);
    EXPECT_EQ(Entry(viewer, 1), "Lenny Brisk (G)");
    EXPECT_EQ(NumberAt(viewer, 1), 15);
    EXPECT_EQ(viewer.PlayerPosition(), 5);
    EXPECT_FALSE(viewer.NewGoalieMode());
    EXPECT_EQ(viewer.cmdNewGoaler->text(), "New Goalie");
    EXPECT_TRUE(Modified);
    EXPECT_FALSE(Players[1].InUse);
}

TEST_F(ViewerRecords, TheBoxOfASaveComesBehindTheModeAndBeforeModifiedAndTheCaption)
{
    frmEditPlayer& viewer = Edit(7);
    for (const bool isGoalie : {false, true}) {
        const auto press = [&] { isGoalie ? viewer.cmdNewGoaler_Click() : viewer.cmdNewPlayer_Click(); };
        const auto mode = [&] { return isGoalie ? viewer.NewGoalieMode() : viewer.NewPlayerMode(); };
        const QPushButton* command = isGoalie ? viewer.cmdNewGoaler : viewer.cmdNewPlayer;
        press();
        Fill(viewer, isGoalie ? 13 : 15);
        Modified = false;
        bool isUp = false;
        AtNextBox([&] {
            isUp = true;
            EXPECT_FALSE(mode());
            EXPECT_FALSE(Modified);
            EXPECT_EQ(command->text(), isGoalie ? "Save Goalie" : "Save Player");
            EXPECT_EQ(viewer.lstPlayer->currentRow(), viewer.lstPlayer->count() - 1);
        });
        press();
        EXPECT_TRUE(isUp);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
        EXPECT_TRUE(Modified);
        EXPECT_EQ(command->text(), isGoalie ? "New Goalie" : "New Player");
    }
}

TEST_F(ViewerRecords, ANewRecordIsShownFromItsEntry)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewPlayer_Click();
    Fill(viewer, 15);
    viewer.txtCondition->setText("40"); // a record with an injury to show
    Players[1].Injury = "Knee";
    viewer.cmdNewPlayer_Click();
    EXPECT_EQ(Of(viewer.txtName), "Lenny Brisk");
    EXPECT_EQ(Of(viewer.txtInjury), "Knee");
    EXPECT_EQ(viewer.PlayerPosition(), 1);
    EXPECT_EQ(viewer.ListPosition(), 1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
}

TEST_F(ViewerRecords, ANewRecordHoldsThreeCharactersOfItsCountry)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewGoaler_Click();
    Fill(viewer, 13);
    viewer.txtCountry->setText("Sweden");
    viewer.cmdNewGoaler_Click();
    EXPECT_EQ(Goalies[1].Country.Raw(), "Swe");
    EXPECT_EQ(Of(viewer.txtCountry), "Swe");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
}

TEST_F(ViewerRecords, ASecondEntryMakesTheTitleAListToChooseFrom)
{
    frmEditPlayer& viewer = Edit(7);
    const int titleHeight = viewer.lstPlayer->height();
    EXPECT_EQ(viewer.lstPlayer->selectionMode(), QAbstractItemView::NoSelection);
    viewer.cmdNewPlayer_Click();
    Fill(viewer, 15);
    viewer.cmdNewPlayer_Click();
    EXPECT_EQ(viewer.lstPlayer->selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_GT(viewer.lstPlayer->height(), titleHeight);
    EXPECT_TRUE(viewer.lstPlayer->item(1)->isSelected());
    Press(viewer.lstPlayer, Qt::Key_Home);
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
}

TEST_F(ViewerRecords, EveryFieldOfANewRecordIsRequiredButInjurySuspensionAndTeam)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewPlayer_Click();
    Fill(viewer, 15);
    ExpectEveryFieldRequired(viewer, 15, [&] { viewer.cmdNewPlayer_Click(); });
    EXPECT_TRUE(viewer.NewPlayerMode());
    EXPECT_FALSE(Players[1].InUse);
    viewer.txtSuspension->clear();
    viewer.cmdNewPlayer_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
}

TEST_F(ViewerRecords, AGoalieNeedsTheSameFieldsAndThirteenRatings)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewGoaler_Click();
    Fill(viewer, 13);
    ExpectEveryFieldRequired(viewer, 13, [&] { viewer.cmdNewGoaler_Click(); });
    EXPECT_TRUE(viewer.NewGoalieMode());
    EXPECT_FALSE(Goalies[1].InUse);
    viewer.cmdNewGoaler_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Lenny Brisk was successfully created!"}));
}

TEST_F(ViewerRecords, Slot10000IsNeverGivenOut)
{
    frmEditPlayer& viewer = Edit(7);
    for (int slot = 1; slot <= 9999; ++slot)
        Players[slot].InUse = true;
    viewer.cmdNewPlayer_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "You have reach the maximum number of available players!\r\n"
                                                         "Please erase some before creating new ones."}));
    EXPECT_FALSE(viewer.NewPlayerMode());
    EXPECT_EQ(viewer.cmdNewPlayer->text(), "New Player");
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
    Players[9999].InUse = false;
    viewer.cmdNewPlayer_Click();
    EXPECT_EQ(viewer.FreeSlot(), 9999);
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(ViewerRecords, GoalieSlot1000IsNeverGivenOut)
{
    frmEditPlayer& viewer = Edit(7);
    for (int slot = 1; slot <= 999; ++slot)
        Goalies[slot].InUse = true;
    viewer.cmdNewGoaler_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "You have reach the maximum number of available goalies!\r\n"
                                                         "Please erase some before creating new ones."}));
    EXPECT_FALSE(viewer.NewGoalieMode());
}

TEST_F(ViewerRecords, ThePressOfTheOtherButtonLeavesTheFirstMode)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewPlayer_Click();
    viewer.cmdNewGoaler_Click();
    EXPECT_FALSE(viewer.NewPlayerMode());
    EXPECT_EQ(viewer.cmdNewPlayer->text(), "New Player");
    EXPECT_TRUE(viewer.NewGoalieMode());
    viewer.cmdNewPlayer_Click();
    EXPECT_FALSE(viewer.NewGoalieMode());
    EXPECT_EQ(viewer.cmdNewGoaler->text(), "New Goalie");
    EXPECT_TRUE(viewer.NewPlayerMode());
}

TEST_F(ViewerRecords, ANewRecordThatDoesNotFitIsReportedAndKeepsWhatWasStored)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.cmdNewPlayer_Click();
    Fill(viewer, 15);
    viewer.txtWeight->setText("40000");
    viewer.cmdNewPlayer_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in cmdNewPlayer!"}));
    EXPECT_TRUE(viewer.NewPlayerMode());
    EXPECT_TRUE(Players[1].InUse);
    EXPECT_EQ(Players[1].Age, 19);
    EXPECT_EQ(Players[1].Weight, 0);
    viewer.cmdNewGoaler_Click();
    Fill(viewer, 13);
    viewer.txtContract->setText("256");
    viewer.cmdNewGoaler_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in cmdNewGoaler!"}));
}

} // namespace
} // namespace dravik
