#include "desk/FreeAgents.h"

#include "OnMarket.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FreeAgentsTest : public OnMarket {
protected:
    using Entries = std::vector<std::pair<std::string, int>>;

    // Who is told until something fails, and with which number.
    Entries Told(const FreeAgentFilter& filter = {})
    {
        Entries entries;
        Failed = FailureFrom([&] {
            EachFreeAgent(OpenLeague, Offers, filter,
                          [&](const FreeAgent& agent) { entries.emplace_back(agent.Text, agent.Id); });
        });
        return entries;
    }

    int Failed = 0;
};

TEST_F(FreeAgentsTest, NobodyIsListedInALeagueOfNobody)
{
    EXPECT_THAT(Told(), IsEmpty());
    EXPECT_EQ(Failed, 0);
}

TEST_F(FreeAgentsTest, SkatersComeBeforeGoaliesInOrderOfTheSlots)
{
    FreeGoalie(1000, 6, 35);
    FreeGoalie(1, 6, 35);
    FreeSkater(10000, 6, 35);
    for (const int index : {4, 3, 2, 1})
        FreeSkater(index, 6, 35).Position = index;
    EXPECT_THAT(Told(),
                ElementsAre(std::pair("Skater 1 (C)", 1), std::pair("Skater 2 (LW)", 2), std::pair("Skater 3 (RW)", 3),
                            std::pair("Skater 4 (D)", 4), std::pair("Skater 10000 (C)", 10000),
                            std::pair("Goalie 1 (G)", 10001), std::pair("Goalie 1000 (G)", 11000)));
}

