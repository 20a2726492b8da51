#include "screens/roster/frmRoster.h"

#include "desk/WhatIf.h"
#include "machine/Platform.h"
#include "machine/Reporting.h"
#include "rules/Overall.h"
#include "rules/People.h"
#include "rules/RosterJudge.h"
#include "rules/SalaryCap.h"
#include "rules/StatRows.h"
#include "rules/Waivers.h"
#include "screens/EventGuard.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "screens/Stage.h"
#include "session/Session.h"

#include <algorithm>

// Opening, the three lists, the person chosen in them, and the one way in which a person changes lists.
namespace dravik {

namespace {

QStringList LinesOf(const std::string& text) { return ToQString(text).split("\r\n", Qt::SkipEmptyParts); }

// The findings of a roster judgement without the heading and the closing words of its box. A judgement that broke off got
// neither.
QStringList Findings(const std::string& text)
{
    QStringList lines = LinesOf(text);
    if (lines.size() < 2 || lines.back() != "Some errors will be automatically fixed.")
        return lines;
    return lines.mid(1, lines.size() - 2);
}

} // namespace

void frmRoster::FormLoad()
{
    RunEvent("FormLoad FrmRoster", [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            Machine().ShowIntegrityFailure();
            Unload();
            return;
        }
        const QString name = ToQString(OwnTeam().Name.Trimmed());
        SetTitle(ToQString(ProgramTitle) + " - " + name + " - Roster");
        lblTeamName->setText("Roster for " + name);
        if (LeagueData.OffSeason) {
            chkProtected->show();
            lblProtectedTotal->show();
        }
        ShowPlayer(false);
        for (QWidget* closed :
             std::initializer_list<QWidget*>{cmdRelease, cmdSendToWaiver, chkNoApplyRerate, chkNoTrade})
            closed->hide();
        if (LeagueData.AutoRosterDisabled) {
            cmdAutoRoster->setEnabled(false);
            cmdAutoRosterPartial->setEnabled(false);
        }
        ShowReasons(CheckRoster(OpenWork(), OwnNumber(), false, true, true));
    });
}

void frmRoster::FormUnload() { CheckRoster(OpenWork(), OwnNumber(), false, true, true); }

void frmRoster::ShowAnew()
{
    const std::optional<int> current = NumberOf(CurrentEntry());
    ShowPlayer(false);
    for (PickList* list : lstPlayer)
        list->Choose(current);
}

void frmRoster::ShowPlayer(bool noCheck)
{
    Reporting(Machine(), " in ShowPlayer!", [&] {
        for (PickList* list : lstPlayer)
            list->Empty();
        statusCount = {};
        OwnTeam().ProtectedCount = 0;
        EachOfTeam(Players, OwnNumber(), [this](Player& player, int index) { ListPerson(player, index); });
        EachOfTeam(Goalies, OwnNumber(), [this](Goalie& keeper, int index) { ListPerson(keeper, index); });
        ShowListTotals();
        HidePlayerDetails();
        if (!noCheck)
            JudgeLists();
    });
}

template <class Person>
void frmRoster::ListPerson(Person& person, int index)
{
    const std::string name = person.Name.Trimmed();
    if (person.Status > status::Pro) {
        Machine().ShowBox(name + " has no status!", box::Warning);
        return;
    }
    const PersonId who = PersonIn<Person>(index);
    if (person.Status == status::Farm)
        KeepOffFarm(OpenWork(), who);
    ++statusCount[person.Status];
    if (person.Status > status::Farm && IsFit(person))
        ++statusCount[3];
    const int position = PositionOf(person);
    if (!who.IsGoalie && (position < position::Center || position > position::Defense)) {
        Machine().ShowBox(name + " has no position!", box::Warning);
        return;
    }
    if (chkPosition[position]->isChecked()) {
        const std::string mark = OfficeMark(OwnTeam(), PersonIn<Person>(static_cast<int>(person.Number)));
        const std::string text = EntryText(name, mark, static_cast<bool>(person.TradeAvailable));
        lstPlayer[person.Status]->Add(ToQString(text), EntryNumber(person.Number, position), AsideOf(who));
    }
    if (person.Protected)
        ++OwnTeam().ProtectedCount;
}

