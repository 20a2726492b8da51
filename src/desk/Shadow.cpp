#include "desk/Shadow.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr std::size_t OfferSize = sizeof(FreeAgentOffer);

const unsigned char* FirstByte(const auto& record) { return reinterpret_cast<const unsigned char*>(&record); }
unsigned char* FirstByte(auto& record) { return reinterpret_cast<unsigned char*>(&record); }

std::size_t OffsetOfOffer(int offer) { return static_cast<std::size_t>(offer - OfferTable::first) * OfferSize; }

} // namespace

Shadow::Shadow(const DeskContents& desk) : league(Copy(desk.League))
{
    if (desk.Market != nullptr)
        Join(*desk.Market);
}

void Shadow::Join(const Market& market) noexcept
{
    if (!ranking)
        ranking = market.Ranking;
}

void Shadow::Watch(const Market& market, int offer)
{
    if (OfferTable::Has(offer))
        offers.try_emplace(offer, market.Offers[offer]);
}

ByteDifference Shadow::Behind(const DeskContents& desk) const
{
    DifferenceWriter writer;
    const DeskContents before{*league};
    for (const DeskTable table : LeagueTables)
        AddDifference(writer, table, FirstByteOf(before, table), FirstByteOf(desk, table), SizeOf(table));
    if (desk.Market == nullptr)
        return writer.Finish();
    const Market& market = *desk.Market;
    for (const auto& [number, offer] : offers)
        writer.Add(DeskTable::Offers, OffsetOfOffer(number), {FirstByte(offer), OfferSize},
                   {FirstByte(market.Offers[number]), OfferSize});
    if (ranking)
        AddDifference(writer, DeskTable::Ranking, FirstByte(*ranking), FirstByte(market.Ranking), sizeof *ranking);
    return writer.Finish();
}

void Shadow::Follow(const ByteDifference& difference, DifferenceEnd to) noexcept
{
    const DeskContents kept{*league};
    RunReader reader(difference.Stored());
    while (const auto run = reader.Next()) {
        const Bytes bytes = to == DifferenceEnd::Before ? run->Before : run->After;
        if (unsigned char* table = FirstByteOf(kept, run->Table))
            std::copy(bytes.begin(), bytes.end(), table + run->Offset);
        else if (run->Table == DeskTable::Offers)
            FollowOffers(run->Offset, bytes);
        else if (ranking)
            std::copy(bytes.begin(), bytes.end(), FirstByte(*ranking) + run->Offset);
    }
}

// A run may begin in one offer and end in the next.
void Shadow::FollowOffers(std::size_t offset, Bytes bytes) noexcept
{
    while (!bytes.empty()) {
        const std::size_t inside = offset % OfferSize;
        const std::size_t length = std::min(bytes.size(), OfferSize - inside);
        const auto offer = offers.find(OfferTable::first + static_cast<int>(offset / OfferSize));
        if (offer != offers.end())
            std::copy_n(bytes.begin(), length, FirstByte(offer->second) + inside);
        bytes = bytes.subspan(length);
        offset += length;
    }
}

std::size_t Shadow::Held() const
{
    constexpr std::size_t node = sizeof(std::pair<const int, FreeAgentOffer>) + 4 * sizeof(void*);
    return sizeof *this + sizeof(Tables) + offers.size() * node;
}

} // namespace dravik
