#include "screens/squad/SquadModel.h"
#include "desk/FreeAgents.h"
#include "league/RatingNames.h"
#include "OnEveryScreen.h"
#include "rules/LineLookups.h"
#include "screens/PersonWords.h"
#include "screens/platform/CodePage.h"
#include "support/Routines.h"

#include <memory>
#include <QAbstractItemModelTester>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;

// The tables of the squad on the sample league.
class SquadModelTest : public OnEveryScreen {
protected:
    static SquadSight Sight(int proved = 0) { return {&OpenLeague, &dravik::Machine(), proved, OwnTeam}; }

    static std::string Text(const SquadModel& model, int row, const char* column)
    {
        return model.index(row, model.ColumnOf(column)).data().toString().toStdString();
    }
    static std::vector<std::string> Captions(const SquadModel& model)
    {
        std::vector<std::string> captions;
        for (const SquadColumn& column : model.Columns())
            captions.emplace_back(column.Caption);
        return captions;
    }
    static void ShowAllRatings(bool all)
    {
        LeagueData.ShowAllRatings = all;
        PlayerStatCount = all ? 15 : 7;
        GoalieStatCount = all ? 13 : 7;
    }
    static std::vector<int> SlotsIn(const SquadModel& model)
    {
        std::vector<int> found;
        for (int row = 0; row < model.rowCount(); ++row)
            found.push_back(model.PersonAt(row).Slot);
        return found;
    }
    // Whom a filter lets through, by slots, and who ought to be, as `isWanted` reads it.
    template <class IsWanted>
    static void ExpectThrough(const SquadFilter& filter, const IsWanted& isWanted, int proved = 0)
    {
        SquadModel model(SquadKind::Skaters);
        model.Look(Sight(proved), filter, {});
        const std::vector<int> found = SlotsIn(model);
        std::set<int> wanted;
        for (int slot = 1; slot <= PlayerTable::last; ++slot)
            if (Players[slot].InUse && isWanted(Players[slot]))
                wanted.insert(slot);
        EXPECT_EQ(std::set<int>(found.begin(), found.end()), wanted);
        EXPECT_FALSE(wanted.empty());
        EXPECT_LT(static_cast<int>(wanted.size()), model.People());
    }

    // The figures of everybody of a kind beside what the rules and the windows make of him.
    template <class People>
    static void ExpectRulesFigures(SquadKind kind, const People& people)
    {
        SquadModel model(kind);
        model.Look(Sight(OwnTeam), {}, {});
        ASSERT_GT(model.rowCount(), 100);
        for (int row = 0; row < model.rowCount(); row += 7) {
            const PersonId who = model.PersonAt(row).Id();
            const auto& person = people[who.Slot];
            EXPECT_EQ(Text(model, row, "Name"), ToQString(person.Name.Trimmed()).toStdString());
            EXPECT_EQ(Text(model, row, "Age"), std::to_string(person.Age));
            EXPECT_EQ(Text(model, row, "Height"), std::to_string(person.Height));
            EXPECT_EQ(Text(model, row, "Weight"), std::to_string(person.Weight));
            EXPECT_EQ(Text(model, row, "Country"), person.Country.Trimmed());
            EXPECT_EQ(Text(model, row, "Contract"), std::to_string(person.Contract));
            EXPECT_EQ(Text(model, row, "Condition"), std::to_string(person.Condition));
            EXPECT_EQ(
                Text(model, row, "Salary"),
                ToQString(dravik::Machine().CurrencyNoDecimals(static_cast<double>(person.Salary))).toStdString());
            EXPECT_EQ(Text(model, row, "Restricted"), IsRestricted(OpenLeague, who) ? "RFA" : "UFA");
            const StatRows rows = StatRowsOf(who);
            int rating = 0;
            for (const SquadColumn& column : model.Columns())
                if (column.Cells == SquadCells::Rating && column.Key != "Overall") {
                    EXPECT_EQ(column.Caption, rows.Ratings.at(static_cast<std::size_t>(rating)).Label);
                    EXPECT_EQ(Text(model, row, std::string(column.Key).c_str()),
                              std::to_string(rows.Ratings[static_cast<std::size_t>(rating)].Value));
                    ++rating;
                }
            EXPECT_EQ(rating, static_cast<int>(rows.Ratings.size()));
            if (rows.OverallRow) {
                EXPECT_EQ(Text(model, row, "Overall"), std::to_string(rows.OverallRow->Value));
            } else {
                EXPECT_EQ(model.ColumnOf("Overall"), -1);
            }
        }
    }
};

