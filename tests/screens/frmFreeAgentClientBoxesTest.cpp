#include "OnHistory.h"
#include "OnOfferScreen.h"
#include "session/OpenHistory.h"

#include <QApplication>
#include <QClipboard>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Skater 1, restricted, of another team, is shown; skater 2 stands behind him.
class OfferBoxes : public OnOfferScreen {
protected:
    OfferBoxes()
    {
        FreeSkater(1);
        FreeSkater(2);
    }
    FreeAgentOffer& First() { return OfferOf(1); }
};

TEST_F(OfferBoxes, ASalaryIsStored)
{
    Enter(Open().txtOffer, "750000");
    EXPECT_EQ(First().Salary, 750000);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_FALSE(Modified);
}

// Behind the undo nobody has an offer, and the box with the focus closes: no other box acts, and the way again stays open.
TEST_F(OfferBoxes, AnUndoThatClosesTheBoxAtHandTakesNothingElse)
{
    Open();
    Enter(Offers().txtOffer, "750000");
    Enter(Offers().txtDuration, "2");
    Offers().close();
    Settle();
    Open();
    QTest::mouseClick(Offers().findChild<QPushButton*>("cmdBringBack"), Qt::LeftButton);
    Settle();
    Machine.ForgetBoxes("who was brought back is told");
    Offers().chkShowPlayerWithOffer->setChecked(true);
    Settle();
    Offers().activateWindow();
    Settle();
    Offers().txtOffer->setFocus();
    ASSERT_TRUE(Offers().txtOffer->hasFocus());
    QTest::mouseClick(HistoryCommand(Offers(), "cmdUndo"), Qt::LeftButton);
    Settle();
    EXPECT_FALSE(Offers().txtOffer->isEnabled());
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    EXPECT_NE(OpenHistory().ToRedo(), nullptr);
    EXPECT_TRUE(Offers().lstPlayers->hasFocus());
    QTest::mouseClick(HistoryCommand(Offers(), "cmdRedo"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(First().Salary, 750000);
}

TEST_F(OfferBoxes, ASalaryOfZeroLeavesTheFormerOneWhileTheBoxShowsZero)
{
    Open();
    Enter(Offers().txtOffer, "750000");
    Enter(Offers().txtOffer, "0");
    EXPECT_EQ(First().Salary, 750000);
    EXPECT_EQ(Of(Offers().txtOffer), "0");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferBoxes, TheMostIsTakenAndMoreIsCutToIt)
{
    Enter(Open().txtOffer, "10000000");
    EXPECT_EQ(First().Salary, 10000000);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    Enter(Offers().txtOffer, "10000001");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Maximum Salary is $10,000,000"}));
    EXPECT_EQ(Of(Offers().txtOffer), "10000000");
    EXPECT_EQ(First().Salary, 10000000);
}

TEST_F(OfferBoxes, ASalaryThatFitsNoFieldIsCutToTheMost)
{
    Enter(Open().txtOffer, "99999999999999999999");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Maximum Salary is $10,000,000"}));
    EXPECT_EQ(First().Salary, 10000000);
}

TEST_F(OfferBoxes, TheLeastIsTakenAndLessIsRaisedToIt)
{
    Enter(Open().txtOffer, "500000");
    EXPECT_EQ(First().Salary, 500000);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    for (const char* text : {"499999", "1", "-5"}) {
        Enter(Offers().txtOffer, text);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Minimum Salary is $500,000"})) << text;
        EXPECT_EQ(Of(Offers().txtOffer), "500000");
        EXPECT_EQ(First().Salary, 500000);
    }
}

TEST_F(OfferBoxes, WhereTheLimitsCrossBothAreTold)
{
    LeagueData.MaxSalary = 400000;
    Enter(Open().txtOffer, "600000");
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{48, "Maximum Salary is $400,000"}, Box{48, "Minimum Salary is $500,000"}));
    EXPECT_EQ(First().Salary, 500000);
}

