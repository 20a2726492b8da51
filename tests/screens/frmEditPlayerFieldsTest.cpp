#include "OnViewer.h"

#include "screens/RosterEntry.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ViewerFields : public OnViewer {
protected:
    // Chooses the entry of the person shown with another position digit behind his number.
    void ChooseWithDigit(frmEditPlayer& viewer, int digit)
    {
        viewer.lstPlayer->item(0)->setData(entry::NumberRole, EntryNumber(SelectedPlayer, digit));
        viewer.lstPlayer_Click();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    }
    // Goes to `next`, while no position is at hand: a box that loses the focus to it tells so.
    void GoTo(const QWidget* next, const std::function<void()>& go)
    {
        const auto* left = dynamic_cast<EditBox*>(QApplication::focusWidget());
        const bool leavesABox = left != nullptr && left != next;
        go();
        EXPECT_EQ(Machine.TakeBoxes(), std::vector(leavesABox ? 1 : 0, Box{16, "Integrity Check Failed!"}));
    }
};

TEST_F(ViewerFields, AgeAndWeightBelowOneBecomeOne)
{
    frmEditPlayer& viewer = Edit(7);
    for (const Typing& typing : {Typing{"0", 1}, {"-5", 1}, {"1", 1}, {"35", 35}, {"32767", 32767}, {"8-2", 8}}) {
        Enter(viewer.txtAge, typing.Text);
        EXPECT_EQ(Tilton().Age, typing.Stored);
        EXPECT_EQ(Of(viewer.txtAge), std::to_string(typing.Stored));
        Enter(viewer.txtWeight, typing.Text);
        EXPECT_EQ(Tilton().Weight, typing.Stored);
        EXPECT_EQ(Of(viewer.txtWeight), std::to_string(typing.Stored));
    }
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerFields, HeightBelowOneBecomesZeroNotOne)
{
    frmEditPlayer& viewer = Edit(7);
    for (const Typing& typing : {Typing{"0", 0}, {"-5", 0}, {"1", 1}, {"75", 75}}) {
        Enter(viewer.txtHeight, typing.Text);
        EXPECT_EQ(Tilton().Height, typing.Stored);
        EXPECT_EQ(Of(viewer.txtHeight), std::to_string(typing.Stored));
    }
}

TEST_F(ViewerFields, TheSalaryStaysWithinTheLeaguesLimits)
{
    frmEditPlayer& viewer = Edit(7);
    for (const Typing& typing : {Typing{"8000001", 8000000},
                                 {"99999999999", 8000000},
                                 {"499999", 500000},
                                 {"-1", 500000},
                                 {"2500000", 2500000}}) {
        Enter(viewer.txtSalary, typing.Text);
        EXPECT_EQ(Tilton().Salary, typing.Stored);
        EXPECT_EQ(Of(viewer.txtSalary), std::to_string(typing.Stored));
    }
    LeagueData.MinSalary = 9000000; // above the most there may be: the least has the last word
    Enter(viewer.txtSalary, "8500000");
    EXPECT_EQ(Tilton().Salary, 9000000);
}

TEST_F(ViewerFields, TheContractRunsFromZeroToNineYears)
{
    Tilton().Team = 0;
    frmEditPlayer& viewer = Edit(7);
    for (const Typing& typing : {Typing{"10", 9}, {"9", 9}, {"0", 0}, {"-3", 0}, {"4", 4}}) {
        Enter(viewer.txtContract, typing.Text);
        EXPECT_EQ(Tilton().Contract, typing.Stored);
        EXPECT_EQ(Of(viewer.txtContract), std::to_string(typing.Stored));
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerFields, AZeroYearContractIsRefusedInATeamDuringTheSeason)
{
    const Box refused{64, "Zero year contract is not allowed for players who are playing in a team."};
    frmEditPlayer& viewer = Edit(7);
    for (const char* text : {"0", "-1"}) {
        Enter(viewer.txtContract, text);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(refused));
        EXPECT_EQ(Tilton().Contract, 3);
        EXPECT_EQ(Of(viewer.txtContract), "3");
        EXPECT_FALSE(Modified);
    }
    Vos().Team = 5;
    frmEditPlayer& goalie = Edit(7, true);
    Enter(goalie.txtContract, "0");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(refused));
    EXPECT_EQ(Vos().Contract, 2);
    LeagueData.OffSeason.SetWord(1); // not True
    Enter(goalie.txtContract, "0");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(refused));
    LeagueData.OffSeason = true;
    Enter(goalie.txtContract, "0");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Vos().Contract, 0);
    EXPECT_TRUE(Modified);
}

