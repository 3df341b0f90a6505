// The knob's face: a disc in shades between the system's colours, lit from the upper left.
#pragma once

#include "core/geometry.h"

#include <array>
#include <cstdint>

namespace vorn::dial {

// Four colours as the platform has them (0x00BBGGRR): the surroundings' and the knob's own from the
// darkest to the lightest. Its outline has the darkest, so that from the surroundings over the
// outline to the knob the shades rise; no scheme of colours, however strange, puts another colour
// in between.
using FaceColors = std::array<std::uint32_t, 4>;

// Where they stand among the shades; the others lie between two of them.
constexpr std::array<std::uint8_t, 4> kColorShades = {0, 64, 128, 255};
constexpr std::uint8_t kSurroundings = kColorShades[0];
constexpr std::uint8_t kDarkest = kColorShades[1];
constexpr std::uint8_t kLightest = kColorShades[3];

// The colour of a shade.
std::uint32_t ColorOfShade(const FaceColors& colors, std::uint8_t shade);

// The shade of a pixel of the face, which fills a square of this side. It is the same with the
// pixel's coordinates exchanged.
std::uint8_t ShadeOfPixel(std::int32_t side, Point pixel);

} // namespace vorn::dial
