#include "screens/Pins.h"
#include "OnEveryScreen.h"
#include "OnHistory.h"
#include "PaintedContrast.h"
#include "PersonMenuOf.h"
#include "screens/lines/frmLine.h"
#include "screens/market/frmDraft.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/GhostWords.h"
#include "screens/panels/PersonCards.h"
#include "screens/panels/Shades.h"
#include "screens/panels/WhyClosed.h"
#include "screens/PersonWords.h"
#include "screens/player/frmEditPlayer.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"
#include "screens/squad/frmSquad.h"
#include "session/PinnedPeople.h"

#include <QAccessible>
#include <QTextDocumentFragment>
#include <QToolTip>

// Who is pinned: by which key and command, where it is told, and whose ratings are held against his.
namespace dravik {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class PinsTest : public OnEveryScreen {
protected:
    PinsTest() { ShowRatings(true); }
    ~PinsTest() override { Machine.ForgetBoxes("what the screens in front tell is not asked here"); }

    static void ShowRatings(bool all)
    {
        LeagueData.ShowAllRatings = all;
        PlayerStatCount = RatingsShownBy(LeagueData).Skater;
        GoalieStatCount = RatingsShownBy(LeagueData).Goalie;
    }
    template <class T>
    T& Opened(const char* name)
    {
        MainWithLeague();
        CurrentTeam = OwnTeam;
        CallerScreen = "Main";
        TheStage.Open(name, Main());
        Settle();
        return *static_cast<T*>(TheStage.Find(name));
    }
    // Presses on the entry of somebody in a list.
    static void Pick(EntryList& list, int row)
    {
        list.scrollToItem(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        Settle();
    }
    static void PressPin(QWidget* focus) { Press(focus, Qt::Key_M, Qt::ControlModifier); }
    static bool HasPin(const EntryList& list, int row)
    {
        return list.item(row)->data(entry::SignsRole).value<PersonSigns>().Has(Sign::Pinned);
    }
    static PersonId WhoIn(const EntryList& list, int row) { return EntryPerson(*NumberOf(list.item(row))); }
    // The first row of a skater or of a goalie behind `from`.
    static int RowOf(const EntryList& list, bool goalie, int from = 0)
    {
        for (int row = from; row < list.count(); ++row)
            if (WhoIn(list, row).IsGoalie == goalie && WhoIn(list, row).Slot != 0)
                return row;
        ADD_FAILURE() << "nobody of the kind is listed";
        return 0;
    }
    // What stands beside the ratings of a panel, from the first row on, as far as it is seen.
    static QStringList Ghosts(const QWidget& panel)
    {
        QStringList figures;
        for (int row = 1; row <= 16; ++row)
            if (const auto* label = panel.findChild<QLabel*>(QString("lblGhost(%1)").arg(row)); label->isVisible())
                figures << label->text();
        return figures;
    }
    static QStringList GhostsOf(PersonId shown, PersonId pinned)
    {
        const std::vector<int> own = NumbersOf(StatRowsOf(shown));
        const std::vector<int> others = NumbersOf(StatRowsOf(pinned));
        QStringList figures;
        for (std::size_t row = 0; row < own.size(); ++row)
            figures << GhostFigure(own[row], others[row]);
        return figures;
    }
};

TEST_F(PinsTest, ADifferenceIsToldInSignsAndWords)
{
    EXPECT_EQ(GhostFigure(75, 71), "71 +4");
    EXPECT_EQ(GhostFigure(71, 75), QString("75 ") + QChar(0x2212) + "4");
    EXPECT_EQ(GhostFigure(70, 70), "70 =");
    EXPECT_EQ(GhostWords(75, 71), "75, pinned man 71, plus 4");
    EXPECT_EQ(GhostWords(71, 75), "71, pinned man 75, minus 4");
    EXPECT_EQ(GhostWords(70, 70), "70, pinned man 70, the same");
}

TEST_F(PinsTest, OnTheRosterTheKeyPinsWhoIsCurrentAndOthersAreHeldAgainstHim)
{
    auto& roster = Opened<frmRoster>("Roster");
    PickList& list = *roster.lstPlayer[status::Pro];
    const int first = RowOf(list, false);
    const int second = RowOf(list, false, first + 1);
    Pick(list, first);
    EXPECT_THAT(Ghosts(*roster.Stats), ::testing::IsEmpty());
    PressPin(&list);
    EXPECT_TRUE(IsPinned(WhoIn(list, first)));
    EXPECT_TRUE(HasPin(list, first));
    EXPECT_FALSE(HasPin(list, second));
    EXPECT_THAT(list.item(first)->data(Qt::AccessibleDescriptionRole).toString().toStdString(), HasSubstr("Pinned"));
    EXPECT_THAT(Ghosts(*roster.Stats), ::testing::IsEmpty()); // he is himself

    Pick(list, second);
    const QStringList held = GhostsOf(WhoIn(list, second), WhoIn(list, first));
    ASSERT_EQ(held.size(), 16);
    EXPECT_EQ(Ghosts(*roster.Stats), held);
    auto* pinned = roster.Stats->findChild<QLabel*>("lblPinned");
    EXPECT_TRUE(pinned->isVisible());
    EXPECT_EQ(pinned->text(), "Pinned: " + NameOf(WhoIn(list, first)));
    const std::vector<int> own = NumbersOf(StatRowsOf(WhoIn(list, second)));
    const std::vector<int> others = NumbersOf(StatRowsOf(WhoIn(list, first)));
    EXPECT_EQ(roster.Stats->lblStat[2]->accessibleName(), "FG " + GhostWords(own[1], others[1]));
    EXPECT_EQ(roster.Stats->lblStat[2]->text(), QString::number(own[1])); // the number itself stays what it was

    const int goalie = RowOf(list, true);
    Pick(list, goalie);
    EXPECT_THAT(Ghosts(*roster.Stats), ::testing::IsEmpty());
    EXPECT_FALSE(pinned->isVisible());
    Pick(list, first);
    PressPin(&list);
    EXPECT_FALSE(IsPinned(WhoIn(list, first)));
    EXPECT_FALSE(HasPin(list, first));
}

TEST_F(PinsTest, RatingsAreHeldAsTheLeagueShowsThem)
{
    ShowRatings(false);
    LeagueData.ShowOverall = false;
    auto& roster = Opened<frmRoster>("Roster");
    PickList& list = *roster.lstPlayer[status::Pro];
    const int first = RowOf(list, false);
    const int second = RowOf(list, false, first + 1);
    Pick(list, first);
    PressPin(&list);
    Pick(list, second);
    EXPECT_EQ(Ghosts(*roster.Stats).size(), 7);
    EXPECT_EQ(Ghosts(*roster.Stats), GhostsOf(WhoIn(list, second), WhoIn(list, first)));
}

TEST_F(PinsTest, TheCommandBesideTheNamePinsAndLetsGoByTheMouse)
{
    auto& roster = Opened<frmRoster>("Roster");
    PickList& list = *roster.lstPlayer[status::Pro];
    auto* command = roster.Stats->findChild<QToolButton*>("cmdPin");
    EXPECT_FALSE(command->isVisible());
    Pick(list, 0);
    ASSERT_TRUE(command->isVisible());
    EXPECT_EQ(command->text(), "Pin");
    Click(command);
    EXPECT_TRUE(IsPinned(WhoIn(list, 0)));
    EXPECT_EQ(command->text(), "Unpin");
    EXPECT_TRUE(list.hasFocus());
    Click(command);
    EXPECT_FALSE(IsPinned(WhoIn(list, 0)));
    // From elsewhere on the screen the key means whose ratings stand there.
    roster.cmdExit->setFocus();
    PressPin(roster.cmdExit);
    EXPECT_TRUE(IsPinned(WhoIn(list, 0)));
}

TEST_F(PinsTest, OnTheLinesAListASlotAndTheCardOfASlotKnowHim)
{
    auto& line = Opened<frmLine>("Line");
    const int first = RowOf(*line.lstPlayer, false);
    const int second = RowOf(*line.lstPlayer, false, first + 1);
    const PersonId who = WhoIn(*line.lstPlayer, first);
    Lines& day = Teams[OwnTeam].ProLines[1];
    At(day, SlotOf(LineField::NormalForward, 1, 1)) = who.Slot;
    At(day, SlotOf(LineField::NormalForward, 1, 2)) = WhoIn(*line.lstPlayer, second).Slot;
    line.ShowAnew();
    SlotLabel* slot = line.TabLine->Parts.LabelOf(LineField::NormalForward, 1, 1);
    SlotLabel* other = line.TabLine->Parts.LabelOf(LineField::NormalForward, 1, 2);
    slot->setFocus();
    PressPin(slot);
    EXPECT_TRUE(IsPinned(who));
    EXPECT_TRUE(slot->Signs().Has(Sign::Pinned));
    EXPECT_FALSE(other->Signs().Has(Sign::Pinned));
    EXPECT_THAT(slot->accessibleDescription().toStdString(), HasSubstr("Pinned"));
    EXPECT_TRUE(HasPin(*line.lstPlayer, first));

    other->setFocus();
    Press(other, Qt::Key_I, Qt::ControlModifier);
    PersonCard* card = line.findChild<PersonCards*>()->Shown();
    ASSERT_NE(card, nullptr);
    QStringList held = GhostsOf(WhoIn(*line.lstPlayer, second), who);
    held.removeLast(); // a card has the overall in its heading
    EXPECT_EQ(Ghosts(*card), held);
    EXPECT_THAT(card->InWords().toStdString(), HasSubstr(", pinned man "));
    slot->setFocus();
    PressPin(slot);
    EXPECT_FALSE(slot->Signs().Has(Sign::Pinned));
    EXPECT_FALSE(HasPin(*line.lstPlayer, first));
}

TEST_F(PinsTest, TheAveragesOfALineAreHeldAgainstAPinnedSkater)
{
    auto& line = Opened<frmLine>("Line");
    const int first = RowOf(*line.lstPlayer, false);
    Pick(*line.lstPlayer, first);
    PressPin(line.lstPlayer);
    Click(line.TabLine->Parts.Headings[0].Label);
    EXPECT_EQ(Ghosts(*line.frmStat).size(), 16);
    EXPECT_FALSE(line.frmStat->findChild<QToolButton*>("cmdPin")->isVisible()); // a line is nobody
}

TEST_F(PinsTest, TheKeyPinsAmongFreeAgentsForTheDraftAndInTheViewer)
{
    auto& offers = Opened<frmFreeAgentClient>("FreeAgent");
    Pick(*offers.lstPlayers, 0);
    PressPin(offers.lstPlayers);
    const PersonId agent = PersonOf(*NumberOf(offers.lstPlayers->item(0)));
    EXPECT_TRUE(IsPinned(agent));
    EXPECT_TRUE(HasPin(*offers.lstPlayers, 0));
    offers.close();
    Settle();

    auto& draft = Opened<frmDraft>("Draft");
    const PersonId pick = PersonOf(*NumberOf(draft.lstPlayers->item(1)));
    Pick(*draft.lstPlayers, 1);
    PressPin(draft.lstPlayers);
    EXPECT_TRUE(IsPinned(pick));
    EXPECT_TRUE(HasPin(*draft.lstPlayers, 1));
    draft.close();
    Settle();

    const std::vector<PersonId> skaters = OpenPins().Of(OpenLeague, false);
    ASSERT_FALSE(skaters.empty());
    int slot = 1;
    while (!Players[slot].InUse || IsPinned(PersonIn<Player>(slot)))
        ++slot;
    const PersonId shown = PersonIn<Player>(slot);
    SelectPerson(shown);
    TheStage.Open("EditPlayer", Main());
    Settle();
    auto& viewer = *static_cast<frmEditPlayer*>(TheStage.Find("EditPlayer"));
    EXPECT_EQ(Ghosts(viewer), GhostsOf(shown, skaters.front()));
    EXPECT_EQ(viewer.findChild<QLabel*>("lblPinned")->text(), "Pinned: " + NameOf(skaters.front()));
    PressScreenKey(viewer, Qt::Key_M);
    EXPECT_TRUE(IsPinned(shown));
    Click(viewer.findChild<QToolButton*>("cmdPin"));
    EXPECT_FALSE(IsPinned(shown));
}

TEST_F(PinsTest, WhoIsPinnedOnAScreenIsComparedInTheSquadTableAndLetGoThere)
{
    auto& roster = Opened<frmRoster>("Roster");
    PickList& list = *roster.lstPlayer[status::Pro];
    const int row = RowOf(list, false);
    Pick(list, row);
    PressPin(&list);
    PressScreenKey(roster, Qt::Key_T);
    frmSquad& squad = *TheStage.Squad();
    ASSERT_TRUE(squad.Comparison->isVisible());
    EXPECT_EQ(squad.tblCompare->Figures->index(0, 0).data().toString(), NameOf(WhoIn(list, row)));
    const PersonId goalie = WhoIn(list, RowOf(list, true));
    TogglePin(goalie); // who is not in this table
    Click(squad.cmdLetGo);
    EXPECT_FALSE(squad.Comparison->isVisible());
    EXPECT_FALSE(HasPin(list, row));
    EXPECT_FALSE(IsPinned(goalie));
    EXPECT_EQ(squad.lblTold->text(), "All who were pinned are let go.");
    TogglePin(goalie);
    squad.activateWindow();
    Press(&squad, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(IsPinned(goalie));
}

TEST_F(PinsTest, OfNobodyNothingIsSaidHoweverManyArePinned)
{
    MainWithLeague();
    for (int slot = 1, pinned = 0; pinned < 4; ++slot)
        pinned += Players[slot].InUse && OpenPins().Toggle(OpenLeague, PersonIn<Player>(slot)) ? 1 : 0;
    EXPECT_EQ(TogglePin(PersonIn<Player>(0)), "");
    EXPECT_EQ(TogglePin(PersonIn<Player>(100000)), "");
}

TEST_F(PinsTest, ANameIsToldAsItIsWritten)
{
    auto& roster = Opened<frmRoster>("Roster");
    PickList& list = *roster.lstPlayer[status::Pro];
    const int row = RowOf(list, false);
    Players[WhoIn(list, row).Slot].Name = "<b>Bo</b> & Co";
    Pick(list, row);
    PressPin(&list);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), "<b>Bo</b> & Co is pinned.");
    QToolTip::hideText();
}

TEST_F(PinsTest, TheMenuOfAnEntryPinsAndLetsGoAndPicksNobody)
{
    auto& roster = Opened<frmRoster>("Roster");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&roster));
    PickList& list = *roster.lstPlayer[status::Pro];
    const int first = RowOf(list, false);
    const int second = RowOf(list, false, first + 1);
    const int goalie = RowOf(list, true);
    Pick(list, first);
    QMenu* menu = MenuByMouse(list, second);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->findChild<QAction*>("mnuPin")->text(), "Pin " + NameOf(WhoIn(list, second)) + "\tCtrl+M");
    EXPECT_FALSE(menu->findChild<QAction*>("mnuLetGo")->isEnabled());
    EXPECT_EQ(ReasonOf(*menu->findChild<QAction*>("mnuLetGo")), "Nobody is pinned.");
    PressItem(*menu, "mnuPin");
    EXPECT_EQ(list.findChild<QMenu*>("mnuPerson"), nullptr);
    EXPECT_TRUE(IsPinned(WhoIn(list, second)));
    EXPECT_EQ(list.currentRow(), first);
    EXPECT_EQ(list.selectedItems(), QList<QListWidgetItem*>{list.item(first)});
    EXPECT_THAT(Ghosts(*roster.Stats), ::testing::Not(::testing::IsEmpty()));

    list.setCurrentRow(goalie, QItemSelectionModel::ClearAndSelect);
    menu = MenuByKey(list);
    ASSERT_NE(menu, nullptr);
    PressItem(*menu, "mnuPin");
    EXPECT_TRUE(IsPinned(WhoIn(list, goalie)));
    menu = MenuByMouse(list, second);
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->findChild<QAction*>("mnuPin")->text().startsWith("Unpin "));
    PressItem(*menu, "mnuLetGo");
    EXPECT_FALSE(IsAnybodyPinned());
    EXPECT_FALSE(HasPin(list, second));
    QToolTip::hideText();
}

