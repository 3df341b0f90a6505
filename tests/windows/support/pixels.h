// Pictures of windows and of drawing, pixel by pixel.
#pragma once

#include <windows.h>
#include <cstdint>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace vorn::test {

// Colours as 0x00BBGGRR, row by row from the top.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<COLORREF> colors;

    COLORREF At(int x, int y) const {
        return colors[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }

    // How many pixels of a rectangle have the colour.
    int Count(const RECT& area, COLORREF color) const;

    // One letter a pixel: the colour's in the map, '?' for any other.
    std::vector<std::string> Letters(const std::map<COLORREF, char>& letters) const;

    friend bool operator==(const Pixels&, const Pixels&) = default;
};

// Says where and how two pictures differ, for a failing test; empty when they are the same.
std::string Difference(const Pixels& expected, const Pixels& actual);

// What the screen shows of the window, non-client area included.
Pixels PixelsOf(HWND window);

// What a function draws on a canvas that was filled with one colour.
Pixels Drawing(int width, int height, COLORREF background, const std::function<void(HDC)>& draw);

} // namespace vorn::test
