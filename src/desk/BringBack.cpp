#include "desk/BringBack.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>

namespace dravik {

namespace {

constexpr std::size_t IdSize = sizeof(FreeAgentOffer::Id);
static_assert(offsetof(FreeAgentOffer, Id) == 0);

// The id that every offer had that the journal knows, as bytes. Choosing a person makes the offer his before anything of it is
// a step, so that it is his own unless a step has replaced other bytes.
class OfferIds {
public:
    void Look(const ByteDifference& difference)
    {
        const ByteDifference offers = Within(difference, DeskTable::Offers, DeskTable::Offers);
        RunReader reader(offers.Stored());
        while (const auto run = reader.Next())
            for (std::size_t i = 0; i < run->Before.size(); ++i)
                LookAt(run->Offset + i, run->Before[i]);
    }

    void Put(Market& market) const
    {
        for (const auto& [offer, bytes] : ids) {
            const Int16 own = offer;
            auto* id = reinterpret_cast<unsigned char*>(&market.Offers[offer].Id);
            for (std::size_t i = 0; i < IdSize; ++i)
                id[i] = bytes.at(i).value_or(reinterpret_cast<const unsigned char*>(&own)[i]);
        }
    }
    void Watch(History& history) const
    {
        for (const auto& [offer, bytes] : ids)
            history.Watch(offer);
    }

private:
    void LookAt(std::size_t offset, unsigned char before)
    {
        auto& bytes = ids[static_cast<int>(OfferTable::first) + static_cast<int>(offset / sizeof(FreeAgentOffer))];
        const std::size_t inOffer = offset % sizeof(FreeAgentOffer);
        if (inOffer < IdSize && !bytes.at(inOffer))
            bytes.at(inOffer) = before;
    }

    std::map<int, std::array<std::optional<unsigned char>, IdSize>> ids;
};

bool Go(const DeskContents& desk, const ByteDifference& over)
{
    if (!IsAt(desk, over, DifferenceEnd::Before))
        return false;
    Put(desk, over, DifferenceEnd::After);
    return true;
}

// Whether the work fits from end to end; tried on copies.
bool Fits(const Tables& league, const Market& market, const OfferIds& ids, const JournalRead& journal)
{
    const auto tables = Copy(league);
    const auto offers = std::make_unique<Market>(market);
    const DeskContents desk{*tables, offers.get()};
    ids.Put(*offers);
    return Go(desk, journal.Beginning) &&
           std::all_of(journal.Steps.begin(), journal.Steps.begin() + static_cast<std::ptrdiff_t>(journal.Done),
                       [&](const Step& step) { return Go(desk, step.Change); });
}

} // namespace

std::string BringBack(History& history, Tables& league, Market& market, const JournalRead& journal)
{
    if (history.ToUndo() != nullptr || history.ToRedo() != nullptr || history.IsOpen())
        return "It cannot be brought back behind what has been done since.";
    OfferIds ids;
    ids.Look(journal.Beginning);
    for (const Step& step : journal.Steps)
        ids.Look(step.Change);
    std::vector<Step> steps = journal.Steps;
    if (!Fits(league, market, ids, journal))
        return "It does not fit the league that is open.";

    ids.Put(market);
    ids.Watch(history);
    Go({league, &market}, journal.Beginning);
    history.Fold();
    std::size_t end = 0;
    for (bool goesOn = true; goesOn && end < steps.size(); ++end) {
        const Turned turned = history.Replay(std::move(steps[end]));
        goesOn = end < journal.Done || turned == Turned::Done || turned == Turned::Nothing;
        if (turned == Turned::Changed)
            break;
    }
    // What was undone is undone once more, and without room for that put back.
    while (end > journal.Done) {
        const ByteDifference& change = journal.Steps[--end].Change;
        if (!change.IsEmpty() && history.Undo() != Turned::Done)
            Put({league, &market}, change, DifferenceEnd::Before);
    }
    return {};
}

std::unique_ptr<Market> MarketOf(const KeptThere& kept)
{
    auto market = MakeMarket();
    auto* offers = reinterpret_cast<unsigned char*>(&market->Offers[OfferTable::first]);
    auto* ranking = reinterpret_cast<unsigned char*>(&market->Ranking);
    RunReader reader(kept.Content.Stored());
    while (const auto run = reader.Next()) {
        const bool isOffers = run->Table == DeskTable::Offers;
        std::copy(run->After.begin(), run->After.end(), (isOffers ? offers : ranking) + run->Offset);
        if (!isOffers)
            continue;
        constexpr std::size_t size = sizeof(FreeAgentOffer);
        for (std::size_t row = run->Offset / size; row <= (run->Offset + run->After.size() - 1) / size; ++row) {
            const int id = static_cast<int>(OfferTable::first) + static_cast<int>(row);
            market->Offers[id].Id = id;
        }
    }
    return market;
}

} // namespace dravik
