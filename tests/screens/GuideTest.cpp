#include "OnEveryScreen.h"
#include "PaintedContrast.h"
#include "rules/PersonSigns.h"
#include "screens/Looks.h"
#include "screens/main/frmMain.h"
#include "screens/main/GuideWindow.h"
#include "screens/panels/KeyTable.h"
#include "screens/panels/LookWindow.h"
#include "screens/panels/Shades.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/Palettes.h"
#include "screens/squad/frmSquad.h"
#include "screens/team/GraphsWindow.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QSet>
#include <QTextBlock>
#include <QTextTable>

namespace dravik {
namespace {

class GuideTest : public OnEveryScreen {
protected:
    GuideTest() { Teams[OwnTeam].Password = ""; }

    using Texts = QSet<QString>;

    GuideWindow& Opened()
    {
        if (TheStage.Find("Main") == nullptr)
            MainWithLeague();
        Main().mnuGuide->trigger();
        Settle();
        return *TheStage.Guide();
    }

    static QString Plain(QString caption)
    {
        return caption.replace("&&", "\n").remove('&').replace('\n', '&').trimmed();
    }

    // Every word by which a window calls something.
    static void AddCaptions(const QWidget& window, Texts& captions)
    {
        for (const auto* button : window.findChildren<QAbstractButton*>())
            captions << Plain(button->text());
        for (const auto* action : window.findChildren<QAction*>())
            captions << Plain(action->text());
        for (const auto* group : window.findChildren<QGroupBox*>())
            captions << Plain(group->title());
        for (const auto* label : window.findChildren<QLabel*>())
            captions << Plain(label->text());
        for (const auto* tabs : window.findChildren<QTabBar*>())
            for (int tab = 0; tab < tabs->count(); ++tab)
                captions << Plain(tabs->tabText(tab));
        for (const auto* header : window.findChildren<QHeaderView*>())
            for (int column = 0; column < header->count(); ++column)
                captions << header->model()->headerData(column, header->orientation()).toString();
    }

    // The runs of the guide's text that are of a kind, without headings and heads of tables.
    template <class Is>
    static QStringList Runs(const GuideWindow& guide, const Is& isOfKind)
    {
        QStringList runs;
        for (QTextBlock block = guide.txtGuide->document()->begin(); block.isValid(); block = block.next()) {
            const QTextCursor at(block);
            const QTextTable* table = at.currentTable();
            if (block.blockFormat().headingLevel() != 0 || (table != nullptr && table->cellAt(at).row() == 0))
                continue;
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (isOfKind(part.fragment().charFormat()))
                    runs << part.fragment().text().simplified();
        }
        return runs;
    }
    static bool IsBold(const QTextCharFormat& format) { return format.fontWeight() >= QFont::Bold; }

