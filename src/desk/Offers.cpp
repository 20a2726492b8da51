#include "desk/Offers.h"

#include "desk/FreeAgents.h"
#include "files/OffersFile.h"
#include "league/Arithmetic.h"
#include "machine/InputCheck.h"
#include "machine/Message.h"

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
    double salary = LeadingNumber(text);
    if (salary == 0)
        return Entered::NoChange;
    const auto take = [&](const char* words, long long limit) {
        work.Says.ShowBox(words + Money(work.Shown, limit), box::Warning);
        instead(static_cast<int>(limit));
        salary = static_cast<double>(limit);
    };
    const League& rules = work.League.LeagueData;
    if (salary > static_cast<double>(rules.MaxSalary))
        take("Maximum Salary is ", rules.MaxSalary);
    if (salary < static_cast<double>(rules.MinSalary))
        take("Minimum Salary is ", rules.MinSalary);
    offers[who.CommonId()].Salary = RoundToInt32(salary);
    return Entered::Stored;
}

Entered OfferDuration(const Work& work, OfferTable& offers, PersonId who, std::string_view text,
                      const TakesInstead& instead)
{
    if (!IsNumber(work, text))
        return Entered::Refused;
    double years = LeadingNumber(text);
    const auto take = [&](int limit) {
        instead(limit);
        years = limit;
    };
    constexpr int most = 9;
    if (years > most) {
        work.Says.ShowBox("Maximum Contract Duration is " + std::to_string(most) + " years.", box::Warning);
        take(most);
    }
    if (years < 0)
        take(0);
    offers[who.CommonId()].Duration = RoundToInt16(years);
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
    const std::string target = OffersFilePath(work.League, files.Disk, team);
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

} // namespace dravik
