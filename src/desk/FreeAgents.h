#pragma once

#include "league/FreeAgentOffer.h"
#include "league/PersonId.h"

#include <functional>
#include <optional>
#include <string>

namespace dravik {

// Somebody who can be made an offer, as a list has him.
struct FreeAgent {
    int Id;           // a skater's number, a goalie's + 10000
    std::string Text; // "Ward Tilton (LW)-RFA"
};

// Who of them is told.
struct FreeAgentFilter {
    bool WithOfferOnly = false; // those alone whose offer says enough to be one
};

// Tells everybody whose contract is out, and whoever belongs to nobody where the league lets those be made offers: skaters,
// then goalies, each in order of the slots. Behind the name stand the position and the mark of a restricted one. A skater
// without a position fails with 9, and so does, where offers are asked for, a number that has none; who stands before him has
// been told by then.
void EachFreeAgent(const Tables& league, const OfferTable& offers, const FreeAgentFilter& filter,
                   const std::function<void(const FreeAgent&)>& tell);

// Who a number of the list means: 1 to 10000 a skater, beyond them a goalie. Nobody where the slot is not in use, and nobody
// behind the last goalie but one, who can be listed and not be shown. A number below 0 fails with 9.
std::optional<PersonId> FreeAgentOf(const Tables& league, int id);

// Whether `team` may make somebody an offer: his contract is out, or he belongs to nobody where the league lets such people be
// asked, and he is not so young that only his own team may sign him. Nobody can be asked outside the tables.
bool MayBeAsked(const Tables& league, int team, PersonId who);

// Whether a person of a team is too young to be unrestricted: RFA, not UFA.
bool IsRestricted(const Tables& league, PersonId who);

// Whether a person is so young that no other team than his own may sign him, seen from `team`.
bool IsBarred(const Tables& league, int team, PersonId who);
// How a barred one is told of. A team that is none fails with 9.
std::string BarredWords(const Tables& league, PersonId who);

} // namespace dravik
