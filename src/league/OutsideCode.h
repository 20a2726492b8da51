#pragma once

#include "league/Platform.h"

#include <cstddef>
#include <string>
#include <string_view>

// Wrappers of outside functions: the compressed wrapper of the files, the digest of passwords, the desktop's "open", and
// the small helpers of paths and texts.
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

// Whether an entry of this path is there, whatever the case of its name. Any failure counts as no; shows nothing.
bool FileExist(Disk& disk, const std::string& path);

// The path of the entry that FileExist found: `path` with the name as it stands on the disk. Without one, `path` itself.
std::string ExistingPath(Disk& disk, const std::string& path);

// The part of `path` behind its last separator; without one the whole text.
std::string GetFileName(const std::string& path);

// Deletes the file if it is there. A file whose name is the same but for the case of its letters is the same file only where
// the file system takes both for one.
void DeleteIfExists(Disk& disk, const std::string& path);

// Where a file of the team named `teamName` is saved: the program's folder, the name without spaces, `extension`. Fails
// with 75 when the name holds a character that no file name may hold, or is one that a system keeps for a device ("con").
std::string TeamFilePath(Disk& disk, std::string_view teamName, std::string_view extension);

// Whether the user has set `SkipZIPClient` to "YES": all files of the system are then plain slot files.
bool SkipZIPClient(Settings& settings);

// The digest text of `text`: 32 characters, two for each byte of its MD5 (RFC 1321) in order. A byte of 16 or more is in
// lower case; a smaller one is "0" and its digit in upper case, as the simulator stores its digests. Empty text after a
// failure, which is told.
std::string DigestStrToHexStr(Platform& machine, std::string_view text);

// `text` without the characters of code 32 or below, wherever they stand.
std::string RemoveSpaces(std::string_view text);

// `text` without the blanks at both ends.
std::string WithoutOuterBlanks(std::string_view text);

// `text` without its last `count` characters; empty when it has no more than these. A character outside the code page,
// which stands in a path as the byte 0x1A and its number in braces, counts as one.
std::string WithoutLastCharacters(std::string_view text, std::size_t count);

// Hands `location` to the desktop to open it; returns its answer, 0 after a failure, which is told.
int OpenLocation(Platform& machine, const std::string& location, int showMode);

} // namespace dravik
