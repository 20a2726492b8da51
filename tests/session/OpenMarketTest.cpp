#include "session/OpenMarket.h"

#include "OnClientFile.h"
#include "session/OpenHistory.h"

namespace dravik {
namespace {

class OpenMarketTest : public OnClientFile {
protected:
    // Something of everything that can be on the market, or was left there by team 5.
    static void PutSomethingThere()
    {
        OpenMarket().Offers[3].Salary = 500000;
        OpenMarket().Ranking[0] = 17;
        KeptWork().Offers[5] = {OpenMarket().Offers[3]};
        KeptWork().Rankings[5] = OpenMarket().Ranking;
        KeptWork().OffersBy = 5;
        KeptWork().RankingBy = 5;
    }
    static void ExpectNothingThere()
    {
        EXPECT_EQ(OpenMarket().Offers[3].Salary, 0);
        EXPECT_EQ(OpenMarket().Ranking[0], 0);
        EXPECT_TRUE(KeptWork().Offers.empty());
        EXPECT_TRUE(KeptWork().Rankings.empty());
        EXPECT_EQ(KeptWork().OffersBy, 0);
        EXPECT_EQ(KeptWork().RankingBy, 0);
    }
};

TEST_F(OpenMarketTest, EmptyingTakesEverythingOffAndForgetsWhatWasKept)
{
    PutSomethingThere();
    EmptyOpenMarket();
    ExpectNothingThere();
}

TEST_F(OpenMarketTest, AnotherLeagueFindsNothingThere)
{
    PutSomethingThere();
    Open(SavePlain());
    ExpectNothingThere();
}

TEST_F(OpenMarketTest, WhatAnotherTeamLeftThereIsGivenUpAndNoStepOfOnesOwnBringsItBack)
{
    (void)OpenMarket();
    for (const int worker : {5, 6}) {
        EmptyOpenMarket();
        BeginHistory();
        {
            const OpenStep step = OpenHistory().Open({.Words = "Rank", .Where = "Draft", .Team = worker, .Drag = 0});
            OpenMarket().Ranking[0] = 17;
        }
        GiveUpWorkOfOthers(5, [] { OpenMarket().Ranking[1] = 18; });
        EXPECT_EQ(OpenMarket().Ranking[1], 18);
        EXPECT_EQ(OpenHistory().ToUndo() == nullptr, worker == 5) << worker;
    }
}

TEST_F(OpenMarketTest, AStepOfOnesOwnThatWasUndoneEndsTheHistoryToo)
{
    (void)OpenMarket();
    for (const int worker : {5, 6}) {
        EmptyOpenMarket();
        BeginHistory();
        {
            const OpenStep step = OpenHistory().Open({.Words = "Rank", .Where = "Draft", .Team = worker, .Drag = 0});
            OpenMarket().Ranking[0] = 17;
        }
        OpenHistory().Undo();
        GiveUpWorkOfOthers(5, [] {});
        EXPECT_EQ(OpenHistory().ToRedo() == nullptr, worker == 5) << worker;
    }
}

TEST_F(OpenMarketTest, WithoutAStepWorkOfOthersIsGivenUpAsWell)
{
    OpenMarket().Ranking[0] = 17;
    GiveUpWorkOfOthers(5, [] { OpenMarket().Ranking[0] = 0; });
    EXPECT_EQ(OpenMarket().Ranking[0], 0);
    EXPECT_EQ(OpenHistory().ToUndo(), nullptr);
}

} // namespace
} // namespace dravik
