// The percent bar's values and arithmetic: everything about it that needs no window.
#pragma once

#include "core/color.h"
#include "core/frames.h"
#include "core/geometry.h"

#include <array>
#include <cstdint>

namespace vorn::percentbar {

// Window style bits.
constexpr std::uint32_t kStyleSunken = 0x01;
constexpr std::uint32_t kStyleRaised = 0x02;
constexpr std::uint32_t kStyleLine = 0x04;
constexpr std::uint32_t kStyleBorders = kStyleSunken | kStyleRaised | kStyleLine;
constexpr std::uint32_t kStyleTickMarks = 0x08;
constexpr std::uint32_t kStyleScaleText = 0x10;
constexpr std::uint32_t kStylePercent = 0x20;

struct Colors {
    ColorCode bar = kWindowColor;      // empty part; percentage over the filled part
    ColorCode text = kWindowTextColor; // scale labels
    ColorCode highlight = kButtonHighlightColor;
    ColorCode shadow = kButtonShadowColor;
    ColorCode background = kButtonFaceColor; // the control outside the bar
    ColorCode fill = kSelectionColor;        // filled part; percentage over the empty part
};

inline constexpr ColorSlot<Colors> kColorSlots[] = {
    {0, &Colors::highlight}, {1, &Colors::shadow},     {2, &Colors::bar},
    {4, &Colors::text},      {8, &Colors::background}, {16, &Colors::fill},
};

struct State {
    std::int32_t progress = 0;
    std::int32_t limit = 100; // the value that means a full bar
    Colors colors;
    std::uint32_t borderStyle = kBorderNone; // any number; those above 3 draw nothing
    std::int32_t tickMarks = 0;              // flags as they were given: any non-zero is on
    std::int32_t scaleText = 0;
    std::int32_t percent = 0;
};

// The state of a control created with these style bits. The lowest border bit wins.
State StateFromStyle(std::uint32_t style);

// The border bits that stand for a border style, none for an unknown one.
std::uint32_t StyleBitsOfBorder(std::uint32_t borderStyle);

// Both keep the progress at the limit or below it; there is no lower bound.
void SetLimit(State& state, std::int32_t limit);
void SetProgress(State& state, std::int32_t progress);

// The progress in percent of the limit, truncated; 0 for a limit of 0. Beyond 32 bits: the nearest
// 32-bit value.
std::int32_t Percentage(std::int32_t progress, std::int32_t limit);

// How much of a bar `width` pixels wide is filled, with the same rules. Negative for a negative
// progress.
std::int32_t FillWidth(std::int32_t width, std::int32_t progress, std::int32_t limit);

// What the layout needs to know of the scale font.
struct ScaleFontMetrics {
    std::int32_t height;
    std::int32_t ascent;
    std::int32_t internalLeading;
    std::int32_t maxCharWidth;
};

// The bar inside the control: room for the scale below and at both ends (never below 10 by 10
// pixels), less the border. The metrics count only when the scale is on.
Rect BarRectangle(const Rect& client, const State& state, const ScaleFontMetrics& metrics);

// The columns of the ticks, in pixels from the bar's left: full-height ones at 10, 20 ... 90 and
// short ones at 5, 15 ... 95 percent of its width.
constexpr std::int32_t kShortTickHeight = 5;
std::array<std::int32_t, 9> LongTicks(std::int32_t barWidth);
std::array<std::int32_t, 10> ShortTicks(std::int32_t barWidth);

// The scale's labels are 0, 10 ... 100.
constexpr int kScaleLabels = 11;
constexpr std::int32_t kScaleLabelGap = 4; // pixels between the bar and its labels

// Where a label of this width starts, in pixels from the bar's left, for the value 0 to 100. The
// position under the bar is a 16-bit number.
std::int32_t ScaleLabelOffset(std::int32_t value, std::int32_t barWidth, std::int32_t labelWidth);

} // namespace vorn::percentbar
