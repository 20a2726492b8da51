#include "OnEveryScreen.h"
#include "PaintedContrast.h"
#include "screens/lines/LineSheet.h"
#include "screens/lines/LinesScreen.h"
#include "screens/Looks.h"
#include "screens/main/GuideWindow.h"
#include "screens/panels/Crest.h"
#include "screens/panels/DayStrip.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/Labels.h"
#include "screens/panels/LinkLabel.h"
#include "screens/panels/LookWindow.h"
#include "screens/panels/Plot.h"
#include "screens/panels/ReasonsBox.h"
#include "screens/panels/Shades.h"
#include "screens/panels/SlotLabel.h"
#include "screens/panels/TypedTag.h"
#include "screens/panels/Verdict.h"
#include "screens/platform/FusionLook.h"
#include "screens/squad/frmSquad.h"
#include "screens/squad/SquadModel.h"
#include "screens/team/CalendarWindow.h"
#include "screens/team/GraphsWindow.h"

#include <map>
#include <QGroupBox>

namespace dravik {
namespace {

constexpr double Readable = 4.5;

std::vector<QPalette> AllPalettes()
{
    std::vector<QPalette> palettes = DesktopPalettes();
    palettes.push_back(LightPalette());
    palettes.push_back(DarkPalette());
    return palettes;
}

void Use(const QPalette& palette)
{
    QApplication::setStyle(new FusionLook);
    QApplication::setPalette(palette);
}

class ContrastTest : public OnEveryScreen {
protected:
    ContrastTest() { QApplication::setFont(SharpFont()); }
    ~ContrastTest() override
    {
        QApplication::setFont(Font);
        UseLightLook();
    }

    // Measures the words that are painted within `area` of a widget; what is scrolled away is left out.
    void Measure(const QImage& picture, const QWidget& widget, const QRect& area, const std::string& what)
    {
        if (widget.window() != Window || !widget.isVisible() ||
            !widget.visibleRegion().contains(area.intersected(widget.rect())))
            return;
        const QRect within(widget.mapTo(widget.window(), area.topLeft()), area.size());
        const auto contrast = PaintedContrast(picture, within);
        if (!contrast)
            return;
        ++Measured[what];
        EXPECT_GE(*contrast, Readable) << what << " " << widget.objectName().toStdString() << " on " << Where;
    }

    // All secondary words of a window.
    void MeasureAll(QWidget& screen)
    {
        const QImage picture = screen.grab().toImage();
        Window = &screen;
        for (QLabel* label : screen.findChildren<QLabel*>()) {
            if (dynamic_cast<MutedLabel*>(label) != nullptr)
                Measure(picture, *label, label->contentsRect(), "muted label");
            if (dynamic_cast<LinkLabel*>(label) != nullptr)
                Measure(picture, *label, label->contentsRect(), "link");
            if (auto* verdict = dynamic_cast<VerdictLabel*>(label)) {
                const int sign = verdict->fontMetrics().height();
                Measure(picture, *verdict, verdict->rect().adjusted(sign + Gap, 0, 0, 0), "verdict");
            }
            if (auto* slot = dynamic_cast<SlotLabel*>(label))
                MeasureSlot(picture, *slot);
        }
        for (EntryList* list : screen.findChildren<EntryList*>())
            MeasureEntries(picture, *list);
        for (const auto* slider : screen.findChildren<QAbstractSlider*>())
            for (int day = 1; day <= DayStrip::Days; ++day) {
                const auto* strip = dynamic_cast<const DayStrip*>(slider);
                if (strip == nullptr)
                    break;
                QRect cell = strip->CellOf(day).adjusted(4, 4, -4, -6);
                if (day <= strip->maximum())
                    cell.setTop(cell.center().y());
                Measure(picture, *strip, cell, "day");
            }
        for (auto* reasons : screen.findChildren<ReasonsBox*>())
            if (reasons->toPlainText().isEmpty())
                Measure(picture, *reasons->viewport(), reasons->viewport()->rect().adjusted(0, 0, -2, 0),
                        "empty reasons");
        for (const auto* box : screen.findChildren<EditBox*>())
            if (!box->isEnabled() && !box->text().isEmpty())
                Measure(picture, *box, box->rect().adjusted(4, 4, -4, -4), "closed box");
    }

