#include "rules/LineRules.h"

#include "rules/LineEligibility.h"

namespace dravik {

namespace {

constexpr LineRules ProRules{.Side = Side::Pro,
                             .JudgesEmptySlots = true,
                             .ComparesLinesOneAndTwo = true,
                             .PPForwardHead = "PP line ",
                             .PK3ForwardCaption = " forward",
                             .HeadCount = HeadCount::None,
                             .Closing = "Some errors will be automatically fixed.\r\n"};

constexpr LineRules StrictRules{.Side = Side::Farm,
                                .JudgesEmptySlots = true,
                                .ComparesLinesOneAndTwo = true,
                                .PPForwardHead = "PP line",
                                .PK3ForwardCaption = " RW",
                                .HeadCount = HeadCount::AtLeastToo,
                                .Closing = ""};

constexpr LineRules LenientRules{.Side = Side::Farm,
                                 .JudgesEmptySlots = false,
                                 .ComparesLinesOneAndTwo = false,
                                 .PPForwardHead = "",
                                 .PK3ForwardCaption = "",
                                 .HeadCount = HeadCount::AtMost,
                                 .Closing = ""};

} // namespace

const LineRules* LineRulesOf(const League& rules, Side side)
{
    if (!AreLinesJudged(rules, side))
        return nullptr;
    if (side == Side::Pro)
        return &ProRules;
    return rules.FarmRosterRequired ? &StrictRules : &LenientRules;
}

} // namespace dravik
