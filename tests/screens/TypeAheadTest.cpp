#include "league/NameMatch.h"
#include "OnEveryScreen.h"
#include "PaintedContrast.h"
#include "screens/panels/EntryName.h"
#include "screens/panels/PickList.h"
#include "screens/panels/RankList.h"
#include "screens/panels/TypedTag.h"
#include "screens/platform/CodePage.h"

#include <QRegularExpression>
#include <QShortcut>
#include <QSignalSpy>
#include <random>
#include <set>

namespace dravik {
namespace {

using ::testing::ElementsAre;

// Letters follow each other however busy the machine is, unless a test says that the interval is over.
class Unhurried {
public:
    Unhurried() { QApplication::setKeyboardInputInterval(600000); }
    ~Unhurried() { QApplication::setKeyboardInputInterval(usual); }
    Unhurried(const Unhurried&) = delete;
    Unhurried& operator=(const Unhurried&) = delete;

private:
    const int usual = QApplication::keyboardInputInterval();
};

// A list in a window that has the focus.
template <class List>
class TypeAheadIn : public OnStage {
protected:
    TypeAheadIn()
    {
        Window.resize(300, 200);
        Names.setGeometry(0, 0, 300, 200);
        Window.show();
        Window.activateWindow();
        Names.setFocus();
        Settle();
    }

    void Fill(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            Names.Add(ToQString(name), Names.count());
        Settle();
    }
    void Keys(const QString& letters)
    {
        for (const QChar letter : letters)
            if (letter == ' ')
                QTest::keyClick(&Names, Qt::Key_Space);
            else if (letter.unicode() < 0x80)
                QTest::keyClick(&Names, letter.toLatin1());
            else
                QTest::sendKeyEvent(QTest::Click, &Names, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        Settle();
    }
    // The entry that is chosen behind the keys.
    std::string Typed(const QString& letters)
    {
        Keys(letters);
        return Chosen();
    }
    std::string Chosen() const { return Names.Chosen() == nullptr ? "nobody" : FromQString(Names.Chosen()->text()); }
    TypedTag* Tag() { return Names.template findChild<TypedTag*>("lblTyped"); }
    // What the list shows of what was typed; nothing when it shows nothing.
    std::string Shown() { return Tag() != nullptr && Tag()->isVisible() ? Tag()->text().toStdString() : ""; }
    QRect EntryOf(int row) const
    {
        return Names.visualItemRect(Names.item(row)).translated(Names.viewport()->geometry().topLeft());
    }

    Unhurried NoHurry;
    QWidget Window;
    List Names{&Window};
};

using TypeAheadTest = TypeAheadIn<EntryList>;

TEST_F(TypeAheadTest, LettersFindAnyPartOfAnyWord)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Luc D'Aubremont", "Piet Vos"});
    EXPECT_EQ(Typed("vand"), "Karl Vanderson");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("aubre"), "Luc D'Aubremont");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("ilto"), "Ward Tilton");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("piet v"), "Piet Vos");
    EXPECT_EQ(Names.currentRow(), 3);
}

TEST_F(TypeAheadTest, NeitherCaseNorAccentsCount)
{
    Fill({"Ward Tilton", "R\xE9mi Gauthi\xE8re", "Jan \x8Aimek", "Uwe Wei\xDF"});
    EXPECT_EQ(Typed("REMI"), "R\xE9mi Gauthi\xE8re");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed(QString(QChar(0x160)) + "im"), "Jan \x8Aimek");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("weiss"), "Uwe Wei\xDF");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed(QString("R") + QChar(0xC8)), "R\xE9mi Gauthi\xE8re");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed(QString(QChar(0x165)) + "il"), "Ward Tilton") << "a letter that the code page lacks";
}

TEST_F(TypeAheadTest, TheFirstLetterGoesOnBehindTheCurrentEntryAndRoundToIt)
{
    Fill({"Tor Lind", "Ward Tilton", "Piet Vos", "Tim Ek"});
    Names.setCurrentRow(0);
    EXPECT_EQ(Typed("t"), "Ward Tilton");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("t"), "Tim Ek");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("t"), "Tor Lind");
}

TEST_F(TypeAheadTest, WithNobodyCurrentTheFirstLetterBeginsAtTheTop)
{
    Fill({"Tor Lind", "Ward Tilton"});
    ASSERT_EQ(Names.currentRow(), -1);
    EXPECT_EQ(Typed("t"), "Tor Lind");
}

