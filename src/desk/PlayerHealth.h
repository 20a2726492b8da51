#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"

#include <functional>
#include <optional>
#include <string>

namespace dravik {

// The injury that is shown of a person, without its outer blanks: none of whoever is in perfect condition, whatever his record
// holds.
std::optional<std::string> InjuryOf(const Tables& league, PersonId who);

// What happens to somebody whose condition or suspension is given another value.
enum class HealthTurn { Healed, Injured, Suspended };

// Hears of it before anything follows.
using TellTurn = std::function<void(HealthTurn turn)>;

// What follows from a condition that is stored as `now`. Whoever is fit has no injury, wherever his condition comes from. One
// who was fit and is no longer has an unknown injury and is benched.
void FollowCondition(const Work& work, PersonId who, long long before, long long now, const TellTurn& turns);

// What follows from a suspension that is stored as `now`: who was not suspended and is benched, which the league's news tell.
void FollowSuspension(const Work& work, PersonId who, long long before, long long now, const TellTurn& turns);

} // namespace dravik
