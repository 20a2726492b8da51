#include "desk/Morale.h"

#include "OfficeDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MoraleTest : public OfficeDesk {
protected:
    using MoraleCommand = TypedNumber (*)(const Work&, int, std::string_view);
};

TEST_F(MoraleTest, AMoraleIsTheLeadingNumberOfItsTextAndAtLeast1)
{
    const std::pair<MoraleCommand, Int16&> both[] = {{SetMorale, Five.ProMorale},
                                                     {SetFarmMorale, Five.Farm.FarmMorale}};
    const struct {
        const char* Text;
        int Stored;
        std::optional<long long> Shown;
    } typings[] = {{"75", 75, {}}, {"1", 1, {}}, {"8-2", 8, {}},         {"32767", 32767, {}}, {"100", 100, {}},
                   {"0", 1, 1},    {"-5", 1, 1}, {"-99999999999", 1, 1}, {"--3", 1, 1}};
    for (const auto& [command, field] : both)
        for (const auto& [text, stored, shown] : typings) {
            const LeagueBefore before;
            Modified = false;
            const TypedNumber typed = command(OpenWork(), 5, text);
            EXPECT_TRUE(typed.Accepted) << text;
            EXPECT_EQ(typed.Shown, shown) << text;
            EXPECT_EQ(field, stored) << text;
            EXPECT_TRUE(Modified) << text;
            EXPECT_TRUE(before.DiffersOnlyIn(field)) << text;
        }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(MoraleTest, AMoraleThatIsNoNumberIsRefusedAndOneThatDoesNotFitFailsWith6)
{
    const LeagueBefore before;
    for (const MoraleCommand command : {SetMorale, SetFarmMorale}) {
        EXPECT_FALSE(command(OpenWork(), 5, "").Accepted);
        EXPECT_FALSE(command(OpenWork(), 5, "4x").Accepted);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(NoValidInput, OnlyNumbers));
        EXPECT_EQ(NumberOfFailure([&] { command(OpenWork(), 5, "32768"); }), failure::Overflow);
    }
    EXPECT_TRUE(before.IsUntouched());
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
