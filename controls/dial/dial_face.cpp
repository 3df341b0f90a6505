#include "controls/dial/dial_face.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorn::dial {
namespace {

// Light and dark run from 1 (lightest) over 0 (the surface) to -1 (darkest).

// In shares of the radius.
constexpr double kTopRadius = 0.80;   // the domed top ends, and the skirt around it begins
constexpr double kWidestSeam = 0.05;  // between the two
constexpr double kGlossPlace = 0.36;  // of the gloss: as far left as up from the centre
constexpr double kGlossRadius = 1.20; // where the gloss has faded away

// In pixels.
constexpr double kOutlineWidth = 1.25;
constexpr double kSeamWidth = 1.0;

constexpr double kTopDark = -0.45;
constexpr double kGloss = 0.90;
constexpr double kSeamDark = 0.45; // darker than the skirt
constexpr double kSkirtDark = -0.10;
constexpr double kSkirtLight = 0.70;
constexpr double kOutlineDark = -0.85;

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

std::uint8_t ShadeOfLight(double light) {
    const double shade = kFlatShade + light * (light < 0 ? kFlatShade : 255 - kFlatShade);
    return static_cast<std::uint8_t>(std::clamp(shade + 0.5, 0.0, 255.0));
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
        return kFlatShade;
    }
    // 1 towards the light, -1 away from it.
    const double towards = distance == 0 ? 0 : -(right + down) / distance / std::numbers::sqrt2;
    const double topEdge = radius * kTopRadius;
    const double seamEdge = topEdge - std::min(kSeamWidth, radius * kWidestSeam);
    const double glossAway =
        Length(right / radius + kGlossPlace, down / radius + kGlossPlace) / kGlossRadius;
    const double top = Mixed(kGloss, kTopDark, std::min(glossAway, 1.0));
    const double skirt = kSkirtDark + towards * kSkirtLight;
    double light = Mixed(top, skirt - kSeamDark, Beyond(distance, seamEdge));
    light = Mixed(light, skirt, Beyond(distance, topEdge));
    light = Mixed(light, kOutlineDark, Beyond(distance, radius - kOutlineWidth));
    light = Mixed(light, 0, Beyond(distance, radius));
    return ShadeOfLight(light);
}

} // namespace vorn::dial
