#include "desk/TeamNames.h"

#include "OfficeDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Box ThreeCharacters{box::Warning, "Abbreviation must be 3 characters long!"};

class TeamNamesTest : public OfficeDesk {
protected:
    using Command = bool (*)(const Work&, int, const std::string&);

    // The text is refused with this box; whether that counts as an edit is `edited`.
    void ExpectRefused(Command command, const std::string& text, const Box& told, bool edited = false)
    {
        const LeagueBefore before;
        Modified = false;
        EXPECT_FALSE(command(OpenWork(), 5, text)) << text;
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(told)) << text;
        EXPECT_TRUE(before.IsUntouched()) << text;
        EXPECT_THAT(Machine.TakeNews(), IsEmpty()) << text;
        EXPECT_EQ(Modified, edited) << text;
    }
    // The text is stored in `field`, and nothing but it; the news tell it.
    template <std::size_t N>
    void ExpectStored(Command command, const std::string& text, const Text<N>& field, const std::string& stored,
                      const std::vector<News>& news)
    {
        const LeagueBefore before;
        Modified = false;
        EXPECT_TRUE(command(OpenWork(), 5, text)) << text;
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty()) << text;
        EXPECT_EQ(field.Raw(), stored + std::string(N - stored.size(), ' '));
        EXPECT_TRUE(before.DiffersOnlyIn(field)) << text;
        EXPECT_EQ(Machine.TakeNews(), news) << text;
        EXPECT_TRUE(Modified) << text;
    }
};

TEST_F(TeamNamesTest, ANewTeamNameIsToldWithTheOldOne)
{
    ExpectStored(RenameTeam, "Port Ellery Gulls", Five.Name, "Port Ellery Gulls",
                 {{"team 5", "Team Name Change : Harbour City Gulls changed name to Port Ellery Gulls"}});
}

TEST_F(TeamNamesTest, ANewFarmNameIsToldWithTheFarmsOldOne)
{
    ExpectStored(RenameFarm, "Ducks 2", Five.Farm.Name, "Ducks 2",
                 {{"team 5", "Team Name Change : Pebble Creek Ducks changed name to Ducks 2"}});
}

TEST_F(TeamNamesTest, ANameIsToldWholeAndStoredCutTo40Characters)
{
    const std::string name = std::string(39, 'x') + "yz";
    ExpectStored(RenameTeam, name, Five.Name, name.substr(0, 40),
                 {{"team 5", "Team Name Change : Harbour City Gulls changed name to " + name}});
}

TEST_F(TeamNamesTest, ANameHoldsALetterAndNoOtherSign)
{
    for (const Command command : {RenameTeam, RenameFarm}) {
        ExpectRefused(command, "", NoValidInput);
        ExpectRefused(command, "   ", NoValidInput);
        ExpectRefused(command, "123", NoValidInput);
        ExpectRefused(command, "Gulls_", OnlyBoth);
    }
}

TEST_F(TeamNamesTest, AnAbbreviationHasExactlyThreeLetters)
{
    const std::pair<Command, Text<3>&> both[] = {{AbbreviateTeam, Five.Abbre}, {AbbreviateFarm, Five.Farm.Abbre}};
    for (const auto& [command, field] : both) {
        ExpectStored(command, "XYZ", field, "XYZ", {});
        ExpectStored(command, "a b", field, "a b", {});
        ExpectRefused(command, "HC", ThreeCharacters, true);
        ExpectRefused(command, "HCGX", ThreeCharacters, true);
        ExpectRefused(command, "", NoValidInput);
        ExpectRefused(command, "H1G", OnlyLetters);
    }
}

TEST_F(TeamNamesTest, TheCityMayBeEmpty)
{
    ExpectStored(NameCity, "St. John's 2", Five.City, "St. John's 2", {});
    ExpectStored(NameCity, "", Five.City, "", {});
    ExpectRefused(NameCity, "a_", OnlyBoth);
}

TEST_F(TeamNamesTest, TheNewsTellWhoIsFiredAndWhoIsHired)
{
    const std::string change = "General Manager Change : Harbour City Gulls";
    ExpectStored(NameGeneralManager, "Mira Holt", Five.Gm, "Mira Holt",
                 {{"team 5", change + " fired general manager Ward Tilton"},
                  {"team 5", change + " hired general manager Mira Holt"}});
    ExpectStored(NameGeneralManager, "  ", Five.Gm, "", {{"team 5", change + " fired general manager Mira Holt"}});
    ExpectStored(NameGeneralManager, "", Five.Gm, "", {});
    ExpectStored(NameGeneralManager, "R\xE9mi", Five.Gm, "R\xE9mi",
                 {{"team 5", change + " hired general manager R\xE9mi"}});
    ExpectRefused(NameGeneralManager, "Gm 2", OnlyLetters);
}

TEST_F(TeamNamesTest, ABoxThatFailsAtTheLengthLeavesTheAbbreviationAndNoEdit)
{
    FailingBoxes machine(1);
    const LeagueBefore before;
    EXPECT_EQ(NumberOfFailure([&] {
                  AbbreviateTeam({OpenLeague, machine, machine, Modified}, 5, "HC");
              }),
              failure::Overflow);
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(TeamNamesTest, ATeamOutOfRangeFailsWith9)
{
    for (const Command command : {RenameTeam, RenameFarm, AbbreviateTeam, AbbreviateFarm, NameCity, NameGeneralManager})
        for (const int team : {0, 101})
            EXPECT_EQ(NumberOfFailure([&] { command(OpenWork(), team, "ABC"); }), failure::OutOfRange) << team;
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
