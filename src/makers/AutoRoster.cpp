#include "league/Arithmetic.h"
#include "league/PersonId.h"
#include "league/Positions.h"
#include "machine/Message.h"
#include "machine/Reporting.h"
#include "makers/Makers.h"
#include "makers/RatingList.h"
#include "rules/FarmLimits.h"
#include "rules/Finance.h"
#include "rules/Overall.h"
#include "rules/People.h"
#include "rules/Waivers.h"
#include "rules/WipeLines.h"

namespace dravik {

namespace {

// Working state of one run.
struct RosterRun {
    const Work& At;
    int Team = 0;
    bool Verbose = false;
    bool Partial = false;
    Int32 Payroll;
    Row<Int16, 1, 10000> Ids{};     // the ranking, of the skaters first and then of the goalies
    Row<Int16, 0, 10000> Ratings{}; // an entry that is dressed or refused stands at 0
    Row<Int16, 1, 5> PositionCount{};
    Int16 DressedCount{};
    Int16 StuckCount{}; // scratches that may not go to the farm
};

// What the two kinds of people differ in.
struct SkaterKind {
    using Person = Player;
    static PlayerTable& People(Tables& league) { return league.Players; }
    static constexpr bool WipedGoingDown = true;

    static void Count(RosterRun& run, const Player& player) { ++run.PositionCount[player.Position]; }
    static bool MustSitOut(const Player& player) { return player.Status == status::Pro && !IsDressable(player); }
};

struct GoalieKind {
    using Person = Goalie;
    static GoalieTable& People(Tables& league) { return league.Goalies; }
    static constexpr bool WipedGoingDown = false;

