#include "OnStage.h"
#include "PaintedContrast.h"
#include "PartReadAs.h"
#include "screens/panels/DayStrip.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/PayrollBar.h"
#include "screens/panels/RatingBar.h"
#include "screens/panels/Shades.h"
#include "screens/panels/SlotLabel.h"
#include "screens/panels/Verdict.h"
#include "screens/platform/BoxIcon.h"

#include <map>
#include <QProxyStyle>
#include <QStyleOption>
#include <QVBoxLayout>

namespace dravik {
namespace {

// What the panels that paint themselves put where, seen on their pixels.
class PaintedPanels : public OnStage {
protected:
    static QImage Picture(QWidget& widget, const QSize& size)
    {
        widget.setFont(SharpFont());
        widget.resize(size);
        widget.show();
        Settle();
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    static int Count(const QImage& picture, const QColor& colour, const QRect& area)
    {
        int pixels = 0;
        const QRect within = area & picture.rect();
        for (int y = within.top(); y <= within.bottom(); ++y)
            for (int x = within.left(); x <= within.right(); ++x)
                pixels += picture.pixel(x, y) == colour.rgb() ? 1 : 0;
        return pixels;
    }
    static bool Has(const QImage& picture, const QColor& colour, const QRect& area)
    {
        return Count(picture, colour, area) > 0;
    }

    // The columns of an area in which two pictures differ.
    static std::vector<int> ColumnsThatDiffer(const QImage& one, const QImage& other, const QRect& area)
    {
        std::vector<int> columns;
        for (int x = area.left(); x <= area.right(); ++x)
            for (int y = area.top(); y <= area.bottom(); ++y)
                if (one.pixel(x, y) != other.pixel(x, y)) {
                    columns.push_back(x);
                    break;
                }
        return columns;
    }
};

// Points of a sign in hundredths of its side, and whether the ink is on them.
struct InkAt {
    QMessageBox::Icon Icon;
    int X;
    int Y;
    bool IsInk;
};

constexpr InkAt Inks[] = {
    {QMessageBox::Critical, 34, 34, true},     {QMessageBox::Critical, 66, 34, true},
    {QMessageBox::Critical, 50, 50, true},     {QMessageBox::Critical, 34, 66, true},
    {QMessageBox::Critical, 66, 66, true},     {QMessageBox::Critical, 50, 30, false},
    {QMessageBox::Critical, 50, 70, false},    {QMessageBox::Critical, 25, 25, false},
    {QMessageBox::Critical, 75, 75, false},    {QMessageBox::Warning, 50, 25, false},
    {QMessageBox::Warning, 50, 39, true},      {QMessageBox::Warning, 50, 61, true},
    {QMessageBox::Warning, 50, 69, false},     {QMessageBox::Warning, 50, 76, true},
    {QMessageBox::Warning, 50, 84, false},     {QMessageBox::Information, 50, 20, false},
    {QMessageBox::Information, 50, 28, true},  {QMessageBox::Information, 50, 37, false},
    {QMessageBox::Information, 50, 47, true},  {QMessageBox::Information, 50, 73, true},
    {QMessageBox::Information, 50, 82, false}, {QMessageBox::Question, 37, 38, true},
    {QMessageBox::Question, 50, 24, true},     {QMessageBox::Question, 64, 38, true},
    {QMessageBox::Question, 50, 61, true},     {QMessageBox::Question, 50, 76, true},
    {QMessageBox::Question, 50, 15, false},    {QMessageBox::Question, 50, 38, false},
    {QMessageBox::Question, 37, 60, false},    {QMessageBox::Question, 50, 85, false},
};

TEST_F(PaintedPanels, EachSignHasItsInkWhereItsMarkIs)
{
    QPalette palette;
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::blue);
    const QColor warningInk("#241f14");
    for (const InkAt& row : Inks) {
        const QImage sign = BoxIcon(row.Icon, palette, 100, 1).toImage();
        const QColor ink = row.Icon == QMessageBox::Warning ? warningInk : QColor(Qt::white);
        EXPECT_EQ(sign.pixelColor(row.X, row.Y) == ink, row.IsInk) << row.Icon << ": " << row.X << ", " << row.Y;
    }
}

TEST_F(PaintedPanels, TheSignsLieOnTheirShapes)
{
    const auto isFilled = [](QMessageBox::Icon icon, int x, int y) {
        return BoxIcon(icon, QPalette(), 100, 1).toImage().pixelColor(x, y).alpha() == 255;
    };
    for (const auto disc : {QMessageBox::Critical, QMessageBox::Information, QMessageBox::Question}) {
        for (const auto& [x, y] : {std::pair(5, 50), std::pair(94, 50), std::pair(50, 5), std::pair(50, 94)})
            EXPECT_TRUE(isFilled(disc, x, y)) << disc << ": " << x << ", " << y;
        for (const auto& [x, y] : {std::pair(8, 8), std::pair(91, 8), std::pair(8, 91), std::pair(91, 91)})
            EXPECT_FALSE(isFilled(disc, x, y)) << disc << ": " << x << ", " << y;
    }
    for (const auto& [x, y] : {std::pair(50, 11), std::pair(92, 87), std::pair(7, 87), std::pair(50, 87)})
        EXPECT_TRUE(isFilled(QMessageBox::Warning, x, y)) << x << ", " << y;
    for (const auto& [x, y] : {std::pair(20, 30), std::pair(80, 30), std::pair(50, 96)})
        EXPECT_FALSE(isFilled(QMessageBox::Warning, x, y)) << x << ", " << y;
}

TEST_F(PaintedPanels, TheTickGoesThroughItsThreePoints)
{
    VerdictLabel verdict;
    QFont font = SharpFont();
    font.setPixelSize(96);
    verdict.setFont(font);
    verdict.Tell("Complete", true);
    verdict.resize(verdict.sizeHint());
    verdict.show();
    Settle();
    const QImage picture = verdict.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const double unit = verdict.fontMetrics().height() / 16.0;
    const auto isInk = [&](double x, double y) {
        return picture.pixel(static_cast<int>(x * unit), static_cast<int>(y * unit)) ==
               verdict.palette().color(QPalette::Active, QPalette::Highlight).rgb();
    };
    for (const auto& [x, y] : {std::pair(2.5, 9.0), std::pair(3.0, 8.0), std::pair(6.5, 12.5), std::pair(13.2, 3.6),
                               std::pair(9.75, 8.0), std::pair(4.75, 10.25)})
        EXPECT_TRUE(isInk(x, y)) << x << ", " << y;
    for (const auto& [x, y] : {std::pair(1.5, 8.5), std::pair(3.0, 7.0), std::pair(6.5, 14.0), std::pair(14.5, 4.0),
                               std::pair(13.0, 2.5), std::pair(8.0, 6.0)})
        EXPECT_FALSE(isInk(x, y)) << x << ", " << y;
}

TEST_F(PaintedPanels, AVerdictHasRoomForItsWordsBehindItsSign)
{
    VerdictLabel verdict;
    verdict.Tell("Lines are Incomplete", false);
    const int room = verdict.sizeHint().width() - verdict.fontMetrics().height() - Gap;
    EXPECT_GE(room, verdict.fontMetrics().horizontalAdvance("Lines are Incomplete"));
}

// What a bar shows of a standing, at an amount of money.
TEST_F(PaintedPanels, ThePayrollsPartsLieBesideEachOtherUpToTheMarkOfTheCap)
{
    PayrollBar panel;
    panel.Show({.Pro = 100, .Farm = 0, .Total = 150, .Cap = 200});
    panel.resize(900, 40);
    Settle();
    QWidget* bar = PartReadAs(panel, "Payroll");
    ASSERT_NE(bar, nullptr);
    const QColor back = bar->palette().color(QPalette::Window);
    const QColor front = bar->palette().color(QPalette::WindowText);
    const QColor accent = bar->palette().color(QPalette::Active, QPalette::Highlight);
    const auto colourAt = [bar](double part) {
        const QImage picture = bar->grab().toImage();
        return picture.pixelColor(static_cast<int>(part * picture.width()), picture.height() / 2).name();
    };
    constexpr double room = 220; // a tenth beyond the cap
    EXPECT_EQ(colourAt(50 / room), Mixed(accent, back, 0.15).name());
    EXPECT_EQ(colourAt(125 / room), Mixed(accent, back, 0.5).name());
    EXPECT_EQ(colourAt(175 / room), Mixed(back, front, 0.1).name());
    EXPECT_EQ(colourAt(200 / room), front.name());
    EXPECT_EQ(colourAt(210 / room), Mixed(back, front, 0.1).name());

    panel.Show({.Pro = 100, .Farm = 0, .Total = 400, .Cap = 200});
    Settle();
    EXPECT_EQ(colourAt(0.1), Mixed(accent, back, 0.15).name());
    EXPECT_EQ(colourAt(0.4), Mixed(accent, back, 0.5).name());
    EXPECT_EQ(colourAt(0.5), front.name());
    EXPECT_EQ(colourAt(0.75), Alarming(back).name());
    EXPECT_EQ(bar->grab().toImage().pixelColor(10, 0).name(), back.name()); // above the bar only the mark stands out
}

TEST_F(PaintedPanels, ABarIsAsLongAsItsRating)
{
    RatingBar bar;
    const auto ends = [&](int rating) {
        bar.SetValue(rating);
        const QImage picture = Picture(bar, {198, 10});
        const QRgb filled = Mixed(bar.palette().color(QPalette::Active, QPalette::Window),
                                  bar.palette().color(QPalette::Active, QPalette::Highlight), 0.62)
                                .rgb();
        int length = 0;
        while (length < picture.width() && picture.pixel(length, 5) == filled)
            ++length;
        return length;
    };
    EXPECT_EQ(ends(0), 0);
    EXPECT_EQ(ends(33), 66);
    EXPECT_EQ(ends(99), 198);
    EXPECT_EQ(ends(150), 198);
}

// Notes with which states the buttons are painted, by their left edges.
class NotedBevels final : public QProxyStyle {
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_PushButtonBevel)
            States[option->rect.left()] = option->state;
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable std::map<int, State> States;
};

TEST_F(PaintedPanels, OnlyTheDaysThatCanBeChosenLookSoAndTheFocusIsOnNoneOfTheirButtons)
{
    NotedBevels bevels;
    DayStrip strip;
    strip.setStyle(&bevels);
    strip.setMaximum(7);
    strip.setValue(3);
    strip.show();
    strip.activateWindow();
    strip.setFocus();
    strip.setAttribute(Qt::WA_UnderMouse);
    Settle();
    Picture(strip, {900, 60});
    EXPECT_TRUE(strip.hasFocus());
    for (int day = 2; day <= DayStrip::Days; ++day) { // the place of the first is that of a mere sample too
        const QStyle::State state = bevels.States.at(strip.CellOf(day).left());
        EXPECT_EQ(state.testFlag(QStyle::State_Enabled), day <= 7) << day;
        EXPECT_EQ(state.testFlag(QStyle::State_On), day == 3) << day;
        EXPECT_EQ(state.testFlag(QStyle::State_Off), day != 3) << day;
        EXPECT_FALSE(state.testFlag(QStyle::State_HasFocus)) << day;
        EXPECT_FALSE(state.testFlag(QStyle::State_MouseOver)) << day;
    }
}

TEST_F(PaintedPanels, TheNumberOfADayIsMutedWhereTheDayCannotBeChosen)
{
    DayStrip strip;
    strip.setMaximum(7);
    const QImage picture = Picture(strip, {900, 60});
    const QColor words = strip.palette().color(QPalette::Active, QPalette::ButtonText);
    for (int day = 2; day <= DayStrip::Days; ++day) // the first one is chosen
        EXPECT_EQ(Has(picture, words, strip.CellOf(day).adjusted(4, 4, -4, -4)), day <= 7) << day;
}

TEST_F(PaintedPanels, TheWordUnderADayStandsStraightBelowItsNumber)
{
    DayStrip strip;
    const QImage without = Picture(strip, {900, 60});
    strip.SetGames({"", "", "", "", "", "", "", "8"});
    const QImage with = Picture(strip, {900, 60});
    const QRect cell = strip.CellOf(8).adjusted(4, 4, -4, -4);
    const QColor words = strip.palette().color(QPalette::Active, QPalette::ButtonText);
    std::vector<int> number;
    for (int x = cell.left(); x <= cell.right(); ++x)
        if (Has(without, words, QRect(x, cell.top(), 1, cell.height())))
            number.push_back(x);
    ASSERT_FALSE(number.empty());
    EXPECT_EQ(ColumnsThatDiffer(without, with, cell), number);
}

TEST_F(PaintedPanels, ASlotTellsWhatIsWrongInRedAndASign)
{
    struct MarkRow {
        SlotLabel::Mark Mark;
        bool IsRed;
        bool HasPlainWords;
    };
    for (const MarkRow& row :
         {MarkRow{SlotLabel::Mark::Filled, false, true}, MarkRow{SlotLabel::Mark::Twice, true, true},
          MarkRow{SlotLabel::Mark::Refused, true, false}}) {
        SlotLabel slot("Line 1, C", "C");
        slot.SetName("Tilton");
        slot.SetMark(row.Mark);
        const QImage picture = Picture(slot, {220, 44});
        EXPECT_EQ(Has(picture, Alarming(slot.palette().color(QPalette::Base)), picture.rect()), row.IsRed)
            << static_cast<int>(row.Mark);
        EXPECT_EQ(Has(picture, slot.palette().color(QPalette::Text), picture.rect()), row.HasPlainWords)
            << static_cast<int>(row.Mark);
    }
}

TEST_F(PaintedPanels, NoNameRunsIntoTheSignOrTheOverallOfItsSlot)
{
    for (const auto mark : {SlotLabel::Mark::Filled, SlotLabel::Mark::Twice, SlotLabel::Mark::Refused})
        for (const char* overall : {"", "78"}) {
            const auto picture = [&](const QString& name) {
                SlotLabel slot("Line 1, C", "C");
                slot.SetMark(mark);
                slot.SetAside(overall);
                slot.SetName(name);
                return Picture(slot, {220, 44});
            };
            const QImage none = picture("");
            const QImage longest = picture(QString(40, 'W'));
            const QFontMetrics metrics{SharpFont()};
            const int sign = mark == SlotLabel::Mark::Filled ? 0 : metrics.height();
            const int aside = *overall == '\0' ? 0 : metrics.horizontalAdvance(overall) + Gap;
            const int right = none.width() - Gap - sign - aside;
            const QRect kept(right, 0, none.width() - right, none.height());
            EXPECT_TRUE(ColumnsThatDiffer(none, longest, kept).empty()) << static_cast<int>(mark) << overall;
            EXPECT_FALSE(ColumnsThatDiffer(none, longest, kept.translated(-4 * Gap, 0)).empty());
        }
}

TEST_F(PaintedPanels, ABoxPaintsItsTextInTheFontThatItIsGivenLater)
{
    QFont large = SharpFont();
    large.setPointSize(20);
    const auto shown = [&](bool isLate) {
        EditBox box;
        box.setText("109");
        if (!isLate)
            box.setFont(large);
        box.resize(300, 60);
        box.show();
        Settle();
        box.setFont(large);
        Settle();
        box.clearFocus();
        return box.grab().toImage();
    };
    EXPECT_EQ(shown(true), shown(false));
}

} // namespace
} // namespace dravik
