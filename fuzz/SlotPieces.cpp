#include "fuzz/SlotPieces.h"

#include "files/SlotFile.h"

#include <algorithm>
#include <cstring>

namespace dravik::fuzz {

SlotPieces::SlotPieces(Input input)
{
    constexpr std::size_t head = 5;
    constexpr std::int64_t mostSlots = 17000;
    constexpr auto slotLength = static_cast<std::int64_t>(SlotLength);
    const auto word = [&input](std::size_t at) { return input[at] + std::int64_t{256} * input[at + 1]; };
    std::int64_t slot = 0;
    while (input.size() >= head) {
        slot = std::min(slot + word(0), mostSlots);
        const std::int64_t at = slot * slotLength + word(2) % slotLength;
        const std::size_t count = std::min<std::size_t>(input[4], input.size() - head);
        const Input bytes = input.subspan(head, count);
        pieces.push_back({std::max(at, length), {bytes.begin(), bytes.end()}});
        length = pieces.back().At + static_cast<std::int64_t>(count);
        input = input.subspan(head + count);
    }
}

void SlotPieces::Copy(std::int64_t at, void* data, std::size_t size) const
{
    if (size == 0)
        return;
    auto* to = static_cast<std::uint8_t*>(data);
    std::memset(to, 0, size);
    const auto end = at + static_cast<std::int64_t>(size);
    const auto endOf = [](const Piece& piece) { return piece.At + static_cast<std::int64_t>(piece.Bytes.size()); };
    auto piece = std::partition_point(pieces.begin(), pieces.end(), [&](const Piece& p) { return endOf(p) <= at; });
    for (; piece != pieces.end() && piece->At < end; ++piece) {
        const std::int64_t first = std::max(at, piece->At);
        const std::int64_t last = std::min(end, endOf(*piece));
        if (first < last)
            std::memcpy(to + (first - at), piece->Bytes.data() + (first - piece->At),
                        static_cast<std::size_t>(last - first));
    }
}

} // namespace dravik::fuzz
