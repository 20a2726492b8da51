#pragma once

#include "files/SlotFile.h"
#include "league/FreeAgentOffer.h"

#include <string_view>

// The magics of the files of the system, and the slots of those that have their own.
namespace dravik {

inline constexpr std::string_view ClientFileStart = "DRVK Client Files Version 1.12 - Start";
inline constexpr std::string_view ClientFileEnd = "DRVK Client Files Version 1.12 - End";
inline constexpr std::string_view LinesFileStart = "DRVK Lineups Files Version 1.01 - Start";
inline constexpr std::string_view LinesFileEnd = "DRVK Lineups Files Version 1.01 - End";
inline constexpr std::string_view OffersFileStart = "DRVK Free Agents Files Version 1 - Start"; // it has no end magic
inline constexpr std::string_view DraftFileStart = "DRVKFDFV1S";
inline constexpr std::string_view DraftFileEnd = "DRVKFDFV1E";

inline constexpr std::size_t OffersSlotLength = sizeof(FreeAgentOffer);
inline constexpr std::size_t DraftSlotLength = MagicLength(DraftFileStart); // the longest record fills its slot

} // namespace dravik
