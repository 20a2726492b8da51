#include "files/FileAccess.h"

#include "session/Session.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using FileAccessTest = SmallLeague;

TEST_F(FileAccessTest, SkipZIPClientIsNoUnlessToldOtherwise)
{
    EXPECT_FALSE(SkipZIPClient(Machine));
    Machine.Settings["SkipZIPClient"] = " yEs ";
    EXPECT_TRUE(SkipZIPClient(Machine));
    for (const char* no : {"", "   ", "NO", "YE S", "YES.", "1"}) {
        Machine.Settings["SkipZIPClient"] = no;
        EXPECT_FALSE(SkipZIPClient(Machine)) << no;
    }
}

} // namespace
} // namespace dravik
