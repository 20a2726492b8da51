#include "screens/panels/EntrySigns.h"
#include "OnStage.h"
#include "screens/panels/PickList.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

// The signs at the edge of an entry, and what they leave of everything else in it.
namespace dravik {
namespace {

PersonSigns With(std::initializer_list<PersonSign> all)
{
    PersonSigns signs;
    for (const PersonSign& sign : all)
        signs.Add(sign.Kind, sign.Number);
    return signs;
}

class EntrySignsTest : public OnStage {
protected:
    static constexpr int Wide = 400;

    EntrySignsTest()
    {
        new EntrySigns(&list, [this](int number) { return number == 1 ? shown : PersonSigns(); });
    }

    // What the list paints of its first entry at a width.
    QImage Painted(int width)
    {
        list.resize(width, 100);
        list.show();
        Settle();
        const QRect entry = list.visualItemRect(list.item(0));
        return list.viewport()->grab(entry & list.viewport()->rect()).toImage();
    }
    QImage PaintedWith(const PersonSigns& signs, int width = Wide)
    {
        shown = signs;
        return Painted(width);
    }
    [[nodiscard]] int Advance(const QString& text) const { return list.fontMetrics().horizontalAdvance(text); }
    // Whether the first entry is cut: then a tooltip tells it whole. One that is up from before would linger.
    bool IsCut()
    {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->inherits("QTipLabel"))
                delete top;
        const QPoint point = list.visualItemRect(list.item(0)).center();
        QHelpEvent help(QEvent::ToolTip, point, list.viewport()->mapToGlobal(point));
        QApplication::sendEvent(list.viewport(), &help);
        const bool isCut = !QToolTip::text().isEmpty();
        QToolTip::hideText();
        return isCut;
    }

