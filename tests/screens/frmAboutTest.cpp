#include "screens/main/frmAbout.h"
#include "machine/Location.h"
#include "OnStage.h"
#include "screens/main/ThirdPartyPage.h"
#include "session/Session.h"

#include <fstream>
#include <iterator>
#include <QScrollBar>
#include <QTextBlock>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class frmAboutTest : public OnStage {
protected:
    frmAbout& About()
    {
        if (TheStage.Find("About") == nullptr) {
            Main().mnuAbout->trigger();
            Settle();
        }
        return *static_cast<frmAbout*>(TheStage.Find("About"));
    }
};

TEST_F(frmAboutTest, ShowsThanksVersionAndWebSite)
{
    EXPECT_EQ(About().windowTitle(), "Dravik Hockey Simulator Client - About");
    const QStringList thanks = About().lblThank->text().split('\n');
    ASSERT_EQ(thanks.size(), 2);
    EXPECT_EQ(thanks[0], "Thank you to everyone who helped me make this software!");
    EXPECT_FALSE(thanks[1].isEmpty());
    EXPECT_EQ(About().lblVersion->text(), "Version : 9.8.7") << "that of the machine at hand";
    EXPECT_EQ(About().lblWebSite->text(), WebSite);
    EXPECT_EQ(About().cmdExit->text().remove('&'), "Exit");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmAboutTest, TheAddressStandsInTheReservedDomain)
{
    // No pattern with a group: the test framework knows none on Windows.
    EXPECT_THAT(WebSite, ::testing::StartsWith("https://www.example.org/"));
}

TEST_F(frmAboutTest, StandsBesideTheMainScreenInTheMiddle)
{
    EXPECT_TRUE(About().isVisible());
    EXPECT_TRUE(Main().isVisible());
    EXPECT_LE(OffTheMiddle(About()), 1);
}

TEST_F(frmAboutTest, NothingElseCanBeOpenedBesideIt)
{
    CompleteTeam(5);
    MainWithLeague();
    EXPECT_EQ(About().windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(QApplication::activeModalWidget(), &About());
    // The keys of the menu reach nobody behind it.
    Press(&Main(), Qt::Key_Return);
    EXPECT_EQ(TheStage.Find("Team"), nullptr);
}

TEST_F(frmAboutTest, AClickOnTheWebSiteOpensItsText)
{
    Click(About().lblWebSite);
    EXPECT_THAT(Machine.OpenedLocations, ElementsAre(WebSite));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmAboutTest, TheWebSiteOpensByKeyboardToo)
{
    Press(About().cmdExit, Qt::Key_Tab);
    ASSERT_TRUE(About().lblWebSite->hasFocus());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        Press(About().lblWebSite, key);
    EXPECT_THAT(Machine.OpenedLocations, ElementsAre(WebSite, WebSite, WebSite));
}

TEST_F(frmAboutTest, APressThatLeavesTheWebSiteOrIsNoLeftOneOpensNothing)
{
    LinkLabel* link = About().lblWebSite;
    QTest::mouseClick(link, Qt::RightButton);
    QTest::mousePress(link, Qt::LeftButton);
    QTest::mouseRelease(link, Qt::LeftButton, {}, QPoint(-20, -20));
    Press(link, Qt::Key_A);
    EXPECT_THAT(Machine.OpenedLocations, IsEmpty());
}

TEST_F(frmAboutTest, ThePageOfWhatOthersWroteIsTheOneOfThePackages)
{
    Click(About().lblThirdParty);
    auto* page = About().findChild<ThirdPartyPage*>();
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->isVisible());
    std::ifstream file(DRAVIK_THIRD_PARTY);
    const std::string packed{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(page->txtPage->toPlainText().toStdString(), packed);
    for (const char* work : {"Qt 6", "GNU Lesser General Public License, version 3", "apt-get source qt6-base",
                             "\nzlib\n", "\nCLI11 ", "\nnlohmann-json ", "\nISA-L\n"})
        EXPECT_THAT(packed, ::testing::HasSubstr(work));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(frmAboutTest, ThePageIsReadByKeyboardAndGoesWithEscapeAlone)
{
    Press(About().cmdExit, Qt::Key_Tab);
    Press(About().lblWebSite, Qt::Key_Tab);
    ASSERT_TRUE(About().lblThirdParty->hasFocus());
    Press(About().lblThirdParty, Qt::Key_Return);
    auto* page = About().findChild<ThirdPartyPage*>();
    ASSERT_NE(page, nullptr);
    ASSERT_TRUE(page->txtPage->hasFocus());
    Press(page->txtPage, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(page->txtPage->verticalScrollBar()->value(), page->txtPage->verticalScrollBar()->maximum());
    Press(page->txtPage, Qt::Key_X);
    EXPECT_FALSE(page->txtPage->document()->isModified());
    Press(page->txtPage, Qt::Key_Escape);
    EXPECT_FALSE(page->isVisible());
    EXPECT_TRUE(About().isVisible());
    EXPECT_THAT(Machine.OpenedLocations, IsEmpty());
}

TEST_F(frmAboutTest, ThePageStandsOnTheDisplayWithItsLinesWhole)
{
    Click(About().lblThirdParty);
    auto* page = About().findChild<ThirdPartyPage*>();
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->screen()->availableGeometry().contains(page->frameGeometry()));
    EXPECT_EQ(page->txtPage->horizontalScrollBar()->maximum(), 0);
    for (QTextBlock line = page->txtPage->document()->begin(); line.isValid(); line = line.next())
        EXPECT_LE(line.lineCount(), 1) << line.text().toStdString();
}

class BrokenDesktop : public ScriptedPlatform {
public:
    int OpenLocation(const std::string& /*location*/, int /*showMode*/) override { Fail(failure::FileNotFound); }
    std::string Version() override { Fail(failure::OutOfMemory); }
};

TEST_F(frmAboutTest, ADesktopThatCannotOpenTheWebSiteIsTold)
{
    About();
    BrokenDesktop broken;
    UseMachine(broken);
    Click(About().lblWebSite);
    UseMachine(Machine);
    EXPECT_THAT(broken.Boxes(), ElementsAre(Box{16, "53 - File not found in OpenLocation Function!"}));
}

TEST_F(frmAboutTest, AFailureOfTheOpeningIsToldInItsOwnWords)
{
    Main();
    BrokenDesktop broken;
    UseMachine(broken);
    About();
    UseMachine(Machine);
    EXPECT_THAT(broken.Boxes(), ElementsAre(Box{16, "7 - Out of memory inFormLoad!"}));
    EXPECT_TRUE(About().isVisible());
}

TEST_F(frmAboutTest, ExitEnterAndEscapeCloseItAndShowTheMainScreen)
{
    Click(About().cmdExit);
    EXPECT_EQ(TheStage.Find("About"), nullptr);
    EXPECT_TRUE(Main().isVisible());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        ASSERT_TRUE(About().cmdExit->hasFocus());
        Press(About().cmdExit, key);
        EXPECT_EQ(TheStage.Find("About"), nullptr);
        EXPECT_TRUE(Main().isVisible());
    }
}

TEST_F(frmAboutTest, ClosingItShowsAMainScreenThatWasHidden)
{
    About();
    Main().hide();
    About().close();
    EXPECT_TRUE(Main().isVisible());
}

} // namespace
} // namespace dravik