void frmRoster::JudgeLists()
{
    const RosterVerdict verdict = CheckRoster(OpenWork(), OwnNumber(), false, true, false);
    if (!verdict.Complete && verdict.Repaired)
        ShowPlayer(true);
    ShowVerdict(verdict);
    const Team& team = OwnTeam();
    lblProtectedTotal->setText(" Total Protected Players: " + QString::number(team.ProtectedCount));
    if (team.ProtectedCount > LeagueData.MaxProtected)
        Machine().ShowBox("Too Many Protected Players!", box::Information);
}

void frmRoster::ShowVerdict(const RosterVerdict& verdict)
{
    lblComplete->Tell(verdict.Complete ? "Roster Is Complete" : "Roster Is Incomplete", verdict.Complete);
    ShowReasons(verdict);
}

void frmRoster::ShowReasons(const RosterVerdict& verdict)
{
    QStringList lines = Findings(TextOf(OpenLeague, OwnNumber(), verdict));
    if (verdict.Cap && LeagueData.SalaryCapMode != 0)
        lines << LinesOf(TextOf(OpenLeague, Machine(), OwnNumber(), *verdict.Cap));
    txtReasons->Tell(lines.join('\n'));
    ShowPayroll();
}

// There is no bar for a payroll or a cap beyond 32 bits. Judging the payroll tells of it; a move, which does not judge
// it, goes on without a word.
void frmRoster::ShowPayroll()
{
    try {
        Payroll->Show(StandingAgainstCap(OpenLeague, OwnNumber()));
    } catch (const Failure&) {
        Payroll->hide();
    }
}

void frmRoster::ShowListTotals()
{
    const auto total = [this](int index, const char* words) {
        lblPlayer[index]->setText(words + QString::number(lstPlayer[index]->count()));
    };
    total(status::Pro, "Pro Player = ");
    total(status::Scratch, "Scratches Player = ");
    total(status::Farm, "Farm Player = ");
}

void frmRoster::HidePlayerDetails()
{
    for (QWidget* command : std::initializer_list<QWidget*>{
             cmdToFarm, cmdToPro, cmdToScratchesFromFarm, cmdToScratchesFromPro, cmdTradeAvailable, cmdCaptain,
             cmdAssistant, cmdRelease, cmdSendToWaiver, chkProtected, chkNoApplyRerate, chkNoTrade})
        command->setEnabled(false);
    Stats->HideRows();
    lblRelease->clear();
}

void frmRoster::lstPlayer_Click(int index)
{
    Reporting(Machine(), " in LstPlayer_Click!", [&] {
        if (ListEventGuard)
            return;
        const PickList* list = lstPlayer[index];
        const QListWidgetItem* current = list->currentItem();
        if (current != nullptr) {
            const int number = current->data(entry::NumberRole).toInt();
            SelectPerson(EntryPerson(number));
        }
        HidePlayerDetails();
        int chosen = 0;
        {
            const EventGuard guard;
            for (PickList* other : lstPlayer) {
                if (other == list)
                    continue;
                other->SetCurrentToNone();
                // The first entry keeps its choice.
                for (int row = 1; row < other->count(); ++row)
                    other->item(row)->setSelected(false);
            }
            chosen = list->ChosenCount();
        }
        if (chosen == 1) {
            if (current == nullptr)
                return;
            for (QPushButton* command : {cmdTradeAvailable, cmdCaptain, cmdAssistant, cmdRelease})
                command->setEnabled(true);
            if (LeagueData.WaiverAllowed)
                cmdSendToWaiver->setEnabled(true);
            if (DeadlineHasPassed(LeagueData))
                cmdSendToWaiver->setEnabled(false);
            for (QCheckBox* flag : {chkProtected, chkNoApplyRerate, chkNoTrade})
                flag->setEnabled(true);
            Stats->ShowPosition(ToQString(PositionName[EntryPosition(current->data(entry::NumberRole).toInt())]));
            ShowStats();
        }
        switch (index) {
        case status::Farm:
            cmdToScratchesFromFarm->setEnabled(true);
            break;
        case status::Scratch:
            cmdToFarm->setEnabled(true);
            cmdToPro->setEnabled(true);
            break;
        default:
            cmdToScratchesFromPro->setEnabled(true);
            break;
        }
    });
}