TEST_F(TypeAheadTest, MoreLettersKeepTheEntryAsLongAsItHasThem)
{
    Fill({"Tor Lind", "Tom Lund", "Tobias Ek"});
    Names.setCurrentRow(0);
    EXPECT_EQ(Typed("t"), "Tom Lund");
    EXPECT_EQ(Typed("o"), "Tom Lund");
    EXPECT_EQ(Typed("b"), "Tobias Ek");
    EXPECT_EQ(Shown(), "tob");
}

TEST_F(TypeAheadTest, WhereAWordBeginsComesBeforeWhereItStandsWithin)
{
    Fill({"Ward Tilton", "Karl Arlander", "Carlo Dam"});
    EXPECT_EQ(Typed("arl"), "Karl Arlander");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("arlo"), "Carlo Dam");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("ard"), "Ward Tilton");
}

TEST_F(TypeAheadTest, ARepeatedLetterGoesToTheNextMatchAndRound)
{
    Fill({"Tor Lind", "Kurt Ek", "Ward Tilton", "Piet Vos", "Karl Dam", "Tim Ek"});
    std::vector<std::string> visited;
    for (int i = 0; i < 6; ++i)
        visited.push_back(Typed("t"));
    EXPECT_THAT(visited, ElementsAre("Tor Lind", "Ward Tilton", "Tim Ek", "Kurt Ek", "Piet Vos", "Tor Lind"));
    EXPECT_EQ(Shown(), "t");
}

TEST_F(TypeAheadTest, BeginningsOfWordsAboveTheCurrentEntryComeBeforeWhatStandsWithin)
{
    Fill({"Tor Lind", "Kurt Ek", "Ward Tilton", "Piet Vos"});
    Names.setCurrentRow(1);
    std::vector<std::string> visited;
    for (int i = 0; i < 5; ++i)
        visited.push_back(Typed("t"));
    EXPECT_THAT(visited, ElementsAre("Ward Tilton", "Tor Lind", "Piet Vos", "Kurt Ek", "Ward Tilton"));
}

TEST_F(TypeAheadTest, RepeatedLettersMayBeTheBeginningOfAName)
{
    Fill({"Aaron Lind", "Anders Ek", "Lars Ek"});
    Names.setCurrentRow(0);
    EXPECT_EQ(Typed("aa"), "Aaron Lind");
    EXPECT_EQ(Shown(), "a") << "the next one, and the next";
    EXPECT_EQ(Typed("r"), "Aaron Lind");
    EXPECT_EQ(Shown(), "aar");
}

TEST_F(TypeAheadTest, ALetterBehindRepeatedOnesNarrowsWhereTheyAreInNoName)
{
    Fill({"Lars Ek", "Lasse Dam", "Lisa Ek"});
    EXPECT_EQ(Typed("ll"), "Lasse Dam");
    EXPECT_EQ(Typed("i"), "Lisa Ek");
    EXPECT_EQ(Shown(), "li");
}

TEST_F(TypeAheadTest, TheLastLetterOfALongerTextOnceMoreGoesOnWhereNoNameHasItTwice)
{
    Fill({"Karl Vanderson", "Tor Lind", "Eva Vandal", "Piet Vos", "Sven Vand"});
    EXPECT_EQ(Typed("vand"), "Karl Vanderson");
    EXPECT_EQ(Typed("d"), "Eva Vandal");
    EXPECT_EQ(Typed("d"), "Sven Vand");
    EXPECT_EQ(Typed("D"), "Karl Vanderson");
    EXPECT_EQ(Shown(), "vand");
    EXPECT_EQ(Typed("a"), "Eva Vandal");
    EXPECT_EQ(Shown(), "vanda");
}

TEST_F(TypeAheadTest, ADoubleLetterOfANameIsALetter)
{
    Fill({"Anders Ek", "Anna Lind"});
    EXPECT_EQ(Typed("an"), "Anders Ek");
    EXPECT_EQ(Typed("n"), "Anna Lind");
    EXPECT_EQ(Shown(), "ann");
}

