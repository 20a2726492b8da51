#include "screens/panels/EntryFigures.h"
#include "OnRosterScreen.h"
#include "PaintedContrast.h"
#include "screens/panels/EntrySigns.h"
#include "screens/panels/PickList.h"
#include "screens/platform/Palettes.h"

#include <QAccessible>

// The figures that a wide list tells of each entry, and what they leave of everything else in it.
namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

QString Accessible(const EntryList& list, int row, QAccessible::Text kind)
{
    QAccessibleInterface* shown = QAccessible::queryAccessibleInterface(const_cast<EntryList*>(&list));
    return shown->child(row)->text(kind);
}

// The ink of a picture within columns of pixels: the first and the last of them with another colour than the ground, which is
// the colour of the picture's upper left corner.
std::pair<int, int> Ink(const QImage& picture, int left, int right)
{
    std::pair<int, int> ink{-1, -1};
    for (int x = std::max(left, 0); x <= std::min(right, picture.width() - 1); ++x)
        for (int y = 0; y < picture.height(); ++y)
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                ink = {ink.first < 0 ? x : ink.first, x};
    return ink;
}

class EntryFiguresTest : public OnStage {
protected:
    EntryFiguresTest()
    {
        const auto column = [](const char* heading, const QStringList& told) {
            return FigureColumn{heading, QString(heading) + " in words",
                                [told](int number) { return told.value(number); },
                                [told](int number) { return told.value(number) + " told"; }};
        };
        List.CutNamesFirst();
        new EntrySigns(&List, [](int number) {
            PersonSigns signs;
            if (number == 1) {
                signs.Add(Sign::Injured, 87);
                signs.Add(Sign::Rookie);
            }
            return signs;
        });
        Figures = new EntryFigures(&List, {column("Cond.", {"100%", "87%", "5%"}), column("Age", {"27", "19", "8"}),
                                           column("Salary", {"$12,000,000", "$1", "$900"})});
        for (int number = 0; number <= 2; ++number)
            List.Add(Names[number], number, {"C", "78"});
    }

    // What the list paints of an entry at a width.
    QImage Painted(int width, int row)
    {
        List.resize(width, 200);
        List.show();
        Settle();
        return List.viewport()->grab(List.visualItemRect(List.item(row))).toImage();
    }
    [[nodiscard]] std::vector<std::string> Shown() const
    {
        std::vector<std::string> headings;
        for (const EntryFigures::Place& place : Figures->Places())
            headings.push_back(place.Column->Heading.toStdString());
        return headings;
    }
    static constexpr const char* Names[] = {"Ward Tilton", "Karl Vanderson-Lindholm", "Piet Vos"};
    static constexpr int Wide = 520;

    PickList List;
    EntryFigures* Figures = nullptr;
};

TEST_F(EntryFiguresTest, MoreColumnsComeWithTheWidthInTheirOrder)
{
    std::vector<std::vector<std::string>> seen;
    for (int width = 120; width <= Wide; ++width) {
        Painted(width, 0);
        if (seen.empty() || seen.back() != Shown())
            seen.push_back(Shown());
    }
    EXPECT_THAT(seen, ElementsAre(std::vector<std::string>{}, std::vector<std::string>{"Cond."},
                                  std::vector<std::string>{"Cond.", "Age"},
                                  std::vector<std::string>{"Cond.", "Age", "Salary"}));
    Painted(120, 0);
    EXPECT_THAT(Shown(), IsEmpty()) << "and go with it";
}

TEST_F(EntryFiguresTest, EveryEntryPaintsEachColumnAtItsRightEnd)
{
    int narrowest = 0;
    while (narrowest < Wide && (Painted(narrowest, 0), Shown().size() < 3))
        ++narrowest;
    for (const int width : {narrowest, Wide})
        for (int row = 0; row <= 2; ++row) {
            const QImage painted = Painted(width, row);
            ASSERT_EQ(Figures->Places().size(), 3U);
            for (const EntryFigures::Place& place : Figures->Places()) {
                const int right = painted.width() - 1 - place.FromRight;
                const QString figure = place.Column->Figure(row);
                const auto [first, last] = Ink(painted, right - place.Width + 1, right);
                EXPECT_GE(last, right - 2) << row << figure.toStdString();
                EXPECT_LE(last, right) << row << figure.toStdString();
                EXPECT_NEAR(last - first, List.fontMetrics().horizontalAdvance(figure), 4) << figure.toStdString();
                EXPECT_EQ(Ink(painted, right + 1, right + 3), std::pair(-1, -1)) << "the gap behind";
            }
        }
}

