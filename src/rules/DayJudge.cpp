#include "rules/DayJudge.h"

#include <algorithm>

namespace dravik {

LineVerdict JudgeDay(const Work& work, int team, Side side, int day, bool showMessage)
{
    return (side == Side::Pro ? CheckLine : CheckLineFarm)(work, team, showMessage, day, false);
}

bool FindsTwice(const LineVerdict& verdict, std::size_t word)
{
    return std::any_of(verdict.Findings.begin(), verdict.Findings.end(), [word](const LineFinding& finding) {
        const bool isDouble = finding.Fault == LineFault::Double || finding.Fault == LineFault::LinesShared ||
                              finding.Fault == LineFault::SameGoalies;
        return isDouble && finding.Slots[word];
    });
}

} // namespace dravik
