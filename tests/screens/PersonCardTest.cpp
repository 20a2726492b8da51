#include "OnDraftScreen.h"
#include "OnLineScreen.h"
#include "OnOfferScreen.h"
#include "OnRosterScreen.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/PersonCards.h"
#include "screens/panels/Shades.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

// The card of a person: where it comes up, what it says, and what takes it away.
namespace dravik {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

PersonCard* CardOn(const Screen& screen) { return screen.findChild<PersonCards*>()->Shown(); }

// What a card says, or nothing where none is up.
std::string Said(const Screen& screen)
{
    PersonCard* card = CardOn(screen);
    if (card == nullptr)
        return {};
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(card);
    EXPECT_EQ(reader->role(), QAccessible::ToolTip);
    return reader->text(QAccessible::Name).toStdString();
}

// Rests the mouse on a place of a widget.
void PointAt(QWidget* widget, const QPoint& point)
{
    QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
    QApplication::sendEvent(widget, &help);
    QApplication::processEvents();
}
void PointAtEntry(EntryList* list, int row)
{
    list->scrollToItem(list->item(row));
    PointAt(list->viewport(), list->visualItemRect(list->item(row)).center());
}

class LineCards : public OnLineScreen {
protected:
    ~LineCards() override { QToolTip::hideText(); }

