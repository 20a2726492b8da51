#include "screens/market/frmFreeAgentClient.h"

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

#include <algorithm>
#include <QGroupBox>

// What the screen of the offers is made of and where it stands.
namespace dravik {

namespace {

constexpr QSize DefaultSize(1080, 740);
constexpr int PersonColumnWidth = 400;
constexpr int LinesOfComment = 4;

QLabel* PlainLabel(QLabel* label, const char* name)
{
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

frmFreeAgentClient::frmFreeAgentClient(Stage& stage) : Screen(stage, "frmFreeAgentClient"), offers(OpenMarket().Offers)
{
    MakeControls();

    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content);
    column->addLayout(MakeRow({MakeOwnCrest(*lblTeam, content), lblTeam}, Margin));
    column->addWidget(lblInfo);

    QHBoxLayout* middle = MakeRow({}, Margin);
    middle->addWidget(MakeListColumn(), 1);
    middle->addWidget(MakePersonColumn());
    column->addLayout(middle, 1);
    column->addLayout(MakeLimitRow());

    SetPage(content, MakeFooter({cmdSearch, cmdFindNext, cmdLoad, cmdBringBack, cmdWhatIf},
                                {MakeSaveLine(SavedFile::Offers), MakeHistoryCommands(), cmdSaveToFile, cmdExit}));
    SetTabOrder();
    resize(DefaultSize.expandedTo(content->minimumSizeHint()));
}

void frmFreeAgentClient::MakeControls()
{
    lblTeam = MakeTitle(this);
    lblTeam->setObjectName("lblTeam");
    lblInfo = PlainLabel(new MutedLabel(this), "lblInfo");
    lblInfo->setWordWrap(true);
    lblMaxOffer = PlainLabel(new QLabel(this), "lblMaxOffer");
    lblOffersMade = new VerdictLabel(this);
    lblOffersMade->setObjectName("lblOffersMade");
    lblOffersCost = PlainLabel(new MutedLabel(this), "lblOffersCost");

    lblPlayer = MakeHeading("&Players", this);
    lblPlayer->setObjectName("lblPlayer");
    lstPlayers = new PickList(this);
    lstPlayers->setObjectName("lstPlayers");
    lstPlayers->setAccessibleName("Players");
    lstPlayers->setSelectionMode(QAbstractItemView::SingleSelection);
    lstPlayers->CutNamesFirst(); // offers and overalls are what the eye compares
    lstPlayers->viewport()->installEventFilter(this);
    // Facts alone, since the screen asks for no password. Whoever is listed is without a contract.
    const auto signs = [](int id) {
        return WithPin(SignsOf(OpenLeague, PersonOf(id), 0).Without(Sign::NoContract), PersonOf(id));
    };
    new EntrySigns(lstPlayers, signs);
    (new PersonCards(this))->Serve(lstPlayers, [signs](int id) { return CardOf(PersonOf(id), signs(id)); });
    lblPlayer->setBuddy(lstPlayers);
    connect(lstPlayers, &PickList::Picked, this, [this] { lstPlayers_Click(); });
    connect(lstPlayers, &QListWidget::itemDoubleClicked, this, [this] { lstPlayers_DblClick(); });
    connect(lstPlayers, &EntryList::EnterPressed, this, [this] { lstPlayers_DblClick(); });
    chkShowPlayerWithOffer = new QCheckBox("Show players who has received an &offer only", this);
    chkShowPlayerWithOffer->setObjectName("chkShowPlayerWithOffer");
    connect(chkShowPlayerWithOffer, &QCheckBox::toggled, this, [this] { chkShowPlayerWithOffer_Click(); });

    Stats = new StatPanel(this, "txtStats");
    Stats->SetHint("Pick a player to see his ratings");
    Stats->setObjectName("Stats");
    for (int row = 1; row <= txtStats.last; ++row) {
        txtStats[row] = Stats->lblStat[row];
        lblStatLabel[row] = Stats->lblStatLabel[row];
    }
    lblStatus = PlainLabel(new QLabel(NoStatus, this), "lblStatus");
    txtAge = MakeFigure("txtAge", "Age");
    txtSalary = MakeFigure("txtSalary", "Present salary");

    txtOffer = MakeBox("txtOffer", [this] { txtOffer_LostFocus(); });
    txtDuration = MakeBox("txtDuration", [this] { txtDuration_LostFocus(); });
    txtBonus = MakeBox("txtBonus", [this] { txtBonus_LostFocus(); });
    for (EditBox* box : {txtOffer, txtDuration, txtBonus})
        box->setAlignment(Qt::AlignRight);
    txtComment = new EditArea(this);
    txtComment->setObjectName("txtComment");
    txtComment->SetLines(LinesOfComment);
    connect(txtComment, &EditArea::LostFocus, this,
            [this] { Leave([this] { RunStep(WordsOfChange(*txtComment), [this] { txtComment_LostFocus(); }); }); });
    TellWhyClosed({txtOffer, txtDuration, txtBonus, txtComment}, "Open for whoever is chosen and may be asked.");
    EnableOffer(false);

    secondPress.setSingleShot(true);
    connect(&secondPress, &QTimer::timeout, this, [this] { ShowWaitingBox(); });

    cmdSearch = MakeCommand("cmdSearch", "Sea&rch Player", [this] { cmdSearch_Click(); });
    cmdFindNext = MakeCommand("cmdFindNext", "Find Next", [this] { cmdFindNext_Click(); });
    SetUpFindNext(*cmdFindNext);
    cmdSaveToFile = MakeCommand("cmdSaveToFile", "Save to &File", [this] { cmdSaveToFile_Click(); });
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
    cmdLoad = MakeCommand("cmdLoad", "Load Off&ers ...", AsStep("Load offers", [this] { cmdLoad_Click(); }));
    cmdBringBack = MakeCommand("cmdBringBack", "Bring Bac&k Offers",
                               AsStep("Bring back offers", [this] { cmdBringBack_Click(); }));
    cmdWhatIf = MakeCommand("cmdWhatIf", "&What If", [this] { cmdWhatIf_Click(); });
    cmdWhatIf->setToolTip("The team with all offers taken");
    TellWhyClosed({chkShowPlayerWithOffer, cmdLoad, cmdWhatIf}, "No team is chosen that could make an offer.");
    for (QPushButton* command : {cmdFindNext, cmdLoad, cmdBringBack, cmdWhatIf})
        command->setFocusPolicy(Qt::NoFocus); // the tab key goes its way as without them
    cmdBringBack->hide();
}

EditBox* frmFreeAgentClient::MakeFigure(const char* name, const QString& accessibleName)
{
    auto* box = new EditBox(this);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setAlignment(Qt::AlignRight);
    box->ReadAsLabelWhenClosed();
    box->setEnabled(false);
    return box;
}

QWidget* frmFreeAgentClient::MakeListColumn()
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel, Gap / 2);
    auto* heading = new QHBoxLayout;
    heading->addWidget(lblPlayer);
    heading->addStretch(1);
    heading->addWidget(chkShowPlayerWithOffer);
    column->addLayout(heading);
    column->addWidget(lstPlayers, 1);
    return panel;
}