TEST_F(SquadModelTest, IsASoundModelWhateverIsAskedOfIt)
{
    for (const SquadKind kind : SquadKinds) {
        SquadModel model(kind);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.Look(Sight(), {}, {});
        model.SortBy(0, false);
        model.SortBy(model.columnCount() - 1, true);
        model.SetTyped("a");
        model.SetFilter({.Team = OwnTeam});
        model.SetTyped("no such name");
        EXPECT_EQ(model.rowCount(), 0);
        model.SortBy(0, false);
        model.Look(Sight(OwnTeam), {}, {});
        EXPECT_EQ(model.rowCount(), model.People());
        EmptyLeagueTables(OpenLeague);
        model.Look(Sight(), {}, {});
        EXPECT_EQ(model.rowCount(), 0);
        MakeSampleLeague({});
    }
}

TEST_F(SquadModelTest, EachFigureIsThatOfTheRulesWhateverTheLeagueShows)
{
    for (const bool all : {true, false})
        for (const bool overall : {true, false}) {
            ShowAllRatings(all);
            LeagueData.ShowOverall = overall;
            ExpectRulesFigures(SquadKind::Skaters, Players);
            ExpectRulesFigures(SquadKind::Goalies, Goalies);
        }
}

TEST_F(SquadModelTest, ColumnsAreThoseThatTheLeagueShows)
{
    SquadModel model(SquadKind::Goalies);
    ShowAllRatings(false);
    LeagueData.ShowOverall = false;
    model.Look(Sight(), {}, {});
    EXPECT_THAT(Captions(model),
                ElementsAre("Name", "Team", "Age", "Country", "Height", "Weight", "PH", "RD", "SC", "HS", "RT", "ME",
                            "PO", "Salary", "Years", "Cond", "Flags", "Free", "Injury", "Susp"));
    LeagueData.ShowOverall = true;
    model.Look(Sight(OwnTeam), {}, {});
    EXPECT_THAT(Captions(model), ElementsAre("Name", "Team", "Stands", "Slots", "Age", "Country", "Height", "Weight",
                                             "OV", "PH", "RD", "SC", "HS", "RT", "ME", "PO", "Salary", "Years", "Cond",
                                             "Flags", "Free", "Injury", "Susp"));
    SquadModel prospects(SquadKind::Prospects);
    prospects.Look(Sight(OwnTeam), {}, {});
    EXPECT_THAT(Captions(prospects), ElementsAre("Name"));
    EXPECT_EQ(prospects.rowCount(), CountOf(OpenLeague, SquadKind::Prospects));
}

TEST_F(SquadModelTest, DecisionsOfATeamShowBehindItsPasswordAlone)
{
    for (int slot = 1; slot <= PlayerTable::last; ++slot) {
        Players[slot].NoTrade = true;
        Players[slot].TradeAvailable = true;
        Players[slot].Protected = true;
    }
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(), {}, {});
    EXPECT_EQ(model.ColumnOf("Stands"), -1);
    EXPECT_EQ(model.ColumnOf("Slots"), -1);
    for (int row = 0; row < model.rowCount(); ++row)
        EXPECT_EQ(Text(model, row, "Flags"), Players[model.PersonAt(row).Slot].Rookie ? "R" : "");

    model.Look(Sight(OwnTeam), {}, {});
    constexpr const char* words[] = {"Farm", "Scratch", "Pro"};
    int own = 0;
    int playing = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const int slot = model.PersonAt(row).Slot;
        const Player& player = Players[slot];
        if (player.Team != OwnTeam) {
            EXPECT_EQ(Text(model, row, "Stands"), "");
            EXPECT_EQ(Text(model, row, "Slots"), "");
            EXPECT_EQ(Text(model, row, "Flags"), player.Rookie ? "R" : "");
            continue;
        }
        ++own;
        EXPECT_EQ(Text(model, row, "Stands"), words[player.Status]);
        const int held = player.Status == status::Farm ? PlayOnLineIntegerFarm(OpenLeague, OwnTeam, slot, 1)
                                                       : PlayOnLineInteger(OpenLeague, OwnTeam, slot, 1);
        EXPECT_EQ(Text(model, row, "Slots"), std::to_string(held));
        playing += held > 0 ? 1 : 0;
        EXPECT_THAT(Text(model, row, "Flags"), ::testing::HasSubstr("NT"));
        EXPECT_THAT(Text(model, row, "Flags"), ::testing::EndsWith("T P"));
    }
    EXPECT_GT(own, 30);
    EXPECT_GT(playing, 15);
}

