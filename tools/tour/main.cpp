#include "Answers.h"
#include "Camera.h"
#include "league/ClientVariable.h"
#include "league/DraftFile.h"
#include "league/LinesFile.h"
#include "league/OffersFile.h"
#include "league/OutsideCode.h"
#include "rules/Function.h"
#include "screens/frmAbout.h"
#include "screens/frmDraft.h"
#include "screens/frmEditPlayer.h"
#include "screens/frmFarmLine.h"
#include "screens/frmFreeAgentClient.h"
#include "screens/frmLine.h"
#include "screens/frmMain.h"
#include "screens/frmRoster.h"
#include "screens/frmTeam.h"
#include "screens/frmTicket.h"
#include "screens/platform/Application.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Palettes.h"
#include "screens/platform/QtPlatform.h"
#include "screens/RosterEntry.h"
#include "screens/Stage.h"

#include <iostream>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <stdexcept>

// Spends a typical evening with the program, on its real screens and dialogs but without a display: opens a league, proves
// a team's password, makes its roster and lines, saves the lines file and takes it back, sets a price, ranks a draft and
// exports the ratings. It leaves a picture of every screen that it visits.
namespace dravik::tour {

namespace {

struct StepFailed : std::runtime_error {
    explicit StepFailed(const QString& what) : std::runtime_error(what.toStdString()) {}
};

struct Plan {
    QString League;
    QString Out;
    int Team = 0;
    QString Password;
};

class Evening {
public:
    explicit Evening(Plan evening) : plan(std::move(evening)), camera(plan.Out) {}

    void Spend()
    {
        Start();
        OpenLeague();
        EnterOffice();
        Photograph("Team", "team-first");
        ShapeRoster();
        MakeLines();
        Photograph("Team", "team");
        SaveLines();
        LoadLines();
        ShowTickets();
        LeaveOffice();
        MakeOffers();
        RankDraft();
        ExportTheRatings();
        ShowAbout();
        ShowEmptyScreens();
    }

private:
    void Start()
    {
        Require(stage.Start(), "the program starts");
        Photograph("Main", "main-empty");
    }

    void OpenLeague()
    {
        answers.Choose(plan.League);
        Main().mnuOpen->trigger();
        NoComplaints("the league opens");
        Require(Main().mnuTeam->menuAction()->isVisible(), "the team menu comes up");
        Require(ListOf(plan.Team) != nullptr, "the team stands in a list");
        Choose();
        Photograph("Main", "main");
    }

    // Goes to the team's entry as by keyboard.
    void Choose()
    {
        EntryList* list = ListOf(plan.Team);
        list->setFocus();
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->data(entry::NumberRole).toInt() == plan.Team)
                list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
        Require(CurrentTeam == plan.Team, "the team is chosen");
    }

    void EnterOffice()
    {
        Choose();
        ExpectPassword();
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(ListOf(plan.Team), &enter);
        NoComplaints("the password is proved");
        Require(stage.Find("Team") != nullptr && stage.Find("Team")->isVisible(), "the team screen opens");
    }

    void LeaveOffice()
    {
        Team().cmdExit->click();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Require(stage.Find("Team") == nullptr && Main().isVisible(), "the main screen comes back");
    }

