#include "AnyCommand.h"
#include "desk/History.h"
#include "rules/LineJudge.h"
#include "rules/RosterJudge.h"
#include "support/LeagueImage.h"
#include "support/PlainFormats.h"
#include "support/SmallLeague.h"
#include "support/TroubledVoice.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <set>

// Random evenings under a history: the commands of the other models, loads of a lines file and the makers of rosters, with boxes
// answered at random, failures at any of them, and files that break off. Judges repair and strangers write between the steps, and
// now and then the manager goes back and forth. At the end all is undone and redone: every state on the way is the one that was.
//
// DRAVIK_HISTORY_LEAGUES names how many leagues instead of the usual ones, DRAVIK_HISTORY_COMMANDS how many commands each, and
// DRAVIK_HISTORY_FIRST the number of the first league.
namespace dravik {
namespace {

int FromEnvironment(const char* name, int usual)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::atoi(value) : usual;
}

// A number for some bytes that hardly any others have; 0 for zeros, so that offers that nobody touched do not count. Four sums of
// every fourth word each, so that the processor works on all of them at once: most of an evening is spent here. A step of a sum
// takes no two values to one, so bytes that differ in one word alone never have the same.
std::uint64_t Digest(const auto& record, std::uint64_t place = 1)
{
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15U;
    constexpr std::size_t width = sizeof(std::uint64_t);
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    const auto word = [bytes](std::size_t at, std::size_t size) {
        std::uint64_t value = 0;
        std::memcpy(&value, bytes + at, size);
        return value;
    };
    const auto with = [](std::uint64_t sum, std::uint64_t value) { return std::rotl((sum ^ value) * odd, 29); };
    std::uint64_t a = 0;
    std::uint64_t b = 0;
    std::uint64_t c = 0;
    std::uint64_t d = 0;
    std::size_t at = 0;
    for (; at + 4 * width <= sizeof record; at += 4 * width) {
        a = with(a, word(at, width));
        b = with(b, word(at + width, width));
        c = with(c, word(at + 2 * width, width));
        d = with(d, word(at + 3 * width, width));
    }
    for (; at < sizeof record; at += width)
        a = with(a, word(at, std::min(width, sizeof record - at)));
    return with(with(with(with(0, a), b), c), d) * (2 * place + 1);
}

// Brings a copy of the beginning to where the history is, by what it tells alone.
class Follower final : public HistoryWatcher {
public:
    Follower(const Tables& league, const Market& market) :
        League(Copy(league)), OnMarket(std::make_unique<Market>(market))
    {
    }

    void Closed(const Step& step) noexcept override
    {
        Go(step.Change, DifferenceEnd::After);
        std::size_t changed = 0;
        RunReader reader(step.Change.Stored());
        while (const auto run = reader.Next())
            changed += run->Before.size();
        Excess = std::max(Excess, static_cast<long long>(step.Held()) - 2 * static_cast<long long>(changed));
        ++Told["closed"];
    }
    void Merged(const Step& /*into*/, const ByteDifference& more) noexcept override
    {
        Go(more, DifferenceEnd::After);
        ++Told["merged"];
    }
    void Folded(const Step* into, const ByteDifference& more) noexcept override
    {
        Go(more, DifferenceEnd::After);
        ++Told[into != nullptr ? "folded" : "folded into the beginning"];
    }
    void Undone(const Step& step) noexcept override
    {
        Go(step.Change, DifferenceEnd::Before);
        ++Told["undone"];
    }
    void Redone(const Step& step) noexcept override
    {
        Go(step.Change, DifferenceEnd::After);
        ++Told["redone"];
    }
    void Ended(HistoryEnd why) noexcept override { ++Told[why == HistoryEnd::OtherTeam ? "other team" : "no room"]; }

