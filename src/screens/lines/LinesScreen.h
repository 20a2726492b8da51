#pragma once

#include "desk/GoaliePull.h"
#include "desk/LineAdvice.h"
#include "desk/SlotPicks.h"
#include "league/PersonId.h"
#include "makers/Makers.h"
#include "rules/LineVerdict.h"
#include "screens/lines/LineBoard.h"
#include "screens/panels/CardWords.h"
#include "screens/panels/DayStrip.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/PickList.h"
#include "screens/panels/ReasonsBox.h"
#include "screens/panels/StatPanel.h"
#include "screens/panels/StrengthBars.h"
#include "screens/panels/Verdict.h"
#include "screens/Screen.h"

#include <memory>
#include <optional>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <string>
#include <string_view>
#include <vector>

namespace dravik {

class AdviceList;
class LineSheet;
class PersonCards;
class SlotPicker;
struct Team;

// In what the lines screens of the pro team and of the farm differ by name alone. What they do differently is in the
// screens themselves.
struct LinesKind {
    const char* Name;
    dravik::Side Side;
    std::string (*NameOf)(const Team&); // in titles and in the heading of a game
    std::string (*AbbreOf)(const Team&);
    std::string_view OnLoad; // the endings of failure messages that are spelled differently
    std::string_view OnPick;
    bool ShowsPlaceholder; // an empty slot reads the placeholder's name
};

// The lines of the chosen team for the next ten game days, one day at a time: a list of the people who may be dressed, and
// the slots of the day. A pick in the list and a press on a slot put a person there; so does a drag from the list. The
// judge of the lines runs after every change.
class LinesScreen : public Screen {
public:
    // Fills the screen for CurrentTeam. A number out of range is told and closes the screen.
    void FormLoad() override;
    // Warns of a first day that is incomplete.
    void FormUnload() override;
    // The people and the shown day.
    void ShowAnew() override;

    // Lists anew who may be dressed. A skater without a position is told in a critical box and left out.
    void ShowPlayer();
    // Shows the day: slots, game, strategy and goalie pull.
    void Place();
    // Judges the day, which may empty slots, and shows the verdict with its reasons. A slot emptied that way keeps its
    // caption until the next Place, with the mark of a refused person.
    void Check();
    // Copies the shown day to `targetDay` (1..10).
    void Copy(int targetDay);

    void lstPlayer_Click();
    void chkPosition_Click(int position);
    void vscDay_Change();
    void hscStats_Change(int index);
    void txtPullGoalerMinGoal_LostFocus();
    void txtPullGoalerMinPct_LostFocus();
    // A press on one of the board's slots or headings.
    void Slot_Click(int index);
    void Heading_Click(int index);
    // Follows a piece of the advice (0 and up), and folds all of it away or back.
    void cmdAdvice_Click(int row);
    void cmdFoldAdvice_Click();
    void cmdAutoLines_Click();
    void cmdWipeLines_Click();
    void cmdCopy_Click();
    void cmdCopyAll_Click();
    void cmdRepairAll_Click();
    // The whole line-up on one sheet comes up, or goes when it is in front.
    void cmdSheet_Click();
    void cmdDebug_Click();
    void cmdExit_Click();

    // The shown day (1..10), and the position (1..5) of the person picked last.
    [[nodiscard]] Int16 Day() const { return day; }
    [[nodiscard]] Int16 SelectedPosition() const { return selectedPosition; }
    Int16 PointsLeft; // strategy points not given out
    bool StrategyReady = false;
    Row<Int16, 1, 10> GameRow; // rows of the calendar with the team's next games, 0 behind the last
    Row<Boolean, 1, 10> GameIsAway;