    // Looks at the roster as it came, has it made, looks through one list and moves a scratch up and down again.
    void ShapeRoster()
    {
        answers.ConfirmAll(true); // what opening finds depends on the league
        Team().CmdRoster->click();
        QApplication::processEvents();
        answers.ConfirmAll(false);
        Require(stage.Find("Roster") != nullptr && stage.Find("Roster")->isVisible(), "the roster screen opens");
        Photograph("Roster", "roster-first");
        answers.ConfirmAll(true); // the maker says what it did
        Roster().cmdAutoRoster->click();
        QApplication::processEvents();
        answers.ConfirmAll(false);
        Require(Roster().lblComplete->text() == "Roster Is Complete", "the roster is complete: " + Judged());
        PickList* pro = Roster().lstPlayer[status::Pro];
        pro->setFocus();
        for (int step = 0; step < 4; ++step) {
            QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
            QApplication::sendEvent(pro, &down);
        }
        Require(SelectedPlayer > 0 && Roster().cmdToScratchesFromPro->isEnabled(), "a player is chosen");
        NoComplaints("the roster is made");
        Photograph("Roster", "roster");
        const int number = pro->currentItem()->data(entry::NumberRole).toInt();
        Roster().cmdToScratchesFromPro->click();
        PickList* scratches = Roster().lstPlayer[status::Scratch];
        Require(scratches->RowOf(number) >= 0 && pro->RowOf(number) < 0, "he moves to the scratches");
        Photograph("Roster", "roster-moved");
        scratches->setCurrentRow(scratches->RowOf(number), QItemSelectionModel::ClearAndSelect);
        Roster().cmdToPro->click();
        Require(pro->RowOf(number) >= 0, "and back again");
        Require(Roster().lblComplete->text() == "Roster Is Complete", "the roster is complete again");
        ShowPlayer(position::Center, "player-skater");
        ShowPlayer(position::Goalie, "player-goalie");
        Roster().cmdExit->click();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        NoComplaints("the roster is shaped");
        Require(stage.Find("Roster") == nullptr && Team().isVisible(), "the team screen comes back");
    }

    // Opens the record of the first pro of a position by a double click, and closes it again.
    void ShowPlayer(int position, const QString& picture)
    {
        PickList* pro = Roster().lstPlayer[status::Pro];
        int row = 0;
        while (row < pro->count() && EntryPosition(pro->item(row)->data(entry::NumberRole).toInt()) != position)
            ++row;
        Require(row < pro->count(), "somebody plays the position of " + picture);
        pro->scrollToItem(pro->item(row));
        const QPointF spot = pro->visualItemRect(pro->item(row)).center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                        QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, spot, pro->viewport()->mapToGlobal(spot), Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(pro->viewport(), &event);
        }
        NoComplaints("the record opens");
        auto* viewer = static_cast<frmEditPlayer*>(stage.Find("EditPlayer"));
        Require(viewer != nullptr && viewer->isVisible() && !Roster().isVisible(), "the player viewer opens");
        Require(viewer->lstPlayer->count() == 1, "it shows the one player");
        Photograph("EditPlayer", picture);
        viewer->cmdExit->click();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        NoComplaints("the record closes");
        Require(stage.Find("EditPlayer") == nullptr && Roster().isVisible(), "the roster screen comes back");
    }

    static QString Judged() { return ToQString(LastRosterText()); }

    void MakeLines()
    {
        Require(CheckRoster(plan.Team, false, true, false), "the roster stays complete: " + Judged());
        MakeLinesOn(*Team().cmdLines, "Line", "lines");
        MakeLinesOn(*Team().cmdFarmLines, "FarmLine", "farmlines");
        Require(Team().cmdSaveToFile->isEnabled(), "both first days are complete");
    }

    // Looks at the lines as they came, has those of every day made, and looks at every tab of the first day.
    void MakeLinesOn(QPushButton& command, std::string_view name, const QString& picture)
    {
        answers.ConfirmAll(true); // the maker says what it did, and what opening finds depends on the league
        command.click();
        QApplication::processEvents();
        Require(stage.Find(name) != nullptr && stage.Find(name)->isVisible(), "the lines screen opens");
        auto& screen = static_cast<LinesScreen&>(*stage.Find(name));
        Photograph(name, picture + "-first");
        for (int day = screen.vscDay->maximum(); day >= 1; --day) {
            screen.vscDay->setValue(day);
            screen.cmdAutoLines->click();
            Require(screen.lblComplete->text() == "Lines are Complete",
                    "the lines are complete: " + ToQString(LastLinesText()));
        }
        screen.cmdCopyAll->click();
        answers.ConfirmAll(false);
        PickFirst(screen);
        for (int tab = 0; tab < screen.TabLine->count(); ++tab) {
            screen.TabLine->setCurrentIndex(tab);
            Photograph(name, QString("%1-tab%2").arg(picture).arg(tab + 1));
        }
        screen.TabLine->setCurrentIndex(0);
        screen.cmdExit->click();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        NoComplaints("the lines are made");
        Require(stage.Find(name) == nullptr && Team().isVisible(), "the team screen comes back");
    }

