#pragma once

#include <map>

namespace dravik {

// The code page written out a second time, as its owner publishes it, apart from the bytes that are their own number.
inline const std::map<unsigned char, char16_t> Published{
    {0x80, u'\u20AC'}, {0x82, u'\u201A'}, {0x83, u'\u0192'}, {0x84, u'\u201E'}, {0x85, u'\u2026'}, {0x86, u'\u2020'},
    {0x87, u'\u2021'}, {0x88, u'\u02C6'}, {0x89, u'\u2030'}, {0x8A, u'\u0160'}, {0x8B, u'\u2039'}, {0x8C, u'\u0152'},
    {0x8E, u'\u017D'}, {0x91, u'\u2018'}, {0x92, u'\u2019'}, {0x93, u'\u201C'}, {0x94, u'\u201D'}, {0x95, u'\u2022'},
    {0x96, u'\u2013'}, {0x97, u'\u2014'}, {0x98, u'\u02DC'}, {0x99, u'\u2122'}, {0x9A, u'\u0161'}, {0x9B, u'\u203A'},
    {0x9C, u'\u0153'}, {0x9E, u'\u017E'}, {0x9F, u'\u0178'},
};

// The character of a byte, 0 to 255.
inline char16_t PublishedCharacter(int byte)
{
    const auto found = Published.find(static_cast<unsigned char>(byte));
    return found == Published.end() ? static_cast<char16_t>(byte) : found->second;
}

} // namespace dravik
