#include "desk/Differences.h"

#include "desk/MatchedPeople.h"
#include "league/RatingNames.h"
#include "rules/DaySlots.h"
#include "rules/LineEligibility.h"
#include "rules/People.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace dravik {

namespace {

using enum DifferenceKind;
using enum DifferenceTone;

// In the words, %a stands for the number behind the change, %A for what it is as money, %c for what that
// is more or less, %g for games and %y for years, %s and %S for the statuses, %f and %t for the team before and the team now, %i
// for the injury, %r for the ratings and %l for lines.
constexpr std::array<DifferenceRow, 22> Rows{{
    {Hole, Bad, true, "", "leaves holes in %l"},
    {Hurt, Bad, false, "", "hurt%i, condition %a"},
    {Fit, Good, false, "", "fit again, condition %a"},
    {Suspended, Bad, false, "", "suspended for %g"},
    {BackFromSuspension, Good, false, "", "back from his suspension"},
    {OnWaivers, Bad, false, "", "on waivers"},
    {OffWaivers, Good, false, "", "no longer on waivers"},
    {Moved, News, false, "", "moved from %f to %t"},
    {Signed, News, false, "", "signed by %t, %y"},
    {SignedAgain, News, false, "", "contract made longer, %y left"},
    {Released, News, false, "", "released by %t"},
    {Gone, News, false, "", "no longer in the league%t"},
    {Came, News, false, "", "new in the league%t"},
    {Rose, Up, false, "", "%r"},
    {Fell, Down, false, "", "%r"},
    {Shifted, News, false, "", "%r"},
    {Placed, News, true, "", "%s to %S"},
    {Cash, Money, true, "Bank account", "%c, %A now"},
    {Payroll, Money, true, "Payroll", "%c, %A now"},
    {LinesLoaded, Good, true, "Your lines", "loaded, %a times by now"},
    {SalaryCap, Money, false, "Salary cap", "%c, %A now"},
    {Deadline, News, false, "Trade deadline", "is over"},
}};
static_assert([] {
    for (std::size_t index = 0; index < Rows.size(); ++index)
        if (Rows[index].Kind != static_cast<DifferenceKind>(index))
            return false;
    return static_cast<std::size_t>(Deadline) + 1 == Rows.size();
}());

constexpr int WaivedGames = 99; // how a record says that somebody is on waivers

bool IsHealthyIn(const PersonDigest& person) { return person.Condition >= HealthyCondition; }
bool IsWaivedIn(const PersonDigest& person) { return person.Suspension == WaivedGames; }
bool IsSuspendedIn(const PersonDigest& person) { return person.Suspension != 0 && !IsWaivedIn(person); }

std::string InjuryOf(const Tables& league, PersonId who)
{
    return OnPerson(league, who, [](const auto& person) { return person.Injury.Trimmed(); });
}

std::string_view LabelOf(bool isGoalie, bool showsAll, std::size_t place)
{
    const auto row = static_cast<long long>(place) + 1;
    if (isGoalie)
        return showsAll ? GoalieStatName[row] : GoalieGroupName[row];
    return showsAll ? SkaterStatName[row] : SkaterGroupName[row];
}

// Gathers the differences of two states.
class Comparison {
public:
    Comparison(const LeagueDigest& before, const Tables& behind) :
        earlier(before), league(behind), later(DigestOf(behind)), matched(MatchPeople(before.People, later.People))
    {
    }

    std::vector<Difference> Find()
    {
        for (const MatchedPerson& pair : matched)
            if (pair.Earlier < 0)
                AddNews(Came, After(pair));
            else if (pair.Later < 0)
                AddNews(Gone, Before(pair));
            else
                Compare(Before(pair), After(pair));
        CompareTeams();
        CompareRules();
        FindHoles();
        std::stable_sort(found.begin(), found.end(),
                         [](const Difference& a, const Difference& b) { return a.Kind < b.Kind; });
        return std::move(found);
    }

private:
    [[nodiscard]] const PersonDigest& Before(const MatchedPerson& pair) const
    {
        return earlier.People[static_cast<std::size_t>(pair.Earlier)];
    }
    [[nodiscard]] const PersonDigest& After(const MatchedPerson& pair) const
    {
        return later.People[static_cast<std::size_t>(pair.Later)];
    }

