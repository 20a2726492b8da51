#pragma once

#include "desk/Offers.h"
#include "league/FreeAgentOffer.h"
#include "league/PersonId.h"
#include "screens/panels/EditArea.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/NameSearch.h"
#include "screens/panels/PickList.h"
#include "screens/panels/StatPanel.h"
#include "screens/panels/Verdict.h"
#include "screens/Screen.h"

#include <functional>
#include <QCheckBox>
#include <QLabel>
#include <QTimer>

namespace dravik {

class WhatIfWindow;

// The offers of the chosen team to people without a contract or a team: who can be made one, what he is offered, and the
// offer file that the simulator takes. They begin empty with the screen; what
// was there when it closed is kept until the program ends, and can be brought back.
class frmFreeAgentClient : public Screen {
public:
    explicit frmFreeAgentClient(Stage& stage);

    // Fills the screen for CurrentTeam, without an offer. A number out of range is told and leaves the screen empty.
    void FormLoad() override;
    void FormUnload() override;
    // What the offers come to, and the offer at hand.
    void ShowAnew() override;

    // Lists everybody who can be made an offer, or only those who have one, and chooses the first of them.
    void ShowPlayer();

    void lstPlayers_Click();
    void lstPlayers_DblClick();
    void chkShowPlayerWithOffer_Click();

    // Each box judges its text when it loses the focus and stores it in the offer at hand.
    void txtOffer_LostFocus();
    void txtDuration_LostFocus();
    void txtBonus_LostFocus();
    void txtComment_LostFocus();

    void cmdSearch_Click();
    // Goes on with the last search behind the current entry; without one it searches as the command before it does.
    void cmdFindNext_Click();
    void cmdSaveToFile_Click();
    // Takes in the offers that were there when the screen closed last, or those of a file.
    void cmdBringBack_Click();
    void cmdLoad_Click();
    // Shows what the team would look like with all offers taken.
    void cmdWhatIf_Click();
    void cmdExit_Click();

    // The id of the person shown.
    [[nodiscard]] Int16 OfferIndex() const { return offerIndex; }

    QLabel *lblTeam = nullptr, *lblInfo = nullptr, *lblMaxOffer = nullptr, *lblPlayer = nullptr, *lblStatus = nullptr;
    PickList* lstPlayers = nullptr;
    QCheckBox* chkShowPlayerWithOffer = nullptr;
    EditBox *txtAge = nullptr, *txtSalary = nullptr;
    StatPanel* Stats = nullptr;
    Row<QLabel*, 1, 16> txtStats;
    Row<QLabel*, 1, 16> lblStatLabel;
    EditBox *txtOffer = nullptr, *txtDuration = nullptr, *txtBonus = nullptr;
    EditArea* txtComment = nullptr;
    VerdictLabel* lblOffersMade = nullptr; // offers to others against what is left of them
    QLabel* lblOffersCost = nullptr;       // what all offers come to
    QPushButton *cmdSearch = nullptr, *cmdSaveToFile = nullptr, *cmdExit = nullptr;
    QPushButton *cmdFindNext = nullptr, *cmdLoad = nullptr, *cmdBringBack = nullptr, *cmdWhatIf = nullptr;
    WhatIfWindow* WhatIf = nullptr; // made when it is asked for

protected:
    // Whom the offer at hand is made to.
    [[nodiscard]] QString Subject() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Entry;

    static constexpr auto NoStatus = "Status : "; // of nobody

    void MakeControls();
    EditBox* MakeFigure(const char* name, const QString& accessibleName);
    QWidget* MakeListColumn();
    QWidget* MakePersonColumn();
    QWidget* MakeOfferGroup();
    QLayout* MakeLimitRow();
    void SetTabOrder();

    // Makes an entry the current one, which counts as a click.
    void Choose(int row);
    void BeginOffers();
    void ShowNobody();
    void ShowPerson(PersonId who);
    void ShowOffer(const FreeAgentOffer& offer);
    void EnableOffer(bool enabled);
    [[nodiscard]] PersonId PersonAtHand() const { return PersonOf(static_cast<int>(offerIndex)); }
    // The offers, of which the one at hand is its person's also where undoing took that back.
    OfferTable& OffersAtHand();
    // Whether the text of a box was taken; a refused one gets the focus back.
    static bool IsTaken(LeavingBox& box, Entered entered);
    // Shows a box about the person who is being chosen. Under the mouse it waits as long as a second press would make a
    // double click of the first: a box that comes up in between swallows it.
    void Tell(std::function<void()> box);
    // Shows the box that waits, if one does.
    void ShowWaitingBox();
    // What the offers come to so far.
    void ShowTally();
    // Offers, as long as there are none, to bring back those that were kept.
    void ShowKept();

    OfferTable& offers; // those of the open market
    Int16 offerIndex;
    PlayerSearch search;
    bool isPressed = false; // the list is being told of a press
    std::function<void()> waitingBox;
    QTimer secondPress;
};

} // namespace dravik
