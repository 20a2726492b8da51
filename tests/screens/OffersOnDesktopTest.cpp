#include "Hands.h"
#include "OnOfferScreen.h"
#include "screens/platform/CodePage.h"
#include "session/Session.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Boxes that come up under the mouse. Skater 1 can be made an offer, skater 2 belongs to another team and is too young.
class OffersOnDesktop : public OnOfferScreen {
protected:
    OffersOnDesktop()
    {
        FreeSkater(1);
        FreeSkater(2, 6, 21);
        Open();
    }

    static void ReadOfTheLimit(Hands& hands)
    {
        const std::string most = dravik::Machine().CurrencyNoDecimals(static_cast<double>(LeagueData.MaxSalary));
        hands.Read(ToQString("Maximum Salary is " + most));
    }
    // Puts a salary above the limit into its box and presses the mouse on `button`, which the box of the limit comes
    // before. By then the mouse button is up again.
    void PressBehindTheLimit(QAbstractButton* button)
    {
        TypeInto(Offers().txtOffer, "10000001");
        QTest::mousePress(button, Qt::LeftButton);
        Settle();
        EXPECT_FALSE(button->isDown()) << button->objectName().toStdString();
        EXPECT_EQ(OfferOf(1).Salary, 10000000);
    }
};

const QString NotAllowed = "Skater 2 is not allowed to sign with another team that Pebble Creek Ducks.";

TEST_F(OffersOnDesktop, APressOnACommandThatFirstBringsUpALimitStillRunsIt)
{
    Hands hands;
    OnDesktop([&] {
        ReadOfTheLimit(hands);
        hands.Type("Complete or Part of the Player Name?", "nobody");
        hands.Read("Player not found!");
        QPushButton* search = Offers().cmdSearch;
        PressBehindTheLimit(search);
        EXPECT_TRUE(hands.AreIdle()) << "the search was asked for";
        QTest::mouseRelease(search, Qt::LeftButton); // a button held longer than the box was up
        Settle();
    });
    EXPECT_TRUE(hands.AreIdle());
}

TEST_F(OffersOnDesktop, APressOnTheFilterThatFirstBringsUpALimitStillTicksIt)
{
    Offer(1);
    Hands hands;
    OnDesktop([&] {
        QCheckBox* filter = Offers().chkShowPlayerWithOffer;
        ReadOfTheLimit(hands);
        PressBehindTheLimit(filter);
        EXPECT_TRUE(filter->isChecked());
        EXPECT_EQ(Offers().lstPlayers->count(), 1);
        QTest::mouseRelease(filter, Qt::LeftButton);
        Settle();
        EXPECT_TRUE(filter->isChecked()) << "once";
        Click(filter);
        EXPECT_FALSE(filter->isChecked()) << "the next press is one of its own";
    });
    EXPECT_TRUE(hands.AreIdle());
}

TEST_F(OffersOnDesktop, ARefusedTextKeepsThePressFromTheFilterWhichStandsUp)
{
    Hands hands;
    OnDesktop([&] {
        hands.Read("No Valid Input!");
        TypeInto(Offers().txtOffer, "x");
        QTest::mousePress(Offers().chkShowPlayerWithOffer, Qt::LeftButton);
        Settle();
        EXPECT_FALSE(Offers().chkShowPlayerWithOffer->isDown());
        EXPECT_FALSE(Offers().chkShowPlayerWithOffer->isChecked());
        EXPECT_EQ(Offers().focusWidget(), Offers().txtOffer);
        Offers().txtOffer->setText("0");
    });
    EXPECT_TRUE(hands.AreIdle());
}

TEST_F(OffersOnDesktop, APressAfterABoxThatTheKeysBroughtUpIsAPressLikeAnyOther)
{
    Hands hands;
    OnDesktop([&] {
        hands.Read("Maximum Contract Duration is 9 years.");
        Enter(Offers().txtDuration, "10");
        QTest::mousePress(Offers().chkShowPlayerWithOffer, Qt::LeftButton);
        EXPECT_TRUE(Offers().chkShowPlayerWithOffer->isDown());
        QTest::mouseRelease(Offers().chkShowPlayerWithOffer, Qt::LeftButton);
        EXPECT_TRUE(Offers().chkShowPlayerWithOffer->isChecked());
    });
    EXPECT_TRUE(hands.AreIdle());
}

