#include "desk/PlayerFields.h"

#include "PlayerDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What a number box makes of what was typed.
struct Typing {
    const char* Text;
    long long Stored;
};

const Box ZeroYears{box::Information, "Zero year contract is not allowed for players who are playing in a team."};

class PlayerFieldsTest : public PlayerDesk {
protected:
    // Every text becomes its number in the field, and nothing else differs.
    template <class OfRecord>
    void ExpectTaken(PersonId who, NumberField field, const OfRecord& record, std::initializer_list<Typing> typings)
    {
        for (const Typing& typing : typings) {
            const LeagueBefore before;
            Modified = false;
            EXPECT_EQ(LimitedNumber(LeagueData, field, typing.Text), typing.Stored) << typing.Text;
            EXPECT_TRUE(SetNumber(OpenWork(), who, field, typing.Text)) << typing.Text;
            EXPECT_EQ(record, typing.Stored) << typing.Text;
            EXPECT_EQ(NumberOf(OpenLeague, who, field), typing.Stored) << typing.Text;
            EXPECT_TRUE(Modified) << typing.Text;
            EXPECT_TRUE(before.DiffersOnlyIn(record)) << typing.Text;
        }
        EXPECT_THAT(Machine.Boxes(), IsEmpty());
        EXPECT_THAT(Machine.ToldNews(), IsEmpty());
    }
};

TEST_F(PlayerFieldsTest, AgeAndWeightAreAtLeast1)
{
    const auto typings = {Typing{"0", 1}, {"-5", 1},  {"1", 1},         {"2", 2},
                          {"35", 35},     {"8-2", 8}, {"32767", 32767}, {"-", 1}};
    ExpectTaken(Skater, NumberField::Age, Tilton.Age, typings);
    ExpectTaken(Keeper, NumberField::Age, Vos.Age, typings);
    ExpectTaken(Skater, NumberField::Weight, Tilton.Weight, typings);
    ExpectTaken(Keeper, NumberField::Weight, Vos.Weight, typings);
}

TEST_F(PlayerFieldsTest, AHeightBelow1Is0AndNot1)
{
    const auto typings = {Typing{"0", 0}, {"-5", 0}, {"1", 1}, {"75", 75}};
    ExpectTaken(Skater, NumberField::Height, Tilton.Height, typings);
    ExpectTaken(Keeper, NumberField::Height, Vos.Height, typings);
}

TEST_F(PlayerFieldsTest, ASalaryStaysWithinTheLimitsOfTheLeague)
{
    const auto typings = {Typing{"8000001", 8000000}, {"8000000", 8000000}, {"99999999999", 8000000},
                          {"500000", 500000},         {"499999", 500000},   {"-1", 500000},
                          {"2500000", 2500000}};
    ExpectTaken(Skater, NumberField::Salary, Tilton.Salary, typings);
    ExpectTaken(Keeper, NumberField::Salary, Vos.Salary, typings);
}

TEST_F(PlayerFieldsTest, TheLeastSalaryHasTheLastWord)
{
    LeagueData.MinSalary = 9000000;
    ExpectTaken(Skater, NumberField::Salary, Tilton.Salary, {{"8500000", 9000000}, {"1", 9000000}});
}

TEST_F(PlayerFieldsTest, AContractRunsFrom0To9Years)
{
    Tilton.Team = 0;
    Vos.Team = 0;
    const auto typings = {Typing{"10", 9}, {"9", 9}, {"1", 1}, {"0", 0}, {"-3", 0}, {"4", 4}};
    ExpectTaken(Skater, NumberField::Contract, Tilton.Contract, typings);
    ExpectTaken(Keeper, NumberField::Contract, Vos.Contract, typings);
}

TEST_F(PlayerFieldsTest, NoYearsAreRefusedInATeamUntilTheSeasonIsOver)
{
    const LeagueBefore before;
    for (const PersonId who : {Skater, Keeper})
        for (const char* text : {"0", "-1", "x"}) {
            EXPECT_FALSE(SetNumber(OpenWork(), who, NumberField::Contract, text)) << text;
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(ZeroYears)) << text;
        }
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
    LeagueData.OffSeason.SetWord(1); // not True
    EXPECT_FALSE(SetNumber(OpenWork(), Skater, NumberField::Contract, "0"));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(ZeroYears));
    LeagueData.OffSeason = true;
    ExpectTaken(Skater, NumberField::Contract, Tilton.Contract, {{"0", 0}});
    ExpectTaken(Keeper, NumberField::Contract, Vos.Contract, {{"0", 0}});
}

