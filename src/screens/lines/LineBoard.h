#pragma once

#include "league/PersonId.h"
#include "screens/lines/BoardParts.h"

#include <array>
#include <QTabWidget>

namespace dravik {

// One slot of the board, of a skater or of a goalie, with the label that shows it.
struct BoardSlot {
    SlotLabel* Label = nullptr;   // on the pages
    SlotLabel* OnSheet = nullptr; // on the sheet of the whole line-up, once there is one
    const char* Name = nullptr;   // of the label's control, without the index
    DaySlot Slot{};
    int Shown = 0; // the person whom the labels' text names, 0 for none

    [[nodiscard]] bool IsGoalies() const { return Slot.IsGoalies(); }
    // Whom a number in it means.
    [[nodiscard]] PersonId Whom(long long id) const { return {.IsGoalie = IsGoalies(), .Slot = static_cast<int>(id)}; }
    // Where it stands among the words of a line-up.
    [[nodiscard]] std::size_t Word() const { return static_cast<std::size_t>(Slot.Word); }
    [[nodiscard]] Int16& In(Lines& lines) const { return At(lines, Slot); }
    // Runs `show` for each label of it.
    template <class Show>
    void OnLabels(Show show) const
    {
        for (SlotLabel* label : {Label, OnSheet})
            if (label != nullptr)
                show(*label);
    }
};

// All slots of a game day on a tabbed control. It shows and reports; what a press means is up to its screen.
class LineBoard : public QTabWidget {
    Q_OBJECT
public:
    explicit LineBoard(QWidget* parent = nullptr);

    BoardParts Parts;
    // In the order of DaySlots.
    std::array<BoardSlot, 69> Slots;

    // The slot of (field, number, place). Fails with 9 when there is none.
    BoardSlot& SlotAt(LineField field, int number, int place = 1);

    // Adds a tab with an empty page, on the ground of the window, and returns the page.
    QWidget* AddPage(const QString& caption);

private:
    void MakeGroupPage(const BoardGroup& group);
    void MakeExtrasPage();
    QWidget* MakeList(const QString& caption, LineField field);
    void MakeGoaliesPage();
};

} // namespace dravik
