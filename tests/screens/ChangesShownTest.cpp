#include "OnMainScreen.h"
#include "OnTeamScreen.h"
#include "PersonMenuOf.h"
#include "screens/main/frmCompare.h"
#include "screens/panels/ChangeList.h"
#include "screens/panels/PersonCards.h"
#include "screens/panels/VerdictSigns.h"
#include "screens/Pins.h"
#include "screens/player/frmEditPlayer.h"
#include "session/OpenChanges.h"
#include "session/OpenSaves.h"
#include "session/OtherLeague.h"

#include <algorithm>
#include <cstring>
#include <filesystem>

#include <QImage>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

// Teams 5 and 6, and a league that is held against what it was before each test's changes.
class ChangesShownTest : public OnMainScreen {
protected:
    ChangesShownTest()
    {
        LeagueData.LeagueCode = "ABCDE";
        LeagueData.FileDate = 45000;
        LeagueData.Name = "Some League";
        LeagueData.DivisionCount = 6;
        for (const int team : {5, 6}) {
            TeamMaker(team).Dresses(3, position::Center);
            PutTeam(team, team - 4);
            Teams[team].Abbre = team == 5 ? "GUL" : "DUC";
        }
        KeepDigests(Folder);
        LookForChanges(false);
    }
    ChangesShownTest(const ChangesShownTest&) = delete;
    ChangesShownTest& operator=(const ChangesShownTest&) = delete;
    ~ChangesShownTest() override
    {
        KeepDigests({});
        CloseOtherLeague();
    }

    static void PlayOn()
    {
        Players[1].Condition = 50;
        Players[4].Condition = 60;
        Teams[5].Cash = 1000;
        LeagueData.FileDate = 45001;
        LookForChanges(false);
    }
    static ChangeList& ListOf(Screen& screen) { return *screen.findChild<ChangeList*>("Changes"); }
    static std::vector<std::string> Texts(Screen& screen)
    {
        std::vector<std::string> texts;
        const EntryList* list = ListOf(screen).List();
        for (int row = 0; row < list->count(); ++row)
            texts.push_back(list->item(row)->text().toStdString());
        return texts;
    }
    void ChooseEntry(Screen& screen, int row)
    {
        EntryList* list = ListOf(screen).List();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
        Settle();
    }

    const std::filesystem::path Folder = std::filesystem::path(Machine.Folder()) / "leagues";
};

TEST_F(ChangesShownTest, WithoutChangesTheListTakesNoRoom)
{
    MainWithLeague();
    Main().ShowChanges();
    Settle();
    EXPECT_FALSE(ListOf(Main()).isVisible());
    const int before = Main().lstDivision[1]->height();
    PlayOn();
    Main().ShowChanges();
    Settle();
    EXPECT_TRUE(ListOf(Main()).isVisible());
    EXPECT_LT(Main().lstDivision[1]->height(), before);
    ForgetChanges();
    Main().ShowChanges();
    Settle();
    EXPECT_EQ(Main().lstDivision[1]->height(), before);
}

TEST_F(ChangesShownTest, TheMainScreenTellsFactsAloneTheChosenTeamsFirst)
{
    PlayOn();
    MainWithLeague();
    Main().ShowChanges();
    Settle();
    EXPECT_THAT(Texts(Main()), ElementsAre("Skater 1: hurt, condition 50", "Skater 4: hurt, condition 60"));
    ASSERT_EQ(Listed(2).size(), 1U);
    ClickEntry(2, 0);
    ASSERT_EQ(CurrentTeam, 6);
    EXPECT_THAT(Texts(Main()), ElementsAre("Skater 4: hurt, condition 60", "Skater 1: hurt, condition 50"));
    EXPECT_EQ(ListOf(Main()).List()->accessibleName(),
              "Since the file of " + QString::fromStdString(Machine.LongDate(45000)));
}

