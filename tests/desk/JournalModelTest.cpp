#include "AnyCommand.h"
#include "desk/BringBack.h"
#include "desk/JournalWriter.h"
#include "JournalState.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <memory>

// Random evenings with a journal, in which the program dies again and again and leaves any beginning of what it wrote. Whatever
// is brought back is what stood when the last whole entry was written, passwords aside, and the evening goes on from there.
//
// DRAVIK_JOURNAL_LEAGUES names how many leagues instead of the usual ones, and DRAVIK_JOURNAL_FIRST the number of the first.
namespace dravik {
namespace {

int FromEnvironment(const char* name, int usual)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::atoi(value) : usual;
}

class JournalEvening {
public:
    JournalEvening(unsigned seed, Kind kind, ScriptedPlatform& files) : dice(seed), disk(files)
    {
        RollAny(dice, kind);
        MarkRosterChangesUntouched(OpenLeague);
        league = Copy(OpenLeague);
        beginning = Copy(*league);
        history = std::make_unique<History>(*league);
        history->Join(*market);
        history->Begin();
        writer = std::make_unique<JournalWriter>(JournalHead{}, ByteDifference(), Sink(), Clock());
        history->TellTo(writer.get());
        commands.SaveSomeLines();
    }

    void Play(int turns)
    {
        for (int turn = 0; turn < turns && !::testing::Test::HasFailure(); ++turn) {
            SCOPED_TRACE("turn " + std::to_string(turn));
            switch (dice.Roll(1, 20)) {
            case 1:
            case 2:
                Run(commands.Roll());
                break;
            case 3:
                GoBack();
                break;
            case 4:
                GoBack();
                history->Redo();
                break;
            case 5:
                writer->Saved(static_cast<SavedFile>(dice.Roll(1, 3)), Own);
                break;
            case 6:
                Die();
                break;
            default:
                TakeStep();
            }
        }
        // All of it goes back.
        while (history->ToUndo() != nullptr) {
            history->Fold();
            if (history->ToUndo() != nullptr) {
                EXPECT_EQ(history->Undo(), Turned::Done);
            }
        }
    }

    std::map<std::string, int> Counted;

private:
    [[nodiscard]] Seal Now() const { return JournalState(*league, *market); }

    JournalWriter::Sink Sink()
    {
        return [this](std::string_view bytes) {
            written += bytes;
            states[written.size()] = Now();
            return true;
        };
    }
    static JournalWriter::Clock Clock()
    {
        return [] { return 46000.0; };
    }

    void Run(const AnyCommand::Does& does)
    {
        const auto answers = static_cast<unsigned>(dice.Roll(1, 1000000));
        const int failAt = dice.Chance(20) ? static_cast<int>(dice.Roll(1, 3)) : 0;
        SaidOver(answers, failAt, Typed, [&](Voice& says) { does(says); });
        disk.FailNoMore();
    }
    void TakeStep()
    {
        const auto does = commands.Roll();
        const OpenStep step = history->Open({.Words = "Command",
                                             .Where = "Desk",
                                             .Team = dice.Chance(1) ? Own + 1 : Own,
                                             .Drag = static_cast<std::uint64_t>(dice.Chance(30) ? 1 : 0)});
        Run(does);
    }
    void GoBack()
    {
        for (long long turns = dice.Roll(1, 8); turns > 0; --turns)
            history->Undo();
    }

    void Die()
    {
        history->TellTo(nullptr);
        const auto length = static_cast<std::size_t>(
            dice.Chance(50) ? written.size() : dice.Roll(0, static_cast<long long>(written.size())));
        const JournalOutcome outcome = ReadJournal(std::string_view(written).substr(0, length));
        *league = *beginning;
        EmptyMarket(*market);
        history->Begin();
        if (!outcome.Journal) {
            EXPECT_LT(length, JournalHeadSize());
            written.clear();
            writer = std::make_unique<JournalWriter>(JournalHead{}, ByteDifference(), Sink(), Clock());
        } else {
            const JournalRead& read = *outcome.Journal;
            written.resize(read.Whole);
            ASSERT_EQ(BringBack(*history, *league, *market, read), "");
            const auto state = states.find(read.Whole);
            if (state != states.end()) {
                EXPECT_EQ(Now(), state->second);
                Counted["brought back"]++;
                Counted["steps"] += static_cast<int>(read.Steps.size());
                Counted["undone steps"] += read.Done < read.Steps.size() ? 1 : 0;
            } else { // in front of the first step
                EXPECT_TRUE(read.Steps.empty());
                EXPECT_TRUE(states.empty() || read.Whole < states.begin()->first);
            }
            writer = std::make_unique<JournalWriter>(read.Sealed, Sink(), Clock());
        }
        states.erase(states.upper_bound(written.size()), states.end());
        history->TellTo(writer.get());
    }

    Dice dice;
    ScriptedPlatform& disk;
    std::unique_ptr<Tables> league;
    std::unique_ptr<Market> market = MakeMarket();
    std::unique_ptr<Tables> beginning;
    std::unique_ptr<History> history;
    std::unique_ptr<JournalWriter> writer;
    AnyCommand commands{dice, league, *market, disk, [this](int offer) { history->Watch(offer); }};
    std::string written;
    std::map<std::size_t, Seal> states; // what stood when so many bytes were written
};

TEST(JournalModelTest, WhateverIsBroughtBackStoodWhenTheLastWholeEntryWasWritten)
{
    const int leagues = FromEnvironment("DRAVIK_JOURNAL_LEAGUES", 12);
    const int first = FromEnvironment("DRAVIK_JOURNAL_FIRST", 1);
    ScriptedPlatform disk;
    disk.Settings["SkipZIPClient"] = "YES"; // the quick way
    std::map<std::string, int> all;
    for (int number = first; number < first + leagues; ++number) {
        SCOPED_TRACE("league " + std::to_string(number));
        JournalEvening evening(static_cast<unsigned>(number), static_cast<Kind>(number % KindCount), disk);
        evening.Play(100);
        ASSERT_FALSE(HasFailure());
        for (const auto& [what, times] : evening.Counted)
            all[what] += times;
    }
    for (const auto& [what, times] : all)
        RecordProperty(what, times);
    if (leagues < 12)
        return;
    EXPECT_GT(all["brought back"], leagues * 2);
    EXPECT_GT(all["steps"], leagues * 10);
    EXPECT_GT(all["undone steps"], 0);
}

} // namespace
} // namespace dravik
