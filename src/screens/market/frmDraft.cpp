#include "screens/market/frmDraft.h"

#include "desk/DraftCandidates.h"
#include "desk/Password.h"
#include "league/PersonId.h"
#include "machine/Reporting.h"
#include "screens/BehindWait.h"
#include "screens/panels/TellTakenIn.h"
#include "screens/platform/CodePage.h"
#include "session/OpenHistory.h"
#include "session/OpenMarket.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

#include <algorithm>
#include <utility>

namespace dravik {

void frmDraft::FormLoad()
{
    // A ranking of his own that is given up is a step, so that the way back leads to it.
    const auto begin = [this] { ranking = {}; };
    if (std::exchange(KeptWork().RankingBy, OwnNumber()) == OwnNumber())
        RunStep("Begin a new draft list", begin);
    else if (ranking[0] != 0)
        GiveUpWorkOfOthers(OwnNumber(), begin);
    Reporting(Machine(), " in FormLoad frmFantasyEntryDraftClient!", [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            Machine().ShowIntegrityFailure();
            return;
        }
        DraftType = DraftTypeOf(LeagueData);
        SetTitle(ToQString(std::string(ProgramTitle) + " - " + DraftType + " Client"));
        lblTeam->setText("Draft List For : " + ToQString(OwnTeam().Name.Trimmed()));
        ShowPlayer();
    });
    ShowKept();
}

void frmDraft::FormUnload()
{
    if (ranking[0] == 0)
        return;
    KeptWork().Rankings[OwnNumber()] = ranking;
    NoteKept(SavedFile::Ranking, OwnNumber());
}

void frmDraft::ShowKept()
{
    const auto kept = KeptWork().Rankings.find(OwnNumber());
    const bool has = kept != KeptWork().Rankings.end();
    if (has) {
        const auto count =
            std::count_if(kept->second.begin(), kept->second.end(), [](long long id) { return id != 0; });
        cmdBringBack->setText(QString("Bring &Back List of %1").arg(count));
    }
    cmdBringBack->setVisible(has && ranking[0] == 0);
}

void frmDraft::ShowPlayer()
{
    Reporting(Machine(), " in Show Player!", [this] {
        lstPlayers->clear();
        PositionFilter shown;
        for (int position = 1; position <= PositionFilter::last; ++position)
            shown[position] = chkPosition[position]->isChecked();
        EachDraftCandidate(OpenLeague, shown, [this](const DraftCandidate& candidate) {
            const auto& overall = candidate.Overall;
            lstPlayers->Add(ToQString(candidate.Text), candidate.Id,
                            overall ? QStringList{QString::number(*overall)} : QStringList{});
        });
        if (IsEntryDraftAhead(LeagueData))
            for (QCheckBox* filter : chkPosition)
                filter->setEnabled(false);
        cmdChoose->setEnabled(lstPlayers->count() > 0);
    });
}

void frmDraft::PlaceOffer()
{
    Reporting(Machine(), " in PlaceOffer!", [this] {
        lstDraftList->clear();
        EachRanked(OpenLeague, ranking, [this](int id, const std::string& name) {
            lstDraftList->Add(ToQString(name), id, {QString::number(lstDraftList->count() + 1)});
        });
        lblTotal->setText(QString::number(lstDraftList->count()) + " Players List");
        for (QPushButton* command : {cmdSaveToFile, cmdUp, cmdDown, cmdRemove})
            command->setEnabled(lstDraftList->count() >= 1);
    });
    ShowKept();
}

void frmDraft::ShowAnew()
{
    const int row = lstDraftList->currentRow();
    PlaceOffer();
    lstDraftList->setCurrentRow(std::min(row, lstDraftList->count() - 1));
}

std::function<void()> frmDraft::AsListStep(const QString& words, const EntryList* list, std::function<void()> change)
{
    const auto withName = [words, list] {
        const QListWidgetItem* chosen = list->Chosen();
        return chosen != nullptr ? words + ": " + chosen->text() : words;
    };
    return AsStep(withName, std::move(change));
}

void frmDraft::chkPosition_Click(int /*position*/) { ShowPlayer(); }

void frmDraft::cmdChoose_Click()
{
    Reporting(Machine(), " in cmdChoose!", [this] {
        if (RankLast(OpenWork(), ranking, NumberOf(lstPlayers->Chosen())))
            PlaceOffer();
    });
}

