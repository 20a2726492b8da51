#include "makers/SecondReading.h"

#include "rules/Finance.h"
#include "rules/LineSlots.h"
#include "rules/Waivers.h"
#include "support/Routines.h"

#include <algorithm>
#include <cmath>

namespace dravik::second {

namespace {

// One person of the team, skater or goalie, as the roster sees him.
struct Person {
    int Id;
    int Position; // 5: a goalie
    long Salary;
    int Overall;
    bool Healthy;
    bool Suspended;
    bool Usable;
    int Status;
    int Mark;
    bool Done = false;
};

template <class Table>
Person Read(const Table& table, int id, int position)
{
    const auto& record = table[id];
    Person person{};
    person.Id = id;
    person.Position = position;
    person.Salary = static_cast<long>(record.Salary);
    person.Overall = CalculateOverall(position, id);
    person.Healthy = record.Condition >= 95;
    person.Suspended = record.Suspension != 0;
    person.Usable = person.Healthy && !person.Suspended && record.Contract != 0 &&
                    record.Salary >= LeagueData.MinSalary && record.Salary <= LeagueData.MaxSalary;
    person.Status = static_cast<int>(record.Status);
    return person;
}

class Run {
public:
    Run(int team, bool verbose, bool partial, Roster& roster) :
        team(team), verbose(verbose), partial(partial), roster(roster)
    {
    }

    void Go(int skaters, int goalies)
    {
        payroll = std::rint(ProPayroll(OpenLeague, Machine(), team));
        if (LeagueData.FarmPayrollInCap)
            payroll = std::rint(payroll + FarmPayroll(OpenLeague, Machine(), team));
        if (LeagueData.CoachPayrollInCap)
            payroll = std::rint(payroll + CoachPayroll(OpenLeague, Machine(), team));
        if (Skaters(skaters) && Keepers(goalies))
            Close();
    }

private:
    bool Skaters(int last)
    {
        std::vector<Person> people;
        for (int id = 1; id <= last; ++id)
            if (Players[id].InUse && Players[id].Team == team)
                people.push_back(Read(Players, id, static_cast<int>(Players[id].Position)));
        for (Person& person : people) {
            if (!person.Usable && !person.Healthy && person.Status == 2)
                Move(person, 1);
            else if (!person.Usable && person.Status == 2 && person.Suspended)
                Move(person, 1);
        }
        std::vector<Person> ranked = Ranked(people);

        const long long twice = LeagueData.FarmRosterRequired.Word() == 0 ? 1 : 2;
        bool failed = false;
        const auto need = [&](long long there, long long needed, const char* what) {
            if (there >= needed * twice)
                return;
            failed = true;
            if (verbose)
                roster.Boxes.push_back({48, std::string("Not Enough ") + what + " available!"});
        };
        const auto of = [&](int position) {
            return std::count_if(ranked.begin(), ranked.end(),
                                 [position](const Person& person) { return person.Position == position; });
        };
        need(static_cast<long long>(ranked.size()), LeagueData.ProDressedSkaters, "Players");
        need(of(1), LeagueData.RequiredCenters, "C");
        need(of(2), LeagueData.RequiredLeftWings, "LW");
        need(of(3), LeagueData.RequiredRightWings, "RW");
        need(of(4), LeagueData.RequiredDefensemen, "D");
        if (failed)
            return false;

        Pick(ranked, 1, static_cast<int>(LeagueData.RequiredCenters));
        Pick(ranked, 2, static_cast<int>(LeagueData.RequiredLeftWings));
        Pick(ranked, 3, static_cast<int>(LeagueData.RequiredRightWings));
        Pick(ranked, 4, static_cast<int>(LeagueData.RequiredDefensemen));
        Pick(ranked, 0, static_cast<int>(LeagueData.ProDressedSkaters) - dressed);
        for (Person& person : ranked)
            if (!person.Done && person.Mark > 0 && person.Status == 2)
                Move(person, 1);
        Down(ranked);
        return true;
    }

    bool Keepers(int last)
    {
        std::vector<Person> people;
        for (int id = 1; id <= last; ++id)
            if (Goalies[id].InUse && Goalies[id].Team == team)
                people.push_back(Read(Goalies, id, 5));
        for (Person& person : people)
            if (!person.Usable && (person.Suspended || (!person.Healthy && person.Status == 2)))
                Move(person, 1);
        std::vector<Person> ranked = Ranked(people);
        if (ranked.size() < (LeagueData.FarmRosterRequired.Word() == 0 ? 2U : 4U)) {
            if (verbose)
                roster.Boxes.push_back({48, "Not Enough G available!"});
            return false;
        }
        int seats = 2;
        for (Person& person : ranked) {
            if (seats == 0) {
                if (person.Status == 2)
                    Move(person, 1);
            } else if (person.Status != 0 || MayCome(person)) {
                Come(person);
                --seats;
            }
        }
        Down(ranked);
        return true;
    }

