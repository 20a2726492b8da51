// Offers and rankings that are taken in from elsewhere: kept, or read from a file.

#include "desk/Offers.h"
#include "desk/Ranking.h"
#include "files/OffersFile.h"
#include "OnMarket.h"
#include "support/Routines.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TakenInTest : public OnMarket {
protected:
    TakenInTest()
    {
        FreeSkater(1).Name = "Ward Tilton";
        FreeSkater(2).Name = "Ole Brandt";
        FreeGoalie(3).Name = "Piet Vos";
        LeagueData.MinSalary = 500000;
        LeagueData.MaxSalary = 9000000;
    }

    static FreeAgentOffer Made(int id, long long salary = 750000, int years = 2)
    {
        FreeAgentOffer offer;
        offer.Id = id;
        offer.Team = 5;
        offer.Salary = salary;
        offer.Duration = years;
        return offer;
    }
    TakenIn TakeIn(const std::vector<FreeAgentOffer>& written)
    {
        Watched.clear();
        return TakeInOffers(OpenWork(), 5, Offers, written, [this](int id) { Watched.push_back(id); });
    }
    // Ids of the offers that say something.
    std::vector<int> Standing()
    {
        std::vector<int> ids;
        for (const FreeAgentOffer& offer : WrittenOffers(Offers))
            ids.push_back(static_cast<int>(offer.Id));
        return ids;
    }
    std::vector<int> Ranked()
    {
        std::vector<int> ids;
        for (const long long id : Ranking)
            if (id != 0)
                ids.push_back(static_cast<int>(id));
        return ids;
    }

    std::vector<int> Watched;
};

TEST_F(TakenInTest, AnOfferIsWrittenAsSoonAsAnythingOfItIs)
{
    for (const int id : {1, 2, 7, 8, 10003})
        Offers[id].Id = id;
    Offers[1].Salary = 1;
    Offers[2].Duration = 1;
    Offers[7].Bonus = -1;
    Offers[10003].Comment = "Come";
    Offers[9].Salary = 900000; // nobody's
    EXPECT_THAT(Standing(), ElementsAre(1, 2, 7, 10003));
    Offers[10003].Comment = "";
    EXPECT_THAT(Standing(), ElementsAre(1, 2, 7));
}

TEST_F(TakenInTest, TheyTakeThePlaceOfAllThatAreThere)
{
    Offer(2);
    Offers[7].Id = 7; // who was only looked at
    FreeAgentOffer whole = Made(10003, 800000, 3);
    whole.Bonus = -5;
    whole.Comment = "Come";
    const TakenIn taken = TakeIn({Made(1), whole});
    EXPECT_EQ(taken.Count, 2);
    EXPECT_THAT(taken.Told, IsEmpty());
    EXPECT_THAT(Watched, ElementsAre(2, 1, 10003)) << "before they change";
    EXPECT_THAT(Standing(), ElementsAre(1, 10003));
    EXPECT_EQ(std::memcmp(&Offers[10003], &whole, sizeof whole), 0);
    EXPECT_EQ(Offers[2].Id, 0);
    EXPECT_EQ(Offers[7].Id, 7);
}

TEST_F(TakenInTest, AnOfferThatWasNeverFinishedStaysOne)
{
    const TakenIn taken = TakeIn({Made(1, 0, 4), Made(2, 600000, 0)});
    EXPECT_EQ(taken.Count, 2);
    EXPECT_THAT(taken.Told, IsEmpty());
    EXPECT_EQ(Offers[1].Salary, 0);
    EXPECT_EQ(Offers[1].Duration, 4);
    EXPECT_EQ(Offers[2].Salary, 600000);
}

TEST_F(TakenInTest, WhoCanNoLongerBeAskedIsLeftOutAndTold)
{
    Players[1].Contract = 3;
    Players[2].Age = 21;
    Goalies[3].InUse = false;
    FreeGoalie(1000).Name = "Last Keeper"; // who is listed and cannot be shown
    const TakenIn taken = TakeIn({Made(1), Made(2), Made(9999), Made(10003), Made(11000)});
    EXPECT_EQ(taken.Count, 0);
    EXPECT_THAT(taken.Told,
                ElementsAre("Ward Tilton can no longer be made an offer.",
                            "Ole Brandt is not allowed to sign with another team that Pebble Creek Ducks.",
                            "Number 9999 can no longer be made an offer.", "Piet Vos can no longer be made an offer.",
                            "Last Keeper can no longer be made an offer."));
    EXPECT_THAT(Standing(), IsEmpty());
    EXPECT_THAT(Watched, IsEmpty());
}