TEST_F(ChangesShownTest, AnOpeningShowsWhatItChanged)
{
    Players[1].Condition = 50;
    LeagueData.FileDate = 45001;
    const std::string path = SaveLeague();
    TempFile = Machine.InFolder("ClientTemp.dvt");
    Main();
    Machine.Choose(path);
    Main().mnuOpen_Click();
    Settle();
    EXPECT_THAT(Texts(Main()), ElementsAre("Skater 1: hurt, condition 50"));
    EXPECT_TRUE(ListOf(Main()).isVisible());
}

// The right button picks nobody there, and what is told of money is nobody's.
TEST_F(ChangesShownTest, SomebodyIsPinnedByTheMenuOfHisEntry)
{
    PlayOn();
    MainWithLeague();
    Main().ShowChanges();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Main()));
    Settle();
    QMenu* menu = MenuByMouse(*ListOf(Main()).List(), 1);
    ASSERT_NE(menu, nullptr);
    PressItem(*menu, "mnuPin");
    EXPECT_TRUE(IsPinned(PersonIn<Player>(4)));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), "Skater 4 is pinned.");
    QToolTip::hideText();
    EXPECT_EQ(ListOf(Main()).List()->Chosen(), nullptr);

    frmTeam& team = OpenTeam(5);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&team));
    EntryList* list = ListOf(team).List();
    menu = MenuByMouse(*list, 0);
    ASSERT_NE(menu, nullptr);
    PressItem(*menu, "mnuPin");
    EXPECT_TRUE(IsPinned(PersonIn<Player>(1)));
    QToolTip::hideText();
    ASSERT_TRUE(list->item(1)->text().startsWith("Bank account"));
    EXPECT_EQ(MenuByMouse(*list, 1), nullptr);
    EXPECT_EQ(list->Chosen(), nullptr);
}

TEST_F(ChangesShownTest, TheTeamScreenTellsItsOwnSecretsToo)
{
    PlayOn();
    frmTeam& team = OpenTeam(5);
    EXPECT_THAT(Texts(team), ElementsAre("Skater 1: hurt, condition 50",
                                         "Bank account: +" + Machine.CurrencyNoDecimals(1000) + ", " +
                                             Machine.CurrencyNoDecimals(1000) + " now",
                                         "Skater 4: hurt, condition 60"));
    team.close();
    Settle();
    frmTeam& other = OpenTeam(6);
    EXPECT_THAT(Texts(other), ElementsAre("Skater 4: hurt, condition 60", "Skater 1: hurt, condition 50"));
}

TEST_F(ChangesShownTest, EnterOnAnEntryOpensTheRecordAndComesBack)
{
    PlayOn();
    frmTeam& team = OpenTeam(5);
    ListOf(team).List()->setFocus();
    QTest::keyClick(ListOf(team).List(), Qt::Key_Home);
    QTest::keyClick(ListOf(team).List(), Qt::Key_Return);
    Settle();
    auto* viewer = static_cast<frmEditPlayer*>(TheStage.Find(Window::EditPlayer));
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->lstPlayer->item(0)->text(), "Skater 1 (C)");
    EXPECT_FALSE(team.isVisible());
    viewer->cmdExit->click();
    Settle();
    EXPECT_TRUE(TeamScreen()->isVisible());
    EXPECT_FALSE(Main().isVisible());
}

TEST_F(ChangesShownTest, ARecordThatCannotOpenIsTold)
{
    PlayOn();
    frmTeam& team = OpenTeam(5);
    TheStage.Provide("EditPlayer", [](Stage& /*stage*/) -> std::unique_ptr<Screen> { Fail(failure::OutOfRange); });
    ListOf(team).List()->setFocus();
    QTest::keyClick(ListOf(team).List(), Qt::Key_Home);
    QTest::keyClick(ListOf(team).List(), Qt::Key_Return);
    Settle();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "9 - Subscript out of range in OpenChanged!"}));
    EXPECT_TRUE(team.isVisible());
}

