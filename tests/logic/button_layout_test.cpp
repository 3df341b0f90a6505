// Where the picture button's parts are and which colours they have. The client area is 100 by 40
// at (3, 5): its offset tells which of the places count from its corner.
#include "controls/button/button.h"

#include <gtest/gtest.h>

namespace vorn::button {
namespace {

constexpr Rect kClient = {3, 5, 103, 45};
constexpr std::uint32_t kOnly = 0x0006;    // picture only, with a picture
constexpr std::uint32_t kPicture = 0x0004; // picture and caption

PictureChoice Strip(std::uint32_t index, bool inHostApp = false) {
    return {index, false, {}, inHostApp};
}
PictureChoice User(Size size, bool inHostApp = false) {
    return {3, true, size, inHostApp};
}

TEST(ButtonPictureOnly, CentresACellOfTheStrip) {
    const Layout layout = LayOut(kClient, kOnly, Strip(2));
    EXPECT_EQ(layout.picture, PictureSource::Strip);
    // 3 + (100 - 16) / 2, 5 + trunc((40 - 15) / 2)
    EXPECT_EQ(layout.pictureTarget, (Rect{45, 17, 61, 32}));
    EXPECT_EQ(layout.pictureOrigin, (Point{32, 0}));
    EXPECT_FALSE(layout.hasSwatch);
}

TEST(ButtonPictureOnly, IndexBeyondTheStripShowsTheFirstCell) {
    EXPECT_EQ(LayOut(kClient, kOnly, Strip(0)).pictureOrigin, (Point{0, 0}));
    EXPECT_EQ(LayOut(kClient, kOnly, Strip(15)).pictureOrigin, (Point{240, 0}));
    EXPECT_EQ(LayOut(kClient, kOnly, Strip(31)).pictureOrigin, (Point{496, 0}));
    EXPECT_EQ(LayOut(kClient, kOnly, Strip(32)).pictureOrigin, (Point{0, 0}));
    EXPECT_EQ(LayOut(kClient, kOnly, Strip(0xFFFFFFFF)).pictureOrigin, (Point{0, 0}));
}

TEST(ButtonPictureOnly, CentresTheUsersBitmapWhole) {
    for (const bool inHostApp : {false, true}) {
        const Layout layout = LayOut(kClient, kOnly, User({31, 11}, inHostApp));
        EXPECT_EQ(layout.picture, PictureSource::User);
        // 3 + trunc(69 / 2), 5 + trunc(29 / 2)
        EXPECT_EQ(layout.pictureTarget, (Rect{37, 19, 68, 30}));
        EXPECT_EQ(layout.pictureOrigin, (Point{0, 0}));
    }
    // Larger than the button: -25 / 2 truncated to -12, -5 / 2 to -2.
    EXPECT_EQ(LayOut(kClient, kOnly, User({125, 45})).pictureTarget, (Rect{-9, 3, 116, 48}));
}

TEST(ButtonPictureOnly, ShowsNoStripInTheHostApplication) {
    EXPECT_EQ(LayOut(kClient, kOnly, Strip(2, true)).picture, PictureSource::None);
}

TEST(ButtonPictureOnly, WithoutAPictureShowsNone) {
    const Layout layout = LayOut(kClient, 0x0002, User({31, 11}));
    EXPECT_EQ(layout.picture, PictureSource::None);
    EXPECT_FALSE(layout.hasSwatch);
}

TEST(ButtonPicture, StandsLeftOfTheCaption) {
    const Layout layout = LayOut(kClient, kPicture, Strip(2));
    EXPECT_EQ(layout.picture, PictureSource::Strip);
    // 3 + 8; down (40 - 20) / 2 from the window's top, not from the client area's
    EXPECT_EQ(layout.pictureTarget, (Rect{11, 10, 31, 30}));
    EXPECT_EQ(layout.pictureOrigin, (Point{40, 0}));
    EXPECT_EQ(layout.captionLeft, 31);
}

TEST(ButtonPicture, IndexBeyondTheUsedCellsShowsTheFirst) {
    EXPECT_EQ(LayOut(kClient, kPicture, Strip(14)).pictureOrigin, (Point{280, 0}));
    EXPECT_EQ(LayOut(kClient, kPicture, Strip(15)).pictureOrigin, (Point{0, 0}));
    EXPECT_EQ(LayOut(kClient, kPicture, Strip(16)).pictureOrigin, (Point{0, 0}));
    EXPECT_EQ(LayOut(kClient, kPicture, Strip(0x80000000)).pictureOrigin, (Point{0, 0}));
}

TEST(ButtonPicture, OfTheUserPushesTheCaption) {
    const Layout layout = LayOut(kClient, kPicture, User({31, 11}));
    EXPECT_EQ(layout.picture, PictureSource::User);
    EXPECT_EQ(layout.pictureTarget, (Rect{7, 14, 38, 25})); // 3 + 4, trunc(29 / 2)
    EXPECT_EQ(layout.pictureOrigin, (Point{0, 0}));
    EXPECT_EQ(layout.captionLeft, 38);
}

TEST(ButtonPicture, InTheHostApplicationIsItsOwn) {
    for (const PictureChoice& choice : {Strip(2, true), User({31, 11}, true)}) {
        const Layout layout = LayOut(kClient, kPicture, choice);
        EXPECT_EQ(layout.picture, PictureSource::HostApp);
        EXPECT_EQ(layout.pictureTarget, (Rect{11, 10, 31, 30}));
        EXPECT_EQ(layout.pictureOrigin, (Point{0, 0}));
        EXPECT_EQ(layout.captionLeft, 31);
    }
}

TEST(ButtonSwatch, StandsLeftOfTheCaptionInItsFrame) {
    const Layout layout = LayOut(kClient, 0x0008, User({31, 11}));
    EXPECT_EQ(layout.picture, PictureSource::None);
    EXPECT_TRUE(layout.hasSwatch);
    EXPECT_EQ(layout.swatch, (Rect{9, 21, 17, 29})); // 3 + 6, 5 + (40 - 8) / 2
    EXPECT_EQ(layout.swatchFrame, (Rect{7, 19, 19, 31}));
    EXPECT_EQ(layout.captionLeft, 19);
    EXPECT_TRUE(LayOut(kClient, 0x000A, {}).hasSwatch) << "picture only has one too";
}

TEST(ButtonSwatch, GivesWayToThePicture) {
    for (const std::uint32_t style : {0x000Cu, 0x000Eu}) {
        const Layout layout = LayOut(kClient, style, Strip(0));
        EXPECT_FALSE(layout.hasSwatch);
        EXPECT_EQ(layout.picture, PictureSource::Strip);
    }
}

TEST(ButtonSwatch, FrameHasTheButtonsColors) {
    Colors colors;
    colors.face = 0x112233;
    const FrameCodes codes = SwatchFrameColors(colors);
    EXPECT_EQ(static_cast<std::int32_t>(codes.a), -17);
    EXPECT_EQ(static_cast<std::int32_t>(codes.b), -21);
    EXPECT_EQ(codes.c, 0x112233u);
}

TEST(ButtonCaptionLayout, WithoutPictureStartsAtTheLeft) {
    EXPECT_EQ(LayOut(kClient, 0, User({31, 11})).captionLeft, 3);
    EXPECT_EQ(LayOut(kClient, 0, User({31, 11})).picture, PictureSource::None);
    EXPECT_EQ(CaptionArea(kClient, 3), (Rect{5, 7, 101, 43}));
    EXPECT_EQ(CaptionArea(kClient, 31), (Rect{33, 7, 101, 43}));
}

constexpr std::int32_t kHighlight = -21;
constexpr std::int32_t kShadow = -17;
constexpr std::int32_t kText = -19;

CaptionPass Pass(const Rect& rect, std::int32_t color) {
    return {rect, static_cast<ColorCode>(color)};
}

TEST(ButtonCaptionLayout, CentresTheText) {
    State state;
    SetCaption(state, "x");
    Caption caption = PlanCaption(kClient, 3, {41, 16}, 0, state);
    ASSERT_EQ(caption.passCount, 1u);
    // 3 + trunc((103 - 3 - 41 - 4) / 2) + 2 = 3 + 27 + 2; 5 + (40 - 16) / 2
    EXPECT_EQ(caption.passes[0], Pass({32, 17, 73, 33}, kText));
    EXPECT_FALSE(caption.hasFocusRect);

    caption = PlanCaption(kClient, 31, {40, 13}, 0x4607, state);
    EXPECT_EQ(caption.passCount, 0u) << "picture only";
    caption = PlanCaption(kClient, 31, {40, 13}, 0x4605, state);
    ASSERT_EQ(caption.passCount, 1u);
    // 31 + (103 - 31 - 40 - 4) / 2 + 2; 5 + trunc(27 / 2)
    EXPECT_EQ(caption.passes[0], Pass({47, 18, 87, 31}, kText));
}

TEST(ButtonCaptionLayout, LetsALongTextStickOut) {
    // 3 + trunc((100 - 130 - 4) / 2) + 2 = -12; 5 + trunc(-5 / 2) = 3
    const Caption caption = PlanCaption(kClient, 3, {130, 45}, 0, State{});
    EXPECT_EQ(caption.passes[0], Pass({-12, 3, 118, 48}, kText));
}

TEST(ButtonCaptionLayout, DisabledIsEmbossed) {
    State state;
    const Caption caption = PlanCaption(kClient, 3, {40, 16}, 0x08000000, state);
    ASSERT_EQ(caption.passCount, 2u);
    EXPECT_EQ(caption.passes[0], Pass({34, 18, 74, 34}, kHighlight)) << "one right, one down";
    EXPECT_EQ(caption.passes[1], Pass({33, 17, 73, 33}, kShadow));

    state.flags = 0;
    EXPECT_EQ(PlanCaption(kClient, 3, {40, 16}, 0, state).passCount, 1u)
        << "the style counts, not the flag";
}

TEST(ButtonCaptionLayout, FocusIsAroundTheText) {
    State state;
    SetCaption(state, "x");
    state.flags = kStateEnabled | kStateFocus;
    for (const std::uint32_t style : {0u, 0x08000000u}) {
        const Caption caption = PlanCaption(kClient, 3, {40, 16}, style, state);
        EXPECT_TRUE(caption.hasFocusRect);
        EXPECT_EQ(caption.focusRect, (Rect{31, 17, 75, 33}));
    }
    EXPECT_FALSE(PlanCaption(kClient, 3, {40, 16}, 0x0002, state).hasFocusRect) << "picture only";
    SetCaption(state, "");
    EXPECT_FALSE(PlanCaption(kClient, 3, {0, 16}, 0, state).hasFocusRect) << "empty caption";
}

TEST(ButtonBorder, ShowsTheDefaultButton) {
    Colors colors;
    EXPECT_EQ(static_cast<std::int32_t>(OutlineColor(0x0001, colors)), -7);
    EXPECT_EQ(static_cast<std::int32_t>(OutlineColor(0x460E, colors)), -16);
    colors.face = 0x112233;
    EXPECT_EQ(OutlineColor(0, colors), 0x112233u);
}

TEST(ButtonBorder, FaceFrameTakesTheSystemsFace) {
    EXPECT_EQ(FaceFrame(kClient), (Rect{4, 6, 102, 44}));
    Colors colors;
    colors.face = 0x112233;
    colors.highlight = 0x445566;
    colors.shadow = 0x778899;
    const FrameCodes codes = FaceFrameColors(colors);
    EXPECT_EQ(codes.a, 0x778899u);
    EXPECT_EQ(codes.b, 0x445566u);
    EXPECT_EQ(static_cast<std::int32_t>(codes.c), -16);
}

} // namespace
} // namespace vorn::button
