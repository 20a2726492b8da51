#include "screens/lines/LineBoard.h"

#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"

#include <algorithm>

namespace dravik {

namespace {

constexpr int WidestSlot = 420;
constexpr int SlotsAcross = 3;

} // namespace

LineBoard::LineBoard(QWidget* parent) : QTabWidget(parent), Parts(this)
{
    setObjectName("TabLine");
    setAccessibleName("Lines");
    setDocumentMode(true);
    for (std::size_t index = 0; index < Slots.size(); ++index)
        Slots[index] = {.Label = Parts.Labels[index], .Name = NameOfSlot(index), .Slot = DaySlots[index]};
    static_assert(std::tuple_size_v<decltype(Slots)> == std::tuple_size_v<decltype(DaySlots)>);

    for (const BoardGroup& group : BoardGroups())
        MakeGroupPage(group);
    MakeExtrasPage();
    MakeGoaliesPage();
}

BoardSlot& LineBoard::SlotAt(LineField field, int number, int place)
{
    const int word = SlotOf(field, number, place).Word;
    return *std::find_if(Slots.begin(), Slots.end(), [word](const BoardSlot& slot) { return slot.Slot.Word == word; });
}

QWidget* LineBoard::AddPage(const QString& caption)
{
    auto* page = new QWidget(this);
    page->setAutoFillBackground(true);
    addTab(page, caption);
    return page;
}

void LineBoard::MakeGroupPage(const BoardGroup& group)
{
    auto* column = new QVBoxLayout(AddPage(group.Page));
    column->setContentsMargins(Margin, Gap, Margin, Gap);
    column->setSpacing(Margin);
    for (int number = 1; number <= group.Group.Count; ++number)
        column->addWidget(Parts.MakeUnit(group, number, SlotsAcross));
    column->addStretch(1);
}

QWidget* LineBoard::MakeList(const QString& caption, LineField field)
{
    auto* panel = new QWidget(this);
    panel->setMaximumWidth(WidestSlot);
    QVBoxLayout* column = MakeColumn(panel);
    column->addWidget(MakeHeading(caption, panel));
    for (int number = 1; number <= ListLength; ++number)
        column->addWidget(Parts.Place(field, number));
    column->addStretch(1);
    return panel;
}

void LineBoard::MakeExtrasPage()
{
    auto* extras = new QHBoxLayout(AddPage("&Extras"));
    extras->setContentsMargins(Margin, Gap, Margin, Gap);
    extras->setSpacing(2 * Margin);
    extras->addWidget(MakeList("Extra Forwards", LineField::ExtraForward), 1);
    extras->addWidget(MakeList("Extra Defensemen", LineField::ExtraDefense), 1);
    extras->addStretch(0);
    auto* shots = new QHBoxLayout(AddPage("Penalty &Shots"));
    shots->setContentsMargins(Margin, Gap, Margin, Gap);
    shots->addWidget(MakeList("Penalty Shots", LineField::PenaltyShot), 1);
    shots->addStretch(1);
}

void LineBoard::MakeGoaliesPage()
{
    auto* column = new QVBoxLayout(AddPage("&Goalies"));
    column->setContentsMargins(Margin, Gap, Margin, Gap);
    column->setSpacing(Gap);
    for (std::size_t index = SkaterSlots.size(); index < Slots.size(); ++index) {
        SlotLabel* label = Parts.Place(index);
        label->setMaximumWidth(WidestSlot);
        column->addWidget(MakeHeading(index == SkaterSlots.size() ? "Starting Goalie" : "Backup Goalie", this));
        column->addWidget(label);
        column->addSpacing(Gap);
    }
    column->addStretch(1);
}

} // namespace dravik
