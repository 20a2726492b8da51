#include "screens/panels/PaperSheet.h"

#include "desk/LineUpPaper.h"
#include "desk/RosterPaper.h"
#include "OnStage.h"
#include "ReadPdf.h"
#include "screens/panels/SheetSize.h"
#include "screens/platform/CodePage.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QRegularExpression>

namespace dravik {
namespace {

using ::testing::HasSubstr;

// The papers of team 5 on sheets, as other programs read them from a PDF.
class PaperSheetTest : public OnStage {
protected:
    static constexpr Side Sides[] = {Side::Pro, Side::Farm};

    PaperSheetTest()
    {
        CompleteTeam(5);
        TeamMaker extra(5);
        extra.Scratches(3, position::LeftWing);
        Players[extra.Skaters[0]].Condition = 87;
        Players[extra.Skaters[0]].Injury = "Knee";
        LeagueData.Name = "Sample League";
        LeagueData.ShowOverall = true;
        Teams[5].Name = "Harbour City Gulls";
        Teams[5].Farm.Name = "Pebble Creek Ducks";
        for (int day = 2; day <= 10; ++day) {
            Teams[5].ProLines[day] = Teams[5].ProLines[1];
            Teams[5].Farm.FarmLines[day] = Teams[5].Farm.FarmLines[1];
        }
    }

    void SetUp() override
    {
#ifdef _WIN32
        GTEST_SKIP() << "The programs that read the PDF are those of other systems.";
#endif
    }

    static void NameAll(const std::string& name)
    {
        for (int slot = PlayerTable::first; slot <= PlayerTable::last; ++slot)
            Players[slot].Name = name;
        for (int slot = GoalieTable::first; slot <= GoalieTable::last; ++slot)
            Goalies[slot].Name = name;
    }

    [[nodiscard]] static Paper Days(Side side, int first, int last)
    {
        return LineUpPaper(OpenLeague, 5, side, first, last, "May 4 2031");
    }
    [[nodiscard]] Paper Roster() const { return RosterPaper(OpenLeague, Machine, 5, "May 4 2031"); }
    static ReadPdf Pdf(const Paper& paper, QPageSize::PageSizeId size = QPageSize::A4)
    {
        return ReadPdf(PaperSheet(paper).Pdf(size));
    }

