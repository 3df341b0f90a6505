// The dial's face: its colours, and the light on it.
#include "controls/dial/dial_face.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vorn::dial {
namespace {

constexpr FaceColors kColors = {0xC0C0C0, 0x404040, 0x808080, 0xFFFFFF};

// The knobs of dials of 40, 64, 100 and 200 pixels, and odd and tiny ones.
constexpr std::int32_t kSides[] = {24, 48, 84, 184, 1, 2, 3, 9, 25, 85};

constexpr std::int32_t kMiddle = (kDarkest + kLightest) / 2;

// Four times the squared distance of a pixel's middle from the disc's.
std::int32_t SquaredDistance(std::int32_t side, Point pixel) {
    const std::int32_t right = 2 * pixel.x + 1 - side;
    const std::int32_t down = 2 * pixel.y + 1 - side;
    return right * right + down * down;
}

// Between two distances from the middle, in shares of the radius.
bool IsInRing(std::int32_t side, Point pixel, double from, double to) {
    const double squared = SquaredDistance(side, pixel);
    return squared >= from * side * from * side && squared <= to * side * to * side;
}

template <class Check>
void ForEachPixel(std::int32_t side, Check check) {
    for (std::int32_t y = 0; y < side; ++y) {
        for (std::int32_t x = 0; x < side; ++x) {
            check(Point{x, y});
        }
    }
}

TEST(DialFaceColors, AreTheFourAndWhatLiesBetween) {
    EXPECT_EQ(ColorOfShade(kColors, 0), 0xC0C0C0u);
    EXPECT_EQ(ColorOfShade(kColors, 32), 0x808080u);
    EXPECT_EQ(ColorOfShade(kColors, 64), 0x404040u);
    EXPECT_EQ(ColorOfShade(kColors, 96), 0x606060u);
    EXPECT_EQ(ColorOfShade(kColors, 128), 0x808080u);
    EXPECT_EQ(ColorOfShade(kColors, 192), 0xC0C0C0u) << "80 + 7F x 64 / 127 = 80 + 40";
    EXPECT_EQ(ColorOfShade(kColors, 255), 0xFFFFFFu);
}

TEST(DialFaceColors, MixEachChannelForItself) {
    const FaceColors colors = {0x00FF80, 0x80007F, 0x000000, 0x7F00FE};
    EXPECT_EQ(ColorOfShade(colors, 0), 0x00FF80u);
    EXPECT_EQ(ColorOfShade(colors, 32), 0x408080u) << "0 to 80; FF - 7F; 80 - 0.8 truncated";
    EXPECT_EQ(ColorOfShade(colors, 64), 0x80007Fu);
    EXPECT_EQ(ColorOfShade(colors, 128), 0x000000u);
    EXPECT_EQ(ColorOfShade(colors, 129), 0x010002u);
    EXPECT_EQ(ColorOfShade(colors, 255), 0x7F00FEu);
}

TEST(DialFaceColors, RiseWithoutAStepBackOnTheKnob) {
    for (std::int32_t shade = kDarkest + 1; shade <= kLightest; ++shade) {
        EXPECT_GE(ColorOfShade(kColors, static_cast<std::uint8_t>(shade)),
                  ColorOfShade(kColors, static_cast<std::uint8_t>(shade - 1)))
            << shade;
    }
}

TEST(DialFace, LeavesItsSurroundingsAlone) {
    for (const std::int32_t side : kSides) {
        ForEachPixel(side, [&](Point pixel) {
            if (SquaredDistance(side, pixel) >= (side + 1) * (side + 1)) {
                EXPECT_EQ(ShadeOfPixel(side, pixel), kSurroundings)
                    << side << ": " << pixel.x << ", " << pixel.y;
            }
        });
    }
}

TEST(DialFace, HasTheKnobsOwnColorsInside) {
    for (const std::int32_t side : kSides) {
        ForEachPixel(side, [&](Point pixel) {
            const std::int32_t inside = side - 1;
            if (SquaredDistance(side, pixel) <= inside * inside) {
                EXPECT_GE(ShadeOfPixel(side, pixel), kDarkest)
                    << side << ": " << pixel.x << ", " << pixel.y;
            }
        });
    }
}

TEST(DialFace, IsClosedByADarkLineAllAround) {
    for (const std::int32_t side : {24, 48, 84, 184, 25, 85}) {
        ForEachPixel(side, [&](Point pixel) {
            const double squared = SquaredDistance(side, pixel);
            // From three quarters to half a pixel inside of the rim.
            if (squared >= (side - 1.5) * (side - 1.5) && squared <= (side - 1) * (side - 1)) {
                EXPECT_LT(ShadeOfPixel(side, pixel), kDarkest + 48)
                    << side << ": " << pixel.x << ", " << pixel.y;
            }
        });
    }
}

TEST(DialFace, IsLitFromTheUpperLeft) {
    for (const std::int32_t side : {24, 48, 84, 184}) {
        ForEachPixel(side, [&](Point pixel) {
            EXPECT_EQ(ShadeOfPixel(side, pixel), ShadeOfPixel(side, {pixel.y, pixel.x}))
                << "the light comes along the diagonal";
            const Point opposite = {side - 1 - pixel.x, side - 1 - pixel.y};
            const bool towardsLight = pixel.x + pixel.y < side / 2;
            if (towardsLight && IsInRing(side, pixel, 0, 0.70)) {
                EXPECT_GT(ShadeOfPixel(side, pixel), ShadeOfPixel(side, opposite)) << "the top";
            }
            const bool upperLeft = std::max(pixel.x, pixel.y) < side * 2 / 5;
            if (upperLeft && IsInRing(side, pixel, 0.86, 0.89)) {
                EXPECT_GT(ShadeOfPixel(side, pixel), kMiddle) << "the skirt";
                EXPECT_LT(ShadeOfPixel(side, opposite), kMiddle);
            }
        });
    }
}

TEST(DialFace, IsADomeWhoseGlossFadesAway) {
    constexpr std::int32_t kSide = 184; // radius 92, the top's 73.6
    constexpr std::int32_t kGloss = 59; // 0.36 of the radius up and left of the middle
    for (std::int32_t at = kGloss + 1; at < 92 + 50; ++at) {
        EXPECT_LE(ShadeOfPixel(kSide, {at, at}), ShadeOfPixel(kSide, {at - 1, at - 1})) << at;
    }
    std::uint8_t brightest = 0;
    ForEachPixel(kSide,
                 [&](Point pixel) { brightest = std::max(brightest, ShadeOfPixel(kSide, pixel)); });
    EXPECT_GE(ShadeOfPixel(kSide, {kGloss, kGloss}), brightest - 1);
}

TEST(DialFace, HasItsTopAndItsSkirtApart) {
    // Along the diagonal away from the light, the seam is darker than what lies on either side.
    for (const std::int32_t side : {48, 84, 184}) {
        std::uint8_t darkest = 255;
        ForEachPixel(side, [&](Point pixel) {
            if (pixel.x == pixel.y && pixel.x > side / 2 && IsInRing(side, pixel, 0.74, 0.84)) {
                darkest = std::min(darkest, ShadeOfPixel(side, pixel));
            }
        });
        const auto at = [&](double share) {
            const auto place = static_cast<std::int32_t>(side / 2.0 * (1 + share / 1.41421356));
            return ShadeOfPixel(side, {place, place});
        };
        EXPECT_LT(darkest + 20, at(0.70)) << side;
        EXPECT_LT(darkest + 20, at(0.88)) << side;
    }
}

} // namespace
} // namespace vorn::dial
