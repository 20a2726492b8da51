#include "Random.h"
#include "session/Session.h"
#include "Subjects.h"

#include <array>
#include <string_view>

namespace dravik::sample {

namespace {

void Stir(Random& random, Byte& field) { field = random.Between(0, 255); }
void Stir(Random& random, Int16& field) { field = random.Between(-32768, 32767); }

template <std::size_t N>
void Stir(Random& random, Text<N>& field)
{
    std::array<char, N> bytes{};
    for (char& byte : bytes)
        byte = static_cast<char>(random.Between(0, 255));
    field = std::string_view(bytes.data(), bytes.size());
}

template <class... Fields>
void StirAll(Random& random, Fields&... fields)
{
    (Stir(random, fields), ...);
}

} // namespace

// Any bytes will do in the fields that no rule reads. They have to survive what the client does to a record.
void FillReservedFields(const SampleOptions& options)
{
    Random random(options.Seed, "reserved fields");
    League& league = LeagueData;
    StirAll(random, league.Reserved1, league.Reserved2, league.Reserved3, league.Reserved4, league.Reserved5,
            league.Reserved6, league.Reserved7, league.Reserved8, league.Reserved9, league.Reserved10,
            league.Reserved11, league.Reserved13, league.Reserved15, league.Reserved16, league.Reserved17);
    for (Division& division : league.Division)
        StirAll(random, division.Reserved1);
    for (Team& team : Teams)
        if (team.Number != 0)
            StirAll(random, team.Reserved1, team.Reserved2, team.Reserved3);
    for (Player& player : Players)
        if (player.Number != 0)
            StirAll(random, player.Reserved1, player.Reserved2, player.Reserved3, player.Reserved4, player.Reserved5);
    for (Goalie& goalie : Goalies)
        if (goalie.Number != 0)
            StirAll(random, goalie.Reserved1);
    for (Coach& coach : Coaches)
        if (coach.Number != 0)
            StirAll(random, coach.Reserved1);
}

} // namespace dravik::sample