    // Picks the first player of the list by keyboard.
    static void PickFirst(LinesScreen& screen)
    {
        screen.lstPlayer->setFocus();
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QApplication::sendEvent(screen.lstPlayer, &down);
        Require(SelectedPlayer > 0 && !screen.lblPlaying->text().isEmpty(), "a player is picked");
    }

    void SaveLines()
    {
        const QString target = PathToDesktop(LinesFilePath(plan.Team));
        Require(Team().cmdSaveToFile->isEnabled(), "the lines file can be saved");
        ExpectPassword();
        answers.Confirm("Lines file for " + TeamName() + " successfully save at\n" + target);
        Team().cmdSaveToFile->click();
        NoComplaints("the lines file is saved");
        Require(QFileInfo(target).size() > 0, "the lines file lies on disk");
        saved = target;
        std::cout << "saved " << saved.toStdString() << '\n';
    }

    // A team without a password is entered without a question.
    void ExpectPassword()
    {
        constexpr std::size_t digestLength = 32;
        if (RemoveSpaces(Teams[plan.Team].Password.Raw()).size() == digestLength)
            answers.Type("Password Required!", plan.Password);
    }

    // Takes the saved lines back after the day's were lost.
    void LoadLines()
    {
        const Lines day1 = Teams[plan.Team].ProLines[1];
        WipesLines(plan.Team, 1, true);
        Team().FormActivate();
        Require(!Team().cmdSaveToFile->isEnabled(), "wiped lines cannot be saved");
        Photograph("Team", "team-wiped");
        answers.Choose(saved);
        answers.Confirm("Lines file for " + TeamName() + " successfully load from\n" + saved);
        Team().cmdLoadFile->click();
        NoComplaints("the lines file is loaded");
        Require(Teams[plan.Team].ProLines[1].NormalForward(1, 1) == day1.NormalForward(1, 1) &&
                    Teams[plan.Team].ProLines[1].StartGoalie == day1.StartGoalie,
                "the lines are back");
        Require(Team().cmdSaveToFile->isEnabled(), "the lines are complete again");
    }

    // Raises the price of the first seats by one.
    void ShowTickets()
    {
        Team().cmdTicketArena->click();
        QApplication::processEvents();
        auto* tickets = static_cast<frmTicket*>(stage.Find("Ticket"));
        Require(tickets != nullptr && tickets->isVisible(), "the ticket screen opens");
        Int16& price = Teams[plan.Team].TicketPrice[1];
        const long long wanted = price + 1;
        tickets->txtTicket[1]->setFocus();
        tickets->txtTicket[1]->setText(QString::number(wanted));
        tickets->cmdExit->setFocus();
        Require(price == wanted, "the price is stored");
        Photograph("Ticket", "tickets");
        Leave("Ticket", Team(), tickets->cmdExit);
    }

    // Ranks four free agents, moves the third to the top, shows him and saves the list. The league is taken for one that is
    // about to draft.
    void RankDraft()
    {
        LeagueData.FantasyDraft = true;
        stage.Open("Draft", Main());
        auto& draft = *static_cast<frmDraft*>(stage.Find("Draft"));
        Require(draft.isVisible(), "the draft screen opens");
        Photograph("Draft", "draft-first");
        constexpr int wanted = 4;
        Require(draft.lstPlayers->count() >= wanted, "there are players without a team");
        for (int row = 0; row < wanted; ++row) {
            draft.lstPlayers->setCurrentRow(row * (draft.lstPlayers->count() / wanted));
            draft.cmdChoose->click();
        }
        draft.lstDraftList->setCurrentRow(2);
        const QString favourite = draft.lstDraftList->currentItem()->text();
        draft.cmdUp->click();
        draft.cmdUp->click();
        Require(draft.lstDraftList->item(0)->text() == favourite, "the third moves to the top");
        NoComplaints("the draft list is made");
        Photograph("Draft", "draft");
        draft.lstDraftList_DblClick();
        auto* viewer = static_cast<frmEditPlayer*>(stage.Find("EditPlayer"));
        Require(viewer != nullptr && viewer->isVisible() && !draft.isVisible(), "the player viewer opens");
        Leave("EditPlayer", draft, viewer->cmdExit);
        const QString target = PathToDesktop(DraftFilePath(plan.Team));
        ExpectPassword();
        answers.Confirm("Fantasy Draft File save for " + TeamName() + " succesfully at\n" + target);
        draft.cmdSaveToFile->click();
        NoComplaints("the draft file is saved");
        Require(QFileInfo(target).size() > 0, "the draft file lies on disk");
        std::cout << "saved " << target.toStdString() << '\n';
        Leave("Draft", Main(), draft.cmdExit);
    }

