#pragma once

#include "desk/Market.h"
#include "league/PersonId.h"
#include "support/FreeAgents.h"

#include <cstring>

namespace dravik {

// The market of team 5, the Harbour City Gulls, in a league in which people are restricted from 22 to 30. People of team 6, the
// Pebble Creek Ducks, are others. Whatever a test does, no command of the market marks the league as edited.
class OnMarket : public SmallLeague {
protected:
    OnMarket()
    {
        TeamMaker own(5);
        TeamMaker others(6);
        Teams[5].Name = "Harbour City Gulls";
        Teams[6].Name = "Pebble Creek Ducks";
        LeagueData.RFAAge = 22;
        LeagueData.UFAAge = 31;
        LeagueData.MaxOffers = 50;
        LeagueData.OffersLeft = 50;
    }
    ~OnMarket() override { EXPECT_FALSE(Modified); }

    static PersonId Skater(int slot) { return {.IsGoalie = false, .Slot = slot}; }
    static PersonId Keeper(int slot) { return {.IsGoalie = true, .Slot = slot}; }

    // An offer that is worth saving.
    void Offer(int id, int salary = 750000, int years = 2)
    {
        Offers[id].Id = id;
        Offers[id].Salary = salary;
        Offers[id].Duration = years;
    }

    // Whether `act` leaves every byte of the league and of the market as it was.
    template <class Act>
    bool ChangesNothing(Act&& act)
    {
        const auto league = Copy(OpenLeague);
        const auto market = std::make_unique<Market>(*Whole);
        act();
        return std::memcmp(league.get(), &OpenLeague, sizeof(Tables)) == 0 &&
               std::memcmp(market.get(), Whole.get(), sizeof(Market)) == 0;
    }

    // The number that `act` fails with; 0 when it does not fail.
    template <class Act>
    static int FailureFrom(Act&& act)
    {
        try {
            act();
            return 0;
        } catch (const Failure& failed) {
            return failed.Number;
        }
    }

    std::unique_ptr<Market> Whole = MakeMarket();
    OfferTable& Offers = Whole->Offers;
    DraftRanking& Ranking = Whole->Ranking;
};

} // namespace dravik
