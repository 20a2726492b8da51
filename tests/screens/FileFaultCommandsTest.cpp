// Every command that works on files, with a fault at each of its file operations: what it says and whether the wait screen
// stays, character by character; and that the command works again right after it. What becomes of files and tables is told
// by the tests of the core.

#include "OnDraftScreen.h"
#include "OnMainScreen.h"
#include "OnOfferScreen.h"
#include "OnTeamScreen.h"
#include "session/Session.h"
#include "support/FaultyFiles.h"

#include <filesystem>

namespace dravik {
namespace {

using ::testing::ElementsAre;

// How a run of a command ends.
struct Ending {
    std::vector<Box> Boxes;
    bool WaitStays = false;
};

template <class OnScreen>
class FileFaultCommands : public OnScreen {
protected:
    // What a run says whose operation `n`, called `operation`, failed.
    using Teller = std::function<Ending(const std::string& operation, std::size_t n, const FileFault& fault)>;

    // Runs `command` with a fault at each operation, after `prepare` each time, and once more without one: `well` is what
    // it then says. The kinds of faults take turns.
    void EachFault(bool plain, const std::function<void()>& prepare, const std::function<void()>& command,
                   const Ending& well, const Teller& tell)
    {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        SCOPED_TRACE(plain ? "plain" : "wrapped");
        prepare();
        const auto done = static_cast<std::ptrdiff_t>(Machine.FileOperations().size());
        ExpectEnding(command, well);
        const std::vector<std::string> operations(Machine.FileOperations().begin() + done,
                                                  Machine.FileOperations().end());
        ASSERT_GE(operations.size(), 6U);
        const std::span<const FileFault> faults =
            FileFaults().first(FileFaults().size() - (FileFaults().back().Kills ? 1 : 0));
        for (std::size_t n = 1; n <= operations.size(); ++n) {
            if (!IsAtTheEdge(n, operations.size()))
                continue;
            const FileFault& fault = faults[n % faults.size()];
            SCOPED_TRACE(std::to_string(n) + " " + operations[n - 1] + " " + fault.Name);
            prepare();
            Machine.TearsWrites = fault.Tears;
            Machine.FailFileOperation(n, fault.Number);
            ExpectEnding(command, tell(operations[n - 1], n, fault));
            Machine.FailNoMore();
            Machine.TearsWrites = false;
            ExpectEnding(command, well);
            EXPECT_FALSE(std::filesystem::exists(TempFile)) << "not after the next operation";
        }
    }

    void ExpectEnding(const std::function<void()>& command, const Ending& ending)
    {
        Machine.ClearSeenBoxes();
        Machine.CloseWait();
        command();
        // A box that comes while the wait screen stays comes before it; any other comes after its end.
        EXPECT_EQ(Machine.WaitAtBoxes(), std::vector<bool>(ending.Boxes.size(), ending.WaitStays));
        EXPECT_EQ(Machine.TakeBoxes(), ending.Boxes);
        EXPECT_EQ(Machine.WaitShown, ending.WaitStays);
    }

    // A save: the work file is looked for and deleted before the new one is written.
    void EachFaultOfASave(bool plain, const std::string& target, const std::function<void()>& command,
                          const Ending& well)
    {
        const auto prepare = [&] {
            WriteWhole(TempFile, {'o', 'l', 'd'});
            WriteWhole(target, {'o', 'l', 'd'});
        };
        EachFault(plain, prepare, command, well,
                  [&](const std::string& operation, std::size_t n, const FileFault& fault) -> Ending {
                      if (operation == "find")
                          return well;
                      if (plain || n <= 2)
                          return {{fault.ToldWith(" in cmdSaveToFile!")}};
                      return {{fault.ToldWith(" in Zlib Compress!")}, true};
                  });
    }

    using OnScreen::Machine;
};

class TeamFileFaults : public FileFaultCommands<OnTeamScreen> {
protected:
    TeamFileFaults()
    {
        CompleteTeam(5);
        Own().Name = "Harbour City";
        Own().City = "Harbour City";
    }