    void ExportTheRatings()
    {
        answers.Confirm("Are you sure you want to output a Rating CSV file of your league?");
        answers.Confirm("Output done in " + plan.Out);
        Main().mnuOutputRatingCSV->trigger();
        NoComplaints("the ratings are exported");
        for (const char* name : {"/PlayersRatings.csv", "/CoachesRatings.csv"})
            Require(QFileInfo(plan.Out + name).size() > 0, "the ratings lie on disk");
    }

    void ShowAbout()
    {
        Main().mnuAbout->trigger();
        auto* about = static_cast<frmAbout*>(stage.Find("About"));
        Require(about != nullptr && about->isVisible() && Main().isVisible(),
                "the about screen opens beside the main one");
        Photograph("About", "about");
        Leave("About", Main(), about->cmdExit);
    }

    // The screens whose commands are hidden.
    void ShowEmptyScreens()
    {
        for (const char* name : {"Coach", "Prospect"}) {
            stage.Open(name, Main());
            Require(stage.Find(name) != nullptr && stage.Find(name)->isVisible(), "an empty screen opens");
            Photograph(name, QString(name).toLower());
            stage.Find(name)->close();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            Require(Main().isVisible(), "the main screen comes back");
        }
    }

    // Leaves a screen, which brings `behind` back.
    void Leave(const char* name, const Screen& behind, QPushButton* exit)
    {
        exit->click();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Require(stage.Find(name) == nullptr && behind.isVisible(), QString("the way back from ") + name);
    }

    // Makes the first two people an offer who may take one, looks at those with an offer alone, and saves the offer file.
    void MakeOffers()
    {
        Choose();
        ExpectPassword();
        answers.ConfirmAll(true); // the first of the list may be somebody whom only his own team may sign
        Main().mnuFreeAgents->trigger();
        QApplication::processEvents();
        Require(stage.Find("FreeAgent") != nullptr && stage.Find("FreeAgent")->isVisible(), "the offers open");
        int made = 0;
        for (int row = 0; row < Offers().lstPlayers->count() && made < 2; ++row) {
            Offers().lstPlayers->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
            if (!Offers().txtOffer->isEnabled())
                continue;
            ++made;
            Fill(Offers().txtOffer, QString::number(LeagueData.MinSalary + 250000LL * made));
            Fill(Offers().txtDuration, QString::number(made + 1));
            Fill(Offers().txtBonus, "50000");
            Offers().txtComment->setFocus();
            Offers().txtComment->setPlainText(
                "Top line center and first unit on the power play. Your old linemates are here.");
            Offers().lstPlayers->setFocus();
        }
        answers.ConfirmAll(false);
        Require(made == 2, "two people can be made an offer");
        NoComplaints("the offers are made");
        Photograph("FreeAgent", "offers");
        Offers().chkShowPlayerWithOffer->click();
        Require(Offers().lstPlayers->count() == 2, "those with an offer are listed alone");
        Photograph("FreeAgent", "offers-made");
        const QString target = PathToDesktop(OffersFilePath(plan.Team));
        ExpectPassword();
        answers.ConfirmAll(true); // a report in pages
        Offers().cmdSaveToFile->click();
        QApplication::processEvents();
        answers.ConfirmAll(false);
        Require(QFileInfo(target).size() > 0, "the offer file lies on disk");
        std::cout << "saved " << target.toStdString() << '\n';
        Offers().cmdExit->click();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        NoComplaints("the offers are saved");
        Require(stage.Find("FreeAgent") == nullptr && Main().isVisible(), "the main screen comes back");
    }

    static void Fill(EditBox* box, const QString& text)
    {
        box->setFocus();
        box->setText(text);
    }

