#include "screens/panels/ShareCommand.h"

#include "AnswerDialog.h"
#include "desk/LineUpPaper.h"
#include "desk/RosterPaper.h"
#include "OnLineScreen.h"
#include "OnRosterScreen.h"
#include "ReadPdf.h"
#include "screens/platform/CodePage.h"

#include <filesystem>
#include <fstream>
#include <QClipboard>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <sstream>
#include <vector>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

ShareCommand* ShareOn(const QWidget& screen) { return screen.findChild<ShareCommand*>(); }

// Takes an item of the menu.
void TakeItem(const QWidget& screen, const QString& item)
{
    auto* action = ShareOn(screen)->findChild<QAction*>(item);
    ASSERT_NE(action, nullptr) << item.toStdString();
    action->trigger();
}

// Answers the dialog that asks for a file with `path`, as by keyboard, when it comes up; `proposed` is what it begins with.
void SaveTo(const std::string& path, QString* proposed = nullptr)
{
    OnDialog<QFileDialog>([path, proposed](QFileDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
        if (proposed != nullptr)
            *proposed = name->text();
        name->setText(QString::fromStdString(path));
        QTest::keyClick(name, Qt::Key_Return);
    });
}

std::string ContentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::stringstream read;
    read << file.rdbuf();
    return read.str();
}

// The captions of a menu, one of a part in front of those in it, "-" for a line.
std::vector<std::string> CaptionsOf(const QMenu& menu)
{
    std::vector<std::string> captions;
    for (const QAction* action : menu.actions()) {
        captions.push_back(action->isSeparator() ? "-" : action->text().toStdString());
        if (action->menu() != nullptr)
            for (const std::string& inner : CaptionsOf(*action->menu()))
                captions.push_back("  " + inner);
    }
    return captions;
}

// The command that shares the line-ups, on both lines screens.
class ShareLineUps : public OnLineScreen {
protected:
    // What stands on the clipboard behind a choice in the menu.
    static QString Copied(const LinesScreen& screen, const QString& item)
    {
        QGuiApplication::clipboard()->clear();
        TakeItem(screen, item);
        return QGuiApplication::clipboard()->text();
    }
};

TEST_F(ShareLineUps, CopiesTheShownDayInEachForm)
{
    Players[1].Name = "Ren\xE9 <b>[b]";
    frmLine& line = Line();
    line.vscDay->setValue(2);
    Modified = false; // the judge of the day has set it
    const Paper paper = LineUpPaper(OpenLeague, 5, Side::Pro, 2, 2, DateOfFile());
    EXPECT_EQ(Copied(line, "mnuShareDayText"), ToQString(PlainTextOf(paper)));
    EXPECT_EQ(Copied(line, "mnuShareDayForum"), ToQString(ForumTextOf(paper)));
    EXPECT_EQ(Copied(line, "mnuShareDayMarkdown"), ToQString(MarkdownOf(paper)));
    EXPECT_FALSE(Modified);
}

TEST_F(ShareLineUps, CopiesAllDaysOfTheFarm)
{
    EXPECT_EQ(Copied(FarmLine(), "mnuShareAllDaysText"),
              ToQString(PlainTextOf(LineUpPaper(OpenLeague, 5, Side::Farm, 1, 10, DateOfFile()))));
}

TEST_F(ShareLineUps, KeysOpenTheMenuAndCopy)
{
    frmLine& line = Line();
    auto* share = line.findChild<ShareCommand*>();
    ASSERT_NE(share, nullptr);
    QGuiApplication::clipboard()->clear();
    bool isOpen = false;
    QTimer::singleShot(0, share, [&] {
        isOpen = share->menu()->isVisible();
        QTest::keyClick(share->menu(), Qt::Key_Down);
        QTest::keyClick(share->menu(), Qt::Key_Right);
        if (QWidget* part = QApplication::activePopupWidget(); part != nullptr)
            QTest::keyClick(part, Qt::Key_Return);
        while (QWidget* left = QApplication::activePopupWidget())
            left->close();
    });
    share->setFocus();
    QTest::keyClick(share, Qt::Key_Space);
    EXPECT_TRUE(isOpen);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              ToQString(PlainTextOf(LineUpPaper(OpenLeague, 5, Side::Pro, 1, 1, DateOfFile()))));
}

