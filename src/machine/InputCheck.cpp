#include "machine/InputCheck.h"

#include "machine/Reporting.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace dravik {

namespace {

// What a character means in a mode. A proper one is what a required text must hold at least once.
struct CharacterClass {
    bool Accepted;
    bool Proper;
};

constexpr CharacterClass Refused{false, false};
constexpr CharacterClass Proper{true, true};
constexpr CharacterClass Accepted{true, false};
// The six signs between the capital and the small letters: refused, and yet they count as input.
constexpr CharacterClass RefusedAsProper{false, true};

struct CharacterRange {
    InputMode Mode;
    unsigned char First;
    unsigned char Last;
    CharacterClass Class;
};

// What is in no range is refused.
constexpr CharacterRange CharacterRanges[] = {
    {InputMode::Numbers, '0', '9', Proper},
    {InputMode::Numbers, '-', '-', Accepted},

    {InputMode::Letters, 'A', 'Z', Proper},
    {InputMode::Letters, 'a', 'z', Proper},
    {InputMode::Letters, '[', '`', RefusedAsProper},
    {InputMode::Letters, ' ', ' ', Accepted},
    {InputMode::Letters, '\'', '\'', Accepted},
    {InputMode::Letters, '*', '*', Accepted},
    {InputMode::Letters, '-', '/', Accepted}, // and the point between them
    {InputMode::Letters, 192, 253, Accepted},

    {InputMode::NumbersAndLetters, 'A', 'Z', Proper},
    {InputMode::NumbersAndLetters, 'a', 'z', Proper},
    {InputMode::NumbersAndLetters, '[', '`', RefusedAsProper},
    {InputMode::NumbersAndLetters, ' ', ' ', Accepted},
    {InputMode::NumbersAndLetters, '\'', '\'', Accepted},
    {InputMode::NumbersAndLetters, '*', '*', Accepted},
    {InputMode::NumbersAndLetters, '-', '9', Accepted}, // the digits among them
    {InputMode::NumbersAndLetters, 192, 253, Accepted},
};

constexpr Row<std::string_view, 0, 2> AllowedCharacters = [] {
    Row<std::string_view, 0, 2> allowed;
    allowed[0] = "Only numbers";
    allowed[1] = "Only letters and spaces";
    allowed[2] = "Only numbers, letters and spaces";
    return allowed;
}();

CharacterClass ClassOf(char character, InputMode mode)
{
    const auto code = static_cast<unsigned char>(character);
    const auto* found = std::find_if(std::begin(CharacterRanges), std::end(CharacterRanges), [&](const auto& range) {
        return range.Mode == mode && code >= range.First && code <= range.Last;
    });
    return found == std::end(CharacterRanges) ? Refused : found->Class;
}

} // namespace

bool CheckInput(Voice& says, std::string_view text, InputMode mode, bool required, bool silent)
{
    // The walk alone refuses nothing: a refusal is made together with its message.
    if (silent || mode > InputMode::NumbersAndLetters)
        return true;
    bool result = false;
    Reporting(says, " in CheckInput", [&] {
        bool proper = false;
        bool refused = false;
        for (auto at = text.begin(); at != text.end() && !refused; ++at) {
            const CharacterClass character = ClassOf(*at, mode);
            proper = proper || character.Proper;
            refused = !character.Accepted;
        }
        if (!proper && (required || mode == InputMode::Numbers)) {
            says.ShowBox("No Valid Input!", box::Warning);
        } else if (refused) {
            const std::string allowed(AllowedCharacters[static_cast<int>(mode)]);
            says.ShowBox(allowed + " are allowed in that textbox!", box::Warning);
        } else {
            result = true;
        }
    });
    return result;
}

} // namespace dravik