TEST_F(TypeAheadTest, ARepeatedLetterVisitsEverybodyWhoHasItOnce)
{
    std::mt19937 random(3);
    for (int round = 0; round < 40; ++round) {
        Names.clear();
        for (int row = 0; row < 30; ++row) {
            QString name;
            for (int i = 0; i < 8; ++i)
                name += "abcde -"[random() % 7];
            Names.Add("x" + name, row);
        }
        std::set<int> having;
        for (int row = 0; row < Names.count(); ++row)
            if (NameMatch("b").In(FromQString(Names.item(row)->text())))
                having.insert(row);
        Names.setCurrentRow(static_cast<int>(random() % 30));
        std::set<int> visited;
        for (std::size_t i = 0; i < having.size(); ++i) {
            Keys("b");
            visited.insert(Names.currentRow());
        }
        EXPECT_EQ(visited, having);
    }
}

TEST_F(TypeAheadTest, WhatWasTypedStandsAtTheFootOfTheList)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Piet Vos"});
    EXPECT_EQ(Shown(), "");
    Keys("va");
    EXPECT_EQ(Shown(), "va");
    const QRect area = Names.viewport()->geometry();
    EXPECT_TRUE(area.contains(Tag()->geometry()));
    EXPECT_LT(area.bottom() - Tag()->geometry().bottom(), 8);
    EXPECT_LT(area.right() - Tag()->geometry().right(), 8);
    EXPECT_TRUE(Tag()->testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(TypeAheadTest, TheTagNeverCoversTheChosenEntry)
{
    for (int row = 0; row < 30; ++row)
        Names.Add(QString("Ek ") + QChar('a' + row % 26) + QString::number(row), row);
    for (const int height : {70, 95, 120, 200}) {
        Names.resize(300, height);
        Settle();
        Names.setCurrentRow(0);
        for (int row = 1; row < 30; ++row) {
            Keys("e");
            ASSERT_EQ(Names.currentRow(), row);
            EXPECT_TRUE(Names.viewport()->geometry().contains(Tag()->geometry())) << row;
            EXPECT_FALSE(Tag()->geometry().intersects(EntryOf(row))) << row << " in " << height;
        }
        Names.scrollToTop();
        EXPECT_FALSE(Tag()->geometry().intersects(EntryOf(29)));
        Names.resize(300, height - 7);
        Settle();
        EXPECT_TRUE(Names.viewport()->geometry().contains(Tag()->geometry()));
        Press(&Names, Qt::Key_Escape);
    }
}

TEST_F(TypeAheadTest, AnEntryThatIsScrolledToTheFootPushesTheTagUp)
{
    for (int row = 0; row < 30; ++row)
        Names.Add(QString("Ek %1").arg(row), row);
    Names.setCurrentRow(14);
    Keys("e");
    ASSERT_EQ(Names.currentRow(), 15);
    Names.scrollToItem(Names.item(15), QAbstractItemView::PositionAtTop);
    const int foot = Tag()->y();
    Names.scrollToItem(Names.item(15), QAbstractItemView::PositionAtBottom);
    EXPECT_LT(Tag()->y(), foot);
    EXPECT_FALSE(Tag()->geometry().intersects(EntryOf(15)));
}

TEST_F(TypeAheadTest, ATextTooWideForTheListShowsItsEnd)
{
    Fill({"Ward Tilton"});
    Keys(QString(80, 'w') + "x");
    const QRect area = Names.viewport()->geometry();
    EXPECT_TRUE(area.contains(Tag()->geometry()));
    const QImage before = Tag()->grab().toImage();
    Keys("i");
    EXPECT_NE(Tag()->grab().toImage(), before);
}

TEST_F(TypeAheadTest, NothingFoundIsToldBySignAndWordsAndTheChoiceStays)
{
    Fill({"Ward Tilton", "Karl Vanderson"});
    EXPECT_EQ(Typed("v"), "Karl Vanderson");
    const int plain = Tag()->width();
    QSignalSpy changes(&Names, &QListWidget::itemSelectionChanged);
    EXPECT_EQ(Typed("x"), "Karl Vanderson");
    EXPECT_EQ(Shown(), "vx: not found");
    EXPECT_EQ(Tag()->accessibleName(), "Typed: vx: not found");
    EXPECT_GT(Tag()->width(), plain + Tag()->fontMetrics().horizontalAdvance("x: not found")) << "the sign has room";
    EXPECT_EQ(Typed("y"), "Karl Vanderson");
    EXPECT_EQ(Shown(), "vxy: not found");
    EXPECT_EQ(Names.currentRow(), 1);
    EXPECT_TRUE(changes.isEmpty());
}

TEST_F(TypeAheadTest, WithNobodyCurrentAndNothingFoundNobodyIsChosen)
{
    Fill({"Ward Tilton"});
    EXPECT_EQ(Typed("x"), "nobody");
    EXPECT_EQ(Names.currentRow(), -1);
    EXPECT_EQ(Shown(), "x: not found");
}

TEST_F(TypeAheadTest, BackspaceTakesALetterBack)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Piet Vos", "Vera Ek"});
    EXPECT_EQ(Typed("vo"), "Piet Vos");
    Press(&Names, Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "v");
    EXPECT_EQ(Chosen(), "Piet Vos") << "he has it too";
    EXPECT_EQ(Typed("ax"), "Karl Vanderson");
    EXPECT_EQ(Shown(), "vax: not found");
    Press(&Names, Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "va");
    EXPECT_EQ(Chosen(), "Karl Vanderson");
    Press(&Names, Qt::Key_Backspace);
    Press(&Names, Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Typed("w"), "Ward Tilton") << "a search of its own";
}