TEST_F(PinsTest, TheMenuPinsOnTheDraftScreenAndProspectsHaveNone)
{
    auto& draft = Opened<frmDraft>("Draft");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&draft));
    const PersonId who = PersonOf(*NumberOf(draft.lstPlayers->item(1)));
    QMenu* menu = MenuByMouse(*draft.lstPlayers, 1);
    ASSERT_NE(menu, nullptr);
    PressItem(*menu, "mnuPin");
    EXPECT_TRUE(IsPinned(who));
    EXPECT_EQ(draft.lstPlayers->Chosen(), nullptr);
    QToolTip::hideText();
    draft.close();
    Settle();
    LeagueData.FantasyDraft = false;
    LeagueData.OffSeason = true;
    LeagueData.EntryDraft = true;
    auto& entry = Opened<frmDraft>("Draft");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&entry));
    ASSERT_GT(entry.lstPlayers->count(), 0);
    EXPECT_EQ(MenuByMouse(*entry.lstPlayers, 0), nullptr);
    EXPECT_EQ(entry.lstPlayers->Chosen(), nullptr);
}

TEST_F(PinsTest, BesideTheNameOfThePinnedACommandLetsAllGo)
{
    auto& roster = Opened<frmRoster>("Roster");
    PickList& list = *roster.lstPlayer[status::Pro];
    const int first = RowOf(list, false);
    const int second = RowOf(list, false, first + 1);
    auto* command = roster.Stats->findChild<QToolButton*>("cmdLetGo");
    ASSERT_NE(command, nullptr);
    Pick(list, RowOf(list, true));
    PressPin(&list);
    Pick(list, first);
    PressPin(&list);
    EXPECT_FALSE(command->isVisible());
    Pick(list, second);
    ASSERT_TRUE(command->isVisible());
    Click(command);
    EXPECT_FALSE(IsAnybodyPinned());
    EXPECT_FALSE(command->isVisible());
    EXPECT_THAT(Ghosts(*roster.Stats), ::testing::IsEmpty());
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(PinsTest, OnEveryScreenWithPeopleAKeyLetsAllGo)
{
    int screens = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        if (name.find(',') != std::string::npos || name == "About" || name == "Ticket")
            return;
        ++screens;
        const auto firstIn = [](const auto& people) {
            int slot = 1;
            while (!people[slot].InUse)
                ++slot;
            return slot;
        };
        for (const PersonId who : {PersonIn<Player>(firstIn(Players)), PersonIn<Goalie>(firstIn(Goalies))})
            ASSERT_TRUE(OpenPins().Toggle(OpenLeague, who)) << name;
        QTest::keyClick(&screen, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        Settle();
        EXPECT_FALSE(IsAnybodyPinned()) << name;
    });
    EXPECT_EQ(screens, 8);
}