    std::unique_ptr<Tables> League;
    std::unique_ptr<Market> OnMarket;
    std::map<std::string, int> Told;
    long long Excess = 0; // the most that a step took above twice what it changed
    bool Lost = false;    // it was told of bytes that are others where it is

private:
    void Go(const ByteDifference& over, DifferenceEnd to)
    {
        const DeskContents at{*League, OnMarket.get()};
        Lost = Lost || !IsAt(at, over, to == DifferenceEnd::After ? DifferenceEnd::Before : DifferenceEnd::After);
        Put(at, over, to);
    }
};

// ---- The evening -------------------------------------------------------------------------------------------------------------

class HistoryEvening {
public:
    HistoryEvening(unsigned seed, Kind kind, ScriptedPlatform& files) : dice(seed), disk(files)
    {
        RollAny(dice, kind);
        staysWithTeam = dice.Chance(50);
        league = Copy(OpenLeague);
        const auto ranked = kind == Kind::Messy ? dice.Pick({0, 3, 999, 1001}) : 0;
        for (long long rank = 0; rank < ranked; ++rank)
            market->Ranking[rank] = rank + 1;
        follower = std::make_unique<Follower>(*league, *market);
        history = std::make_unique<History>(*league);
        history->Join(*market);
        history->Begin();
        history->TellTo(follower.get());
        TakeBeginning();
        states.push_back({.Digest = Now()});
        commands.SaveSomeLines();
    }

    void Play(int turns)
    {
        if (dice.Chance(50))
            ChangeOutside();
        for (int turn = 0; turn < turns && !HasFailed(); ++turn) {
            SCOPED_TRACE("turn " + std::to_string(turn));
            switch (dice.Roll(1, 24)) {
            case 1:
            case 5:
                ChangeOutside();
                if (dice.Chance(50))
                    Back();
                if (dice.Chance(50))
                    Forth();
                break;
            case 2: // and another way from there; not so far that a long evening comes to nothing
                GoBack(dice.Roll(1, 4));
                break;
            case 3:
                GoBack(dice.Roll(1, 12));
                while (Forth())
                    ;
                break;
            case 4: // a drag to somewhere and back
                TakeStep(commands.OfTick(), 3);
                TakeStep(commands.OfTick(), 3);
                break;
            default:
                TakeStep(commands.Roll(), static_cast<std::uint64_t>(dice.Chance(30) ? dice.Roll(1, 2) : 0));
            }
        }
    }

    // Everything undone, and everything redone.
    void GoAllTheWay()
    {
        while (Forth())
            ;
        const auto end = Copy(*league);
        const auto endOfMarket = std::make_unique<Market>(*market);
        const std::size_t all = done;
        while (Back())
            ;
        ASSERT_EQ(done, 0U);
        ASSERT_TRUE(IsAt(*beginning, *beginningOfMarket));
        ASSERT_TRUE(IsAt(*follower->League, *follower->OnMarket));
        for (std::size_t step = 0; step < all; ++step)
            ASSERT_TRUE(Forth());
        ASSERT_TRUE(IsAt(*end, *endOfMarket));
        ASSERT_TRUE(IsAt(*follower->League, *follower->OnMarket));
        ASSERT_FALSE(follower->Lost);
        Counted["whole way"] += static_cast<int>(all);
    }

    [[nodiscard]] const Follower& Told() const { return *follower; }
    std::map<std::string, int> Counted;

private:
    static bool HasFailed() { return ::testing::Test::HasFailure(); }

    // ---- What a manager does ----

    using Does = AnyCommand::Does;

    // What a command says, whether it comes to its end or not; in a step, if one is given.
    void Run(const Does& does, const StepLabel* label)
    {
        const auto answers = static_cast<unsigned>(dice.Roll(1, 1000000));
        const int failAt = dice.Chance(20) ? static_cast<int>(dice.Roll(1, 3)) : 0;
        const bool triesToUndo = dice.Chance(10);
        const Said said = SaidOver(answers, failAt, Typed, [&](Voice& says) {
            if (label == nullptr)
                return does(says);
            const OpenStep step = history->Open(*label);
            does(says);
            const OpenStep inner = history->Open({.Words = "a part of it"});
            if (triesToUndo) {
                EXPECT_EQ(history->Undo(), Turned::StepIsOpen);
            }
        });
        disk.FailNoMore();
        known.reset();
        Counted["failed"] += !said.empty() && said.back().starts_with("failed") ? 1 : 0;
    }

