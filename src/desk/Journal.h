#pragma once

#include "desk/ByteDifference.h"
#include "league/Field.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

// The form of a journal: what a manager did to a league, step by step, in bytes that are appended as it is done. docs/formats.md
// tells it byte by byte. JournalWriter writes it, ReadJournal reads it, BringBack does it once more.
namespace dravik {

using JournalDigest = std::array<std::uint8_t, 16>;

// Which league a journal is of, and from where on.
struct JournalHead {
    Text<5> LeagueCode;
    JournalDigest Beginning{}; // of the tables, as `BytesOfBeginning` gives them
    double FileDate = 0;       // of the client file
    double Begun = 0;          // days since 30 December 1899
};

// A number for bytes, and for whatever stands before them: a byte that is another one makes another number.
using Seal = std::uint64_t;
Seal SealOver(Seal before, std::string_view bytes);

// What an entry tells. The numbers stand in the files.
enum class JournalKind : unsigned char {
    Closed = 1,          // a step, which stands last
    Merged,              // more of the same drag belongs to the last step
    Folded,              // what was changed outside of a step belongs to the last step
    FoldedIntoBeginning, // or to the beginning
    Undone,              // the last step
    Redone,              // the one that was undone last
    Ended,               // no step before this can be undone
    Saved,               // a file of the team
    BroughtBack,         // all of it was done once more; a step without a change is none from here on
    Kept                 // what stands on a screen of the market, which the team closed
};

// The files that a manager saves.
enum class SavedFile : unsigned char { Lines = 1, Offers, Ranking };

// The bytes of an entry in front of what it tells, and those behind.
struct JournalEntryHead {
    Int32 Length; // of what it tells
    Byte Kind;
    Float64 Time; // days since 30 December 1899
};
constexpr std::size_t SealSize = 8;
static_assert(sizeof(JournalEntryHead) == 13 && alignof(JournalEntryHead) == 1);

// The league as it stands behind the opening in a program that has just started: what another opening has left of the words
// on players is gone. Fails without room, as the next one does.
std::unique_ptr<Tables> AsFreshlyOpened(const Tables& league);
// The bytes of such a league that a journal is bound to: all but the passwords.
std::string BytesOfBeginning(const Tables& fresh);

// A difference without the passwords in it.
ByteDifference WithoutPasswords(const ByteDifference& difference);

// The head as it stands in the file, with its seal, which that of the first entry follows.
std::string WriteJournalHead(const JournalHead& head);
// The head that these bytes begin with; else none, and why in words.
struct JournalHeadRead {
    std::optional<JournalHead> Head;
    Seal Sealed = 0;
    std::string Refused;
};
JournalHeadRead ReadJournalHead(std::string_view bytes);
// How long it is.
std::size_t JournalHeadSize();

// A seal as it stands in the file.
std::string WriteSeal(Seal seal);
Seal ReadSeal(std::string_view bytes);

} // namespace dravik
