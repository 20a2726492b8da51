#pragma once

#include "session/Session.h"
#include "support/ClientFileBytes.h"

#include <algorithm>
#include <cstring>
#include <random>

namespace dravik {

// The bytes of one table or record.
template <class Table>
ByteVector ImageOf(const Table& table)
{
    ByteVector bytes(sizeof table);
    std::memcpy(bytes.data(), &table, sizeof table);
    return bytes;
}

// The five tables that a failed open empties, in one run of bytes.
inline ByteVector FiveTables()
{
    ByteVector all;
    for (const ByteVector& bytes :
         {ImageOf(Prospects), ImageOf(Players), ImageOf(Goalies), ImageOf(Teams), ImageOf(GameSchedule)})
        all.insert(all.end(), bytes.begin(), bytes.end());
    return all;
}

// Every table, in one run of bytes: what changes nothing leaves it as it was.
inline ByteVector AllTables()
{
    ByteVector all = FiveTables();
    for (const ByteVector& bytes :
         {ImageOf(LeagueData), ImageOf(Coaches), ImageOf(RosterChanges), ImageOf(RosterChangesGoalie)})
        all.insert(all.end(), bytes.begin(), bytes.end());
    return all;
}

inline bool IsZero(const ByteVector& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte == 0; });
}

inline bool FiveTablesAreEmpty() { return IsZero(FiveTables()); }

template <class Table>
void Scramble(Table& table, std::mt19937& random)
{
    ByteVector bytes(sizeof table);
    for (auto& byte : bytes)
        byte = static_cast<unsigned char>(random() >> 8);
    std::memcpy(static_cast<void*>(&table), bytes.data(), bytes.size());
}

// Fills every byte of every table of the client file with noise: what comes back from a file byte for byte was truly
// read from where it was written. The slots 0 stay empty; the date is a date and no default is due.
inline void ScrambleLeague(unsigned seed)
{
    std::mt19937 random(seed);
    Scramble(LeagueData, random);
    Scramble(Prospects, random);
    Scramble(Teams, random);
    Scramble(Players, random);
    Scramble(Goalies, random);
    Scramble(Coaches, random);
    Scramble(GameSchedule, random);
    Players[0] = {};
    Goalies[0] = {};
    LeagueData.FileDate = 45000.5;
    LeagueData.ProDressedSkaters = 19;
    LeagueData.MaxDressedGoalies = 3;
    LeagueData.RequiredCenters = 4;
    LeagueData.RequiredLeftWings = 5;
    LeagueData.RequiredRightWings = 6;
    LeagueData.RequiredDefensemen = 7;
    LeagueData.OverallWeightCK = 40;
}

} // namespace dravik
