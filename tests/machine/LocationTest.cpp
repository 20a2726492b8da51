#include "machine/Location.h"

#include "league/Failure.h"
#include "support/ScriptedPlatform.h"

#include <gmock/gmock.h>

namespace dravik {
namespace {

using ::testing::ElementsAre;

TEST(LocationTest, ALocationIsHandedToTheDesktopAndItsAnswerReturned)
{
    ScriptedPlatform machine;
    EXPECT_EQ(OpenLocation(machine, "http://localhost/", 5), 42);
    EXPECT_THAT(machine.OpenedLocations, ElementsAre("http://localhost/"));
    EXPECT_THAT(machine.Boxes(), ElementsAre());
}

TEST(LocationTest, TheShowModeReachesTheDesktopAsGiven)
{
    class Noting : public ScriptedPlatform {
    public:
        int OpenLocation(const std::string& /*location*/, int showMode) override { return showMode; }
    } machine;
    EXPECT_EQ(OpenLocation(machine, "x", 70000), 70000);
}

TEST(LocationTest, AFailureIsToldAndTheAnswerIs0)
{
    class Refusing : public ScriptedPlatform {
    public:
        int OpenLocation(const std::string& /*location*/, int /*showMode*/) override { Fail(failure::FileNotFound); }
    } machine;
    EXPECT_EQ(OpenLocation(machine, "nowhere", 1), 0);
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{16, "53 - File not found in OpenLocation Function!"}));
}

} // namespace
} // namespace dravik
