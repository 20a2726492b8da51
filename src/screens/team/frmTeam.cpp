#include "screens/team/frmTeam.h"

#include "desk/Coaches.h"
#include "desk/FirstDay.h"
#include "desk/LinesFiles.h"
#include "desk/Password.h"
#include "desk/TakeLines.h"
#include "desk/TeamMoney.h"
#include "machine/Reporting.h"
#include "rules/LineJudge.h"
#include "rules/RosterJudge.h"
#include "rules/SeasonProjection.h"
#include "screens/panels/TellTakenIn.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "screens/Stage.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

#include <cmath>
#include <functional>
#include <QTextDocument>

namespace dravik {

namespace {

// A number of whole and half games, "12" or "12.5", with the locale's decimal sign.
QString ShownHalves(double number)
{
    const bool isWhole = std::nearbyint(number) == number;
    return ToQString(Machine().Fixed(number, isWhole ? 0 : 1));
}

QString ShownMoney(double amount) { return ToQString(Machine().CurrencyNoDecimals(amount)); }

// Takes the wait screen away. That brings the team screen to the front, once the command has told what it has to tell: the
// judges that run then may have boxes of their own.
class WaitEnd {
public:
    void operator()()
    {
        Machine().CloseWait();
        came = true;
    }
    [[nodiscard]] bool Came() const { return came; }

private:
    bool came = false;
};

} // namespace

void frmTeam::FormLoad()
{
    Reporting(Machine(), " in FormLoad FrmTeam!", [this] {
        CentreOnScreen();
        if (!LeagueData.FarmEnabled)
            cmdFarmLines->setEnabled(false);
        if (!TeamTable::Has(CurrentTeam)) {
            Machine().ShowIntegrityFailure();
            Unload();
            return;
        }
        // However far the filling comes, what the league keeps is closed behind it.
        try {
            ShowTeam(OwnTeam());
        } catch (...) {
            CloseWhatTheLeagueKeeps();
            throw;
        }
        CloseWhatTheLeagueKeeps();
        // So that the window opens with room for their words. They are told anew whenever it comes to the front.
        ShowEvening();
        ShowChanges();
    });
}

void frmTeam::ShowAnew()
{
    ShowTeam(OwnTeam());
    CloseWhatTheLeagueKeeps();
    FormActivate();
}

void frmTeam::ShowTeam(const Team& team)
{
    ShowName(team);
    ShowBoxes(team);
    lblLoadLine->setText(Shown(team.LinesLoadCount));
    txtTeamName->setEnabled(true);
    txtFarmTeamName->setEnabled(true);
    ShowCoach(team.ProCoach, lblCoach, cmdFirePro);
    ShowCoach(team.Farm.FarmCoach, lblFarmCoach, cmdFireFarm);
    const Division& division = LeagueData.Division[team.Division];
    lblDivision->setText(Shown(division.Name));
    lblConference->setText(Shown(LeagueData.Conference[division.Conference]));
    UpdateFinance();
}

void frmTeam::ShowCoach(long long coach, QLabel* label, QPushButton* fire)
{
    label->clear();
    if (coach < 1)
        fire->setEnabled(false);
    else
        label->setText(Shown(Coaches[coach].Name));
}

void frmTeam::CloseWhatTheLeagueKeeps()
{
    for (QPushButton* command : {cmdChangeFinance, cmdPayrollBonus, cmdPassword, cmdChangeCoach, cmdFarmChangeCoach,
                                 cmdFirePro, cmdFireFarm, cmdProspect})
        command->hide();
    for (EditBox* box :
         {txtTeamName, txtAbbre, txtCity, txtGm, txtFarmTeamName, txtFarmAbbre, txtProMorale, txtFarmMorale})
        box->setEnabled(false);
}

// Both judges run whatever the first one says: they repair as they judge.
void frmTeam::FormActivate()
{
    const LineVerdict farm = JudgeDay(OpenWork(), OwnNumber(), Side::Farm, 1, false);
    const LineVerdict pro = JudgeDay(OpenWork(), OwnNumber(), Side::Pro, 1, false);
    cmdSaveToFile->setEnabled(farm.Complete && pro.Complete);
    QStringList reasons;
    QStringList details;
    const auto tell = [&](const LineVerdict& verdict, Side side) {
        if (verdict.Complete)
            return;
        reasons << ToQString(FirstDayWarning(side));
        details << ToQString(TextOf(OpenLeague, verdict));
    };
    tell(pro, Side::Pro);
    tell(farm, Side::Farm);
    ShowSaveHint(reasons, details);
    ShowEvening();
    ShowChanges();
}

void frmTeam::EnableSaveToFile()
{
    cmdSaveToFile->setEnabled(true);
    ShowSaveHint({}, {});
}

void frmTeam::ShowSaveHint(const QStringList& reasons, const QStringList& details)
{
    lblSaveHint->setText(reasons.join("\n"));
    lblSaveHint->setVisible(!reasons.isEmpty());
    // A name with a tag in it stays a name.
    const QString detail = details.join("\n\n").replace("\r\n", "\n");
    lblSaveHint->setToolTip(detail.isEmpty() ? QString() : Qt::convertFromPlainText(detail));
    signSaveHint->setVisible(!reasons.isEmpty());
    cmdSaveToFile->setAccessibleDescription(lblSaveHint->text());
}

// What was reached before a failure is shown all the same; the other labels keep what they show.
void frmTeam::UpdateFinance()
{
    Reporting(Machine(), " in UpdateFinance!", [this] {
        SeasonFigures season;
        try {
            ProjectSeason(OpenLeague, Machine(), OwnNumber(), season);
        } catch (...) {
            ShowSeason(season);
            throw;
        }
        ShowSeason(season);
    });
}

void frmTeam::ShowSeason(const SeasonFigures& season)
{
    const auto show = [](QLabel* label, const auto& figure, const auto& shown) {
        if (figure)
            label->setText(shown(*figure));
    };
    const auto showAttendance = [&season](double average) {
        constexpr int decimals = 2;
        return season.Form == SeasonForm::Full ? ToQString(Machine().Fixed(average, decimals)) : Shown(0);
    };
    show(lblFinance, season.Cash, ShownMoney);
    show(lblProPayRoll, season.ProPayroll, ShownMoney);
    show(lblFarmPayRoll, season.FarmPayroll, ShownMoney);
    show(lblHGLeft, season.HomeGamesLeft, ShownHalves);
    show(lblGameLeft, season.GamesLeft, [](int games) { return Shown(games); });
    show(lblExpensesPerGame, season.ExpensePerGame, ShownMoney);
    show(lblEstimatedSeasonExpense, season.SeasonExpense, ShownMoney);
    show(lblAverageAttendance, season.AverageAttendance, showAttendance);
    show(lblAverageIncome, season.AverageIncome, ShownMoney);
    show(lblEstimatedBankAccount, season.BankAccount, ShownMoney);
    show(lblEstimatedRevenue, season.Revenue, ShownMoney);
}

void frmTeam::cmdPassword_Click()
{
    Reporting(Machine(), " in cmdPassword!", [] { ChangePassword(OpenWork(), Machine(), OwnNumber()); });
}

void frmTeam::cmdChangeFinance_Click()
{
    ReportingUnlessCancelled(Machine(), " in cmdChangeFinance!",
                             [this] { ChangeCash(OpenWork(), OwnNumber(), [this] { UpdateFinance(); }); });
}

void frmTeam::cmdPayrollBonus_Click()
{
    ReportingUnlessCancelled(Machine(), " in cmdPayrollBonus!",
                             [this] { ChangePayrollBonus(OpenWork(), OwnNumber(), [this] { UpdateFinance(); }); });
}

void frmTeam::FireCoach(bool (*fire)(const Work&, int team), QLabel* label, QPushButton* command)
{
    if (!fire(OpenWork(), OwnNumber()))
        return;
    label->clear();
    command->setEnabled(false);
}

void frmTeam::cmdFirePro_Click()
{
    Reporting(Machine(), " in cmdFirePro!", [this] { FireCoach(FireProCoach, lblCoach, cmdFirePro); });
}

void frmTeam::cmdFireFarm_Click()
{
    Reporting(Machine(), " in cmdFireFarm!", [this] { FireCoach(FireFarmCoach, lblFarmCoach, cmdFireFarm); });
}

void frmTeam::OpenFromHere(Window window)
{
    CallerScreen = caller_screen::Team;
    Open(window);
}

void frmTeam::CmdRoster_Click() { OpenFromHere(Window::Roster); }

void frmTeam::cmdLines_Click()
{
    if (!CheckRoster(OpenWork(), OwnNumber(), false, true, false)) {
        Machine().ShowBox("Roster is incomplete!" + std::string(LineBreak) +
                              "You cannot make your lines if your roster is incomplete!",
                          box::Warning);
        return;
    }
    OpenFromHere(Window::Line);
}

void frmTeam::cmdFarmLines_Click() { OpenFromHere(Window::FarmLine); }

void frmTeam::cmdTicketArena_Click() { OpenFromHere(Window::Ticket); }

void frmTeam::cmdProspect_Click() { OpenFromHere(Window::Prospect); }

void frmTeam::cmdChangeCoach_Click()
{
    ViewerReturnMode = return_mode::ProTeam;
    OpenFromHere(Window::Coach);
}

void frmTeam::cmdFarmChangeCoach_Click()
{
    ViewerReturnMode = return_mode::FarmTeam;
    OpenFromHere(Window::Coach);
}

void frmTeam::cmdSaveToFile_Click()
{
    WaitEnd endWait;
    Reporting(Machine(), " in cmdSaveToFile!", [&] {
        SaveLines(OpenWork(), OpenFiles(), Machine(), OwnNumber(), std::ref(endWait),
                  [](const std::string& path) { NoteSaved(SavedFile::Lines, OwnNumber(), path); });
    });
    ShowHistory();
    if (endWait.Came())
        FormActivate();
}

void frmTeam::cmdLoadFile_Click()
{
    WaitEnd endWait;
    ReportingUnlessCancelled(Machine(), " in cmdLoadFile!", [&] {
        const std::string path = Machine().OpenFileDialog(Machine().ProgramFolder(),
                                                          "DRVK Client File (*.dvl) |*.dvl|All Files (*.*) | *.*");
        LoadLines(OpenWork(), OpenFiles(), Machine(), OwnNumber(), path, std::ref(endWait), [this] { FormLoad(); });
    });
    if (endWait.Came())
        FormActivate();
}

void frmTeam::cmdTakeLines_Click() { takeMenu->popup(cmdTakeLines->mapToGlobal(QPoint(0, cmdTakeLines->height()))); }

void frmTeam::TakeLinesFrom(const std::vector<Side>& sides)
{
    ReportingUnlessCancelled(Machine(), " in cmdTakeLines!", [&] {
        const std::string path = Machine().OpenFileDialog(Machine().ProgramFolder(),
                                                          "DRVK Client File (*.dvl) |*.dvl|All Files (*.*) | *.*");
        TellLoaded(LoadBehindWait(
            [&] { return TakeLines(OpenWork(), OpenFiles(), OwnNumber(), path, sides, mnuMovedOn->isChecked()); }));
    });
    FormActivate();
}

void frmTeam::cmdExit_Click() { Owner.Close(*this); }

} // namespace dravik