TEST_F(SquadModelTest, TheHiddenOverallBetraysNobodyByHisWaivers)
{
    LeagueData.ShowOverall = false;
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(OwnTeam), {}, {});
    for (int row = 0; row < model.rowCount(); ++row)
        EXPECT_EQ(Text(model, row, "Flags").find('W'), std::string::npos);
    SquadFilter best;
    best.OverallFrom = 99;
    model.SetFilter(best);
    EXPECT_EQ(model.rowCount(), model.People());
}

TEST_F(SquadModelTest, SortsByAColumnAndTurnsItRoundAtTheSecondPress)
{
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(), {}, {});
    const int age = model.ColumnOf("Age");
    model.SortBy(age, false);
    for (int row = 1; row < model.rowCount(); ++row) {
        const int before = model.PersonAt(row - 1).Slot;
        const int slot = model.PersonAt(row).Slot;
        EXPECT_TRUE(Players[before].Age < Players[slot].Age ||
                    (Players[before].Age == Players[slot].Age && before < slot));
    }
    EXPECT_EQ(model.headerData(age, Qt::Horizontal, Qt::DisplayRole).toString(), u"Age \u25B2");
    model.SortBy(age, false);
    EXPECT_GE(Players[model.PersonAt(0).Slot].Age, Players[model.PersonAt(model.rowCount() - 1).Slot].Age);
    EXPECT_EQ(model.headerData(age, Qt::Horizontal, Qt::AccessibleTextRole).toString(), "Age, sorted downwards");
}

TEST_F(SquadModelTest, ASecondKeySortsWhoIsAlikeInTheFirst)
{
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(), {}, {});
    model.SortBy(model.ColumnOf("Position"), false);
    model.SortBy(model.ColumnOf("Salary"), true);
    ASSERT_THAT(model.Keys(), ElementsAre(SquadKey{"Position", false}, SquadKey{"Salary", true}));
    for (int row = 1; row < model.rowCount(); ++row) {
        const Player& before = Players[model.PersonAt(row - 1).Slot];
        const Player& player = Players[model.PersonAt(row).Slot];
        EXPECT_TRUE(before.Position < player.Position ||
                    (before.Position == player.Position && before.Salary >= player.Salary));
    }
    model.SortBy(model.ColumnOf("Age"), false);
    EXPECT_EQ(model.Keys().size(), 1U);
}

TEST_F(SquadModelTest, WhoHasNothingInAColumnIsLastEitherWay)
{
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(), {}, {});
    for (const bool downwards : {true, false}) {
        model.SortBy(model.ColumnOf("Injury"), downwards, false);
        EXPECT_NE(Text(model, 0, "Injury"), "");
        EXPECT_EQ(Text(model, model.rowCount() - 1, "Injury"), "");
        model.SortBy(model.ColumnOf("Team"), downwards, false);
        EXPECT_NE(Text(model, 0, "Team"), "");
        EXPECT_EQ(Text(model, model.rowCount() - 1, "Team"), "");
    }
}

TEST_F(SquadModelTest, NamesStandInTheOrderOfTheAlphabetWithoutTheirAccents)
{
    EmptyLeagueTables(OpenLeague);
    int slot = 0;
    for (const char* name : {"Zeno Tilt", "\xC5ke Ek", "Emil Berg", "\xC9mile Aub", "ada cole"})
        PutSkater(++slot, 5, position::Center, status::Pro).Name = name;
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(), {}, {});
    model.SortBy(0, false);
    EXPECT_THAT(SlotsIn(model), ElementsAre(5, 2, 3, 4, 1));
}

TEST_F(SquadModelTest, APersistentIndexGoesWithItsPerson)
{
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(), {}, {});
    const QPersistentModelIndex kept(model.index(100, 0));
    const SquadPerson who = model.PersonAt(100);
    model.SortBy(model.ColumnOf("Age"), false);
    EXPECT_EQ(model.PersonAt(kept.row()), who);
    EXPECT_EQ(model.RowOf(who), kept.row());
}

TEST_F(SquadModelTest, LettersFindAnyPartOfANameWithoutItsAccents)
{
    EmptyLeagueTables(OpenLeague);
    PutSkater(1, 5, position::Center, status::Pro).Name = "Fabrice D'Aubremont";
    PutSkater(2, 5, position::Center, status::Pro).Name = "\xC9mile Saint-Aubrey";
    PutSkater(3, 5, position::Center, status::Pro).Name = "Ward Tilton";
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(), {}, "aubre");
    EXPECT_THAT(SlotsIn(model), ElementsAre(1, 2));
    EXPECT_EQ(model.TypedPart(0), (NamePart{10, 5, true}));
    model.SetTyped("emil");
    EXPECT_THAT(SlotsIn(model), ElementsAre(2));
    model.SetTyped("ilto");
    EXPECT_THAT(SlotsIn(model), ElementsAre(3));
    model.SetTyped({});
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.TypedPart(0), std::nullopt);
}