    void TakeStep(const Does& does, std::uint64_t drag)
    {
        const StepLabel label{.Words = "Command",
                              .Where = "Desk",
                              .Team = !staysWithTeam && dice.Chance(1) ? Own + 1 : Own,
                              .Drag = drag};
        ExpectFold();
        std::unique_ptr<Tables> atOpening;
        std::unique_ptr<Market> marketAtOpening;
        const bool otherTeam = states.size() > 1 && label.Team != team;
        if (otherTeam) {
            atOpening = Copy(*league);
            marketAtOpening = std::make_unique<Market>(*market);
        }
        Run(does, &label);

        const std::uint64_t now = Now();
        if (now == states[done].Digest) {
            ++Counted["empty"];
            return;
        }
        if (otherTeam) {
            states = {states[done]};
            done = 0;
            beginning = std::move(atOpening);
            beginningOfMarket = std::move(marketAtOpening);
        }
        states.resize(done + 1);
        const bool merges = goesOn && label.Drag != 0 && done > 0 && states[done].Drag == label.Drag;
        if (merges) {
            states[done].Digest = now;
            DropIfGone();
        } else {
            states.push_back({.Digest = now, .Drag = label.Drag});
            ++done;
        }
        goesOn = true;
        team = label.Team;
    }

    void ChangeOutside()
    {
        known.reset();
        switch (dice.Roll(1, 4)) {
        case 1: // a judge that repairs
            return Run(
                [this](Voice& says) {
                    bool modified = false;
                    const Work work{*league, says, shown, modified};
                    CheckRoster(work, Own, true, true, true);
                    CheckLine(work, Own, true, 1, true);
                },
                nullptr);
        case 2: // a command that nobody opened a step for
            return Run(commands.Roll(), nullptr);
        case 3: // somebody writes anywhere
            for (long long bytes = dice.Roll(1, 3); bytes > 0; --bytes)
                reinterpret_cast<unsigned char*>(league.get())[dice.Roll(0, sizeof(Tables) - 1)] ^= 1U;
            return;
        default: // somebody writes where the last step did
            if (const Step* last = history->ToUndo()) {
                const auto run = RunReader(last->Change.Stored()).Next();
                FirstByteOf({*league, market.get()}, run->Table)[run->Offset] ^= 1U;
            }
        }
    }

    // ---- The way back ----

    Turned Turn(Turned (History::*way)())
    {
        known.reset();
        return (*history.*way)();
    }
    void Fold()
    {
        known.reset();
        history->Fold();
    }
    // A refusal is for bytes that are others. Once they are folded the step goes back.
    bool Back()
    {
        const bool others = ExpectFold();
        const std::uint64_t before = Now();
        Turned turned = Turn(&History::Undo);
        if (turned == Turned::Changed) {
            EXPECT_TRUE(others);
            EXPECT_EQ(Now(), before);
            ++Counted["refused"];
            Fold();
            turned = Turn(&History::Undo);
        }
        if (turned != Turned::Done) {
            EXPECT_EQ(turned, Turned::Nothing);
            EXPECT_EQ(done, 0U);
            Fold();
            return false;
        }
        goesOn = false;
        if (done == 0) {
            ADD_FAILURE() << "a step too many";
            return false;
        }
        --done;
        EXPECT_EQ(Now(), states[done].Digest) << "behind the undo of step " << done + 1;
        return !HasFailed();
    }
    void GoBack(long long turns)
    {
        while (turns > 0 && Back())
            --turns;
    }
    bool Forth()
    {
        ExpectFold();
        const std::uint64_t before = Now();
        const Turned turned = Turn(&History::Redo);
        if (turned != Turned::Done) {
            EXPECT_EQ(Now(), before);
            EXPECT_EQ(turned, done + 1 == states.size() ? Turned::Nothing : Turned::Changed);
            EXPECT_TRUE(turned == Turned::Nothing || !states[done + 1].IsKnown);
            Counted["refused"] += turned == Turned::Changed ? 1 : 0;
            Fold();
            return false;
        }
        goesOn = false;
        if (++done >= states.size()) {
            ADD_FAILURE() << "a step too many";
            return false;
        }
        if (states[done].IsKnown) {
            EXPECT_EQ(Now(), states[done].Digest) << "behind the redo of step " << done;
        }
        states[done].Digest = Now();
        states[done].IsKnown = true;
        return !HasFailed();
    }

    // ---- What is expected ----

