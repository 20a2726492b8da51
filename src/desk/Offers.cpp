#include "desk/Offers.h"

#include "desk/FreeAgents.h"
#include "files/OffersFile.h"
#include "league/Arithmetic.h"
#include "machine/InputCheck.h"
#include "machine/Message.h"

#include <set>

namespace dravik {

namespace {

std::string Money(const Formats& shown, long long amount)
{
    return shown.CurrencyNoDecimals(static_cast<double>(amount));
}

bool IsNumber(const Work& work, std::string_view text)
{
    return CheckInput(work.Says, text, InputMode::Numbers, false);
}

constexpr int MostYears = 9;
std::string YearsLimitWords() { return "Maximum Contract Duration is " + std::to_string(MostYears) + " years."; }

// An offer says nothing as long as it is nobody's.
bool IsWritten(const FreeAgentOffer& offer)
{
    if (offer.Id == 0)
        return false;
    return offer.Salary != 0 || offer.Duration != 0 || offer.Bonus != 0 || !offer.Comment.Trimmed().empty();
}

// Hears which limit does not hold, in words unless it goes without saying, and what is taken instead.
using TellsLimit = std::function<void(const std::string& words, int limit)>;

// A salary within the league's limits. The least has the last word, though it may be more than the most.
double SalaryWithinLimits(const Work& work, double salary, const TellsLimit& tell)
{
    const League& rules = work.League.LeagueData;
    const auto take = [&](const char* words, long long limit) {
        tell(words + Money(work.Shown, limit), static_cast<int>(limit));
        salary = static_cast<double>(limit);
    };
    if (salary > static_cast<double>(rules.MaxSalary))
        take("Maximum Salary is ", rules.MaxSalary);
    if (salary < static_cast<double>(rules.MinSalary))
        take("Minimum Salary is ", rules.MinSalary);
    return salary;
}

double YearsWithinLimits(double years, const TellsLimit& tell)
{
    const auto take = [&](const std::string& words, int limit) {
        tell(words, limit);
        years = limit;
    };
    if (years > MostYears)
        take(YearsLimitWords(), MostYears);
    if (years < 0)
        take("", 0);
    return years;
}

// Tells of a limit where something was typed, and shows there what is taken.
TellsLimit TellInBox(const Work& work, const TakesInstead& instead)
{
    return [&work, &instead](const std::string& words, int limit) {
        if (!words.empty())
            work.Says.ShowBox(words, box::Warning);
        instead(limit);
    };
}

// Brings an offer that was made elsewhere within the limits that hold where one is typed, and tells of it.
void HoldToLimits(const Work& work, PersonId who, FreeAgentOffer& offer, std::vector<std::string>& told)
{
    const TellsLimit tell = [&](const std::string& words, int /*limit*/) {
        if (!words.empty())
            told.push_back(NameOfNumber(work.League, who.CommonId()) + ": " + words);
    };
    if (offer.Salary != 0)
        offer.Salary = RoundToInt32(SalaryWithinLimits(work, static_cast<double>(offer.Salary), tell));
    offer.Duration = RoundToInt16(YearsWithinLimits(offer.Duration, tell));
}

} // namespace

void OpenOffers(const Work& work, int team, OfferTable& offers)
{
    for (FreeAgentOffer& offer : offers)
        offer = {};
    League& rules = work.League.LeagueData;
    if (rules.OffSeason)
        return;
    constexpr int usual = 100;
    if (rules.MaxOffers == 0)
        rules.MaxOffers = usual;
    rules.OffersLeft = rules.MaxOffers - work.League.Teams[team].OffersMade;
}

std::string OfferLimitWords(const League& rules)
{
    return "You can make " + std::to_string(rules.OffersLeft) +
           (rules.OffSeason ? " offers in total." : " offers to players you do not owned.");
}

const FreeAgentOffer* TakeOffer(const Tables& league, int team, OfferTable& offers, PersonId who)
{
    if (IsBarred(league, team, who))
        return nullptr;
    FreeAgentOffer& offer = offers[who.CommonId()];
    offer.Id = who.CommonId();
    return &offer;
}

Entered OfferSalary(const Work& work, OfferTable& offers, PersonId who, std::string_view text,
                    const TakesInstead& instead)
{
    if (!IsNumber(work, text))
        return Entered::Refused;
    const double salary = LeadingNumber(text);
    if (salary == 0)
        return Entered::NoChange;
    offers[who.CommonId()].Salary = RoundToInt32(SalaryWithinLimits(work, salary, TellInBox(work, instead)));
    return Entered::Stored;
}

Entered OfferDuration(const Work& work, OfferTable& offers, PersonId who, std::string_view text,
                      const TakesInstead& instead)
{
    if (!IsNumber(work, text))
        return Entered::Refused;
    offers[who.CommonId()].Duration = RoundToInt16(YearsWithinLimits(LeadingNumber(text), TellInBox(work, instead)));
    return Entered::Stored;
}

Entered OfferBonus(const Work& work, OfferTable& offers, PersonId who, std::string_view text)
{
    if (!IsNumber(work, text))
        return Entered::Refused;
    offers[who.CommonId()].Bonus = RoundToInt32(LeadingNumber(text));
    return Entered::Stored;
}

Entered OfferComment(const Work& work, OfferTable& offers, PersonId who, std::string_view text)
{
    if (!CheckInput(work.Says, text, InputMode::NumbersAndLetters, false))
        return Entered::Refused;
    offers[who.CommonId()].Comment = text;
    return Entered::Stored;
}

std::string OfferInShort(const Tables& league, const Formats& shown, const OfferTable& offers, PersonId who)
{
    if (!OfferTable::Has(who.CommonId()))
        return {};
    const FreeAgentOffer& offer = offers[who.CommonId()];
    if (offer.Id == 0 || !IsOffer(league.LeagueData, offer))
        return {};
    return Money(shown, offer.Salary) + " x " + std::to_string(offer.Duration);
}

std::optional<std::string> SaveOffers(const Work& work, const FileAccess& files, int team, OfferTable& offers)
{
    return SaveOffersAs(work, files, team, OffersFilePath(work.League, files.Disk, team), offers);
}

std::optional<std::string> SaveOffersAs(const Work& work, const FileAccess& files, int team, const std::string& target,
                                        OfferTable& offers)
{
    const SavedOffers saved = WriteOffersFile(work.League, files, work.Shown, team, target, offers);
    switch (saved.Outcome) {
    case OffersFileWrite::NotCompressed:
        return std::nullopt;
    case OffersFileWrite::NoOffer:
        work.Says.ShowBox("No Offer to Save!", box::Warning);
        return "";
    case OffersFileWrite::TooMany:
        work.Says.ShowBox("There is more that " + std::to_string(work.League.LeagueData.OffersLeft) + " offers!",
                          box::Warning);
        return "";
    case OffersFileWrite::Saved:
        break;
    }
    return saved.Report + "Client league file save for " + work.League.Teams[team].Name.Trimmed() + " succesfully at " +
           target + std::string(LineBreak);
}

std::vector<FreeAgentOffer> WrittenOffers(const OfferTable& offers)
{
    std::vector<FreeAgentOffer> written;
    for (const FreeAgentOffer& offer : offers)
        if (IsWritten(offer))
            written.push_back(offer);
    return written;
}

TakenIn TakeInOffers(const Work& work, int team, OfferTable& offers, const std::vector<FreeAgentOffer>& written,
                     const std::function<void(int)>& watch)
{
    std::set<int> listed;
    EachFreeAgent(work.League, offers, {}, [&](const FreeAgent& agent) { listed.insert(agent.Id); });
    for (int id = 1; id <= OfferTable::last; ++id) {
        if (!IsWritten(offers[id]))
            continue;
        watch(id);
        offers[id] = {};
    }
    TakenIn taken;
    for (const FreeAgentOffer& offer : written) {
        const auto id = static_cast<int>(offer.Id);
        const auto who = listed.count(id) != 0 ? FreeAgentOf(work.League, id) : std::nullopt;
        if (!who) {
            taken.Told.push_back(NameOfNumber(work.League, id) + " can no longer be made an offer.");
            continue;
        }
        if (IsBarred(work.League, team, *who)) {
            taken.Told.push_back(BarredWords(work.League, *who));
            continue;
        }
        watch(id);
        offers[id] = offer;
        HoldToLimits(work, *who, offers[id], taken.Told);
        ++taken.Count;
    }
    return taken;
}

LoadedFile LoadOffers(const Work& work, const FileAccess& files, int team, const std::string& path, OfferTable& offers,
                      const std::function<void(int)>& watch)
{
    LoadedFile loaded;
    std::vector<FreeAgentOffer> written;
    loaded.Outcome = ReadOffersFile(work.League, files, team, path, written);
    loaded.Words = LoadedWords(loaded.Outcome, "Offers file", work.League.Teams[team].Name.Trimmed(), path);
    if (loaded.Outcome == TeamFileRead::Loaded)
        loaded.TakenIn = TakeInOffers(work, team, offers, written, watch);
    return loaded;
}

} // namespace dravik
