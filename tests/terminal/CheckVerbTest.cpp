#include "support/ClientFileBytes.h"
#include "support/PeakMemory.h"
#include "support/SmallLeague.h"
#include "terminal/Verbs.h"

#include <iostream>
#include <sstream>

namespace dravik {
namespace {

// What is taken under a sanitizer is the sanitizer's.
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

// A league of which every record is in use, and every slot of every line empty: as much to tell as there can be.
class CheckVerbTest : public SmallLeague {
protected:
    CheckVerbTest() : league(Machine.InFolder("League.dvs"))
    {
        LeagueData.LeagueCode = "ABC12";
        LeagueData.FarmEnabled = true;
        for (int team = 1; team <= TeamTable::last; ++team)
            TeamMaker(team).DressesFullRoster().FarmsFullRoster();
        for (int index = 1; index <= PlayerTable::last; ++index)
            if (!Players[index].InUse)
                PutSkater(index, 0, 1 + index % 4, status::Farm);
        WriteWhole(league, Wrapped(ClientSlots(), 1));
    }

    void Check(std::vector<std::string> arguments)
    {
        CLI::App program;
        const terminal::Verb verb = terminal::AddCheck(program);
        arguments.insert(arguments.begin(), "check");
        std::reverse(arguments.begin(), arguments.end());
        program.parse(arguments);
        std::ostringstream text;
        std::streambuf* before = std::cout.rdbuf(text.rdbuf());
        EXPECT_EQ(verb.Run(), 1);
        std::cout.rdbuf(before);
    }

    std::string league;
};

TEST_F(CheckVerbTest, ALeagueTakesTwelveMebibytesAtMost)
{
    constexpr long limit = 12 * 1024;
    EXPECT_LT(PeakKiBOf([&] { Check({league}); }), limit);
    EXPECT_LT(PeakKiBOf([&] { Check({league, league, league, league}); }), limit) << "one after the other";
    EXPECT_LT(PeakKiBOf([&] { Check({"-j", "4", league, league, league, league}); }), 4 * limit);
}

#endif

} // namespace
} // namespace dravik
