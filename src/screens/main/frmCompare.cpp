#include "screens/main/frmCompare.h"

#include "machine/Message.h"
#include "machine/Reporting.h"
#include "rules/People.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "session/OtherLeague.h"
#include "session/Session.h"

#include <QShortcut>

namespace dravik {

namespace {

constexpr QSize DefaultSize(820, 600);
constexpr int MostRows = 400; // as many as any window is high

// A league with what it is called here.
struct Side {
    const Tables& League;
    QString Name;
};

template <class Counts>
QString CountPeople(const Tables& league, const Counts& counts)
{
    long long count = 0;
    for (int slot = 1; slot <= PlayerTable::last; ++slot)
        count += league.Players[slot].InUse && counts(league.Players[slot]) ? 1 : 0;
    for (int slot = 1; slot <= GoalieTable::last; ++slot)
        count += league.Goalies[slot].InUse && counts(league.Goalies[slot]) ? 1 : 0;
    return Shown(count);
}

QString DateOf(const Tables& league)
{
    const double date = league.LeagueData.FileDate;
    return ToQString(Machine().LongDate(date) + " at " + Machine().ShortTime(date));
}

} // namespace

frmCompare::frmCompare(Stage& stage) : Screen(stage, "frmCompare")
{
    // The league that is compared stays the open one as long as this is up.
    setWindowModality(Qt::ApplicationModal);
    auto* content = new QWidget(this);
    QVBoxLayout* column = MakePage(content);
    QLabel* title = MakeTitle(content);
    title->setObjectName("lblTitle");
    title->setText("Two Client Files");
    column->addWidget(title);
    figures = new QGridLayout;
    figures->setHorizontalSpacing(2 * Margin);
    figures->setVerticalSpacing(Gap / 2);
    figures->setColumnStretch(1, 1);
    figures->setColumnStretch(2, 1);
    column->addLayout(figures);
    lblRemark = new MutedLabel(content);
    lblRemark->setObjectName("lblRemark");
    lblRemark->setWordWrap(true);
    lblRemark->hide();
    column->addWidget(lblRemark);
    changes = new ChangeList("Differences", MostRows, content);
    column->addWidget(changes, 1);
    lblNothing = new MutedLabel("Nothing is different.", content);
    lblNothing->setObjectName("lblNothing");
    column->addWidget(lblNothing);
    column->addStretch(0);
    cmdExit = MakeCommand("cmdExit", "E&xit", [this] { cmdExit_Click(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, cmdExit, &QPushButton::click);
    SetPage(content, MakeFooter({}, {cmdExit}));
    resize(DefaultSize);
}

void frmCompare::FormLoad()
{
    Reporting(Machine(), " in FormLoad FrmCompare!", [this] {
        const OtherLeague& other = TheOtherLeague();
        if (!other.League) {
            Unload();
            return;
        }
        SetTitle(ToQString(ProgramTitle) + " - Compare");
        const Side open{OpenLeague, "The Open League"};
        const Side beside{*other.League, ToQString(other.FileName)};
        const bool isOpenLater = !(open.League.LeagueData.FileDate < beside.League.LeagueData.FileDate);
        const Side& earlier = isOpenLater ? beside : open;
        const Side& later = isOpenLater ? open : beside;
        const auto row = [&](const char* name, const char* caption, const auto& of) {
            AddRow(name, caption, of(earlier.League), of(later.League));
        };
        AddRow("File", "", earlier.Name, later.Name);
        row("League", "League", [](const Tables& league) { return Shown(league.LeagueData.Name); });
        row("Date", "Client File Date", DateOf);
        row("People", "People",
            [](const Tables& league) { return CountPeople(league, [](const auto&) { return true; }); });
        row("Free", "Without a team", [](const Tables& league) {
            return CountPeople(league, [](const auto& person) { return person.Team == 0; });
        });
        row("Hurt", "Injured", [](const Tables& league) {
            return CountPeople(league, [](const auto& person) { return person.Team != 0 && !IsHealthy(person); });
        });
        QStringList remarks;
        if (earlier.League.LeagueData.LeagueCode.Raw() != later.League.LeagueData.LeagueCode.Raw())
            remarks << "These are files of two different leagues.";
        if (other.IsDamaged)
            remarks << "The other file was damaged on its way, and some of it may be wrong.";
        lblRemark->setText(remarks.join(' '));
        lblRemark->setVisible(!remarks.isEmpty());

        const int team = static_cast<int>(CurrentTeam);
        const auto told = ToldTo(later.League, DifferencesBetween(DigestOf(earlier.League), later.League), team, false);
        changes->Tell(QString("What is different in the later one (%1)").arg(told.size()),
                      EntriesOf(later.League, told, team));
        lblNothing->setVisible(told.empty());
        CentreOnScreen();
    });
}

void frmCompare::AddRow(const QString& name, const QString& caption, const QString& earlier, const QString& later)
{
    const int row = figures->rowCount();
    auto* label = new MutedLabel(caption, centralWidget());
    label->setObjectName("lbl" + name + "Caption");
    figures->addWidget(label, row, CaptionColumn);
    int column = FieldColumn;
    for (const QString& text : {earlier, later}) {
        const bool isHead = caption.isEmpty();
        QLabel* figure = isHead ? MakeHeading(text, centralWidget()) : new ElidedLabel(text, centralWidget());
        figure->setObjectName("lbl" + name + (column == FieldColumn ? "Earlier" : "Later"));
        figures->addWidget(figure, row, column++);
    }
}

void frmCompare::FormUnload() { CloseOtherLeague(); }

void frmCompare::cmdExit_Click() { Unload(); }

} // namespace dravik
