#include "OnAnyScreen.h"
#include "screens/panels/KeptPlace.h"
#include "screens/panels/Labels.h"

#include <QHelpEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QToolTip>

// Windows on a small display: how large they open, and what stays in reach.
namespace dravik {
namespace {

using ::testing::IsEmpty;

constexpr QSize SmallDisplay(1280, 800);
constexpr int LargePoints = 15; // ten points at 144 dots an inch
constexpr const char* Names[] = {"Main",      "Team",  "Roster", "Line",       "FarmLine",
                                 "FreeAgent", "Draft", "Ticket", "EditPlayer", "About"};
const std::string WidestName(40, 'W');

class FittedScreens : public OnAnyScreen {
protected:
    FittedScreens() : font(QApplication::font()) { LeagueData.DivisionCount = 6; }
    ~FittedScreens() override { QApplication::setFont(font); }

    static void NameEverybodyWidest()
    {
        for (Player& player : Players)
            if (player.InUse)
                player.Name = WidestName;
        Own().Name = WidestName;
        Own().Abbre = "WWW";
        LeagueData.Name = WidestName;
    }
    static void EnlargeFonts()
    {
        QFont large = QApplication::font();
        large.setPointSize(LargePoints);
        QApplication::setFont(large);
    }

    static const QScrollArea* PageOf(const QWidget* widget)
    {
        for (const QWidget* outer = widget->parentWidget(); outer != nullptr; outer = outer->parentWidget())
            if (const auto* area = qobject_cast<const QScrollArea*>(outer))
                return area;
        return nullptr;
    }

    // Every command stands whole in the window, or in the page that scrolls.
    static void ExpectCommandsInReach(const Screen& screen, const std::string& name)
    {
        for (const auto* command : screen.findChildren<QAbstractButton*>()) {
            if (!command->isVisible())
                continue;
            const QScrollArea* page = PageOf(command);
            const QWidget* ground = page == nullptr ? static_cast<const QWidget*>(&screen) : page->widget();
            const QRect place(command->mapTo(ground, QPoint()), command->size());
            EXPECT_TRUE(ground->rect().contains(place)) << name << ' ' << command->objectName().toStdString();
            if (page != nullptr) {
                const QSize hidden = page->widget()->size() - page->viewport()->size();
                EXPECT_GE(page->verticalScrollBar()->maximum(), hidden.height()) << name;
                EXPECT_GE(page->horizontalScrollBar()->maximum(), hidden.width()) << name;
            }
            const auto* push = qobject_cast<const QPushButton*>(command);
            if (push != nullptr) {
                EXPECT_GE(push->width(), push->minimumSizeHint().width()) << name << ' ' << push->text().toStdString();
            }
        }
    }

    static void ExpectOnDisplay(const Screen& screen, const std::string& name)
    {
        const QRect area = screen.screen()->availableGeometry();
        EXPECT_TRUE(area.contains(screen.frameGeometry()))
            << name << ' ' << screen.frameGeometry().width() << " x " << screen.frameGeometry().height();
        EXPECT_LE(screen.minimumSizeHint().width(), area.width()) << name;
        EXPECT_LE(screen.minimumSizeHint().height(), area.height()) << name;
    }

    void ExpectAllInReach()
    {
        EachOf(Names, [](const Screen& screen, const std::string& name) {
            ExpectOnDisplay(screen, name);
            ExpectCommandsInReach(screen, name);
        });
    }

    static bool IsCut(EntryList* list, int row)
    {
        QToolTip::hideText();
        const QPoint point = list->visualItemRect(list->item(row)).center();
        QHelpEvent help(QEvent::ToolTip, point, list->viewport()->mapToGlobal(point));
        QApplication::sendEvent(list->viewport(), &help);
        const bool isCut = !QToolTip::text().isEmpty();
        QToolTip::hideText();
        return isCut;
    }
    static std::vector<int> CutRows(EntryList* list)
    {
        std::vector<int> rows;
        for (int row = 0; row < list->count(); ++row)
            if (IsCut(list, row))
                rows.push_back(row);
        return rows;
    }

