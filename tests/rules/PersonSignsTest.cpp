#include "rules/PersonSigns.h"
#include "support/SmallLeague.h"

#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int Own = 5;

// One skater and one goalie of team 5, up, of an age and with the games that need waivers.
class PersonSignsTest : public SmallLeague {
protected:
    PersonSignsTest()
    {
        LeagueData.WaiverAllowed = true;
        LeagueData.WaiverExemptAge = 24;
        LeagueData.WaiverMinGames = 40;
        LeagueData.ShowOverall = true;
    }

    static std::vector<std::string> Words(PersonId who, int team = Own)
    {
        std::vector<std::string> words;
        SignsOf(OpenLeague, who, team).Each([&words](const PersonSign& sign) { words.push_back(WordsOf(sign)); });
        return words;
    }
    static std::vector<std::string> SkaterWords(int team = Own) { return Words(Skater, team); }

    static constexpr PersonId Skater{.IsGoalie = false, .Slot = 7};
    static constexpr PersonId Keeper{.IsGoalie = true, .Slot = 7};
    Player& player = PutSkater(7, Own, position::Defense, status::Pro, 60);
    Goalie& goalie = PutGoalie(7, Own, status::Pro, 60);
};

TEST_F(PersonSignsTest, SomebodyOrdinaryHasNone)
{
    EXPECT_THAT(SkaterWords(), IsEmpty());
    EXPECT_THAT(Words(Keeper), IsEmpty());
    EXPECT_TRUE(SignsOf(OpenLeague, Skater, Own).IsEmpty());
}

TEST_F(PersonSignsTest, BelowTheConditionOfTheHealthyHeIsInjuredWithIt)
{
    player.Condition = 95;
    EXPECT_THAT(SkaterWords(), IsEmpty());
    player.Condition = 94;
    EXPECT_THAT(SkaterWords(), ElementsAre("Injured, condition 94"));
    goalie.Condition = 0;
    EXPECT_THAT(Words(Keeper), ElementsAre("Injured, condition 0"));
}

TEST_F(PersonSignsTest, TheTextOfAnInjuryAloneIsNoSign)
{
    player.Injury = "Flu";
    EXPECT_THAT(SkaterWords(), IsEmpty());
}

TEST_F(PersonSignsTest, ASuspensionTellsItsGamesAndNinetyNineAreWaivers)
{
    for (const auto& [games, words] : {std::pair{1, "Suspended for 1 game"}, std::pair{2, "Suspended for 2 games"},
                                       std::pair{98, "Suspended for 98 games"}, std::pair{99, "On waivers"},
                                       std::pair{100, "Suspended for 100 games"}}) {
        player.Suspension = games;
        goalie.Suspension = games;
        EXPECT_THAT(SkaterWords(), ElementsAre(words));
        EXPECT_THAT(Words(Keeper), ElementsAre(words));
    }
}

TEST_F(PersonSignsTest, NoContractNoTradeAndRookieComeFromTheRecord)
{
    player.Contract = 0;
    player.NoTrade = true;
    player.Rookie = true;
    EXPECT_THAT(SkaterWords(), ElementsAre("No contract", "No trade", "Rookie"));
    player.Rookie.SetWord(1); // only -1 is true
    player.NoTrade = false;
    EXPECT_THAT(SkaterWords(), ElementsAre("No contract"));
}

TEST_F(PersonSignsTest, CaptainAndAssistantsAreThoseOfTheTeamAndNeverGoalies)
{
    Teams[Own].Captain = 7;
    EXPECT_THAT(SkaterWords(), ElementsAre("Captain"));
    EXPECT_THAT(Words(Keeper), IsEmpty());
    Teams[Own].Assistant[2] = 7;
    EXPECT_THAT(SkaterWords(), ElementsAre("Captain"));
    Teams[Own].Captain = 8;
    EXPECT_THAT(SkaterWords(), ElementsAre("Assistant"));
    Teams[Own].Assistant[2] = 0;
    Teams[Own].Assistant[1] = 7;
    EXPECT_THAT(SkaterWords(), ElementsAre("Assistant"));
}

TEST_F(PersonSignsTest, WhoWouldBeAskedForWaiversOnTheWayDownNeedsThem)
{
    const std::string words = "Needs waivers to go down";
    player.Age = 25;
    player.ProGames = 40;
    goalie.Age = 25;
    goalie.ProGames = 40;
    EXPECT_THAT(SkaterWords(), ElementsAre(words));
    EXPECT_THAT(Words(Keeper), ElementsAre(words));
    player.Status = status::Scratch;
    EXPECT_THAT(SkaterWords(), ElementsAre(words));
    player.Status = status::Farm;
    EXPECT_THAT(SkaterWords(), IsEmpty());
    player.Status = status::Pro;
    player.ProGames = 39;
    EXPECT_THAT(SkaterWords(), IsEmpty());
    player.ProGames = 40;
    LeagueData.TradeDeadlineInForce = true;
    EXPECT_THAT(SkaterWords(), IsEmpty());
    LeagueData.TradeDeadlineInForce = false;
    LeagueData.FarmMaxSalary = 999999;
    EXPECT_THAT(SkaterWords(), IsEmpty()) << "too dear for the farm";
    LeagueData.FarmMaxSalary = 1000000;
    EXPECT_THAT(SkaterWords(), ElementsAre(words));
    LeagueData.FarmMaxOverall = 59;
    EXPECT_THAT(SkaterWords(), IsEmpty()) << "too good for the farm";
}