std::optional<int> frmDraft::ChosenRank() const
{
    const QListWidgetItem* chosen = lstDraftList->Chosen();
    if (chosen == nullptr)
        return std::nullopt;
    return lstDraftList->row(chosen);
}

void frmDraft::cmdRemove_Click()
{
    Reporting(Machine(), " in cmdRemove!", [this] {
        if (Unrank(OpenWork(), ranking, ChosenRank()))
            PlaceOffer();
    });
}

void frmDraft::MoveChosen(RankStep step, QPushButton* command)
{
    const auto rank = MoveRank(OpenWork(), ranking, ChosenRank(), step, lstDraftList->count());
    if (!rank)
        return;
    PlaceOffer();
    lstDraftList->setCurrentRow(*rank);
    command->setFocus();
}

void frmDraft::cmdUp_Click()
{
    Reporting(Machine(), " in cmdUp!", [this] { MoveChosen(RankStep::Up, cmdUp); });
}

void frmDraft::cmdDown_Click()
{
    Reporting(Machine(), " in cmdDown!", [this] { MoveChosen(RankStep::Down, cmdDown); });
}

void frmDraft::lstDraftList_Dropped(int from, int to)
{
    const int rank = MoveRankTo(ranking, from, to);
    PlaceOffer();
    lstDraftList->setCurrentRow(rank);
}

void frmDraft::cmdSearch_Click()
{
    Reporting(Machine(), " in cmdSearch!", [this] {
        const int found = search.Ask(*lstPlayers);
        if (found >= 0)
            lstPlayers->setCurrentRow(found);
    });
}

void frmDraft::cmdFindNext_Click()
{
    if (!search.HasAnswer()) {
        cmdSearch_Click();
        return;
    }
    Reporting(Machine(), " in cmdFindNext!", [this] {
        const int found = search.Next(*lstPlayers);
        if (found >= 0)
            lstPlayers->setCurrentRow(found);
        lstPlayers->setFocus(Qt::OtherFocusReason);
    });
}

void frmDraft::OpenViewer(int id)
{
    SelectPerson(PersonOf(id));
    ViewerReturnMode = return_mode::Draft;
    Open(Window::EditPlayer);
}

void frmDraft::lstPlayers_DblClick()
{
    if (const QListWidgetItem* chosen = lstPlayers->Chosen())
        OpenViewer(chosen->data(entry::NumberRole).toInt());
}

void frmDraft::lstDraftList_DblClick()
{
    if (const QListWidgetItem* chosen = lstDraftList->Chosen())
        OpenViewer(static_cast<int>(ranking[lstDraftList->row(chosen)]));
}

void frmDraft::cmdSaveToFile_Click()
{
    Reporting(Machine(), " in cmdSaveToFile!", [this] {
        if (!MaySaveRanking(OpenWork(), lstDraftList->count()) || !CheckPassword(OpenLeague, Machine(), OwnNumber()))
            return;
        std::optional<std::string> saved;
        BehindWait([&] {
            saved = SaveRanking(OpenLeague, OpenFiles(), OwnNumber(), ranking, DraftType);
            if (saved)
                NoteSaved(SavedFile::Ranking, OwnNumber(), DraftFilePath(OpenLeague, Machine(), OwnNumber()));
            return saved.has_value();
        });
        if (saved)
            Machine().ShowBox(*saved, box::Information);
    });
    ShowHistory();
}

void frmDraft::cmdBringBack_Click()
{
    Reporting(Machine(), " in cmdBringBack!", [this] {
        TellLeftOut(TakeInRanking(OpenLeague, ranking, KeptWork().Rankings[OwnNumber()]));
        PlaceOffer();
    });
}

void frmDraft::cmdLoad_Click()
{
    ReportingUnlessCancelled(Machine(), " in cmdLoad!", [this] {
        const std::string path =
            Machine().OpenFileDialog(Machine().ProgramFolder(), "DRVK Draft File (*.dvd) |*.dvd|All Files (*.*) | *.*");
        TellLoaded(LoadBehindWait([&] { return LoadRanking(OpenLeague, OpenFiles(), OwnNumber(), path, ranking); }));
        PlaceOffer();
    });
}

void frmDraft::cmdExit_Click() { Unload(); }

} // namespace dravik
