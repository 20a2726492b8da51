#pragma once

#include "machine/Work.h"
#include "rules/LineSlots.h"
#include "rules/LineVerdict.h"

#include <string_view>

namespace dravik {

// How many different skaters a farm line-up may hold, and whether it needs enough of them.
enum class HeadCount { None, AtMost, AtLeastToo };

// How many a complete farm line-up needs.
inline constexpr int FewestHeads = 18;

// In what the three judges of lines differ. Everything else is one walk.
struct LineRules {
    dravik::Side Side;
    bool JudgesEmptySlots;              // an empty slot is wrong, and so is an empty slot like another
    bool ComparesLinesOneAndTwo;        // if the league wants them kept apart
    std::string_view PPForwardHead;     // begins the message of an empty power play forward slot
    std::string_view PK3ForwardCaption; // names the one forward's slot of three penalty killers
    dravik::HeadCount HeadCount;
    std::string_view Closing; // ends a text that tells of something
};

// What the lines of a side are held against in a league; none where nobody judges them.
const LineRules* LineRulesOf(const League& rules, Side side);

// Judges one day in the one order of all judges: takes out who may not stand there and makes a text of all that is
// wrong, a line for each finding, into `verdict`; a later test sees the repairs of the earlier ones. The text is logged, or
// shown in an information box, when asked. `team` 1..100, `day` 1..10. A slot that holds a number outside its table fails
// with 9, and so does a limit of the head count above its 25 places; what was repaired and told by then stays.
void JudgeLines(const Work& work, int team, int day, const LineRules& rules, bool showMessage, bool log,
                LineVerdict& verdict);

} // namespace dravik