TEST_F(TypeAheadTest, BackspaceFromWhatNobodyHasFindsWhoHasTheRest)
{
    Fill({"Ward Tilton", "Karl Vanderson"});
    Names.setCurrentRow(0);
    Keys("xx");
    Press(&Names, Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "x: not found");
    EXPECT_EQ(Chosen(), "Ward Tilton");
    Press(&Names, Qt::Key_Escape);
    Keys("v");
    Keys("q");
    Press(&Names, Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "v");
    EXPECT_EQ(Chosen(), "Karl Vanderson");
}

TEST_F(TypeAheadTest, SpaceIsALetterWithinASearchAlone)
{
    Fill({"Ward Tilton", "Ward Vos"});
    Names.setCurrentRow(0, QItemSelectionModel::NoUpdate);
    Press(&Names, Qt::Key_Space);
    EXPECT_EQ(Chosen(), "Ward Tilton") << "it chooses the current entry";
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Typed("ward v"), "Ward Vos");
    EXPECT_EQ(Shown(), "ward v");
    EXPECT_EQ(Typed("  "), "Ward Vos");
    EXPECT_EQ(Shown(), "ward v  : not found");
}

TEST_F(TypeAheadTest, TheSearchIsOverWithTheIntervalOfInput)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Tor Anders"});
    QApplication::setKeyboardInputInterval(0);
    EXPECT_EQ(Typed("v"), "Karl Vanderson");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Shown().empty(); }));
    EXPECT_EQ(Chosen(), "Karl Vanderson");
    QApplication::setKeyboardInputInterval(600000);
    EXPECT_EQ(Typed("an"), "Tor Anders") << "not \"van\"";
    EXPECT_EQ(Shown(), "an");
}

TEST_F(TypeAheadTest, EveryLetterBeginsTheIntervalAnew)
{
    Fill({"Ward Tilton", "Karl Vanderson"});
    Keys("v");
    EXPECT_EQ(Shown(), "v");
    QApplication::setKeyboardInputInterval(0);
    QTest::keyClick(&Names, Qt::Key_Backspace);
    QTest::keyClick(&Names, 'v');
    QTest::keyClick(&Names, 'a');
    EXPECT_EQ(Shown(), "va");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Shown().empty(); }));
}

// What else ends a search, and what the tag and the choice are then.
TEST_F(TypeAheadTest, WhateverElseChoosesEndsTheSearch)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Piet Vos"});
    QWidget other(&Window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"Escape", [&] { Press(&Names, Qt::Key_Escape); }},
        {"an arrow", [&] { Press(&Names, Qt::Key_Down); }},
        {"an arrow at the end", [&] { Press(&Names, Qt::Key_End); }},
        {"Enter", [&] { Press(&Names, Qt::Key_Return); }},
        {"the mouse",
         [&] {
             QTest::mouseClick(Names.viewport(), Qt::LeftButton, {}, {5, 5});
         }},
        {"the mouse on the chosen entry",
         [&] {
             QTest::mouseClick(Names.viewport(), Qt::LeftButton, {},
                               Names.visualItemRect(Names.currentItem()).center());
         }},
        {"code", [&] { Names.setCurrentRow(0); }},
        {"nobody chosen", [&] { Names.Unchoose(); }},
        {"the choice alone taken away", [&] { Names.clearSelection(); }},
        {"another widget", [&] { other.setFocus(); }},
        {"the toolkit's way", [&] { Names.keyboardSearch(QString()); }},
    };
    for (const auto& [name, end] : ways) {
        Names.setFocus();
        Names.setCurrentRow(0);
        ASSERT_EQ(Typed("vos"), "Piet Vos") << name;
        ASSERT_EQ(Shown(), "vos") << name;
        end();
        EXPECT_EQ(Shown(), "") << name;
    }
    Names.setFocus();
    Keys("vos");
    Names.clear();
    EXPECT_EQ(Shown(), "");
}

