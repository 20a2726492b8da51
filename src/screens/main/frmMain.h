#pragma once

#include "league/Field.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/QuietLines.h"
#include "screens/Screen.h"
#include "session/OpenLeagueClient.h"

#include <optional>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <string>
#include <string_view>

namespace dravik {

class ChangeList;

// The main screen: the teams of the open league in their divisions, and the way to every other screen. Closing it ends the
// program.
class frmMain : public Screen, public MainWindow {
public:
    explicit frmMain(Stage& stage);

    // Start-up: refuses a second instance, sets up the program's variables and opens the league file of last time.
    void FormLoad() override;
    void FormActivate() override;

    // What an opened league file does to this window.
    void SetWindowCaption(const std::string& caption) override;
    void PlaceTeam() override;
    void CentreOnScreen() override { Screen::CentreOnScreen(); }
    void ShowLeagueMenus() override;
    void SetDraftMenu(bool enabled, std::string_view caption) override;
    void SetFreeAgentsMenu(bool enabled) override;
    void SetDateLabel(const std::string& text) override;
    void Tell(QuietLine line, const std::string& text) override;
    // What anybody may know of what changed since the last client file, the chosen team's first.
    void ShowChanges() override;

    void lstDivision_Click(int division);
    void lstDivision_DblClick(int division);
    void mnuOpen_Click();
    // Has another client file beside the open league, which it does not touch.
    void mnuCompare_Click();
    void mnuExit_Click();
    void mnuViewTeam_Click();
    void mnuSetRoster_Click();
    void mnuSetLines_Click();
    void mnuSetFarmLines_Click();
    void mnuFreeAgents_Click();
    void mnuDraft_Click();
    void mnuAbout_Click();
    void mnuOutputRatingCSV_Click();
    // Has the guide beside whatever screen is in front.
    void mnuGuide_Click();
    void cmdBringBack_Click();
    void cmdForget_Click();
    // Opens a file that was opened before, as the dialog does one that was chosen.
    void mnuRecent_Click(const std::string& path);
    // The sample league is made, if it is not there yet, and opened.
    void cmdSample_Click();
    // Chooses the team of last time and views it, with its password.
    void cmdContinue_Click();

    Row<EntryList*, 1, 6> lstDivision;
    Row<QLabel*, 1, 6> lblDivision;
    Row<QLabel*, 1, 2> lblConference;
    QLabel* lblDate;
    QMenu *mnuFile = nullptr, *mnuTeam = nullptr, *mnuHelp = nullptr;
    QMenu *mnuRecent = nullptr, *mnuView = nullptr;
    QAction *mnuOpen = nullptr, *mnuExit = nullptr;
    QAction *mnuViewTeam = nullptr, *mnuSetRoster = nullptr, *mnuSetLines = nullptr, *mnuSetFarmLines = nullptr;
    QAction *mnuFreeAgents = nullptr, *mnuDraft = nullptr, *mnuAbout = nullptr, *mnuOutputRatingCSV = nullptr,
            *mnuGuide = nullptr;

protected:
    // A client file that is dropped on the window is opened, too.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void MakeMenus();
    void MakeViewMenu();
    void ListRecent();
    // What stands on the window before a league is open.
    QWidget* MakeFirstStart();
    // Opens a client file, tells what fails, and remembers it.
    void OpenFile(const std::string& path);
    void UseRememberedLook();
    void ShowContinue();
    void TellSamplePasswords();
    QAction* MakeItem(QMenu* menu, const char* name, const QString& caption, void (frmMain::*click)());
    QWidget* MakeConference(int conference);
    QWidget* MakeTeamBar();
    QWidget* MakeChanges();
    // A button that stands for a menu command.
    QPushButton* MakeShortcut(QAction* action);
    std::string LastLeague();
    void ShowChosenTeam();
    // Whether a team is chosen, which is told when not, and its password is proved.
    bool TeamIsProved();

    QLabel* lblTitle;
    QLabel *lblChosen = nullptr, *lblSaved = nullptr;
    QLabel* lblChosenPlace = nullptr;
    QPushButton *cmdOpen, *cmdBringBack, *cmdForget;
    QPushButton *cmdSample = nullptr, *cmdContinue = nullptr;
    QWidget* firstStart = nullptr;
    std::string openPath;   // of the league that is open
    bool hasOpened = false; // a league was read by the opening at hand
    QWidget* lists;         // the two conferences
    QWidget* teamBar;
    QuietLines* quiet;
    QWidget *emptySpace, *emptySpaceBelow; // around the words of the empty window
    Row<QWidget*, 1, 2> conferences;

    bool ListClickReady = false;
    std::optional<bool> placedSix; // whether all six lists are laid out; empty before the first league

    QAction* mnuCompare = nullptr;
    ChangeList* changes = nullptr;
};

} // namespace dravik
