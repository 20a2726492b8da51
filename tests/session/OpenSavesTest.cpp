#include "session/OpenSaves.h"

#include "session/OpenHistory.h"
#include "session/OpenMarket.h"
#include "session/Session.h"
#include "support/FailingAllocation.h"
#include "support/ScriptedPlatform.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace dravik {
namespace {

namespace fs = std::filesystem;

class OpenSavesTest : public ::testing::Test {
protected:
    OpenSavesTest()
    {
        UseMachine(Machine);
        ResetClientVariables();
        BeginHistory();
        TellTimeBy([this] { return now; });
    }
    ~OpenSavesTest() override
    {
        TellTimeBy({});
        ResetClientVariables();
    }

    void Pay(int cash, int team = Own)
    {
        const OpenStep step = OpenHistory().Open({.Words = "Pay", .Where = "Team", .Team = team, .Drag = 0});
        Teams[team].Cash = cash;
    }
    void Rank(int id)
    {
        (void)OpenMarket();
        const OpenStep step = OpenHistory().Open({.Words = "Rank", .Where = "Draft", .Team = Own, .Drag = 0});
        OpenMarket().Ranking[0] = id;
    }
    [[nodiscard]] static std::string Words(SavedFile file = SavedFile::Lines) { return StateOf(file, Own).Words(); }
    [[nodiscard]] std::string Time(double days) const { return Machine.ShortTime(days); }

