#include "AnswerDialog.h"
#include "OnViewer.h"
#include "screens/platform/Palettes.h"
#include "support/Routines.h"

#include <QGroupBox>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PlayerViewer : public OnViewer {};

constexpr const char* CaptionOfViewer = "Dravik Hockey Simulator Client - Show Player";
constexpr const char* CaptionWhileLoading = "Dravik Hockey Simulator Client - Edit Player";

TEST_F(PlayerViewer, OpensOnASkaterWithHisWholeRecord)
{
    Tilton().Rookie = true;
    Tilton().NoApplyRerate = true;
    Tilton().Condition = 90;
    Tilton().Injury = "Knee";
    Tilton().Suspension = 2;
    const frmEditPlayer& viewer = Show(7);
    EXPECT_EQ(viewer.windowTitle(), CaptionOfViewer);
    EXPECT_TRUE(viewer.isVisible());
    EXPECT_FALSE(Main().isVisible());
    ASSERT_EQ(viewer.lstPlayer->count(), 1);
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (LW)");
    EXPECT_EQ(NumberAt(viewer, 0), 72);
    EXPECT_EQ(viewer.lstPlayer->currentRow(), 0);
    EXPECT_EQ(viewer.ListPosition(), 0);
    EXPECT_EQ(viewer.PlayerPosition(), 2);
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
    EXPECT_EQ(Of(viewer.txtCountry), "CAN");
    EXPECT_EQ(Of(viewer.txtAge), "27");
    EXPECT_EQ(Of(viewer.txtWeight), "195");
    EXPECT_EQ(Of(viewer.txtHeight), "73");
    EXPECT_EQ(Of(viewer.txtContract), "3");
    EXPECT_EQ(Of(viewer.txtSalary), "1250000");
    EXPECT_EQ(Of(viewer.txtCondition), "90");
    EXPECT_EQ(Of(viewer.txtSuspension), "2");
    EXPECT_EQ(Of(viewer.txtInjury), "Knee");
    EXPECT_EQ(Of(viewer.txtTeam), "Harbour City Gulls");
    EXPECT_TRUE(viewer.optGoaler->isHidden());
    for (int index = 1; index <= 4; ++index) {
        EXPECT_FALSE(viewer.optPosition[index]->isHidden());
        EXPECT_EQ(viewer.optPosition[index]->isChecked(), index == 2);
    }
    EXPECT_TRUE(viewer.chkRookie->isChecked());
    EXPECT_FALSE(viewer.chkNoTrade->isChecked());
    EXPECT_TRUE(viewer.chkNoApplyRerate->isChecked());
    EXPECT_FALSE(ListEventGuard);
    viewer.optPosition[3]->setChecked(true);
    EXPECT_EQ(Tilton().Position, 3) << "the positions are heard again";
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerViewer, OpensOnAGoalieWithHisWholeRecord)
{
    Vos().NoTrade = true;
    const frmEditPlayer& viewer = Show(7, true);
    ASSERT_EQ(viewer.lstPlayer->count(), 1);
    EXPECT_EQ(Entry(viewer, 0), "Piet Vos (G)");
    EXPECT_EQ(NumberAt(viewer, 0), 75);
    EXPECT_EQ(viewer.PlayerPosition(), 5);
    EXPECT_EQ(Of(viewer.txtName), "Piet Vos");
    EXPECT_EQ(Of(viewer.txtCountry), "NED");
    EXPECT_EQ(Of(viewer.txtSalary), "900000");
    EXPECT_EQ(Of(viewer.txtTeam), "Harbour City Gulls");
    EXPECT_FALSE(viewer.optGoaler->isHidden());
    EXPECT_TRUE(viewer.optGoaler->isChecked());
    for (const QRadioButton* option : viewer.optPosition) {
        EXPECT_TRUE(option->isHidden());
        EXPECT_FALSE(option->isChecked());
    }
    EXPECT_FALSE(viewer.chkRookie->isChecked());
    EXPECT_TRUE(viewer.chkNoTrade->isChecked());
    ExpectClosed(viewer);
}

