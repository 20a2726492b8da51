#pragma once

#include "league/PersonId.h"
#include "rules/DaySlots.h"
#include "rules/LineGroups.h"
#include "screens/panels/SlotLabel.h"

#include <array>
#include <QTabWidget>
#include <string_view>
#include <vector>

namespace dravik {

// One slot of the board, of a skater or of a goalie, with the label that shows it.
struct BoardSlot {
    SlotLabel* Label = nullptr;
    const char* Name = nullptr; // of the label's control, without the index
    DaySlot Slot{};
    int Shown = 0; // the person whom the label's text names, 0 for none

    [[nodiscard]] bool IsGoalies() const { return Slot.IsGoalies(); }
    // Whom a number in it means.
    [[nodiscard]] PersonId Whom(long long id) const { return {.IsGoalie = IsGoalies(), .Slot = static_cast<int>(id)}; }
    // Where it stands among the words of a line-up.
    [[nodiscard]] std::size_t Word() const { return static_cast<std::size_t>(Slot.Word); }
    [[nodiscard]] Int16& In(Lines& lines) const { return At(lines, Slot); }
};

// A sort of line or unit as the board shows it.
struct BoardGroup {
    const LineGroup& Group;
    const char* Page;        // the caption of its tab
    const char* Heading;     // name of the label that heads each line or unit
    const char* Caption;     // what the heading reads, in front of the number
    std::string_view Prefix; // stands before that where the averages are shown
};

// The heading of one line or unit.
struct BoardHeading {
    PressLabel* Label;
    QLabel* Average; // the overall of the line, muted
    const BoardGroup* Group;
    int Number;
};

// All slots of a game day on a tabbed control: a line reads as on the ice, left wing - center - right wing over two
// defensemen. It shows and reports; what a press means is up to its screen.
class LineBoard : public QTabWidget {
    Q_OBJECT
public:
    explicit LineBoard(QWidget* parent = nullptr);

    // In the order of DaySlots.
    std::array<BoardSlot, 69> Slots;
    // From normal lines and power play to 4 vs 4, penalty kill and penalty kill with three.
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
    void MakeGoalieSlot(std::size_t index, const char* name, const QString& caption);
    void Connect(std::size_t index);
    void MakeGroupPage(const BoardGroup& group);
    QWidget* MakeUnit(const BoardGroup& group, int number);
    void MakeExtrasPage();
    QWidget* MakeList(const QString& caption, LineField field);
    void MakeGoaliesPage();
    // Moves the focus to the nearest slot that stands in the direction of an arrow key.
    void MoveFocus(const QWidget& from, int key);
};

} // namespace dravik