TEST_F(OfferBoxes, TheLeadingDigitsAreTheSalary)
{
    Enter(Open().txtOffer, "600000-5");
    EXPECT_EQ(First().Salary, 600000);
}

TEST_F(OfferBoxes, ARefusedSalaryGetsTheFocusBackAndStoresNothing)
{
    Open();
    for (const auto& [text, words] : {std::pair("1,000,000", "Only numbers are allowed in that textbox!"),
                                      std::pair("$5", "No Valid Input!"), std::pair("", "No Valid Input!")}) {
        Enter(Offers().txtOffer, text);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, words})) << text;
        EXPECT_TRUE(Offers().txtOffer->hasFocus());
        EXPECT_EQ(First().Salary, 0);
    }
    EXPECT_FALSE(ListEventGuard);
    Enter(Offers().txtOffer, "600000");
    EXPECT_EQ(First().Salary, 600000);
}

TEST_F(OfferBoxes, ADurationIsStored)
{
    Open();
    for (const int years : {1, 9, 0}) {
        Enter(Offers().txtDuration, QString::number(years));
        EXPECT_EQ(First().Duration, years);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferBoxes, MoreThanNineYearsAreCutToNine)
{
    Open();
    for (const char* text : {"10", "99999999999"}) {
        Enter(Offers().txtDuration, text);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Maximum Contract Duration is 9 years."})) << text;
        EXPECT_EQ(Of(Offers().txtDuration), "9");
        EXPECT_EQ(First().Duration, 9);
    }
}

TEST_F(OfferBoxes, LessThanNoYearBecomesZeroWithoutAWord)
{
    Enter(Open().txtDuration, "-1");
    EXPECT_EQ(Of(Offers().txtDuration), "0");
    EXPECT_EQ(First().Duration, 0);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferBoxes, ARefusedDurationGetsTheFocusBack)
{
    Enter(Open().txtDuration, "2.5");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only numbers are allowed in that textbox!"}));
    EXPECT_TRUE(Offers().txtDuration->hasFocus());
    EXPECT_EQ(First().Duration, 0);
}

TEST_F(OfferBoxes, ABonusHasNoLimit)
{
    Open();
    for (const char* text : {"2147483647", "-2147483648", "1", "0"}) {
        Enter(Offers().txtBonus, text);
        EXPECT_EQ(std::to_string(First().Bonus), text);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferBoxes, ABonusThatFitsNoFieldStoresNothingAndTheProgramGoesOn)
{
    Enter(Open().txtBonus, "5000");
    Enter(Offers().txtBonus, "2147483648");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "6 - Overflow in txtBonus_LostFocus!"}));
    EXPECT_EQ(First().Bonus, 5000);
    EXPECT_TRUE(Offers().isVisible());
}

TEST_F(OfferBoxes, ARefusedBonusGetsTheFocusBack)
{
    Enter(Open().txtBonus, "x");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_TRUE(Offers().txtBonus->hasFocus());
}

