#pragma once

#include "support/ClientFileBytes.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <cstdint>

namespace dravik {

// What a file without a stream ends in.
inline const Box NotDecompressed{box::Critical, "9 - Subscript out of range in Zlib Decompress!"};

// A league with something in every table, where its files lie, and how they go bad.
class BadFiles : public SmallLeague {
protected:
    BadFiles()
    {
        for (const int team : {5, 6}) {
            TeamMaker maker(team);
            maker.DressesFullRoster().FarmsFullRoster();
            FillLines(Teams[team].ProLines[1], maker.Skaters, maker.Skaters, maker.GoalieIds);
        }
        Prospects[1].Name = "A Prospect";
        Coaches[1].Name = "A Coach";
        LeagueData.FileDate = 45000;
        GameSchedule[5000].GameDay = 82;
        CurrentTeam = 5;
        ClientPath = Machine.InFolder("League.dvs");
        LinesPath = Machine.InFolder("Team5.dvl");
    }

    // The wrapper with another claim of what is in it.
    static ByteVector WithLength(ByteVector wrapper, std::int32_t length)
    {
        for (std::size_t i = 0; i < 4; ++i)
            wrapper[i] = static_cast<unsigned char>(static_cast<std::uint32_t>(length) >> (8 * i));
        return wrapper;
    }

    // The wrapper with another checksum.
    static ByteVector WithWrongChecksum(ByteVector wrapper)
    {
        wrapper.back() ^= 1U;
        return wrapper;
    }

    static ByteVector Cut(const ByteVector& bytes, std::size_t length)
    {
        return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)};
    }

    // A wrapper without an end in sight: the start magic and then zeros, four times as long as any league.
    static void WriteEndless(const std::string& path)
    {
        ByteVector endless(240000000);
        const std::string magic("\x26\0DRVK Client Files Version 1.12 - Start", 40);
        std::copy(magic.begin(), magic.end(), endless.begin());
        WriteWhole(path, WithLength(Wrapped(endless, 1), 2147483647));
    }

    std::string ClientPath;
    std::string LinesPath;
};

} // namespace dravik
