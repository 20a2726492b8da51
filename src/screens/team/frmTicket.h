#pragma once

#include "league/Field.h"
#include "screens/panels/EditBox.h"
#include "screens/Screen.h"

#include <QLabel>

namespace dravik {

// The arena of the chosen team and the price of each of its five seat levels. The arena is there to be read; the prices
// are the general manager's, unless the league keeps them.
class frmTicket : public Screen {
public:
    explicit frmTicket(Stage& stage);

    // Fills the screen for CurrentTeam. A number out of range is told and closes the screen.
    void FormLoad() override;
    // What stands in the boxes, and the total.
    void ShowAnew() override;

    // A text that is refused brings the focus back to its box; any other is shown as far as the record took it.
    void txtTicket_LostFocus(int level);
    void txtArenaCapacity_LostFocus(int level);
    void txtArena_LostFocus();
    void cmdExit_Click();

    EditBox* txtArena;
    Row<EditBox*, 1, 5> txtArenaCapacity;
    Row<EditBox*, 1, 5> txtTicket;
    QLabel* lblArenaCapacityTotal;
    QPushButton* cmdExit;

private:
    QWidget* MakeArenaGroup();
    void SetTabOrder();
    void ShowBoxes();
    void ShowTotal();

    QLabel* lblTitle;
};

} // namespace dravik
