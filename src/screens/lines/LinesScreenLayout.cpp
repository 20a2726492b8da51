#include "desk/LineMakers.h"
#include "desk/LineUpPaper.h"
#include "desk/Strategy.h"
#include "screens/ElementName.h"
#include "screens/EventGuard.h"
#include "screens/lines/LinesScreen.h"
#include "screens/panels/Crest.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/PersonCards.h"
#include "screens/panels/ShareCommand.h"
#include "screens/panels/WhyClosed.h"
#include "screens/Pins.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTabBar>
#include <utility>

// What the lines screens are made of and where it stands.
namespace dravik {

namespace {

constexpr QSize DefaultSize(1240, 780);
constexpr int PeopleColumnWidth = 310;
constexpr int LeastReasonsWidth = 300;
constexpr int StrategyPageWidth = 460;

QLabel* MakeLabel(const char* name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

LinesScreen::LinesScreen(Stage& stage, const LinesKind& kind) : Screen(stage, kind.Name), Kind(kind)
{
    MakeControls();
    MakeCommands();
    MakeStrategyPage();

    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content);
    column->addWidget(MakeHeader());
    auto* caption = new MutedLabel("Da&y", content);
    caption->setBuddy(vscDay);
    QHBoxLayout* days = MakeRow({caption});
    days->setAlignment(caption, Qt::AlignTop);
    caption->setMinimumHeight(vscDay->sizeHint().height());
    QVBoxLayout* strip = MakeColumn({}, Gap / 2);
    strip->addWidget(vscDay);
    strip->addWidget(Strength);
    days->addLayout(strip, 1);
    column->addLayout(days);
    QHBoxLayout* body = MakeRow({MakePeopleColumn()}, Margin);
    body->addWidget(MakeLinesColumn(), 1);
    column->addLayout(body, 1);

    SetPage(content, Commands);
    SetTabOrder();
    resize(DefaultSize.expandedTo(content->minimumSizeHint()));
}

void LinesScreen::MakeControls()
{
    lblTeamName = MakeTitle(this);
    lblTeamName->setObjectName("lblTeamName");
    lblGame = MakeHeading({}, this);
    lblGame->setObjectName("lblGame");
    lblPlaying = MakeLabel("lblPlaying", this);
    // What a player plays may be longer than the screen is wide.
    lblPlaying->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblComplete = new VerdictLabel(this);
    lblComplete->setObjectName("lblComplete");
    lblComplete->KeepRoomFor({"Lines are Complete", "Lines are Incomplete"});

    txtReasons = new ReasonsBox("these lines", this);
    txtReasons->setObjectName("txtReasons");
    txtReasons->setMinimumWidth(LeastReasonsWidth);

    vscDay = new DayStrip(this);
    vscDay->setObjectName("vscDay");
    vscDay->setAccessibleName("Day");
    connect(vscDay, &QAbstractSlider::valueChanged, this,
            [this] { RunEvent("vscDay_Change", [this] { vscDay_Change(); }); });

    Strength = new StrengthBars(*vscDay, this);
    Strength->setObjectName("Strength");

    const char* captions[] = {"C", "LW", "RW", "D", "G"};
    const char* positions[] = {"Center", "Left Wing", "Right Wing", "Defense", "Goalie"};
    for (int position = 1; position <= 5; ++position) {
        auto* filter = new QCheckBox(captions[position - 1], this);
        filter->setObjectName(ElementName("chkPosition", position));
        filter->setAccessibleName(positions[position - 1]);
        filter->setToolTip(positions[position - 1]);
        filter->setChecked(true);
        connect(filter, &QCheckBox::toggled, this, [this, position] { chkPosition_Click(position); });
        chkPosition[position] = filter;
    }
    lstPlayer = new PickList(this);
    lstPlayer->setObjectName("lstPlayer");
    lstPlayer->setAccessibleName("Players");
    lstPlayer->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(lstPlayer, &PickList::Picked, this, [this] { lstPlayer_Click(); });
    frmStat = new StatPanel(this);
    frmStat->setObjectName("frmStat");
    frmStat->SetHint("Pick a player, then a slot");

    TabLine = new LineBoard(this);
    TabLine->tabBar()->setFocusPolicy(Qt::StrongFocus); // a press on a tab leaves a text box first
    connect(&TabLine->Parts, &BoardParts::SlotPressed, this,
            [this](int index) { RunStep(WordsOfPlacing(index), [this, index] { Slot_Click(index); }); });
    connect(&TabLine->Parts, &BoardParts::HeadingPressed, this, [this](int index) { Heading_Click(index); });
    cards = new PersonCards(this);
    connect(&NewsOfPins(), &PinNews::Changed, this, [this] { RefreshMarks(); });
    MakeHands();
    for (const BoardHeading& heading : TabLine->Parts.Headings) {
        heading.Label->installEventFilter(this);
        OfferComparison(heading);
    }
    MakeLive(*lstPlayer);
    for (QWidget* pressed : std::initializer_list<QWidget*>{vscDay, TabLine->tabBar()})
        pressed->installEventFilter(this);
    for (QCheckBox* filter : chkPosition)
        filter->installEventFilter(this);
}

void LinesScreen::MakeCommands()
{
    cmdAutoLines =
        MakeCommand("cmdAutoLines", "&Auto Lines", AsDayStep("Auto Lines", [this] { cmdAutoLines_Click(); }));
    cmdWipeLines =
        MakeCommand("cmdWipeLines", "&Wipe Lines", AsDayStep("Wipe Lines", [this] { cmdWipeLines_Click(); }));
    cmdCopy = MakeCommand("cmdCopy", "&Copy To Day ...", AsDayStep("Copy To Day", [this] { cmdCopy_Click(); }));
    cmdCopyAll =
        MakeCommand("cmdCopyAll", "Copy To A&ll Days", AsDayStep("Copy To All Days", [this] { cmdCopyAll_Click(); }));
    cmdRepairAll =
        MakeCommand("cmdRepairAll", "Repa&ir All Days", AsStep("Repair All Days", [this] { cmdRepairAll_Click(); }));
    cmdRepairAll->setToolTip("Makes the rest of every day that is incomplete, and tells of all at the end");
    cmdSheet = MakeCommand("cmdSheet", "Whole Line-&Up", [this] { cmdSheet_Click(); });
    cmdSheet->setToolTip("All slots of the day at once, in a window of its own (Ctrl+B)");
    cmdDebug = MakeCommand("cmdDebug", "W&hy are my lines incomplete?", [this] { cmdDebug_Click(); });
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
    TellWhyClosed({cmdAutoLines, cmdRepairAll}, ToQString(MakersClosedWords));
    TellWhyClosed({cmdCopy, vscDay}, "The next days are unknown: the league shows no schedule, or no game is left.");
    TellWhyClosed({cmdDebug}, "The lines of this day are complete.");
    Commands =
        MakeFooter({cmdAutoLines, cmdRepairAll, cmdWipeLines, cmdCopy, cmdCopyAll}, {MakeHistoryCommands(), cmdExit});
}

void LinesScreen::MakeStrategyPage()
{
    QWidget* page = TabLine->AddPage("S&trategy");
    auto* panel = new QWidget(page);
    panel->setMaximumWidth(StrategyPageWidth);
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(Margin, Gap, Margin, Gap);
    row->addWidget(panel, 1);
    row->addStretch(0);
    QVBoxLayout* column = MakeColumn(panel);

    auto* strategy = new QGroupBox("Strategy", panel);
    auto* points = new QGridLayout(strategy);
    SetGroupMargins(points);
    points->setSpacing(Gap);
    points->setColumnStretch(1, 1);
    const char* styles[] = {"Physical Style : ", "Defense Style : ", "Offense Style : "};
    for (int style = 0; style <= 2; ++style) {
        auto* bar = new QScrollBar(Qt::Horizontal, strategy);
        bar->setObjectName(ElementName("hscStats", style));
        bar->setAccessibleName(QString(styles[style]).remove(" : "));
        bar->setRange(0, StrategyPoints);
        bar->setPageStep(1);
        bar->setInvertedControls(false); // the right arrow key gives a point
        bar->setFocusPolicy(Qt::StrongFocus);
        connect(bar, &QScrollBar::sliderPressed, this, [this] { ++pull; });
        connect(bar, &QScrollBar::valueChanged, this, [this, style] {
            if (StrategyReady)
                RunStep(
                    WordsOfChange(*hscStats[style]),
                    [this, style] { RunEvent("hscStats_Change", [this, style] { hscStats_Change(style); }); },
                    hscStats[style]->isSliderDown() ? pull : 0);
        });
        bar->installEventFilter(this);
        hscStats[style] = bar;
        lblStatsPoint[style] = MakeLabel("", strategy);
        lblStatsPoint[style]->setObjectName(ElementName("lblStatsPoint", style));
        points->addWidget(new MutedLabel(styles[style], strategy), style, 0);
        points->addWidget(bar, style, 1);
        points->addWidget(lblStatsPoint[style], style, 2);
    }
    lblPoint = MakeLabel("lblPoint", strategy);
    points->addWidget(new MutedLabel("Points Left :", strategy), 3, 0);
    points->addWidget(lblPoint, 3, 2);
    for (QLabel* figure : {lblStatsPoint[0], lblStatsPoint[1], lblStatsPoint[2], lblPoint}) {
        figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        figure->setMinimumWidth(figure->fontMetrics().horizontalAdvance("000"));
    }
    column->addWidget(strategy);

    txtPullGoalerMinGoal = MakeBox("txtPullGoalerMinGoal", [this] { txtPullGoalerMinGoal_LostFocus(); });
    txtPullGoalerMinPct = MakeBox("txtPullGoalerMinPct", [this] { txtPullGoalerMinPct_LostFocus(); });
    auto* pull = new QGroupBox("Goalie Pull", panel);
    auto* boxes = new QGridLayout(pull);
    SetGroupMargins(boxes);
    boxes->setSpacing(Gap);
    boxes->setColumnStretch(0, 1);
    const std::pair<EditBox*, const char*> captioned[] = {{txtPullGoalerMinGoal, "Minimum # of Goals :"},
                                                          {txtPullGoalerMinPct, "Save PCT Under :"}};
    int line = 0;
    for (const auto& [box, caption] : captioned) {
        box->setAccessibleName(QString(caption).remove(" :"));
        box->setAlignment(Qt::AlignRight);
        box->setMaximumWidth(box->fontMetrics().horizontalAdvance("0") * 10);
        boxes->addWidget(new MutedLabel(caption, pull), line, 0);
        boxes->addWidget(box, line++, 1);
    }
    column->addWidget(pull);
    column->addStretch(1);
}

QWidget* LinesScreen::MakeHeader()
{
    auto* header = new QWidget(this);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Margin);
    QVBoxLayout* left = MakeColumn({});
    QHBoxLayout* title = MakeRow({MakeOwnCrest(*lblTeamName, header), lblTeamName}, Margin);
    title->addStretch(1);
    left->addLayout(title);
    QHBoxLayout* verdict = MakeRow({lblComplete, cmdDebug}, Margin);
    verdict->addStretch(1);
    verdict->addWidget(lblGame);
    left->addLayout(verdict);
    row->addLayout(left, 3);
    row->addWidget(txtReasons, 2);
    return header;
}

QWidget* LinesScreen::MakePeopleColumn()
{
    auto* panel = new QWidget(this);
    panel->setMinimumWidth(PeopleColumnWidth);
    QVBoxLayout* column = MakeColumn(panel);
    QHBoxLayout* filters = MakeRow({new MutedLabel("Show : ", panel)});
    for (QCheckBox* filter : chkPosition)
        filters->addWidget(filter);
    filters->addStretch(1);
    column->addLayout(filters);
    column->addWidget(lstPlayer, 1);
    column->addWidget(frmStat);
    return panel;
}

QWidget* LinesScreen::MakeLinesColumn()
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel);
    column->addWidget(TabLine, 1);
    column->addWidget(MakeAdvice());
    QHBoxLayout* playing = MakeRow({new MutedLabel("Playing the Following Lines : ", panel)});
    playing->addWidget(lblPlaying, 1);
    playing->addWidget(cmdSheet);
    auto* share = new ShareCommand(panel);
    share->Offer("Day", "This &Day", [this] {
        return LineUpPaper(OpenLeague, OwnNumber(), Kind.Side, ShownDay(), ShownDay(), DateOfFile());
    });
    share->Offer("AllDays", "&All Days",
                 [this] { return LineUpPaper(OpenLeague, OwnNumber(), Kind.Side, 1, LineDays, DateOfFile()); });
    playing->addWidget(share);
    column->addLayout(playing);
    return panel;
}

