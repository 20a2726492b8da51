#include "desk/Offers.h"

#include "OnMarket.h"
#include "support/ClientFileBytes.h"
#include "support/FailingBoxes.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int Overflowed = failure::Overflow;

// Skater 1 and goalie 3, both of team 6, can be made offers.
class OffersTest : public OnMarket {
protected:
    OffersTest()
    {
        FreeSkater(1);
        FreeGoalie(3);
    }

    // Gives a text for each part of the offer to a person, and notes which numbers were taken instead.
    Entered Salary(std::string_view text, PersonId who = Skater(1))
    {
        return OfferSalary(OpenWork(), Offers, who, text, Noting());
    }
    Entered Duration(std::string_view text, PersonId who = Skater(1))
    {
        return OfferDuration(OpenWork(), Offers, who, text, Noting());
    }
    Entered Bonus(std::string_view text, PersonId who = Skater(1)) { return OfferBonus(OpenWork(), Offers, who, text); }
    Entered Comment(std::string_view text, PersonId who = Skater(1))
    {
        return OfferComment(OpenWork(), Offers, who, text);
    }

    FreeAgentOffer& First() { return Offers[1]; }
    std::vector<int> Instead;

private:
    TakesInstead Noting()
    {
        Instead.clear();
        return [this](int number) { Instead.push_back(number); };
    }
};

// ---- Opening ---------------------------------------------------------------------------------------------------------

TEST_F(OffersTest, OpeningTakesEveryOfferAway)
{
    Offer(1);
    Offers[1].Comment = "Come";
    Offers[11000].Team = 3;
    Offers[11000].Bonus = 5;
    Ranking[0] = 7;
    OpenOffers(OpenWork(), 5, Offers);
    const auto none = MakeMarket();
    EXPECT_EQ(std::memcmp(&Offers, &none->Offers, sizeof(OfferTable)), 0);
    EXPECT_EQ(Ranking[0], 7);
}

TEST_F(OffersTest, InTheSeasonTheRestIsTheLimitWithoutTheOffersMade)
{
    LeagueData.MaxOffers = 12;
    LeagueData.OffersLeft = 99;
    Teams[5].OffersMade = 5;
    Teams[6].OffersMade = 1;
    OpenOffers(OpenWork(), 5, Offers);
    EXPECT_EQ(LeagueData.MaxOffers, 12);
    EXPECT_EQ(LeagueData.OffersLeft, 7);
    EXPECT_EQ(Teams[5].OffersMade, 5);
    EXPECT_EQ(OfferLimitWords(LeagueData), "You can make 7 offers to players you do not owned.");
    OpenOffers(OpenWork(), 6, Offers);
    EXPECT_EQ(LeagueData.OffersLeft, 11);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersTest, InTheSeasonALimitOfZeroBecomesAHundredAndNoOtherDoes)
{
    for (const auto& [limit, expected] : {std::pair(0, 100), std::pair(1, 1), std::pair(-1, -1)}) {
        LeagueData.MaxOffers = limit;
        OpenOffers(OpenWork(), 5, Offers);
        EXPECT_EQ(LeagueData.MaxOffers, expected);
        EXPECT_EQ(LeagueData.OffersLeft, expected);
    }
}

TEST_F(OffersTest, MoreOffersThanTheLimitLeaveLessThanNone)
{
    LeagueData.MaxOffers = 3;
    Teams[5].OffersMade = 5;
    OpenOffers(OpenWork(), 5, Offers);
    EXPECT_EQ(OfferLimitWords(LeagueData), "You can make -2 offers to players you do not owned.");
}

TEST_F(OffersTest, ARestBeyondItsFieldFailsWith6)
{
    LeagueData.MaxOffers = 32767;
    Teams[5].OffersMade = -32768;
    Offer(1);
    EXPECT_EQ(FailureFrom([&] { OpenOffers(OpenWork(), 5, Offers); }), Overflowed);
    EXPECT_EQ(LeagueData.OffersLeft, 50);
    EXPECT_EQ(First().Id, 0);
    Teams[5].OffersMade = 0;
    OpenOffers(OpenWork(), 5, Offers);
    EXPECT_EQ(LeagueData.OffersLeft, 32767);
}