TEST_F(ChangesShownTest, F6LeadsToTheListAndBack)
{
    PlayOn();
    frmTeam& team = OpenTeam(5);
    team.CmdRoster->setFocus();
    for (int step = 0; step < 2; ++step)
        Press(team.focusWidget(), Qt::Key_F6);
    EXPECT_TRUE(ListOf(team).List()->hasFocus());
    Press(team.focusWidget(), Qt::Key_F6);
    EXPECT_TRUE(team.CmdRoster->hasFocus());
}

TEST_F(ChangesShownTest, OtherTeamsPeopleAndMoneyOpenNoRecord)
{
    PlayOn();
    frmTeam& team = OpenTeam(5);
    EntryList* list = ListOf(team).List();
    for (const int row : {1, 2}) {
        list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(list, Qt::Key_Return);
        Settle();
        EXPECT_EQ(TheStage.Find(Window::EditPlayer), nullptr) << row;
    }
}

TEST_F(ChangesShownTest, TheCardTellsOfAnEntrysPerson)
{
    PlayOn();
    MainWithLeague();
    Main().ShowChanges();
    Settle();
    ChooseEntry(Main(), 0);
    ListOf(Main()).List()->setFocus();
    QTest::keyClick(ListOf(Main()).List(), Qt::Key_I, Qt::ControlModifier);
    Settle();
    const auto* cards = Main().findChild<PersonCards*>();
    ASSERT_NE(cards->Shown(), nullptr);
}

TEST_F(ChangesShownTest, WhatNamesLeaveIsForTheWords)
{
    ChangeList list("Changes", 5, nullptr);
    list.Tell("Since", {{.Tone = DifferenceTone::News,
                         .IsOwn = false,
                         .Subject = "Lundin",
                         .Words = "hurt",
                         .Team = {},
                         .Crested = {}}});
    list.resize(900, 100);
    list.show();
    Settle();
    const QImage picture = list.List()->viewport()->grab(list.List()->visualItemRect(list.List()->item(0))).toImage();
    int last = -1;
    int widest = 0;
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 0; y < picture.height(); ++y)
            if (qGray(picture.pixel(x, y)) < 120) {
                widest = last < 0 ? 0 : std::max(widest, x - last);
                last = x;
            }
    ASSERT_GT(last, 0);
    EXPECT_LT(widest, 3 * 8);
}

TEST_F(ChangesShownTest, EachToneHasAShapeOfItsOwn)
{
    std::set<std::vector<uchar>> shapes;
    for (const auto tone : {DifferenceTone::Bad, DifferenceTone::Good, DifferenceTone::Up, DifferenceTone::Down,
                            DifferenceTone::Money, DifferenceTone::News}) {
        QImage image(32, 32, QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintTone(painter, tone, QRectF(0, 0, 32, 32), Qt::black, Qt::white);
        painter.end();
        std::vector<uchar> ink;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                ink.push_back(image.pixelColor(x, y).lightness() < 200 ? 1 : 0);
        EXPECT_GT(std::count(ink.begin(), ink.end(), 1), 8) << static_cast<int>(tone);
        EXPECT_TRUE(shapes.insert(ink).second) << static_cast<int>(tone);
    }
}

TEST_F(ChangesShownTest, AnotherFileIsComparedWithoutTouchingTheOpenLeague)
{
    const std::string path = SaveLeague("Earlier.dvs");
    TempFile = Machine.InFolder("ClientTemp.dvt");
    Players[1].Condition = 50;
    Teams[5].Cash = 1000;
    LeagueData.FileDate = 45001;
    MainWithLeague();
    const auto before = Copy(OpenLeague);
    Machine.Choose(path);
    Main().findChild<QAction*>("mnuCompare")->trigger();
    Settle();
    auto* compare = static_cast<frmCompare*>(TheStage.Find(Window::Compare));
    ASSERT_NE(compare, nullptr);
    EXPECT_TRUE(compare->isVisible());
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Texts(Main()), IsEmpty());
    EXPECT_EQ(compare->changes->List()->count(), 1) << "money is private";
    EXPECT_EQ(compare->changes->List()->item(0)->text(), "Skater 1: hurt, condition 50");
    EXPECT_EQ(compare->findChild<QLabel*>("lblFileEarlier")->text(), "Earlier.dvs");
    EXPECT_EQ(compare->findChild<QLabel*>("lblHurtEarlier")->text(), "0");
    EXPECT_EQ(compare->findChild<QLabel*>("lblHurtLater")->text(), "1");
    EXPECT_FALSE(compare->lblRemark->isVisible());
    EXPECT_EQ(std::memcmp(before.get(), &OpenLeague, sizeof OpenLeague), 0);
    QTest::keyClick(compare, Qt::Key_Escape);
    Settle();
    EXPECT_EQ(TheStage.Find(Window::Compare), nullptr);
    EXPECT_EQ(TheOtherLeague().League, nullptr);
    EXPECT_TRUE(Main().isVisible());
}

