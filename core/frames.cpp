#include "core/frames.h"

namespace vorn {

FrameLines SunkenFrame(const Rect& rect) {
    const auto [l, t, r, b] = rect;
    return {{
        {FramePen::A, {{{l, b - 1}, {l, t}, {r, t}}}},
        {FramePen::B, {{{l, b - 1}, {r - 1, b - 1}, {r - 1, t - 1}}}},
        {FramePen::C, {{{l + 1, b - 2}, {r - 2, b - 2}, {r - 2, t}}}},
        {FramePen::WindowFrame, {{{l + 1, b - 2}, {l + 1, t + 1}, {r - 2, t + 1}}}},
    }};
}

FrameLines RaisedFrame(const Rect& rect) {
    const auto [l, t, r, b] = rect;
    return {{
        {FramePen::WindowFrame, {{{l, b - 1}, {r - 1, b - 1}, {r - 1, t - 1}}}},
        {FramePen::C, {{{l, b - 2}, {l, t}, {r - 1, t}}}},
        {FramePen::A, {{{l + 1, b - 2}, {r - 2, b - 2}, {r - 2, t}}}},
        {FramePen::B, {{{l + 1, b - 3}, {l + 1, t + 1}, {r - 2, t + 1}}}},
    }};
}

} // namespace vorn