TEST_F(SquadModelTest, FiltersLetThroughWhomTheySay)
{
    const int own = OwnTeam;
    ExpectThrough({.Team = own}, [own](const Player& player) { return player.Team == own; });
    ExpectThrough({.Team = SquadFilter::WithoutTeam}, [](const Player& player) { return player.Team == 0; });
    ExpectThrough({.Positions = {true, false, false, true}},
                  [](const Player& player) { return player.Position == 1 || player.Position == 4; });
    ExpectThrough({.AgeFrom = 20, .AgeTo = 22},
                  [](const Player& player) { return player.Age >= 20 && player.Age <= 22; });
    ExpectThrough({.ContractTo = 1}, [](const Player& player) { return player.Contract <= 1; });
    ExpectThrough({.OverallFrom = 70}, [](const Player& player) {
        return CalculateOverall(player.Position, static_cast<int>(player.Number)) >= 70;
    });
    ExpectThrough(
        {.Status = status::Scratch},
        [own](const Player& player) { return player.Team == own && player.Status == status::Scratch; }, own);
}

TEST_F(SquadModelTest, WhoMayBeAskedIsWhomTheOffersListAndNoRuleBars)
{
    std::set<int> listed;
    const auto offers = std::make_unique<OfferTable>();
    EachFreeAgent(OpenLeague, *offers, {}, [&listed](const FreeAgent& agent) {
        if (agent.Id <= PlayerTable::last && !IsBarred(OpenLeague, OwnTeam, PersonOf(agent.Id)))
            listed.insert(agent.Id);
    });
    SquadFilter asked;
    asked.MayBeAsked = true;
    ExpectThrough(asked, [&listed](const Player& player) { return listed.contains(static_cast<int>(player.Number)); });
}

TEST_F(SquadModelTest, AStatusIsAskedOfNobodyWithoutItsPassword)
{
    SquadModel model(SquadKind::Skaters);
    SquadFilter scratches;
    scratches.Status = status::Scratch;
    model.Look(Sight(), scratches, {});
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_GT(model.People(), 0);
}

TEST_F(SquadModelTest, CellsSayWhatTheyAreOf)
{
    EmptyLeagueTables(OpenLeague);
    Player& player = PutSkater(1, OwnTeam, position::LeftWing, status::Pro);
    player.Name = "<b>Ward</b>";
    player.Condition = 80;
    player.Suspension = 99;
    player.NoTrade = true;
    Teams[OwnTeam].InUse = true;
    Teams[OwnTeam].Name = "Harbour City Gulls";
    Teams[OwnTeam].Abbre = "HCG";
    SquadModel model(SquadKind::Skaters);
    model.Look(Sight(OwnTeam), {}, {});
    const auto said = [&model](const char* column) {
        return model.index(0, model.ColumnOf(column)).data(Qt::AccessibleTextRole).toString().toStdString();
    };
    EXPECT_EQ(said("Name"), "<b>Ward</b>");
    EXPECT_EQ(said("Team"), "Team: Harbour City Gulls");
    EXPECT_EQ(said("Condition"), "Condition: 80, injured");
    EXPECT_EQ(said("Flags"), "Flags: No trade");
    EXPECT_EQ(said("Injury"), "Injury: none");
    EXPECT_EQ(Text(model, 0, "Suspension"), "waivers");
    EXPECT_EQ(Text(model, 0, "Team"), "HCG");
    EXPECT_THAT(model.index(0, 0).data(Qt::ToolTipRole).toString().toStdString(),
                ::testing::HasSubstr("&lt;b&gt;Ward"));
}

TEST_F(SquadModelTest, ARecordOutOfItsRangesIsShownAsFarAsItGoes)
{
    EmptyLeagueTables(OpenLeague);
    Player& player = PutSkater(1, 250, position::Center, 7);
    player.Position = 9;
    player.Stats[1] = 32767;
    player.Stats[2] = -32768;
    SquadModel model(SquadKind::Skaters);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.Look(Sight(OwnTeam), {}, {});
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(Text(model, 0, "Team"), "");
    EXPECT_EQ(Text(model, 0, "Position"), "");
    EXPECT_EQ(Text(model, 0, "Overall"), "");
    EXPECT_EQ(Text(model, 0, "CK"), "32767");
    SquadFilter centers;
    centers.Positions = {true, false, false, false};
    model.SetFilter(centers);
    EXPECT_EQ(model.rowCount(), 0);
}

} // namespace
} // namespace dravik
