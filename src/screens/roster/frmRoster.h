#pragma once

#include "desk/RosterMoves.h"
#include "league/Field.h"
#include "rules/RosterJudge.h"
#include "screens/panels/PayrollBar.h"
#include "screens/panels/PersonCards.h"
#include "screens/panels/PickList.h"
#include "screens/panels/ReasonsBox.h"
#include "screens/panels/StatPanel.h"
#include "screens/panels/Verdict.h"
#include "screens/Screen.h"

#include <QCheckBox>
#include <QLabel>

namespace dravik {

// The roster of the chosen team: who stands on the farm, among the scratches and on the pro team, the moves between them,
// and at all times whether the roster is complete. Lists and their labels go by `Status`.
class frmRoster : public Screen {
public:
    explicit frmRoster(Stage& stage);

    // Fills the screen for CurrentTeam. A number out of range is told and closes the screen.
    void FormLoad() override;
    // Judges the roster once more and tells what it finds.
    void FormUnload() override;
    // The player viewer comes back: what it may have changed is shown anew.
    void ViewerClosed(bool changed) override { changed ? ShowPlayer(false) : ShowStats(); }

    // The lists, the verdict and whoever was chosen.
    void ShowAnew() override;

    // Lists everybody anew. People too good or too dear for the farm become scratches on the way, silently. Unless
    // `noCheck`, the roster is judged afterwards, which may list everybody once more.
    void ShowPlayer(bool noCheck);
    // Shows the ratings and flags of SelectedPlayer.
    void ShowStats();
    // Moves a person between two lists in the tables; his entry is up to the caller, when `done` says that he moved. What
    // stands against it is told in a warning box; sending him down may ask for waivers first.
    void Change(status::Number from, status::Number to, int id, int position, bool& done);
    void HidePlayerDetails();
    void ShowListTotals();

    void lstPlayer_Click(int index);
    void lstPlayer_DblClick(int index);
    void chkPosition_Click(int position);
    void cmdToFarm_Click();
    void cmdToPro_Click();
    void cmdToScratchesFromPro_Click();
    void cmdToScratchesFromFarm_Click();
    void cmdSendToWaiver_Click();
    void cmdRelease_Click();
    void cmdCaptain_Click();
    void cmdAssistant_Click();
    void cmdTradeAvailable_Click();
    void chkProtected_Click();
    void chkNoApplyRerate_Click();
    void chkNoTrade_Click();
    void cmdAutoRoster_Click();
    void cmdAutoRosterPartial_Click();
    void cmdExit_Click();

    // People of the team by `Status`, listed or not; entry 3 counts those off the farm who are fit to dress.
    [[nodiscard]] const RosterCounts& StatusCount() const { return statusCount; }
    // The overall of the person whom ShowStats showed last.
    [[nodiscard]] Int16 PlayerOverall() const { return playerOverall; }

    Row<PickList*, 0, 2> lstPlayer;
    Row<QLabel*, 0, 2> lblPlayer;
    Row<QCheckBox*, 1, 5> chkPosition;
    StatPanel* Stats = nullptr;
    QPushButton *cmdToFarm = nullptr, *cmdToPro = nullptr;
    QPushButton *cmdToScratchesFromPro = nullptr, *cmdToScratchesFromFarm = nullptr;
    QPushButton *cmdTradeAvailable = nullptr, *cmdCaptain = nullptr, *cmdAssistant = nullptr;
    QPushButton *cmdRelease = nullptr, *cmdSendToWaiver = nullptr;
    QCheckBox *chkProtected = nullptr, *chkNoApplyRerate = nullptr, *chkNoTrade = nullptr;
    QPushButton *cmdAutoRoster = nullptr, *cmdAutoRosterPartial = nullptr, *cmdExit = nullptr;
    QLabel *lblTeamName = nullptr, *lblProtectedTotal = nullptr;
    QLabel* lblRelease = nullptr; // what a release of whoever is chosen would mean
    VerdictLabel* lblComplete = nullptr;
    ReasonsBox* txtReasons = nullptr; // what the last judgement found, in its own words
    PayrollBar* Payroll = nullptr;

private:
    void MakeControls();
    PickList* MakeList(int index, const QString& caption);
    QCheckBox* MakeFlag(const char* name, const QString& caption, void (frmRoster::*click)());
    QWidget* MakeListColumn(int index);
    QWidget* MakePersonColumn();
    void SetTabOrder();
    void DrawSignsAnew();

    template <class Person>
    void ListPerson(Person& person, int index);
    // Judges the lists that have just been filled, and shows the verdict.
    void JudgeLists();
    // Whether the roster is complete, and the reasons.
    void ShowVerdict(const RosterVerdict& verdict);
    // What the judgement said stands under the verdict; the payroll's part only when it was judged too.
    void ShowReasons(const RosterVerdict& verdict);
    void ShowPayroll();
    void ShowRatings(PersonId who);
    void ShowRelease(PersonId who);
    template <class Person>
    void ShowFlags(const Person& person);

    // A change of the person at hand as a step, and a move of whoever is chosen in a list.
    std::function<void()> AsPersonStep(const QString& words, std::function<void()> change);
    std::function<void()> AsMove(const QString& words, status::Number from, std::function<void()> change);

    // Moves every chosen entry of a list that `mayMove` lets pass.
    void MoveChosen(status::Number from, status::Number to, Permission (frmRoster::*mayMove)());
    Permission MayMoveFreely() { return Permission::Given; }
    Permission MayGoToFarm();
    Permission MayLeaveFarm();
    void MoveEntry(status::Number from, status::Number to, int row);
    // People dragged from one list to another: the commands of the moves in between, as one step.
    void MakeDrags();
    void Drag(status::Number from, status::Number to);
    // The same commands one behind the other: whoever has come to the scratches by the first one is chosen there for the second.
    void MoveTwice(status::Number from, void (frmRoster::*second)());
    // The command that moves from the pro list, or the farm's, to the scratches.
    void ToScratches(status::Number from);
    // The entry at the current index of the first list that has one, or none.
    QListWidgetItem* CurrentEntry();
    // Takes the person chosen from the pro list to the scratches. False when something stands against it.
    bool ScratchSelected();

    PersonCards* const cards = new PersonCards(this);
    RosterCounts statusCount;
    Int16 playerOverall;
};

} // namespace dravik