// The narrowest width with a column is the one to look at: the longest name, all signs and the secondary words are there.
TEST_F(EntryFiguresTest, NameSignsAndSecondaryWordsStayWholeBesideThem)
{
    for (const std::size_t count : {1U, 2U, 3U}) {
        int width = 0;
        while (width < Wide && (Painted(width, 0), Shown().size() < count))
            ++width;
        for (int row = 0; row <= 2; ++row) {
            const QImage with = Painted(width, row);
            const int left = with.width() - Figures->Room();
            PickList plain;
            plain.CutNamesFirst();
            new EntrySigns(&plain, [this](int number) { return EntrySigns::On(&List)->Of(number); });
            for (int number = 0; number <= 2; ++number)
                plain.Add(Names[number], number, {"C", "78"});
            plain.resize(List.width() - Figures->Room(), List.height());
            plain.show();
            Settle();
            const QImage alone = plain.viewport()->grab(plain.visualItemRect(plain.item(row))).toImage();
            ASSERT_EQ(alone.width(), left);
            const int content = left - 4; // the margin behind
            EXPECT_EQ(with.copy(0, 0, content, with.height()), alone.copy(0, 0, content, alone.height()))
                << count << Names[row];
            const SignStrip all = FitSigns(EntrySigns::On(&List)->Of(row), List.fontMetrics(), Wide, 0, 0);
            const int words = 4 + 2 * (List.fontMetrics().horizontalAdvance("WW") + 8);
            EXPECT_LE(4 + List.fontMetrics().horizontalAdvance(Names[row]) + all.Room + words, content);
        }
    }
}

TEST_F(EntryFiguresTest, AreSpokenBehindTheSignsAndAreNoPartOfAnythingElse)
{
    for (const int width : {120, Wide}) {
        Painted(width, 0);
        EXPECT_EQ(List.item(1)->text(), Names[1]);
        EXPECT_EQ(NumberOf(List.item(1)), 1);
        EXPECT_EQ(List.item(1)->data(entry::AsideRole).toStringList(), (QStringList{"C", "78"}));
        EXPECT_EQ(Accessible(List, 1, QAccessible::Name), QString(Names[1]) + ", C, 78");
        EXPECT_EQ(Accessible(List, 1, QAccessible::Description),
                  "Injured, condition 87, Rookie, 87% told, 19 told, $1 told");
        EXPECT_EQ(Accessible(List, 0, QAccessible::Description), "100% told, 27 told, $12,000,000 told");
    }
}

TEST_F(EntryFiguresTest, WidenNoList)
{
    PickList plain;
    new EntrySigns(&plain, [this](int number) { return EntrySigns::On(&List)->Of(number); });
    for (int number = 0; number <= 2; ++number)
        plain.Add(Names[number], number, {"C", "78"});
    EXPECT_EQ(List.WidthOfWidestEntry(), plain.WidthOfWidestEntry());
    EXPECT_EQ(List.sizeHint(), plain.sizeHint());
    EXPECT_EQ(List.minimumSizeHint(), plain.minimumSizeHint());
}

TEST_F(EntryFiguresTest, AListThatGetsALongerNameLeavesThemOutOfAllEntries)
{
    Painted(Wide, 0);
    ASSERT_EQ(Shown().size(), 3U);
    const QImage with = Painted(Wide, 0);
    List.Add(QString(60, 'W'), 0, {"C", "78"});
    Settle();
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_NE(Painted(Wide, 0), with);
    delete List.takeItem(3);
    Settle();
    EXPECT_EQ(Painted(Wide, 0), with);
}

TEST_F(EntryFiguresTest, AreMutedAsSecondaryWordsAreAndLegibleOnEveryGround)
{
    List.setFont(SharpFont());
    for (const QPalette& palette : DesktopPalettes()) {
        List.setPalette(palette);
        for (const int chosen : {0, 1}) {
            List.setCurrentRow(chosen, QItemSelectionModel::ClearAndSelect);
            const QImage painted = Painted(Wide + 100, 0);
            ASSERT_EQ(Figures->Places().size(), 3U);
            // Behind the name, which is not muted, and in front of the figures.
            constexpr int behindName = 120;
            const QRect secondary(behindName, 0, painted.width() - Figures->Room() - behindName + 4, painted.height());
            const double aside = PaintedContrast(painted, secondary).value_or(0);
            for (const EntryFigures::Place& place : Figures->Places()) {
                const int right = painted.width() - 1 - place.FromRight;
                const QRect area(right - place.Width + 1, 0, place.Width, painted.height());
                const double contrast = PaintedContrast(painted, area).value_or(0);
                EXPECT_GE(contrast, 4.49) << place.Column->Heading.toStdString() << chosen;
                EXPECT_NEAR(contrast, aside, 0.01) << place.Column->Heading.toStdString() << chosen;
            }
        }
    }
}

class RosterFigures : public OnRosterScreen {
protected:
    RosterFigures()
    {
        Player& player = PutSkater(1, 5, position::Center, status::Pro);
        player.Name = "Karl Vanderson";
        player.Condition = 97;
        player.Age = 27;
        player.Salary = 1200000;
        player.Contract = 3;
        player.Rookie = false;
        Goalie& goalie = PutGoalie(1, 5, status::Pro);
        goalie.Condition = 100;
        goalie.Age = 31;
        goalie.Salary = 750000;
        goalie.Contract = 1;
    }