TEST_F(OfferBoxes, ACommentIsStoredPaddedWithBlanks)
{
    Open();
    EnterComment(QString::fromUtf8("Come to Montr\xC3\xA9"
                                   "al"));
    EXPECT_EQ(First().Comment.Raw(), "Come to Montr\xE9"
                                     "al" +
                                         std::string(984, ' '));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferBoxes, AnEmptyCommentIsBlanksOnceItWasEdited)
{
    Open();
    EXPECT_EQ(First().Comment.Raw(), std::string(1000, '\0'));
    EnterComment("");
    EXPECT_EQ(First().Comment.Raw(), std::string(1000, ' '));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(OfferBoxes, ACommentOf1001CharactersIsCutTo1000)
{
    Open();
    EnterComment(QString(1000, 'a') + "b");
    EXPECT_EQ(First().Comment.Raw(), std::string(1000, 'a'));
    EnterComment(QString(999, 'a') + "b");
    EXPECT_EQ(First().Comment.Raw(), std::string(999, 'a') + "b");
}

TEST_F(OfferBoxes, ARefusedCommentGetsTheFocusBackAndStoresNothing)
{
    Open();
    EnterComment("Come, please");
    EXPECT_THAT(Machine.TakeBoxes(),
                ElementsAre(Box{48, "Only numbers, letters and spaces are allowed in that textbox!"}));
    EXPECT_TRUE(Offers().txtComment->hasFocus());
    EXPECT_EQ(First().Comment.Raw(), std::string(1000, '\0'));
    EnterComment("Come please");
    EXPECT_EQ(First().Comment.Trimmed(), "Come please");
}

TEST_F(OfferBoxes, TheEnterKeyMakesNoLineBreakInAComment)
{
    Open();
    EditArea* area = Offers().txtComment;
    area->setFocus();
    QTest::keyClicks(area, "a");
    Press(area, Qt::Key_Return);
    Press(area, Qt::Key_Enter, Qt::ShiftModifier);
    QTest::keyClicks(area, "b");
    EXPECT_EQ(Comment(), "ab");
}

TEST_F(OfferBoxes, APastedLineBreakBecomesABlank)
{
    Open();
    QApplication::clipboard()->setText("one\ntwo\r\nthree");
    Offers().txtComment->setFocus();
    Offers().txtComment->paste();
    EXPECT_EQ(Comment(), "one two three");
}

TEST_F(OfferBoxes, TheOfferFollowsThePersonShown)
{
    Open();
    TypeInto(Offers().txtOffer, "600000");
    ClickEntry(1);
    EXPECT_EQ(First().Salary, 600000) << "the box acted before the other one was shown";
    EXPECT_EQ(Of(Offers().txtOffer), "0");
    Enter(Offers().txtOffer, "700000");
    EXPECT_EQ(OfferOf(2).Salary, 700000);
    EXPECT_EQ(First().Salary, 600000);
}

TEST_F(OfferBoxes, ARefusedTextKeepsItsPersonShown)
{
    Open();
    TypeInto(Offers().txtOffer, "x");
    ClickEntry(1);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_EQ(Offers().OfferIndex(), 1);
    EXPECT_EQ(Offers().lstPlayers->currentRow(), 0);
    EXPECT_EQ(Of(Offers().txtOffer), "x");
    EXPECT_TRUE(Offers().txtOffer->hasFocus());
    Click(Offers().chkShowPlayerWithOffer);
    EXPECT_FALSE(Offers().chkShowPlayerWithOffer->isChecked());
    EXPECT_EQ(Offers().lstPlayers->count(), 2);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
}

TEST_F(OfferBoxes, ARefusedTextKeepsItsPersonShownWhenTheFilterIsAskedForByItsKey)
{
    Open();
    TypeInto(Offers().txtOffer, "x");
    // The key goes to the box to tick, which the refused text takes the focus back from before it is ticked.
    Offers().chkShowPlayerWithOffer->setFocus(Qt::ShortcutFocusReason);
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
    Offers().chkShowPlayerWithOffer->click();
    Settle();
    EXPECT_FALSE(Offers().chkShowPlayerWithOffer->isChecked());
    EXPECT_EQ(Offers().lstPlayers->count(), 2);
    EXPECT_EQ(Of(Offers().txtOffer), "x");
    EXPECT_TRUE(Offers().txtOffer->hasFocus());
    EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
}

TEST_F(OfferBoxes, ACommandThatTakesNoFocusFirstLetsTheBoxAct)
{
    Open();
    Offers().txtComment->setFocus();
    QTest::keyClicks(Offers().txtComment, "Come");
    Offers().cmdSearch->click();
    EXPECT_EQ(First().Comment.Trimmed(), "Come");
    Offers().txtComment->setFocus();
    QTest::keyClicks(Offers().txtComment, "!");
    const std::size_t asked = Machine.Questions().size();
    Offers().cmdSearch->click();
    EXPECT_EQ(Machine.Questions().size(), asked) << "a refused text holds the command back";
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only numbers, letters and spaces are allowed in that textbox!"}));
}

TEST_F(OfferBoxes, ClosingTheWindowLetsTheBoxAct)
{
    Open();
    TypeInto(Offers().txtOffer, "1");
    Offers().close();
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Minimum Salary is $500,000"}));
    Settle();
}

TEST_F(OfferBoxes, FailuresOfSalaryAndDurationAreReportedWithAFullStop)
{
    Players[1].InUse = Players[2].InUse = false; // nobody to choose
    Open();
    ASSERT_EQ(Offers().OfferIndex(), 0);
    Enter(Offers().txtOffer, "600000");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in txtOffer LostFocus."}));
    Enter(Offers().txtDuration, "3");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in txtDuration LostFocus."}));
    Enter(Offers().txtBonus, "3");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in txtBonus_LostFocus!"}));
    Offers().txtComment->setEnabled(true); // as no path of the program does
    EnterComment("Come");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "9 - Subscript out of range in txtComment_LostFocus!"}));
}

