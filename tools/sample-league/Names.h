#pragma once

#include "Random.h"

#include <set>
#include <string>

namespace dravik::sample {

// A person's name in the code page, and the three letters of his country.
struct PersonName {
    std::string Name;
    std::string Country;
};

// Invents people. Family names are put together from parts, so that no real player's full name comes up by design, and
// no name comes twice.
class NameMaker {
public:
    NameMaker(std::uint64_t seed, std::string_view subject) : random(seed, subject) {}

    PersonName Next();

private:
    Random random;
    std::set<std::string> taken;
};

} // namespace dravik::sample
