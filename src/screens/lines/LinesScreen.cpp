#include "screens/lines/LinesScreen.h"

#include "desk/CopyLines.h"
#include "desk/FirstDay.h"
#include "desk/LineCandidates.h"
#include "desk/LineMakers.h"
#include "desk/Strategy.h"
#include "desk/WipeDay.h"
#include "machine/Reporting.h"
#include "rules/LineJudge.h"
#include "rules/NextGames.h"
#include "rules/PlayingLines.h"
#include "screens/EventGuard.h"
#include "screens/lines/LineSheet.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "screens/Shown.h"
#include "session/Session.h"

#include <QGuiApplication>

// Opening and closing, the list, the days, strategy, goalie pull and the commands on the lines.
namespace dravik {

Lines& LinesScreen::ShownLines() const { return LinesOf(OpenLeague, OwnNumber(), ShownDay(), Kind.Side); }

void LinesScreen::FormLoad()
{
    Reporting(Machine(), Kind.OnLoad, [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            Machine().ShowIntegrityFailure();
            Unload();
            return;
        }
        if (AreMakersClosed(LeagueData))
            CloseMakers();
        const QString name = ToQString(Kind.NameOf(OwnTeam()));
        SetTitle(ToQString(ProgramTitle) + " - " + name + " - Lines");
        day = 1;
        FindGames();
        lblTeamName->setText("Lines for " + name + " ");
        ShowPlayer();
        Place();
        TabLine->setCurrentIndex(0);
        Check();
    });
}

void LinesScreen::FormUnload() { WarnOfFirstDay(OpenWork(), OwnNumber(), Kind.Side); }

void LinesScreen::ShowAnew()
{
    const std::optional<int> chosen = NumberOf(lstPlayer->Chosen());
    ShowPlayer();
    lstPlayer->Choose(chosen);
    ShowDayAnew();
}

QString LinesScreen::Subject() const { return ", day " + QString::number(ShownDay()); }

std::function<void()> LinesScreen::AsDayStep(const QString& words, std::function<void()> change)
{
    return AsStep([this, words] { return words + Subject(); }, std::move(change));
}

void LinesScreen::CloseMakers()
{
    cmdAutoLines->setEnabled(false);
    cmdRepairAll->setEnabled(false);
}

void LinesScreen::FindGames()
{
    GameRow = {};
    GameIsAway = {};
    const std::vector<NextGame> games = NextGames(OpenLeague, OwnNumber(), Kind.Side);
    if (games.empty()) {
        vscDay->setEnabled(false);
        cmdCopy->setEnabled(false);
        lblGame->setText("Next Day Information Unavailable");
        return;
    }
    vscDay->setMaximum(static_cast<int>(games.size()));
    QStringList words;
    for (const NextGame& game : games) {
        words << (game.IsAway ? "at " : "vs ") +
                     ToQString(TeamTable::Has(game.Opponent) ? Kind.AbbreOf(Teams[game.Opponent]) : "?");
        GameRow[words.size()] = game.Row;
        GameIsAway[words.size()] = game.IsAway;
    }
    vscDay->SetGames(words);
}

void LinesScreen::ShowPlayer()
{
    Reporting(Machine(), " in ShowPlayer!", [this] {
        lstPlayer->Empty();
        frmStat->HideRows();
        EachLineCandidate(OpenWork(), OwnNumber(), Kind.Side, [this](PersonId who, int position) {
            if (!chkPosition[position]->isChecked())
                return;
            const std::string name =
                OnPerson(OpenLeague, who, [](const auto& person) { return person.Name.Trimmed(); });
            lstPlayer->Add(ToQString(name), EntryNumber(who.Slot, position), AsideOf(who));
        });
        ListMore();
    });
    if (Sheet != nullptr)
        Sheet->List(*lstPlayer);
}

void LinesScreen::lstPlayer_Click()
{
    Reporting(Machine(), Kind.OnPick, [this] {
        const QListWidgetItem* chosen = lstPlayer->Chosen();
        if (chosen == nullptr)
            return;
        const int number = chosen->data(entry::NumberRole).toInt();
        selectedPosition = EntryPosition(number);
        SelectPerson(EntryPerson(number));
        lblPlaying->clear();
        ShowPicked();
    });
    RefreshMarks();
}

void LinesScreen::ShowPicked()
{
    frmStat->HideRows(); // a goalie has fewer rows than a skater
    frmStat->ShowPosition(ToQString(PositionName[selectedPosition]));
    OnPerson(OpenLeague, SelectedPerson(),
             [this](const auto& person) { ShowPickedName(ToQString(person.Name.Trimmed())); });
    frmStat->ShowRows(StatRowsOf(SelectedPerson()));
    frmStat->HoldAgainstPinned(SelectedPerson());
    if (!SelectedIsGoalie)
        RefreshPlaying();
}

