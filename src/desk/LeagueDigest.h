#pragma once

#include "league/PersonId.h"
#include "league/Tables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What is remembered of a league when a client file of it was opened, so that a later file can be held against it. It holds
// facts, and of the teams what they have; what the league hides of ratings is not in it, nor is any password or line-up.
namespace dravik {

// The most ratings that a league shows of anybody.
inline constexpr std::size_t MostRatings = 15;

// One person. A number that its byte does not hold counts as the nearest that it holds.
struct PersonDigest {
    PersonId Who;
    std::uint32_t Identity = 0; // a number for his name, as it stands
    Text<40> Name = {};         // never written where the digest had no room for it
    std::uint8_t Team = 0;      // 1..100; 0 = none, or none of these
    std::uint8_t Age = 0;
    std::uint8_t Contract = 0;
    std::uint8_t Condition = 0;
    std::uint8_t Suspension = 0;
    std::uint8_t Status = 0;
    std::uint8_t Overall = 0;                        // 0 where the league hides it
    std::uint8_t RatingCount = 0;                    // 0 where the digest had no room for them
    std::array<std::uint8_t, MostRatings> Ratings{}; // as the league shows them: single ones or groups

    bool operator==(const PersonDigest& other) const;
};

// One team that is in use.
struct TeamDigest {
    int Number = 0; // 1..100
    long long Cash = 0;
    long long LinesLoaded = 0;
    std::optional<long long> Payroll; // what counts against the cap; none where it goes beyond 32 bits

    bool operator==(const TeamDigest&) const = default;
};

struct LeagueDigest {
    Text<5> LeagueCode = {};
    double FileDate = 0; // days since 30 December 1899, as the file says
    bool ShowsAllRatings = false;
    bool ShowsOverall = false;
    bool IsDeadlineOver = false;
    int SalaryCapMode = 0;
    long long SalaryCap = 0;
    std::vector<TeamDigest> Teams;    // by number
    std::vector<PersonDigest> People; // skaters by slot, then goalies by slot
};

// The digest of a league that was made ready and that nobody has touched. Nothing of it fails, whatever the league holds.
LeagueDigest DigestOf(const Tables& league);

// The most bytes that a digest takes, however many people there are.
constexpr std::size_t MostDigestBytes = std::size_t{300} << 10U;

// The digest as it is kept (docs/formats.md), in `most` bytes at the most: where the names and ratings of all have no room, those
// of people with a team come first, names before ratings. `most` is MostDigestBytes but for tests; what stands there of everybody
// always has room in that.
std::string WriteDigest(const LeagueDigest& digest, std::size_t most = MostDigestBytes);

// A digest read back from bytes that nobody has to trust; none where they are not whole, or are none.
std::optional<LeagueDigest> ReadDigest(std::string_view bytes);

} // namespace dravik