TEST_F(OffersTest, InTheOffSeasonTheRestStaysAsItCame)
{
    LeagueData.OffSeason = true;
    LeagueData.MaxOffers = 0;
    LeagueData.OffersLeft = 9;
    Teams[5].OffersMade = 5;
    EXPECT_TRUE(ChangesNothing([&] { OpenOffers(OpenWork(), 5, Offers); }));
    EXPECT_EQ(OfferLimitWords(LeagueData), "You can make 9 offers in total.");
    LeagueData.OffSeason.SetWord(1); // which is not True
    OpenOffers(OpenWork(), 5, Offers);
    EXPECT_EQ(LeagueData.OffersLeft, 95);
}

TEST_F(OffersTest, OpeningChangesNothingElseOfTheLeague)
{
    const auto before = Copy(OpenLeague);
    Offer(1);
    OpenOffers(OpenWork(), 5, Offers);
    before->LeagueData.OffersLeft = LeagueData.OffersLeft;
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof(Tables)), 0);
}

TEST_F(OffersTest, ATeamThatIsNoneFailsWith9)
{
    for (const int team : {0, 101})
        EXPECT_EQ(FailureFrom([&] { OpenOffers(OpenWork(), team, Offers); }), failure::OutOfRange);
}

// ---- The offer at hand -----------------------------------------------------------------------------------------------

TEST_F(OffersTest, AnOfferThatIsTakenIsHisAndShowsWhatWasOfferedBefore)
{
    Offers[10003].Salary = 600000;
    Offers[10003].Comment = "Come";
    const FreeAgentOffer* taken = TakeOffer(OpenLeague, 5, Offers, Keeper(3));
    ASSERT_EQ(taken, &Offers[10003]);
    EXPECT_EQ(taken->Id, 10003);
    EXPECT_EQ(taken->Salary, 600000);
    EXPECT_EQ(taken->Comment.Trimmed(), "Come");
    EXPECT_EQ(taken->Team, 0) << "which it gets when it is saved";
    EXPECT_EQ(First().Id, 0);
    EXPECT_EQ(TakeOffer(OpenLeague, 5, Offers, Skater(1)), &First());
    EXPECT_EQ(First().Id, 1);
}

TEST_F(OffersTest, NoOfferIsTakenForOneWhoIsBarred)
{
    Players[1].Age = 21;
    First().Salary = 600000;
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(TakeOffer(OpenLeague, 5, Offers, Skater(1)), nullptr); }));
    EXPECT_NE(TakeOffer(OpenLeague, 6, Offers, Skater(1)), nullptr) << "his own team may have him";
    Goalies[3].Age = 21;
    EXPECT_EQ(TakeOffer(OpenLeague, 5, Offers, Keeper(3)), nullptr);
    Goalies[3].Age = 22;
    EXPECT_NE(TakeOffer(OpenLeague, 5, Offers, Keeper(3)), nullptr);
}

TEST_F(OffersTest, APersonWithoutAPlaceInTheTableFailsWith9)
{
    for (const PersonId who : {Skater(0), Skater(-3), Keeper(1001)}) {
        EXPECT_EQ(FailureFrom([&] { Salary("600000", who); }), failure::OutOfRange);
        EXPECT_EQ(FailureFrom([&] { Duration("3", who); }), failure::OutOfRange);
        EXPECT_EQ(FailureFrom([&] { Bonus("3", who); }), failure::OutOfRange);
        EXPECT_EQ(FailureFrom([&] { Comment("Come", who); }), failure::OutOfRange);
    }
    EXPECT_EQ(FailureFrom([&] { Salary("1", Skater(0)); }), failure::OutOfRange);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Minimum Salary is $500,000"}))
        << "his limit was told by then";
    EXPECT_EQ(Salary("0", Skater(0)), Entered::NoChange);
    EXPECT_EQ(Salary("x", Skater(0)), Entered::Refused);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, "No Valid Input!"}));
}