// The desktop waits for the second press of a double click longer than any test takes.
class SecondPress : public OffersOnDesktop {
protected:
    SecondPress() { QApplication::setDoubleClickInterval(600000); }

    Box Warning() const { return {48, NotAllowed.toStdString()}; }
    std::vector<Box> BoxesNow() { return Machine.TakeBoxes(); }
};

TEST_F(SecondPress, OpensTheRecordOfAPersonWhoMayNotBeMadeAnOfferBehindTheBox)
{
    Hands hands;
    OnDesktop([&] {
        hands.Next("msgBox", [this](QDialog& box) {
            EXPECT_EQ(box.findChild<QLabel*>("qt_msgbox_label")->text(), NotAllowed);
            const Screen* viewer = TheStage.Find("EditPlayer");
            EXPECT_TRUE(viewer != nullptr && viewer->isVisible());
            EXPECT_EQ(box.parentWidget(), viewer);
            QTest::mouseClick(box.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
        });
        DoubleClickEntry(1);
    });
    EXPECT_TRUE(hands.AreIdle());
    EXPECT_EQ(SelectedPlayer, 2);
    EXPECT_FALSE(SelectedIsGoalie);
    EXPECT_FALSE(Offers().isVisible());
}

TEST_F(SecondPress, TellsOnceOfHim)
{
    DoubleClickEntry(1);
    EXPECT_THAT(BoxesNow(), ElementsAre(Warning()));
    TheStage.Find("EditPlayer")->close();
    Settle();
    EXPECT_TRUE(Offers().isVisible());
    EXPECT_THAT(BoxesNow(), IsEmpty());
}

TEST_F(SecondPress, IsWaitedForWithTheBoxAlone)
{
    ClickEntry(1);
    EXPECT_FALSE(BoxesAreOpen());
    EXPECT_EQ(Boxes(), (std::vector<std::string>{"0", "0", "0", ""}));
    EXPECT_THAT(BoxesNow(), IsEmpty());
}

TEST_F(SecondPress, IsNotWaitedForByTheKeys)
{
    Press(Offers().lstPlayers, Qt::Key_Down);
    EXPECT_THAT(BoxesNow(), ElementsAre(Warning()));
}

TEST_F(SecondPress, IsNoLongerWaitedForOnceAnythingElseIsAskedFor)
{
    const auto askFor = [this](const std::function<void()>& other) {
        ClickEntry(0);
        BoxesNow();
        ClickEntry(1);
        other();
        const std::vector<Box> boxes = BoxesNow();
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes.front(), Warning());
        EXPECT_EQ(std::count(boxes.begin(), boxes.end(), Warning()), 1);
    };
    askFor([this] { ClickEntry(0); });
    askFor([this] { Click(Offers().cmdSearch); });
    EXPECT_EQ(Machine.Questions().size(), 1U);
    askFor([this] { Click(Offers().cmdSaveToFile); });
    askFor([this] { Click(Offers().chkShowPlayerWithOffer); });
    Click(Offers().chkShowPlayerWithOffer);
    askFor([this] { Click(Offers().cmdExit); });
}

TEST_F(SecondPress, OpensTheRecordOfTheGoalieInTheLastSlotBehindTheBox)
{
    FreeGoalie(1000);
    Offers().ShowPlayer();
    DoubleClickEntry(2);
    EXPECT_THAT(BoxesNow(), ElementsAre(Box{16, "Integrity Check Failed!"}));
    ASSERT_NE(TheStage.Find("EditPlayer"), nullptr);
    EXPECT_EQ(SelectedPlayer, 1000);
    EXPECT_TRUE(SelectedIsGoalie);
}

} // namespace
} // namespace dravik