QWidget* frmFreeAgentClient::MakePersonColumn()
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel);
    column->addWidget(Stats);
    QHBoxLayout* facts = MakeRow({lblStatus});
    facts->addStretch(1);
    facts->addWidget(PlainLabel(new MutedLabel("Age", panel), "lblAge"));
    facts->addWidget(txtAge);
    facts->addSpacing(Gap);
    facts->addWidget(PlainLabel(new MutedLabel("Present salary", panel), "lblSalary"));
    facts->addWidget(txtSalary);
    const QFontMetrics metrics = fontMetrics();
    txtAge->setFixedWidth(metrics.horizontalAdvance("0000"));
    txtSalary->setFixedWidth(metrics.horizontalAdvance("0000000000000"));
    column->addLayout(facts);
    column->addWidget(MakeOfferGroup(), 1);
    panel->setFixedWidth(std::max(PersonColumnWidth, panel->minimumSizeHint().width()));
    return panel;
}

QWidget* frmFreeAgentClient::MakeOfferGroup()
{
    auto* group = new QGroupBox("Offer", this);
    group->setObjectName("grpOffer");
    auto* grid = new QGridLayout(group);
    SetGroupMargins(grid);
    grid->setSpacing(Gap);
    int row = 0;
    const auto add = [&](const char* caption, QWidget* box) {
        auto* label = new MutedLabel(caption, group);
        label->setObjectName(box->objectName().replace("txt", "lbl"));
        label->setBuddy(box);
        box->setAccessibleName(QString(caption).remove('&'));
        return label;
    };
    for (const auto& [caption, box] :
         {std::pair("Sa&lary:", txtOffer), std::pair("&Duration:", txtDuration), std::pair("&Bonus:", txtBonus)}) {
        grid->addWidget(add(caption, box), row, 0);
        grid->addWidget(box, row++, 1);
    }
    grid->addWidget(add("&Comments: (Max 1000 Characters)", txtComment), row++, 0, 1, 2);
    grid->addWidget(txtComment, row, 0, 1, 2);
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 1);
    return group;
}

QLayout* frmFreeAgentClient::MakeLimitRow()
{
    QHBoxLayout* row = MakeRow({lblMaxOffer, lblOffersMade}, 2 * Margin);
    row->addStretch(1);
    row->addWidget(lblOffersCost);
    return row;
}

void frmFreeAgentClient::SetTabOrder()
{
    const QList<QWidget*> order{lstPlayers, txtOffer,      txtDuration, txtBonus, txtComment, chkShowPlayerWithOffer,
                                cmdSearch,  cmdSaveToFile, cmdExit};
    ChainTabs(order);
    lstPlayers->setFocus();
}

} // namespace dravik
