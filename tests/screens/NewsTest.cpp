#include "OnRosterScreen.h"
#include "OnTeamScreen.h"
#include "OnViewer.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

// Every line of news and log that a screen's command hands on is compared, whole and in order.

class RosterNews : public OnRosterScreen {
protected:
    // Skater 1, Ward Tilton, scratched, chosen on the screen; the news of opening is forgotten.
    Player& Tilton()
    {
        Player& player = PutSkater(1, 5, position::Center, status::Scratch);
        player.Name = "  Ward Tilton ";
        player.Contract = 2;
        player.Salary = 1000000;
        Own().Cash = 5000000;
        Choose(1, position::Center);
        Machine.TakeNews();
        return player;
    }
};

TEST_F(RosterNews, AReleaseIsToldToTheLeagueAndToTheTeam)
{
    Tilton();
    Machine.Answer(button::Yes);
    Machine.Type("50");
    Click(Roster().cmdRelease);
    const std::string line = "Ward Tilton was released by Harbour City Gulls for $1,000,000.00";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", line}, News{"team 5", line}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Ward Tilton?"}));
}

TEST_F(RosterNews, AReleasedGoalieIsToldOfInTheSameWords)
{
    PutGoalie(1, 5, status::Scratch).Name = "Piet Vos";
    Choose(1, position::Goalie);
    Machine.TakeNews();
    Machine.Answer(button::Yes);
    Machine.Type("0");
    Click(Roster().cmdRelease);
    const std::string line = "Piet Vos was released by Harbour City Gulls for $0.00";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", line}, News{"team 5", line}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Piet Vos?"}));
}

TEST_F(RosterNews, AReleaseThatIsTakenBackIsNoNews)
{
    Tilton();
    Machine.Answer(button::No);
    Click(Roster().cmdRelease);
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to release Ward Tilton?"}));
}

TEST_F(RosterNews, TheCaptainIsToldToTheTeam)
{
    Tilton();
    Click(Roster().cmdCaptain);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", "Ward Tilton has been selected as captain."}));
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Ward Tilton has been selected as captain for Harbour City Gulls."}));
}

TEST_F(RosterNews, AnAssistantIsToldToTheTeamInTheSameWordsOnEitherPlace)
{
    const Box question{35, "Do you want Ward Tilton to be assistant #1 (Yes) or assistant #2 (No)?"};
    for (const int answer : {button::Yes, button::No}) {
        Own().Assistant[1] = 0;
        Own().Assistant[2] = 0;
        Tilton();
        Machine.Answer(answer);
        Click(Roster().cmdAssistant);
        EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", "Ward Tilton has been selected as assistant."}));
        const std::string place = answer == button::Yes ? "#1" : "#2";
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(question, Box{64, "Ward Tilton has been selected as assistant " +
                                                                           place + " for Harbour City Gulls."}));
    }
    Own().Assistant[2] = 0;
    Choose(1, position::Center);
    Machine.Answer(button::Cancel);
    Click(Roster().cmdAssistant);
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(question));
}

TEST_F(RosterNews, OfficesThatAreRefusedAreNoNews)
{
    Tilton().Status = status::Farm;
    Roster().cmdCaptain_Click();
    Roster().cmdAssistant_Click();
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(Box{64, "Farm Player cannot be Captain!"}, Box{64, "Farm Player cannot be Assistant!"}));
}

TEST_F(RosterNews, WaiversAreNoNews)
{
    Player& player = Tilton();
    Roster().cmdSendToWaiver_Click();
    EXPECT_EQ(player.Suspension, 99);
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Ward Tilton was sent to Waiver."}));
}

class TeamNewsLines : public OnTeamScreen {
protected:
    frmTeam& QuietOffice()
    {
        frmTeam& office = Office();
        Machine.TakeNews();
        return office;
    }

    // Types a text into a box and leaves it for a command: another box would tell something when it is left in turn.
    void Enter(EditBox* box, const QString& text)
    {
        TypeInto(box, text);
        Office().cmdExit->setFocus();
    }
};