    void AskForCard(QWidget* focus) { Press(focus, Qt::Key_I, Qt::ControlModifier); }
    [[nodiscard]] int Center() const { return Pro.Skaters[0]; }
};

TEST_F(LineCards, CtrlIShowsTheCardOfTheCurrentEntry)
{
    Player& player = Players[Center()];
    player.Name = "Ward Tilton";
    player.Age = 27;
    player.Salary = 3650000;
    player.Contract = 4;
    player.Condition = 97;
    player.Injury = "Flu";
    player.Rookie = true;
    frmLine& line = Line();
    Pick(line, Center(), position::Center);
    EXPECT_EQ(CardOn(line), nullptr);
    AskForCard(line.lstPlayer);
    const std::string said = Said(line);
    const std::string money = Machine.CurrencyNoDecimals(3650000);
    EXPECT_THAT(said,
                HasSubstr("Ward Tilton, C " +
                          line.lstPlayer->currentItem()->data(entry::AsideRole).toStringList().back().toStdString() +
                          ", 27 years old, " + money + " x 4, Condition: 97, Injury: Flu, Today: L-1C, "));
    EXPECT_THAT(said, AllOf(HasSubstr("Rookie"), HasSubstr("CK ")));
    EXPECT_EQ(line.focusWidget(), line.lstPlayer);
}

TEST_F(LineCards, EscapeTakesItAwayAndDoesNothingElse)
{
    frmLine& line = Line();
    Pick(line, Center(), position::Center);
    AskForCard(line.lstPlayer);
    ASSERT_NE(CardOn(line), nullptr);
    int escapes = 0;
    QShortcut other(QKeySequence(Qt::Key_Escape), &line);
    QObject::connect(&other, &QShortcut::activated, [&escapes] { ++escapes; });
    Press(line.lstPlayer, Qt::Key_Escape);
    EXPECT_EQ(CardOn(line), nullptr);
    EXPECT_EQ(escapes, 0);
    Press(line.lstPlayer, Qt::Key_Escape);
    EXPECT_EQ(escapes, 1);
    EXPECT_TRUE(line.isVisible());
}

TEST_F(LineCards, AnyOtherKeyTakesItAwayAndDoesWhatItDoes)
{
    frmLine& line = Line();
    Pick(line, Center(), position::Center);
    const int row = line.lstPlayer->currentRow();
    AskForCard(line.lstPlayer);
    QTest::keyPress(line.lstPlayer, Qt::Key_Control); // on the way to Ctrl+I, say
    EXPECT_NE(CardOn(line), nullptr);
    QTest::keyRelease(line.lstPlayer, Qt::Key_Control);
    Press(line.lstPlayer, Qt::Key_Down);
    EXPECT_EQ(CardOn(line), nullptr);
    EXPECT_EQ(line.lstPlayer->currentRow(), row + 1);
    AskForCard(line.lstPlayer);
    EXPECT_NE(CardOn(line), nullptr);
    AskForCard(line.lstPlayer);
    EXPECT_EQ(CardOn(line), nullptr);
}

TEST_F(LineCards, APressTakesItAwayAndPresses)
{
    frmLine& line = Line();
    Pick(line, Center(), position::Center);
    AskForCard(line.lstPlayer);
    const int other = Pro.Skaters[1];
    Pick(line, other, static_cast<int>(Players[other].Position));
    EXPECT_EQ(CardOn(line), nullptr);
    EXPECT_EQ(SelectedPlayer, other);
}

TEST_F(LineCards, CtrlIShowsTheCardOfWhoStandsInTheSlotAtHandWithTheFindings)
{
    frmLine& line = Line();
    Own().Captain = Center();
    Pick(line, Center(), position::Center);
    SlotLabel* defense = SlotOn(line, LineField::NormalDefense, 1, 2);
    ClickOn(line, defense);
    ASSERT_TRUE(defense->hasFocus());
    const Lines before = ProDay();
    AskForCard(defense);
    const std::string name = Players[Center()].Name.Trimmed();
    EXPECT_THAT(Said(line), AllOf(HasSubstr(name + ", C "), HasSubstr("Used twice"), HasSubstr("Out of position"),
                                  HasSubstr("Captain"), HasSubstr(name + " is used twice in Normal line #1")));
    EXPECT_EQ(std::memcmp(&before, &ProDay(), sizeof before), 0);
}

TEST_F(LineCards, AGoaliesCardNamesHisSlots)
{
    frmLine& line = Line();
    Pick(line, Pro.GoalieIds[0], position::Goalie);
    AskForCard(line.lstPlayer);
    EXPECT_THAT(Said(line), HasSubstr("Today: Starting Goalie (1)"));
}

TEST_F(LineCards, ACardSaysWhoIsNotUsed)
{
    ProDay() = {};
    frmLine& line = Line();
    Pick(line, Center(), position::Center);
    AskForCard(line.lstPlayer);
    EXPECT_THAT(Said(line), HasSubstr("Today: not used"));
}

TEST_F(LineCards, LongLinesGoOnBelowAndTheWholeNameIsShown)
{
    Players[Center()].Name = std::string(40, 'W');
    for (const LineSlot& slot : SkaterSlots)
        At(ProDay(), slot) = Center();
    frmLine& line = Line();
    Pick(line, Center(), position::Center);
    AskForCard(line.lstPlayer);
    PersonCard* card = CardOn(line);
    ASSERT_NE(card, nullptr);
    EXPECT_TRUE(line.rect().contains(card->geometry()));
    for (const QLabel* label : card->findChildren<QLabel*>())
        if (label->isVisible()) {
            EXPECT_TRUE(card->rect().contains(label->geometry())) << label->objectName().toStdString();
            if (!label->wordWrap()) {
                EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()))
                    << label->objectName().toStdString();
            }
        }
    const auto* facts = card->findChild<QLabel*>("lblCardFacts");
    EXPECT_GE(facts->height(), facts->heightForWidth(facts->width()));
    EXPECT_THAT(Said(line), HasSubstr("PS-5 (67)"));
}

TEST_F(LineCards, NobodyHasNone)
{
    LeagueData.FarmRosterRequired = false;
    ProDay().NormalForward(1, 1) = 0;
    frmLine& line = Line();
    SlotLabel* empty = SlotOn(line, LineField::NormalForward, 1, 1);
    empty->setFocus();
    AskForCard(empty);
    EXPECT_EQ(CardOn(line), nullptr);
    line.vscDay->setFocus();
    AskForCard(line.vscDay);
    EXPECT_EQ(CardOn(line), nullptr);
}

