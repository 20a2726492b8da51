#include "league/ClientFile.h"

#include "league/ClientVariable.h"
#include "league/Failure.h"
#include "league/Message.h"
#include "league/OutsideCode.h"
#include "league/Platform.h"
#include "league/Reporting.h"
#include "league/Session.h"
#include "league/SettingsFailure.h"
#include "league/SlotFile.h"

#include <cmath>
#include <utility>

namespace dravik {

namespace {

constexpr std::string_view StartMagic = "DRVK Client Files Version 1.12 - Start";
constexpr std::string_view EndMagic = "DRVK Client Files Version 1.12 - End";

template <class Table>
void ReadTable(SlotReader& slots, Table& table)
{
    // Slot 0 of a table that has one is not in the file.
    for (long long i = 1; i <= Table::last; ++i)
        slots.Read(table[i]);
}

// Whether both magics are right. After a wrong start magic nothing is read.
bool ReadSlots(SlotReader& slots)
{
    if (!slots.ReadMagic(StartMagic))
        return false;
    slots.Read(LeagueData);
    ReadTable(slots, Prospects);
    ReadTable(slots, Teams);
    ReadTable(slots, Players);
    ReadTable(slots, Goalies);
    ReadTable(slots, Coaches);
    ReadTable(slots, GameSchedule);
    return slots.ReadMagic(EndMagic);
}

// What became of the reading of a league.
struct LeagueRead {
    SlotFileRead File = SlotFileRead::NotDecompressed;
    bool Whole = false; // both magics are right
};

// A file that cannot be read to its end is not read at all, although its head may have been: when the reading fails,
// the tables are as they were before it.
LeagueRead ReadLeague(const std::string& path)
{
    const League league = LeagueData;
    const CoachTable coaches = Coaches;
    const auto takeBack = [&] {
        LeagueData = league;
        Coaches = coaches;
        EmptyLeagueTables();
    };
    LeagueRead outcome;
    const auto read = [&](SlotReader& slots) { outcome.Whole = ReadSlots(slots); };
    outcome.File = ReadSlotFile(path, read, SlotLength, takeBack);
    return outcome;
}

void TellCritical(std::string_view text)
{
    CloseWait();
    ShowBox(text, box::Critical);
}

void SetMenus(MainWindow& window)
{
    window.SetDraftMenu(false, "&Draft List");
    if (!LeagueData.OffSeason) {
        window.SetFreeAgentsMenu(!IsDeadlineInForce());
        return;
    }
    window.SetFreeAgentsMenu(true);
    if (LeagueData.FantasyDraft)
        window.SetDraftMenu(true, "Fantasy &Draft List");
    if (LeagueData.EntryDraft && LeagueData.EntryDraftDone == 0)
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

template <class Person>
void FillPlaceholder(Person& person, std::string_view name, int endurance)
{
    person.InUse = true;
    person.Name = name;
    person.Number = 0;
    person.Team = 0;
    person.Status = status::Farm;
    person.Country = "CAN";
    person.Age = 30;
    person.Weight = 200;
    person.Height = 70;
    person.Contract = 1;
    person.Salary = 1000;
    person.Condition = 100;
    for (auto& stat : person.Stats)
        stat = LeagueData.UnknownRating;
    person.Stats[endurance] = 80;
}

template <class Changes, class People>
void CopyWords(Changes& changes, const People& people)
{
    for (long long i = 1; i <= Changes::last; ++i) {
        changes[i].TradeAvailable = people[i].TradeAvailable;
        changes[i].Protected = people[i].Protected;
    }
}

// Older files know nothing of these rules and hold 0.
void SetDefaults()
{
    const std::pair<Int16&, int> defaults[] = {
        {LeagueData.ProDressedSkaters, 18}, {LeagueData.MaxDressedGoalies, 2},  {LeagueData.RequiredCenters, 3},
        {LeagueData.RequiredLeftWings, 3},  {LeagueData.RequiredRightWings, 3}, {LeagueData.RequiredDefensemen, 6},
        {LeagueData.OverallWeightCK, 50},
    };
    for (const auto& [field, value] : defaults)
        if (field == 0)
            field = value;
}

// Makes the tables ready that were just read. Nothing of this fails on whatever the file holds.
void PrepareLeague()
{
    const bool all = static_cast<bool>(LeagueData.ShowAllRatings);
    PlayerStatCount = all ? 15 : 7;
    GoalieStatCount = all ? 13 : 7;
    FillPlaceholder(Players[0], "Unknown Player", skater::DU);
    Players[0].Position = position::Center;
    FillPlaceholder(Goalies[0], "Unknown Goalie", goalie::DU);
    CopyWords(RosterChanges, Players);
    CopyWords(RosterChangesGoalie, Goalies);
    SetDefaults();
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

// A stream that does not fit its checksum gave something all the same, and nobody can tell which records are wrong.
void TellOfDamage(bool damaged, MainWindow& window)
{
    window.Tell(QuietLine::Damaged,
                damaged ? "This client file was damaged on its way, and some of it may be wrong. Get it anew." : "");
}

void ShowLeague(const std::string& path, bool damaged, MainWindow& window)
{
    constexpr std::size_t extension = 4; // whether the name has one or not
    WindowTitle = std::string(ProgramTitle) + " - " + WithoutLastCharacters(GetFileName(path), extension);
    window.SetWindowCaption(WindowTitle);
    window.PlaceTeam();
    window.CentreOnScreen();
    window.ShowLeagueMenus();
    CloseWait();
    TellOfDamage(damaged, window);
    RememberLeague(path, window);
    SetMenus(window);
    ShowFileDate(window);
}

} // namespace

void OpenLeagueClient(const std::string& path, MainWindow& window)
{
    Reporting(" in OpenLeagueClient!", [&] {
        EmptyLeagueTables();
        if (!FileExist(path)) {
            TellCritical("Cannot find last client league file!");
            return;
        }
        DeleteIfExists(TempFile);
        ShowWait();
        const LeagueRead outcome = ReadLeague(ExistingPath(path));
        if (outcome.File == SlotFileRead::NotDecompressed)
            return; // told, and the wait screen stays
        if (!outcome.Whole) {
            TellCritical("File Integrity is incorrect!");
            EmptyLeagueTables();
            return;
        }
        PrepareLeague();
        ShowLeague(path, outcome.File == SlotFileRead::Damaged, window);
    });
}

} // namespace dravik
