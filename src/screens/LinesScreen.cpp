#include "screens/LinesScreen.h"

#include "league/Arithmetic.h"
#include "league/Platform.h"
#include "rules/People.h"
#include "screens/EventGuard.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "screens/Shown.h"
#include "session/Routines.h"

#include <QGuiApplication>
#include <type_traits>

// Opening and closing, the list, the days, strategy, goalie pull and the commands on the lines.
namespace dravik {

namespace {

constexpr int StrategyPoints = 5;

int OwnNumber() { return static_cast<int>(CurrentTeam); }

} // namespace

Lines& LinesScreen::ShownLines() const { return LinesOf(OwnNumber(), static_cast<int>(Day), Kind.Side); }

void LinesScreen::FormLoad()
{
    Reporting(Kind.OnLoad, [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            ShowIntegrityFailure();
            Unload();
            return;
        }
        if (LeagueData.AutoRosterDisabled)
            CloseMakers();
        const QString name = ToQString(Kind.NameOf(Teams[CurrentTeam]));
        SetTitle(ToQString(ProgramTitle) + " - " + name + " - Lines");
        Day = 1;
        FindGames();
        lblTeamName->setText("Lines for " + name + " ");
        ShowPlayer();
        Place();
        TabLine->setCurrentIndex(0);
        Check();
    });
}

void LinesScreen::FormUnload()
{
    if (!Kind.Judge(OwnNumber(), false, 1, false).Complete)
        ShowBox(Kind.ClosingWarning, box::Warning);
}

void LinesScreen::CloseMakers() { cmdAutoLines->setEnabled(false); }

// The team's next games, in the order of the calendar.
void LinesScreen::FindGames()
{
    GameRow = {};
    GameIsAway = {};
    int games = 0;
    if (LeagueData.ScheduleShown && LeagueData.ScheduleBlocked == 0) {
        for (auto row = ScheduleTable::first; row <= ScheduleTable::last && games < LineDays; ++row) {
            const ScheduleRow& game = GameSchedule[row];
            const bool isHome = game.*Kind.Home == CurrentTeam;
            const bool isToCome = game.*Kind.Game && (game.*Kind.Played).Word() == 0;
            if (!isToCome || !(isHome || game.*Kind.Away == CurrentTeam))
                continue;
            ++games;
            GameRow[games] = row;
            GameIsAway[games] = !isHome;
        }
    }
    if (games == 0) {
        vscDay->setEnabled(false);
        cmdCopy->setEnabled(false);
        lblGame->setText("Next Day Information Unavailable");
        return;
    }
    vscDay->setMaximum(games);
    QStringList words;
    for (int day = 1; day <= games; ++day) {
        const ScheduleRow& game = GameSchedule[GameRow[day]];
        const bool isAway = static_cast<bool>(GameIsAway[day]);
        const long long opponent = isAway ? game.*Kind.Home : game.*Kind.Away;
        const std::string abbreviation = TeamTable::Has(opponent) ? Kind.AbbreOf(Teams[opponent]) : "?";
        words << (isAway ? "at " : "vs ") + ToQString(abbreviation);
    }
    vscDay->SetGames(words);
}

void LinesScreen::ShowPlayer()
{
    Reporting(" in ShowPlayer!", [this] {
        lstPlayer->Empty();
        frmStat->HideRows();
        EachOfTeam(Players, OwnNumber(), [this](const Player& player, int index) {
            ListPerson(player, index, static_cast<int>(player.Position));
        });
        EachOfTeam(Goalies, OwnNumber(),
                   [this](const Goalie& keeper, int index) { ListPerson(keeper, index, position::Goalie); });
        ListMore();
    });
}

template <class Person>
void LinesScreen::ListPerson(const Person& person, int index, int position)
{
    if (person.Status != Kind.Status || !IsDressable(person))
        return;
    const std::string name = person.Name.Trimmed();
    constexpr bool isSkater = std::is_same_v<Person, Player>;
    if (isSkater && (position < position::Center || position > position::Defense)) {
        ShowBox(name + " has no position!", box::Critical);
        return;
    }
    if (chkPosition[position]->isChecked())
        lstPlayer->Add(ToQString(name), EntryNumber(index, position), AsideOf(position, index));
}

