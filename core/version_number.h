// The packed form in which the library answers its own version.
#pragma once

#include <cstdint>

namespace vorn {

// Packs a file version a.b.c.d, given as its two 32-bit halves (a and b, c and d), into a in bits
// 24 to 31, b in bits 16 to 23 and c in bits 0 to 15. A major version above 255 keeps its low 8
// bits, as does a minor one; d is not used.
constexpr std::uint32_t PackVersion(std::uint32_t highHalf, std::uint32_t lowHalf) {
    const std::uint32_t major = highHalf >> 16;
    const std::uint32_t minor = highHalf & 0xFFFF;
    const std::uint32_t third = lowHalf >> 16;
    return (major << 24) | ((minor << 16) & 0x00FF0000) | third;
}

// Major version in bits 8 to 15, minor version in bits 0 to 7.
constexpr std::uint32_t ShortVersion(std::uint32_t packed) {
    return packed >> 16;
}

} // namespace vorn
