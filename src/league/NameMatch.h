#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace dravik {

// Where a part of a name stands: `Length` bytes from the byte `First` on.
struct NamePart {
    std::size_t First = 0;
    std::size_t Length = 0;
    bool BeginsWord = false; // of the name, "Aubremont" in "D'Aubremont" included

    bool operator==(const NamePart&) const = default;
};

// What somebody typed of a name, to be looked for in many names.
class NameMatch {
public:
    // Neither case nor accents count; a letter that is two in one is both (the sharp s, the ligatures of ae and oe, thorn),
    // a hyphen is a blank, and an apostrophe or a point within a name need not be typed. `typed` is bytes of the code page.
    explicit NameMatch(std::string_view typed);

    // The first part of `name`, bytes of the code page too, that begins a word and is what was typed; without one, the first
    // part that is; none where none is. Who typed nothing finds it at the beginning of every name. Looking takes no memory.
    [[nodiscard]] std::optional<NamePart> In(std::string_view name) const;

private:
    std::string sought; // in plain letters
};

// A name in the letters that names are compared by, so that names stand in the order of the alphabet: small, without accents, a
// letter that is two in one as both, blanks at its ends left out.
std::string PlainLettersOf(std::string_view name);

} // namespace dravik
