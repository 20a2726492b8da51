// What the files cost, each against bare work of the same kind inside one run, so that the figures of a busy machine
// hold too: the counter "ratio" is the time of ours divided by the time of the bare work; both times are in milliseconds.
// Ends with 1 when a ratio is above its limit.
//
//     files_bench            the ratios
//     files_bench --memory   the most memory that opening and saving take beyond the tables

#include "bench/BareInflate.h"
#include "bench/Ratio.h"
#include "files/LinesFile.h"
#include "files/SlotFile.h"
#include "session/OpenChanges.h"
#include "session/OpenLeagueClient.h"
#include "session/Session.h"
#include "support/ClientFileBytes.h"
#include "support/OpenedWindow.h"
#include "support/ScriptedPlatform.h"
#include "support/SmallLeague.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <iostream>
#include <random>
#include <string_view>
#ifndef _WIN32
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif
#include <vector>
#include <zlib.h>

namespace dravik {
namespace {

constexpr double Millisecond = 1e-3;
constexpr std::string_view StartMagic = "DRVK Client Files Version 1.12 - Start";
constexpr std::string_view EndMagic = "DRVK Client Files Version 1.12 - End";

// A league of thirty teams with full line-ups, free agents and a calendar, and empty slots behind them, as a real file
// has them.
void FillLeague()
{
    std::mt19937 random(20240501);
    const auto upTo = [&](unsigned top) { return static_cast<int>(random() % top); };
    const auto name = [&] {
        std::string text;
        for (int i = 6 + upTo(14); i > 0; --i)
            text += static_cast<char>('a' + upTo(26));
        return text;
    };
    const auto vary = [&](auto& person) {
        person.Name = name();
        person.Age = 18 + upTo(20);
        person.Salary = 500000 + 25000 * upTo(300);
        for (auto& stat : person.Stats)
            stat = 30 + upTo(70);
    };
    ResetClientVariables();
    LeagueData.Name = "Bench League";
    LeagueData.LeagueCode = "BENCH";
    LeagueData.FileDate = 45000.5;
    for (int team = 1; team <= 30; ++team) {
        TeamMaker maker(team);
        maker.DressesFullRoster().Scratches(4, position::Center).FarmsFullRoster();
        for (int day = 1; day <= 10; ++day) {
            std::vector<int> forwards(maker.Skaters.begin(), maker.Skaters.begin() + 12);
            std::vector<int> defense(maker.Skaters.begin() + 12, maker.Skaters.begin() + 18);
            FillLines(Teams[team].ProLines[day], forwards, defense, maker.GoalieIds);
            FillLines(Teams[team].Farm.FarmLines[day], forwards, defense, maker.GoalieIds);
        }
        Coaches[team].InUse = true;
        Coaches[team].Name = name();
    }
    for (int free = 1; free <= 600; ++free)
        PutSkater(2000 + free, 0, 1 + upTo(4), status::Farm);
    for (auto& player : Players)
        if (player.InUse)
            vary(player);
    for (auto& keeper : Goalies)
        if (keeper.InUse)
            vary(keeper);
    for (int i = 1; i <= 200; ++i)
        Prospects[i].Name = name();
    for (int i = 1; i <= 2460; ++i) {
        ScheduleRow& row = GameSchedule[i];
        row.GameDay = i;
        row.ProGame = true;
        row.ProAway = 1 + upTo(30);
        row.ProHome = 1 + upTo(30);
    }
}

// Written slot by slot, so that writing it leaves no trace in the peak of the memory.
void WriteClientFile(const std::string& path)
{
    WriteSlotFile(SlotFilesOf(OpenFiles()), path, SlotFileLength(16903, MagicLength(EndMagic)), [](SlotWriter& slots) {
        const auto all = [&](const auto& table) {
            for (long long i = 1; i <= std::remove_cvref_t<decltype(table)>::last; ++i)
                slots.Write(table[i]);
        };
        slots.WriteMagic(StartMagic);
        slots.Write(LeagueData);
        all(Prospects);
        all(Teams);
        all(Players);
        all(Goalies);
        all(Coaches);
        all(GameSchedule);
        slots.WriteMagic(EndMagic);
    });
}

struct Bench {
    Bench()
    {
        UseMachine(Machine);
        TempFile = Machine.InFolder("ClientTemp.dvt");
        FillLeague();
        ClientPath = Machine.InFolder("League.dvs");
        WriteClientFile(ClientPath);
        LinesPath = Machine.InFolder("Lines.dvl");
    }

    void Open()
    {
        OpenedWindow window;
        OpenLeagueClient(ClientPath, window);
        Demand(!window.Calls.empty());
    }
    void Save() const { Demand(WriteLinesFile(OpenLeague, OpenFiles(), 1, LinesPath)); }

