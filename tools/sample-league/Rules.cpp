#include "Random.h"
#include "session/Session.h"
#include "Subjects.h"

#include <chrono>
#include <string>

namespace dravik::sample {

namespace {

struct DivisionPlace {
    int Number;
    std::string_view Name;
    int Conference;
};

constexpr DivisionPlace SixDivisions[] = {{1, "Harbour", 1}, {2, "Lakeland", 1}, {3, "Orchard", 1},
                                          {4, "Prairie", 2}, {5, "Granite", 2},  {6, "Cedar", 2}};
constexpr DivisionPlace FourDivisions[] = {{1, "Harbour", 1}, {2, "Lakeland", 1}, {4, "Prairie", 2}, {5, "Granite", 2}};

void SetDivision(const DivisionPlace& place)
{
    LeagueData.Division[place.Number].Name = place.Name;
    LeagueData.Division[place.Number].Conference = place.Conference;
}

// Five characters that tell leagues of different seeds apart.
std::string CodeOf(std::uint64_t seed)
{
    constexpr std::string_view letters = "ABCDEFGHJKLMNPQRSTUVWXYZ23456789";
    Random random(seed, "league code");
    std::string code = "A";
    while (code.size() < 5)
        code += random.Pick(letters);
    return code;
}

// When the file was made, in days since 30 December 1899: on the evening of a day of the season that began in October
// 2030.
double DateOf(const SampleOptions& options)
{
    using namespace std::chrono;
    constexpr sys_days epoch = year(1899) / December / 30;
    constexpr sys_days start = year(2030) / October / 4;
    const int day = options.OffSeason ? 270 : options.Deadline ? 140 : 100;
    Random random(options.Seed, "file date");
    const int minute = 18 * 60 + random.Between(0, 5 * 60);
    return static_cast<double>((start - epoch).count() + day) + minute / 1440.0;
}

void SetMoneyRules()
{
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 52000000;
    LeagueData.MinSalaryCap = 34000000;
    LeagueData.MinSalary = 500000;
    LeagueData.MaxSalary = 9000000;
    LeagueData.FarmSalaryPct = 10;
    LeagueData.FarmMaxSalary = 1500000;
    LeagueData.FarmSalaryCap = 8000000;
    LeagueData.FarmPayMinGames = 400;
    LeagueData.PayrollMinCondition = 40;
    LeagueData.PayrollSkipsSuspended = true;
    LeagueData.PayrollIncludesBonus = true;
}

void SetRosterRules()
{
    LeagueData.ProDressedSkaters = 18;
    LeagueData.MaxDressedGoalies = 2;
    LeagueData.RequiredCenters = 3;
    LeagueData.RequiredLeftWings = 3;
    LeagueData.RequiredRightWings = 3;
    LeagueData.RequiredDefensemen = 6;
    LeagueData.MaxProPlayers = 30;
    LeagueData.FarmEnabled = true;
    LeagueData.FarmRosterRequired = true;
    LeagueData.FarmMaxOverall = 68;
    LeagueData.LinesOneTwoExclusive = true;
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverExemptAge = 23;
    LeagueData.WaiverMinGames = 80;
    LeagueData.MaxProtected = 12;
    LeagueData.PullGoalerMinGoalDefault = 4;
    LeagueData.PullGoalerMinPctDefault = 82;
}

void SetRatingRules()
{
    LeagueData.OverallWeightFG = 48;
    LeagueData.OverallWeightEXLD = 50;
    LeagueData.OverallWeightDU = 50;
    LeagueData.OverallWeightDI = 50;
    LeagueData.OverallWeightPHPA = 52;
    LeagueData.OverallWeightSC = 52;
    LeagueData.OverallWeightCK = 50;
    LeagueData.UnknownRating = 40;
    LeagueData.ShowOverall = true;
    LeagueData.ShowAllRatings = true;
}

void SetTimeOfYear(const SampleOptions& options)
{
    LeagueData.OffSeason = options.OffSeason;
    LeagueData.EntryDraft = options.OffSeason;
    LeagueData.TradeDeadlinePassed = options.Deadline;
    LeagueData.TradeDeadlineInForce = options.Deadline;
    LeagueData.ScheduleShown = !options.OffSeason;
    LeagueData.RFAAge = 25;
    LeagueData.UFAAge = 30;
    LeagueData.MaxOffers = 12;
    LeagueData.OffersLeft = options.OffSeason ? 12 : 0;
    LeagueData.OfferRuleFlag = true;
    LeagueData.FileDate = DateOf(options);
}

} // namespace

void MakeRules(const SampleOptions& options)
{
    LeagueData.Name = "Aurora Crown Hockey League";
    LeagueData.LeagueCode = CodeOf(options.Seed);
    LeagueData.Conference[1] = "Tidewater";
    LeagueData.Conference[2] = "Highland";
    LeagueData.DivisionCount = options.Divisions;
    if (options.Divisions == 6)
        std::ranges::for_each(SixDivisions, SetDivision);
    else
        std::ranges::for_each(FourDivisions, SetDivision);
    SetMoneyRules();
    SetRosterRules();
    SetRatingRules();
    SetTimeOfYear(options);
}

} // namespace dravik::sample
