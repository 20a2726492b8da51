#pragma once

#include <array>
#include <cstdint>
#include <string_view>

// A made-up league for trying, testing and measuring the client.
namespace dravik {

struct SampleOptions {
    std::uint64_t Seed = 1;
    int Divisions = 6;      // 6, or 4: divisions 1, 2, 4 and 5
    bool OffSeason = false; // between two seasons, with an entry draft and no calendar
    bool Deadline = false;  // late in the season, behind the trade deadline
    bool Full = false;      // every slot of the persons' tables in use
};

// Fills the tables of the client with a league of 30 teams that depends on `options` alone: the same on every machine.
// Needs a machine in use (`UseMachine`) for the digests of the passwords; shows no box. Fails with 5 on another number
// of divisions, and on an off-season behind the deadline.
void MakeSampleLeague(const SampleOptions& options);

// What is wrong with a team. All others are whole: roster, and all ten days of lines, pro and farm.
enum class Hole {
    InjuredOnLine,  // an injured skater is dressed and stands on the lines
    EmptySlots,     // slots of the pro lines are empty
    ShortRoster,    // two skaters too few are dressed
    DoubledSkater,  // one skater stands twice on a power play unit
    OverCap,        // the payroll is above the salary cap
    FarmShort,      // the farm lacks a goalie and defensemen
    FarmLinesEmpty, // the farm has no lines from day 3 on
    NoLines,        // neither pro nor farm has any lines
    StrangerOnLine, // a skater of another team, and a scratched one, stand on the lines
    ThirdGoalie,    // three goalies are dressed
};

struct TeamHole {
    int Team;
    Hole Kind;
};

inline constexpr std::array SampleHoles{TeamHole{2, Hole::InjuredOnLine},   TeamHole{5, Hole::EmptySlots},
                                        TeamHole{9, Hole::ShortRoster},     TeamHole{12, Hole::DoubledSkater},
                                        TeamHole{15, Hole::OverCap},        TeamHole{18, Hole::FarmShort},
                                        TeamHole{21, Hole::FarmLinesEmpty}, TeamHole{23, Hole::NoLines},
                                        TeamHole{27, Hole::StrangerOnLine}, TeamHole{30, Hole::ThirdGoalie}};

// The teams that ask for a password. All others have none.
struct TeamPassword {
    int Team;
    std::string_view Password;
};

inline constexpr std::array SamplePasswords{TeamPassword{3, "puck"}, TeamPassword{7, "blue line"},
                                            TeamPassword{12, "IceBox1"}};

} // namespace dravik
