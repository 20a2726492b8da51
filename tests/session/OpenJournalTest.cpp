#include "session/OpenJournal.h"

#include "desk/JournalWriter.h"
#include "OnClientFile.h"
#include "session/JournalFolder.h"
#include "session/OpenHistory.h"
#include "session/OpenMarket.h"
#include "session/OpenSaves.h"
#include "support/FailingAllocation.h"
#include "support/RealFaults.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <new>

// The journal of the open league, from one run of the program to the next.
namespace dravik {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OpenJournalTest : public OnClientFile {
protected:
    OpenJournalTest()
    {
        TempFile = Machine.InFolder("ClientTemp.dvt");
        const TeamMaker five(Own);
        const TeamMaker six(Own + 1);
        Teams[Own].Name = "\xC9"
                          "claireurs";
        Teams[Own].Cash = 100;
        LeagueData.LeagueCode = "ABC";
        LeagueData.FileDate = 45000.5;
        path = SavePlain();
        Begin();
    }
    ~OpenJournalTest() override
    {
        KeepJournals({}, {});
        ResetClientVariables();
    }

    // A program that has just started opens the league.
    void Begin(const std::string& file = {})
    {
        KeepJournals({}, {});
        ResetClientVariables();
        MarkRosterChangesUntouched(OpenLeague);
        Window.Quiet.clear();
        TempFile = Machine.InFolder("ClientTemp.dvt");
        KeepJournals(folder, [this] { return now; });
        Open(file.empty() ? path : file);
    }
    void Pay(int cash, int team = Own)
    {
        const OpenStep step =
            OpenHistory().Open({.Words = "Pay " + std::to_string(cash), .Where = "Team", .Team = team, .Drag = 0});
        Teams[team].Cash = cash;
    }
    [[nodiscard]] std::vector<fs::path> Journals() const
    {
        std::error_code error;
        std::vector<fs::path> found;
        for (const auto& entry : fs::directory_iterator(folder, error))
            found.push_back(entry.path());
        std::sort(found.begin(), found.end());
        return found;
    }
    [[nodiscard]] std::string Offered() const
    {
        const auto words = Window.Quiet.find(QuietLine::UnsavedWork);
        return words == Window.Quiet.end() ? "" : words->second;
    }

    static constexpr int Own = 5;
    std::string path;
    fs::path folder = fs::path(Machine.Folder()) / "journal";
    double now = 46034.877; // 12 January 2026, 21:03
};

TEST_F(OpenJournalTest, NothingIsOnTheDiskBeforeTheFirstStep)
{
    EXPECT_THAT(Journals(), IsEmpty());
    EXPECT_EQ(Offered(), "");
    Pay(90);
    EXPECT_EQ(Journals().size(), 1U);
    EXPECT_EQ(JournalWords(), "");
}

TEST_F(OpenJournalTest, WithoutAFolderThereIsNone)
{
    KeepJournals({}, {});
    Open(path);
    Pay(90);
    NoteSaved(SavedFile::Lines, Own, "saved");
    EXPECT_THAT(Journals(), IsEmpty());
    EXPECT_EQ(UnsavedWorkWords(), "");
    EXPECT_FALSE(BringBackWork());
    ForgetWork();
    EXPECT_EQ(JournalWords(), "");
}

TEST_F(OpenJournalTest, OneThatCannotBeginIsTold)
{
    KeepJournals(folder, []() -> double { throw std::bad_alloc(); });
    Open(path);
    EXPECT_EQ(JournalWords(), "What is done now would not survive a crash: the journal could not be written.");
    Pay(90);
    EXPECT_THAT(Journals(), IsEmpty());
    KeepJournals({}, {});
    EXPECT_EQ(JournalWords(), "") << "none is wanted any more";
}

TEST_F(OpenJournalTest, EveryStepOfADragIsKept)
{
    for (const int cash : {90, 80}) {
        const OpenStep step = OpenHistory().Open({.Words = "Pay", .Where = "Team", .Team = Own, .Drag = 9});
        Teams[Own].Cash = cash;
    }
    Begin();
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 80);
}

TEST_F(OpenJournalTest, AnotherFolderEndsTheJournalUntilTheNextOpening)
{
    Pay(90);
    ASSERT_EQ(Journals().size(), 1U);
    const auto size = fs::file_size(Journals()[0]);
    KeepJournals(folder, [this] { return now; });
    Pay(80);
    NoteSaved(SavedFile::Lines, Own, "saved");
    ASSERT_EQ(Journals().size(), 1U);
    EXPECT_EQ(fs::file_size(Journals()[0]), size);
    Begin();
    ASSERT_NE(UnsavedWorkWords(), "");
    KeepJournals(folder, [this] { return now; });
    EXPECT_EQ(UnsavedWorkWords(), "");
}

