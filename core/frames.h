// The two-pixel frames that give controls their third dimension, as lines to draw.
#pragma once

#include "core/geometry.h"

#include <array>

namespace vorn {

// How a control is bordered; any other number means no border and no inset.
constexpr std::uint32_t kBorderNone = 0;
constexpr std::uint32_t kBorderLine = 1;
constexpr std::uint32_t kBorderRaised = 2;
constexpr std::uint32_t kBorderSunken = 3;

// How thick a border is, in pixels.
constexpr std::int32_t BorderWidth(std::uint32_t border) {
    if (border == kBorderLine) {
        return 1;
    }
    return border == kBorderRaised || border == kBorderSunken ? 2 : 0;
}

// Which of its colours a line takes: the caller's A, B and C, or the system's window frame.
enum class FramePen : std::uint8_t { A, B, C, WindowFrame };

// Two joined lines drawn from points[0] over points[1] to points[2]; the last point of each line
// is not painted.
struct FrameLine {
    FramePen pen;
    std::array<Point, 3> points;
};

using FrameLines = std::array<FrameLine, 4>;

// In drawing order. The two frames are not mirror images of each other: the sunken one has the
// window-frame colour at the inner top left, the raised one at the outer bottom right, and the
// raised one's inner left line ends one pixel higher.
FrameLines SunkenFrame(const Rect& rect);
FrameLines RaisedFrame(const Rect& rect);

} // namespace vorn