    // Of somebody whose name was not kept nothing can be told but by whoever has it still.
    void AddNews(DifferenceKind kind, const PersonDigest& person)
    {
        if (std::string name = person.Name.Trimmed(); !name.empty())
            found.push_back({.Kind = kind,
                             .Team = person.Team,
                             .Who = kind == Came ? std::optional(person.Who) : std::nullopt,
                             .Name = std::move(name)});
    }

    Difference& Add(DifferenceKind kind, const PersonDigest& before, const PersonDigest& after, long long from,
                    long long to)
    {
        Difference difference{.Kind = kind,
                              .Team = after.Team != 0 ? after.Team : before.Team,
                              .Who = after.Who,
                              .Name = after.Name.Trimmed(),
                              .Before = from,
                              .After = to};
        if (before.Team != after.Team && before.Team != 0 && after.Team != 0)
            difference.OtherTeam = before.Team;
        return found.emplace_back(std::move(difference));
    }

    void Compare(const PersonDigest& before, const PersonDigest& after)
    {
        const auto add = [&](DifferenceKind kind, long long from, long long to) -> Difference& {
            return Add(kind, before, after, from, to);
        };
        if (IsHealthyIn(before) && !IsHealthyIn(after))
            add(Hurt, before.Condition, after.Condition).Injury = InjuryOf(league, after.Who);
        else if (!IsHealthyIn(before) && IsHealthyIn(after))
            add(Fit, before.Condition, after.Condition);
        if (!IsSuspendedIn(before) && IsSuspendedIn(after))
            add(Suspended, before.Suspension, after.Suspension);
        else if (IsSuspendedIn(before) && after.Suspension == 0)
            add(BackFromSuspension, before.Suspension, after.Suspension);
        if (IsWaivedIn(before) != IsWaivedIn(after))
            add(IsWaivedIn(after) ? OnWaivers : OffWaivers, before.Suspension, after.Suspension);
        CompareTeam(before, after, add);
        CompareRatings(before, after);
    }

    void CompareTeam(const PersonDigest& before, const PersonDigest& after, const auto& add)
    {
        if (before.Team == after.Team) {
            if (after.Team != 0 && after.Contract > before.Contract)
                add(SignedAgain, before.Contract, after.Contract);
            if (after.Team != 0 && after.Status != before.Status)
                add(Placed, before.Status, after.Status);
            return;
        }
        if (before.Team == 0)
            add(Signed, before.Contract, after.Contract);
        else if (after.Team == 0)
            add(Released, before.Contract, after.Contract);
        else
            add(Moved, before.Team, after.Team);
    }

    void CompareRatings(const PersonDigest& before, const PersonDigest& after)
    {
        std::vector<RatingChange> changes;
        long long sum = 0;
        if (earlier.ShowsAllRatings == later.ShowsAllRatings && before.RatingCount == after.RatingCount)
            for (std::size_t place = 0; place < after.RatingCount; ++place)
                if (before.Ratings.at(place) != after.Ratings.at(place)) {
                    changes.push_back({LabelOf(after.Who.IsGoalie, later.ShowsAllRatings, place),
                                       before.Ratings.at(place), after.Ratings.at(place)});
                    sum += after.Ratings.at(place) - before.Ratings.at(place);
                }
        if (earlier.ShowsOverall && later.ShowsOverall && before.Overall != after.Overall) {
            changes.insert(changes.begin(), {SkaterStatName[SkaterStatName.last], before.Overall, after.Overall});
            sum = after.Overall - before.Overall;
        }
        if (changes.empty())
            return;
        Difference& difference = Add(sum > 0 ? Rose : sum < 0 ? Fell : Shifted, before, after, 0, 0);
        difference.Ratings = std::move(changes);
    }

    void CompareTeams()
    {
        for (const TeamDigest& after : later.Teams) {
            const auto before = std::find_if(earlier.Teams.begin(), earlier.Teams.end(),
                                             [&](const TeamDigest& team) { return team.Number == after.Number; });
            if (before == earlier.Teams.end())
                continue;
            const auto add = [&](DifferenceKind kind, long long from, long long to) {
                if (from != to)
                    found.push_back({.Kind = kind, .Team = after.Number, .Before = from, .After = to});
            };
            add(Cash, before->Cash, after.Cash);
            if (before->Payroll && after.Payroll)
                add(Payroll, *before->Payroll, *after.Payroll);
            if (after.LinesLoaded > before->LinesLoaded)
                add(LinesLoaded, before->LinesLoaded, after.LinesLoaded);
        }
    }

