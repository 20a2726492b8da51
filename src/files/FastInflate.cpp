#include "files/FastInflate.h"

#ifdef DRAVIK_ISAL

#include "files/BlockHead.h"
#include "files/ZlibWrapper.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <isa-l/igzip_lib.h>
#include <memory>
#include <optional>

namespace dravik {

namespace {

constexpr std::size_t Window = 1 << 16;
constexpr std::size_t InputSize = 1 << 15;
constexpr std::size_t Reach = ISAL_DEF_HIST_SIZE; // how far back a repeat looks
// How many bytes before the place where it goes on reading the inflater may still hold bits of.
constexpr std::size_t HeldBack = sizeof inflate_state::read_in;
// Every block costs the inflater its reach once more. Streams of blocks so small as this on the average, which no usual
// compressor makes, are left to zlib.
constexpr std::size_t SmallBlock = 512;
constexpr std::size_t BlocksAtOnce = 64;

// Ends the reading of a wrapper that zlib has to decide on.
struct LeftToZlib {};

// What comes out of a well-formed wrapper. Its inflater is more lenient than zlib: it takes incomplete codes, and gives
// bytes behind the place of an error. So it is led from block to block, the head of each is looked at before, and at the
// first doubt the reading ends with LeftToZlib. What has come is certain only when EndsWell has said so.
class FastInflateStream final : public ByteSource {
public:
    explicit FastInflateStream(ByteSource& wrapper) : source(wrapper), input(InputSize), window(Window)
    {
        const std::int64_t most = WrapperBound(ReadLength());
        if (most < 1)
            throw LeftToZlib{};
        left = most;
        CheckStreamHead();
        isal_inflate_init(&state);
    }

    Bytes Next() override
    {
        const auto room = static_cast<std::size_t>(std::min<std::int64_t>(left, Window));
        filled = 0;
        while (!ended && filled < room) {
            if (!inBlock)
                BeginBlock();
            Inflate(room);
        }
        left -= static_cast<std::int64_t>(filled);
        produced += filled;
        checksum = isal_adler32(checksum, window.data(), filled);
        return Bytes(window).first(filled);
    }

    // Reads on to the end of the stream, if it is not far away. Whether it is reached and the checksum right.
    bool EndsWell()
    {
        try {
            for (std::size_t more = 0; !ended && left > 0 && more <= MostBehindRecords; more += filled)
                Next();
        } catch (const std::exception&) { // NOLINT: zlib meets it too
        }
        return ended && produced > 0 && checksum == told;
    }

private:
    [[nodiscard]] std::size_t Available() const { return end - at; }

    // Makes at least `count` bytes available, or as many as are left in the source.
    bool Provide(std::size_t count)
    {
        while (Available() < count) {
            if (piece.empty())
                piece = source.Next();
            if (piece.empty())
                return false;
            if (end == input.size()) {
                const std::size_t from = at - std::min(at, HeldBack);
                std::copy(input.begin() + static_cast<std::ptrdiff_t>(from), input.end(), input.begin());
                at -= from;
                end -= from;
            }
            const std::size_t size = std::min(piece.size(), input.size() - end);
            std::copy_n(piece.begin(), size, input.begin() + static_cast<std::ptrdiff_t>(end));
            piece = piece.subspan(size);
            end += size;
        }
        return true;
    }

    template <class Number>
    Number Take(bool highestFirst)
    {
        if (!Provide(sizeof(Number)))
            throw LeftToZlib{};
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            value |= static_cast<std::uint32_t>(input[at + i]) << 8 * (highestFirst ? sizeof(Number) - 1 - i : i);
        at += sizeof(Number);
        return static_cast<Number>(value);
    }

    std::int32_t ReadLength() { return Take<std::int32_t>(false); }

    // The two bytes before the first block: deflate with its usual reach and no dictionary.
    void CheckStreamHead()
    {
        constexpr unsigned method = 0x78;
        constexpr unsigned dictionary = 0x20;
        constexpr unsigned divisor = 31;
        const auto head = Take<std::uint16_t>(true);
        if (head >> 8U != method || (head & dictionary) != 0 || head % divisor != 0)
            throw LeftToZlib{};
    }

