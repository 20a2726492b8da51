#include "HistoryDesk.h"
#include "support/FailingAllocation.h"

// What a history does without room: it holds no more than it may, and it never fails.
namespace dravik {
namespace {

class HistoryRoomTest : public HistoryDesk {
protected:
    // A history that has room for its shadow and so much more.
    [[nodiscard]] std::size_t ShadowAnd(std::size_t more) const { return history.Held() + more; }

    static void PayIn(History& of, int cash, std::uint64_t drag = 0)
    {
        const OpenStep step = of.Open(Label("Pay", drag));
        OwnTeam.Cash = cash;
    }
    // Changes so many bytes of the schedule, each of them.
    static void Fill(std::size_t bytes, unsigned char with)
    {
        std::memset(static_cast<void*>(&GameSchedule), with, bytes);
    }
    // The same for three payments and a half.
    std::size_t ShadowAndThreePayments()
    {
        Pay(99);
        const std::size_t one = history.ToUndo()->Held();
        history.Undo();
        history.Begin();
        return ShadowAnd(3 * one + one / 2);
    }
};

TEST_F(HistoryRoomTest, AStepTakesTwiceWhatChangedAndAFewBytes)
{
    const std::size_t before = history.Held();
    {
        const OpenStep step = history.Open(Label("Fill"));
        Fill(50000, 'x');
    }
    EXPECT_LE(history.Held() - before, 2 * 50000U + 4096U);
    EXPECT_GE(history.Held() - before, 2 * 50000U);
    EXPECT_EQ(history.ToUndo()->Held(), history.Held() - before);
}

TEST_F(HistoryRoomTest, TheOldestStepsGoFirst)
{
    History small(OpenLeague, ShadowAndThreePayments());
    for (const int cash : {90, 80, 70, 60, 50})
        PayIn(small, cash);
    for (const int cash : {60, 70, 80}) {
        EXPECT_EQ(small.Undo(), Turned::Done);
        EXPECT_EQ(OwnTeam.Cash, cash);
    }
    EXPECT_EQ(small.Undo(), Turned::Nothing);
    EXPECT_FALSE(small.IsOutOfRoom());
    for (int redone = 0; redone < 3; ++redone)
        EXPECT_EQ(small.Redo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 50);
}

TEST_F(HistoryRoomTest, ItNeverHoldsMoreThanItMay)
{
    const std::size_t most = ShadowAnd(40000);
    History small(OpenLeague, most);
    for (int step = 1; step <= 200; ++step) {
        const OpenStep open = small.Open(Label("Fill"));
        Fill(static_cast<std::size_t>(100 + step * 37 % 4000), static_cast<unsigned char>(step));
        ASSERT_LE(small.Held(), most);
    }
    EXPECT_LE(small.Held(), most);
    EXPECT_EQ(small.Undo(), Turned::Done);
}

TEST_F(HistoryRoomTest, AStepThatIsTooLargeEndsItQuietly)
{
    History small(OpenLeague, ShadowAnd(4096));
    HistoryNotes told;
    small.TellTo(&told);
    PayIn(small, 70);
    {
        const OpenStep step = small.Open(Label("Fill"));
        Fill(50000, 'x');
    }
    EXPECT_TRUE(small.IsOutOfRoom());
    EXPECT_EQ(small.Undo(), Turned::Nothing);
    EXPECT_EQ(small.Redo(), Turned::Nothing);
    EXPECT_EQ(small.Held(), 0U);
    EXPECT_THAT(told.Heard, ::testing::ElementsAre("closed Pay", "closed Fill", "no room"));
    EXPECT_EQ(History::OutOfRoomWords, "What was done so far cannot be undone: there is no room to keep it.");
}

TEST_F(HistoryRoomTest, TheNextStepBeginsAnew)
{
    History small(OpenLeague, ShadowAnd(4096));
    {
        const OpenStep step = small.Open(Label("Fill"));
        Fill(50000, 'x');
    }
    ASSERT_TRUE(small.IsOutOfRoom());
    PayIn(small, 100);
    EXPECT_TRUE(small.IsOutOfRoom()) << "that was no step";
    PayIn(small, 70);
    EXPECT_FALSE(small.IsOutOfRoom());
    EXPECT_EQ(small.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 100);
    EXPECT_EQ(small.Undo(), Turned::Nothing);
}

TEST_F(HistoryRoomTest, WithoutRoomForTheBeginningThereIsNoHistory)
{
    History none(OpenLeague, 1000);
    none.Begin();
    PayIn(none, 70);
    EXPECT_EQ(none.Undo(), Turned::Nothing);
    EXPECT_TRUE(none.IsOutOfRoom());
    EXPECT_EQ(none.Held(), 0U);
}

TEST_F(HistoryRoomTest, StepsThatWereUndoneGoBehindThoseThatCanBeUndone)
{
    History small(OpenLeague, ShadowAndThreePayments());
    for (const int cash : {90, 80, 70})
        PayIn(small, cash);
    small.Undo();
    small.Undo();
    Rename(std::string(39, 'x')); // takes more than half a step
    small.Fold();
    EXPECT_EQ(small.Redo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 80);
    EXPECT_EQ(small.Redo(), Turned::Nothing) << "the last of them has made room";
    EXPECT_EQ(small.Undo(), Turned::Done);
    EXPECT_EQ(small.Undo(), Turned::Done);
    EXPECT_EQ(OwnTeam.Cash, 100);
}

TEST_F(HistoryRoomTest, WatchedOffersCount)
{
    const auto market = MakeMarket();
    history.Join(*market);
    const std::size_t before = history.Held();
    for (int id = 1; id <= 100; ++id)
        history.Watch(id);
    EXPECT_GE(history.Held() - before, 100 * sizeof(FreeAgentOffer));
    History small(OpenLeague, before + 50 * sizeof(FreeAgentOffer));
    small.Join(*market);
    PayIn(small, 70);
    for (int id = 1; id <= 100; ++id)
        small.Watch(id);
    EXPECT_TRUE(small.IsOutOfRoom());
    EXPECT_EQ(small.Undo(), Turned::Nothing);
}

// One evening, in which the n-th allocation fails: whatever happens then, nothing is thrown, and what can be undone leads to a
// state that was.
TEST_F(HistoryRoomTest, WhicheverAllocationFailsNothingIsThrown)
{
    const auto market = MakeMarket();
    int ends = 0;
    for (std::size_t n = 1;; ++n) {
        OwnTeam.Cash = 100;
        Rename("");
        EmptyMarket(*market);
        History evening(OpenLeague);
        const StepLabel label = Label("A step whose words are longer than what a text holds by itself", 4);
        bool failed = false;
        {
            // Made before the allocation that fails: the caller's own.
            StepLabel labels[] = {label, label, label, label};
            labels[0].Drag = labels[1].Drag = 0;
            const FailingAllocation nth(n);
            evening.Begin();
            evening.Join(*market);
            std::size_t made = 0;
            for (StepLabel& called : labels) {
                const OpenStep step = evening.Open(std::move(called));
                evening.Watch(7);
                OwnTeam.Cash = 100 - static_cast<int>(++made);
                market->Offers[7].Salary = static_cast<int>(made);
            }
            market->Ranking[3] = 3;
            evening.Fold();
            evening.Undo();
            market->Ranking[4] = 4;
            evening.Redo();
            failed = FailingAllocation::Failed();
        }
        ends += evening.IsOutOfRoom() ? 1 : 0;
        while (evening.Undo() == Turned::Done)
            EXPECT_EQ(market->Offers[7].Salary, 100 - OwnTeam.Cash) << n;
        if (!failed)
            break;
    }
    EXPECT_GT(ends, 5);
}

} // namespace
} // namespace dravik
