#pragma once

#include "support/SmallLeague.h"

#include <cstdint>
#include <random>

namespace dravik {

// Fills small leagues from a seed, the same on every machine. Teams 5 and 6 share the first slots of the tables; the
// rules of the league vary with them.
class RandomTeam {
public:
    explicit RandomTeam(std::uint32_t seed) : engine(seed) {}

    static constexpr int Team = 5;
    static constexpr int OtherTeam = 6;
    static constexpr int Skaters = 90;
    static constexpr int Goalkeepers = 12;

    // A number from `low` to `high`.
    int Between(int low, int high)
    {
        return low + static_cast<int>(engine() % static_cast<std::uint32_t>(high - low + 1));
    }
    bool OneIn(int chances) { return Between(1, chances) == 1; }

    // A league in which anything may be wrong with anybody, short of what ends a run in a failure.
    void FillLoosely();

    // A team whose roster mostly passes: 18 to 25 dressed skaters of all positions and two or three goalies.
    void FillForLines();

    // Puts anybody of the team, fit or not, on its pro and farm lines, and leaves holes.
    void ScatterOnLines();

private:
    template <class Person>
    void Trouble(Person& person, int chances);

    std::mt19937 engine;
};

} // namespace dravik