// ---- The salary ------------------------------------------------------------------------------------------------------

TEST_F(OffersTest, ASalaryIsStoredForItsPersonAlone)
{
    EXPECT_EQ(Salary("750000"), Entered::Stored);
    EXPECT_EQ(First().Salary, 750000);
    EXPECT_EQ(First().Id, 0) << "that he was shown is another matter";
    EXPECT_EQ(Salary("800000", Keeper(3)), Entered::Stored);
    EXPECT_EQ(Offers[10003].Salary, 800000);
    EXPECT_EQ(First().Salary, 750000);
    EXPECT_THAT(Instead, IsEmpty());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersTest, ASalaryOfZeroChangesNothing)
{
    Salary("750000");
    for (const char* text : {"0", "00", "-0", "-", "--5", "0-7"}) {
        const bool isNumber = std::string_view(text).find_first_of("0123456789") != std::string_view::npos;
        EXPECT_TRUE(
            ChangesNothing([&] { EXPECT_EQ(Salary(text), isNumber ? Entered::NoChange : Entered::Refused) << text; }));
        const Box told{box::Warning, "No Valid Input!"};
        EXPECT_EQ(Machine.TakeBoxes(), isNumber ? std::vector<Box>{} : std::vector{told}) << text;
        EXPECT_THAT(Instead, IsEmpty());
    }
    EXPECT_EQ(First().Salary, 750000);
}

TEST_F(OffersTest, TheMostIsTakenAndMoreIsCutToIt)
{
    EXPECT_EQ(Salary("9999999"), Entered::Stored);
    EXPECT_EQ(First().Salary, 9999999);
    EXPECT_EQ(Salary("10000000"), Entered::Stored);
    EXPECT_EQ(First().Salary, 10000000);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    for (const char* text : {"10000001", "2147483648", "99999999999999999999"}) {
        First().Salary = 0;
        EXPECT_EQ(Salary(text), Entered::Stored);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Maximum Salary is $10,000,000"})) << text;
        EXPECT_THAT(Instead, ElementsAre(10000000));
        EXPECT_EQ(First().Salary, 10000000);
    }
}

TEST_F(OffersTest, TheLeastIsTakenAndLessIsRaisedToIt)
{
    EXPECT_EQ(Salary("500001"), Entered::Stored);
    EXPECT_EQ(First().Salary, 500001);
    EXPECT_EQ(Salary("500000"), Entered::Stored);
    EXPECT_EQ(First().Salary, 500000);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    for (const char* text : {"499999", "1", "-5", "-99999999999999999999"}) {
        First().Salary = 0;
        EXPECT_EQ(Salary(text), Entered::Stored);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Minimum Salary is $500,000"})) << text;
        EXPECT_THAT(Instead, ElementsAre(500000));
        EXPECT_EQ(First().Salary, 500000);
    }
}

TEST_F(OffersTest, WhereTheLimitsCrossBothAreToldTheMostFirst)
{
    LeagueData.MaxSalary = 400000;
    EXPECT_EQ(Salary("600000"), Entered::Stored);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Maximum Salary is $400,000"},
                                                 Box{box::Warning, "Minimum Salary is $500,000"}));
    EXPECT_THAT(Instead, ElementsAre(400000, 500000));
    EXPECT_EQ(First().Salary, 500000);
}

