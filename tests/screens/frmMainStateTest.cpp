#include "OnMainScreen.h"

#include "rules/RosterJudge.h"
#include "session/Session.h"
#include <QMenuBar>

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class MainState : public OnMainScreen {
protected:
    static std::vector<std::string> NamesOf(const QList<QAction*>& actions)
    {
        std::vector<std::string> names;
        for (const QAction* action : actions)
            names.push_back(
                (action->menu() != nullptr ? action->menu()->objectName() : action->objectName()).toStdString());
        return names;
    }

    std::string WriteNoise()
    {
        Machine.Settings["SkipZIPClient"] = "YES";
        WriteWhole(Machine.InFolder("Noise.dvs"), {1, 2, 3});
        return Machine.InFolder("Noise.dvs");
    }

    void ExpectNoLeague()
    {
        EXPECT_EQ(Main().windowTitle(), "Dravik Hockey Simulator Client");
        EXPECT_EQ(Main().lblConference[1]->text(), "No League File Load!");
        EXPECT_EQ(Main().lblDate->text(), "Client File Date : ");
        EXPECT_TRUE(Main().findChild<QPushButton*>("cmdOpen")->isVisible());
        for (int division = 1; division <= 6; ++division) {
            EXPECT_FALSE(Main().lstDivision[division]->isVisible()) << division;
            EXPECT_THAT(Listed(division), IsEmpty()) << division;
        }
        EXPECT_FALSE(Main().mnuTeam->menuAction()->isVisible());
        EXPECT_FALSE(Main().mnuOutputRatingCSV->isVisible());
        EXPECT_EQ(CurrentTeam, 0);
        EXPECT_EQ(WindowTitle, "Dravik Hockey Simulator Client");
        EXPECT_FALSE(Machine.WaitShown);
    }

    // What the list of a division looks like.
    QImage Look(int division)
    {
        Settle();
        return Main().lstDivision[division]->viewport()->grab().toImage();
    }
    void Rename(int team, const QString& name, const char* abbreviation)
    {
        Teams[team].Name = name.toStdString();
        Teams[team].Abbre = abbreviation;
        Main().PlaceTeam();
    }
};

TEST_F(MainState, EachMenuHoldsItsCommandsInOrder)
{
    EXPECT_THAT(NamesOf(Main().menuBar()->actions()), ElementsAre("mnuFile", "mnuTeam", "mnuView", "mnuHelp"));
    EXPECT_THAT(NamesOf(Main().mnuFile->actions()), ElementsAre("mnuOpen", "mnuRecent", "mnuCompare", "", "mnuExit"));
    EXPECT_THAT(NamesOf(Main().mnuTeam->actions()), ElementsAre("mnuViewTeam", "mnuSetRoster", "mnuSetLines",
                                                                "mnuSetFarmLines", "mnuFreeAgents", "mnuDraft"));
    EXPECT_THAT(NamesOf(Main().mnuHelp->actions()), ElementsAre("mnuAbout", "mnuOutputRatingCSV", "mnuGuide"));
}

TEST_F(MainState, PlacingTheTeamsBringsUpTheTeamMenuAlone)
{
    PutTeam(1, 1);
    Main();
    ASSERT_FALSE(Main().mnuTeam->menuAction()->isVisible());
    Main().PlaceTeam();
    EXPECT_TRUE(Main().mnuTeam->menuAction()->isVisible());
    EXPECT_FALSE(Main().mnuOutputRatingCSV->isVisible());
}

TEST_F(MainState, BlankNamesOfConferencesAndDivisionsStandBlank)
{
    PutTeam(1, 1);
    LeagueData.Conference[1] = "   ";
    LeagueData.Conference[2] = "";
    LeagueData.Division[1].Name = "  ";
    LeagueData.Division[5].Name = "";
    MainWithLeague();
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    for (const int conference : {1, 2}) {
        EXPECT_EQ(Main().lblConference[conference]->text(), "") << conference;
        EXPECT_TRUE(Main().lblConference[conference]->isVisible()) << conference;
    }
    for (const int division : {1, 5}) {
        EXPECT_EQ(LabelOf(division), "") << division;
        EXPECT_TRUE(Main().lblDivision[division]->isVisible()) << division;
    }
    EXPECT_EQ(LabelOf(2), "Division 2");
    EXPECT_THAT(Listed(1), ElementsAre(Pair("Team 1", 1)));
}