    static void Count(RosterRun& /*run*/, const Goalie& /*goalie*/) {}
    // A suspended goalie sits out wherever he stands, on the farm too.
    static bool MustSitOut(const Goalie& goalie)
    {
        return goalie.Suspension != 0 || (!IsHealthy(goalie) && goalie.Status == status::Pro);
    }
};

template <class Kind>
PersonId Who(int id)
{
    return PersonIn<typename Kind::Person>(id);
}

template <class Kind>
int Rating(const RosterRun& run, int id)
{
    return CalculateOverall(run.At.League, run.At.Says, Who<Kind>(id));
}

template <class Kind>
void SetStatus(const RosterRun& run, int id, int status)
{
    Kind::People(run.At.League)[id].Status = status;
    ChangeOf(run.At.League, Who<Kind>(id)).Status = status;
}

template <class Kind>
void Wipe(const RosterRun& run, int id)
{
    WipePlayerFromTeamLines(run.At.League, run.At.Says, run.Team, Who<Kind>(id).CommonId());
}

template <class Kind>
void Scratch(const RosterRun& run, int id)
{
    SetStatus<Kind>(run, id, status::Scratch);
    Wipe<Kind>(run, id);
}

template <class Person>
bool IsUsable(const League& rules, const Person& person)
{
    return IsFit(person) && person.Salary >= rules.MinSalary && person.Salary <= rules.MaxSalary;
}

int RankingCount(const RosterRun& run) { return static_cast<int>(run.Ratings[0]); }

std::string TeamName(const RosterRun& run) { return run.At.League.Teams[run.Team].Name.Trimmed(); }

int OpeningPayroll(const Tables& league, Voice& says, int team)
{
    const League& rules = league.LeagueData;
    int payroll = RoundToInt32(ProPayroll(league, says, team));
    if (rules.FarmPayrollInCap)
        payroll = RoundToInt32(payroll + static_cast<double>(FarmPayroll(league, says, team)));
    if (rules.CoachPayrollInCap)
        payroll = RoundToInt32(payroll + static_cast<double>(CoachPayroll(league, says, team)));
    return payroll;
}

// Ranks the usable people of a kind, in partial mode those of the pro side ahead of the farm. Whoever of the others must
// sit out goes to the scratches; the rest stay as they stand and no later step looks at them.
template <class Kind>
void Rank(RosterRun& run)
{
    constexpr int proAdvantage = 100;
    EmptyRatingList(run.Ids, run.Ratings);
    EachOfTeam(Kind::People(run.At.League), run.Team, [&](const auto& person, int id) {
        if (!IsUsable(run.At.League.LeagueData, person)) {
            if (Kind::MustSitOut(person))
                Scratch<Kind>(run, id);
            return;
        }
        Kind::Count(run, person);
        int rating = Rating<Kind>(run, id);
        if (run.Partial && (person.Status == status::Scratch || person.Status == status::Pro))
            rating += proAdvantage;
        InsertByRating(run.Ids, run.Ratings, id, rating);
    });
}

// Whether there are enough of `what`; the pro team's number counts twice where the farm has to be filled too.
bool Suffices(const RosterRun& run, long long available, long long required, std::string_view what)
{
    const int teamsToFill = run.At.League.LeagueData.FarmRosterRequired.Word() != 0 ? 2 : 1;
    if (available >= Limit16(required * teamsToFill))
        return true;
    if (run.At.Says.MayReport(run.Verbose))
        run.At.Says.ShowBox("Not Enough " + std::string(what) + " available!", box::Warning);
    return false;
}

bool SkatersSuffice(const RosterRun& run)
{
    const League& rules = run.At.League.LeagueData;
    const long long required[] = {rules.RequiredCenters, rules.RequiredLeftWings, rules.RequiredRightWings,
                                  rules.RequiredDefensemen};
    bool enough = Suffices(run, RankingCount(run), rules.ProDressedSkaters, "Players");
    for (int position = position::Center; position <= position::Defense; ++position)
        enough = Suffices(run, run.PositionCount[position], required[position - 1], PositionName[position]) && enough;
    return enough;
}

template <class Person>
bool FitsUnderCap(const RosterRun& run, const Person& person)
{
    constexpr int fixedCap = 1;
    constexpr int capAndCash = 2;
    const League& rules = run.At.League.LeagueData;
    if (rules.SalaryCapMode == fixedCap)
        return Limit32(person.Salary + run.Payroll) <= rules.SalaryCap;
    if (rules.SalaryCapMode == capAndCash)
        return Limit32(person.Salary + run.Payroll) <= Limit32(rules.SalaryCap + run.At.League.Teams[run.Team].Cash);
    return true;
}

// What a person costs on the farm, to the cap's account.
template <class Person>
double FarmShare(const RosterRun& run, const Person& person)
{
    return static_cast<double>(run.At.League.LeagueData.FarmSalaryPct) / 100 * static_cast<double>(person.Salary);
}

template <class Person>
void LogMove(const RosterRun& run, const Person& person, std::string_view where)
{
    run.At.Says.LeagueNews(person.Name.Trimmed() + " of " + TeamName(run) + " was sent to " + std::string(where) + ".");
}

// Calls a person up, as far as the payroll goes; the status follows when he is dressed. The farm's share leaves the
// payroll, rounded by itself, before the full salary enters it, whether the farm counts in the cap or not.
template <class Kind>
void CallUp(RosterRun& run, int id)
{
    const auto& person = Kind::People(run.At.League)[id];
    LogMove(run, person, "pro");
    Wipe<Kind>(run, id);
    run.Payroll = RoundToInt32(static_cast<double>(person.Salary) +
                               std::nearbyint(static_cast<double>(run.Payroll) - FarmShare(run, person)));
}

template <class Kind>
void SendDown(RosterRun& run, int id)
{
    const auto& person = Kind::People(run.At.League)[id];
    if constexpr (Kind::WipedGoingDown)
        Wipe<Kind>(run, id);
    SetStatus<Kind>(run, id, status::Farm);
    LogMove(run, person, "farm");
    run.Payroll = RoundToInt32(std::nearbyint(static_cast<double>(run.Payroll) + FarmShare(run, person)) -
                               static_cast<double>(person.Salary));
}

template <class Kind>
void Dress(const RosterRun& run, int id)
{
    if (Kind::People(run.At.League)[id].Status != status::Pro)
        Wipe<Kind>(run, id);
    SetStatus<Kind>(run, id, status::Pro);
}

constexpr int AnyPosition = 0;

// Dresses the best skater of the position who is left and fits under the cap. The ranking runs from best to worst, so he
// is the first who has not been set to 0. False when there is none.
bool DressBest(RosterRun& run, int position)
{
    for (int place = 1; place <= RankingCount(run); ++place) {
        const int id = static_cast<int>(run.Ids[place]);
        const Player& player = run.At.League.Players[id];
        if (run.Ratings[place] <= 0 || (position != AnyPosition && player.Position != position))
            continue;
        run.Ratings[place] = 0;
        if (player.Status == status::Farm) {
            if (!FitsUnderCap(run, player))
                continue;
            CallUp<SkaterKind>(run, id);
        }
        Dress<SkaterKind>(run, id);
        ++run.DressedCount;
        return true;
    }
    return false;
}

void DressSkaters(RosterRun& run, int position, long long picks)
{
    for (; picks > 0; --picks)
        if (!DressBest(run, position))
            return;
}

void UndressTheRest(const RosterRun& run)
{
    for (int place = 1; place <= RankingCount(run); ++place) {
        const int id = static_cast<int>(run.Ids[place]);
        if (run.Ratings[place] > 0 && run.At.League.Players[id].Status == status::Pro)
            Scratch<SkaterKind>(run, id);
    }
}

// Dresses the two best goalies who fit under the cap and scratches whoever stands behind them.
void DressGoalies(RosterRun& run)
{
    int limit = 2;
    for (int place = 1; place <= RankingCount(run); ++place) {
        const int id = static_cast<int>(run.Ids[place]);
        const Goalie& goalie = run.At.League.Goalies[id];
        if (place > limit) {
            if (goalie.Status == status::Pro)
                Scratch<GoalieKind>(run, id);
            continue;
        }
        if (goalie.Status == status::Farm) {
            if (!FitsUnderCap(run, goalie)) {
                run.Ratings[place] = 0;
                ++limit;
                continue;
            }
            CallUp<GoalieKind>(run, id);
        }
        Dress<GoalieKind>(run, id);
    }
}

template <class Kind>
bool MayGoDown(const RosterRun& run, int id)
{
    const League& rules = run.At.League.LeagueData;
    return !IsTooGoodForFarm(rules, Rating<Kind>(run, id)) &&
           !WaiverCheck(run.At.League, run.At.Says, Who<Kind>(id).CommonId()) &&
           !IsTooDearForFarm(rules, Kind::People(run.At.League)[id].Salary);
}

// Sends every ranked scratch down who may go. Partial mode sends nobody, and nobody goes after the trade deadline.
template <class Kind>
void SendScratchesDown(RosterRun& run)
{
    const League& rules = run.At.League.LeagueData;
    if (run.Partial || DeadlineHasPassed(rules))
        return;
    for (int place = 1; place <= RankingCount(run); ++place) {
        const int id = static_cast<int>(run.Ids[place]);
        if (Kind::People(run.At.League)[id].Status != status::Scratch)
            continue;
        if (MayGoDown<Kind>(run, id))
            SendDown<Kind>(run, id);
        else
            ++run.StuckCount;
    }
}

void Close(const RosterRun& run)
{
    const League& rules = run.At.League.LeagueData;
    Voice& says = run.At.Says;
    run.At.Modified = true;
    if (rules.ProDressedSkaters + run.StuckCount > rules.MaxProPlayers)
        says.ShowBox(TeamName(run) + " has too many players in scratch " + std::string(LineBreak) +
                         "that cannot be sent to farm without being sent to waiver.",
                     box::Information);
    const std::string routine = run.Partial ? "Auto Roster Partial Function" : "Auto Roster Function";
    says.LeagueNews(routine + " has been run for " + TeamName(run) + ".");
    if (says.MayReport(run.Verbose))
        says.ShowBox(routine + " has been run successfully.", box::Information);
}

} // namespace

Made AutoRoster(const Work& work, int team, bool verbose, bool partial)
{
    Made made;
    made.Failed = FailureOf(work.Says, " in AutoRoster!", [&] {
        if (!TeamTable::Has(team)) {
            work.Says.ShowIntegrityFailure();
            return;
        }
        const League& rules = work.League.LeagueData;
        RosterRun run{.At = work,
                      .Team = team,
                      .Verbose = verbose,
                      .Partial = partial,
                      .Payroll = OpeningPayroll(work.League, work.Says, team)};

        Rank<SkaterKind>(run);
        if (!SkatersSuffice(run))
            return;
        DressSkaters(run, position::Center, rules.RequiredCenters);
        DressSkaters(run, position::LeftWing, rules.RequiredLeftWings);
        DressSkaters(run, position::RightWing, rules.RequiredRightWings);
        DressSkaters(run, position::Defense, rules.RequiredDefensemen);
        DressSkaters(run, AnyPosition, Limit16(rules.ProDressedSkaters - run.DressedCount));
        UndressTheRest(run);
        SendScratchesDown<SkaterKind>(run);

        Rank<GoalieKind>(run);
        if (!Suffices(run, RankingCount(run), 2, PositionName[position::Goalie]))
            return;
        DressGoalies(run);
        SendScratchesDown<GoalieKind>(run);

        Close(run);
        made.Done = true;
    });
    return made;
}

} // namespace dravik