TEST_F(ViewerFields, TheCountryHoldsThreeCharacters)
{
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtCountry, "Sweden");
    EXPECT_EQ(Tilton().Country.Raw(), "Swe");
    EXPECT_EQ(Of(viewer.txtCountry), "Swe");
    Enter(viewer.txtCountry, "S1");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only letters and spaces are allowed in that textbox!"}));
    EXPECT_EQ(Tilton().Country.Raw(), "Swe");
    EXPECT_TRUE(viewer.txtCountry->hasFocus());
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(ViewerFields, AnInjuryOfOtherSignsIsRefused)
{
    Tilton().Condition = 80;
    Tilton().Injury = "Knee";
    frmEditPlayer& viewer = Edit(7);
    for (const char* text : {"Knee!", "Left_knee", "?"}) {
        Enter(viewer.txtInjury, text);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{48, "Only numbers, letters and spaces are allowed in that textbox!"}));
        EXPECT_TRUE(viewer.txtInjury->hasFocus());
        EXPECT_EQ(Of(viewer.txtInjury), text);
        EXPECT_EQ(Tilton().Injury.Trimmed(), "Knee");
        EXPECT_FALSE(Modified);
        EXPECT_FALSE(ListEventGuard);
    }
    Enter(viewer.txtInjury, "Knee 2");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Knee 2");
    EXPECT_TRUE(Modified);
}

TEST_F(ViewerFields, CountryAndInjuryOfAGoalieAreHis)
{
    Vos().Condition = 80;
    Tilton().Injury = "Knee";
    frmEditPlayer& viewer = Edit(7, true);
    Enter(viewer.txtCountry, "Sweden");
    Enter(viewer.txtInjury, "Groin");
    EXPECT_EQ(Vos().Country.Raw(), "Swe");
    EXPECT_EQ(Of(viewer.txtCountry), "Swe");
    EXPECT_EQ(Vos().Injury.Trimmed(), "Groin");
    EXPECT_EQ(Tilton().Country.Trimmed(), "CAN");
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Knee");
}

TEST_F(ViewerFields, NumbersOfAGoalieAreHis)
{
    frmEditPlayer& viewer = Edit(7, true);
    Enter(viewer.txtAge, "0");
    Enter(viewer.txtWeight, "0");
    Enter(viewer.txtHeight, "0");
    Enter(viewer.txtContract, "10");
    Enter(viewer.txtSalary, "0");
    Enter(viewer.txtSuspension, "100");
    EXPECT_EQ(Vos().Age, 1);
    EXPECT_EQ(Vos().Weight, 1);
    EXPECT_EQ(Vos().Height, 0);
    EXPECT_EQ(Vos().Contract, 9);
    EXPECT_EQ(Vos().Salary, 500000);
    EXPECT_EQ(Vos().Suspension, 99);
    EXPECT_EQ(Tilton().Age, 27);
    EXPECT_EQ(Tilton().Salary, 1250000);
    EXPECT_EQ(Tilton().Suspension, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerFields, ANewNameRewritesTheEntry)
{
    frmEditPlayer& viewer = Edit(0);
    viewer.lstPlayer->setCurrentRow(1);
    Enter(viewer.txtName, QString::fromUtf8("Théo O'Meara"));
    EXPECT_EQ(Vos().Name.Trimmed(), "Th\xE9o O'Meara");
    EXPECT_EQ(viewer.lstPlayer->item(1)->text(), QString::fromUtf8("Théo O'Meara (G)"));
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (LW)");
    viewer.lstPlayer->setCurrentRow(0);
    Enter(viewer.txtName, "Ward Tilton 2");
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton 2 (LW)");
    EXPECT_EQ(NumberAt(viewer, 0), 72);
    Enter(viewer.txtName, "Ward_");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only numbers, letters and spaces are allowed in that textbox!"}));
    EXPECT_EQ(Tilton().Name.Trimmed(), "Ward Tilton 2");
}

TEST_F(ViewerFields, AnEmptyBoxIsRestoredFromTheRecord)
{
    Tilton().Condition = 90;
    Tilton().Injury = "Knee";
    Tilton().Suspension = 2;
    frmEditPlayer& viewer = Edit(7);
    for (EditBox* box :
         {viewer.txtName, viewer.txtCountry, viewer.txtAge, viewer.txtWeight, viewer.txtHeight, viewer.txtCondition,
          viewer.txtInjury, viewer.txtContract, viewer.txtSalary, viewer.txtSuspension, viewer.txtStats[3]}) {
        const std::string before = Of(box);
        EXPECT_FALSE(before.empty());
        Enter(box, "");
        EXPECT_EQ(Of(box), before) << box->objectName().toStdString();
        EXPECT_FALSE(Modified) << box->objectName().toStdString();
        viewer.cmdExit->setFocus();
    }
    EXPECT_FALSE(viewer.Changed());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ViewerFields, ARestoredValueIsNotLimited)
{
    Tilton().Age = 0;
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtAge, "");
    EXPECT_EQ(Of(viewer.txtAge), "0");
    EXPECT_EQ(Tilton().Age, 0);
}

