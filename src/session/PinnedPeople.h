#pragma once

#include "league/PersonId.h"

#include <optional>
#include <string>
#include <vector>

namespace dravik {

// Whom the manager has pinned in order to hold others against them: up to four skaters and up to four goalies, in the order in
// which he pinned them. They stay pinned on every screen as long as their slots are theirs, which their names tell, and in no
// other league than theirs, whatever names stand there.
class PinnedPeople {
public:
    static constexpr std::size_t Most = 4; // of a kind

    // Pins somebody, or lets him go again. False, and nothing is done, where as many of his kind are pinned as can be, and of
    // nobody: a slot that is not in use, the placeholder, or a number outside his table.
    bool Toggle(const Tables& league, PersonId who);
    // Whether he is somebody who cannot be pinned, since as many of his kind are as can be.
    [[nodiscard]] bool HasNoRoomFor(const Tables& league, PersonId who) const;
    void LetGoOfAll() { pinned.clear(); }

    [[nodiscard]] bool Has(const Tables& league, PersonId who) const;
    // Those of a kind, and the one of them who was pinned first.
    [[nodiscard]] std::vector<PersonId> Of(const Tables& league, bool goalies) const;
    [[nodiscard]] std::optional<PersonId> First(const Tables& league, bool goalies) const;

private:
    struct Pin {
        PersonId Who;
        std::string Name;
        std::string League; // by its code
    };
    [[nodiscard]] static bool IsStill(const Tables& league, const Pin& pin);

    std::vector<Pin> pinned;
};

// Those of the windows, as long as the program runs.
PinnedPeople& OpenPins();

} // namespace dravik
