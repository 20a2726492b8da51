#pragma once

#include "rules/LineSlots.h"

#include <array>
#include <bit>
#include <vector>

namespace dravik {

// What a field of a day holds: a row for each line, unit or number.
inline std::vector<std::vector<long long>> Held(const Lines& lines, LineField field)
{
    std::vector<std::vector<long long>> rows;
    for (const LineSlot& slot : SkaterSlots) {
        if (slot.Field != field)
            continue;
        if (slot.Place == 1)
            rows.emplace_back();
        rows.back().push_back(At(lines, slot));
    }
    return rows;
}

// The 76 words of a day, to tell whether anything has changed.
inline std::vector<long long> Words(const Lines& lines)
{
    const auto words = std::bit_cast<std::array<Int16, sizeof(Lines) / sizeof(Int16)>>(lines);
    return {words.begin(), words.end()};
}

// In how many skater slots of a day somebody stands.
inline int SlotsOf(const Lines& lines, long long skater)
{
    int slots = 0;
    for (const LineSlot& slot : SkaterSlots)
        slots += At(lines, slot) == skater ? 1 : 0;
    return slots;
}

} // namespace dravik