TEST_F(FreeAgentsTest, ThePlaceholdersInFrontOfTheTablesAreNobody)
{
    FreeSkater(0);
    FreeGoalie(0);
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(FreeAgentsTest, WhoseContractIsOutIsListedWhoHasOneIsNot)
{
    FreeSkater(1).Contract = 1;
    FreeSkater(2).Contract = 0;
    FreeGoalie(1).Contract = 1;
    FreeGoalie(2).Contract = 0;
    EXPECT_THAT(Told(), ElementsAre(std::pair("Skater 2 (C)-RFA", 2), std::pair("Goalie 2 (G)*", 10002)));
}

TEST_F(FreeAgentsTest, TheOwnPeopleAreListedAsTheOthersAre)
{
    FreeSkater(1, 5);
    FreeSkater(2, 6);
    EXPECT_THAT(Told(), ElementsAre(std::pair("Skater 1 (C)-RFA", 1), std::pair("Skater 2 (C)-RFA", 2)));
}

TEST_F(FreeAgentsTest, WhoIsNotInUseIsNotListed)
{
    FreeSkater(1).InUse = false;
    FreeSkater(2).InUse.SetWord(1);
    FreeGoalie(1).InUse.SetWord(-2);
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(FreeAgentsTest, NobodysPeopleAreListedWhereTheRuleHoldsWhateverTheirContract)
{
    FreeSkater(1, 0).Contract = 3;
    FreeGoalie(1, 0).Contract = 0;
    EXPECT_THAT(Told(), IsEmpty());
    LeagueData.OfferRuleFlag.SetWord(1); // which is not True
    EXPECT_THAT(Told(), IsEmpty());
    LeagueData.OfferRuleFlag = true;
    EXPECT_THAT(Told(), ElementsAre(std::pair("Skater 1 (C)", 1), std::pair("Goalie 1 (G)*", 10001)));
}

TEST_F(FreeAgentsTest, TheMarkGoesByAgeAndForASkaterByHisTeam)
{
    LeagueData.OfferRuleFlag = true;
    FreeSkater(1, 6, 30);
    FreeSkater(2, 6, 31);
    FreeSkater(3, 0, 30);
    FreeSkater(4, 0, 31);
    FreeGoalie(1, 6, 30);
    FreeGoalie(2, 6, 31);
    FreeGoalie(3, 0, 30);
    FreeGoalie(4, 0, 31);
    std::vector<std::string> texts;
    for (const auto& [text, id] : Told())
        texts.push_back(text);
    EXPECT_THAT(texts, ElementsAre("Skater 1 (C)-RFA", "Skater 2 (C)", "Skater 3 (C)", "Skater 4 (C)", "Goalie 1 (G)*",
                                   "Goalie 2 (G)", "Goalie 3 (G)*", "Goalie 4 (G)"));
}

TEST_F(FreeAgentsTest, TheIdIsTheNumberOfTheRecordAndNotItsSlot)
{
    FreeSkater(1).Number = 77;
    FreeGoalie(1).Number = 88;
    EXPECT_THAT(Told(), ElementsAre(std::pair("Skater 1 (C)-RFA", 77), std::pair("Goalie 1 (G)*", 10088)));
}

TEST_F(FreeAgentsTest, NamesAreTrimmed)
{
    FreeSkater(1).Name = "  Ward Tilton  ";
    EXPECT_THAT(Told(), ElementsAre(std::pair("Ward Tilton (C)-RFA", 1)));
}

TEST_F(FreeAgentsTest, ASkaterWithoutAPositionEndsTheListBehindThoseBeforeHim)
{
    FreeSkater(1);
    FreeSkater(2).Position = 0;
    FreeSkater(3);
    EXPECT_THAT(Told(), ElementsAre(std::pair("Skater 1 (C)-RFA", 1)));
    EXPECT_EQ(Failed, failure::OutOfRange);
    EXPECT_THAT(Told({.WithOfferOnly = true}), IsEmpty());
    EXPECT_EQ(Failed, failure::OutOfRange) << "without an offer, too";
    Players[2].Position = 6;
    Told();
    EXPECT_EQ(Failed, failure::OutOfRange);
}

TEST_F(FreeAgentsTest, OnlyThoseWithAnOfferAreTheOnesWhoseOfferSaysEnough)
{
    for (int index = 1; index <= 5; ++index)
        FreeSkater(index, 6, 35);
    FreeGoalie(3, 6, 35);
    Offer(1, 750000, 0);
    Offer(2, 499999, 2);
    Offer(3, 500000, 2);
    Offer(4, 500000, 1);
    Offer(10003);
    Offers[5].Salary = 600000;
    Offers[5].Duration = 1; // of one who was never shown
    EXPECT_THAT(Told({.WithOfferOnly = true}),
                ElementsAre(std::pair("Skater 3 (C)", 3), std::pair("Skater 4 (C)", 4), std::pair("Skater 5 (C)", 5),
                            std::pair("Goalie 3 (G)", 10003)));
    EXPECT_EQ(Told().size(), 6U);
}

TEST_F(FreeAgentsTest, ANumberWithoutAnOfferFailsOnlyWhereOffersAreAskedFor)
{
    FreeSkater(1);
    FreeSkater(2).Number = 0;
    FreeGoalie(1).Number = 1001;
    Offer(1);
    EXPECT_EQ(Told().size(), 3U);
    EXPECT_EQ(Failed, 0);
    EXPECT_EQ(Told({.WithOfferOnly = true}).size(), 1U);
    EXPECT_EQ(Failed, failure::OutOfRange);
    Players[2].InUse = false;
    EXPECT_EQ(Told({.WithOfferOnly = true}).size(), 1U);
    EXPECT_EQ(Failed, failure::OutOfRange);
}

TEST_F(FreeAgentsTest, LookingChangesNothing)
{
    FreeSkater(1, 6, 21);
    FreeGoalie(1);
    Offer(1);
    EXPECT_TRUE(ChangesNothing([&] {
        EXPECT_EQ(Told().size(), 2U);
        EXPECT_EQ(Told({.WithOfferOnly = true}).size(), 1U);
        EXPECT_TRUE(FreeAgentOf(OpenLeague, 1).has_value());
        EXPECT_TRUE(IsRestricted(OpenLeague, Skater(1)));
        EXPECT_TRUE(IsBarred(OpenLeague, 5, Skater(1)));
        EXPECT_NE(BarredWords(OpenLeague, Skater(1)), "");
    }));
}

TEST_F(FreeAgentsTest, ANumberOfTheListMeansASkaterOrAGoalie)
{
    FreeSkater(1);
    FreeSkater(10000);
    FreeGoalie(1);
    FreeGoalie(999);
    EXPECT_EQ(FreeAgentOf(OpenLeague, 1), Skater(1));
    EXPECT_EQ(FreeAgentOf(OpenLeague, 10000), Skater(10000));
    EXPECT_EQ(FreeAgentOf(OpenLeague, 10001), Keeper(1));
    EXPECT_EQ(FreeAgentOf(OpenLeague, 10999), Keeper(999));
}

TEST_F(FreeAgentsTest, TheLastGoalieAndWhatLiesBehindHimIsNobody)
{
    FreeGoalie(1000);
    for (const int id : {11000, 11001, 32767})
        EXPECT_EQ(FreeAgentOf(OpenLeague, id), std::nullopt) << id;
}

TEST_F(FreeAgentsTest, ASlotThatIsNotInUseIsNobody)
{
    FreeSkater(2).InUse.SetWord(1);
    for (const int id : {0, 1, 2, 10000, 10001, 10999})
        EXPECT_EQ(FreeAgentOf(OpenLeague, id), std::nullopt) << id;
}

TEST_F(FreeAgentsTest, ANumberBelowZeroFailsWith9)
{
    EXPECT_EQ(FailureFrom([] { FreeAgentOf(OpenLeague, -1); }), failure::OutOfRange);
}

TEST_F(FreeAgentsTest, WhoIsBelowTheAgeAndOfATeamIsRestricted)
{
    FreeSkater(1, 6, 30);
    FreeSkater(2, 6, 31);
    FreeSkater(3, 0, 30);
    FreeSkater(4, 5, 30);
    FreeGoalie(1, 6, 30);
    FreeGoalie(2, 6, 31);
    FreeGoalie(3, 0, 30);
    EXPECT_TRUE(IsRestricted(OpenLeague, Skater(1)));
    EXPECT_FALSE(IsRestricted(OpenLeague, Skater(2)));
    EXPECT_FALSE(IsRestricted(OpenLeague, Skater(3)));
    EXPECT_TRUE(IsRestricted(OpenLeague, Skater(4)));
    EXPECT_TRUE(IsRestricted(OpenLeague, Keeper(1)));
    EXPECT_FALSE(IsRestricted(OpenLeague, Keeper(2)));
    EXPECT_FALSE(IsRestricted(OpenLeague, Keeper(3)));
}

TEST_F(FreeAgentsTest, WhoIsTooYoungIsBarredFromEveryTeamButHisOwn)
{
    FreeSkater(1, 6, 21);
    FreeSkater(2, 6, 22);
    FreeSkater(3, 0, 18);
    FreeGoalie(1, 6, 21);
    EXPECT_TRUE(IsBarred(OpenLeague, 5, Skater(1)));
    EXPECT_FALSE(IsBarred(OpenLeague, 6, Skater(1)));
    EXPECT_FALSE(IsBarred(OpenLeague, 5, Skater(2)));
    EXPECT_FALSE(IsBarred(OpenLeague, 5, Skater(3)));
    EXPECT_TRUE(IsBarred(OpenLeague, 5, Keeper(1)));
    EXPECT_FALSE(IsBarred(OpenLeague, 6, Keeper(1)));
}

TEST_F(FreeAgentsTest, ABarredOneIsToldOfByHisTeam)
{
    FreeSkater(1, 6, 21).Name = " Ward Tilton ";
    FreeGoalie(4, 6, 21);
    FreeSkater(2, 101, 21);
    EXPECT_EQ(BarredWords(OpenLeague, Skater(1)),
              "Ward Tilton is not allowed to sign with another team that Pebble Creek Ducks.");
    EXPECT_EQ(BarredWords(OpenLeague, Keeper(4)),
              "Goalie 4 is not allowed to sign with another team that Pebble Creek Ducks.");
    EXPECT_EQ(FailureFrom([] { BarredWords(OpenLeague, Skater(2)); }), failure::OutOfRange);
}

} // namespace
} // namespace dravik
