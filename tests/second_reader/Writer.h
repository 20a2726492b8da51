#pragma once

#include <ostream>
#include <random>
#include <string>
#include <string_view>

// What the programs have in common that save a file by the program's own routine and tell beside it as JSON what was in the
// tables. What the second reader makes of the file has to be the same.
namespace dravik {

using Random = std::mt19937;

struct Order {
    bool Wrapped;
    int Team;
    int Count; // how many, for a file that can hold fewer; 0 when nobody said it
    std::string Path;
};

// Fills the tables, saves Path and tells what was saved into `expected`; false when the program refused.
using Saver = bool (*)(const Order& order, Random& random, std::ostream& expected);

// The whole of such a program: takes the arguments `wrapped|plain SEED FILE EXPECTED.json [COUNT]`, draws the team, runs
// `save` on a machine without screens and gives the exit code: 0 saved and told, 1 refused (the boxes go to standard error),
// 2 a wrong call.
int SaveAndTell(int argc, char** argv, Saver save);

// The start of every such object: whether it is wrapped, the team and the league's code, and no closing brace.
void TellHead(std::ostream& out, const Order& order);

// A text of the code page between quotes; above 127 only what the code page has in common with Unicode.
void TellText(std::ostream& out, std::string_view text);

} // namespace dravik
