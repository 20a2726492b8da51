#include "desk/LineMakers.h"
#include "desk/RosterPaper.h"
#include "screens/ElementName.h"
#include "screens/panels/Crest.h"
#include "screens/panels/EntryFigures.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/ShareCommand.h"
#include "screens/panels/WhyClosed.h"
#include "screens/PersonFigures.h"
#include "screens/PersonWords.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

#include <algorithm>

// What the roster screen is made of and where it stands.
namespace dravik {

namespace {

constexpr QSize DefaultSize(1180, 760);
constexpr int LeastListWidth = 150;
constexpr int PersonColumnWidth = 270;

} // namespace

frmRoster::frmRoster(Stage& stage) : Screen(stage, "frmRoster")
{
    MakeControls();

    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content);

    QHBoxLayout* header = MakeRow({MakeOwnCrest(*lblTeamName, content), lblTeamName, lblComplete}, Margin);
    header->addStretch(1);
    header->addWidget(new MutedLabel("Show : ", content));
    for (QCheckBox* filter : chkPosition)
        header->addWidget(filter);
    column->addLayout(header);
    column->addWidget(txtReasons);

    QHBoxLayout* lists = MakeRow({});
    lists->addWidget(MakeListColumn(2), 1);
    lists->addWidget(MakeCommandColumn({cmdToScratchesFromPro, cmdToPro}, content));
    lists->addWidget(MakeListColumn(1), 1);
    lists->addWidget(MakeCommandColumn({cmdToFarm, cmdToScratchesFromFarm}, content));
    lists->addWidget(MakeListColumn(0), 1);
    lists->addSpacing(Gap);
    lists->addWidget(MakePersonColumn());
    column->addLayout(lists, 1);
    column->addWidget(Payroll);

    auto* share = new ShareCommand(content);
    share->Offer("Roster", {}, [] { return RosterPaper(OpenLeague, Machine(), OwnNumber(), DateOfFile()); });
    SetPage(content, MakeFooter({cmdAutoRoster, cmdAutoRosterPartial, share}, {MakeHistoryCommands(), cmdExit}));
    SetTabOrder();
    HidePlayerDetails();
    resize(DefaultSize.expandedTo(content->minimumSizeHint()));
}

