// What the squad table costs on a league whose 11000 places are all taken, each measured inside one run against one bare walk over
// the tables: a letter typed in the box of names, a press on a heading (the first column by words, then the one whose figure has to
// be reckoned, the overall), a press with Shift, a filter, the table turned to the goalies and back, each painted; and the memory
// that the window takes beside the league's.
//
//     squad_bench

#include "bench/AgainstAWalk.h"
#include "bench/FullLeague.h"
#include "bench/ScreenBench.h"
#include "screens/squad/frmSquad.h"

#include <benchmark/benchmark.h>
#include <QTest>
#ifdef __linux__
#include <malloc.h>
#endif

namespace dravik {
namespace {

constexpr double LetterLimit = 16; // milliseconds of the processor
constexpr double SortLimit = 40;
constexpr double MemoryLimit = 2048; // KiB

// Names of which a letter finds many, so that a typed one is dear.
void PutNames()
{
    constexpr const char* first[] = {"Ward", "\xC9mile", "Grady", "Aarne", "Lothar", "Fabrice", "Imants"};
    constexpr const char* last[] = {"Tilton", "Saint-Aubremont", "O'Hara", "Kallionsalmi", "Pemlow-Crumcombe"};
    ChangeEverybody([&](auto& person, int id) {
        person.Name = std::string(first[id % 7]) + " " + last[id % 5] + " " + std::to_string(id);
        person.Age = 18 + id % 23;
        person.Salary = 500000 + id % 97 * 25000;
    });
}

class Bench : ScreenBench {
public:
    Bench()
    {
        window = MemoryOf([this] { LookAtAll(); });
        FillLeague();
        LeagueData.ShowOverall = true;
        LeagueData.ShowAllRatings = true;
        PutNames();
        people = MemoryOf([this] { LookAtAll(); });
        Squad().grab();
        Demand(Squad().Table().People().rowCount() == PlayerTable::last);
    }

    // A letter more, or the letters taken back by one key.
    void Letter()
    {
        if (Squad().txtName->text().size() == 3)
            Squad().txtName->clear();
        QTest::keyClick(Squad().txtName, "aub"[Squad().txtName->text().size()]);
        Squad().grab();
        Demand(Squad().Table().People().rowCount() > 0);
    }
    void SortByName() { Sort("Name", {}); }
    void SortByOverall() { Sort("Overall", {}); }
    void SortSecond() { Sort("Salary", Qt::ShiftModifier); }
    void Filter()
    {
        Squad().txtName->clear();
        Squad().chkPosition[0]->toggle();
        Squad().grab();
        Demand(Squad().Table().People().rowCount() == (Squad().chkPosition[0]->isChecked() ? 1 : 3) *
                                                          PlayerTable::last /
                                                          (Squad().chkPosition[0]->isChecked() ? 1 : 4));
    }
    void Turn()
    {
        Squad().tabKind->setCurrentIndex(1 - Squad().tabKind->currentIndex());
        Squad().grab();
        Demand(Squad().Table().People().rowCount() > 0);
    }
    // KiB of the heap: what everybody takes in the three tables of the window, beside the league's own; and what the window took
    // without anybody, with the picture of it that the desktop's layer keeps, as of every window.
    [[nodiscard]] double PeoplesMemory() const { return people; }
    [[nodiscard]] double WindowsMemory() const { return window; }

private:
    frmSquad& Squad() { return *stage.Squad(); }

    // Opens the window and turns to each table.
    void LookAtAll()
    {
        stage.ShowSquad(*stage.Find(Window::Main));
        for (const int tab : {1, 2, 0}) {
            Squad().tabKind->setCurrentIndex(tab);
            QApplication::processEvents();
        }
    }

    void Sort(const char* column, Qt::KeyboardModifiers modifiers)
    {
        Squad().txtName->clear();
        QHeaderView* heading = Squad().Table().horizontalHeader();
        const int section = Squad().Table().People().ColumnOf(column);
        QTest::mouseClick(heading->viewport(), Qt::LeftButton, modifiers,
                          {heading->sectionViewportPosition(section) + 10, heading->height() / 2});
        Squad().grab();
        const std::vector<SquadKey>& keys = Squad().Table().People().Keys();
        Demand(keys.back().Column == column && keys.size() == (modifiers == Qt::NoModifier ? 1 : 2));
    }

    // What stands on the heap behind `work` and did not before.
    static double MemoryOf(const std::function<void()>& work)
    {
#ifdef __linux__
        const auto taken = [] {
            const auto heap = mallinfo2();
            return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
        };
        const double before = taken();
        work();
        return taken() - before;
#else
        work();
        return 0;
#endif
    }

    double people = 0;
    double window = 0;
};

void AgainstAWalk(benchmark::State& state, void (Bench::*work)(), double limit)
{
    MeasureAgainstAWalk(
        state, TheBench<Bench>(), work, [](const auto& person) { return person.Team == 7; }, 368);
    HoldTo(state, state.counters["cpu_ms"], limit);
}

void Memory(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        state.counters["KiB"] = TheBench<Bench>().PeoplesMemory();
    state.counters["window_KiB"] = TheBench<Bench>().WindowsMemory();
    HoldTo(state, TheBench<Bench>().PeoplesMemory(), MemoryLimit);
}

constexpr int Rounds = 60;
BENCHMARK(Memory)->Iterations(1);
BENCHMARK_CAPTURE(AgainstAWalk, Letter, &Bench::Letter, LetterLimit)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, SortByName, &Bench::SortByName, SortLimit)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, SortByOverall, &Bench::SortByOverall, SortLimit)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, SortSecond, &Bench::SortSecond, SortLimit)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Filter, &Bench::Filter, SortLimit)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Turn, &Bench::Turn, SortLimit)->Iterations(Rounds)->UseManualTime();

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::RunScreenBenchmarks<dravik::Bench>(argc, argv); }
