#include "screens/ElementName.h"
#include "screens/panels/ElidedLabel.h"
#include "screens/panels/KeptPlace.h"
#include "screens/panels/KeySheet.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/WhyClosed.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"
#include "screens/Screen.h"
#include "screens/squad/frmSquad.h"
#include "screens/squad/SquadDock.h"
#include "screens/Stage.h"

#include <QHelpEvent>
#include <QMenu>
#include <QShortcut>
#include <QTextDocument>
#include <QToolTip>

// How the squad table looks, and what its controls run.
namespace dravik {

namespace {

constexpr int OldestAge = 60;
constexpr int BestOverall = 99;
constexpr int LongestContract = 9;
constexpr int BoxWidthInLetters = 22;

// A number from 0 on whose lowest value asks for nothing.
QSpinBox* MakeNumber(const QString& name, const QString& words, int lowest, int highest, QWidget* parent)
{
    auto* box = new QSpinBox(parent);
    box->setObjectName(name);
    box->setAccessibleName(words);
    box->setRange(lowest, highest);
    box->setSpecialValueText("any");
    box->setValue(lowest);
    box->setKeyboardTracking(false); // of a number only the whole counts
    return box;
}

QLabel* MakeCaption(const QString& words, QWidget* buddy, QWidget* parent)
{
    auto* caption = new MutedLabel(words, parent);
    caption->setBuddy(buddy);
    return caption;
}

} // namespace

frmSquad::frmSquad(Stage& stage) : owner(stage)
{
    setObjectName("frmSquad");
    setWindowTitle("Squad");
    new KeptPlace(*this);
    MakeTables();
    MakeFilters();
    cmdColumns = new QPushButton("Col&umns", this);
    cmdColumns->setObjectName("cmdColumns");
    mnuColumns = new QMenu(this);
    mnuColumns->setObjectName("mnuColumns");
    connect(mnuColumns, &QMenu::aboutToShow, this, [this] { RunEvent("mnuColumns", [this] { FillColumnMenu(); }); });
    cmdColumns->setMenu(mnuColumns);
    cmdCopy = MakeCommand("cmdCopy", "&Copy", &frmSquad::cmdCopy_Click);
    cmdSaveCsv = MakeCommand("cmdSaveCsv", "&Save as CSV ...", &frmSquad::cmdSaveCsv_Click);
    cmdShowAll = MakeCommand("cmdShowAll", "Show &All", &frmSquad::cmdShowAll_Click);
    cmdShowPlayer = MakeCommand("cmdShowPlayer", "Show &Player", &frmSquad::cmdShowPlayer_Click);
    cmdPick = MakeCommand("cmdPick", {}, &frmSquad::cmdPick_Click);
    cmdPin = MakeCommand("cmdPin", "Pi&n", &frmSquad::cmdPin_Click);
    cmdPin->setToolTip("Compare him with others who are pinned (Ctrl+M)");
    cmdLetGo = MakeCommand("cmdLetGo", "Let All &Go", &frmSquad::cmdLetGo_Click);
    cmdClose = new QPushButton("C&lose", this);
    cmdClose->setObjectName("cmdClose");
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    dock = new SquadDock(this);
    connect(dock, &SquadDock::Lost, this, [this] { owner.ShowSquadAnew(); });
    chkDock = new QCheckBox("Dock &Beside", this);
    chkDock->setObjectName("chkDock");
    chkDock->setToolTip("Keep it beside the screen in front, where the display has room for both");
    connect(chkDock, &QCheckBox::toggled, this, [this] { RunEvent("chkDock", [this] { chkDock_Click(); }); });
    MakeKeys();
    MakeReasons();
    LayOut();
    connect(&NewsOfPins(), &PinNews::Changed, this, [this] { RunEvent("frmSquad", [this] { ShowPins(); }); });
}

QPushButton* frmSquad::MakeCommand(const QString& name, const QString& caption, void (frmSquad::*click)())
{
    auto* command = new QPushButton(caption, this);
    command->setObjectName(name);
    command->setAutoDefault(true);
    connect(command, &QPushButton::clicked, this,
            [this, name, click] { RunEvent(name, [this, click] { (this->*click)(); }); });
    return command;
}

void frmSquad::MakeTables()
{
    tabKind = new QTabBar(this);
    tabKind->setObjectName("tabKind");
    tabKind->setAccessibleName("Tables");
    tabKind->setDrawBase(false);
    tabKind->setExpanding(false);
    stack = new QStackedWidget(this);
    constexpr std::pair<const char*, const char*> names[] = {
        {"tblSkaters", "Skaters"}, {"tblGoalies", "Goalies"}, {"tblProspects", "Prospects"}};
    for (std::size_t at = 0; at < tables.size(); ++at) {
        tabKind->addTab(names[at].second);
        tables[at] = new SquadTable(SquadKinds[at], names[at].first, names[at].second, this);
        stack->addWidget(tables[at]);
        connect(tables[at], &SquadTable::Chosen, this, [this] { RunEvent("frmSquad", [this] { Choose(); }); });
        connect(tables[at], &SquadTable::CurrentChanged, this, [this, table = tables[at]] {
            if (table == &Table())
                ShowCommands();
        });
        connect(tables[at], &SquadTable::Typed, this, [this](const QString& letters) {
            txtName->setFocus(Qt::OtherFocusReason);
            txtName->insert(letters);
        });
        tables[at]->horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(tables[at]->horizontalHeader(), &QWidget::customContextMenuRequested, this,
                [this, header = tables[at]->horizontalHeader()](const QPoint& point) {
                    mnuColumns->popup(header->viewport()->mapToGlobal(point));
                });
    }
    connect(tabKind, &QTabBar::currentChanged, this,
            [this](int index) { RunEvent("tabKind", [this, index] { tabKind_Changed(index); }); });
    txtName = new QLineEdit(this);
    txtName->setObjectName("txtName");
    txtName->setAccessibleName("Part of a name");
    txtName->setPlaceholderText("Part of a name");
    txtName->setClearButtonEnabled(true);
    KeepPlaceholderMuted(*txtName);
    txtName->installEventFilter(this);
    connect(txtName, &QLineEdit::textChanged, this, [this] { RunEvent("txtName", [this] { txtName_Changed(); }); });
}

namespace {

// A name that is longer than the box stands whole in its tooltip. While the box is closed, the tooltip says why.
class NameBox : public QComboBox {
public:
    using QComboBox::QComboBox;

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip || !isEnabled())
            return QComboBox::event(event);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Qt::convertFromPlainText(currentText()), this);
        return true;
    }
};

} // namespace

