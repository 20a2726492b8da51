#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace dravik::sample {

// Numbers that look random and are the same on every machine: a 64-bit counter whose steps are mixed. Every subject of
// the league draws from a stream of its own, so that a change to one leaves the others as they were.
class Random {
public:
    Random(std::uint64_t seed, std::string_view subject) : state(Mixed(seed))
    {
        for (const char c : subject)
            state = Mixed(state ^ static_cast<unsigned char>(c));
    }

    std::uint32_t Next()
    {
        state += 0x9E3779B97F4A7C15U;
        return static_cast<std::uint32_t>(Mixed(state) >> 32U);
    }

    // A whole number from `low` to `high`, both included; `low` when there is nothing between them.
    int Between(int low, int high)
    {
        if (high <= low)
            return low;
        const auto range = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<int>((Next() * range) >> 32U);
    }

    // The sum of three draws around `middle`: values near it are likelier than those `reach` away.
    int Around(int middle, int reach)
    {
        const int sum = Between(-reach, reach) + Between(-reach, reach) + Between(-reach, reach);
        return middle + sum / 3;
    }

    bool Chance(int percent) { return Between(1, 100) <= percent; }

    template <class List>
    const auto& Pick(const List& list)
    {
        return list[static_cast<std::size_t>(Between(0, static_cast<int>(std::size(list)) - 1))];
    }

    template <class List>
    void Shuffle(List& list)
    {
        for (std::size_t left = list.size(); left > 1; --left)
            std::swap(list[left - 1], list[static_cast<std::size_t>(Between(0, static_cast<int>(left) - 1))]);
    }

private:
    static constexpr std::uint64_t Mixed(std::uint64_t z)
    {
        z = (z ^ z >> 30U) * 0xBF58476D1CE4E5B9U;
        z = (z ^ z >> 27U) * 0x94D049BB133111EBU;
        return z ^ z >> 31U;
    }

    std::uint64_t state;
};

} // namespace dravik::sample
