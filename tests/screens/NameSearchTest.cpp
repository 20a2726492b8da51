#include "screens/panels/NameSearch.h"
#include "OnStage.h"
#include "screens/platform/CodePage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NameSearch : public OnStage {
protected:
    NameSearch()
    {
        for (const char* name : {"Ward Tilton (LW)", "Karl Dreyer (C)", "R\xE9mi Gauthi\xE8re (D)", "Piet Vos (G)"})
            List.Add(ToQString(name), 1);
    }

    int SearchFor(const std::string& answer)
    {
        Machine.Type(answer);
        return SearchPlayer(List);
    }

    EntryList List;
};

TEST_F(NameSearch, AsksUnderItsOwnTitleWithNothingTyped)
{
    SearchFor("x");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}));
    EXPECT_THAT(Machine.Questions(),
                ElementsAre(Question{"Complete or Part of the Player Name?", "Player Search", ""}));
}

TEST_F(NameSearch, FindsTheFirstEntryThatContainsTheAnswerInAnyCase)
{
    EXPECT_EQ(SearchFor("dREY"), 1);
    EXPECT_EQ(SearchFor("R"), 0);
    EXPECT_EQ(SearchFor("(g)"), 3) << "the whole text of the entry counts";
    EXPECT_EQ(SearchFor("R\xC9MI"), 2);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(NameSearch, StartsAtTheFirstEntryWhateverIsChosen)
{
    List.setCurrentRow(2);
    EXPECT_EQ(SearchFor("r"), 0);
    EXPECT_EQ(List.currentRow(), 2) << "choosing is up to the screen";
}

TEST_F(NameSearch, AnEmptyOrCancelledAnswerIsInTheFirstEntry)
{
    EXPECT_EQ(SearchFor(""), 0);
    EXPECT_EQ(SearchPlayer(List), 0); // with no answer in the script
    EXPECT_EQ(Machine.Questions().size(), 2U);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(NameSearch, ABlankIsAnAnswerLikeAnyOther)
{
    EXPECT_EQ(SearchFor("  "), -1);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "Player not found!"}));
    EXPECT_EQ(SearchFor(" "), 0);
}

TEST_F(NameSearch, TellsWhenNobodyIsFound)
{
    EXPECT_EQ(SearchFor("Nobody"), -1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}));
}

TEST_F(NameSearch, InAnEmptyListEvenTheEmptyAnswerIsNotFound)
{
    List.clear();
    EXPECT_EQ(SearchFor(""), -1);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Player not found!"}));
}

} // namespace
} // namespace dravik
