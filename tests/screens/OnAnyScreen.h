#pragma once

#include "OnRosterScreen.h"

#include <string>

namespace dravik {

// A league in which every screen of team 5 has entries in each of its lists, and any of them opened by its name.
class OnAnyScreen : public OnRosterScreen {
protected:
    OnAnyScreen()
    {
        CompleteTeam(5);
        for (const int index : {900, 901, 902})
            PutSkater(index, 5, position::Center, status::Scratch);
        TeamMaker others(6);
        LeagueData.RFAAge = 22;
        LeagueData.UFAAge = 31;
        LeagueData.MaxOffers = 50;
        for (const int index : {910, 911, 912}) {
            PutSkater(index, 0, position::Center, status::Farm);
            PutSkater(index + 10, 6, position::Center, status::Farm).Contract = 0;
            Players[index + 10].Age = 25;
        }
        LeagueData.FantasyDraft = true;
    }

    // Opens a screen of team 5, the main screen included, which tells nothing.
    Screen& OpenScreen(const std::string& name)
    {
        frmMain& main = MainWithLeague();
        if (name == "Main")
            return main;
        CurrentTeam = 5;
        CallerScreen = "Main";
        SelectedPlayer = 0; // the viewer then lists everybody
        if (name == "Ticket")
            OpenTeam(5);
        TheStage.Open(name, name == "Ticket" ? static_cast<Screen&>(*TeamScreen()) : main);
        Settle();
        EXPECT_THAT(Machine.TakeBoxes(), ::testing::IsEmpty());
        return *TheStage.Find(name);
    }
    void CloseScreen(Screen& screen)
    {
        if (&screen == &Main())
            return;
        screen.close();
        Settle();
        if (TeamScreen() != nullptr) {
            TeamScreen()->close();
            Settle();
        }
    }

    // Opens the screens of these names, one after the other, and hands each with its name to `use`.
    template <class Names, class Use>
    void EachOf(const Names& names, Use&& use)
    {
        for (const char* name : names) {
            Screen& screen = OpenScreen(name);
            use(screen, std::string(name));
            CloseScreen(screen);
        }
    }
};

} // namespace dravik