TEST_F(OpenJournalTest, WithoutRoomForTheHistoryThereIsNoJournal)
{
    int times = 0;
    bool failed = true;
    for (std::size_t n = 1; failed; ++n) {
        {
            const FailingAllocation nth(n);
            OpenHistory().Begin();
            failed = FailingAllocation::Failed();
        }
        if (!OpenHistory().IsOutOfRoom())
            continue;
        ++times;
        BeginJournal();
        EXPECT_EQ(JournalWords(), "What is done now would not survive a crash: the journal could not be written.");
        NoteSaved(SavedFile::Lines, Own, "saved");
        EXPECT_THAT(Journals(), IsEmpty());
    }
    EXPECT_GT(times, 0);
}

TEST_F(OpenJournalTest, WithoutRoomItIsBackWholeOrNotAtAll)
{
    Pay(90);
    Pay(80);
    ASSERT_EQ(Journals().size(), 1U);
    const fs::path journal = Journals()[0];
    const fs::path kept = fs::path(Machine.Folder()) / "kept";
    fs::copy_file(journal, kept);
    Begin();
    int refused = 0;
    bool failed = true;
    for (std::size_t n = 1; failed && n < 10000; ++n) {
        bool isBack = false;
        {
            const FailingAllocation nth(n);
            try {
                isBack = BringBackWork();
            } catch (const std::bad_alloc&) { // NOLINT: before anything was touched
            }
            failed = FailingAllocation::Failed();
        }
        EXPECT_EQ(Teams[Own].Cash, isBack ? 80 : 100) << n;
        for (const Box& told : Machine.TakeBoxes())
            if (told.Text == "The work that was not saved cannot be brought back. There is no room for it.")
                ++refused;
            else
                EXPECT_EQ(told.Text, "7 - Out of memory in CheckPassword!") << n;
        if (isBack && JournalWords().empty() && !OpenHistory().IsOutOfRoom()) {
            Pay(70);
            OpenHistory().Undo();
            EXPECT_EQ(JournalWords(), "") << n;
            EXPECT_EQ(Journals().size(), 1U) << n;
        }
        if (isBack || OpenHistory().IsOutOfRoom()) {
            KeepJournals({}, {});
            fs::copy_file(kept, journal, fs::copy_options::overwrite_existing);
            Begin();
        }
    }
    EXPECT_FALSE(failed);
    EXPECT_GT(refused, 0);
}

TEST_F(OpenJournalTest, WhatWasSavedBeforeIsSavedWhenTheRestIsBack)
{
    (void)OpenMarket();
    Pay(90);
    NoteSaved(SavedFile::Lines, Own, "saved");
    {
        const OpenStep step = OpenHistory().Open({.Words = "Rank", .Where = "Draft", .Team = Own, .Drag = 0});
        OpenMarket().Ranking[0] = 10007;
    }
    Begin();
    ASSERT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 90);
    EXPECT_FALSE(StateOf(SavedFile::Lines, Own).UnsavedSince);
    EXPECT_TRUE(StateOf(SavedFile::Ranking, Own).UnsavedSince);
}

TEST_F(OpenJournalTest, WorkThatDoesNotFitIsToldAndChangesNothing)
{
    Pay(90);
    ASSERT_EQ(Journals().size(), 1U);
    const JournalHead head = JournalFolder::Read(Journals()[0])->Read.Head;
    std::string bytes;
    JournalWriter writer(
        head, {},
        [&](std::string_view more) {
            bytes += more;
            return true;
        },
        [this] { return now; });
    DifferenceWriter change;
    const unsigned char values[] = {201, 202}; // the league's byte is neither
    change.Add(DeskTable::League, 3, {values, 1}, {values + 1, 1});
    writer.Closed({.Label = {.Words = "Step", .Where = "Desk", .Team = Own, .Drag = 0}, .Change = change.Finish()});
    std::ofstream(Journals()[0], std::ios::binary) << bytes;
    Begin();
    OpenMarket().Ranking[0] = 17;
    KeptWork().RankingBy = Own;
    Teams[Own].Cash = 99; // not by a step
    const auto before = Copy(OpenLeague);
    EXPECT_FALSE(BringBackWork());
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Warning, "The work that was not saved cannot be brought back. It does not fit the "
                                              "league that is open."}));
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0);
    EXPECT_EQ(OpenMarket().Ranking[0], 17);
    EXPECT_EQ(KeptWork().RankingBy, static_cast<int>(Own));
    EXPECT_FALSE(Modified);
    EXPECT_NE(UnsavedWorkWords(), "") << "it is still there";
    Pay(80);
    EXPECT_EQ(Journals().size(), 2U) << "this run's own journal goes on";
}

