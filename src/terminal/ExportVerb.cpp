#include "files/ClientFile.h"
#include "files/RatingsExport.h"
#include "terminal/Answers.h"
#include "terminal/Interrupt.h"
#include "terminal/LeagueAtHand.h"
#include "terminal/Problem.h"
#include "terminal/Target.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <filesystem>
#include <memory>

// `dravik export`: the ratings files of a league.
namespace dravik::terminal {

namespace {

namespace fs = std::filesystem;

struct ExportOptions {
    std::string League;
    std::string Folder = ".";
    bool AsJson = false;
};

Answer Export(const std::string& path, const ExportOptions& options)
{
    static constexpr const char* names[] = {"PlayersRatings.csv", "CoachesRatings.csv"};
    const std::string target = options.Folder + PathSeparator;
    for (const char* name : names)
        RequireReplaceable({.Path = target + name, .Read = {path}});
    LeagueAtHand league = OpenLeague(path);
    Machine& machine = *league.Machine;
    // Both files are written in a folder of their own first, and take their names when both are whole.
    const WorkName work(target + "ratings");
    const WorkName players(work.Path() + PathSeparator + names[0], WorkName::AsItIs);
    const WorkName coaches(work.Path() + PathSeparator + names[1], WorkName::AsItIs);
    const fs::path folder = PathOf(work.Path());
    std::error_code error;
    if (!fs::create_directory(folder, error))
        throw Problem(options.Folder + ": " + error.message());
    Answer answer;
    Json written = Json::array();
    try {
        ExportRatings(*league.League, machine, work.Path());
        for (const char* name : names) {
            machine.RenameFile(work.Path() + PathSeparator + name, target + name);
            written.push_back(target + name);
        }
    } catch (...) {
        fs::remove_all(folder, error);
        throw;
    }
    fs::remove_all(folder, error);
    answer.Text = "Output done in " + options.Folder + "\n";
    if (league.IsDamaged)
        answer.Notes.emplace_back(DamagedWords);
    answer.Data = {{"league", league.Name()}, {"written", std::move(written)}};
    return answer;
}

} // namespace

Verb AddExport(CLI::App& program)
{
    const auto options = std::make_shared<ExportOptions>();
    CLI::App* command =
        program.add_subcommand("export", "Write the ratings of a league into two files for a spreadsheet");
    AddLeague(*command, options->League);
    AddOut(*command, options->Folder, "the folder that they are written to", "FOLDER")->capture_default_str();
    AddJson(*command, options->AsJson);
    command->footer(
        "Writes PlayersRatings.csv and CoachesRatings.csv, as the windows write them; older ones are replaced.\n"
        "Ends with 0, or 2 when nothing was written.\n\n"
        "Examples:\n"
        "  dravik export League.dvs\n"
        "  dravik export League.dvs --out tables");
    return {command, [options] {
                return AnswerEach({options->League}, {.AsJson = options->AsJson, .List = "leagues"},
                                  [&](const std::string& path) { return Export(path, *options); });
            }};
}

} // namespace dravik::terminal
