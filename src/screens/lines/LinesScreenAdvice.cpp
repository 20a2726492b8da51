#include "machine/SettingsFailure.h"
#include "screens/ElementName.h"
#include "screens/lines/AdviceList.h"
#include "screens/lines/LinesScreen.h"
#include "screens/platform/CodePage.h"
#include "screens/Remembered.h"
#include "session/Session.h"

// The advice below the board: what it says, what its commands do, and that it stays folded.
namespace dravik {

namespace {

// Where it is kept whether the advice is folded away, on both lines screens.
constexpr const char* Section = "Screens";
constexpr const char* FoldKey = "LinesAdvice";
constexpr const char* FoldedAway = "Folded";

} // namespace

QWidget* LinesScreen::MakeAdvice()
{
    cmdFoldAdvice = MakeCommand("cmdFoldAdvice", "Fold", [this] { cmdFoldAdvice_Click(); });
    const auto makeCommand = [this](int row) {
        QPushButton* command =
            MakeCommand(ElementName("cmdAdvice", row), {},
                        AsStep([this, row] { return WordsOfAdvice(row); }, [this, row] { cmdAdvice_Click(row); }));
        command->installEventFilter(this); // as that of all commands which are there from the beginning
        return command;
    };
    Advice = new AdviceList(cmdFoldAdvice, makeCommand, this);
    Advice->SetFolded(Remembered(FoldKey) == FoldedAway);
    return Advice;
}

void LinesScreen::RefreshAdvice()
{
    RunEvent("RefreshAdvice", [this] {
        advised.clear();
        if (HasLineDay(OwnNumber(), ShownDay()))
            advised = AdviceOn(OpenLeague, OwnNumber(), Kind.Side, ShownDay());
        QList<AdviceEntry> entries;
        for (const LineAdvice& piece : advised)
            entries << AdviceEntry{.Words = ToQString(WordsOf(OpenLeague, piece)),
                                   .Caption = piece.Kind == AdviceKind::TiredStarter ? "Swap" : "Put in",
                                   .Deed = ToQString(DeedOf(OpenLeague, piece))};
        Advice->setVisible(IsAdviceGiven(LeagueData));
        Advice->Tell(entries);
    });
}

QString LinesScreen::WordsOfAdvice(int row) const
{
    return ToQString(DeedOf(OpenLeague, advised.at(static_cast<std::size_t>(row)))) + Subject();
}

void LinesScreen::cmdAdvice_Click(int row)
{
    const LineAdvice piece = advised.at(static_cast<std::size_t>(row));
    FollowAdvice(OpenWork(), OwnNumber(), Kind.Side, ShownDay(), piece);
    // What it has done is seen, whatever page was up.
    for (const BoardSlot& slot : TabLine->Slots)
        for (int page = 0; page < TabLine->count() && slot.Slot.Word == piece.Slot.Word; ++page)
            if (TabLine->widget(page)->isAncestorOf(slot.Label))
                TabLine->setCurrentIndex(page);
    ShowDayAnew();
}

void LinesScreen::cmdFoldAdvice_Click()
{
    const bool folds = !Advice->IsFolded();
    Advice->SetFolded(folds);
    cmdFoldAdvice->setToolTip({});
    try {
        Machine().SaveSetting(Section, FoldKey, folds ? FoldedAway : "");
    } catch (const SettingsFailure& failed) {
        cmdFoldAdvice->setToolTip(Qt::convertFromPlainText(ToQString(
            "The settings could not be written to " + failed.File + ". The next start does not know of this.")));
    }
}

} // namespace dravik
