#include "league/LetterCase.h"

#include <algorithm>

namespace dravik {

std::string UpperCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return text;
}

} // namespace dravik
