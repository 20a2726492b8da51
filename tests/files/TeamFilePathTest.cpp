#include "files/TeamFilePath.h"

#include "league/Failure.h"
#include "session/Session.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using TeamFilePathTest = SmallLeague;

TEST_F(TeamFilePathTest, TeamFilesLieInTheProgramsFolderUnderTheNameWithoutSpaces)
{
    EXPECT_EQ(TeamFilePath(Machine, " New  York ", ".dvl"), Machine.InFolder("NewYork.dvl"));
    EXPECT_EQ(TeamFilePath(Machine, "", ".dvd"), Machine.InFolder(".dvd"));
    EXPECT_EQ(TeamFilePath(Machine, "St. John's", ".dvf"), Machine.InFolder("St.John's.dvf"));
}

TEST_F(TeamFilePathTest, ATeamNameThatNoFileNameMayHoldFails)
{
    for (const char* name : {"A/B", "A\\B", "..\\..\\up", "../../up", "C:up", "A*", "A?", "\"A\"", "<A", "A>", "A|B"}) {
        int number = 0;
        try {
            (void)TeamFilePath(Machine, name, ".dvl");
        } catch (const Failure& failed) {
            number = failed.Number;
        }
        EXPECT_EQ(number, failure::PathAccess) << name;
    }
}

int NumberOfPath(const std::string& name)
{
    try {
        (void)TeamFilePath(dravik::Machine(), name, ".dvl");
    } catch (const Failure& failed) {
        return failed.Number;
    }
    return 0;
}

TEST_F(TeamFilePathTest, ATeamNameThatASystemKeepsForADeviceFails)
{
    for (const char* name : {"con",    "CON",     "Con",     "prn",  "aux",      "nul",     "NUL",     "com1",
                             "COM5",   "com9",    "lpt1",    "Lpt4", "LPT9",     "com\xB9", "COM\xB2", "lpt\xB3",
                             "conin$", "CONOUT$", " c o n ", "nul.", "Aux.City", "com1.a.b"})
        EXPECT_EQ(NumberOfPath(name), failure::PathAccess) << name;
}

TEST_F(TeamFilePathTest, ATeamNameThatOnlyResemblesADeviceIsAFileName)
{
    for (const char* name : {"Cons", "Acon", "con-", "com", "com0", "com10", "COMA", "lpt", "lpt0", "nuls", "auxcity",
                             "St.con", "conin", "conout", "comb", "prn1", "com\xB4"})
        EXPECT_EQ(NumberOfPath(name), 0) << name;
}

} // namespace
} // namespace dravik
