#include "desk/Password.h"

#include "support/FailingBoxes.h"
#include "support/LeagueImage.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PasswordCheckTest : public SmallLeague {
protected:
    PasswordCheckTest() { Teams[5].Password = "0Cc175b9c0f1b6a831c399e269772661"; } // of "a"
};

TEST_F(PasswordCheckTest, TheRightPasswordLetsTheUserGoOnAfterOneQuestion)
{
    Machine.Type("a");
    EXPECT_TRUE(CheckPassword(5));
    EXPECT_THAT(Machine.Questions(), ElementsAre(Question{"Password Required!", "Dravik Hockey Simulator Client", ""}));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PasswordCheckTest, AWrongPasswordIsToldInAWarning)
{
    Machine.Type("b");
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
}

TEST_F(PasswordCheckTest, ACorrectPasswordTypedInAnotherCaseIsRefused)
{
    Machine.Type("A");
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
}

TEST_F(PasswordCheckTest, ADigestInAnotherCaseIsAnotherPassword)
{
    Teams[5].Password = "0cc175b9c0f1b6a831c399e269772661";
    Machine.Type("a");
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
}

TEST_F(PasswordCheckTest, ATypedBlankIsPartOfThePassword)
{
    Machine.Type("a ");
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
}

TEST_F(PasswordCheckTest, CancelIsTheEmptyTextAndIsJudgedLikeAnyOther)
{
    Machine.Type("");
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Password is incorrect!"}));
    Teams[5].Password = "d41d8cd98f00b204e9800998ecf8427e"; // of the empty text
    Machine.Type("");
    EXPECT_TRUE(CheckPassword(5));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PasswordCheckTest, ATeamWhosePasswordIsBlankNeverSeesTheInputBox)
{
    Teams[5].Password = "";
    Teams[6].Password = Text<32>(); // never written
    EXPECT_TRUE(CheckPassword(5));
    EXPECT_TRUE(CheckPassword(6));
    EXPECT_THAT(Machine.Questions(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(PasswordCheckTest, ADamagedPasswordOfAnyOtherLengthIsNone)
{
    for (const char* damaged : {"0Cc175b9c0f1b6a831c399e26977266", "0Cc175b9 0f1b6a831c399e269772661",
                                "0Cc175b9c0f1b6a831c399e26977266\t", "x"}) {
        Teams[5].Password = damaged;
        EXPECT_TRUE(CheckPassword(5)) << damaged;
    }
    EXPECT_THAT(Machine.Questions(), IsEmpty());
}

TEST_F(PasswordCheckTest, AnyThirtyTwoCharactersAreAPasswordEvenWhenNoDigestLooksSo)
{
    Teams[5].Password = std::string(32, 'z');
    Machine.Type("z");
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
}

TEST_F(PasswordCheckTest, ASuccessIsNotRemembered)
{
    Machine.Type("a");
    Machine.Type("b");
    EXPECT_TRUE(CheckPassword(5));
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_EQ(Machine.Questions().size(), 2U);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Password is incorrect!"}));
}

TEST_F(PasswordCheckTest, ATeamOutside1To100FailsTheIntegrityCheck)
{
    for (const int team : {0, 101, -1, 32767, -32768}) {
        EXPECT_FALSE(CheckPassword(team)) << team;
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "Integrity Check Failed!"})) << team;
    }
    EXPECT_TRUE(CheckPassword(1));
    EXPECT_TRUE(CheckPassword(100));
    EXPECT_THAT(Machine.Questions(), IsEmpty());
}

TEST_F(PasswordCheckTest, AFailureOfTheCheckIsToldAndKeepsTheUserOut)
{
    class NoInputBox : public ScriptedPlatform {
    public:
        std::string InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                             const std::string& /*text*/) override
        {
            Fail(failure::InvalidCall);
        }
    } machine;
    UseMachine(machine);
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{16, "5 - Invalid procedure call or argument in CheckPassword!"}));
}

TEST_F(PasswordCheckTest, AFailingDigestIsToldAndIsNoPasswordEither)
{
    class NoDigest : public ScriptedPlatform {
    public:
        std::array<std::uint8_t, 16> Md5(std::string_view /*bytes*/) override { Fail(failure::OutOfMemory); }
    } machine;
    UseMachine(machine);
    machine.Type("a");
    EXPECT_FALSE(CheckPassword(5));
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{16, "7 - Out of memory in Digest Str To HexStr Function!"},
                                             Box{48, "Password is incorrect!"}));
}