TEST_F(LineCards, ThePlaceholderOfTheFarmHasNone)
{
    LeagueData.FarmRosterRequired = false;
    frmFarmLine& farm = FarmLine();
    PointAtEntry(farm.lstPlayer, farm.lstPlayer->count() - 1);
    EXPECT_EQ(CardOn(farm), nullptr);
    PointAtEntry(farm.lstPlayer, 0);
    EXPECT_NE(CardOn(farm), nullptr);
}

TEST_F(LineCards, TheMouseThatRestsShowsItBesideTheTooltipAndLeavingTakesBothAway)
{
    frmLine& line = Line();
    PointAtEntry(line.lstPlayer, 2);
    PersonCard* card = CardOn(line);
    ASSERT_NE(card, nullptr);
    EXPECT_FALSE(QToolTip::text().isEmpty());
    const QRect entry = line.lstPlayer->visualItemRect(line.lstPlayer->item(2));
    const QRect onScreen(line.lstPlayer->viewport()->mapTo(&line, entry.topLeft()), entry.size());
    EXPECT_FALSE(card->geometry().intersects(onScreen));
    for (const QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && top->inherits("QTipLabel")) {
            const QRect tip = top->geometry().translated(-line.mapToGlobal(QPoint()));
            EXPECT_FALSE(card->geometry().intersects(tip));
        }
    EXPECT_TRUE(line.rect().contains(card->geometry()));
    QTest::mouseMove(line.lstPlayer->viewport(), entry.center() + QPoint(3, 0));
    QApplication::processEvents();
    EXPECT_EQ(CardOn(line), card);
    QTest::mouseMove(line.lstPlayer->viewport(), entry.center() + QPoint(3, entry.height()));
    QApplication::processEvents();
    EXPECT_EQ(CardOn(line), nullptr);
}

TEST_F(LineCards, TheTooltipOfASlotKeepsItsWords)
{
    frmLine& line = Line();
    SlotLabel* center = SlotOn(line, LineField::NormalForward, 1, 1);
    PointAt(center, center->rect().center());
    EXPECT_THAT(center->toolTip().toStdString(), HasSubstr("Position:"));
    EXPECT_THAT(QToolTip::text(), center->toolTip());
    EXPECT_THAT(Said(line), HasSubstr(Players[static_cast<int>(ProDay().NormalForward(1, 1))].Name.Trimmed()));
}

TEST_F(LineCards, ItHidesWhatTheLeagueHides)
{
    LeagueData.ShowOverall = false;
    LeagueData.ShowAllRatings = false;
    PlayerStatCount = 7;
    Players[Center()].Stats[1] = 37; // a rating of no other
    frmLine& line = Line();
    Pick(line, Center(), position::Center);
    AskForCard(line.lstPlayer);
    EXPECT_THAT(Said(line), HasSubstr(Players[Center()].Name.Trimmed() + ", C, "));
    EXPECT_THAT(Said(line), Not(HasSubstr(" 37")));
    int shown = 0;
    for (const QLabel* label : CardOn(line)->findChildren<QLabel*>())
        shown += label->objectName().startsWith("lblCardLabel") && !label->isHidden() ? 1 : 0;
    EXPECT_EQ(shown, 7);
}

TEST_F(LineCards, ASkaterWithoutAPositionShowsNoBox)
{
    frmLine& line = Line();
    Players[Center()].Position = 0;
    PointAt(SlotOn(line, LineField::NormalForward, 1, 1), {5, 5});
    EXPECT_NE(CardOn(line), nullptr); // the strict machine would tell of a box
}

class RosterCards : public OnRosterScreen {};

