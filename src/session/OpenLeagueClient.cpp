#include "session/OpenLeagueClient.h"

#include "desk/MarketDoors.h"
#include "desk/PrepareLeague.h"
#include "files/ClientFile.h"
#include "league/Failure.h"
#include "league/Trimming.h"
#include "machine/Paths.h"
#include "machine/Reporting.h"
#include "machine/SettingsFailure.h"
#include "rules/StatRows.h"
#include "session/OpenChanges.h"
#include "session/OpenHistory.h"
#include "session/OpenJournal.h"
#include "session/OpenMarket.h"
#include "session/Session.h"

#include <cmath>

namespace dravik {

namespace {

void TellCritical(std::string_view text)
{
    Machine().CloseWait();
    Machine().ShowBox(text, box::Critical);
}

void SetMenus(MainWindow& window)
{
    const MarketDoors doors = DoorsOf(LeagueData);
    window.SetDraftMenu(false, "&Draft List");
    window.SetFreeAgentsMenu(doors.AreFreeAgentsOpen);
    if (doors.IsFantasyDraftOpen)
        window.SetDraftMenu(true, "Fantasy &Draft List");
    if (doors.IsEntryDraftOpen)
        window.SetDraftMenu(true, "Entry &Draft List");
}

// The date of the client file, as long as it is one: from 1 January 100 to 31 December 9999, rounded to the second as it
// is shown.
double CheckedFileDate()
{
    constexpr double first = -657434;
    constexpr double behindLast = 2958466;
    constexpr double secondsOfDay = 86400;
    const double date = LeagueData.FileDate;
    if (!(date >= first && std::round(date * secondsOfDay) < behindLast * secondsOfDay))
        Fail(failure::Overflow);
    return date;
}

// Stores the path for the next start. The league is open all the same where the settings cannot be written.
void RememberLeague(const std::string& path, MainWindow& window)
{
    const std::string words = " The next start does not open this league by itself.";
    std::string told;
    try {
        Machine().SaveSetting("Settings", "LastLoadLeague", path);
    } catch (const SettingsFailure& failed) {
        told = "The settings could not be written to " + failed.File + "." + words;
    } catch (const std::exception&) {
        told = "The settings could not be written." + words;
    }
    window.Tell(QuietLine::SettingsUnwritten, told);
}

// Shows the date of the file; when it is none, that of no file.
void ShowFileDate(MainWindow& window)
{
    const std::string caption = "Client File Date : ";
    try {
        const double date = CheckedFileDate();
        window.SetDateLabel(caption + Machine().LongDate(date) + " at " + Machine().ShortTime(date));
    } catch (...) {
        window.SetDateLabel(caption);
        throw;
    }
}

void TellOfDamage(bool damaged, MainWindow& window)
{
    window.Tell(QuietLine::Damaged, std::string(damaged ? DamagedWords : ""));
}

void ShowLeague(const std::string& path, bool damaged, MainWindow& window)
{
    constexpr std::size_t extension = 4; // whether the name has one or not
    WindowTitle = std::string(ProgramTitle) + " - " + WithoutLastCharacters(GetFileName(path), extension);
    window.SetWindowCaption(WindowTitle);
    window.PlaceTeam();
    window.CentreOnScreen();
    window.ShowLeagueMenus();
    Machine().CloseWait();
    TellOfDamage(damaged, window);
    RememberLeague(path, window);
    SetMenus(window);
    ShowFileDate(window);
}

} // namespace

void OpenLeagueClient(const std::string& path, MainWindow& window)
{
    bool isOpen = false;
    ForgetChanges();
    Reporting(Machine(), " in OpenLeagueClient!", [&] {
        EmptyLeagueTables(OpenLeague);
        if (!FileExist(Machine(), path)) {
            TellCritical("Cannot find last client league file!");
            return;
        }
        DeleteIfExists(Machine(), TempFile);
        ClientFileRead outcome;
        Machine().ShowWaitOver(
            [&] { outcome = ReadClientFile(OpenLeague, SlotFilesOf(OpenFiles()), ExistingPath(Machine(), path)); });
        if (outcome.File == SlotFileRead::NotDecompressed)
            return; // told, and the wait screen stays
        if (!outcome.Whole) {
            TellCritical(NotWholeWords);
            EmptyLeagueTables(OpenLeague);
            return;
        }
        PrepareLeague(OpenLeague);
        isOpen = true;
        LookForChanges(outcome.File == SlotFileRead::Damaged);
        const ShownRatings shown = RatingsShownBy(LeagueData);
        PlayerStatCount = shown.Skater;
        GoalieStatCount = shown.Goalie;
        ShowLeague(path, outcome.File == SlotFileRead::Damaged, window);
    });
    EmptyOpenMarket(); // offers and ranks of another league's people
    EndJournal();
    BeginHistory();
    if (isOpen)
        BeginJournal();
    TellOfJournal(window);
    window.ShowChanges();
}

void TellOfJournal(MainWindow& window)
{
    window.Tell(QuietLine::UnsavedWork, UnsavedWorkWords());
    window.Tell(QuietLine::JournalUnwritten, JournalWords());
}

} // namespace dravik
