#pragma once

#include "league/PersonId.h"
#include "rules/LineSlots.h"
#include "screens/LineGroups.h"
#include "screens/panels/SlotLabel.h"

#include <array>
#include <QTabWidget>
#include <vector>

namespace dravik {

// Who may be put into a slot.
enum class Takes { Skater, Forward, Defense, Goalie };

// One slot of the board, of a skater or of a goalie, with the label that shows it.
struct BoardSlot {
    SlotLabel* Label = nullptr;
    const char* Name = nullptr; // of the label's control, without the index
    Takes Rule = Takes::Skater;
    LineSlot Skater{};              // where he stands in a line-up, unless this is a goalie's slot
    Int16 Lines::*Goalie = nullptr; // where a goalie stands
    int Shown = 0;                  // the person whom the label's text names, 0 for none

    [[nodiscard]] bool IsGoalies() const { return Rule == Takes::Goalie; }
    // Whom a number in it means.
    [[nodiscard]] PersonId Whom(long long id) const { return {.IsGoalie = IsGoalies(), .Slot = static_cast<int>(id)}; }
    // Where it stands among the words of a line-up.
    [[nodiscard]] std::size_t Word() const
    {
        const int goalies = Goalie == &Lines::StartGoalie ? StartGoalieWord : BackupGoalieWord;
        return static_cast<std::size_t>(IsGoalies() ? goalies : Skater.Word);
    }
    [[nodiscard]] Int16& In(Lines& lines) const { return IsGoalies() ? lines.*Goalie : At(lines, Skater); }
};

// The heading of one line or unit.
struct BoardHeading {
    PressLabel* Label;
    QLabel* Average; // the overall of the line, muted
    const LineGroup* Group;
    int Number;
};

// All slots of a game day on a tabbed control: a line reads as on the ice, left wing - center - right wing over two
// defensemen. It shows and reports; what a press means is up to its screen.
class LineBoard : public QTabWidget {
    Q_OBJECT
public:
    explicit LineBoard(QWidget* parent = nullptr);

    // The skater slots in the order of SkaterSlots, then the starting goalie and the backup.
    std::array<BoardSlot, 69> Slots;
    // In the order of LineGroups.
    std::vector<BoardHeading> Headings;
    // Headings and slots as the tab key walks them: each line from left to right.
    QList<QWidget*> Walk;

    // The slot of (field, number, place). Fails with 9 when there is none.
    BoardSlot& SlotAt(LineField field, int number, int place = 1);

    // Adds a tab with an empty page, on the ground of the window, and returns the page.
    QWidget* AddPage(const QString& caption);

signals:
    void SlotPressed(int index);
    void HeadingPressed(int index);

private:
    void MakeSkaterSlot(std::size_t index);
    void MakeGoalieSlot(std::size_t index, const char* name, const QString& caption, Int16 Lines::*goalie);
    void Connect(std::size_t index);
    void MakeGroupPage(const LineGroup& group, const QString& caption);
    QWidget* MakeUnit(const LineGroup& group, int number);
    void MakeExtrasPage();
    QWidget* MakeList(const QString& caption, LineField field);
    void MakeGoaliesPage();
    // Moves the focus to the nearest slot that stands in the direction of an arrow key.
    void MoveFocus(const QWidget& from, int key);
};

} // namespace dravik
