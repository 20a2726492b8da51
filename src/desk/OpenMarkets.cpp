#include "desk/OpenMarkets.h"

#include "desk/DraftCandidates.h"
#include "rules/Waivers.h"

namespace dravik {

bool IsOpenToOffers(const League& rules) { return rules.OffSeason || !IsDeadlineInForce(rules); }

bool IsOpenToDraft(const League& rules) { return rules.OffSeason && (rules.FantasyDraft || IsEntryDraftAhead(rules)); }

} // namespace dravik
