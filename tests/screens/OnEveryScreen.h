#pragma once

#include "OnStage.h"
#include "sample-league/SampleLeague.h"
#include "screens/panels/EntryList.h"

#include <functional>
#include <QTabWidget>
#include <string>

namespace dravik {

// Every screen of the program on the sample league, one after the other, as a general manager has them before him.
class OnEveryScreen : public OnStage {
protected:
    static constexpr int OwnTeam = 3;

    OnEveryScreen()
    {
        MakeSampleLeague({});
        LeagueData.OfferRuleFlag = true; // so that there are free agents with and without a team
        LeagueData.FantasyDraft = true;
        LeagueData.ShowOverall = true;
        Teams[OwnTeam].Name = "Harbour City Gulls";
    }

    // Hands each screen with its name to `use`: first as it opens, then with somebody chosen in each of its lists, and once
    // more for each page of its tabs.
    void EachScreen(const std::function<void(Screen&, const std::string&)>& use)
    {
        MainWithLeague();
        Look(Main(), "Main", use);
        for (const char* name :
             {"Team", "Roster", "Line", "FarmLine", "FreeAgent", "Draft", "About", "Ticket", "EditPlayer"}) {
            CurrentTeam = OwnTeam;
            CallerScreen = "Main";
            SelectedPlayer = 0;
            SelectedIsGoalie = false;
            TheStage.Open(name, Main());
            Settle();
            Screen* screen = TheStage.Find(name);
            ASSERT_NE(screen, nullptr) << name;
            Look(*screen, name, use);
            screen->close();
            Settle();
            ASSERT_EQ(TheStage.Find(name), nullptr) << name;
        }
    }

private:
    void Look(Screen& screen, const std::string& name, const std::function<void(Screen&, const std::string&)>& use)
    {
        screen.resize(1280, 800);
        Settle();
        use(screen, name);
        for (EntryList* list : screen.findChildren<EntryList*>())
            if (list->isVisible() && list->isEnabled() && list->count() > 1) {
                const QPoint second = list->visualItemRect(list->item(1)).center();
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
                Settle();
            }
        use(screen, name + ", chosen");
        if (auto* tabs = screen.findChild<QTabWidget*>())
            for (int page = 1; page < tabs->count(); ++page) {
                tabs->setCurrentIndex(page);
                Settle();
                use(screen, name + ", page " + std::to_string(page));
            }
    }
};

} // namespace dravik
