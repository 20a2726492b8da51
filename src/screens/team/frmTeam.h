#pragma once

#include "desk/TypedNumber.h"
#include "league/Team.h"
#include "machine/Work.h"
#include "rules/LineSlots.h"
#include "screens/panels/EditBox.h"
#include "screens/Screen.h"

#include <functional>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

class ChangeList;
class EveningRows;
enum class EveningTask;
struct SeasonFigures;

// The office of the chosen team: who it is, what it has and will have, the way to its roster, lines and tickets, and the
// two commands that write and read its lines file. What only the league may change stands in closed boxes and behind hidden
// commands.
class frmTeam : public Screen {
public:
    explicit frmTeam(Stage& stage);

    // Fills the screen for CurrentTeam. A number out of range is told and closes the screen.
    void FormLoad() override;
    void ReloadForm() override { FormLoad(); }
    // The team, and what stands against saving its lines.
    void ShowAnew() override;
    // Judges day 1 of both lines: only with complete ones can the lines file be saved.
    void FormActivate() override;

    // Fills the finance labels for CurrentTeam.
    void UpdateFinance();
    // Makes the save command available, since the lines screen saw day 1 pass.
    void EnableSaveToFile();

    void txtTeamName_LostFocus();
    void txtFarmTeamName_LostFocus();
    void txtAbbre_LostFocus();
    void txtFarmAbbre_LostFocus();
    void txtCity_LostFocus();
    void txtGm_LostFocus();
    void txtProMorale_LostFocus();
    void txtFarmMorale_LostFocus();
    void txtEmail_LostFocus();
    void txtMessenger_LostFocus();

    void cmdPassword_Click();
    void cmdChangeFinance_Click();
    void cmdPayrollBonus_Click();
    void cmdFirePro_Click();
    void cmdFireFarm_Click();
    void CmdRoster_Click();
    void cmdLines_Click();
    void cmdFarmLines_Click();
    void cmdTicketArena_Click();
    void cmdProspect_Click();
    void cmdChangeCoach_Click();
    void cmdFarmChangeCoach_Click();
    void cmdSaveToFile_Click();
    void cmdLoadFile_Click();
    // Asks what of another lines file is to be taken; then for the file, and takes the lines of `sides`.
    void cmdTakeLines_Click();
    void TakeLinesFrom(const std::vector<Side>& sides);
    void cmdExit_Click();
    // Goes to the screen of a task of the evening.
    void GoTo(EveningTask task);
    // Opens the record of whom an entry of the changes is about, if he is of the team or of none.
    void OpenChanged(int entry);

    EditBox *txtTeamName = nullptr, *txtAbbre = nullptr, *txtCity = nullptr, *txtGm = nullptr, *txtProMorale = nullptr;
    EditBox *txtFarmTeamName = nullptr, *txtFarmAbbre = nullptr, *txtFarmMorale = nullptr;
    EditBox *txtMessenger = nullptr, *txtEmail = nullptr;
    QLabel *lblCoach = nullptr, *lblFarmCoach = nullptr, *lblDivision = nullptr;
    QLabel *lblConference = nullptr, *lblLoadLine = nullptr;
    QLabel *lblFinance = nullptr, *lblProPayRoll = nullptr, *lblFarmPayRoll = nullptr;
    QLabel *lblGameLeft = nullptr, *lblHGLeft = nullptr, *lblAverageAttendance = nullptr;
    QLabel *lblAverageIncome = nullptr, *lblEstimatedRevenue = nullptr;
    QLabel *lblExpensesPerGame = nullptr, *lblEstimatedSeasonExpense = nullptr, *lblEstimatedBankAccount = nullptr;
    QPushButton *cmdChangeFinance = nullptr, *cmdPayrollBonus = nullptr, *cmdPassword = nullptr;
    QPushButton *cmdChangeCoach = nullptr, *cmdFarmChangeCoach = nullptr, *cmdFirePro = nullptr;
    QPushButton *cmdFireFarm = nullptr, *cmdProspect = nullptr;
    QPushButton *cmdTicketArena = nullptr, *CmdRoster = nullptr, *cmdLines = nullptr, *cmdFarmLines = nullptr;
    QPushButton *cmdSaveToFile = nullptr, *cmdLoadFile = nullptr, *cmdTakeLines = nullptr, *cmdExit = nullptr;
    QMenu* takeMenu = nullptr;
    QAction* mnuMovedOn = nullptr;
    QLabel* lblSaveHint = nullptr; // why the lines file cannot be saved, empty when it can

private:
    void MakeControls();
    QWidget* MakeCommandGroup();
    QWidget* MakeFileGroup();
    void MakeTakeMenu();
    QWidget* MakeProGroup();
    QWidget* MakeFarmGroup();
    QWidget* MakeContactGroup();
    QWidget* MakeFinanceGroup();
    QWidget* MakeProjectionGroup();
    QWidget* MakeEveningColumn();
    // From the page to the evening, on to the changes, and back.
    void GoAround();
    void SetTabOrder();
    // A label that shows something of the team under its `name`.
    QLabel* MakeFigure(const char* name, bool isNumber = true);
    // Puts a caption and what it names into a row of a grid.
    void AddRow(QGridLayout* grid, const QString& caption, QWidget* field, int span = 1);

    void ShowTeam(const Team& team);
    void ShowName(const Team& team);
    // The boxes show what the record holds, where a text may be less than was typed.
    void ShowBoxes(const Team& team);
    void ShowTexts(const Team& team);
    // How far the evening is, and what changed since the last client file; the judges look at a copy.
    void ShowEvening();
    void ShowChanges();
    void ShowCoach(long long coach, QLabel* label, QPushButton* fire);
    void CloseWhatTheLeagueKeeps();
    // Shows the figures that were reached.
    void ShowSeason(const SeasonFigures& season);

    // What a box does with its text: `take` is a command of the desk. A text that is refused brings the focus back; behind one
    // that was taken a text shows as the record holds it, and behind a failure every box does.
    void TakeText(EditBox* box, const std::function<bool(const std::string&)>& take);
    void TakeText(EditBox* box, bool (*take)(const Work&, int team, const std::string& text));
    void TakeMorale(EditBox* box, TypedNumber (*take)(const Work&, int team, std::string_view text));
    void TakeAddress(EditBox* box, const Text<40>& address, void (*take)(const Work&, int team, std::string_view text));

    void FireCoach(bool (*fire)(const Work&, int team), QLabel* label, QPushButton* command);
    void OpenFromHere(Window window);
    // Says why the lines file cannot be saved; the judges' own words are behind it.
    void ShowSaveHint(const QStringList& reasons, const QStringList& details);

    QLabel* lblTitle = nullptr;
    QWidget* signSaveHint = nullptr;
    EveningRows* evening = nullptr;
    ChangeList* changes = nullptr;
};

} // namespace dravik
