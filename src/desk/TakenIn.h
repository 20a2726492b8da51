#pragma once

#include "files/TeamFileRead.h"

#include <string>
#include <string_view>
#include <vector>

namespace dravik {

// What came of work on the market that was taken in from elsewhere: how much of it stands there now, and a line on each person
// who was left out or whose offer had to be changed.
struct TakenIn {
    int Count = 0;
    std::vector<std::string> Told{};
};

// What became of a file of the market that was to be loaded: `Words` for the box that tells it, and what was taken in.
struct LoadedFile {
    TeamFileRead Outcome = TeamFileRead::NotDecompressed;
    std::string Words{};
    dravik::TakenIn TakenIn{};
};

// The name of a person by his common number (1..11000), or of a prospect (20001..20300), wherever he is now; "Number 9999" where the
// place is empty. Another number fails with 9.
std::string NameOfNumber(const Tables& league, int number);

// How the loading of a team's file is told: `kind` is what it should be ("Offers file"). Empty where that was told already.
std::string LoadedWords(TeamFileRead outcome, std::string_view kind, std::string_view teamName, std::string_view path);

} // namespace dravik