TEST_F(ShareLineUps, MenuHoldsEveryFormOfADayAndOfAllDays)
{
    const std::vector<std::string> captions{"This &Day",
                                            "  Copy as Text",
                                            "  Copy for Forum",
                                            "  Copy as Markdown",
                                            "  -",
                                            "  Print ...",
                                            "  Print Preview ...",
                                            "  Save as PDF ...",
                                            "  Save as HTML ...",
                                            "&All Days",
                                            "  Copy as Text",
                                            "  Copy for Forum",
                                            "  Copy as Markdown",
                                            "  -",
                                            "  Print ...",
                                            "  Print Preview ...",
                                            "  Save as PDF ...",
                                            "  Save as HTML ...",
                                            "-",
                                            "Paper: A4",
                                            "Paper: Letter"};
    EXPECT_EQ(CaptionsOf(*ShareOn(Line())->menu()), captions);
    EXPECT_EQ(CaptionsOf(*ShareOn(FarmLine())->menu()), captions);
}

TEST_F(ShareLineUps, CopiesCarryTheDateOfTheFile)
{
    LeagueData.FileDate = 47972; // May 4 2031
    EXPECT_THAT(Copied(Line(), "mnuShareDayText").toStdString(), HasSubstr("\nDate: May 4 2031\n"));
    EXPECT_THAT(Copied(Line(), "mnuShareAllDaysForum").toStdString(), HasSubstr("\nDate: May 4 2031\n"));
}

TEST_F(ShareLineUps, SavesThePageOfHtmlThatTheDeskMakes)
{
    frmLine& line = Line();
    line.vscDay->setValue(2);
    Modified = false;
    const std::string path = Machine.InFolder("day.html");
    QString proposed;
    SaveTo(path, &proposed);
    TakeItem(line, "mnuShareDayHtml");
    EXPECT_EQ(proposed, "Harbour City Gulls, pro lines, Lines 2.html");
    EXPECT_EQ(ContentOf(path), HtmlOf(LineUpPaper(OpenLeague, 5, Side::Pro, 2, 2, DateOfFile())));
    EXPECT_FALSE(Modified);
}

TEST_F(ShareLineUps, SavesAPdfOfTheChosenSize)
{
    frmLine& line = Line();
    const std::string path = Machine.InFolder("days.pdf");
    QString proposed;
    for (const char* size : {"A4", "Letter"}) {
        TakeItem(line, QString("mnuShareSize") + size);
        EXPECT_EQ(Machine.Settings["Screens/SheetSize"], size);
        std::filesystem::remove(path);
        SaveTo(path, &proposed);
        TakeItem(line, "mnuShareAllDaysPdf");
        EXPECT_EQ(proposed, "Harbour City Gulls, pro lines.pdf");
#ifndef _WIN32
        const ReadPdf pdf(QByteArray::fromStdString(ContentOf(path)));
        EXPECT_TRUE(pdf.IsSound());
        EXPECT_EQ(pdf.Pages(), 10);
        EXPECT_THAT(pdf.PageSize().toLower().toStdString(), HasSubstr(QString(size).toLower().toStdString()));
#endif
    }
}

TEST_F(ShareLineUps, SizeThatIsChosenIsMarked)
{
    frmLine& line = Line();
    const auto marked = [&line] {
        QStringList names;
        emit ShareOn(line)->menu()->aboutToShow();
        for (const QAction* item : ShareOn(line)->menu()->actions())
            if (item->isChecked())
                names << item->text();
        return names;
    };
    EXPECT_EQ(marked(), QStringList{"Paper: Letter"});
    TakeItem(line, "mnuShareSizeA4");
    EXPECT_EQ(marked(), QStringList{"Paper: A4"});
    Machine.Settings["Screens/SheetSize"] = "Letter"; // chosen on another screen
    EXPECT_EQ(marked(), QStringList{"Paper: Letter"});
}

