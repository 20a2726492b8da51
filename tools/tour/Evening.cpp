#include "Evening.h"
#include "files/LinesFile.h"
#include "league/Trimming.h"
#include "rules/RosterJudge.h"
#include "rules/WipeLines.h"
#include "screens/lines/frmFarmLine.h"
#include "screens/lines/frmLine.h"
#include "screens/lines/LineSheet.h"
#include "screens/lines/SlotPicker.h"
#include "screens/panels/KeySheet.h"
#include "screens/panels/PersonCards.h"
#include "screens/platform/CodePage.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/RosterEntry.h"
#include "screens/team/CalendarWindow.h"
#include "screens/team/GraphsWindow.h"
#include "session/Session.h"

#include <iostream>
#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <QToolButton>

// The evening itself, and what it does for the team: roster, lines, the lines file.
namespace dravik::tour {

void Evening::Spend()
{
    Start();
    LookAtEmptySquad();
    OpenLeague();
    LookAtSquad();
    EnterOffice();
    Photograph(Window::Team, "team-first");
    ShapeRoster();
    MakeLines();
    Photograph(Window::Team, "team");
    ShowLooks();
    SaveLines();
    LoadLines();
    LookAtOwnSquad();
    ShowTickets();
    LeaveOffice();
    MakeOffers();
    RankDraft();
    ExportTheRatings();
    BringBackTheWork();
    ShowAbout();
    ReadGuide();
    ShowEmptyScreens();
    LookAtTeamOfNobody();
}

void Evening::Start()
{
    Require(stage.Start(), "the program starts");
    Photograph(Window::Main, "main-empty");
}

void Evening::OpenLeague()
{
    answers.Choose(plan.League);
    Main().mnuOpen->trigger();
    NoComplaints("the league opens");
    Require(Main().mnuTeam->menuAction()->isVisible(), "the team menu comes up");
    Require(ListOf(plan.Team) != nullptr, "the team stands in a list");
    Choose();
    Photograph(Window::Main, "main");
    ShowChanges();
}

void Evening::Choose()
{
    EntryList* list = ListOf(plan.Team);
    list->setFocus();
    for (int row = 0; row < list->count(); ++row)
        if (list->item(row)->data(entry::NumberRole).toInt() == plan.Team)
            list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    Require(CurrentTeam == plan.Team, "the team is chosen");
}

void Evening::EnterOffice()
{
    Choose();
    ExpectPassword();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(ListOf(plan.Team), &enter);
    NoComplaints("the password is proved");
    Require(stage.Find(Window::Team) != nullptr && stage.Find(Window::Team)->isVisible(), "the team screen opens");
}

void Evening::LeaveOffice()
{
    Team().cmdExit->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Require(stage.Find(Window::Team) == nullptr && Main().isVisible(), "the main screen comes back");
}

void Evening::ShapeRoster()
{
    answers.ConfirmAll(true); // what opening finds depends on the league
    Team().CmdRoster->click();
    QApplication::processEvents();
    answers.ConfirmAll(false);
    Require(stage.Find(Window::Roster) != nullptr && stage.Find(Window::Roster)->isVisible(),
            "the roster screen opens");
    Photograph(Window::Roster, "roster-first");
    answers.ConfirmAll(true); // the maker says what it did
    Roster().cmdAutoRoster->click();
    QApplication::processEvents();
    answers.ConfirmAll(false);
    Require(Roster().lblComplete->text() == "Roster Is Complete",
            "the roster is complete: " + Roster().txtReasons->toPlainText());
    PickList* pro = Roster().lstPlayer[status::Pro];
    pro->setFocus();
    for (int step = 0; step < 4; ++step) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QApplication::sendEvent(pro, &down);
    }
    Require(SelectedPlayer > 0 && Roster().cmdToScratchesFromPro->isEnabled(), "a player is chosen");
    NoComplaints("the roster is made");
    Photograph(Window::Roster, "roster");
    Photograph(Window::Roster, "roster-wide", {1920, 1080});
    PhotographKeys(Window::Roster, "roster-keys");
    const int number = pro->currentItem()->data(entry::NumberRole).toInt();
    Roster().cmdToScratchesFromPro->click();
    PickList* scratches = Roster().lstPlayer[status::Scratch];
    Require(scratches->RowOf(number) >= 0 && pro->RowOf(number) < 0, "he moves to the scratches");
    Photograph(Window::Roster, "roster-moved");
    scratches->setCurrentRow(scratches->RowOf(number), QItemSelectionModel::ClearAndSelect);
    Roster().cmdToPro->click();
    Require(pro->RowOf(number) >= 0, "and back again");
    Require(Roster().lblComplete->text() == "Roster Is Complete", "the roster is complete again");
    ShowPlayer(position::Center, "player-skater");
    ShowPlayer(position::Goalie, "player-goalie");
    PinOnRoster();
    Roster().cmdExit->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    NoComplaints("the roster is shaped");
    Require(stage.Find(Window::Roster) == nullptr && Team().isVisible(), "the team screen comes back");
}

