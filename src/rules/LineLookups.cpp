#include "rules/LineLookups.h"

#include "rules/LineSlots.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace dravik {

namespace {

struct Tag {
    std::string_view Prefix;
    std::array<std::string_view, 3> Suffix; // by place
};

// In the order of LineField.
constexpr std::array<Tag, 13> Tags{{
    {"L-", {"C, ", "LW, ", "RW, "}},
    {"L-", {"D, ", "D, "}},
    {"PP-", {"C, ", "LW, ", "RW, "}},
    {"PP-", {"D, ", "D, "}},
    {"PK-", {"F, ", "F, "}},
    {"PK-", {"D, ", "D, "}},
    {"44-", {"F, ", "F, "}},
    {"44-", {"D, ", "D, "}},
    {"PK3-", {"F, "}},
    {"PK3-", {"D, ", "D, "}},
    {"EF-", {", "}},
    {"ED-", {", "}},
    {"PS-", {", "}},
}};
static_assert(static_cast<std::size_t>(LineField::PenaltyShot) + 1 == Tags.size());

// Calls `found` with every skater slot of the day that holds `player`, in the order in which they are told.
template <class Found>
void EachSlotOf(const Tables& league, int team, int player, int day, Side side, Found&& found)
{
    const Lines& lines = LinesOf(league, team, day, side);
    for (const LineSlot& slot : SkaterSlots)
        if (At(lines, slot) == player)
            found(slot);
}

std::string TagOf(const LineSlot& slot)
{
    const Tag& tag = Tags[static_cast<std::size_t>(slot.Field)];
    std::string text(tag.Prefix);
    text += std::to_string(slot.Number);
    text += tag.Suffix[static_cast<std::size_t>(slot.Place - 1)];
    return text;
}

std::string TagsOf(const Tables& league, int team, int player, int day, Side side)
{
    std::string text;
    EachSlotOf(league, team, player, day, side, [&](const LineSlot& slot) { text += TagOf(slot); });
    return text;
}

int CountOf(const Tables& league, int team, int player, int day, Side side)
{
    int count = 0;
    EachSlotOf(league, team, player, day, side, [&](const LineSlot&) { ++count; });
    return count;
}

} // namespace

std::string PlayOnLineString(const Tables& league, int team, int player, int day)
{
    return TagsOf(league, team, player, day, Side::Pro);
}

std::string PlayOnLineStringFarm(const Tables& league, int team, int player, int day)
{
    return TagsOf(league, team, player, day, Side::Farm);
}

int PlayOnLineInteger(const Tables& league, int team, int player, int day)
{
    return CountOf(league, team, player, day, Side::Pro);
}

int PlayOnLineIntegerFarm(const Tables& league, int team, int player, int day)
{
    return CountOf(league, team, player, day, Side::Farm);
}

std::string SlotTag(const LineSlot& slot)
{
    constexpr std::size_t separator = 2; // behind every tag
    std::string tag = TagOf(slot);
    tag.resize(tag.size() - separator);
    return tag;
}

} // namespace dravik
