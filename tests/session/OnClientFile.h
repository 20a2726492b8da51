#pragma once

#include "session/OpenLeagueClient.h"
#include "session/Session.h"
#include "support/LeagueImage.h"
#include "support/OpenedWindow.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <filesystem>

namespace dravik {

// A client file of the tables as they stand, and a window that hears what an open shows.
class OnClientFile : public SmallLeague {
protected:
    // Puts the tables as they stand into a file of the test's folder and gives its path. Plain unless told otherwise,
    // and the settings say so: that route is the quick one.
    std::string SavePlain(const std::string& name = "League.dvs")
    {
        Machine.Settings["SkipZIPClient"] = "YES";
        WriteSparse(Machine.InFolder(name), ClientSlots());
        return Machine.InFolder(name);
    }
    std::string SaveWrapped(const std::string& name = "League.dvs")
    {
        WriteWhole(Machine.InFolder(name), Wrapped(ClientSlots(), 1));
        return Machine.InFolder(name);
    }

    void Open(const std::string& path) { OpenLeagueClient(path, Window); }

    // Noise in every table but the league's rules, to see what a failed open leaves of it.
    void ScrambleTables()
    {
        const League rules = LeagueData;
        ScrambleLeague(77);
        LeagueData = rules;
        league = ImageOf(LeagueData);
        coaches = ImageOf(Coaches);
    }

    [[nodiscard]] bool LeagueDataIsUntouched() const { return ImageOf(LeagueData) == league; }
    [[nodiscard]] bool CoachesAreUntouched() const { return ImageOf(Coaches) == coaches; }

    void ExpectNothingRead() const
    {
        EXPECT_TRUE(FiveTablesAreEmpty());
        EXPECT_TRUE(LeagueDataIsUntouched());
        EXPECT_TRUE(CoachesAreUntouched());
    }

    [[nodiscard]] bool WorkFileIsThere() const { return std::filesystem::exists(TempFile); }

    // The names of what lies in the test's folder.
    [[nodiscard]] std::vector<std::string> FilesLeft() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(Machine.Folder()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    OpenedWindow Window;

private:
    ByteVector league;
    ByteVector coaches;
};

} // namespace dravik