    // The state behind a step. Where something was folded in front of it since, it is not known until it comes.
    struct State {
        std::uint64_t Digest = 0;
        std::uint64_t Drag = 0;
        bool IsKnown = true;
    };

    // The digest of all that the history is about; reckoned once for as long as nobody can have written.
    [[nodiscard]] std::uint64_t Now()
    {
        if (known)
            return *known;
        std::uint64_t sum = Digest(*league) + Digest(market->Ranking, OfferTable::last + 1);
        for (const int id : touched)
            sum += Digest(market->Offers[id], static_cast<std::uint64_t>(id));
        known = sum;
        return sum;
    }
    [[nodiscard]] bool IsAt(const Tables& tables, const Market& offers) const
    {
        return std::memcmp(&tables, league.get(), sizeof(Tables)) == 0 &&
               std::memcmp(&offers, market.get(), sizeof(Market)) == 0;
    }
    void TakeBeginning()
    {
        beginning = Copy(*league);
        beginningOfMarket = std::make_unique<Market>(*market);
    }

    // What changed outside is part of the state that the history stands at. Whether anything did.
    bool ExpectFold()
    {
        const std::uint64_t now = Now();
        if (states[done].Digest == now)
            return false;
        states[done].Digest = now;
        for (std::size_t later = done + 1; later < states.size(); ++later)
            states[later].IsKnown = false;
        if (done == 0)
            TakeBeginning();
        DropIfGone();
        return true;
    }
    void DropIfGone()
    {
        if (done == 0 || states[done].Digest != states[done - 1].Digest)
            return;
        states.erase(states.begin() + static_cast<std::ptrdiff_t>(done));
        --done;
        ++Counted["gone"];
    }

    Dice dice;
    ScriptedPlatform& disk;
    PlainFormats shown;
    std::unique_ptr<Tables> league;
    std::unique_ptr<Market> market = MakeMarket();
    AnyCommand commands{dice, league, *market, disk, [this](int offer) {
                            history->Watch(offer);
                            touched.insert(offer);
                        }};
    std::unique_ptr<Follower> follower;
    std::unique_ptr<History> history;
    std::unique_ptr<Tables> beginning;
    std::unique_ptr<Market> beginningOfMarket;
    std::set<int> touched; // offers
    std::optional<std::uint64_t> known;
    std::vector<State> states;
    std::size_t done = 0;
    bool goesOn = false;
    int team = Own;
    bool staysWithTeam = false; // a command for another team ends the history: of a long evening little would be undone
};

TEST(HistoryModelTest, RandomEveningsAreUndoneToTheirBeginningAndRedoneToTheirEnd)
{
    const int leagues = FromEnvironment("DRAVIK_HISTORY_LEAGUES", 12);
    const int commands = FromEnvironment("DRAVIK_HISTORY_COMMANDS", 120);
    const int first = FromEnvironment("DRAVIK_HISTORY_FIRST", 1);
    ScriptedPlatform disk;
    disk.Settings["SkipZIPClient"] = "YES"; // the quick way
    std::map<std::string, int> all;
    for (int number = first; number < first + leagues; ++number) {
        SCOPED_TRACE("league " + std::to_string(number));
        HistoryEvening evening(static_cast<unsigned>(number), static_cast<Kind>(number % KindCount), disk);
        evening.Play(commands);
        ASSERT_FALSE(HasFailure());
        evening.GoAllTheWay();
        ASSERT_FALSE(HasFailure());
        EXPECT_LE(evening.Told().Excess, 4096);
        for (const auto& [what, times] : evening.Counted)
            all[what] += times;
        for (const auto& [what, times] : evening.Told().Told)
            all[what] += times;
    }
    // The evenings were not idle ones.
    for (const auto& [what, times] : all)
        RecordProperty(what, times);
    if (leagues < 12 || commands < 120)
        return;
    for (const char* what : {"whole way", "failed", "empty", "refused", "gone", "closed", "merged", "folded",
                             "folded into the beginning", "undone", "redone", "other team"})
        EXPECT_GT(all[what], 0) << what;
    EXPECT_GT(all["whole way"], leagues * commands / 10);
    EXPECT_EQ(all["no room"], 0);
}

} // namespace
} // namespace dravik
