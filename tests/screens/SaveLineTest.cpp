#include "OnDraftScreen.h"
#include "OnTeamScreen.h"
#include "screens/main/frmMain.h"
#include "session/OpenHistory.h"
#include "session/OpenSaves.h"

#include <filesystem>
#include <fstream>
#include <QApplication>
#include <QClipboard>

// The line beside each command that saves.
namespace dravik {
namespace {

using ::testing::ElementsAre;

class DraftSaveLine : public OnDraftScreen {
protected:
    DraftSaveLine()
    {
        TellTimeBy([this] { return now; });
        BeginHistory();
    }
    ~DraftSaveLine() override { TellTimeBy({}); }

    [[nodiscard]] QString Words() { return Draft().findChild<QLabel*>("lblSaved")->text(); }
    QPushButton* Command(const char* name) { return Draft().findChild<QPushButton*>(name); }
    void Save()
    {
        Click(Draft().cmdSaveToFile);
        EXPECT_EQ(Machine.TakeBoxes().size(), 1U);
    }
    [[nodiscard]] QString Time() const { return QString::fromStdString(Machine.ShortTime(now)); }

    double now = 46034.5;
};

TEST_F(DraftSaveLine, SaysNothingAtFirstAndTakesNoRoom)
{
    EXPECT_EQ(Words(), "");
    EXPECT_FALSE(Draft().findChild<QLabel*>("lblSaved")->isVisible());
    EXPECT_FALSE(Command("cmdShowInFolder")->isVisible());
}

TEST_F(DraftSaveLine, SaysSinceWhenAListIsNotSaved)
{
    Choose({0});
    EXPECT_EQ(Words(), "Not saved since " + Time());
    const QString first = Words();
    now += 0.1;
    Choose({1});
    EXPECT_EQ(Words(), first);
    EXPECT_FALSE(Command("cmdCopyPath")->isVisible());
}

TEST_F(DraftSaveLine, BehindASaveItSaysWhenAndLeadsToTheFile)
{
    Choose({0});
    now += 0.1;
    Save();
    EXPECT_EQ(Words(), "Saved " + Time());
    const std::string path = Machine.InFolder("HarbourCityGulls.dvd");
    ASSERT_TRUE(Command("cmdCopyPath")->isVisible());
    Click(Command("cmdCopyPath"));
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), path);
    ASSERT_TRUE(Command("cmdShowInFolder")->isVisible());
    Click(Command("cmdShowInFolder"));
    EXPECT_THAT(Machine.OpenedLocations, ElementsAre(Machine.Folder() + PathSeparator));
    Choose({1});
    EXPECT_EQ(Words(), "Not saved since " + Time());
    EXPECT_FALSE(Command("cmdCopyPath")->isVisible());
}

TEST_F(DraftSaveLine, TheMainScreenSaysTheSameOfTheChosenTeam)
{
    Choose({0});
    const QString words = Words();
    Click(Draft().cmdExit);
    EXPECT_EQ(Main().findChild<QLabel*>("lblSaved")->text(), words);
}

TEST_F(DraftSaveLine, ASecondSaveKeepsWhatItReplaces)
{
    Choose({0});
    Save();
    Choose({1});
    Save();
    const std::filesystem::path kept = Machine.InFolder("Earlier/HarbourCityGulls 2026-01-12 12.00.00.dvd");
    EXPECT_TRUE(std::filesystem::exists(kept));
}

TEST_F(DraftSaveLine, AVersionThatCannotBeKeptIsSaidAndStopsNoSave)
{
    std::ofstream(Machine.InFolder("Earlier")) << "no folder";
    Choose({0});
    Save();
    EXPECT_EQ(Words(), "Saved " + Time());
    Choose({1});
    Save();
    EXPECT_EQ(Words(), "Saved " + Time() + "; the version before could not be kept");
}

} // namespace
} // namespace dravik
