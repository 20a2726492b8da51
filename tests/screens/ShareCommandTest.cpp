#include "screens/panels/ShareCommand.h"

#include "desk/LineUpPaper.h"
#include "OnLineScreen.h"
#include "screens/platform/CodePage.h"

#include <QClipboard>
#include <QMenu>

namespace dravik {
namespace {

// The command that shares the line-ups, on both lines screens.
class ShareLineUps : public OnLineScreen {
protected:
    // What stands on the clipboard behind a choice in the menu.
    static QString Copied(const LinesScreen& screen, const QString& item)
    {
        QGuiApplication::clipboard()->clear();
        auto* share = screen.findChild<ShareCommand*>();
        auto* action = share->findChild<QAction*>(item);
        EXPECT_NE(action, nullptr) << item.toStdString();
        if (action != nullptr)
            action->trigger();
        return QGuiApplication::clipboard()->text();
    }
};

TEST_F(ShareLineUps, CopiesTheShownDayInEachForm)
{
    Players[1].Name = "Ren\xE9 <b>[b]";
    frmLine& line = Line();
    line.vscDay->setValue(2);
    Modified = false; // the judge of the day has set it
    const Paper paper = LineUpPaper(OpenLeague, 5, Side::Pro, 2, 2, {});
    EXPECT_EQ(Copied(line, "mnuShareDayText"), ToQString(PlainTextOf(paper)));
    EXPECT_EQ(Copied(line, "mnuShareDayForum"), ToQString(ForumTextOf(paper)));
    EXPECT_EQ(Copied(line, "mnuShareDayMarkdown"), ToQString(MarkdownOf(paper)));
    EXPECT_FALSE(Modified);
}

TEST_F(ShareLineUps, CopiesAllDaysOfTheFarm)
{
    EXPECT_EQ(Copied(FarmLine(), "mnuShareAllDaysText"),
              ToQString(PlainTextOf(LineUpPaper(OpenLeague, 5, Side::Farm, 1, 10, {}))));
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
              ToQString(PlainTextOf(LineUpPaper(OpenLeague, 5, Side::Pro, 1, 1, {}))));
}

} // namespace
} // namespace dravik