void Evening::ShowPlayer(int position, const QString& picture)
{
    PickList* pro = Roster().lstPlayer[status::Pro];
    int row = 0;
    while (row < pro->count() && EntryPosition(pro->item(row)->data(entry::NumberRole).toInt()) != position)
        ++row;
    Require(row < pro->count(), "somebody plays the position of " + picture);
    pro->scrollToItem(pro->item(row));
    const QPointF spot = pro->visualItemRect(pro->item(row)).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                    QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, spot, pro->viewport()->mapToGlobal(spot), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pro->viewport(), &event);
    }
    NoComplaints("the record opens");
    auto* viewer = static_cast<frmEditPlayer*>(stage.Find(Window::EditPlayer));
    Require(viewer != nullptr && viewer->isVisible() && !Roster().isVisible(), "the player viewer opens");
    Require(viewer->lstPlayer->count() == 1, "it shows the one player");
    Photograph(Window::EditPlayer, picture);
    viewer->cmdExit->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    NoComplaints("the record closes");
    Require(stage.Find(Window::EditPlayer) == nullptr && Roster().isVisible(), "the roster screen comes back");
}

void Evening::MakeLines()
{
    const RosterVerdict verdict = CheckRoster(OpenWork(), plan.Team, false, true, false);
    Require(verdict.Complete,
            "the roster stays complete: " + ToQString(TextOf(dravik::OpenLeague, plan.Team, verdict)));
    MakeLinesOn(*Team().cmdLines, Window::Line, "lines");
    MakeLinesOn(*Team().cmdFarmLines, Window::FarmLine, "farmlines");
    Require(Team().cmdSaveToFile->isEnabled(), "both first days are complete");
}

void Evening::MakeLinesOn(QPushButton& command, Window window, const QString& picture)
{
    answers.ConfirmAll(true); // the maker says what it did, and what opening finds depends on the league
    command.click();
    QApplication::processEvents();
    Require(stage.Find(window) != nullptr && stage.Find(window)->isVisible(), "the lines screen opens");
    auto& screen = static_cast<LinesScreen&>(*stage.Find(window));
    Photograph(window, picture + "-first");
    for (int day = screen.vscDay->maximum(); day >= 1; --day) {
        screen.vscDay->setValue(day);
        screen.cmdAutoLines->click();
        Require(screen.lblComplete->text() == "Lines are Complete",
                "the lines are complete: " + screen.txtReasons->toPlainText());
    }
    screen.cmdCopyAll->click();
    answers.ConfirmAll(false);
    PickFirst(screen);
    for (int tab = 0; tab < screen.TabLine->count(); ++tab) {
        screen.TabLine->setCurrentIndex(tab);
        Photograph(window, QString("%1-tab%2").arg(picture).arg(tab + 1));
    }
    screen.TabLine->setCurrentIndex(0);
    auto* cards = screen.findChild<PersonCards*>();
    cards->ShowAtFocus();
    Require(cards->Shown() != nullptr, "the card of who was picked comes up");
    Photograph(window, picture + "-card");
    cards->ShowAtFocus();
    PickForASlot(screen);
    Photograph(window, picture + "-picker");
    PhotographSheet(screen, picture + "-sheet");
    ShareLines(screen, picture);
    PhotographKeys(window, picture + "-keys");
    if (window == Window::Line)
        HoldOnLines(screen);
    screen.cmdExit->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    NoComplaints("the lines are made");
    Require(stage.Find(window) == nullptr && Team().isVisible(), "the team screen comes back");
}

