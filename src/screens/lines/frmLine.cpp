#include "screens/lines/frmLine.h"

#include "desk/LineMakers.h"
#include "rules/LineJudge.h"
#include "screens/panels/WhyClosed.h"
#include "screens/platform/CodePage.h"
#include "screens/Stage.h"
#include "session/Session.h"

namespace dravik {

namespace {

constexpr LinesKind Pro{
    .Name = "frmLine",
    .Side = Side::Pro,
    .NameOf = [](const Team& team) { return team.Name.Trimmed(); },
    .AbbreOf = [](const Team& team) { return team.Abbre.Trimmed(); },
    .OnLoad = " in FormLoad FrmLine!",
    .OnPick = " in lstPlayer_Click!",
    .ShowsPlaceholder = false,
};

} // namespace

frmLine::frmLine(Stage& stage) : LinesScreen(stage, Pro)
{
    cmdPartialLine = MakeCommand("cmdPartialLine", "Pa&rtial Auto Lines",
                                 AsDayStep("Partial Auto Lines", [this] { cmdPartialLine_Click(); }));
    TellWhyClosed({cmdPartialLine}, ToQString(MakersClosedWords));
    Commands->insertWidget(1, cmdPartialLine);
    setTabOrder(cmdAutoLines, cmdPartialLine);
}

void frmLine::CloseMakers()
{
    LinesScreen::CloseMakers();
    cmdPartialLine->setEnabled(false);
}

void frmLine::ShowPickedName(const QString& name)
{
    frmStat->setTitle(QString(name).replace('&', "&&")); // no mnemonic
}

void frmLine::CheckInTurn()
{
    JudgeShownDay();
    if (SelectedPlayer != 0 && !SelectedIsGoalie)
        RefreshPlaying();
    if (CheckLine(OpenWork(), OwnNumber(), false, 1, false))
        Owner.EnableSaveToFile();
    Modified = true;
}

void frmLine::cmdPartialLine_Click()
{
    MakeRestOfDay(OpenWork(), OwnNumber(), ShownDay());
    ShowDayAnew();
}

} // namespace dravik
