#include "Hands.h"
#include "OnDraftScreen.h"
#include "support/Routines.h"

#include <filesystem>

namespace dravik {
namespace {

class DraftOnDesktop : public OnDraftScreen {};

TEST_F(DraftOnDesktop, ARankingIsSearchedMadeAndSaved)
{
    Draft();
    Teams[5].Password = DigestStrToHexStr("puck");
    const std::string target = Machine.InFolder("HarbourCityGulls.dvd");
    Hands hands;
    OnDesktop([&] {
        hands.Next("inputBox", [](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Player Search");
            EXPECT_EQ(dialog.findChild<QLabel*>("lblPrompt")->text(), "Complete or Part of the Player Name?");
            QTest::keyClicks(dialog.findChild<QLineEdit*>("txtAnswer"), "VOS");
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
        });
        Click(Draft().cmdSearch);
        Click(Draft().cmdChoose);
        hands.Read("This player can be move!");
        ClickEntry(Draft().lstDraftList, 0);
        Click(Draft().cmdUp);
        hands.TypePassword("puck");
        hands.Read("Fantasy Draft File save for Harbour City Gulls succesfully at\n" + QString::fromStdString(target));
        Click(Draft().cmdSaveToFile);
    });
    EXPECT_TRUE(hands.AreIdle());
    EXPECT_EQ(Ranking(), std::vector<long long>{10003});
    EXPECT_TRUE(std::filesystem::exists(target));
}

TEST_F(DraftOnDesktop, ASearchThatIsCancelledChoosesTheFirstEntry)
{
    Draft();
    Hands hands;
    OnDesktop([&] {
        hands.Next("inputBox", [](QDialog& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
        });
        Click(Draft().cmdSearch);
    });
    EXPECT_TRUE(hands.AreIdle());
    EXPECT_EQ(Draft().lstPlayers->Chosen(), Draft().lstPlayers->item(0));
}

} // namespace
} // namespace dravik