void LinesScreen::SetTabOrder()
{
    QList<QWidget*> order{lstPlayer};
    for (QCheckBox* filter : chkPosition)
        order << filter;
    order << vscDay << TabLine->tabBar() << TabLine->Parts.Walk;
    for (QScrollBar* bar : hscStats)
        order << bar;
    order << txtPullGoalerMinGoal << txtPullGoalerMinPct << cmdSheet << findChild<ShareCommand*>() << cmdDebug
          << txtReasons << cmdAutoLines << cmdRepairAll << cmdWipeLines << cmdCopy << cmdCopyAll << cmdExit;
    ChainTabs(order);
    setTabOrder(txtReasons, cmdFoldAdvice);
}

bool LinesScreen::eventFilter(QObject* watched, QEvent* event)
{
    LetGoOf(watched, event);
    if (HoldsBack(watched, event))
        return true;
    if (event->type() == QEvent::FocusIn)
        if (auto* label = qobject_cast<SlotLabel*>(watched); label != nullptr && label->window() == this)
            lastSlot = label;
    if (event->type() == QEvent::ToolTip) {
        auto* pressed = qobject_cast<QWidget*>(watched);
        if (auto* people = pressed == nullptr ? nullptr : qobject_cast<PickList*>(pressed->parentWidget()))
            TellOfEntry(*people, static_cast<QHelpEvent*>(event)->pos());
        else if (auto* label = qobject_cast<SlotLabel*>(watched))
            TellOfSlot(TabLine->Slots[static_cast<std::size_t>(IndexOf(*label))]);
    }
    return Screen::eventFilter(watched, event);
}