    ScriptedPlatform Machine;
    std::string ClientPath;
    std::string LinesPath;
};

Bench& TheBench()
{
    static Bench bench;
    return bench;
}

void OpenAgainstItsInflater(benchmark::State& state)
{
    Bench& bench = TheBench();
    const auto inflating = [&] { InflateBare(bench.ClientPath); };
    const auto opening = [&] { bench.Open(); };
    HoldTo(state, Compare(state, opening, inflating, Millisecond), 1.25);
}
BENCHMARK(OpenAgainstItsInflater)->Iterations(41)->UseManualTime()->Unit(benchmark::kMillisecond);

// Where the inflater has no fast paths of its own, opening is bare zlib again and has the limit of that.
void OpenAgainstZlib(benchmark::State& state)
{
    Bench& bench = TheBench();
    const auto inflating = [&] { InflateByZlib(bench.ClientPath); };
    const auto opening = [&] { bench.Open(); };
    HoldTo(state, Compare(state, opening, inflating, Millisecond), InflaterHasFastPaths() ? 0.45 : 1.25);
}
BENCHMARK(OpenAgainstZlib)->Iterations(41)->UseManualTime()->Unit(benchmark::kMillisecond);

// What is remembered of a league costs at each opening, against an opening that remembers nothing: of the same file, and of a newer
// one, in which people of every team were hurt and rated anew.
void OpenRemembering(benchmark::State& state, bool isNewer)
{
    Bench& bench = TheBench();
    const std::filesystem::path folder = std::filesystem::path(bench.Machine.Folder()) / "leagues";
    const std::filesystem::path kept = folder / "earlier";
    bench.Open();
    for (int id = 1; id <= PlayerTable::last; id += 3) {
        Players[id].Condition = 40;
        Players[id].Stats[1] = 1;
    }
    LeagueData.FileDate = LeagueData.FileDate - 1;
    std::filesystem::create_directories(folder);
    WriteWhole(kept.string(), [] {
        const std::string bytes = WriteDigest(DigestOf(OpenLeague));
        return ByteVector(bytes.begin(), bytes.end());
    }());
    const auto opening = [&] { bench.Open(); };
    const auto remembering = [&] {
        KeepDigests(folder);
        bench.Open();
        Demand(OpenChanges().All.empty() != isNewer);
        KeepDigests({});
    };
    const auto prepare = [&] {
        if (isNewer)
            std::filesystem::copy_file(kept, folder / "42454e4348.digest",
                                       std::filesystem::copy_options::overwrite_existing);
    };
    if (!isNewer) {
        KeepDigests(folder);
        bench.Open();
        KeepDigests({});
    }
    HoldTo(state, Compare(state, remembering, opening, Millisecond, prepare), isNewer ? 1.30 : 1.20);
}
void OpenTheSameFile(benchmark::State& state) { OpenRemembering(state, false); }
void OpenANewerFile(benchmark::State& state) { OpenRemembering(state, true); }
BENCHMARK(OpenTheSameFile)->Iterations(41)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(OpenANewerFile)->Iterations(41)->UseManualTime()->Unit(benchmark::kMillisecond);

// Against the same compressing in memory, and the same bytes written, flushed and renamed.
void SaveLinesAgainstCompress2(benchmark::State& state)
{
    Bench& bench = TheBench();
    bench.Save();
    const ByteVector slots = LinesSlots(1);
    ByteVector output(compressBound(static_cast<uLong>(slots.size())));
    const std::string work = bench.Machine.InFolder("Bare.part");
    const std::string target = bench.Machine.InFolder("Bare.dvl");
    const auto compressing = [&] {
        auto length = static_cast<uLong>(output.size());
        Demand(compress2(output.data(), &length, slots.data(), static_cast<uLong>(slots.size()), 9) == Z_OK);
        const auto file = Machine().CreateFile(work);
        file->Write(output.data(), length);
        file->Flush();
        file->Close();
        Machine().RenameFile(work, target);
    };
    const auto saving = [&] { bench.Save(); };
    HoldTo(state, Compare(state, saving, compressing, Millisecond), 1.10);
}
BENCHMARK(SaveLinesAgainstCompress2)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);

#ifndef _WIN32
long PeakKiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss; // NOLINT(cppcoreguidelines-pro-type-union-access): the C library declares it that way
}

// The peak of a process never sinks, so the file is made by another one and the tables are touched first.
int TellMemory()
{
    ScriptedPlatform machine;
    UseMachine(machine);
    TempFile = machine.InFolder("ClientTemp.dvt");
    const std::string path = machine.InFolder("League.dvs");
    const pid_t maker = fork();
    if (maker == 0) {
        FillLeague();
        WriteClientFile(path);
        _exit(0);
    }
    int result = 0;
    if (maker < 0 || waitpid(maker, &result, 0) != maker || result != 0)
        return 1;

    ResetClientVariables();
    TempFile = machine.InFolder("ClientTemp.dvt");
    const long before = PeakKiB();
    OpenedWindow window;
    OpenLeagueClient(path, window);
    const long opened = PeakKiB();
    if (window.Calls.empty() || !WriteLinesFile(OpenLeague, OpenFiles(), 1, machine.InFolder("Lines.dvl")))
        return 1;
    const long saved = PeakKiB();
    std::cout << "peak beyond the tables: opening " << opened - before << " KiB, saving after it " << saved - before
              << " KiB\n";
    return 0;
}
#endif

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
#ifndef _WIN32
    if (argc > 1 && std::string_view(argv[1]) == "--memory")
        return dravik::TellMemory();
#endif
    return dravik::RunBenchmarks(argc, argv);
}