    std::string Target = Machine.InFolder("HarbourCity.dvl");
};

TEST_F(TeamFileFaults, SavingLinesTellsEveryFaultAndWorksAgain)
{
    frmTeam& office = Office();
    for (const bool plain : {false, true})
        EachFaultOfASave(plain, Target, [&] { Click(office.cmdSaveToFile); },
                         {{{64, "Lines file for Harbour City successfully save at\r\n" + Target}}});
}

TEST_F(TeamFileFaults, LoadingLinesTellsEveryFaultAndWorksAgain)
{
    frmTeam& office = Office();
    const Box refused{16, "File for Harbour City unsuccessfully load from\r\n" + Target};
    const Ending well{{{64, "Lines file for Harbour City successfully load from\r\n" + Target}}};
    for (const bool plain : {false, true}) {
        Machine.Settings["SkipZIPClient"] = plain ? "YES" : "No";
        Click(office.cmdSaveToFile);
        EXPECT_THAT(Machine.TakeBoxes(),
                    ::testing::ElementsAre(Box{64, "Lines file for Harbour City successfully save at\r\n" + Target}));
        const auto prepare = [&] { WriteWhole(TempFile, {'o', 'l', 'd'}); };
        const auto load = [&] {
            Own().City = "Elsewhere";
            Machine.Choose(Target);
            Click(office.cmdLoadFile);
            EXPECT_EQ(Own().City.Trimmed(), Machine.Boxes() == well.Boxes ? "Harbour City" : "Elsewhere");
        };
        EachFault(plain, prepare, load, well,
                  [&](const std::string& operation, std::size_t n, const FileFault& fault) -> Ending {
                      if (operation == "find") // the file of this name counts as missing; the others only look
                          return n == 3 ? Ending{{refused}} : well;
                      if (plain || operation == "delete")
                          return {{fault.ToldWith(" in cmdLoadFile!")}};
                      return {{fault.ToldWith(" in Zlib Decompress!")}, true};
                  });
    }
}

class DraftFileFaults : public FileFaultCommands<OnDraftScreen> {};

TEST_F(DraftFileFaults, SavingADraftListTellsEveryFaultAndWorksAgain)
{
    Choose({0, 2});
    frmDraft& draft = Draft();
    const std::string target = Machine.InFolder("HarbourCityGulls.dvd");
    for (const bool plain : {false, true})
        EachFaultOfASave(plain, target, [&] { Click(draft.cmdSaveToFile); },
                         {{{64, "Fantasy Draft File save for Harbour City Gulls succesfully at\r\n" + target}}});
}

class OfferFileFaults : public FileFaultCommands<OnOfferScreen> {};

TEST_F(OfferFileFaults, SavingOffersTellsEveryFaultAndWorksAgain)
{
    FreeSkater(1);
    frmFreeAgentClient& offers = Open();
    Offer(1);
    const std::string target = Machine.InFolder("HarbourCityGulls.dvf");
    for (const bool plain : {false, true})
        EachFaultOfASave(
            plain, target, [&] { Click(offers.cmdSaveToFile); },
            {{{64, "Skater 1 was offer $750,000 for 2 year(s) with $0 in bonus.\r\nClient league file save "
                   "for Harbour City Gulls succesfully at " +
                       target + "\r"}}});
}

class MainFileFaults : public FileFaultCommands<OnMainScreen> {
protected:
    // A client file of two teams.
    std::string SaveLeagueAs(bool plain)
    {
        const std::string path = Machine.InFolder("League.dvs");
        WriteSparse(path, plain ? leagueSlots : Wrapped(leagueSlots, 1));
        return path;
    }

    MainFileFaults()
    {
        PutTeam(3, 4);
        PutTeam(5, 4);
        LeagueData.FileDate = 45000.5;
        leagueSlots = ClientSlots();
    }

private:
    ByteVector leagueSlots;
};

TEST_F(MainFileFaults, OpeningTellsEveryFaultKeepsWhatIsShownAndWorksAgain)
{
    frmMain& main = Main();
    for (const bool plain : {false, true}) {
        const std::string path = SaveLeagueAs(plain);
        const auto prepare = [&] { WriteWhole(TempFile, {'o', 'l', 'd'}); };
        const auto open = [&] {
            Machine.Settings["LastLoadLeague"] = "before";
            main.setWindowTitle("Before");
            Machine.Choose(path);
            main.mnuOpen->trigger();
            const bool well = Machine.Boxes().empty();
            EXPECT_EQ(Machine.Settings["LastLoadLeague"], well ? path : "before");
            EXPECT_EQ(main.windowTitle(), well ? "Dravik Hockey Simulator Client - League" : "Before");
            EXPECT_EQ(Listed(4).size(), 2U) << "the lists keep what they showed";
            EXPECT_EQ(static_cast<bool>(Teams[3].InUse), well) << "the tables do not";
        };
        EachFault(plain, prepare, open, {},
                  [&](const std::string& operation, std::size_t n, const FileFault& fault) -> Ending {
                      if (operation == "find")
                          return n == 1 ? Ending{{{16, "Cannot find last client league file!"}}} : Ending{};
                      const bool up = operation != "delete";
                      return {{fault.ToldWith(plain || !up ? " in OpenLeagueClient!" : " in Zlib Decompress!")}, up};
                  });
    }
}

TEST_F(MainFileFaults, StartingTellsEveryFaultAndStartsWithoutALeague)
{
    for (const bool plain : {false, true}) {
        Machine.Settings["LastLoadLeague"] = SaveLeagueAs(plain);
        bool open = false;
        const auto prepare = [&] { WriteWhole(Machine.InFolder("ClientTemp.dvt"), {'o', 'l', 'd'}); };
        const auto start = [&] {
            ResetClientVariables();
            Stage stage;
            EXPECT_TRUE(stage.Start());
            Settle();
            const auto& main = *static_cast<frmMain*>(stage.Find(Window::Main));
            open = main.windowTitle() == "Dravik Hockey Simulator Client - League";
            EXPECT_EQ(main.lblConference[1]->text() == "No League File Load!", !open);
            EXPECT_EQ(main.mnuTeam->menuAction()->isVisible(), open);
            EXPECT_EQ(static_cast<bool>(Teams[3].InUse), open);
        };
        EachFault(plain, prepare, start, {},
                  [&](const std::string& operation, std::size_t n, const FileFault& fault) -> Ending {
                      if (operation == "find") // a league that vanished gives no message at the start
                          return n == 2 ? Ending{{{16, "Cannot find last client league file!"}}} : Ending{};
                      const bool up = operation != "delete";
                      return {{fault.ToldWith(plain || !up ? " in OpenLeagueClient!" : " in Zlib Decompress!")}, up};
                  });
        EXPECT_TRUE(open);
    }
}

TEST_F(MainFileFaults, ExportingTellsEveryFaultAndWorksAgain)
{
    PutSkater(1, 5, position::Center, status::Pro);
    frmMain& main = MainWithLeague();
    const Box asked{36, "Are you sure you want to output a Rating CSV file of your league?"};
    const Ending well{{asked, {64, "Output done in " + Machine.Folder()}}};
    EachFault(
        false, [] {}, [&] { main.mnuOutputRatingCSV->trigger(); }, well,
        [&](const std::string& /*operation*/, std::size_t /*n*/, const FileFault& fault) -> Ending {
            return {{asked, fault.ToldWith(" in mnuOutputRatingCSV!")}};
        });
}

} // namespace
} // namespace dravik