    void Close()
    {
        roster.Modified = true;
        const std::string name = Teams[team].Name.Trimmed();
        if (LeagueData.ProDressedSkaters + stuck > LeagueData.MaxProPlayers)
            roster.Boxes.push_back({64, name +
                                            " has too many players in scratch \r\nthat cannot be sent to farm without "
                                            "being sent to waiver."});
        if (verbose)
            roster.Boxes.push_back({64, partial ? "Auto Roster Partial Function has been run successfully."
                                                : "Auto Roster Function has been run successfully."});
    }

    std::vector<Person> Ranked(const std::vector<Person>& people)
    {
        std::vector<Person> ranked;
        for (Person person : people) {
            if (!person.Usable)
                continue;
            person.Mark = person.Overall + (partial && (person.Status == 1 || person.Status == 2) ? 100 : 0);
            ranked.push_back(person);
        }
        std::stable_sort(ranked.begin(), ranked.end(),
                         [](const Person& one, const Person& other) { return one.Mark > other.Mark; });
        return ranked;
    }

    void Pick(std::vector<Person>& ranked, int position, int picks)
    {
        for (int pick = 1; pick <= picks; ++pick) {
            for (;;) {
                Person* best = nullptr;
                for (Person& person : ranked) {
                    const bool eligible =
                        !person.Done && person.Mark > 0 && (position == 0 || person.Position == position);
                    if (eligible && (best == nullptr || person.Mark > best->Mark))
                        best = &person;
                }
                if (best == nullptr)
                    break;
                best->Done = true;
                if (best->Status == 0 && !MayCome(*best))
                    continue;
                Come(*best);
                ++dressed;
                break;
            }
        }
    }

    [[nodiscard]] bool MayCome(const Person& person) const
    {
        const double cap = static_cast<double>(LeagueData.SalaryCap);
        if (LeagueData.SalaryCapMode == 1)
            return static_cast<double>(person.Salary) + payroll <= cap;
        if (LeagueData.SalaryCapMode == 2)
            return static_cast<double>(person.Salary) + payroll <= cap + static_cast<double>(Teams[team].Cash);
        return true;
    }

    void Come(Person& person)
    {
        if (person.Status == 0)
            payroll = static_cast<double>(person.Salary) + std::rint(payroll - Share(person));
        Move(person, 2);
    }

    void Down(std::vector<Person>& ranked)
    {
        if (partial || (LeagueData.TradeDeadlinePassed && LeagueData.TradeDeadlineInForce))
            return;
        for (Person& person : ranked) {
            if (person.Status != 1)
                continue;
            const bool stays =
                person.Overall > LeagueData.FarmMaxOverall ||
                WaiverCheck(OpenLeague, Machine(), person.Position == 5 ? person.Id + 10000 : person.Id) ||
                (LeagueData.FarmMaxSalary > 0 && person.Salary > LeagueData.FarmMaxSalary);
            if (stays) {
                ++stuck;
                continue;
            }
            Move(person, 0);
            payroll = std::rint(payroll + Share(person)) - static_cast<double>(person.Salary);
        }
    }

    static double Share(const Person& person)
    {
        return static_cast<double>(LeagueData.FarmSalaryPct) / 100 * static_cast<double>(person.Salary);
    }

    void Move(Person& person, int status)
    {
        person.Status = status;
        const auto place = static_cast<std::size_t>(person.Id - 1);
        (person.Position == 5 ? roster.GoalieStatus : roster.SkaterStatus)[place] = status;
        (person.Position == 5 ? roster.GoalieChange : roster.SkaterChange)[place] = status;
    }

