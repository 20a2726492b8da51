#pragma once

#include "Answers.h"
#include "Camera.h"
#include "screens/lines/LinesScreen.h"
#include "screens/main/frmMain.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/roster/frmRoster.h"
#include "screens/squad/frmSquad.h"
#include "screens/Stage.h"
#include "screens/team/frmTeam.h"

#include <stdexcept>

namespace dravik::tour {

struct StepFailed : std::runtime_error {
    explicit StepFailed(const QString& what) : std::runtime_error(what.toStdString()) {}
};

struct Plan {
    QString League;
    QString Out;
    int Team = 0;
    QString Password;
};

// Spends a typical evening with the program, on its real screens and dialogs but without a display: opens a league, proves
// a team's password, makes its roster and lines, saves the lines file and takes it back, sets a price, ranks a draft and
// exports the ratings. It leaves a picture of every screen that it visits, and fails with StepFailed at the first thing that
// does not come true.
class Evening {
public:
    explicit Evening(Plan evening) : plan(std::move(evening)), camera(plan.Out) {}

    void Spend();

private:
    void Start();
    void OpenLeague();
    // Has the league as it was some days before beside the file, and then the file opened behind that.
    void ShowChanges();
    // Goes to the team's entry as by keyboard.
    void Choose();
    void EnterOffice();
    void LeaveOffice();
    // Looks at the roster as it came, has it made, looks through one list and moves a scratch up and down again.
    void ShapeRoster();
    // Opens the record of the first pro of a position by a double click, and closes it again.
    void ShowPlayer(int position, const QString& picture);
    void MakeLines();
    // Looks at the lines as they came, has those of every day made, and looks at every tab of the first day.
    void MakeLinesOn(QPushButton& command, Window window, const QString& picture);
    // Picks the first player of the list by keyboard.
    static void PickFirst(LinesScreen& screen);
    // Opens the sheet of the whole line-up, and looks at it as on a small display and as on a wide one.
    void PhotographSheet(LinesScreen& screen, const QString& name);
    // Saves all days as PDF, and looks at the day's sheet before it is printed.
    void ShareLines(LinesScreen& screen, const QString& name);
    // Opens the picker at the second line's center by keyboard.
    void PickForASlot(LinesScreen& screen);
    // Opens the calendar, has another goalie start on the second day and takes that back; then turns the pages of the graphs.
    void ShowLooks();
    void SaveLines();
    // A team without a password is entered without a question.
    void ExpectPassword();
    // Takes the saved lines back after the day's were lost.
    void LoadLines();
    // Raises the price of the first seats by one.
    void ShowTickets();
    // The squad table without a league, of the whole league, and of the own team beside its screen.
    // Somebody is pinned and others are held against him: on the roster and in the viewer, on the lines, with two lines beside each
    // other; and let go.
    void PinOnRoster();
    void HoldOnLines(LinesScreen& screen);
    void LookAtEmptySquad();
    void LookAtSquad();
    void LookAtOwnSquad();
    frmSquad& SquadBeside(Window window);
    // Ranks four free agents, moves the third to the top, shows him and saves the list. The league is taken for one that is
    // about to draft.
    void RankDraft();
    void ExportTheRatings();
    // The league is opened once more, as after a crash, and the work of the evening brought back.
    void BringBackTheWork();
    void ShowAbout();
    // The guide where it begins, at a picture, and where it tells of signs.
    void ReadGuide();
    // The screens whose commands are hidden.
    void ShowEmptyScreens();
    // The team screen, the calendar and the graphs when nobody is left of the team.
    void LookAtTeamOfNobody();
    // Leaves a screen, which brings `behind` back.
    void Leave(Window window, const Screen& behind, QPushButton* exit);
    // Makes the first two people an offer who may take one, looks at those with an offer alone, and saves the offer file.
    void MakeOffers();
    void BringBackOffers();

    static void Fill(EditBox* box, const QString& text);
    void Photograph(Window window, const QString& name, const QSize& size = {1280, 800});
    // The sheet of F1, at its own size.
    void PhotographKeys(Window window, const QString& name);
    void NoComplaints(const QString& step);
    static void Require(bool holds, const QString& what);

    frmMain& Main() { return *static_cast<frmMain*>(stage.Find(Window::Main)); }
    frmTeam& Team();
    frmRoster& Roster();
    frmFreeAgentClient& Offers();
    [[nodiscard]] QString TeamName() const;
    // The list of the main screen that shows the team, or none.
    EntryList* ListOf(int team);

    Plan plan;
    Answers answers;
    Camera camera;
    Stage stage;
    QString saved;
};

} // namespace dravik::tour
