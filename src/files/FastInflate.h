#pragma once

#include "files/ByteStream.h"

#include <functional>

namespace dravik {

// Whether this build has a faster inflater than zlib's.
bool HasFastInflater();

// Has `read` read what comes out of `wrapper` by the faster inflater. True when the wrapper is well-formed to its end and the
// checksum right: then `read` was given what zlib would have given. False when not, or when there is no faster inflater:
// then what `read` was given, if it was called, counts for nothing, it may have been broken off by an exception that it must let
// pass, and zlib has to decide. Failures of `wrapper` and of `read` are thrown.
bool ReadFast(ByteSource& wrapper, const std::function<void(ByteSource&)>& read);

} // namespace dravik