TEST_F(ShareLineUps, FailureIsToldAndLeavesTheFileThatWasThere)
{
    frmLine& line = Line();
    const std::string path = Machine.InFolder("day.html");
    SaveTo(path);
    TakeItem(line, "mnuShareDayHtml");
    const std::string before = ContentOf(path);
    ASSERT_FALSE(before.empty());
    Teams[5].Name = "Others";
    int failed = 0;
    bool isSaved = false;
    for (std::size_t operation = 1; !isSaved && operation < 20; ++operation) {
        Machine.FailFileOperation(operation, failure::DiskFull);
        OnDialog<QFileDialog>([&path](QFileDialog& dialog) {
            OnDialog<QMessageBox>([](QMessageBox& asked) { asked.button(QMessageBox::Yes)->click(); });
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            name->setText(QString::fromStdString(path));
            QTest::keyClick(name, Qt::Key_Return);
        });
        TakeItem(line, "mnuShareDayHtml");
        isSaved = Machine.Boxes().empty();
        if (isSaved)
            break;
        ++failed;
        EXPECT_EQ(Machine.TakeBoxes(),
                  std::vector<Box>(
                      {{box::Critical, "61 - Disk full in cmdShare_Click! Nothing was saved to " + path + "."}}));
        EXPECT_EQ(ContentOf(path), before);
        EXPECT_FALSE(std::filesystem::exists(path + ".part"));
    }
    Machine.FailNoMore();
    EXPECT_TRUE(isSaved);
    EXPECT_GE(failed, 5); // it is created, written, flushed, closed and named
    EXPECT_NE(ContentOf(path), before);
}

TEST_F(ShareLineUps, CancelSavesAndPrintsNothing)
{
    frmLine& line = Line();
    std::vector<const char*> items{"mnuShareDayPdf", "mnuShareDayHtml", "mnuShareDayPreview"};
#ifndef _WIN32 // where the dialog of the printers is the system's own
    items.push_back("mnuShareDayPrint");
#endif
    for (const char* item : items) {
        const auto operations = Machine.FileOperations().size();
        OnDialog<QDialog>([](QDialog& dialog) { dialog.reject(); });
        TakeItem(line, item);
        EXPECT_EQ(Machine.FileOperations().size(), operations) << item;
    }
    EXPECT_THAT(Machine.TakeBoxes(), ::testing::IsEmpty());
}

// What a screen says for a moment of what was done; none where nothing is said.
const QLabel* PassingWordsOn(const QWidget& screen)
{
    const auto* words = screen.findChild<QLabel*>("lblPassing");
    return words != nullptr && words->isVisibleTo(&screen) ? words : nullptr;
}

TEST_F(ShareLineUps, SaysAboveTheCommandWhereAFileWasSaved)
{
    frmLine& line = Line();
    line.show();
    EXPECT_EQ(PassingWordsOn(line), nullptr);
    QWidget* focused = line.focusWidget();
    for (const auto& [item, name] :
         {std::pair{"mnuShareDayHtml", "day.html"}, std::pair{"mnuShareAllDaysPdf", "days.pdf"}}) {
        const std::string path = Machine.InFolder(name);
        SaveTo(path);
        TakeItem(line, item);
        const QLabel* words = PassingWordsOn(line);
        ASSERT_NE(words, nullptr);
        EXPECT_EQ(words->text().toStdString(), "Saved to " + path);
        EXPECT_EQ(words->accessibleName(), words->text());
        EXPECT_TRUE(line.rect().contains(words->geometry()));
        const QWidget* share = ShareOn(line);
        EXPECT_LT(words->geometry().bottom(), share->mapTo(&line, QPoint(0, 0)).y());
        EXPECT_EQ(line.findChildren<QLabel*>("lblPassing").size(), 1);
        EXPECT_EQ(line.focusWidget(), focused);
        EXPECT_EQ(line.childAt(words->geometry().center()), [&] {
            QLabel* tag = line.findChild<QLabel*>("lblPassing");
            tag->hide();
            QWidget* below = line.childAt(tag->geometry().center());
            tag->show();
            return below;
        }());
    }
    auto* end = line.findChild<QLabel*>("lblPassing")->findChild<QTimer*>();
    ASSERT_NE(end, nullptr);
    EXPECT_TRUE(end->isActive());
    end->start(0);
    EXPECT_TRUE(QTest::qWaitFor([&line] { return PassingWordsOn(line) == nullptr; }));
}

