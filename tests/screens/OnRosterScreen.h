#pragma once

#include "OnStage.h"
#include "rules/RosterJudge.h"
#include "screens/roster/frmRoster.h"
#include "screens/RosterEntry.h"
#include "support/FailingBoxes.h"

namespace dravik {

// The roster screen of team 5, the Harbour City Gulls, with a test's own people on it.
class OnRosterScreen : public OnStage {
protected:
    using Entries = std::vector<std::pair<std::string, int>>;

    OnRosterScreen()
    {
        TeamMaker made(5);
        Own().Name = "Harbour City Gulls";
        ShowAllRatings(true);
        LeagueData.MaxProtected = 10;
    }

    static Team& Own() { return Teams[5]; }

    static void ShowAllRatings(bool all)
    {
        LeagueData.ShowAllRatings = all;
        PlayerStatCount = all ? 15 : 7;
        GoalieStatCount = all ? 13 : 7;
    }

    // Three scratches, two farm skaters and two dressed ones, in order of their slots.
    static void PutSeven()
    {
        PutSkater(1, 5, position::Center, status::Scratch);
        PutSkater(2, 5, position::LeftWing, status::Scratch);
        PutSkater(3, 5, position::RightWing, status::Scratch);
        PutSkater(4, 5, position::Defense, status::Farm);
        PutSkater(5, 5, position::Center, status::Farm);
        PutSkater(6, 5, position::Center, status::Pro);
        PutSkater(7, 5, position::Defense, status::Pro);
    }
    // So many centers of one list, from slot 1 on.
    static void PutSkaters(int count, int status, int rating = 60)
    {
        for (int id = 1; id <= count; ++id)
            PutSkater(id, 5, position::Center, status, rating);
    }
    static void PassDeadline()
    {
        LeagueData.TradeDeadlinePassed = true;
        LeagueData.TradeDeadlineInForce = true;
    }

    // What a judge finds on the roster once more, in its words. It is a copy that is judged, and nothing is shown.
    static std::string WhatItLacks(int team = 5)
    {
        const auto copy = Copy(OpenLeague);
        MuteVoice mute;
        bool modified = false;
        const Work work{*copy, mute, dravik::Machine(), modified};
        return TextOf(*copy, team, CheckRoster(work, team, false, true, false));
    }

    // The screen, opened from the main screen, which tells `told` and then what the roster lacks.
    frmRoster& Roster(std::vector<Box> told = {})
    {
        if (RosterScreen() == nullptr) {
            OpenFrom(MainWithLeague(), "Main");
            if (const std::string lacks = WhatItLacks(); !lacks.empty())
                told.push_back({box::Warning, lacks});
            EXPECT_EQ(Machine.TakeBoxes(), told);
            Modified = false;
        }
        return *RosterScreen();
    }
    [[nodiscard]] frmRoster* RosterScreen() const { return static_cast<frmRoster*>(TheStage.Find("Roster")); }
    void OpenFrom(Screen& opener, const char* caller, int team = 5)
    {
        CurrentTeam = team;
        CallerScreen = caller;
        TheStage.Open("Roster", opener);
        Settle();
    }

    // What a list shows: texts and numbers.
    Entries Listed(int index)
    {
        Entries entries;
        const PickList* list = Roster().lstPlayer[index];
        for (int row = 0; row < list->count(); ++row)
            entries.emplace_back(list->item(row)->text().toStdString(), list->item(row)->data(Qt::UserRole).toInt());
        return entries;
    }
    std::string EntryTextAt(int index, int row) { return Listed(index).at(static_cast<std::size_t>(row)).first; }

    // Clicks on an entry with the mouse.
    void ClickEntry(int index, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        PickList* list = Roster().lstPlayer[index];
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualItemRect(list->item(row)).center());
        Settle();
    }
    void DoubleClickEntry(int index, int row)
    {
        ClickEntry(index, row);
        PickList* list = Roster().lstPlayer[index];
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
        Settle();
    }

    // The rows that are chosen in a list.
    std::vector<int> ChosenRows(int index)
    {
        std::vector<int> rows;
        const PickList* list = Roster().lstPlayer[index];
        for (int row = 0; row < list->count(); ++row)
            if (list->IsChosen(row))
                rows.push_back(row);
        return rows;
    }

    std::vector<long long> Counters()
    {
        const RosterCounts& counts = Roster().StatusCount();
        return {counts[0], counts[1], counts[2], counts[3]};
    }

    // Chooses a person as a click on his entry does, wherever he stands.
    void Choose(int id, int position)
    {
        for (int index = 0; index <= 2; ++index) {
            const int row = Roster().lstPlayer[index]->RowOf(EntryNumber(id, position));
            if (row >= 0) {
                ClickEntry(index, row);
                return;
            }
        }
        FAIL() << "no entry of " << id;
    }

    static std::string Of(const QLabel* label) { return label->text().toStdString(); }
    static bool IsShown(const QWidget* widget) { return !widget->isHidden(); }
};

} // namespace dravik
