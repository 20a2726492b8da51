#include "screens/team/frmTicket.h"
#include "OnTeamScreen.h"
#include "session/Session.h"
#include "support/FailingBoxes.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmTicketTest : public OnTeamScreen {
protected:
    frmTicketTest()
    {
        Own().ArenaName = "  Harbour Gardens ";
        for (int level = 1; level <= 5; ++level) {
            Own().ArenaCapacity[level] = 1000 * level;
            Own().TicketPrice[level] = 10 * level;
        }
    }

    // The ticket screen, opened from the team screen.
    frmTicket& Tickets()
    {
        if (TheStage.Find("Ticket") == nullptr) {
            Click(Office().cmdTicketArena);
            EXPECT_NE(TheStage.Find("Ticket"), nullptr);
        }
        return *static_cast<frmTicket*>(TheStage.Find("Ticket"));
    }

    std::vector<long long> Prices() { return {Own().TicketPrice.begin(), Own().TicketPrice.end()}; }

    static constexpr auto WrongNumber = "Only numbers are allowed in that textbox!";
};

TEST_F(frmTicketTest, ShowsTheArenaAndTheFiveLevels)
{
    frmTicket& screen = Tickets();
    EXPECT_TRUE(screen.isVisible());
    EXPECT_EQ(screen.windowTitle(), "Dravik Hockey Simulator Client - Harbour City Gulls - Ticket & Arena");
    EXPECT_EQ(Of(screen.txtArena), "Harbour Gardens");
    for (int level = 1; level <= 5; ++level) {
        EXPECT_EQ(Of(screen.txtArenaCapacity[level]), std::to_string(1000 * level));
        EXPECT_EQ(Of(screen.txtTicket[level]), std::to_string(10 * level));
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTicketTest, TheTitleDoesNotFollowTheOpenFile)
{
    Office();
    WindowTitle = "Dravik Hockey Simulator Client - Winter";
    EXPECT_EQ(Tickets().windowTitle(), "Dravik Hockey Simulator Client - Harbour City Gulls - Ticket & Arena");
}

TEST_F(frmTicketTest, TheTotalIsThePlainSumWithoutGrouping) { EXPECT_EQ(Of(Tickets().lblArenaCapacityTotal), "15000"); }

TEST_F(frmTicketTest, TheCaptionsStandAsTheyAreWritten)
{
    std::vector<std::string> captions;
    for (const QLabel* label : Tickets().findChildren<QLabel*>())
        captions.push_back(Of(label));
    for (const char* caption : {"Arena Name:", "Level Capacity", "Level Ticket Price",
                                "Level 1 :", "Level 2 :", "Level 3 :", "Level 4 :", "Luxury Box :", "Total Capacity :"})
        EXPECT_THAT(captions, ::testing::Contains(caption));
    EXPECT_EQ(Tickets().cmdExit->text().remove('&'), "Exit");
}

TEST_F(frmTicketTest, TheFirstPriceIsSelectedAndReplacedByWhatIsTyped)
{
    ASSERT_TRUE(Tickets().txtTicket[1]->hasFocus());
    EXPECT_EQ(Tickets().txtTicket[1]->selectedText(), "10");
    QTest::keyClicks(Tickets().txtTicket[1], "115");
    Press(Tickets().txtTicket[1], Qt::Key_Tab);
    EXPECT_EQ(Own().TicketPrice[1], 115);
    EXPECT_EQ(Tickets().txtTicket[2]->selectedText(), "20");
    Click(Tickets().txtTicket[5]);
    EXPECT_EQ(Tickets().txtTicket[5]->selectedText(), "50");
}

TEST_F(frmTicketTest, ArenaAndCapacitiesAreClosedAlwaysAndPricesOpen)
{
    frmTicket& screen = Tickets();
    EXPECT_FALSE(screen.txtArena->isEnabled());
    for (int level = 1; level <= 5; ++level) {
        EXPECT_FALSE(screen.txtArenaCapacity[level]->isEnabled());
        EXPECT_TRUE(screen.txtTicket[level]->isEnabled());
    }
}

TEST_F(frmTicketTest, TheTicketRuleClosesThePricesAndTheScreenChangesNothing)
{
    LeagueData.TicketRuleFlag = true;
    Office();
    const ByteVector before = ImageOf(Teams);
    Modified = false;
    frmTicket& screen = Tickets();
    for (EditBox* box : screen.txtTicket)
        EXPECT_FALSE(box->isEnabled());
    for (int tabs = 0; tabs < 8; ++tabs)
        Press(QApplication::focusWidget(), Qt::Key_Tab);
    Click(screen.cmdExit);
    EXPECT_TRUE(ImageOf(Teams) == before);
    EXPECT_FALSE(Modified);
}

TEST_F(frmTicketTest, ARuleWordThatIsNotTrueLeavesThePricesOpen)
{
    LeagueData.TicketRuleFlag.SetWord(1);
    EXPECT_TRUE(Tickets().txtTicket[1]->isEnabled());
}

TEST_F(frmTicketTest, APriceGoesIntoTheRecord)
{
    Enter(Tickets().txtTicket[2], "45");
    EXPECT_THAT(Prices(), ElementsAre(10, 45, 30, 40, 50));
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Of(Tickets().txtTicket[2]), "45");
    EXPECT_TRUE(Tickets().txtTicket[3]->hasFocus());
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTicketTest, ZeroAndLessBecomeOne)
{
    for (const char* text : {"0", "-5", "-32768", "00"}) {
        Own().TicketPrice[1] = 10;
        Enter(Tickets().txtTicket[1], text);
        EXPECT_EQ(Own().TicketPrice[1], 1) << text;
        EXPECT_EQ(Of(Tickets().txtTicket[1]), "1") << text;
        EXPECT_TRUE(Modified) << text;
    }
}

