#include "session/OpenJournal.h"

#include "desk/BringBack.h"
#include "desk/Offers.h"
#include "desk/Password.h"
#include "machine/GrowingFile.h"
#include "session/JournalFolder.h"
#include "session/OpenHistory.h"
#include "session/OpenMarket.h"
#include "session/OpenSaves.h"
#include "session/Session.h"

#include <algorithm>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

namespace dravik {

namespace {

// What is kept of the run on one league.
struct Journals {
    std::filesystem::path Folder;
    JournalWriter::Clock Clock;
    JournalHead Head;                      // of the open league
    std::unique_ptr<Tables> Beginning;     // as it was opened, as long as there is something to be brought back
    std::optional<FoundJournal> Unsaved;   // that
    std::filesystem::path Path;            // of the journal that is written
    std::unique_ptr<GrowingFile> File;     // none before its first step
    std::unique_ptr<JournalWriter> Writer; // null where none is kept
    bool CouldNotBegin = false;
};
Journals TheJournals;

ByteDifference Between(Tables& before, Tables& after)
{
    DifferenceWriter writer;
    for (const DeskTable table : LeagueTables)
        AddDifference(writer, table, FirstByteOf({before}, table), FirstByteOf({after}, table), SizeOf(table));
    return writer.Finish();
}

bool WriteNew(std::string_view bytes)
{
    Journals& journals = TheJournals;
    if (!journals.File) {
        journals.Path = JournalFolder(journals.Folder).NewPath(journals.Head);
        journals.File = std::make_unique<GrowingFile>(journals.Path);
    }
    return journals.File->Append(bytes);
}

void StopWriting() noexcept
{
    TellJournal(nullptr);
    TheJournals.Writer.reset();
    TheJournals.File.reset();
    TheJournals.CouldNotBegin = false;
}

void Offer(std::optional<FoundJournal> work)
{
    TheJournals.Unsaved = std::move(work);
    if (!TheJournals.Unsaved)
        TheJournals.Beginning.reset();
}

// Writes on behind what was brought back. What this run has written before is undone by then, and nobody needs it. What is back
// stays so: where nothing more can be written, that is told.
void GoOnWith(const FoundJournal& journal) noexcept
{
    Journals& journals = TheJournals;
    const bool hasFile = journals.File != nullptr;
    StopWriting();
    if (hasFile) {
        std::error_code ignored;
        std::filesystem::remove(journals.Path, ignored);
    }
    const auto write = [](std::string_view bytes) {
        Journals& of = TheJournals;
        return of.File != nullptr && of.File->Append(bytes);
    };
    try {
        journals.Path = journal.Path;
        journals.File = std::make_unique<GrowingFile>(journal.Path, journal.Read.Whole);
    } catch (const std::exception&) { // NOLINT: without it the writer stops, and that is told
    }
    try {
        journals.Writer = std::make_unique<JournalWriter>(journal.Read.Sealed, write, journals.Clock);
    } catch (const std::exception&) {
        StopWriting();
        journals.CouldNotBegin = true;
        return;
    }
    TellJournal(journals.Writer.get());
}

// What was kept is kept again. The screens of the market begin empty: what is back there is kept for its team, as what stood on
// a screen that closed.
void KeepMarketOf(const JournalRead& read)
{
    KeptMarket& kept = KeptWork();
    for (const KeptThere& there : read.Ledger.AllKept()) {
        const auto market = MarketOf(there);
        if (there.File == SavedFile::Offers)
            kept.Offers[there.Team] = WrittenOffers(market->Offers);
        else
            kept.Rankings[there.Team] = market->Ranking;
    }
    kept.OffersBy = read.Ledger.MarketBy(SavedFile::Offers);
    if (std::vector<FreeAgentOffer> written = WrittenOffers(OpenMarket().Offers); !written.empty())
        kept.Offers[kept.OffersBy] = std::move(written);
    kept.RankingBy = read.Ledger.MarketBy(SavedFile::Ranking);
    if (OpenMarket().Ranking[0] != 0)
        kept.Rankings[kept.RankingBy] = OpenMarket().Ranking;
}

void Refuse(const std::string& words) { Machine().ShowBox(words, box::Warning); }

} // namespace

void KeepJournals(const std::filesystem::path& folder, JournalWriter::Clock clock)
{
    EndJournal();
    TheJournals.Folder = folder;
    TheJournals.Clock = std::move(clock);
}

void EndJournal() noexcept
{
    StopWriting();
    TheJournals.Unsaved.reset();
    TheJournals.Beginning.reset();
}

void BeginJournal() noexcept
{
    EndJournal();
    Journals& journals = TheJournals;
    if (journals.Folder.empty())
        return;
    try {
        auto fresh = AsFreshlyOpened(OpenLeague);
        journals.Head = {.LeagueCode = LeagueData.LeagueCode,
                         .Beginning = Machine().Md5(BytesOfBeginning(*fresh)),
                         .FileDate = LeagueData.FileDate,
                         .Begun = journals.Clock()};
        const JournalFolder folder(journals.Folder);
        folder.Tidy(journals.Head, std::filesystem::file_time_type::clock::now());
        Offer(folder.LatestUnsaved(journals.Head));
        ByteDifference beyond = Between(*fresh, OpenLeague);
        if (journals.Unsaved)
            journals.Beginning = std::move(fresh);
        journals.Writer = std::make_unique<JournalWriter>(journals.Head, std::move(beyond), WriteNew, journals.Clock);
        journals.CouldNotBegin = OpenHistory().IsOutOfRoom();
        if (journals.CouldNotBegin)
            journals.Writer.reset();
        else
            TellJournal(journals.Writer.get());
    } catch (const std::exception&) {
        EndJournal();
        journals.CouldNotBegin = true;
    }
}

void TellJournalSaved(SavedFile file, int team) noexcept
{
    if (TheJournals.Writer)
        TheJournals.Writer->Saved(file, team);
}

void TellJournalKept(SavedFile file, int team) noexcept
{
    if (TheJournals.Writer)
        TheJournals.Writer->Kept(file, team);
}

std::string UnsavedWorkWords()
{
    if (!TheJournals.Unsaved)
        return {};
    const UnsavedWork& work = *TheJournals.Unsaved->Read.Unsaved;
    const std::string team = TeamTable::Has(work.Team) ? Teams[work.Team].Name.Trimmed() : "league";
    return "Work of " + Machine().LongDate(work.Time) + ", " + Machine().ShortTime(work.Time) + ", on the " + team +
           " was not saved.";
}

bool BringBackWork()
{
    if (!TheJournals.Unsaved)
        return false;
    // What is on the disk by now is what goes on.
    const auto journal = JournalFolder::Read(TheJournals.Unsaved->Path);
    if (!journal || journal->Read.Head.Beginning != TheJournals.Head.Beginning) {
        Refuse("The work that was not saved cannot be read any more.");
        return false;
    }
    const std::vector<int> teams = journal->Read.Ledger.Teams();
    if (!std::all_of(teams.begin(), teams.end(), [](int team) { return CheckPassword(OpenLeague, Machine(), team); }))
        return false;
    History& history = OpenHistory();
    history.Fold();
    if (history.ToUndo() != nullptr || history.IsOpen() || history.IsOutOfRoom()) {
        Refuse("The work that was not saved cannot be brought back behind what has been done since. Undo that first.");
        return false;
    }

    const auto leagueBefore = Copy(OpenLeague);
    const auto marketBefore = std::make_unique<Market>(OpenMarket());
    KeptMarket keptBefore = KeptWork();
    TellJournal(nullptr);
    OpenLeague = *TheJournals.Beginning;
    EmptyOpenMarket();
    history.Begin();
    std::string refused;
    try {
        refused = BringBack(history, OpenLeague, OpenMarket(), journal->Read);
        if (refused.empty()) {
            KeepMarketOf(journal->Read);
            TakeOverLedger(journal->Read.Ledger);
        }
    } catch (const std::bad_alloc&) {
        refused = "There is no room for it.";
    }
    if (!refused.empty()) {
        OpenLeague = *leagueBefore;
        OpenMarket() = *marketBefore;
        KeptWork() = std::move(keptBefore);
        history.Begin();
        TellJournal(TheJournals.Writer.get());
        Refuse("The work that was not saved cannot be brought back. " + refused);
        return false;
    }
    Modified = true;
    GoOnWith(*journal);
    Offer(std::nullopt);
    return true;
}

void ForgetWork() noexcept
{
    if (!TheJournals.Unsaved)
        return;
    std::error_code ignored;
    std::filesystem::remove(TheJournals.Unsaved->Path, ignored);
    try {
        Offer(JournalFolder(TheJournals.Folder)
                  .LatestUnsaved(TheJournals.Head, TheJournals.File ? TheJournals.Path : std::filesystem::path()));
    } catch (const std::exception&) {
        Offer(std::nullopt);
    }
}

std::string JournalWords()
{
    const bool isKept =
        !TheJournals.CouldNotBegin && (TheJournals.Writer == nullptr || !TheJournals.Writer->HasStopped());
    return isKept ? "" : "What is done now would not survive a crash: the journal could not be written.";
}

} // namespace dravik
