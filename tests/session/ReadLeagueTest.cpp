// A client file was read: whatever fails while its league is shown, the tables hold that league whole, and no file is open.

#include "session/OpenLeagueClient.h"

#include "league/Failure.h"
#include "support/LeagueImage.h"
#include "support/OpenedWindow.h"
#include "support/SmallLeague.h"

#include <limits>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ReadLeagueTest : public SmallLeague {
protected:
    // Puts the tables as they stand into a plain file of the test's folder and gives its path.
    std::string SavePlain()
    {
        Machine.Settings["SkipZIPClient"] = "YES";
        WriteSparse(Machine.InFolder("League.dvs"), ClientSlots());
        return Machine.InFolder("League.dvs");
    }

    void Open(const std::string& path) { OpenLeagueClient(path, Window); }

    // A file whose league has the protected skater 7 and no number of dressed skaters, over tables that hold another league.
    std::string SaveLeagueOverAnother()
    {
        PutSkater(7, 5, position::Center, status::Pro).Protected = true;
        LeagueData.ProDressedSkaters = 0;
        const std::string path = SavePlain();
        for (RosterChange& change : RosterChanges) {
            change.Protected = true;
            change.TradeAvailable = true;
        }
        for (RosterChange& change : RosterChangesGoalie)
            change.Protected = true;
        Players[0].Name = "Before";
        PlayerStatCount = 1;
        GoalieStatCount = 1;
        return path;
    }

    // The league of that file, with everything that an open adds to it.
    static void ExpectThatLeagueWhole()
    {
        EXPECT_TRUE(Players[7].InUse);
        EXPECT_TRUE(Players[7].Protected);
        EXPECT_EQ(Players[0].Name.Trimmed(), "Unknown Player");
        EXPECT_EQ(Goalies[0].Name.Trimmed(), "Unknown Goalie");
        for (long long i = 1; i <= PlayerChangeTable::last; ++i) {
            ASSERT_EQ(static_cast<bool>(RosterChanges[i].Protected), i == 7) << i;
            ASSERT_FALSE(RosterChanges[i].TradeAvailable) << i;
        }
        for (const RosterChange& change : RosterChangesGoalie)
            ASSERT_FALSE(change.Protected);
        EXPECT_EQ(LeagueData.ProDressedSkaters, 18);
        EXPECT_EQ(PlayerStatCount, 15);
        EXPECT_EQ(GoalieStatCount, 13);
    }

    OpenedWindow Window;
};

TEST_F(ReadLeagueTest, ASettingThatCannotBeStoredIsNoFailureOfTheOpen)
{
    const std::string path = SaveLeagueOverAnother();
    Machine.SaveSettingFailure = failure::PathAccess;
    Open(path);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Machine.WaitShown);
    EXPECT_THAT(Window.Calls, ElementsAre("caption Dravik Hockey Simulator Client - League", "place teams", "centre",
                                          "show menus", "draft off &Draft List", "free agents on",
                                          ::testing::StartsWith("date Client File Date : ")));
    ExpectThatLeagueWhole();
}

TEST_F(ReadLeagueTest, ASettingThatCannotBeStoredIsNamedInAQuietLineUntilOneCan)
{
    const std::string path = SavePlain();
    Machine.SaveSettingFailure = failure::PathAccess;
    Open(path);
    EXPECT_THAT(Window.Quiet,
                ElementsAre(::testing::Pair(QuietLine::SettingsUnwritten,
                                            "The settings could not be written to " + Machine.InFolder("Settings") +
                                                ". The next start does not open this league by itself.")));
    Machine.SaveSettingFailure = 0;
    Open(path);
    EXPECT_THAT(Window.Quiet, IsEmpty());
}

// A store that fails in another way than it says, as one that runs out of memory.
class StrangeStore : public ScriptedPlatform {
public:
    void SaveSetting(const std::string& /*section*/, const std::string& /*key*/, const std::string& /*value*/) override
    {
        Fail(failure::OutOfMemory);
    }
};

TEST_F(ReadLeagueTest, AStoreThatFailsWithoutANameIsToldInTheQuietLineToo)
{
    const std::string path = SaveLeagueOverAnother();
    StrangeStore machine;
    machine.Settings = Machine.Settings;
    UseMachine(machine);
    Open(path);
    UseMachine(Machine);
    EXPECT_THAT(machine.Boxes(), IsEmpty());
    EXPECT_THAT(Window.Quiet,
                ElementsAre(::testing::Pair(
                    QuietLine::SettingsUnwritten,
                    "The settings could not be written. The next start does not open this league by itself.")));
    ExpectThatLeagueWhole();
}