TEST_F(RosterCards, EntriesHaveSignsAndCardsAndFollowWhatIsDone)
{
    PutSeven();
    LeagueData.WaiverAllowed = true;
    LeagueData.WaiverExemptAge = 24;
    LeagueData.WaiverMinGames = 40;
    Players[1].Age = 25;
    Players[1].ProGames = 40;
    Players[2].Condition = 87;
    Players[2].Injury = "Broken Leg";
    frmRoster& roster = Roster();
    const auto description = [](const EntryList* list, int row) {
        return list->item(row)->data(Qt::AccessibleDescriptionRole).toString().toStdString();
    };
    PickList* scratches = roster.lstPlayer[status::Scratch];
    EXPECT_EQ(description(scratches, 0),
              "Needs waivers to go down, condition 100%, 25 years old, salary $1,000,000, contract for 2 years");
    EXPECT_EQ(description(scratches, 1),
              "Injured, condition 87, condition 87%, 25 years old, salary $1,000,000, contract for 2 years");
    EXPECT_EQ(description(scratches, 2), "condition 100%, 25 years old, salary $1,000,000, contract for 2 years");
    ClickEntry(status::Scratch, 1);
    Press(scratches, Qt::Key_I, Qt::ControlModifier);
    EXPECT_THAT(Said(roster), AllOf(HasSubstr("Skater 2, LW "), HasSubstr("Condition: 87, Injury: Broken Leg"),
                                    HasSubstr("Injured, condition 87"), Not(HasSubstr("Today"))));
    ClickEntry(status::Scratch, 0);
    EXPECT_EQ(CardOn(roster), nullptr);
    Machine.Answer(button::Yes);
    Click(roster.cmdToFarm);
    EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    PickList* farm = roster.lstPlayer[status::Farm];
    EXPECT_EQ(description(farm, farm->count() - 1),
              "On waivers, condition 100%, 25 years old, salary $1,000,000, contract for 2 years");
}

class OfferCards : public OnOfferScreen {};

TEST_F(OfferCards, PeopleOfTheMarketShowFactsAlone)
{
    LeagueData.OfferRuleFlag = true;
    Player& own = PutSkater(7, 5, position::Center, status::Pro);
    own.Contract = 0;
    own.NoTrade = true;
    own.Rookie = true;
    own.Condition = 80;
    Own().Captain = 7;
    frmFreeAgentClient& offers = Open();
    const QListWidgetItem* entry = offers.lstPlayers->item(0);
    EXPECT_EQ(entry->data(Qt::AccessibleDescriptionRole).toString(), "Injured, condition 80, Rookie");
    Press(offers.lstPlayers, Qt::Key_I, Qt::ControlModifier);
    EXPECT_THAT(Said(offers), AllOf(HasSubstr("Skater 7, C "), HasSubstr("Rookie"), Not(HasSubstr("Captain")),
                                    Not(HasSubstr("No trade"))));
}

class DraftCards : public OnDraftScreen {};

TEST_F(DraftCards, PeopleOfTheDraftShowFactsAndProspectsNothing)
{
    LeagueData.EntryDraft = true;
    Players[7].Rookie = true;
    Players[7].Suspension = 3;
    Players[7].NoTrade = true;
    Players[7].Contract = 0; // as with most of those without a team
    Goalies[5].InUse = true; // in the slot that a prospect's number less the goalies' would mean, were it one
    frmDraft& draft = Draft();
    const auto description = [&draft](int row) {
        return draft.lstPlayers->item(row)->data(Qt::AccessibleDescriptionRole).toString().toStdString();
    };
    EXPECT_EQ(description(0), "Suspended for 3 games, Rookie");
    EXPECT_EQ(description(1), "");
    const int last = draft.lstPlayers->count() - 1;
    ASSERT_EQ(draft.lstPlayers->item(last)->text(), "Marek Zelinka");
    EXPECT_EQ(description(last), "");
    PointAtEntry(draft.lstPlayers, last);
    EXPECT_EQ(CardOn(draft), nullptr);
    PointAtEntry(draft.lstPlayers, 0);
    EXPECT_THAT(Said(draft), HasSubstr("Ward Tilton, LW "));
}

TEST_F(DraftCards, TheRankedHaveThemToo)
{
    Players[7].Rookie = true;
    frmDraft& draft = Draft();
    ClickEntry(draft.lstPlayers, 0);
    Click(draft.cmdChoose);
    ClickEntry(draft.lstDraftList, 0);
    EXPECT_EQ(draft.lstDraftList->item(0)->data(Qt::AccessibleDescriptionRole).toString(), "Rookie");
    Press(draft.lstDraftList, Qt::Key_I, Qt::ControlModifier);
    EXPECT_THAT(Said(draft), HasSubstr("Ward Tilton, LW "));
}