void LinesScreen::lstPlayer_Click()
{
    Reporting(Kind.OnPick, [this] {
        const QListWidgetItem* chosen = lstPlayer->Chosen();
        if (chosen == nullptr)
            return;
        const int number = chosen->data(entry::NumberRole).toInt();
        SelectedPosition = EntryPosition(number);
        SelectPerson(EntryPerson(number));
        lblPlaying->clear();
        ShowPicked();
    });
    RefreshMarks();
}

void LinesScreen::ShowPicked()
{
    const int id = static_cast<int>(SelectedPlayer);
    frmStat->HideRows(); // a goalie has fewer rows than a skater
    frmStat->ShowPosition(ToQString(PositionName[SelectedPosition]));
    OnPerson(OpenLeague, SelectedPerson(),
             [this](const auto& person) { ShowPickedName(ToQString(person.Name.Trimmed())); });
    frmStat->ShowRows(SelectedIsGoalie ? GoalieStatRows(id) : SkaterStatRows(id));
    if (!SelectedIsGoalie)
        RefreshPlaying();
}

void LinesScreen::chkPosition_Click(int /*position*/) { ShowPlayer(); }

void LinesScreen::Place()
{
    said = {};
    Reporting(" in Place!", [this] {
        if (GameRow[1] != 0)
            ShowGame();
        ShowSlots();
        ShowStrategy();
        lblPlaying->clear();
    });
    RefreshMarks();
}

void LinesScreen::ShowGame()
{
    const ScheduleRow& game = GameSchedule[GameRow[Day]];
    const Team& opponent = Teams[GameIsAway[Day] ? game.*Kind.Home : game.*Kind.Away];
    lblGame->setText("Lines " + Shown(Day) + " - For Game " + Shown(game.GameDay) + " vs " +
                     ToQString(Kind.NameOf(opponent)));
}

void LinesScreen::ShowStrategy()
{
    const Lines& lines = ShownLines();
    StrategyReady = false;
    PointsLeft = StrategyPoints;
    for (int style = 0; style <= 2; ++style) {
        const long long points = lines.Strategy[style];
        hscStats[style]->setValue(static_cast<int>(points));
        lblStatsPoint[style]->setText(Shown(points));
        PointsLeft -= points;
    }
    ShowPull();
    StrategyReady = true;
    lblPoint->setText(Shown(PointsLeft));
}

void LinesScreen::ShowPull()
{
    const Lines& lines = ShownLines();
    const auto show = [](EditBox* box, long long value, long long otherwise) {
        box->setText(Shown(value == 0 ? otherwise : value));
    };
    show(txtPullGoalerMinPct, lines.PullGoalerMinPct, LeagueData.PullGoalerMinPctDefault);
    show(txtPullGoalerMinGoal, lines.PullGoalerMinGoal, LeagueData.PullGoalerMinGoalDefault);
}

void LinesScreen::Check()
{
    Reporting(" in Check!", [this] { CheckInTurn(); });
    RefreshMarks();
}

void LinesScreen::JudgeShownDay()
{
    const bool complete = Judge(false);
    lblComplete->Tell(complete ? "Lines are Complete" : "Lines are Incomplete", complete);
    vscDay->SetVerdict(lblComplete->text());
    cmdDebug->setEnabled(!complete);
}

bool LinesScreen::Judge(bool showMessage)
{
    said = Kind.Judge(OwnNumber(), showMessage, static_cast<int>(Day), false);
    txtReasons->Tell(said.Complete ? QString() : ToQString(TextOf(OpenLeague, said)).replace("\r\n", "\n").trimmed());
    return said.Complete;
}

void LinesScreen::RefreshPlaying()
{
    const int day = static_cast<int>(Day);
    const int id = static_cast<int>(SelectedPlayer);
    const int count = Kind.PlayOnLineInteger(OwnNumber(), id, day);
    lblPlaying->setText("(" + Shown(count) + ") - " + ToQString(Kind.PlayOnLineString(OwnNumber(), id, day)));
}

void LinesScreen::vscDay_Change()
{
    Day = vscDay->value();
    Place();
    TabLine->setCurrentIndex(0);
    Check();
}