TEST_F(PlayerViewer, StandsInTheMiddleOfTheScreen) { EXPECT_LE(OffTheMiddle(Show(7)), 1); }

TEST_F(PlayerViewer, TheTitleSpeaksOfEditingWhileTheScreenLoads)
{
    PutSkater(20, 9, 0, status::Pro);
    QString title;
    AtNextBox([&] { title = Viewer().windowTitle(); });
    EXPECT_EQ(Show(7).windowTitle(), CaptionOfViewer);
    EXPECT_EQ(title, CaptionWhileLoading);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Skater 20 has no position! He's now center."}));
}

TEST_F(PlayerViewer, AFailureWhileOpeningIsReportedAndLeavesTheEditorClosed)
{
    PutSkater(20, 9, 0, status::Pro).Name = "Nils Ekdahl";
    AtNextBox([] { Fail(failure::OutOfMemory); });
    const frmEditPlayer& viewer = Show(7);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Nils Ekdahl has no position! He's now center."},
                                             Box{16, "7 - Out of memory in FormLoad FrmEditPlayer!"}));
    EXPECT_EQ(viewer.windowTitle(), CaptionWhileLoading);
    EXPECT_EQ(viewer.lstPlayer->count(), 0); // nobody is listed before everybody has a position
    EXPECT_EQ(Players[20].Position, 0);
    ExpectClosed(viewer);
}

TEST_F(PlayerViewer, OpeningOnAnyPlayerRepairsEverySkaterWithoutPosition)
{
    PutSkater(20, 9, 0, status::Pro).Name = "Nils Ekdahl";
    PutSkater(10000, 0, 5, status::Farm).Name = "Ari Nieminen";
    PutSkater(30, 9, 0, status::Pro).InUse = false;
    Show(7, true);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Nils Ekdahl has no position! He's now center."},
                                             Box{48, "Ari Nieminen has no position! He's now center."}));
    EXPECT_EQ(Players[20].Position, 1);
    EXPECT_EQ(Players[10000].Position, 1);
    EXPECT_EQ(Players[30].Position, 0);
    Viewer().close();
    Settle();
    EXPECT_EQ(Players[20].Position, 1);
    Machine.ClearSeenBoxes();
    Show(7);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerViewer, OpensBehindTheRealBoxOfARepair)
{
    Tilton().Position = 0;
    MainWithLeague();
    SelectedPlayer = 7;
    OnDesktop([this] {
        OnDialog<QDialog>([this](QDialog& box) {
            EXPECT_FALSE(Viewer().isVisible());
            EXPECT_EQ(Tilton().Position, 0);
            dravik::Click(box, "cmdOk");
        });
        TheStage.Open("EditPlayer", Main());
    });
    EXPECT_TRUE(Viewer().isVisible());
    EXPECT_EQ(Tilton().Position, 1);
    EXPECT_EQ(Entry(Viewer(), 0), "Ward Tilton (C)");
}

TEST_F(PlayerViewer, ARepairedSkaterIsListedAsACentre)
{
    Tilton().Position = 0;
    const frmEditPlayer& viewer = Show(7);
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (C)");
    EXPECT_EQ(NumberAt(viewer, 0), 71);
    EXPECT_TRUE(viewer.optPosition[1]->isChecked());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Ward Tilton has no position! He's now center."}));
}

TEST_F(PlayerViewer, OpeningOnAGoalieWithoutTheGoalieMarkListsTheSkaterOfThatNumber)
{
    const frmEditPlayer& viewer = Show(7, false);
    ASSERT_EQ(viewer.lstPlayer->count(), 1);
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (LW)");
}

