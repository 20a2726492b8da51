#pragma once

#include "SampleLeague.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

// The parts of making a sample league, each a subject with a file of its own. They run in this order, since each of
// them builds on the records that those before it have filled.
namespace dravik::sample {

void MakeRules(const SampleOptions& options);
void MakeTeams(const SampleOptions& options);
void MakeCoaches(const SampleOptions& options);
void MakeProspects(const SampleOptions& options);
void MakePeople(const SampleOptions& options);
void PaySalaries(const SampleOptions& options);
void AwardMarks(const SampleOptions& options); // captains, clauses, protected and offered players
void MakeLineUps(const SampleOptions& options);
void MakeCalendar(const SampleOptions& options);
void TearHoles(const SampleOptions& options);
void MakeFinances(const SampleOptions& options);
void FillReservedFields(const SampleOptions& options);

// The numbers of the teams in use, rising.
std::vector<int> TeamsInUse();

// Indices of the skaters, or goalies, in use on a team who stand where `status` says, rising.
std::vector<int> SkatersOf(int team, int status);
std::vector<int> GoaliesOf(int team, int status);

// Healthy, not suspended and under contract.
template <class Person>
bool Fit(const Person& person)
{
    return person.Condition >= 95 && person.Suspension == 0 && person.Contract > 0;
}

// Words for an injury.
std::string_view InjuryText(int number);

// The hole of a team, if it has one.
constexpr std::optional<Hole> HoleOf(int team)
{
    const auto* found = std::find_if(SampleHoles.begin(), SampleHoles.end(),
                                     [team](const TeamHole& hole) { return hole.Team == team; });
    return found == SampleHoles.end() ? std::nullopt : std::optional(found->Kind);
}

} // namespace dravik::sample