TEST_F(OffersTest, ALimitBelowNothingIsALimitToo)
{
    LeagueData.MinSalary = -2147483647 - 1;
    LeagueData.MaxSalary = -7;
    EXPECT_EQ(Salary("1"), Entered::Stored);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Maximum Salary is -$7"}));
    EXPECT_EQ(First().Salary, -7);
    EXPECT_EQ(Salary("-2147483648"), Entered::Stored);
    EXPECT_EQ(First().Salary, -2147483647LL - 1);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersTest, TheLeadingDigitsAreTheSalary)
{
    EXPECT_EQ(Salary("600000-5"), Entered::Stored);
    EXPECT_EQ(First().Salary, 600000);
}

TEST_F(OffersTest, ATextThatIsNoNumberIsRefusedAndChangesNothing)
{
    Offer(1);
    const auto noInput = [&](const std::function<Entered(std::string_view)>& enter) {
        for (const auto& [text, words] :
             {std::pair("1,000,000", "Only numbers are allowed in that textbox!"),
              std::pair("2.5", "Only numbers are allowed in that textbox!"),
              std::pair("7 ", "Only numbers are allowed in that textbox!"), std::pair("$5", "No Valid Input!"),
              std::pair("", "No Valid Input!"), std::pair("-", "No Valid Input!")}) {
            EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(enter(text), Entered::Refused) << text; }));
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, words})) << text;
            EXPECT_THAT(Instead, IsEmpty());
        }
    };
    noInput([this](std::string_view text) { return Salary(text); });
    noInput([this](std::string_view text) { return Duration(text); });
    noInput([this](std::string_view text) { return Bonus(text); });
}

TEST_F(OffersTest, ABoxOfTheSalaryThatFailsStoresNothingAndShowsWhatWasToldBefore)
{
    Offer(1);
    LeagueData.MaxSalary = 400000;
    // Shows the first box and fails at the second.
    class SecondBox : public ScriptedPlatform {
    public:
        int MessageBox(const std::string& text, int kind, const std::string& title) override
        {
            if (!Boxes().empty())
                Fail(failure::OutOfMemory);
            return ScriptedPlatform::MessageBox(text, kind, title);
        }
    } second;
    UseMachine(second);
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(FailureFrom([&] { Salary("600000"); }), failure::OutOfMemory); }));
    EXPECT_THAT(Instead, ElementsAre(400000));
    FailingBoxes first(1);
    UseMachine(first);
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(FailureFrom([&] { Salary("600000"); }), Overflowed); }));
    EXPECT_THAT(Instead, IsEmpty());
    UseMachine(Machine);
}

TEST_F(OffersTest, ARefusalThatCannotBeToldIsReportedAndStaysARefusal)
{
    FailingBoxes failing(1);
    UseMachine(failing);
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(Salary("x"), Entered::Refused); }));
    EXPECT_THAT(failing.Boxes(), ElementsAre(Box{box::Critical, "6 - Overflow in CheckInput"}));
    UseMachine(Machine);
}

// ---- Years, bonus, comment -------------------------------------------------------------------------------------------

TEST_F(OffersTest, ADurationIsStoredUpToNineYears)
{
    for (const int years : {1, 8, 9, 0}) {
        EXPECT_EQ(Duration(std::to_string(years), Keeper(3)), Entered::Stored);
        EXPECT_EQ(Offers[10003].Duration, years);
        EXPECT_THAT(Instead, IsEmpty());
    }
    EXPECT_EQ(Duration("3-7"), Entered::Stored);
    EXPECT_EQ(First().Duration, 3);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersTest, MoreThanNineYearsAreCutToNine)
{
    for (const char* text : {"10", "99999999999"}) {
        First().Duration = 0;
        EXPECT_EQ(Duration(text), Entered::Stored);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "Maximum Contract Duration is 9 years."}));
        EXPECT_THAT(Instead, ElementsAre(9));
        EXPECT_EQ(First().Duration, 9);
    }
}