TEST_F(TakenInTest, TheLimitsHold)
{
    const TakenIn taken = TakeIn({Made(1, 9000001, 10), Made(2, 499999, 9), Made(10003, -1, -3)});
    EXPECT_EQ(taken.Count, 3);
    EXPECT_THAT(taken.Told,
                ElementsAre("Ward Tilton: Maximum Salary is $9,000,000",
                            "Ward Tilton: Maximum Contract Duration is 9 years.",
                            "Ole Brandt: Minimum Salary is $500,000", "Piet Vos: Minimum Salary is $500,000"));
    EXPECT_EQ(Offers[1].Salary, 9000000);
    EXPECT_EQ(Offers[1].Duration, 9);
    EXPECT_EQ(Offers[2].Salary, 500000);
    EXPECT_EQ(Offers[2].Duration, 9);
    EXPECT_EQ(Offers[10003].Salary, 500000);
    EXPECT_EQ(Offers[10003].Duration, 0);
}

TEST_F(TakenInTest, AnOfferFileIsLoadedOverWhatIsThere)
{
    Offer(1);
    Offer(10003);
    const std::string path = Machine.InFolder("Gulls.dvf");
    ASSERT_EQ(WriteOffersFile(5, path, Offers).Outcome, OffersFileWrite::Saved);
    EmptyMarket(*Whole);
    Offer(2);
    const LoadedFile loaded = LoadOffers(OpenWork(), OpenFiles(), 5, path, Offers, [](int) {});
    EXPECT_EQ(loaded.Outcome, TeamFileRead::Loaded);
    EXPECT_EQ(loaded.Words, "Offers file for Harbour City Gulls successfully load from\r\n" + path);
    EXPECT_EQ(loaded.TakenIn.Count, 2);
    EXPECT_THAT(Standing(), ElementsAre(1, 10003));
}

TEST_F(TakenInTest, AFileOfAnotherTeamChangesNothing)
{
    Offer(1);
    Ranking[0] = 1;
    const std::string offersPath = Machine.InFolder("Gulls.dvf");
    const std::string listPath = Machine.InFolder("Gulls.dvd");
    ASSERT_EQ(WriteOffersFile(5, offersPath, Offers).Outcome, OffersFileWrite::Saved);
    ASSERT_TRUE(WriteDraftFile(5, Ranking, listPath));
    Offer(2);
    Ranking[1] = 2;
    EXPECT_TRUE(ChangesNothing([&] {
        const LoadedFile offers = LoadOffers(OpenWork(), OpenFiles(), 6, offersPath, Offers, [](int) {});
        EXPECT_EQ(offers.Outcome, TeamFileRead::Refused);
        EXPECT_EQ(offers.Words, "File for Pebble Creek Ducks unsuccessfully load from\r\n" + offersPath);
        const LoadedFile list = LoadRanking(OpenLeague, OpenFiles(), 6, listPath, Ranking);
        EXPECT_EQ(list.Outcome, TeamFileRead::Refused);
        EXPECT_EQ(list.Words, "File for Pebble Creek Ducks unsuccessfully load from\r\n" + listPath);
    }));
}

TEST_F(TakenInTest, ARankingTakesThePlaceOfAllWithoutWhoCanNoLongerBeDrafted)
{
    LeagueData.FantasyDraft = true;
    Players[1].Team = 0;
    Goalies[3].Team = 0;
    Ranking[0] = 2;
    Ranking[1] = 7;
    DraftRanking from;
    const int ids[] = {10003, 2, 1, 10003, 9999, 20300};
    for (long long rank = 0; rank < 6; ++rank)
        from[rank] = ids[rank];
    const TakenIn taken = TakeInRanking(OpenLeague, Ranking, from);
    EXPECT_THAT(Ranked(), ElementsAre(10003, 1));
    EXPECT_EQ(taken.Count, 2);
    EXPECT_THAT(taken.Told, ElementsAre("Ole Brandt can no longer be drafted.", "Number 9999 can no longer be drafted.",
                                        "Number 20300 can no longer be drafted."));
}

TEST_F(TakenInTest, ADraftFileIsLoaded)
{
    LeagueData.EntryDraft = true;
    Prospects[300].Name = "Young Hand";
    Ranking[0] = 20300;
    const std::string path = Machine.InFolder("Gulls.dvd");
    ASSERT_TRUE(WriteDraftFile(5, Ranking, path));
    Ranking = {};
    const LoadedFile loaded = LoadRanking(OpenLeague, OpenFiles(), 5, path, Ranking);
    EXPECT_EQ(loaded.Outcome, TeamFileRead::Loaded);
    EXPECT_EQ(loaded.Words, "Draft list for Harbour City Gulls successfully load from\r\n" + path);
    EXPECT_THAT(Ranked(), ElementsAre(20300));
}

} // namespace
} // namespace dravik
