#include "OnStage.h"
#include "support/LeagueImage.h"

// A screen that refuses the team at hand has told so and changed nothing.
namespace dravik {
namespace {

using ::testing::Contains;

class RefusedTeamScreens : public OnStage, public ::testing::WithParamInterface<const char*> {};

TEST_P(RefusedTeamScreens, LeaveEveryByteOfTheTables)
{
    CompleteTeam(5);
    PutSkater(900, 0, position::Center, status::Farm);
    LeagueData.FantasyDraft = true;
    LeagueData.MaxOffers = 0; // which an opening for a team fills in
    frmMain& main = MainWithLeague();
    Modified = false;
    const ByteVector before = AllTables();
    for (const int team : {-1, 0, 101}) {
        CurrentTeam = team;
        CallerScreen = "Main";
        TheStage.Open(GetParam(), main);
        Settle();
        EXPECT_THAT(Machine.TakeBoxes(), Contains(Box{box::Critical, "Integrity Check Failed!"})) << team;
        EXPECT_TRUE(AllTables() == before) << team;
        EXPECT_FALSE(Modified) << team;
        if (Screen* screen = TheStage.Find(GetParam())) {
            screen->close();
            Settle();
            EXPECT_THAT(Machine.TakeBoxes(), ::testing::IsEmpty());
        }
    }
    EXPECT_TRUE(AllTables() == before) << "nor does closing it";
}

INSTANTIATE_TEST_SUITE_P(All, RefusedTeamScreens,
                         ::testing::Values("Team", "Ticket", "Roster", "Line", "FarmLine", "FreeAgent", "Draft"),
                         [](const auto& name) { return std::string(name.param); });

} // namespace
} // namespace dravik