    void BeginBlock()
    {
        BlockHead head = BlockHead::Cut;
        for (std::size_t needed = 1; head == BlockHead::Cut; needed = Available() + 1) {
            if (!Provide(needed))
                throw LeftToZlib{};
            head = LookAtBlockHead(Bytes(input).subspan(at, Available()), bit);
        }
        if (head == BlockHead::Odd || ++blocks > BlocksAtOnce + taken / SmallBlock)
            throw LeftToZlib{};
        lastBlock = (input[at] >> bit & 1U) != 0;
        isal_inflate_reset(&state);
        SetHistory();
        // Told that it is the last block, the inflater stops where it ends.
        state.read_in = (input[at] | 1U << bit) >> bit;
        state.read_in_length = static_cast<std::int32_t>(8 - bit);
        ++at;
        inBlock = true;
    }

    void SetHistory()
    {
        const std::size_t wanted = std::min(Reach, produced + filled);
        unsigned char* from = window.data() + filled - wanted;
        if (wanted > filled) {
            // The end of the full window before this one still stands where this one has not come to.
            const std::size_t before = wanted - filled;
            std::memcpy(history.data(), window.data() + Window - before, before);
            std::memcpy(history.data() + before, window.data(), filled);
            from = history.data();
        }
        if (isal_inflate_set_dict(&state, from, static_cast<std::uint32_t>(wanted)) != COMP_OK)
            throw LeftToZlib{};
    }

    void Inflate(std::size_t room)
    {
        const bool more = Provide(1);
        const std::size_t given = Available();
        state.next_in = input.data() + at;
        state.avail_in = static_cast<std::uint32_t>(given);
        state.next_out = window.data() + filled;
        state.avail_out = static_cast<std::uint32_t>(room - filled);
        if (isal_inflate(&state) != ISAL_DECOMP_OK)
            throw LeftToZlib{};
        filled = room - state.avail_out;
        at = end - state.avail_in;
        taken += given - state.avail_in;
        if (state.block_state == ISAL_BLOCK_FINISH)
            EndBlock();
        else if (state.avail_out > 0 && (state.avail_in > 0 || !more))
            throw LeftToZlib{}; // it stands still
    }

    void EndBlock()
    {
        inBlock = false;
        const std::size_t position = at * 8 - static_cast<std::size_t>(state.read_in_length);
        at = position / 8;
        bit = static_cast<unsigned>(position % 8);
        if (!lastBlock)
            return;
        ended = true;
        if (bit != 0)
            ++at;
        told = Take<std::uint32_t>(true);
    }

    ByteSource& source;
    Bytes piece; // of the source, not yet in `input`
    std::vector<unsigned char> input;
    std::size_t at = 0; // what of the input was not yet given to the inflater
    std::size_t end = 0;
    unsigned bit = 0; // of the byte `at`, between two blocks
    std::size_t taken = 0;
    std::size_t blocks = 0;
    bool inBlock = false;
    bool lastBlock = false;
    bool ended = false;
    std::int64_t left = 0;
    std::size_t filled = 0;   // of the window
    std::size_t produced = 0; // before this window
    std::uint32_t checksum = 1;
    std::uint32_t told = 0;
    std::vector<unsigned char> window;
    std::array<unsigned char, Reach> history{};
    inflate_state state{};
};

} // namespace

bool HasFastInflater() { return true; }

bool ReadFast(ByteSource& wrapper, const std::function<void(ByteSource&)>& read)
{
    try {
        const auto bytes = std::make_unique<FastInflateStream>(wrapper);
        read(*bytes);
        return bytes->EndsWell();
    } catch (const LeftToZlib&) {
        return false;
    }
}

} // namespace dravik

#else

namespace dravik {

bool HasFastInflater() { return false; }

bool ReadFast(ByteSource& /*wrapper*/, const std::function<void(ByteSource&)>& /*read*/) { return false; }

} // namespace dravik

#endif
