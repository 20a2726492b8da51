#include "desk/Offers.h"
#include "desk/Ranking.h"
#include "machine/Reporting.h"
#include "screens/panels/ChangeList.h"
#include "screens/panels/Layouts.h"
#include "screens/panels/PersonCards.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "screens/Stage.h"
#include "screens/team/EveningRows.h"
#include "screens/team/frmTeam.h"
#include "session/OpenChanges.h"
#include "session/OpenMarket.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

#include <algorithm>
#include <QGroupBox>
#include <QShortcut>

// The evening on the team screen: how far it is, and what the last client file changed.
namespace dravik {

namespace {

constexpr int MostChangesShown = 60; // as many as any window is high

struct TaskFile {
    EveningTask Task;
    SavedFile File;
};
constexpr TaskFile Files[] = {{EveningTask::Roster, SavedFile::Lines},    {EveningTask::Lines, SavedFile::Lines},
                              {EveningTask::FarmLines, SavedFile::Lines}, {EveningTask::Tickets, SavedFile::Lines},
                              {EveningTask::Offers, SavedFile::Offers},   {EveningTask::Ranking, SavedFile::Ranking}};

EveningRows::Saved SavedWords(EveningTask task, int team)
{
    const auto* file =
        std::find_if(std::begin(Files), std::end(Files), [task](const TaskFile& row) { return row.Task == task; });
    const FileState state = StateOf(file->File, team);
    return {.Words = ToQString(state.Words()), .IsUnsaved = state.UnsavedSince.has_value()};
}

// What stands there while the team was the last to change it, else what was kept for it.
OnTheMarket MarketOf(int team)
{
    const KeptMarket& kept = KeptWork();
    OnTheMarket market;
    if (const auto offers = kept.Offers.find(team); offers != kept.Offers.end())
        market.Offers = static_cast<int>(offers->second.size());
    if (kept.OffersBy == team)
        market.Offers = std::max(market.Offers, static_cast<int>(WrittenOffers(OpenMarket().Offers).size()));
    const auto count = [](const DraftRanking& ranking) {
        return static_cast<int>(std::count_if(ranking.begin(), ranking.end(), [](long long id) { return id != 0; }));
    };
    if (const auto ranking = kept.Rankings.find(team); ranking != kept.Rankings.end())
        market.Ranked = count(ranking->second);
    if (kept.RankingBy == team)
        market.Ranked = std::max(market.Ranked, count(OpenMarket().Ranking));
    return market;
}

// The differences as the list shows them, for the team whose screen it is.
std::vector<Difference> ToldHere() { return ChangesToldTo(OwnNumber(), true); }

std::optional<PersonId> PersonOfEntry(int entry)
{
    const auto told = ToldHere();
    if (entry < 0 || static_cast<std::size_t>(entry) >= told.size())
        return std::nullopt;
    return told[static_cast<std::size_t>(entry)].Who;
}

} // namespace

QWidget* frmTeam::MakeEveningColumn()
{
    auto* group = new QGroupBox("This Evening", this);
    group->setObjectName("grpEvening");
    QVBoxLayout* rows = MakeColumn(group);
    SetGroupMargins(rows);
    evening =
        new EveningRows([this](EveningTask task,
                               const QString& name) { return MakeCommand(name, "Open", [this, task] { GoTo(task); }); },
                        group);
    rows->addWidget(evening);

    changes = new ChangeList("Changes", MostChangesShown, this);
    changes->WhenOpened([this](int entry) { OpenChanged(entry); });
    (new PersonCards(this))->Serve(changes->List(), [](int entry) -> std::optional<CardWords> {
        const auto who = PersonOfEntry(entry);
        return who ? CardOf(*who, SignsOf(OpenLeague, *who, OwnNumber())) : std::nullopt;
    });
    // Beside the way of the tab key, which stays what it is.
    changes->List()->setFocusPolicy(Qt::ClickFocus);
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { GoAround(); });
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel, Margin);
    column->addWidget(group);
    column->addWidget(changes, 1);
    column->addStretch(0);
    return panel;
}

void frmTeam::GoAround()
{
    const QWidget* here = focusWidget();
    if (here != nullptr && changes->isAncestorOf(here))
        CmdRoster->setFocus(Qt::ShortcutFocusReason);
    else if (here == nullptr || !evening->isAncestorOf(here))
        evening->Enter();
    else if (changes->isVisible())
        changes->List()->setFocus(Qt::ShortcutFocusReason);
    else
        CmdRoster->setFocus(Qt::ShortcutFocusReason);
}

void frmTeam::ShowEvening()
{
    RunEvent("ShowEvening", [this] {
        if (!TeamTable::Has(CurrentTeam))
            return;
        const auto scratch = MakeTables();
        for (const EveningItem& item :
             LookAtEvening(OpenLeague, Machine(), OwnNumber(), MarketOf(OwnNumber()), *scratch))
            evening->Show(item, SavedWords(item.Task, OwnNumber()));
    });
}

void frmTeam::ShowChanges()
{
    RunEvent("ShowChanges", [this] {
        const ChangesSince& since = OpenChanges();
        const QString heading =
            since.FileDate ? "Since the file of " + ToQString(Machine().LongDate(*since.FileDate)) : QString();
        changes->Tell(heading, EntriesOf(OpenLeague, ToldHere(), OwnNumber()));
    });
}

void frmTeam::GoTo(EveningTask task)
{
    switch (task) {
    case EveningTask::Roster:
        CmdRoster_Click();
        break;
    case EveningTask::Lines:
        cmdLines_Click();
        break;
    case EveningTask::FarmLines:
        cmdFarmLines_Click();
        break;
    case EveningTask::Tickets:
        cmdTicketArena_Click();
        break;
    case EveningTask::Offers:
        Open(Window::FreeAgent);
        break;
    case EveningTask::Ranking:
        Open(Window::Draft);
        break;
    }
}

// Of other teams' people the card tells what everybody may know; their records hold more.
void frmTeam::OpenChanged(int entry)
{
    RunEvent("OpenChanged", [this, entry] {
        const auto who = PersonOfEntry(entry);
        if (!who || !who->HasSlot())
            return;
        const bool isForHim = OnPerson(OpenLeague, *who, [](const auto& person) {
            return person.InUse && (person.Team == 0 || person.Team == OwnNumber());
        });
        if (!isForHim)
            return;
        SelectPerson(*who);
        ViewerReturnMode = return_mode::Office;
        Open(Window::EditPlayer);
    });
}

} // namespace dravik
