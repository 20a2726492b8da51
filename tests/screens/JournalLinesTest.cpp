#include "OnMainScreen.h"
#include "session/OpenHistory.h"
#include "session/OpenJournal.h"

#include <filesystem>

// What the main screen says of work that no file holds, and what its two commands do with it.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class JournalLinesTest : public OnMainScreen {
protected:
    JournalLinesTest()
    {
        PutTwelveTeams();
        Teams[Own].Name = "Seals";
        Teams[Own].Cash = 100;
        league = SaveLeague();
        KeepJournals(folder, [this] { return now; });
    }
    ~JournalLinesTest() override
    {
        KeepJournals({}, {});
        ResetClientVariables();
    }

    void OpenTheLeague()
    {
        Machine.Choose(league);
        Main().mnuOpen->trigger();
        Settle();
    }
    static void Pay(int cash)
    {
        const OpenStep step =
            OpenHistory().Open({.Words = "Pay " + std::to_string(cash), .Where = "Team", .Team = Own, .Drag = 0});
        Teams[Own].Cash = cash;
    }
    // An earlier run of the program has done something and died.
    void WorkAndDie(const char* name = "Seals")
    {
        OpenTheLeague();
        Pay(90);
        if (std::string(name) != "Seals") {
            const OpenStep step = OpenHistory().Open({.Words = "Rename", .Where = "Team", .Team = Own, .Drag = 0});
            Teams[Own].Name = name;
        }
        OpenTheLeague();
    }
    QLabel& Words(const char* name = "lblUnsavedWork")
    {
        auto* label = Main().findChild<QLabel*>(name);
        EXPECT_NE(label, nullptr);
        return *label;
    }
    QPushButton* Command(const char* name) { return Main().findChild<QPushButton*>(name); }
    void ExpectNothingSaid()
    {
        EXPECT_FALSE(Words().isVisible());
        EXPECT_FALSE(Command("cmdBringBack")->isVisible());
        EXPECT_FALSE(Command("cmdForget")->isVisible());
    }

    static constexpr int Own = 3;
    std::string league;
    std::filesystem::path folder = std::filesystem::path(Machine.Folder()) / "journal";
    double now = 46034.877; // 12 January 2026, 21:03
};

TEST_F(JournalLinesTest, WithoutUnsavedWorkNothingIsSaid)
{
    Settle();
    ExpectNothingSaid();
    OpenTheLeague();
    ExpectNothingSaid();
}

TEST_F(JournalLinesTest, UnsavedWorkIsToldInOneLineWithTwoCommands)
{
    WorkAndDie();
    EXPECT_TRUE(Words().isVisible());
    EXPECT_EQ(Words().text().toStdString(),
              "Work of " + Machine.LongDate(now) + ", " + Machine.ShortTime(now) + ", on the Seals was not saved.");
    EXPECT_EQ(Command("cmdBringBack")->text(), "Bring Back");
    EXPECT_EQ(Command("cmdForget")->text(), "Forget");
    for (const char* name : {"cmdBringBack", "cmdForget"}) {
        EXPECT_TRUE(Command(name)->isVisible());
        const QPoint foot = Command(name)->mapTo(&Main(), QPoint(Command(name)->width(), Command(name)->height()));
        EXPECT_LE(foot.y(), Main().height());
        EXPECT_LE(foot.x(), Main().width());
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(JournalLinesTest, BringBackBringsTheWorkBackAndShowsIt)
{
    WorkAndDie("Walruses");
    Click(Command("cmdBringBack"));
    EXPECT_EQ(Teams[Own].Cash, 90);
    EXPECT_THAT(Listed(3), ElementsAre(::testing::Pair("Walruses", 3), ::testing::Pair("Team 9", 9)));
    ExpectNothingSaid();
    EXPECT_NE(OpenHistory().ToUndo(), nullptr);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(JournalLinesTest, TheCommandsAreReachedByKeys)
{
    WorkAndDie();
    Command("cmdBringBack")->setFocus();
    Press(Command("cmdBringBack"), Qt::Key_Space);
    EXPECT_EQ(Teams[Own].Cash, 90);
    ExpectNothingSaid();
}

TEST_F(JournalLinesTest, ThePasswordOfTheTeamIsAskedFor)
{
    Teams[Own].Password = "5ebe2294ecd0e0f08eab7690d2a6ee69"; // secret
    league = SaveLeague("Locked.dvs");
    WorkAndDie();
    Machine.Type("wrong");
    Click(Command("cmdBringBack"));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Password is incorrect!"}));
    EXPECT_EQ(Teams[Own].Cash, 100);
    EXPECT_TRUE(Words().isVisible());
    Machine.Type("secret");
    Click(Command("cmdBringBack"));
    EXPECT_EQ(Teams[Own].Cash, 90);
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!"}, Question{"Password Required!"}));
}

TEST_F(JournalLinesTest, ForgetAsksAndForgetsIt)
{
    const Box question{box::YesNo, "Are you sure you want to forget the work that was not saved?"};
    WorkAndDie();
    Machine.Answer(button::No);
    Click(Command("cmdForget"));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(question));
    EXPECT_TRUE(Words().isVisible());
    Machine.Answer(button::Yes);
    Click(Command("cmdForget"));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(question));
    ExpectNothingSaid();
    EXPECT_EQ(Teams[Own].Cash, 100);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    OpenTheLeague();
    ExpectNothingSaid();
}

TEST_F(JournalLinesTest, AJournalThatCannotBeWrittenIsToldWhenTheScreenComesForward)
{
    KeepJournals(std::filesystem::path(league) / "journal", [this] { return now; }); // a file is no folder
    OpenTheLeague();
    EXPECT_FALSE(Words("lblJournalUnwritten").isVisible());
    Pay(90);
    Main().FormActivate();
    Settle();
    EXPECT_EQ(Words("lblJournalUnwritten").text(),
              "What is done now would not survive a crash: the journal could not be written.");
    EXPECT_TRUE(Words("lblJournalUnwritten").isVisible());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// ---- Saving ------------------------------------------------------------------------------------------------------------

class JournalSavesTest : public JournalLinesTest {
protected:
    JournalSavesTest()
    {
        CompleteTeam(Own);
        league = SaveLeague("Complete.dvs");
        OpenTheLeague();
        CurrentTeam = Own;
    }
    // Whether the next start finds anything unsaved.
    bool IsUnsaved()
    {
        OpenTheLeague();
        return !Words().text().isEmpty(); // the team's screen stands before it
    }
};

TEST_F(JournalSavesTest, LinesThatWereSavedAreNotUnsaved)
{
    Pay(90);
    Main().mnuViewTeam_Click();
    Settle();
    Click(TeamScreen()->findChild<QPushButton*>("cmdSaveToFile"));
    ASSERT_EQ(Machine.TakeBoxes().size(), 1U);
    EXPECT_FALSE(IsUnsaved());
}

TEST_F(JournalSavesTest, LinesThatCouldNotBeSavedAre)
{
    Pay(90);
    Main().mnuViewTeam_Click();
    Settle();
    Machine.FailAllFrom(1, failure::DiskFull);
    Click(TeamScreen()->findChild<QPushButton*>("cmdSaveToFile"));
    Machine.FailNoMore();
    EXPECT_FALSE(Machine.TakeBoxes().empty());
    EXPECT_TRUE(IsUnsaved());
}

} // namespace
} // namespace dravik
