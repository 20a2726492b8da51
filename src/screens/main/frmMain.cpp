#include "screens/main/frmMain.h"

#include "desk/Password.h"
#include "files/RatingsExport.h"
#include "league/Trimming.h"
#include "machine/Paths.h"
#include "machine/Platform.h"
#include "machine/Reporting.h"
#include "machine/SettingsFailure.h"
#include "rules/RosterJudge.h"
#include "screens/ElementName.h"
#include "screens/main/RecentLeagues.h"
#include "screens/panels/Crest.h"
#include "screens/panels/ElidedLabel.h"
#include "screens/panels/KeptPlace.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/WhyClosed.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "screens/Stage.h"
#include "session/OpenJournal.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

#include <QMenuBar>
#include <utility>

namespace dravik {

namespace {

constexpr int DivisionsOfConference = 3;
constexpr int AllDivisions = 6;

// Sizes of the empty window, and of one filled with four and with six lists.
constexpr QSize EmptySize(640, 360);
constexpr int FilledHeight = 480;
constexpr int NarrowWidth = 920;
constexpr int WideWidth = 1240;
constexpr int LeastListWidth = 130;

// Why a command of the team is closed.
constexpr const char* DeadlineOver = "The trade deadline is over: offers are made again in the off-season.";
constexpr const char* NoDraftNear = "The league has no draft ahead.";

} // namespace

frmMain::frmMain(Stage& stage) : Screen(stage, "frmMain")
{
    MakeMenus();

    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content);

    lblTitle = new ElidedLabel(content);
    lblTitle->setFont(TitleFont(lblTitle->font()));
    lblTitle->setObjectName("lblTitle");
    lblTitle->setText(ToQString(ProgramTitle));
    lblDate = new MutedLabel("Client File Date : ", content);
    lblDate->setObjectName("lblDate");
    auto* header = new QHBoxLayout;
    header->addWidget(lblTitle, 1);
    header->addWidget(lblDate);
    column->addLayout(header);

    cmdOpen = MakeCommand("cmdOpen", "Open ...", [this] { mnuOpen_Click(); });
    setAcceptDrops(true);
    lists = new QWidget(content);
    auto* body = new QHBoxLayout(lists);
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(2 * Gap);
    for (int conference = 1; conference <= 2; ++conference) {
        conferences[conference] = MakeConference(conference);
        body->addWidget(conferences[conference], 1);
    }
    emptySpace = new QWidget(content);
    column->addWidget(emptySpace, 1);
    column->addWidget(lists);
    column->addWidget(MakeChanges());
    column->addWidget(cmdOpen, 0, Qt::AlignHCenter | Qt::AlignTop);
    firstStart = MakeFirstStart();
    column->addWidget(firstStart);

    teamBar = MakeTeamBar();
    column->addWidget(teamBar);
    emptySpaceBelow = new QWidget(content);
    column->addWidget(emptySpaceBelow, 1);
    quiet = new QuietLines(content);
    cmdBringBack = MakeCommand("cmdBringBack", "Bring Back", [this] { cmdBringBack_Click(); });
    cmdForget = MakeCommand("cmdForget", "Forget", [this] { cmdForget_Click(); });
    quiet->AddCommands(QuietLine::UnsavedWork, {cmdBringBack, cmdForget});
    column->addWidget(quiet);
    setCentralWidget(content);

    lblConference[1]->setText("No League File Load!");
    lblConference[1]->setAlignment(Qt::AlignCenter);
    lblConference[2]->setText("Conference Name");
    lblConference[2]->hide();
    conferences[2]->hide();
    for (int division = 1; division <= AllDivisions; ++division) {
        lblDivision[division]->hide();
        lstDivision[division]->hide();
    }
    teamBar->hide();
    mnuTeam->menuAction()->setVisible(false);
    mnuOutputRatingCSV->setVisible(false);
    resize(EmptySize);
}

