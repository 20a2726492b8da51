#include "screens/platform/CodePage.h"

#include "league/Characters.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>

namespace dravik {

namespace {

constexpr char Escape = 0x1A;
constexpr std::size_t LongestNumber = 6; // of a character, in hexadecimal digits

std::string Escaped(char32_t character)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text{Escape, '{'};
    int shift = 20;
    while (shift > 0 && (character >> shift) == 0)
        shift -= 4;
    for (; shift >= 0; shift -= 4)
        text += digits[(character >> shift) & 0xF];
    return text + '}';
}

struct EscapedCharacter {
    char32_t Character;
    std::size_t Length;
};

// The escaped character at the head of `bytes`. Only what `Escaped` writes counts: anything else that begins with the
// same byte is text.
std::optional<EscapedCharacter> LeadingEscape(std::string_view bytes)
{
    if (bytes.size() < 2 || bytes[0] != Escape || bytes[1] != '{')
        return std::nullopt;
    const std::size_t end = bytes.substr(0, 2 + LongestNumber + 1).find('}');
    if (end == std::string_view::npos)
        return std::nullopt;
    std::uint32_t number = 0;
    if (std::from_chars(bytes.data() + 2, bytes.data() + end, number, 16).ec != std::errc())
        return std::nullopt;
    const char32_t character = number;
    const bool isOutside = !ByteOf(character) || character == static_cast<char32_t>(Escape);
    if (character > QChar::LastValidCodePoint || !isOutside || Escaped(character) != bytes.substr(0, end + 1))
        return std::nullopt;
    return EscapedCharacter{character, end + 1};
}

void Append(QString& text, char32_t character)
{
    if (QChar::requiresSurrogates(character)) {
        text += QChar(QChar::highSurrogate(character));
        text += QChar(QChar::lowSurrogate(character));
    } else
        text += QChar(static_cast<char16_t>(character));
}

// Calls `use` with each character of `text`. A surrogate without its other half stands for itself.
template <class Use>
void ForEachCharacter(const QString& text, Use&& use)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar unit = text[at];
        if (unit.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
            use(static_cast<char32_t>(QChar::surrogateToUcs4(unit, text[++at])));
        else
            use(static_cast<char32_t>(unit.unicode()));
    }
}

} // namespace

QString ToQString(std::string_view bytes)
{
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (std::size_t at = 0; at < bytes.size();) {
        const auto escaped = LeadingEscape(bytes.substr(at));
        Append(text, escaped ? escaped->Character : CharacterOf(bytes[at]));
        at += escaped ? escaped->Length : 1;
    }
    return text;
}

std::string FromQString(const QString& text)
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    ForEachCharacter(text, [&bytes](char32_t character) { bytes += ByteOf(character).value_or('?'); });
    return bytes;
}

std::string FromQStringLossless(const QString& text)
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    ForEachCharacter(text, [&bytes](char32_t character) {
        const auto byte = ByteOf(character);
        // The escape byte itself is escaped too, or a name that holds it could be taken for an escape.
        if (byte && *byte != Escape)
            bytes += *byte;
        else
            bytes += Escaped(character);
    });
    return bytes;
}

std::string PathToProgram(const QString& path) { return FromQStringLossless(path); }

QString PathToDesktop(std::string_view path) { return ToQString(path); }

} // namespace dravik