    // The cells of its tables, the words below its graphs and in its empty boxes.
    void MeasureTables(QWidget& window)
    {
        const QImage picture = window.grab().toImage();
        Window = &window;
        constexpr int edge = 4;
        constexpr int barBelow = 7; // a bar may stand below a number
        for (const auto* table : window.findChildren<QTableView*>())
            for (int row = 0; row < std::min(table->model()->rowCount(), 4); ++row)
                for (int column = 0; column < table->model()->columnCount(); ++column) {
                    const QModelIndex cell = table->model()->index(row, column);
                    if (table->isColumnHidden(column) || table->indexWidget(cell) != nullptr)
                        continue;
                    QRect words = table->visualRect(cell).adjusted(1, 1, -edge, -barBelow);
                    if (cell.data(SquadModel::SignRole).isValid()) // a shape with soft edges
                        words.setLeft(words.right() - table->fontMetrics().horizontalAdvance(cell.data().toString()));
                    if (cell.data(entry::CrestRole).isValid()) // colours of its own
                        words.setLeft(words.left() + CrestRoom(table->fontMetrics()) + edge);
                    if (table->viewport()->rect().contains(table->visualRect(cell)))
                        Measure(picture, *table->viewport(), words, "cell");
                }
        for (const auto* part : window.findChildren<QWidget*>())
            if (const auto* plot = dynamic_cast<const Plot*>(part))
                Measure(picture, *plot, plot->rect().adjusted(0, plot->height() - plot->fontMetrics().height(), -2, 0),
                        "words below a graph");
        for (const auto* box : window.findChildren<QLineEdit*>())
            if (box->text().isEmpty() && !box->placeholderText().isEmpty())
                Measure(picture, *box, box->rect().adjusted(edge, edge, -2 * edge, -edge), "placeholder");
    }

    const QFont Font = QApplication::font();
    std::map<std::string, int> Measured;
    std::string Where;
    const QWidget* Window = nullptr; // that is measured, without those that belong to it

private:
    void MeasureSlot(const QImage& picture, const SlotLabel& slot)
    {
        const QFontMetrics metrics(HeadingFont(slot.font()));
        QRect inside = slot.rect().adjusted(Gap, 4, -Gap, -4);
        if (slot.IsStacked()) // the name stands below
            inside.setBottom(slot.rect().center().y());
        QRect tag = inside;
        tag.setWidth(metrics.horizontalAdvance("RW"));
        Measure(picture, slot, tag, "tag of a slot");
        QRect aside = inside;
        aside.setLeft(inside.right() - slot.fontMetrics().horizontalAdvance(slot.Aside()));
        if (!slot.Aside().isEmpty())
            Measure(picture, slot, aside, "overall in a slot");
    }