    // The table whose head row begins so.
    static QTextTable* TableOf(const GuideWindow& guide, const QString& first)
    {
        for (QTextFrame* frame : guide.txtGuide->document()->rootFrame()->childFrames())
            if (auto* table = qobject_cast<QTextTable*>(frame))
                if (CellText(*table, 0, 0) == first)
                    return table;
        return nullptr;
    }
    static QString CellText(const QTextTable& table, int row, int column)
    {
        const QTextTableCell cell = table.cellAt(row, column);
        QTextCursor words = cell.firstCursorPosition();
        words.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
        return words.selectedText();
    }
};

TEST_F(GuideTest, EveryCaptionThatItQuotesStandsOnAScreen)
{
    Texts captions;
    EachScreen([&](Screen& screen, const std::string&) { AddCaptions(screen, captions); });
    // A league in another state has other commands.
    LeagueData.OffSeason = true;
    GuideWindow& guide = Opened();
    TheStage.ShowSquad(Main());
    AddCaptions(*TheStage.Squad(), captions);
    CurrentTeam = OwnTeam;
    for (const auto look : {dravik::Look::Calendar, dravik::Look::Graphs})
        OpenLook(look, TheStage, Main(), {});
    for (const auto* look : Main().findChildren<LookWindow*>())
        AddCaptions(*look, captions);

    const QStringList quoted = Runs(guide, [](const QTextCharFormat& format) { return IsBold(format); });
    EXPECT_GE(quoted.size(), 50);
    captions << "Bold"; // the word that tells of them
    for (const QString& caption : quoted)
        EXPECT_TRUE(captions.contains(caption)) << caption.toStdString();
}

TEST_F(GuideTest, EveryKeyThatItTellsIsInTheTableOfKeys)
{
    Texts keys{"grey", "Enter", "Earlier", "Crests",
               ".png", ".dvs",  "Ctrl",    "Shift"}; // the word itself, the desktop's own, and names
    for (const KeyRow& row : KeyTable())
        for (const QString& key : KeysOf(row).split(" / "))
            keys << key;
    int told = 0;
    const GuideWindow& guide = Opened();
    for (const QString& key : Runs(guide, [](const QTextCharFormat& format) { return format.fontFixedPitch(); })) {
        EXPECT_TRUE(keys.contains(key)) << key.toStdString();
        ++told;
    }
    EXPECT_GE(told, 15);
}

TEST_F(GuideTest, EveryLinkLeadsToItsHeading)
{
    GuideWindow& guide = Opened();
    QSet<QString> links;
    for (QTextBlock block = guide.txtGuide->document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().isAnchor()) {
                const QString link = part.fragment().charFormat().anchorHref();
                links << link;
                ASSERT_TRUE(link.startsWith('#')) << "nothing in it leads out of the program: " << link.toStdString();
                EXPECT_TRUE(guide.GoTo(link.mid(1))) << link.toStdString();
                EXPECT_EQ(guide.txtGuide->textCursor().block().text(), part.fragment().text()) << link.toStdString();
            }
    EXPECT_EQ(links.size(), 7);
    EXPECT_FALSE(guide.GoTo("no-such-chapter"));
}

TEST_F(GuideTest, EveryPictureIsThere)
{
    const GuideWindow& guide = Opened();
    int pictures = 0;
    for (QTextBlock block = guide.txtGuide->document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().isImageFormat()) {
                const QString name = part.fragment().charFormat().toImageFormat().name();
                const QVariant picture = guide.txtGuide->document()->resource(QTextDocument::ImageResource, name);
                EXPECT_EQ(picture.value<QImage>().deviceIndependentSize().width(), 700) << name.toStdString();
                ++pictures;
            }
    EXPECT_EQ(pictures, 9);
}

TEST_F(GuideTest, NoPictureIsWiderThanThePage)
{
    GuideWindow& guide = Opened();
    for (const int width : {1040, 700, 1200}) {
        guide.resize(width, 700);
        Settle();
        const QTextDocument& document = *guide.txtGuide->document();
        const double page = guide.txtGuide->viewport()->width() - 2 * document.documentMargin();
        int pictures = 0;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().isImageFormat()) {
                    const QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
                    EXPECT_DOUBLE_EQ(picture.width(), std::min(700.0, page)) << width;
                    ++pictures;
                }
        EXPECT_EQ(pictures, 9);
        EXPECT_EQ(guide.txtGuide->horizontalScrollBar()->maximum(), 0) << width;
    }
}

TEST_F(GuideTest, TheSignsStandThereWithTheirMeanings)
{
    const QTextTable* table = TableOf(Opened(), "sign");
    ASSERT_NE(table, nullptr);
    ASSERT_EQ(table->rows(), static_cast<int>(SignTable.size()) + 1);
    for (std::size_t at = 0; at < SignTable.size(); ++at)
        EXPECT_EQ(CellText(*table, static_cast<int>(at) + 1, 1), ToQString(SignTable.at(at).Meaning));
}

TEST_F(GuideTest, TheGraphsStandThereWithTheirCaptions)
{
    const GuideWindow& guide = Opened();
    CurrentTeam = OwnTeam;
    OpenLook(dravik::Look::Graphs, TheStage, Main(), {});
    auto* graphs = Main().findChild<LookWindow*>(GraphsWindow::Name);
    ASSERT_NE(graphs, nullptr);
    const QTextTable* table = TableOf(guide, "graph");
    ASSERT_NE(table, nullptr);
    const QStringList names{"Payroll", "Ages", "Days", "Ranks"};
    ASSERT_EQ(table->rows(), names.size() + 1);
    for (int row = 0; row < names.size(); ++row) {
        const QString caption = graphs->findChild<QLabel*>("lbl" + names.at(row))->text();
        EXPECT_TRUE(caption.startsWith(CellText(*table, row + 1, 1).chopped(1))) << caption.toStdString();
    }
}

TEST_F(GuideTest, AChapterIsGoneToByAPressAndByKey)
{
    GuideWindow& guide = Opened();
    QListWidgetItem* chapter = guide.lstChapters->findItems("Signs", Qt::MatchExactly).value(0);
    ASSERT_NE(chapter, nullptr);
    guide.lstChapters->scrollToItem(chapter);
    QTest::mouseClick(guide.lstChapters->viewport(), Qt::LeftButton, {},
                      guide.lstChapters->visualItemRect(chapter).center());
    EXPECT_EQ(guide.txtGuide->textCursor().block().text(), "Signs");
    EXPECT_LT(guide.txtGuide->cursorRect().top(), 2 * guide.txtGuide->fontMetrics().height()) << "it stands at the top";
    QTest::keyClick(guide.lstChapters, Qt::Key_Down);
    EXPECT_EQ(guide.txtGuide->textCursor().block().text(), "Tables");
}

TEST_F(GuideTest, ASearchGoesOnRoundAndTellsWhereNothingIs)
{
    GuideWindow& guide = Opened();
    QTest::keyClicks(guide.txtFind, "payroll");
    const int first = guide.txtGuide->textCursor().position();
    EXPECT_EQ(guide.txtGuide->textCursor().selectedText().toLower(), "payroll");
    QTest::keyClick(guide.txtFind, Qt::Key_Return);
    const int second = guide.txtGuide->textCursor().position();
    EXPECT_GT(second, first);
    QTest::mouseClick(guide.cmdBefore, Qt::LeftButton);
    EXPECT_EQ(guide.txtGuide->textCursor().position(), first);
    QTest::mouseClick(guide.cmdBefore, Qt::LeftButton);
    EXPECT_GT(guide.txtGuide->textCursor().position(), second);
    EXPECT_EQ(guide.lblFound->text(), "Found from the end on");
    QTest::keyClick(guide.txtFind, Qt::Key_Return);
    EXPECT_EQ(guide.txtGuide->textCursor().position(), first);
    EXPECT_EQ(guide.lblFound->text(), "Found from the beginning on");
    QTest::keyClicks(guide.txtFind, "xyzzy");
    EXPECT_EQ(guide.lblFound->text(), "Not found");
    EXPECT_EQ(guide.txtGuide->textCursor().position(), first) << "the place stays";
}

TEST_F(GuideTest, ItComesUpFromEveryScreenStaysBesideItAndGoesWithEsc)
{
    int screens = 0;
    EachScreen([&](Screen& screen, const std::string& name) {
        if (name.find(',') != std::string::npos || name == "About")
            return;
        ++screens;
        QTest::keyClick(&screen, Qt::Key_F1, Qt::ShiftModifier);
        Settle();
        ASSERT_NE(TheStage.Guide(), nullptr) << name;
        EXPECT_TRUE(TheStage.Guide()->isVisible()) << name;
        EXPECT_TRUE(screen.isVisible()) << name;
        QTest::keyClick(TheStage.Guide()->txtFind, Qt::Key_Escape);
        EXPECT_FALSE(TheStage.Guide()->isVisible()) << name;
    });
    EXPECT_EQ(screens, 9);
}

TEST_F(GuideTest, ItGoesWithTheProgram)
{
    MainWithLeague();
    const QPointer<GuideWindow> guide = &Opened();
    Main().mnuExit->trigger();
    Settle();
    EXPECT_TRUE(guide.isNull());
}

TEST_F(GuideTest, ItsPartsAreFoundByTheirNames)
{
    const GuideWindow& guide = Opened();
    EXPECT_EQ(guide.objectName(), "GuideWindow");
    EXPECT_EQ(guide.findChild<QListWidget*>("lstChapters"), guide.lstChapters);
    EXPECT_EQ(guide.findChild<QTextBrowser*>("txtGuide"), guide.txtGuide);
    EXPECT_EQ(guide.findChild<QLineEdit*>("txtFind"), guide.txtFind);
    EXPECT_EQ(guide.findChild<QPushButton*>("cmdNext"), guide.cmdNext);
    EXPECT_EQ(guide.findChild<QPushButton*>("cmdBefore"), guide.cmdBefore);
    EXPECT_EQ(guide.findChild<QLabel*>("lblFound"), guide.lblFound);
    EXPECT_EQ(guide.windowTitle(), "Guide");
    EXPECT_EQ(guide.cmdNext->text(), "&Next");
    EXPECT_EQ(guide.cmdBefore->text(), "&Before");
    EXPECT_EQ(guide.txtFind->placeholderText(), "Find");
    EXPECT_EQ(guide.lstChapters->accessibleName(), "Chapters");
    EXPECT_EQ(guide.txtGuide->accessibleName(), "Guide");
    EXPECT_EQ(guide.txtFind->accessibleName(), "Find in the guide");
}

TEST_F(GuideTest, ItsPlaceAndItsColoursFollowTheLook)
{
    GuideWindow& guide = Opened();
    guide.GoTo("tables");
    UseDarkLook();
    Settle();
    EXPECT_EQ(guide.txtGuide->textCursor().block().text(), "Tables");
    EXPECT_EQ(guide.txtGuide->palette().color(QPalette::Link), LinkText(guide.palette()));
    const auto placeholder = [&] { return guide.txtFind->palette().color(QPalette::PlaceholderText); };
    EXPECT_EQ(placeholder(), Muted(guide.palette().color(QPalette::Text), guide.palette().color(QPalette::Base)));
    UseLightLook();
    Settle();
    EXPECT_EQ(placeholder(), Muted(guide.palette().color(QPalette::Text), guide.palette().color(QPalette::Base)));
    EXPECT_EQ(guide.txtGuide->palette().color(QPalette::Link), LinkText(guide.palette()));
}

// Words have the colours of the look at hand, and so have links.
TEST_F(GuideTest, LinksOfTheTextFollowTheLook)
{
    GuideWindow& guide = Opened();
    const auto colours = [&guide] {
        QSet<QRgb> all;
        for (QTextBlock block = guide.txtGuide->document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().isAnchor())
                    all << part.fragment().charFormat().foreground().color().rgb();
        return all;
    };
    for (void (*use)() : {UseDarkLook, UseLightLook, UseDarkLook}) {
        use();
        Settle();
        EXPECT_EQ(colours(), QSet<QRgb>{LinkText(guide.palette()).rgb()});
    }
    UseLightLook();
    Settle();
}

} // namespace
} // namespace dravik
