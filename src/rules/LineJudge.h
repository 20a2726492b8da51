#pragma once

#include "machine/Work.h"
#include "rules/LineSlots.h"
#include "rules/LineVerdict.h"

namespace dravik {

// Judges one day of the pro lines and takes illegal people out of them, silent calls included. Complete when nothing is
// missing or illegal. With `showMessage` the text is shown in an information box, as long as reports are allowed; `log`
// logs it. A team (1..100) or day (1..10) out of range shows "Integrity Check Failed!" in a critical box. A slot that holds
// a number outside its table fails with 9, which is told; the verdict then holds what was found by then.
LineVerdict CheckLine(const Work& work, int team, bool showMessage, int day, bool log);

// The same for the farm's lines: strict when the league requires farm rosters, otherwise judging only what stands in
// them; complete at once, without a text, in a league without farm teams.
LineVerdict CheckLineFarm(const Work& work, int team, bool showMessage, int day, bool log);

// What one of these two says of a day of a side; nothing is logged.
LineVerdict JudgeDay(const Work& work, int team, Side side, int day, bool showMessage);

// True when every slot of the pro day is 0, goalies included. A team or day out of range is told like that.
bool CheckLineEmpty(const Tables& league, Voice& says, int team, int day);

} // namespace dravik
