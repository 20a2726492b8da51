#include "league/OutsideCode.h"

namespace dravik {

std::string RemoveSpaces(std::string_view text)
{
    constexpr unsigned char lastRemoved = 32;
    std::string kept;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) > lastRemoved)
            kept += c;
    }
    return kept;
}

} // namespace dravik
