// Reads an offer file or a draft file of any bytes, plain or wrapped, and takes in what it holds: a file that was read is written
// back to the same content, offers stand within the limits, everybody is ranked once, and a refused file changes nothing.

#include "desk/Offers.h"
#include "desk/Ranking.h"
#include "files/OffersFile.h"
#include "fuzz/MemoryPlatform.h"
#include "fuzz/TableLeague.h"
#include "machine/Reporting.h"
#include "session/OpenMarket.h"
#include "session/Session.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <set>

namespace dravik::fuzz {

namespace {

template <class Record>
bool AreSame(const Record& one, const Record& other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

void TakeInOffersOf(const std::string& path)
{
    OfferTable& offers = OpenMarket().Offers;
    offers[1].Id = 1;
    offers[1].Bonus = 9;
    const LoadedFile loaded = LoadOffers(OpenWork(), OpenFiles(), 1, path, offers, [](int) {});
    const std::vector<FreeAgentOffer> standing = WrittenOffers(offers);
    if (loaded.Outcome != TeamFileRead::Loaded) {
        Require(standing.size() == 1 && standing[0].Bonus == 9);
        return;
    }
    Require(static_cast<int>(standing.size()) <= loaded.TakenIn.Count);
    for (const FreeAgentOffer& offer : standing) {
        Require(offer.Salary == 0 || (offer.Salary >= LeagueData.MinSalary &&
                                      offer.Salary <= std::max(LeagueData.MaxSalary, LeagueData.MinSalary)));
        Require(offer.Duration >= 0 && offer.Duration <= 9);
    }
    std::vector<FreeAgentOffer> read;
    Require(ReadOffersFile(OpenLeague, OpenFiles(), 1, path, read) == TeamFileRead::Loaded);
    for (FreeAgentOffer& offer : offers)
        offer = {};
    for (const FreeAgentOffer& offer : read)
        offers[offer.Id] = offer;
    std::vector<FreeAgentOffer> again;
    if (WriteOffersFile(OpenLeague, OpenFiles(), Machine(), 1, path, offers).Outcome != OffersFileWrite::Saved)
        return; // some that are no offers, or more than are left
    Require(ReadOffersFile(OpenLeague, OpenFiles(), 1, path, again) == TeamFileRead::Loaded);
    for (const FreeAgentOffer& offer : again)
        Require(AreSame(offer, offers[offer.Id]));
}

void TakeInRankingOf(const std::string& path)
{
    DraftRanking ranking;
    ranking[0] = 7;
    const LoadedFile loaded = LoadRanking(OpenLeague, OpenFiles(), 1, path, ranking);
    if (loaded.Outcome != TeamFileRead::Loaded) {
        Require(ranking[0] == 7 && ranking[1] == 0);
        return;
    }
    std::set<long long> ranked;
    for (const long long id : ranking)
        Require(id == 0 || ranked.insert(id).second);
    Require(static_cast<int>(ranked.size()) == loaded.TakenIn.Count);
    DraftRanking read;
    DraftRanking again;
    Require(ReadDraftFile(OpenLeague, OpenFiles(), 1, path, read) == TeamFileRead::Loaded);
    Require(WriteDraftFile(OpenLeague, OpenFiles(), 1, read, path));
    Require(ReadDraftFile(OpenLeague, OpenFiles(), 1, path, again) == TeamFileRead::Loaded && AreSame(read, again));
}

} // namespace

// The first byte chooses the kind of file and whether it is wrapped.
void RunTarget(Input input)
{
    static MemoryPlatform machine;
    static const bool made = [] {
        UseMachine(machine);
        MakeTableLeague();
        LeagueData.FantasyDraft = true;
        LeagueData.OffersLeft = 900;
        return true;
    }();
    Require(made);
    if (input.empty())
        return;
    const bool isDraft = (input[0] & 1U) != 0;
    machine.UsePlainFiles((input[0] & 2U) != 0);
    machine.BoxCount = 0;
    EmptyOpenMarket();
    const std::string path = InFolder(isDraft ? "Team.dvd" : "Team.dvf");
    machine.Files = {{path, std::make_shared<PlainContent>(std::vector<std::uint8_t>(input.begin() + 1, input.end()))}};
    TempFile = InFolder("ClientTemp.dvt");
    Require(Reporting(Machine(), " in cmdLoad!", [&] { isDraft ? TakeInRankingOf(path) : TakeInOffersOf(path); }));
    Require(machine.Files.size() == 1);
}

} // namespace dravik::fuzz
