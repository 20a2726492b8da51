#pragma once

#include "league/Lines.h"

#include <functional>
#include <string>
#include <vector>

namespace dravik {

// One sort of slot label as the general manager knows it: its name, how many there are (1 without an index), the slot of
// the record behind each, and the digits of the positions that it takes (5 is a goalie).
struct LabelRow {
    std::string Name;
    int Count;
    bool HasIndex;
    std::function<Int16&(Lines&, int)> Slot;
    std::string Takes;

    [[nodiscard]] std::string NameOf(int index) const
    {
        return HasIndex ? Name + "(" + std::to_string(index) + ")" : Name;
    }
};

// All sorts of slot labels of a lines screen, written down apart from the program.
inline const std::vector<LabelRow>& LabelTable()
{
    using L = Lines;
    const std::string skater = "1234";
    static const std::vector<LabelRow> table{
        {"lblNormalTrioC", 4, true, [](L& l, int i) -> Int16& { return l.NormalForward(i, 1); }, skater},
        {"lblNormalTrioLW", 4, true, [](L& l, int i) -> Int16& { return l.NormalForward(i, 2); }, skater},
        {"lblNormalTrioRW", 4, true, [](L& l, int i) -> Int16& { return l.NormalForward(i, 3); }, skater},
        {"lblNormalTrioD1", 4, true, [](L& l, int i) -> Int16& { return l.NormalDefense(i, 1); }, skater},
        {"lblNormalTrioD2", 4, true, [](L& l, int i) -> Int16& { return l.NormalDefense(i, 2); }, skater},
        {"lblPPTrioC", 2, true, [](L& l, int i) -> Int16& { return l.PPForward(i, 1); }, skater},
        {"lblPPTrioLW", 2, true, [](L& l, int i) -> Int16& { return l.PPForward(i, 2); }, skater},
        {"lblPPTrioRW", 2, true, [](L& l, int i) -> Int16& { return l.PPForward(i, 3); }, skater},
        {"lblPPDuoD1", 2, true, [](L& l, int i) -> Int16& { return l.PPDefense(i, 1); }, skater},
        {"lblPPDuoD2", 2, true, [](L& l, int i) -> Int16& { return l.PPDefense(i, 2); }, skater},
        {"lbl44TrioC", 2, true, [](L& l, int i) -> Int16& { return l.FourVsFourForward(i, 1); }, skater},
        {"lbl44TrioW", 2, true, [](L& l, int i) -> Int16& { return l.FourVsFourForward(i, 2); }, skater},
        {"lbl44DuoD1", 2, true, [](L& l, int i) -> Int16& { return l.FourVsFourDefense(i, 1); }, skater},
        {"lbl44DuoD2", 2, true, [](L& l, int i) -> Int16& { return l.FourVsFourDefense(i, 2); }, skater},
        {"lblPKTrioC", 2, true, [](L& l, int i) -> Int16& { return l.PKForward(i, 1); }, skater},
        {"lblPKTrioW", 2, true, [](L& l, int i) -> Int16& { return l.PKForward(i, 2); }, skater},
        {"lblPKDuoD1", 2, true, [](L& l, int i) -> Int16& { return l.PKDefense(i, 1); }, skater},
        {"lblPKDuoD2", 2, true, [](L& l, int i) -> Int16& { return l.PKDefense(i, 2); }, skater},
        {"lblPK3TrioC", 2, true, [](L& l, int i) -> Int16& { return l.PK3Forward[i]; }, skater},
        {"lblPK3DuoD1", 2, true, [](L& l, int i) -> Int16& { return l.PK3Defense(i, 1); }, skater},
        {"lblPK3DuoD2", 2, true, [](L& l, int i) -> Int16& { return l.PK3Defense(i, 2); }, skater},
        {"lblExtraForward", 5, true, [](L& l, int i) -> Int16& { return l.ExtraForward[i]; }, "123"},
        {"lblExtraDefense", 5, true, [](L& l, int i) -> Int16& { return l.ExtraDefense[i]; }, "4"},
        {"lblPenaltyShot", 5, true, [](L& l, int i) -> Int16& { return l.PenaltyShot[i]; }, skater},
        {"lblStartGoaler", 1, false, [](L& l, int) -> Int16& { return l.StartGoalie; }, "5"},
        {"lblBackupGoaler", 1, false, [](L& l, int) -> Int16& { return l.BackupGoalie; }, "5"},
    };
    return table;
}

// Calls `visit(row, index)` for every slot label.
template <class Visit>
void EachLabel(Visit&& visit)
{
    for (const LabelRow& row : LabelTable())
        for (int index = 1; index <= row.Count; ++index)
            visit(row, index);
}

} // namespace dravik