    LineBoard* TabLine = nullptr;
    DayStrip* vscDay = nullptr;
    StrengthBars* Strength = nullptr; // of the lines of each day, where overalls are shown
    PickList* lstPlayer = nullptr;
    Row<QCheckBox*, 1, 5> chkPosition;
    StatPanel* frmStat = nullptr;
    QLabel *lblTeamName = nullptr, *lblGame = nullptr, *lblPlaying = nullptr, *lblPoint = nullptr;
    VerdictLabel* lblComplete = nullptr;
    ReasonsBox* txtReasons = nullptr; // what the last judgement of the day found, in its own words
    AdviceList* Advice = nullptr;     // what is legal and yet weak, where overalls are shown
    QPushButton* cmdFoldAdvice = nullptr;
    Row<QScrollBar*, 0, 2> hscStats;
    Row<QLabel*, 0, 2> lblStatsPoint;
    EditBox *txtPullGoalerMinGoal = nullptr, *txtPullGoalerMinPct = nullptr;
    QPushButton *cmdAutoLines = nullptr, *cmdWipeLines = nullptr, *cmdCopy = nullptr;
    QPushButton *cmdCopyAll = nullptr, *cmdDebug = nullptr, *cmdExit = nullptr;
    QPushButton* cmdRepairAll = nullptr; // mends every day that is incomplete
    QPushButton* cmdSheet = nullptr;
    LineSheet* Sheet = nullptr; // made when it is asked for

protected:
    LinesScreen(Stage& stage, const LinesKind& kind);

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    // A screen's own steps.
    virtual void CloseMakers(); // in a league that does without automatic makers
    virtual void ListMore() {}  // ends the list
    virtual void ShowPicked();  // shows who was picked in the list
    virtual void ShowPickedName(const QString& name) = 0;
    virtual void CheckInTurn() = 0; // the steps of Check

    // Steps that both screens take, in an order of their own.
    void JudgeShownDay();
    // Judges the shown day, in a box when asked, and shows what was found.
    bool Judge(bool showMessage);
    void RefreshPlaying();
    // Tells the verdict and the strength of every day, judged on a copy: of the shown day as it was judged last.
    void RefreshDays();
    // Shows what the last judgement said: on the slots, of all days, and the advice.
    void ShowJudged();
    // Shows and judges the day once more, behind whatever changed all of it.
    void ShowDayAnew();

    [[nodiscard]] QString Subject() const override;
    // A change of the shown day as a step.
    std::function<void()> AsDayStep(const QString& words, std::function<void()> change);

    // The day at hand.
    [[nodiscard]] int ShownDay() const { return static_cast<int>(day); }

    const LinesKind& Kind;
    QHBoxLayout* Commands = nullptr; // the row of commands on the lines

private:
    void MakeControls();
    void MakeCommands();
    void MakeStrategyPage();
    QWidget* MakeHeader();
    QWidget* MakePeopleColumn();
    QWidget* MakeLinesColumn();
    QWidget* MakeAdvice();
    void SetTabOrder();

    // What a press on a slot would do.
    [[nodiscard]] QString WordsOfPlacing(int index) const;

