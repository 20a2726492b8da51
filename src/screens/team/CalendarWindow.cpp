#include "screens/team/CalendarWindow.h"

#include "desk/SeasonCalendar.h"
#include "desk/SlotPicks.h"
#include "screens/panels/Crest.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <algorithm>
#include <QWheelEvent>

namespace dravik {

namespace {

constexpr QSize UsualSize(940, 640);

// The columns of the table.
enum Column {
    LinesColumn,
    DayColumn,
    WhereColumn,
    OpponentColumn,
    SkatersColumn,
    GoalieColumn,
    RowColumn,
    StartColumn
};

QString Figure(const std::optional<int>& number) { return number ? QString::number(*number) : QString("-"); }

// A damaged calendar may name a team that is none.
QString OpponentOf(const NextGame& game)
{
    return TeamTable::Has(game.Opponent) ? Shown(Teams[game.Opponent].Name) : QString("-");
}

QStringList RowOf(const CalendarDay& day)
{
    const TeamStrength strength = day.Opponent.value_or(TeamStrength{});
    return {day.Day ? QString::number(*day.Day) : QString(),
            QString::number(day.Game.GameDay),
            day.Game.IsAway ? "Away" : "Home",
            OpponentOf(day.Game),
            Figure(strength.Skaters),
            Figure(strength.Goalie),
            day.InARow > 1 ? QString::number(day.InARow) : QString(),
            QString()};
}

const DaySlot& StartSlot()
{
    return *std::find_if(DaySlots.begin(), DaySlots.end(),
                         [](const DaySlot& slot) { return slot.Word == StartGoalieWord; });
}

PersonId Keeper(int slot) { return {.IsGoalie = true, .Slot = slot}; }

QString WordsOf(const SlotPick& pick)
{
    return NameOf(pick.Who) + (pick.Overall ? QString("  %1").arg(*pick.Overall) : QString());
}

} // namespace

CalendarWindow::CalendarWindow(QWidget* screen, RunsStep asStep) :
    LookWindow(screen, Name, UsualSize), runStep(std::move(asStep))
{
    lblSeason = MakeHeading({}, this);
    lblSeason->setObjectName("lblSeason");
    lblHint = new MutedLabel(this);
    lblHint->setObjectName("lblHint");
    lblHint->setWordWrap(true);
    tblSeason = new FigureTable({{"Lines Day"},
                                 {"Game Day"},
                                 {"Where", false},
                                 {"Opponent", false, true},
                                 {"Skaters"},
                                 {"Goalie"},
                                 {"In a Row"},
                                 {"Starts in Goal", false}},
                                this);
    tblSeason->setObjectName("tblSeason");
    tblSeason->setAccessibleName("Games left");
    QVBoxLayout* column = MakePage(this);
    column->addWidget(lblSeason);
    column->addWidget(lblHint);
    column->addWidget(tblSeason, 1);
}

void CalendarWindow::ShowAnew()
{
    const std::vector<CalendarDay> season = SeasonLeft(OpenLeague, OwnNumber());
    SetTitle(Shown(OwnTeam().Name) + " - Calendar");
    lblSeason->setText(QString("%1 games left").arg(season.size()));
    const bool isShown = IsScheduleOpen(LeagueData);
    if (!isShown) {
        lblSeason->setText("Calendar");
        lblHint->setText("The league does not show its schedule.");
    } else if (LeagueData.ShowOverall) {
        lblHint->setText(
            "Skaters is the mean overall of the opponent's best eighteen, Goalie that of his best one. In a Row "
            "counts the days with a game without a day off.");
    } else {
        lblHint->setText("In a Row counts the days with a game without a day off. The league shows no overalls.");
    }
    tblSeason->setVisible(isShown);
    for (const Column column : {SkatersColumn, GoalieColumn})
        tblSeason->setColumnHidden(column, !LeagueData.ShowOverall);

    QList<QStringList> rows;
    for (const CalendarDay& day : season)
        rows << RowOf(day);
    tblSeason->Show(rows);
    for (int row = 0; row < static_cast<int>(season.size()); ++row) {
        const int opponent = season[static_cast<std::size_t>(row)].Game.Opponent;
        tblSeason->item(row, OpponentColumn)
            ->setData(entry::CrestRole,
                      QVariant::fromValue(TeamTable::Has(opponent) ? CrestOf(Teams[opponent]) : Crest()));
    }
    const bool mayChoose = MayChooseStarters(OpenLeague, Machine(), OwnNumber());
    const std::vector<SlotPick> goalies = PicksFor(OpenWork(), OwnNumber(), Side::Pro, StartSlot());
    for (int row = 0; row < static_cast<int>(season.size()) && row < LineDays; ++row)
        ShowStarter(row, season[static_cast<std::size_t>(row)], goalies, mayChoose);
}

QComboBox* CalendarWindow::StarterOf(int day) const
{
    return qobject_cast<QComboBox*>(tblSeason->cellWidget(day - 1, StartColumn));
}

void CalendarWindow::ShowStarter(int row, const CalendarDay& day, const std::vector<SlotPick>& goalies, bool mayChoose)
{
    QComboBox* starter = StarterOf(row + 1);
    if (starter == nullptr) {
        starter = new QComboBox(tblSeason);
        starter->setObjectName(QString("cboStarter(%1)").arg(row + 1));
        starter->setAccessibleName(QString("Starts in goal, day %1").arg(row + 1));
        starter->setFocusPolicy(Qt::StrongFocus);
        starter->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        starter->installEventFilter(this);
        connect(starter, &QComboBox::activated, this, [this, row, starter] { Choose(row + 1, *starter); });
        tblSeason->setCellWidget(row, StartColumn, starter);
        tblSeason->setRowHeight(row, std::max(tblSeason->rowHeight(row), starter->sizeHint().height()));
    }
    const QSignalBlocker quiet(starter);
    starter->clear();
    for (const SlotPick& pick : goalies)
        starter->addItem(WordsOf(pick), pick.Who.Slot);
    // Who stands there and may not, or nobody, is told all the same.
    if (starter->findData(day.Starter) < 0)
        starter->insertItem(0, day.Starter == 0 ? QString("Nobody") : NameOf(Keeper(day.Starter)), day.Starter);
    starter->setCurrentIndex(starter->findData(day.Starter));
    starter->setEnabled(mayChoose);
    starter->setToolTip(mayChoose ? QString() : QString("With a complete roster alone"));
    // The words under it are what a screen reader finds in the table.
    tblSeason->item(row, StartColumn)->setData(Qt::AccessibleTextRole, starter->currentText());
}

// The screens show what has changed once the box is done with the choice.
void CalendarWindow::Choose(int day, const QComboBox& starter)
{
    const PersonId who = Keeper(starter.currentData().toInt());
    bool changed = false;
    if (who.Slot != 0)
        runStep(QString("Start %1 in goal, day %2").arg(NameOf(who)).arg(day),
                [&] { changed = StartInGoal(OpenWork(), OwnNumber(), day, who); });
    if (changed)
        QMetaObject::invokeMethod(this, &CalendarWindow::Changed, Qt::QueuedConnection);
}

// Turned over a row, the wheel scrolls, and no goalie changes by it.
bool CalendarWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(watched) != nullptr) {
        event->ignore();
        return true;
    }
    return LookWindow::eventFilter(watched, event);
}

} // namespace dravik
