#include "Hands.h"
#include "OnStage.h"

#include <filesystem>

namespace dravik {
namespace {

class HelpOnDesktop : public OnStage {};

TEST_F(HelpOnDesktop, TheRatingsAreExported)
{
    MainWithLeague();
    Hands hands;
    OnDesktop([&] {
        hands.Next("msgBox", [](QDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QLabel*>("qt_msgbox_label")->text(),
                      "Are you sure you want to output a Rating CSV file of your league?");
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmdYes"), Qt::LeftButton);
        });
        hands.Read("Output done in " + QString::fromStdString(Machine.Folder()));
        Main().mnuOutputRatingCSV->trigger();
    });
    EXPECT_TRUE(hands.AreIdle());
    EXPECT_TRUE(std::filesystem::exists(Machine.InFolder("PlayersRatings.csv")));
    EXPECT_TRUE(std::filesystem::exists(Machine.InFolder("CoachesRatings.csv")));
}

TEST_F(HelpOnDesktop, TheAboutScreenShowsTheVersionOfTheBuild)
{
    MainWithLeague();
    OnDesktop([this] { Main().mnuAbout->trigger(); });
    EXPECT_EQ(TheStage.Find("About")->findChild<QLabel*>("lblVersion")->text(), "Version : " DRAVIK_VERSION);
}

} // namespace
} // namespace dravik
