#pragma once

#include "league/Voice.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The two steps on either side of the digest that makes `DigestStrToHexStr`; see OutsideCode.h.
namespace dravik {

// The codes of the characters of `text` at the indices from 0, and one element more, which stays 0. Empty after a
// failure, which is told with the ending " in String To Array Function!".
std::vector<std::uint8_t> StringToArray(Voice& says, std::string_view text);

// The digest text of the 16 bytes `digest`. Empty after a failure, which is told with the ending " in Digest To String
// Function!".
std::string DigestToString(Voice& says, const std::array<std::uint8_t, 16>& digest);

} // namespace dravik
