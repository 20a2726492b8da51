#pragma once

#include "league/PersonId.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// What is told of a person in a sign beside his name: what the lists, the board and the card of a person draw and say, and what
// a legend explains.
namespace dravik {

// All signs, in order of importance: where there is no room for all of a person's, the last go first.
enum class Sign {
    MayNotPlay,
    UsedTwice,
    Injured,
    Suspended,
    OnWaivers,
    NoContract,
    OutOfPosition,
    InSlots,
    NotUsed,
    Captain,
    Assistant,
    NeedsWaivers,
    NoTrade,
    Rookie,
    Pinned
};

// Where a sign may stand beside a person.
enum class SignPlace {
    Anybody, // with everybody: a fact
    Own,     // with people of the looking manager's own team alone
    Lines    // on the lines screens, for what stands in a day
};

// A sign in words.
struct SignRow {
    Sign Kind;
    SignPlace Place;
    std::string_view Words;   // of somebody who has it; "#" stands for its number
    std::string_view Meaning; // of the sign itself, for a legend
};

// Every sign once, in the order of `Sign`.
extern const std::array<SignRow, 15> SignTable;

// One sign of a person. `Number` is the condition of an injured one, the games of a suspended one and the slots of one who stands
// in some; 0 with the others.
struct PersonSign {
    Sign Kind;
    int Number = 0;

    bool operator==(const PersonSign&) const = default;
};

// What a sign says of its person: "Injured, condition 87", "Suspended for 2 games".
std::string WordsOf(const PersonSign& sign);

// The signs of one person: a small value, which a list asks for at every drawing.
class PersonSigns {
public:
    // Adds a sign; a number below 0 or above 255 counts as the nearest of these.
    void Add(Sign kind, int number = 0);
    // The same without one.
    [[nodiscard]] PersonSigns Without(Sign kind) const;
    [[nodiscard]] bool Has(Sign kind) const { return (kinds & BitOf(kind)) != 0; }
    [[nodiscard]] bool IsEmpty() const { return kinds == 0; }
    // The number of a sign, 0 of one that has none.
    [[nodiscard]] int NumberOf(Sign kind) const;

    // Calls `visit(PersonSign)` for each, the most important one first.
    template <class Visit>
    void Each(Visit&& visit) const
    {
        for (std::size_t index = 0; index < SignTable.size(); ++index)
            if (const auto kind = static_cast<Sign>(index); Has(kind))
                visit(PersonSign{kind, NumberOf(kind)});
    }

    bool operator==(const PersonSigns&) const = default;

private:
    static constexpr std::uint16_t BitOf(Sign kind)
    {
        return static_cast<std::uint16_t>(1U << static_cast<unsigned>(kind));
    }

    std::uint16_t kinds = 0;
    std::uint8_t condition = 0;
    std::uint8_t games = 0;
    std::uint8_t held = 0;
};

// Whether a sign tells of what keeps its person from the ice.
constexpr bool IsTrouble(Sign kind) { return kind <= Sign::NoContract; }

// The signs of a person, seen by the manager of `team`: all of them for somebody of that team, facts alone for everybody else;
// team 0 sees facts alone. That somebody needs waivers depends on his overall, and stays hidden with it. Nobody has a sign
// outside the tables, in a slot that is not in use, or as the placeholder of slot 0. Who is pinned is no matter of the tables, and
// added by who knows. No box is shown, nothing fails.
PersonSigns SignsOf(const Tables& league, PersonId who, int team);

} // namespace dravik