TEST_F(OpenJournalTest, UnsavedWorkIsTold)
{
    Pay(90);
    Begin();
    EXPECT_EQ(Offered(), "Work of " + Machine.LongDate(now) + ", " + Machine.ShortTime(now) +
                             ", on the \xC9"
                             "claireurs was not saved.");
    EXPECT_EQ(Teams[Own].Cash, 100);
}

TEST_F(OpenJournalTest, SavedWorkIsNotTold)
{
    Pay(90);
    NoteSaved(SavedFile::Lines, Own, "saved");
    Begin();
    EXPECT_EQ(Offered(), "");
}

TEST_F(OpenJournalTest, WhatASaveSetsRightIsInItsFile)
{
    Pay(90);
    RosterChanges[7].Status = 1; // not by the step
    NoteSaved(SavedFile::Lines, Own, "saved");
    OpenHistory().Undo();
    OpenHistory().Redo();
    Begin();
    EXPECT_EQ(Offered(), "");
}

TEST_F(OpenJournalTest, OffersAndARankingAreKeptForTheirTeamWhenTheyAreBack)
{
    const auto step = [](const char* words) {
        return OpenHistory().Open({.Words = words, .Where = "Free Agents", .Team = Own, .Drag = 0});
    };
    (void)OpenMarket();
    {
        const OpenStep offer = step("Change Salary");
        OpenHistory().Watch(10003);
        OpenMarket().Offers[10003].Salary = 750000;
    }
    {
        const OpenStep rank = step("Add to the draft list");
        OpenMarket().Ranking[0] = 20001;
    }
    Pay(90);
    Begin();
    EXPECT_EQ(KeptWork().OffersBy, 0);
    ASSERT_TRUE(BringBackWork());
    EXPECT_EQ(KeptWork().OffersBy, static_cast<int>(Own));
    ASSERT_EQ(KeptWork().Offers[Own].size(), 1U);
    EXPECT_EQ(KeptWork().Offers[Own][0].Id, 10003);
    EXPECT_EQ(KeptWork().Offers[Own][0].Salary, 750000);
    EXPECT_EQ(KeptWork().RankingBy, static_cast<int>(Own));
    EXPECT_EQ(KeptWork().Rankings[Own][0], 20001);
}

TEST_F(OpenJournalTest, OffersAreKeptForTheirTeamWhenAnotherOneWorkedLast)
{
    (void)OpenMarket();
    {
        const OpenStep offer =
            OpenHistory().Open({.Words = "Change Salary", .Where = "Free Agents", .Team = Own, .Drag = 0});
        OpenHistory().Watch(7);
        OpenMarket().Offers[7].Salary = 750000;
    }
    Pay(90, Own + 1);
    Begin();
    ASSERT_TRUE(BringBackWork());
    EXPECT_EQ(KeptWork().OffersBy, static_cast<int>(Own));
    EXPECT_EQ(KeptWork().Offers[Own].size(), 1U);
}

TEST_F(OpenJournalTest, WhatWasKeptIsKeptAgainThoughItsScreenHadBegunAnew)
{
    const auto rank = [](const char* words, int id) {
        const OpenStep step = OpenHistory().Open({.Words = words, .Where = "Draft", .Team = Own, .Drag = 0});
        OpenMarket().Ranking[0] = id;
    };
    rank("Add to the draft list", 10007);
    NoteKept(SavedFile::Ranking, Own);
    rank("Begin a new draft list", 0);
    Begin();
    EXPECT_NE(Offered(), "");
    ASSERT_TRUE(BringBackWork());
    EXPECT_EQ(KeptWork().Rankings[Own][0], 10007);
    EXPECT_EQ(OpenMarket().Ranking[0], 0);
}

TEST_F(OpenJournalTest, WhatIsBackIsUnsavedWhateverItsScreenBeginsAnew)
{
    const auto rank = [](int id) {
        const OpenStep step = OpenHistory().Open({.Words = "Rank", .Where = "Draft", .Team = Own, .Drag = 0});
        OpenMarket().Ranking[0] = id;
    };
    (void)OpenMarket();
    rank(10007);
    Begin();
    EXPECT_FALSE(StateOf(SavedFile::Ranking, Own).UnsavedSince);
    ASSERT_TRUE(BringBackWork());
    EXPECT_TRUE(StateOf(SavedFile::Ranking, Own).UnsavedSince);
    rank(0);
    EXPECT_TRUE(StateOf(SavedFile::Ranking, Own).UnsavedSince);
    rank(10007);
    NoteSaved(SavedFile::Ranking, Own, "saved");
    EXPECT_FALSE(StateOf(SavedFile::Ranking, Own).UnsavedSince);
}

