#pragma once

#include "desk/NewPlayer.h"
#include "desk/PlayerFields.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/EntryList.h"
#include "screens/panels/PinParts.h"
#include "screens/panels/RatingRows.h"
#include "screens/Screen.h"
#include "session/Session.h"

#include <functional>
#include <optional>
#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <string>
#include <string_view>

namespace dravik {

struct StatRow;

// The full record of one skater or goalie. The screen is a record editor as well, and the editor is always closed: every
// control of it is disabled or hidden by the time the screen is shown.
class frmEditPlayer : public Screen {
public:
    explicit frmEditPlayer(Stage& stage);

    // Gives every skater of the league without a position one, lists the chosen person (`SelectedPlayer`,
    // `SelectedIsGoalie`; 0 lists everybody), shows him and closes the editor. A person who is in neither table, such as a
    // prospect, leaves the screen blank.
    void FormLoad() override;
    // Tells the opener whether there is something to rebuild.
    void FormUnload() override;

    void lstPlayer_Click();
    void chkEdit_Click();

    // Each box judges its text when it loses the focus, restores the record's value when it is empty, and otherwise stores
    // the value within its limits. While a new record is typed, values are read when it is saved.
    void txtName_LostFocus();
    void txtCountry_LostFocus();
    void txtAge_LostFocus();
    void txtWeight_LostFocus();
    void txtHeight_LostFocus();
    void txtCondition_LostFocus();
    void txtInjury_LostFocus();
    void txtContract_LostFocus();
    void txtSalary_LostFocus();
    void txtSuspension_LostFocus();
    void txtStats_LostFocus(int index);
    void optPosition_Click(int index);
    void chkRookie_Click();
    void chkNoTrade_Click();
    void chkNoApplyRerate_Click();

    void cmdSearch_Click();
    void cmdNewPlayer_Click();
    void cmdNewGoaler_Click();
    void cmdErase_Click();
    void cmdExit_Click();

    EntryList* lstPlayer = nullptr;
    EditBox *txtName = nullptr, *txtCountry = nullptr, *txtAge = nullptr, *txtWeight = nullptr, *txtHeight = nullptr;
    EditBox *txtCondition = nullptr, *txtInjury = nullptr, *txtContract = nullptr;
    EditBox *txtSalary = nullptr, *txtSuspension = nullptr, *txtTeam = nullptr;
    Row<QRadioButton*, 1, 4> optPosition;
    QRadioButton* optGoaler = nullptr;
    QCheckBox *chkRookie = nullptr, *chkNoTrade = nullptr, *chkNoApplyRerate = nullptr, *chkEdit = nullptr;
    using StatBoxes = Row<EditBox*, 1, 16>;
    StatBoxes txtStats;
    Row<QLabel*, 1, 16> lblStatLabel;
    QPushButton *cmdSearch = nullptr, *cmdNewPlayer = nullptr, *cmdNewGoaler = nullptr;
    QPushButton *cmdErase = nullptr, *cmdExit = nullptr;

    // The position digit of the shown person, 5 for a goalie; the index of the current entry of the list.
    [[nodiscard]] int PlayerPosition() const { return playerPosition; }
    [[nodiscard]] int ListPosition() const { return listPosition; }
    // Whether a new record is being typed, and where it goes.
    [[nodiscard]] bool NewPlayerMode() const { return newPlayerMode; }
    [[nodiscard]] bool NewGoalieMode() const { return newGoalieMode; }
    [[nodiscard]] int FreeSlot() const { return freeSlot; }
    // Whether there is something that the opener must rebuild for.
    [[nodiscard]] bool Changed() const { return isChanged; }

protected:
    void changeEvent(QEvent* event) override;

private:
    // The person shown. None, with a critical box, when the position digit is out of range.
    [[nodiscard]] std::optional<PersonId> ShownPerson() const;
    [[nodiscard]] bool IsPersonShown() const;

    // The list.
    void ListPeople();
    void AddEntry(const std::string& name, int id, int position);
    void RewriteEntry();
    // Makes an entry the current one without an event, and with the same effect as a click.
    void MakeCurrent(int entry);
    void Choose(int entry);
    void FitList();

    // The record.
    void ShowRecord(PersonId person);
    void ClearPositions();
    void TickPosition(QRadioButton* option);
    void ShowRatings(PersonId person);
    // Holds the ratings against whoever is pinned.
    void ShowPinned();
    void ShowRow(int row, std::string_view label, int rating);
    void SetRow(int row, const StatRow& shown);
    void ShowOverall();

    // The boxes.
    void ShowFields(PersonId person);
    void LeaveBox(EditBox* box, InputMode mode, const std::function<void(PersonId)>& restore,
                  const std::function<void(const std::string&)>& take);
    void LeaveNumber(EditBox* box, NumberField field);
    void LeaveText(
        EditBox* box, TextField field, const std::function<void()>& follow = [] {});
    void ShowTurn(HealthTurn turn);
    void CopyFlag(FlagField field, const QCheckBox* box);

    // New records.
    void BeginRecord(PersonId person);
    void SaveRecord(PersonId person);
    [[nodiscard]] NewRecord TypedRecord() const;
    void ClearBoxes();
    void LeaveNewPlayerMode();
    void LeaveNewGoalieMode();

    // The look.
    void MakeBoxes();
    void MakeOptions();
    void MakeCommands();
    QWidget* MakeIdentityGroup();
    QWidget* MakeContractGroup();
    QWidget* MakeConditionGroup();
    QWidget* MakeStatsGroup();
    void EnableEditor(bool enabled);
    void CloseEditor();
    void ShadeClosedControls();

    int playerPosition = 0;
    int listPosition = -1;
    bool newPlayerMode = false;
    bool newGoalieMode = false;
    int freeSlot = 0;
    bool positionEventsOn = true; // false while the screen chooses a position itself
    bool isChanged = false;
    QButtonGroup* positions = nullptr;
    RatingRows* ratings = nullptr;
    PinCommand* cmdPin = nullptr;
    PinLine* lblPinned = nullptr;
};

} // namespace dravik