    void CompareRules()
    {
        const bool isCapped = later.SalaryCapMode == 1 || later.SalaryCapMode == 2;
        if (isCapped && earlier.SalaryCapMode == later.SalaryCapMode && earlier.SalaryCap != later.SalaryCap)
            found.push_back({.Kind = SalaryCap, .Before = earlier.SalaryCap, .After = later.SalaryCap});
        if (later.IsDeadlineOver && !earlier.IsDeadlineOver)
            found.push_back({.Kind = Deadline});
    }

    // The days of a person's lines that he stands in, a bit a day.
    struct Days {
        int Team = 0; // that he was with; 0 of whoever tears no hole
        std::uint16_t Pro = 0;
        std::uint16_t Farm = 0;
    };

    // What keeps somebody out of the lines that he stood in.
    static bool MayTear(const PersonDigest& before, const PersonDigest* after)
    {
        return after == nullptr || after->Team != before.Team || after->Status != before.Status ||
               (IsHealthyIn(before) && !IsHealthyIn(*after)) || (before.Suspension == 0 && after->Suspension != 0);
    }

    // Only who is refused there by now, and was changed in a way that may be the reason, tears a hole: what was wrong before is no
    // news. Slots hold the numbers of the earlier state.
    void FindHoles()
    {
        constexpr int ids = GoalieOffset + GoalieTable::last + 1;
        std::vector<Days> of(ids);
        bool isAny = false;
        for (const MatchedPerson& pair : matched)
            if (pair.Earlier >= 0) {
                const PersonDigest& before = Before(pair);
                if (before.Team != 0 && MayTear(before, pair.Later < 0 ? nullptr : &After(pair))) {
                    of[static_cast<std::size_t>(before.Who.CommonId())].Team = before.Team;
                    isAny = true;
                }
            }
        if (!isAny)
            return;
        for (const TeamDigest& team : later.Teams)
            for (const Side side : {Side::Pro, Side::Farm})
                MarkDays(team.Number, side, of);
        for (const MatchedPerson& pair : matched)
            if (pair.Earlier >= 0)
                AddHole(pair, of[static_cast<std::size_t>(Before(pair).Who.CommonId())]);
    }

    void MarkDays(int team, Side side, std::vector<Days>& of) const
    {
        for (int day = 1; day <= LineDays; ++day) {
            const Lines& lines = LinesOf(league, team, day, side);
            for (const DaySlot& slot : DaySlots) {
                const PersonId who{.IsGoalie = slot.IsGoalies(), .Slot = static_cast<int>(At(lines, slot))};
                if (who.Slot == 0 || !who.HasSlot())
                    continue;
                Days& days = of[static_cast<std::size_t>(who.CommonId())];
                if (days.Team == team && IsRefusedInLines(league, team, side, who))
                    (side == Side::Pro ? days.Pro : days.Farm) |= static_cast<std::uint16_t>(1U << (day - 1));
            }
        }
    }

    void AddHole(const MatchedPerson& pair, const Days& days)
    {
        const PersonDigest& before = Before(pair);
        const bool isGone = pair.Later < 0;
        std::string name = (isGone ? before : After(pair)).Name.Trimmed();
        if ((days.Pro == 0 && days.Farm == 0) || name.empty())
            return;
        const auto list = [](std::uint16_t bits) {
            std::vector<int> numbers;
            for (int day = 1; day <= LineDays; ++day)
                if ((bits >> (day - 1) & 1U) != 0)
                    numbers.push_back(day);
            return numbers;
        };
        found.push_back({.Kind = Hole,
                         .Team = days.Team,
                         .Who = isGone ? std::nullopt : std::optional(After(pair).Who),
                         .Name = std::move(name),
                         .ProDays = list(days.Pro),
                         .FarmDays = list(days.Farm)});
    }