// Beside the bar itself the ghost is seen in every palette: by its outline, which has the contrast of words, and by its pattern.
TEST_F(PinsTest, AGhostIsAnOutlineWithAPatternInEveryPalette)
{
    const QPalette before = QApplication::palette();
    std::vector<QPalette> palettes = DesktopPalettes();
    palettes.push_back(LightPalette());
    palettes.push_back(DarkPalette());
    for (const QPalette& palette : palettes) {
        QApplication::setPalette(palette);
        RatingBar bar;
        bar.setPalette(palette);
        bar.SetValue(33);
        bar.SetGhost(66);
        bar.resize(198, 10);
        const QImage picture = bar.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QColor ground = picture.pixelColor(190, 5);
        EXPECT_GE(Contrast(picture.pixelColor(131, 5), ground), 4.5); // its end
        EXPECT_GE(Contrast(picture.pixelColor(100, 0), ground), 4.5); // its upper edge beyond the bar
        EXPECT_GE(Contrast(picture.pixelColor(30, 0), ground), 4.5);  // and above it
        int inked = 0;
        for (int x = 70; x < 130; ++x)
            for (int y = 1; y < 9; ++y)
                inked += picture.pixelColor(x, y) == ground ? 0 : 1;
        EXPECT_GT(inked, 20);
        EXPECT_LT(inked, 400); // neither empty nor full
        bar.SetGhost(std::nullopt);
        EXPECT_EQ(bar.grab().toImage().convertToFormat(QImage::Format_RGB32).pixelColor(131, 5), ground);
    }
    QApplication::setPalette(before);
}

TEST_F(PinsTest, ABarSaysWhatItIsHeldAgainst)
{
    RatingBar bar;
    bar.SetValue(75);
    bar.SetGhost(71);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bar)->text(QAccessible::Value), "75, pinned man 71, plus 4");
    EXPECT_EQ(bar.toolTip(), "75, pinned man 71, plus 4");
    bar.SetValue(71);
    EXPECT_EQ(bar.toolTip(), "71, pinned man 71, the same");
    bar.SetGhost(std::nullopt);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bar)->text(QAccessible::Value), "71");
    EXPECT_EQ(bar.toolTip(), "");
}

} // namespace
} // namespace dravik
