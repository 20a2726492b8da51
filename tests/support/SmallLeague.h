#pragma once

#include "session/Session.h"
#include "support/ScriptedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace dravik {

// A team that is filled in readable lines. Every call takes the next free slots of the tables and notes their indices.
//
//     TeamMaker(5).Dresses(3, position::Center).DressesGoalies(2).Farms(1, position::Defense, 40);
class TeamMaker {
public:
    // Puts team `number` in use under the name "Team 5" (number 5) and its farm under "Farm 5".
    explicit TeamMaker(int number);

    // `count` healthy skaters under contract. `rating` (0..99) stands in all their ratings; under the rules that
    // SmallLeague sets, it is their overall too.
    TeamMaker& Dresses(int count, int position, int rating = 60) { return Add(count, position, status::Pro, rating); }
    TeamMaker& Scratches(int count, int position, int rating = 60)
    {
        return Add(count, position, status::Scratch, rating);
    }
    TeamMaker& Farms(int count, int position, int rating = 60) { return Add(count, position, status::Farm, rating); }
    TeamMaker& DressesGoalies(int count, int rating = 60) { return AddGoalies(count, status::Pro, rating); }
    TeamMaker& ScratchesGoalies(int count, int rating = 60) { return AddGoalies(count, status::Scratch, rating); }
    TeamMaker& FarmsGoalies(int count, int rating = 60) { return AddGoalies(count, status::Farm, rating); }

    // Four centers, four left wings, four right wings, six defensemen and two goalies, dressed: a complete pro roster
    // with distinct ratings, best first within a position.
    TeamMaker& DressesFullRoster();
    // The same on the farm.
    TeamMaker& FarmsFullRoster();

    // Indices of the people added so far, in order of adding.
    std::vector<int> Skaters;
    std::vector<int> GoalieIds;
    int Number;

private:
    TeamMaker& Add(int count, int position, int status, int rating);
    TeamMaker& AddGoalies(int count, int status, int rating);
    TeamMaker& AddFullRoster(int status);
};

// Puts one skater, or one goalie, into slot `index`: healthy, under contract, salary 1000000, named "Skater 7" or
// "Goalie 7" after his index.
Player& PutSkater(int index, int team, int position, int status, int rating = 60);
Goalie& PutGoalie(int index, int team, int status, int rating = 60);

// Fills every slot of a day with people of the team who may stand there, by hand: skaters from `forwards` and `defense`
// in turn, goalies in order. With the 12 forwards and 6 defensemen of a full roster nothing stands twice in a group.
void FillLines(Lines& lines, const std::vector<int>& forwards, const std::vector<int>& defense,
               const std::vector<int>& goalies);

// Weights under which every skater and goalie whose ratings are all r has the overall r, up to the roundings: shown by
// a test.
void SetPlainWeights();

// The rules of an ordinary league: what a roster needs, what a salary may be, everything shown, and the plain weights.
void SetOrdinaryRules();

// The fixture of most tests: tables in their start-up state, rules of an ordinary league, a scripted machine.
class SmallLeague : public ::testing::Test {
protected:
    SmallLeague();
    ~SmallLeague() override = default;

    ScriptedPlatform Machine;
};

} // namespace dravik
