#pragma once

#include <array>
#include <string_view>

namespace dravik::sample {

// A pro team's home and its farm's, in UTF-8. Neither place is on any map.
struct Place {
    std::string_view City;
    std::string_view Nickname;
    std::string_view Abbre;
    std::string_view Arena;
    std::string_view FarmName;
    std::string_view FarmAbbre;
    bool Folded = false; // the team has left the league; its slot is empty
};

// By team number, from 1.
extern const std::array<Place, 32> Places;

} // namespace dravik::sample