TEST_F(OffersTest, LessThanNoYearBecomesZeroWithoutAWord)
{
    for (const char* text : {"-1", "-99999999999"}) {
        First().Duration = 4;
        EXPECT_EQ(Duration(text), Entered::Stored);
        EXPECT_THAT(Instead, ElementsAre(0));
        EXPECT_EQ(First().Duration, 0);
    }
    EXPECT_EQ(Duration("-0"), Entered::Stored);
    EXPECT_THAT(Instead, IsEmpty()) << "which is not less";
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersTest, ABoxOfTheDurationThatFailsStoresNothing)
{
    Offer(1);
    FailingBoxes failing(1);
    UseMachine(failing);
    EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(FailureFrom([&] { Duration("10"); }), Overflowed); }));
    EXPECT_THAT(Instead, IsEmpty());
    UseMachine(Machine);
}

TEST_F(OffersTest, ABonusHasNoLimitButItsField)
{
    for (const char* text : {"2147483647", "-2147483648", "1", "0"}) {
        EXPECT_EQ(Bonus(text), Entered::Stored);
        EXPECT_EQ(std::to_string(First().Bonus), text);
    }
    First().Bonus = 5000;
    for (const char* text : {"2147483648", "-2147483649", "99999999999999999999"})
        EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(FailureFrom([&] { Bonus(text); }), Overflowed) << text; }));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersTest, ACommentIsPaddedWithBlanksAndCutToAThousand)
{
    EXPECT_EQ(Comment("Come to Montr\xE9"
                      "al"),
              Entered::Stored);
    EXPECT_EQ(First().Comment.Raw(), "Come to Montr\xE9"
                                     "al" +
                                         std::string(984, ' '));
    EXPECT_EQ(Comment(""), Entered::Stored);
    EXPECT_EQ(First().Comment.Raw(), std::string(1000, ' '));
    EXPECT_EQ(Comment(std::string(999, 'a') + "b"), Entered::Stored);
    EXPECT_EQ(First().Comment.Raw(), std::string(999, 'a') + "b");
    EXPECT_EQ(Comment(std::string(1000, 'a') + "b"), Entered::Stored);
    EXPECT_EQ(First().Comment.Raw(), std::string(1000, 'a'));
    EXPECT_EQ(Comment("123"), Entered::Stored) << "numbers alone will do";
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OffersTest, ACommentOfOtherSignsIsRefused)
{
    Offer(1);
    for (const char* text : {"Come, please", "Come!", "a_b", "\x80"}) {
        EXPECT_TRUE(ChangesNothing([&] { EXPECT_EQ(Comment(text), Entered::Refused) << text; }));
        EXPECT_THAT(Machine.TakeBoxes(),
                    ElementsAre(Box{box::Warning, "Only numbers, letters and spaces are allowed in that textbox!"}));
    }
}

TEST_F(OffersTest, AnOfferChangesNoByteOfTheLeague)
{
    const auto before = Copy(OpenLeague);
    TakeOffer(OpenLeague, 5, Offers, Skater(1));
    Salary("99999999");
    Duration("10");
    Bonus("1");
    Comment("Come");
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof(Tables)), 0);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{box::Warning, "Maximum Salary is $10,000,000"},
                                             Box{box::Warning, "Maximum Contract Duration is 9 years."}));
}

// ---- What it comes to ------------------------------------------------------------------------------------------------

TEST_F(OffersTest, AnOfferInShortIsSalaryAndYears)
{
    const auto inShort = [this](PersonId who) { return OfferInShort(OpenLeague, Machine, Offers, who); };
    EXPECT_EQ(inShort(Skater(1)), "");
    Offer(1, 500000, 1);
    EXPECT_EQ(inShort(Skater(1)), "$500,000 x 1");
    First().Salary = 499999;
    EXPECT_EQ(inShort(Skater(1)), "") << "too little to be one";
    Offer(1, 750000, 0);
    EXPECT_EQ(inShort(Skater(1)), "");
    Offer(10003, 1750000, 9);
    EXPECT_EQ(inShort(Keeper(3)), "$1,750,000 x 9");
    Offers[10003].Id = 0;
    EXPECT_EQ(inShort(Keeper(3)), "") << "of one who was never shown";
    for (const PersonId who : {Skater(0), Skater(-1), Keeper(1001)})
        EXPECT_EQ(inShort(who), "");
}

