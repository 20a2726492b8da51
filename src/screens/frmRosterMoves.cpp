#include "league/Arithmetic.h"
#include "league/Platform.h"
#include "screens/frmRoster.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "session/Routines.h"

#include <algorithm>
#include <cmath>

// The commands of the roster screen: the moves between the lists, waivers, release, captaincy, flags and automatic rosters.
namespace dravik {

namespace {

Team& OwnTeam() { return Teams[CurrentTeam]; }

int OwnNumber() { return static_cast<int>(CurrentTeam); }

// The person chosen on the screen.
template <class Visit>
void WithSelected(Visit&& visit)
{
    WithPerson(SelectedIsGoalie, SelectedPlayer, visit);
}

RosterChange& SelectedChange() { return ChangeOf(SelectedIsGoalie, SelectedPlayer); }

int SelectedId() { return CommonId(SelectedIsGoalie, SelectedPlayer); }

std::string SelectedName()
{
    std::string name;
    WithSelected([&](const auto& person) { name = person.Name.Trimmed(); });
    return name;
}

int SelectedPosition()
{
    return SelectedIsGoalie ? position::Goalie : static_cast<int>(Players[SelectedPlayer].Position);
}

bool DeadlineHasPassed() { return LeagueData.TradeDeadlinePassed && LeagueData.TradeDeadlineInForce; }

void SetTradeAvailable(bool available)
{
    WithSelected([&](auto& person) { person.TradeAvailable = available; });
    SelectedChange().TradeAvailable = available;
}

// How many percent of the rest of his contract a released person is paid, as the general manager says it.
int AskPercent()
{
    const std::string kind = SelectedIsGoalie ? "goaler" : "player";
    const std::string answer = Machine().InputBox(
        "How much % does team paid the " + kind + " for the rest of is contract?", std::string(ProgramTitle), "0");
    constexpr int most = 100;
    return std::clamp(static_cast<int>(RoundToInt16(LeadingNumber(answer))), 0, most);
}

// What a contract is still worth: a season that has begun counts by the games left in it.
long long RestOfContract(long long contract, long long salary)
{
    const Team& team = OwnTeam();
    if (team.SeasonGames < 1)
        return Limit32(contract * salary);
    const auto seasons = static_cast<double>(Limit32((contract - 1) * salary));
    const auto gamesLeft = static_cast<double>(team.SeasonGames - team.GamesPlayed);
    return RoundToInt32(seasons + static_cast<double>(salary) * gamesLeft / static_cast<double>(team.SeasonGames));
}

} // namespace

void frmRoster::MoveEntry(int from, int to, int row)
{
    lstPlayer[to]->TakeFrom(*lstPlayer[from], row);
    ShowListTotals();
}

void frmRoster::MoveChosen(int from, int to, Permission (frmRoster::*mayMove)())
{
    PickList* list = lstPlayer[from];
    for (int row = 0; row < list->count(); ++row) {
        if (!list->IsChosen(row))
            continue;
        const Permission permission = (this->*mayMove)();
        if (permission == Permission::Ended)
            break;
        if (permission == Permission::Refused)
            continue;
        const int number = list->item(row)->data(entry::NumberRole).toInt();
        bool done = false;
        Change(from, to, EntryId(number), EntryPosition(number), done);
        if (done)
            MoveEntry(from, to, row--); // the next entry stands here now
    }
    list->setFocus(); // where the next choice is made, since the command may have closed
}

// The overall of the person shown last decides for everybody chosen.
frmRoster::Permission frmRoster::MayGoToFarm()
{
    if (PlayerOverall > LeagueData.FarmMaxOverall) {
        ShowBox("Player Overall is too high to be sent to farm!", box::Warning);
        return Permission::Refused;
    }
    if (DeadlineHasPassed()) {
        ShowBox("Trade Deadline is Passed!", box::Information);
        return Permission::Ended;
    }
    return Permission::Given;
}

frmRoster::Permission frmRoster::MayLeaveFarm()
{
    if (StatusCount[3] >= LeagueData.MaxProPlayers) {
        ShowBox("Maximum Pro Players Limit Reached!", box::Warning);
        return Permission::Ended;
    }
    return Permission::Given;
}

void frmRoster::cmdToFarm_Click()
{
    Reporting(" in cmdToFarm!", [this] { MoveChosen(status::Scratch, status::Farm, &frmRoster::MayGoToFarm); });
}

void frmRoster::cmdToPro_Click()
{
    // Without "!": the ending by which general managers know this command's failures.
    Reporting(" in cmdToPro", [this] { MoveChosen(status::Scratch, status::Pro, &frmRoster::MayMoveFreely); });
}

void frmRoster::cmdToScratchesFromPro_Click()
{
    Reporting(" in cmdToScratchesFromPro!",
              [this] { MoveChosen(status::Pro, status::Scratch, &frmRoster::MayMoveFreely); });
}

void frmRoster::cmdToScratchesFromFarm_Click()
{
    Reporting(" in cmdToScratchesFromFarm!",
              [this] { MoveChosen(status::Farm, status::Scratch, &frmRoster::MayLeaveFarm); });
}

void frmRoster::cmdSendToWaiver_Click()
{
    Reporting(" in cmdSendToWaiver!", [this] {
        if (DeadlineHasPassed()) {
            ShowBox("Trade Deadline is Passed!", box::Information);
            return;
        }
        long long standing = status::Farm;
        WithSelected([&](const auto& person) { standing = person.Status; });
        if (standing == status::Pro) {
            const int position = SelectedPosition();
            bool done = false;
            Change(status::Pro, status::Scratch, static_cast<int>(SelectedPlayer), position, done);
            if (done) {
                const int row = lstPlayer[status::Pro]->RowOf(EntryNumber(SelectedPlayer, position));
                if (row >= 0)
                    MoveEntry(status::Pro, status::Scratch, row);
            } else {
                ShowIntegrityFailure(); // and he goes to waivers from where he stands
            }
        }
        MarkWaived(OwnNumber(), SelectedId());
        ShowBox(SelectedName() + " was sent to Waiver.", box::Information);
    });
}

template <class Person>
void frmRoster::Release(Person& person)
{
    const std::string name = person.Name.Trimmed();
    if (ShowBox("Are you sure you want to release " + name + "?", box::YesNo) != button::Yes)
        return;
    const int percent = AskPercent();
    const auto rest = static_cast<double>(RestOfContract(person.Contract, person.Salary));
    const double buyOut = percent * rest / 100;
    Team& team = OwnTeam();
    team.Cash = RoundToInt32(static_cast<double>(team.Cash) - buyOut);
    WipePlayerFromTeamLines(OwnNumber(), SelectedId());
    const std::string news = name + " was released by " + team.Name.Trimmed() + " for " + Machine().Currency(buyOut);
    LeagueNews(news);
    TeamNews(OwnNumber(), news);
    person.Team = 0;
    person.Contract = 0;
    person.NoApplyRerate = false;
    person.Protected = false;
    person.TradeAvailable = false;
    person.NoTrade = false;
    ShowPlayer(false);
}

void frmRoster::cmdRelease_Click()
{
    Reporting(" in cmdRelease!", [this] {
        WithSelected([this](auto& person) { Release(person); });
        Modified = true;
    });
}

void frmRoster::cmdCaptain_Click()
{
    Reporting(" in cmdCaptain!", [this] {
        if (SelectedIsGoalie) {
            ShowBox("Goalie cannot be Captain!", box::Information);
            return;
        }
        const Player& player = Players[SelectedPlayer];
        if (player.Status == status::Farm) {
            ShowBox("Farm Player cannot be Captain!", box::Information);
            return;
        }
        Team& team = OwnTeam();
        for (Int16& assistant : team.Assistant)
            if (assistant == SelectedPlayer)
                assistant = 0;
        team.Captain = SelectedPlayer;
        const std::string news = player.Name.Trimmed() + " has been selected as captain";
        ShowBox(news + " for " + team.Name.Trimmed() + ".", box::Information);
        TeamNews(OwnNumber(), news + ".");
        ShowPlayer(false);
        Modified = true;
    });
}

void frmRoster::cmdAssistant_Click()
{
    Reporting(" in cmdAssistant!", [this] {
        if (SelectedIsGoalie) {
            ShowBox("Goalie cannot be Assistant!", box::Information);
            return;
        }
        const Player& player = Players[SelectedPlayer];
        if (player.Status == status::Farm) {
            ShowBox("Farm Player cannot be Assistant!", box::Information);
            return;
        }
        const Team& team = OwnTeam();
        const std::string name = player.Name.Trimmed();
        const std::string ofTeam = " for " + team.Name.Trimmed() + ".";
        if (team.Assistant[1] == SelectedPlayer || team.Assistant[2] == SelectedPlayer) {
            ShowBox(name + " is already an assistant" + ofTeam, box::Information);
            return;
        }
        if (team.Captain == SelectedPlayer) {
            ShowBox(name + " is already a captain" + ofTeam, box::Information);
            return;
        }
        const int answer =
            ShowBox("Do you want " + name + " to be assistant #1 (Yes) or assistant #2 (No)?", box::YesNoCancel);
        if (answer == button::Yes)
            MakeAssistant(1, name);
        else if (answer == button::No)
            MakeAssistant(2, name);
        ShowPlayer(false);
        Modified = true;
    });
}

void frmRoster::MakeAssistant(int slot, const std::string& name)
{
    Team& team = OwnTeam();
    team.Assistant[slot] = SelectedPlayer;
    ShowBox(name + " has been selected as assistant #" + std::to_string(slot) + " for " + team.Name.Trimmed() + ".",
            box::Information);
    TeamNews(OwnNumber(), name + " has been selected as assistant.");
}

QListWidgetItem* frmRoster::CurrentEntry()
{
    for (const PickList* list : lstPlayer)
        if (list->currentItem() != nullptr)
            return list->currentItem();
    return nullptr;
}

void frmRoster::cmdTradeAvailable_Click()
{
    Reporting(" in cmdTradeAvailable!", [this] {
        bool noTrade = false;
        bool isAvailable = false;
        WithSelected([&](const auto& person) { noTrade = static_cast<bool>(person.NoTrade); });
        if (noTrade) {
            SetTradeAvailable(false);
            cmdTradeAvailable->setEnabled(false);
            ShowIntegrityFailure();
        }
        WithSelected([&](const auto& person) { isAvailable = static_cast<bool>(person.TradeAvailable); });
        QListWidgetItem* current = CurrentEntry();
        if (current != nullptr) {
            // Here the star follows whatever stands there without a blank; a list made anew sets it apart from a mark.
            const std::string mark = OfficeMark(OwnTeam(), SelectedIsGoalie, SelectedPlayer);
            current->setText(isAvailable ? ToQString(SelectedName() + mark) : current->text() + "*");
        }
        SetTradeAvailable(!isAvailable);
        Modified = true;
    });
}

void frmRoster::chkProtected_Click()
{
    if (ListEventGuard)
        return;
    Reporting(" in chkProtected!", [this] {
        Team& team = OwnTeam();
        const auto store = [](bool isProtected) {
            WithSelected([&](auto& person) { person.Protected = isProtected; });
            SelectedChange().Protected = isProtected;
        };
        if (!chkProtected->isChecked()) {
            team.ProtectedCount = std::max(0LL, team.ProtectedCount - 1);
            store(false);
        } else if (team.ProtectedCount >= LeagueData.MaxProtected) {
            ShowBox("Maximum Number of Protected Players Reached!", box::Information);
        } else {
            ++team.ProtectedCount;
            store(true);
        }
        lblProtectedTotal->setText(" Total Protected Players: " + QString::number(team.ProtectedCount));
        Modified = true;
    });
}

void frmRoster::chkNoApplyRerate_Click()
{
    if (ListEventGuard)
        return;
    WithSelected([this](auto& person) { person.NoApplyRerate = chkNoApplyRerate->isChecked(); });
    Modified = true;
}

void frmRoster::chkNoTrade_Click()
{
    if (ListEventGuard)
        return;
    const bool noTrade = chkNoTrade->isChecked();
    bool isAvailable = false;
    WithSelected([&](const auto& person) { isAvailable = static_cast<bool>(person.TradeAvailable); });
    if (noTrade && isAvailable)
        cmdTradeAvailable_Click();
    WithSelected([&](auto& person) { person.NoTrade = noTrade; });
    cmdTradeAvailable->setEnabled(!noTrade);
    Modified = true;
}

void frmRoster::cmdAutoRoster_Click()
{
    Reporting(" in cmdAutoRoster!", [this] {
        AutoRoster(OwnNumber(), true, false);
        ShowPlayer(false);
    });
}

void frmRoster::cmdAutoRosterPartial_Click()
{
    Reporting(" in cmdAutoRosterPartial!", [this] {
        AutoRoster(OwnNumber(), true, true);
        ShowPlayer(false);
    });
}

} // namespace dravik
