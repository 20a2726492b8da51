#include "OnStage.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Shades.h"
#include "screens/platform/Palettes.h"

#include <QAccessible>
#include <QGroupBox>
#include <set>

namespace dravik {
namespace {

constexpr QSize SmallScreen(1280, 800);
constexpr double Readable = 4.5;

class LookTest : public OnStage {
protected:
    LookTest()
    {
        TeamMaker(5);
        Teams[5].Name = "Wexcombe Junction Switchmen of the North";
        Teams[5].Cash = -2147483647;
        LeagueData.Name = "The Longest League That A Record Can Hold";
    }
    ~LookTest() override { UseLightLook(); }

    // Shows a screen in its smallest form, or at the size of a small display.
    static void ShowAt(Screen& screen, const QSize& size)
    {
        screen.resize(size);
        Settle();
    }

    // No word of the screen may be cut.
    static void ExpectWholeWords(const Screen& screen)
    {
        for (const auto* label : screen.findChildren<QLabel*>())
            if (label->isVisible()) {
                EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
            }
        for (const auto* button : screen.findChildren<QPushButton*>())
            if (button->isVisible()) {
                EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
            }
    }

    static void ExpectNames(const Screen& screen)
    {
        std::set<QString> names;
        for (const auto* button : screen.findChildren<QPushButton*>()) {
            EXPECT_FALSE(button->text().isEmpty()) << button->objectName().toStdString();
            const QString name = button->accessibleName().isEmpty() ? button->text() : button->accessibleName();
            EXPECT_TRUE(names.insert(name).second) << name.toStdString();
        }
        for (const auto* box : screen.findChildren<EditBox*>()) {
            EXPECT_FALSE(box->accessibleName().isEmpty()) << box->objectName().toStdString();
            EXPECT_TRUE(names.insert(box->accessibleName()).second) << box->accessibleName().toStdString();
            EXPECT_FALSE(box->accessibleName().contains('&')) << box->accessibleName().toStdString();
        }
        for (const auto* list : screen.findChildren<EntryList*>())
            if (list->isVisible()) {
                EXPECT_FALSE(list->accessibleName().isEmpty()) << list->objectName().toStdString();
            }
    }

    // No letter may call two commands of a screen.
    static void ExpectDistinctMnemonics(const Screen& screen)
    {
        std::map<std::string, std::string> owners;
        for (const auto* button : screen.findChildren<QPushButton*>()) {
            const std::string key = QKeySequence::mnemonic(button->text()).toString().toStdString();
            if (!key.empty()) {
                EXPECT_TRUE(owners.emplace(key, button->text().toStdString()).second) << button->text().toStdString();
            }
        }
    }
};

TEST_F(LookTest, BothScreensFitASmallDisplayWithoutCuttingAWord)
{
    MainWithLeague();
    ShowAt(Main(), SmallScreen);
    EXPECT_LE(Main().minimumSizeHint().width(), SmallScreen.width());
    EXPECT_LE(Main().minimumSizeHint().height(), SmallScreen.height());
    ExpectWholeWords(Main());
    frmTeam& team = OpenTeam(5);
    ShowAt(team, SmallScreen);
    EXPECT_LE(team.minimumSizeHint().width(), SmallScreen.width());
    ExpectWholeWords(team);
}

TEST_F(LookTest, TheHiddenCommandsFitAsWellWhenTheyAreShown)
{
    Teams[5].ProCoach = 1;
    frmTeam& team = OpenTeam(5);
    for (QPushButton* command : team.findChildren<QPushButton*>())
        command->show();
    ShowAt(team, SmallScreen);
    ExpectWholeWords(team);
}

TEST_F(LookTest, EverythingHasANameForScreenReaders)
{
    MainWithLeague();
    ExpectNames(Main());
    ExpectNames(OpenTeam(5));
}

TEST_F(LookTest, AFigureIsReadByItsOwnText)
{
    Teams[5].LinesLoadCount = 3;
    const frmTeam& team = OpenTeam(5);
    for (QLabel* label : team.findChildren<QLabel*>())
        EXPECT_EQ(label->accessibleName(), "") << label->objectName().toStdString();
    for (QLabel* figure : {team.lblLoadLine, team.lblFinance, team.lblProPayRoll, team.lblHGLeft}) {
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(figure);
        ASSERT_NE(reader, nullptr);
        EXPECT_EQ(reader->text(QAccessible::Name), figure->text());
        EXPECT_FALSE(figure->text().isEmpty());
    }
}

TEST_F(LookTest, EveryCaptionGroupAndSignHasANameOfItsOwn)
{
    const frmTeam& team = OpenTeam(5);
    std::set<QString> names;
    const auto expectOwnName = [&names](const QWidget* widget) {
        EXPECT_FALSE(widget->objectName().isEmpty());
        EXPECT_TRUE(names.insert(widget->objectName()).second) << widget->objectName().toStdString();
    };
    for (const auto* label : team.findChildren<QLabel*>())
        expectOwnName(label);
    for (const auto* group : team.findChildren<QGroupBox*>())
        expectOwnName(group);
    EXPECT_NE(dynamic_cast<WarningSign*>(team.findChild<QWidget*>("signSaveHint")), nullptr);
    EXPECT_EQ(team.txtTeamName->accessibleName(), "Name");
    EXPECT_EQ(team.txtFarmTeamName->accessibleName(), "Farm: Name");
}

TEST_F(LookTest, NoMnemonicStandsTwice) { ExpectDistinctMnemonics(OpenTeam(5)); }

TEST_F(LookTest, DraftTicketsAndAboutFitNameAndCallEverything)
{
    LeagueData.FantasyDraft = true;
    PutSkater(1, 0, position::Center, status::Farm);
    for (const char* name : {"Draft", "Ticket", "About"}) {
        CurrentTeam = 5;
        TheStage.Open(name, MainWithLeague());
        Settle();
        Screen& screen = *TheStage.Find(name);
        ExpectWholeWords(screen);
        ShowAt(screen, SmallScreen);
        EXPECT_LE(screen.minimumSizeHint().width(), SmallScreen.width()) << name;
        EXPECT_LE(screen.minimumSizeHint().height(), SmallScreen.height()) << name;
        ExpectWholeWords(screen);
        ExpectNames(screen);
        ExpectDistinctMnemonics(screen);
    }
}

TEST_F(LookTest, FiguresStandAtTheRight)
{
    const frmTeam& team = OpenTeam(5);
    for (const QLabel* figure :
         {team.lblFinance, team.lblProPayRoll, team.lblFarmPayRoll, team.lblHGLeft, team.lblGameLeft,
          team.lblAverageAttendance, team.lblAverageIncome, team.lblEstimatedRevenue, team.lblExpensesPerGame,
          team.lblEstimatedSeasonExpense, team.lblEstimatedBankAccount})
        EXPECT_TRUE(figure->alignment() & Qt::AlignRight) << figure->objectName().toStdString();
}

TEST_F(LookTest, SecondaryWordsAreReadableInBothPalettes)
{
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        EXPECT_GE(Contrast(MutedText(palette), palette.color(QPalette::Window)), Readable);
        EXPECT_NE(MutedText(palette), palette.color(QPalette::WindowText));
        EXPECT_GE(Contrast(Muted(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
                           palette.color(QPalette::Highlight)),
                  Readable);
        EXPECT_GE(Contrast(Alarming(palette.color(QPalette::Window)), palette.color(QPalette::Window)), Readable);
    }
}

TEST_F(LookTest, ClosedBoxesStayReadableWhenTheThemeChanges)
{
    const frmTeam& team = OpenTeam(5);
    for (void (*use)() : {&UseDarkLook, &UseLightLook, &UseDarkLook}) {
        use();
        Settle();
        const QPalette& palette = team.txtTeamName->palette();
        EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::Text),
                           palette.color(QPalette::Disabled, QPalette::Base)),
                  Readable);
    }
}