TEST_F(frmTicketTest, AThousandAndMoreBecome999)
{
    for (const char* text : {"1000", "1001", "32767"}) {
        Own().TicketPrice[5] = 10;
        Enter(Tickets().txtTicket[5], text);
        EXPECT_EQ(Own().TicketPrice[5], 999) << text;
        EXPECT_EQ(Of(Tickets().txtTicket[5]), "999") << text;
    }
}

TEST_F(frmTicketTest, OneAnd999StayAsTheyAre)
{
    for (const char* text : {"999", "1"}) {
        Enter(Tickets().txtTicket[3], text);
        EXPECT_EQ(Own().TicketPrice[3], std::stoi(text));
        EXPECT_EQ(Of(Tickets().txtTicket[3]), text);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTicketTest, TheNumberAtTheHeadOfTheTextCountsAndTheTextStays)
{
    Enter(Tickets().txtTicket[1], "7-2");
    EXPECT_EQ(Own().TicketPrice[1], 7);
    EXPECT_EQ(Of(Tickets().txtTicket[1]), "7-2");
    Enter(Tickets().txtTicket[1], "8-");
    EXPECT_EQ(Own().TicketPrice[1], 8);
    Enter(Tickets().txtTicket[1], "--9");
    EXPECT_EQ(Own().TicketPrice[1], 1);
    EXPECT_EQ(Of(Tickets().txtTicket[1]), "1");
}

TEST_F(frmTicketTest, AnEmptyPriceIsNoValidInputAndTheFocusStays)
{
    Enter(Tickets().txtTicket[1], "");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_TRUE(Tickets().txtTicket[1]->hasFocus());
    EXPECT_EQ(Of(Tickets().txtTicket[1]), "");
    EXPECT_FALSE(ListEventGuard);
    EXPECT_FALSE(Modified);
    Enter(Tickets().txtTicket[1], "-");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_THAT(Prices(), ElementsAre(10, 20, 30, 40, 50));
}

TEST_F(frmTicketTest, APriceHoldsNumbersOnly)
{
    Enter(Tickets().txtTicket[1], "12.5");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, WrongNumber}));
    EXPECT_TRUE(Tickets().txtTicket[1]->hasFocus());
    EXPECT_EQ(Own().TicketPrice[1], 10);
}