    void Photograph(std::string_view screen, const QString& name)
    {
        Require(camera.Photograph(*stage.Find(screen), name), "pictures of " + name + " are written");
    }

    void NoComplaints(const QString& step)
    {
        QApplication::processEvents();
        const QStringList complaints = answers.TakeComplaints();
        Require(complaints.isEmpty(), step + ": " + complaints.join("; "));
    }

    static void Require(bool holds, const QString& what)
    {
        if (!holds)
            throw StepFailed(what);
    }

    frmMain& Main() { return *static_cast<frmMain*>(stage.Find("Main")); }
    frmTeam& Team()
    {
        Require(stage.Find("Team") != nullptr, "the team screen is there");
        return *static_cast<frmTeam*>(stage.Find("Team"));
    }
    frmRoster& Roster()
    {
        Require(stage.Find("Roster") != nullptr, "the roster screen is there");
        return *static_cast<frmRoster*>(stage.Find("Roster"));
    }
    frmFreeAgentClient& Offers()
    {
        Require(stage.Find("FreeAgent") != nullptr, "the screen of the offers is there");
        return *static_cast<frmFreeAgentClient*>(stage.Find("FreeAgent"));
    }
    [[nodiscard]] QString TeamName() const { return ToQString(Teams[plan.Team].Name.Trimmed()); }

    // The list of the main screen that shows the team, or none.
    EntryList* ListOf(int team)
    {
        for (EntryList* list : Main().lstDivision)
            for (int row = 0; row < list->count(); ++row)
                if (list->item(row)->data(entry::NumberRole).toInt() == team)
                    return list;
        return nullptr;
    }

    Plan plan;
    Answers answers;
    Camera camera;
    Stage stage;
    QString saved;
};

Plan Parse(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Drives the client's screens through a typical evening, without a display.");
    parser.addHelpOption();
    const QCommandLineOption league("league", "The client file to open.", "file");
    const QCommandLineOption out("out", "The folder for pictures and saved files.", "folder");
    const QCommandLineOption team("team", "The team to work on, 1 to 100.", "number", "3");
    const QCommandLineOption password("password", "Its password.", "text", "puck");
    parser.addOptions({league, out, team, password});
    parser.process(application);
    if (!parser.isSet(league) || !parser.isSet(out) || !TeamTable::Has(parser.value(team).toInt()))
        parser.showHelp(2);
    return {QFileInfo(parser.value(league)).absoluteFilePath(), QDir(parser.value(out)).absolutePath(),
            parser.value(team).toInt(), parser.value(password)};
}

int Run(const Plan& plan)
{
    if (!QFileInfo(plan.League).isFile()) {
        std::cerr << "tour: there is no " << plan.League.toStdString() << '\n';
        return 1;
    }
    if (!QDir().mkpath(plan.Out)) {
        std::cerr << "tour: cannot make " << plan.Out.toStdString() << '\n';
        return 1;
    }
    // Nothing of the user's own is touched: settings, files and lock lie with the pictures. Each tour starts afresh.
    const QtPlatformPlaces places{plan.Out + "/settings.ini", plan.Out, plan.Out + "/tour.lock"};
    QFile::remove(places.SettingsFile);
    QtPlatform platform(places);
    UseMachine(platform);
    try {
        Evening(plan).Spend();
    } catch (const StepFailed& failed) {
        std::cerr << "tour: this did not come true: " << failed.what() << '\n';
        return 1;
    } catch (const std::exception& failed) {
        std::cerr << "tour: ended by a failure: " << failed.what() << '\n';
        return 1;
    }
    return 0;
}

QtMessageHandler usualHandler = nullptr;

// Without a display some wishes of a window cannot be met, which is no news here.
void TellUnlessWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith("This plugin does not support"))
        usualHandler(type, context, message);
}

} // namespace

} // namespace dravik::tour

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication::setDesktopSettingsAware(false);
    dravik::tour::usualHandler = qInstallMessageHandler(dravik::tour::TellUnlessWithoutDisplay);
    const dravik::Application application(argc, argv);
    QApplication::setFont(QFont("DejaVu Sans", 9));
    return dravik::tour::Run(dravik::tour::Parse(application));
}