// The colours that a label paints, most frequent first: background, then words.
QList<QRgb> ColoursOf(QWidget& widget)
{
    const QImage image = widget.grab().toImage();
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(), [&](QRgb a, QRgb b) { return counts[a] > counts[b]; });
    return colours;
}

TEST_F(LookTest, MutedWordsArePaintedMixedFromThePaletteAtHand)
{
    MutedLabel label("Bank Account");
    label.resize(label.sizeHint());
    for (void (*use)() : {&UseLightLook, &UseDarkLook}) {
        use();
        Settle();
        const QList<QRgb> colours = ColoursOf(label);
        EXPECT_EQ(colours.front(), label.palette().color(QPalette::Window).rgb());
        EXPECT_TRUE(colours.contains(MutedText(label.palette()).rgb()));
        EXPECT_FALSE(colours.contains(label.palette().color(QPalette::WindowText).rgb()));
    }
}

TEST_F(LookTest, WhyTheLinesCannotBeSavedIsToldByWordsAndSign)
{
    frmTeam& team = OpenTeam(5);
    ShowAt(team, SmallScreen);
    EXPECT_TRUE(team.lblSaveHint->isVisible());
    EXPECT_EQ(team.cmdSaveToFile->accessibleDescription(), team.lblSaveHint->text());
    bool hasSign = false;
    for (QWidget* child : team.lblSaveHint->parentWidget()->findChildren<QWidget*>())
        hasSign = hasSign || (dynamic_cast<WarningSign*>(child) != nullptr && child->isVisible());
    EXPECT_TRUE(hasSign);
    EXPECT_FALSE(team.lblSaveHint->toolTip().isEmpty());
}

TEST_F(LookTest, TheTabKeyWalksTheTeamScreenFromCommandsToContactToExit)
{
    frmTeam& team = OpenTeam(5);
    const std::vector<QWidget*> walk{team.CmdRoster,      team.cmdLines,    team.cmdFarmLines,
                                     team.cmdTicketArena, team.cmdLoadFile, team.txtMessenger,
                                     team.txtEmail,       team.cmdExit,     team.CmdRoster};
    team.CmdRoster->setFocus();
    for (std::size_t i = 0; i + 1 < walk.size(); ++i) {
        ASSERT_TRUE(walk[i]->hasFocus()) << walk[i]->objectName().toStdString();
        Press(walk[i], Qt::Key_Tab);
    }
    EXPECT_TRUE(walk.back()->hasFocus());
}

TEST_F(LookTest, AnEntryKeepsItsTextAndGivesItsSecondaryWordsUpFirst)
{
    EntryList list;
    list.Add("Harbour City Gulls", 5, {"HCG"});
    EXPECT_EQ(list.item(0)->text(), "Harbour City Gulls");
    EXPECT_EQ(list.item(0)->data(Qt::UserRole).toInt(), 5);
    const auto paints = [&list](int width) {
        list.resize(width, 100);
        list.show();
        Settle();
        return list.viewport()->grab(QRect(0, 0, width, list.visualItemRect(list.item(0)).height())).toImage();
    };
    const int text = list.fontMetrics().horizontalAdvance("Harbour City Gulls");
    const auto withoutAside = [&](int width) {
        list.item(0)->setData(entry::AsideRole, QStringList());
        const QImage image = paints(width);
        list.item(0)->setData(entry::AsideRole, QStringList("HCG"));
        return image;
    };
    EXPECT_EQ(paints(text + 30), withoutAside(text + 30));
    EXPECT_NE(paints(text + 80), withoutAside(text + 80));
}

} // namespace
} // namespace dravik