    const LeagueDigest& earlier;
    const Tables& league;
    LeagueDigest later;
    std::vector<MatchedPerson> matched;
    std::vector<Difference> found;
};

std::string Counted(long long count, const char* word)
{
    return std::to_string(count) + ' ' + word + (count == 1 ? "" : "s");
}

std::string TeamWords(const Tables& league, int team)
{
    if (!TeamTable::Has(team))
        return "no team";
    std::string words = league.Teams[team].Abbre.Trimmed();
    return words.empty() ? league.Teams[team].Name.Trimmed() : words;
}

std::string StatusWords(long long status)
{
    switch (status) {
    case status::Farm:
        return "farm";
    case status::Scratch:
        return "scratches";
    case status::Pro:
        return "pro";
    default:
        return "no status";
    }
}

std::string DayWords(const char* lines, const std::vector<int>& days)
{
    std::string words = std::string(lines) + (days.size() == 1 ? " of day " : " of days ");
    for (std::size_t i = 0; i < days.size(); ++i)
        words += (i == 0 ? "" : i + 1 == days.size() ? " and " : ", ") + std::to_string(days[i]);
    return words;
}

std::string LinesWords(const Difference& difference)
{
    std::string words;
    if (!difference.ProDays.empty())
        words = DayWords("the lines", difference.ProDays);
    if (!difference.FarmDays.empty())
        words += (words.empty() ? "" : "; ") + DayWords("the farm's lines", difference.FarmDays);
    return words;
}

std::string RatingWords(const std::vector<RatingChange>& ratings)
{
    std::string words;
    for (const RatingChange& change : ratings)
        words += (words.empty() ? "" : ", ") + std::string(change.Label) + ' ' + std::to_string(change.Before) +
                 " to " + std::to_string(change.After);
    return words;
}

std::string MoneyWords(const Formats& shown, long long amount)
{
    return shown.CurrencyNoDecimals(static_cast<double>(amount));
}

std::string ChangeWords(const Formats& shown, const Difference& difference)
{
    const long long change = difference.After - difference.Before;
    return (change < 0 ? "-" : "+") + MoneyWords(shown, std::abs(change));
}

// What stands for a letter behind "%".
std::string Filled(const Tables& league, const Formats& shown, const Difference& difference, char letter)
{
    const bool isNews = difference.Kind == Gone || difference.Kind == Came;
    switch (letter) {
    case 'a':
        return std::to_string(difference.After);
    case 'A':
        return MoneyWords(shown, difference.After);
    case 'c':
        return ChangeWords(shown, difference);
    case 'g':
        return Counted(difference.After, "game");
    case 'y':
        return Counted(difference.After, "year");
    case 's':
        return StatusWords(difference.Before);
    case 'S':
        return StatusWords(difference.After);
    case 'f':
        return TeamWords(league, difference.OtherTeam);
    case 't':
        if (isNews)
            return difference.Team == 0      ? std::string()
                   : difference.Kind == Gone ? ", was with " + TeamWords(league, difference.Team)
                                             : ", with " + TeamWords(league, difference.Team);
        return TeamWords(league, difference.Team);
    case 'i':
        return difference.Injury.empty() ? std::string() : ": " + difference.Injury;
    case 'r':
        return RatingWords(difference.Ratings);
    case 'l':
        return LinesWords(difference);
    default:
        return {};
    }
}

} // namespace

const DifferenceRow& RowOf(DifferenceKind kind) { return Rows.at(static_cast<std::size_t>(kind)); }

std::vector<Difference> DifferencesBetween(const LeagueDigest& earlier, const Tables& later)
{
    return Comparison(earlier, later).Find();
}

std::string WordsOf(const Tables& league, const Formats& shown, const Difference& difference)
{
    const std::string_view pattern = RowOf(difference.Kind).Words;
    std::string words;
    for (std::size_t at = 0; at < pattern.size(); ++at)
        if (pattern[at] == '%')
            words += Filled(league, shown, difference, pattern[++at]);
        else
            words += pattern[at];
    return words;
}

std::string SubjectOf(const Difference& difference)
{
    const std::string_view subject = RowOf(difference.Kind).Subject;
    return subject.empty() ? difference.Name : std::string(subject);
}

Circle CircleOf(const Tables& league, const Difference& difference, int team)
{
    if (!TeamTable::Has(team))
        return Circle::League;
    if (difference.Team == team || difference.OtherTeam == team)
        return Circle::Own;
    const auto isNeighbour = [&](int other) {
        return TeamTable::Has(other) && league.Teams[other].Division == league.Teams[team].Division;
    };
    return isNeighbour(difference.Team) || isNeighbour(difference.OtherTeam) ? Circle::Division : Circle::League;
}

std::vector<Difference> ToldTo(const Tables& league, const std::vector<Difference>& all, int team, bool isProved)
{
    std::vector<Difference> told;
    for (const Difference& difference : all)
        if (!RowOf(difference.Kind).IsPrivate || (isProved && difference.Team == team))
            told.push_back(difference);
    std::stable_sort(told.begin(), told.end(), [&](const Difference& a, const Difference& b) {
        return CircleOf(league, a, team) < CircleOf(league, b, team);
    });
    return told;
}

} // namespace dravik
