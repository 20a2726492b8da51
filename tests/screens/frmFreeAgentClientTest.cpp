#include "OnOfferScreen.h"
#include "session/Session.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using OfferOpening = OnOfferScreen;

TEST_F(OfferOpening, ShowsTheTextsOfTheScreen)
{
    const frmFreeAgentClient& offers = Open();
    EXPECT_EQ(offers.windowTitle().toStdString(), "Dravik Hockey Simulator Client - Free Agent Client");
    EXPECT_EQ(Of(offers.lblTeam), "Free Agents Offer For : Harbour City Gulls");
    EXPECT_EQ(
        Of(offers.lblInfo),
        "Don't use a comma, a period or a dollar sign ($) in the salary, duration and bonus text box. -- You need "
        "to fill the salary and duration textbox for a offer to be save.");
    EXPECT_EQ(offers.chkShowPlayerWithOffer->text().remove('&').toStdString(),
              "Show players who has received an offer only");
    EXPECT_EQ(offers.lblPlayer->text().remove('&').toStdString(), "Players");
    EXPECT_EQ(Of(offers.lblStatus), "Status : ");
    EXPECT_EQ(offers.Stats->title().toStdString(), "Stats");
    EXPECT_EQ(offers.cmdSearch->text().remove('&').toStdString(), "Search Player");
    EXPECT_EQ(offers.cmdSaveToFile->text().remove('&').toStdString(), "Save to File");
    EXPECT_EQ(offers.cmdExit->text().remove('&').toStdString(), "Exit");
    std::vector<std::string> captions;
    for (const QLabel* label : offers.findChildren<QLabel*>())
        if (label->buddy() != nullptr)
            captions.push_back(label->text().remove('&').toStdString());
    EXPECT_THAT(captions,
                ::testing::IsSupersetOf({"Salary:", "Duration:", "Bonus:", "Comments: (Max 1000 Characters)"}));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferOpening, InTheSeasonTheOffersLeftAreReckoned)
{
    LeagueData.MaxOffers = 12;
    Own().OffersMade = 5;
    LeagueData.OffersLeft = 99;
    EXPECT_EQ(Of(Open().lblMaxOffer), "You can make 7 offers to players you do not owned.");
    EXPECT_EQ(LeagueData.OffersLeft, 7);
    EXPECT_EQ(LeagueData.MaxOffers, 12);
}

TEST_F(OfferOpening, InTheSeasonALimitOfZeroBecomesAHundred)
{
    LeagueData.MaxOffers = 0;
    Own().OffersMade = 1;
    EXPECT_EQ(Of(Open().lblMaxOffer), "You can make 99 offers to players you do not owned.");
    EXPECT_EQ(LeagueData.MaxOffers, 100);
}

TEST_F(OfferOpening, InTheOffSeasonTheOffersLeftStayAsRead)
{
    LeagueData.OffSeason = true;
    LeagueData.MaxOffers = 0;
    Own().OffersMade = 5;
    LeagueData.OffersLeft = 9;
    EXPECT_EQ(Of(Open().lblMaxOffer), "You can make 9 offers in total.");
    EXPECT_EQ(LeagueData.OffersLeft, 9);
    EXPECT_EQ(LeagueData.MaxOffers, 0);
}

TEST_F(OfferOpening, ATeamOutOfRangeIsToldAndLeavesTheScreenOpenAndEmpty)
{
    FreeSkater(1);
    for (const int team : {0, 101}) {
        const frmFreeAgentClient& offers = Open(team);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
        EXPECT_TRUE(offers.isVisible());
        EXPECT_EQ(offers.lstPlayers->count(), 0);
        EXPECT_EQ(Of(offers.lblTeam), "");
        EXPECT_EQ(Of(offers.lblMaxOffer), "");
        EXPECT_FALSE(BoxesAreOpen());
        Click(offers.chkShowPlayerWithOffer);
        EXPECT_FALSE(offers.chkShowPlayerWithOffer->isChecked());
        EXPECT_EQ(offers.lstPlayers->count(), 0) << "nor can the filter fill it";
        Click(offers.cmdSaveToFile);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
        Click(offers.cmdExit);
        EXPECT_EQ(TheStage.Find("FreeAgent"), nullptr);
        EXPECT_TRUE(Main().isVisible());
    }
}

TEST_F(OfferOpening, AFailureOfTheSearchIsToldByItsName)
{
    FreeSkater(1);
    const frmFreeAgentClient& offers = Open();
    SilentInput silent;
    UseMachine(silent);
    Click(offers.cmdSearch);
    UseMachine(Machine);
    EXPECT_THAT(silent.Boxes(), ElementsAre(Box{16, "7 - Out of memory in cmdSearch!"}));
}

