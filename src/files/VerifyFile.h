#pragma once

#include "machine/Disk.h"
#include "machine/Voice.h"

#include <string>
#include <string_view>
#include <vector>

namespace dravik {

enum class SystemFile { Unknown, Client, Lines, Offers, Draft, Journal };

// What a file of the system was found to be. Texts are in the code page.
struct VerifiedFile {
    SystemFile Kind = SystemFile::Unknown;
    bool IsPlain = false;     // a bare slot file, or a journal
    std::string LeagueCode{}; // as far as it came
    int Team = 0;             // whose it is; 0 for a client file, and where it did not come so far
    std::vector<std::string> Findings{};
    long long Count = 0; // of all findings, those beyond `MostFindings` too
};

inline constexpr std::size_t MostFindings = 1000;

// Reads the file `path` to its end and looks at everything that can be wrong: the magics, the length, the checksum of a wrapper,
// and the ranges of every record. Of a journal the kind alone is told. Constant memory. Fails as the disk does.
VerifiedFile VerifyFile(Disk& disk, const std::string& path);

// What kind of file `path` is by its first bytes, in or out of a wrapper, whole or damaged. Fails as the disk does.
SystemFile SystemFileOf(Disk& disk, const std::string& path);

// What a kind of file is called: "client file".
std::string_view NameOf(SystemFile kind);

// Whether the file begins as a plain slot file does: bytes 2 to 5 begin its magic, where a wrapper has the head of a zlib
// stream. Fails as the disk does.
bool IsPlainFile(Disk& disk, const std::string& path);

} // namespace dravik