TEST_F(MainState, ABadFirstFileLeavesTheWindowAsItStarted)
{
    ResetClientVariables();
    Main();
    const std::string noise = WriteNoise();
    Machine.Choose(noise);
    Main().mnuOpen->trigger();
    Settle();
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{16, "File Integrity is incorrect!"}));
    ExpectNoLeague();
    EXPECT_EQ(Machine.Settings.count("LastLoadLeague"), 0U);
    for (QAction* command : {Main().mnuViewTeam, Main().mnuDraft}) {
        command->trigger();
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{64, "No Team is Selected!"}));
    }
}

TEST_F(MainState, ABadFileOfLastTimeIsToldAndTheWindowComesUpWithoutALeague)
{
    ResetClientVariables();
    const std::string noise = WriteNoise();
    Machine.Settings["LastLoadLeague"] = noise;
    Main();
    EXPECT_TRUE(Main().isVisible());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "File Integrity is incorrect!"}));
    ExpectNoLeague();
    EXPECT_EQ(Machine.Settings["LastLoadLeague"], noise);
}

TEST_F(MainState, SetLinesRepairsTheRosterWithoutAWordOfItsOwn)
{
    CompleteTeam(1);
    Players[1].Condition = 50;
    ASSERT_EQ(Players[1].Status, status::Pro);
    MainWithLeague();
    CurrentTeam = 1;
    Main().mnuSetLines->trigger();
    EXPECT_THAT(
        Machine.Boxes(),
        ElementsAre(Box{48, "Roster is not Complete!\r\nYou cannot make your lines if your roster is not done!"}));
    EXPECT_EQ(Players[1].Status, status::Scratch);
    EXPECT_EQ(RosterChanges[1].Status, status::Scratch);
    EXPECT_FALSE(CheckRoster(OpenWork(), 1, false, true, false).Repaired) << "it is repaired by now";
    EXPECT_EQ(TheStage.Find("Line"), nullptr);
}

TEST_F(MainState, SetFarmLinesLeavesTheRosterAlone)
{
    CompleteTeam(1);
    Players[1].Condition = 50;
    MainWithLeague();
    CurrentTeam = 1;
    Main().mnuSetFarmLines->trigger();
    ASSERT_NE(TheStage.Find("FarmLine"), nullptr);
    EXPECT_EQ(Players[1].Status, status::Pro);
    EXPECT_TRUE(CheckRoster(OpenWork(), 1, false, true, false).Repaired) << "it was left to be repaired";
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(MainState, AbbreviationsStandBesideAllTeamsOfAListOrNone)
{
    PutTeam(1, 1);
    PutTeam(2, 1);
    MainWithLeague();
    Rename(1, "Foxes", "FOX");
    Rename(2, "Ducks", "DUC");
    const QImage narrow = Look(1);
    Rename(1, "Foxes", "OWL");
    EXPECT_NE(Look(1), narrow) << "there is room for both";

    Rename(2, QString(40, 'W'), "DUC");
    const QImage wide = Look(1);
    Rename(1, "Foxes", "FOX");
    EXPECT_EQ(Look(1), wide) << "there is none for the second";
    Rename(2, QString(40, 'W'), "");
    EXPECT_NE(Look(1), wide) << "a team without one leaves the others theirs";
}

TEST_F(MainState, NamesOfFortyWideLettersDoNotWidenTheWindow)
{
    const std::string longest(40, 'W');
    PutTeam(1, 1).Name = longest;
    MainWithLeague();
    const int least = Main().minimumSizeHint().width();
    LeagueData.Name = longest;
    for (int conference = 1; conference <= 2; ++conference)
        LeagueData.Conference[conference] = longest;
    for (int division = 1; division <= 6; ++division)
        LeagueData.Division[division].Name = longest;
    CurrentTeam = 1;
    Main().PlaceTeam();
    Settle();
    EXPECT_LE(Main().minimumSizeHint().width(), std::max(least, 1280));
    EXPECT_EQ(LabelOf(1), longest) << "cut for the eye only";
}

} // namespace
} // namespace dravik
