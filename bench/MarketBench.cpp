// What the long lists of the market cost in a league in which everybody can be made an offer, each against one bare walk over
// the tables inside one run: the counter "ratio" is the processor's time for ours divided by that for the walk. Opening and
// filtering are to stay below 100 ms, a search and a step in the list below one frame (16 ms); "ours_ms" shows it.
//
//     market_bench

#include "bench/AgainstAWalk.h"
#include "bench/FullLeague.h"
#include "bench/ScreenBench.h"
#include "screens/market/frmFreeAgentClient.h"
#include "session/OpenMarket.h"

#include <benchmark/benchmark.h>
#include <QTest>

namespace dravik {
namespace {

constexpr int Own = 5;

// Nobody has a contract, and a third of them are restricted.
void PutFreeAgents()
{
    FillLeague();
    const TeamMaker made(Own);
    LeagueData.RFAAge = 18;
    LeagueData.UFAAge = 31;
    LeagueData.MaxOffers = 1000;
    LeagueData.OfferRuleFlag = true;
    ChangeEverybody([](auto& person, int id) {
        person.Team = id % 30;
        person.Status = status::Farm;
        person.Contract = 0;
        person.Age = 20 + id % 17;
    });
}

class Bench : ScreenBench {
public:
    Bench()
    {
        PutFreeAgents();
        CurrentTeam = Own;
        OpenOffers();
        // The last goalie can be listed and not be shown, so the search goes for the one before him.
        for (int id = 3; id <= OfferTable::last; id += 500) {
            FreeAgentOffer& offer = OpenMarket().Offers[id];
            offer.Id = id;
            offer.Salary = 750000;
            offer.Duration = 2;
        }
        Demand(List()->count() == OfferTable::last);
    }

    // The screen filled and painted.
    void OpenOffers() { Open(Window::FreeAgent); }
    // The tick set or taken away, painted.
    void Filter()
    {
        Offers().chkShowPlayerWithOffer->toggle();
        Offers().grab();
        Demand((List()->count() < OfferTable::last) == Offers().chkShowPlayerWithOffer->isChecked());
    }
    // A search that ends with the last entry but one, painted; the next one ends with the first.
    void Search()
    {
        const bool isLast = turn++ % 2 == 0;
        machine.Type(isLast ? "GOALIE 999" : "");
        Offers().cmdSearch->click();
        Offers().grab();
        Demand(List()->currentRow() == (isLast ? List()->count() - 2 : 0));
    }
    // A search that finds nobody.
    void SearchInVain()
    {
        const int before = List()->currentRow();
        machine.Type("nobody is called so");
        Offers().cmdSearch->click();
        Demand(List()->currentRow() == before);
    }
    // A letter that leads to a goalie, and the next to a skater, painted.
    void TypeAhead()
    {
        const char letter = turn++ % 2 == 0 ? 'g' : 's';
        List()->keyboardSearch(QString());
        QTest::keyClick(List(), letter);
        Offers().grab();
        Demand(List()->currentItem()->text().startsWith(QChar(letter), Qt::CaseInsensitive));
    }

    // Two letters that lead on, and one that nobody has behind them, so that everybody is looked at for both readings of
    // the first two: three keys. Painted.
    void TypeInVain()
    {
        List()->keyboardSearch(QString());
        QTest::keyClicks(List(), "ss");
        const int before = List()->currentRow();
        QTest::keyClick(List(), 'q');
        Offers().grab();
        Demand(List()->currentRow() == before);
    }
    // The search gone on with, from one end of the list to the other, painted.
    void FindNext()
    {
        const bool isLast = turn++ % 2 == 0;
        if (!isKnown) {
            machine.Type("9");
            Offers().cmdSearch->click();
            isKnown = true;
        }
        List()->setCurrentRow(isLast ? List()->count() - 3 : 0);
        QTest::keyClick(List(), Qt::Key_F3);
        Offers().grab();
        Demand(List()->currentRow() == (isLast ? List()->count() - 2 : 8));
    }

private:
    frmFreeAgentClient& Offers() { return On<frmFreeAgentClient>(Window::FreeAgent); }
    PickList* List() { return Offers().lstPlayers; }

    int turn = 0;
    bool isKnown = false; // what is searched for
};

void AgainstAWalk(benchmark::State& state, void (Bench::*work)())
{
    MeasureAgainstAWalk(
        state, TheBench<Bench>(), work, [](const auto& person) { return person.Contract == 0; }, OfferTable::last);
}

constexpr int Rounds = 40;
BENCHMARK_CAPTURE(AgainstAWalk, OpenOffers, &Bench::OpenOffers)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, FilterOffers, &Bench::Filter)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, SearchOffers, &Bench::Search)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, SearchOffersInVain, &Bench::SearchInVain)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, TypeAheadInOffers, &Bench::TypeAhead)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, TypeAheadInVain, &Bench::TypeInVain)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, FindNextOffer, &Bench::FindNext)->Iterations(Rounds)->UseManualTime();

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::RunScreenBenchmarks<dravik::Bench>(argc, argv); }
