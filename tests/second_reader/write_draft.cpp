#include "Writer.h"

#include "support/Routines.h"

#include <iterator>
#include <random>
#include <string_view>

// Saves a draft file of random choices.
namespace dravik {
namespace {

struct Kind {
    std::string_view Name;
    int Added; // to an index
    int Last;  // index
};

constexpr Kind Kinds[] = {{"skater", 0, static_cast<int>(PlayerTable::last)},
                          {"goalie", GoalieOffset, static_cast<int>(GoalieTable::last)},
                          {"prospect", ProspectOffset, static_cast<int>(ProspectTable::last)}};

struct Choice {
    const Kind* Of;
    int Index;
};

// The limits of every kind first, then whoever comes.
Choice AnyChoice(int rank, Random& random)
{
    const Kind& kind = Kinds[static_cast<std::size_t>(rank) % std::size(Kinds)];
    const int round = rank / static_cast<int>(std::size(Kinds));
    if (round < 2)
        return {&kind, round == 0 ? 1 : kind.Last};
    return {&kind, std::uniform_int_distribution<int>(1, kind.Last)(random)};
}

bool Save(const Order& order, Random& random, std::ostream& expected)
{
    TellHead(expected, order);
    expected << ", \"choices\": [";
    DraftRanking ranking;
    for (int rank = 0; rank < order.Count; ++rank) {
        const Choice choice = AnyChoice(rank, random);
        ranking[rank] = choice.Of->Added + choice.Index;
        expected << (rank == 0 ? "" : ", ") << "[\"" << choice.Of->Name << "\", " << choice.Index << "]";
    }
    expected << "]}\n";
    return WriteDraftFile(order.Team, ranking, order.Path);
}

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::SaveAndTell(argc, argv, dravik::Save); }