void LinesScreen::chkPosition_Click(int /*position*/) { ShowPlayer(); }

void LinesScreen::Place()
{
    said = {};
    ClosePickers();
    LetGoOfTaken();
    Reporting(Machine(), " in Place!", [this] {
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
    const bool isAway = static_cast<bool>(GameIsAway[day]);
    const NextGame game = GameInRow(OpenLeague, Kind.Side, GameRow[day], isAway);
    lblGame->setText("Lines " + Shown(day) + " - For Game " + Shown(game.GameDay) + " vs " +
                     ToQString(Kind.NameOf(Teams[game.Opponent])));
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
    const auto show = [this](EditBox* box, GoaliePull value) {
        box->setText(Shown(ShownGoaliePull(OpenLeague, OwnNumber(), ShownDay(), Kind.Side, value)));
    };
    show(txtPullGoalerMinPct, GoaliePull::MinPct);
    show(txtPullGoalerMinGoal, GoaliePull::MinGoal);
}

void LinesScreen::Check()
{
    Reporting(Machine(), " in Check!", [this] { CheckInTurn(); });
    ShowJudged();
}

void LinesScreen::ShowJudged()
{
    RefreshMarks();
    RefreshDays();
    RefreshAdvice();
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
    said = JudgeDay(OpenWork(), OwnNumber(), Kind.Side, ShownDay(), showMessage);
    txtReasons->Tell(said.Complete ? QString() : ToQString(TextOf(OpenLeague, said)).replace("\r\n", "\n").trimmed());
    return said.Complete;
}

void LinesScreen::RefreshPlaying()
{
    lblPlaying->setText(
        ToQString(PlayingText(OpenLeague, OwnNumber(), static_cast<int>(SelectedPlayer), ShownDay(), Kind.Side)));
}

void LinesScreen::vscDay_Change()
{
    day = vscDay->value();
    Place();
    TabLine->setCurrentIndex(0);
    Check();
}

void LinesScreen::hscStats_Change(int index)
{
    if (!StrategyReady)
        return;
    StrategyBars bars;
    for (int style = 0; style <= 2; ++style)
        bars[style] = hscStats[style]->value();
    const auto left = GiveStrategyPoints(OpenWork(), OwnNumber(), ShownDay(), Kind.Side, index, bars);
    if (!left) {
        hscStats[index]->setValue(lblStatsPoint[index]->text().toInt());
        return;
    }
    lblStatsPoint[index]->setText(Shown(bars[index]));
    PointsLeft = *left;
    lblPoint->setText(Shown(PointsLeft));
}

void LinesScreen::TakePull(EditBox* box, GoaliePull value)
{
    if (ListEventGuard)
        return;
    const auto number = GoaliePullNumber(Machine(), FromQString(box->text()));
    if (!number) {
        ReturnTo(box);
        return;
    }
    const Qt::MouseButtons buttons = QGuiApplication::mouseButtons();
    const bool isTaken = RunEvent(box->objectName() + "_LostFocus", [&] {
        SetGoaliePull(OpenWork(), OwnNumber(), ShownDay(), Kind.Side, value, *number);
    });
    if (isTaken)
        return;
    ShowPull(); // a number that the record cannot hold does not stay in the box either
    wasLetGo = buttons != QGuiApplication::mouseButtons();
    QMetaObject::invokeMethod(
        this, [this] { wasLetGo = false; }, Qt::QueuedConnection);
}

void LinesScreen::txtPullGoalerMinGoal_LostFocus() { TakePull(txtPullGoalerMinGoal, GoaliePull::MinGoal); }

void LinesScreen::txtPullGoalerMinPct_LostFocus() { TakePull(txtPullGoalerMinPct, GoaliePull::MinPct); }

void LinesScreen::ShowDayAnew()
{
    Place();
    Check();
}

void LinesScreen::cmdAutoLines_Click()
{
    MakeDay(OpenWork(), OwnNumber(), ShownDay(), Kind.Side);
    ShowDayAnew();
}

void LinesScreen::cmdWipeLines_Click()
{
    if (!WipeDay(OpenWork(), OwnNumber(), ShownDay(), Kind.Side))
        return;
    ShowDayAnew();
}

void LinesScreen::cmdDebug_Click()
{
    Judge(true);
    ShowJudged();
}

void LinesScreen::cmdCopy_Click()
{
    CopyLinesToDay(OpenWork(), OwnNumber(), Kind.Side, ShownDay(), vscDay->maximum());
    RefreshDays();
}

void LinesScreen::cmdCopyAll_Click()
{
    CopyLinesToAllDays(OpenWork(), OwnNumber(), Kind.Side, ShownDay());
    RefreshDays();
}

void LinesScreen::Copy(int targetDay) { CopyLines(OpenWork(), OwnNumber(), Kind.Side, ShownDay(), targetDay); }

void LinesScreen::cmdExit_Click() { Unload(); }

} // namespace dravik
