#pragma once

#include "rules/DaySlots.h"
#include "rules/LineGroups.h"
#include "screens/panels/SlotLabel.h"

#include <array>
#include <QObject>
#include <span>
#include <string_view>
#include <vector>

namespace dravik {

// A sort of line or unit as a board shows it.
struct BoardGroup {
    const LineGroup& Group;
    const char* Page;        // the caption of its tab
    const char* Heading;     // name of the label that heads each line or unit
    const char* Caption;     // what the heading reads, in front of the number
    std::string_view Prefix; // stands before that where the averages are shown
};

// From normal lines and power play to 4 vs 4, penalty kill and penalty kill with three.
std::span<const BoardGroup> BoardGroups();

// The heading of one line or unit.
struct BoardHeading {
    PressLabel* Label;
    QLabel* Average; // the overall of the line, muted
    const BoardGroup* Group;
    int Number;
};

// How many people five forwards, defensemen or shooters are: the length of a list.
constexpr int ListLength = 5;

// The name of the control that shows a slot, without the index.
const char* NameOfSlot(std::size_t index);

// What a board of all slots of a game day is made of: their labels, the headings of lines and units, and how a line stands. A
// board places them on itself; the pages of the screen and the sheet of the whole line-up are two of them.
class BoardParts : public QObject {
    Q_OBJECT
public:
    // Makes the labels as children of `shown`. `prefix` stands before the names of all controls.
    explicit BoardParts(QWidget* shown, const QString& prefix = {});

    // In the order of DaySlots.
    std::array<SlotLabel*, std::tuple_size_v<decltype(DaySlots)>> Labels{};
    // In the order of BoardGroups, as far as they were made.
    std::vector<BoardHeading> Headings;
    // Headings and slots as the tab key walks them: each line from left to right, in the order in which they were made.
    QList<QWidget*> Walk;

    // A line or unit: its heading above a row of forwards and one of defensemen. A line reads as on the ice, left wing -
    // center - right wing over two defensemen. Where a row is shorter than `across` slots it stands in the middle.
    QWidget* MakeUnit(const BoardGroup& group, int number, int across);
    // The label of a slot. Fails with 9 when there is none.
    [[nodiscard]] SlotLabel* LabelOf(LineField field, int number, int place = 1) const;
    // The same, as the one that the tab key reaches next.
    SlotLabel* Place(LineField field, int number, int place = 1);
    SlotLabel* Place(std::size_t index);

signals:
    void SlotPressed(int index);
    void HeadingPressed(int index);

private:
    void MakeSkaterSlot(std::size_t index);
    void MakeGoalieSlot(std::size_t index, const QString& caption);
    void Connect(std::size_t index);
    // Moves the focus to the nearest slot that stands in the direction of an arrow key.
    void MoveFocus(const QWidget& from, int key);

    QWidget* board;
    QString namePrefix;
};

} // namespace dravik