TEST_F(frmTicketTest, APriceThatDoesNotFitSixteenBitsStoresNothingAndTellsNobody)
{
    for (const char* text : {"32768", "-32769", "99999999999999999999"}) {
        Enter(Tickets().txtTicket[4], text);
        EXPECT_EQ(Own().TicketPrice[4], 40) << text;
        EXPECT_FALSE(Modified) << text;
        EXPECT_EQ(Of(Tickets().txtTicket[4]), "40") << "the price that stands";
        EXPECT_FALSE(Tickets().txtTicket[4]->hasFocus());
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    Enter(Tickets().txtTicket[4], "41");
    EXPECT_EQ(Own().TicketPrice[4], 41) << "the program goes on";
}

TEST_F(frmTicketTest, GuardedBoxesDoNothing)
{
    frmTicket& screen = Tickets();
    const ByteVector before = ImageOf(Own());
    for (EditBox* box : {screen.txtTicket[1], screen.txtArenaCapacity[1], screen.txtArena}) {
        const QString shown = box->text();
        TypeInto(box, "_");
        Modified = false;
        ListEventGuard = true;
        Press(box, Qt::Key_Tab);
        ListEventGuard = false;
        EXPECT_FALSE(box->hasFocus());
        EXPECT_FALSE(Modified);
        EXPECT_TRUE(ImageOf(Own()) == before);
        box->setText(shown);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

// A capacity box never has the focus while it is closed; these tests open it.
TEST_F(frmTicketTest, ACapacityGoesIntoTheRecordAndTheTotal)
{
    Enter(Tickets().txtArenaCapacity[1], "2500");
    EXPECT_EQ(Own().ArenaCapacity[1], 2500);
    EXPECT_EQ(Of(Tickets().lblArenaCapacityTotal), "16500");
    EXPECT_TRUE(Modified);
}

TEST_F(frmTicketTest, ACapacityIsAtMost99999)
{
    const std::pair<const char*, const char*> texts[] = {
        {"99999", "99999"}, {"100000", "99999"}, {"99999999999999999999", "99999"}, {"0", "0"}, {"-5", "-5"}};
    for (const auto& [text, shown] : texts) {
        Enter(Tickets().txtArenaCapacity[2], text);
        EXPECT_EQ(Own().ArenaCapacity[2], std::stoi(shown)) << text;
        EXPECT_EQ(Of(Tickets().txtArenaCapacity[2]), shown) << text;
    }
    EXPECT_EQ(Of(Tickets().lblArenaCapacityTotal), "12995");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTicketTest, ARefusedCapacityKeepsTheFocusAndTheTotalIsShownAnew)
{
    frmTicket& screen = Tickets();
    Own().ArenaCapacity[5] = 6000;
    Enter(screen.txtArenaCapacity[1], "");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_TRUE(screen.txtArenaCapacity[1]->hasFocus());
    EXPECT_EQ(Own().ArenaCapacity[1], 1000);
    EXPECT_EQ(Of(screen.lblArenaCapacityTotal), "16000");
    EXPECT_FALSE(Modified);
}

TEST_F(frmTicketTest, ACapacityThatDoesNotFitIsAFailure)
{
    Enter(Tickets().txtArenaCapacity[3], "-2147483649");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in txtArenaCapacity_LostFocus!"}));
    EXPECT_EQ(Own().ArenaCapacity[3], 3000);
}

TEST_F(frmTicketTest, TheArenaTakesANameOfFortyCharacters)
{
    Enter(Tickets().txtArena, "Harbour-Dome 2");
    EXPECT_EQ(Own().ArenaName.Raw(), "Harbour-Dome 2" + std::string(26, ' '));
    EXPECT_TRUE(Modified);
    Enter(Tickets().txtArena, QString(50, 'x'));
    EXPECT_EQ(Own().ArenaName.Raw(), std::string(40, 'x'));
    EXPECT_EQ(Of(Tickets().txtArena), std::string(40, 'x'));
    Enter(Tickets().txtArena, "");
    EXPECT_EQ(Own().ArenaName.Trimmed(), "");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmTicketTest, ARefusedArenaNameKeepsTheFocus)
{
    Enter(Tickets().txtArena, "Dome_");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only numbers, letters and spaces are allowed in that textbox!"}));
    EXPECT_TRUE(Tickets().txtArena->hasFocus());
    EXPECT_EQ(Own().ArenaName.Trimmed(), "Harbour Gardens");
    EXPECT_FALSE(Modified);
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(frmTicketTest, ExitShowsTheTeamScreenAgain)
{
    Click(Tickets().cmdExit);
    EXPECT_EQ(TheStage.Find("Ticket"), nullptr);
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(frmTicketTest, ExitByKeyboardDoesNotSkipTheBoxThatHasTheFocus)
{
    TypeInto(Tickets().txtTicket[1], "77");
    QEventLoop untilClosed; // the toolkit shows the command pressed for a moment
    QObject::connect(&Tickets(), &QObject::destroyed, &untilClosed, &QEventLoop::quit);
    QTest::keyClick(&Tickets(), Qt::Key_X, Qt::AltModifier); // the mnemonic of Exit
    untilClosed.exec();
    EXPECT_EQ(TheStage.Find("Ticket"), nullptr);
    EXPECT_EQ(Own().TicketPrice[1], 77);
}

TEST_F(frmTicketTest, ExitWaitsForAPriceThatIsRefused)
{
    TypeInto(Tickets().txtTicket[1], "");
    Click(Tickets().cmdExit);
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_NE(TheStage.Find("Ticket"), nullptr);
    EXPECT_TRUE(Tickets().txtTicket[1]->hasFocus());
}

TEST_F(frmTicketTest, ClosingTheWindowTakesThePriceThatIsBeingTyped)
{
    TypeInto(Tickets().txtTicket[1], "78");
    Tickets().close();
    Settle();
    EXPECT_EQ(Own().TicketPrice[1], 78);
    EXPECT_TRUE(TeamScreen()->isVisible());
}

TEST_F(frmTicketTest, ATeamOutOfRangeIsToldAndClosesTheScreen)
{
    for (const int team : {0, 101}) {
        frmTeam& office = Office();
        CurrentTeam = team;
        TheStage.Open("Ticket", office);
        Settle();
        EXPECT_EQ(TheStage.Find("Ticket"), nullptr) << team;
        // The team screen that comes back loads anew, with the same end, and the main screen stays.
        const Box told{16, "Integrity Check Failed!"};
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(told, told)) << team;
        EXPECT_EQ(TeamScreen(), nullptr) << team;
        EXPECT_TRUE(Main().isVisible()) << team;
    }
}

TEST_F(frmTicketTest, AFailureOfOpeningIsNamedAfterTheScreen)
{
    frmTeam& office = Office();
    FailingBoxes machine(1);
    UseMachine(machine);
    CurrentTeam = 0;
    TheStage.Open("Ticket", office);
    Settle();
    UseMachine(Machine);
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in FormLoad FrmTicket!"}));
}

TEST_F(frmTicketTest, StandsInTheMiddleOfTheScreen) { EXPECT_LE(OffTheMiddle(Tickets()), 1); }

TEST_F(frmTicketTest, PricesBeyondTheLimitsAreShownAsTheyStand)
{
    Own().TicketPrice[1] = -7;
    Own().TicketPrice[2] = 32767;
    Own().ArenaCapacity[1] = 2147483647;
    Own().ArenaCapacity[2] = 2147483647;
    EXPECT_EQ(Of(Tickets().txtTicket[1]), "-7");
    EXPECT_EQ(Of(Tickets().txtTicket[2]), "32767");
    EXPECT_EQ(Of(Tickets().lblArenaCapacityTotal), "4294979294");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

} // namespace
} // namespace dravik