TEST_F(OfferOpening, AFailureIsReportedAndStaysInside)
{
    Own().OffersMade = -32768;
    LeagueData.MaxOffers = 32767;
    EXPECT_TRUE(Open().isVisible());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in FormLoad frmFreeAgentClient!"}));
}

TEST_F(OfferOpening, EveryOpeningStartsWithoutAnOffer)
{
    FreeSkater(1);
    Open();
    Offer(1);
    OfferOf(1).Comment = "Come";
    OfferOf(11000).Bonus = 5;
    Offers().FormLoad();
    for (const FreeAgentOffer& offer : OpenMarket().Offers)
        ASSERT_TRUE(offer.Salary == 0 && offer.Duration == 0 && offer.Bonus == 0 && offer.Team == 0 &&
                    offer.Comment.Raw() == std::string(1000, '\0'));
    EXPECT_THAT(Boxes(), ElementsAre("0", "0", "0", ""));
}

TEST_F(OfferOpening, LeavingTheScreenLosesTheOffers)
{
    FreeSkater(1);
    Open();
    Offer(1);
    Click(Offers().cmdExit);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_EQ(TheStage.Find("FreeAgent"), nullptr);
    Open();
    EXPECT_EQ(OfferOf(1).Salary, 0);
}

TEST_F(OfferOpening, TheMenuOpensItInFrontOfTheMainScreen)
{
    FreeSkater(1);
    CurrentTeam = 5;
    MainWithLeague();
    Main().mnuFreeAgents->trigger();
    Settle();
    ASSERT_NE(TheStage.Find("FreeAgent"), nullptr);
    EXPECT_TRUE(Offers().isVisible());
    EXPECT_FALSE(Main().isVisible());
}

using OfferList = OnOfferScreen;

// Who is listed, and how, case by case; index 1 of his table each time.
struct ListCase {
    const char* Name;
    bool Rule;
    int Team;
    int Contract;
    int Age;
    const char* Skater; // nullptr: not listed
    const char* Goalie;
};

class OfferListCases : public OnOfferScreen, public ::testing::WithParamInterface<ListCase> {};

TEST_P(OfferListCases, AreListedAsTheyStand)
{
    const ListCase& at = GetParam();
    LeagueData.OfferRuleFlag = at.Rule;
    FreeSkater(1, at.Team, at.Age).Contract = at.Contract;
    FreeGoalie(1, at.Team, at.Age).Contract = at.Contract;
    Open();
    Entries expected;
    if (at.Skater != nullptr)
        expected.emplace_back(at.Skater, 1);
    if (at.Goalie != nullptr)
        expected.emplace_back(at.Goalie, 10001);
    EXPECT_EQ(Listed(), expected);
}

constexpr ListCase ListCases[] = {
    {"OwnedAtTheAge", false, 6, 0, 31, "Skater 1 (C)", "Goalie 1 (G)"},
    {"OwnedAboveTheAge", false, 6, 0, 40, "Skater 1 (C)", "Goalie 1 (G)"},
    {"OwnedBelowTheAge", false, 6, 0, 30, "Skater 1 (C)-RFA", "Goalie 1 (G)*"},
    {"OwnBelowTheAge", false, 5, 0, 30, "Skater 1 (C)-RFA", "Goalie 1 (G)*"},
    {"OwnedUnderContract", false, 6, 1, 31, nullptr, nullptr},
    {"OwnedUnderContractWithTheRule", true, 6, 1, 31, nullptr, nullptr},
    {"OwnedWithTheRule", true, 6, 0, 30, "Skater 1 (C)-RFA", "Goalie 1 (G)*"},
    {"NobodysWithoutTheRule", false, 0, 0, 31, nullptr, nullptr},
    {"NobodysYoungWithoutTheRule", false, 0, 0, 30, nullptr, nullptr},
    {"NobodysAtTheAge", true, 0, 0, 31, "Skater 1 (C)", "Goalie 1 (G)"},
    {"NobodysBelowTheAge", true, 0, 0, 30, "Skater 1 (C)", "Goalie 1 (G)*"},
    {"NobodysUnderContractWithTheRule", true, 0, 2, 31, "Skater 1 (C)", "Goalie 1 (G)"},
};
INSTANTIATE_TEST_SUITE_P(All, OfferListCases, ::testing::ValuesIn(ListCases),
                         [](const auto& made) { return made.param.Name; });

TEST_F(OfferList, NamesThePositionsAndRunsThroughSkatersThenGoalies)
{
    for (const int index : {4, 3, 2, 1})
        FreeSkater(index, 6, 35).Position = index;
    FreeGoalie(1, 6, 35);
    FreeSkater(10000, 6, 35);
    FreeGoalie(1000, 6, 35);
    Players[2].Name = "  Ward Tilton  ";
    Open();
    EXPECT_EQ(Listed(), (Entries{{"Skater 1 (C)", 1},
                                 {"Ward Tilton (LW)", 2},
                                 {"Skater 3 (RW)", 3},
                                 {"Skater 4 (D)", 4},
                                 {"Skater 10000 (C)", 10000},
                                 {"Goalie 1 (G)", 10001},
                                 {"Goalie 1000 (G)", 11000}}));
}

