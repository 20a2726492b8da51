#include "league/ClientVariable.h"
#include "league/DraftFile.h"
#include "support/ScriptedPlatform.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string_view>

// Saves a draft file of random choices by the program's own routine, and beside it tells as JSON whom it ranked. What the
// second reader makes of the file has to be the same.
namespace dravik {
namespace {

using Random = std::mt19937;

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

int Run(int argc, char** argv)
{
    if (argc != 6) {
        std::cerr << "usage: write_draft wrapped|plain SEED COUNT FILE.dvd EXPECTED.json\n";
        return 2;
    }
    const bool wrapped = std::string_view(argv[1]) == "wrapped";
    ScriptedPlatform machine;
    UseMachine(machine);
    if (!wrapped)
        machine.Settings["SkipZIPClient"] = "YES";
    TempFile = machine.InFolder("ClientTemp.dvt");

    Random random(static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
    const int count = std::atoi(argv[3]);
    const int team = 1 + static_cast<int>(random() % 100);
    LeagueData.LeagueCode = "AB\xE9 9";
    std::ofstream expected(argv[5]);
    expected << "{\"wrapped\": " << (wrapped ? "true" : "false") << ", \"team\": " << team
             << ", \"league\": \"AB\\u00e9 9\", \"choices\": [";
    DraftRanking ranking;
    for (int rank = 0; rank < count; ++rank) {
        const Choice choice = AnyChoice(rank, random);
        ranking[rank] = choice.Of->Added + choice.Index;
        expected << (rank == 0 ? "" : ", ") << "[\"" << choice.Of->Name << "\", " << choice.Index << "]";
    }
    expected << "]}\n";
    if (!WriteDraftFile(team, ranking, argv[4])) {
        for (const Box& box : machine.Boxes())
            std::cerr << box.Text << "\n";
        return 1;
    }
    return expected.flush() ? 0 : 1;
}

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    try {
        return dravik::Run(argc, argv);
    } catch (const std::exception& failed) {
        std::cerr << failed.what() << "\n";
        return 1;
    }
}
