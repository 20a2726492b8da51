#pragma once

#include "files/FileAccess.h"
#include "files/VerifyFile.h"
#include "terminal/Answers.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Verbs.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// What the two verbs over the files of the market have in common.
namespace dravik::terminal {

// What they are asked: to show such a file, or to write one from a table.
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

// How a verb shows the file `path` of `team`, and how it writes one. Both come behind the team's password.
struct MarketWays {
    SystemFile Kind; // of the files
    Answer (*Show)(LeagueAtHand& league, int team, const std::string& path);
    Answer (*Write)(LeagueAtHand& league, int team, const MarketOptions& options);
};
Verb MarketVerb(CLI::App* command, const std::shared_ptr<MarketOptions>& options, MarketWays ways);

// What came of taking the table in.
struct MarketTaken {
    std::vector<std::string> Notes; // in UTF-8
    bool IsHeld = false;            // something of it was not taken as it stood
    Json Counts = Json::object();   // what the answer tells beside it
};

// Has `save` write the file of `team` with the files that it is handed, and answers with its report, which is empty or none where
// nothing was saved, and with what the boxes told.
Answer SavedMarket(LeagueAtHand& league, int team, const MarketOptions& options, MarketTaken taken,
                   const std::function<std::optional<std::string>(const FileAccess& files)>& save);

} // namespace dravik::terminal
