#include "Random.h"
#include "rules/Finance.h"
#include "rules/LineSlots.h"
#include "rules/WipeLines.h"
#include "session/Session.h"
#include "Subjects.h"

namespace dravik::sample {

namespace {

std::vector<int> DefensemenOf(int team, int status)
{
    std::vector<int> defensemen = SkatersOf(team, status);
    std::erase_if(defensemen, [](int index) { return Players[index].Position != position::Defense; });
    return defensemen;
}

void InjureOnLine(int team)
{
    Player& player = Players[Teams[team].ProLines[1].NormalForward(1, position::Center)];
    player.Condition = 62;
    player.Injury = InjuryText(0);
}

// A hole of its own on every second day; the first has three.
void EmptySlots(int team)
{
    auto& days = Teams[team].ProLines;
    days[1].NormalForward(2, position::RightWing) = 0;
    days[1].PKDefense(1, 2) = 0;
    days[1].ExtraForward[5] = 0;
    days[3].BackupGoalie = 0;
    days[5].FourVsFourForward(2, 1) = 0;
    days[7].PK3Forward[2] = 0;
    days[9].PenaltyShot[3] = 0;
}

void ShortenRoster(int team)
{
    const std::vector<int> defensemen = DefensemenOf(team, status::Pro);
    for (const int index : {defensemen.at(0), defensemen.at(1)}) {
        Players[index].Status = status::Scratch;
        WipePlayerFromTeamLines(OpenLeague, Machine(), team, index);
    }
}

void DoubleSkater(int team)
{
    for (Lines& lines : Teams[team].ProLines)
        lines.PPForward(1, position::LeftWing) = lines.PPForward(1, position::Center);
}

void ExceedCap(int team)
{
    constexpr long long raise = 250000;
    constexpr long long excess = 1000000;
    const std::vector<int> skaters = SkatersOf(team, status::Pro);
    while (ProPayroll(OpenLeague, Machine(), team) < static_cast<float>(LeagueData.SalaryCap + excess))
        for (const int index : skaters)
            Players[index].Salary = std::min<long long>(Players[index].Salary + raise, LeagueData.MaxSalary);
}

void ShortenFarm(int team)
{
    const std::vector<int> goalies = GoaliesOf(team, status::Farm);
    for (std::size_t i = 1; i < goalies.size(); ++i) {
        Goalies[goalies[i]].Team = 0;
        Goalies[goalies[i]].Contract = 0;
        WipePlayerFromTeamLines(OpenLeague, Machine(), team, goalies[i] + GoalieOffset);
    }
    const std::vector<int> defensemen = DefensemenOf(team, status::Farm);
    for (std::size_t i = 3; i < defensemen.size(); ++i) {
        Player& player = Players[defensemen[i]];
        player.Team = 0;
        player.Contract = 0;
        WipePlayerFromTeamLines(OpenLeague, Machine(), team, defensemen[i]);
    }
}

void EmptyFarmDays(int team)
{
    for (int day = 3; day <= 10; ++day)
        WipesLines(OpenLeague, Machine(), team, day, false);
}

void EmptyAllDays(int team)
{
    for (int day = 1; day <= 10; ++day) {
        WipesLines(OpenLeague, Machine(), team, day, true);
        WipesLines(OpenLeague, Machine(), team, day, false);
    }
}

// One skater has been traded to the next team, another scratched, and the lines still name both.
void PutStrangersOnLines(int team)
{
    const int scratched = SkatersOf(team, status::Scratch).front();
    const int traded = SkatersOf(team + 1, status::Pro).front();
    for (Lines& lines : Teams[team].ProLines) {
        lines.NormalDefense(3, 1) = traded;
        lines.PenaltyShot[5] = scratched;
    }
}

void DressThirdGoalie(int team)
{
    Goalie& third = Goalies[GoaliesOf(team, status::Scratch).front()];
    third.Status = status::Pro;
}

void Tear(const TeamHole& hole)
{
    switch (hole.Kind) {
    case Hole::InjuredOnLine:
        return InjureOnLine(hole.Team);
    case Hole::EmptySlots:
        return EmptySlots(hole.Team);
    case Hole::ShortRoster:
        return ShortenRoster(hole.Team);
    case Hole::DoubledSkater:
        return DoubleSkater(hole.Team);
    case Hole::OverCap:
        return ExceedCap(hole.Team);
    case Hole::FarmShort:
        return ShortenFarm(hole.Team);
    case Hole::FarmLinesEmpty:
        return EmptyFarmDays(hole.Team);
    case Hole::NoLines:
        return EmptyAllDays(hole.Team);
    case Hole::StrangerOnLine:
        return PutStrangersOnLines(hole.Team);
    case Hole::ThirdGoalie:
        return DressThirdGoalie(hole.Team);
    }
}

} // namespace

void TearHoles(const SampleOptions& /*options*/) { std::ranges::for_each(SampleHoles, Tear); }

} // namespace dravik::sample
