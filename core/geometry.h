// Points, sizes and rectangles of the logic halves, laid out as the platform's own.
#pragma once

#include <cstdint>

namespace vorn {

struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend constexpr bool operator==(const Size&, const Size&) = default;
};

// Right and bottom are the first column and row outside.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

constexpr std::int32_t Width(const Rect& rect) {
    return rect.right - rect.left;
}
constexpr std::int32_t Height(const Rect& rect) {
    return rect.bottom - rect.top;
}

// Moves every side outward by `amount` pixels, inward when it is negative.
constexpr Rect Grown(const Rect& rect, std::int32_t amount) {
    return {rect.left - amount, rect.top - amount, rect.right + amount, rect.bottom + amount};
}

// As the platform tests it: the right column and the bottom row are outside.
constexpr bool Contains(const Rect& rect, Point point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top &&
           point.y < rect.bottom;
}

} // namespace vorn
