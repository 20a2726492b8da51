#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace dravik {

// The MD5 digest of `bytes` by RFC 1321, for tests and tools that run without the desktop toolkit.
std::array<std::uint8_t, 16> ReferenceMd5(std::string_view bytes);

} // namespace dravik
