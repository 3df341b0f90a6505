// The knob's face: a disc in shades between five of the system's colours, lit from the upper left.
#pragma once

#include "core/geometry.h"

#include <array>
#include <cstdint>

namespace vorn::dial {

// Where each of the five colours stands among the shades; the others lie between two of them.
constexpr std::array<std::uint8_t, 4> kColorShades = {0, 64, 128, 255};

// What surrounds the disc within its square.
constexpr std::uint8_t kFlatShade = kColorShades[2];

// Colours as the platform has them (0x00BBGGRR), from the darkest to the lightest: those of the
// system's raised and sunken edges, and in their middle that of the surface. A high-contrast scheme
// orders them otherwise.
using FaceColors = std::array<std::uint32_t, 4>;

// The colour of a shade.
std::uint32_t ColorOfShade(const FaceColors& colors, std::uint8_t shade);

// The shade of a pixel of the face, which fills a square of this side.
std::uint8_t ShadeOfPixel(std::int32_t side, Point pixel);

} // namespace vorn::dial
