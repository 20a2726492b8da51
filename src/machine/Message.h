#pragma once

#include <string_view>

namespace dravik {

// The program's title: of every box and caption, and of the settings store.
inline constexpr std::string_view ProgramTitle = "Dravik Hockey Simulator Client";

// A line break within a box's text.
inline constexpr std::string_view LineBreak = "\r\n";

} // namespace dravik