TEST_F(OfferList, WhoIsInjuredOrSuspendedIsListed)
{
    FreeSkater(1).Condition = 20;
    FreeSkater(2).Suspension = 5;
    FreeGoalie(1).Condition = 0;
    Players[1].Injury = "Broken stick";
    Open();
    EXPECT_EQ(Offers().lstPlayers->count(), 3);
}

TEST_F(OfferList, PassesOverSlotsThatAreNotInUse)
{
    FreeSkater(1).InUse = false;
    FreeSkater(2).InUse.SetWord(1);
    FreeGoalie(1).InUse = false;
    Open();
    EXPECT_EQ(Offers().lstPlayers->count(), 0);
}

TEST_F(OfferList, TheRuleCountsOnlyWhenItIsTrue)
{
    FreeSkater(1, 0);
    LeagueData.OfferRuleFlag.SetWord(1);
    Open();
    EXPECT_EQ(Offers().lstPlayers->count(), 0);
}

TEST_F(OfferList, TakesTheNumberOfARecordForItsId)
{
    FreeSkater(1).Number = 77;
    FreeGoalie(1).Number = 88;
    Open();
    EXPECT_THAT(Listed(), ElementsAre(std::pair("Skater 1 (C)-RFA", 77), std::pair("Goalie 1 (G)*", 10088)));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "Integrity Check Failed!"}));
}

TEST_F(OfferList, ASkaterWithoutAPositionEndsTheListWithAReport)
{
    FreeSkater(1);
    FreeSkater(2).Position = 0;
    FreeSkater(3);
    Open();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "9 - Subscript out of range in ShowPlayer!"}));
    EXPECT_EQ(Listed(), (Entries{{"Skater 1 (C)-RFA", 1}}));
    EXPECT_FALSE(BoxesAreOpen());
}

TEST_F(OfferList, TheFirstEntryIsChosenAndShown)
{
    FreeSkater(7).Salary = 123456;
    FreeSkater(8);
    Open();
    EXPECT_EQ(Offers().lstPlayers->currentRow(), 0);
    EXPECT_THAT(Offers().lstPlayers->selectedItems(), SizeIs(1));
    EXPECT_EQ(Offers().OfferIndex(), 7);
    EXPECT_EQ(Of(Offers().txtSalary), "123456");
}

TEST_F(OfferList, AnEmptyListEmptiesAndClosesTheBoxes)
{
    FreeSkater(1);
    Open();
    Enter(Offers().txtOffer, "600000");
    EnterComment("Come");
    ASSERT_TRUE(BoxesAreOpen());
    EXPECT_NE(Offers().Stats->lblStat[1]->accessibleName().toStdString(), "");
    Click(Offers().chkShowPlayerWithOffer);
    EXPECT_EQ(Offers().lstPlayers->count(), 0);
    for (int row = 1; row <= 16; ++row)
        EXPECT_EQ(Offers().Stats->lblStat[row]->accessibleName().toStdString(), "") << row;
    EXPECT_THAT(Boxes(), ElementsAre("", "", "", ""));
    EXPECT_FALSE(BoxesAreOpen());
    EXPECT_EQ(Of(Offers().txtAge), "");
    EXPECT_EQ(Of(Offers().txtSalary), "");
    EXPECT_EQ(Of(Offers().lblStatus), "Status : ");
    for (const QLabel* number : Offers().txtStats)
        EXPECT_EQ(Of(number), "");
}

TEST_F(OfferList, WithTheTickOnlyThoseWithAnOfferAreListed)
{
    for (int index = 1; index <= 5; ++index)
        FreeSkater(index, 6, 35);
    FreeGoalie(3, 6, 35);
    Open();
    for (const int id : {1, 2, 3, 4, 10003})
        Offer(id);
    OfferOf(1).Duration = 0;
    OfferOf(2).Salary = LeagueData.MinSalary - 1;
    OfferOf(3).Salary = LeagueData.MinSalary;
    OfferOf(4).Duration = 1;
    Click(Offers().chkShowPlayerWithOffer);
    EXPECT_EQ(Listed(), (Entries{{"Skater 3 (C)", 3}, {"Skater 4 (C)", 4}, {"Goalie 3 (G)", 10003}}));
    EXPECT_EQ(Offers().OfferIndex(), 3);
    Click(Offers().chkShowPlayerWithOffer);
    EXPECT_EQ(Offers().lstPlayers->count(), 6);
    EXPECT_EQ(Offers().OfferIndex(), 1);
}

} // namespace
} // namespace dravik