TEST_F(ReadLeagueTest, AFileDateThatIsNoDateIsToldAndLeavesTheLeagueWhole)
{
    for (const double date : {1e300, 1e9, -1e9, std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::infinity(), 2958466.0, -657435.0}) {
        SCOPED_TRACE(date);
        Window.Calls.clear();
        LeagueData.FileDate = date;
        const std::string path = SaveLeagueOverAnother();
        Open(path);
        EXPECT_THAT(Machine.WaitAtBoxes(), ElementsAre(false));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "6 - Overflow in OpenLeagueClient!"}));
        EXPECT_EQ(Machine.Settings["LastLoadLeague"], path);
        ASSERT_EQ(Window.Calls.size(), 7U);
        EXPECT_EQ(Window.Calls.back(), "date Client File Date : ") << "no date of another file stays";
        ExpectThatLeagueWhole();
    }
}

// Calls of the main window, the first of which that is told to fails.
class FailingWindow : public MainWindow {
public:
    int FailAt = 0; // counted from 1

    void SetWindowCaption(const std::string& /*caption*/) override { Step(); }
    void PlaceTeam() override { Step(); }
    void CentreOnScreen() override { Step(); }
    void ShowLeagueMenus() override { Step(); }
    void SetDraftMenu(bool /*enabled*/, std::string_view /*caption*/) override { Step(); }
    void SetFreeAgentsMenu(bool /*enabled*/) override { Step(); }
    void SetDateLabel(const std::string& /*text*/) override { Step(); }
    void Tell(QuietLine /*line*/, const std::string& /*text*/) override { Step(); }

private:
    void Step()
    {
        if (++step == FailAt)
            Fail(failure::OutOfMemory);
    }

    int step = 0;
};

TEST_F(ReadLeagueTest, WhateverFailsWhileALeagueIsShownTheTablesAreWhole)
{
    const std::string path = SaveLeagueOverAnother();
    for (int step = 1; step <= 8; ++step) {
        SCOPED_TRACE(step);
        Players[0].Name = "Before";
        for (RosterChange& change : RosterChanges)
            change.Protected = true;
        FailingWindow window;
        window.FailAt = step;
        OpenLeagueClient(path, window);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "7 - Out of memory in OpenLeagueClient!"}));
        ExpectThatLeagueWhole();
    }
}

// Watches which files are open, and whether one is while a box is shown.
class OpenFiles : public ScriptedPlatform {
public:
    int Open = 0;
    int OpenAtABox = 0;

    std::unique_ptr<File> OpenFile(const std::string& path) override
    {
        return std::make_unique<Watched>(*this, ScriptedPlatform::OpenFile(path));
    }
    int MessageBox(const std::string& text, int kind, const std::string& title) override
    {
        OpenAtABox += Open;
        return ScriptedPlatform::MessageBox(text, kind, title);
    }

private:
    class Watched final : public File {
    public:
        Watched(OpenFiles& machine, std::unique_ptr<File> opened) : owner(machine), file(std::move(opened))
        {
            ++owner.Open;
        }
        ~Watched() override { --owner.Open; }
        std::size_t Read(void* data, std::size_t size) override { return file->Read(data, size); }
        void Write(const void* data, std::size_t size) override { file->Write(data, size); }
        void Flush() override { file->Flush(); }
        void Close() override { file->Close(); }

    private:
        OpenFiles& owner;
        std::unique_ptr<File> file;
    };
};

TEST_F(ReadLeagueTest, NothingIsOpenAfterAnOpenNorWhileItsFailureIsTold)
{
    const ByteVector slots = ClientSlots();
    ByteVector endless = slots;
    endless.back() ^= 1U; // a wrong end magic
    ByteVector begun = slots;
    begun[10] ^= 1U;
    const ByteVector cut(slots.begin(), slots.begin() + 100000);
    for (const bool plain : {false, true}) {
        OpenFiles machine;
        machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        UseMachine(machine);
        const std::string path = machine.InFolder("League.dvs");
        std::size_t told = 0;
        for (const ByteVector& content : {slots, endless, begun, cut}) {
            WriteSparse(path, plain ? content : Wrapped(content, 1));
            OpenLeagueClient(path, Window);
            EXPECT_EQ(machine.Open, 0);
            told += machine.TakeBoxes().size();
        }
        for (const std::size_t read : {5U, 6U}) { // the first reading, and the second one
            WriteSparse(path, plain ? slots : Wrapped(slots, 0));
            machine.FailFileOperation(read, failure::PathAccess);
            OpenLeagueClient(path, Window);
            EXPECT_EQ(machine.FileOperations().back(), "read");
            EXPECT_EQ(machine.Open, 0);
            told += machine.TakeBoxes().size();
        }
        EXPECT_EQ(told, 5U);
        EXPECT_EQ(machine.OpenAtABox, 0);
        UseMachine(Machine);
    }
}

} // namespace
} // namespace dravik
