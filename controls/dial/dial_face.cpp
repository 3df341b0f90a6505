#include "controls/dial/dial_face.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorn::dial {
namespace {

// In shares of the radius.
constexpr double kTopRadius = 0.80;   // the domed top ends, and the skirt around it begins
constexpr double kWidestSeam = 0.05;  // between the two
constexpr double kGlossPlace = 0.36;  // of the gloss: as far left as up from the centre
constexpr double kGlossRadius = 1.25; // where the gloss has faded away

// In pixels.
constexpr double kOutlineWidth = 1.25;
constexpr double kSeamWidth = 1.0;

// Light, from 0 (the darkest colour) to 1 (the lightest).
constexpr double kGloss = 1.00;
constexpr double kTopDark = 0.33;
constexpr double kSkirtLight = 0.87; // where it faces the light
constexpr double kSkirtDark = 0.17;  // on the other side
constexpr double kSeamLess = 0.28;   // than the skirt
constexpr double kOutline = 0.00;

double Length(double right, double down) {
    return std::sqrt(right * right + down * down);
}

double Mixed(double from, double to, double share) {
    return from + (to - from) * share;
}

// How much of a pixel lies beyond an edge: none half a pixel before it, all half a pixel behind it.
double Beyond(double distance, double edge) {
    return std::clamp(distance - edge + 0.5, 0.0, 1.0);
}

// At a place in shares of the radius.
double LightOfTop(double right, double down) {
    const double glossAway = Length(right + kGlossPlace, down + kGlossPlace) / kGlossRadius;
    return Mixed(kGloss, kTopDark, std::min(glossAway, 1.0));
}

// In a direction of length 1.
double LightOfSkirt(double right, double down) {
    const double towardsLight = -(right + down) / std::numbers::sqrt2;
    return Mixed(kSkirtDark, kSkirtLight, (towardsLight + 1) / 2);
}

double ShadeOfLight(double light) {
    return Mixed(kDarkest, kLightest, std::clamp(light, 0.0, 1.0));
}

} // namespace

std::uint32_t ColorOfShade(const FaceColors& colors, std::uint8_t shade) {
    std::size_t above = 1;
    while (kColorShades[above] < shade) {
        ++above;
    }
    const std::int32_t low = kColorShades[above - 1];
    const std::int32_t steps = kColorShades[above] - low;
    std::uint32_t color = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const auto from = static_cast<std::int32_t>(colors[above - 1] >> shift & 0xFF);
        const auto to = static_cast<std::int32_t>(colors[above] >> shift & 0xFF);
        const std::int32_t part = from + (to - from) * (shade - low) / steps;
        color |= static_cast<std::uint32_t>(part) << shift;
    }
    return color;
}

std::uint8_t ShadeOfPixel(std::int32_t side, Point pixel) {
    const double radius = side / 2.0;
    const double right = pixel.x + 0.5 - radius;
    const double down = pixel.y + 0.5 - radius;
    const double distance = Length(right, down);
    if (distance >= radius + 0.5) {
        return kSurroundings;
    }
    const double topEdge = radius * kTopRadius;
    const double seamEdge = topEdge - std::min(kSeamWidth, radius * kWidestSeam);
    double light = LightOfTop(right / radius, down / radius);
    // The very middle has no direction, which matters for a face of one pixel only.
    if (distance > std::max(seamEdge - 0.5, 0.0)) {
        const double skirt = LightOfSkirt(right / distance, down / distance);
        light = Mixed(light, skirt - kSeamLess, Beyond(distance, seamEdge));
        light = Mixed(light, skirt, Beyond(distance, topEdge));
        light = Mixed(light, kOutline, Beyond(distance, radius - kOutlineWidth));
    }
    const double shade = Mixed(ShadeOfLight(light), kSurroundings, Beyond(distance, radius));
    return static_cast<std::uint8_t>(std::lround(shade));
}

} // namespace vorn::dial
