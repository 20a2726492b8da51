#include "league/ClientVariable.h"
#include "league/OffersFile.h"
#include "support/ScriptedPlatform.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <limits>
#include <memory>
#include <random>
#include <string_view>

// Saves an offer file full of random offers by the program's own routine, and beside it tells as JSON what was in the
// table. What the second reader makes of the file has to be the same.
namespace dravik {
namespace {

using Random = std::mt19937;

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

void TellText(std::ostream& out, std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    out << '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80)
            out << c;
        else
            out << "\\u00" << digits[code / 16] << digits[code % 16]; // the code page agrees there from 160 on
    }
    out << '"';
}

void TellOffers(std::ostream& out, int team, bool wrapped, const OfferTable& offers)
{
    out << "{\"wrapped\": " << (wrapped ? "true" : "false") << ", \"team\": " << team << ", \"league\": ";
    TellText(out, LeagueData.LeagueCode.Trimmed());
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

int Run(int argc, char** argv)
{
    if (argc != 5) {
        std::cerr << "usage: write_offers wrapped|plain SEED FILE.dvf EXPECTED.json\n";
        return 2;
    }
    const bool wrapped = std::string_view(argv[1]) == "wrapped";
    ScriptedPlatform machine;
    UseMachine(machine);
    if (!wrapped)
        machine.Settings["SkipZIPClient"] = "YES";
    TempFile = machine.InFolder("ClientTemp.dvt");

    Random random(static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
    const int team = 1 + static_cast<int>(random() % 100);
    LeagueData.LeagueCode = "AB\xE9 9";
    LeagueData.MinSalary = 500000;
    LeagueData.OffersLeft = MostOffers;
    const auto offers = std::make_unique<OfferTable>();
    Fill(*offers, random);
    if (WriteOffersFile(team, argv[3], *offers).Outcome != OffersFileWrite::Saved) {
        for (const Box& box : machine.Boxes())
            std::cerr << box.Text << "\n";
        return 1;
    }
    std::ofstream expected(argv[4]);
    TellOffers(expected, team, wrapped, *offers);
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
