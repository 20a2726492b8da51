#pragma once

#include "league/Tables.h"
#include "terminal/Machine.h"

#include <map>
#include <string>
#include <vector>

// A team's private decisions show behind its password alone.
namespace dravik::terminal {

// The passwords that a file tells, in the code page. A team may have several, for several leagues: the one that fits counts.
using Passwords = std::map<int, std::vector<std::string>>;

// Reads the file of passwords `path`: a line a team, number, blank, password; empty lines and those that begin with "#" count for
// nothing. Without a path there are none. A file that others may read, and a line that is none of these, is a Problem.
Passwords ReadPasswords(const std::string& path);

enum class Proof {
    Proven,  // or the team has none
    Unknown, // nobody told a password
    Wrong
};

// Proves the password of `team` (1..100) by the same call as the windows, with what `known` holds of it.
Proof Prove(const Tables& league, Machine& machine, int team, const Passwords& known);

// The same for a team that was asked for by name; the password that proves it, for a call that asks once more. Where no password is known and a terminal is at hand, it asks there, without
// showing what is typed. What is not proven is a Problem.
std::string Demand(const Tables& league, Machine& machine, int team, const Passwords& known);

} // namespace dravik::terminal
