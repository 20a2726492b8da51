#include "league/OffersFile.h"

#include "league/ClientVariable.h"
#include "league/Message.h"
#include "league/OldFile.h"
#include "league/OutsideCode.h"
#include "league/Platform.h"
#include "league/SlotFile.h"

#include <utility>

namespace dravik {

namespace {

constexpr std::string_view StartMagic = "DRVK Free Agents Files Version 1 - Start";
constexpr std::size_t OfferSlot = sizeof(FreeAgentOffer);
constexpr int FirstOffer = 4;     // record number
constexpr int RecordLimit = 1000; // the first record number that is not given out

// Calls `visit` with each offer that a file takes, in order.
template <class Offers, class Visit>
void EachSaved(Offers& offers, Visit&& visit)
{
    int record = FirstOffer;
    for (auto& offer : offers) {
        if (record == RecordLimit)
            return;
        if (!IsOffer(offer) || offer.Id == 0)
            continue;
        visit(offer);
        ++record;
    }
}

// What `visit` makes of the record of the person whom an offer is for.
template <class Visit>
auto OnPerson(const FreeAgentOffer& offer, Visit&& visit)
{
    return offer.Id > GoalieOffset ? visit(Goalies[offer.Id - GoalieOffset]) : visit(Players[offer.Id]);
}

bool IsToOthers(const FreeAgentOffer& offer, int team)
{
    return OnPerson(offer, [team](const auto& person) { return person.Team != team; });
}

std::string Money(long long amount) { return Machine().CurrencyNoDecimals(static_cast<double>(amount)); }

std::string ReportLine(const FreeAgentOffer& offer)
{
    const std::string name = OnPerson(offer, [](const auto& person) { return person.Name.Trimmed(); });
    return name + " was offer " + Money(offer.Salary) + " for " + std::to_string(offer.Duration) + " year(s) with " +
           Money(offer.Bonus) + " in bonus." + std::string(LineBreak);
}

} // namespace

std::string OffersFilePath(int team) { return TeamFilePath(Teams[team].Name.Trimmed(), ".dvf"); }

bool IsOffer(const FreeAgentOffer& offer) { return offer.Duration > 0 && offer.Salary >= LeagueData.MinSalary; }

OffersTally TallyOffers(int team, const OfferTable& offers)
{
    OffersTally tally;
    EachSaved(offers, [&](const FreeAgentOffer& offer) {
        ++tally.Count;
        tally.ToOthers += IsToOthers(offer, team) ? 1 : 0;
        tally.Salaries += offer.Salary;
        tally.Bonuses += offer.Bonus;
    });
    return tally;
}

SavedOffers WriteOffersFile(int team, const std::string& target, OfferTable& offers)
{
    DeleteIfExists(TempFile);
    OldFile old(target);
    SavedOffers saved;
    EachSaved(offers, [&](FreeAgentOffer& offer) {
        offer.Team = team;
        saved.Report += ReportLine(offer);
    });
    const OffersTally tally = TallyOffers(team, offers);
    if (tally.Count == 0) {
        saved.Outcome = OffersFileWrite::NoOffer;
        return saved;
    }
    if (tally.ToOthers > LeagueData.OffersLeft) {
        saved.Outcome = OffersFileWrite::TooMany;
        return saved;
    }
    const auto write = [&](SlotWriter& slots) {
        slots.WriteMagic(StartMagic);
        slots.Write(LeagueData.LeagueCode);
        slots.Write(Int16(team));
        EachSaved(std::as_const(offers), [&](const FreeAgentOffer& offer) { slots.Write(offer); });
    };
    const std::int64_t length = SlotFileLength(FirstOffer - 1 + tally.Count, OfferSlot, OfferSlot);
    if (!WriteSlotFile(target, length, write, OfferSlot, TempFile)) {
        saved.Outcome = OffersFileWrite::NotCompressed;
        return saved;
    }
    old.Replaced();
    saved.Outcome = OffersFileWrite::Saved;
    return saved;
}

} // namespace dravik
