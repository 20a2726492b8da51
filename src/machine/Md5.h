#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace dravik {

// The MD5 digest of `bytes` by RFC 1321, for whoever runs without the desktop toolkit.
std::array<std::uint8_t, 16> Md5Of(std::string_view bytes);

} // namespace dravik
