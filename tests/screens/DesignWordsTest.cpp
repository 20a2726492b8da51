#include "DesignWords.h"
#include "OnStage.h"
#include "screens/frmDraft.h"
#include "screens/frmFreeAgentClient.h"
#include "screens/frmTicket.h"

#include <memory>

namespace dravik {
namespace {

using ::testing::UnorderedElementsAreArray;

using DesignWordsTest = OnStage;

TEST_F(DesignWordsTest, OfTheDraftList)
{
    const std::vector<DesignWords> expected = {
        {"lblTeam", "Draft List For : ", ""},
        {"lblShow", "Show : ", ""},
        {"chkPosition(1)", "C", ""},
        {"chkPosition(2)", "LW", ""},
        {"chkPosition(3)", "RW", ""},
        {"chkPosition(4)", "DF", ""},
        {"chkPosition(5)", "G", ""},
        {"lblPlayers", "Players", ""},
        {"lstPlayers", "", "Players"},
        {"lblTotal", "0 Players List", ""},
        {"lstDraftList", "", "Draft List"},
        {"cmdChoose", "-->", "Add to the draft list"},
        {"cmdRemove", "<--", "Take off the draft list"},
        {"cmdUp", "&UP", ""},
        {"cmdDown", "&Down", ""},
        {"cmdSearch", "Search &Player", ""},
        {"cmdSaveToFile", "&Save to File", ""},
        {"cmdExit", "E&xit", ""},
    };
    const frmDraft draft(TheStage);
    EXPECT_EQ(draft.objectName(), "frmDraft");
    EXPECT_THAT(DesignWordsOf(draft), UnorderedElementsAreArray(expected));
    EXPECT_EQ(draft.cmdChoose->toolTip(), "Add to the draft list");
    EXPECT_EQ(draft.cmdRemove->toolTip(), "Take off the draft list");
}

TEST_F(DesignWordsTest, OfTheOffers)
{
    const std::vector<DesignWords> expected = {
        {"lblTeam", "", ""},
        {"lblInfo", "", ""},
        {"lblMaxOffer", "", ""},
        {"lblOffersMade", "", ""},
        {"lblOffersCost", "", ""},
        {"lblPlayer", "&Players", "", "lstPlayers"},
        {"lstPlayers", "", "Players"},
        {"chkShowPlayerWithOffer", "Show players who has received an &offer only", ""},
        {"Stats", "Stats", ""},
        {"lblStatus", "Status : ", ""},
        {"lblAge", "Age", ""},
        {"txtAge", "", "Age"},
        {"lblSalary", "Present salary", ""},
        {"txtSalary", "", "Present salary"},
        {"grpOffer", "Offer", ""},
        {"lblOffer", "Sa&lary:", "", "txtOffer"},
        {"txtOffer", "", "Salary:"},
        {"lblDuration", "&Duration:", "", "txtDuration"},
        {"txtDuration", "", "Duration:"},
        {"lblBonus", "&Bonus:", "", "txtBonus"},
        {"txtBonus", "", "Bonus:"},
        {"lblComment", "&Comments: (Max 1000 Characters)", "", "txtComment"},
        {"txtComment", "", "Comments: (Max 1000 Characters)"},
        {"cmdSearch", "Sea&rch Player", ""},
        {"cmdSaveToFile", "Save to &File", ""},
        {"cmdExit", "E&xit", ""},
    };
    const auto screen = std::make_unique<frmFreeAgentClient>(TheStage); // too large for a stack
    const frmFreeAgentClient& offers = *screen;
    EXPECT_EQ(offers.objectName(), "frmFreeAgentClient");
    EXPECT_THAT(DesignWordsOf(offers, offers.Stats), UnorderedElementsAreArray(expected));
    for (int row = 1; row <= 16; ++row) {
        EXPECT_EQ(offers.txtStats[row]->objectName().toStdString(), "txtStats(" + std::to_string(row) + ")");
        EXPECT_EQ(offers.lblStatLabel[row]->objectName().toStdString(), "lblStatLabel(" + std::to_string(row) + ")");
        EXPECT_EQ(offers.txtStats[row]->text(), "");
    }
}

TEST_F(DesignWordsTest, OfTheBoxesOfTheTickets)
{
    std::vector<DesignWords> expected = {{"txtArena", "", "Arena Name"}};
    int level = 1;
    for (const std::string caption : {"Level 1 :", "Level 2 :", "Level 3 :", "Level 4 :", "Luxury Box :"}) {
        const std::string index = "(" + std::to_string(level++) + ")";
        expected.push_back({"txtArenaCapacity" + index, "", caption + " Level Capacity"});
        expected.push_back({"txtTicket" + index, "", caption + " Level Ticket Price"});
    }
    const frmTicket tickets(TheStage);
    std::vector<DesignWords> boxes = DesignWordsOf(tickets);
    std::erase_if(boxes, [](const DesignWords& words) { return !words.Name.starts_with("txt"); });
    EXPECT_EQ(tickets.objectName(), "frmTicket");
    EXPECT_EQ(tickets.lblArenaCapacityTotal->objectName(), "lblArenaCapacityTotal");
    EXPECT_EQ(tickets.cmdExit->objectName(), "cmdExit");
    EXPECT_THAT(boxes, UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace dravik