class NewPasswordTest : public SmallLeague {
protected:
    NewPasswordTest()
    {
        const TeamMaker made(5);
        Five.Password = DigestOfA;
    }

    // Types both texts, changes the password, and says what was told behind the question.
    std::vector<Box> ToldAfter(const std::string& first, const std::string& second)
    {
        Machine.Type(first);
        Machine.Type(second);
        ChangePassword(OpenWork(), Machine, 5);
        std::vector<Box> told = Machine.TakeBoxes();
        EXPECT_EQ(told.at(0), (Box{box::YesNo, "Do you want to change the password for Team 5"}));
        told.erase(told.begin());
        return told;
    }

    Team& Five = Teams[5];
    static constexpr const char* DigestOfA = "0Cc175b9c0f1b6a831c399e269772661";
};

TEST_F(NewPasswordTest, TwoEqualTextsAreStoredAsTheirDigest)
{
    Five.Password = "";
    EXPECT_THAT(ToldAfter("a", "a"), ElementsAre(Box{box::Information, "New Password was successfully set!"}));
    EXPECT_EQ(Five.Password.Raw(), DigestOfA);
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{"Enter New Password"}, Question{"Enter New Password Again to Verify"}));
}

TEST_F(NewPasswordTest, ABlankIsPartOfThePassword)
{
    EXPECT_THAT(ToldAfter(" ", " "), ElementsAre(Box{box::Information, "New Password was successfully set!"}));
    Machine.Type(" ");
    EXPECT_TRUE(CheckPassword(OpenLeague, Machine, 5));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(NewPasswordTest, TwoEmptyTextsEraseThePassword)
{
    EXPECT_THAT(ToldAfter("", ""), ElementsAre(Box{box::Information, "Password was erased!"}));
    EXPECT_EQ(Five.Password.Raw(), std::string(32, ' '));
    EXPECT_TRUE(Modified);
}

TEST_F(NewPasswordTest, TextsThatDifferLeaveItAndCountAsAnEditAllTheSame)
{
    const std::pair<const char*, const char*> pairs[] = {{"a", "A"}, {"a", ""}, {"", "a"}, {"a", "a "}};
    for (const auto& [first, second] : pairs) {
        Modified = false;
        EXPECT_THAT(ToldAfter(first, second), ElementsAre(Box{box::Warning, "Password does not match!"}));
        EXPECT_EQ(Five.Password.Raw(), DigestOfA);
        EXPECT_TRUE(Modified);
    }
}

TEST_F(NewPasswordTest, WithoutAYesNothingIsAsked)
{
    for (const int answer : {button::No, button::Cancel}) {
        const ByteVector before = AllTables();
        Machine.Answer(answer);
        ChangePassword(OpenWork(), Machine, 5);
        EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
        EXPECT_THAT(Machine.Questions(), IsEmpty());
        EXPECT_TRUE(AllTables() == before);
        EXPECT_FALSE(Modified);
    }
}

TEST_F(NewPasswordTest, NothingElseOfTheLeagueChanges)
{
    ByteVector expected = AllTables();
    const auto stored = std::search(expected.begin(), expected.end(), DigestOfA, DigestOfA + 32);
    ASSERT_NE(stored, expected.end());
    std::fill_n(stored, 32, ' ');
    EXPECT_THAT(ToldAfter("", ""), ElementsAre(Box{box::Information, "Password was erased!"}));
    EXPECT_TRUE(AllTables() == expected);
}

TEST_F(NewPasswordTest, ABoxThatFailsLeavesThePasswordAndNoEdit)
{
    FailingBoxes machine(1);
    try {
        ChangePassword({OpenLeague, machine, machine, Modified}, machine, 5);
        FAIL() << "a question that was never shown was answered";
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.Number, failure::Overflow);
    }
    EXPECT_EQ(Five.Password.Raw(), DigestOfA);
    EXPECT_FALSE(Modified);
}

TEST_F(NewPasswordTest, ATeamOutOfRangeFailsWith9)
{
    for (const int team : {0, 101}) {
        try {
            ChangePassword(OpenWork(), Machine, team);
            FAIL() << team;
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.Number, failure::OutOfRange);
        }
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