void frmMain::MakeMenus()
{
    const auto makeMenu = [this](const char* name, const QString& caption) {
        QMenu* menu = menuBar()->addMenu(caption);
        menu->setObjectName(name);
        return menu;
    };
    mnuFile = makeMenu("mnuFile", "&File");
    mnuOpen = MakeItem(mnuFile, "mnuOpen", "&Open ...", &frmMain::mnuOpen_Click);
    mnuOpen->setShortcut(QKeySequence::Open);
    mnuRecent = mnuFile->addMenu("&Recent");
    mnuRecent->setObjectName("mnuRecent");
    mnuRecent->setToolTipsVisible(true);
    connect(mnuFile, &QMenu::aboutToShow, this, [this] { ListRecent(); });
    mnuCompare = MakeItem(mnuFile, "mnuCompare", "&Compare With ...", &frmMain::mnuCompare_Click);
    mnuCompare->setShortcut(QKeySequence("Ctrl+Shift+O"));
    mnuCompare->setVisible(false);
    mnuFile->addSeparator();
    mnuExit = MakeItem(mnuFile, "mnuExit", "E&xit", &frmMain::mnuExit_Click);
    mnuExit->setShortcut(QKeySequence::Quit);

    mnuTeam = makeMenu("mnuTeam", "&Team");
    mnuViewTeam = MakeItem(mnuTeam, "mnuViewTeam", "&View Team", &frmMain::mnuViewTeam_Click);
    mnuSetRoster = MakeItem(mnuTeam, "mnuSetRoster", "Set &Roster", &frmMain::mnuSetRoster_Click);
    mnuSetLines = MakeItem(mnuTeam, "mnuSetLines", "Set &Lines", &frmMain::mnuSetLines_Click);
    mnuSetFarmLines = MakeItem(mnuTeam, "mnuSetFarmLines", "Set &Farm Lines", &frmMain::mnuSetFarmLines_Click);
    mnuFreeAgents = MakeItem(mnuTeam, "mnuFreeAgents", "Free &Agents", &frmMain::mnuFreeAgents_Click);
    mnuDraft = MakeItem(mnuTeam, "mnuDraft", "&Draft List", &frmMain::mnuDraft_Click);

    const std::pair<QAction*, const char*> keys[] = {{mnuViewTeam, "Ctrl+Return"},    {mnuSetRoster, "Ctrl+R"},
                                                     {mnuSetLines, "Ctrl+L"},         {mnuSetFarmLines, "Ctrl+Shift+L"},
                                                     {mnuFreeAgents, "Ctrl+Shift+A"}, {mnuDraft, "Ctrl+D"}};
    for (const auto& [item, key] : keys)
        item->setShortcut(QKeySequence(key));
    TellWhyClosed(mnuFreeAgents, [] { return QString(DeadlineOver); });
    TellWhyClosed(mnuDraft, [] { return QString(NoDraftNear); });
    TellWhyClosed(mnuRecent->menuAction(), [] { return QString("No league has been opened yet."); });

    mnuView = makeMenu("mnuView", "&View");
    MakeViewMenu();

    mnuHelp = makeMenu("mnuHelp", "&Help");
    mnuAbout = MakeItem(mnuHelp, "mnuAbout", "&About", &frmMain::mnuAbout_Click);
    mnuOutputRatingCSV =
        MakeItem(mnuHelp, "mnuOutputRatingCSV", "Output Ratings CSV", &frmMain::mnuOutputRatingCSV_Click);
    mnuGuide = MakeItem(mnuHelp, "mnuGuide", "&Guide", &frmMain::mnuGuide_Click);
}

QAction* frmMain::MakeItem(QMenu* menu, const char* name, const QString& caption, void (frmMain::*click)())
{
    QAction* item = menu->addAction(caption);
    item->setObjectName(name);
    item->setMenuRole(QAction::NoRole);
    connect(item, &QAction::triggered, this,
            [this, name, click] { RunEvent(name, [this, click] { (this->*click)(); }); });
    return item;
}