    static constexpr int Own = 5;
    ScriptedPlatform Machine;
    double now = 46034.5;
};

TEST_F(OpenSavesTest, NothingIsSaidBeforeAnythingIsDone)
{
    EXPECT_EQ(Words(), "");
    EXPECT_EQ(StateOfTeam(Own).Words(), "");
    EXPECT_TRUE(StateOf(SavedFile::Lines, Own).IsEarlierKept);
}

TEST_F(OpenSavesTest, OfTwoSavesOfOneMomentTheLaterFileIsSaid)
{
    NoteSaved(SavedFile::Lines, Own, "lines");
    NoteSaved(SavedFile::Ranking, Own, "list");
    NoteSaved(SavedFile::Offers, Own, "offers");
    EXPECT_EQ(StateOfTeam(Own).Path, "list");
}

TEST_F(OpenSavesTest, WhatIsTakenOverIsHeldAgainstHoweverMuchFollows)
{
    TakeOverLedger(WorkLedger(4)); // read under a limit, which this is one of
    Pay(90);
    Pay(80);
    EXPECT_EQ(Words(), "Not saved since " + Time(now));
}

TEST_F(OpenSavesTest, WhatIsNotSavedIsSaidWithTheTimeOfItsFirstStep)
{
    Pay(90);
    now += 0.1;
    Pay(80);
    EXPECT_EQ(Words(), "Not saved since " + Time(46034.5));
    EXPECT_EQ(Words(SavedFile::Offers), "");
    EXPECT_EQ(StateOf(SavedFile::Lines, Own + 1).Words(), "");
    EXPECT_EQ(StateOfTeam(Own).Words(), Words());
}

TEST_F(OpenSavesTest, WhatIsTakenBackIsNoMoreUnsaved)
{
    Pay(90);
    OpenHistory().Undo();
    EXPECT_EQ(Words(), "");
    OpenHistory().Redo();
    EXPECT_NE(Words(), "");
}

TEST_F(OpenSavesTest, ASaveIsSaidWithItsTimeAndPathUntilTheNextStep)
{
    Pay(90);
    now += 0.1;
    NoteSaved(SavedFile::Lines, Own, "/folder/Gulls.dvl");
    EXPECT_EQ(Words(), "Saved " + Time(now));
    EXPECT_EQ(StateOf(SavedFile::Lines, Own).Path, "/folder/Gulls.dvl");
    now += 0.1;
    Pay(80);
    EXPECT_EQ(Words(), "Not saved since " + Time(now));
    OpenHistory().Undo();
    EXPECT_EQ(Words(), "Saved " + Time(46034.6)) << "the file holds it";
}

TEST_F(OpenSavesTest, ATimeOfAnotherDayIsSaidWithTheDay)
{
    Pay(90);
    now += 1;
    EXPECT_EQ(Words(), "Not saved since " + Machine.LongDate(46034.5) + ", " + Time(46034.5));
}

TEST_F(OpenSavesTest, OfATeamsFilesTheOneThatIsLongestUnsavedIsSaid)
{
    Rank(17);
    now += 0.1;
    Pay(90);
    NoteSaved(SavedFile::Lines, Own, "lines");
    EXPECT_EQ(Words(SavedFile::Ranking), "Not saved since " + Time(46034.5));
    EXPECT_EQ(StateOfTeam(Own).Words(), Words(SavedFile::Ranking));
    now += 0.1;
    NoteSaved(SavedFile::Ranking, Own, "list");
    EXPECT_EQ(StateOfTeam(Own).Words(), "Saved " + Time(now));
    EXPECT_EQ(StateOfTeam(Own).Path, "list");
}

TEST_F(OpenSavesTest, WhatIsKeptOnTheMarketStaysUnsavedAndWhatWasSavedStaysSaved)
{
    Rank(17);
    NoteKept(SavedFile::Ranking, Own);
    Rank(0);
    EXPECT_EQ(Words(SavedFile::Ranking), "Not saved since " + Time(now));
    Rank(18);
    NoteSaved(SavedFile::Ranking, Own, "list");
    NoteKept(SavedFile::Ranking, Own);
    Rank(0);
    EXPECT_EQ(Words(SavedFile::Ranking), "Saved " + Time(now));
}

TEST_F(OpenSavesTest, EveryStepOfADragCounts)
{
    const auto drag = [](int cash) {
        const OpenStep step = OpenHistory().Open({.Words = "Pay", .Where = "Team", .Team = Own, .Drag = 9});
        Teams[Own].Cash = cash;
    };
    drag(90);
    NoteSaved(SavedFile::Lines, Own, "lines");
    drag(80);
    EXPECT_EQ(Words(), "Not saved since " + Time(now));
}

TEST_F(OpenSavesTest, WhatWasChangedOutsideOfAStepBelongsToTheTeamOfTheStepBefore)
{
    Pay(90);
    NoteSaved(SavedFile::Lines, Own, "lines");
    now += 0.1;
    Pay(80);
    Teams[Own].Cash = 90; // not by a step: the file holds this
    OpenHistory().Fold();
    EXPECT_EQ(Words(), "Saved " + Time(46034.5));
    Teams[Own].Cash = 70;
    OpenHistory().Fold();
    EXPECT_EQ(Words(), "Not saved since " + Time(now));
}

TEST_F(OpenSavesTest, WhatWasChangedBeforeAnyStepIsNoTeams)
{
    Teams[Own].Cash = 90;
    OpenHistory().Fold();
    EXPECT_EQ(Words(), "");
    Pay(90);
    EXPECT_EQ(Words(), "");
    for (const int team : {1, 2}) {
        BeginHistory();
        Teams[team].Cash = 70;
        OpenHistory().Fold();
        Pay(60, team);
        OpenHistory().Undo();
        EXPECT_EQ(StateOf(SavedFile::Lines, team).Words(), "") << team;
    }
}

// Once something was missed nothing is said, rather than something wrong, until another league is open.
TEST_F(OpenSavesTest, WithoutRoomForAStepNothingWrongIsSaid)
{
    int ended = 0;
    int missed = 0;
    bool failed = true;
    for (std::size_t n = 1; failed; ++n) {
        BeginHistory();
        Pay(90);
        NoteSaved(SavedFile::Lines, Own, "lines");
        ASSERT_NE(Words(), "") << n;
        {
            StepLabel called{.Words = "Pay", .Where = "Team", .Team = Own, .Drag = 0};
            const FailingAllocation nth(n);
            {
                const OpenStep step = OpenHistory().Open(std::move(called));
                Teams[Own].Cash = 80;
            }
            failed = FailingAllocation::Failed();
        }
        EXPECT_FALSE(Words().starts_with("Saved")) << n << ": the file holds another step";
        ended += OpenHistory().IsOutOfRoom() ? 1 : 0;
        missed += Words().empty() ? 1 : 0;
        if (OpenHistory().IsOutOfRoom()) {
            EXPECT_EQ(Words(), "") << n;
        }
    }
    EXPECT_GT(ended, 0);
    EXPECT_GT(missed, ended) << "a step that the history has and who knows what is saved has not";
}

TEST_F(OpenSavesTest, WithoutRoomToNoteASaveNothingIsSaid)
{
    const std::string path = "a path that is longer than what a text holds by itself";
    for (const bool isSaved : {true, false}) {
        bool failed = true;
        for (std::size_t n = 1; failed; ++n) {
            BeginHistory();
            Rank(static_cast<int>(n) + 16);
            OpenHistory().Fold();
            ASSERT_NE(Words(SavedFile::Ranking), "") << n;
            {
                const FailingAllocation nth(n);
                if (isSaved)
                    NoteSaved(SavedFile::Ranking, Own, path);
                else
                    NoteKept(SavedFile::Ranking, Own);
                failed = FailingAllocation::Failed();
            }
            if (failed) {
                EXPECT_EQ(Words(SavedFile::Ranking), "") << n;
            }
        }
    }
}

TEST_F(OpenSavesTest, AnotherLeagueBeginsWithNothing)
{
    Pay(90);
    NoteSaved(SavedFile::Lines, Own, "lines");
    Pay(80);
    BeginHistory();
    EXPECT_EQ(Words(), "");
}

TEST_F(OpenSavesTest, WhatASaveReplacesIsKept)
{
    const std::string path = Machine.InFolder("Gulls.dvl");
    std::ofstream(path) << "old";
    OpenFiles().BeforeReplaced(path);
    NoteSaved(SavedFile::Lines, Own, path);
    EXPECT_EQ(Words(), "Saved " + Time(now));
    EXPECT_TRUE(fs::exists(Machine.InFolder("Earlier/Gulls 2026-01-12 12.00.00.dvl")));
}

TEST_F(OpenSavesTest, WhereThatFailsTheLineSaysSo)
{
    const std::string path = Machine.InFolder("Gulls.dvl");
    std::ofstream(path) << "old";
    std::ofstream(Machine.InFolder("Earlier")) << "no folder";
    OpenFiles().BeforeReplaced(path);
    NoteSaved(SavedFile::Lines, Own, path);
    EXPECT_EQ(Words(), "Saved " + Time(now) + "; the version before could not be kept");
    NoteSaved(SavedFile::Offers, Own, "of another file");
    EXPECT_EQ(Words(SavedFile::Offers), "Saved " + Time(now));
}

} // namespace
} // namespace dravik