TEST_F(ViewerFields, NumberBoxesRefuseWords)
{
    frmEditPlayer& viewer = Edit(7);
    for (EditBox* box : {viewer.txtAge, viewer.txtWeight, viewer.txtHeight, viewer.txtCondition, viewer.txtContract,
                         viewer.txtSalary, viewer.txtSuspension, viewer.txtStats[3]}) {
        const std::string before = Of(box);
        Enter(box, "12a");
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Only numbers are allowed in that textbox!"}));
        EXPECT_TRUE(box->hasFocus());
        Enter(box, "-");
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
        EXPECT_TRUE(box->hasFocus());
        Enter(box, QString::fromStdString(before));
        EXPECT_FALSE(box->hasFocus());
    }
    EXPECT_EQ(Tilton().Salary, 1250000);
}

TEST_F(ViewerFields, GuardedBoxesDoNothing)
{
    frmEditPlayer& viewer = Edit(7);
    ListEventGuard = true;
    for (EditBox* box :
         {viewer.txtName, viewer.txtCountry, viewer.txtAge, viewer.txtWeight, viewer.txtHeight, viewer.txtCondition,
          viewer.txtInjury, viewer.txtContract, viewer.txtSalary, viewer.txtSuspension, viewer.txtStats[3]}) {
        TypeInto(box, "_");
        Press(box, Qt::Key_Tab);
        EXPECT_FALSE(box->hasFocus());
    }
    viewer.cmdExit->setFocus();
    ListEventGuard = false;
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Tilton().Name.Trimmed(), "Ward Tilton");
    EXPECT_EQ(Tilton().Age, 27);
    EXPECT_FALSE(Modified);
}

TEST_F(ViewerFields, BoxesOfANewRecordAreJudgedAndKeptForTheSave)
{
    for (const bool isGoalie : {false, true}) {
        frmEditPlayer& viewer = Edit(7);
        isGoalie ? viewer.cmdNewGoaler_Click() : viewer.cmdNewPlayer_Click();
        Enter(viewer.txtAge, "-4");
        EXPECT_EQ(Of(viewer.txtAge), "-4");
        Enter(viewer.txtAge, "");
        EXPECT_EQ(Of(viewer.txtAge), "");
        Enter(viewer.txtStats[3], "12");
        Enter(viewer.txtCountry, "Sweden");
        EXPECT_EQ(Of(viewer.txtCountry), "Sweden");
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
        Enter(viewer.txtAge, "x");
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
        EXPECT_EQ(Tilton().Age, 27);
        EXPECT_EQ(Tilton().Country.Trimmed(), "CAN");
        EXPECT_FALSE(Modified);
        viewer.txtAge->setText("1");
    }
}