TEST_F(ChangesShownTest, TheSameFileDiffersInNothingAndAnotherLeagueIsSaidToBeOne)
{
    const std::string same = SaveLeague("Same.dvs");
    LeagueData.LeagueCode = "OTHER";
    const std::string other = SaveLeague("Other.dvs");
    LeagueData.LeagueCode = "ABCDE";
    TempFile = Machine.InFolder("ClientTemp.dvt");
    MainWithLeague();
    for (const std::string& path : {same, other}) {
        Machine.Choose(path);
        Main().mnuCompare_Click();
        Settle();
        auto* compare = static_cast<frmCompare*>(TheStage.Find(Window::Compare));
        ASSERT_NE(compare, nullptr);
        EXPECT_TRUE(compare->lblNothing->isVisible());
        EXPECT_EQ(compare->lblRemark->isVisible(), path == other);
        compare->cmdExit->click();
        Settle();
    }
}

TEST_F(ChangesShownTest, AFileThatIsNoneIsToldAndOpensNoWindow)
{
    MainWithLeague();
    Machine.Settings["SkipZIPClient"] = "YES";
    Machine.Choose(Machine.InFolder("missing.dvs"));
    Main().mnuCompare_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "Cannot find the client league file!"}));
    WriteWhole(Machine.InFolder("none.dvs"), ByteVector(100, 7));
    Machine.Choose(Machine.InFolder("none.dvs"));
    Main().mnuCompare_Click();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{box::Critical, "File Integrity is incorrect!"}));
    EXPECT_EQ(TheStage.Find(Window::Compare), nullptr);
}

// The rows of the evening on the team screen.
class EveningShownTest : public OnTeamScreen {
protected:
    QPushButton& Command(const char* name) { return *Office().findChild<QPushButton*>(name); }
    std::string Words(const char* name) { return Of(Office().findChild<QLabel*>(name)); }
};

TEST_F(EveningShownTest, RowsSayHowFarTheEveningIs)
{
    CompleteTeam(5);
    EXPECT_EQ(Words("lblEveningLines"), "1 of 10 days complete");
    EXPECT_TRUE(Command("cmdEveningLines").accessibleDescription().startsWith("Something is wrong, 1 of 10 days"));
    EXPECT_EQ(Command("cmdEveningLines").accessibleName(), "Open Lines");
    EXPECT_FALSE(Command("cmdEveningRanking").isEnabled());
    Teams[5].ProLines[2] = Teams[5].ProLines[1];
    Office().FormActivate();
    EXPECT_EQ(Words("lblEveningLines"), "2 of 10 days complete") << "fresh as the screen comes forward";
}

TEST_F(EveningShownTest, ACountOfMoreThanOneDigitHasRoom)
{
    CompleteTeam(5);
    const auto* sign = Office().findChild<QWidget*>("signEveningLines");
    ASSERT_TRUE(Command("cmdEveningLines").accessibleDescription().startsWith("Something is wrong, 1 of 10 days"));
    EXPECT_GE(sign->width(), CountWidth(sign->height(), 9, sign->font()));
    Teams[5].ProLines[1] = {};
    Office().FormActivate();
    Settle();
    ASSERT_EQ(Words("lblEveningLines"), "0 of 10 days complete");
    EXPECT_GE(sign->width(), CountWidth(sign->height(), 10, sign->font()));
    EXPECT_GT(sign->width(), sign->height());
}

