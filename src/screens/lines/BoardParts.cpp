#include "screens/lines/BoardParts.h"

#include "screens/ElementName.h"
#include "screens/panels/Labels.h"
#include "screens/panels/Layouts.h"
#include "screens/platform/CodePage.h"

#include <algorithm>
#include <cmath>

namespace dravik {

namespace {

// The labels of a field: their names and what is painted in them, by place.
struct FieldLabels {
    std::array<const char*, 3> Names;
    std::array<const char*, 3> Tags; // none: the number
    const char* Group;               // for a screen reader
};

// In the order of LineField.
constexpr std::array<FieldLabels, 13> FieldTable{{
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
static_assert(static_cast<std::size_t>(LineField::PenaltyShot) + 1 == FieldTable.size());

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

constexpr auto GoalieNames = std::to_array<const char*>({"lblStartGoaler", "lblBackupGoaler"});

} // namespace

std::span<const BoardGroup> BoardGroups() { return Groups; }

const char* NameOfSlot(std::size_t index)
{
    if (index >= SkaterSlots.size())
        return GoalieNames[index - SkaterSlots.size()];
    const LineSlot& slot = SkaterSlots[index];
    return FieldTable[static_cast<std::size_t>(slot.Field)].Names[static_cast<std::size_t>(slot.Place - 1)];
}

BoardParts::BoardParts(QWidget* shown, const QString& prefix) : QObject(shown), board(shown), namePrefix(prefix)
{
    for (std::size_t index = 0; index < SkaterSlots.size(); ++index)
        MakeSkaterSlot(index);
    MakeGoalieSlot(SkaterSlots.size(), "Starting Goalie");
    MakeGoalieSlot(SkaterSlots.size() + 1, "Backup Goalie");
}

SlotLabel* BoardParts::LabelOf(LineField field, int number, int place) const
{
    const int word = SlotOf(field, number, place).Word;
    const auto* found =
        std::find_if(DaySlots.begin(), DaySlots.end(), [word](const DaySlot& slot) { return slot.Word == word; });
    return Labels[static_cast<std::size_t>(found - DaySlots.begin())];
}

SlotLabel* BoardParts::Place(LineField field, int number, int place)
{
    SlotLabel* label = LabelOf(field, number, place);
    Walk << label;
    return label;
}

SlotLabel* BoardParts::Place(std::size_t index)
{
    Walk << Labels[index];
    return Labels[index];
}

void BoardParts::MakeSkaterSlot(std::size_t index)
{
    const LineSlot& slot = SkaterSlots[index];
    const FieldLabels& labels = FieldTable[static_cast<std::size_t>(slot.Field)];
    const char* tag = labels.Tags[static_cast<std::size_t>(slot.Place - 1)];
    auto* label =
        new SlotLabel(Where(labels, slot), tag != nullptr ? QString(tag) : QString::number(slot.Number), board);
    label->setObjectName(namePrefix + ElementName(NameOfSlot(index), slot.Number));
    Labels[index] = label;
    Connect(index);
}

void BoardParts::MakeGoalieSlot(std::size_t index, const QString& caption)
{
    auto* label = new SlotLabel(caption, ToQString(PositionName[position::Goalie]), board);
    label->setObjectName(namePrefix + NameOfSlot(index));
    Labels[index] = label;
    Connect(index);
}

void BoardParts::Connect(std::size_t index)
{
    SlotLabel* label = Labels[index];
    connect(label, &PressLabel::Pressed, this, [this, index] { emit SlotPressed(static_cast<int>(index)); });
    connect(label, &SlotLabel::Arrow, this, [this, label](int key) { MoveFocus(*label, key); });
}

QWidget* BoardParts::MakeUnit(const BoardGroup& group, int number, int across)
{
    auto* panel = new QWidget(board);
    QVBoxLayout* column = MakeColumn(panel, Gap / 2);

    auto* heading = new PressLabel(panel);
    heading->setObjectName(namePrefix + ElementName(group.Heading, number));
    heading->setFont(HeadingFont(heading->font()));
    heading->setText(QString("%1 %2").arg(group.Caption).arg(number));
    heading->setToolTip("Show the averages");
    auto* average = new MutedLabel(panel);
    average->setObjectName(namePrefix + ElementName((QString(group.Heading) + "Average").toUtf8(), number));
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
        // A row of all fills the width; a shorter one stands in its middle, each slot as wide as in a whole row.
        const int side = across - static_cast<int>(members.size());
        if (side > 0)
            row->addStretch(side);
        for (const GroupMember& member : members)
            row->addWidget(Place(member.Field, number, member.Place), 2);
        if (side > 0)
            row->addStretch(side);
        column->addLayout(row, 1);
    }
    return panel;
}

void BoardParts::MoveFocus(const QWidget& from, int key)
{
    const auto centre = [this](const QWidget& widget) { return widget.mapTo(board, widget.rect().center()); };
    const bool isSideways = key == Qt::Key_Left || key == Qt::Key_Right;
    const long sign = key == Qt::Key_Right || key == Qt::Key_Down ? 1 : -1;
    const QPoint start = centre(from);
    // Sideways stays in the row, as far as rows that stand side by side meet; up and down goes to the next row, first of those
    // below or above.
    const long rowReach = 3L * from.height() / 5;
    constexpr long rowWeight = 100;
    SlotLabel* nearest = nullptr;
    long best = 0;
    for (SlotLabel* label : Labels) {
        if (!label->isVisible() || label == &from)
            continue;
        const QPoint way = centre(*label) - start;
        const long along = (isSideways ? way.x() : way.y()) * sign;
        const long aside = std::abs(isSideways ? way.y() : way.x());
        if (along <= 0 || (isSideways && aside > rowReach))
            continue;
        const long elsewhere = aside > from.width() ? rowWeight * rowWeight * rowWeight : 0;
        const long distance = isSideways ? along : elsewhere + along * rowWeight + aside;
        if (nearest == nullptr || distance < best) {
            nearest = label;
            best = distance;
        }
    }
    if (nearest != nullptr)
        nearest->setFocus(Qt::OtherFocusReason);
}

} // namespace dravik