TEST_F(TypeAheadTest, KeysThatOnlyAccompanyALetterLetTheSearchGoOn)
{
    Fill({"Ward Tilton", "Karl Vanderson"});
    Keys("v");
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_AltGr, Qt::Key_CapsLock, Qt::Key_Dead_Acute})
        QTest::sendKeyEvent(QTest::Click, &Names, key, QString(), Qt::NoModifier);
    EXPECT_EQ(Shown(), "v");
    QTest::keyClick(&Names, 'A', Qt::ShiftModifier);
    EXPECT_EQ(Shown(), "vA");
}

TEST_F(TypeAheadTest, LettersWithControlOrAltAreNoneOfASearch)
{
    Fill({"Ward Tilton", "Karl Vanderson"});
    QTest::keyClick(&Names, 'v', Qt::ControlModifier);
    QTest::keyClick(&Names, 'v', Qt::AltModifier);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Chosen(), "nobody");
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_Delete, Qt::Key_Tab})
        QTest::keyClick(&Names, key);
    EXPECT_EQ(Shown(), "");
}

TEST_F(TypeAheadTest, AnEmptyListSearchesNobody)
{
    Keys("v");
    EXPECT_EQ(Shown(), "");
}

TEST_F(TypeAheadTest, AListInWhichNobodyCanBeChosenSearchesNobody)
{
    Fill({"Ward Tilton"});
    Names.setSelectionMode(QAbstractItemView::NoSelection);
    Keys("t");
    EXPECT_EQ(Shown(), "");
}

TEST_F(TypeAheadTest, CommandsOfTheWindowGetTheKeysOfASearchOnlyOutsideOfOne)
{
    Fill({"Ward Tilton", "Karl Vanderson"});
    int runs = 0;
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Space})
        QObject::connect(new QShortcut(key, &Window), &QShortcut::activated, &Window, [&runs] { ++runs; });
    Keys("va");
    Keys(" ");
    EXPECT_EQ(Shown(), "va : not found");
    Press(&Names, Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "va");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(runs, 0);
    Press(&Names, Qt::Key_Escape);
    Press(&Names, Qt::Key_Backspace);
    Press(&Names, Qt::Key_Space);
    EXPECT_EQ(runs, 3);
}

TEST_F(TypeAheadTest, EnterActsOnWhomLettersChose)
{
    Fill({"Ward Tilton", "Karl Vanderson"});
    QSignalSpy enters(&Names, &EntryList::EnterPressed);
    Keys("vand");
    Press(&Names, Qt::Key_Return);
    EXPECT_EQ(enters.count(), 1);
    EXPECT_EQ(Chosen(), "Karl Vanderson");
}

TEST_F(TypeAheadTest, MarksBehindANameAreNoPartOfIt)
{
    Fill({"Ward Tilton (C) *", "Karl Dreyer (LW)-RFA", "Piet Vos (G)*", "Eva Ek*"});
    for (const char* marks : {"c", "rfa", "lw", "g", "g*"}) {
        Keys(marks);
        EXPECT_EQ(Shown(), marks + std::string(": not found"));
        Press(&Names, Qt::Key_Escape);
    }
    EXPECT_EQ(Typed("ek"), "Eva Ek*");
    Press(&Names, Qt::Key_Escape);
    Names.Unchoose();
    for (const char* sign : {"(", "*", "-", "'"}) {
        EXPECT_EQ(Typed(sign), "nobody") << sign;
        EXPECT_EQ(Shown(), "") << "a search begins with a letter or a digit";
    }
}

TEST_F(TypeAheadTest, DigitsOfANameArePartsOfIt)
{
    Fill({"Skater 7", "Skater 12"});
    EXPECT_EQ(Typed("12"), "Skater 12");
}