TEST_F(TeamNewsLines, ARenamedTeamIsToldWithItsOldNameAndItsNewOne)
{
    Enter(QuietOffice().txtTeamName, "Wexcombe Switchmen");
    EXPECT_THAT(
        Machine.TakeNews(),
        ElementsAre(News{"team 5", "Team Name Change : Harbour City Gulls changed name to Wexcombe Switchmen"}));
}

TEST_F(TeamNewsLines, ARenamedFarmTeamIsToldToTheTeam)
{
    Enter(QuietOffice().txtFarmTeamName, "Wexcombe Bees");
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"team 5", "Team Name Change : Pebble Creek Ducks changed name to Wexcombe Bees"}));
}

TEST_F(TeamNewsLines, ANameThatIsRefusedIsNoNews)
{
    Enter(QuietOffice().txtTeamName, "");
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
}

TEST_F(TeamNewsLines, AnotherGeneralManagerIsFiredAndHired)
{
    Enter(QuietOffice().txtGm, "Karl Dreyer");
    const std::string change = "General Manager Change : Harbour City Gulls";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", change + " fired general manager Ward Tilton"},
                                                News{"team 5", change + " hired general manager Karl Dreyer"}));
    Enter(Office().txtGm, "");
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", change + " fired general manager Karl Dreyer"}));
    Enter(Office().txtGm, "Piet Vos");
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"team 5", change + " hired general manager Piet Vos"}));
}

TEST_F(TeamNewsLines, AddressesAreToldToTheLeague)
{
    Enter(QuietOffice().txtEmail, "karl@example.org ");
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Harbour City Gulls Email Address was change to karl@example.org."}));
    Enter(Office().txtMessenger, "kdreyer");
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Harbour City Gulls Messenger Address was change to kdreyer."}));
}

TEST_F(TeamNewsLines, AFiredCoachIsToldToTheLeagueAndToTheTeam)
{
    Own().ProCoach = 7;
    Own().Farm.FarmCoach = 8;
    QuietOffice();
    Machine.Answer(button::Yes);
    Office().cmdFirePro_Click();
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Harbour City Gulls fired Tor Lindqvist."},
                                                News{"team 5", "Harbour City Gulls fired Tor Lindqvist."}));
    Machine.Answer(button::Yes);
    Office().cmdFireFarm_Click();
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Pebble Creek Ducks fired Marek Zelinka."},
                                                News{"team 5", "Pebble Creek Ducks fired Marek Zelinka."}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you wants to fire Tor Lindqvist?"},
                                             Box{36, "Are you sure you wants to fire Marek Zelinka?"}));
}

TEST_F(TeamNewsLines, ACoachWhoStaysAndOtherTextsAreNoNews)
{
    Own().ProCoach = 7;
    QuietOffice();
    Machine.Answer(button::No);
    Office().cmdFirePro_Click();
    Enter(Office().txtCity, "Wexcombe");
    Enter(Office().txtAbbre, "WXC");
    Enter(Office().txtProMorale, "77");
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you wants to fire Tor Lindqvist?"}));
}

class ViewerNews : public OnViewer {
protected:
    // Erases the person shown, a `kind` of that name who belongs to a team and `retires` or is released.
    void Erase(frmEditPlayer& viewer, const std::string& name, const std::string& kind, int retires)
    {
        Machine.TakeNews();
        Machine.Answer(button::Yes);
        Machine.Answer(button::Yes);
        Machine.Answer(retires);
        viewer.cmdErase_Click();
        EXPECT_THAT(
            Machine.TakeBoxes(),
            ElementsAre(Box{36, "Are you sure you want to erase " + name + "?"},
                        Box{36, name + " is hired by Harbour City Gulls! Do you want release the " + kind + "?"},
                        Box{36, "Is " + name + " retiring?"}));
    }
};