    std::vector<std::string> Headings(int index)
    {
        std::vector<std::string> headings;
        for (const EntryFigures::Place& place : EntryFigures::On(Roster().lstPlayer[index])->Places())
            headings.push_back(place.Column->Heading.toStdString());
        return headings;
    }
    std::vector<std::string> Told(int row)
    {
        std::vector<std::string> told;
        const PickList* list = Roster().lstPlayer[status::Pro];
        if (row >= list->count())
            return told;
        for (const FigureColumn& column : EntryFigures::On(list)->Columns())
            told.push_back(column.Figure(*NumberOf(list->item(row))).toStdString());
        return told;
    }
    void Resize(QSize size)
    {
        Roster().resize(size);
        Settle();
        Roster().grab(); // paints
        Settle();
    }
    FigureHeadings* HeadingsOver(int index)
    {
        QWidget* column = Roster().lstPlayer[index]->parentWidget();
        for (QWidget* child : column->findChildren<QWidget*>())
            if (auto* headings = dynamic_cast<FigureHeadings*>(child))
                return headings;
        return nullptr;
    }
};

TEST_F(RosterFigures, AreConditionAgeSalaryAndContractOfSkatersAndGoalies)
{
    EXPECT_THAT(Told(0), ElementsAre("97%", "27", Machine.CurrencyNoDecimals(1200000), "3"));
    EXPECT_THAT(Told(1), ElementsAre("100%", "31", Machine.CurrencyNoDecimals(750000), "1"));
    Players[1].Condition = 55;
    EXPECT_EQ(Told(0).front(), "55%") << "asked for when it is drawn";
}

TEST_F(RosterFigures, AreSpokenWithTheirWords)
{
    const PickList& list = *Roster().lstPlayer[status::Pro];
    EXPECT_EQ(Accessible(list, 0, QAccessible::Name).toStdString(), "Karl Vanderson, C, 60");
    EXPECT_EQ(Accessible(list, 0, QAccessible::Description).toStdString(),
              "condition 97%, 27 years old, salary " + Machine.CurrencyNoDecimals(1200000) + ", contract for 3 years");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(Accessible(list, 1, QAccessible::Description).toStdString(),
              "condition 100%, 31 years old, salary " + Machine.CurrencyNoDecimals(750000) + ", contract for 1 year");
    Players[1].Contract = 0;
    EXPECT_TRUE(Accessible(list, 0, QAccessible::Description).endsWith(", no years of contract"));
}

TEST_F(RosterFigures, ComeWithAWideWindowAndGoWithANarrowOne)
{
    Players[1].Name = "Karl Vanderson-Lindholm";
    Roster();
    for (int round = 0; round < 2; ++round) {
        Resize({1280, 800});
        EXPECT_THAT(Headings(status::Pro), IsEmpty());
        Resize({1920, 1080});
        EXPECT_THAT(Headings(status::Pro), ElementsAre("Cond.", "Age", "Salary"));
        Resize({2400, 1080});
        EXPECT_THAT(Headings(status::Pro), ElementsAre("Cond.", "Age", "Salary", "Years"));
        EXPECT_THAT(Headings(status::Farm), IsEmpty()) << "nobody is there";
    }
}

TEST_F(RosterFigures, HeadingsStandOverTheirColumnsAndTellThemInATooltip)
{
    Roster();
    Resize({1000, 800});
    FigureHeadings* headings = HeadingsOver(status::Pro);
    ASSERT_NE(headings, nullptr);
    EXPECT_EQ(headings->toolTip(), "");
    const QImage blank = headings->grab().toImage();
    EXPECT_EQ(Ink(blank, 0, blank.width() - 1), std::pair(-1, -1));
    Resize({1920, 1080});
    EXPECT_EQ(headings->toolTip(), "Condition, Age, Salary, Years of contract");
    const QWidget* viewport = Roster().lstPlayer[status::Pro]->viewport();
    const int end = headings->mapFromGlobal(viewport->mapToGlobal(QPoint(viewport->width(), 0))).x() - 1;
    const QImage painted = headings->grab().toImage();
    for (const EntryFigures::Place& place : EntryFigures::On(Roster().lstPlayer[status::Pro])->Places()) {
        const int right = end - place.FromRight;
        const auto [first, last] = Ink(painted, right - place.Width + 1, right);
        EXPECT_GE(first, 0) << place.Column->Heading.toStdString();
        EXPECT_NEAR(last, right, 2) << place.Column->Heading.toStdString();
        EXPECT_EQ(Ink(painted, right + 1, right + 3), std::pair(-1, -1));
    }
}

TEST_F(RosterFigures, HeadingsTakeNoRoomOfTheirOwn)
{
    Roster();
    for (const QSize size : {QSize(1280, 800), QSize(1920, 1080)}) {
        Resize(size);
        for (int index = 0; index <= 2; ++index) {
            const QLabel* label = Roster().lblPlayer[index];
            EXPECT_EQ(label->height(), label->sizeHint().height());
            EXPECT_EQ(HeadingsOver(index)->height(), label->height());
            EXPECT_EQ(label->width(), label->sizeHint().width()) << "a heading is not cut for them";
        }
    }
}

} // namespace
} // namespace dravik
