#pragma once

#include "fuzz/MemoryPlatform.h"
#include "fuzz/Target.h"

#include <vector>

namespace dravik::fuzz {

// A slot file in a few bytes: zeros up to 59 million long, with pieces in them. A piece in the input is 2 bytes for how
// many slots to go on, 2 for the offset in the slot, 1 for its length, and its bytes; all numbers little-endian. A piece
// never goes back behind the one before. The file ends with the last piece.
class SlotPieces final : public Content {
public:
    explicit SlotPieces(Input input);

    [[nodiscard]] std::int64_t Length() const override { return length; }
    void Copy(std::int64_t at, void* data, std::size_t size) const override;

private:
    struct Piece {
        std::int64_t At;
        std::vector<std::uint8_t> Bytes;
    };

    std::vector<Piece> pieces;
    std::int64_t length = 0;
};

} // namespace dravik::fuzz
