#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"
#include "rules/DaySlots.h"

#include <optional>
#include <string>
#include <vector>

// What could be better about a day that a judge has nothing against.
namespace dravik {

// What a piece of advice is about.
enum class AdviceKind {
    CaptainOffLines, // the captain may play, and is on no line or unit
    TiredStarter,    // the starting goalie is tired, and his backup is fresh
    OutOfPosition,   // somebody stands out of position though one in position, no worse there, is free
    Better           // somebody is free who is better than who stands there
};

// One piece of advice: `Who` is to play where `Instead` stands. A tired starter and his backup change places.
struct LineAdvice {
    AdviceKind Kind{};
    PersonId Who;
    PersonId Instead;
    DaySlot Slot{};   // where
    LineSlot At{};    // the same as a skater's slot; of a goalie's it says nothing
    int Figure = 0;   // the overall of `Who` at the position of that slot; his condition where the starter is tired
    int Standing = 0; // the same of `Instead`
    std::optional<int> Partner{}; // the overall of who plays beside a defenseman of a pair, if anybody may

    // What following it adds to that figure: above 0 where somebody better is free or a starter tired, never below where
    // somebody stands out of position; a captain may be worth less than who makes room for him.
    [[nodiscard]] int Gain() const { return Figure - Standing; }
};

// Whether the league lets anybody be advised: whoever is not shown overalls is told nothing that follows from them.
bool IsAdviceGiven(const League& rules);

// What is legal and yet weak in a day (1..10) of a side of `team` (1..100): the captain and a tired starter first, then by what
// following it gains. Whom it proposes is fit, eligible there, at home in the slot's position, and stands in no slot of that kind:
// normal lines, power play, 4 vs 4, both penalty kills, extra forwards, extra defensemen, goalies. A person is named once a kind,
// and a slot once. A penalty shot has no position to be better at. Slots that the judge has something against are left to him, and
// nothing proposed gives him more to find. Nothing is judged, and no box is shown. A team or day out of range fails with 9.
std::vector<LineAdvice> AdviceOn(const Tables& league, int team, Side side, int day);

// Follows a piece of advice about that day, by the commands that place people. False, with nothing done, where it is not given
// any more as the lines stand. Whoever judges them marks the league as modified.
bool FollowAdvice(const Work& work, int team, Side side, int day, const LineAdvice& advice);

// The words of a piece of advice, "Cyril Slobansky (64, D) is in no pair; pair 3 plays 56 and 52.", and what following it does,
// "Put Cyril Slobansky in for Royce Mottford, pair 3". Names are those that `league` holds.
std::string WordsOf(const Tables& league, const LineAdvice& advice);
std::string DeedOf(const Tables& league, const LineAdvice& advice);

} // namespace dravik
