#include "terminal/Utf8.h"

#include "league/Characters.h"
#include "league/Failure.h"

#include <cstddef>

namespace dravik::terminal {

namespace {

// Calls `whole(bytes)` for what is no control character, and `control(code)` for what is one.
void EachPiece(std::string_view text, const auto& whole, const auto& control)
{
    constexpr unsigned char deleted = 0x7F;
    constexpr unsigned char leadOfUpper = 0xC2; // of the control characters of two bytes, and of some others
    constexpr unsigned char firstUpper = 0x80;
    constexpr unsigned char lastUpper = 0x9F;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const auto next = static_cast<unsigned char>(at + 1 < text.size() ? text[at + 1] : 0);
        if (byte < ' ' || byte == deleted) {
            control(byte, text.substr(at + 1));
        } else if (byte == leadOfUpper && next >= firstUpper && next <= lastUpper) {
            ++at;
            control(next, text.substr(at + 1));
        } else {
            whole(text[at]);
        }
    }
}

// How many bytes follow the first byte of a character, and what of the character stands in that one.
struct Head {
    std::size_t Following;
    char32_t Bits;
};
Head HeadOf(unsigned char lead)
{
    if (lead < 0x80)
        return {0, lead};
    if (lead >= 0xC2 && lead < 0xE0)
        return {1, lead & 0x1FU};
    if (lead >= 0xE0 && lead < 0xF0)
        return {2, lead & 0x0FU};
    Fail(failure::InvalidCall); // no beginning, or a character far beyond the code page
}

} // namespace

std::string ToUtf8(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const char32_t character = CharacterOf(c);
        if (character < 0x80) {
            utf8 += static_cast<char>(character);
        } else if (character < 0x800) {
            utf8 += static_cast<char>(0xC0U | character >> 6U);
            utf8 += static_cast<char>(0x80U | (character & 0x3FU));
        } else {
            utf8 += static_cast<char>(0xE0U | character >> 12U);
            utf8 += static_cast<char>(0x80U | (character >> 6U & 0x3FU));
            utf8 += static_cast<char>(0x80U | (character & 0x3FU));
        }
    }
    return utf8;
}

std::string FromUtf8(std::string_view text)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        auto [following, character] = HeadOf(static_cast<unsigned char>(text[at++]));
        for (; following > 0; --following, ++at) {
            if (at == text.size() || (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U)
                Fail(failure::InvalidCall);
            character = character << 6U | (static_cast<unsigned char>(text[at]) & 0x3FU);
        }
        const auto byte = ByteOf(character);
        if (!byte)
            Fail(failure::InvalidCall);
        bytes += *byte;
    }
    return bytes;
}

std::string_view WithoutByteOrderMark(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.starts_with(mark) ? text.substr(mark.size()) : text;
}

std::string WithoutControls(std::string_view text)
{
    std::string harmless;
    EachPiece(
        text, [&](char letter) { harmless += letter; },
        [&](unsigned char control, std::string_view rest) {
            const bool endsLine = control == '\n' || (control == '\r' && rest.starts_with('\n'));
            harmless += endsLine || control == '\t' ? static_cast<char>(control) : ' ';
        });
    return harmless;
}

std::string WithEscapedControls(std::string_view json)
{
    constexpr unsigned char firstBeyond = 0x20; // below it there are only the ends of lines, as the rest is escaped
    constexpr unsigned digit = 16;
    constexpr std::string_view digits = "0123456789abcdef";
    std::string escaped;
    EachPiece(
        json, [&](char letter) { escaped += letter; },
        [&](unsigned char control, std::string_view /*rest*/) {
            if (control < firstBeyond)
                escaped += static_cast<char>(control);
            else
                escaped += {'\\', 'u', '0', '0', digits[control / digit], digits[control % digit]};
        });
    return escaped;
}

std::filesystem::path PathOf(const std::string& path) { return std::u8string(path.begin(), path.end()); }

std::string TextOf(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace dravik::terminal