TEST(EntryNameTest, EndsWhereTheMarksBegin)
{
    const QRegularExpression marks(R"(( \([A-Z]{1,2}\))?(-RFA)?( ?\*)*$)");
    std::mt19937 random(9);
    const char* pieces[] = {" (C)", " (LW)", " (LWD)", " (c)", "-RFA", "*", " *", " ", "(G)", "W", ")", "()", "A", "("};
    int marked = 0;
    for (int round = 0; round < 20000; ++round) {
        QString text = random() % 8 == 0 ? "" : "Ward";
        for (unsigned piece = random() % 5; piece > 0; --piece)
            text += pieces[random() % std::size(pieces)];
        const qsizetype length = text.size() - marks.match(text).capturedLength();
        ASSERT_EQ(NameLength(text), length) << text.toStdString();
        marked += length < text.size() ? 1 : 0;
    }
    EXPECT_GT(marked, 4000);
}

using TypeAheadInPicks = TypeAheadIn<PickList>;

TEST_F(TypeAheadInPicks, ALetterPicksOnceAndAlone)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Piet Vos"});
    Names.selectAll();
    ASSERT_EQ(Names.ChosenCount(), 3);
    QSignalSpy picks(&Names, &PickList::Picked);
    EXPECT_EQ(Typed("v"), "Karl Vanderson");
    EXPECT_EQ(picks.count(), 1);
    EXPECT_EQ(Names.ChosenCount(), 1);
    Keys("o");
    EXPECT_EQ(picks.count(), 2);
    EXPECT_EQ(Chosen(), "Piet Vos");
    Keys("x");
    EXPECT_EQ(picks.count(), 2) << "nobody was chosen";
    Press(&Names, Qt::Key_Backspace);
    EXPECT_EQ(picks.count(), 2);
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(picks.count(), 2);
}

class FoundLetters : public TypeAheadTest {
protected:
    static constexpr int SideMargin = 4; // left of an entry's text

    QImage Painted(int row) const { return Names.viewport()->grab(Names.visualItemRect(Names.item(row))).toImage(); }
    // The columns of pixels in which two pictures differ, from the text's beginning on.
    static std::pair<int, int> Differing(const QImage& one, const QImage& other)
    {
        std::pair<int, int> columns{-1, -1};
        for (int x = 0; x < one.width(); ++x)
            for (int y = 0; y < one.height(); ++y)
                if (one.pixel(x, y) != other.pixel(x, y))
                    columns = {columns.first < 0 ? x - SideMargin : columns.first, x - SideMargin + 1};
        return columns;
    }
    int Advance(const QString& text) const { return Names.fontMetrics().horizontalAdvance(text); }
};

TEST_F(FoundLetters, AreUnderlinedInEveryEntryThatHasThemWhileTheSearchLasts)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Luc D'Aubremont", "Evan Derksen"});
    Names.setCurrentRow(1);
    Settle();
    std::vector<QImage> before;
    for (int row = 0; row < Names.count(); ++row)
        before.push_back(Painted(row));
    EXPECT_EQ(Typed("van"), "Karl Vanderson");
    EXPECT_EQ(Painted(0), before[0]);
    EXPECT_EQ(Differing(Painted(1), before[1]), std::pair(Advance("Karl "), Advance("Karl Van"))) << "chosen";
    EXPECT_EQ(Painted(2), before[2]);
    EXPECT_EQ(Differing(Painted(3), before[3]), std::pair(Advance("E"), Advance("Evan"))) << "not chosen";
    Keys("d");
    EXPECT_EQ(Differing(Painted(1), before[1]), std::pair(Advance("Karl "), Advance("Karl Vand")));
    EXPECT_EQ(Painted(3), before[3]) << "has them no longer";
    Press(&Names, Qt::Key_Escape);
    for (int row = 0; row < Names.count(); ++row)
        EXPECT_EQ(Painted(row), before[static_cast<std::size_t>(row)]) << row;
}

TEST_F(FoundLetters, AreUnderlinedAsTheNameWritesThemAndNotInItsMarks)
{
    Fill({"Piet Vos", "Luc D'Aubremont (A)", "R\xE9mi Gauthi\xE8re (RW)-RFA"});
    Names.setCurrentRow(1);
    Settle();
    QImage before = Painted(1);
    EXPECT_EQ(Typed("daub"), "Luc D'Aubremont (A)");
    EXPECT_EQ(Differing(Painted(1), before), std::pair(Advance("Luc "), Advance("Luc D'Aub")));
    Press(&Names, Qt::Key_Escape);
    Names.setCurrentRow(2);
    Settle();
    before = Painted(2);
    EXPECT_EQ(Typed("rem"), "R\xE9mi Gauthi\xE8re (RW)-RFA");
    EXPECT_EQ(Differing(Painted(2), before), std::pair(0, Advance(ToQString("R\xE9m"))));
}