TEST_F(PersonSignsTest, NobodyIsToldOfWaiversWhereOverallsAreHidden)
{
    player.Age = 25;
    player.ProGames = 40;
    LeagueData.ShowOverall = false;
    EXPECT_THAT(SkaterWords(), IsEmpty());
}

TEST_F(PersonSignsTest, ASkaterWithoutAPositionShowsNoBox)
{
    player.Age = 25;
    player.ProGames = 40;
    player.Position = 0;
    EXPECT_THAT(SkaterWords(), ElementsAre("Needs waivers to go down")); // as the question on the way down
}

TEST_F(PersonSignsTest, OthersSeeFactsAlone)
{
    player.Condition = 87;
    player.Suspension = 2;
    player.Contract = 0;
    player.Rookie = true;
    player.NoTrade = true;
    player.Age = 25;
    player.ProGames = 40;
    Teams[Own].Captain = 7;
    EXPECT_THAT(SkaterWords(), ElementsAre("Injured, condition 87", "Suspended for 2 games", "No contract", "Captain",
                                           "Needs waivers to go down", "No trade", "Rookie"));
    for (const int other : {0, 6, 101, -1})
        EXPECT_THAT(SkaterWords(other),
                    ElementsAre("Injured, condition 87", "Suspended for 2 games", "No contract", "Rookie"))
            << other;
    for (const SignRow& row : SignTable)
        if (row.Place == SignPlace::Own) {
            EXPECT_TRUE(SignsOf(OpenLeague, Skater, Own).Has(row.Kind) || row.Kind == Sign::Assistant);
            EXPECT_FALSE(SignsOf(OpenLeague, Skater, 0).Has(row.Kind));
        }
}

TEST_F(PersonSignsTest, NobodyOutsideTheTablesAndNobodyErasedHasAny)
{
    player.Condition = 10;
    player.InUse = false;
    EXPECT_THAT(SkaterWords(), IsEmpty());
    OpenLeague.Players[0].InUse = true;
    OpenLeague.Players[0].Contract = 0;
    for (const PersonId nobody : {PersonId{false, 0}, PersonId{true, 0}, PersonId{false, -1}, PersonId{false, 10001},
                                  PersonId{true, 1001}, PersonId{true, 10005}})
        EXPECT_TRUE(SignsOf(OpenLeague, nobody, Own).IsEmpty()) << nobody.Slot;
}

TEST(SignTable, TellsEverySignOnceInItsOrderWithWordsOfItsOwn)
{
    std::set<std::string_view> words;
    std::set<std::string_view> meanings;
    for (std::size_t index = 0; index < SignTable.size(); ++index) {
        const SignRow& row = SignTable[index];
        EXPECT_EQ(row.Kind, static_cast<Sign>(index));
        EXPECT_FALSE(row.Words.empty());
        EXPECT_FALSE(row.Meaning.empty());
        words.insert(row.Words);
        meanings.insert(row.Meaning);
    }
    EXPECT_EQ(words.size(), SignTable.size());
    EXPECT_EQ(meanings.size(), SignTable.size());
}

TEST(SignTable, EveryNumberThatStandsInTheWordsIsKept)
{
    for (const SignRow& row : SignTable) {
        PersonSigns signs;
        signs.Add(row.Kind, 42);
        EXPECT_TRUE(signs.Has(row.Kind));
        const bool isNumbered = row.Words.find('#') != std::string_view::npos;
        EXPECT_EQ(signs.NumberOf(row.Kind), isNumbered ? 42 : 0) << row.Words;
        EXPECT_EQ(WordsOf({row.Kind, 42}).find('#'), std::string::npos);
        EXPECT_TRUE(signs.Without(row.Kind).IsEmpty());
    }
    EXPECT_EQ(WordsOf({Sign::InSlots, 1}), "In 1 slot");
    EXPECT_EQ(WordsOf({Sign::InSlots, 7}), "In 7 slots");
}

TEST(SignTable, ANumberBeyondAByteIsTheNearest)
{
    PersonSigns signs;
    signs.Add(Sign::Injured, -3);
    signs.Add(Sign::Suspended, 300);
    EXPECT_EQ(signs.NumberOf(Sign::Injured), 0);
    EXPECT_EQ(signs.NumberOf(Sign::Suspended), 255);
}

} // namespace
} // namespace dravik