void frmSquad::MakeFilters()
{
    const auto changes = [this] { RunEvent("frmSquad", [this] { Filter_Changed(); }); };
    cboTeam = new NameBox(this);
    cboTeam->setObjectName("cboTeam");
    cboTeam->setAccessibleName("Team");
    cboTeam->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboTeam->setMinimumContentsLength(BoxWidthInLetters / 2);
    cboTeam->addItem("Whole league");
    cboStands = new QComboBox(this);
    cboStands->setObjectName("cboStands");
    cboStands->setAccessibleName("Where he stands");
    cboStands->addItem("Anywhere");
    for (const auto& [words, status] :
         {std::pair("Pro", status::Pro), std::pair("Scratch", status::Scratch), std::pair("Farm", status::Farm)})
        cboStands->addItem(words, static_cast<int>(status));
    for (QComboBox* box : {cboTeam, cboStands})
        connect(box, &QComboBox::currentIndexChanged, this, changes);
    for (std::size_t at = 0; at < chkPosition.size(); ++at) {
        const int position = position::Center + static_cast<int>(at);
        chkPosition[at] = new QCheckBox(ToQString(PositionName[position]), this);
        chkPosition[at]->setObjectName(ElementName("chkPosition", position));
        chkPosition[at]->setAccessibleName("Position " + chkPosition[at]->text());
        chkPosition[at]->setChecked(true);
        connect(chkPosition[at], &QCheckBox::toggled, this, changes);
    }
    spnAgeFrom = MakeNumber("spnAgeFrom", "Age from", 0, OldestAge, this);
    spnAgeTo = MakeNumber("spnAgeTo", "Age to", 0, OldestAge, this);
    spnOverall = MakeNumber("spnOverall", "Overall at least", 0, BestOverall, this);
    spnContract = MakeNumber("spnContract", "Years left on the contract at most", -1, LongestContract, this);
    for (QSpinBox* box : {spnAgeFrom, spnAgeTo, spnOverall, spnContract})
        connect(box, &QSpinBox::valueChanged, this, changes);
    chkMayBeAsked = new QCheckBox("may be as&ked", this);
    chkMayBeAsked->setObjectName("chkMayBeAsked");
    chkMayBeAsked->setAccessibleName("May be made an offer");
    chkMayBeAsked->setToolTip("Those alone to whom the chosen team may make an offer");
    connect(chkMayBeAsked, &QCheckBox::toggled, this, changes);
}