void Evening::PhotographSheet(LinesScreen& screen, const QString& name)
{
    screen.cmdSheet->click();
    QApplication::processEvents();
    Require(screen.Sheet != nullptr && screen.Sheet->isVisible(), "the sheet of the whole line-up opens");
    constexpr QSize onWideDisplay(1880, 1000);
    Require(camera.Photograph(*screen.Sheet, name) && camera.Photograph(*screen.Sheet, name + "-wide", onWideDisplay),
            "pictures of " + name + " are written");
    screen.Sheet->close();
}

void Evening::ShareLines(LinesScreen& screen, const QString& name)
{
    const auto take = [&screen](const char* item) {
        auto* action = screen.findChild<QAction*>(item);
        Require(action != nullptr, QString(item) + " is offered");
        action->trigger();
    };
    QFile pdf(plan.Out + "/" + name + ".pdf");
    pdf.remove(); // of a tour before this one
    answers.Choose(pdf.fileName());
    take("mnuShareAllDaysPdf");
    Require(pdf.open(QIODevice::ReadOnly) && pdf.read(4) == "%PDF", "the sheets are saved as " + pdf.fileName());
    bool isSeen = false;
    answers.LookAt("dlgPrintPreview", [this, &name, &isSeen](QDialog& dialog) {
        constexpr QSize upright(800, 1000);
        QApplication::processEvents();
        isSeen = camera.Photograph(dialog, name + "-preview", upright);
    });
    take("mnuShareDayPreview");
    Require(isSeen, "pictures of the preview of " + name + " are written");
}

