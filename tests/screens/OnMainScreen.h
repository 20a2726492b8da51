#pragma once

#include "OnStage.h"
#include "support/ClientFileBytes.h"

namespace dravik {

// The main screen with teams put into its divisions, and client files of them.
class OnMainScreen : public OnStage {
protected:
    // Team `number` in `division`.
    static Team& PutTeam(int number, int division)
    {
        TeamMaker made(number);
        Teams[number].Division = division;
        return Teams[number];
    }

    // Teams 1 to 12, two in each division, in turn.
    static void PutTwelveTeams()
    {
        for (int number = 1; number <= 12; ++number)
            PutTeam(number, (number - 1) % 6 + 1);
    }

    // Puts the tables as they stand into a plain client file of the test's folder.
    std::string SaveLeague(const std::string& name = "League.dvs")
    {
        Machine.Settings["SkipZIPClient"] = "YES";
        WriteSparse(Machine.InFolder(name), ClientSlots());
        return Machine.InFolder(name);
    }

    // What a list shows: names and numbers.
    std::vector<std::pair<std::string, int>> Listed(int division)
    {
        std::vector<std::pair<std::string, int>> entries;
        EntryList* list = Main().lstDivision[division];
        for (int row = 0; row < list->count(); ++row)
            entries.emplace_back(list->item(row)->text().toStdString(), list->item(row)->data(Qt::UserRole).toInt());
        return entries;
    }

    // A click of the mouse on an entry.
    void ClickEntry(int division, int row) { Point(division, row, &QTest::mouseClick); }
    void DoubleClickEntry(int division, int row)
    {
        ClickEntry(division, row);
        Point(division, row, &QTest::mouseDClick);
    }
    using MouseAction = void (*)(QWidget*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);
    void Point(int division, int row, MouseAction action)
    {
        EntryList* list = Main().lstDivision[division];
        action(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->item(row)).center(), -1);
        Settle();
    }

    // How many entries are chosen in all lists together.
    int ChosenEntries()
    {
        int chosen = 0;
        for (const EntryList* list : Main().lstDivision)
            chosen += static_cast<int>(list->selectedItems().size());
        return chosen;
    }

    std::string LabelOf(int division) { return Main().lblDivision[division]->text().toStdString(); }
};

} // namespace dravik
