#include "screens/market/frmDraft.h"

#include "screens/panels/Crest.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/PersonCards.h"
#include "screens/panels/WhyClosed.h"
#include "screens/PersonWords.h"
#include "screens/Pins.h"
#include "session/OpenMarket.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

// What the draft screen is made of and where it stands.
namespace dravik {

namespace {

constexpr QSize DefaultSize(900, 680);
constexpr int LeastListWidth = 240;
constexpr const char* FilterCaption[] = {"C", "LW", "RW", "DF", "G"};

} // namespace

frmDraft::frmDraft(Stage& stage) : Screen(stage, "frmDraft"), ranking(OpenMarket().Ranking)
{
    MakeControls();

    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content);

    QHBoxLayout* header = MakeRow({MakeOwnCrest(*lblTeam, this), lblTeam}, Margin);
    header->addStretch(1);
    auto* show = new MutedLabel("Show : ", content);
    show->setObjectName("lblShow");
    header->addWidget(show);
    for (QCheckBox* filter : chkPosition)
        header->addWidget(filter);
    column->addLayout(header);
    column->addSpacing(Gap);

    QLabel* players = MakeHeading("Players", content);
    players->setObjectName("lblPlayers");
    QHBoxLayout* lists = MakeRow({});
    lists->addWidget(MakeListColumn(players, lstPlayers), 1);
    lists->addWidget(MakeCommandColumn({cmdChoose, cmdRemove}, content));
    lists->addWidget(MakeListColumn(lblTotal, lstDraftList), 1);
    lists->addWidget(MakeCommandColumn({cmdUp, cmdDown}, content));
    column->addLayout(lists, 1);
    column->addSpacing(Gap);

    SetPage(content, MakeFooter({cmdSearch, cmdFindNext, cmdLoad, cmdBringBack},
                                {MakeSaveLine(SavedFile::Ranking), MakeHistoryCommands(), cmdSaveToFile, cmdExit}));
    SetTabOrder();
    resize(DefaultSize.expandedTo(content->minimumSizeHint()));
}

void frmDraft::MakeControls()
{
    lblTeam = MakeTitle(this);
    lblTeam->setObjectName("lblTeam");
    lblTeam->setText("Draft List For : ");
    lblTotal = MakeHeading("0 Players List", this);
    lblTotal->setObjectName("lblTotal");
    for (int position = 1; position <= 5; ++position) {
        auto* filter = new QCheckBox(FilterCaption[position - 1], this);
        filter->setObjectName(QString("chkPosition(%1)").arg(position));
        filter->setChecked(true);
        connect(filter, &QCheckBox::toggled, this, [this, position] { chkPosition_Click(position); });
        chkPosition[position] = filter;
    }

    lstPlayers = new EntryList(this);
    lstPlayers->setObjectName("lstPlayers");
    lstPlayers->setAccessibleName("Players");
    lstDraftList = new RankList(this);
    lstDraftList->setObjectName("lstDraftList");
    lstDraftList->setAccessibleName("Draft List");
    // Facts alone, since the screen asks for no password; a prospect has none. Whoever is listed belongs to no team,
    // so that a contract says nothing of him.
    const auto signs = [](int id) {
        return WithPin(SignsOf(OpenLeague, PersonOf(id), 0).Without(Sign::NoContract), PersonOf(id));
    };
    auto* cards = new PersonCards(this);
    for (EntryList* list : {lstPlayers, static_cast<EntryList*>(lstDraftList)}) {
        new EntrySigns(list, signs);
        cards->Serve(list, [signs](int id) { return CardOf(PersonOf(id), signs(id)); });
    }
    const auto onDoubleClick = [this](EntryList* list, void (frmDraft::*doubleClick)()) {
        const auto run = [this, list, doubleClick] {
            RunEvent(list->objectName() + "_DblClick", [this, doubleClick] { (this->*doubleClick)(); });
        };
        connect(list, &QListWidget::itemDoubleClicked, this, run);
        connect(list, &EntryList::EnterPressed, this, run);
    };
    onDoubleClick(lstPlayers, &frmDraft::lstPlayers_DblClick);
    onDoubleClick(lstDraftList, &frmDraft::lstDraftList_DblClick);
    connect(lstDraftList, &RankList::Dropped, this, [this](int from, int to) {
        RunStep("Drag on the draft list: " + lstDraftList->item(from)->text(), [this, from, to] {
            RunEvent("lstDraftList_Dropped", [this, from, to] { lstDraftList_Dropped(from, to); });
        });
    });

    cmdChoose =
        MakeCommand("cmdChoose", "-->", AsListStep("Add to the draft list", lstPlayers, [this] { cmdChoose_Click(); }));
    cmdChoose->setAccessibleName("Add to the draft list");
    cmdRemove = MakeCommand("cmdRemove", "<--",
                            AsListStep("Take off the draft list", lstDraftList, [this] { cmdRemove_Click(); }));
    cmdRemove->setAccessibleName("Take off the draft list");
    for (QPushButton* command : {cmdChoose, cmdRemove})
        command->setToolTip(command->accessibleName());
    cmdUp = MakeCommand("cmdUp", "&UP", AsListStep("Up on the draft list", lstDraftList, [this] { cmdUp_Click(); }));
    cmdDown = MakeCommand("cmdDown", "&Down",
                          AsListStep("Down on the draft list", lstDraftList, [this] { cmdDown_Click(); }));
    cmdSearch = MakeCommand("cmdSearch", "Search &Player", [this] { cmdSearch_Click(); });
    cmdFindNext = MakeCommand("cmdFindNext", "Find Next", [this] { cmdFindNext_Click(); });
    SetUpFindNext(*cmdFindNext);
    cmdSaveToFile = MakeCommand("cmdSaveToFile", "&Save to File", [this] { cmdSaveToFile_Click(); });
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
    cmdLoad = MakeCommand("cmdLoad", "&Load List ...", AsStep("Load a draft list", [this] { cmdLoad_Click(); }));
    cmdBringBack = MakeCommand("cmdBringBack", "Bring &Back List",
                               AsStep("Bring back the draft list", [this] { cmdBringBack_Click(); }));
    for (QPushButton* command : {cmdFindNext, cmdLoad, cmdBringBack})
        command->setFocusPolicy(Qt::NoFocus); // the tab key goes its way as without them
    cmdBringBack->hide();

    TellWhyClosed({cmdChoose}, "There is nobody to choose.");
    TellWhyClosed({cmdSaveToFile, cmdUp, cmdDown, cmdRemove}, "The draft list is empty: add somebody first.");
    for (QCheckBox* filter : chkPosition)
        TellWhyClosed({filter}, "The prospects of an entry draft have no positions yet.");
}

QWidget* frmDraft::MakeListColumn(QLabel* heading, EntryList* list)
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel, Gap / 2);
    list->setMinimumWidth(LeastListWidth);
    list->CutNamesFirst(); // overalls and ranks are what the eye compares
    column->addWidget(heading);
    column->addWidget(list, 1);
    return panel;
}

void frmDraft::SetTabOrder()
{
    QList<QWidget*> order{lstPlayers, cmdChoose, lstDraftList, cmdRemove, cmdUp, cmdDown};
    for (QCheckBox* filter : chkPosition)
        order << filter;
    order << cmdSearch << cmdSaveToFile << cmdExit;
    ChainTabs(order);
}

} // namespace dravik