void Evening::PickForASlot(LinesScreen& screen)
{
    SlotLabel* slot = screen.TabLine->SlotAt(LineField::NormalForward, 2, 1).Label;
    slot->setFocus();
    QKeyEvent ask(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
    QApplication::sendEvent(slot, &ask);
    const auto* picker = screen.findChild<SlotPicker*>();
    Require(picker != nullptr && picker->IsOpen(), "the picker opens at a slot");
}

void Evening::PickFirst(LinesScreen& screen)
{
    screen.lstPlayer->setFocus();
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(screen.lstPlayer, &down);
    Require(SelectedPlayer > 0 && !screen.lblPlaying->text().isEmpty(), "a player is picked");
}

void Evening::ShowLooks()
{
    Team().findChild<QPushButton*>("cmdCalendar")->click();
    auto* calendar = Team().findChild<CalendarWindow*>();
    Require(calendar != nullptr && calendar->isVisible(), "the calendar comes up");
    constexpr QSize ofCalendar(940, 640);
    Require(camera.Photograph(*calendar, "calendar", ofCalendar), "pictures of the calendar are written");
    if (QComboBox* starter = calendar->StarterOf(2);
        starter != nullptr && starter->isEnabled() && starter->count() > 1) {
        const Lines before = Teams[plan.Team].ProLines[2];
        starter->setFocus();
        QKeyEvent other(QEvent::KeyPress, starter->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
        QApplication::sendEvent(starter, &other);
        NoComplaints("another goalie starts");
        Require(Teams[plan.Team].ProLines[2].StartGoalie != before.StartGoalie, "another goalie starts");
        Team().findChild<QToolButton*>("cmdUndo")->click();
        QApplication::processEvents();
        Require(Teams[plan.Team].ProLines[2].StartGoalie == before.StartGoalie, "that is taken back");
    }
    calendar->close();
    Team().findChild<QPushButton*>("cmdGraphs")->click();
    auto* graphs = Team().findChild<GraphsWindow*>();
    Require(graphs != nullptr && graphs->isVisible(), "the graphs come up");
    constexpr QSize ofGraphs(1120, 600);
    for (int page = 0; page < graphs->tabPages->count(); ++page) {
        graphs->tabPages->setCurrentIndex(page);
        Require(camera.Photograph(*graphs, QString("graphs-%1").arg(page + 1), ofGraphs),
                "pictures of the graphs are written");
    }
    graphs->close();
    NoComplaints("the looks are shown");
}

void Evening::SaveLines()
{
    const QString target = PathToDesktop(LinesFilePath(dravik::OpenLeague, Machine(), plan.Team));
    Require(Team().cmdSaveToFile->isEnabled(), "the lines file can be saved");
    ExpectPassword();
    answers.Confirm("Lines file for " + TeamName() + " successfully save at\n" + target);
    Team().cmdSaveToFile->click();
    NoComplaints("the lines file is saved");
    Require(QFileInfo(target).size() > 0, "the lines file lies on disk");
    saved = target;
    std::cout << "saved " << saved.toStdString() << '\n';
}

void Evening::ExpectPassword()
{
    constexpr std::size_t digestLength = 32;
    if (RemoveSpaces(Teams[plan.Team].Password.Raw()).size() == digestLength)
        answers.Type("Password Required!", plan.Password);
}

void Evening::LoadLines()
{
    const Lines day1 = Teams[plan.Team].ProLines[1];
    WipesLines(dravik::OpenLeague, Machine(), plan.Team, 1, true);
    Team().FormActivate();
    Require(!Team().cmdSaveToFile->isEnabled(), "wiped lines cannot be saved");
    Photograph(Window::Team, "team-wiped");
    answers.Choose(saved);
    answers.Confirm("Lines file for " + TeamName() + " successfully load from\n" + saved);
    Team().cmdLoadFile->click();
    NoComplaints("the lines file is loaded");
    Require(Teams[plan.Team].ProLines[1].NormalForward(1, 1) == day1.NormalForward(1, 1) &&
                Teams[plan.Team].ProLines[1].StartGoalie == day1.StartGoalie,
            "the lines are back");
    Require(Team().cmdSaveToFile->isEnabled(), "the lines are complete again");
}

void Evening::Leave(Window window, const Screen& behind, QPushButton* exit)
{
    const QString name = stage.Find(window)->objectName();
    exit->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Require(stage.Find(window) == nullptr && behind.isVisible(), "the way back from " + name);
}

void Evening::Photograph(Window window, const QString& name, const QSize& size)
{
    Require(camera.Photograph(*stage.Find(window), name, size), "pictures of " + name + " are written");
}

// An event that is sent to a window passes its shortcuts by.
void Evening::PhotographKeys(Window window, const QString& name)
{
    for (auto* shortcut : stage.Find(window)->findChildren<QShortcut*>())
        if (shortcut->key() == QKeySequence(Qt::Key_F1))
            emit shortcut->activated();
    auto* sheet = stage.Find(window)->findChild<KeySheet*>();
    Require(sheet != nullptr && sheet->isVisible(), "the sheet of keys comes up");
    Require(camera.Photograph(*sheet, name, sheet->size()), "pictures of " + name + " are written");
    sheet->close();
}

void Evening::NoComplaints(const QString& step)
{
    QApplication::processEvents();
    const QStringList complaints = answers.TakeComplaints();
    Require(complaints.isEmpty(), step + ": " + complaints.join("; "));
}

void Evening::Require(bool holds, const QString& what)
{
    if (!holds)
        throw StepFailed(what);
}

frmTeam& Evening::Team()
{
    Require(stage.Find(Window::Team) != nullptr, "the team screen is there");
    return *static_cast<frmTeam*>(stage.Find(Window::Team));
}

frmRoster& Evening::Roster()
{
    Require(stage.Find(Window::Roster) != nullptr, "the roster screen is there");
    return *static_cast<frmRoster*>(stage.Find(Window::Roster));
}

frmFreeAgentClient& Evening::Offers()
{
    Require(stage.Find(Window::FreeAgent) != nullptr, "the screen of the offers is there");
    return *static_cast<frmFreeAgentClient*>(stage.Find(Window::FreeAgent));
}

QString Evening::TeamName() const { return ToQString(Teams[plan.Team].Name.Trimmed()); }

EntryList* Evening::ListOf(int team)
{
    for (EntryList* list : Main().lstDivision)
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->data(entry::NumberRole).toInt() == team)
                return list;
    return nullptr;
}

} // namespace dravik::tour