TEST_F(PlayerViewer, AGoalieWithoutTheGoalieMarkAndWithoutASkaterOfHisNumberOpensABlankViewer)
{
    PutGoalie(8, 5, status::Pro);
    const frmEditPlayer& viewer = Show(8, false);
    EXPECT_EQ(viewer.windowTitle(), CaptionOfViewer);
    EXPECT_EQ(viewer.lstPlayer->count(), 0);
    EXPECT_EQ(Of(viewer.txtName), "");
    EXPECT_THAT(Rows(viewer), IsEmpty());
    ExpectClosed(viewer);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerViewer, AProspectOpensABlankViewerWithEveryControlDisabled)
{
    for (const bool isGoalie : {false, true}) {
        const frmEditPlayer& viewer = Show(10123, isGoalie);
        EXPECT_EQ(viewer.windowTitle(), CaptionOfViewer);
        EXPECT_EQ(viewer.lstPlayer->count(), 0);
        EXPECT_EQ(Of(viewer.txtName), "");
        EXPECT_EQ(Of(viewer.txtCondition), "");
        EXPECT_THAT(Rows(viewer), IsEmpty());
        EXPECT_TRUE(viewer.optGoaler->isHidden());
        EXPECT_EQ(SelectedPlayer, 10123);
        ExpectClosed(viewer);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerViewer, ConditionOf100HidesTheInjuryTextEvenIfThereIsOne)
{
    Tilton().Condition = 100;
    Tilton().Injury = "Knee";
    EXPECT_EQ(Of(Show(7).txtInjury), "");
    EXPECT_EQ(Tilton().Injury.Trimmed(), "Knee");
    Tilton().Condition = 99;
    EXPECT_EQ(Of(Show(7).txtInjury), "Knee");
    Vos().Condition = 101;
    Vos().Injury = "Groin";
    EXPECT_EQ(Of(Show(7, true).txtInjury), "");
}

TEST_F(PlayerViewer, AllControlsStayDisabledWhateverTheListHolds)
{
    PutSkater(20, 9, position::Center, status::Pro);
    for (const int id : {0, 7, 4000}) {
        const frmEditPlayer& viewer = Show(id);
        ExpectClosed(viewer);
        EXPECT_EQ(viewer.chkEdit->isChecked(), id == 0); // ticked for a list, and undone
    }
    Tilton().Condition = 80; // opens the injury for a moment
    ExpectClosed(Show(7));
}

TEST_F(PlayerViewer, TheEditorIsClosedWhenOpeningFails)
{
    Tilton().Team = 101;
    const frmEditPlayer& viewer = Show(7);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in LstPlayer_Click"}));
    ExpectClosed(viewer);
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(PlayerViewer, NoPlayerMeansEverybodySkatersFirst)
{
    PutSkater(20, 9, position::Defense, status::Farm).Name = "Marek Zelinka";
    PutSkater(21, 9, position::RightWing, status::Farm).InUse = false;
    const frmEditPlayer& viewer = Show(0);
    ASSERT_EQ(viewer.lstPlayer->count(), 3);
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (LW)");
    EXPECT_EQ(Entry(viewer, 1), "Marek Zelinka (D)");
    EXPECT_EQ(Entry(viewer, 2), "Piet Vos (G)");
    EXPECT_EQ(NumberAt(viewer, 1), 204);
    EXPECT_EQ(NumberAt(viewer, 2), 75);
    EXPECT_EQ(SelectedPlayer, 7);
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
}

TEST_F(PlayerViewer, AnEntryCarriesTheNumberOfTheRecordNotItsSlot)
{
    PutSkater(20, 5, position::Center, status::Pro).Number = 7;
    Players[7].Number = 20;
    Players[20].Name = "Nils Ekdahl";
    const frmEditPlayer& viewer = Show(20);
    EXPECT_EQ(Entry(viewer, 0), "Ward Tilton (LW)");
    EXPECT_EQ(NumberAt(viewer, 0), 202);
    EXPECT_EQ(Of(viewer.txtName), "Nils Ekdahl"); // the record is the one in the slot of that number
}

TEST_F(PlayerViewer, ATeamThatIsNotInUseAndNoTeamAreEmpty)
{
    Teams[5].InUse = false;
    EXPECT_EQ(Of(Show(7).txtTeam), "");
    Teams[5].InUse = true;
    Tilton().Team = 0;
    EXPECT_EQ(Of(Show(7).txtTeam), "");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerViewer, ATeamOutsideItsTableEndsTheShowingBeforeTeamAndInjury)
{
    Tilton().Condition = 90;
    Tilton().Injury = "Knee";
    PutSkater(20, 101, position::Defense, status::Pro).Name = "Marek Zelinka";
    Players[20].Condition = 80;
    Players[20].Injury = "Groin";
    frmEditPlayer& viewer = Edit(0);
    viewer.lstPlayer->setCurrentRow(1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in LstPlayer_Click"}));
    EXPECT_EQ(Of(viewer.txtName), "Marek Zelinka");
    EXPECT_EQ(Of(viewer.txtCondition), "80");
    EXPECT_EQ(Of(viewer.txtTeam), "Harbour City Gulls"); // of the one before
    EXPECT_EQ(Of(viewer.txtInjury), "Knee");
    EXPECT_FALSE(viewer.optPosition[2]->isChecked());
    EXPECT_FALSE(viewer.optPosition[4]->isChecked());
    EXPECT_THAT(Rows(viewer), IsEmpty());
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(PlayerViewer, SkaterRowsShowSingleRatingsWithTheOverallBehind)
{
    for (int i = 1; i <= 15; ++i)
        Tilton().Stats[i] = 40 + i;
    const std::string overall = std::to_string(CalculateOverall(2, 7));
    EXPECT_THAT(Rows(Show(7)),
                ElementsAre("CK 41", "FG 42", "DI 43", "SK 44", "ST 45", "DU 46", "PH 47", "FO 48", "PA 49", "SC 50",
                            "DF 51", "EX 52", "LD 53", "MO 54", "PO 55", "OV " + overall));
    LeagueData.ShowOverall = false;
    EXPECT_EQ(Rows(Show(7)).size(), 15U);
}

// The mean of three or five whole numbers never lies halfway between two.
TEST_F(PlayerViewer, SkaterRowsShowGroupMeansRoundedToTheNearest)
{
    LeagueData.ShowAllRatings = false;
    PlayerStatCount = 7;
    const int stats[] = {44, 45, 46, 45, 45, 44, 50, 51, 51, 60, 61, 70, 70, 71, 80};
    for (int i = 1; i <= 15; ++i)
        Tilton().Stats[i] = stats[i - 1];
    const std::string overall = std::to_string(CalculateOverall(2, 7));
    EXPECT_THAT(Rows(Show(7)),
                ElementsAre("IT 45", "PY 45", "PC 51", "SC 60", "DF 61", "ME 70", "PO 80", "OV " + overall));
}

TEST_F(PlayerViewer, GoalieRowsShowSingleRatingsOrGroups)
{
    for (int i = 1; i <= 13; ++i)
        Vos().Stats[i] = 40 + i;
    const std::string overall = std::to_string(CalculateOverall(5, 7));
    EXPECT_THAT(Rows(Show(7, true)), ElementsAre("SK 41", "DU 42", "ST 43", "SZ 44", "AG 45", "RB 46", "SC 47", "HS 48",
                                                 "RT 49", "EX 50", "LD 51", "MO 52", "PO 53", "OV " + overall));
    LeagueData.ShowAllRatings = false;
    GoalieStatCount = 7;
    EXPECT_THAT(Rows(Show(7, true)),
                ElementsAre("PH 43", "RD 46", "SC 47", "HS 48", "RT 49", "ME 51", "PO 53", "OV " + overall));
}

TEST_F(PlayerViewer, ChoosingAnEntryShowsItsRecord)
{
    frmEditPlayer& viewer = Edit(0);
    viewer.lstPlayer->setCurrentRow(1);
    EXPECT_EQ(SelectedPlayer, 7);
    EXPECT_EQ(viewer.PlayerPosition(), 5);
    EXPECT_EQ(viewer.ListPosition(), 1);
    EXPECT_EQ(Of(viewer.txtName), "Piet Vos");
    EXPECT_EQ(Rows(viewer).size(), 14U);
    Press(viewer.lstPlayer, Qt::Key_Up);
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
    EXPECT_EQ(Rows(viewer).size(), 16U);
}

TEST_F(PlayerViewer, AClickWithoutAnEntryHidesTheRatingsAndKeepsTheSelection)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.lstPlayer->setCurrentRow(-1);
    EXPECT_THAT(Rows(viewer), IsEmpty());
    EXPECT_EQ(SelectedPlayer, 7);
    EXPECT_EQ(viewer.PlayerPosition(), 2);
    EXPECT_EQ(Of(viewer.txtName), "Ward Tilton");
    EXPECT_FALSE(ListEventGuard);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PlayerViewer, AnEntryWithAnotherPositionDigitFailsTheIntegrityCheck)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.lstPlayer->item(0)->setData(entry::NumberRole, 76);
    viewer.lstPlayer_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    EXPECT_THAT(Rows(viewer), IsEmpty());
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(PlayerViewer, ARecordOutsideItsTableIsReported)
{
    frmEditPlayer& viewer = Edit(7);
    viewer.lstPlayer->item(0)->setData(entry::NumberRole, 10015);
    viewer.lstPlayer_Click();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in LstPlayer_Click"}));
}

TEST_F(PlayerViewer, TickingTheEditBoxOpensItsControlsAndUntickingClosesThem)
{
    frmEditPlayer& viewer = Show(7);
    viewer.chkEdit->setChecked(true);
    for (const QWidget* control : ClosedControls(viewer)) {
        const bool staysClosed = control == viewer.txtTeam || control == viewer.lstPlayer ||
                                 control == viewer.chkEdit || control == viewer.cmdSearch ||
                                 control == viewer.cmdNewPlayer || control == viewer.cmdNewGoaler;
        EXPECT_EQ(control->isEnabled(), !staysClosed) << control->objectName().toStdString();
    }
    viewer.chkEdit->setChecked(false);
    ExpectClosed(viewer);
}

// A screen of paper in the place of an opener, with what the viewer told it.
class PaperOpener : public Screen {
public:
    PaperOpener(Stage& stage, std::vector<std::string>& events) : Screen(stage, "frmPaper"), Events(events) {}
    void FormLoad() override {}
    void FormActivate() override { Events.emplace_back("front"); }
    void ViewerClosed(bool changed) override { Events.emplace_back(changed ? "changed" : "unchanged"); }

private:
    std::vector<std::string>& Events;
};

struct Return {
    int Mode;
    const char* Opener;
};

class ViewerReturns : public OnViewer, public ::testing::WithParamInterface<Return> {};

TEST_P(ViewerReturns, ToWhoOpenedItAndTellsWhetherSomethingChanged)
{
    std::vector<std::string> events;
    MainWithLeague();
    for (const bool changed : {false, true}) {
        const std::string_view name = GetParam().Opener;
        const bool isMain = name == "Main";
        if (!isMain) {
            TheStage.Provide(name, [&events](Stage& stage) { return std::make_unique<PaperOpener>(stage, events); });
            CallerScreen = "Main";
            TheStage.Open(name, Main());
        }
        events.clear();
        ViewerReturnMode = GetParam().Mode;
        SelectedPlayer = 7;
        Screen& opener = *TheStage.Find(name);
        TheStage.Open("EditPlayer", opener);
        EXPECT_FALSE(opener.isVisible());
        Settle();
        if (changed)
            Enter(Viewer().txtSuspension, "3");
        Click(Viewer().cmdExit);
        EXPECT_EQ(TheStage.Find("EditPlayer"), nullptr);
        EXPECT_TRUE(opener.isVisible());
        if (isMain)
            continue;
        EXPECT_THAT(events, ElementsAre(changed ? "changed" : "unchanged", "front"));
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, ViewerReturns,
                         ::testing::Values(Return{2, "Roster"}, Return{3, "FreeAgent"}, Return{4, "Draft"},
                                           Return{1, "Main"}, Return{0, "Main"}, Return{5, "Main"}, Return{-1, "Main"}),
                         [](const auto& test) { return "Case" + std::to_string(test.index); });

TEST_F(PlayerViewer, ClosedControlsKeepTheColoursOfOpenOnes)
{
    frmEditPlayer& viewer = Show(7);
    for (const QPalette& look : {DarkPalette(), LightPalette()}) {
        viewer.setPalette(look);
        const QColor text = look.color(QPalette::Active, QPalette::WindowText);
        const QColor base = look.color(QPalette::Active, QPalette::Base);
        for (const QWidget* check : std::initializer_list<QWidget*>{viewer.chkRookie, viewer.optPosition[1]}) {
            EXPECT_EQ(check->palette().color(QPalette::Disabled, QPalette::WindowText), text);
            EXPECT_EQ(check->palette().color(QPalette::Disabled, QPalette::Base), base);
        }
        EXPECT_EQ(viewer.lstPlayer->palette().color(QPalette::Disabled, QPalette::Text), text);
        EXPECT_EQ(viewer.txtName->palette().color(QPalette::Disabled, QPalette::Text), text);
    }
}

TEST_F(PlayerViewer, EveryControlCarriesItsName)
{
    const frmEditPlayer& viewer = Show(7);
    for (const QWidget* control : ClosedControls(viewer))
        EXPECT_FALSE(control->objectName().isEmpty());
    EXPECT_EQ(viewer.txtStats[16]->objectName(), "txtStats(16)");
    EXPECT_EQ(viewer.lblStatLabel[1]->objectName(), "lblStatLabel(1)");
    EXPECT_EQ(viewer.optPosition[4]->objectName(), "optPosition(4)");
    EXPECT_EQ(viewer.txtStats[1]->accessibleName(), "CK");
    EXPECT_EQ(viewer.txtCountry->accessibleName(), "Country");
}

TEST_F(PlayerViewer, EveryControlCarriesItsCaption)
{
    const frmEditPlayer& viewer = Show(7);
    const std::pair<const QWidget*, const char*> fields[] = {
        {viewer.txtName, "Name : "},    {viewer.txtCountry, "Country :"},
        {viewer.txtAge, "Age : "},      {viewer.txtWeight, "Weight :"},
        {viewer.txtHeight, "Height :"}, {viewer.txtCondition, "Condition :"},
        {viewer.txtInjury, "Injury :"}, {viewer.txtContract, "Contract :"},
        {viewer.txtSalary, "Salary :"}, {viewer.txtSuspension, "Suspension :"},
        {viewer.txtTeam, "Team : "},
    };
    const QList<QLabel*> labels = viewer.findChildren<QLabel*>();
    for (const auto& [field, caption] : fields) {
        const auto label = std::find_if(labels.begin(), labels.end(),
                                        [field = field](const QLabel* each) { return each->buddy() == field; });
        ASSERT_NE(label, labels.end()) << caption;
        EXPECT_EQ((*label)->text(), caption);
    }
    EXPECT_TRUE(
        std::any_of(labels.begin(), labels.end(), [](const QLabel* each) { return each->text() == "Position : "; }));
    const QStringList positions{"Center", "Left Wing", "Right Wing", "Defense"};
    for (int index = 1; index <= 4; ++index)
        EXPECT_EQ(viewer.optPosition[index]->text(), positions[index - 1]);
    EXPECT_EQ(viewer.optGoaler->text(), "Goalie");
    EXPECT_EQ(viewer.chkRookie->text(), "Rookie");
    EXPECT_EQ(viewer.chkNoTrade->text(), "No Trade");
    EXPECT_EQ(viewer.chkNoApplyRerate->text(), "Do Not Apply Rerate");
    EXPECT_EQ(viewer.chkEdit->text(), "Allow Edition");
    EXPECT_EQ(viewer.cmdSearch->text(), "Search Player");
    EXPECT_EQ(viewer.cmdNewPlayer->text(), "New Player");
    EXPECT_EQ(viewer.cmdNewGoaler->text(), "New Goalie");
    EXPECT_EQ(viewer.cmdErase->text(), "Erase");
    EXPECT_EQ(viewer.cmdExit->text().remove('&'), "Exit");
    const auto* frame = qobject_cast<const QGroupBox*>(viewer.txtStats[1]->parentWidget());
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->title(), "Stats");
}

} // namespace
} // namespace dravik
