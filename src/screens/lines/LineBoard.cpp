#include "screens/lines/LineBoard.h"

#include "screens/ElementName.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"

#include <algorithm>
#include <cmath>

namespace dravik {

namespace {

constexpr int ListLength = 5;
constexpr int WidestSlot = 420;

// The labels of a field: their names and what is painted in them, by place.
struct FieldLabels {
    std::array<const char*, 3> Names;
    std::array<const char*, 3> Tags; // none: the number
    const char* Group;               // for a screen reader
};

// In the order of LineField.
constexpr std::array<FieldLabels, 13> Labels{{
    {{"lblNormalTrioC", "lblNormalTrioLW", "lblNormalTrioRW"}, {"C", "LW", "RW"}, "Line"},
    {{"lblNormalTrioD1", "lblNormalTrioD2"}, {"D", "D"}, "Line"},
    {{"lblPPTrioC", "lblPPTrioLW", "lblPPTrioRW"}, {"C", "LW", "RW"}, "PowerPlay unit"},
    {{"lblPPDuoD1", "lblPPDuoD2"}, {"D", "D"}, "PowerPlay unit"},
    {{"lblPKTrioC", "lblPKTrioW"}, {"C", "W"}, "5 vs 4 Penalty Kill unit"},
    {{"lblPKDuoD1", "lblPKDuoD2"}, {"D", "D"}, "5 vs 4 Penalty Kill unit"},
    {{"lbl44TrioC", "lbl44TrioW"}, {"C", "W"}, "4 vs 4 unit"},
    {{"lbl44DuoD1", "lbl44DuoD2"}, {"D", "D"}, "4 vs 4 unit"},
    {{"lblPK3TrioC"}, {"F"}, "* vs 3 Penalty Kill unit"},
    {{"lblPK3DuoD1", "lblPK3DuoD2"}, {"D", "D"}, "* vs 3 Penalty Kill unit"},
    {{"lblExtraForward"}, {}, "Extra Forward"},
    {{"lblExtraDefense"}, {}, "Extra Defenseman"},
    {{"lblPenaltyShot"}, {}, "Penalty Shot"},
}};
static_assert(static_cast<std::size_t>(LineField::PenaltyShot) + 1 == Labels.size());

constexpr std::array<BoardGroup, 5> Groups{{
    {NormalLines, "&Normal Lines", "lblNormalTrio", "Line", "Normal "},
    {PowerPlayUnits, "&PowerPlay", "lblPPTrio", "Unit", "PP "},
    {FourVsFourUnits, "&4 vs 4", "lbl44Trio", "Unit", "4 vs 4 "},
    {PenaltyKillUnits, "&5 vs 4 Penalty Kill", "lblPKTrio", "Unit", "PK "},
    {PenaltyKillWithThreeUnits, "* vs &3 Penalty Kill", "lblPK3Trio", "Unit", "PK3 "},
}};

QString Where(const FieldLabels& labels, const LineSlot& slot)
{
    QString where = QString("%1 %2").arg(labels.Group).arg(slot.Number);
    const auto place = static_cast<std::size_t>(slot.Place - 1);
    if (labels.Tags[place] != nullptr)
        where += QString(", ") + labels.Tags[place];
    if (WantsDefense(slot.Field) && labels.Names[1] != nullptr)
        where += QString::number(slot.Place);
    return where;
}

// As the members of a line stand on the ice, from left to right: a left wing before his center.
std::vector<GroupMember> InARow(const LineGroup& group, bool isDefense)
{
    std::vector<GroupMember> row;
    for (const GroupMember& member : group.Members)
        if (WantsDefense(member.Field) == isDefense)
            row.push_back(member);
    constexpr std::size_t wholeTrio = 3;
    if (row.size() == wholeTrio)
        std::swap(row[0], row[1]);
    return row;
}

} // namespace

LineBoard::LineBoard(QWidget* parent) : QTabWidget(parent)
{
    setObjectName("TabLine");
    setAccessibleName("Lines");
    setDocumentMode(true);
    for (std::size_t index = 0; index < SkaterSlots.size(); ++index)
        MakeSkaterSlot(index);
    MakeGoalieSlot(SkaterSlots.size(), "lblStartGoaler", "Starting Goalie");
    MakeGoalieSlot(SkaterSlots.size() + 1, "lblBackupGoaler", "Backup Goalie");
    static_assert(std::tuple_size_v<decltype(Slots)> == std::tuple_size_v<decltype(DaySlots)>);

    for (const BoardGroup& group : Groups)
        MakeGroupPage(group);
    MakeExtrasPage();
    MakeGoaliesPage();
}

BoardSlot& LineBoard::SlotAt(LineField field, int number, int place)
{
    const int word = SlotOf(field, number, place).Word;
    return *std::find_if(Slots.begin(), Slots.end(), [word](const BoardSlot& slot) { return slot.Slot.Word == word; });
}

void LineBoard::MakeSkaterSlot(std::size_t index)
{
    const LineSlot& slot = SkaterSlots[index];
    const FieldLabels& labels = Labels[static_cast<std::size_t>(slot.Field)];
    const auto place = static_cast<std::size_t>(slot.Place - 1);
    const char* tag = labels.Tags[place];
    auto* label =
        new SlotLabel(Where(labels, slot), tag != nullptr ? QString(tag) : QString::number(slot.Number), this);
    label->setObjectName(ElementName(labels.Names[place], slot.Number));
    Slots[index] = {.Label = label, .Name = labels.Names[place], .Slot = DaySlots[index]};
    Connect(index);
}

void LineBoard::MakeGoalieSlot(std::size_t index, const char* name, const QString& caption)
{
    auto* label = new SlotLabel(caption, ToQString(PositionName[position::Goalie]), this);
    label->setObjectName(name);
    Slots[index] = {.Label = label, .Name = name, .Slot = DaySlots[index]};
    Connect(index);
}

void LineBoard::Connect(std::size_t index)
{
    SlotLabel* label = Slots[index].Label;
    connect(label, &PressLabel::Pressed, this, [this, index] { emit SlotPressed(static_cast<int>(index)); });
    connect(label, &SlotLabel::Arrow, this, [this, label](int key) { MoveFocus(*label, key); });
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
        column->addWidget(MakeUnit(group, number));
    column->addStretch(1);
}

QWidget* LineBoard::MakeUnit(const BoardGroup& group, int number)
{
    auto* panel = new QWidget(this);
    QVBoxLayout* column = MakeColumn(panel, Gap / 2);

    auto* heading = new PressLabel(panel);
    heading->setObjectName(ElementName(group.Heading, number));
    heading->setFont(HeadingFont(heading->font()));
    heading->setText(QString("%1 %2").arg(group.Caption).arg(number));
    heading->setToolTip("Show the averages");
    auto* average = new MutedLabel(panel);
    average->setObjectName(ElementName((QString(group.Heading) + "Average").toUtf8(), number));
    const auto index = static_cast<int>(Headings.size());
    Headings.push_back({heading, average, &group, number});
    Walk << heading;
    connect(heading, &PressLabel::Pressed, this, [this, index] { emit HeadingPressed(index); });

    QHBoxLayout* top = MakeRow({heading});
    top->addStretch(1);
    top->addWidget(average);
    column->addLayout(top);
    for (const bool isDefense : {false, true}) {
        const std::vector<GroupMember> members = InARow(group.Group, isDefense);
        QHBoxLayout* row = MakeRow({});
        // A row of three fills the width; a shorter one stands in its middle, each slot as wide as in a row of three.
        constexpr int wholeWidth = 6;
        const int slotWidth = 2;
        const int side = (wholeWidth - static_cast<int>(members.size()) * slotWidth);
        if (side > 0)
            row->addStretch(side);
        for (const GroupMember& member : members) {
            SlotLabel* label = SlotAt(member.Field, number, member.Place).Label;
            row->addWidget(label, 2 * slotWidth);
            Walk << label;
        }
        if (side > 0)
            row->addStretch(side);
        column->addLayout(row);
    }
    return panel;
}

QWidget* LineBoard::MakeList(const QString& caption, LineField field)
{
    auto* panel = new QWidget(this);
    panel->setMaximumWidth(WidestSlot);
    QVBoxLayout* column = MakeColumn(panel);
    column->addWidget(MakeHeading(caption, panel));
    for (int number = 1; number <= ListLength; ++number) {
        SlotLabel* label = SlotAt(field, number).Label;
        column->addWidget(label);
        Walk << label;
    }
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
        SlotLabel* label = Slots[index].Label;
        label->setMaximumWidth(WidestSlot);
        column->addWidget(MakeHeading(index == SkaterSlots.size() ? "Starting Goalie" : "Backup Goalie", this));
        column->addWidget(label);
        column->addSpacing(Gap);
        Walk << label;
    }
    column->addStretch(1);
}

void LineBoard::MoveFocus(const QWidget& from, int key)
{
    const auto centre = [this](const QWidget& widget) { return widget.mapTo(this, widget.rect().center()); };
    const bool isSideways = key == Qt::Key_Left || key == Qt::Key_Right;
    const long sign = key == Qt::Key_Right || key == Qt::Key_Down ? 1 : -1;
    const QPoint start = centre(from);
    SlotLabel* nearest = nullptr;
    long best = 0;
    for (const BoardSlot& slot : Slots) {
        if (!slot.Label->isVisible() || slot.Label == &from)
            continue;
        const QPoint way = centre(*slot.Label) - start;
        const long along = (isSideways ? way.x() : way.y()) * sign;
        const long aside = std::abs(isSideways ? way.y() : way.x());
        // Sideways stays in the row; up and down goes to the next row first.
        if (along <= 0 || (isSideways && aside > from.height() / 2))
            continue;
        constexpr long rowWeight = 100;
        const long distance = isSideways ? along : along * rowWeight + aside;
        if (nearest == nullptr || distance < best) {
            nearest = slot.Label;
            best = distance;
        }
    }
    if (nearest != nullptr)
        nearest->setFocus(Qt::OtherFocusReason);
}

} // namespace dravik