TEST_F(EveningShownTest, F6GoesToTheBoardAndTheArrowsWalkIt)
{
    CompleteTeam(5);
    Office().cmdExit->setFocus();
    Press(Office().cmdExit, Qt::Key_F6);
    EXPECT_TRUE(Command("cmdEveningRoster").hasFocus());
    Press(Office().focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(Command("cmdEveningRoster").hasFocus());
    for (int step = 0; step < 6; ++step)
        Press(Office().focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(Command("cmdEveningOffers").hasFocus()) << "the draft is closed";
    Press(Office().focusWidget(), Qt::Key_F6);
    EXPECT_TRUE(Office().CmdRoster->hasFocus()) << "nothing has changed";
}

TEST_F(EveningShownTest, TheBoardRepairsNothing)
{
    CompleteTeam(5);
    Office();
    Players[1].Status = status::Pro;
    Players[1].Condition = 10; // the judge of a roster would take him down
    Teams[5].ProLines[5].NormalForward(1, 1) = 1;
    const auto before = Copy(OpenLeague);
    Office().FormActivate(); // its own judges look at day 1 alone
    EXPECT_EQ(OpenLeague.Players[1].Status, before->Players[1].Status);
}

TEST_F(EveningShownTest, APressGoesThereAndTheWayLeadsBack)
{
    CompleteTeam(5);
    LeagueData.OffSeason = true;
    LeagueData.EntryDraft = true;
    const std::pair<const char*, Window> ways[] = {
        {"cmdEveningRoster", Window::Roster},      {"cmdEveningLines", Window::Line},
        {"cmdEveningFarmLines", Window::FarmLine}, {"cmdEveningTickets", Window::Ticket},
        {"cmdEveningOffers", Window::FreeAgent},   {"cmdEveningRanking", Window::Draft}};
    for (const auto& [command, window] : ways) {
        Office().FormActivate();
        ASSERT_TRUE(Command(command).isEnabled()) << command;
        Click(&Command(command));
        Machine.ForgetBoxes("what a screen finds as it opens is not looked at here");
        ASSERT_NE(TheStage.Find(window), nullptr) << command;
        EXPECT_FALSE(Office().isVisible()) << command;
        TheStage.Find(window)->close();
        Settle();
        Machine.ForgetBoxes("nor as it closes");
        EXPECT_TRUE(Office().isVisible()) << command;
    }
}

TEST_F(EveningShownTest, WhatIsNotSavedIsSaidInWords)
{
    TellTimeBy([] { return 45000.5; });
    CompleteTeam(5);
    TypeInto(Office().txtEmail, "new@example.org");
    Press(Office().txtEmail, Qt::Key_Tab);
    Office().FormActivate();
    EXPECT_TRUE(QString::fromStdString(Words("lblEveningLinesSaved")).startsWith("Not saved since "))
        << Words("lblEveningLinesSaved");
    EXPECT_TRUE(Words("lblEveningOffersSaved").empty());
    TellTimeBy({});
}

TEST_F(EveningShownTest, OpensWithRoomForAllThatIsSaid)
{
    TellTimeBy([] { return 45000.5; });
    CompleteTeam(5);
    TypeInto(Office().txtEmail, "new@example.org");
    Press(Office().txtEmail, Qt::Key_Tab);
    Office().close();
    Settle();
    ASSERT_EQ(TeamScreen(), nullptr);
    int told = 0;
    for (const char* task : {"Roster", "Lines", "FarmLines", "Tickets", "Offers", "Ranking"})
        for (const char* kind : {"", "Saved"}) {
            const auto* label = Office().findChild<QLabel*>(QString("lblEvening%1%2").arg(task, kind));
            if (!label->isVisible())
                continue;
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
            ++told;
        }
    EXPECT_EQ(told, 10); // six tasks, of which four go into the lines file
    EXPECT_EQ(Office().findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
    TellTimeBy({});
}

} // namespace
} // namespace dravik