// ---- Saving ----------------------------------------------------------------------------------------------------------

class SavedOffersTest : public OffersTest {
protected:
    [[nodiscard]] std::string Path() const { return Machine.InFolder("HarbourCityGulls.dvf"); }
    bool IsThere() { return Machine.FindEntry(Path()).has_value(); }
    std::optional<std::string> Save() { return SaveOffers(OpenWork(), OpenFiles(), 5, Offers); }
    // Puts an older file where the new one is to stand.
    void Leave() { WriteWhole(Path(), {'o', 'l', 'd'}); }
};

TEST_F(SavedOffersTest, WhatWasSavedIsReportedOfferByOffer)
{
    FreeSkater(2, 5).Name = "Ward Tilton";
    Offer(1, 750000, 2);
    First().Bonus = -5;
    Offer(2, 1000000, 9);
    Offer(10003, 500000, 1);
    Offers[10003].Bonus = 1000;
    const auto before = Copy(OpenLeague);
    EXPECT_EQ(Save(), "Skater 1 was offer $750,000 for 2 year(s) with -$5 in bonus.\r\n"
                      "Ward Tilton was offer $1,000,000 for 9 year(s) with $0 in bonus.\r\n"
                      "Goalie 3 was offer $500,000 for 1 year(s) with $1,000 in bonus.\r\n"
                      "Client league file save for Harbour City Gulls succesfully at " +
                          Path() + "\r\n");
    EXPECT_TRUE(IsThere());
    EXPECT_EQ(First().Team, 5);
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof(Tables)), 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(SavedOffersTest, WithoutAnOfferNothingIsSavedAndTheOldFileIsGone)
{
    Leave();
    Offer(1, 499999, 2);
    EXPECT_EQ(Save(), "");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "No Offer to Save!"}));
    EXPECT_FALSE(IsThere());
}

TEST_F(SavedOffersTest, AsManyOffersToOthersAsAreLeftAreSavedAndOneMoreRefusesAllOfThem)
{
    FreeSkater(2);
    FreeSkater(4, 5);
    Offer(1);
    Offer(2);
    Offer(4);
    LeagueData.OffersLeft = 2;
    EXPECT_NE(Save(), "");
    EXPECT_TRUE(IsThere());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    LeagueData.OffersLeft = 1;
    EXPECT_EQ(Save(), "");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Warning, "There is more that 1 offers!"}));
    EXPECT_FALSE(IsThere());
    Players[2].Team = 5;
    EXPECT_NE(Save(), "") << "an own one does not count";
    EXPECT_TRUE(IsThere());
}

TEST_F(SavedOffersTest, ARefusalThatCannotBeToldFailsAndTheOldFileIsGoneAllTheSame)
{
    Leave();
    FailingBoxes failing(1);
    const Work work{OpenLeague, failing, failing, Modified};
    EXPECT_EQ(FailureFrom([&] { SaveOffers(work, OpenFiles(), 5, Offers); }), Overflowed);
    EXPECT_FALSE(IsThere());
}

TEST_F(SavedOffersTest, AFileThatCannotBeCompressedIsToldAndNothingIsReported)
{
    Offer(1);
    Leave();
    Machine.FailFileOperation(3, failure::DiskFull);
    EXPECT_EQ(Save(), std::nullopt);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "61 - Disk full in Zlib Compress!"}));
    EXPECT_FALSE(IsThere());
}

TEST_F(SavedOffersTest, ANameThatNoFileMayHaveFailsWith75)
{
    Teams[5].Name = "Gulls/Ducks";
    Offer(1);
    EXPECT_EQ(FailureFrom([&] { Save(); }), failure::PathAccess);
}

} // namespace
} // namespace dravik
