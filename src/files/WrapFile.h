#pragma once

#include "machine/Disk.h"
#include "machine/Voice.h"

#include <string>

namespace dravik {

// Compresses the file `source` into the file `target` (4 bytes length, then one zlib stream of level 9). True when the
// target was written. A failure, an empty source among them, is told with the ending " in Zlib Compress!" and leaves
// `target` as it was. Constant memory.
bool ZlibCompress(Disk& disk, Voice& says, const std::string& source, const std::string& target);

// Decompresses the file `source` into the file `target`. A stream that does not decode is not reported as long as one
// byte comes out of it: what was decoded before the error is written. True when the target was written; a failure is
// told with the ending " in Zlib Decompress!" and leaves `target` as it was. Constant memory, whatever the length field
// claims.
bool ZlibDecompress(Disk& disk, Voice& says, const std::string& source, const std::string& target);

} // namespace dravik
