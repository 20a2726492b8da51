#pragma once

#include "screens/squad/CompareTable.h"
#include "screens/squad/SquadTable.h"

#include <array>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>

class QMenu;

namespace dravik {

class KeySheet;
class SquadDock;
class Stage;

// The squad table: everybody of the league or of one team, skaters, goalies and prospects, in a window of its own beside
// whatever screen is in front. It changes nothing by itself: whoever is chosen is shown, picked or placed by the stage, on the
// screen in front.
class frmSquad : public QMainWindow {
public:
    explicit frmSquad(Stage& stage);

    // Shows the window where it was left the last time; else where there is room right of `front` (on the desktop), or in the middle
    // of its display. The focus is on the box of names.
    void Open(const QRect& front);
    // Shows the tables as they stand and what can be done on the screen in front. Nothing where the window is not seen: it
    // looks once more when it is opened.
    void ShowAnew();

    void tabKind_Changed(int index);
    void txtName_Changed();
    void Filter_Changed();
    void cmdShowAll_Click();
    // Stands beside the screen in front from now on, as far as the display has room for both, or no longer.
    void chkDock_Click();
    void cmdCopy_Click();
    void cmdSaveCsv_Click();
    void cmdShowPlayer_Click();
    void cmdPick_Click();
    // Pins who is current, or lets him go: those who are pinned are compared below the table.
    void cmdPin_Click();
    void cmdLetGo_Click();
    // What Enter and a double press do: picks whoever is current on the screen in front if that lists him, else shows him.
    void Choose();

    // The screen in front, beside which it stands where it is docked.
    void Follow(QWidget* front);

    // The table in front.
    [[nodiscard]] SquadTable& Table() const;
    [[nodiscard]] const SquadFilter& Filter() const { return filter; }

    QTabBar* tabKind = nullptr;
    std::array<SquadTable*, 3> tables{}; // in the order of SquadKinds
    QLineEdit* txtName = nullptr;
    QLabel *lblFound = nullptr, *lblTold = nullptr, *lblEmpty = nullptr;
    QComboBox *cboTeam = nullptr, *cboStands = nullptr;
    std::array<QCheckBox*, 4> chkPosition{}; // C, LW, RW, D
    QSpinBox *spnAgeFrom = nullptr, *spnAgeTo = nullptr, *spnOverall = nullptr, *spnContract = nullptr;
    QCheckBox *chkMayBeAsked = nullptr, *chkDock = nullptr;
    QPushButton *cmdShowAll = nullptr, *cmdColumns = nullptr, *cmdCopy = nullptr, *cmdSaveCsv = nullptr;
    QPushButton *cmdShowPlayer = nullptr, *cmdPick = nullptr, *cmdClose = nullptr;
    QPushButton *cmdPin = nullptr, *cmdLetGo = nullptr;
    QWidget* Comparison = nullptr; // with its heading
    CompareTable* tblCompare = nullptr;
    QLabel* lblCompare = nullptr;
    QMenu* mnuColumns = nullptr;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void StandBeside(const QRect& front);
    void MakeFilters();
    void MakeTables();
    QPushButton* MakeCommand(const QString& name, const QString& caption, void (frmSquad::*click)());
    void MakeKeys();
    void MakeReasons();
    void LayOut();
    [[nodiscard]] QWidget* MakeFilterRow();
    [[nodiscard]] QWidget* MakeTableArea();
    [[nodiscard]] QWidget* MakeComparison();

    // Through whose eyes the table is seen now.
    [[nodiscard]] SquadSight Sight() const;
    // Fills the table in front, if the tables have changed since it was filled.
    void LookAtTable();
    void ListTeams();
    void ShowCounts();
    void ShowCommands();
    void ShowPins();
    void ShowComparison();
    void ShowFilters();
    [[nodiscard]] SquadFilter TypedFilter() const;
    void FillColumnMenu();
    [[nodiscard]] QString InText() const;
    void Tell(const QString& words);
    // What is remembered from one run to the next.
    void Restore();
    void Keep();
    void RestoreFilters();
    [[nodiscard]] QString FiltersInText() const;
    void ShowDocked();
    void TurnTab(int by);
    void Leave();

    Stage& owner;
    SquadFilter filter;
    std::array<bool, 3> isStale{true, true, true};
    QStackedWidget* stack = nullptr;
    KeySheet* keySheet = nullptr;
    SquadDock* dock = nullptr;
    QBoxLayout* filterRows = nullptr;
    bool hasStood = false;
};

} // namespace dravik