// Row by row, so that what breaks leaves the rows before it, and the overall's own box comes up over the ratings.
void frmRoster::ShowRatings(PersonId who)
{
    const int count = static_cast<int>(who.IsGoalie ? GoalieStatCount : PlayerStatCount);
    const auto show = [this](int row, const StatRow& shown) { Stats->ShowRow(row, shown); };
    if (who.IsGoalie)
        TellGoalieRatings(OpenLeague, who.Slot, count, show);
    else
        TellSkaterRatings(OpenLeague, who.Slot, count, show);
    const int overall = CalculateOverall(OpenLeague, Machine(), who);
    playerOverall = overall;
    if (LeagueData.ShowOverall)
        Stats->ShowRow(count + 1,
                       who.IsGoalie ? GoalieOverallRow(LeagueData, overall) : SkaterOverallRow(LeagueData, overall));
}

// Figures beyond 32 bits are told where they are judged; here nobody asked for them.
void frmRoster::ShowRelease(PersonId who)
{
    const auto money = [](long long amount) {
        return ToQString(Machine().CurrencyNoDecimals(static_cast<double>(amount)));
    };
    try {
        const Released released = WithRelease(OpenLeague, OwnNumber(), who);
        QString words = "With this release: rest of the contract " + money(released.RestOfContract) + ", payroll " +
                        money(released.After.Total) + " instead of " + money(released.Before.Total);
        if (released.After.Cap)
            words += ", cap " + money(*released.After.Cap);
        lblRelease->setText(words);
    } catch (const Failure&) {
        lblRelease->clear();
    }
}

template <class Person>
void frmRoster::ShowFlags(const Person& person)
{
    const EventGuard guard;
    chkProtected->setChecked(static_cast<bool>(person.Protected));
    chkNoTrade->setChecked(static_cast<bool>(person.NoTrade));
    chkNoApplyRerate->setChecked(static_cast<bool>(person.NoApplyRerate));
    if (person.NoTrade)
        cmdTradeAvailable->setEnabled(false);
}

void frmRoster::ShowStats()
{
    Reporting(Machine(), " in ShowStats!", [this] {
        const PersonId who = SelectedPerson();
        if (who.IsGoalie && !who.HasSlot()) {
            Machine().ShowIntegrityFailure();
            return;
        }
        OnPerson(OpenLeague, who, [&](const auto& person) {
            Stats->SetName(ToQString(person.Name.Trimmed()));
            ShowRatings(who);
            Stats->HoldAgainstPinned(who);
            ShowRelease(who);
            ShowFlags(person);
            if (who.IsGoalie || person.Status == status::Farm) {
                cmdCaptain->setEnabled(false);
                cmdAssistant->setEnabled(false);
            }
        });
    });
}

void frmRoster::Change(status::Number from, status::Number to, int id, int position, bool& done)
{
    done = false;
    Reporting(Machine(), " in Change!", [&] {
        if (position < position::Center || position > position::Goalie) {
            Machine().ShowBox("Unable to extract position information!", box::Warning);
            return;
        }
        const PersonId who{.IsGoalie = position == position::Goalie, .Slot = id};
        if (!MoveOnRoster(OpenWork(), OwnNumber(), who, from, to, statusCount))
            return;
        for (QPushButton* move : {cmdToFarm, cmdToPro, cmdToScratchesFromFarm, cmdToScratchesFromPro})
            move->setEnabled(false);
        ShowVerdict(CheckRoster(OpenWork(), OwnNumber(), false, false, false));
        HidePlayerDetails();
        done = true;
    });
}

void frmRoster::lstPlayer_DblClick(int index)
{
    Reporting(Machine(), " in lstPlayer_DblClick!", [&] {
        const QListWidgetItem* current = lstPlayer[index]->currentItem();
        if (current == nullptr)
            return;
        const int number = current->data(entry::NumberRole).toInt();
        SelectPerson(EntryPerson(number));
        ViewerReturnMode = return_mode::Roster;
        Open(Window::EditPlayer);
    });
}

void frmRoster::chkPosition_Click(int /*position*/) { ShowPlayer(false); }

void frmRoster::cmdExit_Click() { Unload(); }

} // namespace dravik