void frmRoster::MakeControls()
{
    lblTeamName = MakeTitle(this);
    lblTeamName->setObjectName("lblTeamName");
    lblComplete = new VerdictLabel(this);
    lblComplete->setObjectName("lblComplete");
    lblProtectedTotal = new MutedLabel(this);
    lblProtectedTotal->setObjectName("lblProtectedTotal");
    lblProtectedTotal->setTextFormat(Qt::PlainText);
    lblProtectedTotal->hide();
    lblRelease = new MutedLabel(this);
    lblRelease->setObjectName("lblRelease");
    lblRelease->setTextFormat(Qt::PlainText);
    lblRelease->setWordWrap(true);

    txtReasons = new ReasonsBox("this roster", this);
    txtReasons->setObjectName("txtReasons");

    const char* positions[] = {"Center", "Left Wing", "Right Wing", "Defense", "Goalie"};
    for (int position = 1; position <= 5; ++position) {
        auto* filter = new QCheckBox(positions[position - 1], this);
        filter->setObjectName(ElementName("chkPosition", position));
        filter->setChecked(true);
        connect(filter, &QCheckBox::toggled, this, [this, position] { chkPosition_Click(position); });
        chkPosition[position] = filter;
    }
    const char* captions[] = {"Farm Players", "Scratch Players", "Pro Players"};
    for (int index = 0; index <= 2; ++index) {
        lblPlayer[index] = MakeHeading(captions[index], this);
        lblPlayer[index]->setObjectName(ElementName("lblPlayer", index));
        lstPlayer[index] = MakeList(index, captions[index]);
    }
    Stats = new StatPanel(this);
    Stats->SetHint("Pick a player to see his ratings");

    MakeDrags();

    cmdToFarm =
        MakeCommand("cmdToFarm", "To &Farm -->", AsMove("To Farm", status::Scratch, [this] { cmdToFarm_Click(); }));
    cmdToPro = MakeCommand("cmdToPro", "<-- To &Pro", AsMove("To Pro", status::Scratch, [this] { cmdToPro_Click(); }));
    cmdToScratchesFromPro =
        MakeCommand("cmdToScratchesFromPro", "To &Scratch -->",
                    [this, scratch = AsMove("To Scratch", status::Pro, [this] { cmdToScratchesFromPro_Click(); })] {
                        if (QGuiApplication::keyboardModifiers() == Qt::ControlModifier)
                            Drag(status::Pro, status::Farm);
                        else
                            scratch();
                    });
    cmdToScratchesFromPro->setToolTip("With Ctrl on to the farm");
    cmdToScratchesFromFarm =
        MakeCommand("cmdToScratchesFromFarm", "<-- To S&cratch",
                    AsMove("To Scratch from the farm", status::Farm, [this] { cmdToScratchesFromFarm_Click(); }));
    cmdTradeAvailable = MakeCommand("cmdTradeAvailable", "&Trade Available",
                                    AsPersonStep("Trade Available", [this] { cmdTradeAvailable_Click(); }));
    cmdCaptain =
        MakeCommand("cmdCaptain", "Make Captai&n", AsPersonStep("Make Captain", [this] { cmdCaptain_Click(); }));
    cmdAssistant = MakeCommand("cmdAssistant", "Make Ass&istant",
                               AsPersonStep("Make Assistant", [this] { cmdAssistant_Click(); }));
    cmdRelease = MakeCommand("cmdRelease", "Release", AsPersonStep("Release", [this] { cmdRelease_Click(); }));
    cmdSendToWaiver = MakeCommand("cmdSendToWaiver", "Send To Waiver",
                                  AsPersonStep("Send To Waiver", [this] { cmdSendToWaiver_Click(); }));
    chkProtected = MakeFlag("chkProtected", "Pr&otected", &frmRoster::chkProtected_Click);
    chkNoApplyRerate = MakeFlag("chkNoApplyRerate", "Do Not Apply Rerate", &frmRoster::chkNoApplyRerate_Click);
    chkNoTrade = MakeFlag("chkNoTrade", "No Trade", &frmRoster::chkNoTrade_Click);
    cmdAutoRoster = MakeCommand("cmdAutoRoster", "&Auto Made Roster",
                                AsStep("Auto Made Roster", [this] { cmdAutoRoster_Click(); }));
    cmdAutoRosterPartial = MakeCommand("cmdAutoRosterPartial", "Partial A&uto Made Roster",
                                       AsStep("Partial Auto Made Roster", [this] { cmdAutoRosterPartial_Click(); }));
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
    // Flags that only show in some leagues, and what the league keeps to itself.
    for (QWidget* hidden :
         std::initializer_list<QWidget*>{chkProtected, cmdRelease, cmdSendToWaiver, chkNoApplyRerate, chkNoTrade})
        hidden->hide();
    Payroll = new PayrollBar(this);

    const auto howMany = [this] {
        int chosen = 0;
        for (const PickList* list : lstPlayer)
            chosen += list->ChosenCount();
        return chosen;
    };
    const auto oneAlone = [howMany] { return howMany() == 1 ? QString() : QString("Choose one player first."); };
    const auto wanted = [oneAlone](const char* otherwise) {
        return [oneAlone, otherwise] { return oneAlone().isEmpty() ? QString(otherwise) : oneAlone(); };
    };
    TellWhyClosed({cmdToScratchesFromPro}, "Choose somebody of the pro team first.");
    TellWhyClosed({cmdToPro, cmdToFarm}, "Choose somebody among the scratches first.");
    TellWhyClosed({cmdToScratchesFromFarm}, "Choose somebody on the farm first.");
    TellWhyClosed(
        {cmdCaptain, cmdAssistant},
        wanted("Skaters of the pro team and scratches alone wear a letter: no goalie, and nobody on the farm."));
    TellWhyClosed({cmdTradeAvailable}, wanted("He may not be traded."));
    TellWhyClosed({cmdSendToWaiver}, wanted("The league has no waivers, or the deadline has passed."));
    TellWhyClosed({cmdRelease, chkProtected, chkNoApplyRerate, chkNoTrade}, oneAlone);
    TellWhyClosed({cmdAutoRoster, cmdAutoRosterPartial}, ToQString(MakersClosedWords));
}