TEST_F(PlayerFieldsTest, ARefusalThatCannotBeToldLeavesTheContract)
{
    FailingBoxes machine(1);
    const LeagueBefore before;
    EXPECT_EQ(NumberOfFailure([&] {
                  SetNumber({OpenLeague, machine, machine, Modified}, Skater, NumberField::Contract, "0");
              }),
              failure::Overflow);
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(PlayerFieldsTest, ANumberBeyondItsFieldFailsWith6AndIsNotStored)
{
    const LeagueBefore before;
    for (const NumberField field : {NumberField::Age, NumberField::Weight, NumberField::Height})
        for (const PersonId who : {Skater, Keeper})
            for (const char* text : {"32768", "99999999999"})
                EXPECT_EQ(NumberOfFailure([&] { SetNumber(OpenWork(), who, field, text); }), failure::Overflow) << text;
    EXPECT_EQ(NumberOfFailure([] { LimitedNumber(LeagueData, NumberField::Age, "2147483648"); }), failure::Overflow);
    EXPECT_EQ(LimitedNumber(LeagueData, NumberField::Age, "2147483647"), 2147483647);
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(PlayerFieldsTest, ATextIsCutToItsFieldAndReadWithoutOuterBlanks)
{
    const struct {
        TextField Field;
        std::size_t Width;
        InputMode Mode;
    } fields[] = {{TextField::Name, 40, InputMode::NumbersAndLetters},
                  {TextField::Country, 3, InputMode::Letters},
                  {TextField::Injury, 40, InputMode::NumbersAndLetters}};
    for (const PersonId who : {Skater, Keeper})
        for (const auto& [field, width, mode] : fields) {
            const std::string longest = std::string(width, 'x') + "y";
            EXPECT_EQ(ModeOf(field), mode);
            EXPECT_EQ(CutText(field, longest), std::string(width, 'x'));
            EXPECT_EQ(CutText(field, " a "), " a ");
            Modified = false;
            SetText(OpenWork(), who, field, longest);
            EXPECT_EQ(TextOf(OpenLeague, who, field), std::string(width, 'x'));
            EXPECT_TRUE(Modified);
            SetText(OpenWork(), who, field, " a ");
            EXPECT_EQ(TextOf(OpenLeague, who, field), "a");
        }
}

TEST_F(PlayerFieldsTest, EachTextGoesIntoItsOwnFieldAlone)
{
    LeagueBefore before;
    SetText(OpenWork(), Skater, TextField::Name, "Th\xE9o");
    EXPECT_EQ(Tilton.Name.Raw(), "Th\xE9o" + std::string(36, ' '));
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Name));
    SetText(OpenWork(), Keeper, TextField::Country, "SWE");
    EXPECT_EQ(Vos.Country.Raw(), "SWE");
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Name, Vos.Country));
    SetText(OpenWork(), Keeper, TextField::Injury, "Groin");
    SetText(OpenWork(), Skater, TextField::Injury, "Knee");
    SetText(OpenWork(), Skater, TextField::Country, "CAN");
    SetText(OpenWork(), Keeper, TextField::Name, "Piet");
    EXPECT_EQ(Vos.Injury.Trimmed(), "Groin");
    EXPECT_EQ(Tilton.Injury.Trimmed(), "Knee");
    EXPECT_EQ(Tilton.Country.Raw(), "CAN");
    EXPECT_EQ(Vos.Name.Trimmed(), "Piet");
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Name, Tilton.Country, Tilton.Injury, Vos.Name, Vos.Country, Vos.Injury));
}

