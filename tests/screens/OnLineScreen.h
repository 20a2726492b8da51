#pragma once

#include "OnStage.h"
#include "screens/lines/frmFarmLine.h"
#include "screens/lines/frmLine.h"
#include "screens/RosterEntry.h"
#include "session/Session.h"

namespace dravik {

// The lines screens of team 5, the Harbour City Gulls with the Pebble Creek Ducks as their farm. Both have a full roster
// and complete lines for day 1. The placeholders of record 0 stand as after a load.
class OnLineScreen : public OnStage {
protected:
    using Entries = std::vector<std::pair<std::string, int>>;

    OnLineScreen() : Pro(CompleteTeam(5))
    {
        Own().Name = "Harbour City Gulls";
        Own().Farm.Name = "Pebble Creek Ducks";
        Players[0].Name = "Unknown Player";
        Players[0].Position = position::Center;
        Goalies[0].Name = "Unknown Goalie";
        PlayerStatCount = 15;
        GoalieStatCount = 13;
    }

    static Team& Own() { return Teams[5]; }
    static Lines& ProDay(int day = 1) { return Own().ProLines[day]; }
    static Lines& FarmDay(int day = 1) { return Own().Farm.FarmLines[day]; }

    // The screens, opened from the main screen, which tells nothing.
    frmLine& Line() { return Opened<frmLine>("Line"); }
    frmFarmLine& FarmLine() { return Opened<frmFarmLine>("FarmLine"); }
    template <class T>
    T& Opened(const char* name)
    {
        if (TheStage.Find(name) == nullptr) {
            OpenFrom(MainWithLeague(), name, "Main");
            EXPECT_THAT(Machine.TakeBoxes(), ::testing::IsEmpty());
            Modified = false;
        }
        return *static_cast<T*>(TheStage.Find(name));
    }
    void OpenFrom(Screen& opener, const char* name, const char* caller, int team = 5)
    {
        CurrentTeam = team;
        CallerScreen = caller;
        TheStage.Open(name, opener);
        Settle();
    }

    // What the list shows: names and numbers.
    static Entries Listed(const LinesScreen& screen)
    {
        Entries entries;
        for (int row = 0; row < screen.lstPlayer->count(); ++row)
            entries.emplace_back(screen.lstPlayer->item(row)->text().toStdString(),
                                 screen.lstPlayer->item(row)->data(Qt::UserRole).toInt());
        return entries;
    }

    // Clicks on the entry with that number.
    static void Pick(LinesScreen& screen, int id, int position)
    {
        const int row = screen.lstPlayer->RowOf(EntryNumber(id, position));
        ASSERT_GE(row, 0) << "no entry of " << id;
        screen.lstPlayer->scrollToItem(screen.lstPlayer->item(row));
        QTest::mouseClick(screen.lstPlayer->viewport(), Qt::LeftButton, {},
                          screen.lstPlayer->visualItemRect(screen.lstPlayer->item(row)).center());
        Settle();
    }

    // Goes to the tab of a widget and clicks on it.
    static void ClickOn(LinesScreen& screen, QWidget* widget)
    {
        for (int tab = 0; tab < screen.TabLine->count(); ++tab)
            if (screen.TabLine->widget(tab)->isAncestorOf(widget))
                screen.TabLine->setCurrentIndex(tab);
        Settle();
        ASSERT_TRUE(widget->isVisible()) << widget->objectName().toStdString();
        Click(widget);
    }
    static SlotLabel* SlotOn(LinesScreen& screen, LineField field, int number, int place = 1)
    {
        return screen.TabLine->SlotAt(field, number, place).Label;
    }
    static BoardSlot& StartSlot(LinesScreen& screen) { return screen.TabLine->Slots[67]; }
    static BoardSlot& BackupSlot(LinesScreen& screen) { return screen.TabLine->Slots[68]; }

    // Writes a game into the calendar; `isFarm` takes the farm's columns.
    static void PutGame(int row, int home, int away, bool isFarm = false, bool isPlayed = false)
    {
        ScheduleRow& game = GameSchedule[row];
        game.GameDay = row + 100;
        (isFarm ? game.FarmGame : game.ProGame) = true;
        (isFarm ? game.FarmPlayed : game.ProPlayed) = isPlayed;
        (isFarm ? game.FarmHome : game.ProHome) = home;
        (isFarm ? game.FarmAway : game.ProAway) = away;
    }
    // Games of team 5, at home and away in turn, on the rows from 1.
    static void PutGames(int count, bool isFarm = false)
    {
        LeagueData.ScheduleShown = true;
        TeamMaker(6);
        Teams[6].Name = "Ironport Foxes";
        Teams[6].Farm.Name = "Ironport Cubs";
        for (int row = 1; row <= count; ++row)
            PutGame(row, row % 2 == 1 ? 5 : 6, row % 2 == 1 ? 6 : 5, isFarm);
    }

    // Whether events were held back each time that the focus came to `box` from another control while `use` ran.
    static std::vector<bool> GuardWhileFocusGoesTo(const QWidget* box, const std::function<void()>& use)
    {
        std::vector<bool> guards;
        const auto watch =
            QObject::connect(qApp, &QApplication::focusChanged, qApp, [&](const QWidget* old, const QWidget* now) {
                if (now == box && old != box)
                    guards.push_back(static_cast<bool>(ListEventGuard));
            });
        use();
        QObject::disconnect(watch);
        return guards;
    }

    // How many of the pixels that a widget paints are red.
    static int Reddish(QWidget* widget)
    {
        const QImage image = widget->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                count += colour.red() > colour.green() + 60 && colour.red() > colour.blue() + 60 ? 1 : 0;
            }
        return count;
    }

    static std::string Of(const QLabel* label) { return label->text().toStdString(); }

    TeamMaker Pro;
};

} // namespace dravik