    void MeasureEntries(const QImage& picture, const EntryList& list)
    {
        for (int row = 0; row < list.count(); ++row) {
            const QStringList aside = list.item(row)->data(entry::AsideRole).toStringList();
            if (aside.isEmpty())
                continue;
            const QRect entry = list.visualItemRect(list.item(row));
            const int width = list.fontMetrics().horizontalAdvance(aside.last());
            constexpr int margin = 8;
            const QRect words(entry.right() - margin - width, entry.top() + 2, width + 2, entry.height() - 4);
            Measure(picture, *list.viewport(), words,
                    list.item(row)->isSelected() ? "beside the chosen entry"
                    : row % 2 == 1               ? "beside an alternate entry"
                                                 : "beside an entry");
        }
    }
};

TEST_F(ContrastTest, EverySecondaryWordOnEveryGroundCanBeReadUnderEveryPalette)
{
    const std::vector<QPalette> palettes = AllPalettes();
    EachScreen([&](Screen& screen, const std::string& name) {
        for (std::size_t i = 0; i < palettes.size(); ++i) {
            Use(palettes[i]);
            Settle();
            Where = name + ", palette " + std::to_string(i);
            MeasureAll(screen);
            if (auto* lines = dynamic_cast<LinesScreen*>(&screen)) {
                if (lines->Sheet == nullptr)
                    lines->cmdSheet_Click();
                Settle();
                Where += ", sheet";
                MeasureAll(*lines->Sheet);
            }
        }
    });
    for (const char* what :
         {"muted label", "verdict", "tag of a slot", "overall in a slot", "day", "empty reasons", "closed box", "link",
          "beside an entry", "beside an alternate entry", "beside the chosen entry"})
        EXPECT_GE(Measured[what], static_cast<int>(palettes.size())) << what;
}

TEST_F(ContrastTest, TheWindowsBesideTheScreensCanBeReadUnderEveryPalette)
{
    Teams[OwnTeam].Password = "";
    MainWithLeague();
    CurrentTeam = OwnTeam;
    for (const auto look : {dravik::Look::Calendar, dravik::Look::Graphs})
        OpenLook(look, TheStage, Main(), {});
    TheStage.ShowSquad(Main());
    TheStage.ShowGuide(Main());
    auto* graphs = Main().findChild<LookWindow*>(GraphsWindow::Name);
    auto* pages = graphs->findChild<QTabWidget*>();
    const std::vector<QPalette> palettes = AllPalettes();
    for (std::size_t i = 0; i < palettes.size(); ++i) {
        Use(palettes[i]);
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            Settle();
            Where = "graph " + std::to_string(page) + ", palette " + std::to_string(i);
            MeasureAll(*graphs);
            MeasureTables(*graphs);
        }
        for (QWidget* window : std::initializer_list<QWidget*>{Main().findChild<LookWindow*>(CalendarWindow::Name),
                                                               TheStage.Squad(), TheStage.Guide()}) {
            Where = window->objectName().toStdString() + ", palette " + std::to_string(i);
            MeasureAll(*window);
            MeasureTables(*window);
        }
    }
    for (const char* what : {"muted label", "cell", "words below a graph", "placeholder"})
        EXPECT_GE(Measured[what], static_cast<int>(palettes.size())) << what;
}

TEST_F(ContrastTest, MutedWordsInAGroupCanBeRead)
{
    for (const QPalette& palette : AllPalettes()) {
        Use(palette);
        QGroupBox group("Group");
        group.resize(300, 100);
        MutedLabel label("Estimated Season Expense", &group);
        label.setGeometry(20, 40, 250, 30);
        group.show();
        Settle();
        const auto contrast = PaintedContrast(group.grab().toImage(), label.geometry());
        ASSERT_TRUE(contrast.has_value());
        EXPECT_GE(*contrast, Readable);
    }
}

TEST_F(ContrastTest, EveryDayCanBeReadWhetherItIsOpenOrNot)
{
    for (const QPalette& palette : AllPalettes()) {
        Use(palette);
        DayStrip strip;
        strip.SetGames(
            {"vs AAA", "at BBB", "vs CCC", "at DDD", "vs EEE", "at FFF", "vs GGG", "at HHH", "vs III", "vs JJJ"});
        strip.setMaximum(6);
        strip.setValue(2);
        strip.resize(strip.sizeHint());
        strip.show();
        for (const bool isEnabled : {true, false}) {
            strip.setEnabled(isEnabled);
            Settle();
            const QImage picture = strip.grab().toImage();
            for (int day = 1; day <= DayStrip::Days; ++day) {
                const QRect cell = strip.CellOf(day).adjusted(4, 4, -4, -6);
                for (const QRect& half :
                     {cell.adjusted(0, 0, 0, -cell.height() / 2), cell.adjusted(0, cell.height() / 2, 0, 0)}) {
                    const auto contrast = PaintedContrast(picture, half);
                    ASSERT_TRUE(contrast.has_value()) << day;
                    EXPECT_GE(*contrast, Readable) << day << (isEnabled ? "" : ", closed");
                }
            }
        }
    }
}

TEST_F(ContrastTest, WhatWasTypedInAListCanBeReadWhetherItIsFoundOrNot)
{
    QWidget list;
    list.resize(300, 100);
    TypedTag tag(&list);
    list.show();
    for (const QPalette& palette : AllPalettes()) {
        Use(palette);
        for (const bool isFound : {true, false}) {
            tag.Tell("Tilton", isFound);
            tag.PlaceIn(list.rect(), {});
            Settle();
            constexpr int edge = 3;
            const auto contrast =
                PaintedContrast(tag.grab().toImage(), tag.rect().adjusted(tag.width() / 2, edge, -edge - 1, -edge));
            ASSERT_TRUE(contrast.has_value());
            EXPECT_GE(*contrast, Readable) << (isFound ? "found" : "not found");
        }
    }
}

TEST_F(ContrastTest, AnEmptyReasonsBoxHeedsNoPlaceholderColourOfTheDesktop)
{
    ReasonsBox reasons("this roster");
    reasons.resize(400, reasons.height());
    reasons.show();
    for (const QPalette& palette : AllPalettes()) {
        Use(palette);
        Settle();
        const auto contrast = PaintedContrast(reasons.viewport()->grab().toImage(), reasons.viewport()->rect());
        ASSERT_TRUE(contrast.has_value());
        EXPECT_GE(*contrast, Readable);
    }
}

TEST(PaintedContrastTest, MeasuresWhatIsPainted)
{
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    EXPECT_FALSE(PaintedContrast(picture, picture.rect()).has_value());
    for (int y = 5; y < 10; ++y)
        picture.setPixelColor(7, y, Qt::black);
    EXPECT_NEAR(*PaintedContrast(picture, picture.rect()), 21, 0.01);
    EXPECT_FALSE(PaintedContrast(picture, QRect(10, 0, 30, 20)).has_value());
    const QColor grey("#808080"); // a row of another ground, on which the same words stand out less
    for (int x = 0; x < 40; ++x)
        if (x != 7)
            picture.setPixelColor(x, 9, grey);
    EXPECT_NEAR(*PaintedContrast(picture, picture.rect()), Contrast(Qt::black, grey), 0.01);
}

} // namespace
} // namespace dravik