// Whatever is watched takes the focus when it is pressed. A text box that has it all the same took it back, and neither the
// press nor what follows from it goes any further.
bool LinesScreen::HoldsBack(QObject* watched, const QEvent* event)
{
    if (qobject_cast<QPushButton*>(watched) != nullptr)
        return false; // as all screens do
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // the second press of two quick ones
        heldBack = KeepsFocus(watched) ? watched : nullptr;
        return heldBack != nullptr;
    case QEvent::MouseMove:
        return heldBack == watched;
    case QEvent::MouseButtonRelease:
        return std::exchange(heldBack, nullptr) == watched;
    default:
        return false;
    }
}

// A press in the window of the sheet takes no focus from a box, which acts now.
bool LinesScreen::KeepsFocus(const QObject* watched)
{
    const auto* pressed = qobject_cast<const QWidget*>(watched);
    if (pressed != nullptr && pressed->window() != this)
        return !SettleFocus();
    return qobject_cast<EditBox*>(focusWidget()) != nullptr;
}

// The mouse takes the focus off a text box before it presses. When a box comes up in between, the release goes to that one,
// and whatever is pressed would stay so; with a release of its own the press is the click that was meant.
void LinesScreen::LetGoOf(QObject* watched, const QEvent* event)
{
    if (event->type() != QEvent::MouseButtonPress || !std::exchange(wasLetGo, false))
        return;
    const auto* press = static_cast<const QMouseEvent*>(event);
    QCoreApplication::postEvent(watched, new QMouseEvent(QEvent::MouseButtonRelease, press->position(),
                                                         press->scenePosition(), press->globalPosition(),
                                                         press->button(), Qt::NoButton, press->modifiers()));
}

void LinesScreen::ReturnTo(EditBox* box)
{
    const auto takeBack = [this, box] {
        const EventGuard guard;
        TabLine->setCurrentIndex(TabLine->count() - 1);
        box->TakeFocusBack();
    };
    if (box->isVisible())
        takeBack();
    else // its page is being left
        QMetaObject::invokeMethod(this, takeBack, Qt::QueuedConnection);
}

} // namespace dravik
