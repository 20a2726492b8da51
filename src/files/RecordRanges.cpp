#include "files/RecordRanges.h"

#include <limits>
#include <string_view>

namespace dravik {

namespace {

constexpr long long NoLimit = std::numeric_limits<long long>::max();
constexpr long long LeastWord = std::numeric_limits<std::int16_t>::min();
constexpr long long MostMorale = 100;
constexpr long long MostRating = 100;
constexpr long long MostPercent = 100;

class Ranges {
public:
    explicit Ranges(const TellOutOfRange& to) : tell(to) {}

    Ranges& Within(std::string_view field, long long value, long long least, long long most)
    {
        if (value < least || value > most)
            tell(std::string(field) + ": " + std::to_string(value) + " is " +
                 (most == NoLimit ? "below " + std::to_string(least)
                                  : "not from " + std::to_string(least) + " to " + std::to_string(most)));
        return *this;
    }
    template <class Row>
    Ranges& Each(std::string_view field, const Row& row, long long least, long long most)
    {
        for (long long at = Row::first; at <= Row::last; ++at)
            if (row[at] < least || row[at] > most)
                Within(std::string(field) + "(" + std::to_string(at) + ")", row[at], least, most);
        return *this;
    }
    Ranges& Truth(std::string_view field, const Boolean& value)
    {
        if (value.Word() != 0 && value.Word() != -1)
            tell(std::string(field) + ": " + std::to_string(value.Word()) + " is neither true nor false");
        return *this;
    }
    Ranges& Number(long long value, long long slot)
    {
        if (value != slot)
            tell("Number: " + std::to_string(value) + " stands in slot " + std::to_string(slot));
        return *this;
    }

private:
    const TellOutOfRange& tell;
};

void CheckLines(const Lines& lines, const std::string& where, const TellOutOfRange& tell)
{
    const TellOutOfRange tellHere = [&](const std::string& words) { tell(where + words); };
    Ranges ranges(tellHere);
    const auto grid = [&](std::string_view field, const auto& slots, int numbers, int places) {
        for (int number = 1; number <= numbers; ++number)
            for (int place = 1; place <= places; ++place)
                if (const long long index = slots(number, place); index < 0 || index > PlayerTable::last)
                    ranges.Within(std::string(field) + "(" + std::to_string(number) + "," + std::to_string(place) + ")",
                                  index, 0, PlayerTable::last);
    };
    grid("NormalForward", lines.NormalForward, 4, 3);
    grid("NormalDefense", lines.NormalDefense, 4, 2);
    grid("PPForward", lines.PPForward, 2, 3);
    grid("PPDefense", lines.PPDefense, 2, 2);
    grid("PKForward", lines.PKForward, 2, 2);
    grid("PKDefense", lines.PKDefense, 2, 2);
    grid("FourVsFourForward", lines.FourVsFourForward, 2, 2);
    grid("FourVsFourDefense", lines.FourVsFourDefense, 2, 2);
    grid("PK3Defense", lines.PK3Defense, 2, 2);
    constexpr long long mostPoints = 5;
    ranges.Each("PK3Forward", lines.PK3Forward, 0, PlayerTable::last)
        .Within("StartGoalie", lines.StartGoalie, 0, GoalieTable::last)
        .Within("BackupGoalie", lines.BackupGoalie, 0, GoalieTable::last)
        .Each("ExtraForward", lines.ExtraForward, 0, PlayerTable::last)
        .Each("ExtraDefense", lines.ExtraDefense, 0, PlayerTable::last)
        .Each("PenaltyShot", lines.PenaltyShot, 0, PlayerTable::last)
        .Each("Strategy", lines.Strategy, 0, mostPoints)
        .Within("Strategy, all points", lines.Strategy[0] + lines.Strategy[1] + lines.Strategy[2], 0, mostPoints)
        .Within("PullGoalerMinGoal", lines.PullGoalerMinGoal, 0, NoLimit)
        .Within("PullGoalerMinPct", lines.PullGoalerMinPct, 0, NoLimit);
}

// What the two kinds of people have in common.
template <class Person>
void CheckPerson(const Person& person, long long slot, const TellOutOfRange& tell)
{
    Ranges ranges(tell);
    ranges.Truth("InUse", person.InUse);
    if (!person.InUse)
        return;
    ranges.Number(person.Number, slot)
        .Within("Team", person.Team, 0, TeamTable::last)
        .Within("Age", person.Age, 0, NoLimit)
        .Within("Weight", person.Weight, 0, NoLimit)
        .Within("Height", person.Height, 0, NoLimit)
        .Truth("Rookie", person.Rookie)
        .Truth("Protected", person.Protected)
        .Truth("NoApplyRerate", person.NoApplyRerate)
        .Truth("TradeAvailable", person.TradeAvailable)
        .Truth("NoTrade", person.NoTrade)
        .Within("Salary", person.Salary, 0, NoLimit)
        .Within("Condition", person.Condition, 0, MostPercent)
        .Within("Suspension", person.Suspension, 0, 99)
        .Within("Status", person.Status, status::Farm, status::Pro)
        .Each("Stats", person.Stats, 0, MostRating)
        .Within("ProGames", person.ProGames, 0, NoLimit);
}

} // namespace

void CheckRanges(const League& record, const TellOutOfRange& tell)
{
    Ranges ranges(tell);
    ranges.Within("SalaryCap", record.SalaryCap, 0, NoLimit)
        .Within("MinSalary", record.MinSalary, 0, NoLimit)
        .Within("MaxSalary", record.MaxSalary, 0, NoLimit)
        .Within("FarmSalaryPct", record.FarmSalaryPct, 0, NoLimit)
        .Within("MaxProtected", record.MaxProtected, 0, NoLimit)
        .Truth("PayrollSkipsSuspended", record.PayrollSkipsSuspended)
        .Truth("ShowOverall", record.ShowOverall)
        .Truth("ShowAllRatings", record.ShowAllRatings)
        .Truth("TradeDeadlinePassed", record.TradeDeadlinePassed)
        .Truth("LinesOneTwoExclusive", record.LinesOneTwoExclusive)
        .Truth("TicketRuleFlag", record.TicketRuleFlag)
        .Truth("FantasyDraft", record.FantasyDraft)
        .Truth("EntryDraft", record.EntryDraft)
        .Truth("ScheduleShown", record.ScheduleShown)
        .Truth("TradeDeadlineInForce", record.TradeDeadlineInForce)
        .Truth("WaiverAllowed", record.WaiverAllowed)
        .Truth("FarmEnabled", record.FarmEnabled)
        .Truth("HideFinanceAverages", record.HideFinanceAverages)
        .Truth("OffSeason", record.OffSeason)
        .Truth("ExpenseFlag", record.ExpenseFlag)
        .Truth("FarmPayrollInCap", record.FarmPayrollInCap)
        .Truth("PayrollIncludesBonus", record.PayrollIncludesBonus)
        .Truth("AutoRosterDisabled", record.AutoRosterDisabled)
        .Truth("OfferRuleFlag", record.OfferRuleFlag)
        .Truth("CoachPayrollInCap", record.CoachPayrollInCap)
        .Truth("FarmRosterRequired", record.FarmRosterRequired);
    const double date = record.FileDate;
    constexpr double first = -657434; // 1 January 100
    constexpr double end = 2958466;   // behind 31 December 9999
    if (!(date >= first && date < end))
        tell("FileDate is no date");
    constexpr int all = 6;
    constexpr int played[] = {1, 2, 4, 5}; // where not all six divisions are
    const auto conference = [&](int division) {
        ranges.Within("Division(" + std::to_string(division) + ").Conference", record.Division[division].Conference, 1,
                      2);
    };
    if (record.DivisionCount == all)
        for (int division = 1; division <= all; ++division)
            conference(division);
    else
        for (const int division : played)
            conference(division);
}

void CheckRanges(const Team& record, long long slot, const TellOutOfRange& tell)
{
    Ranges ranges(tell);
    ranges.Truth("InUse", record.InUse);
    if (!record.InUse)
        return;
    ranges.Number(record.Number, slot)
        .Within("Division", record.Division, 1, 6)
        .Within("Captain", record.Captain, 0, PlayerTable::last)
        .Each("Assistant", record.Assistant, 0, PlayerTable::last)
        .Each("ArenaCapacity", record.ArenaCapacity, 0, NoLimit)
        .Each("TicketPrice", record.TicketPrice, 0, NoLimit)
        .Within("TotalAttendance", record.TotalAttendance, 0, NoLimit)
        .Within("ProCoach", record.ProCoach, LeastWord, CoachTable::last)
        .Within("SeasonGames", record.SeasonGames, 0, NoLimit)
        .Within("ProMorale", record.ProMorale, 0, MostMorale)
        .Within("ProtectedCount", record.ProtectedCount, 0, NoLimit)
        .Within("GamesPlayed", record.GamesPlayed, 0, NoLimit)
        .Within("HomeGames", record.HomeGames, 0, NoLimit)
        .Within("Farm.FarmCoach", record.Farm.FarmCoach, LeastWord, CoachTable::last)
        .Within("Farm.FarmMorale", record.Farm.FarmMorale, 0, MostMorale)
        .Within("LinesLoadCount", record.LinesLoadCount, 0, NoLimit)
        .Within("OffersMade", record.OffersMade, 0, NoLimit);
    for (int day = 1; day <= decltype(Team::ProLines)::last; ++day) {
        CheckLines(record.ProLines[day], "ProLines(" + std::to_string(day) + ").", tell);
        CheckLines(record.Farm.FarmLines[day], "Farm.FarmLines(" + std::to_string(day) + ").", tell);
    }
}

void CheckRanges(const Player& record, long long slot, const TellOutOfRange& tell)
{
    CheckPerson(record, slot, tell);
    if (record.InUse)
        Ranges(tell).Within("Position", record.Position, position::Center, position::Defense);
}

void CheckRanges(const Goalie& record, long long slot, const TellOutOfRange& tell) { CheckPerson(record, slot, tell); }

void CheckRanges(const Coach& record, long long slot, const TellOutOfRange& tell)
{
    Ranges ranges(tell);
    ranges.Truth("InUse", record.InUse);
    if (record.InUse)
        ranges.Number(record.Number, slot)
            .Within("Team", record.Team, 0, TeamTable::last)
            .Within("Age", record.Age, 0, NoLimit)
            .Within("Salary", record.Salary, 0, NoLimit)
            .Each("Ratings", record.Ratings, 0, MostRating);
}

void CheckRanges(const ScheduleRow& record, const TellOutOfRange& tell)
{
    Ranges ranges(tell);
    ranges.Truth("ProGame", record.ProGame).Truth("FarmGame", record.FarmGame);
    if (record.ProGame)
        ranges.Truth("ProPlayed", record.ProPlayed)
            .Within("ProAway", record.ProAway, 1, TeamTable::last)
            .Within("ProHome", record.ProHome, 1, TeamTable::last);
    if (record.FarmGame)
        ranges.Truth("FarmPlayed", record.FarmPlayed)
            .Within("FarmAway", record.FarmAway, 1, TeamTable::last)
            .Within("FarmHome", record.FarmHome, 1, TeamTable::last);
}

void CheckRanges(const RosterChange& record, const TellOutOfRange& tell)
{
    Ranges(tell)
        .Within("Status", record.Status, status::Farm, status::Pro)
        .Truth("Protected", record.Protected)
        .Truth("TradeAvailable", record.TradeAvailable);
}

void CheckRanges(const FreeAgentOffer& record, const TellOutOfRange& tell)
{
    constexpr long long mostYears = 9;
    Ranges(tell)
        .Within("Id", record.Id, 1, OfferTable::last)
        .Within("Salary", record.Salary, 0, NoLimit)
        .Within("Duration", record.Duration, 1, mostYears);
}

} // namespace dravik
