#pragma once

#include "terminal/Verbs.h"

#include <string>

namespace dravik::terminal {

// What the two verbs over the files of the market are asked: to show such a file, or to write one from a table.
struct MarketOptions {
    std::string League;
    std::string Team;
    std::string PasswordFile;
    std::string Read; // the file to show
    std::string Csv;  // the table to write from
    std::string Out;  // and the file that is written
    bool AsJson = false;
};

// `ending` is that of the files, ".dvf". One of both ways has to be asked for.
void AddMarket(CLI::App& command, MarketOptions& options, const std::string& ending);

} // namespace dravik::terminal