QWidget* frmMain::MakeConference(int conference)
{
    auto* panel = new QWidget(this);
    QVBoxLayout* rows = MakeColumn(panel, Gap / 2);
    lblConference[conference] = new ElidedLabel(panel);
    lblConference[conference]->setFont(HeadingFont(font()));
    lblConference[conference]->setObjectName(ElementName("lblConference", conference));
    rows->addWidget(lblConference[conference]);
    QHBoxLayout* divisions = MakeRow({});
    rows->addLayout(divisions, 1);
    const int first = (conference - 1) * DivisionsOfConference + 1;
    for (int division = first; division < first + DivisionsOfConference; ++division) {
        lblDivision[division] = new ElidedLabel(panel, ElidedLabel::Words::Muted);
        lblDivision[division]->setText("Division Name");
        lblDivision[division]->setObjectName(ElementName("lblDivision", division));
        lstDivision[division] = new EntryList(panel);
        lstDivision[division]->setObjectName(ElementName("lstDivision", division));
        lstDivision[division]->setMinimumWidth(LeastListWidth);
        lstDivision[division]->KeepAsidesTogether();
        new EntryCrests(lstDivision[division],
                        [](int team) { return TeamTable::Has(team) ? CrestOf(Teams[team]) : Crest(); });
        QVBoxLayout* column = MakeColumn({lblDivision[division]}, Gap / 2);
        column->addWidget(lstDivision[division], 1);
        divisions->addLayout(column);

        EntryList* list = lstDivision[division];
        connect(list, &QListWidget::itemSelectionChanged, this,
                [=, this] { RunEvent("lstDivision_Click", [=, this] { lstDivision_Click(division); }); });
        connect(list, &QListWidget::itemClicked, this,
                [=, this] { RunEvent("lstDivision_Click", [=, this] { lstDivision_Click(division); }); });
        const auto doubleClick = [=, this] {
            RunEvent("lstDivision_DblClick", [=, this] { lstDivision_DblClick(division); });
        };
        connect(list, &QListWidget::itemDoubleClicked, this, doubleClick);
        connect(list, &EntryList::EnterPressed, this, doubleClick);
    }
    return panel;
}

QWidget* frmMain::MakeTeamBar()
{
    auto* bar = new QWidget(this);
    QVBoxLayout* column = MakeColumn(bar);
    column->setContentsMargins(0, Gap, 0, 0);
    lblChosen = new ElidedLabel(bar);
    lblChosen->setFont(HeadingFont(font()));
    lblChosen->setObjectName("lblChosen");
    lblChosenPlace = new ElidedLabel(bar, ElidedLabel::Words::Muted);
    lblChosenPlace->setObjectName("lblChosenPlace");
    QHBoxLayout* names = MakeRow({MakeOwnCrest(*lblChosen, bar), lblChosen});
    names->addWidget(lblChosenPlace, 1);
    lblSaved = new ElidedLabel(bar, ElidedLabel::Words::Muted);
    lblSaved->setObjectName("lblSaved");
    names->addWidget(lblSaved);
    column->addLayout(names);

    cmdContinue = MakeCommand("cmdContinue", "Continue", [this] { cmdContinue_Click(); });
    cmdContinue->hide();
    names->insertWidget(names->indexOf(lblChosen) + 1, cmdContinue);

    QHBoxLayout* commands = MakeRow({});
    for (QAction* action : {mnuViewTeam, mnuSetRoster, mnuSetLines, mnuSetFarmLines, mnuFreeAgents, mnuDraft})
        commands->addWidget(MakeShortcut(action));
    commands->addStretch(1);
    column->addLayout(commands);
    return bar;
}

QPushButton* frmMain::MakeShortcut(QAction* action)
{
    QPushButton* button =
        MakeCommand("cmd" + action->objectName().mid(3), action->iconText(), [action] { action->trigger(); });
    TellWhyClosed({button}, [action] { return ReasonOf(*action); });
    connect(action, &QAction::changed, button, [action, button] {
        button->setText(action->iconText());
        button->setEnabled(action->isEnabled());
    });
    return button;
}

void frmMain::FormLoad()
{
    Reporting(Machine(), " in FormLoad FrmMain!", [this] {
        if (Machine().AnotherInstanceRuns()) {
            Machine().ShowBox(std::string(ProgramTitle) + " is already running!", box::Critical);
            Unload();
            return;
        }
        Machine().MessagesAllowed = true;
        TempFile = Machine().ProgramFolder() + PathSeparator + "ClientTemp.dvt";
        WindowTitle = ProgramTitle;
        SetWindowCaption(WindowTitle);
        MarkRosterChangesUntouched(OpenLeague);
        CentreOnScreen();
        const std::string last = LastLeague();
        UseRememberedLook();
        if (!last.empty() && FileExist(Machine(), last))
            OpenFile(last);
    });
}