TEST_F(FoundLetters, AreNotUnderlinedBehindTheSignOfACut)
{
    Names.CutNamesFirst();
    const QString name = QString(40, 'W') + " Vos";
    Names.Add("Ward Tilton", 0);
    Names.Add(name, 1);
    Names.setCurrentRow(1);
    Settle();
    const QImage before = Painted(1);
    EXPECT_EQ(Typed("vos"), name.toStdString());
    EXPECT_EQ(Painted(1), before);
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Typed("w"), "Ward Tilton");
    EXPECT_EQ(Typed("w"), name.toStdString());
    EXPECT_EQ(Differing(Painted(1), before), std::pair(0, Advance("W")));
}

TEST_F(FoundLetters, TheLineStandsOutFromEveryGround)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Evan Derksen"});
    for (const QPalette& palette : DesktopPalettes()) {
        Names.setPalette(palette);
        Names.setCurrentRow(1);
        Settle();
        const QImage chosen = Painted(1);
        const QImage other = Painted(2);
        Keys("van");
        ASSERT_EQ(Names.currentRow(), 1);
        for (const auto& [row, before] : {std::pair(1, chosen), std::pair(2, other)}) {
            const QImage with = Painted(row);
            double best = 0;
            for (int x = 0; x < with.width(); ++x)
                for (int y = 0; y < with.height(); ++y)
                    if (with.pixel(x, y) != before.pixel(x, y))
                        best = std::max(best, Contrast(with.pixelColor(x, y), before.pixelColor(x, y)));
            EXPECT_GE(best, 4.5) << row;
        }
        Press(&Names, Qt::Key_Escape);
    }
}

using TypeAheadInRanks = TypeAheadIn<RankList>;

TEST_F(TypeAheadInRanks, LettersChooseThereToo)
{
    Fill({"Ward Tilton", "Karl Vanderson", "Piet Vos"});
    EXPECT_EQ(Typed("vos"), "Piet Vos");
    EXPECT_EQ(Shown(), "vos");
    Press(&Names, Qt::Key_Escape);
    EXPECT_EQ(Shown(), "");
}

class TypeAheadOnScreens : public OnEveryScreen {
protected:
    Unhurried NoHurry;
};

TEST_F(TypeAheadOnScreens, EveryListFindsTheLastWordOfANameAndShowsIt)
{
    std::set<std::string> seen;
    EachScreen([&](Screen& screen, const std::string& name) {
        for (EntryList* list : screen.findChildren<EntryList*>()) {
            if (!list->isVisible() || !list->isEnabled() || list->count() < 3)
                continue;
            QString text = list->item(list->count() - 1)->text();
            text.truncate(NameLength(text));
            const QString word = text.section(' ', -1);
            list->setFocus();
            for (const QChar letter : word)
                QTest::sendKeyEvent(QTest::Click, list, Qt::Key_unknown, QString(letter), Qt::NoModifier);
            Settle();
            const std::string where = name + ": " + list->objectName().toStdString();
            ASSERT_NE(list->Chosen(), nullptr) << where;
            EXPECT_TRUE(list->Chosen()->text().contains(word)) << where << ": " << word.toStdString();
            const auto* tag = list->findChild<TypedTag*>();
            ASSERT_NE(tag, nullptr) << where;
            EXPECT_TRUE(tag->isVisible()) << where;
            EXPECT_EQ(tag->text(), word) << where;
            list->scrollToItem(list->Chosen());
            const QRect chosen = list->visualItemRect(list->Chosen());
            const QImage found = list->viewport()->grab(chosen).toImage();
            QTest::keyClick(list, Qt::Key_Escape);
            EXPECT_FALSE(tag->isVisible()) << where;
            EXPECT_NE(list->viewport()->grab(chosen).toImage(), found) << where << ": no line under what was found";
            seen.insert(name.substr(0, name.find(',')));
        }
    });
    for (const char* name : {"Main", "Roster", "Line", "FarmLine", "FreeAgent", "Draft"})
        EXPECT_EQ(seen.count(name), 1U) << name;
}

} // namespace
} // namespace dravik