TEST_F(OpenJournalTest, WorkIsBroughtBackAndCanBeUndoneAndGoesOn)
{
    Pay(90);
    Pay(80);
    Begin();
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(UnsavedWorkWords(), "");
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Teams[Own].Cash, 80);
    EXPECT_EQ(OpenHistory().Undo(), Turned::Done);
    EXPECT_EQ(Teams[Own].Cash, 90);
    Pay(70);
    Begin();
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 70);
    EXPECT_EQ(Journals().size(), 1U);
    NoteSaved(SavedFile::Lines, Own, "saved");
    Begin();
    EXPECT_EQ(Offered(), "");
}

TEST_F(OpenJournalTest, WorkIsBroughtBackBehindAnOpeningInTheSameRun)
{
    RosterChanges[7].Status = 3;
    Pay(90);
    Open(path);
    EXPECT_NE(Offered(), "");
    EXPECT_EQ(RosterChanges[7].Status, 3) << "an opening leaves these words";
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 90);
    EXPECT_EQ(RosterChanges[7].Status, 3);
}

TEST_F(OpenJournalTest, WordsThatAnOpeningHasLeftBelongToTheBeginning)
{
    RosterChanges[7].Status = 3;
    Open(path);
    Pay(90);
    Begin();
    EXPECT_EQ(RosterChanges[7].Status, RosterChange::Untouched);
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(RosterChanges[7].Status, 3);
}

TEST_F(OpenJournalTest, WhatJudgesRepairedMeanwhileIsNotInTheWay)
{
    Pay(90);
    Begin();
    Teams[Own].Cash = 99; // not by a step
    OpenHistory().Fold();
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 90);
    EXPECT_EQ(OpenHistory().Undo(), Turned::Done);
    EXPECT_EQ(Teams[Own].Cash, 100);
}

TEST_F(OpenJournalTest, BehindAStepNothingIsBroughtBackUntilThatIsUndone)
{
    Pay(90);
    Begin();
    Pay(95);
    EXPECT_FALSE(BringBackWork());
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Warning, "The work that was not saved cannot be brought back behind what has "
                                              "been done since. Undo that first."}));
    EXPECT_EQ(Teams[Own].Cash, 95);
    EXPECT_EQ(Journals().size(), 2U);
    OpenHistory().Undo();
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 90);
    EXPECT_EQ(Journals().size(), 1U) << "what was undone is in no file";
}

TEST_F(OpenJournalTest, EveryTeamsPasswordIsAskedFor)
{
    constexpr const char* digestOfSecret = "5ebe2294ecd0e0f08eab7690d2a6ee69";
    Teams[Own].Password = digestOfSecret;
    path = SavePlain("Locked.dvs");
    Begin();
    Pay(90);
    Pay(50, Own + 1);
    Begin();
    Machine.Type("wrong");
    EXPECT_FALSE(BringBackWork());
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Password is incorrect!"}));
    EXPECT_EQ(Teams[Own].Cash, 100);
    EXPECT_NE(UnsavedWorkWords(), "");
    Machine.Type("secret");
    EXPECT_TRUE(BringBackWork());
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!"}, Question{"Password Required!"}));
    EXPECT_EQ(Teams[Own].Cash, 90);
    EXPECT_EQ(Teams[Own + 1].Cash, 50);
    EXPECT_EQ(Teams[Own].Password.Trimmed(), digestOfSecret);
}