TEST(CardPlace, IsInTheWindowAndCoversNeitherAnchorNorTooltipWhereThereIsRoom)
{
    const QRect window(0, 0, 1280, 800);
    const QSize size(280, 300);
    const QRect tooltips[] = {{}, {300, 130, 160, 100}, {40, 130, 160, 100}, {600, 400, 160, 100}};
    for (const QRect& tooltip : tooltips)
        for (int x = 0; x <= 1100; x += 50)
            for (int y = 0; y <= 780; y += 20) {
                const QRect anchor(x, y, 180, 20);
                const QRect place = PersonCard::PlaceFor(size, anchor, tooltip, window);
                EXPECT_TRUE(window.contains(place));
                EXPECT_EQ(place.size(), size);
                EXPECT_FALSE(place.intersects(anchor)) << x << ' ' << y;
                EXPECT_FALSE(place.intersects(tooltip)) << x << ' ' << y;
            }
    EXPECT_EQ(PersonCard::PlaceFor(size, {14, 200, 280, 20}, {}, window).topLeft(), QPoint(301, 200));
}

TEST(CardPlace, SidesAreTriedOneAfterTheOther)
{
    constexpr QSize card(200, 100);
    const QRect window(0, 0, 600, 400);
    const QRect low(0, 0, 600, 130); // nothing goes above or below
    constexpr int edge = Gap / 2;    // of the window, which stays free
    const auto place = [&](const QRect& anchor, const QRect& taken = {}) {
        return PersonCard::PlaceFor(card, anchor, taken, window);
    };
    const auto placeInLow = [&](const QRect& anchor, const QRect& taken = {}) {
        return PersonCard::PlaceFor(card, anchor, taken, low);
    };
    EXPECT_EQ(place({100, 100, 50, 20}), QRect(QPoint(149 + Gap, 100), card)) << "to its right";
    EXPECT_EQ(place({100, 390, 50, 10}), QRect(QPoint(149 + Gap, 400 - edge - 100), card))
        << "no lower than there is room";
    EXPECT_EQ(place({100, -5, 50, 10}), QRect(QPoint(149 + Gap, edge), card)) << "nor higher";
    EXPECT_EQ(place({500, 100, 50, 20}), QRect(QPoint(501 - Gap - 200, 100), card)) << "to its left";
    EXPECT_EQ(place({300, 100, 290, 20}, {100, 100, 150, 20}), QRect(QPoint(300, 119 + Gap), card)) << "below";
    EXPECT_EQ(place({450, 100, 140, 20}, {100, 100, 340, 20}), QRect(QPoint(600 - edge - 200, 119 + Gap), card))
        << "below, no farther right than there is room";
    EXPECT_EQ(place({-10, 350, 620, 20}), QRect(QPoint(edge, 351 - Gap - 100), card)) << "above";
    EXPECT_EQ(placeInLow({100, 10, 50, 20}, {160, 10, 60, 20}), QRect(QPoint(219 + Gap, 10), card))
        << "to the right of both";
    EXPECT_EQ(placeInLow({400, 10, 50, 20}, {340, 10, 40, 20}), QRect(QPoint(341 - Gap - 200, 10), card))
        << "to the left of both";
    EXPECT_EQ(placeInLow({100, 10, 450, 20}, {}), QRect(QPoint(600 - edge - 200, 10), card)) << "over the anchor";
}

TEST(CardPlace, IsPushedIntoAWindowThatIsTooSmall)
{
    const QRect window(0, 0, 300, 200);
    const QRect place = PersonCard::PlaceFor({280, 190}, {10, 10, 200, 20}, {}, window);
    EXPECT_TRUE(window.contains(place));
}

} // namespace
} // namespace dravik
