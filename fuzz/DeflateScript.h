#pragma once

#include "fuzz/Target.h"

#include <vector>

namespace dravik::fuzz {

// Writes a wrapper by hand, as a script tells: bytes that are nearly always a stream, whose blocks say what no compressor would.
// A byte of flags comes first (all upper bits set: two bytes of a stream's head follow; all lower bits set: the length field
// follows), then block after block, one byte that tells its kind before each:
//
//     stored     length, a byte to begin with and one to go on by; both lengths of its head may disagree
//     fixed      symbols
//     own codes  two codes and what is wrong with each, then symbols
//
// A code grows from two symbols by a split for each further one, which leaves it complete, and is then left so, or loses,
// shortens or lengthens a symbol, keeps a single one or none, or gets more symbols than there are. Symbols are chosen among
// those that have a code. The wrapper ends with the checksum of what a lenient reader makes of it, so that a reader which
// overlooks a bad code finds nothing else to object to.
std::vector<std::uint8_t> WriteDeflate(Input script);

} // namespace dravik::fuzz
