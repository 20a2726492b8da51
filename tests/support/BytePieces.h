#pragma once

#include "files/ByteStream.h"
#include "support/ClientFileBytes.h"

#include <algorithm>
#include <utility>

namespace dravik {

// Hands out bytes in pieces of a given length.
class Pieces final : public RewindableSource {
public:
    Pieces(ByteVector all, std::size_t length) : bytes(std::move(all)), pieceLength(length) {}

    Bytes Next() override
    {
        const std::size_t count = std::min(pieceLength, bytes.size() - at);
        const Bytes piece = Bytes(bytes).subspan(at, count);
        at += count;
        return piece;
    }
    void Rewind() override { at = 0; }

    [[nodiscard]] std::size_t HandedOut() const { return at; }

private:
    ByteVector bytes;
    std::size_t pieceLength;
    std::size_t at = 0;
};

// Keeps what is written to it.
class Collector final : public ByteSink {
public:
    void Write(Bytes bytes) override { All.insert(All.end(), bytes.begin(), bytes.end()); }

    ByteVector All;
};

} // namespace dravik
