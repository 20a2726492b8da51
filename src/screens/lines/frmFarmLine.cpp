#include "screens/lines/frmFarmLine.h"

#include "desk/LineCandidates.h"
#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

namespace dravik {

namespace {

// The id under which the list carries the placeholders of record 0.
constexpr int Placeholder = 32000;

constexpr LinesKind Farm{
    .Name = "frmFarmLine",
    .Side = Side::Farm,
    .NameOf = [](const Team& team) { return team.Farm.Name.Trimmed(); },
    .AbbreOf = [](const Team& team) { return team.Farm.Abbre.Trimmed(); },
    .OnLoad = " in FormLoad FrmFarmLine!",
    .OnPick = " in LstPlayer_Click!",
    .ShowsPlaceholder = true,
};

} // namespace

frmFarmLine::frmFarmLine(Stage& stage) : LinesScreen(stage, Farm) {}

void frmFarmLine::ListMore()
{
    if (!ArePlaceholdersCandidates(LeagueData, Side::Farm))
        return;
    lstPlayer->Add(ToQString(Players[0].Name.Trimmed()), EntryNumber(Placeholder, position::Center));
    lstPlayer->Add(ToQString(Goalies[0].Name.Trimmed()), EntryNumber(Placeholder, position::Goalie));
}

void frmFarmLine::ShowPicked()
{
    if (SelectedPlayer == Placeholder) {
        SelectedPlayer = 0;
        frmStat->HideRatings();
        frmStat->SetName({});
        return;
    }
    LinesScreen::ShowPicked();
}

// The caption of the panel stays what it was: here the name stands within.
void frmFarmLine::ShowPickedName(const QString& name) { frmStat->SetName(name); }

void frmFarmLine::CheckInTurn()
{
    Modified = true;
    if (SelectedPlayer != 0 && !SelectedIsGoalie)
        RefreshPlaying();
    JudgeShownDay();
}

} // namespace dravik
