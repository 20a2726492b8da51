#include "files/OffersFile.h"

#include "files/Magics.h"
#include "files/ReplacedFile.h"
#include "files/SlotFile.h"
#include "files/TeamFilePath.h"
#include "league/PersonId.h"
#include "machine/Message.h"
#include "machine/Paths.h"

#include <utility>

namespace dravik {

namespace {

constexpr int FirstOffer = 4;     // record number
constexpr int RecordLimit = 1000; // the first record number that is not given out

// Calls `visit` with each offer that a file takes, in order.
template <class Offers, class Visit>
void EachSaved(const League& rules, Offers& offers, Visit&& visit)
{
    int record = FirstOffer;
    for (auto& offer : offers) {
        if (record == RecordLimit)
            return;
        if (!IsOffer(rules, offer) || offer.Id == 0)
            continue;
        visit(offer);
        ++record;
    }
}

// Whom an offer is for.
PersonId PersonOf(const FreeAgentOffer& offer) { return dravik::PersonOf(static_cast<int>(offer.Id)); }

bool IsToOthers(const Tables& league, const FreeAgentOffer& offer, int team)
{
    return OnPerson(league, PersonOf(offer), [team](const auto& person) { return person.Team != team; });
}

std::string Money(const Formats& shown, long long amount)
{
    return shown.CurrencyNoDecimals(static_cast<double>(amount));
}

std::string ReportLine(const Tables& league, const Formats& shown, const FreeAgentOffer& offer)
{
    const std::string name =
        OnPerson(league, PersonOf(offer), [](const auto& person) { return person.Name.Trimmed(); });
    return name + " was offer " + Money(shown, offer.Salary) + " for " + std::to_string(offer.Duration) +
           " year(s) with " + Money(shown, offer.Bonus) + " in bonus." + std::string(LineBreak);
}

// Takes the offers up to the end of the file. False at one that no offer file has.
bool ReadOffers(SlotReader& slots, int team, std::vector<FreeAgentOffer>& offers)
{
    constexpr std::size_t most = RecordLimit - FirstOffer;
    long long last = 0;
    while (!slots.IsAtEnd()) {
        FreeAgentOffer offer;
        if (offers.size() == most || !slots.Read(offer) || offer.Id <= last || !OfferTable::Has(offer.Id) ||
            offer.Team != team)
            return false;
        last = offer.Id;
        offers.push_back(offer);
    }
    return !offers.empty();
}

} // namespace

std::string OffersFilePath(const Tables& league, Disk& disk, int team)
{
    return TeamFilePath(disk, league.Teams[team].Name.Trimmed(), ".dvf");
}

bool IsOffer(const League& rules, const FreeAgentOffer& offer)
{
    return offer.Duration > 0 && offer.Salary >= rules.MinSalary;
}

OffersTally TallyOffers(const Tables& league, int team, const OfferTable& offers)
{
    OffersTally tally;
    EachSaved(league.LeagueData, offers, [&](const FreeAgentOffer& offer) {
        ++tally.Count;
        tally.ToOthers += IsToOthers(league, offer, team) ? 1 : 0;
        tally.Salaries += offer.Salary;
        tally.Bonuses += offer.Bonus;
    });
    return tally;
}

void EachOfferToSave(const League& rules, const OfferTable& offers,
                     const std::function<void(const FreeAgentOffer&)>& tell)
{
    EachSaved(rules, offers, tell);
}

SavedOffers WriteOffersFile(const Tables& league, const FileAccess& access, const Formats& shown, int team,
                            const std::string& target, OfferTable& offers)
{
    DeleteIfExists(access.Disk, access.WorkFile);
    ReplacedFile old(access, target);
    SavedOffers saved;
    EachSaved(league.LeagueData, offers, [&](FreeAgentOffer& offer) {
        offer.Team = team;
        saved.Report += ReportLine(league, shown, offer);
    });
    const OffersTally tally = TallyOffers(league, team, offers);
    if (tally.Count == 0) {
        saved.Outcome = OffersFileWrite::NoOffer;
        return saved;
    }
    if (tally.ToOthers > league.LeagueData.OffersLeft) {
        saved.Outcome = OffersFileWrite::TooMany;
        return saved;
    }
    const auto write = [&](SlotWriter& slots) {
        slots.WriteMagic(OffersFileStart);
        slots.Write(league.LeagueData.LeagueCode);
        slots.Write(Int16(team));
        EachSaved(league.LeagueData, std::as_const(offers), [&](const FreeAgentOffer& offer) { slots.Write(offer); });
    };
    const std::int64_t length = SlotFileLength(FirstOffer - 1 + tally.Count, OffersSlotLength, OffersSlotLength);
    if (!WriteSlotFile(SlotFilesOf(access), target, length, write, OffersSlotLength, access.WorkFile)) {
        saved.Outcome = OffersFileWrite::NotCompressed;
        return saved;
    }
    old.Replaced();
    saved.Outcome = OffersFileWrite::Saved;
    return saved;
}

TeamFileRead ReadOffersFile(const Tables& league, const FileAccess& access, int team, const std::string& path,
                            std::vector<FreeAgentOffer>& offers)
{
    const auto takeBack = [&] { offers.clear(); };
    takeBack();
    const auto read = [&](SlotReader& slots) {
        return ReadTeamFileHead(slots, OffersFileStart, league, team) && ReadOffers(slots, team, offers);
    };
    return ReadTeamFile(access, path, OffersSlotLength, read, takeBack);
}

} // namespace dravik
