// What a general manager waits for on a full league, where every slot of the persons' tables is in use: the start, until the
// main window stands there with the league open, and the opening of every screen, painted. The start is told with the share
// of it that bare inflating of the same file takes ("inflate_share"), in turn within one run, and without the tenth of a
// second that the wait screen is given to paint itself. A screen is compared with a bare page of the toolkit that lists everybody,
// and is to take at most four times as long. Ends with 1 when one takes longer.
//
//     screens_bench

#include "bench/BareInflate.h"
#include "bench/BarePage.h"
#include "bench/Ratio.h"
#include "bench/ScreenBench.h"
#include "sample-league/ClientFileWriter.h"
#include "sample-league/SampleLeague.h"
#include "screens/main/frmMain.h"
#include "session/Session.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>

namespace dravik {
namespace {

constexpr int Own = 1;
constexpr double Millisecond = 1e-3;

// A machine that opened a full league the last time.
class Bench {
public:
    Bench()
    {
        UseMachine(machine);
        ResetClientVariables();
        SampleOptions options;
        options.Full = true;
        MakeSampleLeague(options);
        // So that every screen can be opened: free agents with and without a team, and candidates for a draft.
        LeagueData.OfferRuleFlag = true;
        LeagueData.FantasyDraft = true;
        League = machine.InFolder("Full.dvs");
        Demand(sample::WriteClientFile(League));
        machine.Settings["LastLoadLeague"] = League;
    }

    // The program from its start to the painted main window.
    void Start()
    {
        ResetClientVariables();
        stage = std::make_unique<Stage>();
        Demand(stage->Start());
        Settle();
        Main().grab();
        Demand(!LeagueData.Name.Trimmed().empty());
    }
    // What the start before left behind.
    void Leave()
    {
        stage.reset();
        Settle();
    }

    // A screen, filled and painted.
    void Open(Window window)
    {
        stage->Open(window, Main());
        stage->Find(window)->grab();
    }
    void Close(Window window)
    {
        if (Screen* screen = stage->Find(window))
            screen->close();
        Settle();
    }

    frmMain& Main() { return *static_cast<frmMain*>(stage->Find(Window::Main)); }

    std::string League;

private:
    static void Settle()
    {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    ScriptedPlatform machine;
    std::unique_ptr<Stage> stage;
};

void StartToMainWindow(benchmark::State& state)
{
    Bench& bench = TheBench<Bench>();
    const double ratio = Compare(
        state, [&] { bench.Start(); }, [&] { InflateBare(bench.League); }, Millisecond, [&] { bench.Leave(); });
    state.counters["inflate_share"] = 1 / ratio;
}
BENCHMARK(StartToMainWindow)->Iterations(15)->UseManualTime()->Unit(benchmark::kMillisecond);

void OpenScreen(benchmark::State& state, Window window)
{
    Bench& bench = TheBench<Bench>();
    bench.Leave();
    bench.Start();
    CurrentTeam = Own;
    CallerScreen = caller_screen::Main;
    ViewerReturnMode = 1;
    SelectedPlayer = 1;
    SelectedIsGoalie = false;
    bench.Open(window);
    HoldTo(state,
           Compare(
               state, [&] { bench.Open(window); }, ShowBarePage, Millisecond, [&] { bench.Close(window); }),
           4);
    bench.Close(window);
}

void RegisterScreens()
{
    constexpr int rounds = 15;
    constexpr std::pair<const char*, Window> windows[] = {
        {"Open/Team", Window::Team},         {"Open/Roster", Window::Roster},         {"Open/Line", Window::Line},
        {"Open/FarmLine", Window::FarmLine}, {"Open/FreeAgent", Window::FreeAgent},   {"Open/Draft", Window::Draft},
        {"Open/Ticket", Window::Ticket},     {"Open/EditPlayer", Window::EditPlayer}, {"Open/About", Window::About},
        {"Open/Coach", Window::Coach},       {"Open/Prospect", Window::Prospect},
    };
    for (const auto& [name, window] : windows)
        benchmark::RegisterBenchmark(name, OpenScreen, window)
            ->Iterations(rounds)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
}

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    dravik::RegisterScreens();
    return dravik::RunScreenBenchmarks<dravik::Bench>(argc, argv);
}