TEST_F(OfferBoxes, TheTallyFollowsTheBoxes)
{
    LeagueData.MaxOffers = 1;
    FreeSkater(3, 5);
    Open();
    EXPECT_EQ(Of(Offers().lblOffersMade), "0 of 1 offers to others made");
    EXPECT_EQ(Of(Offers().lblOffersCost), "0 in all: $0 a season, $0 in bonus");
    Enter(Offers().txtOffer, "750000");
    EXPECT_EQ(Of(Offers().lblOffersMade), "0 of 1 offers to others made") << "without a year it is none";
    Enter(Offers().txtDuration, "2");
    Enter(Offers().txtBonus, "1000");
    EXPECT_EQ(Of(Offers().lblOffersMade), "1 of 1 offers to others made");
    EXPECT_TRUE(Offers().lblOffersMade->IsGood());
    EXPECT_EQ(Of(Offers().lblOffersCost), "1 in all: $750,000 a season, $1,000 in bonus");
    ClickEntry(2);
    Enter(Offers().txtOffer, "800000");
    Enter(Offers().txtDuration, "1");
    EXPECT_EQ(Of(Offers().lblOffersMade), "1 of 1 offers to others made") << "an own player does not count";
    EXPECT_EQ(Of(Offers().lblOffersCost), "2 in all: $1,550,000 a season, $1,000 in bonus");
    ClickEntry(1);
    Enter(Offers().txtOffer, "800000");
    Enter(Offers().txtDuration, "1");
    EXPECT_EQ(Of(Offers().lblOffersMade), "2 of 1 offers to others made");
    EXPECT_FALSE(Offers().lblOffersMade->IsGood());
    Enter(Offers().txtDuration, "0");
    EXPECT_TRUE(Offers().lblOffersMade->IsGood()) << "no year clears an offer";
}

TEST_F(OfferBoxes, AnEntryShowsItsOfferBesideTheOverall)
{
    LeagueData.ShowOverall = true;
    Open();
    const QListWidgetItem* entry = Offers().lstPlayers->item(0);
    EXPECT_EQ(entry->data(entry::AsideRole).toStringList(), QStringList{"60"});
    Enter(Offers().txtOffer, "750000");
    Enter(Offers().txtDuration, "2");
    EXPECT_EQ(entry->data(entry::AsideRole).toStringList(), (QStringList{"$750,000 x 2", "60"}));
    EXPECT_EQ(entry->text().toStdString(), "Skater 1 (C)-RFA");
    LeagueData.ShowOverall = false;
    EXPECT_EQ(entry->data(entry::AsideRole).toStringList(), QStringList{"$750,000 x 2"});
}

} // namespace
} // namespace dravik