    PickList list;
    PersonSigns shown;
};

TEST_F(EntrySignsTest, EverySignIsDrawnAndNoTwoAlike)
{
    list.Add("Ward Tilton", 1, {"C", "78"});
    std::vector<QImage> seen{PaintedWith({})};
    for (const SignRow& row : SignTable) {
        const QImage image = PaintedWith(With({{row.Kind, 8}}));
        for (const QImage& other : seen)
            EXPECT_NE(image, other) << row.Words;
        seen.push_back(image);
    }
}

TEST_F(EntrySignsTest, TheNumberBesideTheShapeIsDrawn)
{
    list.Add("Ward Tilton", 1, {"C", "78"});
    for (const Sign kind : {Sign::Injured, Sign::Suspended, Sign::InSlots})
        EXPECT_NE(PaintedWith(With({{kind, 3}})), PaintedWith(With({{kind, 4}})));
}

TEST_F(EntrySignsTest, TextNumberAndSecondaryWordsStayAsTheyAre)
{
    list.Add("Ward Tilton (C) *", 1, {"C", "78"});
    const QImage without = PaintedWith({});
    const QImage with = PaintedWith(With({{Sign::Injured, 87}, {Sign::Captain}, {Sign::InSlots, 7}}));
    EXPECT_EQ(list.item(0)->text(), "Ward Tilton (C) *");
    EXPECT_EQ(NumberOf(list.item(0)), 1);
    EXPECT_EQ(list.item(0)->data(entry::AsideRole).toStringList(), (QStringList{"C", "78"}));
    const int name = 4 + Advance("Ward Tilton (C) *") + 1;
    EXPECT_EQ(with.copy(0, 0, name, with.height()), without.copy(0, 0, name, without.height()));
    const int columns = 4 + 4 + 2 * (Advance("WW") + 8) - 8;
    EXPECT_EQ(with.copy(with.width() - columns, 0, columns, with.height()),
              without.copy(without.width() - columns, 0, columns, without.height()));
    EXPECT_NE(with, without);
}

TEST_F(EntrySignsTest, ASignOfNoTroubleIsDrawnOnlyBesideAWholeName)
{
    const QString name(24, 'm');
    list.CutNamesFirst();
    list.Add(name, 1, {"C", "78"});
    int drawn = 0;
    for (int width = 100; width <= Advance(name) + 140; width += 5) {
        const QImage without = PaintedWith({}, width);
        const bool wasCut = IsCut();
        const bool isDrawn = PaintedWith(With({{Sign::Rookie}}), width) != without;
        EXPECT_EQ(IsCut(), wasCut) << width;
        EXPECT_FALSE(isDrawn && wasCut) << width;
        drawn += isDrawn ? 1 : 0;
    }
    EXPECT_GT(drawn, 3);
}

TEST_F(EntrySignsTest, ANameGivesWayToTroubleWhereItGivesWayToSecondaryWords)
{
    const QString name(24, 'm');
    list.Add(name, 1, {"C", "78"});
    const PersonSigns injured = With({{Sign::Injured, 87}});
    const int justWhole =
        Advance(name) + 2 * (Advance("WW") + 8) + 30; // as wide as name and words need, and a little more
    const QImage without = PaintedWith({}, justWhole);
    EXPECT_EQ(PaintedWith(injured, justWhole), without);
    list.CutNamesFirst();
    shown = {};
    ASSERT_FALSE(IsCut());
    EXPECT_NE(PaintedWith(injured, justWhole), without);
    EXPECT_TRUE(IsCut());
    constexpr int narrow = 70;
    EXPECT_EQ(PaintedWith(injured, narrow), PaintedWith({}, narrow)) << "half of the entry stays for the name";
}

TEST_F(EntrySignsTest, WhereThereIsNoRoomForAllTheLeastImportantGoFirst)
{
    const PersonSigns all = With({{Sign::Rookie}, {Sign::InSlots, 7}, {Sign::Captain}, {Sign::Injured, 87}});
    const QFontMetrics metrics = list.fontMetrics();
    constexpr int name = 100;
    std::vector<Sign> last;
    for (int room = 400; room >= name; --room) {
        const SignStrip strip = FitSigns(all, metrics, room, name, name);
        EXPECT_LE(strip.Room + name, std::max(room, name));
        std::vector<Sign> kinds;
        for (const auto& drawn : strip.Signs)
            kinds.push_back(drawn.Sign.Kind);
        if (kinds.size() != last.size())
            last = kinds;
        const std::vector<Sign> ordered[] = {{},
                                             {Sign::Injured},
                                             {Sign::Injured, Sign::InSlots},
                                             {Sign::Injured, Sign::Captain, Sign::InSlots},
                                             {Sign::Injured, Sign::Captain, Sign::Rookie, Sign::InSlots}};
        ASSERT_LT(kinds.size(), std::size(ordered));
        EXPECT_EQ(kinds, ordered[kinds.size()]) << room;
    }
    EXPECT_TRUE(last.empty());
}

TEST_F(EntrySignsTest, NotUsedIsSaidInOneCharacterWhereTheWordsHaveNoRoom)
{
    const PersonSigns unused = With({{Sign::NotUsed}});
    const QFontMetrics metrics = list.fontMetrics();
    const SignStrip wide = FitSigns(unused, metrics, 300, 100, 100);
    ASSERT_EQ(wide.Signs.size(), 1U);
    EXPECT_FALSE(wide.Signs[0].IsShort);
    const SignStrip narrow = FitSigns(unused, metrics, 100 + wide.Room - 1, 100, 100);
    ASSERT_EQ(narrow.Signs.size(), 1U);
    EXPECT_TRUE(narrow.Signs[0].IsShort);
    EXPECT_TRUE(FitSigns(unused, metrics, 100 + narrow.Room - 1, 100, 100).Signs.empty());
}

TEST_F(EntrySignsTest, OnlyTroubleCountsForTheWidthAtWhichAListShowsEverything)
{
    list.Add("Ward Tilton", 1, {"C", "78"});
    const int usual = list.WidthOfWidestEntry();
    shown = With({{Sign::Rookie}, {Sign::Captain}, {Sign::InSlots, 7}, {Sign::NoTrade}, {Sign::NeedsWaivers}});
    EXPECT_EQ(list.WidthOfWidestEntry(), usual);
    const PersonSigns injured = With({{Sign::Injured, 87}});
    shown = injured;
    const int width = list.WidthOfWidestEntry();
    EXPECT_EQ(width - usual, RoomForTrouble(injured, list.fontMetrics()));
    EXPECT_GT(width, usual);
    EXPECT_NE(PaintedWith(injured, width), PaintedWith({}, width));
    list.CutNamesFirst();
    PaintedWith(injured, width);
    EXPECT_FALSE(IsCut());
}

TEST_F(EntrySignsTest, AScreenReaderIsToldTheirWordsBesideTheName)
{
    list.Add("Ward Tilton", 1, {"C", "78"});
    list.Add("Pia Vos", 2, {"D", "70"});
    shown = With({{Sign::Injured, 87}, {Sign::Suspended, 1}, {Sign::Rookie}});
    Painted(Wide);
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&list);
    EXPECT_EQ(reader->child(0)->text(QAccessible::Name), "Ward Tilton, C, 78");
    EXPECT_EQ(reader->child(0)->text(QAccessible::Description), "Injured, condition 87, Suspended for 1 game, Rookie");
    EXPECT_EQ(reader->child(1)->text(QAccessible::Description), "");
}

} // namespace
} // namespace dravik
