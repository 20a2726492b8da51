#include "league/Platform.h"
#include "screens/frmEditPlayer.h"
#include "screens/panels/NameSearch.h"
#include "session/Routines.h"

#include <QSignalBlocker>

// The commands of the record editor: search, new records and erasure.
namespace dravik {

namespace {

// The first slot that is free. The last one of a table is never looked at, and so never given out. 0 when there is none.
template <class Table>
int FreeSlotOf(const Table& people)
{
    for (int slot = 1; slot < Table::last; ++slot)
        if (!people[slot].InUse)
            return slot;
    return 0;
}

void TellFullTable(std::string_view kind)
{
    ShowBox("You have reach the maximum number of available " + std::string(kind) + "!" + std::string(LineBreak) +
                "Please erase some before creating new ones.",
            box::Warning);
}

} // namespace

void frmEditPlayer::LeaveNewPlayerMode()
{
    NewPlayerMode = false;
    cmdNewPlayer->setText("New Player");
}

void frmEditPlayer::LeaveNewGoalieMode()
{
    NewGoalieMode = false;
    cmdNewGoaler->setText("New Goalie");
}

void frmEditPlayer::cmdNewPlayer_Click()
{
    Reporting(" in cmdNewPlayer!", [this] {
        if (NewPlayerMode) {
            SaveRecord({false, FreeSlot});
            return;
        }
        LeaveNewGoalieMode();
        const int slot = FreeSlotOf(Players);
        if (slot == 0) {
            TellFullTable("players");
            return;
        }
        FreeSlot = slot;
        NewPlayerMode = true;
        BeginRecord({false, slot});
        cmdNewPlayer->setText("Save Player");
    });
}

void frmEditPlayer::cmdNewGoaler_Click()
{
    Reporting(" in cmdNewGoaler!", [this] {
        if (NewGoalieMode) {
            SaveRecord({true, FreeSlot});
            return;
        }
        LeaveNewPlayerMode();
        const int slot = FreeSlotOf(Goalies);
        if (slot == 0) {
            TellFullTable("goalies");
            return;
        }
        FreeSlot = slot;
        NewGoalieMode = true;
        BeginRecord({true, slot});
        cmdNewGoaler->setText("Save Goalie");
    });
}

void frmEditPlayer::BeginRecord(const Person& person)
{
    ClearBoxes();
    chkEdit->setChecked(true);
    chkEdit_Click();
    optGoaler->setVisible(person.IsGoalie);
    optGoaler->setEnabled(true);
    for (QRadioButton* option : optPosition) {
        option->setVisible(!person.IsGoalie);
        option->setEnabled(true);
    }
    // A new record needs every single rating, so all of them are there to be typed even where the league shows groups.
    ratings->Hide();
    const auto offer = [this](const auto& labels) {
        for (int row = labels.first; row < labels.last; ++row) {
            ShowRow(row, labels[row], 0);
            txtStats[row]->setEnabled(true);
        }
    };
    if (person.IsGoalie)
        offer(GoalieStatName);
    else
        offer(SkaterStatName);
    txtCondition->setText("100");
    txtSuspension->setText("0");
    TickPosition(person.IsGoalie ? optGoaler : optPosition[position::Center]);
}

void frmEditPlayer::SaveRecord(const Person& person)
{
    constexpr int goalieRatings = static_cast<int>(decltype(Goalie::Stats)::last);
    constexpr int skaterRatings = static_cast<int>(decltype(Player::Stats)::last);
    if (!IsNewRecordFilled(person.IsGoalie ? goalieRatings : skaterRatings)) {
        ShowBox("Missing Field!", box::Warning);
        return;
    }
    On(person, [&](auto& record) {
        record.InUse = true;
        record.Number = person.Id;
    });
    StoreNewFields(person);
    int place = position::Goalie;
    if (!person.IsGoalie) {
        place = position::Center;
        for (int index = position::Center; index <= position::Defense; ++index)
            if (optPosition[index]->isChecked())
                place = index;
        Players[person.Id].Position = place;
    }
    const std::string name = On(person, [this](auto& record) {
        record.NoApplyRerate = chkNoApplyRerate->isChecked();
        record.Rookie = chkRookie->isChecked();
        record.NoTrade = chkNoTrade->isChecked();
        return record.Name.Trimmed();
    });
    LeagueNews(name + " was created.");
    AddEntry(name, person.Id, place);
    FitList(); // a second entry makes it a list to choose from
    Choose(lstPlayer->count() - 1);
    (person.IsGoalie ? NewGoalieMode : NewPlayerMode) = false;
    ShowBox(name + " was successfully created!", box::Information);
    Modified = true;
    if (person.IsGoalie)
        LeaveNewGoalieMode();
    else
        LeaveNewPlayerMode();
}

void frmEditPlayer::cmdSearch_Click()
{
    Reporting(" in cmdSearch!", [this] {
        const int found = SearchPlayer(*lstPlayer, "Complete or Part of the Player's Name?");
        if (found >= 0)
            Choose(found);
    });
}

void frmEditPlayer::cmdErase_Click()
{
    Reporting(" in cmdErase!", [this] {
        if (lstPlayer->currentItem() == nullptr)
            return;
        const auto person = ShownPerson();
        if (!person)
            return;
        const auto [name, team] = On(*person, [](const auto& record) {
            return std::pair(record.Name.Trimmed(), static_cast<int>(record.Team));
        });
        const auto agreed = [](const std::string& question) { return ShowBox(question, box::YesNo) == button::Yes; };
        if (!agreed("Are you sure you want to erase " + name + "?"))
            return;
        if (team != 0) {
            const std::string employer = Teams[team].Name.Trimmed();
            if (!agreed(name + " is hired by " + employer + "! Do you want release the " +
                        (person->IsGoalie ? "goalie?" : "player?")))
                return;
            const bool retires = agreed("Is " + name + " retiring?");
            const std::string news = name + (retires ? " retired from " : " was released by ") + employer;
            LeagueNews(news);
            TeamNews(team, news);
        }
        PlayerErased(person->Id, PlayerPosition);
        const QSignalBlocker quiet(lstPlayer);
        delete lstPlayer->takeItem(lstPlayer->currentRow());
        lstPlayer->Unchoose();
        ListPosition = -1; // whoever moved up in the list is not the one on show
        cmdErase->setEnabled(false);
        Modified = true;
    });
}

} // namespace dravik
