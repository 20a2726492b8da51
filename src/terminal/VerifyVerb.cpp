#include "desk/ReadJournal.h"
#include "files/VerifyFile.h"
#include "terminal/Answers.h"
#include "terminal/Machine.h"
#include "terminal/Problem.h"
#include "terminal/Utf8.h"
#include "terminal/Verbs.h"

#include <fstream>
#include <iterator>
#include <memory>

// `dravik verify`: whether files are what they should be.
namespace dravik::terminal {

namespace {

struct VerifyOptions {
    std::vector<std::string> Files;
    bool AsJson = false;
    int Threads = 1;
};

// A journal is sound when nothing stands behind its last whole entry.
void VerifyJournal(const std::string& path, VerifiedFile& verified)
{
    std::ifstream file(PathOf(path), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    const JournalOutcome outcome = ReadJournal(bytes);
    const auto note = [&](const std::string& words) {
        ++verified.Count;
        verified.Findings.push_back(words);
    };
    if (!outcome.Journal)
        return note(outcome.Refused);
    verified.LeagueCode = outcome.Journal->Head.LeagueCode.Raw();
    if (outcome.Journal->Whole != bytes.size())
        note("Its entries are whole up to byte " + std::to_string(outcome.Journal->Whole) + " of " +
             std::to_string(bytes.size()));
}

Answer Verify(const std::string& path)
{
    constexpr std::size_t mostTold = 20;
    Machine machine;
    VerifiedFile verified = VerifyFile(machine, path);
    if (verified.Kind == SystemFile::Journal)
        VerifyJournal(path, verified);
    const bool isSound = verified.Count == 0;
    Answer answer;
    answer.Text = OnOneLine(path) + ": " + std::string(NameOf(verified.Kind)) +
                  (verified.Team > 0 ? " of team " + std::to_string(verified.Team) : "") + ", " +
                  (isSound ? "sound" : "damaged") + "\n";
    Json findings = Json::array();
    for (const std::string& words : verified.Findings) {
        findings.push_back(OnOneLine(ToUtf8(words)));
        if (findings.size() <= mostTold)
            answer.Text += "  " + findings.back().get<std::string>() + "\n";
    }
    if (verified.Count > static_cast<long long>(mostTold))
        answer.Text += "  and " + std::to_string(verified.Count - static_cast<long long>(mostTold)) + " more\n";
    answer.Data = {{"kind", NameOf(verified.Kind)},
                   {"plain", verified.IsPlain},
                   {"league_code", ToUtf8(verified.LeagueCode)},
                   {"team", verified.Team > 0 ? Json(verified.Team) : Json()},
                   {"sound", isSound},
                   {"count", verified.Count},
                   {"findings", std::move(findings)}};
    answer.Ending = isSound ? ending::Done : ending::Findings;
    return answer;
}

} // namespace

Verb AddVerify(CLI::App& program)
{
    const auto options = std::make_shared<VerifyOptions>();
    CLI::App* command = program.add_subcommand("verify", "Tell whether files of the system are damaged");
    command->add_option("FILE", options->Files, "client, lines, offer or draft files, or journals")
        ->required()
        ->type_name("");
    AddThreads(*command, options->Threads);
    AddJson(*command, options->AsJson);
    command->footer(
        "Looks at the magics, the length, the checksum, and the range of every field of every record that is in\n"
        "use. No password is needed: of what is private only what cannot be is told.\n"
        "Ends with 0 when all files are sound, 1 when something was found, 2 when a file could not be read.\n\n"
        "Examples:\n"
        "  dravik verify League.dvs\n"
        "  dravik verify -j 4 incoming/*.dvl --json\n"
        "  dravik verify *.dvs | grep damaged");
    return {command, [options] {
                return AnswerEach(options->Files,
                                  {.AsJson = options->AsJson, .Threads = options->Threads, .List = "files"}, Verify);
            }};
}

} // namespace dravik::terminal