TEST_F(ViewerFields, AnotherPositionDigitFailsTheIntegrityCheckAndStoresNothing)
{
    frmEditPlayer& viewer = Edit(7);
    for (const int digit : {0, 6, 9}) {
        ChooseWithDigit(viewer, digit);
        viewer.txtStats[3]->show();
        for (EditBox* box :
             {viewer.txtName, viewer.txtCountry, viewer.txtAge, viewer.txtWeight, viewer.txtHeight, viewer.txtCondition,
              viewer.txtInjury, viewer.txtContract, viewer.txtSalary, viewer.txtSuspension, viewer.txtStats[3]}) {
            GoTo(box, [&] { TypeInto(box, box == viewer.txtCountry ? "SWE" : "1"); });
            Press(box, Qt::Key_Tab);
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}))
                << box->objectName().toStdString();
        }
        GoTo(viewer.cmdExit, [&] { viewer.cmdExit->setFocus(); });
        viewer.chkRookie_Click();
        viewer.chkNoTrade_Click();
        viewer.chkNoApplyRerate_Click();
        const Box failed{16, "Integrity Check Failed!"};
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(failed, failed, failed));
    }
    EXPECT_EQ(Tilton().Age, 27);
    EXPECT_EQ(Tilton().Stats[3], 60);
    EXPECT_FALSE(Modified);
}

TEST_F(ViewerFields, AValueIsLimitedInItsBoxBeforeTheIntegrityCheckFails)
{
    frmEditPlayer& viewer = Edit(7);
    ChooseWithDigit(viewer, 6);
    viewer.txtStats[3]->show();
    struct Limited {
        EditBox* Box;
        const char* Typed;
        const char* Shown;
    };
    for (const Limited& limited : {Limited{viewer.txtAge, "-5", "1"},
                                   {viewer.txtHeight, "-5", "0"},
                                   {viewer.txtWeight, "0", "1"},
                                   {viewer.txtSalary, "1", "500000"},
                                   {viewer.txtCountry, "Sweden", "Swe"},
                                   {viewer.txtContract, "0", "0"},
                                   {viewer.txtCondition, "300", "100"},
                                   {viewer.txtSuspension, "100", "99"},
                                   {viewer.txtStats[3], "007", "7"}}) {
        GoTo(viewer.cmdExit, [&] { viewer.cmdExit->setFocus(); });
        TypeInto(limited.Box, limited.Typed);
        std::string shown;
        AtNextBox([&] { shown = Of(limited.Box); });
        Press(limited.Box, Qt::Key_Tab);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
        EXPECT_EQ(shown, limited.Shown) << limited.Box->objectName().toStdString();
    }
    EXPECT_EQ(Tilton().Age, 27);
    EXPECT_EQ(Tilton().Contract, 3);
    EXPECT_EQ(Tilton().Condition, 100);
    EXPECT_EQ(Tilton().Suspension, 0);
    EXPECT_EQ(Tilton().Stats[3], 60);
    EXPECT_FALSE(Modified);
}

TEST_F(ViewerFields, ValuesBeyondTheirFieldAreFailuresOfTheirBox)
{
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtAge, "32768");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in txtAge!"}));
    Enter(viewer.txtHeight, "99999999999");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in txtHeight!"}));
    Enter(viewer.txtStats[4], "32768");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in txtStats!"}));
    EXPECT_EQ(Tilton().Age, 27);
    EXPECT_EQ(Tilton().Height, 73);
    EXPECT_EQ(Tilton().Stats[4], 60);
    EXPECT_EQ(Of(viewer.txtAge), "27");
    EXPECT_EQ(Of(viewer.txtHeight), "73");
    EXPECT_EQ(Of(viewer.txtStats[4]), "60");
}

TEST_F(ViewerFields, AFailureBehindAnotherPositionDigitIsToldInOneBox)
{
    frmEditPlayer& viewer = Edit(7);
    ChooseWithDigit(viewer, 6);
    Enter(viewer.txtHeight, "99999999999");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in txtHeight!"}));
    EXPECT_EQ(Of(viewer.txtHeight), "99999999999");
}

TEST_F(ViewerFields, ATextIsShownAsTheRecordHoldsIt)
{
    frmEditPlayer& viewer = Edit(7);
    Enter(viewer.txtName, QString(39, 'x') + "yz");
    EXPECT_EQ(Of(viewer.txtName), std::string(39, 'x') + "y");
    Enter(viewer.txtName, "Ward Tilton   ");
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
    Enter(viewer.txtCountry, "CANADA");
    EXPECT_EQ(Of(viewer.txtCountry), "CAN");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