TEST_F(ShareLineUps, SaysNothingWhereNothingWasSaved)
{
    frmLine& line = Line();
    OnDialog<QDialog>([](QDialog& dialog) { dialog.reject(); });
    TakeItem(line, "mnuShareDayHtml");
    EXPECT_EQ(PassingWordsOn(line), nullptr);
    Machine.FailFileOperation(1, failure::DiskFull);
    SaveTo(Machine.InFolder("day.html"));
    TakeItem(line, "mnuShareDayHtml");
    Machine.FailNoMore();
    Machine.ForgetBoxes("the failure is told elsewhere");
    EXPECT_EQ(PassingWordsOn(line), nullptr);
    TakeItem(line, "mnuShareDayText");
    EXPECT_EQ(PassingWordsOn(line), nullptr);
}

// A system without a printer offers a file.
TEST_F(ShareLineUps, PrintsWhereTheDialogSays)
{
#ifdef _WIN32
    GTEST_SKIP() << "The dialog is the system's own.";
#endif
    frmLine& line = Line();
    const QString path = QString::fromStdString(Machine.InFolder("printed.pdf"));
    OnDialog<QDialog>([&path](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "dlgPrint");
        auto* file = dialog.findChild<QLineEdit*>("filename");
        ASSERT_NE(file, nullptr);
        file->setText(path);
        dialog.accept();
    });
    TakeItem(line, "mnuShareAllDaysPrint");
    QFile printed(path);
    ASSERT_TRUE(printed.open(QIODevice::ReadOnly));
    const ReadPdf pdf(printed.readAll());
    EXPECT_TRUE(pdf.IsSound());
    EXPECT_EQ(pdf.Pages(), 10);
    EXPECT_THAT(pdf.Texts().at(0).toStdString(), HasSubstr("Harbour City Gulls, pro lines"));
}

TEST_F(ShareLineUps, PreviewShowsAllPages)
{
    frmLine& line = Line();
    bool isSeen = false;
    OnDialog<QDialog>([&isSeen](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "dlgPrintPreview");
        isSeen = QTest::qWaitFor([&dialog] {
            const auto labels = dialog.findChildren<QLabel*>();
            return std::any_of(labels.begin(), labels.end(),
                               [](const QLabel* label) { return label->text().contains("10"); });
        });
        dialog.reject();
    });
    TakeItem(line, "mnuShareAllDaysPreview");
    EXPECT_TRUE(isSeen);
}

// The command on the roster screen.
class ShareRoster : public OnRosterScreen {};

TEST_F(ShareRoster, HoldsEveryForm)
{
    PutSeven();
    EXPECT_THAT(CaptionsOf(*ShareOn(Roster())->menu()),
                ElementsAre("Copy as Text", "Copy for Forum", "Copy as Markdown", "-", "Print ...", "Print Preview ...",
                            "Save as PDF ...", "Save as HTML ...", "-", "Paper: A4", "Paper: Letter"));
}

TEST_F(ShareRoster, CopiesAndSavesTheRosterAsItStands)
{
    PutSeven();
    LeagueData.FileDate = 47972; // May 4 2031
    frmRoster& roster = Roster();
    ClickEntry(1, 0);
    Click(roster.cmdToPro);
    Machine.ForgetBoxes("what stands against the move is tried elsewhere");
    const Paper paper = RosterPaper(OpenLeague, Machine, 5, "May 4 2031");
    TakeItem(roster, "mnuShareRosterText");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), ToQString(PlainTextOf(paper)));
    const std::string path = Machine.InFolder("roster.html");
    QString proposed;
    SaveTo(path, &proposed);
    TakeItem(roster, "mnuShareRosterHtml");
    EXPECT_EQ(proposed, "Harbour City Gulls, roster.html");
    EXPECT_EQ(ContentOf(path), HtmlOf(paper));
}

TEST_F(ShareRoster, TabReachesTheCommandBehindTheMakers)
{
    PutSeven();
    frmRoster& roster = Roster();
    roster.cmdAutoRosterPartial->setFocus();
    Press(roster.cmdAutoRosterPartial, Qt::Key_Tab);
    EXPECT_TRUE(ShareOn(roster)->hasFocus());
    Press(ShareOn(roster), Qt::Key_Tab);
    EXPECT_FALSE(ShareOn(roster)->hasFocus());
}

} // namespace
} // namespace dravik
