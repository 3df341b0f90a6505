#include "controls/percentbar/percentbar.h"

#include <algorithm>
#include <limits>

namespace vorn::percentbar {
namespace {

constexpr std::int32_t kSmallestBar = 10;

std::int32_t TruncatedTo32Bits(double value) {
    constexpr double kMin = std::numeric_limits<std::int32_t>::min();
    constexpr double kMax = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(value, kMin, kMax));
}

std::uint32_t BorderOfStyleBits(std::uint32_t style) {
    if ((style & kStyleSunken) != 0) {
        return kBorderSunken;
    }
    if ((style & kStyleRaised) != 0) {
        return kBorderRaised;
    }
    return (style & kStyleLine) != 0 ? kBorderLine : kBorderNone;
}

// trunc(percent x width / 100), exact in 64 bits.
std::int32_t Share(std::int32_t percent, std::int32_t width) {
    return static_cast<std::int32_t>(std::int64_t{percent} * width / 100);
}

} // namespace

State StateFromStyle(std::uint32_t style) {
    State state;
    state.borderStyle = BorderOfStyleBits(style);
    state.tickMarks = (style & kStyleTickMarks) != 0;
    state.scaleText = (style & kStyleScaleText) != 0;
    state.percent = (style & kStylePercent) != 0;
    return state;
}

std::uint32_t StyleBitsOfBorder(std::uint32_t borderStyle) {
    switch (borderStyle) {
    case kBorderLine:
        return kStyleLine;
    case kBorderRaised:
        return kStyleRaised;
    case kBorderSunken:
        return kStyleSunken;
    default:
        return 0;
    }
}

void SetLimit(State& state, std::int32_t limit) {
    state.limit = limit;
    state.progress = std::min(state.progress, limit);
}

void SetProgress(State& state, std::int32_t progress) {
    state.progress = std::min(progress, state.limit);
}

std::int32_t Percentage(std::int32_t progress, std::int32_t limit) {
    return limit == 0 ? 0 : TruncatedTo32Bits(progress * 100.0 / limit);
}

std::int32_t FillWidth(std::int32_t width, std::int32_t progress, std::int32_t limit) {
    return limit == 0 ? 0 : TruncatedTo32Bits(static_cast<double>(width) * progress / limit);
}

Rect BarRectangle(const Rect& client, const State& state, const ScaleFontMetrics& metrics) {
    Rect bar = client;
    if (state.scaleText != 0) {
        bar.bottom -= metrics.height + metrics.ascent + metrics.internalLeading;
        bar.left += metrics.maxCharWidth;
        bar.right -= metrics.maxCharWidth;
        bar.bottom = std::max(bar.bottom, bar.top + kSmallestBar);
        bar.right = std::max(bar.right, bar.left + kSmallestBar);
    }
    return Grown(bar, -BorderWidth(state.borderStyle));
}

std::array<std::int32_t, 9> LongTicks(std::int32_t barWidth) {
    std::array<std::int32_t, 9> columns{};
    for (std::int32_t tick = 0; tick < 9; ++tick) {
        columns[static_cast<std::size_t>(tick)] = Share(10 * (tick + 1), barWidth);
    }
    return columns;
}

std::array<std::int32_t, 10> ShortTicks(std::int32_t barWidth) {
    std::array<std::int32_t, 10> columns{};
    for (std::int32_t tick = 0; tick < 10; ++tick) {
        columns[static_cast<std::size_t>(tick)] = Share(10 * tick + 5, barWidth);
    }
    return columns;
}

std::int32_t ScaleLabelOffset(std::int32_t value, std::int32_t barWidth, std::int32_t labelWidth) {
    return static_cast<std::int16_t>(Share(value, barWidth)) - labelWidth / 2;
}

} // namespace vorn::percentbar