TEST_F(ViewerNews, AnErasedSkaterIsToldOfAndHandedOnWithHisPosition)
{
    Erase(Edit(7), "Ward Tilton", "player", button::Yes);
    const std::string retired = "Ward Tilton retired from Harbour City Gulls";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", retired}, News{"team 5", retired}));
    EXPECT_THAT(Machine.ErasedPlayers(), ElementsAre(Pair(7, 2)));
    Erase(Edit(7), "Ward Tilton", "player", button::No);
    const std::string released = "Ward Tilton was released by Harbour City Gulls";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", released}, News{"team 5", released}));
    EXPECT_THAT(Machine.ErasedPlayers(), ElementsAre(Pair(7, 2), Pair(7, 2)));
}

TEST_F(ViewerNews, AnErasedGoalieIsToldOfAndHandedOnWithHisPosition)
{
    Erase(Edit(7, true), "Piet Vos", "goalie", button::No);
    const std::string released = "Piet Vos was released by Harbour City Gulls";
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", released}, News{"team 5", released}));
    EXPECT_THAT(Machine.ErasedPlayers(), ElementsAre(Pair(7, 5)));
}

TEST_F(ViewerNews, WhoBelongsToNobodyIsErasedWithoutNews)
{
    Tilton().Team = 0;
    frmEditPlayer& viewer = Edit(7);
    Machine.TakeNews();
    Machine.Answer(button::Yes);
    viewer.cmdErase_Click();
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.ErasedPlayers(), ElementsAre(Pair(7, 2)));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{36, "Are you sure you want to erase Ward Tilton?"}));
}

TEST_F(ViewerNews, AnErasureThatIsTakenBackTellsAndHandsOnNothing)
{
    frmEditPlayer& viewer = Edit(7);
    Machine.TakeNews();
    Machine.Answer(button::No);
    viewer.cmdErase_Click();
    Machine.Answer(button::Yes);
    Machine.Answer(button::No);
    viewer.cmdErase_Click();
    EXPECT_THAT(Machine.TakeNews(), IsEmpty());
    EXPECT_THAT(Machine.ErasedPlayers(), IsEmpty());
    const Box question{36, "Are you sure you want to erase Ward Tilton?"};
    EXPECT_THAT(Machine.Boxes(),
                ElementsAre(question, question,
                            Box{36, "Ward Tilton is hired by Harbour City Gulls! Do you want release the player?"}));
}

TEST_F(ViewerNews, ASuspensionThatBeginsIsToldToTheLeague)
{
    frmEditPlayer& viewer = Edit(7);
    Machine.TakeNews();
    Enter(viewer.txtSuspension, "3");
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Ward Tilton from Harbour City Gulls suspended for 3 game(s)"}));
    Enter(viewer.txtSuspension, "5");
    Enter(viewer.txtSuspension, "0");
    EXPECT_THAT(Machine.TakeNews(), IsEmpty()) << "neither a longer one nor its end";
}

TEST_F(ViewerNews, AnotherPositionIsToldToTheLeague)
{
    frmEditPlayer& viewer = Edit(7);
    Machine.TakeNews();
    Press(viewer.optPosition[4], Qt::Key_Space);
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Ward Tilton position was change to D"}));
}

TEST_F(ViewerNews, ACreatedPersonIsToldToTheLeague)
{
    const auto fill = [](frmEditPlayer& viewer, const char* name, int ratings) {
        viewer.txtName->setText(name);
        for (EditBox* box : {viewer.txtAge, viewer.txtWeight, viewer.txtHeight, viewer.txtContract, viewer.txtSalary})
            box->setText("20");
        viewer.txtCountry->setText("SWE");
        for (int row = 1; row <= ratings; ++row)
            viewer.txtStats[row]->setText("50");
    };
    frmEditPlayer& viewer = Edit(7);
    Machine.TakeNews();
    viewer.cmdNewPlayer_Click();
    fill(viewer, "Nils Ekdahl", 15);
    viewer.cmdNewPlayer_Click();
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Nils Ekdahl was created."}));
    viewer.cmdNewGoaler_Click();
    fill(viewer, "Tor Lindqvist", 13);
    viewer.cmdNewGoaler_Click();
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Tor Lindqvist was created."}));
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{64, "Nils Ekdahl was successfully created!"},
                                             Box{64, "Tor Lindqvist was successfully created!"}));
}

} // namespace
} // namespace dravik
