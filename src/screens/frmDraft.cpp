#include "screens/frmDraft.h"

#include "league/Platform.h"
#include "screens/BehindWait.h"
#include "screens/panels/NameSearch.h"
#include "screens/platform/CodePage.h"
#include "session/Routines.h"

#include <algorithm>
#include <utility>

namespace dravik {

namespace {

int OwnNumber() { return static_cast<int>(CurrentTeam); }

bool EntryDraftIsAhead() { return LeagueData.EntryDraft && LeagueData.EntryDraftDone == 0; }

std::string NameAndPosition(const std::string& name, long long position)
{
    return name + " (" + std::string(PositionName[position]) + ")";
}

// How the ranking names somebody.
std::string RankedName(long long id)
{
    if (id > ProspectOffset)
        return Prospects[id - ProspectOffset].Name.Trimmed();
    return OnPerson(OpenLeague, PersonOf(static_cast<int>(id)),
                    [](const auto& person) { return NameAndPosition(person.Name.Trimmed(), PositionOf(person)); });
}

// What is drawn beside a free agent.
QStringList AsideOf(int position, int slot)
{
    if (!LeagueData.ShowOverall)
        return {};
    return {QString::number(CalculateOverall(position, slot))};
}

} // namespace

void frmDraft::FormLoad()
{
    Reporting(" in FormLoad frmFantasyEntryDraftClient!", [this] {
        CentreOnScreen();
        if (!TeamTable::Has(CurrentTeam)) {
            ShowIntegrityFailure();
            return;
        }
        if (LeagueData.FantasyDraft)
            DraftType = "Fantasy Draft";
        if (EntryDraftIsAhead())
            DraftType = "Entry Draft";
        SetTitle(ToQString(std::string(ProgramTitle) + " - " + DraftType + " Client"));
        lblTeam->setText("Draft List For : " + ToQString(Teams[CurrentTeam].Name.Trimmed()));
        ShowPlayer();
    });
}

void frmDraft::ShowPlayer()
{
    Reporting(" in Show Player!", [this] {
        lstPlayers->clear();
        if (LeagueData.FantasyDraft)
            ListFreeAgents();
        if (EntryDraftIsAhead())
            ListProspects();
        cmdChoose->setEnabled(lstPlayers->count() > 0);
    });
}

void frmDraft::ListFreeAgents()
{
    for (int slot = 1; slot <= PlayerTable::last; ++slot) {
        const Player& player = Players[slot];
        const auto position = static_cast<int>(player.Position);
        const bool isCandidate =
            player.InUse && player.Team == 0 && position >= position::Center && position <= position::Defense;
        if (isCandidate && chkPosition[position]->isChecked())
            lstPlayers->Add(ToQString(NameAndPosition(player.Name.Trimmed(), position)),
                            static_cast<int>(player.Number), AsideOf(position, slot));
    }
    for (int slot = 1; slot <= GoalieTable::last; ++slot) {
        const Goalie& keeper = Goalies[slot];
        if (keeper.InUse && keeper.Team == 0 && chkPosition[position::Goalie]->isChecked())
            lstPlayers->Add(ToQString(NameAndPosition(keeper.Name.Trimmed(), position::Goalie)),
                            PersonIn<Goalie>(static_cast<int>(keeper.Number)).CommonId(),
                            AsideOf(position::Goalie, slot));
    }
}

void frmDraft::ListProspects()
{
    for (QCheckBox* filter : chkPosition)
        filter->setEnabled(false);
    for (int slot = 1; slot <= ProspectTable::last; ++slot)
        if (!RemoveSpaces(Prospects[slot].Name.Raw()).empty())
            lstPlayers->Add(ToQString(Prospects[slot].Name.Trimmed()), ProspectOffset + slot);
}

void frmDraft::PlaceOffer()
{
    Reporting(" in PlaceOffer!", [this] {
        lstDraftList->clear();
        for (const Int16& id : DraftList)
            if (id != 0)
                lstDraftList->Add(ToQString(RankedName(id)), static_cast<int>(id),
                                  {QString::number(lstDraftList->count() + 1)});
        lblTotal->setText(QString::number(lstDraftList->count()) + " Players List");
        for (QPushButton* command : {cmdSaveToFile, cmdUp, cmdDown, cmdRemove})
            command->setEnabled(lstDraftList->count() >= 1);
    });
}

void frmDraft::chkPosition_Click(int /*position*/) { ShowPlayer(); }

void frmDraft::cmdChoose_Click()
{
    Reporting(" in cmdChoose!", [this] {
        const QListWidgetItem* chosen = lstPlayers->Chosen();
        if (chosen == nullptr) {
            ShowBox("No Player Select!", box::Warning);
            return;
        }
        const int id = chosen->data(entry::NumberRole).toInt();
        if (id < 1)
            return;
        if (std::find(DraftList.begin(), DraftList.end(), id) == DraftList.end()) {
            auto* const free = std::find(DraftList.begin(), DraftList.end(), 0);
            if (free != DraftList.end())
                *free = id;
        }
        PlaceOffer();
    });
}

// In a full list the last rank has nobody behind it to take over, and stays.
void frmDraft::cmdRemove_Click()
{
    Reporting(" in cmdRemove!", [this] {
        const QListWidgetItem* chosen = lstDraftList->Chosen();
        if (chosen == nullptr) {
            ShowBox("No Player Select!", box::Warning);
            return;
        }
        for (long long rank = lstDraftList->row(chosen); rank < DraftRanking::last; ++rank)
            DraftList[rank] = DraftList[rank + 1];
        PlaceOffer();
    });
}

bool frmDraft::SwapWithNeighbour(int rank, int step)
{
    if (DraftList[rank + step] == 0)
        return false;
    std::swap(DraftList[rank], DraftList[rank + step]);
    return true;
}

void frmDraft::MoveChosen(int step, QPushButton* command)
{
    const QListWidgetItem* chosen = lstDraftList->Chosen();
    if (chosen == nullptr) {
        ShowBox("No Player Select!", box::Warning);
        return;
    }
    const int rank = lstDraftList->row(chosen);
    const int edge = step < 0 ? 0 : lstDraftList->count() - 1;
    if (rank == edge) {
        ShowBox("This player can be move!", box::Warning);
        return;
    }
    if (!SwapWithNeighbour(rank, step))
        return;
    PlaceOffer();
    lstDraftList->setCurrentRow(rank + step);
    command->setFocus();
}

void frmDraft::cmdUp_Click()
{
    Reporting(" in cmdUp!", [this] { MoveChosen(-1, cmdUp); });
}

void frmDraft::cmdDown_Click()
{
    Reporting(" in cmdDown!", [this] { MoveChosen(1, cmdDown); });
}

void frmDraft::lstDraftList_Dropped(int from, int to)
{
    const int step = to < from ? -1 : 1;
    int rank = from;
    while (rank != to && SwapWithNeighbour(rank, step))
        rank += step;
    PlaceOffer();
    lstDraftList->setCurrentRow(rank);
}

void frmDraft::cmdSearch_Click()
{
    Reporting(" in cmdSearch!", [this] {
        const int found = SearchPlayer(*lstPlayers);
        if (found >= 0)
            lstPlayers->setCurrentRow(found);
    });
}

void frmDraft::OpenViewer(int id)
{
    SelectPerson(PersonOf(id));
    ViewerReturnMode = 4;
    Open("EditPlayer");
}

void frmDraft::lstPlayers_DblClick()
{
    if (const QListWidgetItem* chosen = lstPlayers->Chosen())
        OpenViewer(chosen->data(entry::NumberRole).toInt());
}

void frmDraft::lstDraftList_DblClick()
{
    if (const QListWidgetItem* chosen = lstDraftList->Chosen())
        OpenViewer(static_cast<int>(DraftList[lstDraftList->row(chosen)]));
}

void frmDraft::cmdSaveToFile_Click()
{
    Reporting(" in cmdSaveToFile!", [this] {
        if (lstDraftList->count() == 0) {
            ShowBox("Your list is empty!", box::Warning);
            return;
        }
        if (!CheckPassword(OwnNumber()))
            return;
        std::string target;
        const bool saved = BehindWait([&] {
            target = DraftFilePath(OwnNumber());
            return WriteDraftFile(OwnNumber(), DraftList, target);
        });
        if (saved)
            ShowBox(DraftType + " File save for " + Teams[CurrentTeam].Name.Trimmed() + " succesfully at" +
                        std::string(LineBreak) + target,
                    box::Information);
    });
}

void frmDraft::cmdExit_Click() { Unload(); }

} // namespace dravik