void frmSquad::MakeKeys()
{
    const auto add = [this](const char* key, const std::function<void()>& run) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this,
                [run] { RunEvent("frmSquad", run); });
    };
    add("F1", [this] {
        if (keySheet == nullptr)
            keySheet = new KeySheet(objectName(), this);
        keySheet->Open();
    });
    add("Ctrl+T", [this] { owner.BackFromSquad(); });
    add("Ctrl+F", [this] {
        txtName->setFocus(Qt::ShortcutFocusReason);
        txtName->selectAll();
    });
    add("Ctrl+Tab", [this] { TurnTab(1); });
    add("Ctrl+Shift+Tab", [this] { TurnTab(-1); });
    add("Ctrl+C", [this] { cmdCopy->click(); });
    add("Ctrl+S", [this] { cmdSaveCsv->click(); });
    add("Alt+Down", [this] { Table().SortAtHand(true, false); });
    add("Alt+Up", [this] { Table().SortAtHand(false, false); });
    add("Alt+Shift+Down", [this] { Table().SortAtHand(true, true); });
    add("Alt+Shift+Up", [this] { Table().SortAtHand(false, true); });
    add("Alt+Left", [this] { Table().MoveColumnAtHand(-1); });
    add("Alt+Right", [this] { Table().MoveColumnAtHand(1); });
    add("Ctrl+M", [this] { cmdPin->click(); });
    add("Ctrl+Shift+P", [this] { Tell(LetGoOfPinned()); });
    add("Esc", [this] { Leave(); });
}

void frmSquad::MakeReasons()
{
    const auto isAt = [this](SquadKind kind) { return Table().People().Kind() == kind; };
    TellWhyClosed({cmdShowPlayer, cmdPin}, [isAt] {
        return QString(isAt(SquadKind::Prospects) ? "Of a prospect there is a name alone." : "Choose somebody first.");
    });
    TellWhyClosed({cmdPick}, "Choose somebody first who is in a list of the screen in front.");
    TellWhyClosed({cmdCopy, cmdSaveCsv}, "Nobody is in the table.");
    TellWhyClosed({cboStands}, [this] {
        return QString(owner.ProvedTeam() == 0 ? "Where people stand is shown for the team whose screens are open."
                                               : "Of a prospect there is a name alone.");
    });
    TellWhyClosed({cmdShowAll, chkMayBeAsked, cboTeam, spnAgeFrom, spnAgeTo, spnOverall, spnContract},
                  "Of a prospect there is a name alone: nothing else lets him through.");
    for (QCheckBox* box : chkPosition)
        TellWhyClosed({box}, "Skaters alone have one of these positions.");
}

