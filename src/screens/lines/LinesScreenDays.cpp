#include "desk/LinesOfAllDays.h"
#include "rules/LineStrength.h"
#include "screens/lines/LinesScreen.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

// All ten days at once: their verdicts, their strength, and the command that mends them.
namespace dravik {

namespace {

DaySign SignOf(const LineVerdict& verdict)
{
    QStringList words;
    for (const LineFinding& finding : verdict.Findings)
        words << ToQString(WordsOf(OpenLeague, verdict, finding));
    const bool isWhole = verdict.Complete || !verdict.Failed;
    return {.Shows = verdict.Complete                       ? DaySign::Kind::Good
                     : isWhole && !verdict.Findings.empty() ? DaySign::Kind::Findings
                                                            : DaySign::Kind::Unjudged,
            .Count = static_cast<int>(verdict.Findings.size()),
            .Words = words.join('\n')};
}

} // namespace

void LinesScreen::RefreshDays()
{
    RunEvent("RefreshDays", [this] {
        if (!HasLineDay(OwnNumber(), ShownDay()))
            return;
        if (!scratch)
            scratch = MakeTables();
        const DayVerdicts verdicts = LookAtAllDays(OpenLeague, Machine(), OwnNumber(), Kind.Side, *scratch);
        QList<DaySign> signs;
        QList<LineStrength> strengths;
        for (int number = 1; number <= LineDays; ++number) {
            signs << SignOf(number == ShownDay() ? said : verdicts[static_cast<std::size_t>(number - 1)]);
            strengths << StrengthOfLines(OpenLeague, LinesOf(OpenLeague, OwnNumber(), number, Kind.Side));
        }
        vscDay->SetSigns(signs);
        const auto isShown = static_cast<bool>(LeagueData.ShowOverall);
        Strength->setVisible(isShown);
        Strength->SetStrengths(isShown ? strengths : QList<LineStrength>());
    });
}

void LinesScreen::cmdRepairAll_Click()
{
    RepairAllDaysAndTell(OpenWork(), OwnNumber(), Kind.Side);
    ShowDayAnew();
}

} // namespace dravik
