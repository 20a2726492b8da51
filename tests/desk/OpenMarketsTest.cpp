#include "desk/OpenMarkets.h"

#include <gtest/gtest.h>

namespace dravik {
namespace {

TEST(OpenMarketsTest, OffersAreOpenUntilTheDeadlineAndInTheOffSeason)
{
    League rules{};
    EXPECT_TRUE(IsOpenToOffers(rules));
    rules.TradeDeadlineInForce = true;
    EXPECT_FALSE(IsOpenToOffers(rules));
    rules.OffSeason = true;
    EXPECT_TRUE(IsOpenToOffers(rules));
}

TEST(OpenMarketsTest, ADraftIsOpenInTheOffSeasonWhileOneIsAhead)
{
    League rules{};
    rules.FantasyDraft = true;
    rules.EntryDraft = true;
    EXPECT_FALSE(IsOpenToDraft(rules)) << "in the season";
    rules.OffSeason = true;
    EXPECT_TRUE(IsOpenToDraft(rules));
    rules.FantasyDraft = false;
    EXPECT_TRUE(IsOpenToDraft(rules));
    rules.EntryDraftDone = 1;
    EXPECT_FALSE(IsOpenToDraft(rules));
    rules.FantasyDraft = true;
    EXPECT_TRUE(IsOpenToDraft(rules));
}

} // namespace
} // namespace dravik
