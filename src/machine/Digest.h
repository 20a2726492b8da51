#pragma once

#include "machine/Platform.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

// The digest text of `text`: 32 characters, two for each byte of its MD5 (RFC 1321) in order. A byte of 16 or more is in
// lower case; a smaller one is "0" and its digit in upper case, as the simulator stores its digests. Empty text after a
// failure, which is told.
std::string DigestStrToHexStr(Platform& machine, std::string_view text);

// The two steps on either side of the digest follow.

// The codes of the characters of `text` at the indices from 0, and one element more, which stays 0. Empty after a failure,
// which is told with the ending " in String To Array Function!".
std::vector<std::uint8_t> StringToArray(Voice& says, std::string_view text);

// The digest text of the 16 bytes `digest`. Empty after a failure, which is told with the ending " in Digest To String
// Function!".
std::string DigestToString(Voice& says, const std::array<std::uint8_t, 16>& digest);

} // namespace dravik