PickList* frmRoster::MakeList(int index, const QString& caption)
{
    auto* list = new PickList(this);
    list->setObjectName(ElementName("lstPlayer", index));
    list->setAccessibleName(caption);
    list->setMinimumWidth(LeastListWidth);
    list->CutNamesFirst(); // positions and overalls are what the eye compares
    const auto signs = [](int number) {
        return WithPin(SignsOf(OpenLeague, EntryPerson(number), OwnNumber()), EntryPerson(number));
    };
    new EntrySigns(list, signs);
    new EntryFigures(list, PersonFigures(EntryPerson));
    cards->Serve(list, [signs](int number) { return CardOf(EntryPerson(number), signs(number)); });
    connect(list, &PickList::Picked, this, [this, index] { lstPlayer_Click(index); });
    connect(list, &QListWidget::itemDoubleClicked, this, [this, index] { lstPlayer_DblClick(index); });
    connect(list, &EntryList::EnterPressed, this, [this, index] { lstPlayer_DblClick(index); });
    return list;
}

QCheckBox* frmRoster::MakeFlag(const char* name, const QString& caption, void (frmRoster::*click)())
{
    auto* flag = new QCheckBox(caption, this);
    flag->setObjectName(name);
    const auto run = [this, name, click] { RunEvent(QString(name) + "_Click", [this, click] { (this->*click)(); }); };
    connect(flag, &QCheckBox::toggled, this, [change = AsPersonStep(QString(caption).remove('&'), run)] {
        if (!ListEventGuard)
            change();
    });
    return flag;
}

QWidget* frmRoster::MakeListColumn(int index)
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel, Gap / 2);
    QHBoxLayout* heading = MakeRow({lblPlayer[index]});
    heading->addWidget(new FigureHeadings(EntryFigures::On(lstPlayer[index]), panel), 1);
    column->addLayout(heading);
    column->addWidget(lstPlayer[index], 1);
    return panel;
}

QWidget* frmRoster::MakePersonColumn()
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel);
    column->addWidget(Stats);
    auto* commands = new QGridLayout;
    commands->setSpacing(Gap);
    commands->addWidget(cmdCaptain, 0, 0);
    commands->addWidget(cmdAssistant, 0, 1);
    commands->addWidget(cmdTradeAvailable, 1, 0);
    commands->addWidget(chkProtected, 1, 1);
    commands->addWidget(cmdRelease, 2, 0);
    commands->addWidget(cmdSendToWaiver, 2, 1);
    commands->addWidget(chkNoApplyRerate, 3, 0);
    commands->addWidget(chkNoTrade, 3, 1);
    for (int half = 0; half <= 1; ++half)
        commands->setColumnStretch(half, 1);
    column->addLayout(commands);
    column->addWidget(lblProtectedTotal);
    column->addWidget(lblRelease);
    column->addStretch(1);
    panel->setFixedWidth(std::max(PersonColumnWidth, panel->minimumSizeHint().width()));
    return panel;
}

void frmRoster::SetTabOrder()
{
    const QList<QWidget*> order{lstPlayer[2],
                                cmdToScratchesFromPro,
                                cmdToPro,
                                lstPlayer[1],
                                cmdToFarm,
                                cmdToScratchesFromFarm,
                                lstPlayer[0],
                                cmdCaptain,
                                cmdAssistant,
                                cmdTradeAvailable,
                                chkProtected,
                                chkPosition[1],
                                chkPosition[2],
                                chkPosition[3],
                                chkPosition[4],
                                chkPosition[5],
                                txtReasons,
                                cmdAutoRoster,
                                cmdAutoRosterPartial,
                                findChild<ShareCommand*>(),
                                cmdExit};
    ChainTabs(order);
}

} // namespace dravik
