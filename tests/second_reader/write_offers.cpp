#include "Writer.h"

#include "support/Routines.h"

#include <limits>
#include <memory>
#include <random>
#include <string_view>

// Saves an offer file full of random offers by the program's own routine, and beside it tells as JSON what was in the
// table. What the second reader makes of the file has to be the same.
namespace dravik {
namespace {

constexpr int MostOffers = 996;

// Letters of both cases, blanks and some of the upper half of the code page, without a blank at either end.
std::string AnyComment(Random& random)
{
    constexpr std::string_view all =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789'*-./ \xC0\xC9\xE7\xFD";
    std::string comment(random() % 1001, 'x');
    for (std::size_t i = 1; i + 1 < comment.size(); ++i)
        comment[i] = all[random() % all.size()];
    return comment;
}

long long AnyMoney(Random& random, long long least)
{
    return std::uniform_int_distribution<long long>(least, std::numeric_limits<std::int32_t>::max())(random);
}

// More offers than a file takes, and among them some that are none.
void Fill(OfferTable& offers, Random& random)
{
    for (int id = 1; id <= OfferTable::last; ++id) {
        if (random() % 8 != 0 && id != 1 && id != OfferTable::last)
            continue;
        FreeAgentOffer& offer = offers[id];
        offer.Id = id;
        offer.Salary = AnyMoney(random, LeagueData.MinSalary);
        offer.Duration = 1 + random() % 9;
        offer.Bonus = AnyMoney(random, std::numeric_limits<std::int32_t>::min());
        if (random() % 3 != 0)
            offer.Comment = AnyComment(random);
        if (random() % 10 == 0)
            offer.Duration = 0;
        else if (random() % 10 == 0)
            offer.Salary = LeagueData.MinSalary - 1;
    }
}

bool WasEdited(const FreeAgentOffer& offer) { return offer.Comment.Raw().front() != '\0'; }

void TellOffers(std::ostream& out, const Order& order, const OfferTable& offers)
{
    TellHead(out, order);
    out << ", \"offers\": [";
    int told = 0;
    for (const FreeAgentOffer& offer : offers) {
        if (offer.Duration == 0 || offer.Salary < LeagueData.MinSalary || told == MostOffers)
            continue;
        out << (told++ == 0 ? "" : ",\n") << "{\"id\": " << offer.Id << ", \"salary\": " << offer.Salary
            << ", \"years\": " << offer.Duration << ", \"bonus\": " << offer.Bonus << ", \"comment\": ";
        TellText(out, offer.Comment.Trimmed());
        out << ", \"edited\": " << (WasEdited(offer) ? "true" : "false") << "}";
    }
    out << "]}\n";
}

bool Save(const Order& order, Random& random, std::ostream& expected)
{
    LeagueData.MinSalary = 500000;
    LeagueData.OffersLeft = MostOffers;
    const auto offers = std::make_unique<OfferTable>();
    Fill(*offers, random);
    if (WriteOffersFile(order.Team, order.Path, *offers).Outcome != OffersFileWrite::Saved)
        return false;
    TellOffers(expected, order, *offers);
    return true;
}

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::SaveAndTell(argc, argv, dravik::Save); }
