#include "desk/MatchedPeople.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

namespace dravik {

namespace {

constexpr int Nobody = -1;

int CommonId(const PersonDigest& person) { return person.Who.CommonId(); }

bool HasOneName(const PersonDigest& one, const PersonDigest& other)
{
    return one.Who.IsGoalie == other.Who.IsGoalie && one.Identity == other.Identity;
}

// The pairs so far: of everybody in the later state who he was, and of the earlier whether he was found.
struct Pairs {
    std::vector<int> Was;
    std::vector<bool> IsFound;
};

// Both states are in the order of slots, skaters first.
void PairSlots(const std::vector<PersonDigest>& earlier, const std::vector<PersonDigest>& later, Pairs& pairs)
{
    std::size_t before = 0;
    for (std::size_t now = 0; now < later.size(); ++now) {
        while (before < earlier.size() && CommonId(earlier[before]) < CommonId(later[now]))
            ++before;
        if (before < earlier.size() && earlier[before].Who == later[now].Who &&
            HasOneName(earlier[before], later[now])) {
            pairs.Was[now] = static_cast<int>(before);
            pairs.IsFound[before] = true;
        }
    }
}

// People without a pair, ordered so that those of one name stand together, by age and then by slot.
std::vector<int> Left(const std::vector<PersonDigest>& people, const auto& isPaired)
{
    std::vector<int> left;
    for (std::size_t i = 0; i < people.size(); ++i)
        if (!isPaired(i))
            left.push_back(static_cast<int>(i));
    const auto key = [&people](int index) {
        const PersonDigest& person = people[static_cast<std::size_t>(index)];
        return std::tuple(person.Who.IsGoalie, person.Identity, person.Age, person.Who.Slot);
    };
    std::sort(left.begin(), left.end(), [&](int a, int b) { return key(a) < key(b); });
    return left;
}

// Pairs those of one name that stand in [first, last) of each list: equal ages, then a last one who grew older.
void PairNamesakes(const std::vector<PersonDigest>& earlier, std::vector<int> before,
                   const std::vector<PersonDigest>& later, std::vector<int> now, Pairs& pairs)
{
    const auto ageBefore = [&](int index) { return earlier[static_cast<std::size_t>(index)].Age; };
    const auto ageNow = [&](int index) { return later[static_cast<std::size_t>(index)].Age; };
    const auto pair = [&](int one, int other) {
        pairs.Was[static_cast<std::size_t>(other)] = one;
        pairs.IsFound[static_cast<std::size_t>(one)] = true;
    };
    for (auto other = now.begin(); other != now.end();) {
        const auto one = std::find_if(before.begin(), before.end(),
                                      [&](int candidate) { return ageBefore(candidate) == ageNow(*other); });
        if (one == before.end()) {
            ++other;
            continue;
        }
        pair(*one, *other);
        before.erase(one);
        other = now.erase(other);
    }
    if (before.size() == 1 && now.size() == 1 && ageBefore(before.front()) < ageNow(now.front()))
        pair(before.front(), now.front());
}

void PairNames(const std::vector<PersonDigest>& earlier, const std::vector<PersonDigest>& later, Pairs& pairs)
{
    const auto before = Left(earlier, [&](std::size_t i) { return pairs.IsFound[i]; });
    const auto now = Left(later, [&](std::size_t i) { return pairs.Was[i] != Nobody; });
    const auto endOfName = [](const std::vector<PersonDigest>& people, const std::vector<int>& list, std::size_t from) {
        std::size_t end = from;
        while (end < list.size() &&
               HasOneName(people[static_cast<std::size_t>(list[from])], people[static_cast<std::size_t>(list[end])]))
            ++end;
        return end;
    };
    const auto name = [](const std::vector<PersonDigest>& people, int index) {
        const PersonDigest& person = people[static_cast<std::size_t>(index)];
        return std::tuple(person.Who.IsGoalie, person.Identity);
    };
    std::size_t one = 0;
    std::size_t other = 0;
    while (one < before.size() && other < now.size()) {
        if (name(earlier, before[one]) < name(later, now[other])) {
            ++one;
        } else if (name(later, now[other]) < name(earlier, before[one])) {
            ++other;
        } else {
            const std::size_t endOne = endOfName(earlier, before, one);
            const std::size_t endOther = endOfName(later, now, other);
            const auto part = [](const std::vector<int>& list, std::size_t from, std::size_t to) {
                return std::vector<int>(list.begin() + static_cast<std::ptrdiff_t>(from),
                                        list.begin() + static_cast<std::ptrdiff_t>(to));
            };
            PairNamesakes(earlier, part(before, one, endOne), later, part(now, other, endOther), pairs);
            one = endOne;
            other = endOther;
        }
    }
}

} // namespace

std::vector<MatchedPerson> MatchPeople(const std::vector<PersonDigest>& earlier, const std::vector<PersonDigest>& later)
{
    Pairs pairs{.Was = std::vector<int>(later.size(), Nobody), .IsFound = std::vector<bool>(earlier.size())};
    PairSlots(earlier, later, pairs);
    PairNames(earlier, later, pairs);
    std::vector<MatchedPerson> matched;
    for (std::size_t now = 0; now < later.size(); ++now)
        matched.push_back({.Earlier = pairs.Was[now], .Later = static_cast<int>(now)});
    for (std::size_t before = 0; before < earlier.size(); ++before)
        if (!pairs.IsFound[before])
            matched.push_back({.Earlier = static_cast<int>(before), .Later = Nobody});
    return matched;
}

} // namespace dravik