TEST_F(OpenJournalTest, NoPasswordStandsInIt)
{
    Teams[Own].Password = "5ebe2294ecd0e0f08eab7690d2a6ee69";
    {
        const OpenStep step = OpenHistory().Open({.Words = "Change Password", .Where = "Team", .Team = Own, .Drag = 0});
        Teams[Own].Password = "d41d8cd98f00b204e9800998ecf8427e";
        Teams[Own].Cash = 3;
    }
    ASSERT_EQ(Journals().size(), 1U);
    std::ifstream file(Journals()[0], std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    EXPECT_EQ(bytes.find("5ebe22"), std::string::npos);
    EXPECT_EQ(bytes.find("d41d8c"), std::string::npos);
}

TEST_F(OpenJournalTest, ForgottenWorkIsGone)
{
    Pay(90);
    Begin();
    ForgetWork();
    EXPECT_EQ(UnsavedWorkWords(), "");
    EXPECT_THAT(Journals(), IsEmpty());
    Begin();
    EXPECT_EQ(Offered(), "");
}

TEST_F(OpenJournalTest, BehindForgottenWorkAnOlderOneIsOffered)
{
    Pay(90);
    Begin();
    now += 1;
    Pay(80);
    Begin();
    EXPECT_TRUE(Offered().starts_with("Work of " + Machine.LongDate(now)));
    Pay(70); // this run's own
    ForgetWork();
    EXPECT_TRUE(UnsavedWorkWords().starts_with("Work of " + Machine.LongDate(now - 1)));
    ForgetWork();
    EXPECT_EQ(UnsavedWorkWords(), "");
    EXPECT_EQ(Journals().size(), 1U);
}

TEST_F(OpenJournalTest, TwoLeaguesHaveTwoJournals)
{
    Pay(90);
    Begin();
    LeagueData.LeagueCode = "XYZ";
    const std::string other = SavePlain("Other.dvs");
    Begin(other);
    EXPECT_EQ(Offered(), "");
    Pay(70);
    EXPECT_EQ(Journals().size(), 2U);
    Begin();
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 90);
    Begin(other);
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 70);
}

TEST_F(OpenJournalTest, AnotherFileOfTheLeagueIsAnotherBeginning)
{
    Pay(90);
    Begin();
    LeagueData.FileDate = 45001.5;
    const std::string newer = SavePlain("Newer.dvs");
    Begin(newer);
    EXPECT_EQ(Offered(), "");
    EXPECT_EQ(Journals().size(), 1U) << "its work is unsaved";
}

TEST_F(OpenJournalTest, WhatIsSavedGoesWithTheNextFileOfTheLeague)
{
    Pay(90);
    NoteSaved(SavedFile::Lines, Own, "saved");
    Begin();
    EXPECT_EQ(Journals().size(), 1U);
    LeagueData.FileDate = 45001.5;
    Begin(SavePlain("Newer.dvs"));
    EXPECT_THAT(Journals(), IsEmpty());
}

TEST_F(OpenJournalTest, OffersAreBackOnTheMarket)
{
    OpenMarket().Offers[9].Id = 9;
    OpenHistory().Watch(9);
    {
        const OpenStep step = OpenHistory().Open({.Words = "Offer", .Where = "Free Agents", .Team = Own, .Drag = 0});
        OpenMarket().Offers[9].Salary = 700000;
        OpenMarket().Offers[9].Duration = 3;
    }
    Begin();
    EXPECT_EQ(OpenMarket().Offers[9].Salary, 0);
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(OpenMarket().Offers[9].Salary, 700000);
    EXPECT_EQ(OpenMarket().Offers[9].Id, 9);
}

TEST_F(OpenJournalTest, AFileThatIsNoLeagueEndsTheJournal)
{
    Pay(90);
    Open(Machine.InFolder("missing.dvs"));
    Machine.ForgetBoxes("the file is missing");
    EXPECT_EQ(Offered(), "");
    Pay(80);
    Begin();
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 90);
}

TEST_F(OpenJournalTest, AJournalThatIsGoneMeanwhileIsTold)
{
    Pay(90);
    Begin();
    fs::remove(Journals()[0]);
    EXPECT_FALSE(BringBackWork());
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{box::Warning, "The work that was not saved cannot be read any more."}));
    EXPECT_EQ(Teams[Own].Cash, 100);
}

#ifndef _WIN32
TEST_F(OpenJournalTest, AFullDiskStopsTheJournalAndNothingElse)
{
    Pay(90);
    {
        const SmallDisk full(64);
        Pay(80);
    }
    EXPECT_EQ(JournalWords(), "What is done now would not survive a crash: the journal could not be written.");
    Pay(70);
    EXPECT_EQ(Teams[Own].Cash, 70);
    EXPECT_EQ(OpenHistory().Undo(), Turned::Done);
    Begin();
    EXPECT_EQ(JournalWords(), "");
    EXPECT_TRUE(BringBackWork());
    EXPECT_EQ(Teams[Own].Cash, 90);
}

TEST_F(OpenJournalTest, AFolderThatMayNotBeWrittenToStopsIt)
{
    {
        const ReadOnly locked(Machine.Folder());
        Pay(90);
    }
    EXPECT_NE(JournalWords(), "");
    EXPECT_THAT(Journals(), IsEmpty());
    Begin();
    EXPECT_EQ(Window.Quiet.count(QuietLine::JournalUnwritten), 0U);
}
#endif

} // namespace
} // namespace dravik