TEST_F(PlayerFieldsTest, ARatingHasNoLimits)
{
    const LeagueBefore before;
    for (const Typing& typing : {Typing{"99", 99}, {"-7", -7}, {"007", 7}, {"32767", 32767}, {"-32768", -32768}}) {
        EXPECT_EQ(TypedRating(typing.Text), typing.Stored);
        Modified = false;
        SetRating(OpenWork(), Skater, 15, typing.Text);
        SetRating(OpenWork(), Keeper, 13, typing.Text);
        EXPECT_TRUE(Modified);
        EXPECT_EQ(RatingOf(OpenLeague, Skater, 15), typing.Stored);
        EXPECT_EQ(RatingOf(OpenLeague, Keeper, 13), typing.Stored);
        EXPECT_EQ(Tilton.Stats[15], typing.Stored);
        EXPECT_EQ(Vos.Stats[13], typing.Stored);
    }
    EXPECT_TRUE(before.DiffersOnlyIn(Tilton.Stats[15], Vos.Stats[13]));
}

TEST_F(PlayerFieldsTest, ARatingThatDoesNotFitFailsWith6AndOneThatIsNoneWith9)
{
    const LeagueBefore before;
    EXPECT_EQ(NumberOfFailure([&] { SetRating(OpenWork(), Skater, 1, "32768"); }), failure::Overflow);
    EXPECT_EQ(NumberOfFailure([&] { SetRating(OpenWork(), Skater, 16, "32768"); }), failure::Overflow);
    EXPECT_EQ(NumberOfFailure([&] { SetRating(OpenWork(), Skater, 16, "60"); }), failure::OutOfRange);
    EXPECT_EQ(NumberOfFailure([&] { SetRating(OpenWork(), Keeper, 14, "60"); }), failure::OutOfRange);
    EXPECT_EQ(NumberOfFailure([&] { RatingOf(OpenLeague, Keeper, 0); }), failure::OutOfRange);
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

TEST_F(PlayerFieldsTest, AFlagIsCopiedAndIsNoEditByItself)
{
    const struct {
        FlagField Field;
        Boolean& OfSkater;
        Boolean& OfGoalie;
    } flags[] = {{FlagField::Rookie, Tilton.Rookie, Vos.Rookie},
                 {FlagField::NoTrade, Tilton.NoTrade, Vos.NoTrade},
                 {FlagField::NoApplyRerate, Tilton.NoApplyRerate, Vos.NoApplyRerate}};
    for (const auto& [field, ofSkater, ofGoalie] : flags) {
        const LeagueBefore before;
        for (const bool on : {true, false, true}) {
            SetFlag(OpenWork(), Skater, field, on);
            EXPECT_EQ(ofSkater.Word(), on ? -1 : 0);
            SetFlag(OpenWork(), Keeper, field, on);
            EXPECT_EQ(ofGoalie.Word(), on ? -1 : 0);
        }
        EXPECT_TRUE(before.DiffersOnlyIn(ofSkater, ofGoalie));
    }
    EXPECT_FALSE(Modified);
}

TEST_F(PlayerFieldsTest, AnEmployerIsATeamInUse)
{
    EXPECT_EQ(EmployerOf(OpenLeague, Skater), "Harbour City Gulls");
    Teams[5].InUse = false;
    EXPECT_EQ(EmployerOf(OpenLeague, Skater), "");
    Vos.Team = 0;
    EXPECT_EQ(EmployerOf(OpenLeague, Keeper), "");
    Tilton.Team = 101;
    EXPECT_EQ(NumberOfFailure([&] { EmployerOf(OpenLeague, Skater); }), failure::OutOfRange);
}

TEST_F(PlayerFieldsTest, ASlotOutOfRangeFailsWith9)
{
    for (const PersonId who : {PersonId{.IsGoalie = false, .Slot = 10001}, PersonId{.IsGoalie = true, .Slot = 1001}}) {
        EXPECT_EQ(NumberOfFailure([&] { SetNumber(OpenWork(), who, NumberField::Age, "20"); }), failure::OutOfRange);
        EXPECT_EQ(NumberOfFailure([&] { SetText(OpenWork(), who, TextField::Name, "x"); }), failure::OutOfRange);
        EXPECT_EQ(NumberOfFailure([&] { SetFlag(OpenWork(), who, FlagField::Rookie, true); }), failure::OutOfRange);
    }
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
