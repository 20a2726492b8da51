#include "screens/frmFarmLine.h"

#include "screens/platform/CodePage.h"
#include "screens/RosterEntry.h"
#include "session/Routines.h"

namespace dravik {

namespace {

// The id under which the list carries the placeholders of record 0.
constexpr int Placeholder = 32000;

constexpr LinesKind Farm{
    .Name = "frmFarmLine",
    .Side = Side::Farm,
    .Status = status::Farm,
    .NameOf = [](const Team& team) { return team.Farm.Name.Trimmed(); },
    .AbbreOf = [](const Team& team) { return team.Farm.Abbre.Trimmed(); },
    .OnLoad = " in FormLoad FrmFarmLine!",
    .OnPick = " in LstPlayer_Click!",
    .ClosingWarning = "Farm Lines for Day #1 are Incomplete!",
    .ShowsPlaceholder = true,
    .Judge = VerdictOnLineFarm,
    .PlayOnLineString = PlayOnLineStringFarm,
    .PlayOnLineInteger = PlayOnLineIntegerFarm,
    .AutoLines = AutoLinesFarm,
    .Game = &ScheduleRow::FarmGame,
    .Played = &ScheduleRow::FarmPlayed,
    .Home = &ScheduleRow::FarmHome,
    .Away = &ScheduleRow::FarmAway,
};

} // namespace

frmFarmLine::frmFarmLine(Stage& stage) : LinesScreen(stage, Farm) {}

void frmFarmLine::ListMore()
{
    if (LeagueData.FarmRosterRequired.Word() != 0)
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

// The placeholder goes by the position of a center, and plays defense all the same.
bool frmFarmLine::TakesPicked(Takes rule) const
{
    const bool isPlaceholder = SelectedPlayer == 0 && !SelectedIsGoalie;
    return LinesScreen::TakesPicked(rule) || (rule == Takes::Defense && isPlaceholder);
}

void frmFarmLine::CheckInTurn()
{
    Modified = true;
    if (SelectedPlayer != 0 && !SelectedIsGoalie)
        RefreshPlaying();
    JudgeShownDay();
}

} // namespace dravik
