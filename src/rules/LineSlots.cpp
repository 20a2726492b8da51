#include "rules/LineSlots.h"

#include "rules/DaySlots.h"

#include <cstddef>
#include <new>

namespace dravik {

namespace {

struct FieldShape {
    LineField Field;
    int Word;    // first word of the field
    int Numbers; // size of the first dimension
    int Places;  // size of the second dimension
};

constexpr int WordOf(std::size_t byteOffset) { return static_cast<int>(byteOffset / sizeof(Int16)); }

static_assert(WordOf(offsetof(Lines, StartGoalie)) == StartGoalieWord);
static_assert(WordOf(offsetof(Lines, BackupGoalie)) == BackupGoalieWord);

constexpr std::array<FieldShape, 13> Shapes{
    FieldShape{LineField::NormalForward, WordOf(offsetof(Lines, NormalForward)), 4, 3},
    FieldShape{LineField::NormalDefense, WordOf(offsetof(Lines, NormalDefense)), 4, 2},
    FieldShape{LineField::PPForward, WordOf(offsetof(Lines, PPForward)), 2, 3},
    FieldShape{LineField::PPDefense, WordOf(offsetof(Lines, PPDefense)), 2, 2},
    FieldShape{LineField::PKForward, WordOf(offsetof(Lines, PKForward)), 2, 2},
    FieldShape{LineField::PKDefense, WordOf(offsetof(Lines, PKDefense)), 2, 2},
    FieldShape{LineField::FourVsFourForward, WordOf(offsetof(Lines, FourVsFourForward)), 2, 2},
    FieldShape{LineField::FourVsFourDefense, WordOf(offsetof(Lines, FourVsFourDefense)), 2, 2},
    FieldShape{LineField::PK3Forward, WordOf(offsetof(Lines, PK3Forward)), 2, 1},
    FieldShape{LineField::PK3Defense, WordOf(offsetof(Lines, PK3Defense)), 2, 2},
    FieldShape{LineField::ExtraForward, WordOf(offsetof(Lines, ExtraForward)), 5, 1},
    FieldShape{LineField::ExtraDefense, WordOf(offsetof(Lines, ExtraDefense)), 5, 1},
    FieldShape{LineField::PenaltyShot, WordOf(offsetof(Lines, PenaltyShot)), 5, 1},
};

constexpr LineSlot MakeSlot(LineField field, int number, int place)
{
    const FieldShape& shape = Shapes[static_cast<std::size_t>(field)];
    if (number < 1 || number > shape.Numbers || place < 1 || place > shape.Places)
        Fail(failure::OutOfRange);
    return {field, number, place, shape.Word + (number - 1) + (place - 1) * shape.Numbers};
}

constexpr std::array<LineSlot, 67> MakeSkaterSlots()
{
    std::array<LineSlot, 67> slots{};
    std::size_t count = 0;
    const auto add = [&](LineField field, int number) {
        for (int place = 1; place <= Shapes[static_cast<std::size_t>(field)].Places; ++place)
            slots[count++] = MakeSlot(field, number, place);
    };
    const auto addUnits = [&](LineField forward, LineField defense, int units) {
        for (int unit = 1; unit <= units; ++unit) {
            add(forward, unit);
            add(defense, unit);
        }
    };
    addUnits(LineField::NormalForward, LineField::NormalDefense, 4);
    addUnits(LineField::PPForward, LineField::PPDefense, 2);
    addUnits(LineField::FourVsFourForward, LineField::FourVsFourDefense, 2);
    addUnits(LineField::PKForward, LineField::PKDefense, 2);
    addUnits(LineField::PK3Forward, LineField::PK3Defense, 2);
    for (int number = 1; number <= 5; ++number) {
        add(LineField::ExtraForward, number);
        add(LineField::ExtraDefense, number);
        add(LineField::PenaltyShot, number);
    }
    return slots;
}

constexpr std::array<LineSlot, 67> AllSlots = MakeSkaterSlots();
static_assert(AllSlots.back().Field == LineField::PenaltyShot && AllSlots.back().Number == 5);

constexpr Takes RuleOf(LineField field)
{
    switch (field) {
    case LineField::ExtraForward:
        return Takes::Forward;
    case LineField::ExtraDefense:
        return Takes::Defense;
    default:
        return Takes::Skater;
    }
}

constexpr std::array<DaySlot, 69> MakeDaySlots()
{
    std::array<DaySlot, 69> slots{};
    std::size_t count = 0;
    for (const LineSlot& slot : AllSlots)
        slots[count++] = {RuleOf(slot.Field), slot.Word};
    slots[count++] = {Takes::Goalie, StartGoalieWord};
    slots[count] = {Takes::Goalie, BackupGoalieWord};
    return slots;
}

constexpr std::array<DaySlot, 69> EverySlot = MakeDaySlots();

// A line-up is nothing but words, but they belong to different arrays: a word is found among the bytes of the record.
std::size_t ByteOf(int word) { return static_cast<std::size_t>(word) * sizeof(Int16); }

Int16& WordAt(Lines& lines, int word)
{
    auto* record = reinterpret_cast<unsigned char*>(&lines);
    return *std::launder(reinterpret_cast<Int16*>(record + ByteOf(word)));
}
const Int16& WordAt(const Lines& lines, int word)
{
    const auto* record = reinterpret_cast<const unsigned char*>(&lines);
    return *std::launder(reinterpret_cast<const Int16*>(record + ByteOf(word)));
}

} // namespace

const std::array<LineSlot, 67> SkaterSlots = AllSlots;
const std::array<DaySlot, 69> DaySlots = EverySlot;

LineSlot SlotOf(LineField field, int number, int place) { return MakeSlot(field, number, place); }

Int16& At(Lines& lines, const LineSlot& slot) { return WordAt(lines, slot.Word); }
const Int16& At(const Lines& lines, const LineSlot& slot) { return WordAt(lines, slot.Word); }
Int16& At(Lines& lines, const DaySlot& slot) { return WordAt(lines, slot.Word); }
const Int16& At(const Lines& lines, const DaySlot& slot) { return WordAt(lines, slot.Word); }

bool HasLineDay(int team, int day) { return TeamTable::Has(team) && decltype(Team::ProLines)::Has(day); }

Lines& LinesOf(Tables& league, int team, int day, Side side)
{
    Team& record = league.Teams[team];
    return side == Side::Pro ? record.ProLines[day] : record.Farm.FarmLines[day];
}
const Lines& LinesOf(const Tables& league, int team, int day, Side side)
{
    const Team& record = league.Teams[team];
    return side == Side::Pro ? record.ProLines[day] : record.Farm.FarmLines[day];
}

} // namespace dravik