QWidget* frmSquad::MakeFilterRow()
{
    auto* panel = new QWidget(this);
    filterRows = new QBoxLayout(QBoxLayout::LeftToRight, panel);
    filterRows->setContentsMargins(0, 0, 0, 0);
    filterRows->setSpacing(Gap);
    QHBoxLayout* row = MakeRow({});
    filterRows->addLayout(row);
    const auto add = [&](const QString& caption, std::initializer_list<QWidget*> parts) {
        if (row->count() > 0)
            row->addSpacing(Gap);
        QLabel* words = MakeCaption(caption, *parts.begin(), panel);
        row->addWidget(words);
        for (QWidget* part : parts) {
            part->setProperty("caption", QVariant::fromValue<QObject*>(words));
            row->addWidget(part);
        }
    };
    add("Team", {cboTeam});
    add("Position", {chkPosition[0], chkPosition[1], chkPosition[2], chkPosition[3]});
    add("Stands", {cboStands});
    row->addStretch(1);
    row = MakeRow({});
    filterRows->addLayout(row, 1);
    add("Age", {spnAgeFrom, new MutedLabel(QChar(0x2013), panel), spnAgeTo});
    add("Overall from", {spnOverall});
    add("Years left to", {spnContract});
    row->addSpacing(Gap);
    row->addWidget(chkMayBeAsked);
    row->addStretch(1);
    return panel;
}

QWidget* frmSquad::MakeTableArea()
{
    auto* area = new QWidget(this);
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(stack, 0, 0);
    lblEmpty = new MutedLabel(area);
    lblEmpty->setObjectName("lblEmpty");
    lblEmpty->setAttribute(Qt::WA_TransparentForMouseEvents);
    grid->addWidget(lblEmpty, 0, 0, Qt::AlignCenter);
    return area;
}

QWidget* frmSquad::MakeComparison()
{
    Comparison = new QWidget(this);
    Comparison->setObjectName("Comparison");
    QVBoxLayout* column = MakeColumn(Comparison, Gap / 2);
    lblCompare = new MutedLabel(Comparison);
    lblCompare->setObjectName("lblCompare");
    QHBoxLayout* heading = MakeRow({MakeHeading("Compare", Comparison), lblCompare});
    heading->addStretch(1);
    heading->addWidget(cmdLetGo);
    column->addLayout(heading);
    tblCompare = new CompareTable(Comparison);
    column->addWidget(tblCompare);
    Comparison->hide();
    return Comparison;
}

void frmSquad::LayOut()
{
    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content);
    QLabel* title = MakeTitle(content);
    title->setObjectName("lblTitle");
    title->setText("Squad");
    QHBoxLayout* header = MakeRow({title});
    header->setStretch(0, 1);
    for (QWidget* command : std::initializer_list<QWidget*>{chkDock, cmdColumns, cmdCopy, cmdSaveCsv})
        header->addWidget(command);
    column->addLayout(header);

    lblFound = new MutedLabel(content);
    lblFound->setObjectName("lblFound");
    QHBoxLayout* finding = MakeRow({tabKind, txtName, lblFound});
    txtName->setMinimumWidth(fontMetrics().averageCharWidth() * BoxWidthInLetters);
    txtName->setMaximumWidth(2 * txtName->minimumWidth());
    finding->setStretch(1, 1);
    finding->addStretch(1);
    finding->addWidget(cmdShowAll);
    column->addLayout(finding);
    column->addWidget(MakeFilterRow());
    column->addWidget(MakeTableArea(), 1);
    column->addWidget(MakeComparison());

    lblTold = new ElidedLabel(content, ElidedLabel::Words::Muted);
    lblTold->setObjectName("lblTold");
    QHBoxLayout* footer = MakeRow({lblTold});
    footer->setStretch(0, 1);
    for (QWidget* command : {cmdPin, cmdShowPlayer, cmdPick, cmdClose})
        footer->addWidget(command);
    column->addLayout(footer);
    setCentralWidget(content);
    ChainTabs({txtName,        cmdShowAll, tabKind,    cboTeam,    chkPosition[0], chkPosition[1], chkPosition[2],
               chkPosition[3], cboStands,  spnAgeFrom, spnAgeTo,   spnOverall,     spnContract,    chkMayBeAsked,
               tables[0],      tables[1],  tables[2],  tblCompare, cmdLetGo,       cmdPin,         cmdShowPlayer,
               cmdPick,        cmdClose,   chkDock,    cmdColumns, cmdCopy,        cmdSaveCsv});
}

} // namespace dravik
