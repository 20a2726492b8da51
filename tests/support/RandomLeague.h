#pragma once

#include "session/Session.h"

#include <array>
#include <cstddef>
#include <random>

namespace dravik {

// Numbers that are the same for a seed on every machine.
class Dice {
public:
    explicit Dice(unsigned seed) : random(seed) {}

    // A number from `least` to `most`, both included.
    long long Roll(long long least, long long most)
    {
        const auto sides = static_cast<unsigned long long>(most - least + 1);
        return least + static_cast<long long>(random() % sides);
    }
    bool Chance(int percent) { return Roll(1, 100) <= percent; }

    template <std::size_t N>
    long long Pick(const long long (&choices)[N])
    {
        return choices[Roll(0, static_cast<long long>(N) - 1)];
    }

private:
    std::mt19937 random;
};

// How large a random league is.
struct RandomSize {
    int Teams = 3;
    int Skaters = 150;
    int Goalies = 18;
    int Coaches = 6;
};

// Fills the league's rules, the first teams, people and coaches, and the lines of those teams with numbers of every sort
// that a rule tells apart: people hurt, suspended, without contract, without position, paid too much, too good for the
// farm, standing in lines of their own team and of others. Records behind those stay as they are.
void RollLeague(Dice& dice, const RandomSize& size = {});

} // namespace dravik