// The league file of last time. Settings that cannot be understood know of none, which is told in a quiet line.
std::string frmMain::LastLeague()
{
    try {
        return Machine().GetSetting("Settings", "LastLoadLeague", {});
    } catch (const SettingsFailure& broken) {
        Tell(QuietLine::SettingsSetAside,
             "The settings could not be read from " + broken.File + "." +
                 (broken.SetAside.empty()
                      ? " The file could not be set aside either."
                      : " The file was set aside as " + broken.SetAside + ", and a fresh one begun."));
    }
    return {};
}

void frmMain::FormActivate()
{
    ShowChosenTeam();
    ShowChanges();
    Tell(QuietLine::JournalUnwritten, JournalWords());
}

void frmMain::SetWindowCaption(const std::string& caption) { SetTitle(ToQString(caption)); }

void frmMain::PlaceTeam()
{
    Reporting(Machine(), " in PlaceTeam!", [this] {
        SetWindowCaption(WindowTitle);
        ForgetCrests();
        lblTitle->setText(Shown(LeagueData.Name));
        cmdOpen->hide();
        firstStart->hide();
        hasOpened = true;
        emptySpace->hide();
        emptySpaceBelow->hide();
        static_cast<QVBoxLayout*>(centralWidget()->layout())->setStretchFactor(lists, 1);
        for (int conference = 1; conference <= 2; ++conference) {
            lblConference[conference]->setText(Shown(LeagueData.Conference[conference]));
            lblConference[conference]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            lblConference[conference]->show();
            conferences[conference]->show();
        }
        for (EntryList* list : lstDivision)
            list->clear();

        const bool allSix = LeagueData.DivisionCount == AllDivisions;
        // The size belongs to the layout: lists filled anew under the same layout leave the window as the user has it.
        const bool laidOutAnew = placedSix != allSix;
        placedSix = allSix;
        for (int division = 1; division <= AllDivisions; ++division) {
            const bool inUse = allSix || division % DivisionsOfConference != 0;
            if (inUse)
                lblDivision[division]->setText(Shown(LeagueData.Division[division].Name));
            lstDivision[division]->setAccessibleName(lblDivision[division]->text());
            lblDivision[division]->setVisible(inUse);
            lstDivision[division]->setVisible(inUse);
        }
        for (const Team& team : Teams)
            if (team.InUse)
                lstDivision[team.Division]->Add(Shown(team.Name), static_cast<int>(team.Number), {Shown(team.Abbre)});

        ListClickReady = true;
        mnuTeam->menuAction()->setVisible(true);
        teamBar->show();
        ShowChosenTeam();
        if (KeptPlace::On(*this) == nullptr)
            new KeptPlace(*this);
        if (laidOutAnew && !isMaximized() && !isFullScreen()) {
            PlaceByProgram(*this, [&] { resize(allSix ? WideWidth : NarrowWidth, FilledHeight); });
            FitToDisplay();
        }
        Owner.ShowSquadAnew();
    });
}

void frmMain::ShowChosenTeam()
{
    ShowContinue();
    lblSaved->setText(ToQString(StateOfTeam(static_cast<int>(CurrentTeam)).Words()));
    auto* crest = teamBar->findChild<CrestLabel*>();
    crest->setVisible(TeamTable::Has(CurrentTeam));
    crest->update();
    if (!TeamTable::Has(CurrentTeam)) {
        lblChosen->setText("No Team is Selected!");
        lblChosenPlace->clear();
        return;
    }
    const Team& team = OwnTeam();
    lblChosen->setText(Shown(team.Name));
    QStringList place;
    if (decltype(LeagueData.Division)::Has(team.Division)) {
        const Division& division = LeagueData.Division[team.Division];
        place << Shown(division.Name);
        if (decltype(LeagueData.Conference)::Has(division.Conference))
            place << Shown(LeagueData.Conference[division.Conference]);
    }
    lblChosenPlace->setText(place.join(", "));
}

void frmMain::ShowLeagueMenus()
{
    mnuTeam->menuAction()->setVisible(true);
    mnuOutputRatingCSV->setVisible(true);
    mnuOutputRatingCSV->setEnabled(true);
    mnuCompare->setVisible(true);
}

void frmMain::SetDraftMenu(bool enabled, std::string_view caption)
{
    mnuDraft->setEnabled(enabled);
    mnuDraft->setText(ToQString(caption));
}

void frmMain::SetFreeAgentsMenu(bool enabled) { mnuFreeAgents->setEnabled(enabled); }

