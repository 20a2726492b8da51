#pragma once

#include "files/ByteStream.h"

namespace dravik {

// What a look at the head of a block of a deflate stream gives. `Odd` is a head that no usual compressor writes: zlib takes
// some of these and refuses others.
enum class BlockHead { Usual, Odd, Cut };

// Looks at the head of the block whose first bit is bit `bit` (0 to 7, from the lowest) of `stream`. `Cut` when `stream` ends
// within the head. The head of a compressed block is usual when its three codes are complete and the one of literals can end
// the block; that of a stored block when both its lengths agree. Shows nothing and never fails.
BlockHead LookAtBlockHead(Bytes stream, unsigned bit);

} // namespace dravik
