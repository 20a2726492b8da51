#pragma once

#include "desk/Ranking.h"
#include "files/DraftFile.h"
#include "screens/panels/NameSearch.h"
#include "screens/panels/RankList.h"
#include "screens/Screen.h"

#include <optional>
#include <QCheckBox>
#include <QLabel>
#include <string>

namespace dravik {

// Ranks who is to be drafted, and saves the ranking to the draft file: everybody without a team in a fantasy draft, the
// prospects of the league in an entry draft. The ranking begins empty with the screen; what was there when it closed is
// kept until the program ends, and can be brought back.
class frmDraft : public Screen {
public:
    explicit frmDraft(Stage& stage);

    // Lists who can be drafted. A CurrentTeam out of range is told and leaves the screen empty.
    void FormLoad() override;
    void FormUnload() override;
    // The ranking.
    void ShowAnew() override;

    // Lists who can be drafted anew.
    void ShowPlayer();
    // Lists the ranking anew. Nobody is chosen in it afterwards.
    void PlaceOffer();

    void lstPlayers_DblClick();
    void lstDraftList_DblClick();
    // An entry of the ranking was dragged to another row: it moves there one rank at a time.
    void lstDraftList_Dropped(int from, int to);
    void chkPosition_Click(int position);
    void cmdChoose_Click();
    void cmdRemove_Click();
    void cmdUp_Click();
    void cmdDown_Click();
    void cmdSearch_Click();
    // Goes on with the last search behind the current entry; without one it searches as the command before it does.
    void cmdFindNext_Click();
    void cmdSaveToFile_Click();
    // Takes in the ranking that was there when the screen closed last, or that of a file.
    void cmdBringBack_Click();
    void cmdLoad_Click();
    void cmdExit_Click();

    std::string DraftType; // "Fantasy Draft" or "Entry Draft"; empty when there is no draft

    EntryList* lstPlayers = nullptr;
    RankList* lstDraftList = nullptr;
    QLabel *lblTotal = nullptr, *lblTeam = nullptr;
    Row<QCheckBox*, 1, 5> chkPosition;
    QPushButton *cmdChoose = nullptr, *cmdRemove = nullptr, *cmdUp = nullptr, *cmdDown = nullptr;
    QPushButton *cmdSearch = nullptr, *cmdSaveToFile = nullptr, *cmdExit = nullptr;
    QPushButton *cmdFindNext = nullptr, *cmdLoad = nullptr, *cmdBringBack = nullptr;

private:
    // A change of whoever is chosen in a list as a step.
    std::function<void()> AsListStep(const QString& words, const EntryList* list, std::function<void()> change);
    void MakeControls();
    QWidget* MakeListColumn(QLabel* heading, EntryList* list);
    void SetTabOrder();

    // The rank that is chosen, if one is.
    [[nodiscard]] std::optional<int> ChosenRank() const;
    void MoveChosen(RankStep step, QPushButton* command);
    void OpenViewer(int id);
    // Offers, as long as nobody is ranked, to bring back the ranking that was kept.
    void ShowKept();

    DraftRanking& ranking; // that of the open market
    PlayerSearch search;
};

} // namespace dravik
