#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace dravik {

using ByteVector = std::vector<unsigned char>;

// Where things stand in a client file.
namespace client_file {
inline constexpr std::size_t Slot = 3470;
inline constexpr std::size_t SlotCount = 16903;
// Offset of record `number`, counted from 1.
constexpr std::size_t Offset(std::size_t number) { return (number - 1) * Slot; }
} // namespace client_file

// The slots of a client file that holds the tables as they stand, the last slot no longer than its record. Written from
// the published layout, without a line of the reader's or writer's code.
ByteVector ClientSlots();

// The slots of the lines file of `team`, likewise.
ByteVector LinesSlots(int team);

// The wrapper of `slots`, made by compress2 in one call.
ByteVector Wrapped(const ByteVector& slots, int level = 9);

// What uncompress, called once as the readers of these files always did, makes of a wrapper; empty when it fails or
// nothing comes.
ByteVector Unwrapped(const ByteVector& wrapper);

ByteVector ReadWhole(const std::string& path);
void WriteWhole(const std::string& path, const ByteVector& bytes);
// Like WriteWhole, leaving holes where `bytes` are zeros: fast for slots.
void WriteSparse(const std::string& path, const ByteVector& bytes);

} // namespace dravik
