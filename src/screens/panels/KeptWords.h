#pragma once

namespace dravik {

// What the league keeps, whatever its rules say: why a manager sees it and changes nothing of it. Of what its rules may close, the desk
// tells beside the rule.
namespace kept {
inline constexpr const char* Records = "Records are kept by the league: a manager sees them, and changes none.";
inline constexpr const char* Team = "Names and morale are kept by the league: a manager sees them, and changes none.";
inline constexpr const char* Arena = "The arena is kept by the league: a manager sees it, and changes nothing of it.";
} // namespace kept

} // namespace dravik