void frmMain::SetDateLabel(const std::string& text) { lblDate->setText(ToQString(text)); }

void frmMain::Tell(QuietLine line, const std::string& text) { quiet->Tell(line, ToQString(text)); }

void frmMain::lstDivision_Click(int division)
{
    const QListWidgetItem* chosen = lstDivision[division]->Chosen();
    if (!ListClickReady || chosen == nullptr)
        return;
    CurrentTeam = chosen->data(entry::NumberRole).toInt();
    ListClickReady = false;
    for (int other = 1; other <= AllDivisions; ++other)
        if (other != division)
            lstDivision[other]->Unchoose();
    ListClickReady = true;
    ShowChosenTeam();
    ShowChanges();
}

void frmMain::lstDivision_DblClick(int division)
{
    const QListWidgetItem* chosen = lstDivision[division]->Chosen();
    if (chosen == nullptr)
        return;
    CurrentTeam = chosen->data(entry::NumberRole).toInt();
    if (TeamIsProved())
        Open(Window::Team);
}

void frmMain::mnuOpen_Click()
{
    ReportingUnlessCancelled(Machine(), " in mnuOpen!", [this] {
        const std::string path = Machine().OpenFileDialog(Machine().ProgramFolder(),
                                                          "DRVK Client File (*.dvs) |*.dvs|All Files (*.*) | *.*");
        OpenFile(path);
    });
}

void frmMain::mnuExit_Click() { Owner.Close(*this); }

bool frmMain::TeamIsProved()
{
    if (CurrentTeam == 0) {
        Machine().ShowBox("No Team is Selected!", box::Information);
        return false;
    }
    if (!CheckPassword(OpenLeague, Machine(), OwnNumber()))
        return false;
    RememberTeam(openPath, OwnNumber());
    return true;
}

void frmMain::mnuViewTeam_Click()
{
    if (TeamIsProved())
        Open(Window::Team);
}

void frmMain::mnuSetRoster_Click()
{
    if (!TeamIsProved())
        return;
    CallerScreen = caller_screen::Main;
    Open(Window::Roster);
}

void frmMain::mnuSetLines_Click()
{
    if (!TeamIsProved())
        return;
    if (!CheckRoster(OpenWork(), OwnNumber(), false, true, false)) {
        Machine().ShowBox("Roster is not Complete!" + std::string(LineBreak) +
                              "You cannot make your lines if your roster is not done!",
                          box::Warning);
        return;
    }
    CallerScreen = caller_screen::Main;
    Open(Window::Line);
}

// The farm's lines may be made whatever the roster is like.
void frmMain::mnuSetFarmLines_Click()
{
    if (!TeamIsProved())
        return;
    CallerScreen = caller_screen::Main;
    Open(Window::FarmLine);
}

void frmMain::mnuFreeAgents_Click()
{
    if (TeamIsProved())
        Open(Window::FreeAgent);
}

void frmMain::mnuDraft_Click()
{
    if (TeamIsProved())
        Open(Window::Draft);
}

void frmMain::cmdBringBack_Click()
{
    Reporting(Machine(), " in cmdBringBack!", [this] {
        if (!BringBackWork())
            return;
        PlaceTeam(); // a team may have had another name
        Owner.ShowAnew();
    });
    TellOfJournal(*this);
}

void frmMain::cmdForget_Click()
{
    Reporting(Machine(), " in cmdForget!", [] {
        if (Machine().ShowBox("Are you sure you want to forget the work that was not saved?", box::YesNo) ==
            button::Yes)
            ForgetWork();
    });
    TellOfJournal(*this);
}

void frmMain::mnuAbout_Click() { Open(Window::About); }

void frmMain::mnuGuide_Click() { Owner.ShowGuide(*this); }

void frmMain::mnuOutputRatingCSV_Click()
{
    Reporting(Machine(), " in mnuOutputRatingCSV!", [] {
        if (Machine().ShowBox("Are you sure you want to output a Rating CSV file of your league?", box::YesNo) !=
            button::Yes)
            return;
        const std::string folder = Machine().ProgramFolder();
        ExportRatings(OpenLeague, Machine(), folder);
        Machine().ShowBox("Output done in " + WithoutOuterBlanks(folder), box::Information);
    });
}

} // namespace dravik