    QFont font;
};

TEST_F(FittedScreens, TheDisplayOfTheseTestsIsASmallOne)
{
    EXPECT_EQ(QApplication::primaryScreen()->availableGeometry().size(), SmallDisplay);
}

TEST_F(FittedScreens, TheWidestNamesWidenNoWindowOffTheDisplay)
{
    NameEverybodyWidest();
    ExpectAllInReach();
}

TEST_F(FittedScreens, LargeFontsLeaveEveryCommandInReach)
{
    EnlargeFonts();
    NameEverybodyWidest();
    ExpectAllInReach();
}

// A screen that is higher than any small display.
class HighScreen : public Screen {
public:
    explicit HighScreen(Stage& stage) : Screen(stage, "frmHigh") { resize(SmallDisplay * 2); }

    void FormLoad() override {}
};

TEST_F(FittedScreens, AWindowAsHighAsTheDisplayStandsAboveItsLowerEdge)
{
    HighScreen screen(TheStage);
    screen.CentreOnScreen();

    // It is not shown yet: its title bar is above it all the same.
    const QRect area = screen.screen()->availableGeometry();
    const int title = FrameSizeOf(screen).height();
    ASSERT_GT(title, 0);
    EXPECT_EQ(screen.size(), QSize(area.width(), area.height() - title));
    EXPECT_EQ(screen.pos(), area.topLeft());
}

TEST_F(FittedScreens, TheFooterStaysWhereThePageScrolls)
{
    EnlargeFonts();
    constexpr const char* withFooter[] = {"Team", "Roster", "Line", "FarmLine", "FreeAgent", "Draft", "EditPlayer"};
    EachOf(withFooter, [](Screen& screen, const std::string& name) {
        screen.resize(700, 400);
        Settle();
        const auto* exit = screen.findChild<QPushButton*>("cmdExit");
        EXPECT_EQ(PageOf(exit), nullptr) << name;
        EXPECT_TRUE(screen.rect().contains(QRect(exit->mapTo(&screen, QPoint()), exit->size()))) << name;
        ExpectCommandsInReach(screen, name);
    });
}

TEST_F(FittedScreens, NamesThatTheDisplayHasRoomForAreShownWhole)
{
    for (Player& player : Players)
        if (player.InUse)
            player.Name = "Magnus Wahlström-Benton";
    Own().Name = "Wexcombe Junction Switchmen";
    LeagueData.DivisionCount = 4;
    constexpr const char* withNames[] = {"Main", "FreeAgent", "Draft", "EditPlayer", "Line", "FarmLine"};
    EachOf(withNames, [](const Screen& screen, const std::string& name) {
        for (EntryList* list : screen.findChildren<EntryList*>())
            if (list->isVisible() && list->count() > 0) { // the entries of the lines screens have tooltips of their own
                EXPECT_GE(list->width(), list->WidthOfWidestEntry()) << name;
                if (list->objectName() != "lstPlayer" || name == "EditPlayer") {
                    EXPECT_THAT(CutRows(list), IsEmpty()) << name << ' ' << list->objectName().toStdString();
                }
            }
    });
}

TEST_F(FittedScreens, TheListsOfTheDraftOpenAtTheWidthOfTheirLongestName)
{
    const auto width = [this] {
        Screen& draft = OpenScreen("Draft");
        auto* players = draft.findChild<EntryList*>("lstPlayers");
        EXPECT_THAT(CutRows(players), IsEmpty());
        EXPECT_EQ(draft.findChild<EntryList*>("lstDraftList")->width(), players->width());
        const int opened = players->width();
        CloseScreen(draft);
        return opened;
    };
    const int usual = width();
    for (Player& player : Players)
        if (player.InUse)
            player.Name = std::string(34, 'W');
    EXPECT_GT(width(), usual);
}

TEST_F(FittedScreens, TheThreeListsOfTheRosterTakeTheWidthThatTheDisplayHas)
{
    constexpr int openingWidth = 1180; // where nobody's name asks for more
    EntryList measured;
    QString name = "Ward ";
    const auto width = [&] {
        measured.clear();
        measured.Add(name, 1, {"LW", "60"});
        return measured.WidthOfWidestEntry();
    };
    Screen& narrow = OpenScreen("Roster");
    EXPECT_EQ(narrow.width(), openingWidth);
    const int listWidth = Roster().lstPlayer[1]->width();
    while (width() <= listWidth)
        name += 't';
    CloseScreen(narrow);
    Players[900].Name = name.toStdString();
    Screen& wide = OpenScreen("Roster");
    EXPECT_GT(wide.width(), openingWidth);
    EXPECT_LE(wide.width(), SmallDisplay.width());
    EXPECT_THAT(CutRows(Roster().lstPlayer[1]), IsEmpty());
    for (int index = 0; index <= 2; ++index)
        EXPECT_NEAR(Roster().lstPlayer[index]->width(), Roster().lstPlayer[1]->width(), 1) << index;
}

TEST_F(FittedScreens, ALongTitleEndsInASignAndATooltipTellsItWhole)
{
    Own().Name = WidestName;
    OpenScreen("Roster");
    auto* title = dynamic_cast<ElidedLabel*>(Roster().lblTeamName);
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(Of(title), "Roster for " + WidestName);
    EXPECT_TRUE(title->IsCut());
    const QPoint point = title->rect().center();
    QHelpEvent help(QEvent::ToolTip, point, title->mapToGlobal(point));
    QApplication::sendEvent(title, &help);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().toStdString(),
              "Roster for " + WidestName);
    QToolTip::hideText();
}

// What is painted at the right end of a label that is cut, in a letter that leaves most of its place empty.
TEST_F(FittedScreens, ACutLabelPaintsItsSignAndAWholeOneItsText)
{
    ElidedLabel label(QString(60, 'l'));
    label.resize(label.sizeHint());
    EXPECT_FALSE(label.IsCut());
    QLabel plain(label.text());
    plain.resize(label.size());
    EXPECT_EQ(label.grab().toImage(), plain.grab().toImage());
    label.resize(100, label.height());
    EXPECT_TRUE(label.IsCut());
    QLabel cut(label.fontMetrics().elidedText(label.text(), Qt::ElideRight, 100));
    cut.resize(label.size());
    EXPECT_NE(cut.text(), label.text());
    EXPECT_EQ(label.grab().toImage(), cut.grab().toImage());
}

TEST_F(FittedScreens, AnElidedLabelUnderlinesTheLetterThatLeadsToItsBuddy)
{
    QLineEdit edit;
    for (QWidget* buddy : {static_cast<QWidget*>(&edit), static_cast<QWidget*>(nullptr)}) {
        ElidedLabel label("&Players & more");
        QLabel plain(label.text());
        label.setBuddy(buddy);
        plain.setBuddy(buddy);
        label.resize(label.sizeHint());
        plain.resize(label.size());
        EXPECT_FALSE(label.IsCut());
        EXPECT_EQ(label.grab().toImage(), plain.grab().toImage());
    }
}

TEST_F(FittedScreens, TheHeadingOfTheStatPanelIsCutWithASign)
{
    Players[900].Name = WidestName;
    OpenScreen("Roster");
    ClickEntry(1, 0);
    auto* heading = dynamic_cast<ElidedLabel*>(Roster().Stats->findChild<QLabel*>("lblStatName"));
    ASSERT_NE(heading, nullptr);
    EXPECT_EQ(Of(heading), WidestName);
    EXPECT_TRUE(heading->IsCut());
}

} // namespace
} // namespace dravik
