#include "desk/Erasure.h"

#include "PlayerDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class ErasureTest : public PlayerDesk {
protected:
    void Answer(std::initializer_list<int> answers)
    {
        for (const int answer : answers)
            Machine.Answer(answer);
    }
    static std::vector<Box> QuestionsAbout(const std::string& name, const std::string& kind)
    {
        return {Box{box::YesNo, "Are you sure you want to erase " + name + "?"},
                Box{box::YesNo, name + " is hired by Harbour City Gulls! Do you want release the " + kind + "?"},
                Box{box::YesNo, "Is " + name + " retiring?"}};
    }
};

TEST_F(ErasureTest, WhoHasATeamRetiresOrIsReleasedAndStaysInTheTable)
{
    const LeagueBefore before;
    const struct {
        PersonId Who;
        int Position;
        int Retires;
        const char* Name;
        const char* Kind;
        const char* News;
    } erasures[] = {
        {Skater, 2, button::Yes, "Ward Tilton", "player", "Ward Tilton retired from Harbour City Gulls"},
        {Skater, 2, button::No, "Ward Tilton", "player", "Ward Tilton was released by Harbour City Gulls"},
        {Skater, 2, button::Cancel, "Ward Tilton", "player", "Ward Tilton was released by Harbour City Gulls"},
        {Keeper, 5, button::Yes, "Piet Vos", "goalie", "Piet Vos retired from Harbour City Gulls"},
        {Keeper, 5, button::No, "Piet Vos", "goalie", "Piet Vos was released by Harbour City Gulls"}};
    std::vector<std::pair<int, int>> erased;
    for (const auto& erasure : erasures) {
        Modified = false;
        Answer({button::Yes, button::Yes, erasure.Retires});
        EXPECT_TRUE(ErasePerson(OpenWork(), erasure.Who, erasure.Position));
        EXPECT_EQ(Machine.TakeBoxes(), QuestionsAbout(erasure.Name, erasure.Kind));
        EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", erasure.News}, News{"team 5", erasure.News}));
        erased.emplace_back(7, erasure.Position);
        EXPECT_EQ(Machine.ErasedPlayers(), erased);
        EXPECT_TRUE(Modified);
    }
    EXPECT_TRUE(before.IsUntouched());
}

TEST_F(ErasureTest, WithoutATeamOneQuestionIsEnough)
{
    Tilton.Team = 0;
    EXPECT_TRUE(ErasePerson(OpenWork(), Skater, 2));
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::YesNo, "Are you sure you want to erase Ward Tilton?"}));
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.ErasedPlayers(), ElementsAre(Pair(7, 2)));
    EXPECT_TRUE(Modified);
}

TEST_F(ErasureTest, AnythingButYesKeepsHim)
{
    const auto questions = QuestionsAbout("Ward Tilton", "player");
    for (const int refusal : {button::No, button::Cancel}) {
        Answer({refusal});
        EXPECT_FALSE(ErasePerson(OpenWork(), Skater, 2));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(questions[0]));
        Answer({button::Yes, refusal});
        EXPECT_FALSE(ErasePerson(OpenWork(), Skater, 2));
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(questions[0], questions[1]));
    }
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.ErasedPlayers(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(ErasureTest, AnImpossibleTeamFailsWith9BehindTheFirstQuestion)
{
    Tilton.Team = 101;
    EXPECT_EQ(NumberOfFailure([&] { ErasePerson(OpenWork(), Skater, 2); }), failure::OutOfRange);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::YesNo, "Are you sure you want to erase Ward Tilton?"}));
    EXPECT_THAT(Machine.ErasedPlayers(), IsEmpty());
    EXPECT_FALSE(Modified);
}

TEST_F(ErasureTest, AQuestionThatCannotBeAskedKeepsHim)
{
    const auto questions = QuestionsAbout("Ward Tilton", "player");
    for (int asked = 0; asked < 3; ++asked) {
        class FailsAt final : public ScriptedPlatform {
        public:
            explicit FailsAt(int box) : untilFailure(box) {}
            int MessageBox(const std::string& text, int kind, const std::string& title) override
            {
                if (untilFailure-- == 0)
                    Fail(failure::Overflow);
                return ScriptedPlatform::MessageBox(text, kind, title);
            }

        private:
            int untilFailure;
        } machine(asked);
        EXPECT_EQ(NumberOfFailure([&] {
                      ErasePerson({OpenLeague, machine, machine, Modified}, Skater, 2);
                  }),
                  failure::Overflow);
        EXPECT_EQ(machine.Boxes(), std::vector(questions.begin(), questions.begin() + asked));
        EXPECT_THAT(machine.ToldNews(), IsEmpty());
        EXPECT_THAT(machine.ErasedPlayers(), IsEmpty());
    }
    EXPECT_FALSE(Modified);
}

} // namespace
} // namespace dravik
