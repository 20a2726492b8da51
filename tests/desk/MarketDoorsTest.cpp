#include "desk/MarketDoors.h"

#include <gtest/gtest.h>

namespace dravik {
namespace {

TEST(MarketDoorsTest, OffersAreOpenUntilTheDeadlineAndInTheOffSeason)
{
    League rules{};
    EXPECT_TRUE(DoorsOf(rules).AreFreeAgentsOpen);
    rules.TradeDeadlineInForce = true;
    EXPECT_FALSE(DoorsOf(rules).AreFreeAgentsOpen);
    rules.OffSeason = true;
    EXPECT_TRUE(DoorsOf(rules).AreFreeAgentsOpen);
}

TEST(MarketDoorsTest, ADraftIsOpenInTheOffSeasonWhileOneIsAhead)
{
    League rules{};
    rules.FantasyDraft = true;
    rules.EntryDraft = true;
    EXPECT_FALSE(DoorsOf(rules).IsDraftOpen()) << "in the season";
    rules.OffSeason = true;
    EXPECT_TRUE(DoorsOf(rules).IsDraftOpen());
    rules.FantasyDraft = false;
    EXPECT_TRUE(DoorsOf(rules).IsDraftOpen());
    rules.EntryDraftDone = 1;
    EXPECT_FALSE(DoorsOf(rules).IsDraftOpen());
    rules.FantasyDraft = true;
    EXPECT_TRUE(DoorsOf(rules).IsDraftOpen());
}

} // namespace
} // namespace dravik
