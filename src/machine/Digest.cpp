#include "machine/Digest.h"

#include "machine/Reporting.h"

#include <algorithm>

namespace dravik {

std::vector<std::uint8_t> StringToArray(Voice& says, std::string_view text)
{
    std::vector<std::uint8_t> codes;
    Reporting(says, " in String To Array Function!", [&] {
        std::vector<std::uint8_t> filled(text.size() + 1);
        std::transform(text.begin(), text.end(), filled.begin(), [](char c) { return static_cast<std::uint8_t>(c); });
        codes = std::move(filled);
    });
    return codes;
}

std::string DigestToString(Voice& says, const std::array<std::uint8_t, 16>& digest)
{
    // A byte below 16 has its digit in upper case, a longer one both in lower case: "0C", but "ac". The simulator writes
    // its digests so, and they are compared as texts.
    constexpr std::string_view upper = "0123456789ABCDEF";
    constexpr std::string_view lower = "0123456789abcdef";
    std::string text;
    Reporting(says, " in Digest To String Function!", [&] {
        std::string pairs;
        pairs.reserve(2 * digest.size());
        for (const unsigned byte : digest) {
            const std::string_view digits = byte < 16 ? upper : lower;
            pairs += digits[byte / 16];
            pairs += digits[byte % 16];
        }
        text = std::move(pairs);
    });
    return text;
}

std::string DigestStrToHexStr(Platform& machine, std::string_view text)
{
    std::string digestText;
    Reporting(machine, " in Digest Str To HexStr Function!", [&] {
        const std::vector<std::uint8_t> codes = StringToArray(machine, text);
        // Without its array the text has no digest at all, rather than the one of the empty text.
        if (codes.size() <= text.size())
            Fail(failure::OutOfRange);
        // The spare element is not part of the text.
        digestText = DigestToString(machine, machine.Md5({reinterpret_cast<const char*>(codes.data()), text.size()}));
    });
    return digestText;
}

} // namespace dravik
