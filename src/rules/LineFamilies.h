#pragma once

#include "rules/LineSlots.h"

namespace dravik {

// Families of fields whose slots of one line or unit may hold a player only once; each of the three lists is a family of
// its own, all its numbers together.
enum class Family { Line, PowerPlay, PenaltyKill, FourVsFour, PenaltyKillWithThree, Forwards, Defensemen, Shooters };

constexpr Family FamilyOf(LineField field)
{
    switch (field) {
    case LineField::NormalForward:
    case LineField::NormalDefense:
        return Family::Line;
    case LineField::PPForward:
    case LineField::PPDefense:
        return Family::PowerPlay;
    case LineField::PKForward:
    case LineField::PKDefense:
        return Family::PenaltyKill;
    case LineField::FourVsFourForward:
    case LineField::FourVsFourDefense:
        return Family::FourVsFour;
    case LineField::PK3Forward:
    case LineField::PK3Defense:
        return Family::PenaltyKillWithThree;
    case LineField::ExtraForward:
        return Family::Forwards;
    case LineField::ExtraDefense:
        return Family::Defensemen;
    case LineField::PenaltyShot:
        break;
    }
    return Family::Shooters;
}

// Whether a family is one of the lists; all others are lines and units.
constexpr bool IsList(Family family) { return family >= Family::Forwards; }

// Whether two slots may not hold the same player because they are of one line, unit or list.
constexpr bool ShareGroup(const LineSlot& one, const LineSlot& other)
{
    const Family family = FamilyOf(one.Field);
    return family == FamilyOf(other.Field) && (IsList(family) || one.Number == other.Number);
}

// Whether two slots are of lines 1 and 2, one of each, which bar each other where the league says so.
constexpr bool AreOfLinesOneAndTwo(const LineSlot& one, const LineSlot& other)
{
    return FamilyOf(one.Field) == Family::Line && FamilyOf(other.Field) == Family::Line &&
           one.Number + other.Number == 3;
}

} // namespace dravik
