#include "league/Trimming.h"

#include <algorithm>
#include <vector>

namespace dravik {

namespace {

// How many bytes the first character of `text`, which is not empty, takes: more than one if it stands escaped.
std::size_t LengthOfFirst(std::string_view text)
{
    constexpr std::string_view head = "\x1A{";
    constexpr std::size_t longestNumber = 6;
    if (!text.starts_with(head))
        return 1;
    const std::size_t end = std::min(text.find_first_not_of("0123456789ABCDEF", head.size()), text.size());
    const bool isNumber = end > head.size() && end <= head.size() + longestNumber;
    return isNumber && end < text.size() && text[end] == '}' ? end + 1 : 1;
}

} // namespace

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

std::string WithoutOuterBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string WithoutLastCharacters(std::string_view text, std::size_t count)
{
    std::vector<std::size_t> begins;
    for (std::size_t at = 0; at < text.size(); at += LengthOfFirst(text.substr(at)))
        begins.push_back(at);
    begins.push_back(text.size());
    const std::size_t characters = begins.size() - 1;
    return std::string(text.substr(0, begins[characters - std::min(count, characters)]));
}

} // namespace dravik