    int team;
    bool verbose;
    bool partial;
    Roster& roster;
    double payroll = 0;
    int dressed = 0;
    int stuck = 0;
};

void SortMen(Men& men)
{
    std::stable_sort(men.begin(), men.end(), [](const Man& one, const Man& other) {
        return CalculateOverall(one.Position, one.Id) > CalculateOverall(other.Position, other.Id);
    });
}

template <class Fit>
Men MenWho(int team, Fit&& fit)
{
    Men men;
    for (int id = 1; id <= 10000; ++id)
        if (Players[id].InUse && Players[id].Team == team && Players[id].Condition >= 95 && fit(Players[id]))
            men.push_back({id, static_cast<int>(Players[id].Position)});
    return men;
}

// The best of the farm's goalies who can play, and the best of the others; of equal ones the lower index.
Keepers TwoBestOfTheFarm(int team, bool underContract)
{
    const auto plays = [&](int id) {
        const Goalie& goalie = Goalies[id];
        return goalie.InUse.Word() == -1 && goalie.Team == team && goalie.Status == 0 && goalie.Condition > 94 &&
               goalie.Suspension == 0 && (goalie.Contract != 0 || !underContract);
    };
    const auto bestBut = [&](int other) {
        int best = 0;
        for (int id = 1; id <= 1000; ++id)
            if (id != other && plays(id) && (best == 0 || CalculateOverall(5, id) > CalculateOverall(5, best)))
                best = id;
        return best;
    };
    const int first = bestBut(0);
    return {first, bestBut(first)};
}

// The ids of the forwards (or defensemen) of a list, and zeroes behind them.
std::vector<int> Kind(const Men& men, bool defense)
{
    std::vector<int> ids;
    for (const Man& man : men)
        if ((man.Position == 4) == defense)
            ids.push_back(man.Id);
    ids.resize(ids.size() + 8);
    return ids;
}

void DealUnits(Day& day, const Men& men)
{
    const std::vector<int> forwards = Kind(men, false);
    const std::vector<int> defense = Kind(men, true);
    for (std::size_t i = 0; i < 4; ++i) {
        day.KillForward[i / 2][i % 2] = forwards[i];
        day.PPDefense[i / 2][i % 2] = defense[i];
        day.KillDefense[i / 2][i % 2] = defense[i];
    }
    for (std::size_t i = 0; i < 2; ++i)
        day.Kill3Forward[i] = forwards[i];
    for (std::size_t i = 0; i < 5; ++i) {
        day.ExtraForward[i] = forwards[i];
        day.ExtraDefense[i] = defense[i];
    }
}

void DealPairs(Day& day, const Men& men, int counted, bool repeatsFive)
{
    const std::vector<int> defense = Kind(men, true);
    auto& pairs = day.Defense;
    for (std::size_t i = 0; i < 8; ++i)
        pairs[i / 2][i % 2] = defense[i];
    if (counted == 5 && repeatsFive) {
        pairs[2][1] = pairs[0][0];
        pairs[3][0] = pairs[0][1];
        pairs[3][1] = pairs[1][0];
    } else if (counted == 6) {
        pairs[3][0] = pairs[0][0];
        pairs[3][1] = pairs[0][1];
    } else if (counted == 7) {
        pairs[3][1] = pairs[0][0];
    }
}

} // namespace

Roster RosterNow(int skaters, int goalies)
{
    Roster roster;
    for (int id = 1; id <= skaters; ++id) {
        roster.SkaterStatus.push_back(static_cast<int>(Players[id].Status));
        roster.SkaterChange.push_back(static_cast<int>(RosterChanges[id].Status));
    }
    for (int id = 1; id <= goalies; ++id) {
        roster.GoalieStatus.push_back(static_cast<int>(Goalies[id].Status));
        roster.GoalieChange.push_back(static_cast<int>(RosterChangesGoalie[id].Status));
    }
    roster.Modified = Modified;
    return roster;
}

Roster RosterAfter(int team, bool verbose, bool partial, int skaters, int goalies)
{
    Roster roster = RosterNow(skaters, goalies);
    Run(team, verbose, partial, roster).Go(skaters, goalies);
    return roster;
}

Men DressedMen(int team)
{
    Men men = MenWho(team, [](const Player& player) { return player.Status == 2; });
    if (static_cast<long long>(men.size()) > LeagueData.ProDressedSkaters)
        men.resize(static_cast<std::size_t>(LeagueData.ProDressedSkaters));
    SortMen(men);
    return men;
}

Men FarmMenSimply(int team)
{
    Men men = MenWho(team, [](const Player& player) { return player.Status == 0 && player.Suspension == 0; });
    SortMen(men);
    return men;
}

Men FarmMenByRequirement(int team)
{
    Men all = MenWho(
        team, [](const Player& player) { return player.Status == 0 && player.Suspension == 0 && player.Contract > 0; });
    SortMen(all);
    const long long required[] = {LeagueData.RequiredCenters, LeagueData.RequiredLeftWings,
                                  LeagueData.RequiredRightWings, LeagueData.RequiredDefensemen};
    Men chosen;
    Men rest = all;
    for (int position = 1; position <= 4; ++position) {
        for (long long i = 0; i < required[position - 1]; ++i) {
            const auto next =
                std::find_if(rest.begin(), rest.end(), [position](const Man& man) { return man.Position == position; });
            if (next == rest.end())
                break;
            chosen.push_back(*next);
            rest.erase(next);
        }
    }
    for (const Man& man : rest)
        if (static_cast<long long>(chosen.size()) < LeagueData.ProDressedSkaters)
            chosen.push_back(man);
    SortMen(chosen);
    return chosen;
}

Keepers FarmKeepersSimply(int team)
{
    Keepers keepers = TwoBestOfTheFarm(team, false);
    if (keepers.Backup > 98 && keepers.Start < 98)
        std::swap(keepers.Start, keepers.Backup);
    return keepers;
}

Keepers FarmKeepersUnderContract(int team)
{
    Keepers keepers = TwoBestOfTheFarm(team, true);
    if (Goalies[keepers.Backup].Condition > 98 && Goalies[keepers.Start].Condition < 98)
        std::swap(keepers.Start, keepers.Backup);
    return keepers;
}

Lines Day::AsLines() const
{
    Lines lines;
    for (int line = 0; line < 4; ++line) {
        for (int position = 0; position < 3; ++position)
            lines.NormalForward(line + 1, position + 1) = Forward[line][position];
        for (int place = 0; place < 2; ++place)
            lines.NormalDefense(line + 1, place + 1) = Defense[line][place];
    }
    for (int unit = 0; unit < 2; ++unit) {
        for (int position = 0; position < 3; ++position)
            lines.PPForward(unit + 1, position + 1) = PPForward[unit][position];
        for (int place = 0; place < 2; ++place) {
            lines.PPDefense(unit + 1, place + 1) = PPDefense[unit][place];
            lines.PKForward(unit + 1, place + 1) = KillForward[unit][place];
            lines.FourVsFourForward(unit + 1, place + 1) = KillForward[unit][place];
            lines.PKDefense(unit + 1, place + 1) = KillDefense[unit][place];
            lines.FourVsFourDefense(unit + 1, place + 1) = KillDefense[unit][place];
            lines.PK3Defense(unit + 1, place + 1) = KillDefense[unit][place];
        }
        lines.PK3Forward[unit + 1] = Kill3Forward[unit];
    }
    for (int number = 0; number < 5; ++number) {
        lines.ExtraForward[number + 1] = ExtraForward[number];
        lines.PenaltyShot[number + 1] = ExtraForward[number];
        lines.ExtraDefense[number + 1] = ExtraDefense[number];
    }
    lines.Strategy[0] = 1;
    lines.Strategy[1] = 2;
    lines.Strategy[2] = 2;
    return lines;
}

Day DealtByThePro(const Men& men)
{
    Day day;
    Men left;
    std::copy_if(men.begin(), men.end(), std::back_inserter(left), [](const Man& man) { return man.Position < 4; });
    const Men forwards = left;
    // Takes out the first of those left who has the position, 0 meaning any.
    const auto take = [&left](int position) {
        const auto found = std::find_if(
            left.begin(), left.end(), [position](const Man& man) { return position == 0 || man.Position == position; });
        if (found == left.end())
            return 0;
        const int id = found->Id;
        left.erase(found);
        return id;
    };
    for (auto& line : day.Forward) {
        for (int position = 1; position <= 3; ++position)
            line[position - 1] = take(position);
        for (int& slot : line)
            if (slot == 0)
                slot = take(0);
    }
    left = forwards;
    for (auto& line : day.Forward)
        for (int& slot : line)
            if (slot == 0)
                slot = take(0);
    for (int unit = 0; unit < 2; ++unit)
        std::copy(std::begin(day.Forward[unit]), std::end(day.Forward[unit]), std::begin(day.PPForward[unit]));
    DealPairs(day, men,
              static_cast<int>(std::count_if(men.begin(), men.end(), [](const Man& man) { return man.Position == 4; })),
              true);
    DealUnits(day, men);
    return day;
}

Day DealtByTheFarm(const Men& men, const std::array<int, 5>& counted)
{
    Day day;
    Men left;
    std::copy_if(men.begin(), men.end(), std::back_inserter(left), [](const Man& man) { return man.Position < 4; });
    for (int position = 1; position <= 3; ++position) {
        Men own;
        std::copy_if(men.begin(), men.end(), std::back_inserter(own),
                     [position](const Man& man) { return man.Position == position; });
        for (std::size_t line = 0; line < own.size() && line < 4; ++line) {
            day.Forward[line][position - 1] = own[line].Id;
            if (line < 2)
                day.PPForward[line][position - 1] = own[line].Id;
            left.erase(std::find_if(left.begin(), left.end(), [&](const Man& man) { return man.Id == own[line].Id; }));
        }
    }
    std::size_t next = 0;
    for (auto& line : day.Forward)
        for (int& slot : line)
            if (slot == 0 && next < left.size())
                slot = left[next++].Id;
    DealPairs(day, men, counted[4], false);
    DealUnits(day, men);
    return day;
}

} // namespace dravik::second