    [[nodiscard]] Lines& ShownLines() const;
    void FindGames();
    void ShowGame();
    void ShowSlots();
    void ShowStrategy();
    // Whether somebody is picked in the list whom a slot takes.
    [[nodiscard]] bool TakesPicked(const BoardSlot& slot) const;
    [[nodiscard]] bool MayDropOn(const SlotLabel& label) const;
    // Names a person in a slot.
    void ShowIn(BoardSlot& slot, long long id);
    // Lines by hand. Slots are named by their place on the board.
    void MakeHands();
    SlotPicker* MakePicker(QWidget* window);
    // Has a label of a slot, on the pages or on the sheet, do what is done by hand.
    void MakeLive(int index, SlotLabel& label);
    // Has a list of people pick for the slots of its window: signs, cards and drags.
    void MakeLive(PickList& people);
    [[nodiscard]] int IndexOf(const SlotLabel& label) const;
    [[nodiscard]] QString WhereOf(int index) const;
    void OpenPicker(int index, SlotLabel& label, const QString& typed);
    void ClosePickers();
    void PlacePick(int row);
    // Puts somebody into a slot, shows him there and judges the day.
    void PlaceIn(int index, PersonId who, int position);
    // Picks whoever stands in a slot without placing anybody.
    void LookAtSlot(int index);
    void LookAt(PersonId who, int position);
    [[nodiscard]] bool MaySwap(int one, int other) const;
    void Swap(int one, int other);
    // Takes up who stands in a slot, or has him who was change places with him.
    void TakeUp(int index);
    void LetGoOfTaken();
    void ShowTaken(bool isTaken);
    // The keys: another page, the board, and from there to the list and back.
    void TurnPage(int by);
    void FocusBoard();
    void ChangeSides();
    // The sheet of the whole line-up.
    void MakeSheet();
    // Two lines or units side by side: that of a heading and another one. By its key it is the one that has the focus, or the first
    // in sight.
    void OfferComparison(const BoardHeading& heading);
    void CompareAtFocus();
    void ShowOnSheet();
    void PickOnSheet();
    void LeaveSheet();
    // Shows of every slot what stands in it now, whatever name it still reads, and the averages of the lines.
    void RefreshMarks();
    void RefreshMark(const BoardSlot& slot, long long id);
    // Says anew what could be better about the day as it stands.
    void RefreshAdvice();
    [[nodiscard]] QString WordsOfAdvice(int row) const;
    // What the judge said about a slot, each sentence once.
    [[nodiscard]] QStringList FindingsOn(const BoardSlot& slot) const;
    void RefreshAverage(const BoardHeading& heading);
    // The signs of somebody in a list, where those of the day count his slots.
    [[nodiscard]] PersonSigns SignsBeside(PersonId who) const;
    // The signs of somebody in a slot, whose mark says the rest.
    [[nodiscard]] PersonSigns SignsIn(const BoardSlot& slot, PersonId who) const;
    // The cards of an entry and of who stands in a slot; none of a placeholder.
    [[nodiscard]] std::optional<CardWords> CardOfEntry(int number) const;
    [[nodiscard]] std::optional<CardWords> CardOfSlot(const BoardSlot& slot) const;
    // Where somebody stands on the shown day.
    [[nodiscard]] QString SlotsToday(PersonId who) const;
    [[nodiscard]] QString SlotsOf(PersonId who) const;
    void TellOfSlot(const BoardSlot& slot);
    void TellOfEntry(PickList& people, const QPoint& point);
    void ShowPull();
    void TakePull(EditBox* box, GoaliePull value);
    bool HoldsBack(QObject* watched, const QEvent* event);
    // Whether a text box keeps the focus from what is pressed.
    bool KeepsFocus(const QObject* watched);
    // Ends a press whose button went up while a failure was read.
    void LetGoOf(QObject* watched, const QEvent* event);
    // Goes back to a box whose text was refused, on whatever page it is.
    void ReturnTo(EditBox* box);

    Int16 day = 1;
    Int16 selectedPosition;
    PersonCards* cards = nullptr;
    SlotPicker* picker = nullptr;
    SlotPicker* sheetPicker = nullptr; // in the sheet's window
    std::vector<SlotPick> picks;       // that the picker offers,
    int pickedSlot = 0;                // for this slot
    std::optional<int> taken;          // the slot whose person was taken up
    QPointer<SlotLabel> lastSlot;      // of the pages, that had the focus
    LineVerdict said;                  // by the judge about the day as it is shown
    std::vector<LineAdvice> advised;   // about it, as its commands stand
    const QObject* heldBack = nullptr; // what was pressed while a text box kept the focus
    std::unique_ptr<Tables> scratch;   // where the days are judged in order to look
    quint64 pull = 0;                  // how often a bar of the strategy was taken
    bool wasLetGo = false;             // the press that is under way has lost its release to a failure's box
};

} // namespace dravik
