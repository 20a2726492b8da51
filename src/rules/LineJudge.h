#pragma once

#include "rules/LineSlots.h"
#include "rules/LineVerdict.h"

#include <string_view>

namespace dravik {

// How many different skaters a farm line-up may hold, and whether it needs enough of them.
enum class HeadCount { None, AtMost, AtLeastToo };

// In what the three judges of lines differ. Everything else is one walk.
struct LineRules {
    dravik::Side Side;
    int Status;                         // of those who may stand in the lines
    bool JudgesEmptySlots;              // an empty slot is wrong, and so is an empty slot like another
    bool ComparesLinesOneAndTwo;        // if the league wants them kept apart
    std::string_view PPForwardHead;     // begins the message of an empty power play forward slot
    std::string_view PK3ForwardCaption; // names the one forward's slot of three penalty killers
    dravik::HeadCount HeadCount;
    std::string_view Closing; // ends a text that tells of something
};

// Judges one day in the one order of all judges: takes out who may not stand there and makes a text of all that is
// wrong, a line for each finding; a later test sees the repairs of the earlier ones. What was said stays for
// `LastLineVerdict`; the text is logged, or shown in an information box, when asked. True when nothing is wrong. `team`
// 1..100, `day` 1..10. A slot that holds a number outside its table fails with 9, and so does a limit of the head count
// above its 25 places; what was repaired and told by then stays.
bool JudgeLines(int team, int day, const LineRules& rules, bool showMessage, bool log);

// Findings and text of the last judgement, which came out `complete` or not.
LineVerdict LastLineVerdict(bool complete);

// Leaves neither findings nor text: there is nothing to judge, or no such day.
void ForgetLineVerdict();

} // namespace dravik