    // The words of the paper's plain text, without the line under a heading.
    static QStringList WordsOf(const Paper& paper)
    {
        QStringList words = ToQString(PlainTextOf(paper)).split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
        words.removeIf([](const QString& word) { return word.count('=') == word.size(); });
        return words;
    }
    static QStringList WordsOf(const QString& text)
    {
        return text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
    }
};

TEST_F(PaperSheetTest, PdfIsSoundAndHoldsTheWordsOfThePlainText)
{
    for (const Paper& paper : {Days(Side::Pro, 1, 1), Days(Side::Farm, 3, 3), Roster()})
        for (const SheetSize& size : SheetSizes()) {
            const ReadPdf pdf = Pdf(paper, size.Size);
            EXPECT_TRUE(pdf.IsSound());
            EXPECT_EQ(pdf.Pages(), 1);
            EXPECT_EQ(WordsOf(pdf.Texts().join(' ')), WordsOf(paper));
        }
}

TEST_F(PaperSheetTest, PagesAreOfTheSizeThatIsAskedFor)
{
    EXPECT_EQ(Pdf(Roster(), QPageSize::A4).PageSize(), "595 x 842 pts (A4)");
    EXPECT_EQ(Pdf(Roster(), QPageSize::Letter).PageSize(), "612 x 792 pts (letter)");
}

TEST_F(PaperSheetTest, LongestNamesStillStandOnOnePageAndWhole)
{
    NameAll(std::string(40, 'W'));
    Teams[5].Name = std::string(40, 'W');
    Teams[5].Farm.Name = std::string(40, 'W');
    for (const Paper& paper : {Days(Side::Pro, 1, 1), Days(Side::Farm, 1, 1), Roster()})
        for (const SheetSize& size : SheetSizes()) {
            const ReadPdf pdf = Pdf(paper, size.Size);
            EXPECT_EQ(pdf.Pages(), 1) << paper.Title << " on " << size.Name;
            // A name on two lines is two words there.
            EXPECT_EQ(WordsOf(pdf.Texts().join(' ')).join(""), WordsOf(paper).join(""));
        }
}

TEST_F(PaperSheetTest, TenDaysAreTenPagesWhateverTheNames)
{
    const auto look = [](const char* name, Side side, const SheetSize& size) {
        NameAll(name);
        const ReadPdf pdf = Pdf(Days(side, 1, 10), size.Size);
        EXPECT_TRUE(pdf.IsSound());
        const QStringList pages = pdf.Texts();
        ASSERT_EQ(pages.size(), 10) << name << " on " << size.Name;
        for (int day = 1; day <= 10; ++day) {
            const QString& page = pages[day - 1];
            EXPECT_TRUE(page.contains(QString("Lines %1\n").arg(day))) << page.toStdString();
            EXPECT_TRUE(page.trimmed().endsWith(QString("Page %1 of 10").arg(day))) << page.toStdString();
            EXPECT_EQ(page.count("Forward Lines"), 1);
        }
    };
    for (const SheetSize& size : SheetSizes())
        look("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", Side::Pro, size);
    look("Ward Tilton", Side::Farm, SheetSizes().front());
}

TEST_F(PaperSheetTest, EveryPageOfSeveralSaysWhatItBelongsTo)
{
    for (const QString& page : Pdf(Days(Side::Pro, 1, 10)).Texts())
        EXPECT_THAT(page.toStdString(),
                    HasSubstr("Harbour City Gulls, pro lines, League: Sample League, Date: May 4 2031"));
}

TEST_F(PaperSheetTest, WhatAPageBelongsToEndsInFrontOfItsNumber)
{
    Paper paper = Days(Side::Pro, 1, 2);
    paper.Facts.clear();
    int whole = 0;
    int cut = 0;
    for (std::size_t letters = 20; letters <= 110; letters += 6) {
        paper.Title = std::string(letters, 'W');
        const std::vector<ReadPdf::Word> words = Pdf(paper).WordsOn(2);
        const auto title =
            std::find_if(words.begin(), words.end(), [](const auto& word) { return word.Text.startsWith("WWWWW"); });
        const auto page =
            std::find_if(words.begin(), words.end(), [](const auto& word) { return word.Text == "Page"; });
        ASSERT_TRUE(title != words.end() && page != words.end()) << letters;
        EXPECT_LT(title->Right, page->Left) << letters;
        (title->Text.size() == static_cast<qsizetype>(letters) ? whole : cut) += 1;
    }
    EXPECT_GT(whole, 0);
    EXPECT_GT(cut, 0);
}

TEST_F(PaperSheetTest, NamesStandAsTheyAre)
{
    const char* names[] = {"Ren\xE9 <b>\xD8stby</b>", "Flint &amp; Griffith", "</td></table><h1>",
                           "{[(%1)]} \\n \"x\""};
    for (const char* name : names) {
        NameAll(name);
        for (const Paper& paper : {Days(Side::Pro, 1, 1), Roster()})
            EXPECT_THAT(Pdf(paper).Texts().join(' ').toStdString(), HasSubstr(ToQString(name).toStdString()));
    }
}

TEST_F(PaperSheetTest, RosterThatIsTooLongRunsOn)
{
    for (int slot = 100; slot < 500; ++slot)
        PutSkater(slot, 5, position::Center, status::Farm);
    const Paper paper = Roster();
    const ReadPdf pdf = Pdf(paper);
    EXPECT_TRUE(pdf.IsSound());
    EXPECT_GT(pdf.Pages(), 3);
    const QString text = pdf.Texts().join(' ');
    for (const int slot : {100, 300, 499})
        EXPECT_TRUE(text.contains(ToQString(Players[slot].Name.Trimmed()))) << slot;
}

TEST_F(PaperSheetTest, IsBlackOnWhiteOnADarkDesktopToo)
{
    const QPalette before = QApplication::palette();
    QPalette dark(Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dark);
    const QByteArray greys = Pdf(Days(Side::Pro, 1, 1)).Greys();
    QApplication::setPalette(before);
    ASSERT_GT(greys.size(), 10000);
    const auto isLight = [](char grey) { return static_cast<unsigned char>(grey) > 250; };
    const auto isDark = [](char grey) { return static_cast<unsigned char>(grey) < 100; };
    EXPECT_GT(std::count_if(greys.begin(), greys.end(), isLight), greys.size() / 2);
    EXPECT_GT(std::count_if(greys.begin(), greys.end(), isDark), 100);
}

TEST_F(PaperSheetTest, PrintsThePagesThatAreAskedFor)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageRanges(QPageRanges::fromString("2,4-5"));
    EXPECT_EQ(PaperSheet(Days(Side::Pro, 1, 10)).PrintOn(writer), 10);
    const QStringList pages = ReadPdf(bytes.data()).Texts();
    ASSERT_EQ(pages.size(), 3);
    for (const auto& [at, day] : {std::pair(0, 2), {1, 4}, {2, 5}})
        EXPECT_TRUE(pages[at].contains(QString("Lines %1\n").arg(day)));
}

TEST_F(PaperSheetTest, WhereNothingCanBePaintedItFails)
{
    QPdfWriter writer(QString::fromStdString(Machine.InFolder("none/sheet.pdf")));
    int failed = 0;
    try {
        PaperSheet(Roster()).PrintOn(writer);
    } catch (const Failure& failure) {
        failed = failure.Number;
    }
    EXPECT_EQ(failed, failure::PathAccess);
}

TEST_F(PaperSheetTest, SizeIsTheOneInUseThereUntilOneIsChosen)
{
    EXPECT_EQ(UsualSheetSize(QLocale(QLocale::English, QLocale::UnitedStates)), QPageSize::Letter);
    EXPECT_EQ(UsualSheetSize(QLocale(QLocale::French, QLocale::Canada)), QPageSize::Letter);
    EXPECT_EQ(UsualSheetSize(QLocale(QLocale::Swedish, QLocale::Sweden)), QPageSize::A4);
    EXPECT_EQ(ChosenSheetSize(), QPageSize::Letter); // the tests are at home in the United States
    ChooseSheetSize(QPageSize::A4);
    EXPECT_EQ(ChosenSheetSize(), QPageSize::A4);
    EXPECT_EQ(Machine.Settings["Screens/SheetSize"], "A4");
}

} // namespace
} // namespace dravik