void LinesScreen::hscStats_Change(int index)
{
    if (!StrategyReady)
        return;
    int sum = 0;
    for (const QScrollBar* bar : hscStats)
        sum += bar->value();
    if (sum > StrategyPoints) {
        hscStats[index]->setValue(lblStatsPoint[index]->text().toInt());
        return;
    }
    const int points = hscStats[index]->value();
    lblStatsPoint[index]->setText(Shown(points));
    ShownLines().Strategy[index] = points;
    PointsLeft = StrategyPoints - sum;
    lblPoint->setText(Shown(PointsLeft));
}

void LinesScreen::TakePull(EditBox* box, Int16 Lines::*field)
{
    if (ListEventGuard)
        return;
    const std::string text = FromQString(box->text());
    if (!CheckInput(text, InputMode::Numbers, false)) {
        ReturnTo(box);
        return;
    }
    const Qt::MouseButtons buttons = QGuiApplication::mouseButtons();
    const bool isTaken = RunEvent(box->objectName() + "_LostFocus", [&] {
        ShownLines().*field = RoundToInt16(LeadingNumber(text));
        Modified = true;
    });
    if (isTaken)
        return;
    ShowPull(); // a number that the record cannot hold does not stay in the box either
    wasLetGo = buttons != QGuiApplication::mouseButtons();
    QMetaObject::invokeMethod(
        this, [this] { wasLetGo = false; }, Qt::QueuedConnection);
}

void LinesScreen::txtPullGoalerMinGoal_LostFocus() { TakePull(txtPullGoalerMinGoal, &Lines::PullGoalerMinGoal); }

void LinesScreen::txtPullGoalerMinPct_LostFocus() { TakePull(txtPullGoalerMinPct, &Lines::PullGoalerMinPct); }

void LinesScreen::MakeLines(void (*maker)(int team, bool verbose, int day))
{
    maker(OwnNumber(), true, static_cast<int>(Day));
    Place();
    Check();
}

void LinesScreen::cmdAutoLines_Click() { MakeLines(Kind.AutoLines); }

void LinesScreen::cmdWipeLines_Click()
{
    if (ShowBox("Are you sure you want to wipe your lines?", box::YesNo) != button::Yes)
        return;
    WipesLines(OwnNumber(), static_cast<int>(Day), Kind.Side == Side::Pro);
    Place();
    Check();
}

void LinesScreen::cmdDebug_Click()
{
    Judge(true);
    RefreshMarks();
}

void LinesScreen::cmdCopy_Click()
{
    const int target = RoundToInt16(LeadingNumber(AskText("What day do you have to copy your lines?")));
    const std::string from = std::to_string(Day);
    const std::string to = std::to_string(target);
    if (target < 1 || target > vscDay->maximum()) {
        ShowBox("Please entry a number between 1 and " + std::to_string(vscDay->maximum()) + ".", box::Warning);
        return;
    }
    if (ShowBox("Are you want to you want to copy the lines from day " + from + " to day " + to + "?", box::YesNo) !=
        button::Yes)
        return;
    Copy(target);
    ShowBox("Lines " + from + " was successfully copy to Lines " + to + ".", box::Information);
}

void LinesScreen::cmdCopyAll_Click()
{
    const std::string from = std::to_string(Day);
    if (ShowBox("Are you want to you want to copy the lines from day " + from + " to day all the others day?",
                box::YesNo) != button::Yes)
        return;
    for (int day = 1; day <= LineDays; ++day)
        if (day != Day)
            Copy(day);
    ShowBox("Lines " + from + " was successfully copy to day all the others day.", box::Information);
}

void LinesScreen::Copy(int targetDay)
{
    Reporting(" in Copy!", [&] {
        Lines& from = ShownLines();
        Lines& to = LinesOf(OwnNumber(), targetDay, Kind.Side);
        for (const BoardSlot& slot : TabLine->Slots)
            slot.In(to) = slot.In(from);
        to.Strategy = from.Strategy;
        to.PullGoalerMinGoal = from.PullGoalerMinGoal;
        to.PullGoalerMinPct = from.PullGoalerMinPct;
    });
}

void LinesScreen::cmdExit_Click() { Unload(); }

} // namespace dravik
